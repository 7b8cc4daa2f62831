#include "Point.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbPoint.h"

namespace {

using P = OdDbPoint;

constexpr auto getThickness = ZqGetDouble<P, &P::thickness>;
constexpr auto setThickness = ZqSetDouble<P, &P::setThickness>;
template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<P, &P::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<P, &P::position, &P::setPosition, Axis>;

const ZqRow kRows[] = {
//  category      name                                                type       identifier                read-only    get              set              icon                     visibility
  {ZQ_GENERAL,   QT_TRANSLATE_NOOP("property_types", "Thickness"),   kZqDouble, nullptr,                  kZqEditable, getThickness,    setThickness,    nullptr,                 kVisOr4},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position X"),  kZqDouble, ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>,  setPosition<0>,  "Geometry_CoordinateX",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position Y"),  kZqDouble, ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>,  setPosition<1>,  "Geometry_CoordinateY",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position Z"),  kZqDouble, ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>,  setPosition<2>,  "Geometry_CoordinateZ",  kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqPointPE, QT_TRANSLATE_NOOP("entity_types", "Point"), kRows)

void CZqPointInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbPoint>(this, object, context, [&](const OdDbPoint* point) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Position"), point->position());
    // The point's X axis (its object X axis turned by its rotation), as an
    // angle in the listing's XY plane.
    context->PrintAngle(QCoreApplication::translate("info_items", "Angle of X Axis"), ZqAngleInXYPlane(context, point->xAxis()));
  });
}
