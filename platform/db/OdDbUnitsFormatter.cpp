#include "OdDbUnitsFormatter.h"

#include "OdGeTol.h"

#include <QByteArray>
#include <QChar>
#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>

namespace {

constexpr int kMaxPrec = 8;
constexpr double kRadToDeg = 180.0 / OdaPI;
constexpr double kDegToRad = OdaPI / 180.0;
constexpr double kRadToGrad = 200.0 / OdaPI;
constexpr double kGradToRad = OdaPI / 200.0;
constexpr char16_t kDegreeSign = u'\u00B0';

enum LinearUnits { kScientific = 1, kDecimal = 2, kEngineering = 3, kArchitectural = 4, kFractional = 5 };
enum AngularUnits { kDegrees = 0, kDegMinSec = 1, kGrads = 2, kRadians = 3, kSurveyor = 4 };

long long pow10(int n) {
  long long p = 1;
  while (n-- > 0) p *= 10;
  return p;
}

QString nonFinite(double v) {
  if (std::isnan(v)) return QStringLiteral("nan");
  return v > 0 ? QStringLiteral("inf") : QStringLiteral("-inf");
}

// Fixed-point text. QString::number ignores the locale, so the decimal mark is
// always '.'. A value that rounds to zero drops its minus sign.
QString fixed(double v, int prec) {
  QString s = QString::number(v, 'f', prec);
  if (s.startsWith(u'-') &&
      std::all_of(s.begin() + 1, s.end(), [](QChar c) { return c == u'0' || c == u'.'; }))
    s.remove(0, 1);
  return s;
}

// An integral, non-negative double as digits, however large.
QString wholeText(double w) { return QString::number(w, 'f', 0); }

// `steps` zero-padded to `width` digits.
QString padded(long long steps, int width) {
  return QString::number(steps).rightJustified(width, u'0');
}

// A non-negative value split into whole `unit`s and a remainder counted in
// 1/scale steps of the unit, rounded to the nearest step. A remainder that
// rounds up to a full unit carries into the whole part, so 11.99" shows as a
// foot and 29.9999 degrees as 30d.
struct Split {
  double whole;
  long long steps;
};

Split splitRounded(double a, double unit, long long stepsPerUnit) {
  const double rem = std::fmod(a, unit);  // exact
  // Every caller's steps per unit of measure (1/2^n or 1/10^n inch, a
  // fraction of a degree or of 1) is exact, so the remainder is rounded once.
  const double stepsPerMeasure = double(stepsPerUnit) / unit;
  Split s{std::round((a - rem) / unit), std::llround(rem * stepsPerMeasure)};
  if (s.steps >= stepsPerUnit) {
    s.whole += 1;
    s.steps -= stepsPerUnit;
  }
  return s;
}

// "n/d" reduced to lowest terms; steps counts 1/den parts.
QString fractionText(long long steps, long long den) {
  const long long g = std::gcd(steps, den);
  return QString::number(steps / g) + u'/' + QString::number(den / g);
}

// Angle steps per degree at an AUPREC for degrees/minutes/seconds: 0 whole
// degrees, 1-2 minutes, 3-4 seconds, 5-8 seconds with 1-4 decimals.
long long dmsStepsPerDegree(int prec) {
  if (prec == 0) return 1;
  if (prec <= 2) return 60;
  if (prec <= 4) return 3600;
  return 3600 * pow10(prec - 4);
}

QString dmsText(const Split& s, int prec) {
  QString t = wholeText(s.whole) + u'd';
  if (prec == 0) return t;
  const long long perMinute = dmsStepsPerDegree(prec) / 60;
  t += QString::number(s.steps / perMinute) + u'\'';
  if (prec <= 2) return t;
  const int decimals = std::max(0, prec - 4);
  const long long perSecond = pow10(decimals);
  const long long rest = s.steps % perMinute;
  t += QString::number(rest / perSecond);
  if (decimals > 0) t += u'.' + padded(rest % perSecond, decimals);
  return t + u'"';
}

double normalized2Pi(double r) {
  r = std::fmod(r, Oda2PI);
  if (r < 0) r += Oda2PI;
  if (r >= Oda2PI) r = 0;  // a tiny negative angle plus 2*pi can round to 2*pi
  return r;
}

// Whether an angle short of a full turn shows as one at this precision
// (359.7 degrees as "360" at precision 0): such an angle is shown as 0. An
// angle of a full turn or more keeps its value.
bool roundsToFullTurn(double radians, int mode, int prec) {
  double value = std::fabs(radians), fullTurn = 0, stepsPerUnit = 0;
  switch (mode) {
    case kDegMinSec: value *= kRadToDeg, fullTurn = 360, stepsPerUnit = double(dmsStepsPerDegree(prec)); break;
    case kGrads: value *= kRadToGrad, fullTurn = 400, stepsPerUnit = double(pow10(prec)); break;
    case kRadians: fullTurn = Oda2PI, stepsPerUnit = double(pow10(prec)); break;
    default: value *= kRadToDeg, fullTurn = 360, stepsPerUnit = double(pow10(prec)); break;
  }
  return value < fullTurn && std::round(value * stepsPerUnit) / stepsPerUnit >= fullTurn;
}

// Direction (radians from the X axis, counter-clockwise) as a bearing: the
// acute angle from north or south towards east or west. Exact compass points,
// and bearings that round to 0 or 90 degrees, show as a single letter.
QString surveyorText(double radians, int prec, bool asTyped) {
  double d = normalized2Pi(radians) * kRadToDeg;
  if (d >= 360.0) d = 0;
  char16_t ns, ew;
  double b;
  if (d < 90) {
    ns = u'N', ew = u'E', b = 90 - d;
  } else if (d < 180) {
    ns = u'N', ew = u'W', b = d - 90;
  } else if (d < 270) {
    ns = u'S', ew = u'W', b = 270 - d;
  } else {
    ns = u'S', ew = u'E', b = d - 270;
  }
  const Split s = splitRounded(b, 1.0, dmsStepsPerDegree(prec));
  if (s.whole == 0 && s.steps == 0) return QString(QChar(ns));
  if (s.whole >= 90) return QString(QChar(ew));
  const QString gap = asTyped ? QString() : QStringLiteral(" ");
  return QChar(ns) + gap + dmsText(s, prec) + gap + QChar(ew);
}

// Reads the pieces of typed values. Only ASCII digits count as digits, and
// numbers are converted without regard to the locale.
class Scanner {
 public:
  explicit Scanner(const QString& s) : m_s(s) {}

