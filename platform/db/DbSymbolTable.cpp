#include "DbSymbolTable.h"
#include "DbDatabase.h"
#include "OdResBuf.h"

void OdDbSymbolTableRecord::setName(const OdString& name) {
  assertWriteEnabled();
  if (name == m_name) return;
  if (OdDbDatabase* db = database()) {
    auto table = OdDbSymbolTable::cast(ownerId().openObject().get());
    if (table) {
      const OdDbObjectId other = table->getAt(name);
      if (!other.isNull() && other != objectId()) throw OdError(eDuplicateRecordName, name);
      table->renameInternal(m_name, name);
    }
    (void)db;
  }
  m_name = name;
}

void OdDbSymbolTableRecord::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  // The name is the record's identity in its table; it is not copied.
}

OdDbObjectId OdDbSymbolTable::getAt(const OdString& name, bool getErasedRecord) const {
  assertReadEnabled();
  for (const OdDbObjectId& id : m_records) {
    if (!id.isValid()) continue;
    if (id.isErased() && !getErasedRecord) continue;
    auto rec = OdDbSymbolTableRecord::cast(id.openObject(OdDb::kForRead, true).get());
    if (rec && rec->getName().iCompare(name) == 0) return id;
  }
  return {};
}

bool OdDbSymbolTable::has(const OdDbObjectId& id) const {
  assertReadEnabled();
  return m_records.contains(id);
}

OdDbObjectId OdDbSymbolTable::add(OdDbSymbolTableRecord* record) {
  assertWriteEnabled();
  if (!record) throw OdError(eNullPtr);
  if (!record->isKindOf(recordClass())) throw OdError_NotThatKindOfClass(record->isA(), recordClass());
  const OdString name = record->getName();
  if (name.isEmpty()) throw OdError(eInvalidSymbolTableName, OdString("empty record name"));
  if (!getAt(name).isNull()) throw OdError(eDuplicateRecordName, name);
  OdDbDatabase* db = database();
  if (!db) throw OdError(eNotInDatabase);
  OdDbObjectId id = record->isDBRO() ? record->objectId() : db->addOdDbObject(record, objectId());
  record->setOwnerId(objectId());
  m_records.append(id);
  return id;
}

OdDbObjectIdArray OdDbSymbolTable::recordIds() const {
  assertReadEnabled();
  return m_records;
}

void OdDbSymbolTable::renameInternal(const OdString&, const OdString&) {
  // Records are found by reading their names, so nothing is cached here.
}

void OdDbSymbolTable::appendInternal(const OdDbObjectId& id) {
  if (!m_records.contains(id)) m_records.append(id);
}

void OdDbLayerTableRecord::copyFrom(const OdRxObject* source) {
  OdDbSymbolTableRecord::copyFrom(source);
  auto* r = static_cast<const OdDbLayerTableRecord*>(source);
  m_color = r->m_color; m_linetype = r->m_linetype; m_lineWeight = r->m_lineWeight;
  m_transparency = r->m_transparency; m_plotStyle = r->m_plotStyle;
  m_off = r->m_off; m_frozen = r->m_frozen; m_locked = r->m_locked; m_plottable = r->m_plottable;
}

void OdDbLinetypeTableRecord::copyFrom(const OdRxObject* source) {
  OdDbSymbolTableRecord::copyFrom(source);
  auto* r = static_cast<const OdDbLinetypeTableRecord*>(source);
  m_comments = r->m_comments; m_patternLength = r->m_patternLength; m_dashes = r->m_dashes;
}

void OdDbTextStyleTableRecord::copyFrom(const OdRxObject* source) {
  OdDbSymbolTableRecord::copyFrom(source);
  auto* r = static_cast<const OdDbTextStyleTableRecord*>(source);
  m_textSize = r->m_textSize; m_xScale = r->m_xScale; m_oblique = r->m_oblique; m_priorSize = r->m_priorSize;
  m_fileName = r->m_fileName; m_bigFont = r->m_bigFont; m_flags = r->m_flags; m_genFlags = r->m_genFlags;
}

const OdString& OdDbBlockTableRecord::modelSpaceStr() {
  static const OdString s("*Model_Space");
  return s;
}
const OdString& OdDbBlockTableRecord::paperSpaceStr() {
  static const OdString s("*Paper_Space");
  return s;
}

bool OdDbBlockTableRecord::isModelSpace() const { return getName().iCompare(modelSpaceStr()) == 0; }
bool OdDbBlockTableRecord::isPaperSpace() const {
  // "*Paper_Space", "*Paper_Space0", ... are the layouts' blocks.
  return getName().qstring().startsWith(paperSpaceStr().qstring(), Qt::CaseInsensitive);
}

OdDbObjectId OdDbBlockTableRecord::appendOdDbEntity(OdDbEntity* entity) {
  assertWriteEnabled();
  if (!entity) throw OdError(eNullPtr);
  OdDbDatabase* db = database();
  if (!db) throw OdError(eNotInDatabase);
  OdDbObjectId id = entity->isDBRO() ? entity->objectId() : db->addOdDbObject(entity, objectId());
  entity->setOwnerId(objectId());
  m_entities.append(id);
  return id;
}

OdDbObjectIdArray OdDbBlockTableRecord::entityIds(bool includeErased) const {
  assertReadEnabled();
  if (includeErased) return m_entities;
  OdDbObjectIdArray out;
  out.reserve(m_entities.size());
  for (const OdDbObjectId& id : m_entities)
    if (!id.isErased()) out.append(id);
  return out;
}

// The block's own values; its entities stay where they are (they are owned
// objects, not values).
void OdDbBlockTableRecord::copyFrom(const OdRxObject* source) {
  OdDbSymbolTableRecord::copyFrom(source);
  auto* b = static_cast<const OdDbBlockTableRecord*>(source);
  m_origin = b->m_origin;
  m_scaling = b->m_scaling;
  m_insertUnits = b->m_insertUnits;
  m_explodable = b->m_explodable;
}

namespace {
const OdString kLayerStandardApp("AcAecLayerStandard");
}

OdString OdDbLayerTableRecord::description() const {
  OdResBufPtr chain = xData(kLayerStandardApp);
  int texts = 0;
  for (const OdResBuf* p = chain.get(); p; p = p->next())
    if (p->restype() == OdResBuf::kDxfXdAsciiString && ++texts == 2) return p->getString();
  return OdString();
}

void OdDbLayerTableRecord::setDescription(const OdString& text) {
  assertWriteEnabled();
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, kLayerStandardApp);
  if (!text.isEmpty()) {
    // The first text is the layer standard's name, none here.
    OdResBufPtr standard = OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString());
    OdResBufPtr item = OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, text);
    standard->setNext(item.get());
    head->setNext(standard.get());
    setXData(head.get());
    return;
  }
  setXData(head.get());
}
