#include "Records.h"
#include "ZqRecordRows.h"
#include "DbMlineStyle.h"

namespace {

using M = OdDbMlineStyle;
#define ZQ_CAPS QT_TRANSLATE_NOOP("property_groups", "Caps")
#define ZQ_FILL QT_TRANSLATE_NOOP("property_groups", "Fill")

// One flag of the style (OdDbMlineStyle::Flags) as a Yes/No row.
template <int Bit>
CZqVariant getFlag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? ZqEnumeration(kZqYesNo, m->flags() & Bit ? 0 : 1) : CZqVariant();
}
template <int Bit>
int setFlag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  int32_t tag = 0;
  if (!m || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  m->setFlags(tag ? m->flags() | Bit : m->flags() & ~Bit);
  return kZqSetApplied;
}

CZqVariant getElements(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(int32_t(m->numElements())) : CZqVariant();
}

constexpr auto getDescription = ZqGetText<M, &M::description>;
constexpr auto setDescription = ZqSetText<M, &M::setDescription>;
constexpr auto getFillColor = ZqGetColor<M, &M::fillColor>;
constexpr auto setFillColor = ZqSetColor<M, &M::setFillColor>;
constexpr auto getStartAngle = ZqGetDouble<M, &M::startAngle>;
constexpr auto setStartAngle = ZqSetDouble<M, &M::setStartAngle>;
constexpr auto getEndAngle = ZqGetDouble<M, &M::endAngle>;
constexpr auto setEndAngle = ZqSetDouble<M, &M::setEndAngle>;
// Cap angles are 10 to 170 degrees, as multiline styles allow.
constexpr ZqLimit kCapAngle = ZqRange(10.0 * OdaPI / 180.0, 170.0 * OdaPI / 180.0);

const ZqRow kRows[] = {
//  category     name                                                     type           identifier          read-only    get                     set                     icon      visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),             kZqString,     nullptr,            kZqEditable, ZqGetObjectName,        ZqSetObjectName,        nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Description"),      kZqString,     nullptr,            kZqEditable, getDescription,         setDescription,         nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Elements"),         kZqInt32,      nullptr,            kZqReadOnly, getElements,            nullptr,                nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Display joints"),   kZqCollection, nullptr,            kZqEditable, getFlag<M::kShowMiters>, setFlag<M::kShowMiters>, nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "Start line"),       kZqCollection, nullptr,            kZqEditable, getFlag<M::kStartSquare>, setFlag<M::kStartSquare>, nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "Start outer arc"),  kZqCollection, nullptr,            kZqEditable, getFlag<M::kStartRound>, setFlag<M::kStartRound>, nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "Start inner arcs"), kZqCollection, nullptr,            kZqEditable, getFlag<M::kStartInnerArcs>, setFlag<M::kStartInnerArcs>, nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "Start angle"),      kZqDouble,     ZqGuid::kAngleGUID, kZqEditable, getStartAngle,          setStartAngle,          nullptr,  kVisKeep,  kCapAngle},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "End line"),         kZqCollection, nullptr,            kZqEditable, getFlag<M::kEndSquare>,  setFlag<M::kEndSquare>,  nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "End outer arc"),    kZqCollection, nullptr,            kZqEditable, getFlag<M::kEndRound>,   setFlag<M::kEndRound>,   nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "End inner arcs"),   kZqCollection, nullptr,            kZqEditable, getFlag<M::kEndInnerArcs>, setFlag<M::kEndInnerArcs>, nullptr},
  {ZQ_CAPS,     QT_TRANSLATE_NOOP("property_types", "End angle"),        kZqDouble,     ZqGuid::kAngleGUID, kZqEditable, getEndAngle,            setEndAngle,            nullptr,  kVisKeep,  kCapAngle},
  {ZQ_FILL,     QT_TRANSLATE_NOOP("property_types", "Fill"),             kZqCollection, nullptr,            kZqEditable, getFlag<M::kFillOn>,     setFlag<M::kFillOn>,     nullptr},
  {ZQ_FILL,     QT_TRANSLATE_NOOP("property_types", "Fill color"),       kZqColor,      nullptr,            kZqEditable, getFillColor,           setFillColor,           nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqRichLineStylePE, QT_TRANSLATE_NOOP("entity_types", "Multiline Style"), kRows)
