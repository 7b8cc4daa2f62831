#pragma once
// A whole DXF file as sections of lossless records (see DxfTag.h).
//
//   File
//    +- prologue        tags before the first "0 SECTION" (999 comments)
//    +- sections[]      in file order
//    |   +- head        "0 SECTION", "2 <NAME>" and any tags up to the first record
//    |   +- records[]   group-0 records; HEADER: one record per "9 $NAME" variable
//    |   +- tail        "0 ENDSEC" and any tags up to the next group 0
//    +- eof             "0 EOF"
//    +- trailer         raw bytes after EOF, kept as they are
//
// Records found between sections (a stray ENDSEC, say) are kept in a section
// with an empty name and no head or tail, so nothing read is ever dropped.
//
// Reading accepts ASCII DXF of every release (LF or CRLF, padded group codes,
// values with blanks kept) and binary DXF (1-byte group codes before R13,
// 2-byte from R13 on, detected from the data). A file that is not DXF, is
// truncated or malformed is refused with one message naming the line (ASCII)
// or byte offset (binary). Two repairs are made, each reported as a warning,
// and written back by write():
//   * EOF missing after the last ENDSEC (last line complete): "0 EOF" added.
//   * ENDSEC missing before EOF or before the next SECTION: "0 ENDSEC" added.
//
// write() gives back the bytes read when nothing was edited; edited and added
// tags are written in the file's style. Conversion between ASCII and binary
// re-encodes every value by its group code's type.
#include "DxfTag.h"

#include <QStringList>

class QFileDevice;

namespace OdDxf {

// Writes bytes through a temporary file renamed over path, so that a failed
// save leaves an existing file whole. False with error set on failure; a
// target that exists and is not a regular file (a folder, a device) is
// refused before anything is written.
DB_API bool saveBytes(const QString& path, const QByteArray& bytes, QString& error);

// Every write of saveBytes goes through this function: it writes up to
// `size` bytes to the open temporary file and returns how many it wrote, or
// -1 with the reason in `reason` (empty: the file's own error). Tests replace
// it to make a chosen write fail as a full disk would. Returns the function
// it replaces; nullptr restores the plain write.
using SaveWriteFn = qint64 (*)(QFileDevice& file, const char* data, qint64 size, QString& reason);
DB_API SaveWriteFn setSaveWriteFn(SaveWriteFn fn);

struct DB_API Section {
  QByteArray name;             // "HEADER", "ENTITIES", ...; empty for stray records
  Record head;
  QList<Record> records;
  Record tail;
  bool isStray() const { return head.isEmpty(); }
};

class DB_API File {
 public:
  enum class Form { AsRead, Ascii, Binary };

  // Parses a DXF file held in memory. The bytes are shared, not copied: tags
  // view into them (so `bytes` must own its data, not be fromRawData()).
  // On failure returns false with `error` set ("line 12: group code
  // expected, found 'abc'") and `out` untouched.
  static bool read(const QByteArray& bytes, File& out, QString& error, QStringList* warnings = nullptr);
  static bool load(const QString& path, File& out, QString& error, QStringList* warnings = nullptr);

  // Serializes the file. Form::AsRead keeps ASCII or binary as read. Values
  // that cannot be converted exactly are reported in `problems`.
  QByteArray write(Form form = Form::AsRead, QStringList* problems = nullptr) const;
  // Writes through a temporary file renamed over `path`, so a failed save
  // leaves an existing file whole.
  bool save(const QString& path, QString& error, Form form = Form::AsRead) const;

  bool isBinary() const { return m_format.binary; }
  const Format& format() const { return m_format; }
  // Line end used for new tags and for ASCII written from binary.
  void setCrlf(bool crlf) { m_format.crlf = crlf; }
  // $ACADVER ("AC1015"), empty if the file has none.
  QByteArray version() const;
  quint16 codepage() const { return m_format.codepage; }

  Record& prologue() { return m_prologue; }
  const Record& prologue() const { return m_prologue; }
  QList<Section>& sections() { return m_sections; }
  const QList<Section>& sections() const { return m_sections; }
  // First section with this name, or nullptr.
  Section* section(QByteArrayView name);
  const Section* section(QByteArrayView name) const;
  // A HEADER variable by name, with or without the leading '$'; its value tags
  // follow the "9 $NAME" tag at index 0.
  Record* headerVariable(QByteArrayView name);
  const Record* headerVariable(QByteArrayView name) const;
  Record& eof() { return m_eof; }
  const Record& eof() const { return m_eof; }
  const QByteArray& trailer() const { return m_trailer; }

  // A new "0 <type>" record in this file's format, to append to a section.
  Record newRecord(QByteArrayView type) const { return Record::make(m_format, type); }
  // Adds an empty section before EOF and returns it.
  Section& addSection(QByteArrayView name);

  // Handles owned by more than one record (outside HEADER), ascending.
  QList<quint64> duplicateHandles() const;
  qsizetype tagCount() const;

 private:
  friend struct detail::Access;
  QByteArray m_data;      // the file as read; tags view into it
  QByteArray m_preamble;  // binary sentinel, or a UTF-8 byte order mark
  Format m_format;
  Record m_prologue;
  QList<Section> m_sections;
  Record m_eof;
  QByteArray m_trailer;
};

}  // namespace OdDxf

Q_DECLARE_TYPEINFO(OdDxf::Section, Q_RELOCATABLE_TYPE);
