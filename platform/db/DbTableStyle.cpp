#include "DbTableStyle.h"

OdSmartPtr<OdDbTableStyle> OdDbTableStyle::createObject() { return OdSmartPtr<OdDbTableStyle>(new OdDbTableStyle()); }

void OdDbTableStyle::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  auto* s = static_cast<const OdDbTableStyle*>(source);
  m_description = s->m_description;
  m_flow = s->m_flow;
  m_horzMargin = s->m_horzMargin;
  m_vertMargin = s->m_vertMargin;
  m_noTitle = s->m_noTitle;
  m_noHeader = s->m_noHeader;
}
