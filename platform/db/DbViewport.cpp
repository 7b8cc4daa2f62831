#include "DbViewport.h"
#include "DbDatabase.h"
#include <cmath>

double OdDbViewport::customScale() const {
  assertReadEnabled();
  return m_viewHeight > 0 ? m_height / m_viewHeight : 0.0;
}

void OdDbViewport::setCustomScale(double scale) {
  assertWriteEnabled();
  if (!(scale > 0) || !std::isfinite(scale) || !(m_height > 0)) throw OdError(eInvalidInput);
  m_viewHeight = m_height / scale;
}

void OdDbViewport::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* v = static_cast<const OdDbViewport*>(source);
  m_center = v->m_center; m_width = v->m_width; m_height = v->m_height; m_viewHeight = v->m_viewHeight;
  m_twist = v->m_twist; m_viewCenter = v->m_viewCenter; m_number = v->m_number; m_flags = v->m_flags;
  m_shadePlot = v->m_shadePlot; m_visualStyle = v->m_visualStyle; m_frozen = v->m_frozen;
}

OdSmartPtr<OdDbViewport> OdDbViewport::createObject() { return OdSmartPtr<OdDbViewport>(new OdDbViewport()); }
