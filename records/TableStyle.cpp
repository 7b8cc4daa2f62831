#include "Records.h"
#include "ZqRecordRows.h"
#include "DbTableStyle.h"

namespace {

using T = OdDbTableStyle;
#define ZQ_CELLS QT_TRANSLATE_NOOP("property_groups", "Cell margins")

// Down: the title on top, rows below it; Up: the other way round.
constexpr ZqChoice kDirections[] = {
    {QT_TRANSLATE_NOOP("property_values", "Down"), OdDb::kTtoB},
    {QT_TRANSLATE_NOOP("property_values", "Up"), OdDb::kBtoT},
};

int direction(const T* t) { return t->flowDirection(); }
CZqVariant getDirection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqEnumeration(kDirections, ZqChoiceIndex(kDirections, direction(t))) : CZqVariant();
}
int setDirection(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  int32_t tag = 0;
  if (!t || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(kDirections, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(d.GetName().qstring(), kDirections));
  t->setFlowDirection(OdDb::FlowDirection(tag));
  return kZqSetApplied;
}

constexpr auto getDescription = ZqGetText<T, &T::description>;
constexpr auto setDescription = ZqSetText<T, &T::setDescription>;
constexpr auto getHorizontal = ZqGetDouble<T, &T::horzCellMargin>;
constexpr auto setHorizontal = ZqSetDouble<T, &T::setHorzCellMargin>;
constexpr auto getVertical = ZqGetDouble<T, &T::vertCellMargin>;
constexpr auto setVertical = ZqSetDouble<T, &T::setVertCellMargin>;

const ZqRow kRows[] = {
//  category     name                                                    type           identifier  read-only    get              set              icon      visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),            kZqString,     nullptr,    kZqEditable, ZqGetObjectName, ZqSetObjectName, nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Description"),     kZqString,     nullptr,    kZqEditable, getDescription,  setDescription,  nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Table direction"), kZqCollection, nullptr,    kZqEditable, getDirection,    setDirection,    nullptr},
  {ZQ_CELLS,    QT_TRANSLATE_NOOP("property_types", "Horizontal"),      kZqDouble,     nullptr,    kZqEditable, getHorizontal,   setHorizontal,   "CellMargins_Horizontal",  kVisKeep,  kZqNonNegative},
  {ZQ_CELLS,    QT_TRANSLATE_NOOP("property_types", "Vertical"),        kZqDouble,     nullptr,    kZqEditable, getVertical,     setVertical,     "CellMargins_Vertical",  kVisKeep,  kZqNonNegative},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqTableStylePE, QT_TRANSLATE_NOOP("entity_types", "Table Style"), kRows)
