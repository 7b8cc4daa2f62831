// Group code types, code pages, number text and the typed accessors of Tag.
#include "DxfInternal.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <array>
#include <bit>
#include <charconv>
#include <cstdio>

static_assert(std::endian::native == std::endian::little, "binary DXF values are read in place as little-endian");

namespace OdDxf {
namespace {

constexpr ValueType typeOf(int c) {
  using T = ValueType;
  if (c == 5 || c == 105 || (c >= 320 && c <= 369) || (c >= 390 && c <= 399) || c == 480 || c == 481 || c == 1005)
    return T::Handle;
  if ((c >= 10 && c <= 59) || (c >= 110 && c <= 149) || (c >= 210 && c <= 239) || (c >= 460 && c <= 469) ||
      (c >= 1010 && c <= 1059))
    return T::Double;
  if ((c >= 60 && c <= 79) || (c >= 170 && c <= 179) || (c >= 270 && c <= 289) || (c >= 370 && c <= 389) ||
      (c >= 400 && c <= 409) || (c >= 1060 && c <= 1070))
    return T::Int16;
  if ((c >= 90 && c <= 99) || (c >= 420 && c <= 429) || (c >= 440 && c <= 459) || c == 1071) return T::Int32;
  if (c >= 160 && c <= 169) return T::Int64;
  if (c >= 290 && c <= 299) return T::Bool;
  if ((c >= 310 && c <= 319) || c == 1004) return T::Binary;
  return T::String;
}

constexpr auto kTypes = [] {
  std::array<ValueType, kMaxGroupCode + 1> a{};
  for (int c = 0; c <= kMaxGroupCode; ++c) a[size_t(c)] = typeOf(c);
  return a;
}();

// Windows-1252 bytes 0x80..0x9F; the rest of the code page is Latin-1. The
// five bytes the code page leaves undefined map to the C1 control of the same
// number, so every byte decodes and encodes back to itself.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct CodepageName {
  const char* dxf;   // $DWGCODEPAGE spelling, compared without case
  quint16 number;
};
constexpr CodepageName kCodepages[] = {
    {"ANSI_1252", 1252}, {"ANSI_1250", 1250}, {"ANSI_1251", 1251}, {"ANSI_1253", 1253}, {"ANSI_1254", 1254},
    {"ANSI_1255", 1255}, {"ANSI_1256", 1256}, {"ANSI_1257", 1257}, {"ANSI_1258", 1258}, {"ANSI_874", 874},
    {"ANSI_932", 932},   {"ANSI_936", 936},   {"ANSI_949", 949},   {"ANSI_950", 950},   {"ANSI_1361", 1361},
    {"UTF8", kUtf8},     {"UTF-8", kUtf8},    {"dos437", 437},     {"dos850", 850},     {"dos852", 852},
    {"dos855", 855},     {"dos857", 857},     {"dos860", 860},     {"dos861", 861},     {"dos863", 863},
    {"dos864", 864},     {"dos865", 865},     {"dos866", 866},     {"dos869", 869},     {"dos932", 932},
    {"mac-roman", 10000}, {"big5", 950},      {"gb2312", 936},     {"ksc5601", 949},    {"johab", 1361},
    {"iso8859-1", 28591}, {"iso8859-2", 28592}, {"iso8859-3", 28593}, {"iso8859-4", 28594},
    {"iso8859-5", 28595}, {"iso8859-6", 28596}, {"iso8859-7", 28597}, {"iso8859-8", 28598},
    {"iso8859-9", 28599}, {"iso8859-10", 28600}};

// Converter name Qt (ICU) knows a code page by.
QByteArray converterName(quint16 cp) {
  switch (cp) {
    case 932: return "Shift_JIS";
    case 936: return "GBK";
    case 949: return "windows-949";
    case 950: return "Big5";
    case 1361: return "johab";
    case 10000: return "macintosh";
    default: break;
  }
  if (cp >= 28591 && cp <= 28600) return "ISO-8859-" + QByteArray::number(cp - 28590);
  if (cp < 1000) return cp == 874 ? QByteArray("windows-874") : "IBM" + QByteArray::number(cp);
  return "windows-" + QByteArray::number(cp);
}

int hexDigit(QChar c) {
  const char16_t u = c.unicode();
  if (u >= '0' && u <= '9') return u - '0';
  if (u >= 'A' && u <= 'F') return u - 'A' + 10;
  if (u >= 'a' && u <= 'f') return u - 'a' + 10;
  return -1;
}

// Replaces "\U+XXXX" with the character it names.
QString resolveEscapes(QString s) {
  qsizetype i = s.indexOf(QLatin1String("\\U+"));
  if (i < 0) return s;
  QString out;
  out.reserve(s.size());
  qsizetype from = 0;
  while (i >= 0) {
    int v = 0;
    bool good = i + 7 <= s.size();
    for (int k = 0; good && k < 4; ++k) {
      const int d = hexDigit(s[i + 3 + k]);
      good = d >= 0;
      v = v * 16 + d;
    }
    if (good) {
      out += QStringView(s).sliced(from, i - from);
      out += QChar(char16_t(v));
      from = i + 7;
    }
    i = s.indexOf(QLatin1String("\\U+"), good ? i + 7 : i + 1);
  }
  out += QStringView(s).sliced(from);
  return out;
}

void appendEscape(QByteArray& out, char16_t u) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "\\U+%04X", unsigned(u));
  out.append(buf, 7);
}

