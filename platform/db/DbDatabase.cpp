#include "DbDatabase.h"
#include "DbPlainClasses.h"
#include "OdDbUnitsFormatter.h"
#include "DbUndo.h"

OdDbCoordinateService::OdDbCoordinateService(const OdGePoint3d& origin, const OdGeVector3d& xDir,
                                             const OdGeVector3d& yDir) {
  const OdGeVector3d x = xDir.normal(), y = yDir.normal();
  m_toWcs.setCoordSystem(origin, x, y, x.crossProduct(y).normal());
  m_toUcs = m_toWcs.inverse();
}

OdGeVector3d OdDbCoordinateService::ucsZAxis() const {
  OdGePoint3d o;
  OdGeVector3d x, y, z;
  m_toWcs.getCoordSystem(o, x, y, z);
  return z;
}

ODRX_DEFINE_PLATFORM_MEMBERS(OdDbDatabase, OdRxObject, nullptr, "")

OdDbDatabase::OdDbDatabase(bool buildDefaultDrawing) {
  if (buildDefaultDrawing) buildDefaults();
}

OdDbDatabase::~OdDbDatabase() {
  m_undo.reset();  // its copies refer to the objects by id only
  // Objects may refer to each other only through ids, so any order works.
  for (OdDbStub& stub : m_stubs) {
    if (stub.object) {
      OdDbObject* obj = stub.object;
      stub.object = nullptr;
      obj->setObjectIdInternal(OdDbObjectId());
      obj->release();
    }
  }
}

OdDbUndoJournal& OdDbDatabase::undoJournal() {
  if (!m_undo) m_undo = std::make_unique<OdDbUndoJournal>();
  return *m_undo;
}

OdSmartPtr<OdDbDatabase> OdDbDatabase::createObject(bool buildDefaultDrawing) {
  return OdSmartPtr<OdDbDatabase>(new OdDbDatabase(buildDefaultDrawing));
}

OdDbObjectId OdDbDatabase::addOdDbObject(OdDbObject* object, const OdDbObjectId& ownerId, OdDbHandle handle) {
  if (!object) throw OdError(eNullPtr);
  if (object->isDBRO()) throw OdError(eAlreadyInDb);
  if (handle.isNull()) handle = m_handseed;
  if (m_byHandle.count(handle.value())) throw OdError(eDuplicateKey, OdString("handle ") + handle.ascii());
  OdDbStub& stub = m_stubs.emplace_back();
  stub.handle = handle;
  stub.database = this;
  stub.object = object;
  m_byHandle.emplace(handle.value(), &stub);
  if (handle.value() >= m_handseed.value()) m_handseed = OdDbHandle(handle.value() + 1);
  object->addRef();  // the database's own reference
  const OdDbObjectId id(&stub);
  object->setObjectIdInternal(id);
  if (!ownerId.isNull()) object->setOwnerId(ownerId);
  // A newly added object stays open for write for whoever holds it.
  object->setOpenModeInternal(OdDb::kForWrite);
  if (object->numRefs() <= 1) object->setOpenModeInternal(OdDb::kNotOpen);
  return id;
}

OdDbObjectId OdDbDatabase::getOdDbObjectId(const OdDbHandle& handle) const {
  auto it = m_byHandle.find(handle.value());
  return it == m_byHandle.end() ? OdDbObjectId() : OdDbObjectId(it->second);
}

void OdDbDatabase::setHandseed(OdDbHandle h) {
  // Never below a handle in use: new objects must not collide.
  for (auto& [v, stub] : m_byHandle)
    if (v >= h.value()) h = OdDbHandle(v + 1);
  m_handseed = h;
}

void OdDbDatabase::setTableIdsInternal(const OdDbObjectId& block, const OdDbObjectId& layer,
                                       const OdDbObjectId& linetype, const OdDbObjectId& textStyle,
                                       const OdDbObjectId& dimStyle, const OdDbObjectId& regApp) {
  m_blockTable = block; m_layerTable = layer; m_linetypeTable = linetype;
  m_textStyleTable = textStyle; m_dimStyleTable = dimStyle; m_regAppTable = regApp;
}

OdDbObjectId OdDbDatabase::tableRecord(const OdDbObjectId& table, const char* name) const {
  auto t = OdDbSymbolTable::cast(table.openObject().get());
  return t ? t->getAt(OdString(name)) : OdDbObjectId();
}

OdDbObjectId OdDbDatabase::getModelSpaceId() const { return tableRecord(m_blockTable, "*Model_Space"); }
OdDbObjectId OdDbDatabase::getPaperSpaceId() const { return tableRecord(m_blockTable, "*Paper_Space"); }
OdDbObjectId OdDbDatabase::getLayerZeroId() const { return tableRecord(m_layerTable, "0"); }
OdDbObjectId OdDbDatabase::getLinetypeByLayerId() const { return tableRecord(m_linetypeTable, "ByLayer"); }
OdDbObjectId OdDbDatabase::getLinetypeByBlockId() const { return tableRecord(m_linetypeTable, "ByBlock"); }
OdDbObjectId OdDbDatabase::getLinetypeContinuousId() const { return tableRecord(m_linetypeTable, "Continuous"); }

