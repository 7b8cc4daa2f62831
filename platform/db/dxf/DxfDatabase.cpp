// Reading a DXF file into a database and writing the database back into the
// file it was read from (see DxfDatabase.h).
//
// The database keeps the file's records (DrawingData, its fileData()) and,
// for each record, the object it belongs to. Writing brings a copy of the
// records up to date - edited objects patched, erased ones dropped, new ones
// added - and serializes it; the copy replaces the kept one once that worked.
#include "DxfDatabase.h"

#include "DbPlainClasses.h"
#include "DxfInternal.h"
#include "DxfMapping.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace OdDxf {
namespace mapping {
namespace {

// What a database keeps of the file it was read from.
class DrawingData : public OdRxObject {
 public:
  File file;
  Context ctx;
  // Per section, per record: the object the record belongs to (null for
  // records the platform does not model).
  std::vector<std::vector<OdDbStub*>> owners;
  // Objects that have records in the file.
  std::unordered_set<const OdDbStub*> bound;
  // Objects the reader made for what the file lacks (a default layer, say);
  // they are never written.
  std::unordered_set<const OdDbStub*> implicit;
  quint64 handseed = 0;  // $HANDSEED as the file has it; 0 if none

  DrawingData() { ctx.file = &file; }
  // A copy to bring up to date; the two sets stay with the original until
  // the copy replaces it (adopt()).
  DrawingData(const DrawingData& o) : file(o.file), ctx(o.ctx), owners(o.owners), handseed(o.handseed) {
    ctx.file = &file;
  }
  void adopt(DrawingData& o, const std::vector<const OdDbStub*>& added, const std::vector<const OdDbStub*>& dropped,
             const std::vector<const OdDbStub*>& madeReal) {
    bound = std::move(o.bound);
    implicit = std::move(o.implicit);
    for (const OdDbStub* s : dropped) bound.erase(s);
    for (const OdDbStub* s : madeReal) implicit.erase(s);
    bound.insert(added.begin(), added.end());
  }
};

DrawingData* drawingData(OdDbDatabase* db) {
  return db ? dynamic_cast<DrawingData*>(db->fileData()) : nullptr;
}

int releaseNumber(QByteArrayView v) {
  const QByteArrayView t = detail::trimBlanks(v);
  if (t.size() != 6 || !t.startsWith("AC")) return 0;
  bool ok = false;
  const int n = t.sliced(2).toByteArray().toInt(&ok);
  return ok ? n : 0;
}

// The symbol tables the database models.
struct TableKind {
  const char* name;             // group 2 of the TABLE record
  const char* recordType;
  OdRxClass* (*tableClass)();
  NameIndex Context::*index;
};
const TableKind kTables[] = {
    {"BLOCK_RECORD", "BLOCK_RECORD", &OdDbBlockTable::desc, &Context::blocks},
    {"LAYER", "LAYER", &OdDbLayerTable::desc, &Context::layers},
    {"LTYPE", "LTYPE", &OdDbLinetypeTable::desc, &Context::linetypes},
    {"STYLE", "STYLE", &OdDbTextStyleTable::desc, &Context::styles},
    {"DIMSTYLE", "DIMSTYLE", &OdDbDimStyleTable::desc, &Context::dimstyles},
    {"APPID", "APPID", &OdDbRegAppTable::desc, &Context::regapps},
};
constexpr int kTableCount = int(std::size(kTables));

OdDbObjectId tableId(OdDbDatabase* db, int k) {
  switch (k) {
    case 0: return db->getBlockTableId();
    case 1: return db->getLayerTableId();
    case 2: return db->getLinetypeTableId();
    case 3: return db->getTextStyleTableId();
    case 4: return db->getDimStyleTableId();
    default: return db->getRegAppTableId();
  }
}

OdDbStub* stubOf(const OdDbObjectId& id) { return id.stub(); }

// Reads the class's fields of an object from a record (common entity
// properties, the class's own, extended data).
void readFields(RecordIO& io, OdDbObject* obj) {
  if (auto* e = odrxCast<OdDbEntity>(obj)) {
    entityCommonFields(io, e, nullptr);
    if (const ClassMapping* m = entityMapping(obj->isA())) m->fields(io, obj, nullptr);
    entityXdataFields(io, e, nullptr);
  } else if (const ClassMapping* m = recordMapping(obj->isA())) {
    m->fields(io, obj, nullptr);
    xdataFields(io, obj, nullptr, ownXdataApps(obj->isA()));
  }
}

// Writes the fields of `obj` that differ from `before` (Patch), or all of
// them (Create, `before` a default object).
void writeFields(RecordIO& io, OdDbObject* obj, const OdDbObject* before) {
  if (auto* e = odrxCast<OdDbEntity>(obj)) {
    auto* b = static_cast<const OdDbEntity*>(before);
    entityCommonFields(io, e, b);
    if (const ClassMapping* m = entityMapping(obj->isA())) m->fields(io, obj, before);
    entityXdataFields(io, e, b);
  } else if (const ClassMapping* m = recordMapping(obj->isA())) {
    m->fields(io, obj, before);
    xdataFields(io, obj, before, ownXdataApps(obj->isA()));
  }
}

QString typeName(const Record& r) { return QString::fromLatin1(r.type().toByteArray()); }

// ---------------------------------------------------------------------------
// Reading

class Reader {
 public:
  Reader(DrawingData& d, OdDbDatabase* db, QStringList* warnings) : m_d(d), m_ctx(d.ctx), m_db(db) {
    m_ctx.db = db;
    m_ctx.warnings = warnings;
  }
  void run();

 private:
  Section& section(int s) { return m_d.file.sections()[s]; }
  Record& record(int s, int i) { return section(s).records[i]; }
  [[noreturn]] void refuse(const Record& r, int index, const QString& what) {
    throw MapError{m_ctx.where(r, index) + QStringLiteral(": ") + what};
  }

  void readVersion();
  void scanHandles();
  void readPlotStyleNames();
  // Reads the TABLES section's records of the tables `want` accepts.
  void readTables(int s, bool (*want)(int k));
  void ensureTable(int k);
  OdDbSymbolTable* table(int k) { return static_cast<OdDbSymbolTable*>(m_tables[k].stub()->object); }
  void ensureTables();
  OdDbObjectId addImplicitRecord(int k, OdDbSymbolTableRecord* rec);
  OdDbObjectId missingRecord(NameIndex& index, const QString& name);
  void readBlocks(int s);
  void ensureLayouts();
  void readEntities(int s, int begin, int end, const OdDbObjectId& block, bool entitiesSection);
  OdDbObjectId readEntity(int s, int i, const OdDbObjectId& owner, QList<Record>* sequence, bool listed);
  OdDbObjectId addObject(OdDbObject* obj, const OdDbObjectId& owner, quint64 handle, int s, int i);
  void bind(int s, int i, const OdDbObjectId& id) { m_d.owners[size_t(s)][size_t(i)] = stubOf(id); }
  quint64 handleOf(int s, int i) const { return m_handles[size_t(s)][size_t(i)]; }

