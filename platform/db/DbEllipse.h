#pragma once
#include "DbEntity.h"

// An ellipse or elliptical arc: centre (WCS), major axis (vector from the
// centre to the end of the major axis), the ratio of the minor to the major
// radius, and its start and end parameters. The point at parameter t is
// center + majorAxis * cos t + minorAxis * sin t, with the minor axis
// normal x majorAxis * ratio.
class DB_API OdDbEllipse : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbEllipse);

 public:
  static OdSmartPtr<OdDbEllipse> createObject();
  OdDbEllipse();

  // Angles are measured from the major axis, counter-clockwise about the
  // normal. A major axis that is zero or not perpendicular to the normal, or
  // a ratio outside (0, 1], raises OdError(eInvalidInput).
  void set(const OdGePoint3d& center, const OdGeVector3d& unitNormal, const OdGeVector3d& majorAxis,
           double radiusRatio, double startAngle = 0, double endAngle = Oda2PI);

  OdGePoint3d center() const { assertReadEnabled(); return m_center; }
  void setCenter(const OdGePoint3d& c);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  OdGeVector3d majorAxis() const { assertReadEnabled(); return m_major; }
  OdGeVector3d minorAxis() const;
  double radiusRatio() const { assertReadEnabled(); return m_ratio; }
  double startAngle() const;
  double endAngle() const;
  double startParam() const { assertReadEnabled(); return m_startParam; }
  double endParam() const { assertReadEnabled(); return m_endParam; }
  // Moves one end to an angle from the major axis; the other end, the axes
  // and the centre stay. A full ellipse becomes the arc from the new start
  // round to the old one (or from the old start to the new end).
  void setStartAngle(double angle);
  void setEndAngle(double angle);
  // New axis lengths with the same centre, directions and parameters: the
  // major radius keeps the ratio; the minor radius and the ratio keep the
  // major radius. A radius that is not a positive finite number, or a ratio
  // outside (0, 1], raises OdError(eInvalidInput) and changes nothing.
  void setMajorRadius(double r);
  void setRadiusRatio(double ratio);
  // The parameters directly (DXF codes 41 and 42).
  void setParams(double startParam, double endParam);
  double paramAtAngle(double angle) const;
  double angleAtParam(double param) const;

  bool isClosed() const override;
  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdGePoint3d m_center;
  OdGeVector3d m_normal{0, 0, 1}, m_major{1, 0, 0};
  double m_ratio = 1, m_startParam = 0, m_endParam = Oda2PI;
};
using OdDbEllipsePtr = OdSmartPtr<OdDbEllipse>;
