#include "Blocks.h"
#include "Pictures.h"
#include "ZqInfoFrame.h"
#include "DbOle.h"

namespace {

using O = OdDbOle2Frame;

const ZqChoice kTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "Linked"), O::kLink},
    {QT_TRANSLATE_NOOP("property_values", "Embedded"), O::kEmbedded},
    {QT_TRANSLATE_NOOP("property_values", "Static"), O::kStatic},
};

template <void (O::*Set)(double)>
int setSize(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
            const CZqVariant&) {
  O* frame = ZqWritable<O>(object);
  if (!frame) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  (frame->*Set)(v);
  return kZqSetApplied;
}

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<O, &O::upperLeft, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<O, &O::upperLeft, &O::setPosition, Axis>;
constexpr auto getWidth = ZqGetDouble<O, &O::width>;
constexpr auto getHeight = ZqGetDouble<O, &O::height>;
constexpr auto getType = ZqGetChoice<O, &O::type, kTypes>;

constexpr ZqLimit kSize = ZqMessage(kZqPositive, QT_TRANSLATE_NOOP("errors", "An OLE object's width and height must be greater than 0."));

const ZqRow kRows[] = {
//  category     name                                                type           identifier                read-only    get             set                     icon                    visibility limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),  kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>, setPosition<0>,         "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),  kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>, setPosition<1>,         "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),  kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>, setPosition<2>,         "Geometry_CoordinateZ", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Width"),       kZqDouble,     nullptr,                  kZqEditable, getWidth,       setSize<&O::setWidth>,  nullptr,                kVisKeep,  kSize},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Height"),      kZqDouble,     nullptr,                  kZqEditable, getHeight,      setSize<&O::setHeight>, nullptr,                kVisKeep,  kSize},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Type"),        kZqCollection, nullptr,                  kZqReadOnly, getType,        nullptr,                nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqOle2FramePE, QT_TRANSLATE_NOOP("entity_types", "OLE Object"), kRows)

void CZqOle2FrameInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<O>(this, object, context, [&](const O* frame) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    const int type = ZqChoiceIndex(kTypes, frame->type());
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Type")),
                         CZqString(type >= 0 ? QCoreApplication::translate("property_values", kTypes[type].word) : QString()));
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Upper left corner")), frame->upperLeft());
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Lower right corner")), frame->lowerRight());
    context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Width")), frame->width());
    context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Height")), frame->height());
  });
}
