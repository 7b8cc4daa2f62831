// Reading: the file is split into tags (views into the one file buffer), then
// the tags are grouped into sections and records.
#include "DxfInternal.h"

#include <QFile>

#include <vector>

namespace OdDxf {
namespace {

using detail::Access;

constexpr int kMaxWarnings = 50;

// The longest value a tag may hold. DXF strings are at most a few thousand
// bytes (longer text is split over several tags), so a longer value is a
// damaged file; refusing it keeps the memory reading takes near the file's
// size, where decoding and showing a gigabyte of text would take many times
// that.
constexpr qsizetype kMaxValueBytes = qsizetype(1) << 20;

QString valueTooLong(int code, qsizetype bytes) {
  return QStringLiteral("value of group code %1 is %2 bytes long; a DXF value holds at most %3 (file damaged?)")
      .arg(code)
      .arg(bytes)
      .arg(QStringLiteral("1 MB"));
}

// Text of the bytes [b, e) for a message: printable ASCII kept, the rest as
// \xNN, cut to 40 bytes.
QString preview(const char* b, const char* e) {
  QString s;
  for (const char* p = b; p < e && p < b + 40; ++p) {
    const uchar c = uchar(*p);
    if (c >= 0x20 && c < 0x7F)
      s += QChar(c);
    else
      s += QStringLiteral("\\x%1").arg(c, 2, 16, QChar('0'));
  }
  if (e - b > 40) s += QStringLiteral("...");
  return s;
}

// "AC1015" -> 1015; 0 for anything else (the releases before AC1001 too).
int versionNumber(QByteArrayView v) {
  if (v.size() != 6 || !v.startsWith("AC")) return 0;
  int n = 0;
  for (qsizetype i = 2; i < 6; ++i) {
    if (v[i] < '0' || v[i] > '9') return 0;
    n = n * 10 + (v[i] - '0');
  }
  return n;
}

bool isValidUtf8(QByteArrayView d) {
  const uchar* p = reinterpret_cast<const uchar*>(d.data());
  const uchar* e = p + d.size();
  while (p < e) {
    if (*p < 0x80) {
      ++p;
      continue;
    }
    int n = (*p >= 0xF0 && *p < 0xF5) ? 3 : (*p >= 0xE0) && *p < 0xF0 ? 2 : (*p >= 0xC2 && *p < 0xE0) ? 1 : -1;
    if (n < 0 || e - p <= n) return false;
    for (int k = 1; k <= n; ++k)
      if ((p[k] & 0xC0) != 0x80) return false;
    p += n + 1;
  }
  return true;
}

// Parses an ASCII group code line: blanks, digits, blanks.
bool parseCode(const char* b, const char* e, int& code) {
  while (b < e && detail::isBlank(*b)) ++b;
  while (e > b && detail::isBlank(e[-1])) --e;
  if (b < e && *b == '+') ++b;
  if (b == e || e - b > 6) return false;
  int v = 0;
  for (const char* p = b; p < e; ++p) {
    if (*p < '0' || *p > '9') return false;
    v = v * 10 + (*p - '0');
  }
  code = v;
  return true;
}

// Every tag of the file in one block. The records share it, each viewing its
// own range (see Access::record), so a tag is stored once however many
// records and copies of records there are.
class TagBlock {
 public:
  void reserve(qsizetype n) { m_d = QArrayDataPointer<Tag>(QTypedArrayData<Tag>::allocate(n)); }
  void push(const Tag& t) {
    if (m_d.size == m_d.constAllocatedCapacity()) m_d->reallocate(m_d.size * 2 + 64, QArrayData::Grow);
    m_d.ptr[m_d.size++] = t;
  }
  // Gives back the room reserved beyond the last tag (in place: the block
  // only shrinks).
  void squeeze() {
    if (m_d.d && m_d.size < m_d.constAllocatedCapacity()) m_d->reallocate(qMax<qsizetype>(m_d.size, 1), QArrayData::KeepSize);
  }
  const Tag& back() const { return m_d.ptr[m_d.size - 1]; }
  const Tag* data() const { return m_d.ptr; }
  qsizetype size() const { return m_d.size; }
  const QArrayDataPointer<Tag>& block() const { return m_d; }

