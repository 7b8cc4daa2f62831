#pragma once
#include "OdGeVector.h"

class OdGeMatrix3d;
class OdGePlane;

class GE_API OdGePoint2d {
 public:
  double x = 0, y = 0;
  OdGePoint2d() = default;
  OdGePoint2d(double xx, double yy) : x(xx), y(yy) {}
  static const OdGePoint2d kOrigin;
  double distanceTo(const OdGePoint2d& p) const { return std::hypot(x - p.x, y - p.y); }
  bool isEqualTo(const OdGePoint2d& p, const OdGeTol& tol = OdGeContext::gTol) const {
    return distanceTo(p) <= tol.equalPoint();
  }
  OdGeVector2d asVector() const { return {x, y}; }
  OdGePoint2d operator+(const OdGeVector2d& v) const { return {x + v.x, y + v.y}; }
  OdGePoint2d operator-(const OdGeVector2d& v) const { return {x - v.x, y - v.y}; }
  OdGeVector2d operator-(const OdGePoint2d& p) const { return {x - p.x, y - p.y}; }
  double operator[](int i) const { return i == 0 ? x : y; }
  double& operator[](int i) { return i == 0 ? x : y; }
  friend bool operator==(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x == b.x && a.y == b.y; }
  friend bool operator!=(const OdGePoint2d& a, const OdGePoint2d& b) { return !(a == b); }
};

class GE_API OdGePoint3d {
 public:
  double x = 0, y = 0, z = 0;
  OdGePoint3d() = default;
  OdGePoint3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
  // The point of plane's 2D coordinate system (origin + x*u + y*v).
  OdGePoint3d(const OdGePlane& plane, const OdGePoint2d& pt2d);
  static const OdGePoint3d kOrigin;

  double distanceTo(const OdGePoint3d& p) const { return (*this - p).length(); }
  bool isEqualTo(const OdGePoint3d& p, const OdGeTol& tol = OdGeContext::gTol) const {
    return distanceTo(p) <= tol.equalPoint();
  }
  OdGeVector3d asVector() const { return {x, y, z}; }
  OdGePoint2d convert2d() const { return {x, y}; }
  // Coordinates of the point in plane's own 2D system (origin and axes of
  // the plane's parametrisation), after projecting it onto the plane.
  OdGePoint2d convert2d(const OdGePlane& plane) const;
  OdGePoint3d& transformBy(const OdGeMatrix3d& m);
  OdGePoint3d& set(double xx, double yy, double zz) { x = xx; y = yy; z = zz; return *this; }
  OdGePoint3d project(const OdGePlane& plane, const OdGeVector3d& dir) const;
  OdGePoint3d orthoProject(const OdGePlane& plane) const;

  OdGePoint3d operator+(const OdGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
  OdGePoint3d operator-(const OdGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
  OdGePoint3d& operator+=(const OdGeVector3d& v) { x += v.x; y += v.y; z += v.z; return *this; }
  OdGePoint3d& operator-=(const OdGeVector3d& v) { x -= v.x; y -= v.y; z -= v.z; return *this; }
  OdGeVector3d operator-(const OdGePoint3d& p) const { return {x - p.x, y - p.y, z - p.z}; }
  double operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }
  double& operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
  friend bool operator==(const OdGePoint3d& a, const OdGePoint3d& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
  friend bool operator!=(const OdGePoint3d& a, const OdGePoint3d& b) { return !(a == b); }
};
