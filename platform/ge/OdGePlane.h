#pragma once
#include "OdGeMatrix3d.h"

// An unbounded plane with a parametrisation: origin and two unit axes. Built
// from a point and a normal, the axes are those of the arbitrary axis
// algorithm, so 2D coordinates on the plane are object coordinates.
class GE_API OdGePlane {
 public:
  OdGePlane();  // the XY plane through the origin
  OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& normal);
  OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& uAxis, const OdGeVector3d& vAxis);
  static const OdGePlane kXYPlane;

  OdGeVector3d normal() const { return m_normal; }
  OdGePoint3d pointOnPlane() const { return m_origin; }
  void get(OdGePoint3d& origin, OdGeVector3d& uAxis, OdGeVector3d& vAxis) const {
    origin = m_origin; uAxis = m_u; vAxis = m_v;
  }
  OdGePlane& set(const OdGePoint3d& origin, const OdGeVector3d& normal);
  double signedDistanceTo(const OdGePoint3d& p) const { return (p - m_origin).dotProduct(m_normal); }
  double distanceTo(const OdGePoint3d& p) const { return std::fabs(signedDistanceTo(p)); }
  bool isOn(const OdGePoint3d& p, const OdGeTol& tol = OdGeContext::gTol) const {
    return distanceTo(p) <= tol.equalPoint();
  }
  OdGePoint3d closestPointTo(const OdGePoint3d& p) const { return p - m_normal * signedDistanceTo(p); }
  OdGePoint3d evalPoint(const OdGePoint2d& uv) const { return m_origin + m_u * uv.x + m_v * uv.y; }
  OdGePoint2d paramOf(const OdGePoint3d& p) const {
    OdGeVector3d d = p - m_origin;
    return {d.dotProduct(m_u), d.dotProduct(m_v)};
  }

 private:
  OdGePoint3d m_origin;
  OdGeVector3d m_normal{0, 0, 1}, m_u{1, 0, 0}, m_v{0, 1, 0};
};

class GE_API OdGeExtents3d {
 public:
  OdGeExtents3d();  // invalid (empty) extents
  OdGeExtents3d(const OdGePoint3d& minPt, const OdGePoint3d& maxPt) : m_min(minPt), m_max(maxPt) {}
  static const OdGeExtents3d kInvalid;
  const OdGePoint3d& minPoint() const { return m_min; }
  const OdGePoint3d& maxPoint() const { return m_max; }
  void set(const OdGePoint3d& minPt, const OdGePoint3d& maxPt) { m_min = minPt; m_max = maxPt; }
  bool isValidExtents() const { return m_min.x <= m_max.x && m_min.y <= m_max.y && m_min.z <= m_max.z; }
  OdGeExtents3d& addPoint(const OdGePoint3d& p);
  OdGeExtents3d& addExt(const OdGeExtents3d& e);
  OdGePoint3d center() const { return m_min + (m_max - m_min) * 0.5; }
  bool contains(const OdGePoint3d& p, const OdGeTol& tol = OdGeContext::gTol) const;
  OdGeExtents3d& transformBy(const OdGeMatrix3d& m);

 private:
  OdGePoint3d m_min, m_max;
};
