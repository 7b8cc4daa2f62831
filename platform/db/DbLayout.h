#pragma once
// Layouts: the tabs of a drawing. Each names a block of the block table
// (model space, or a paper-space block) and has its place among the tabs.
// Owned by the ACAD_LAYOUT dictionary.
#include "DbDictionary.h"

class DB_API OdDbLayout : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbLayout);

 public:
  static OdSmartPtr<OdDbLayout> createObject();
  OdString getLayoutName() const { assertReadEnabled(); return m_name; }
  void setLayoutName(const OdString& s) { assertWriteEnabled(); m_name = s; }
  int getTabOrder() const { assertReadEnabled(); return m_tabOrder; }
  void setTabOrder(int v) { assertWriteEnabled(); m_tabOrder = v; }
  OdDbObjectId getBlockTableRecordId() const { assertReadEnabled(); return m_block; }
  void setBlockTableRecordIdInternal(const OdDbObjectId& id) { m_block = id; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_name;
  int m_tabOrder = 0;
  OdDbObjectId m_block;
};
using OdDbLayoutPtr = OdSmartPtr<OdDbLayout>;

// The layout of a block (model space or a paper-space block), found in the
// database's ACAD_LAYOUT dictionary; the null id when it has none.
DB_API OdDbObjectId oddbLayoutOf(const OdDbObjectId& block);
