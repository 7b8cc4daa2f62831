#include "DbXline.h"

namespace {
OdGeVector3d unitOrZero(const OdGeVector3d& v) { return v.normal(OdGeContext::gZeroTol); }
}  // namespace

OdDbXline::OdDbXline() = default;
void OdDbXline::setBasePoint(const OdGePoint3d& p) { assertWriteEnabled(); m_base = p; }
void OdDbXline::setUnitDir(const OdGeVector3d& dir) { assertWriteEnabled(); m_dir = unitOrZero(dir); }

OdResult OdDbXline::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  p = m_base + m_dir * param;
  return eOk;
}

OdResult OdDbXline::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  dist = param * m_dir.length();
  return eOk;
}

OdResult OdDbXline::getArea(double& area) const { assertReadEnabled(); area = 0; return eOk; }

void OdDbXline::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* x = static_cast<const OdDbXline*>(source);
  m_base = x->m_base;
  m_dir = x->m_dir;
}
