#include "DbEntity.h"
#include "DbDatabase.h"

OdDbEntity::OdDbEntity() = default;

void OdDbEntity::setColor(const OdCmColor& c) {
  assertWriteEnabled();
  m_color = c;
}

void OdDbEntity::setColorIndex(int aci) {
  if (aci < 0 || aci > 256) throw OdError(eInvalidInput, OdString("colour index out of range"));
  setColor(OdCmColor::fromIndex(aci));
}

namespace {
OdString recordName(const OdDbObjectId& id) {
  OdDbObjectPtr obj = id.openObject();
  auto rec = OdDbSymbolTableRecord::cast(obj.get());
  return rec ? rec->getName() : OdString();
}

OdDbObjectId lookup(OdDbDatabase* db, OdDbObjectId (OdDbDatabase::*table)() const, const OdString& name) {
  if (!db) return {};
  auto t = OdDbSymbolTable::cast((db->*table)().openObject().get());
  return t ? t->getAt(name) : OdDbObjectId();
}
}  // namespace

OdString OdDbEntity::layer() const {
  assertReadEnabled();
  OdString name = recordName(m_layerId);
  return name.isEmpty() ? OdString("0") : name;
}

void OdDbEntity::setLayer(const OdDbObjectId& layerId) {
  assertWriteEnabled();
  m_layerId = layerId;
}

bool OdDbEntity::setLayer(const OdString& name) {
  OdDbObjectId id = lookup(database(), &OdDbDatabase::getLayerTableId, name);
  if (id.isNull()) return false;
  setLayer(id);
  return true;
}

OdString OdDbEntity::linetype() const {
  assertReadEnabled();
  OdString name = recordName(m_linetypeId);
  return name.isEmpty() ? OdString("ByLayer") : name;
}

void OdDbEntity::setLinetype(const OdDbObjectId& lt) {
  assertWriteEnabled();
  m_linetypeId = lt;
}

bool OdDbEntity::setLinetype(const OdString& name) {
  OdDbObjectId id = lookup(database(), &OdDbDatabase::getLinetypeTableId, name);
  if (id.isNull()) return false;
  setLinetype(id);
  return true;
}

void OdDbEntity::setLinetypeScale(double s) {
  if (!(s > 0)) throw OdError(eInvalidInput, OdString("linetype scale must be positive"));
  assertWriteEnabled();
  m_ltScale = s;
}

void OdDbEntity::setLineWeight(OdDb::LineWeight lw) {
  if (!OdDb::isValidLineWeight(lw)) throw OdError(eInvalidInput, OdString("not a standard lineweight"));
  assertWriteEnabled();
  m_lineWeight = lw;
}

void OdDbEntity::setTransparency(const OdCmTransparency& t) {
  assertWriteEnabled();
  m_transparency = t;
}

void OdDbEntity::setPlotStyleName(const OdString& name) {
  assertWriteEnabled();
  m_plotStyle = name;
}

void OdDbEntity::setHyperlinks(const OdArray<OdDbHyperlink>& links) {
  // Hyperlinks are written as text items of extended data, which cannot
  // hold line breaks or other control characters.
  auto control = [](const OdString& s) {
    for (QChar c : s.qstring())
      if (c.unicode() < 0x20 || c.unicode() == 0x7F) return true;
    return false;
  };
  for (const OdDbHyperlink& l : links)
    if (control(l.name) || control(l.description) || control(l.subLocation))
      throw OdError(eInvalidInput, OdString("a hyperlink cannot contain line breaks or control characters"));
  assertWriteEnabled();
  m_hyperlinks = links;
}

void OdDbEntity::setVisibility(bool v) {
  assertWriteEnabled();
  m_visible = v;
}

bool OdDbEntity::getGeomExtents(OdGeExtents3d&) const { return false; }

void OdDbEntity::setDatabaseDefaults(OdDbDatabase* db) {
  assertWriteEnabled();
  if (!db) db = database();
  m_color = OdCmColor::byLayer();
  m_lineWeight = OdDb::kLnWtByLayer;
  m_ltScale = 1.0;
  if (db) {
    m_layerId = db->getCLAYER().isNull() ? db->getLayerZeroId() : db->getCLAYER();
    m_linetypeId = db->getLinetypeByLayerId();
    m_ltScale = db->getCELTSCALE();
  }
}

void OdDbEntity::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  auto* e = static_cast<const OdDbEntity*>(source);
  m_color = e->m_color;
  m_layerId = e->m_layerId;
  m_linetypeId = e->m_linetypeId;
  m_ltScale = e->m_ltScale;
  m_lineWeight = e->m_lineWeight;
  m_transparency = e->m_transparency;
  m_plotStyle = e->m_plotStyle;
  m_hyperlinks = e->m_hyperlinks;
  m_visible = e->m_visible;
}

OdResult OdDbCurve::getStartParam(double&) const { return eNotImplementedYet; }
OdResult OdDbCurve::getEndParam(double&) const { return eNotImplementedYet; }
OdResult OdDbCurve::getStartPoint(OdGePoint3d&) const { return eNotImplementedYet; }
OdResult OdDbCurve::getEndPoint(OdGePoint3d&) const { return eNotImplementedYet; }
OdResult OdDbCurve::getPointAtParam(double, OdGePoint3d&) const { return eNotImplementedYet; }
OdResult OdDbCurve::getDistAtParam(double, double&) const { return eNotImplementedYet; }
OdResult OdDbCurve::getArea(double&) const { return eNotImplementedYet; }
