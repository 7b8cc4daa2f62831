#include "DbCircle.h"

OdDbCircle::OdDbCircle() = default;

void OdDbCircle::setCenter(const OdGePoint3d& c) { assertWriteEnabled(); m_center = c; }

void OdDbCircle::setRadius(double r) {
  if (!(r > 0) || !std::isfinite(r)) throw OdError(eInvalidInput, OdString("radius must be positive"));
  assertWriteEnabled();
  m_radius = r;
}

void OdDbCircle::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }

void OdDbCircle::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

OdResult OdDbCircle::getStartParam(double& param) const { assertReadEnabled(); param = 0; return eOk; }
OdResult OdDbCircle::getEndParam(double& param) const { assertReadEnabled(); param = Oda2PI; return eOk; }
OdResult OdDbCircle::getStartPoint(OdGePoint3d& p) const { return getPointAtParam(0, p); }
OdResult OdDbCircle::getEndPoint(OdGePoint3d& p) const { return getPointAtParam(Oda2PI, p); }

OdResult OdDbCircle::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  OdGeVector3d x, y;
  odgeArbitraryAxes(m_normal, x, y);
  p = m_center + (x * std::cos(param) + y * std::sin(param)) * m_radius;
  return eOk;
}

OdResult OdDbCircle::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  if (param < -1e-10 || param > Oda2PI + 1e-10) return eInvalidInput;
  dist = m_radius * param;
  return eOk;
}

OdResult OdDbCircle::getArea(double& area) const {
  assertReadEnabled();
  area = OdaPI * m_radius * m_radius;
  return eOk;
}

bool OdDbCircle::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  // The circle's extent along each world axis is r * sqrt(1 - n_axis^2).
  OdGeVector3d half;
  for (int i = 0; i < 3; ++i) half[i] = m_radius * std::sqrt(std::max(0.0, 1 - m_normal[i] * m_normal[i]));
  ext.set(m_center - half, m_center + half);
  if (m_thickness != 0) {
    const OdGeVector3d t = m_normal * m_thickness;
    ext.addPoint(m_center - half + t).addPoint(m_center + half + t);
  }
  return true;
}

void OdDbCircle::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* c = static_cast<const OdDbCircle*>(source);
  m_center = c->m_center;
  m_radius = c->m_radius;
  m_thickness = c->m_thickness;
  m_normal = c->m_normal;
}
