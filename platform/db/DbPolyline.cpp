#include "DbPolyline.h"
#include "DbBulgeGeometry.h"

OdDbPolyline::OdDbPolyline() = default;

namespace {
OdArray<OdDbBulge::Vertex> bulgeVertices(const auto& verts) {
  OdArray<OdDbBulge::Vertex> out;
  out.reserve(verts.size());
  for (const auto& v : verts) out.append(OdDbBulge::Vertex{v.pt, v.bulge});
  return out;
}
}  // namespace

const OdDbPolyline::Vertex& OdDbPolyline::vertex(unsigned index) const {
  assertReadEnabled();
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  return m_verts[index];
}

OdDbPolyline::Vertex& OdDbPolyline::vertexForWrite(unsigned index) {
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  return m_verts[index];
}

OdGePoint3d OdDbPolyline::toWcs(const OdGePoint2d& p) const {
  return OdGeMatrix3d::planeToWorld(m_normal) * OdGePoint3d(p.x, p.y, m_elevation);
}

void OdDbPolyline::addVertexAt(unsigned index, const OdGePoint2d& pt, double bulge, double startWidth,
                               double endWidth) {
  assertWriteEnabled();
  Vertex v{pt, bulge, startWidth < 0 ? m_constantWidth : startWidth, endWidth < 0 ? m_constantWidth : endWidth};
  if (v.startWidth != m_constantWidth || v.endWidth != m_constantWidth) m_constantWidth = 0;
  m_verts.insertAt(std::min(index, m_verts.length()), v);
}

void OdDbPolyline::removeVertexAt(unsigned index) {
  if (index >= m_verts.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  m_verts.removeAt(index);
}

void OdDbPolyline::reset(bool reuse, unsigned numVerts) {
  assertWriteEnabled();
  if (!reuse) {
    // Room for the vertices to come, so adding them one by one does not
    // reallocate (reading a drawing adds a million polylines' worth).
    m_verts.clear();
    m_verts.setPhysicalLength(numVerts);
  } else if (numVerts < m_verts.length()) m_verts.setLogicalLength(numVerts);
}

void OdDbPolyline::getPointAt(unsigned index, OdGePoint2d& pt) const { pt = vertex(index).pt; }
void OdDbPolyline::getPointAt(unsigned index, OdGePoint3d& pt) const { pt = toWcs(vertex(index).pt); }
void OdDbPolyline::setPointAt(unsigned index, const OdGePoint2d& pt) { vertexForWrite(index).pt = pt; }
double OdDbPolyline::getBulgeAt(unsigned index) const { return vertex(index).bulge; }
void OdDbPolyline::setBulgeAt(unsigned index, double bulge) { vertexForWrite(index).bulge = bulge; }

void OdDbPolyline::getWidthsAt(unsigned index, double& startWidth, double& endWidth) const {
  const Vertex& v = vertex(index);
  startWidth = v.startWidth;
  endWidth = v.endWidth;
}

void OdDbPolyline::setWidthsAt(unsigned index, double startWidth, double endWidth) {
  Vertex& v = vertexForWrite(index);
  v.startWidth = startWidth;
  v.endWidth = endWidth;
  if (startWidth != m_constantWidth || endWidth != m_constantWidth) m_constantWidth = 0;
}

double OdDbPolyline::getStartWidthAt(unsigned index) const { return vertex(index).startWidth; }
double OdDbPolyline::getEndWidthAt(unsigned index) const { return vertex(index).endWidth; }
void OdDbPolyline::setStartWidthAt(unsigned index, double w) { setWidthsAt(index, w, getEndWidthAt(index)); }
void OdDbPolyline::setEndWidthAt(unsigned index, double w) { setWidthsAt(index, getStartWidthAt(index), w); }

OdDbPolyline::SegType OdDbPolyline::segType(unsigned index) const {
  assertReadEnabled();
  const unsigned n = m_verts.length();
  if (index >= n) return kEmpty;
  if (n == 1 || (!m_closed && index == n - 1)) return kPoint;
  const Vertex& a = m_verts[index];
  const Vertex& b = m_verts[(index + 1) % n];
  if (a.pt.distanceTo(b.pt) <= OdDbBulge::kCoincident) return kCoincident;
  return std::fabs(a.bulge) > OdDbBulge::kStraight ? kArc : kLine;
}

void OdDbPolyline::checkSegment(unsigned index, SegType wanted) const {
  if (index >= numVerts()) throw OdError_InvalidIndex();
  if (segType(index) != wanted) throw OdError(eInvalidInput, OdString("the segment is not of that kind"));
}

void OdDbPolyline::getLineSegAt(unsigned index, OdGeLineSeg2d& seg) const {
  checkSegment(index, kLine);
  seg.set(m_verts[index].pt, m_verts[(index + 1) % m_verts.length()].pt);
}

void OdDbPolyline::getLineSegAt(unsigned index, OdGeLineSeg3d& seg) const {
  OdGeLineSeg2d s;
  getLineSegAt(index, s);
  seg.set(toWcs(s.startPoint()), toWcs(s.endPoint()));
}

void OdDbPolyline::getArcSegAt(unsigned index, OdGeCircArc2d& arc) const {
  checkSegment(index, kArc);
  arc.set(m_verts[index].pt, m_verts[(index + 1) % m_verts.length()].pt, m_verts[index].bulge);
}

void OdDbPolyline::getArcSegAt(unsigned index, OdGeCircArc3d& arc) const {
  OdGeCircArc2d a;
  getArcSegAt(index, a);
  // In space the arc turns counter-clockwise about its normal: a clockwise
  // arc of the plane has the opposite normal, and its angles are measured
  // from the same reference direction on the mirrored side.
  OdGeVector3d x, y;
  odgeArbitraryAxes(m_normal, x, y);
  const OdGePoint2d c = a.center();
  arc.set(toWcs(c), a.isClockWise() ? -m_normal : m_normal, x, a.radius(), a.startAng(), a.endAng());
}

void OdDbPolyline::setConstantWidth(double width) {
  assertWriteEnabled();
  m_constantWidth = width;
  for (Vertex& v : m_verts) v.startWidth = v.endWidth = width;
}

bool OdDbPolyline::hasWidth() const {
  assertReadEnabled();
  if (m_constantWidth != 0) return true;
  return std::any_of(m_verts.begin(), m_verts.end(), [](const Vertex& v) { return v.startWidth != 0 || v.endWidth != 0; });
}

bool OdDbPolyline::hasBulges() const {
  assertReadEnabled();
  return std::any_of(m_verts.begin(), m_verts.end(), [](const Vertex& v) { return v.bulge != 0; });
}

void OdDbPolyline::setClosed(bool closed) { assertWriteEnabled(); m_closed = closed; }
void OdDbPolyline::setPlinegen(bool on) { assertWriteEnabled(); m_plinegen = on; }
void OdDbPolyline::setElevation(double z) { assertWriteEnabled(); m_elevation = z; }
void OdDbPolyline::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }

void OdDbPolyline::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

OdResult OdDbPolyline::getStartParam(double& param) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return eInvalidInput;
  param = 0;
  return eOk;
}

OdResult OdDbPolyline::getEndParam(double& param) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return eInvalidInput;
  param = OdDbBulge::segmentCount(m_verts.length(), m_closed);
  return eOk;
}

OdResult OdDbPolyline::getStartPoint(OdGePoint3d& p) const {
  double param = 0;
  if (OdResult r = getStartParam(param); r != eOk) return r;
  return getPointAtParam(param, p);
}

OdResult OdDbPolyline::getEndPoint(OdGePoint3d& p) const {
  double param = 0;
  if (OdResult r = getEndParam(param); r != eOk) return r;
  return getPointAtParam(param, p);
}

OdResult OdDbPolyline::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  OdGePoint2d p2;
  if (!OdDbBulge::pointAtParam(bulgeVertices(m_verts), m_closed, param, p2)) return eInvalidInput;
  p = toWcs(p2);
  return eOk;
}

OdResult OdDbPolyline::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  return OdDbBulge::distAtParam(bulgeVertices(m_verts), m_closed, param, dist) ? eOk : eInvalidInput;
}

OdResult OdDbPolyline::getArea(double& area) const {
  assertReadEnabled();
  area = std::fabs(OdDbBulge::signedArea(bulgeVertices(m_verts), m_closed));
  return eOk;
}

bool OdDbPolyline::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  if (m_verts.isEmpty()) return false;
  ext = OdGeExtents3d();
  const OdArray<OdDbBulge::Vertex> v = bulgeVertices(m_verts);
  const unsigned n = v.length(), segments = OdDbBulge::segmentCount(n, m_closed);
  for (const auto& vx : v) ext.addPoint(toWcs(vx.pt));
  // Arcs reach beyond their ends: sample them finely enough for extents.
  for (unsigned i = 0; i < segments; ++i) {
    if (!OdDbBulge::isArc(v[i].pt, v[(i + 1) % n].pt, v[i].bulge)) continue;
    for (int k = 1; k < 64; ++k)
      ext.addPoint(toWcs(OdDbBulge::segmentPoint(v[i].pt, v[(i + 1) % n].pt, v[i].bulge, k / 64.0)));
  }
  if (m_thickness != 0) {
    const OdGeExtents3d base = ext;
    ext.addPoint(base.minPoint() + m_normal * m_thickness).addPoint(base.maxPoint() + m_normal * m_thickness);
  }
  return true;
}

void OdDbPolyline::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* p = static_cast<const OdDbPolyline*>(source);
  m_verts = p->m_verts;
  m_constantWidth = p->m_constantWidth;
  m_elevation = p->m_elevation;
  m_thickness = p->m_thickness;
  m_normal = p->m_normal;
  m_closed = p->m_closed;
  m_plinegen = p->m_plinegen;
}
