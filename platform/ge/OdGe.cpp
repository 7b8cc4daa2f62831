#include "OdGePlane.h"
#include <limits>

OdGeTol OdGeContext::gTol(1.e-10);
OdGeTol OdGeContext::gZeroTol(1.e-300);

const OdGeVector2d OdGeVector2d::kXAxis(1, 0);
const OdGeVector2d OdGeVector2d::kYAxis(0, 1);
const OdGeVector3d OdGeVector3d::kIdentity(0, 0, 0);
const OdGeVector3d OdGeVector3d::kXAxis(1, 0, 0);
const OdGeVector3d OdGeVector3d::kYAxis(0, 1, 0);
const OdGeVector3d OdGeVector3d::kZAxis(0, 0, 1);
const OdGePoint2d OdGePoint2d::kOrigin(0, 0);
const OdGePoint3d OdGePoint3d::kOrigin(0, 0, 0);
const OdGeMatrix3d OdGeMatrix3d::kIdentity;
const OdGePlane OdGePlane::kXYPlane;
const OdGeExtents3d OdGeExtents3d::kInvalid;

void odgeArbitraryAxes(const OdGeVector3d& normal, OdGeVector3d& xAxis, OdGeVector3d& yAxis) {
  const OdGeVector3d n = normal.normal();
  // The DXF reference's arbitrary axis algorithm: near the world Z axis the
  // X axis comes from world Y, elsewhere from world Z.
  constexpr double kLimit = 1.0 / 64.0;
  if (std::fabs(n.x) < kLimit && std::fabs(n.y) < kLimit)
    xAxis = OdGeVector3d::kYAxis.crossProduct(n).normal();
  else
    xAxis = OdGeVector3d::kZAxis.crossProduct(n).normal();
  yAxis = n.crossProduct(xAxis).normal();
}

OdGeVector3d OdGeVector3d::perpVector() const {
  OdGeVector3d xa, ya;
  odgeArbitraryAxes(*this, xa, ya);
  return xa;
}

OdGeVector3d& OdGeVector3d::transformBy(const OdGeMatrix3d& m) {
  const double nx = m.entry[0][0] * x + m.entry[0][1] * y + m.entry[0][2] * z;
  const double ny = m.entry[1][0] * x + m.entry[1][1] * y + m.entry[1][2] * z;
  const double nz = m.entry[2][0] * x + m.entry[2][1] * y + m.entry[2][2] * z;
  x = nx; y = ny; z = nz;
  return *this;
}

OdGePoint3d& OdGePoint3d::transformBy(const OdGeMatrix3d& m) {
  const double nx = m.entry[0][0] * x + m.entry[0][1] * y + m.entry[0][2] * z + m.entry[0][3];
  const double ny = m.entry[1][0] * x + m.entry[1][1] * y + m.entry[1][2] * z + m.entry[1][3];
  const double nz = m.entry[2][0] * x + m.entry[2][1] * y + m.entry[2][2] * z + m.entry[2][3];
  x = nx; y = ny; z = nz;
  return *this;
}

OdGePoint3d::OdGePoint3d(const OdGePlane& plane, const OdGePoint2d& pt2d) {
  *this = plane.evalPoint(pt2d);
}

OdGePoint2d OdGePoint3d::convert2d(const OdGePlane& plane) const { return plane.paramOf(*this); }

OdGePoint3d OdGePoint3d::orthoProject(const OdGePlane& plane) const { return plane.closestPointTo(*this); }

OdGePoint3d OdGePoint3d::project(const OdGePlane& plane, const OdGeVector3d& dir) const {
  const double denom = dir.dotProduct(plane.normal());
  if (std::fabs(denom) <= OdGeContext::gTol.equalVector()) return orthoProject(plane);
  return *this - dir * (plane.signedDistanceTo(*this) / denom);
}

OdGeMatrix3d::OdGeMatrix3d() { setToIdentity(); }

OdGeMatrix3d& OdGeMatrix3d::setToIdentity() {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) entry[r][c] = r == c ? 1.0 : 0.0;
  return *this;
}

OdGeMatrix3d OdGeMatrix3d::operator*(const OdGeMatrix3d& m) const {
  OdGeMatrix3d out;
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c) {
      double s = 0;
      for (int k = 0; k < 4; ++k) s += entry[r][k] * m.entry[k][c];
      out.entry[r][c] = s;
    }
  return out;
}