  bool atEnd() const { return m_i >= m_s.size(); }
  qsizetype pos() const { return m_i; }
  void reset(qsizetype p) { m_i = p; }
  QChar upperPeek() const { return atEnd() ? QChar() : m_s[m_i].toUpper(); }
  void advance() { ++m_i; }

  bool eat(char16_t c) {
    if (atEnd() || m_s[m_i] != QChar(c)) return false;
    ++m_i;
    return true;
  }
  bool eatUpper(char16_t c) {
    if (upperPeek() != QChar(c)) return false;
    ++m_i;
    return true;
  }
  bool skipSpaces() {
    const qsizetype start = m_i;
    while (!atEnd() && m_s[m_i].isSpace()) ++m_i;
    return m_i != start;
  }
  bool digitNext() const { return !atEnd() && isDigit(m_s[m_i]); }

  // An unsigned run of digits.
  bool integer(double& v) {
    const qsizetype start = m_i;
    skipDigits();
    return convert(start, v);
  }

  // An unsigned decimal number: "12", "12.", "12.5", ".5"; with an exponent
  // ("1.5E+03", "1.5e3") when allowed. An 'e' not followed by digits is left
  // alone, so "N45E" reads 45 and leaves the E.
  bool number(double& v, bool allowExponent, bool* hasFraction = nullptr) {
    const qsizetype start = m_i;
    qsizetype digits = skipDigits();
    bool fraction = false;
    if (eat(u'.')) {
      fraction = true;
      digits += skipDigits();
    }
    if (digits == 0) {
      m_i = start;
      return false;
    }
    if (allowExponent && (upperPeek() == u'E')) {
      qsizetype j = m_i + 1;
      if (j < m_s.size() && (m_s[j] == u'+' || m_s[j] == u'-')) ++j;
      if (j < m_s.size() && isDigit(m_s[j])) {
        m_i = j;
        skipDigits();
        fraction = true;
      }
    }
    if (hasFraction) *hasFraction = fraction;
    return convert(start, v);
  }

 private:
  static bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

  qsizetype skipDigits() {
    const qsizetype start = m_i;
    while (digitNext()) ++m_i;
    return m_i - start;
  }