 private:
  QArrayDataPointer<Tag> m_d;
};

class Reader {
 public:
  Reader(const QByteArray& data, QStringList* warnings)
      : m_data(data), m_base(data.constData()), m_end(data.constData() + data.size()), m_warnings(warnings) {}

  bool run(File& out, QString& error);

 private:
  bool tokenizeAscii(const char* p);
  bool tokenizeBinary();
  bool build(File& out);

  QString where(const char* at) {
    if (m_binary) return QStringLiteral("byte offset %1").arg(at - m_base);
    // Lines are counted on demand; messages come in file order, so counting
    // resumes where the previous one stopped.
    if (at < m_lineAt) {
      m_lineAt = m_base;
      m_line = 1;
    }
    for (const char* p = m_lineAt; p < at;) {
      const void* nl = std::memchr(p, '\n', size_t(at - p));
      if (!nl) break;
      ++m_line;
      p = static_cast<const char*>(nl) + 1;
    }
    m_lineAt = at;
    return QStringLiteral("line %1").arg(m_line);
  }
  bool fail(const QString& at, const QString& what) {
    m_error = at + QStringLiteral(": ") + what;
    return false;
  }
  bool fail(const char* at, const QString& what) { return fail(where(at), what); }
  void warn(const char* at, const QString& what) {
    if (!m_warnings) return;
    if (m_warningCount++ < kMaxWarnings)
      m_warnings->append(where(at) + QStringLiteral(": ") + what);
    else if (m_warningCount == kMaxWarnings + 1)
      m_warnings->append(QStringLiteral("more warnings left out"));
  }
  const char* at(const Tag& t) const { return Access::begin(t); }
  bool isKeyword(const Tag& t, QByteArrayView k) const { return t.code() == 0 && t.trimmed() == k; }