  DrawingData& m_d;
  Context& m_ctx;
  OdDbDatabase* m_db;
  OdDbObjectId m_tables[kTableCount];
  OdDbObjectId m_modelSpace, m_paperSpace;
  // Every record's handle (after the repairs), per section; 0 for none.
  std::vector<std::vector<quint64>> m_handles;
};

void Reader::readVersion() {
  File& f = m_d.file;
  const QByteArray version = f.version();
  m_ctx.release = releaseNumber(version);
  if (!version.isEmpty()) m_db->setOriginalFileVersion(OdString(QString::fromLatin1(version)));
  // Subclass markers and handles came with R13; R12 has handles when
  // $HANDLING is on.
  bool anyMarker = false;
  if (m_ctx.release == 0)
    for (const Section& s : f.sections())
      if (s.name == "ENTITIES" || s.name == "TABLES")
        for (const Record& r : s.records)
          if (r.find(100) > 0) {
            anyMarker = true;
            break;
          }
  m_ctx.markers = m_ctx.release >= 1012 || anyMarker;
  const Record* handling = f.headerVariable("$HANDLING");
  const int hi = handling ? handling->find(70, 1) : -1;
  m_ctx.handles = m_ctx.release >= 1012 || anyMarker || (hi >= 0 && handling->at(hi).integer() != 0);
}

// Every record's handle must be hexadecimal and unique. A handle already
// taken by an earlier record is replaced by a fresh one (the first record
// keeps it); $HANDSEED is raised above every handle in use.
void Reader::scanHandles() {
  File& f = m_d.file;
  struct Seen {
    quint64 handle;
    int s, i;
  };
  std::vector<Seen> all;
  all.reserve(size_t(f.tagCount() / 8));
  quint64 max = 0;
  m_handles.resize(size_t(f.sections().size()));
  for (int s = 0; s < f.sections().size(); ++s) {
    Section& sec = section(s);
    m_handles[size_t(s)].assign(size_t(sec.records.size()), 0);
    if (sec.name == "HEADER") continue;
    for (int i = 0; i < sec.records.size(); ++i) {
      const Record& r = sec.records[i];
      const int hi = r.handleIndex();
      if (hi < 0) continue;
      bool ok = false;
      const quint64 h = r.at(hi).handle(&ok);
      if (!ok) refuse(r, hi, QStringLiteral("handle '%1' of %2 is not hexadecimal").arg(r.str(hi).left(40), typeName(r)));
      if (h == 0) continue;
      all.push_back({h, s, i});
      m_handles[size_t(s)][size_t(i)] = h;
      max = qMax(max, h);
    }
  }
  std::stable_sort(all.begin(), all.end(), [](const Seen& a, const Seen& b) { return a.handle < b.handle; });
  std::vector<Seen> dups;
  for (size_t k = 1; k < all.size(); ++k)
    if (all[k].handle == all[k - 1].handle) dups.push_back(all[k]);
  std::sort(dups.begin(), dups.end(), [](const Seen& a, const Seen& b) { return a.s != b.s ? a.s < b.s : a.i < b.i; });
  for (const Seen& dup : dups) {
    const auto first = std::lower_bound(all.begin(), all.end(), dup.handle,
                                        [](const Seen& a, quint64 h) { return a.handle < h; });
    Record& r = record(dup.s, dup.i);
    const int hi = r.handleIndex();
    const QString at = m_ctx.where(r, hi);
    const QString firstAt = m_ctx.where(record(first->s, first->i), 0);
    r.setHandle(hi, ++max);
    m_handles[size_t(dup.s)][size_t(dup.i)] = max;
    m_ctx.warn(QStringLiteral("%1: handle %2 of %3 is already used by %4 at %5; given handle %6")
                   .arg(at, QString::number(dup.handle, 16).toUpper(), typeName(r),
                        typeName(record(first->s, first->i)), firstAt, QString::number(max, 16).toUpper()));
  }

  Record* seedVar = f.headerVariable("$HANDSEED");
  const int si = seedVar ? seedVar->find(5, 1) : -1;
  quint64 seed = 0;
  if (si >= 0) {
    bool ok = false;
    seed = seedVar->at(si).handle(&ok);
    if (!ok) {
      m_ctx.warn(QStringLiteral("%1: $HANDSEED '%2' is not hexadecimal; set above the handles in use")
                     .arg(m_ctx.where(*seedVar, si), seedVar->str(si).left(40)));
      seed = 0;
    }
    if (m_ctx.handles && seed <= max) {
      if (ok)
        m_ctx.warn(QStringLiteral("%1: $HANDSEED %2 is not above the handles in use (highest %3); set to %4")
                       .arg(m_ctx.where(*seedVar, si), QString::number(seed, 16).toUpper(),
                            QString::number(max, 16).toUpper(), QString::number(max + 1, 16).toUpper()));
      seed = max + 1;
      seedVar->setHandle(si, seed);
    }
  }
  m_d.handseed = seed;
  m_db->setHandseed(OdDbHandle(qMax(seed, max + 1)));
  // A file that says nothing about handles but has them keeps them.
  if (!m_ctx.handles && max > 0 && !f.headerVariable("$HANDLING")) m_ctx.handles = true;
}

// Plot style names: the ACAD_PLOTSTYLENAME dictionary maps each name to the
// handle of a placeholder object; entities refer to that handle (390).
void Reader::readPlotStyleNames() {
  const Section* objects = m_d.file.section("OBJECTS");
  if (!objects || objects->records.isEmpty()) return;
  auto entries = [](const Record& dict, auto&& each) {
    for (int i = 1; i + 1 < dict.size(); ++i)
      if (dict.at(i).code() == 3 && (dict.at(i + 1).code() == 350 || dict.at(i + 1).code() == 360))
        each(dict.str(i), dict.at(i + 1).handle());
  };
  const Record& root = objects->records.first();
  if (!root.isType("DICTIONARY")) return;
  quint64 plotStyles = 0;
  entries(root, [&](const QString& name, quint64 h) {
    if (name == QLatin1String("ACAD_PLOTSTYLENAME")) plotStyles = h;
  });
  if (!plotStyles) return;
  for (const Record& r : objects->records)
    if (r.handle() == plotStyles && r.isType("ACDBDICTIONARYWDFLT") | r.isType("DICTIONARY")) {
      entries(r, [&](const QString& name, quint64 h) {
        m_ctx.plotStyleNames.insert(h, name);
        m_ctx.plotStyleHandles.insert(name.toCaseFolded(), h);
      });
      break;
    }
}

void Reader::readTables(int s, bool (*want)(int k)) {
  Section& sec = section(s);
  int k = -1;  // the table being read
  for (int i = 0; i < sec.records.size(); ++i) {
    Record& r = sec.records[i];
    if (r.isType("TABLE")) {
      const int ni = r.find(2);
      const QByteArrayView name = ni >= 0 ? r.at(ni).trimmed() : QByteArrayView();
      k = -1;
      for (int t = 0; t < kTableCount; ++t)
        if (name == kTables[t].name && want(t)) k = t;
      if (k < 0) continue;
      if (!m_tables[k].isNull()) {
        m_ctx.warn(QStringLiteral("%1: a second %2 table; its records are read into the first")
                       .arg(m_ctx.where(r, 0), QString::fromLatin1(name.toByteArray())));
        bind(s, i, m_tables[k]);
        continue;
      }
      OdRxObjectPtr obj = kTables[k].tableClass()->create();
      m_tables[k] = addObject(static_cast<OdDbObject*>(obj.get()), OdDbObjectId(), handleOf(s, i), s, i);
      continue;
    }
    if (r.isType("ENDTAB")) {
      k = -1;
      continue;
    }
    if (k < 0) continue;  // a table the platform does not model
    if (r.type() != kTables[k].recordType) {
      m_ctx.warn(QStringLiteral("%1: %2 in the %3 table kept as it is")
                     .arg(m_ctx.where(r, 0), typeName(r), QString::fromLatin1(kTables[k].name)));
      continue;
    }
    const ClassMapping* m = recordMapping(r.type());
    OdRxObjectPtr obj = m->desc()->create();
    auto* rec = static_cast<OdDbSymbolTableRecord*>(obj.get());
    RecordIO io(m_ctx, r, RecordIO::Read);
    readFields(io, rec);
    const QString name = rec->getName().qstring();
    const OdDbObjectId id = addObject(rec, m_tables[k], handleOf(s, i), s, i);
    table(k)->appendInternal(id);
    // Text styles of shape files have no name; nothing refers to them by it.
    if (!name.isEmpty() && !(m_ctx.*kTables[k].index).add(name, id))
      m_ctx.warn(QStringLiteral("%1: a second %2 named '%3'; references to the name go to the first")
                     .arg(m_ctx.where(r, 0), typeName(r), name));
  }
}

OdDbObjectId Reader::addImplicitRecord(int k, OdDbSymbolTableRecord* rec) {
  ensureTable(k);
  const OdDbObjectId id = m_db->addOdDbObject(rec, m_tables[k]);
  rec->setModified(false);
  table(k)->appendInternal(id);
  (m_ctx.*kTables[k].index).add(rec->getName().qstring(), id);
  m_d.implicit.insert(stubOf(id));
  return id;
}

void Reader::ensureTable(int k) {
  if (!m_tables[k].isNull()) return;
  OdRxObjectPtr obj = kTables[k].tableClass()->create();
  m_tables[k] = m_db->addOdDbObject(static_cast<OdDbObject*>(obj.get()));
  static_cast<OdDbObject*>(obj.get())->setModified(false);
  m_d.implicit.insert(stubOf(m_tables[k]));
}

// Tables and records every drawing has; made in memory when the file lacks them.
void Reader::ensureTables() {
  for (int k = 0; k < kTableCount; ++k) ensureTable(k);
  m_db->setTableIdsInternal(m_tables[0], m_tables[1], m_tables[2], m_tables[3], m_tables[4], m_tables[5]);
  for (const char* name : {"ByBlock", "ByLayer", "Continuous"})
    if (m_ctx.linetypes.find(QString::fromLatin1(name)).isNull()) {
      auto lt = OdDbLinetypeTableRecord::createObject();
      lt->setName(name);
      addImplicitRecord(2, lt.get());
    }
  if (m_ctx.layers.find(QStringLiteral("0")).isNull()) {
    auto layer = OdDbLayerTableRecord::createObject();
    layer->setName("0");
    layer->setLinetypeObjectId(m_ctx.linetypes.find(QStringLiteral("Continuous")));
    addImplicitRecord(1, layer.get());
  }
  if (m_ctx.styles.find(QStringLiteral("Standard")).isNull()) {
    auto style = OdDbTextStyleTableRecord::createObject();
    style->setName("Standard");
    addImplicitRecord(3, style.get());
  }
  if (m_ctx.dimstyles.find(QStringLiteral("Standard")).isNull()) {
    auto dim = OdDbDimStyleTableRecord::createObject();
    dim->setName("Standard");
    addImplicitRecord(4, dim.get());
  }
  if (m_ctx.regapps.find(QStringLiteral("ACAD")).isNull()) {
    auto app = OdDbRegAppTableRecord::createObject();
    app->setName("ACAD");
    addImplicitRecord(5, app.get());
  }
  m_db->setCLAYER(m_ctx.layers.find(QStringLiteral("0")));
  m_db->setTEXTSTYLE(m_ctx.styles.find(QStringLiteral("Standard")));
  m_db->setDIMSTYLE(m_ctx.dimstyles.find(QStringLiteral("Standard")));
}

// A layer or linetype an entity names but the file's table lacks (R12 files
// often leave them out): made in memory, as CAD programs do on loading.
OdDbObjectId Reader::missingRecord(NameIndex& index, const QString& name) {
  if (&index == &m_ctx.layers) {
    auto layer = OdDbLayerTableRecord::createObject();
    layer->setName(name);
    layer->setLinetypeObjectId(m_ctx.linetypes.find(QStringLiteral("Continuous")));
    return addImplicitRecord(1, layer.get());
  }
  if (&index == &m_ctx.linetypes) {
    auto lt = OdDbLinetypeTableRecord::createObject();
    lt->setName(name);
    return addImplicitRecord(2, lt.get());
  }
  return {};
}

void Reader::readBlocks(int s) {
  Section& sec = section(s);
  for (int i = 0; i < sec.records.size();) {
    Record& r = sec.records[i];
    if (!r.isType("BLOCK")) {
      if (!r.isType("ENDBLK"))
        m_ctx.warn(QStringLiteral("%1: %2 outside a block definition kept as it is").arg(m_ctx.where(r, 0), typeName(r)));
      ++i;
      continue;
    }
    int end = i + 1;
    while (end < sec.records.size() && !sec.records[end].isType("ENDBLK") && !sec.records[end].isType("BLOCK")) ++end;
    const int ni = r.find(2);
    const QString name = blockName(ni >= 0 ? r.str(ni) : QString());
    if (end >= sec.records.size() || !sec.records[end].isType("ENDBLK"))
      refuse(r, 0, QStringLiteral("BLOCK '%1' is not closed by ENDBLK").arg(name));
    if (name.isEmpty()) refuse(r, 0, QStringLiteral("BLOCK without a name (group 2)"));

    OdDbObjectId id = m_ctx.blocks.find(name);
    if (id.isNull()) {
      // No BLOCK_RECORD (R12): the BLOCK record is the block's own.
      auto btr = OdDbBlockTableRecord::createObject();
      btr->setName(name);
      id = addObject(btr.get(), m_tables[0], handleOf(s, i), s, i);
      table(0)->appendInternal(id);
      m_ctx.blocks.add(name, id);
    } else {
      bind(s, i, id);
    }
    {
      OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
      auto* btr = static_cast<OdDbBlockTableRecord*>(obj.get());
      const bool wasModified = btr->isModified();
      RecordIO io(m_ctx, r, RecordIO::Read);
      blockBeginFields(io, btr, nullptr);
      btr->setModified(wasModified);
    }
    readEntities(s, i + 1, end, id, false);
    bind(s, end, id);
    i = end + 1;
  }
}

void Reader::ensureLayouts() {
  auto ensure = [&](const OdString& name) {
    OdDbObjectId id = m_ctx.blocks.find(name.qstring());
    if (!id.isNull()) return id;
    auto btr = OdDbBlockTableRecord::createObject();
    btr->setName(name);
    id = m_db->addOdDbObject(btr.get(), m_tables[0]);
    btr->setModified(false);
    table(0)->appendInternal(id);
    m_ctx.blocks.add(name.qstring(), id);
    m_d.implicit.insert(stubOf(id));
    return id;
  };
  m_modelSpace = ensure(OdDbBlockTableRecord::modelSpaceStr());
  m_paperSpace = ensure(OdDbBlockTableRecord::paperSpaceStr());
}

OdDbObjectId Reader::addObject(OdDbObject* obj, const OdDbObjectId& owner, quint64 handle, int s, int i) {
  const OdDbObjectId id = m_db->addOdDbObject(obj, owner, OdDbHandle(handle));
  obj->setModified(false);
  bind(s, i, id);
  m_d.bound.insert(stubOf(id));
  return id;
}

OdDbObjectId Reader::readEntity(int s, int i, const OdDbObjectId& owner, QList<Record>* sequence, bool listed) {
  Record& r = record(s, i);
  OdRxObjectPtr obj = entityClass(r)->create();
  auto* e = static_cast<OdDbEntity*>(obj.get());
  RecordIO io(m_ctx, r, RecordIO::Read);
  io.setSequence(sequence);
  readFields(io, e);
  const OdDbObjectId id = addObject(e, owner, handleOf(s, i), s, i);
  if (listed) static_cast<OdDbBlockTableRecord*>(owner.stub()->object)->appendEntityIdInternal(id);
  return id;
}

void Reader::readEntities(int s, int begin, int end, const OdDbObjectId& block, bool entitiesSection) {
  Section& sec = section(s);
  for (int i = begin; i < end;) {
    Record& r = sec.records[i];
    const QByteArrayView type = r.type();
    if (type == "VERTEX" || type == "SEQEND" || type == "ATTRIB") {
      m_ctx.warn(QStringLiteral("%1: %2 without the entity it belongs to kept as it is")
                     .arg(m_ctx.where(r, 0), typeName(r)));
      ++i;
      continue;
    }
    OdDbObjectId owner = block;
    if (entitiesSection) {
      const int pi = r.find(67);
      owner = pi >= 0 && r.at(pi).integer() == 1 ? m_paperSpace : m_modelSpace;
    }
    int next = i + 1;
    if (type == "POLYLINE") {
      // VERTEX records up to SEQEND belong to the polyline.
      while (next < end && sec.records[next].isType("VERTEX")) ++next;
      if (next >= end || !sec.records[next].isType("SEQEND"))
        refuse(next < end ? sec.records[next] : r, 0,
               QStringLiteral("POLYLINE (handle %1) is not closed by SEQEND").arg(QString::number(r.handle(), 16).toUpper()));
      QList<Record> vertices = sec.records.mid(i + 1, next - i - 1);
      const OdDbObjectId id = readEntity(s, i, owner, &vertices, true);
      for (int k = i + 1; k <= next; ++k) bind(s, k, id);
      i = next + 1;
      continue;
    }
    const OdDbObjectId id = readEntity(s, i, owner, nullptr, true);
    if (type == "INSERT") {
      // ATTRIB records up to SEQEND: the block reference's attributes.
      bool attributes = false;
      while (next < end && sec.records[next].isType("ATTRIB")) {
        readEntity(s, next, id, nullptr, false);
        attributes = true;
        ++next;
      }
      if (next < end && sec.records[next].isType("SEQEND")) {
        bind(s, next, id);
        ++next;
      } else if (attributes) {
        refuse(next < end ? sec.records[next] : r, 0,
               QStringLiteral("INSERT (handle %1) has attributes not closed by SEQEND").arg(QString::number(r.handle(), 16).toUpper()));
      }
    }
    i = next;
  }
}

void Reader::run() {
  File& f = m_d.file;
  m_d.owners.resize(size_t(f.sections().size()));
  for (int s = 0; s < f.sections().size(); ++s) m_d.owners[size_t(s)].assign(size_t(section(s).records.size()), nullptr);
  bool known = false;
  for (const Section& s : f.sections())
    known = known || s.name == "HEADER" || s.name == "TABLES" || s.name == "BLOCKS" || s.name == "ENTITIES";
  if (!known)
    throw MapError{QStringLiteral("line 1: no HEADER, TABLES, BLOCKS or ENTITIES section: not a drawing")};

  readVersion();
  scanHandles();
  size_t records = 0;
  for (const Section& s : f.sections()) records += size_t(s.records.size());
  m_db->reserveObjects(records);
  m_d.bound.reserve(records);
  readPlotStyleNames();
  m_ctx.missingRecord = [this](NameIndex& index, const QString& name) { return missingRecord(index, name); };
  // Linetypes first: layers name them.
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "TABLES") readTables(s, [](int k) { return k == 2; });
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "TABLES") readTables(s, [](int k) { return k != 2; });
  ensureTables();
  m_ctx.byLayer = OdDbObjectId();  // ByLayer may have been made just now
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "BLOCKS") readBlocks(s);
  ensureLayouts();
  int entitySections = 0;
  for (int s = 0; s < f.sections().size(); ++s) {
    if (section(s).name != "ENTITIES") continue;
    if (++entitySections == 2)
      m_ctx.warn(QStringLiteral("%1: more than one ENTITIES section; the entities of each are read")
                     .arg(m_ctx.where(section(s).head, 0)));
    readEntities(s, 0, section(s).records.size(), m_modelSpace, true);
  }
  readHeader(m_ctx);
  m_ctx.missingRecord = nullptr;
}

