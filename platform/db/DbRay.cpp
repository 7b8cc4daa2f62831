#include "DbRay.h"

namespace {
OdGeVector3d unitOrZero(const OdGeVector3d& v) { return v.normal(OdGeContext::gZeroTol); }
}  // namespace

OdDbRay::OdDbRay() = default;
void OdDbRay::setBasePoint(const OdGePoint3d& p) { assertWriteEnabled(); m_base = p; }
void OdDbRay::setUnitDir(const OdGeVector3d& dir) { assertWriteEnabled(); m_dir = unitOrZero(dir); }
OdResult OdDbRay::getStartParam(double& param) const { assertReadEnabled(); param = 0; return eOk; }
OdResult OdDbRay::getStartPoint(OdGePoint3d& p) const { assertReadEnabled(); p = m_base; return eOk; }

OdResult OdDbRay::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  if (param < -1e-10) return eInvalidInput;
  p = m_base + m_dir * param;
  return eOk;
}

OdResult OdDbRay::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  if (param < -1e-10) return eInvalidInput;
  dist = param * m_dir.length();
  return eOk;
}

OdResult OdDbRay::getArea(double& area) const { assertReadEnabled(); area = 0; return eOk; }

void OdDbRay::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* r = static_cast<const OdDbRay*>(source);
  m_base = r->m_base;
  m_dir = r->m_dir;
}
