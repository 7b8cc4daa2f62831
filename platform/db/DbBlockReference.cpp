#include "DbBlockReference.h"
#include "DbDatabase.h"
#include "DbSymbolTable.h"
#include "DbText.h"
#include <cmath>

OdSmartPtr<OdDbBlockReference> OdDbBlockReference::createObject() {
  return OdSmartPtr<OdDbBlockReference>(new OdDbBlockReference());
}
OdSmartPtr<OdDbMInsertBlock> OdDbMInsertBlock::createObject() {
  return OdSmartPtr<OdDbMInsertBlock>(new OdDbMInsertBlock());
}

namespace {

OdDbObjectId blockByName(OdDbDatabase* db, const OdString& name) {
  if (!db || name.isEmpty()) return {};
  OdDbObjectPtr t = db->getBlockTableId().openObject();
  auto* table = odrxCast<OdDbSymbolTable>(t.get());
  return table ? table->getAt(name) : OdDbObjectId();
}

}  // namespace

OdDbObjectId OdDbBlockReference::blockTableRecord() const {
  assertReadEnabled();
  if (m_block.isNull() && !m_blockName.isEmpty()) m_block = blockByName(database(), m_blockName);
  return m_block;
}

void OdDbBlockReference::setBlockTableRecord(const OdDbObjectId& id) {
  OdDbObjectPtr obj = id.openObject();
  auto* block = odrxCast<OdDbBlockTableRecord>(obj.get());
  if (!block || (database() && id.database() != database()))
    throw OdError(eInvalidInput, OdString("not a block of the drawing"));
  assertWriteEnabled();
  m_block = id;
  m_blockName = block->getName();
}

OdString OdDbBlockReference::blockName() const {
  const OdDbObjectId id = blockTableRecord();
  if (!id.isNull()) {
    OdDbObjectPtr obj = id.openObject(OdDb::kForRead, true);
    if (auto* block = odrxCast<OdDbBlockTableRecord>(obj.get())) return block->getName();
  }
  return m_blockName;
}

void OdDbBlockReference::setBlockNameInternal(const OdString& name) {
  assertWriteEnabled();
  m_blockName = name;
  m_block = blockByName(database(), name);
}

void OdDbBlockReference::setScaleFactors(const OdGeScale3d& s) {
  for (int i = 0; i < 3; ++i)
    if (!std::isfinite(s[i]) || s[i] == 0) throw OdError(eInvalidInput, OdString("zero scale factor"));
  assertWriteEnabled();
  m_scale = s;
}

void OdDbBlockReference::setRotation(double angle) {
  if (!std::isfinite(angle)) throw OdError(eInvalidInput, OdString("rotation not finite"));
  assertWriteEnabled();
  m_rotation = std::remainder(angle, Oda2PI);
  if (m_rotation < 0) m_rotation += Oda2PI;
}

void OdDbBlockReference::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

OdGeMatrix3d OdDbBlockReference::blockTransform() const {
  assertReadEnabled();
  OdGePoint3d base;
  if (OdDbObjectPtr b = blockTableRecord().openObject(OdDb::kForRead, true))
    if (auto* block = odrxCast<OdDbBlockTableRecord>(b.get())) base = block->origin();
  OdGeMatrix3d scale;
  for (int i = 0; i < 3; ++i) scale(i, i) = m_scale[i];
  return OdGeMatrix3d::translation(m_position.asVector()) * OdGeMatrix3d::planeToWorld(m_normal) *
         OdGeMatrix3d::rotation(m_rotation, OdGeVector3d::kZAxis) * scale *
         OdGeMatrix3d::translation(-base.asVector());
}

double odDbMetersPerUnit(int u) {
  // $INSUNITS codes 0..24.
  static const double kMeters[] = {0,     0.0254, 0.3048, 1609.344, 0.001, 0.01,  1,     1000, 2.54e-8,
                                   2.54e-5, 0.9144, 1e-10, 1e-9,    1e-6,  0.1,   10,    100,  1e9,
                                   1.495978707e11, 9.4607304725808e15, 3.0856775814913673e16,
                                   0.3048006096012192, 0.0254000508001016, 0.9144018288036576,
                                   1609.3472186944373};
  return u >= 0 && u < int(std::size(kMeters)) ? kMeters[u] : 0;
}

double OdDbBlockReference::unitFactor() const {
  int blockUnits = 0;
  if (OdDbObjectPtr b = blockTableRecord().openObject(OdDb::kForRead, true))
    if (auto* block = odrxCast<OdDbBlockTableRecord>(b.get())) blockUnits = block->blockInsertUnits();
  const double from = odDbMetersPerUnit(blockUnits);
  const double to = database() ? odDbMetersPerUnit(database()->getINSUNITS()) : 0;
  return from > 0 && to > 0 ? from / to : 1.0;
}

OdDbObjectId OdDbBlockReference::appendAttribute(OdDbAttribute* attribute) {
  if (!database()) throw OdError(eInvalidInput, OdString("the reference is in no database"));
  assertWriteEnabled();
  const OdDbObjectId id = database()->addOdDbObject(attribute, objectId());
  m_attributes.append(id);
  return id;
}

bool OdDbBlockReference::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  OdDbObjectPtr b = blockTableRecord().openObject(OdDb::kForRead, true);
  auto* block = odrxCast<OdDbBlockTableRecord>(b.get());
  if (!block) return false;
  const OdGeMatrix3d m = blockTransform();
  bool any = false;
  for (const OdDbObjectId& id : block->entityIds()) {
    OdDbObjectPtr o = id.openObject();
    auto* e = odrxCast<OdDbEntity>(o.get());
    OdGeExtents3d x;
    if (!e || e == this || !e->getGeomExtents(x)) continue;
    for (int c = 0; c < 8; ++c) {
      const OdGePoint3d p(c & 1 ? x.maxPoint().x : x.minPoint().x, c & 2 ? x.maxPoint().y : x.minPoint().y,
                          c & 4 ? x.maxPoint().z : x.minPoint().z);
      if (any) ext.addPoint(m * p);
      else ext.set(m * p, m * p);
      any = true;
    }
  }
  return any;
}

void OdDbBlockReference::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* r = static_cast<const OdDbBlockReference*>(source);
  m_block = r->m_block;
  m_blockName = r->m_blockName;
  m_position = r->m_position;
  m_scale = r->m_scale;
  m_rotation = r->m_rotation;
  m_normal = r->m_normal;
}

namespace {
void checkCount(int n) {
  if (n < 1 || n > 32767) throw OdError(eInvalidInput, OdString("count out of range"));
}
void checkFinite(double d) {
  if (!std::isfinite(d)) throw OdError(eInvalidInput, OdString("spacing not finite"));
}
}  // namespace

void OdDbMInsertBlock::setColumns(int n) { checkCount(n); assertWriteEnabled(); m_columns = n; }
void OdDbMInsertBlock::setRows(int n) { checkCount(n); assertWriteEnabled(); m_rows = n; }
void OdDbMInsertBlock::setColumnSpacing(double d) { checkFinite(d); assertWriteEnabled(); m_columnSpacing = d; }
void OdDbMInsertBlock::setRowSpacing(double d) { checkFinite(d); assertWriteEnabled(); m_rowSpacing = d; }

void OdDbMInsertBlock::copyFrom(const OdRxObject* source) {
  OdDbBlockReference::copyFrom(source);
  auto* m = static_cast<const OdDbMInsertBlock*>(source);
  m_columns = m->m_columns;
  m_rows = m->m_rows;
  m_columnSpacing = m->m_columnSpacing;
  m_rowSpacing = m->m_rowSpacing;
}