  bool convert(qsizetype start, double& v) {
    if (m_i == start) return false;
    const QByteArray bytes = m_s.mid(start, m_i - start).toLatin1();
    double x = 0;
    const auto r = std::from_chars(bytes.constData(), bytes.constData() + bytes.size(), x);
    if (r.ec != std::errc() || r.ptr != bytes.constData() + bytes.size()) {
      m_i = start;
      return false;
    }
    v = x;
    return true;
  }

  const QString& m_s;
  qsizetype m_i = 0;
};

// An unsigned magnitude: a mixed number "3 1/2" or "3-1/2", a fraction "1/2",
// or a number. A zero denominator makes the text invalid.
bool readMagnitude(Scanner& sc, double& v) {
  const qsizetype start = sc.pos();
  double whole = 0, num = 0, den = 0;
  if (sc.integer(whole)) {
    const qsizetype afterWhole = sc.pos();
    if ((sc.skipSpaces() || sc.eat(u'-')) && sc.integer(num) && sc.eat(u'/') && sc.integer(den)) {
      if (den == 0) return false;
      v = whole + num / den;
      return true;
    }
    sc.reset(afterWhole);
    if (sc.eat(u'/') && sc.integer(den)) {
      if (den == 0) return false;
      v = whole / den;
      return true;
    }
    sc.reset(start);
  }
  return sc.number(v, true);
}

// A length or plain real. Feet and inches ("12'6-1/2\"", "1'", "6\"") only
// when allowFeet; the inches may follow the foot mark directly, after a
// hyphen, or after blanks, and their closing mark is optional.
bool parseLinear(const QString& text, bool allowFeet, double& out) {
  const QString t = text.trimmed();
  Scanner sc(t);
  double sign = 1;
  if (sc.eat(u'-'))
    sign = -1;
  else
    sc.eat(u'+');
  double v = 0;
  if (!readMagnitude(sc, v)) return false;
  if (!sc.atEnd()) {
    if (!allowFeet) return false;
    if (sc.eat(u'\'')) {
      v *= 12;
      sc.skipSpaces();
      if (!sc.atEnd()) {
        if (sc.eat(u'-')) sc.skipSpaces();
        double inches = 0;
        if (!readMagnitude(sc, inches)) return false;
        sc.eat(u'"');
        v += inches;
      }
    } else if (!sc.eat(u'"')) {
      return false;
    }
    if (!sc.atEnd()) return false;
  }
  v *= sign;
  if (!std::isfinite(v)) return false;
  out = v == 0 ? 0.0 : v;  // "-0" reads as plain zero
  return true;
}

// Unsigned degrees: a number, optionally followed by the degree mark ('d' or
// the degree sign) and minutes and seconds: "45", "45.5d", "45d30'",
// "45d30'15.5\"". Only the last component may have decimals, minutes and
// seconds stay below 60, and the mark of the last component may be left off.
bool readDegrees(Scanner& sc, double& out) {
  double deg = 0, minutes = 0, seconds = 0;
  bool degFraction = false, minFraction = false, secFraction = false;
  if (!sc.number(deg, false, &degFraction)) return false;
  if (!sc.eatUpper(u'D') && !sc.eat(kDegreeSign)) {
    out = deg;
    return true;
  }
  const qsizetype afterDegrees = sc.pos();
  sc.skipSpaces();
  if (!sc.number(minutes, false, &minFraction)) {
    sc.reset(afterDegrees);
    out = deg;
    return true;
  }
  if (degFraction || minutes >= 60) return false;
  if (sc.eat(u'\'')) {
    const qsizetype afterMinutes = sc.pos();
    sc.skipSpaces();
    if (sc.number(seconds, false, &secFraction)) {
      if (minFraction || seconds >= 60) return false;
      sc.eat(u'"');
    } else {
      sc.reset(afterMinutes);
    }
  }
  out = deg + minutes / 60.0 + seconds / 3600.0;
  return true;
}

// An angle in any of the typed forms. A bare number is in the given angular
// unit (degrees for decimal, DMS and surveyor's modes). Bearings ("N45d30'E",
// "S 45 W", or a lone compass letter) yield a direction in [0, 2*pi) and set
// `bearing`; other angles keep their sign.
bool parseAngleText(const QString& text, int mode, double& out, bool& bearing) {
  const QString t = text.trimmed();
  Scanner sc(t);
  const QChar first = sc.upperPeek();
  if (first == u'N' || first == u'S' || first == u'E' || first == u'W') {
    sc.advance();
    sc.skipSpaces();
    double deg = 0;
    if (sc.atEnd()) {
      deg = first == u'E' ? 0 : first == u'N' ? 90 : first == u'W' ? 180 : 270;
    } else {
      if (first == u'E' || first == u'W') return false;
      double b = 0;
      if (!readDegrees(sc, b)) return false;
      sc.skipSpaces();
      const QChar side = sc.upperPeek();
      if (side != u'E' && side != u'W') return false;
      sc.advance();
      if (!sc.atEnd() || b > 90) return false;
      const bool east = side == u'E';
      deg = first == u'N' ? (east ? 90 - b : 90 + b) : (east ? 270 + b : 270 - b);
    }
    out = normalized2Pi(deg * kDegToRad);
    bearing = true;
    return true;
  }

  double sign = 1;
  if (sc.eat(u'-'))
    sign = -1;
  else
    sc.eat(u'+');
  const qsizetype start = sc.pos();
  double v = 0, r = 0;
  if (!sc.number(v, true)) return false;
  if (sc.atEnd()) {
    r = mode == kGrads ? v * kGradToRad : mode == kRadians ? v : v * kDegToRad;
  } else if (sc.eatUpper(u'G')) {
    r = v * kGradToRad;
  } else if (sc.eatUpper(u'R')) {
    r = v;
  } else {
    sc.reset(start);
    if (!readDegrees(sc, v)) return false;
    r = v * kDegToRad;
  }
  r *= sign;
  if (!sc.atEnd() || !std::isfinite(r)) return false;
  out = r == 0 ? 0.0 : r;
  bearing = false;
  return true;
}

}  // namespace

