#include "DbArc.h"
#include <algorithm>
#include <cmath>

OdDbArc::OdDbArc() = default;

namespace {
double normalizedAngle(double a) {
  if (!std::isfinite(a)) throw OdError(eInvalidInput, OdString("angle must be a finite number"));
  a = std::fmod(a, Oda2PI);
  if (a < 0) a += Oda2PI;
  return a >= Oda2PI ? 0.0 : a;
}
}  // namespace

void OdDbArc::setCenter(const OdGePoint3d& c) { assertWriteEnabled(); m_center = c; }

void OdDbArc::setRadius(double r) {
  if (!(r > 0) || !std::isfinite(r)) throw OdError(eInvalidInput, OdString("radius must be positive"));
  assertWriteEnabled();
  m_radius = r;
}

void OdDbArc::setStartAngle(double a) {
  const double v = normalizedAngle(a);
  assertWriteEnabled();
  m_start = v;
}

void OdDbArc::setEndAngle(double a) {
  const double v = normalizedAngle(a);
  assertWriteEnabled();
  m_end = v;
}

double OdDbArc::totalAngle() const {
  assertReadEnabled();
  const double sweep = m_end - m_start;
  return sweep > 0 ? sweep : sweep + Oda2PI;
}

void OdDbArc::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }

void OdDbArc::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

OdResult OdDbArc::getStartParam(double& param) const { assertReadEnabled(); param = m_start; return eOk; }
OdResult OdDbArc::getEndParam(double& param) const { param = startAngle() + totalAngle(); return eOk; }
OdResult OdDbArc::getStartPoint(OdGePoint3d& p) const { return getPointAtParam(startAngle(), p); }
OdResult OdDbArc::getEndPoint(OdGePoint3d& p) const { return getPointAtParam(endAngle(), p); }

OdResult OdDbArc::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  OdGeVector3d x, y;
  odgeArbitraryAxes(m_normal, x, y);
  p = m_center + (x * std::cos(param) + y * std::sin(param)) * m_radius;
  return eOk;
}

OdResult OdDbArc::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  const double from = m_start, to = m_start + totalAngle();
  if (param < from - 1e-10 || param > to + 1e-10) return eInvalidInput;
  dist = m_radius * (std::clamp(param, from, to) - from);
  return eOk;
}

// The circular segment between the arc and its chord.
OdResult OdDbArc::getArea(double& area) const {
  const double sweep = totalAngle();
  area = 0.5 * m_radius * m_radius * (sweep - std::sin(sweep));
  return eOk;
}

bool OdDbArc::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  // The ends, and the points where the arc crosses a world axis extreme:
  // sampled finely enough for the extents, the ends exactly.
  const double sweep = totalAngle();
  const int steps = 360;
  for (int i = 0; i <= steps; ++i) {
    OdGePoint3d p;
    getPointAtParam(m_start + sweep * i / steps, p);
    ext.addPoint(p);
    if (m_thickness != 0) ext.addPoint(p + m_normal * m_thickness);
  }
  return true;
}

void OdDbArc::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* a = static_cast<const OdDbArc*>(source);
  m_center = a->m_center;
  m_radius = a->m_radius;
  m_start = a->m_start;
  m_end = a->m_end;
  m_thickness = a->m_thickness;
  m_normal = a->m_normal;
}
