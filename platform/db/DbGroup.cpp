#include "DbGroup.h"

OdSmartPtr<OdDbGroup> OdDbGroup::createObject() { return OdSmartPtr<OdDbGroup>(new OdDbGroup()); }

void OdDbGroup::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  auto* g = static_cast<const OdDbGroup*>(source);
  m_description = g->m_description;
  m_selectable = g->m_selectable;
  m_anonymous = g->m_anonymous;
  m_members = g->m_members;
}
