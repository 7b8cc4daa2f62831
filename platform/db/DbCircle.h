#pragma once
#include "DbEntity.h"

// A full circle: centre (WCS) and radius in the plane of its normal, with
// thickness along the normal.
class DB_API OdDbCircle : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbCircle);

 public:
  static OdSmartPtr<OdDbCircle> createObject();
  OdDbCircle();

  OdGePoint3d center() const { assertReadEnabled(); return m_center; }
  void setCenter(const OdGePoint3d& c);
  double radius() const { assertReadEnabled(); return m_radius; }
  // A radius that is not a positive finite number raises OdError(eInvalidInput).
  void setRadius(double r);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  bool isClosed() const override { return true; }
  // The parameter is the angle from the X axis of the object coordinate
  // system, 0 to 2pi.
  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdGePoint3d m_center;
  double m_radius = 1, m_thickness = 0;
  OdGeVector3d m_normal{0, 0, 1};
};
using OdDbCirclePtr = OdSmartPtr<OdDbCircle>;
