#include "DbObject.h"
#include "DbDatabase.h"

const OdDbObjectId OdDbObjectId::kNull;

OdDbHandle::OdDbHandle(const OdString& hex) {
  bool ok = false;
  const qulonglong v = hex.qstring().trimmed().toULongLong(&ok, 16);
  m_value = ok ? v : 0;
}

OdString OdDbHandle::ascii() const { return OdString(QString::number(qulonglong(m_value), 16).toUpper()); }

bool OdDbObjectId::isErased() const { return m_stub && m_stub->object && m_stub->object->isErased(); }

OdDbObjectPtr OdDbObjectId::openObject(OdDb::OpenMode mode, bool openErasedOne) const {
  if (!m_stub || !m_stub->object) return {};
  OdDbObject* obj = m_stub->object;
  if (obj->isErased() && !openErasedOne) return {};
  if (mode == OdDb::kNotOpen) mode = OdDb::kForRead;
  // Opening again keeps the stronger mode of the two.
  if (obj->openMode() == OdDb::kNotOpen || mode == OdDb::kForWrite)
    obj->setOpenModeInternal(mode == OdDb::kForNotify ? OdDb::kForRead : mode);
  return OdDbObjectPtr(obj);
}

OdDbObjectPtr OdDbObjectId::safeOpenObject(OdDb::OpenMode mode, bool openErasedOne) const {
  if (!m_stub || !m_stub->object) throw OdError(eNullObjectId);
  if (m_stub->object->isErased() && !openErasedOne) throw OdError(eWasErased);
  return openObject(mode, openErasedOne);
}
