#include "DbPoint.h"

OdDbPoint::OdDbPoint() = default;

void OdDbPoint::setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_position = p; }
void OdDbPoint::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }
void OdDbPoint::setEcsRotation(double angle) { assertWriteEnabled(); m_ecsRotation = angle; }

void OdDbPoint::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

OdGeVector3d OdDbPoint::xAxis() const {
  assertReadEnabled();
  OdGeVector3d x, y;
  odgeArbitraryAxes(m_normal, x, y);
  return x * std::cos(m_ecsRotation) + y * std::sin(m_ecsRotation);
}

bool OdDbPoint::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext.set(m_position, m_position);
  if (m_thickness != 0) ext.addPoint(m_position + m_normal * m_thickness);
  return true;
}

void OdDbPoint::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* p = static_cast<const OdDbPoint*>(source);
  m_position = p->m_position;
  m_thickness = p->m_thickness;
  m_normal = p->m_normal;
  m_ecsRotation = p->m_ecsRotation;
}