template <typename T>
bool parseNumber(QByteArrayView text, T& v, int base = 10) {
  QByteArrayView t = detail::trimBlanks(text);
  if (!t.isEmpty() && t[0] == '+') {
    t = t.sliced(1);
    if (!t.isEmpty() && t[0] == '-') return false;  // "+-5"
  }
  if (t.isEmpty()) return false;
  const char* e = t.data() + t.size();
  std::from_chars_result r;
  if constexpr (std::is_floating_point_v<T>)
    r = std::from_chars(t.data(), e, v);
  else
    r = std::from_chars(t.data(), e, v, base);
  return r.ec == std::errc() && r.ptr == e;
}

bool hexDecode(QByteArrayView text, QByteArray& out) {
  const QByteArrayView t = detail::trimBlanks(text);
  if (t.size() % 2) return false;
  out.resize(t.size() / 2);
  for (qsizetype i = 0; i < out.size(); ++i) {
    const int hi = hexDigit(QChar(t[2 * i])), lo = hexDigit(QChar(t[2 * i + 1]));
    if (hi < 0 || lo < 0) return false;
    out[i] = char(hi * 16 + lo);
  }
  return true;
}

}  // namespace

ValueType valueType(int code) {
  return isValidGroupCode(code) ? kTypes[size_t(code)] : ValueType::String;
}

quint16 codepageFromName(QByteArrayView name) {
  const QByteArrayView n = detail::trimBlanks(name);
  for (const auto& c : kCodepages)
    if (n.compare(QByteArrayView(c.dxf), Qt::CaseInsensitive) == 0) return c.number;
  return 0;
}

QString decodeText(QByteArrayView bytes, quint16 codepage) {
  QString s;
  if (codepage == kUtf8) {
    s = QString::fromUtf8(bytes);
  } else if (codepage == kAnsi1252 || codepage == 0) {
    s.resize(bytes.size());
    QChar* d = s.data();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
      const uchar b = uchar(bytes[i]);
      d[i] = QChar(b >= 0x80 && b < 0xA0 ? kCp1252High[b - 0x80] : char16_t(b));
    }
  } else {
    QStringDecoder dec(converterName(codepage).constData());
    s = dec.isValid() ? QString(dec.decode(bytes)) : decodeText(bytes, kAnsi1252);
  }
  return resolveEscapes(std::move(s));
}

