#pragma once
#include "DbEntity.h"

// A straight segment between two WCS points, with thickness along its normal.
class DB_API OdDbLine : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbLine);

 public:
  static OdSmartPtr<OdDbLine> createObject();
  OdDbLine();

  OdGePoint3d startPoint() const { assertReadEnabled(); return m_start; }
  OdGePoint3d endPoint() const { assertReadEnabled(); return m_end; }
  void setStartPoint(const OdGePoint3d& p);
  void setEndPoint(const OdGePoint3d& p);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdGePoint3d m_start, m_end;
  double m_thickness = 0;
  OdGeVector3d m_normal{0, 0, 1};
};
using OdDbLinePtr = OdSmartPtr<OdDbLine>;
