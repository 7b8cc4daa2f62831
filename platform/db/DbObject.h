#pragma once
// Base of every object stored in a drawing database.
#include "DbExport.h"
#include "OdDbObjectId.h"
#include "OdResBuf.h"
#include "OdRxClass.h"
#include "OdArray.h"
#include <vector>

class DB_API OdDbObject : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdDbObject);

 public:
  OdDbObject();
  ~OdDbObject() override;

  // An object that is not in a database is open for write to its creator.
  // A database-resident object closes itself when the last smart pointer
  // handed out by an open is released.
  void release() override;

  OdDbObjectId objectId() const { return m_id; }
  OdDbHandle getDbHandle() const { return m_id.getHandle(); }
  OdDbObjectId ownerId() const { return m_ownerId; }
  void setOwnerId(const OdDbObjectId& owner) { m_ownerId = owner; }
  OdDbDatabase* database() const { return m_id.database(); }
  bool isDBRO() const { return !m_id.isNull(); }

  bool isReadEnabled() const;
  bool isWriteEnabled() const;
  bool isNotifyEnabled() const { return false; }
  OdDb::OpenMode openMode() const;
  // Throw OdError(eNotOpenForRead / eNotOpenForWrite) when the object is not
  // open in that mode. assertWriteEnabled marks the object modified.
  void assertReadEnabled() const;
  void assertWriteEnabled();
  void upgradeOpen();
  void downgradeOpen();
  // Whether the object was opened for write and changed since it was loaded
  // or last saved.
  bool isModified() const { return m_modified; }
  void setModified(bool m) { m_modified = m; }

  bool isErased() const { return m_erased; }
  void erase(bool erasing = true);

  // Extended data. xData(app) returns the chain of the application, starting
  // with its 1001 item, or null; xData() the chains of all applications.
  // setXData takes a chain starting with a 1001 item and replaces that
  // application's data; a chain holding only the 1001 item removes it.
  OdResBufPtr xData(const OdString& regappName = OdString()) const;
  void setXData(const OdResBuf* xdata);
  OdArray<OdString> xDataApps() const;
  // The application's chain as the object keeps it (no copy; valid until
  // the object's extended data changes), or null.
  const OdResBuf* xDataChain(const OdString& regappName) const;

  // Copies the data that the class models from another object of the same
  // class (not id, owner or extended data).
  virtual void copyFrom(const OdRxObject* source);

  // Called by the database when the object is added or opened.
  void setObjectIdInternal(const OdDbObjectId& id) { m_id = id; }
  void setOpenModeInternal(OdDb::OpenMode mode) { m_openMode = mode; }

 private:
  OdDbObjectId m_id;
  OdDbObjectId m_ownerId;
  OdDb::OpenMode m_openMode = OdDb::kNotOpen;
  bool m_modified = false;
  bool m_erased = false;
  std::vector<OdResBufPtr> m_xdata;  // one chain per application, 1001 first
};
