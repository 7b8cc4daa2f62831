#include "DbDictionary.h"
#include "DbDatabase.h"

OdSmartPtr<OdDbDictionary> OdDbDictionary::createObject() { return OdSmartPtr<OdDbDictionary>(new OdDbDictionary()); }

int OdDbDictionary::indexOf(const OdString& name) const {
  for (size_t i = 0; i < m_entries.size(); ++i)
    if (m_entries[i].first.iCompare(name) == 0) return int(i);
  return -1;
}

OdDbObjectId OdDbDictionary::getAt(const OdString& name) const {
  assertReadEnabled();
  const int i = indexOf(name);
  return i < 0 ? OdDbObjectId() : m_entries[size_t(i)].second;
}

bool OdDbDictionary::has(const OdString& name) const {
  assertReadEnabled();
  return indexOf(name) >= 0;
}

OdString OdDbDictionary::nameAt(const OdDbObjectId& id) const {
  assertReadEnabled();
  if (id.isNull()) return {};
  for (const Entry& e : m_entries)
    if (e.second == id) return e.first;
  return {};
}

void OdDbDictionary::setAt(const OdString& name, const OdDbObjectId& id) {
  assertWriteEnabled();
  if (name.isEmpty()) throw OdError(eInvalidInput, OdString("empty dictionary entry name"));
  const int i = indexOf(name);
  if (i >= 0) m_entries[size_t(i)].second = id;
  else m_entries.emplace_back(name, id);
}

void OdDbDictionary::setName(const OdString& oldName, const OdString& newName) {
  // Checked before the write: a refused name leaves the dictionary unmodified.
  assertReadEnabled();
  const int i = indexOf(oldName);
  if (i < 0) throw OdError(eKeyNotFound, oldName);
  if (newName.isEmpty()) throw OdError(eInvalidInput, OdString("empty dictionary entry name"));
  const int other = indexOf(newName);
  if (other >= 0 && other != i) throw OdError(eDuplicateRecordName, newName);
  assertWriteEnabled();
  m_entries[size_t(i)].first = newName;
}

OdDbObjectId OdDbDictionary::findPath(const OdDbObjectId& from, std::initializer_list<OdString> path) {
  OdDbObjectId at = from;
  for (const OdString& name : path) {
    OdDbObjectPtr obj = at.openObject();
    auto* dict = odrxCast<OdDbDictionary>(obj.get());
    if (!dict) return {};
    at = dict->getAt(name);
  }
  return at;
}

void OdDbDictionary::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  m_entries = static_cast<const OdDbDictionary*>(source)->m_entries;
}

OdString oddbNameInOwnerDictionary(const OdDbObject* object) {
  if (!object || !object->isDBRO()) return {};
  OdDbObjectPtr owner = object->ownerId().openObject();
  auto* dict = odrxCast<OdDbDictionary>(owner.get());
  return dict ? dict->nameAt(object->objectId()) : OdString();
}

void oddbRenameInOwnerDictionary(const OdDbObject* object, const OdString& name) {
  OdDbObjectPtr owner = object && object->isDBRO() ? object->ownerId().openObject(OdDb::kForWrite) : OdDbObjectPtr();
  auto* dict = odrxCast<OdDbDictionary>(owner.get());
  const OdString was = dict ? dict->nameAt(object->objectId()) : OdString();
  if (was.isEmpty()) throw OdError(eNotInDatabase, OdString("the object is in no dictionary"));
  if (was == name) return;
  dict->setName(was, name);
}
