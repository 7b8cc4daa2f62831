#pragma once
#include "DbEntity.h"

// A circular arc: centre (WCS), radius, and start and end angles measured
// counter-clockwise about the normal from the X axis of the object
// coordinate system (arbitrary axis algorithm), with thickness along the
// normal. The arc runs counter-clockwise from the start to the end angle;
// the parameter is the angle, from startAngle() to a value above it.
class DB_API OdDbArc : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbArc);

 public:
  static OdSmartPtr<OdDbArc> createObject();
  OdDbArc();

  OdGePoint3d center() const { assertReadEnabled(); return m_center; }
  void setCenter(const OdGePoint3d& c);
  double radius() const { assertReadEnabled(); return m_radius; }
  // A radius that is not a positive finite number raises OdError(eInvalidInput).
  void setRadius(double r);
  // Angles in [0, 2pi); a value outside is brought into it, one that is not
  // finite raises OdError(eInvalidInput).
  double startAngle() const { assertReadEnabled(); return m_start; }
  void setStartAngle(double a);
  double endAngle() const { assertReadEnabled(); return m_end; }
  void setEndAngle(double a);
  // The angle the arc sweeps, in (0, 2pi]: equal angles make a full turn.
  double totalAngle() const;
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdGePoint3d m_center;
  double m_radius = 1, m_start = 0, m_end = OdaPI, m_thickness = 0;
  OdGeVector3d m_normal{0, 0, 1};
};
using OdDbArcPtr = OdSmartPtr<OdDbArc>;
