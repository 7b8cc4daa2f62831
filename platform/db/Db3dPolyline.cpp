#include "Db3dPolyline.h"
#include <algorithm>
#include <cmath>

OdDb3dPolylineVertex::OdDb3dPolylineVertex() = default;
void OdDb3dPolylineVertex::setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_position = p; }
void OdDb3dPolylineVertex::setVertexType(OdDb::Vertex3dType t) { assertWriteEnabled(); m_type = t; }

void OdDb3dPolylineVertex::copyFrom(const OdRxObject* source) {
  OdDbVertex::copyFrom(source);
  auto* v = static_cast<const OdDb3dPolylineVertex*>(source);
  m_position = v->m_position;
  m_type = v->m_type;
}

OdDb3dPolyline::OdDb3dPolyline() = default;

unsigned OdDb3dPolyline::appendVertex(OdDb3dPolylineVertex* vertex) {
  if (!vertex) throw OdError(eNullPtr);
  if (vertex->isDBRO()) throw OdError(eAlreadyInDb, OdString("a vertex belongs to its polyline only"));
  assertWriteEnabled();
  vertex->setOwnerId(objectId());
  m_verts.append(OdDb3dPolylineVertexPtr(vertex));
  return m_verts.length() - 1;
}

const OdDb3dPolylineVertex* OdDb3dPolyline::vertexAt(unsigned index) const {
  assertReadEnabled();
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  return m_verts[index].get();
}

OdDb3dPolylineVertex* OdDb3dPolyline::vertexForWrite(unsigned index) {
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  return m_verts[index].get();
}

void OdDb3dPolyline::setPolyType(OdDb::Poly3dType t) { assertWriteEnabled(); m_type = t; }
void OdDb3dPolyline::setClosed(bool closed) { assertWriteEnabled(); m_closed = closed; }

// The points the curve runs through: the frame of a spline-fit polyline
// (its control points) only when it has nothing else.
OdGePoint3dArray OdDb3dPolyline::curvePoints() const {
  const bool onlyFrame = std::all_of(m_verts.begin(), m_verts.end(), [](const OdDb3dPolylineVertexPtr& v) {
    return v->vertexType() == OdDb::k3dControlVertex;
  });
  OdGePoint3dArray out;
  for (const OdDb3dPolylineVertexPtr& v : m_verts)
    if (onlyFrame || v->vertexType() != OdDb::k3dControlVertex) out.append(v->position());
  if (m_closed && out.length() > 1) out.append(out[0]);
  return out;
}

OdResult OdDb3dPolyline::getStartParam(double& param) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return eInvalidInput;
  param = 0;
  return eOk;
}

OdResult OdDb3dPolyline::getEndParam(double& param) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return eInvalidInput;
  param = std::max(0, int(curvePoints().length()) - 1);
  return eOk;
}

OdResult OdDb3dPolyline::getStartPoint(OdGePoint3d& p) const { return getPointAtParam(0, p); }

OdResult OdDb3dPolyline::getEndPoint(OdGePoint3d& p) const {
  double end = 0;
  if (OdResult r = getEndParam(end); r != eOk) return r;
  return getPointAtParam(end, p);
}

OdResult OdDb3dPolyline::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  const OdGePoint3dArray pts = curvePoints();
  if (pts.isEmpty() || !(param >= 0) || param > pts.length() - 1 + 1e-12) return eInvalidInput;
  const unsigned i = std::min(unsigned(param), pts.length() > 1 ? pts.length() - 2 : 0u);
  if (pts.length() == 1) {
    p = pts[0];
    return eOk;
  }
  p = pts[i] + (pts[i + 1] - pts[i]) * (param - i);
  return eOk;
}

OdResult OdDb3dPolyline::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  const OdGePoint3dArray pts = curvePoints();
  if (pts.isEmpty() || !(param >= 0) || param > pts.length() - 1 + 1e-12) return eInvalidInput;
  dist = 0;
  for (unsigned i = 0; i + 1 < pts.length() && i < param; ++i)
    dist += pts[i].distanceTo(pts[i + 1]) * std::min(1.0, param - i);
  return eOk;
}

// The area of the figure closed by joining the end to the start: half the
// length of the vector area (exact for a plane figure).
OdResult OdDb3dPolyline::getArea(double& area) const {
  assertReadEnabled();
  OdGePoint3dArray pts = curvePoints();
  if (m_closed && pts.length() > 1) pts.pop_back();
  OdGeVector3d sum;
  for (unsigned i = 0; i < pts.length(); ++i)
    sum += pts[i].asVector().crossProduct(pts[(i + 1) % pts.length()].asVector());
  area = sum.length() / 2;
  return eOk;
}

bool OdDb3dPolyline::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return false;
  ext = OdGeExtents3d();
  for (const OdDb3dPolylineVertexPtr& v : m_verts) ext.addPoint(v->position());
  return true;
}

void OdDb3dPolyline::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* p = static_cast<const OdDb3dPolyline*>(source);
  m_verts.clear();
  for (const OdDb3dPolylineVertexPtr& v : p->m_verts) {
    OdDb3dPolylineVertexPtr copy = OdDb3dPolylineVertex::createObject();
    copy->copyFrom(v.get());
    copy->setOwnerId(objectId());
    m_verts.append(copy);
  }
  m_type = p->m_type;
  m_closed = p->m_closed;
}