// ---------------------------------------------------------------------------
// Writing

// An object is gone when it or what owns it was erased.
bool gone(const OdDbObject* o) {
  if (o->isErased()) return true;
  OdDbObjectId owner = o->ownerId();
  for (int depth = 0; depth < 4 && owner.isValid(); ++depth) {
    if (owner.isErased()) return true;
    owner = owner.stub()->object->ownerId();
  }
  return false;
}

class Writer {
 public:
  // Brings `d`, a copy of `kept`, up to date with the database.
  Writer(DrawingData& d, const DrawingData& kept, OdDbDatabase* db) : m_d(d), m_kept(kept), m_ctx(d.ctx), m_db(db) {}
  void run();
  // Objects that got records, lost them, or were made in memory and now have them.
  std::vector<const OdDbStub*> m_added, m_dropped, m_madeReal;

 private:
  struct Pending {
    std::vector<OdDbObjectId> records[kTableCount];        // new table records
    std::vector<std::pair<OdDbStub*, std::vector<OdDbObjectId>>> entities;  // new entities by block
    std::vector<OdDbObjectId> blocks;                     // new blocks
  };
  bool isBound(const OdDbStub* s) const { return m_kept.bound.count(s) || m_kept.implicit.count(s); }
  std::vector<OdDbObjectId>* newEntitiesOf(OdDbStub* block);
  void collectNew();
  void registerApps();
  void collectRenames();
  bool needsWalk(int s) const;
  void walk(int s);
  void patch(Record& r, OdDbStub* stub, QList<Record>* sequence);
  void rename(Record& r);
  QList<Record> createEntity(const OdDbObjectId& id, const OdDbObjectId& block, bool paperFlag);
  Record createRecord(const OdDbObjectId& id, int k);
  Record createBlockBegin(OdDbBlockTableRecord* btr);
  Record createBlockEnd(OdDbBlockTableRecord* btr);
  void appendNewEntities(QList<Record>& out, std::vector<OdDbStub*>& owners, OdDbStub* block, bool paperFlag);
  quint64 newHandle() { return m_ctx.newHandle(); }
  void noteHandle(quint64 h) { m_maxWritten = qMax(m_maxWritten, h); }
  void bindNew(std::vector<OdDbStub*>& owners, const OdDbObjectId& id) {
    owners.push_back(stubOf(id));
    m_added.push_back(stubOf(id));
  }

