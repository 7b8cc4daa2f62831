#pragma once
// Circular arcs in the plane and in space.
//
// An arc runs from its start angle to its end angle, endAng() > startAng(),
// so that radius() * (endAng() - startAng()) is its length. In the plane the
// angles are measured from the reference vector counter-clockwise, or
// clockwise for a clockwise arc; in space they are measured about the
// normal (right-handed), so a clockwise arc is one whose normal points the
// other way.
#include "OdGePoint.h"

class GE_API OdGeCircArc2d {
 public:
  OdGeCircArc2d() = default;
  // A full counter-clockwise circle.
  OdGeCircArc2d(const OdGePoint2d& center, double radius) : m_center(center), m_radius(radius) {}
  // The arc from start to end whose bulge (tangent of a quarter of the
  // included angle, positive counter-clockwise) is given. A bulge of zero
  // gives no arc: the result is a degenerate arc of radius 0.
  OdGeCircArc2d& set(const OdGePoint2d& start, const OdGePoint2d& end, double bulge);
  OdGeCircArc2d& set(const OdGePoint2d& center, double radius, double startAng, double endAng,
                     const OdGeVector2d& refVec = OdGeVector2d::kXAxis, bool isClockWise = false);

  OdGePoint2d center() const { return m_center; }
  double radius() const { return m_radius; }
  double startAng() const { return m_start; }
  double endAng() const { return m_end; }
  bool isClockWise() const { return m_clockwise; }
  OdGeVector2d refVec() const { return m_ref; }
  // The point at an angle measured as startAng/endAng are.
  OdGePoint2d evalPoint(double angle) const;
  OdGePoint2d startPoint() const { return evalPoint(m_start); }
  OdGePoint2d endPoint() const { return evalPoint(m_end); }
  double length() const { return m_radius * (m_end - m_start); }

 private:
  OdGePoint2d m_center;
  double m_radius = 0, m_start = 0, m_end = Oda2PI;
  OdGeVector2d m_ref{1, 0};
  bool m_clockwise = false;
};

class GE_API OdGeCircArc3d {
 public:
  OdGeCircArc3d() = default;
  OdGeCircArc3d& set(const OdGePoint3d& center, const OdGeVector3d& normal, const OdGeVector3d& refVec,
                     double radius, double startAng, double endAng);

  OdGePoint3d center() const { return m_center; }
  OdGeVector3d normal() const { return m_normal; }
  OdGeVector3d refVec() const { return m_ref; }
  double radius() const { return m_radius; }
  double startAng() const { return m_start; }
  double endAng() const { return m_end; }
  OdGePoint3d evalPoint(double angle) const;
  OdGePoint3d startPoint() const { return evalPoint(m_start); }
  OdGePoint3d endPoint() const { return evalPoint(m_end); }
  double length() const { return m_radius * (m_end - m_start); }

 private:
  OdGePoint3d m_center;
  OdGeVector3d m_normal{0, 0, 1}, m_ref{1, 0, 0};
  double m_radius = 0, m_start = 0, m_end = Oda2PI;
};
