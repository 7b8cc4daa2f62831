#pragma once
// Helpers shared by the text tests: choosing an enumeration element as the
// palette does, reading the word a collection marks as current, and the
// objects of every block of a drawing.
#include "ZqTestSupport.h"
#include "DbSymbolTable.h"
#include <functional>

inline CZqVariant zqChoose(int tag) {
  return CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(int32_t(tag))));
}

inline QString zqCurrentWord(const CZqVariant& v) {
  const CZqVariantCollection& c = v.GetCollection();
  if (c.GetCurrent() < 0 || c.GetCurrent() >= c.GetCount()) return QString();
  return c.GetAt(c.GetCurrent()).GetValue().GetString().qstring();
}

// Calls f with the id of every entity of every block (model and paper space
// included).
inline void zqForEachEntity(OdDbDatabase* db, const std::function<void(const OdDbObjectId&)>& f) {
  OdDbObjectPtr table = db->getBlockTableId().openObject();
  for (const OdDbObjectId& blockId : static_cast<OdDbSymbolTable*>(table.get())->recordIds()) {
    OdDbObjectPtr block = blockId.openObject();
    const OdDbObjectIdArray ids = static_cast<OdDbBlockTableRecord*>(block.get())->entityIds();
    block.release();
    for (const OdDbObjectId& id : ids) f(id);
  }
}

// The name of a sample file as a test name.
inline std::string zqSampleTestName(const char* file) {
  std::string name = file;
  for (char& ch : name)
    if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
  return name;
}
