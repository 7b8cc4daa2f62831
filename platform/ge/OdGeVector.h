#pragma once
#include "OdGeTol.h"
#include <cmath>

class OdGeMatrix3d;

class GE_API OdGeVector2d {
 public:
  double x = 0, y = 0;
  OdGeVector2d() = default;
  OdGeVector2d(double xx, double yy) : x(xx), y(yy) {}
  static const OdGeVector2d kXAxis, kYAxis;
  double length() const { return std::hypot(x, y); }
  double lengthSqrd() const { return x * x + y * y; }
  double angle() const {
    double a = std::atan2(y, x);
    return a < 0 ? a + Oda2PI : a;
  }
  double dotProduct(const OdGeVector2d& v) const { return x * v.x + y * v.y; }
  double crossProduct(const OdGeVector2d& v) const { return x * v.y - y * v.x; }
  OdGeVector2d normal(const OdGeTol& tol = OdGeContext::gTol) const {
    double l = length();
    return l <= tol.equalVector() ? *this : OdGeVector2d(x / l, y / l);
  }
  bool isZeroLength(const OdGeTol& tol = OdGeContext::gTol) const { return length() <= tol.equalVector(); }
  OdGeVector2d operator+(const OdGeVector2d& v) const { return {x + v.x, y + v.y}; }
  OdGeVector2d operator-(const OdGeVector2d& v) const { return {x - v.x, y - v.y}; }
  OdGeVector2d operator-() const { return {-x, -y}; }
  OdGeVector2d operator*(double s) const { return {x * s, y * s}; }
  friend bool operator==(const OdGeVector2d& a, const OdGeVector2d& b) { return a.x == b.x && a.y == b.y; }
};

class GE_API OdGeVector3d {
 public:
  double x = 0, y = 0, z = 0;
  OdGeVector3d() = default;
  OdGeVector3d(double xx, double yy, double zz) : x(xx), y(yy), z(zz) {}
  static const OdGeVector3d kIdentity, kXAxis, kYAxis, kZAxis;

  double length() const { return std::sqrt(x * x + y * y + z * z); }
  double lengthSqrd() const { return x * x + y * y + z * z; }
  double dotProduct(const OdGeVector3d& v) const { return x * v.x + y * v.y + z * v.z; }
  OdGeVector3d crossProduct(const OdGeVector3d& v) const {
    return {y * v.z - z * v.y, z * v.x - x * v.z, x * v.y - y * v.x};
  }
  // Unit vector in the same direction; a vector shorter than the tolerance is
  // returned unchanged.
  OdGeVector3d normal(const OdGeTol& tol = OdGeContext::gTol) const {
    double l = length();
    return l <= tol.equalVector() ? *this : OdGeVector3d(x / l, y / l, z / l);
  }
  OdGeVector3d& normalize(const OdGeTol& tol = OdGeContext::gTol) { return *this = normal(tol); }
  bool isZeroLength(const OdGeTol& tol = OdGeContext::gTol) const { return length() <= tol.equalVector(); }
  bool isUnitLength(const OdGeTol& tol = OdGeContext::gTol) const { return std::fabs(length() - 1.0) <= tol.equalVector(); }
  bool isEqualTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const {
    return (*this - v).length() <= tol.equalVector();
  }
  // Same direction: parallel and pointing the same way.
  bool isCodirectionalTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const {
    return normal(tol).isEqualTo(v.normal(tol), tol);
  }
  bool isParallelTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const {
    OdGeVector3d a = normal(tol), b = v.normal(tol);
    return a.isEqualTo(b, tol) || a.isEqualTo(-b, tol);
  }
  bool isPerpendicularTo(const OdGeVector3d& v, const OdGeTol& tol = OdGeContext::gTol) const {
    return std::fabs(normal(tol).dotProduct(v.normal(tol))) <= tol.equalVector();
  }
  // Angle between the two vectors, in [0, pi].
  double angleTo(const OdGeVector3d& v) const {
    return std::atan2(crossProduct(v).length(), dotProduct(v));
  }
  // Any vector perpendicular to this one.
  OdGeVector3d perpVector() const;
  OdGeVector3d& transformBy(const OdGeMatrix3d& m);
  OdGeVector3d& set(double xx, double yy, double zz) { x = xx; y = yy; z = zz; return *this; }

  OdGeVector3d operator+(const OdGeVector3d& v) const { return {x + v.x, y + v.y, z + v.z}; }
  OdGeVector3d operator-(const OdGeVector3d& v) const { return {x - v.x, y - v.y, z - v.z}; }
  OdGeVector3d& operator+=(const OdGeVector3d& v) { x += v.x; y += v.y; z += v.z; return *this; }
  OdGeVector3d& operator-=(const OdGeVector3d& v) { x -= v.x; y -= v.y; z -= v.z; return *this; }
  OdGeVector3d operator-() const { return {-x, -y, -z}; }
  OdGeVector3d operator*(double s) const { return {x * s, y * s, z * s}; }
  OdGeVector3d operator/(double s) const { return {x / s, y / s, z / s}; }
  friend OdGeVector3d operator*(double s, const OdGeVector3d& v) { return v * s; }
  double operator[](int i) const { return i == 0 ? x : i == 1 ? y : z; }
  double& operator[](int i) { return i == 0 ? x : i == 1 ? y : z; }
  friend bool operator==(const OdGeVector3d& a, const OdGeVector3d& b) { return a.x == b.x && a.y == b.y && a.z == b.z; }
  friend bool operator!=(const OdGeVector3d& a, const OdGeVector3d& b) { return !(a == b); }
};