  DrawingData& m_d;
  const DrawingData& m_kept;
  Context& m_ctx;
  OdDbDatabase* m_db;
  Pending m_new;
  QHash<QString, QString> m_layerRenames, m_linetypeRenames;  // case-folded old name -> new name
  quint64 m_maxWritten = 0;
  int m_lastEntities = -1;  // the ENTITIES section new entities go to
};

std::vector<OdDbObjectId>* Writer::newEntitiesOf(OdDbStub* block) {
  for (auto& [b, list] : m_new.entities)
    if (b == block) return &list;
  return nullptr;
}

void Writer::collectNew() {
  for (int k = 0; k < kTableCount; ++k) {
    OdDbObjectPtr t = tableId(m_db, k).openObject();
    auto* table = odrxCast<OdDbSymbolTable>(t.get());
    if (!table) continue;
    for (const OdDbObjectId& id : table->recordIds()) {
      if (id.isErased() || m_kept.bound.count(id.stub())) continue;
      if (m_kept.implicit.count(id.stub())) {
        // A record made in memory gets one of its own once it is edited.
        if (k == 0 || !id.stub()->object->isModified()) continue;
        m_madeReal.push_back(id.stub());
      }
      m_new.records[k].push_back(id);
      if (k == 0) m_new.blocks.push_back(id);
    }
  }
  OdDbObjectPtr bt = m_db->getBlockTableId().openObject();
  auto* blocks = odrxCast<OdDbSymbolTable>(bt.get());
  if (!blocks) return;
  for (const OdDbObjectId& bid : blocks->recordIds()) {
    if (bid.isErased()) continue;
    OdDbObjectPtr b = bid.openObject();
    std::vector<OdDbObjectId> list;
    for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(b.get())->entityIds(true))
      if (!id.isErased() && !isBound(id.stub())) list.push_back(id);
    if (!list.empty()) m_new.entities.emplace_back(bid.stub(), std::move(list));
  }
}

