// Writing: the records a database keeps brought up to date with it - edited
// objects patched, erased ones dropped, new ones added where they belong,
// renamed layers, linetypes, text styles and dimension styles renamed where
// they are named, $HANDSEED
// raised - then serialized. A database not read from a file starts from an
// empty AC1015 drawing.
#include "DbPlainClasses.h"
#include "DxfDrawing.h"

#include <QSet>

namespace OdDxf::mapping {
namespace {

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

// Where records are named by other records: the group code of
// the name and the record types that carry it (none listed: every entity
// and block record). Dimension styles name their text style by handle,
// which a rename leaves as it is.
struct RenameRule {
  const char* recordType;
  int code;
  std::initializer_list<const char*> in;
  bool alsoLayers;  // LAYER records name it too
};
const RenameRule kRenameRules[] = {
    {"LAYER", 8, {}, false},
    {"LTYPE", 6, {}, true},
    {"STYLE", 7, {"TEXT", "MTEXT", "ATTRIB", "ATTDEF", "ARCALIGNEDTEXT"}, false},
    {"DIMSTYLE", 3, {"DIMENSION", "ARC_DIMENSION", "LARGE_RADIAL_DIMENSION", "LEADER", "TOLERANCE"}, false},
    // Multiline styles (OBJECTS section) are named by multilines and $CMLSTYLE.
    {"MLINESTYLE", 2, {"MLINE"}, false},
};
constexpr int kRenameRuleCount = int(std::size(kRenameRules));

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
  void addMissingTables();
  int addSection(QByteArrayView name);
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
  // Per kind of record (kRenameRules), its renames: case-folded old name -> new name.
  QHash<QString, QString> m_renames[kRenameRuleCount];
  bool anyRenames() const {
    for (const auto& r : m_renames)
      if (!r.isEmpty()) return true;
    return false;
  }
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

// A renamed record is renamed wherever another record names it. Other
// tables' names are not followed, so renaming their records is refused;
// nothing names a view by its name. In the OBJECTS section only the
// records of kRenameRules carry their name themselves (groups and table
// styles have theirs in their dictionary, which is patched like any object).
void Writer::collectRenames() {
  const QList<Section>& sections = std::as_const(m_d.file).sections();
  for (int s = 0; s < sections.size(); ++s) {
    const bool objects = sections[s].name == "OBJECTS";
    if (sections[s].name != "TABLES" && !objects) continue;
    const Section* sec = &sections[s];
    for (int i = 0; i < sec->records.size(); ++i) {
      OdDbStub* stub = m_d.owners[size_t(s)][size_t(i)];
      if (!stub || !stub->object || !stub->object->isModified()) continue;
      const Record& r = sec->records[i];
      if (r.isType("TABLE") || r.isType("VIEW") || stub->object->isErased()) continue;
      int k = 0;
      while (k < kRenameRuleCount && !r.isType(kRenameRules[k].recordType)) ++k;
      if (objects && k == kRenameRuleCount) continue;
      OdDbObjectPtr open = OdDbObjectId(stub).openObject();
      QString now;
      if (auto* rec = odrxCast<OdDbSymbolTableRecord>(open.get())) now = rec->getName().qstring();
      else if (auto* style = odrxCast<OdDbMlineStyle>(open.get())) now = style->name().qstring();
      else continue;
      const int ni = r.find(2);
      if (ni < 0) continue;
      const QString was = r.str(ni).trimmed();
      if (was == now || blockName(was) == now) continue;
      if (k == kRenameRuleCount)
        throw MapError{QStringLiteral("%1 '%2' renamed to '%3': renaming it is not supported when saving")
                           .arg(typeName(r), was, now)};
      m_renames[k].insert(was.toCaseFolded(), now);
    }
  }
  // The current multiline style, by name.
  const QHash<QString, QString>& mlineStyles = m_renames[kRenameRuleCount - 1];
  if (Record* var = mlineStyles.isEmpty() ? nullptr : m_d.file.headerVariable("$CMLSTYLE")) {
    const int i = var->find(2, 1);
    const auto it = i >= 0 ? mlineStyles.find(var->str(i).trimmed().toCaseFolded()) : mlineStyles.end();
    if (it != mlineStyles.end()) writeString(m_ctx, *var, i, it.value());
  }
}

void Writer::rename(Record& r) {
  const bool isLayer = r.isType("LAYER");
  for (int k = 0; k < int(std::size(kRenameRules)); ++k) {
    const RenameRule& rule = kRenameRules[k];
    if (m_renames[k].isEmpty()) continue;
    bool applies = isLayer ? rule.alsoLayers : rule.in.size() == 0;
    for (const char* type : rule.in) applies = applies || r.isType(type);
    if (!applies) continue;
    const int i = r.find(rule.code);
    if (i < 0 || r.at(i).code() != rule.code) continue;
    const auto it = m_renames[k].find(r.str(i).trimmed().toCaseFolded());
    if (it != m_renames[k].end()) writeString(m_ctx, r, i, it.value());
  }
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
  if (!m || m->partial)
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
    writeString(m_ctx, end, end.append(8), recordName(e->layerId()).isEmpty() ? QStringLiteral("0") : recordName(e->layerId()));
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
  const bool isEntities = sec.name == "ENTITIES", renames = anyRenames();
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


// A drawing written without a table that now has new records in it (an
// edit that adds extended data to a drawing without APPID table, say) gets
// the empty table, in the usual order of tables, and a TABLES section after
// HEADER and CLASSES when it has none. Readers take either as they come.
void Writer::addMissingTables() {
  static const char* const kOrder[] = {"VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD"};
  auto rank = [](QByteArrayView name) {
    for (int i = 0; i < int(std::size(kOrder)); ++i)
      if (name == kOrder[i]) return i;
    return int(std::size(kOrder));
  };
  QList<Section>& sections = m_d.file.sections();
  for (int k = 0; k < kTableCount; ++k) {
    // Without BLOCK_RECORD (before R13) a block is its BLOCK record alone.
    if (m_new.records[k].empty() || (k == 0 && !m_ctx.markers)) continue;
    OdDbStub* const table = tableId(m_db, k).stub();
    if (!table || m_kept.bound.count(table)) continue;
    int s = -1;
    for (int i = 0; i < sections.size(); ++i)
      if (sections[i].name == "TABLES") s = i;
    if (s < 0) s = addSection("TABLES");
    Record begin = m_d.file.newRecord("TABLE");
    begin.setRaw(begin.append(2), kTables[k].name);
    if (m_ctx.handles) {
      quint64 h = table->handle.value();
      if (!h) h = newHandle();
      begin.setHandle(begin.append(5), h);
      noteHandle(h);
      if (m_ctx.markers) begin.setHandle(begin.append(330), 0);
    }
    if (m_ctx.markers) begin.setRaw(begin.append(100), "AcDbSymbolTable");
    begin.setInteger(begin.append(70), 0);
    if (m_ctx.markers && k == 4) {
      begin.setRaw(begin.append(100), "AcDbDimStyleTable");
      begin.setInteger(begin.append(71), 0);
    }
    Section& sec = sections[s];
    std::vector<OdDbStub*>& owners = m_d.owners[size_t(s)];
    int at = int(sec.records.size());
    for (int i = 0; i < sec.records.size(); ++i)
      if (sec.records[i].isType("TABLE") && sec.records[i].size() > 1 && sec.records[i].at(1).code() == 2 &&
          rank(sec.records[i].at(1).trimmed()) > rank(kTables[k].name)) {
        at = i;
        break;
      }
    sec.records.insert(at, m_d.file.newRecord("ENDTAB"));
    sec.records.insert(at, begin);
    owners.insert(owners.begin() + at, {table, nullptr});
    m_added.push_back(table);
    m_madeReal.push_back(table);
  }
}

// Adds an empty section to a drawing that lacks it, after the sections that
// come before it in a drawing (HEADER, CLASSES, TABLES, BLOCKS, ENTITIES);
// returns its index.
int Writer::addSection(QByteArrayView name) {
  static const char* const kOrder[] = {"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES"};
  int rank = 0;
  while (rank < int(std::size(kOrder)) && name != kOrder[rank]) ++rank;
  QList<Section>& sections = m_d.file.sections();
  int at = 0;
  for (int s = 0; s < sections.size(); ++s)
    for (int r = 0; r < rank; ++r)
      if (sections[s].name == kOrder[r]) at = s + 1;
  m_d.file.addSection(name);
  sections.move(sections.size() - 1, at);
  m_d.owners.insert(m_d.owners.begin() + at, std::vector<OdDbStub*>());
  return at;
}

// Whether a section has anything to bring up to date.
bool Writer::needsWalk(int s) const {
  const Section& sec = m_d.file.sections()[s];
  if (anyRenames()) return true;
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
  addMissingTables();
  QList<Section>& sections = m_d.file.sections();
  for (int s = 0; s < sections.size(); ++s)
    if (sections[s].name == "ENTITIES") m_lastEntities = s;
  const OdDbObjectId model = m_db->getModelSpaceId(), paper = m_db->getPaperSpaceId();
  if (m_lastEntities < 0 && (newEntitiesOf(model.stub()) || newEntitiesOf(paper.stub()))) {
    m_lastEntities = addSection("ENTITIES");
  }
  for (int s = 0; s < sections.size(); ++s)
    if (needsWalk(s)) walk(s);
  addAnnotationContexts(m_d, m_db);

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

}  // namespace

bool writeImpl(OdDbDatabase* db, QByteArray& out, QString& error) {
  if (!db) {
    error = QStringLiteral("no drawing to write");
    return false;
  }
  regenerateDimensionBlocks(db);
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


}  // namespace OdDxf::mapping
