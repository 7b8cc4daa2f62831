// RecordIO: reading typed values from a record's region and patching them
// back, plus extended data and the messages' locations.
#include "DxfInternal.h"
#include "DxfMapping.h"
#include "OdResBuf.h"

#include <QCoreApplication>

#include <cstring>

namespace OdDxf::mapping {

using detail::Access;

namespace {
constexpr int kMaxWarnings = 100;
}  // namespace

bool NameIndex::add(const QString& name, const OdDbObjectId& id) {
  const QString key = name.toCaseFolded();
  if (m_ids.contains(key)) return false;
  m_ids.insert(key, id);
  m_hasLast = false;
  return true;
}

// ---------------------------------------------------------------------------
// Context

QString Context::where(const Record& r, int index) const {
  if (index < 0 || index >= r.size()) index = 0;
  if (r.isEmpty()) return QStringLiteral("end of file");
  const Tag& t = r.at(index);
  const QByteArray& data = Access::data(*file);
  const char* base = data.constData();
  const char* end = base + data.size();
  const char* at = file->isBinary() ? Access::begin(t) : t.raw().data();
  if (!t.isEdited() && at >= base && at <= end) {
    if (file->isBinary()) return QStringLiteral("byte offset %1").arg(at - base);
    if (!lineAt || at < lineAt) {
      lineAt = base;
      line = 1;
    }
    for (const char* p = lineAt; p < at;) {
      const void* nl = std::memchr(p, '\n', size_t(at - p));
      if (!nl) break;
      ++line;
      p = static_cast<const char*>(nl) + 1;
    }
    lineAt = at;
    return QStringLiteral("line %1").arg(line);
  }
  const quint64 h = r.handle();
  return h ? QStringLiteral("%1 %2").arg(printable(r.type()), QString::number(h, 16).toUpper()) : printable(r.type());
}

void Context::warn(const QString& message) {
  if (quiet || !warnings) return;
  if (warningCount++ < kMaxWarnings)
    warnings->append(message);
  else if (warningCount == kMaxWarnings + 1)
    warnings->append(QStringLiteral("more warnings left out"));
}

// ---------------------------------------------------------------------------
// Regions

RecordIO::RecordIO(Context& ctx, Record& rec, Mode mode) : m_ctx(ctx), m_rec(rec), m_mode(mode) {
  m_xdata = rec.size();
  for (int i = 1; i < rec.size(); ++i)
    if (rec.at(i).code() == 1001) {
      m_xdata = i;
      break;
    }
  const int x = m_xdata;
  m_flat = true;
  for (int i = 1; i < x && m_flat; ++i) m_flat = rec.at(i).code() != 100;
  if (mode == Create) m_flat = !ctx.markers;
  m_begin = 1;
  m_end = x;
  // New tags of a record without markers go after its handle.
  m_cursor = 1;
  while (m_cursor < x && (rec.at(m_cursor).code() == 5 || rec.at(m_cursor).code() == 105)) ++m_cursor;
}

void RecordIO::subclass(QByteArrayView marker, int occurrence) {
  if (m_flat) return;  // one region for every class
  const int x = xdataBegin();
  int seen = 0;
  for (int i = 1; i < x; ++i) {
    const Tag& t = m_rec.at(i);
    if (t.code() == 100 && t.trimmed() == marker && ++seen == occurrence) {
      m_begin = i + 1;
      m_end = m_begin;
      // A 101 starts an embedded object, whose tags are no field of the class.
      while (m_end < x && m_rec.at(m_end).code() != 100 && m_rec.at(m_end).code() != 101) ++m_end;
      m_cursor = m_begin;
      return;
    }
  }
  if (m_mode == Create) {
    insertAt(x, 100);
    m_rec.setRaw(x, marker);
    m_begin = m_end = m_cursor = x + 1;
    return;
  }
  // A record that lacks the marker (some writers leave markers out): its
  // values are looked for in the whole record.
  m_begin = 1;
  m_end = x;
}

int RecordIO::find(int code, int from) const {
  for (int i = qMax(from, m_begin); i < m_end; ++i)
    if (m_rec.at(i).code() == code) return i;
  return -1;
}

void RecordIO::insertAt(int index, int code) {
  m_rec.insert(index, code);
  if (index <= m_xdata) ++m_xdata;
  if (index <= m_end) ++m_end;
  if (index < m_begin) ++m_begin;
  if (index < m_cursor) ++m_cursor;
  moveCursor(index);
}

// ---------------------------------------------------------------------------
// Reading

void RecordIO::refuse(int index, const QString& what) const {
  const quint64 h = m_rec.handle();
  QString who = printable(m_rec.type());
  if (h) who += QStringLiteral(" (handle %1)").arg(QString::number(h, 16).toUpper());
  throw MapError{QStringLiteral("%1: %2: %3").arg(where(index), who, what)};
}

void RecordIO::warn(int index, const QString& what) const {
  if (m_ctx.quiet || !m_ctx.warnings) return;
  const quint64 h = m_rec.handle();
  QString who = printable(m_rec.type());
  if (h) who += QStringLiteral(" (handle %1)").arg(QString::number(h, 16).toUpper());
  m_ctx.warn(QStringLiteral("%1: %2: %3").arg(where(index), who, what));
}

double RecordIO::realAt(int index) const {
  bool ok = false;
  const double v = m_rec.at(index).real(&ok);
  if (!ok)
    refuse(index, QStringLiteral("group code %1 value '%2' is not a number")
                      .arg(m_rec.at(index).code())
                      .arg(m_rec.str(index).left(40)));
  return v;
}

qint64 RecordIO::integerAt(int index) const {
  bool ok = false;
  qint64 v = m_rec.at(index).integer(&ok);
  if (!ok) {  // some writers put a whole real into an integer group
    const double d = m_rec.at(index).real(&ok);
    ok = ok && std::isfinite(d) && d == std::floor(d) && std::fabs(d) < 9.2e18;
    v = ok ? qint64(d) : 0;
  }
  if (!ok)
    refuse(index, QStringLiteral("group code %1 value '%2' is not an integer")
                      .arg(m_rec.at(index).code())
                      .arg(m_rec.str(index).left(40)));
  return v;
}

double RecordIO::real(int code, double def) const {
  const int i = find(code);
  return i < 0 ? def : realAt(i);
}

qint64 RecordIO::integer(int code, qint64 def) const {
  const int i = find(code);
  return i < 0 ? def : integerAt(i);
}

QString RecordIO::string(int code, const QString& def) const {
  const int i = find(code);
  return i < 0 ? def : m_rec.str(i);
}

quint64 RecordIO::handle(int code) const {
  const int i = find(code);
  if (i < 0) return 0;
  bool ok = false;
  const quint64 h = m_rec.at(i).handle(&ok);
  if (!ok) refuse(i, QStringLiteral("group code %1 value '%2' is not a handle").arg(code).arg(m_rec.str(i).left(40)));
  return h;
}

OdGePoint3d RecordIO::point(int code, const OdGePoint3d& def) const {
  const int ix = find(code);
  if (ix < 0) return def;
  OdGePoint3d p = def;
  p.x = realAt(ix);
  const int iy = find(code + 10, ix + 1);
  if (iy >= 0) p.y = realAt(iy);
  const int iz = find(code + 20, iy >= 0 ? iy + 1 : ix + 1);
  if (iz >= 0) p.z = realAt(iz);
  return p;
}

OdGeVector3d readNormal(const RecordIO& io, int code) {
  const OdGePoint3d p = io.point(code, OdGePoint3d(0, 0, 1));
  const OdGeVector3d n(p.x, p.y, p.z);
  if (!std::isfinite(n.length()) || n.isZeroLength()) {
    io.warn(io.find(code), QStringLiteral("extrusion direction (%1,%2,%3) is not a direction; (0,0,1) used")
                               .arg(p.x).arg(p.y).arg(p.z));
    return OdGeVector3d(0, 0, 1);
  }
  return n.normal();
}

// ---------------------------------------------------------------------------
// Writing. A tag whose value already reads back as the one to write keeps its
// bytes ("1.000000" stays as it is for 1.0).

int RecordIO::slot(int code, bool& existing) {
  int i = find(code);
  existing = i >= 0;
  if (existing) {
    moveCursor(i);
  } else {
    i = m_cursor;
    insertAt(i, code);
  }
  return i;
}

void RecordIO::putReal(int code, double v) {
  bool existing = false, ok = false;
  const int i = slot(code, existing);
  const double old = existing ? m_rec.at(i).real(&ok) : 0.0;
  if (ok && same(old, v) && std::signbit(old) == std::signbit(v)) return;
  m_rec.setReal(i, v);
}

void RecordIO::putInteger(int code, qint64 v) {
  bool existing = false, ok = false;
  const int i = slot(code, existing);
  if (existing && m_rec.at(i).integer(&ok) == v && ok) return;
  m_rec.setInteger(i, v);
}

void writeString(const Context& ctx, Record& r, int index, const QString& text) {
  if (r.setString(index, text)) return;
  if (!hasControlCharacters(text)) {
    throw MapError{QStringLiteral("%1: group code %2 cannot hold '%3'")
                       .arg(ctx.where(r, index))
                       .arg(index >= 0 && index < r.size() ? r.at(index).code() : -1)
                       .arg(text.left(40))};
  }
  // The text as it can be shown on one line: control characters as ^J, ^I...
  QString shown;
  for (QChar c : text.left(60))
    shown += c.unicode() < 0x20 ? QStringLiteral("^") + QChar(c.unicode() + 0x40)
             : c.unicode() == 0x7F ? QStringLiteral("^?")
                                   : QString(c);
  throw MapError{QStringLiteral("%1: ").arg(ctx.where(r, index)) +
                 QCoreApplication::translate("OdDxf",
                                             "group code %1 cannot hold \"%2\": a drawing file cannot hold line breaks, "
                                             "tabs or other control characters in a text")
                     .arg(r.at(index).code())
                     .arg(shown)};
}

void RecordIO::putString(int code, const QString& v) {
  bool existing = false;
  const int i = slot(code, existing);
  if (existing && m_rec.str(i) == v) return;
  writeString(m_ctx, m_rec, i, v);
}

void RecordIO::putHandle(int code, quint64 h) {
  bool existing = false, ok = false;
  const int i = slot(code, existing);
  if (existing && m_rec.at(i).handle(&ok) == h && ok) return;
  m_rec.setHandle(i, h);
}

void RecordIO::putPoint(int code, const OdGePoint3d& p, int dims) {
  const double v[3] = {p.x, p.y, p.z};
  int prev = -1;
  for (int k = 0; k < dims; ++k) {
    const int c = code + 10 * k;
    int i = find(c, prev < 0 ? -1 : prev + 1);
    if (i < 0) {
      // Z stays out of a record that had none while it is 0 (2D points).
      if (k == 2 && v[2] == 0 && m_mode != Create) break;
      i = prev < 0 ? m_cursor : prev + 1;
      insertAt(i, c);
      m_rec.setReal(i, v[k]);
    } else {
      bool ok = false;
      const double old = m_rec.at(i).real(&ok);
      moveCursor(i);
      if (!(ok && same(old, v[k]) && std::signbit(old) == std::signbit(v[k]))) m_rec.setReal(i, v[k]);
    }
    prev = i;
  }
}

void RecordIO::remove(int code) {
  const int i = find(code);
  if (i < 0) return;
  m_rec.remove(i);
  --m_end;
  if (i < m_xdata) --m_xdata;
  if (i < m_cursor) --m_cursor;
}

void RecordIO::removeAt(int index, int count) {
  if (index < 0 || count <= 0) return;
  m_rec.remove(index, count);
  if (index < m_xdata) m_xdata -= qMin(count, m_xdata - index);
  m_end -= qMin(count, m_end - index);
  if (m_cursor > index) m_cursor = qMax(index, m_cursor - count);
}

int RecordIO::insertTag(int code) {
  const int i = m_cursor;
  insertAt(i, code);
  return i;
}

void RecordIO::skip(int code, int dims) {
  int prev = -1;
  for (int k = 0; k < dims; ++k) {
    const int i = find(code + 10 * k, prev < 0 ? -1 : prev + 1);
    if (i < 0) break;
    moveCursor(i);
    prev = i;
  }
}

// ---------------------------------------------------------------------------
// Extended data

namespace {

// Reads the items of [from, to) (after a 1001 item) into a chain.
OdResBufPtr readItems(const RecordIO& io, int from, int to, OdResBufPtr head) {
  const Record& r = io.record();
  OdResBuf* tail = head.get();
  for (int i = from; i < to; ++i) {
    const Tag& t = r.at(i);
    const int code = t.code();
    OdResBufPtr item = OdResBuf::newRb(code);
    switch (OdResBuf::kindOf(code)) {
      case OdResBuf::kPoint: {
        OdGePoint3d p;
        p.x = io.realAt(i);
        if (i + 1 < to && r.at(i + 1).code() == code + 10) p.y = io.realAt(++i);
        if (i + 1 < to && r.at(i + 1).code() == code + 20) p.z = io.realAt(++i);
        item->setValue(p);
        break;
      }
      case OdResBuf::kDouble: item->setValue(io.realAt(i)); break;
      case OdResBuf::kInt16:
      case OdResBuf::kInt32:
      case OdResBuf::kInt64: item->setValue(int64_t(io.integerAt(i))); break;
      case OdResBuf::kBool: item->setValue(io.integerAt(i) != 0); break;
      case OdResBuf::kHandle: {
        bool ok = false;
        const quint64 h = t.handle(&ok);
        if (!ok) io.refuse(i, QStringLiteral("extended data handle '%1' is not hexadecimal").arg(r.str(i).left(40)));
        item->setHandle(h);
        break;
      }
      case OdResBuf::kBinary: {
        bool ok = false;
        const QByteArray b = t.bytes(&ok);
        if (!ok) io.refuse(i, QStringLiteral("extended data binary chunk is not hexadecimal"));
        item->setValue(b);
        break;
      }
      default: item->setValue(OdString(r.str(i))); break;
    }
    tail = tail->setNext(item.get());
  }
  return head;
}

}  // namespace

OdResBufPtr RecordIO::xdata(const QStringList& exclude) const {
  const int x = xdataBegin();
  OdResBufPtr head;
  OdResBuf* tail = nullptr;
  for (int i = x; i < m_rec.size();) {
    int j = i + 1;
    while (j < m_rec.size() && m_rec.at(j).code() != 1001) ++j;
    const QString app = m_rec.str(i).trimmed();
    if (!exclude.contains(app, Qt::CaseInsensitive)) {
      OdResBufPtr chain = readItems(*this, i + 1, j, OdResBuf::newRb(1001, OdString(app)));
      if (!head) head = chain; else tail->setNext(chain.get());
      tail = chain->last();
    }
    i = j;
  }
  return head;
}

OdResBufPtr RecordIO::xdataOf(const QString& app) const {
  for (int i = xdataBegin(); i < m_rec.size();) {
    int j = i + 1;
    while (j < m_rec.size() && m_rec.at(j).code() != 1001) ++j;
    if (m_rec.str(i).trimmed().compare(app, Qt::CaseInsensitive) == 0)
      return readItems(*this, i + 1, j, OdResBuf::newRb(1001, OdString(app)))->nextPtr();
    i = j;
  }
  return {};
}

void RecordIO::putXdataOf(const QString& app, const OdResBuf* items) {
  int at = m_rec.size();
  for (int i = xdataBegin(); i < m_rec.size();) {
    int j = i + 1;
    while (j < m_rec.size() && m_rec.at(j).code() != 1001) ++j;
    if (m_rec.str(i).trimmed().compare(app, Qt::CaseInsensitive) == 0) {
      m_rec.remove(i, j - i);
      at = i;
      break;
    }
    i = j;
  }
  if (!items) return;
  auto add = [&](int code) {
    m_rec.insert(at, code);
    return at++;
  };
  writeString(m_ctx, m_rec, add(1001), app);
  for (const OdResBuf* p = items; p; p = p->next()) {
    const int code = p->restype();
    switch (OdResBuf::kindOf(code)) {
      case OdResBuf::kPoint: {
        const OdGePoint3d pt = p->getPoint3d();
        m_rec.setReal(add(code), pt.x);
        m_rec.setReal(add(code + 10), pt.y);
        m_rec.setReal(add(code + 20), pt.z);
        break;
      }
      case OdResBuf::kDouble: m_rec.setReal(add(code), p->getDouble()); break;
      case OdResBuf::kInt16:
      case OdResBuf::kInt32:
      case OdResBuf::kInt64:
      case OdResBuf::kBool: m_rec.setInteger(add(code), p->getInt64()); break;
      case OdResBuf::kHandle: m_rec.setHandle(add(code), p->getHandle()); break;
      case OdResBuf::kBinary: {
        // Binary DXF holds at most 255 bytes per chunk.
        const QByteArray b = p->getBinaryChunk();
        qsizetype k = 0;
        do {
          m_rec.setBytes(add(code), QByteArrayView(b).sliced(k, qMin<qsizetype>(127, b.size() - k)));
          k += 127;
        } while (k < b.size());
        break;
      }
      default: writeString(m_ctx, m_rec, add(code), p->getString().qstring()); break;
    }
  }
}

}  // namespace OdDxf::mapping
