#include "DbProxyEntity.h"

OdSmartPtr<OdDbProxyEntity> OdDbProxyEntity::createObject() {
  return OdSmartPtr<OdDbProxyEntity>(new OdDbProxyEntity());
}

void OdDbProxyEntity::setDescriptionInternal(const OdString& dxfName, const OdString& className,
                                             const OdString& application, int flags, bool described) {
  assertWriteEnabled();
  m_dxfName = dxfName;
  m_className = className;
  m_application = application;
  m_flags = flags;
  m_described = described;
}

void OdDbProxyEntity::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* p = static_cast<const OdDbProxyEntity*>(source);
  m_className = p->m_className;
  m_dxfName = p->m_dxfName;
  m_application = p->m_application;
  m_flags = p->m_flags;
  m_described = p->m_described;
}
