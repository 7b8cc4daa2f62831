// Record: lookup of the record's type and handle, and editing of single tags.
//
// An edited or inserted tag gets its own bytes - group code, value, line end
// (or NUL) in the record's form - in its chunks; the tag's view then points there,
// so the writer copies every tag the same way, edited or not.
#include "DxfInternal.h"

#include <cstring>

namespace OdDxf {

using detail::Access;

Record Record::make(const Format& format, QByteArrayView type) {
  Record r;
  r.m_format = format;
  r.insert(0, 0);
  r.setRaw(0, type);
  return r;
}

QByteArrayView Record::type() const {
  return m_tags.isEmpty() ? QByteArrayView() : m_tags.front().trimmed();
}

int Record::find(int code, int from) const {
  for (qsizetype i = qMax(from, 0); i < m_tags.size(); ++i)
    if (m_tags[i].code() == code) return int(i);
  return -1;
}

int Record::handleIndex() const {
  if (m_tags.isEmpty() || m_tags.front().code() != 0) return -1;
  // Compared byte for byte: g++ 12 with -fsanitize=address,undefined folded
  // isType("DIMSTYLE") to false here, which lost DIMSTYLE handles in
  // sanitizer builds.
  const QByteArrayView t = type();
  const int want = (t.size() == 8 && std::memcmp(t.data(), "DIMSTYLE", 8) == 0) ? 105 : 5;
  // The own handle precedes the first subclass marker; an XRECORD may carry
  // group 5 as data after it.
  for (qsizetype i = 1; i < m_tags.size(); ++i) {
    const int c = m_tags[i].code();
    if (c == want) return int(i);
    if (c == 100) break;
  }
  return -1;
}

quint64 Record::handle() const {
  const int i = handleIndex();
  return i < 0 ? 0 : m_tags[i].handle();
}

bool Record::isEdited() const {
  for (const Tag& t : m_tags)
    if (t.isEdited()) return true;
  return false;
}

bool Record::store(int index, QByteArrayView value, bool keepPrefix) {
  const Tag old = m_tags[index];
  const ValueType type = old.type();
  const bool bin = m_format.binary;
  const bool sameForm = keepPrefix && old.isBinaryForm() == bin &&
                        (!bin || detail::hasShortCode(old) == m_format.shortCodes) && old.m_value;
  QByteArray buf;
  buf.reserve(value.size() + 16);
  if (sameForm) {
    // Keep the group code exactly as the file wrote it; a binary chunk's
    // length byte is made anew below.
    buf.append(Access::begin(old), Access::pre(old) - (bin && type == ValueType::Binary ? 1 : 0));
  } else {
    detail::appendCode(buf, old.code(), m_format);
  }
  if (bin && type == ValueType::Binary) buf.append(char(value.size()));
  const qsizetype preLen = buf.size();
  buf.append(value);
  int post = 0;
  if (bin) {
    if (!detail::isNumeric(type) && type != ValueType::Binary) {
      buf.append('\0');
      post = 1;
    }
  } else if (sameForm) {  // the writer ends a last line that had no line end
    post = Access::post(old);
    buf.append(Access::end(old) - post, post);
  } else {
    buf.append(m_format.crlf ? "\r\n" : "\n");
    post = m_format.crlf ? 2 : 1;
  }
  if (preLen > 0xFFFF) return false;
  const char* at = keep(buf.constData(), buf.size());
  m_tags[index] = Access::make(at + preLen, value.size(), old.code(), int(preLen), post, bin, true);
  dropped(old);
  compactIfWasteful();
  return true;
}

const char* Record::keep(const char* bytes, qsizetype n) {
  Chunk* c = m_chunks.empty() ? nullptr : m_chunks.back().get();
  if (!c || c->size - c->used < n) {
    // Chunks grow with the record's edits: a few bytes for one patched
    // value, up to a megabyte at a time for a rewritten vertex list.
    const qsizetype grown = c ? qMin<qsizetype>(2 * c->size, qsizetype(1) << 20) : 128;
    auto fresh = std::make_shared<Chunk>();
    fresh->size = qMax(n, grown);
    fresh->data.reset(new char[size_t(fresh->size)]);
    m_chunks.push_back(fresh);
    c = fresh.get();
  }
  char* at = c->data.get() + c->used;
  std::memcpy(at, bytes, size_t(n));
  c->used += n;
  m_liveBytes += n;
  return at;
}

void Record::dropped(const Tag& t) {
  if (!t.isEdited() || !t.m_value) return;
  const qsizetype n = Access::end(t) - Access::begin(t);
  m_liveBytes -= n;
  m_deadBytes += n;
}

void Record::compactIfWasteful() {
  if (m_deadBytes <= 1024 || m_deadBytes <= m_liveBytes + 16 * m_tags.size()) return;
  auto fresh = std::make_shared<Chunk>();
  fresh->size = qMax<qsizetype>(m_liveBytes, 1);
  fresh->data.reset(new char[size_t(fresh->size)]);
  for (Tag& t : m_tags) {
    if (!t.isEdited() || !t.m_value) continue;
    const char* b = Access::begin(t);
    const qsizetype n = Access::end(t) - b;
    char* at = fresh->data.get() + fresh->used;
    std::memcpy(at, b, size_t(n));
    fresh->used += n;
    t.m_value = at + Access::pre(t);
  }
  m_chunks.clear();
  m_chunks.push_back(std::move(fresh));
  m_liveBytes = m_chunks.back()->used;
  m_deadBytes = 0;
}

bool Record::storeNumber(int index, const QByteArray& text, const char* binary, int binarySize) {
  if (m_format.binary) return store(index, QByteArrayView(binary, binarySize), true);
  // Right-align to the width of the old value if it was right-aligned, or
  // if it filled the columns the file right-aligns integers to ("-32768").
  const Tag& old = m_tags[index];
  qsizetype width = 0;
  if (!old.isBinaryForm() && old.m_size > 0 && detail::isBlank(old.m_value[0])) {
    width = old.m_size;
    while (width > 0 && detail::isBlank(old.m_value[width - 1])) --width;
  } else if (!old.isBinaryForm() && m_format.padInts && old.m_size == detail::intWidth(old.type())) {
    width = old.m_size;
  }
  if (width <= text.size()) return store(index, text, true);
  return store(index, QByteArray(width - text.size(), ' ') + text, true);
}

bool Record::setReal(int index, double value) {
  if (index < 0 || index >= size() || m_tags[index].type() != ValueType::Double) return false;
  return storeNumber(index, formatReal(value), reinterpret_cast<const char*>(&value), 8);
}

bool Record::setInteger(int index, qint64 value) {
  if (index < 0 || index >= size()) return false;
  const ValueType type = m_tags[index].type();
  QByteArray text;
  detail::appendDecimal(text, value, 0);
  switch (type) {
    case ValueType::Int16: {
      if (value < -32768 || value > 32767) return false;
      const qint16 v = qint16(value);
      return storeNumber(index, text, reinterpret_cast<const char*>(&v), 2);
    }
    case ValueType::Int32: {
      if (value < INT32_MIN || value > INT32_MAX) return false;
      const qint32 v = qint32(value);
      return storeNumber(index, text, reinterpret_cast<const char*>(&v), 4);
    }
    case ValueType::Int64: return storeNumber(index, text, reinterpret_cast<const char*>(&value), 8);
    case ValueType::Bool: {
      if (value < 0 || value > 255) return false;
      const char v = char(value);
      return storeNumber(index, text, &v, 1);
    }
    default: return false;
  }
}

bool Record::setHandle(int index, quint64 handle) {
  if (index < 0 || index >= size()) return false;
  const ValueType type = m_tags[index].type();
  if (type != ValueType::Handle && type != ValueType::String) return false;
  return store(index, QByteArray::number(handle, 16).toUpper(), true);
}

bool Record::setString(int index, const QString& text) {
  if (index < 0 || index >= size() || hasControlCharacters(text)) return false;
  const ValueType type = m_tags[index].type();
  if (type != ValueType::String && type != ValueType::Handle) return false;
  return setRaw(index, encodeText(text, m_format.codepage));
}

bool Record::setBytes(int index, QByteArrayView data) {
  if (index < 0 || index >= size() || m_tags[index].type() != ValueType::Binary) return false;
  if (m_format.binary) return data.size() <= 255 && store(index, data, true);
  return store(index, data.toByteArray().toHex().toUpper(), true);
}

bool Record::setRaw(int index, QByteArrayView raw) {
  if (index < 0 || index >= size()) return false;
  const ValueType type = m_tags[index].type();
  if (m_format.binary) {
    const int n = detail::binarySize(type);
    if (n > 0 && raw.size() != n) return false;
    if (type == ValueType::Binary && raw.size() > 255) return false;
    if (n < 0 && type != ValueType::Binary && raw.contains('\0')) return false;
  } else if (raw.contains('\n') || raw.endsWith('\r')) {
    return false;
  }
  return store(index, raw, true);
}

bool Record::insert(int index, int code) {
  if (index < 0 || index > size() || !isValidGroupCode(code)) return false;
  const ValueType type = valueType(code);
  QByteArray value;
  if (m_format.binary) {
    value.fill('\0', qMax(detail::binarySize(type), 0));
  } else if (type == ValueType::Double) {
    value = "0.0";
  } else if (detail::isNumeric(type)) {
    detail::appendDecimal(value, 0, m_format.padInts ? detail::intWidth(type) : 0);
  }
  m_tags.insert(index, Access::make(nullptr, 0, code, 0, 0, m_format.binary, true));
  return store(index, value, false);
}

int Record::append(int code) {
  return insert(size(), code) ? size() - 1 : -1;
}

bool Record::insertCopy(int index, const Tag& tag) {
  if (index < 0 || index > size() || !tag.m_value) return false;
  const bool bin = m_format.binary;
  const bool sameForm = tag.isBinaryForm() == bin && (!bin || detail::hasShortCode(tag) == m_format.shortCodes);
  if (sameForm && (bin || Access::endsLine(tag))) {
    const char* b = keep(Access::begin(tag), Access::end(tag) - Access::begin(tag));
    m_tags.insert(index, Access::make(b + Access::pre(tag), tag.m_size, tag.code(), Access::pre(tag),
                                      Access::post(tag), bin, true));
    return true;
  }
  QByteArray value;
  if (sameForm)
    value = tag.raw().toByteArray();
  else
    detail::appendConverted(value, tag, bin, nullptr);
  if (bin && tag.type() == ValueType::Binary && value.size() > 255) return false;
  m_tags.insert(index, Access::make(nullptr, 0, tag.code(), 0, 0, bin, true));
  return store(index, value, false);
}

void Record::remove(int index, int count) {
  if (index < 0 || count <= 0 || index >= size()) return;
  count = qMin(count, size() - index);
  for (int i = index; i < index + count; ++i) dropped(m_tags[i]);
  m_tags.remove(index, count);
  compactIfWasteful();
}

}  // namespace OdDxf
