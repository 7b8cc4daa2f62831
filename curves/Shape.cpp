#include "Shape.h"
#include "ZqInfoFrame.h"
#include "DbShape.h"

namespace {

using S = OdDbShape;

CZqVariant getName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? CZqVariant(CZqString(s->name())) : CZqVariant();
}

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<S, &S::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<S, &S::position, &S::setPosition, Axis>;
constexpr auto getThickness = ZqGetDouble<S, &S::thickness>;
constexpr auto setThickness = ZqSetDouble<S, &S::setThickness>;
constexpr auto getSize = ZqGetDouble<S, &S::size>;
constexpr auto setSize = ZqSetDouble<S, &S::setSize>;
constexpr auto getRotation = ZqGetDouble<S, &S::rotation>;
constexpr auto setRotation = ZqSetDouble<S, &S::setRotation>;
constexpr auto getWidthFactor = ZqGetDouble<S, &S::widthFactor>;
constexpr auto setWidthFactor = ZqSetDouble<S, &S::setWidthFactor>;
constexpr auto getOblique = ZqGetDouble<S, &S::oblique>;
constexpr auto setOblique = ZqSetDouble<S, &S::setOblique>;
constexpr ZqLimit kOblique = ZqRange(-85.0 * OdaPI / 180.0, 85.0 * OdaPI / 180.0);

const ZqRow kRows[] = {
//  category     name                                                type        identifier                read-only    get             set             icon                    visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Thickness"),     kZqDouble,  nullptr,                  kZqEditable, getThickness,   setThickness,   nullptr,                kVisOr4},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),    kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>, setPosition<0>, "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),    kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>, setPosition<1>, "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),    kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>, setPosition<2>, "Geometry_CoordinateZ", kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,  nullptr,                  kZqReadOnly, getName,        nullptr,        nullptr,                kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Height"),        kZqDouble,  nullptr,                  kZqEditable, getSize,        setSize,        nullptr,                kVisKeep,  kZqPositive},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Rotation"),      kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable, getRotation,    setRotation,    nullptr,                kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Width factor"),  kZqDouble,  nullptr,                  kZqEditable, getWidthFactor, setWidthFactor, nullptr,                kVisKeep,  kZqPositive},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Oblique angle"), kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable, getOblique,     setOblique,     nullptr,                kVisKeep,  kOblique},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqShapePE, QT_TRANSLATE_NOOP("entity_types", "Shape"), kRows)

void CZqShapeInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<S>(this, object, context, [&](const S* s) {
    context->PrintString(QCoreApplication::translate("info_items", "Name"), CZqString(s->name()));
    context->PrintPoint(QCoreApplication::translate("info_items", "at point"), s->position());
    context->PrintDist(QCoreApplication::translate("info_items", "Height"), s->size());
    context->PrintAngle(QCoreApplication::translate("info_items", "Rotation"), s->rotation());
    context->PrintScale(QCoreApplication::translate("info_items", "Width factor"), s->widthFactor());
    context->PrintAngle(QCoreApplication::translate("info_items", "Oblique angle"), s->oblique());
  });
}
