#pragma once
// Dictionaries: objects of the drawing by name. The named-objects
// dictionary (the database's root) holds the dictionaries of groups
// (ACAD_GROUP), multiline styles (ACAD_MLINESTYLE), table styles
// (ACAD_TABLESTYLE) and layouts (ACAD_LAYOUT), among others. Names are
// unique in a dictionary and compared without regard to case.
#include "DbObject.h"
#include <initializer_list>
#include <utility>
#include <vector>

class DB_API OdDbDictionary : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbDictionary);

 public:
  static OdSmartPtr<OdDbDictionary> createObject();
  using Entry = std::pair<OdString, OdDbObjectId>;

  // The object of an entry, or the null id (also for an entry whose object
  // the database does not model).
  OdDbObjectId getAt(const OdString& name) const;
  bool has(const OdString& name) const;
  // The name of the entry of an object, or an empty string.
  OdString nameAt(const OdDbObjectId& id) const;
  unsigned numEntries() const { assertReadEnabled(); return unsigned(m_entries.size()); }
  // The entries in the order of the drawing.
  const std::vector<Entry>& entries() const { assertReadEnabled(); return m_entries; }
  // Adds an entry, or points an existing one at another object.
  void setAt(const OdString& name, const OdDbObjectId& id);
  // Renames an entry. A name another entry has raises
  // OdError(eDuplicateRecordName), an empty one OdError(eInvalidInput), a
  // name that is no entry OdError(eKeyNotFound).
  void setName(const OdString& oldName, const OdString& newName);
  // Used by the file reader: the entries as the file has them, in order.
  void appendEntryInternal(const OdString& name, const OdDbObjectId& id) { m_entries.emplace_back(name, id); }

  // The object at the end of a path of names from dictionary `from`
  // (ACAD_GROUP, then a group's name), or the null id.
  static OdDbObjectId findPath(const OdDbObjectId& from, std::initializer_list<OdString> path);
  void copyFrom(const OdRxObject* source) override;

 private:
  int indexOf(const OdString& name) const;
  std::vector<Entry> m_entries;
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;

// The name an object has in the dictionary that owns it (a group's, a
// multiline or table style's, a layout's), or an empty string.
DB_API OdString oddbNameInOwnerDictionary(const OdDbObject* object);
// Renames an object in the dictionary that owns it; the errors of
// OdDbDictionary::setName, and OdError(eNotInDatabase) for an object no
// dictionary owns.
DB_API void oddbRenameInOwnerDictionary(const OdDbObject* object, const OdString& name);
