#include "DbFcf.h"
#include "OdGePlane.h"

#include <cmath>

namespace {
bool finite(const OdGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }
bool finite(const OdGeVector3d& v) { return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z); }
}  // namespace

OdSmartPtr<OdDbFcf> OdDbFcf::createObject() { return OdSmartPtr<OdDbFcf>(new OdDbFcf()); }
OdDbFcf::OdDbFcf() = default;

void OdDbFcf::setText(const OdString& text) { assertWriteEnabled(); m_text = text; }

void OdDbFcf::setLocation(const OdGePoint3d& p) {
  if (!finite(p)) throw OdError(eInvalidInput, OdString("the position must be finite"));
  assertWriteEnabled();
  m_location = p;
}

void OdDbFcf::setNormal(const OdGeVector3d& n) {
  if (!finite(n) || n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbFcf::setDirection(const OdGeVector3d& d) {
  if (!finite(d) || d.isZeroLength()) throw OdError(eInvalidInput, OdString("the direction must not be zero"));
  assertWriteEnabled();
  m_direction = d;
}

bool OdDbFcf::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  ext.addPoint(m_location);
  return true;
}

void OdDbFcf::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* f = static_cast<const OdDbFcf*>(source);
  copyStyleFrom(*f);
  m_text = f->m_text;
  m_location = f->m_location;
  m_normal = f->m_normal;
  m_direction = f->m_direction;
}