// Extended data needs its application in the APPID table.
void Writer::registerApps() {
  QSet<QString> apps;
  auto note = [&](OdDbObject* o) {
    for (const OdString& a : o->xDataApps()) apps.insert(a.qstring());
    if (auto* e = odrxCast<OdDbEntity>(o); e && !e->hyperlinks().isEmpty()) apps.insert(QStringLiteral("PE_URL"));
    if (auto* l = odrxCast<OdDbLayerTableRecord>(o); l && !ownXdataApps(l->isA()).isEmpty()) {
      const OdCmTransparency opaque = OdDbLayerTableRecord::createObject()->transparency();
      if (!(l->transparency() == opaque)) apps.insert(ownXdataApps(l->isA()).first());
    }
  };
  for (const auto& owners : m_d.owners)
    for (OdDbStub* s : owners)
      if (s && s->object && s->object->isModified()) {
        OdDbObjectPtr o = OdDbObjectId(s).openObject(OdDb::kForRead, true);
        note(o.get());
      }
  for (const auto& [block, list] : m_new.entities)
    for (const OdDbObjectId& id : list) note(id.openObject().get());
  for (int k = 0; k < kTableCount; ++k)
    for (const OdDbObjectId& id : m_new.records[k]) note(id.openObject().get());
  for (const QString& app : apps) {
    OdDbObjectPtr t = m_db->getRegAppTableId().openObject();
    if (static_cast<OdDbSymbolTable*>(t.get())->has(OdString(app))) continue;
    t.release();
    m_new.records[5].push_back(m_db->newRegApp(app));
  }
}

// Layers and linetypes are named in other records: a renamed one is renamed
// there too. Other records' names are not followed, so renaming them is refused.
void Writer::collectRenames() {
  Section* tables = m_d.file.section("TABLES");
  if (!tables) return;
  const int s = int(tables - m_d.file.sections().data());
  for (int i = 0; i < tables->records.size(); ++i) {
    OdDbStub* stub = m_d.owners[size_t(s)][size_t(i)];
    if (!stub || !stub->object || !stub->object->isModified()) continue;
    const Record& r = tables->records[i];
    auto* rec = odrxCast<OdDbSymbolTableRecord>(stub->object);
    if (!rec || rec->isErased() || r.isType("TABLE")) continue;
    const int ni = r.find(2);
    if (ni < 0) continue;
    OdDbObjectPtr open = OdDbObjectId(stub).openObject();
    const QString was = r.str(ni).trimmed(), now = rec->getName().qstring();
    if (was == now || blockName(was) == now) continue;
    if (r.isType("LAYER"))
      m_layerRenames.insert(was.toCaseFolded(), now);
    else if (r.isType("LTYPE"))
      m_linetypeRenames.insert(was.toCaseFolded(), now);
    else
      throw MapError{QStringLiteral("%1 '%2' renamed to '%3': renaming it is not supported when saving")
                         .arg(typeName(r), was, now)};
  }
}

void Writer::rename(Record& r) {
  auto fix = [&](int code, const QHash<QString, QString>& renames) {
    if (renames.isEmpty()) return;
    const int i = r.find(code);
    if (i < 0 || r.at(i).code() != code) return;
    const auto it = renames.find(r.str(i).trimmed().toCaseFolded());
    if (it != renames.end()) r.setString(i, it.value());
  };
  fix(8, m_layerRenames);
  fix(6, m_linetypeRenames);
}

