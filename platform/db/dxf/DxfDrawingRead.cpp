// Reading: a parsed DXF file becomes the objects of a database - handles
// checked and repaired, tables, blocks and their entities, the entities of
// every ENTITIES section, header variables, and the objects of the OBJECTS
// section (DxfObjectsSection.cpp).
#include "DbPlainClasses.h"
#include "DxfDrawing.h"
#include "DxfInternal.h"

#include <algorithm>

namespace OdDxf::mapping {
namespace {

int releaseNumber(QByteArrayView v) {
  const QByteArrayView t = detail::trimBlanks(v);
  if (t.size() != 6 || !t.startsWith("AC")) return 0;
  bool ok = false;
  const int n = t.sliced(2).toByteArray().toInt(&ok);
  return ok ? n : 0;
}

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
  void readAnnotationScales();
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
  // $PSTYLEMODE 0: the drawing's objects name plot styles; 1 (or absent):
  // they plot by colour.
  if (const Record* mode = m_d.file.headerVariable("$PSTYLEMODE")) {
    const int i = mode->find(290, 1);
    bool ok = false;
    const qint64 v = i >= 0 ? mode->at(i).integer(&ok) : 1;
    m_db->setPSTYLEMODE(!ok || v != 0);
  }
  const Section* objects = m_d.file.section("OBJECTS");
  if (!objects || objects->records.isEmpty()) return;
  const Record& root = objects->records.first();
  if (!root.isType("DICTIONARY")) return;
  quint64 plotStyles = 0;
  forEachDictionaryEntry(root, [&](const QString& name, quint64 h) {
    if (name == QLatin1String("ACAD_PLOTSTYLENAME")) plotStyles = h;
  });
  if (!plotStyles) return;
  OdArray<OdString> names;
  for (const Record& r : objects->records)
    if (r.handle() == plotStyles && (r.isType("ACDBDICTIONARYWDFLT") || r.isType("DICTIONARY"))) {
      forEachDictionaryEntry(r, [&](const QString& name, quint64 h) {
        m_ctx.plotStyleNames.insert(h, name);
        m_ctx.plotStyleHandles.insert(name.toCaseFolded(), h);
        names.append(OdString(name));
      });
      m_db->setPlotStyleNames(names);
      break;
    }
}

// Annotation scales. The named-objects dictionary holds the scale list
// (ACAD_SCALELIST: SCALE objects, 300 name, 140 paper units, 141 drawing
// units) and, among the drawing's variables (AcDbVariableDictionary), the
// current scale (CANNOSCALE: its value, group 1, is a scale name). An object drawn at several scales has,
// in its extension dictionary, AcDbContextDataManager / ACDB_ANNOTATIONSCALES:
// one context-data object per scale, each naming its SCALE object (340).
// Only read here; the records stay in the file as they are.
void Reader::readAnnotationScales() {
  const Section* objects = m_d.file.section("OBJECTS");
  if (!objects || objects->records.isEmpty()) return;
  QHash<quint64, const Record*> byHandle;
  byHandle.reserve(objects->records.size());
  for (const Record& r : objects->records)
    if (const quint64 h = r.handle()) byHandle.insert(h, &r);
  auto entry = [&](const Record* dict, QLatin1String name) -> const Record* {
    const Record* found = nullptr;
    if (dict)
      forEachDictionaryEntry(*dict, [&](const QString& n, quint64 h) {
        if (!found && n.compare(name, Qt::CaseInsensitive) == 0) found = byHandle.value(h);
      });
    return found;
  };
  auto text = [](const Record* r, int code) {
    const int i = r ? r->find(code, 1) : -1;
    return i >= 0 ? OdString(r->str(i)) : OdString();
  };
  auto real = [](const Record* r, int code, double fallback) {
    const int i = r ? r->find(code, 1) : -1;
    bool ok = false;
    const double v = i >= 0 ? r->at(i).real(&ok) : fallback;
    return ok ? v : fallback;
  };

  OdDbAnnotationScales result;
  const Record& root = objects->records.first();
  if (!root.isType("DICTIONARY")) return;
  QHash<quint64, OdString> scaleNames;
  if (const Record* list = entry(&root, QLatin1String("ACAD_SCALELIST"))) {
    forEachDictionaryEntry(*list, [&](const QString&, quint64 h) {
      const Record* scale = byHandle.value(h);
      if (!scale || !scale->isType("SCALE")) return;
      OdDbAnnotationScale s;
      s.name = text(scale, 300);
      s.paperUnits = real(scale, 140, 1.0);
      s.drawingUnits = real(scale, 141, 1.0);
      s.handle = h;
      scaleNames.insert(h, s.name);
      result.scales.append(s);
    });
  }
  result.current = text(entry(entry(&root, QLatin1String("AcDbVariableDictionary")), QLatin1String("CANNOSCALE")), 1);
  // Extension dictionaries are owned (330) by their object.
  for (const Record& r : objects->records) {
    if (!r.isType("DICTIONARY")) continue;
    const Record* scales = entry(entry(&r, QLatin1String("AcDbContextDataManager")), QLatin1String("ACDB_ANNOTATIONSCALES"));
    if (!scales) continue;
    quint64 owner = 0;
    for (int i = 1, depth = 0; i < r.size() && !owner; ++i) {
      const Tag& t = r.at(i);
      if (t.code() == 102) depth += t.trimmed().startsWith("{") ? 1 : -1;
      else if (t.code() == 330 && depth == 0) owner = t.handle();
    }
    if (!owner) continue;
    QList<OdString> names;
    forEachDictionaryEntry(*scales, [&](const QString&, quint64 h) {
      const Record* context = byHandle.value(h);
      const int i = context ? context->find(340, 1) : -1;
      if (i >= 0) {
        const OdString name = scaleNames.value(context->at(i).handle());
        if (!name.isEmpty()) names.append(name);
      }
    });
    result.objectScales.insert(owner, names);
  }
  m_db->setAnnotationScales(result);
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
    // A configuration of several viewports has a VPORT record per viewport,
    // all of one name.
    if (!name.isEmpty() && !(m_ctx.*kTables[k].index).add(name, id) && kTables[k].index != &Context::vports)
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
  m_db->setViewTableIdsInternal(m_tables[6], m_tables[7]);
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
        const OdDbObjectId attribute = readEntity(s, next, id, nullptr, false);
        if (auto* reference = odrxCast<OdDbBlockReference>(id.stub()->object))
          reference->appendAttributeInternal(attribute);
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
  checkValues(m_ctx);
  size_t records = 0;
  for (const Section& s : f.sections()) records += size_t(s.records.size());
  m_db->reserveObjects(records);
  m_d.bound.reserve(records);
  readPlotStyleNames();
  readAnnotationScales();
  m_ctx.missingRecord = [this](NameIndex& index, const QString& name) { return missingRecord(index, name); };
  // Linetypes first: layers name them.
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "TABLES") readTables(s, [](int k) { return k == 2; });
  // Dimension styles last: they refer to text styles, blocks and linetypes
  // by handle.
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "TABLES") readTables(s, [](int k) { return k != 2 && k != 4; });
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "TABLES") readTables(s, [](int k) { return k == 4; });
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
  readDimensionAssociations(m_ctx, m_d.owners);
  readHeader(m_ctx);
  m_ctx.missingRecord = nullptr;
  for (int s = 0; s < f.sections().size(); ++s)
    if (section(s).name == "OBJECTS")
      readObjectsSection(m_d, s, m_handles[size_t(s)], [&](OdDbObject* obj, quint64 handle, int i) {
        return addObject(obj, OdDbObjectId(), handle, s, i);
      });
}

}  // namespace

void readObjects(DrawingData& d, OdDbDatabase* db, QStringList* warnings) { Reader(d, db, warnings).run(); }

}  // namespace OdDxf::mapping
