#pragma once
#include "DbEntity.h"

// A ray: a half-infinite line from its base point (WCS) along its unit direction.
class DB_API OdDbRay : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbRay);

 public:
  static OdSmartPtr<OdDbRay> createObject();
  OdDbRay();

  OdGePoint3d basePoint() const { assertReadEnabled(); return m_base; }
  void setBasePoint(const OdGePoint3d& p);
  OdGeVector3d unitDir() const { assertReadEnabled(); return m_dir; }
  // Stores the direction made unit length; a zero vector is stored as it is.
  void setUnitDir(const OdGeVector3d& dir);
  // The base point plus the unit direction, and the direction towards a point.
  OdGePoint3d secondPoint() const { assertReadEnabled(); return m_base + m_dir; }
  void setSecondPoint(const OdGePoint3d& p) { setUnitDir(p - basePoint()); }

  // The parameter is the distance from the base point, from 0 on.
  OdResult getStartParam(double& param) const override;
  OdResult getStartPoint(OdGePoint3d& p) const override;
  OdResult getPointAtParam(double param, OdGePoint3d& p) const override;
  OdResult getDistAtParam(double param, double& dist) const override;
  OdResult getArea(double& area) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_base;
  OdGeVector3d m_dir{1, 0, 0};
};
using OdDbRayPtr = OdSmartPtr<OdDbRay>;
