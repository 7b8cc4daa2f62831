#pragma once
// Lossless DXF tags and records.
//
// A DXF file is a sequence of tags: a group code and a value. This layer keeps
// every tag exactly as it was read so that an unedited drawing is written back
// byte for byte:
//
//  * Tag     - group code plus a view of the value bytes as they stand in the
//              file (ASCII: the value line without its line end; binary: the
//              value bytes without the NUL terminator or length byte). Numbers
//              are parsed only when asked for (real(), integer(), handle()).
//  * Record  - one group-0 tag and every tag up to the next group 0 (in the
//              HEADER section: one "9 $NAME" variable with its value tags). A
//              record owns its tags and keeps the file buffer alive, so it can
//              be copied out of a File or moved to another one. Single tag
//              values are patched with setReal/setInteger/setString/...; tags
//              are inserted with insert()/append() and removed with remove().
//              Only patched or inserted tags are ever re-encoded.
//
// The value of a group code is typed by its range (see valueType()). Strings
// are bytes in the file's code page ($DWGCODEPAGE before AC1021, UTF-8 from
// AC1021 on); str() decodes them and resolves \U+XXXX escapes.
#include "DbExport.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QtGlobal>

#include <memory>
#include <vector>

namespace OdDxf {

// Value type of a group code, from the group code ranges of the DXF reference.
// Unknown codes are strings, as every DXF reader treats them.
enum class ValueType : quint8 {
  String,  // text (binary DXF: NUL-terminated)
  Handle,  // hexadecimal handle text: 5, 105, 320-369, 390-399, 480-481, 1005
  Double,  // 8-byte IEEE double
  Int16,   // 16-bit integer
  Int32,   // 32-bit integer
  Int64,   // 64-bit integer (160-169)
  Bool,    // 290-299; one byte in binary DXF
  Binary   // 310-319 and 1004: hex text in ASCII, length-prefixed bytes in binary
};

constexpr int kMaxGroupCode = 1071;
DB_API ValueType valueType(int code);

// A record type as messages show it: control characters spelled out (\r,
// \t, \x01) so that a damaged file's message stays one readable line that
// starts with the place it names.
inline QString printable(QByteArrayView text) {
  QString out;
  out.reserve(text.size());
  for (const char c : text) {
    const auto u = static_cast<unsigned char>(c);
    if (c == '\r') out += QLatin1String("\\r");
    else if (c == '\n') out += QLatin1String("\\n");
    else if (c == '\t') out += QLatin1String("\\t");
    else if (u < 0x20 || u == 0x7f) out += QStringLiteral("\\x%1").arg(u, 2, 16, QLatin1Char('0'));
    else out += QChar(u);  // Latin-1, as record types are read
  }
  return out;
}

inline bool isValidGroupCode(int code) { return code >= 0 && code <= kMaxGroupCode; }

// Code pages are named by their Windows number; 65001 is UTF-8.
constexpr quint16 kUtf8 = 65001;
constexpr quint16 kAnsi1252 = 1252;
// Code page of a $DWGCODEPAGE value ("ANSI_1252", "dos850", ...); 0 if unknown.
DB_API quint16 codepageFromName(QByteArrayView name);
// Decodes string bytes of the given code page and resolves \U+XXXX escapes.
DB_API QString decodeText(QByteArrayView bytes, quint16 codepage);
// Encodes text for the given code page; characters it cannot hold become
// \U+XXXX escapes, as AutoCAD writes them.
DB_API QByteArray encodeText(const QString& text, quint16 codepage);
// Whether text holds a line break, a tab or another control character
// (U+0000-U+001F, U+007F), which a string value of a DXF file cannot hold.
DB_API bool hasControlCharacters(QStringView text);
// Shortest text that reads back to the same double, with ".0" added to whole
// numbers as AutoCAD writes them ("1.0", "0.5", "1e+20").
DB_API QByteArray formatReal(double value);

// How new or converted tags are written. Read from the file; tags read from
// the file keep their own bytes regardless.
struct Format {
  bool binary = false;
  bool shortCodes = false;  // binary before R13: 1-byte group codes, 255 escapes wider ones
  bool crlf = true;         // ASCII line end "\r\n" (else "\n")
  bool padCodes = true;     // ASCII group codes right-aligned in 3 columns
  bool padInts = true;      // ASCII integers right-aligned (6 columns 16-bit, 9 columns 32-bit)
  quint16 codepage = kAnsi1252;
};

namespace detail {
struct Access;
}

class DB_API Tag {
 public:
  Tag() = default;

  int code() const { return m_bits & kCodeMask; }
  ValueType type() const { return valueType(code()); }
  // The value exactly as stored: the ASCII value line (trailing blanks kept)
  // or the binary value bytes.
  QByteArrayView raw() const { return QByteArrayView(m_value, m_size); }
  // raw() without leading and trailing blanks (ASCII) - for names and keywords.
  QByteArrayView trimmed() const;
  bool isBinaryForm() const { return m_bits & kBinaryBit; }
  // True for tags set, inserted or added by a repair since the file was read.
  bool isEdited() const { return m_bits & kEditedBit; }