QByteArray encodeText(const QString& text, quint16 codepage) {
  if (codepage == kUtf8) return text.toUtf8();
  QByteArray out;
  out.reserve(text.size());
  if (codepage == kAnsi1252 || codepage == 0) {
    for (QChar c : text) {
      const char16_t u = c.unicode();
      if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) {
        out.append(char(u));
        continue;
      }
      int b = -1;
      for (int k = 0; k < 32 && b < 0; ++k)
        if (kCp1252High[k] == u) b = 0x80 + k;
      if (b >= 0)
        out.append(char(b));
      else
        appendEscape(out, u);
    }
    return out;
  }
  QStringEncoder enc(converterName(codepage).constData());
  QStringDecoder dec(converterName(codepage).constData());
  if (!enc.isValid() || !dec.isValid()) return encodeText(text, kAnsi1252);
  // Character by character, so that one the code page lacks becomes an escape.
  for (qsizetype i = 0; i < text.size(); ++i) {
    const qsizetype n = (text[i].isHighSurrogate() && i + 1 < text.size()) ? 2 : 1;
    const QStringView ch = QStringView(text).sliced(i, n);
    const QByteArray b = enc.encode(ch);
    if (!enc.hasError() && QString(dec.decode(b)) == ch) {
      out += b;
    } else {
      for (qsizetype k = 0; k < n; ++k) appendEscape(out, ch[k].unicode());
      enc.resetState();
    }
    dec.resetState();
    i += n - 1;
  }
  return out;
}

bool hasControlCharacters(QStringView text) {
  for (QChar c : text)
    if (c.unicode() < 0x20 || c.unicode() == 0x7F) return true;
  return false;
}

QByteArray formatReal(double value) {
  char buf[40];
  const auto r = std::to_chars(buf, buf + sizeof buf - 2, value);
  char* e = r.ptr;
  bool plain = true;
  for (char* p = buf; p < e; ++p)
    if (*p == '.' || *p == 'e' || *p == 'n' || *p == 'i') plain = false;
  if (plain) {
    *e++ = '.';
    *e++ = '0';
  }
  return QByteArray(buf, e - buf);
}

// ---------------------------------------------------------------------------
// Tag

QByteArrayView Tag::trimmed() const {
  return isBinaryForm() ? raw() : detail::trimBlanks(raw());
}

double Tag::real(bool* ok) const {
  double v = 0;
  bool good;
  if (isBinaryForm() && type() == ValueType::Double) {
    good = m_size == 8;
    if (good) v = detail::loadLE<double>(m_value);
  } else if (isBinaryForm() && detail::isNumeric(type())) {
    v = double(integer(&good));
  } else {
    good = parseNumber(raw(), v);
    if (!good) v = 0;
  }
  if (ok) *ok = good;
  return v;
}

qint64 Tag::integer(bool* ok) const {
  qint64 v = 0;
  bool good = true;
  if (isBinaryForm() && detail::isNumeric(type())) {
    switch (type()) {
      case ValueType::Int16: good = m_size == 2; if (good) v = detail::loadLE<qint16>(m_value); break;
      case ValueType::Int32: good = m_size == 4; if (good) v = detail::loadLE<qint32>(m_value); break;
      case ValueType::Int64: good = m_size == 8; if (good) v = detail::loadLE<qint64>(m_value); break;
      case ValueType::Bool: good = m_size == 1; if (good) v = uchar(m_value[0]); break;
      default: good = false; break;  // a double is not an integer
    }
  } else {
    good = parseNumber(raw(), v);
    if (!good) v = 0;
  }
  if (ok) *ok = good;
  return v;
}

quint64 Tag::handle(bool* ok) const {
  quint64 v = 0;
  const bool good = !(isBinaryForm() && detail::isNumeric(type())) && parseNumber(raw(), v, 16);
  if (ok) *ok = good;
  return good ? v : 0;
}

QByteArray Tag::bytes(bool* ok) const {
  QByteArray out;
  bool good = true;
  if (isBinaryForm())
    out = raw().toByteArray();
  else
    good = hexDecode(raw(), out);
  if (!good) out.clear();
  if (ok) *ok = good;
  return out;
}

