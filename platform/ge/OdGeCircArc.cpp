#include "OdGeCircArc.h"

namespace {
// Angle of v in [0, 2pi).
double angleOf(double x, double y) {
  double a = std::atan2(y, x);
  return a < 0 ? a + Oda2PI : a;
}
}  // namespace

OdGeCircArc2d& OdGeCircArc2d::set(const OdGePoint2d& center, double radius, double startAng, double endAng,
                                  const OdGeVector2d& refVec, bool isClockWise) {
  m_center = center;
  m_radius = radius;
  m_start = startAng;
  m_end = endAng;
  m_ref = refVec.normal();
  m_clockwise = isClockWise;
  return *this;
}

OdGeCircArc2d& OdGeCircArc2d::set(const OdGePoint2d& start, const OdGePoint2d& end, double bulge) {
  const OdGeVector2d chord = end - start;
  const double c = chord.length();
  m_ref = OdGeVector2d::kXAxis;
  m_clockwise = bulge < 0;
  if (bulge == 0 || c == 0) {
    m_center = start;
    m_radius = 0;
    m_start = m_end = 0;
    return *this;
  }
  // The centre lies on the chord's perpendicular bisector, at
  // (c/2) * (1 - b^2) / (2b) to the left of the chord (negative: right).
  const OdGeVector2d left(-chord.y / c, chord.x / c);
  const OdGePoint2d mid(start.x + chord.x * 0.5, start.y + chord.y * 0.5);
  m_center = mid + left * (c * 0.5 * (1 - bulge * bulge) / (2 * bulge));
  m_radius = c * (1 + bulge * bulge) / (4 * std::fabs(bulge));
  const double sweep = 4 * std::atan(std::fabs(bulge));
  const OdGeVector2d s = start - m_center;
  // Clockwise arcs measure their angles clockwise, that is on the mirrored Y.
  m_start = angleOf(s.x, m_clockwise ? -s.y : s.y);
  m_end = m_start + sweep;
  return *this;
}

OdGePoint2d OdGeCircArc2d::evalPoint(double angle) const {
  const double c = std::cos(angle), s = std::sin(angle) * (m_clockwise ? -1.0 : 1.0);
  const OdGeVector2d perp(-m_ref.y, m_ref.x);
  return m_center + (m_ref * c + perp * s) * m_radius;
}

OdGeCircArc3d& OdGeCircArc3d::set(const OdGePoint3d& center, const OdGeVector3d& normal, const OdGeVector3d& refVec,
                                  double radius, double startAng, double endAng) {
  m_center = center;
  m_normal = normal.normal();
  // The reference vector is made perpendicular to the normal.
  m_ref = (refVec - m_normal * refVec.dotProduct(m_normal)).normal();
  m_radius = radius;
  m_start = startAng;
  m_end = endAng;
  return *this;
}

OdGePoint3d OdGeCircArc3d::evalPoint(double angle) const {
  const OdGeVector3d perp = m_normal.crossProduct(m_ref);
  return m_center + (m_ref * std::cos(angle) + perp * std::sin(angle)) * m_radius;
}