OdDbUnitsFormatter::OdDbUnitsFormatter(const OdDbUnitsSettings& s) : m_s(s) {}

const OdDbUnitsSettings& OdDbUnitsFormatter::settings() const { return m_s; }

void OdDbUnitsFormatter::setSettings(const OdDbUnitsSettings& s) { m_s = s; }

int OdDbUnitsFormatter::linearMode(int lunits) const {
  if (lunits < 0) lunits = m_s.lunits;
  return lunits >= kScientific && lunits <= kFractional ? lunits : int(kDecimal);
}

int OdDbUnitsFormatter::angularMode(int aunits) const {
  if (aunits < 0) aunits = m_s.aunits;
  return aunits >= kDegrees && aunits <= kSurveyor ? aunits : int(kDegrees);
}

int OdDbUnitsFormatter::linearPrec(int prec) const {
  return std::clamp(prec < 0 ? m_s.luprec : prec, 0, kMaxPrec);
}

int OdDbUnitsFormatter::angularPrec(int prec) const {
  return std::clamp(prec < 0 ? m_s.auprec : prec, 0, kMaxPrec);
}

OdString OdDbUnitsFormatter::formatDistance(double value, int lunits, int prec) const {
  const int mode = linearMode(lunits);
  const int p = linearPrec(prec);
  if (!std::isfinite(value)) return nonFinite(value);
  const bool asTyped = (m_s.unitmode & 1) != 0;
  const double a = std::fabs(value);
  const QString minus = value < 0 ? QStringLiteral("-") : QString();

  switch (mode) {
    case kScientific:
      return QString::number(value == 0 ? 0.0 : value, 'E', p);

    case kFractional: {
      const long long den = 1LL << p;
      const Split s = splitRounded(a, 1.0, den);
      if (s.whole == 0 && s.steps == 0) return QStringLiteral("0");
      if (s.steps == 0) return minus + wholeText(s.whole);
      if (s.whole == 0) return minus + fractionText(s.steps, den);
      return minus + wholeText(s.whole) + (asTyped ? u'-' : u' ') + fractionText(s.steps, den);
    }

    case kEngineering:
    case kArchitectural: {
      // Inches are counted in steps of 1/2^p (architectural) or 1/10^p inch.
      const bool arch = mode == kArchitectural;
      const long long perInch = arch ? (1LL << p) : pow10(p);
      const Split s = splitRounded(a, 12.0, 12 * perInch);
      const long long inches = s.steps / perInch, part = s.steps % perInch;

      // Zero suppression follows the DIMZIN feet/inch values: 2 drops zero
      // inches ("1'"), 3 drops zero feet ("6\"", "1/2\""). 0 and 1 show both,
      // as CAD unit displays (Properties, LIST, DIST) do at the default DIMZIN
      // 0: "0'-0 1/2\"", "1'-0\"". Inches are zero only when exactly zero, so
      // "1'-0 3/4\"" keeps its 0. At least one part is always shown.
      const int zin = m_s.dimzin & 3;
      const bool showFeet = !(zin == 3 && s.whole == 0);
      const bool showInches = !(zin == 2 && s.steps == 0 && showFeet);

      QString inchText;
      if (!arch) {
        inchText = QString::number(inches);
        if (p > 0) inchText += u'.' + padded(part, p);
      } else if (part == 0) {
        inchText = QString::number(inches);
      } else if (inches == 0 && !showFeet) {
        inchText = fractionText(part, perInch);
      } else {
        inchText = QString::number(inches) + (asTyped ? u'-' : u' ') + fractionText(part, perInch);
      }

      QString t = (s.whole == 0 && s.steps == 0) ? QString() : minus;
      if (showFeet) t += wholeText(s.whole) + u'\'';
      if (showFeet && showInches && !asTyped) t += u'-';
      if (showInches) t += inchText + u'"';
      return t;
    }

    default:
      return fixed(value, p);
  }
}

