#include "Records.h"
#include "ZqRecordRows.h"
#include "DbDimStyle.h"

namespace {

using D = OdDbDimStyleTableRecord;
#define ZQ_LINES QT_TRANSLATE_NOOP("property_groups", "Lines && Arrows")
#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
#define ZQ_FIT QT_TRANSLATE_NOOP("property_groups", "Fit")
#define ZQ_UNITS QT_TRANSLATE_NOOP("property_groups", "Primary UnitSystem")

CZqVariant getPrecision(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* d = ZqReadable<D>(object);
  return d ? CZqVariant(int32_t(d->dimdec())) : CZqVariant();
}
int setPrecision(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* d = ZqWritable<D>(object);
  if (!d || value.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
  if (value.GetInt32() < 0 || value.GetInt32() > 8)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Precision must be a whole number from 0 to 8."));
  d->setDimdec(value.GetInt32());
  return kZqSetApplied;
}

constexpr auto getScale = ZqGetDouble<D, &D::dimscale>;
constexpr auto setScale = ZqSetDouble<D, &D::setDimscale>;
constexpr auto getArrow = ZqGetDouble<D, &D::dimasz>;
constexpr auto setArrow = ZqSetDouble<D, &D::setDimasz>;
constexpr auto getExtension = ZqGetDouble<D, &D::dimexe>;
constexpr auto setExtension = ZqSetDouble<D, &D::setDimexe>;
constexpr auto getOffset = ZqGetDouble<D, &D::dimexo>;
constexpr auto setOffset = ZqSetDouble<D, &D::setDimexo>;
constexpr auto getTextHeight = ZqGetDouble<D, &D::dimtxt>;
constexpr auto setTextHeight = ZqSetDouble<D, &D::setDimtxt>;
constexpr auto getGap = ZqGetDouble<D, &D::dimgap>;
constexpr auto setGap = ZqSetDouble<D, &D::setDimgap>;
constexpr auto getFactor = ZqGetDouble<D, &D::dimlfac>;
constexpr auto setFactor = ZqSetDouble<D, &D::setDimlfac>;
CZqVariant getTextStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* d = ZqReadable<D>(object);
  return d ? CZqVariant(d->dimtxsty()) : CZqVariant();
}
int setTextStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* d = ZqWritable<D>(object);
  if (!d || (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqTextStyles, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  d->setDimtxsty(id);
  return kZqSetApplied;
}

const ZqRow kRows[] = {
//  category     name                                                       type        identifier              read-only    get              set              icon      visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),               kZqString,  nullptr,                kZqEditable, ZqGetRecordName, ZqSetRecordName, nullptr},
  {ZQ_LINES,    QT_TRANSLATE_NOOP("property_types", "Arrow size"),         kZqDouble,  nullptr,                kZqEditable, getArrow,        setArrow,        "Lines_Arrows_ArrowSize",  kVisKeep,  kZqNonNegative},
  {ZQ_LINES,    QT_TRANSLATE_NOOP("property_types", "ExtLine ext"),        kZqDouble,  nullptr,                kZqEditable, getExtension,    setExtension,    "Lines_Arrows_ExtLineExt",  kVisKeep,  kZqNonNegative},
  {ZQ_LINES,    QT_TRANSLATE_NOOP("property_types", "ExtLine offset"),     kZqDouble,  nullptr,                kZqEditable, getOffset,       setOffset,       "Lines_Arrows_ExtLineOffset",  kVisKeep,  kZqNonNegative},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "TextStyle"),          kZqId,      ZqGuid::kTextStyleGUID, kZqEditable, getTextStyle,    setTextStyle,    "Text_TextStyle"},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Text height"),        kZqDouble,  nullptr,                kZqEditable, getTextHeight,   setTextHeight,   "Text_Height",  kVisKeep,  kZqPositive},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Text offset"),        kZqDouble,  nullptr,                kZqEditable, getGap,          setGap,          "Text_Offset"},
  {ZQ_FIT,      QT_TRANSLATE_NOOP("property_types", "Dim scale overall"),  kZqDouble,  nullptr,                kZqEditable, getScale,        setScale,        "Fit_DimScaleOverall",  kVisKeep,  kZqNonNegative},
  {ZQ_UNITS,    QT_TRANSLATE_NOOP("property_types", "Precision"),          kZqInt32,   nullptr,                kZqEditable, getPrecision,    setPrecision,    "Primary_units_Precision"},
  {ZQ_UNITS,    QT_TRANSLATE_NOOP("property_types", "Dim scale linear"),   kZqDouble,  nullptr,                kZqEditable, getFactor,       setFactor,       "Primary_units_DimScaleLinear",  kVisKeep,  kZqNonZero},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqDimensionStylePE, QT_TRANSLATE_NOOP("entity_types", "Dimension Style"), kRows)