QString Tag::str(quint16 codepage) const {
  if (isBinaryForm() && (detail::isNumeric(type()) || type() == ValueType::Binary)) {
    QByteArray text;
    detail::appendConverted(text, *this, false, nullptr);
    return QString::fromLatin1(text);
  }
  return decodeText(raw(), codepage);
}

// ---------------------------------------------------------------------------
// Encoding helpers

namespace detail {

void appendDecimal(QByteArray& out, qint64 v, int width) {
  char buf[24];
  const auto r = std::to_chars(buf, buf + sizeof buf, v);
  const qsizetype n = r.ptr - buf;
  for (qsizetype k = n; k < width; ++k) out.append(' ');
  out.append(buf, n);
}

void appendCode(QByteArray& out, int code, const Format& f) {
  if (!f.binary) {
    appendDecimal(out, code, f.padCodes ? 3 : 0);
    out.append(f.crlf ? "\r\n" : "\n");
  } else if (!f.shortCodes) {
    appendLE<quint16>(out, quint16(code));
  } else if (code < 255) {
    out.append(char(code));
  } else {
    out.append(char(0xFF));
    appendLE<quint16>(out, quint16(code));
  }
}

bool hasShortCode(const Tag& t) {
  const int width = Access::pre(t) - (t.type() == ValueType::Binary ? 1 : 0);
  return width != 2;
}

bool appendConverted(QByteArray& out, const Tag& t, bool toBinary, QString* problem) {
  const ValueType type = t.type();
  auto fail = [&](const char* what) {
    if (problem)
      *problem = QStringLiteral("group code %1 value '%2': %3")
                     .arg(t.code())
                     .arg(QString::fromLatin1(t.raw().first(qMin<qsizetype>(40, t.raw().size())).toByteArray()), QLatin1String(what));
    return false;
  };
  if (!toBinary) {  // binary bytes -> ASCII text
    switch (type) {
      case ValueType::Double: out += formatReal(t.real()); return true;
      case ValueType::Int16:
      case ValueType::Int32:
      case ValueType::Int64:
      case ValueType::Bool: appendDecimal(out, t.integer(), 0); return true;
      case ValueType::Binary: out += t.raw().toByteArray().toHex().toUpper(); return true;
      default:
        if (t.raw().contains('\n') || t.raw().contains('\r')) {
          out += t.raw();
          return fail("line break in a string cannot be written to ASCII DXF");
        }
        out += t.raw();
        return true;
    }
  }
  // ASCII text -> binary bytes
  bool ok = true;
  switch (type) {
    case ValueType::Double: {
      double v = t.real(&ok);
      appendLE<double>(out, v);
      return ok || fail("not a number");
    }
    case ValueType::Int16:
    case ValueType::Int32:
    case ValueType::Int64:
    case ValueType::Bool: {
      qint64 v = t.integer(&ok);
      if (!ok) {  // some writers put a real into an integer group
        const double d = t.real(&ok);
        v = qint64(d);
        ok = ok && double(v) == d;
      }
      bool fits = true;
      if (type == ValueType::Int16) {
        appendLE<qint16>(out, qint16(v));
        fits = v >= -32768 && v <= 32767;
      } else if (type == ValueType::Int32) {
        appendLE<qint32>(out, qint32(v));
        fits = v >= INT32_MIN && v <= INT32_MAX;
      } else if (type == ValueType::Int64) {
        appendLE<qint64>(out, v);
      } else {
        out.append(char(v));
        fits = v >= 0 && v <= 255;
      }
      if (!ok) return fail("not an integer");
      return fits || fail("out of the range of its group code");
    }
    case ValueType::Binary: {
      QByteArray data = t.bytes(&ok);
      out += data;
      return ok || fail("not hexadecimal data");
    }
    default:
      out += t.raw();
      return !t.raw().contains('\0') || fail("NUL inside a string");
  }
}

}  // namespace detail
}  // namespace OdDxf
