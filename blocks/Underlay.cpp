#include "Blocks.h"
#include "Pictures.h"
#include "ZqInfoFrame.h"
#include "DbUnderlay.h"

namespace {

using U = OdDbUnderlayReference;

template <int Axis>
CZqVariant getScale(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const U* u = ZqReadable<U>(object);
  return u ? CZqVariant(u->scaleFactors()[Axis], false) : CZqVariant();
}

// An underlay is scaled alike on every axis: the new factor goes to all three.
int setScale(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  U* u = ZqWritable<U>(object);
  if (!u) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  if (!(u->scaleFactors() == OdGeScale3d(v, v, v))) u->setScaleFactors(OdGeScale3d(v, v, v));
  return kZqSetApplied;
}

CZqVariant getRotation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const U* u = ZqReadable<U>(object);
  return u ? CZqVariant(u->rotation(), false) : CZqVariant();
}

int setRotation(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                const CZqVariant&) {
  U* u = ZqWritable<U>(object);
  if (!u) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  if (v != u->rotation()) u->setRotation(v);
  return kZqSetApplied;
}

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<U, &U::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<U, &U::position, &U::setPosition, Axis>;
constexpr auto getName = ZqGetText<U, &U::definitionName>;
constexpr auto getPath = ZqGetText<U, &U::filePath>;
constexpr auto getItem = ZqGetText<U, &U::itemName>;
constexpr auto getStatus = ZqGetFileStatus<U, &U::isFileFound>;
constexpr auto getContrast = ZqGetWholeNumber<U, &U::contrast>;
constexpr auto setContrast = ZqSetWholeNumber<U, &U::setContrast>;
constexpr auto getFade = ZqGetWholeNumber<U, &U::fade>;
constexpr auto setFade = ZqSetWholeNumber<U, &U::setFade>;
constexpr auto getShow = ZqGetFlag<U, &U::isOn, kZqYesNo>;
constexpr auto setShow = ZqSetFlag<U, &U::setOn, kZqYesNo>;
constexpr auto getClipped = ZqGetFlag<U, &U::isClipped, kZqYesNo>;
constexpr auto setClipped = ZqSetFlag<U, &U::setClipped, kZqYesNo>;
constexpr auto getMonochrome = ZqGetFlag<U, &U::isMonochrome, kZqYesNo>;
constexpr auto setMonochrome = ZqSetFlag<U, &U::setMonochrome, kZqYesNo>;

constexpr ZqLimit kScale = ZqMessage(kZqPositive, QT_TRANSLATE_NOOP("errors", "An underlay's scale must be greater than 0."));

const ZqRow kRows[] = {
//  category     name                                                  type           identifier                read-only    get              set              icon                    visibility limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),    kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>,  setPosition<0>,  "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),    kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>,  setPosition<1>,  "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),    kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>,  setPosition<2>,  "Geometry_CoordinateZ", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Rotation"),      kZqDouble,     ZqGuid::kAngleGUID,       kZqEditable, getRotation,     setRotation,     "Misc_Rotation",        kVisOr4},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Scale"),         kZqDouble,     nullptr,                  kZqEditable, getScale<0>,     setScale,        nullptr,                kVisOr4,   kScale},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,                  kZqReadOnly, getName,         nullptr,         nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Path"),          kZqString,     nullptr,                  kZqReadOnly, getPath,         nullptr,         nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Sheet"),         kZqString,     nullptr,                  kZqReadOnly, getItem,         nullptr,         nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Status"),        kZqString,     nullptr,                  kZqReadOnly, getStatus,       nullptr,         nullptr},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Contrast"),      kZqInt32,      nullptr,                  kZqEditable, getContrast,     setContrast,     nullptr,                kVisOr4,   ZqRange(20, 100)},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Fade"),          kZqInt32,      nullptr,                  kZqEditable, getFade,         setFade,         nullptr,                kVisOr4,   ZqRange(0, 80)},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Monochrome"),    kZqCollection, nullptr,                  kZqEditable, getMonochrome,   setMonochrome,   nullptr,                kVisOr4},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Show underlay"), kZqCollection, nullptr,                  kZqEditable, getShow,         setShow,         nullptr,                kVisOr4},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Show clipped"),  kZqCollection, nullptr,                  kZqEditable, getClipped,      setClipped,      nullptr,                kVisOr4},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqPdfReferencePE, QT_TRANSLATE_NOOP("entity_types", "PDF Underlay"), kRows)
ZQ_DEFINE_PROVIDER(CZqDgnReferencePE, QT_TRANSLATE_NOOP("entity_types", "DGN Underlay"), kRows)

void CZqPdfReferenceInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<U>(this, object, context, [&](const U* u) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Underlay name")), CZqString(u->definitionName()));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Saved path")), CZqString(u->filePath()));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Status")),
                         CZqString(u->isFileFound() ? QCoreApplication::translate("info_values", "found")
                                                    : QCoreApplication::translate("info_values", "not found")));
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Insertion point")), u->position());
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "Scale")), u->scaleFactors().sx);
    context->PrintAngle(item(QT_TRANSLATE_NOOP("info_items", "Rotation")), u->rotation());
  });
}
