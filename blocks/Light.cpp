#include "Blocks.h"
#include "Pictures.h"
#include "ZqInfoFrame.h"
#include "DbLight.h"

namespace {

using L = OdDbLight;

const ZqChoice kTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "Distant"), L::kDistantLight},
    {QT_TRANSLATE_NOOP("property_values", "Point"), L::kPointLight},
    {QT_TRANSLATE_NOOP("property_values", "Spot"), L::kSpotLight},
};

// A light's name is one line and not empty.
int setName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  L* light = ZqWritable<L>(object);
  if (!light || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  if (s.trimmed().isEmpty()) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A light needs a name."));
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A light's name is one line: it cannot contain line breaks or control characters."));
  if (s != light->name().qstring()) light->setName(OdString(s));
  return kZqSetApplied;
}

// The cones: the hotspot within the falloff, the falloff at most 160 degrees.
template <bool Hotspot>
int setCone(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
            const CZqVariant&) {
  L* light = ZqWritable<L>(object);
  if (!light) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  const double hotspot = Hotspot ? v : light->hotspotAngle(), falloff = Hotspot ? light->falloffAngle() : v;
  if (hotspot > falloff)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The hotspot of a light cannot be wider than its falloff."));
  light->setHotspotAndFalloff(hotspot, falloff);
  return kZqSetApplied;
}

bool notSpot(const OdDbObject* object, const CZqPropertyDescription&) {
  const L* light = ZqReadable<L>(object);
  return !light || light->lightType() != L::kSpotLight;
}
bool isPoint(const OdDbObject* object, const CZqPropertyDescription&) {
  const L* light = ZqReadable<L>(object);
  return !light || light->lightType() == L::kPointLight;
}

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<L, &L::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<L, &L::position, &L::setPosition, Axis>;
template <int Axis> constexpr auto getTarget = ZqGetUcsCoordinate<L, &L::targetLocation, Axis>;
template <int Axis> constexpr auto setTarget = ZqSetUcsCoordinate<L, &L::targetLocation, &L::setTargetLocation, Axis>;
constexpr auto getName = ZqGetText<L, &L::name>;
constexpr auto getType = ZqGetChoice<L, &L::lightType, kTypes>;
constexpr auto getOn = ZqGetFlag<L, &L::isOn, kZqYesNo>;
constexpr auto setOn = ZqSetFlag<L, &L::setOn, kZqYesNo>;
constexpr auto getIntensity = ZqGetDouble<L, &L::intensity>;
constexpr auto setIntensity = ZqSetDouble<L, &L::setIntensity>;
constexpr auto getHotspot = ZqGetDouble<L, &L::hotspotAngle>;
constexpr auto getFalloff = ZqGetDouble<L, &L::falloffAngle>;
constexpr auto getShadows = ZqGetFlag<L, &L::castShadows, kZqYesNo>;
constexpr auto setShadows = ZqSetFlag<L, &L::setCastShadows, kZqYesNo>;

// Greater than 0 (a value that counts as 0 is 0) and at most 160 degrees.
constexpr ZqLimit kCone = ZqMessage(ZqRange(1e-9, 160 * OdaPI / 180),
                                    QT_TRANSLATE_NOOP("errors", "A light's cone angle must be greater than 0 and at most 160 degrees."));

const ZqRow kRows[] = {
//  category     name                                                    type           identifier                read-only    get             set             icon                    visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),            kZqString,     nullptr,                  kZqEditable, getName,        setName,        "Misc_Name",            kVisKeep},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Type"),            kZqCollection, nullptr,                  kZqReadOnly, getType,        nullptr,        "Misc_Type",            kVisKeep},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "On"),              kZqCollection, nullptr,                  kZqEditable, getOn,          setOn,          "Misc_On",              kVisOr4},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Intensity factor"),kZqDouble,     nullptr,                  kZqEditable, getIntensity,   setIntensity,   nullptr,                kVisOr4,   kZqNonNegative},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Shadows"),         kZqCollection, nullptr,                  kZqEditable, getShadows,     setShadows,     nullptr,                kVisOr4},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),      kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>, setPosition<0>, "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),      kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>, setPosition<1>, "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),      kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>, setPosition<2>, "Geometry_CoordinateZ", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Target X"),        kZqDouble,     ZqGuid::kCoordinateXGUID, isPoint,     getTarget<0>,   setTarget<0>,   "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Target Y"),        kZqDouble,     ZqGuid::kCoordinateYGUID, isPoint,     getTarget<1>,   setTarget<1>,   "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Target Z"),        kZqDouble,     ZqGuid::kCoordinateZGUID, isPoint,     getTarget<2>,   setTarget<2>,   "Geometry_CoordinateZ", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Hotspot angle"),   kZqDouble,     ZqGuid::kAngleGUID,       notSpot,     getHotspot,     setCone<true>,  nullptr,                kVisOr4,   kCone},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Falloff angle"),   kZqDouble,     ZqGuid::kAngleGUID,       notSpot,     getFalloff,     setCone<false>, nullptr,                kVisOr4,   kCone},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqLightPE, QT_TRANSLATE_NOOP("entity_types", "Light"), kRows)

void CZqLightInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<L>(this, object, context, [&](const L* light) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    const int type = ZqChoiceIndex(kTypes, light->lightType());
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Name")), CZqString(light->name()));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Type")),
                         CZqString(type >= 0 ? QCoreApplication::translate("property_values", kTypes[type].word) : QString()));
    context->PrintBool(item(QT_TRANSLATE_NOOP("info_items", "On")), light->isOn());
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "Intensity factor")), light->intensity());
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Position")), light->position());
    if (light->lightType() != L::kPointLight)
      context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Target")), light->targetLocation());
    if (light->lightType() == L::kSpotLight) {
      context->PrintAngle(item(QT_TRANSLATE_NOOP("info_items", "Hotspot angle")), light->hotspotAngle());
      context->PrintAngle(item(QT_TRANSLATE_NOOP("info_items", "Falloff angle")), light->falloffAngle());
    }
  });
}
