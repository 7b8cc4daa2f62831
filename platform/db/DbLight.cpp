#include "DbLight.h"
#include <cmath>

OdSmartPtr<OdDbLight> OdDbLight::createObject() { return OdSmartPtr<OdDbLight>(new OdDbLight()); }

void OdDbLight::setIntensity(double v) {
  if (!(v >= 0) || !std::isfinite(v)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.intensity = v;
}

void OdDbLight::setHotspotAndFalloff(double hotspot, double falloff) {
  const double widest = 160.0 * OdaPI / 180.0;
  if (!(hotspot > 0) || !(hotspot <= falloff) || !(falloff <= widest + 1e-12)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.hotspot = hotspot;
  m_d.falloff = falloff;
}

void OdDbLight::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  m_d = static_cast<const OdDbLight*>(source)->m_d;
}