void Writer::patch(Record& r, OdDbStub* stub, QList<Record>* sequence) {
  OdDbObjectPtr obj = OdDbObjectId(stub).openObject(OdDb::kForRead, true);
  // Only an object's own record is patched: not the SEQEND of a block
  // reference, the ENDBLK of a block, the TABLE record of a table.
  auto* btr = odrxCast<OdDbBlockTableRecord>(obj.get());
  const bool own = btr ? r.isType("BLOCK") || r.isType("BLOCK_RECORD")
                 : obj->isKindOf(OdDbEntity::desc()) ? entityClass(r) == obj->isA()
                                                     : recordMapping(r.type()) == recordMapping(obj->isA()) &&
                                                           recordMapping(obj->isA()) != nullptr;
  if (!own) return;
  // The record as it reads now, in an object of the same class.
  OdRxObjectPtr scratch = obj->isA()->create();
  auto* before = static_cast<OdDbObject*>(scratch.get());
  m_ctx.quiet = true;
  if (btr && r.isType("BLOCK")) {
    auto* was = static_cast<OdDbBlockTableRecord*>(before);
    RecordIO in(m_ctx, r, RecordIO::Read);
    blockBeginFields(in, was, nullptr);
    RecordIO out(m_ctx, r, RecordIO::Patch);
    blockBeginFields(out, btr, was);
  } else {
    RecordIO in(m_ctx, r, RecordIO::Read);
    in.setSequence(sequence);
    readFields(in, before);
    RecordIO out(m_ctx, r, RecordIO::Patch);
    out.setSequence(sequence);
    writeFields(out, obj.get(), before);
  }
  m_ctx.quiet = false;
}

QList<Record> Writer::createEntity(const OdDbObjectId& id, const OdDbObjectId& block, bool paperFlag) {
  OdDbObjectPtr obj = id.openObject();
  auto* e = static_cast<OdDbEntity*>(obj.get());
  const ClassMapping* m = entityMapping(e->isA());
  const QString handle = id.getHandle().ascii().qstring();
  if (!m)
    throw MapError{QStringLiteral("the new %1 (handle %2) cannot be written: its data is not modelled")
                       .arg(e->isA()->name().qstring(), handle)};
  if (m_ctx.release && m_ctx.release < m->minRelease)
    throw MapError{QStringLiteral("the new %1 (handle %2) cannot be written: release AC%3 has no %1")
                       .arg(QString::fromLatin1(m->dxfName), handle)
                       .arg(m_ctx.release)};
  Record r = m_d.file.newRecord(m->dxfName);
  if (m_ctx.handles) {
    r.setHandle(r.append(5), id.getHandle().value());
    noteHandle(id.getHandle().value());
  }
  if (m_ctx.markers) {
    if (m_ctx.handles) r.setHandle(r.append(330), block.getHandle().value());
    r.setRaw(r.append(100), "AcDbEntity");
  }
  if (paperFlag) r.setInteger(r.append(67), 1);
  OdRxObjectPtr def = e->isA()->create();
  QList<Record> sequence;
  {
    RecordIO io(m_ctx, r, RecordIO::Create);
    io.setSequence(&sequence);
    writeFields(io, e, static_cast<OdDbObject*>(def.get()));
  }
  QList<Record> out{r};
  if (m->sequence) {
    // Its VERTEX records, then SEQEND.
    out += sequence;
    Record end = m_d.file.newRecord("SEQEND");
    if (m_ctx.handles) end.setHandle(end.append(5), m_ctx.newHandle());
    if (m_ctx.markers) {
      if (m_ctx.handles) end.setHandle(end.append(330), id.getHandle().value());
      end.setRaw(end.append(100), "AcDbEntity");
    }
    end.setString(end.append(8), recordName(e->layerId()).isEmpty() ? QStringLiteral("0") : recordName(e->layerId()));
    out.append(end);
  }
  return out;
}

Record Writer::createRecord(const OdDbObjectId& id, int k) {
  OdDbObjectPtr obj = id.openObject();
  const ClassMapping* m = recordMapping(obj->isA());
  if (!m || (m_ctx.release && m_ctx.release < m->minRelease))
    throw MapError{QStringLiteral("the new %1 '%2' cannot be written to release AC%3")
                       .arg(QString::fromLatin1(kTables[k].recordType), recordName(id))
                       .arg(m_ctx.release)};
  Record r = m_d.file.newRecord(m->dxfName);
  if (m_ctx.handles) {
    r.setHandle(r.append(k == 4 && m_ctx.markers ? 105 : 5), id.getHandle().value());
    noteHandle(id.getHandle().value());
  }
  if (m_ctx.markers) {
    if (m_ctx.handles) r.setHandle(r.append(330), tableId(m_db, k).getHandle().value());
    r.setRaw(r.append(100), "AcDbSymbolTableRecord");
  }
  OdRxObjectPtr def = obj->isA()->create();
  RecordIO io(m_ctx, r, RecordIO::Create);
  writeFields(io, obj.get(), static_cast<OdDbObject*>(def.get()));
  return r;
}

Record Writer::createBlockBegin(OdDbBlockTableRecord* btr) {
  Record r = m_d.file.newRecord("BLOCK");
  if (m_ctx.handles) {
    // Without BLOCK_RECORD (R12) the BLOCK record is the block's own.
    const quint64 h = m_ctx.markers ? newHandle() : btr->getDbHandle().value();
    r.setHandle(r.append(5), h);
    noteHandle(h);
  }
  if (m_ctx.markers) {
    if (m_ctx.handles) r.setHandle(r.append(330), btr->getDbHandle().value());
    r.setRaw(r.append(100), "AcDbEntity");
  }
  r.setString(r.append(8), QStringLiteral("0"));
  OdRxObjectPtr def = OdDbBlockTableRecord::desc()->create();
  RecordIO io(m_ctx, r, RecordIO::Create);
  blockBeginFields(io, btr, static_cast<OdDbBlockTableRecord*>(def.get()));
  return r;
}

Record Writer::createBlockEnd(OdDbBlockTableRecord* btr) {
  Record r = m_d.file.newRecord("ENDBLK");
  if (m_ctx.handles) {
    const quint64 h = newHandle();
    r.setHandle(r.append(5), h);
    noteHandle(h);
  }
  if (m_ctx.markers) {
    if (m_ctx.handles) r.setHandle(r.append(330), btr->getDbHandle().value());
    r.setRaw(r.append(100), "AcDbEntity");
  }
  r.setString(r.append(8), QStringLiteral("0"));
  if (m_ctx.markers) r.setRaw(r.append(100), "AcDbBlockEnd");
  return r;
}

void Writer::appendNewEntities(QList<Record>& out, std::vector<OdDbStub*>& owners, OdDbStub* block, bool paperFlag) {
  std::vector<OdDbObjectId>* list = newEntitiesOf(block);
  if (!list) return;
  for (const OdDbObjectId& id : *list) {
    const QList<Record> records = createEntity(id, OdDbObjectId(block), paperFlag);
    out += records;
    for (int k = 0; k < records.size(); ++k) owners.push_back(stubOf(id));
    m_added.push_back(stubOf(id));
  }
  list->clear();
}

