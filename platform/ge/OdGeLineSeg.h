#pragma once
// Bounded straight segments in the plane and in space. The parameter runs
// from 0 at the start point to 1 at the end point.
#include "OdGePoint.h"

class GE_API OdGeLineSeg2d {
 public:
  OdGeLineSeg2d() = default;
  OdGeLineSeg2d(const OdGePoint2d& start, const OdGePoint2d& end) : m_start(start), m_end(end) {}
  OdGeLineSeg2d& set(const OdGePoint2d& start, const OdGePoint2d& end) {
    m_start = start;
    m_end = end;
    return *this;
  }
  OdGePoint2d startPoint() const { return m_start; }
  OdGePoint2d endPoint() const { return m_end; }
  OdGePoint2d midPoint() const { return evalPoint(0.5); }
  OdGeVector2d direction() const { return (m_end - m_start).normal(); }
  double length() const { return m_start.distanceTo(m_end); }
  OdGePoint2d evalPoint(double param) const { return m_start + (m_end - m_start) * param; }

 private:
  OdGePoint2d m_start, m_end;
};

class GE_API OdGeLineSeg3d {
 public:
  OdGeLineSeg3d() = default;
  OdGeLineSeg3d(const OdGePoint3d& start, const OdGePoint3d& end) : m_start(start), m_end(end) {}
  OdGeLineSeg3d& set(const OdGePoint3d& start, const OdGePoint3d& end) {
    m_start = start;
    m_end = end;
    return *this;
  }
  OdGePoint3d startPoint() const { return m_start; }
  OdGePoint3d endPoint() const { return m_end; }
  OdGePoint3d midPoint() const { return evalPoint(0.5); }
  OdGeVector3d direction() const { return (m_end - m_start).normal(); }
  double length() const { return m_start.distanceTo(m_end); }
  OdGePoint3d evalPoint(double param) const { return m_start + (m_end - m_start) * param; }

 private:
  OdGePoint3d m_start, m_end;
};
