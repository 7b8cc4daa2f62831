#pragma once
// Helpers shared by the reader, the writer and record editing. Not installed.
#include "DxfFile.h"

#include <QFile>

#include <cstring>

namespace OdDxf::detail {

inline constexpr char kBinarySentinel[] = "AutoCAD Binary DXF\r\n\x1a";  // + the terminating NUL
inline constexpr int kBinarySentinelSize = 22;

inline bool isBlank(char c) { return c == ' ' || c == '\t'; }

inline QByteArrayView trimBlanks(QByteArrayView v) {
  qsizetype b = 0, e = v.size();
  while (b < e && isBlank(v[b])) ++b;
  while (e > b && isBlank(v[e - 1])) --e;
  return v.sliced(b, e - b);
}

// The whole content of an open file. A regular file is read into one buffer
// of its exact size: reading in growing steps would hold up to twice a large
// drawing while the last step is copied. False if reading failed.
inline bool readWhole(QFile& file, QByteArray& out) {
  const qint64 size = file.size();
  if (size <= 0 || file.isSequential()) {
    out = file.readAll();
    return file.error() == QFileDevice::NoError;
  }
  out = QByteArray(qsizetype(size), Qt::Uninitialized);
  qint64 done = 0;
  while (done < size) {
    const qint64 n = file.read(out.data() + done, size - done);
    if (n < 0) return false;
    if (n == 0) break;  // the file shrank while it was read
    done += n;
  }
  if (done < size) out.truncate(qsizetype(done));
  // Anything appended meanwhile is read too.
  if (!file.atEnd()) out += file.readAll();
  return file.error() == QFileDevice::NoError;
}

// Fixed binary size of a value type; -1 for NUL-terminated and length-prefixed ones.
inline int binarySize(ValueType t) {
  switch (t) {
    case ValueType::Double: return 8;
    case ValueType::Int16: return 2;
    case ValueType::Int32: return 4;
    case ValueType::Int64: return 8;
    case ValueType::Bool: return 1;
    default: return -1;
  }
}
inline bool isNumeric(ValueType t) { return binarySize(t) > 0; }

// Width AutoCAD right-aligns an integer type to in ASCII DXF (0: none).
inline int intWidth(ValueType t) {
  switch (t) {
    case ValueType::Int16:
    case ValueType::Bool: return 6;
    case ValueType::Int32: return 9;
    default: return 0;
  }
}

// Little-endian scalar I/O.
template <typename T>
inline T loadLE(const char* p) {
  T v;
  std::memcpy(&v, p, sizeof v);  // the platforms built for are little-endian
  return v;
}
template <typename T>
inline void appendLE(QByteArray& out, T v) {
  out.append(reinterpret_cast<const char*>(&v), sizeof v);
}

// Appends the group code as the format writes it: ASCII line with its line
// end, or 1/2/3 binary bytes.
void appendCode(QByteArray& out, int code, const Format& f);
// Appends `v` as decimal text, right-aligned to `width`.
void appendDecimal(QByteArray& out, qint64 v, int width);
// Appends the value bytes of `t` converted to ASCII text or binary bytes
// (no group code, NUL, length byte or line end).
// Returns false (with `problem` set) if the value could not be converted
// exactly; something is appended anyway.
bool appendConverted(QByteArray& out, const Tag& t, bool toBinary, QString* problem);
// Binary group code width (1 or 2 byte codes) a binary tag was read with.
bool hasShortCode(const Tag& t);

struct Access {
  static Tag make(const char* value, qsizetype size, int code, int pre, int post, bool binary, bool edited) {
    Tag t;
    t.m_value = value;
    t.m_size = qint32(size);
    t.m_pre = quint16(pre);
    t.m_bits = quint16(code & Tag::kCodeMask) | quint16(post << Tag::kPostShift) |
               (binary ? Tag::kBinaryBit : 0) | (edited ? Tag::kEditedBit : 0);
    return t;
  }
  static int pre(const Tag& t) { return t.m_pre; }
  static int post(const Tag& t) { return (t.m_bits >> Tag::kPostShift) & 3; }
  static const char* begin(const Tag& t) { return t.m_value - t.m_pre; }
  static const char* end(const Tag& t) { return t.m_value + t.m_size + post(t); }
  // An ASCII tag whose value line is complete, so another line may follow.
  static bool endsLine(const Tag& t) { return post(t) > 0 && end(t)[-1] == '\n'; }

  // The record of the tags [b, e) of `all`: its tag list views that range of
  // the shared block (a QList pointing into the middle of another's data), so
  // nothing is copied until the record is edited, when the list detaches as
  // any shared QList does.
  static Record record(const QArrayDataPointer<Tag>& all, qsizetype b, qsizetype e, const QByteArray& source,
                       const Format& f) {
    Record r;
    if (e > b) {
      QArrayDataPointer<Tag> range(all);  // one more reference to the block
      range.ptr += b;
      range.size = e - b;
      r.m_tags = QList<Tag>(std::move(range));
    }
    r.m_source = source;
    r.m_format = f;
    return r;
  }
  // A record of one tag built from scratch ("0 ENDSEC" for a repair).
  static Record synthesized(const Format& f, QByteArrayView type) { return Record::make(f, type); }

  static QByteArray& data(File& f) { return f.m_data; }
  static QByteArray& preamble(File& f) { return f.m_preamble; }
  static Format& format(File& f) { return f.m_format; }
  static Format& format(Record& r) { return r.m_format; }
  static QByteArray& trailer(File& f) { return f.m_trailer; }
  static const QByteArray& preamble(const File& f) { return f.m_preamble; }
};

}  // namespace OdDxf::detail