void Writer::walk(int s) {
  Section& sec = m_d.file.sections()[s];
  std::vector<OdDbStub*>& owners = m_d.owners[size_t(s)];
  const bool isTables = sec.name == "TABLES", isBlocks = sec.name == "BLOCKS";
  const bool isEntities = sec.name == "ENTITIES", renames = !m_layerRenames.isEmpty() || !m_linetypeRenames.isEmpty();
  const OdDbObjectId model = m_db->getModelSpaceId(), paper = m_db->getPaperSpaceId();

  QList<Record> out;
  std::vector<OdDbStub*> outOwners;
  out.reserve(sec.records.size());
  outOwners.reserve(owners.size());
  int table = -1;          // TABLES: the table being walked
  OdDbStub* block = nullptr;  // BLOCKS: the block being walked
  for (int i = 0; i < sec.records.size(); ++i) {
    Record r = sec.records[i];
    OdDbStub* stub = owners[size_t(i)];
    if (isTables && r.isType("TABLE")) {
      table = -1;
      for (int k = 0; k < kTableCount; ++k)
        if (stub && stub == tableId(m_db, k).stub()) table = k;
    }
    if (isTables && r.isType("ENDTAB") && table >= 0) {
      for (const OdDbObjectId& id : m_new.records[table]) {
        out.append(createRecord(id, table));
        bindNew(outOwners, id);
      }
      m_new.records[table].clear();
    }
    if (isBlocks && r.isType("BLOCK")) block = stub;
    if (isBlocks && r.isType("ENDBLK") && block && OdDbObjectId(block) != model && OdDbObjectId(block) != paper)
      appendNewEntities(out, outOwners, block, false);

    if (stub && stub->object && gone(stub->object)) {
      m_dropped.push_back(stub);
      continue;
    }
    if (stub && stub->object && stub->object->isModified() && (i == 0 || owners[size_t(i - 1)] != stub ||
                                                               r.isType("BLOCK") || r.isType("ATTRIB"))) {
      // An object's own records: the record and its VERTEX records.
      int n = i + 1;
      while (n < sec.records.size() && owners[size_t(n)] == stub && sec.records[n].isType("VERTEX")) ++n;
      QList<Record> sequence = sec.records.mid(i + 1, n - i - 1);
      patch(r, stub, &sequence);
      out.append(r);
      outOwners.push_back(stub);
      for (int k = 0; k < sequence.size(); ++k) {
        if (renames) rename(sequence[k]);
        out.append(sequence[k]);
        outOwners.push_back(stub);
      }
      i = n - 1;
      if (renames) rename(out.last());
      continue;
    }
    if (renames && (isBlocks || isEntities || r.isType("LAYER"))) rename(r);
    out.append(r);
    outOwners.push_back(stub);
  }
  if (isEntities && s == m_lastEntities) {
    appendNewEntities(out, outOwners, model.stub(), false);
    appendNewEntities(out, outOwners, paper.stub(), true);
  }
  if (isBlocks) {
    // New blocks: BLOCK, their entities, ENDBLK.
    for (const OdDbObjectId& id : m_new.blocks) {
      OdDbObjectPtr b = id.openObject();
      auto* btr = static_cast<OdDbBlockTableRecord*>(b.get());
      out.append(createBlockBegin(btr));
      bindNew(outOwners, id);
      if (id != model && id != paper) appendNewEntities(out, outOwners, id.stub(), false);
      out.append(createBlockEnd(btr));
      bindNew(outOwners, id);
    }
    m_new.blocks.clear();
  }
  sec.records = std::move(out);
  owners = std::move(outOwners);
}


// Whether a section has anything to bring up to date.
bool Writer::needsWalk(int s) const {
  const Section& sec = m_d.file.sections()[s];
  if (!m_layerRenames.isEmpty() || !m_linetypeRenames.isEmpty()) return true;
  if (sec.name == "TABLES")
    for (const auto& list : m_new.records)
      if (!list.empty()) return true;
  if (sec.name == "BLOCKS" && (!m_new.blocks.empty() || !m_new.entities.empty())) return true;
  if (s == m_lastEntities && !m_new.entities.empty()) return true;
  for (const OdDbStub* stub : m_d.owners[size_t(s)])
    if (stub && stub->object && (stub->object->isModified() || gone(stub->object))) return true;
  return false;
}

void Writer::run() {
  collectNew();
  registerApps();
  collectRenames();
  patchHeader(m_ctx);
  QList<Section>& sections = m_d.file.sections();
  for (int s = 0; s < sections.size(); ++s)
    if (sections[s].name == "ENTITIES") m_lastEntities = s;
  const OdDbObjectId model = m_db->getModelSpaceId(), paper = m_db->getPaperSpaceId();
  if (m_lastEntities < 0 && (newEntitiesOf(model.stub()) || newEntitiesOf(paper.stub()))) {
    // A drawing without ENTITIES section gets one after the sections that
    // precede it.
    int at = 0;
    for (int s = 0; s < sections.size(); ++s)
      if (sections[s].name == "HEADER" || sections[s].name == "CLASSES" || sections[s].name == "TABLES" ||
          sections[s].name == "BLOCKS")
        at = s + 1;
    m_d.file.addSection("ENTITIES");
    sections.move(sections.size() - 1, at);
    m_d.owners.insert(m_d.owners.begin() + at, std::vector<OdDbStub*>());
    m_lastEntities = at;
  }
  for (int s = 0; s < sections.size(); ++s)
    if (needsWalk(s)) walk(s);

  for (int k = 0; k < kTableCount; ++k)
    if (!m_new.records[k].empty() && (k != 0 || m_ctx.markers))
      throw MapError{QStringLiteral("the new %1 '%2' cannot be written: the drawing has no %3 table")
                         .arg(QString::fromLatin1(kTables[k].recordType), recordName(m_new.records[k].front()),
                              QString::fromLatin1(kTables[k].name))};
  for (const auto& [block, list] : m_new.entities)
    if (!list.empty())
      throw MapError{QStringLiteral("the new entities of block '%1' cannot be written: the drawing has no %2")
                         .arg(recordName(OdDbObjectId(block)),
                              OdDbObjectId(block) == model || OdDbObjectId(block) == paper
                                  ? QStringLiteral("ENTITIES section")
                                  : QStringLiteral("BLOCK record for it"))};
  if (!m_new.blocks.empty())
    throw MapError{QStringLiteral("the new block '%1' cannot be written: the drawing has no BLOCKS section")
                       .arg(recordName(m_new.blocks.front()))};

  // $HANDSEED stays above every handle written.
  m_maxWritten = qMax(m_maxWritten, m_ctx.maxNewHandle);
  if (m_ctx.handles && m_maxWritten && m_maxWritten + 1 > m_d.handseed) {
    if (Record* var = m_d.file.headerVariable("$HANDSEED")) {
      const int i = var->find(5, 1);
      if (i >= 0) {
        var->setHandle(i, m_db->handseed().value());
        m_d.handseed = m_db->handseed().value();
      }
    }
  }
}

void reindex(DrawingData& d, OdDbDatabase* db);

