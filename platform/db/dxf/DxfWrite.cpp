// Writing, saving and lookups of File.
//
// A tag that is in the output's form is written as its own bytes; runs of
// tags that lie one after another in the file buffer are copied in one go,
// so writing an unedited file is little more than one memcpy.
#include "DxfInternal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

#include <algorithm>
#include <atomic>

namespace OdDxf {
namespace {

using detail::Access;

class Writer {
 public:
  Writer(QByteArray& out, const Format& target, QStringList* problems)
      : m_out(out), m_target(target), m_problems(problems), m_eol(target.crlf ? "\r\n" : "\n") {}

  void record(const Record& r) {
    for (const Tag& t : r) tag(t);
  }
  void raw(QByteArrayView bytes) {
    flush();
    m_out += bytes;
  }
  void flush() {
    if (m_runBegin) m_out.append(m_runBegin, m_runEnd - m_runBegin);
    m_runBegin = m_runEnd = nullptr;
  }

 private:
  void tag(const Tag& t) {
    const bool bin = m_target.binary;
    if (m_needEol) {  // the previous tag was a last line without line end
      flush();
      m_out += m_eol;
      m_needEol = false;
    }
    if (t.isBinaryForm() == bin && (!bin || detail::hasShortCode(t) == m_target.shortCodes)) {
      const char* b = Access::begin(t);
      const char* e = Access::end(t);
      if (b != m_runEnd) {
        flush();
        m_runBegin = b;
      }
      m_runEnd = e;
      m_needEol = !bin && !Access::endsLine(t);
      return;
    }
    flush();
    QByteArray value;
    QString problem;
    if (!detail::appendConverted(value, t, bin, &problem) && m_problems) m_problems->append(problem);
    const ValueType type = t.type();
    if (bin && type == ValueType::Binary) {
      // A length byte holds at most 255: longer data goes into several chunks.
      qsizetype at = 0;
      do {
        const qsizetype n = qMin<qsizetype>(255, value.size() - at);
        detail::appendCode(m_out, t.code(), m_target);
        m_out.append(char(n));
        m_out.append(value.constData() + at, n);
        at += n;
      } while (at < value.size());
      return;
    }
    detail::appendCode(m_out, t.code(), m_target);
    m_out += value;
    if (!bin)
      m_out += m_eol;
    else if (!detail::isNumeric(type))
      m_out.append('\0');
  }