OdString OdDbUnitsFormatter::formatArea(double value, int lunits, int prec) const {
  const int mode = linearMode(lunits);
  if (mode == kEngineering || mode == kArchitectural) {
    if (!std::isfinite(value)) return nonFinite(value);
    return fixed(value, linearPrec(prec));
  }
  return formatDistance(value, mode, prec);
}

OdString OdDbUnitsFormatter::formatAngle(double radians, int aunits, int prec) const {
  const int mode = angularMode(aunits);
  const int p = angularPrec(prec);
  if (!std::isfinite(radians)) return nonFinite(radians);
  if (mode != kSurveyor && roundsToFullTurn(radians, mode, p)) radians = 0;
  switch (mode) {
    case kDegMinSec: {
      const double deg = radians * kRadToDeg;
      if (!std::isfinite(deg)) return nonFinite(deg);
      const Split s = splitRounded(std::fabs(deg), 1.0, dmsStepsPerDegree(p));
      const bool zero = s.whole == 0 && s.steps == 0;
      return (deg < 0 && !zero ? QStringLiteral("-") : QString()) + dmsText(s, p);
    }
    case kGrads:
      return fixed(radians * kRadToGrad, p) + u'g';
    case kRadians:
      return fixed(radians, p) + u'r';
    case kSurveyor:
      return surveyorText(radians, p, (m_s.unitmode & 1) != 0);
    default:
      return fixed(radians * kRadToDeg, p);
  }
}

OdString OdDbUnitsFormatter::formatDirection(double radians, int aunits, int prec) const {
  const int mode = angularMode(aunits);
  if (mode == kSurveyor || !std::isfinite(radians)) return formatAngle(radians, mode, prec);
  double rel = radians - m_s.angbase;
  if (m_s.angdirClockwise) rel = -rel;
  const OdString text = formatAngle(normalized2Pi(rel), mode, prec);
  // A direction just short of a full turn rounds to 360 degrees; show it as 0.
  if (text == formatAngle(Oda2PI, mode, prec)) return formatAngle(0.0, mode, prec);
  return text;
}

bool OdDbUnitsFormatter::parseDistance(const OdString& text, double& value, int lunits) const {
  const int mode = linearMode(lunits);
  return parseLinear(text.qstring(), mode == kEngineering || mode == kArchitectural, value);
}

bool OdDbUnitsFormatter::parseArea(const OdString& text, double& value, int lunits) const {
  // Areas are plain reals whatever the linear units.
  (void)lunits;
  return parseLinear(text.qstring(), false, value);
}

bool OdDbUnitsFormatter::parseAngle(const OdString& text, double& radians, int aunits) const {
  bool bearing = false;
  return parseAngleText(text.qstring(), angularMode(aunits), radians, bearing);
}

bool OdDbUnitsFormatter::parseDirection(const OdString& text, double& radians, int aunits) const {
  bool bearing = false;
  double r = 0;
  if (!parseAngleText(text.qstring(), angularMode(aunits), r, bearing)) return false;
  if (!bearing) {
    r = m_s.angbase + (m_s.angdirClockwise ? -r : r);
    if (!std::isfinite(r)) return false;
    r = normalized2Pi(r);
  }
  radians = r;
  return true;
}