double OdGeMatrix3d::det() const {
  const auto& e = entry;
  return e[0][0] * (e[1][1] * e[2][2] - e[1][2] * e[2][1]) -
         e[0][1] * (e[1][0] * e[2][2] - e[1][2] * e[2][0]) +
         e[0][2] * (e[1][0] * e[2][1] - e[1][1] * e[2][0]);
}

bool OdGeMatrix3d::isSingular() const { return std::fabs(det()) <= 1e-300; }

OdGeMatrix3d OdGeMatrix3d::inverse(bool* pSingular) const {
  const double d = det();
  if (pSingular) *pSingular = std::fabs(d) <= 1e-300;
  if (std::fabs(d) <= 1e-300) return *this;
  const auto& e = entry;
  OdGeMatrix3d inv;
  inv.entry[0][0] = (e[1][1] * e[2][2] - e[1][2] * e[2][1]) / d;
  inv.entry[0][1] = (e[0][2] * e[2][1] - e[0][1] * e[2][2]) / d;
  inv.entry[0][2] = (e[0][1] * e[1][2] - e[0][2] * e[1][1]) / d;
  inv.entry[1][0] = (e[1][2] * e[2][0] - e[1][0] * e[2][2]) / d;
  inv.entry[1][1] = (e[0][0] * e[2][2] - e[0][2] * e[2][0]) / d;
  inv.entry[1][2] = (e[0][2] * e[1][0] - e[0][0] * e[1][2]) / d;
  inv.entry[2][0] = (e[1][0] * e[2][1] - e[1][1] * e[2][0]) / d;
  inv.entry[2][1] = (e[0][1] * e[2][0] - e[0][0] * e[2][1]) / d;
  inv.entry[2][2] = (e[0][0] * e[1][1] - e[0][1] * e[1][0]) / d;
  for (int r = 0; r < 3; ++r)
    inv.entry[r][3] = -(inv.entry[r][0] * e[0][3] + inv.entry[r][1] * e[1][3] + inv.entry[r][2] * e[2][3]);
  return inv;
}

OdGeMatrix3d& OdGeMatrix3d::setToTranslation(const OdGeVector3d& v) {
  setToIdentity();
  entry[0][3] = v.x; entry[1][3] = v.y; entry[2][3] = v.z;
  return *this;
}

OdGeMatrix3d& OdGeMatrix3d::setToRotation(double angle, const OdGeVector3d& axis, const OdGePoint3d& center) {
  const OdGeVector3d u = axis.normal();
  const double c = std::cos(angle), s = std::sin(angle), t = 1 - c;
  setToIdentity();
  entry[0][0] = t * u.x * u.x + c;       entry[0][1] = t * u.x * u.y - s * u.z; entry[0][2] = t * u.x * u.z + s * u.y;
  entry[1][0] = t * u.x * u.y + s * u.z; entry[1][1] = t * u.y * u.y + c;       entry[1][2] = t * u.y * u.z - s * u.x;
  entry[2][0] = t * u.x * u.z - s * u.y; entry[2][1] = t * u.y * u.z + s * u.x; entry[2][2] = t * u.z * u.z + c;
  // Rotate about center: T(c) * R * T(-c).
  const OdGeVector3d cv = center.asVector();
  const OdGeVector3d rc = OdGeVector3d(cv).transformBy(*this);
  entry[0][3] = cv.x - rc.x; entry[1][3] = cv.y - rc.y; entry[2][3] = cv.z - rc.z;
  return *this;
}

OdGeMatrix3d& OdGeMatrix3d::setToScaling(double scale, const OdGePoint3d& center) {
  setToIdentity();
  for (int i = 0; i < 3; ++i) {
    entry[i][i] = scale;
    entry[i][3] = center[i] * (1 - scale);
  }
  return *this;
}

OdGeMatrix3d& OdGeMatrix3d::setCoordSystem(const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                                           const OdGeVector3d& yAxis, const OdGeVector3d& zAxis) {
  setToIdentity();
  for (int r = 0; r < 3; ++r) {
    entry[r][0] = xAxis[r];
    entry[r][1] = yAxis[r];
    entry[r][2] = zAxis[r];
    entry[r][3] = origin[r];
  }
  return *this;
}

