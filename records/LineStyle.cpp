#include "Records.h"
#include "ZqRecordRows.h"

namespace {

using T = OdDbLinetypeTableRecord;

CZqVariant getDashes(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(int32_t(t->dashes().length())) : CZqVariant();
}

constexpr auto getDescription = ZqGetText<T, &T::comments>;
constexpr auto setDescription = ZqSetText<T, &T::setComments>;
constexpr auto getLength = ZqGetDouble<T, &T::patternLength>;

const ZqRow kRows[] = {
//  category     name                                                     type        identifier  read-only    get              set              icon
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),             kZqString,  nullptr,    kZqEditable, ZqGetRecordName, ZqSetRecordName, nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Description"),      kZqString,  nullptr,    kZqEditable, getDescription,  setDescription,  nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Pattern length"),   kZqDouble,  nullptr,    kZqReadOnly, getLength,       nullptr,         nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Dashes"),           kZqInt32,   nullptr,    kZqReadOnly, getDashes,       nullptr,         nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqLineStylePE, QT_TRANSLATE_NOOP("entity_types", "Linetype"), kRows)
