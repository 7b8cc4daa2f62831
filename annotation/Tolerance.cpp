#include "Tolerance.h"
#include "ZqAnnotativeRows.h"
#include "Dimension.h"
#include "Leader.h"
#include "ZqInfoFrame.h"
#include "DbFcf.h"

namespace {

namespace dv = OdDbDimVar;
using F = OdDbFcf;

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<F, &F::location, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<F, &F::location, &F::setLocation, Axis>;

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& i) {
  return ZqStyled::getStyle<F>(object, d, i);
}
int setStyle(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& v, const CZqVariant& i) {
  return ZqStyled::setStyle<F>(object, d, v, i);
}

int matchFcf(const OdDbEntity* source, OdDbObject* target) {
  const F* from = odrxCast<F>(source);
  F* to = odrxCast<F>(target);
  if (!from || !to || !to->isWriteEnabled()) return kZqSetRefused;
  return ZqStyled::matchStyle(from, to);
}
int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<F>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &matchFcf);
}

#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
#define PT(s) QT_TRANSLATE_NOOP("property_types", s)
constexpr ZqLimit kPositive = ZqMessage(kZqPositive, "Value must be positive");
constexpr ZqLimit kNotNegative = ZqMessage(kZqNonNegative, "Value must be non-negative");
template <dv::Id Id> constexpr auto getV = ZqStyled::get<F, Id>;
template <dv::Id Id> constexpr auto setV = ZqStyled::set<F, Id>;

// clang-format off
const ZqRow kRows[] = {
//  category                                          name                    type        identifier                 read-only                   get                      set                      icon                         visibility     limit
  {ZQ_GEOMETRY,                                       PT("Position X"),       kZqDouble,  ZqGuid::kCoordinateXGUID,  kZqEditable,                getPosition<0>,          setPosition<0>,          "Geometry_PositionX"},
  {ZQ_GEOMETRY,                                       PT("Position Y"),       kZqDouble,  ZqGuid::kCoordinateYGUID,  kZqEditable,                getPosition<1>,          setPosition<1>,          "Geometry_PositionY"},
  {ZQ_GEOMETRY,                                       PT("Position Z"),       kZqDouble,  ZqGuid::kCoordinateZGUID,  kZqEditable,                getPosition<2>,          setPosition<2>,          "Geometry_PositionZ"},
  {ZQ_MISC,                                           PT("Dim style"),        kZqUntyped, nullptr,                   kZqEditable,                getStyle,                setStyle,                "Misc_DimStyle"},
  // The text's colour.
  {ZQ_TEXT,                                           PT("Text"),             kZqColor,   nullptr,                   kZqEditable,                getV<dv::k_dimclrt>,     setV<dv::k_dimclrt>,     "Text_TextColor"},
  {ZQ_TEXT,                                           PT("Text height"),      kZqDouble,  nullptr,                   kZqEditable,                getV<dv::k_dimtxt>,      setV<dv::k_dimtxt>,      "Text_Height",               kVisKeep,      kPositive},
  {ZQ_TEXT,                                           PT("TextStyle"),        kZqUntyped, nullptr,                   kZqEditable,                getV<dv::k_dimtxsty>,    setV<dv::k_dimtxsty>,    "Text_TextStyle"},
  {QT_TRANSLATE_NOOP("property_groups", "Fit"),       PT("Dim scale overall"), kZqUntyped, nullptr,                  ZqStyled::isScaleReadOnly,  getV<dv::k_dimscale>,    setV<dv::k_dimscale>,    "Fit_DimScaleOverall",       kVisKeep,      kNotNegative},
  {QT_TRANSLATE_NOOP("property_groups", "Lines && Arrows"), PT("DimLine LColor"), kZqColor, nullptr,                 kZqEditable,                getV<dv::k_dimclrd>,     setV<dv::k_dimclrd>,     "Lines_Arrows_DimLineColor"},
  {ZQ_MATCHPROP,                                      "MATCHPROP_Fcf",        kZqUntyped, nullptr,                   kZqEditable,                ZqGetOwnId,              setMatch,                "",                          kVisMatchProp},
};
const ZqRow kScaleRow = {ZQ_MISC, PT("Annotative Scale"), kZqUntyped, ZqGuid::kLineEditToolButtonGUID, ZqIsAnnotationScaleReadOnly,
                         getV<dv::k_dimscale>, nullptr, "Misc_annotative_scale", kVisKeep, kZqAny, "Misc"};
// clang-format on

const ZqStyled::StyleRow kStyleRows[] = {{ZQ_MISC, "Dim style", ZqGuid::kDimStyleGUID},
                                         {ZQ_TEXT, "TextStyle", ZqGuid::kTextStyleGUID}};

void dynamicRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  ZqStyled::addDynamicRows(object, container, kStyleRows, kScaleRow,
                           QCoreApplication::translate("CZqFcfPE", "Edit annotation scales"));
}

}  // namespace

ZQ_DEFINE_PROVIDER(CZqFcfPE, QT_TRANSLATE_NOOP("entity_types", "Tolerance"), kRows, {}, &dynamicRows)

void CZqFcfInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<F>(this, object, context, [&](const F* fcf) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Position"), fcf->location());
    context->PrintString(QCoreApplication::translate("info_items", "text"), CZqString(fcf->text()));
    OdDbObjectPtr style = fcf->dimensionStyle().isNull() ? OdDbObjectPtr() : fcf->dimensionStyle().openObject();
    const auto* record = odrxCast<OdDbDimStyleTableRecord>(style.get());
    context->PrintString(QCoreApplication::translate("info_items", "DimensionStyle"),
                         record ? CZqString(record->getName()) : CZqString());
    ZqPrintDimStyleOverrides(object, fcf->dimensionStyle(), context);
  });
}