  QByteArray& m_out;
  const Format& m_target;
  QStringList* m_problems;
  const char* m_eol;
  const char* m_runBegin = nullptr;
  const char* m_runEnd = nullptr;
  bool m_needEol = false;
};

// Whether the file would be written as the very bytes it was read from:
// every tag unedited and right after the one before it in the buffer, from
// the preamble to the trailer. Then writing shares the buffer instead of
// copying it (a drawing of a million objects saved unedited).
bool isAsRead(const QByteArray& data, const QByteArray& preamble, const Record& prologue,
              const QList<Section>& sections, const Record& eof, const QByteArray& trailer) {
  if (data.isEmpty() || !data.startsWith(preamble)) return false;
  const char* next = data.constData() + preamble.size();
  auto follows = [&](const Record& r) {
    for (const Tag& t : r) {
      if (t.isEdited() || Access::begin(t) != next) return false;
      next = Access::end(t);
    }
    return true;
  };
  if (!follows(prologue)) return false;
  for (const Section& s : sections) {
    if (!follows(s.head)) return false;
    for (const Record& r : s.records)
      if (!follows(r)) return false;
    if (!follows(s.tail)) return false;
  }
  if (!follows(eof)) return false;
  const char* end = data.constData() + data.size();
  return end - next == trailer.size() && QByteArrayView(next, end - next) == trailer;
}

}  // namespace

QByteArray File::write(Form form, QStringList* problems) const {
  Format target = m_format;
  if (form != Form::AsRead) target.binary = form == Form::Binary;
  if (target.binary == m_format.binary && isAsRead(m_data, m_preamble, m_prologue, m_sections, m_eof, m_trailer))
    return m_data;
  QByteArray out;
  out.reserve(m_data.size() + m_data.size() / (target.binary == m_format.binary ? 64 : 4) + 1024);
  Writer w(out, target, problems);
  if (target.binary)
    w.raw(QByteArrayView(detail::kBinarySentinel, detail::kBinarySentinelSize));
  else if (!m_format.binary)
    w.raw(m_preamble);
  w.record(m_prologue);
  for (const Section& s : m_sections) {
    w.record(s.head);
    for (const Record& r : s.records) w.record(r);
    w.record(s.tail);
  }
  w.record(m_eof);
  w.raw(m_trailer);
  w.flush();
  return out;
}

namespace {

qint64 plainWrite(QFileDevice& file, const char* data, qint64 size, QString&) { return file.write(data, size); }

std::atomic<SaveWriteFn> g_saveWrite{plainWrite};

}  // namespace

SaveWriteFn setSaveWriteFn(SaveWriteFn fn) { return g_saveWrite.exchange(fn ? fn : plainWrite); }

bool saveBytes(const QString& path, const QByteArray& bytes, QString& error) {
  // A folder or a device (/dev/full, a terminal) is never replaced by the
  // renamed temporary file: refused before anything is written.
  const QFileInfo target(path);
  if (target.exists() && !target.isFile()) {
    error = QCoreApplication::translate("OdDxf", "Cannot write %1: it is a folder, not a file.")
                .arg(QDir::toNativeSeparators(path));
    if (!target.isDir())
      error = QCoreApplication::translate("OdDxf", "Cannot write %1: it is a device or another special file, not a regular file.")
                  .arg(QDir::toNativeSeparators(path));
    return false;
  }
  // Unbuffered, so that every write reports its own failure (a full disk, a
  // file size limit) rather than a final flush that commit() would not
  // report; on any failure the temporary file is dropped and an existing
  // file at `path` stays as it was.
  QSaveFile file(path);
  auto fail = [&](const char* what, const QString& reason = QString()) {
    error = QCoreApplication::translate("OdDxf", what).arg(QDir::toNativeSeparators(path),
                                                           reason.isEmpty() ? file.errorString() : reason);
    file.cancelWriting();
    return false;
  };
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
    return fail(QT_TRANSLATE_NOOP("OdDxf", "Cannot write %1: %2."));
  static const char* const kNotSaved =
      QT_TRANSLATE_NOOP("OdDxf", "%1 was not saved: %2. An existing file of that name is unchanged.");
  constexpr qsizetype kPiece = qsizetype(1) << 20;
  const SaveWriteFn write = g_saveWrite.load();
  for (qsizetype done = 0; done < bytes.size();) {
    QString reason;
    const qint64 n = write(file, bytes.constData() + done, qMin(kPiece, bytes.size() - done), reason);
    if (n <= 0 || file.error() != QFileDevice::NoError)
      return fail(kNotSaved, reason);
    done += qsizetype(n);
  }
  if (!file.flush() || file.error() != QFileDevice::NoError)
    return fail(kNotSaved);
  if (!file.commit()) {
    error = QCoreApplication::translate("OdDxf", kNotSaved).arg(QDir::toNativeSeparators(path), file.errorString());
    return false;
  }
  return true;
}

bool File::save(const QString& path, QString& error, Form form) const { return saveBytes(path, write(form), error); }

QByteArray File::version() const {
  const Record* v = headerVariable("$ACADVER");
  const int i = v ? v->find(1) : -1;
  return i < 0 ? QByteArray() : v->at(i).trimmed().toByteArray();
}

Section* File::section(QByteArrayView name) {
  for (Section& s : m_sections)
    if (s.name == name) return &s;
  return nullptr;
}

const Section* File::section(QByteArrayView name) const {
  return const_cast<File*>(this)->section(name);
}

Record* File::headerVariable(QByteArrayView name) {
  Section* h = section("HEADER");
  if (!h || name.isEmpty()) return nullptr;
  const bool bare = !name.startsWith('$');
  for (Record& r : h->records) {
    if (r.isEmpty() || r.at(0).code() != 9) continue;
    const QByteArrayView t = r.type();
    if (bare ? (t.size() == name.size() + 1 && t.startsWith('$') && t.sliced(1) == name) : t == name) return &r;
  }
  return nullptr;
}

const Record* File::headerVariable(QByteArrayView name) const {
  return const_cast<File*>(this)->headerVariable(name);
}

Section& File::addSection(QByteArrayView name) {
  Section s;
  s.name = name.toByteArray();
  s.head = Record::make(m_format, "SECTION");
  s.head.setRaw(s.head.append(2), name);
  s.tail = Record::make(m_format, "ENDSEC");
  m_sections.append(std::move(s));
  return m_sections.last();
}

QList<quint64> File::duplicateHandles() const {
  QHash<quint64, int> seen;
  QList<quint64> dups;
  for (const Section& s : m_sections) {
    if (s.name == "HEADER") continue;
    for (const Record& r : s.records) {
      const quint64 h = r.handle();
      if (h && ++seen[h] == 2) dups.append(h);
    }
  }
  std::sort(dups.begin(), dups.end());
  return dups;
}

qsizetype File::tagCount() const {
  qsizetype n = m_prologue.size() + m_eof.size();
  for (const Section& s : m_sections) {
    n += s.head.size() + s.tail.size();
    for (const Record& r : s.records) n += r.size();
  }
  return n;
}

}  // namespace OdDxf
