#pragma once
// Groups: named selections of entities, owned by the ACAD_GROUP dictionary,
// which holds their names.
#include "DbDictionary.h"

class DB_API OdDbGroup : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbGroup);

 public:
  static OdSmartPtr<OdDbGroup> createObject();
  // The group's name is its entry in the dictionary that owns it; renaming
  // raises the errors of OdDbDictionary::setName.
  OdString name() const { assertReadEnabled(); return oddbNameInOwnerDictionary(this); }
  void setName(const OdString& name) { assertWriteEnabled(); oddbRenameInOwnerDictionary(this, name); }
  OdString description() const { assertReadEnabled(); return m_description; }
  void setDescription(const OdString& s) { assertWriteEnabled(); m_description = s; }
  bool isSelectable() const { assertReadEnabled(); return m_selectable; }
  void setSelectable(bool v) { assertWriteEnabled(); m_selectable = v; }
  // Groups made without a name get one of the form "*A1".
  bool isAnonymous() const { assertReadEnabled(); return m_anonymous; }
  void setAnonymousInternal(bool v) { m_anonymous = v; }
  // The members in group order (null ids for members the drawing lacks).
  const OdDbObjectIdArray& allEntityIds() const { assertReadEnabled(); return m_members; }
  unsigned numEntities() const { assertReadEnabled(); return m_members.length(); }
  void setMembersInternal(const OdDbObjectIdArray& ids) { m_members = ids; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_description;
  bool m_selectable = true, m_anonymous = false;
  OdDbObjectIdArray m_members;
};
using OdDbGroupPtr = OdSmartPtr<OdDbGroup>;
