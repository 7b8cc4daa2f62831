#include "DbLeader.h"
#include "OdGePlane.h"
#include "DbDatabase.h"

#include <cmath>

OdDbDimVar::Value odDbStyleDimVar(const OdDbObjectId& style, OdDbDimVar::Id id) {
  if (!style.isNull()) {
    OdDbObjectPtr o = style.openObject(OdDb::kForRead);
    if (auto* rec = OdDbDimStyleTableRecord::cast(o).get()) return rec->dimVar(id);
  }
  return OdDbDimVar::info(id).defaultValue();
}

void odDbCheckDimStyleId(const OdDbObjectId& id) {
  if (id.isNull()) return;
  OdDbObjectPtr o = id.openObject(OdDb::kForRead);
  if (!OdDbDimStyleTableRecord::cast(o).get())
    throw OdError(eInvalidInput, OdString("the dimension style is not a dimension style record"));
}

namespace {
bool finite(const OdGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }
bool finite(const OdGeVector3d& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }
}  // namespace

OdSmartPtr<OdDbLeader> OdDbLeader::createObject() { return OdSmartPtr<OdDbLeader>(new OdDbLeader()); }
OdDbLeader::OdDbLeader() = default;

OdGePoint3d OdDbLeader::vertexAt(unsigned index) const {
  assertReadEnabled();
  if (index >= m_vertices.size()) throw OdError(eInvalidIndex);
  return m_vertices[index];
}

void OdDbLeader::setVertexAt(unsigned index, const OdGePoint3d& p) {
  if (!finite(p)) throw OdError(eInvalidInput, OdString("a vertex must be finite"));
  assertWriteEnabled();
  if (index >= m_vertices.size()) throw OdError(eInvalidIndex);
  m_vertices[index] = p;
}

void OdDbLeader::appendVertex(const OdGePoint3d& p) {
  if (!finite(p)) throw OdError(eInvalidInput, OdString("a vertex must be finite"));
  assertWriteEnabled();
  m_vertices.push_back(p);
}

void OdDbLeader::removeLastVertex() {
  assertWriteEnabled();
  if (!m_vertices.empty()) m_vertices.pop_back();
}

void OdDbLeader::setHasArrowHead(bool on) { assertWriteEnabled(); m_arrow = on; }
void OdDbLeader::setSplined(bool on) { assertWriteEnabled(); m_spline = on; }
void OdDbLeader::setHasHookLine(bool on) { assertWriteEnabled(); m_hook = on; }
void OdDbLeader::setHookLineDirection(int d) { assertWriteEnabled(); m_hookDirection = d; }

void OdDbLeader::setAnnoType(int t) {
  if (t < kMText || t > kNoAnno) throw OdError(eInvalidInput, OdString("the annotation type must be from 0 to 3"));
  assertWriteEnabled();
  m_annoType = t;
}

OdDbObjectId OdDbLeader::annotationObjId() const {
  assertReadEnabled();
  if (!m_annotation.isNull() || m_annoHandle.isNull() || !database()) return m_annotation;
  return database()->getOdDbObjectId(m_annoHandle);
}

void OdDbLeader::setAnnotationObjId(const OdDbObjectId& id) {
  assertWriteEnabled();
  m_annotation = id;
  m_annoHandle = id.isNull() ? OdDbHandle() : id.getHandle();
}

void OdDbLeader::setAnnotationHandle(const OdDbHandle& h) {
  assertWriteEnabled();
  m_annotation = OdDbObjectId();
  m_annoHandle = h;
}

void OdDbLeader::setAnnoHeight(double h) {
  if (!std::isfinite(h)) throw OdError(eInvalidInput, OdString("the text height must be finite"));
  assertWriteEnabled();
  m_annoHeight = h;
}

void OdDbLeader::setAnnoWidth(double w) {
  if (!std::isfinite(w)) throw OdError(eInvalidInput, OdString("the text width must be finite"));
  assertWriteEnabled();
  m_annoWidth = w;
}

void OdDbLeader::setNormal(const OdGeVector3d& n) {
  if (!finite(n) || n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbLeader::setHorizontalDirection(const OdGeVector3d& d) {
  if (!finite(d)) throw OdError(eInvalidInput, OdString("the horizontal direction must be finite"));
  assertWriteEnabled();
  m_horizontal = d;
}

void OdDbLeader::setAnnotationOffset(const OdGeVector3d& v) {
  if (!finite(v)) throw OdError(eInvalidInput, OdString("the annotation offset must be finite"));
  assertWriteEnabled();
  m_annoOffset = v;
}

OdResult OdDbLeader::getStartPoint(OdGePoint3d& p) const {
  assertReadEnabled();
  if (m_vertices.empty()) return eInvalidInput;
  p = m_vertices.front();
  return eOk;
}

OdResult OdDbLeader::getEndPoint(OdGePoint3d& p) const {
  assertReadEnabled();
  if (m_vertices.empty()) return eInvalidInput;
  p = m_vertices.back();
  return eOk;
}

bool OdDbLeader::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  if (m_vertices.empty()) return false;
  ext = OdGeExtents3d();
  for (const OdGePoint3d& p : m_vertices) ext.addPoint(p);
  return true;
}

void OdDbLeader::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* l = static_cast<const OdDbLeader*>(source);
  copyStyleFrom(*l);
  m_vertices = l->m_vertices;
  m_arrow = l->m_arrow;
  m_spline = l->m_spline;
  m_hook = l->m_hook;
  m_hookDirection = l->m_hookDirection;
  m_annoType = l->m_annoType;
  m_annotation = l->m_annotation;
  m_annoHandle = l->m_annoHandle;
  m_annoHeight = l->m_annoHeight;
  m_annoWidth = l->m_annoWidth;
  m_normal = l->m_normal;
  m_horizontal = l->m_horizontal;
  m_annoOffset = l->m_annoOffset;
}
