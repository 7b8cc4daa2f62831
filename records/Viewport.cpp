#include "Viewport.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbViewport.h"
#include <cmath>

namespace {

using V = OdDbViewport;

// Standard scales, paper units to model units, as the scale list offers them.
struct StandardScale {
  const char* word;
  double scale;
};
const StandardScale kScales[] = {
    {"1:1", 1.0},        {"1:2", 0.5},      {"1:4", 0.25},   {"1:5", 0.2},    {"1:8", 0.125},
    {"1:10", 0.1},       {"1:16", 0.0625},  {"1:20", 0.05},  {"1:30", 1 / 30.0}, {"1:40", 0.025},
    {"1:50", 0.02},      {"1:100", 0.01},   {"2:1", 2.0},    {"4:1", 4.0},    {"8:1", 8.0},
    {"10:1", 10.0},      {"100:1", 100.0},
};
// "Custom" (tag 0) then the standard scales (tags 1..).
const ZqChoice kScaleChoices[] = {
    {QT_TRANSLATE_NOOP("property_values", "Custom"), 0},
    {"1:1", 1}, {"1:2", 2}, {"1:4", 3}, {"1:5", 4}, {"1:8", 5}, {"1:10", 6}, {"1:16", 7}, {"1:20", 8},
    {"1:30", 9}, {"1:40", 10}, {"1:50", 11}, {"1:100", 12}, {"2:1", 13}, {"4:1", 14}, {"8:1", 15},
    {"10:1", 16}, {"100:1", 17},
};
static_assert(std::size(kScaleChoices) == std::size(kScales) + 1);

// The standard scale a viewport shows at (its tag), or 0 for any other.
int standardScaleOf(const V* v) {
  const double s = v->customScale();
  for (size_t i = 0; i < std::size(kScales); ++i)
    if (std::fabs(s - kScales[i].scale) <= 1e-9 * kScales[i].scale) return int(i) + 1;
  return 0;
}

CZqVariant getStandardScale(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const V* v = ZqReadable<V>(object);
  return v ? ZqEnumeration(kScaleChoices, standardScaleOf(v)) : CZqVariant();
}
// Choosing a standard scale sets it; "Custom" keeps the scale as it is.
int setStandardScale(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& value, const CZqVariant&) {
  V* v = ZqWritable<V>(object);
  int32_t tag = 0;
  if (!v || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(kScaleChoices, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(d.GetName().qstring(), kScaleChoices));
  if (tag == 0) return kZqSetApplied;
  if (!(v->height() > 0)) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A viewport without height has no scale."));
  v->setCustomScale(kScales[tag - 1].scale);
  return kZqSetApplied;
}

int setCustomScale(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& value, const CZqVariant&) {
  V* v = ZqWritable<V>(object);
  if (!v) return kZqSetRefused;
  double s = 0;
  if (const int refused = ZqTakeDouble(d, value, s)) return refused;
  if (!(v->height() > 0)) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A viewport without height has no scale."));
  v->setCustomScale(s);
  return kZqSetApplied;
}

// "As Displayed", "Wireframe", "Hidden", "Rendered": group 170.
const ZqChoice kShadePlot[] = {
    {QT_TRANSLATE_NOOP("property_values", "As Displayed"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Wireframe"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Hidden"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Rendered"), 3},
};

// The names of the layers frozen in the viewport, comma-separated.
CZqVariant getFrozenLayers(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const V* v = ZqReadable<V>(object);
  if (!v) return CZqVariant();
  QStringList names;
  for (const OdDbObjectId& id : v->frozenLayers()) {
    OdDbObjectPtr layer = id.openObject();
    if (auto* l = odrxCast<OdDbSymbolTableRecord>(layer.get())) names << l->getName().qstring();
  }
  return CZqVariant(CZqString(names.join(QStringLiteral(", "))));
}

// The layout's own paper view (number 1) is the sheet itself: it cannot be
// switched off, locked or scaled.
bool isSheet(const OdDbObject* object, const CZqPropertyDescription&) {
  const V* v = ZqReadable<V>(object);
  return !v || v->number() == 1;
}

bool isClipped(const V* v) { return v->isNonRectClipOn(); }
bool isLocked(const V* v) { return v->isLocked(); }
void setLocked(V* v, bool b) { v->setLocked(b); }
bool isOn(const V* v) { return v->isOn(); }
void setOn(V* v, bool b) { v->setOn(b); }

template <bool (*Get)(const V*)>
CZqVariant getFlag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const V* v = ZqReadable<V>(object);
  return v ? ZqEnumeration(kZqYesNo, Get(v) ? 0 : 1) : CZqVariant();
}
template <void (*Set)(V*, bool)>
int setFlag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  V* v = ZqWritable<V>(object);
  int32_t tag = 0;
  if (!v || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  if (v->number() == 1) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The layout's own paper view cannot be changed."));
  Set(v, tag == 1);
  return kZqSetApplied;
}

template <int Axis> constexpr auto getCenter = ZqGetUcsCoordinate<V, &V::centerPoint, Axis>;
template <int Axis> constexpr auto setCenter = ZqSetUcsCoordinate<V, &V::centerPoint, &V::setCenterPoint, Axis>;
constexpr auto getWidth = ZqGetDouble<V, &V::width>;
constexpr auto setWidth = ZqSetDouble<V, &V::setWidth>;
constexpr auto getHeight = ZqGetDouble<V, &V::height>;
constexpr auto setHeight = ZqSetDouble<V, &V::setHeight>;
constexpr auto getCustomScale = ZqGetDouble<V, &V::customScale>;
constexpr auto getTwist = ZqGetDouble<V, &V::twistAngle>;
constexpr auto setTwist = ZqSetDouble<V, &V::setTwistAngle>;
constexpr auto getShadePlot = ZqGetChoice<V, &V::shadePlot, kShadePlot>;
constexpr auto setShadePlot = ZqSetChoice<V, &V::setShadePlot, kShadePlot>;

const ZqRow kRows[] = {
//  category     name                                                   type           identifier                read-only    get                  set                  icon      visibility limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center X"),       kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getCenter<0>,        setCenter<0>,        nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center Y"),       kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getCenter<1>,        setCenter<1>,        nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center Z"),       kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getCenter<2>,        setCenter<2>,        nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Width"),          kZqDouble,     nullptr,                  kZqEditable, getWidth,            setWidth,            nullptr,  kVisKeep,  kZqPositive},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Height"),         kZqDouble,     nullptr,                  kZqEditable, getHeight,           setHeight,           nullptr,  kVisKeep,  kZqPositive},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "On"),             kZqCollection, nullptr,                  isSheet,     getFlag<isOn>,       setFlag<setOn>,      nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Clipped"),        kZqCollection, nullptr,                  kZqReadOnly, getFlag<isClipped>,  nullptr,             nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Display locked"), kZqCollection, nullptr,                  isSheet,     getFlag<isLocked>,   setFlag<setLocked>,  nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Standard scale"), kZqCollection, nullptr,                  isSheet,     getStandardScale,    setStandardScale,    nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Custom scale"),   kZqDouble,     nullptr,                  isSheet,     getCustomScale,      setCustomScale,      nullptr,  kVisKeep,  kZqPositive},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "View twist"),     kZqDouble,     ZqGuid::kAngleGUID,       isSheet,     getTwist,            setTwist,            nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Shade plot"),     kZqCollection, nullptr,                  kZqEditable, getShadePlot,        setShadePlot,        nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Frozen layers"),  kZqString,     nullptr,                  kZqReadOnly, getFrozenLayers,     nullptr,             nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqViewportPE, QT_TRANSLATE_NOOP("entity_types", "Viewport"), kRows)

void CZqViewportInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbViewport>(this, object, context, [&](const OdDbViewport* v) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Center point"), v->centerPoint());
    context->PrintDist(QCoreApplication::translate("info_items", "Width"), v->width());
    context->PrintDist(QCoreApplication::translate("info_items", "Height"), v->height());
    context->PrintString(QCoreApplication::translate("info_items", "Status"),
                         v->isOn() ? QCoreApplication::translate("info_values", "On")
                                   : QCoreApplication::translate("info_values", "Off"));
    context->PrintScale(QCoreApplication::translate("info_items", "Scale relative to paper space"), v->customScale());
  });
}
