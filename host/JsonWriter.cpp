#include "JsonWriter.h"
#include <charconv>
#include <cmath>
#include <cstring>

void ZqJsonWriter::raw(const char* s, qsizetype n) { m_buffer.append(s, size_t(n)); }

void ZqJsonWriter::maybeFlush() {
  if (qsizetype(m_buffer.size()) >= kFlushAt) flush();
}

void ZqJsonWriter::flush() {
  if (m_buffer.empty()) return;
  m_out.write(m_buffer.data(), qint64(m_buffer.size()));
  m_buffer.clear();
}

void ZqJsonWriter::separate() {
  if (m_afterKey) {
    m_afterKey = false;
    return;
  }
  if (!m_first.empty()) {
    if (!m_first.back()) m_buffer.push_back(',');
    m_first.back() = false;
  }
}

ZqJsonWriter& ZqJsonWriter::beginObject() {
  separate();
  m_buffer.push_back('{');
  m_first.push_back(true);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::endObject() {
  m_buffer.push_back('}');
  m_first.pop_back();
  maybeFlush();
  return *this;
}

ZqJsonWriter& ZqJsonWriter::beginArray() {
  separate();
  m_buffer.push_back('[');
  m_first.push_back(true);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::endArray() {
  m_buffer.push_back(']');
  m_first.pop_back();
  maybeFlush();
  return *this;
}

namespace {
// Writes the escape of a character a JSON string cannot hold as it is (a
// quote, a backslash, a control character) at p; returns the end.
char* escape(char* p, unsigned char u) {
  static const char hex[] = "0123456789abcdef";
  *p++ = '\\';
  switch (u) {
    case '"': *p++ = '"'; break;
    case '\\': *p++ = '\\'; break;
    case '\n': *p++ = 'n'; break;
    case '\r': *p++ = 'r'; break;
    case '\t': *p++ = 't'; break;
    case '\b': *p++ = 'b'; break;
    case '\f': *p++ = 'f'; break;
    default:
      *p++ = 'u', *p++ = '0', *p++ = '0', *p++ = hex[u >> 4], *p++ = hex[u & 15];
  }
  return p;
}

// Appends text as the inside of a JSON string: runs without anything to
// escape go in one piece.
void appendEscaped(std::string& buffer, const char* s, qsizetype n) {
  qsizetype run = 0;
  for (qsizetype i = 0; i < n; ++i) {
    const auto u = static_cast<unsigned char>(s[i]);
    if (u >= 0x20 && u != '"' && u != '\\') continue;
    buffer.append(s + run, size_t(i - run));
    run = i + 1;
    char esc[6];
    buffer.append(esc, size_t(escape(esc, u) - esc));
  }
  buffer.append(s + run, size_t(n - run));
}
}  // namespace

ZqJsonWriter& ZqJsonWriter::key(const char* latin1Key) {
  value(latin1Key);
  m_buffer.push_back(':');
  m_afterKey = true;
  return *this;
}

ZqJsonWriter& ZqJsonWriter::key(const QString& k) {
  value(k);
  m_buffer.push_back(':');
  m_afterKey = true;
  return *this;
}

ZqJsonWriter& ZqJsonWriter::value(const char* latin1) {
  // Keys and fixed words are ASCII: no conversion needed.
  separate();
  quoteTo(m_buffer, latin1);
  return *this;
}

void ZqJsonWriter::quoteTo(std::string& out, const QString& s) {
  out.push_back('"');
  // Most texts are ASCII: converted straight into a stack buffer.
  char small[256];
  const qsizetype n = s.size();
  bool ascii = n <= qsizetype(sizeof small);
  const QChar* chars = s.constData();
  for (qsizetype i = 0; ascii && i < n; ++i) {
    const char16_t c = chars[i].unicode();
    if (c >= 0x80) ascii = false;
    else small[i] = char(c);
  }
  if (ascii) {
    appendEscaped(out, small, n);
  } else {
    const QByteArray utf8 = s.toUtf8();
    appendEscaped(out, utf8.constData(), utf8.size());
  }
  out.push_back('"');
}

void ZqJsonWriter::quoteTo(std::string& out, const char* latin1) {
  out.push_back('"');
  appendEscaped(out, latin1, qsizetype(std::strlen(latin1)));
  out.push_back('"');
}

ZqJsonWriter& ZqJsonWriter::value(const QString& s) {
  separate();
  // ASCII text (nearly all) goes straight into the buffer in one pass, with
  // room made for the longest escapes first; other text through UTF-8.
  const qsizetype n = s.size();
  const size_t at = m_buffer.size();
  m_buffer.resize(at + 2 + 6 * size_t(n));
  char* p = m_buffer.data() + at;
  *p++ = '"';
  const QChar* c = s.constData();
  for (qsizetype i = 0; i < n; ++i) {
    const char16_t u = c[i].unicode();
    if (u >= 0x20 && u < 0x80 && u != '"' && u != '\\') {
      *p++ = char(u);
    } else if (u < 0x80) {
      p = escape(p, static_cast<unsigned char>(u));
    } else {
      m_buffer.resize(at);
      quoteTo(m_buffer, s);
      return *this;
    }
  }
  *p++ = '"';
  m_buffer.resize(size_t(p - m_buffer.data()));
  return *this;
}

ZqJsonWriter& ZqJsonWriter::quotedKey(std::string_view json) {
  separate();
  m_buffer.append(json);
  m_buffer.push_back(':');
  m_afterKey = true;
  return *this;
}

ZqJsonWriter& ZqJsonWriter::objectHead(std::string_view json) {
  separate();
  m_buffer.append(json);
  m_first.push_back(false);
  m_afterKey = true;
  return *this;
}

ZqJsonWriter& ZqJsonWriter::value(double d) {
  if (!std::isfinite(d)) return null();
  separate();
  char buf[32];
  const auto r = std::to_chars(buf, buf + sizeof buf, d);
  raw(buf, r.ptr - buf);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::value(int i) {
  separate();
  char buf[16];
  const auto r = std::to_chars(buf, buf + sizeof buf, i);
  raw(buf, r.ptr - buf);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::value(bool b) {
  separate();
  if (b) raw("true", 4); else raw("false", 5);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::rawValue(std::string_view json) {
  separate();
  raw(json.data(), qsizetype(json.size()));
  return *this;
}

ZqJsonWriter& ZqJsonWriter::null() {
  separate();
  raw("null", 4);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::value(const QVariant& v) {
  switch (v.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr: return null();
    case QMetaType::Bool: return value(v.toBool());
    case QMetaType::Int: return value(v.toInt());
    case QMetaType::Double:
    case QMetaType::Float: return value(v.toDouble());
    case QMetaType::QVariantList: {
      beginArray();
      for (const QVariant& item : v.toList()) value(item);
      return endArray();
    }
    default:
      if (v.canConvert<double>() && v.typeId() != QMetaType::QString) return value(v.toDouble());
      return value(v.toString());
  }
}