  // Typed values; *ok tells whether the value could be read as that type.
  double real(bool* ok = nullptr) const;
  qint64 integer(bool* ok = nullptr) const;
  quint64 handle(bool* ok = nullptr) const;  // hexadecimal text
  QByteArray bytes(bool* ok = nullptr) const;  // binary chunk data (310-319, 1004)
  // The value as text: strings decoded from the code page, numbers of binary
  // tags formatted as an ASCII DXF would hold them.
  QString str(quint16 codepage = kUtf8) const;

 private:
  friend struct detail::Access;
  friend class Record;
  static constexpr quint16 kCodeMask = 0x0FFF;
  static constexpr quint16 kPostShift = 12;     // 2 bits: bytes after the value
  static constexpr quint16 kBinaryBit = 0x4000;
  static constexpr quint16 kEditedBit = 0x8000;

  // The tag's bytes in its storage are [m_value - m_pre, m_value + m_size + post):
  // group code line (or code bytes and length byte), value, line end (or NUL).
  const char* m_value = nullptr;
  qint32 m_size = 0;
  quint16 m_bits = 0;
  quint16 m_pre = 0;
};

class DB_API Record {
 public:
  Record() = default;
  // A new record "0 <type>" written in the given format.
  static Record make(const Format& format, QByteArrayView type);

  bool isEmpty() const { return m_tags.isEmpty(); }
  int size() const { return int(m_tags.size()); }
  const Tag& at(int index) const { return m_tags.at(index); }
  const Tag& operator[](int index) const { return m_tags.at(index); }
  const QList<Tag>& tags() const { return m_tags; }
  QList<Tag>::const_iterator begin() const { return m_tags.cbegin(); }
  QList<Tag>::const_iterator end() const { return m_tags.cend(); }
  const Format& format() const { return m_format; }

  // Value of the first tag without blanks: "LINE", "SECTION", "$ACADVER".
  QByteArrayView type() const;
  bool isType(QByteArrayView name) const { return type() == name; }
  // Index of the first tag with this code at or after `from`; -1 if none.
  int find(int code, int from = 0) const;
  // The record's own handle: group 105 for DIMSTYLE (whose group 5 is DIMBLK
  // in R12), else group 5. Only group-0 records have one; -1 / 0 if none.
  int handleIndex() const;
  quint64 handle() const;
  QString str(int index) const { return m_tags.at(index).str(m_format.codepage); }
  bool isEdited() const;

  // Editing. Each returns false (and changes nothing) if the index is out of
  // range or the value does not fit the group code's type; setString also
  // for text with control characters (see hasControlCharacters). A patched tag keeps
  // its group code line; numbers keep the value's right alignment.
  bool setReal(int index, double value);
  bool setInteger(int index, qint64 value);
  bool setHandle(int index, quint64 handle);
  bool setString(int index, const QString& text);
  bool setBytes(int index, QByteArrayView data);
  // The exact stored value (see Tag::raw) in this record's form.
  bool setRaw(int index, QByteArrayView raw);
  // Inserts a tag with an empty / zero value at index (0..size()).
  bool insert(int index, int code);
  // Appends a tag with an empty / zero value; returns its index or -1.
  int append(int code);
  // Inserts a copy of a tag of another record, converted to this record's form.
  bool insertCopy(int index, const Tag& tag);
  void remove(int index, int count = 1);

 private:
  friend struct detail::Access;
  // Bytes of edited and inserted tags. They are written once into chunks
  // that never move or change, so copies of a record can share them; a
  // chunk's free tail is shared too (each copy appends after what any of
  // them wrote).
  struct Chunk {
    std::unique_ptr<char[]> data;
    qsizetype size = 0;
    qsizetype used = 0;
  };
  bool store(int index, QByteArrayView value, bool keepPrefix);
  bool storeNumber(int index, const QByteArray& text, const char* binary, int binarySize);
  // Copies `n` bytes into the chunks and returns where they now are.
  const char* keep(const char* bytes, qsizetype n);
  // A tag's own bytes are no longer used: they count as waste.
  void dropped(const Tag& t);
  // Once the waste outweighs the live bytes and the record's size, copies
  // the live bytes into a fresh chunk; so the copying costs no more than
  // the edits that made the waste.
  void compactIfWasteful();

  QList<Tag> m_tags;
  QByteArray m_source;       // keeps the file buffer alive for the tags' views
  std::vector<std::shared_ptr<Chunk>> m_chunks;
  qsizetype m_liveBytes = 0;  // bytes of the edited tags
  qsizetype m_deadBytes = 0;  // bytes in the chunks no tag of this record uses
  Format m_format;
};

}  // namespace OdDxf

Q_DECLARE_TYPEINFO(OdDxf::Tag, Q_PRIMITIVE_TYPE);
Q_DECLARE_TYPEINFO(OdDxf::Record, Q_RELOCATABLE_TYPE);