void OdGeMatrix3d::getCoordSystem(OdGePoint3d& origin, OdGeVector3d& xAxis, OdGeVector3d& yAxis,
                                  OdGeVector3d& zAxis) const {
  for (int r = 0; r < 3; ++r) {
    xAxis[r] = entry[r][0];
    yAxis[r] = entry[r][1];
    zAxis[r] = entry[r][2];
    origin[r] = entry[r][3];
  }
}

OdGeMatrix3d& OdGeMatrix3d::setToAlignCoordSys(const OdGePoint3d& fromOrigin, const OdGeVector3d& fromXAxis,
                                               const OdGeVector3d& fromYAxis, const OdGeVector3d& fromZAxis,
                                               const OdGePoint3d& toOrigin, const OdGeVector3d& toXAxis,
                                               const OdGeVector3d& toYAxis, const OdGeVector3d& toZAxis) {
  OdGeMatrix3d from, to;
  from.setCoordSystem(fromOrigin, fromXAxis, fromYAxis, fromZAxis);
  to.setCoordSystem(toOrigin, toXAxis, toYAxis, toZAxis);
  return *this = to * from.inverse();
}

OdGeMatrix3d& OdGeMatrix3d::setToPlaneToWorld(const OdGeVector3d& normal) {
  OdGeVector3d xa, ya;
  odgeArbitraryAxes(normal, xa, ya);
  return setCoordSystem(OdGePoint3d::kOrigin, xa, ya, normal.normal());
}

OdGeMatrix3d& OdGeMatrix3d::setToPlaneToWorld(const OdGePlane& plane) {
  OdGePoint3d o;
  OdGeVector3d u, v;
  plane.get(o, u, v);
  return setCoordSystem(o, u, v, plane.normal());
}

OdGeMatrix3d& OdGeMatrix3d::setToWorldToPlane(const OdGeVector3d& normal) {
  return *this = OdGeMatrix3d::planeToWorld(normal).inverse();
}

OdGeMatrix3d& OdGeMatrix3d::setToWorldToPlane(const OdGePlane& plane) {
  return *this = OdGeMatrix3d::planeToWorld(plane).inverse();
}

bool OdGeMatrix3d::isEqualTo(const OdGeMatrix3d& m, const OdGeTol& tol) const {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c)
      if (std::fabs(entry[r][c] - m.entry[r][c]) > tol.equalPoint()) return false;
  return true;
}

OdGePlane::OdGePlane() = default;

OdGePlane::OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& normal) { set(origin, normal); }

OdGePlane::OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& uAxis, const OdGeVector3d& vAxis)
    : m_origin(origin), m_normal(uAxis.crossProduct(vAxis).normal()), m_u(uAxis.normal()) {
  m_v = m_normal.crossProduct(m_u).normal();
}

OdGePlane& OdGePlane::set(const OdGePoint3d& origin, const OdGeVector3d& normal) {
  m_origin = origin;
  m_normal = normal.normal();
  odgeArbitraryAxes(m_normal, m_u, m_v);
  return *this;
}

OdGeExtents3d::OdGeExtents3d()
    : m_min(std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), std::numeric_limits<double>::max()),
      m_max(-std::numeric_limits<double>::max(), -std::numeric_limits<double>::max(), -std::numeric_limits<double>::max()) {}

OdGeExtents3d& OdGeExtents3d::addPoint(const OdGePoint3d& p) {
  for (int i = 0; i < 3; ++i) {
    m_min[i] = std::min(m_min[i], p[i]);
    m_max[i] = std::max(m_max[i], p[i]);
  }
  return *this;
}

OdGeExtents3d& OdGeExtents3d::addExt(const OdGeExtents3d& e) {
  if (e.isValidExtents()) {
    addPoint(e.m_min);
    addPoint(e.m_max);
  }
  return *this;
}

bool OdGeExtents3d::contains(const OdGePoint3d& p, const OdGeTol& tol) const {
  for (int i = 0; i < 3; ++i)
    if (p[i] < m_min[i] - tol.equalPoint() || p[i] > m_max[i] + tol.equalPoint()) return false;
  return true;
}

OdGeExtents3d& OdGeExtents3d::transformBy(const OdGeMatrix3d& m) {
  if (!isValidExtents()) return *this;
  OdGeExtents3d out;
  for (int i = 0; i < 8; ++i)
    out.addPoint(m * OdGePoint3d(i & 1 ? m_max.x : m_min.x, i & 2 ? m_max.y : m_min.y, i & 4 ? m_max.z : m_min.z));
  return *this = out;
}
