#include "DbLayout.h"
#include "DbDatabase.h"

OdSmartPtr<OdDbLayout> OdDbLayout::createObject() { return OdSmartPtr<OdDbLayout>(new OdDbLayout()); }

void OdDbLayout::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  auto* l = static_cast<const OdDbLayout*>(source);
  m_name = l->m_name;
  m_tabOrder = l->m_tabOrder;
  m_block = l->m_block;
}

OdDbObjectId oddbLayoutOf(const OdDbObjectId& block) {
  OdDbDatabase* db = block.database();
  if (!db || block.isNull()) return {};
  OdDbObjectPtr d = OdDbDictionary::findPath(db->getNamedObjectsDictionaryId(), {OdString("ACAD_LAYOUT")}).openObject();
  auto* layouts = odrxCast<OdDbDictionary>(d.get());
  if (!layouts) return {};
  for (const OdDbDictionary::Entry& e : layouts->entries()) {
    OdDbObjectPtr o = e.second.openObject();
    auto* layout = odrxCast<OdDbLayout>(o.get());
    if (layout && layout->getBlockTableRecordId() == block) return e.second;
  }
  return {};
}
