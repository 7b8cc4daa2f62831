#include "Db2dPolyline.h"
#include <algorithm>
#include "DbBulgeGeometry.h"

OdDb2dVertex::OdDb2dVertex() = default;

void OdDb2dVertex::setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_position = p; }
void OdDb2dVertex::setBulge(double b) { assertWriteEnabled(); m_bulge = b; }
void OdDb2dVertex::setStartWidth(double w) { assertWriteEnabled(); m_startWidth = w; }
void OdDb2dVertex::setEndWidth(double w) { assertWriteEnabled(); m_endWidth = w; }
void OdDb2dVertex::setVertexType(OdDb::Vertex2dType t) { assertWriteEnabled(); m_type = t; }

void OdDb2dVertex::copyFrom(const OdRxObject* source) {
  OdDbVertex::copyFrom(source);
  auto* v = static_cast<const OdDb2dVertex*>(source);
  m_position = v->m_position;
  m_bulge = v->m_bulge;
  m_startWidth = v->m_startWidth;
  m_endWidth = v->m_endWidth;
  m_type = v->m_type;
}

OdDb2dPolyline::OdDb2dPolyline() = default;

unsigned OdDb2dPolyline::appendVertex(OdDb2dVertex* vertex) {
  if (!vertex) throw OdError(eNullPtr);
  if (vertex->isDBRO()) throw OdError(eAlreadyInDb, OdString("a vertex belongs to its polyline only"));
  assertWriteEnabled();
  vertex->setOwnerId(objectId());
  m_verts.append(OdDb2dVertexPtr(vertex));
  return m_verts.length() - 1;
}

const OdDb2dVertex* OdDb2dPolyline::vertexAt(unsigned index) const {
  assertReadEnabled();
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  return m_verts[index].get();
}

OdDb2dVertex* OdDb2dPolyline::vertexForWrite(unsigned index) {
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  return m_verts[index].get();
}

void OdDb2dPolyline::removeVertexAt(unsigned index) {
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  m_verts.removeAt(index);
}

void OdDb2dPolyline::setPolyType(OdDb::Poly2dType t) { assertWriteEnabled(); m_type = t; }
void OdDb2dPolyline::setClosed(bool closed) { assertWriteEnabled(); m_closed = closed; }
void OdDb2dPolyline::setLinetypeGenerationOn() { assertWriteEnabled(); m_plinegen = true; }
void OdDb2dPolyline::setLinetypeGenerationOff() { assertWriteEnabled(); m_plinegen = false; }
void OdDb2dPolyline::setDefaultStartWidth(double w) { assertWriteEnabled(); m_defaultStart = w; }
void OdDb2dPolyline::setDefaultEndWidth(double w) { assertWriteEnabled(); m_defaultEnd = w; }
void OdDb2dPolyline::setElevation(double z) { assertWriteEnabled(); m_elevation = z; }
void OdDb2dPolyline::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }

void OdDb2dPolyline::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

namespace {
// The vertices the curve runs through: a spline-fit polyline's frame (its
// control points) is not on the curve, unless it has nothing else.
OdArray<OdDbBulge::Vertex> bulgeVertices(const OdArray<OdDb2dVertexPtr>& verts) {
  const bool onlyFrame = std::all_of(verts.begin(), verts.end(), [](const OdDb2dVertexPtr& v) {
    return v->vertexType() == OdDb::k2dSplineCtlVertex;
  });
  OdArray<OdDbBulge::Vertex> out;
  for (const OdDb2dVertexPtr& v : verts)
    if (onlyFrame || v->vertexType() != OdDb::k2dSplineCtlVertex)
      out.append(OdDbBulge::Vertex{v->position().convert2d(), v->bulge()});
  return out;
}
}  // namespace

OdGePoint3d OdDb2dPolyline::vertexPosition(unsigned index) const {
  const OdGePoint3d p = vertexAt(index)->position();
  return OdGeMatrix3d::planeToWorld(m_normal) * OdGePoint3d(p.x, p.y, m_elevation);
}

OdResult OdDb2dPolyline::getStartParam(double& param) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return eInvalidInput;
  param = 0;
  return eOk;
}

OdResult OdDb2dPolyline::getEndParam(double& param) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return eInvalidInput;
  param = OdDbBulge::segmentCount(bulgeVertices(m_verts).length(), m_closed);
  return eOk;
}

OdResult OdDb2dPolyline::getStartPoint(OdGePoint3d& p) const {
  double param = 0;
  if (OdResult r = getStartParam(param); r != eOk) return r;
  return getPointAtParam(param, p);
}

OdResult OdDb2dPolyline::getEndPoint(OdGePoint3d& p) const {
  double param = 0;
  if (OdResult r = getEndParam(param); r != eOk) return r;
  return getPointAtParam(param, p);
}

OdResult OdDb2dPolyline::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  OdGePoint2d p2;
  if (!OdDbBulge::pointAtParam(bulgeVertices(m_verts), m_closed, param, p2)) return eInvalidInput;
  p = OdGeMatrix3d::planeToWorld(m_normal) * OdGePoint3d(p2.x, p2.y, m_elevation);
  return eOk;
}

OdResult OdDb2dPolyline::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  return OdDbBulge::distAtParam(bulgeVertices(m_verts), m_closed, param, dist) ? eOk : eInvalidInput;
}

OdResult OdDb2dPolyline::getArea(double& area) const {
  assertReadEnabled();
  area = std::fabs(OdDbBulge::signedArea(bulgeVertices(m_verts), m_closed));
  return eOk;
}

bool OdDb2dPolyline::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return false;
  ext = OdGeExtents3d();
  const OdArray<OdDbBulge::Vertex> v = bulgeVertices(m_verts);
  const OdGeMatrix3d toWcs = OdGeMatrix3d::planeToWorld(m_normal);
  auto wcs = [&](const OdGePoint2d& p) { return toWcs * OdGePoint3d(p.x, p.y, m_elevation); };
  const unsigned n = v.length(), segments = OdDbBulge::segmentCount(n, m_closed);
  for (const auto& vx : v) ext.addPoint(wcs(vx.pt));
  for (unsigned i = 0; i < segments; ++i) {
    if (!OdDbBulge::isArc(v[i].pt, v[(i + 1) % n].pt, v[i].bulge)) continue;
    for (int k = 1; k < 64; ++k) ext.addPoint(wcs(OdDbBulge::segmentPoint(v[i].pt, v[(i + 1) % n].pt, v[i].bulge, k / 64.0)));
  }
  return true;
}

void OdDb2dPolyline::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* p = static_cast<const OdDb2dPolyline*>(source);
  m_verts.clear();
  for (const OdDb2dVertexPtr& v : p->m_verts) {
    OdDb2dVertexPtr copy = OdDb2dVertex::createObject();
    copy->copyFrom(v.get());
    copy->setOwnerId(objectId());
    m_verts.append(copy);
  }
  m_type = p->m_type;
  m_defaultStart = p->m_defaultStart;
  m_defaultEnd = p->m_defaultEnd;
  m_elevation = p->m_elevation;
  m_thickness = p->m_thickness;
  m_normal = p->m_normal;
  m_closed = p->m_closed;
  m_plinegen = p->m_plinegen;
}