OdDbObjectId OdDbDatabase::newRegApp(const OdString& name) {
  auto table = OdDbRegAppTable::cast(m_regAppTable.openObject(OdDb::kForWrite).get());
  if (!table) throw OdError(eNotInDatabase, OdString("no application table"));
  OdDbObjectId id = table->getAt(name);
  if (!id.isNull()) return id;
  auto rec = OdDbRegAppTableRecord::createObject();
  rec->setName(name);
  return table->add(rec.get());
}

namespace {
void checkRange(int v, int lo, int hi, const char* what) {
  if (v < lo || v > hi) throw OdError(eInvalidInput, OdString(QString("%1 must be %2..%3").arg(what).arg(lo).arg(hi)));
}
}  // namespace

void OdDbDatabase::setLUNITS(int v) { checkRange(v, 1, 5, "LUNITS"); m_lunits = v; }
void OdDbDatabase::setLUPREC(int v) { checkRange(v, 0, 8, "LUPREC"); m_luprec = v; }
void OdDbDatabase::setAUNITS(int v) { checkRange(v, 0, 4, "AUNITS"); m_aunits = v; }
void OdDbDatabase::setAUPREC(int v) { checkRange(v, 0, 8, "AUPREC"); m_auprec = v; }

void OdDbDatabase::setUCS(const OdGePoint3d& origin, const OdGeVector3d& xAxis, const OdGeVector3d& yAxis) {
  if (xAxis.isZeroLength() || yAxis.isZeroLength() || xAxis.isParallelTo(yAxis))
    throw OdError(eInvalidInput, OdString("UCS axes must be non-zero and not parallel"));
  const OdGeVector3d x = xAxis.normal();
  const OdGeVector3d z = x.crossProduct(yAxis).normal();
  m_ucsOrg = origin;
  m_ucsX = x;
  m_ucsY = z.crossProduct(x).normal();
}

OdDbCoordinateService OdDbDatabase::coordinateService() const {
  return OdDbCoordinateService(m_ucsOrg, m_ucsX, m_ucsY);
}

OdDbUnitsSettings OdDbDatabase::unitsSettings() const {
  OdDbUnitsSettings s;
  s.lunits = m_lunits;
  s.luprec = m_luprec;
  s.aunits = m_aunits;
  s.auprec = m_auprec;
  s.angbase = m_angbase;
  s.angdirClockwise = m_angdir;
  s.unitmode = m_unitmode;
  return s;
}

OdDbUnitsFormatter OdDbDatabase::formatter() const { return OdDbUnitsFormatter(unitsSettings()); }

void OdDbDatabase::buildDefaults() {
  auto addTable = [&](OdDbSymbolTable* table) { return addOdDbObject(table); };
  auto blocks = OdDbBlockTable::createObject();
  auto layers = OdDbLayerTable::createObject();
  auto linetypes = OdDbLinetypeTable::createObject();
  auto styles = OdDbTextStyleTable::createObject();
  auto dimstyles = OdDbDimStyleTable::createObject();
  auto regapps = OdDbRegAppTable::createObject();
  m_blockTable = addTable(blocks.get());
  m_layerTable = addTable(layers.get());
  m_linetypeTable = addTable(linetypes.get());
  m_textStyleTable = addTable(styles.get());
  m_dimStyleTable = addTable(dimstyles.get());
  m_regAppTable = addTable(regapps.get());

  for (const char* name : {"ByBlock", "ByLayer", "Continuous"}) {
    auto lt = OdDbLinetypeTableRecord::createObject();
    lt->setName(name);
    if (QByteArray(name) == "Continuous") lt->setComments("Solid line");
    linetypes->add(lt.get());
  }
  auto layer0 = OdDbLayerTableRecord::createObject();
  layer0->setName("0");
  layer0->setLinetypeObjectId(tableRecord(m_linetypeTable, "Continuous"));
  m_clayer = layers->add(layer0.get());

  auto standard = OdDbTextStyleTableRecord::createObject();
  standard->setName("Standard");
  m_textstyle = styles->add(standard.get());
  auto dimStandard = OdDbDimStyleTableRecord::createObject();
  dimStandard->setName("Standard");
  m_dimstyle = dimstyles->add(dimStandard.get());
  auto acad = OdDbRegAppTableRecord::createObject();
  acad->setName("ACAD");
  regapps->add(acad.get());

  for (const OdString* name : {&OdDbBlockTableRecord::modelSpaceStr(), &OdDbBlockTableRecord::paperSpaceStr()}) {
    auto btr = OdDbBlockTableRecord::createObject();
    btr->setName(*name);
    blocks->add(btr.get());
  }
}
