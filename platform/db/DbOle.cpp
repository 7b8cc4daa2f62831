#include "DbOle.h"
#include <cmath>

OdSmartPtr<OdDbOle2Frame> OdDbOle2Frame::createObject() { return OdSmartPtr<OdDbOle2Frame>(new OdDbOle2Frame()); }

void OdDbOle2Frame::setPosition(const OdGePoint3d& p) {
  const OdGeVector3d d = p - upperLeft();
  assertWriteEnabled();
  m_d.upperLeft = p;
  m_d.lowerRight = m_d.lowerRight + d;
}

double OdDbOle2Frame::width() const { return std::fabs(lowerRight().x - upperLeft().x); }
double OdDbOle2Frame::height() const { return std::fabs(upperLeft().y - lowerRight().y); }

void OdDbOle2Frame::setWidth(double w) {
  if (!(w > 0) || !std::isfinite(w)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.lowerRight.x = m_d.upperLeft.x + (m_d.lowerRight.x < m_d.upperLeft.x ? -w : w);
}

void OdDbOle2Frame::setHeight(double h) {
  if (!(h > 0) || !std::isfinite(h)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.lowerRight.y = m_d.upperLeft.y + (m_d.lowerRight.y > m_d.upperLeft.y ? h : -h);
}

void OdDbOle2Frame::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  m_d = static_cast<const OdDbOle2Frame*>(source)->m_d;
}
