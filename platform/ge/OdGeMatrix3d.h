#pragma once
#include "OdGePoint.h"

class OdGePlane;

// 4x4 affine transform acting on column vectors: p' = M * p.
class GE_API OdGeMatrix3d {
 public:
  OdGeMatrix3d();  // identity
  static const OdGeMatrix3d kIdentity;

  double operator()(int row, int col) const { return entry[row][col]; }
  double& operator()(int row, int col) { return entry[row][col]; }

  OdGeMatrix3d& setToIdentity();
  OdGeMatrix3d operator*(const OdGeMatrix3d& m) const;
  OdGeMatrix3d& preMultBy(const OdGeMatrix3d& left) { return *this = left * *this; }
  OdGeMatrix3d& postMultBy(const OdGeMatrix3d& right) { return *this = *this * right; }
  // Inverse of an affine transform; a singular matrix is returned unchanged
  // and reported through the optional flag.
  OdGeMatrix3d inverse(bool* pSingular = nullptr) const;
  OdGeMatrix3d& invert() { return *this = inverse(); }
  bool isSingular() const;
  double det() const;

  OdGeMatrix3d& setToTranslation(const OdGeVector3d& v);
  OdGeMatrix3d& setToRotation(double angle, const OdGeVector3d& axis,
                              const OdGePoint3d& center = OdGePoint3d::kOrigin);
  OdGeMatrix3d& setToScaling(double scale, const OdGePoint3d& center = OdGePoint3d::kOrigin);
  // Columns xAxis, yAxis, zAxis and the translation origin.
  OdGeMatrix3d& setCoordSystem(const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                               const OdGeVector3d& yAxis, const OdGeVector3d& zAxis);
  void getCoordSystem(OdGePoint3d& origin, OdGeVector3d& xAxis, OdGeVector3d& yAxis,
                      OdGeVector3d& zAxis) const;
  // Maps the "from" coordinate system onto the "to" one.
  OdGeMatrix3d& setToAlignCoordSys(const OdGePoint3d& fromOrigin, const OdGeVector3d& fromXAxis,
                                   const OdGeVector3d& fromYAxis, const OdGeVector3d& fromZAxis,
                                   const OdGePoint3d& toOrigin, const OdGeVector3d& toXAxis,
                                   const OdGeVector3d& toYAxis, const OdGeVector3d& toZAxis);
  // Object coordinate system of a planar entity with this normal (the
  // arbitrary axis algorithm), to world and back.
  OdGeMatrix3d& setToPlaneToWorld(const OdGeVector3d& normal);
  OdGeMatrix3d& setToPlaneToWorld(const OdGePlane& plane);
  OdGeMatrix3d& setToWorldToPlane(const OdGeVector3d& normal);
  OdGeMatrix3d& setToWorldToPlane(const OdGePlane& plane);

  static OdGeMatrix3d translation(const OdGeVector3d& v) { return OdGeMatrix3d().setToTranslation(v); }
  static OdGeMatrix3d rotation(double angle, const OdGeVector3d& axis,
                               const OdGePoint3d& center = OdGePoint3d::kOrigin) {
    return OdGeMatrix3d().setToRotation(angle, axis, center);
  }
  static OdGeMatrix3d scaling(double s, const OdGePoint3d& center = OdGePoint3d::kOrigin) {
    return OdGeMatrix3d().setToScaling(s, center);
  }
  static OdGeMatrix3d planeToWorld(const OdGeVector3d& normal) { return OdGeMatrix3d().setToPlaneToWorld(normal); }
  static OdGeMatrix3d planeToWorld(const OdGePlane& plane) { return OdGeMatrix3d().setToPlaneToWorld(plane); }
  static OdGeMatrix3d worldToPlane(const OdGeVector3d& normal) { return OdGeMatrix3d().setToWorldToPlane(normal); }
  static OdGeMatrix3d worldToPlane(const OdGePlane& plane) { return OdGeMatrix3d().setToWorldToPlane(plane); }
  static OdGeMatrix3d alignCoordSys(const OdGePoint3d& fromOrigin, const OdGeVector3d& fromXAxis,
                                    const OdGeVector3d& fromYAxis, const OdGeVector3d& fromZAxis,
                                    const OdGePoint3d& toOrigin, const OdGeVector3d& toXAxis,
                                    const OdGeVector3d& toYAxis, const OdGeVector3d& toZAxis) {
    return OdGeMatrix3d().setToAlignCoordSys(fromOrigin, fromXAxis, fromYAxis, fromZAxis, toOrigin,
                                             toXAxis, toYAxis, toZAxis);
  }

  bool isEqualTo(const OdGeMatrix3d& m, const OdGeTol& tol = OdGeContext::gTol) const;

  double entry[4][4];
};

inline OdGePoint3d operator*(const OdGeMatrix3d& m, const OdGePoint3d& p) {
  return OdGePoint3d(p).transformBy(m);
}
inline OdGeVector3d operator*(const OdGeMatrix3d& m, const OdGeVector3d& v) {
  return OdGeVector3d(v).transformBy(m);
}

// The axes of the object coordinate system of a normal (arbitrary axis
// algorithm): xAxis and yAxis complete the normal to a right-handed frame.
GE_API void odgeArbitraryAxes(const OdGeVector3d& normal, OdGeVector3d& xAxis, OdGeVector3d& yAxis);