  const QByteArray& m_data;
  const char* m_base;
  const char* m_end;
  QStringList* m_warnings;
  int m_warningCount = 0;
  bool m_binary = false;
  bool m_shortCodes = false;
  qsizetype m_bomSize = 0;
  TagBlock m_tags;
  const char* m_trailer = nullptr;  // bytes after EOF; null if no EOF was read
  QString m_error;
  const char* m_lineAt = nullptr;
  qsizetype m_line = 1;
};

bool Reader::tokenizeAscii(const char* p) {
  m_tags.reserve((m_end - p) / 8 + 16);
  qsizetype line = 1;
  while (p < m_end) {
    const char* codeLine = p;
    const char* nl = static_cast<const char*>(std::memchr(p, '\n', size_t(m_end - p)));
    const char* codeEnd = nl ? nl : m_end;
    if (codeEnd > codeLine && codeEnd[-1] == '\r') --codeEnd;
    int code = 0;
    if (!parseCode(codeLine, codeEnd, code)) {
      const QString found = codeEnd == codeLine ? QStringLiteral("an empty line")
                                                : QStringLiteral("'%1'").arg(preview(codeLine, codeEnd));
      return fail(QStringLiteral("line %1").arg(line),
                  (line == 1 ? QStringLiteral("not a DXF file: group code expected, found %1")
                             : QStringLiteral("group code expected, found %1"))
                      .arg(found));
    }
    if (!isValidGroupCode(code))
      return fail(QStringLiteral("line %1").arg(line),
                  QStringLiteral("invalid group code %1 (valid: 0 to %2)").arg(code).arg(kMaxGroupCode));
    if (!nl || nl + 1 >= m_end)
      return fail(QStringLiteral("line %1").arg(line + 1),
                  QStringLiteral("value of group code %1 expected, found end of file (file truncated?)").arg(code));
    const char* value = nl + 1;
    const char* vnl = static_cast<const char*>(std::memchr(value, '\n', size_t(m_end - value)));
    const char* valueEnd = vnl ? vnl : m_end;
    int post = vnl ? 1 : 0;
    if (valueEnd > value && valueEnd[-1] == '\r') {
      --valueEnd;
      ++post;
    }
    if (value - codeLine > 0xFFFF)
      return fail(QStringLiteral("line %1").arg(line), QStringLiteral("group code line too long"));
    if (valueEnd - value > kMaxValueBytes)
      return fail(QStringLiteral("line %1").arg(line + 1), valueTooLong(code, valueEnd - value));
    m_tags.push(Access::make(value, valueEnd - value, code, int(value - codeLine), post, false, false));
    p = vnl ? vnl + 1 : m_end;
    line += 2;
    if (code == 0 && m_tags.back().trimmed() == "EOF") {
      m_trailer = p;
      break;
    }
  }
  return true;
}

bool Reader::tokenizeBinary() {
  const qsizetype size = m_end - m_base;
  for (int k = 0; k < detail::kBinarySentinelSize; ++k)
    if (k >= size || m_base[k] != detail::kBinarySentinel[k])
      return fail(m_base + k, QStringLiteral("damaged binary DXF sentinel"));
  const uchar* d = reinterpret_cast<const uchar*>(m_base);
  qsizetype p = detail::kBinarySentinelSize;
  // The first tag is "0 SECTION" or a 999 comment: its code bytes tell 1-byte
  // codes (before R13) from 2-byte ones.
  if (p + 2 > size) return fail(m_base + p, QStringLiteral("binary DXF has no tags (file truncated?)"));
  if ((d[p] == 0 && d[p + 1] == 0) || (d[p] == 0xE7 && d[p + 1] == 0x03))
    m_shortCodes = false;
  else if (d[p] == 0 || d[p] == 0xFF)
    m_shortCodes = true;
  else
    return fail(m_base + p, QStringLiteral("not a DXF file: group code 0 or 999 expected at the start"));

  m_tags.reserve(size / 6 + 16);
  while (p < size) {
    const qsizetype start = p;
    int code;
    if (!m_shortCodes) {
      if (p + 2 > size) return fail(m_base + p, QStringLiteral("group code truncated (file truncated?)"));
      code = d[p] | (d[p + 1] << 8);
      p += 2;
    } else if (d[p] != 0xFF) {
      code = d[p++];
    } else {
      if (p + 3 > size) return fail(m_base + p, QStringLiteral("group code truncated (file truncated?)"));
      code = d[p + 1] | (d[p + 2] << 8);
      p += 3;
    }
    if (!isValidGroupCode(code))
      return fail(m_base + start, QStringLiteral("invalid group code %1 (valid: 0 to %2)").arg(code).arg(kMaxGroupCode));
    const ValueType type = valueType(code);
    qsizetype n = detail::binarySize(type);
    int post = 0;
    if (type == ValueType::Binary) {
      if (p >= size)
        return fail(m_base + p, QStringLiteral("length byte of group code %1 missing (file truncated?)").arg(code));
      n = d[p++];
    } else if (n < 0) {
      const void* nul = std::memchr(m_base + p, 0, size_t(size - p));
      if (!nul)
        return fail(m_base + p, QStringLiteral("string of group code %1 has no terminating NUL (file truncated?)")
                                    .arg(code));
      n = static_cast<const char*>(nul) - (m_base + p);
      post = 1;
      if (n > kMaxValueBytes) return fail(m_base + p, valueTooLong(code, n));
    }
    if (p + n > size)
      return fail(m_base + p, QStringLiteral("value of group code %1 needs %2 bytes, %3 left (file truncated?)")
                                  .arg(code)
                                  .arg(n)
                                  .arg(size - p));
    m_tags.push(Access::make(m_base + p, n, code, int(p - start), post, true, false));
    p += n + post;
    if (code == 0 && m_tags.back().raw() == "EOF") {
      m_trailer = m_base + p;
      break;
    }
  }
  return true;
}

bool Reader::build(File& out) {
  m_tags.squeeze();
  const Tag* T = m_tags.data();
  const qsizetype n = m_tags.size();

  // Tags before the first group 0 may only be comments.
  qsizetype i = 0;
  for (; i < n && T[i].code() != 0; ++i) {
    if (T[i].code() == 999) continue;
    if (i == 0) return fail(at(T[i]), QStringLiteral("not a DXF file: '0 SECTION' expected, found group code %1").arg(T[i].code()));
    return fail(at(T[i]), QStringLiteral("'0 SECTION' expected, found group code %1").arg(T[i].code()));
  }

  // Release and code page from the HEADER variables.
  QByteArrayView version, codepageName;
  for (qsizetype k = i; k + 1 < n; ++k) {
    const Tag& t = T[k];
    if (t.code() == 0 && (t.trimmed() == "ENDSEC" || t.trimmed() == "EOF")) break;
    if (t.code() != 9) continue;
    if (t.trimmed() == "$ACADVER" && T[k + 1].code() == 1) version = T[k + 1].trimmed();
    if (t.trimmed() == "$DWGCODEPAGE" && T[k + 1].code() == 3) codepageName = T[k + 1].trimmed();
  }
  const int release = versionNumber(version);
  Format f;
  f.binary = m_binary;
  f.shortCodes = m_binary ? m_shortCodes : (!version.isEmpty() && release < 1012);
  if (!m_binary && n > 0) {
    const char* v = T[0].raw().data();
    f.crlf = Access::pre(T[0]) >= 2 && v[-1] == '\n' && v[-2] == '\r';
    if (i < n) f.padCodes = Access::pre(T[i]) > (f.crlf ? 3 : 2);  // "  0" rather than "0"
    for (qsizetype k = 0; k < n; ++k)
      if (T[k].type() == ValueType::Int16) {
        f.padInts = T[k].raw().startsWith(' ');
        break;
      }
  }
  if (release >= 1021) {
    f.codepage = kUtf8;
  } else if (!codepageName.isEmpty()) {
    f.codepage = codepageFromName(codepageName);
    if (!f.codepage) {
      warn(m_base, QStringLiteral("code page '%1' not known; strings read as ANSI_1252")
                       .arg(QString::fromLatin1(codepageName.toByteArray())));
      f.codepage = kAnsi1252;
    }
  } else if (version.isEmpty()) {
    f.codepage = isValidUtf8(m_data) ? kUtf8 : kAnsi1252;
  }

  const QByteArray& src = m_data;
  auto record = [&](qsizetype b, qsizetype e) { return Access::record(m_tags.block(), b, e, src, f); };
  auto countNonComments = [&](qsizetype b, qsizetype e) {
    qsizetype c = 0;
    for (qsizetype k = b; k < e; ++k) c += T[k].code() != 999;
    return c;
  };

  File result;
  Access::data(result) = m_data;
  Access::format(result) = f;
  if (m_binary)
    Access::preamble(result) = QByteArray(detail::kBinarySentinel, detail::kBinarySentinelSize);
  else
    Access::preamble(result) = m_data.left(m_bomSize);
  result.prologue() = record(0, i);

  bool haveEof = false;
  while (i < n) {  // T[i] is a group 0 tag here
    if (isKeyword(T[i], "SECTION")) {
      if (i + 1 >= n || T[i + 1].code() != 2)
        return fail(i + 1 < n ? at(T[i + 1]) : m_end, QStringLiteral("section name (group 2) expected after SECTION"));
      Section s;
      s.name = T[i + 1].trimmed().toByteArray();
      const bool header = s.name == "HEADER";
      auto starts = [&](qsizetype k) { return T[k].code() == 0 || (header && T[k].code() == 9); };
      qsizetype j = i + 2;
      while (j < n && !starts(j)) ++j;
      s.head = record(i, j);  // THUMBNAILIMAGE and ACDSDATA carry values here
      std::vector<qsizetype> bounds;
      while (j < n && !isKeyword(T[j], "ENDSEC") && !isKeyword(T[j], "SECTION") && !isKeyword(T[j], "EOF")) {
        bounds.push_back(j);
        for (++j; j < n && !starts(j);) ++j;
      }
      bounds.push_back(j);
      s.records.reserve(qsizetype(bounds.size()) - 1);
      for (size_t k = 0; k + 1 < bounds.size(); ++k) s.records.append(record(bounds[k], bounds[k + 1]));
      if (j >= n)
        return fail(m_end, QStringLiteral("unexpected end of file in section %1: ENDSEC and EOF missing (file truncated?)")
                               .arg(QString::fromLatin1(s.name)));
      if (isKeyword(T[j], "ENDSEC")) {
        qsizetype k = j + 1;
        while (k < n && T[k].code() != 0) ++k;
        s.tail = record(j, k);
        if (countNonComments(j + 1, k) > 0)
          warn(at(T[j + 1]), QStringLiteral("%1 tags after ENDSEC of section %2 kept as they are")
                                 .arg(countNonComments(j + 1, k))
                                 .arg(QString::fromLatin1(s.name)));
        i = k;
      } else {
        warn(at(T[j]), QStringLiteral("ENDSEC missing before %1; added to close section %2")
                           .arg(QString::fromLatin1(T[j].trimmed().toByteArray()), QString::fromLatin1(s.name)));
        s.tail = Access::synthesized(f, "ENDSEC");
        i = j;
      }
      result.sections().append(std::move(s));
    } else if (isKeyword(T[i], "EOF")) {
      result.eof() = record(i, i + 1);
      haveEof = true;
      ++i;
    } else {
      // Records outside any section: keep them where they are.
      Section s;
      warn(at(T[i]), QStringLiteral("'%1' outside any section kept as it is")
                         .arg(QString::fromLatin1(T[i].trimmed().toByteArray())));
      while (i < n && !isKeyword(T[i], "SECTION") && !isKeyword(T[i], "EOF")) {
        qsizetype k = i + 1;
        while (k < n && T[k].code() != 0) ++k;
        s.records.append(record(i, k));
        i = k;
      }
      result.sections().append(std::move(s));
    }
  }
  if (!haveEof) {
    if (result.sections().isEmpty()) return fail(m_end, QStringLiteral("not a DXF file: no SECTION and no EOF"));
    if (!m_binary && m_end[-1] != '\n')
      return fail(m_end, QStringLiteral("file ends in the middle of a line, EOF missing (file truncated?)"));
    warn(m_end, QStringLiteral("EOF missing at the end of the file; added"));
    result.eof() = Access::synthesized(f, "EOF");
  } else {
    Access::trailer(result) = QByteArray(m_trailer, m_end - m_trailer);
  }
  out = std::move(result);
  return true;
}

bool Reader::run(File& out, QString& error) {
  bool ok;
  const qsizetype size = m_end - m_base;
  m_lineAt = m_base;
  if (size == 0) {
    ok = fail(QStringLiteral("line 1"), QStringLiteral("empty file, no DXF data"));
  } else if (size > 0x7FFFFFFF) {
    ok = fail(QStringLiteral("line 1"), QStringLiteral("file larger than 2 GB"));
  } else if (m_data.startsWith("AutoCAD Binary DXF")) {
    m_binary = true;
    ok = tokenizeBinary() && build(out);
  } else if (size >= 6 && versionNumber(QByteArrayView(m_base, 6)) > 0) {
    ok = fail(QStringLiteral("byte offset 0"),
              QStringLiteral("not a DXF file: this is a DWG drawing (%1)").arg(QString::fromLatin1(m_base, 6)));
  } else {
    if (m_data.startsWith("\xEF\xBB\xBF")) m_bomSize = 3;
    ok = tokenizeAscii(m_base + m_bomSize) && build(out);
  }
  if (!ok) error = m_error;
  return ok;
}

}  // namespace

bool File::read(const QByteArray& bytes, File& out, QString& error, QStringList* warnings) {
  QStringList local;
  Reader reader(bytes, warnings ? &local : nullptr);
  if (!reader.run(out, error)) return false;
  if (warnings) *warnings += local;
  return true;
}

bool File::load(const QString& path, File& out, QString& error, QStringList* warnings) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    error = QStringLiteral("cannot open '%1': %2").arg(path, file.errorString());
    return false;
  }
  QByteArray bytes;
  if (!detail::readWhole(file, bytes)) {
    error = QStringLiteral("cannot read '%1': %2").arg(path, file.errorString());
    return false;
  }
  return read(bytes, out, error, warnings);
}

}  // namespace OdDxf
