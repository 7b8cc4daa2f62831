// Every tag value of every record checked against its group code's type,
// whether or not the platform models the record: a value that cannot be a
// number of that type, a handle that is not hexadecimal, hexadecimal data
// that is not, or an integer outside the range of its type refuses the
// drawing; a real that is not finite (nan, inf) is kept as read with a
// warning. HEADER variables are left to the header reader, which replaces a
// bad value by its default with a warning.
#include "DxfDrawing.h"
#include "DxfInternal.h"

#include <QCoreApplication>

#include <charconv>
#include <cmath>
#include <limits>

namespace OdDxf::mapping {
namespace {

struct Range {
  qint64 lo, hi;
};

// The values a type holds: integers of the types' widths; flags (290-299)
// are one unsigned byte.
Range rangeOf(ValueType t) {
  switch (t) {
    case ValueType::Int16: return {std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()};
    case ValueType::Int32: return {std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()};
    case ValueType::Bool: return {0, 255};
    default: return {std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()};
  }
}

bool isHexText(QByteArrayView t, bool evenLength) {
  if (evenLength && t.size() % 2) return false;
  for (char c : t)
    if (!((c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f'))) return false;
  return true;
}

// Most values are plain decimals ("12.5", "-3", "     0"): those are
// recognised here without a full conversion. Sets `integral` when there is
// no decimal point, and `value` to the integer then (at most 18 digits).
bool plainDecimal(QByteArrayView text, bool& integral, qint64& value) {
  const char* p = text.data();
  const char* e = p + text.size();
  while (p < e && *p == ' ') ++p;
  while (e > p && e[-1] == ' ') --e;
  const bool negative = p < e && *p == '-';
  if (p < e && (*p == '-' || *p == '+')) ++p;
  const char* digits = p;
  qint64 v = 0;
  for (; p < e && *p >= '0' && *p <= '9'; ++p)
    if (p - digits < 18) v = v * 10 + (*p - '0');
  const qsizetype whole = p - digits;
  integral = p == e;
  if (integral) {
    if (whole == 0 || whole > 18) return false;
    value = negative ? -v : v;
    return true;
  }
  if (*p++ != '.') return false;
  const char* frac = p;
  while (p < e && *p >= '0' && *p <= '9') ++p;
  return p == e && whole + (p - frac) > 0 && whole < 300;
}

const char* const kContext = "OdDxf";

class Checker {
 public:
  explicit Checker(Context& ctx) : m_ctx(ctx) {}

  void record(const Record& r) {
    for (int i = 0; i < r.size(); ++i) tag(r, i);
  }

 private:
  QString who(const Record& r) const {
    QString w = typeName(r);
    const quint64 h = r.handle();
    if (h) w += QStringLiteral(" (handle %1)").arg(QString::number(h, 16).toUpper());
    return w;
  }
  QString message(const Record& r, int i, const char* what) const {
    const QString value = r.str(i).left(40);
    return QStringLiteral("%1: %2: %3")
        .arg(m_ctx.where(r, i), who(r),
             QCoreApplication::translate(kContext, what).arg(r.at(i).code()).arg(value));
  }
  [[noreturn]] void refuse(const Record& r, int i, const char* what) const {
    throw MapError{message(r, i, what)};
  }
  void refuseRange(const Record& r, int i, Range range) const {
    throw MapError{message(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is out of the range of its type"))
                   + QStringLiteral(" (%1 to %2)").arg(range.lo).arg(range.hi)};
  }

  void tag(const Record& r, int i) {
    const Tag& t = r.at(i);
    const ValueType type = t.type();
    switch (type) {
      case ValueType::String: return;
      case ValueType::Handle: {
        // An empty handle is a null reference, as some writers leave it.
        const QByteArrayView v = t.trimmed();
        if (v.size() > 16 || !isHexText(v, false))
          refuse(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is not a handle"));
        return;
      }
      case ValueType::Binary:
        if (!t.isBinaryForm() && !isHexText(t.trimmed(), true))
          refuse(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is not hexadecimal data"));
        return;
      case ValueType::Double: {
        bool integral = false;
        qint64 whole = 0;
        if (!t.isBinaryForm() && plainDecimal(t.raw(), integral, whole)) return;
        bool ok = false;
        const double v = t.real(&ok);
        if (!ok && !t.isBinaryForm()) {
          // A number too large (or too small) for a double, or no number.
          QByteArrayView s = detail::trimBlanks(t.raw());
          if (s.startsWith('+')) s = s.sliced(1);
          double d = 0;
          const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), d);
          if (ec == std::errc::result_out_of_range && end == s.data() + s.size())
            refuse(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is out of the range of a real"));
        }
        if (!ok) refuse(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is not a number"));
        if (!std::isfinite(v))
          m_ctx.warn(message(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is not a finite number")));
        return;
      }
      default: {  // integers and flags; binary ones have their width already
        if (t.isBinaryForm()) return;
        bool ok = false, integral = false;
        qint64 v = 0;
        if (plainDecimal(t.raw(), integral, v) && integral)
          ok = true;
        else
          v = t.integer(&ok);
        if (!ok) {
          // Some writers put a whole real into an integer group ("1.0").
          const double d = t.real(&ok);
          if (!ok || !std::isfinite(d) || d != std::floor(d))
            refuse(r, i, QT_TRANSLATE_NOOP("OdDxf", "group code %1 value '%2' is not an integer"));
          // Digits too many for a 64-bit integer read as a real.
          if (std::fabs(d) >= 9.2e18) refuseRange(r, i, rangeOf(type));
          v = qint64(d);
        }
        const Range range = rangeOf(type);
        if (v < range.lo || v > range.hi) refuseRange(r, i, range);
        return;
      }
    }
  }

  Context& m_ctx;
};

}  // namespace

void checkValues(Context& ctx) {
  Checker check(ctx);
  for (const Section& s : ctx.file->sections()) {
    if (s.name == "HEADER") continue;
    check.record(s.head);
    for (const Record& r : s.records) check.record(r);
    check.record(s.tail);
  }
}

}  // namespace OdDxf::mapping