// A database that was not read from a file is written as an AC1015 drawing:
// an empty one whose tables are the database's, into which every object
// then goes as a new record.
OdSmartPtr<DrawingData> newDrawingData(OdDbDatabase* db) {
  QByteArray t;
  auto tag = [&](int code, const QByteArray& value) {
    const QByteArray c = QByteArray::number(code);
    t += QByteArray(qMax<qsizetype>(0, 3 - c.size()), ' ') + c + "\r\n" + value + "\r\n";
  };
  auto handle = [](quint64 h) { return QByteArray::number(h, 16).toUpper(); };
  auto fresh = [&] {
    const quint64 h = db->handseed().value();
    db->setHandseed(OdDbHandle(h + 1));
    return h;
  };
  const quint64 dictionary = fresh();
  tag(0, "SECTION"); tag(2, "HEADER");
  tag(9, "$ACADVER"); tag(1, "AC1015");
  tag(9, "$DWGCODEPAGE"); tag(3, "ANSI_1252");
  tag(9, "$HANDSEED"); tag(5, handle(db->handseed().value() + 16));
  tag(0, "ENDSEC");
  tag(0, "SECTION"); tag(2, "CLASSES"); tag(0, "ENDSEC");
  tag(0, "SECTION"); tag(2, "TABLES");
  for (const char* name : {"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"}) {
    quint64 h = 0;
    for (int k = 0; k < kTableCount; ++k)
      if (QByteArrayView(name) == kTables[k].name) h = tableId(db, k).getHandle().value();
    tag(0, "TABLE"); tag(2, name); tag(5, handle(h ? h : fresh())); tag(330, "0");
    tag(100, "AcDbSymbolTable"); tag(70, "     0");
    if (QByteArrayView(name) == "DIMSTYLE") { tag(100, "AcDbDimStyleTable"); tag(71, "     0"); }
    tag(0, "ENDTAB");
  }
  tag(0, "ENDSEC");
  tag(0, "SECTION"); tag(2, "BLOCKS"); tag(0, "ENDSEC");
  tag(0, "SECTION"); tag(2, "ENTITIES"); tag(0, "ENDSEC");
  tag(0, "SECTION"); tag(2, "OBJECTS");
  tag(0, "DICTIONARY"); tag(5, handle(dictionary)); tag(330, "0"); tag(100, "AcDbDictionary"); tag(281, "     1");
  tag(0, "ENDSEC");
  tag(0, "EOF");

  OdSmartPtr<DrawingData> d(new DrawingData);
  QString error;
  File::read(t, d->file, error);
  d->ctx.db = db;
  d->ctx.release = 1015;
  d->owners.resize(size_t(d->file.sections().size()));
  for (int s = 0; s < d->file.sections().size(); ++s) {
    const Section& sec = d->file.sections()[s];
    d->owners[size_t(s)].assign(size_t(sec.records.size()), nullptr);
    for (int i = 0; i < sec.records.size(); ++i)
      for (int k = 0; k < kTableCount; ++k)
        if (sec.records[i].isType("TABLE") && sec.records[i].handle() == tableId(db, k).getHandle().value()) {
          d->owners[size_t(s)][size_t(i)] = tableId(db, k).stub();
          d->bound.insert(tableId(db, k).stub());
        }
  }
  if (const Record* seed = d->file.headerVariable("$HANDSEED")) d->handseed = seed->at(1).handle();
  db->setOriginalFileVersion("AC1015");
  reindex(*d, db);
  return d;
}

bool writeImpl(OdDbDatabase* db, QByteArray& out, QString& error) {
  if (!db) {
    error = QStringLiteral("no drawing to write");
    return false;
  }
  OdSmartPtr<DrawingData> kept(drawingData(db));
  if (!kept) kept = newDrawingData(db);
  // The records are brought up to date in a copy: a refusal leaves the kept
  // ones as they were.
  OdSmartPtr<DrawingData> work(new DrawingData(*kept));
  work->ctx.db = db;
  work->ctx.lastLayer = work->ctx.byLayer = OdDbObjectId();
  work->ctx.warnings = nullptr;
  try {
    Writer writer(*work, *kept, db);
    writer.run();
    work->adopt(*kept, writer.m_added, writer.m_dropped, writer.m_madeReal);
  } catch (const MapError& e) {
    error = e.message;
    return false;
  } catch (const OdError& e) {
    error = QStringLiteral("cannot write the drawing: %1").arg(e.description().qstring());
    return false;
  } catch (const std::exception& e) {
    error = QStringLiteral("cannot write the drawing: %1").arg(QString::fromLocal8Bit(e.what()));
    return false;
  }
  out = work->file.write();
  db->setFileData(work.get());
  return true;
}

// The names the file holds now, for the next re-reading.
void reindex(DrawingData& d, OdDbDatabase* db) {
  d.ctx.lastLayer = d.ctx.byLayer = OdDbObjectId();
  for (int k = 0; k < kTableCount; ++k) {
    NameIndex& index = d.ctx.*kTables[k].index;
    index.clear();
    OdDbObjectPtr t = tableId(db, k).openObject();
    auto* table = odrxCast<OdDbSymbolTable>(t.get());
    if (!table) continue;
    for (const OdDbObjectId& id : table->recordIds())
      if (!id.isErased()) index.add(recordName(id), id);
  }
}

}  // namespace
}  // namespace mapping

using mapping::DrawingData;

OdDbDatabasePtr readDrawing(const QByteArray& bytes, QString& error, QStringList* warnings) {
  OdSmartPtr<DrawingData> data(new DrawingData);
  QStringList local;
  if (!File::read(bytes, data->file, error, &local)) return {};
  OdDbDatabasePtr db = OdDbDatabase::createObject(false);
  try {
    mapping::Reader(*data, db.get(), &local).run();
  } catch (const mapping::MapError& e) {
    error = e.message;
    return {};
  } catch (const OdError& e) {
    error = QStringLiteral("cannot read the drawing: %1").arg(e.description().qstring());
    return {};
  } catch (const std::exception& e) {
    error = QStringLiteral("cannot read the drawing: %1").arg(QString::fromLocal8Bit(e.what()));
    return {};
  }
  data->ctx.warnings = nullptr;
  db->setFileData(data.get());
  if (warnings) *warnings += local;
  return db;
}

OdDbDatabasePtr readDrawing(const QString& path, QString& error, QStringList* warnings) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    error = QStringLiteral("cannot open '%1': %2").arg(path, file.errorString());
    return {};
  }
  const QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError) {
    error = QStringLiteral("cannot read '%1': %2").arg(path, file.errorString());
    return {};
  }
  return readDrawing(bytes, error, warnings);
}

QByteArray writeDrawing(OdDbDatabase* db, QString* error) {
  QByteArray out;
  QString err;
  if (!mapping::writeImpl(db, out, err)) {
    if (error) *error = err;
    return {};
  }
  mapping::reindex(*mapping::drawingData(db), db);
  return out;
}

bool writeDrawing(OdDbDatabase* db, const QString& path, QString& error) {
  QByteArray bytes;
  if (!mapping::writeImpl(db, bytes, error)) return false;
  DrawingData* d = mapping::drawingData(db);
  mapping::reindex(*d, db);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) {
    error = QStringLiteral("cannot write '%1': %2").arg(path, file.errorString());
    return false;
  }
  if (file.write(bytes) != bytes.size()) {
    error = QStringLiteral("cannot write '%1': %2").arg(path, file.errorString());
    file.cancelWriting();
    return false;
  }
  if (!file.commit()) {
    error = QStringLiteral("cannot save '%1': %2").arg(path, file.errorString());
    return false;
  }
  // Saved: nothing counts as modified any more.
  for (const auto& owners : d->owners)
    for (OdDbStub* s : owners)
      if (s && s->object) s->object->setModified(false);
  return true;
}

}  // namespace OdDxf
