#pragma once
// Handles and object ids. An id names one object of one database for the
// life of that database; the handle is the object's persistent name in the
// drawing file.
#include "DbExport.h"
#include "OdRxObject.h"
#include "OdString.h"
#include "OdArray.h"
#include <cstdint>

class OdDbDatabase;
class OdDbObject;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

namespace OdDb {
enum OpenMode { kNotOpen = -1, kForRead = 0, kForWrite = 1, kForNotify = 2 };
}

class DB_API OdDbHandle {
 public:
  OdDbHandle() = default;
  OdDbHandle(uint64_t v) : m_value(v) {}
  // From the hexadecimal text used in drawing files ("1F"); invalid text gives the null handle.
  explicit OdDbHandle(const OdString& hex);
  bool isNull() const { return m_value == 0; }
  uint64_t value() const { return m_value; }
  operator uint64_t() const { return m_value; }
  OdString ascii() const;  // upper-case hexadecimal, no leading zeros
  OdDbHandle& operator++() { ++m_value; return *this; }
  friend bool operator==(const OdDbHandle& a, const OdDbHandle& b) = default;

 private:
  uint64_t m_value = 0;
};

// The database's entry for one object; ids point at it.
struct OdDbStub {
  OdDbHandle handle;
  OdDbDatabase* database = nullptr;
  OdDbObject* object = nullptr;  // owned by the database
};

class DB_API OdDbObjectId {
 public:
  OdDbObjectId() = default;
  explicit OdDbObjectId(OdDbStub* stub) : m_stub(stub) {}
  static const OdDbObjectId kNull;

  bool isNull() const { return m_stub == nullptr; }
  bool isValid() const { return m_stub && m_stub->object; }
  bool isErased() const;
  OdDbHandle getHandle() const { return m_stub ? m_stub->handle : OdDbHandle(); }
  OdDbDatabase* database() const { return m_stub ? m_stub->database : nullptr; }
  OdDbStub* stub() const { return m_stub; }

  // Opens the object. Returns null for a null id, an erased object (unless
  // openErasedOne) or an id of an object that no longer exists. The object
  // stays open until the last smart pointer to it from an open is released.
  OdDbObjectPtr openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErasedOne = false) const;
  // As openObject, but throws OdError(eNullObjectId / eWasErased) instead of returning null.
  OdDbObjectPtr safeOpenObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErasedOne = false) const;

  friend bool operator==(const OdDbObjectId& a, const OdDbObjectId& b) { return a.m_stub == b.m_stub; }
  friend bool operator!=(const OdDbObjectId& a, const OdDbObjectId& b) { return a.m_stub != b.m_stub; }
  friend bool operator<(const OdDbObjectId& a, const OdDbObjectId& b) { return a.m_stub < b.m_stub; }
  explicit operator bool() const { return !isNull(); }

 private:
  OdDbStub* m_stub = nullptr;
};
using OdDbObjectIdArray = OdArray<OdDbObjectId>;
