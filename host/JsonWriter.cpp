#include "JsonWriter.h"
#include <charconv>
#include <cmath>

void ZqJsonWriter::raw(const char* s, qsizetype n) { m_buffer.append(s, n); }

void ZqJsonWriter::maybeFlush() {
  if (m_buffer.size() >= kFlushAt) flush();
}

void ZqJsonWriter::flush() {
  if (m_buffer.isEmpty()) return;
  m_out.write(m_buffer);
  m_buffer.clear();
}

void ZqJsonWriter::separate() {
  if (m_afterKey) {
    m_afterKey = false;
    return;
  }
  if (!m_first.empty()) {
    if (!m_first.back()) m_buffer.append(',');
    m_first.back() = false;
  }
}

ZqJsonWriter& ZqJsonWriter::beginObject() {
  separate();
  m_buffer.append('{');
  m_first.push_back(true);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::endObject() {
  m_buffer.append('}');
  m_first.pop_back();
  maybeFlush();
  return *this;
}

ZqJsonWriter& ZqJsonWriter::beginArray() {
  separate();
  m_buffer.append('[');
  m_first.push_back(true);
  return *this;
}

ZqJsonWriter& ZqJsonWriter::endArray() {
  m_buffer.append(']');
  m_first.pop_back();
  maybeFlush();
  return *this;
}

ZqJsonWriter& ZqJsonWriter::key(const char* latin1Key) {
  value(latin1Key);
  m_buffer.append(':');
  m_afterKey = true;
  return *this;
}

ZqJsonWriter& ZqJsonWriter::value(const char* latin1) { return value(QString::fromLatin1(latin1)); }

ZqJsonWriter& ZqJsonWriter::value(const QString& s) {
  separate();
  m_buffer.append('"');
  const QByteArray utf8 = s.toUtf8();
  static const char hex[] = "0123456789abcdef";
  for (char c : utf8) {
    const auto u = static_cast<unsigned char>(c);
    switch (c) {
      case '"': raw("\\\"", 2); break;
      case '\\': raw("\\\\", 2); break;
      case '\n': raw("\\n", 2); break;
      case '\r': raw("\\r", 2); break;
      case '\t': raw("\\t", 2); break;
      case '\b': raw("\\b", 2); break;
      case '\f': raw("\\f", 2); break;
      default:
        if (u < 0x20) {
          const char esc[6] = {'\\', 'u', '0', '0', hex[u >> 4], hex[u & 15]};
          raw(esc, 6);
        } else {
          m_buffer.append(c);
        }
    }
  }
  m_buffer.append('"');
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
