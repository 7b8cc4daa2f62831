#pragma once
#include "DbEntity.h"

// A point (WCS position) with thickness along its normal and the angle of
// its X axis in its object coordinate system (the point display's rotation).
class DB_API OdDbPoint : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbPoint);

 public:
  static OdSmartPtr<OdDbPoint> createObject();
  OdDbPoint();

  OdGePoint3d position() const { assertReadEnabled(); return m_position; }
  void setPosition(const OdGePoint3d& p);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  double ecsRotation() const { assertReadEnabled(); return m_ecsRotation; }
  void setEcsRotation(double angle);
  // The X axis of the point in WCS: the object X axis turned by ecsRotation.
  OdGeVector3d xAxis() const;

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_position;
  double m_thickness = 0, m_ecsRotation = 0;
  OdGeVector3d m_normal{0, 0, 1};
};
using OdDbPointPtr = OdSmartPtr<OdDbPoint>;
