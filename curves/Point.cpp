#include "Point.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbPoint.h"

ODRX_DEFINE_MEMBERS(CZqPointPE, CZqEntityPE)

namespace {

using P = OdDbPoint;

constexpr auto getThickness = ZqGetDouble<P, &P::thickness>;
constexpr auto setThickness = ZqSetDouble<P, &P::setThickness>;
template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<P, &P::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<P, &P::position, &P::setPosition, Axis>;
constexpr auto editable = &CZqCustomPropertyPE::IsReadOnlyFalse;
using T = CZqPropertyType;

const ZqRow kRows[] = {
//  category      name                                                type  identifier            read-only  get              set              icon                     visibility
  {ZQ_GENERAL,   QT_TRANSLATE_NOOP("property_types", "Thickness"),   2,    nullptr,              editable,  getThickness,    setThickness,    nullptr,                 kVisOr4},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position X"),  2,    T::kCoordinateXGUID,  editable,  getPosition<0>,  setPosition<0>,  "Geometry_CoordinateX",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position Y"),  2,    T::kCoordinateYGUID,  editable,  getPosition<1>,  setPosition<1>,  "Geometry_CoordinateY",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position Z"),  2,    T::kCoordinateZGUID,  editable,  getPosition<2>,  setPosition<2>,  "Geometry_CoordinateZ",  kVisKeep},
};

}  // namespace

ZQ_DEFINE_STATIC_PROPERTY_NAMES(CZqPointPE, CZqEntityPE, OdDbPoint, kRows)

CZqString CZqPointPE::GetClassName(const OdDbObject*) const { return QCoreApplication::translate("entity_types", "Point"); }

void CZqPointInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbPoint>(this, object, context, [&](const OdDbPoint* point) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Position"), point->position());
    // The point's X axis (its object X axis turned by its rotation), as an
    // angle in the listing's XY plane.
    context->PrintAngle(QCoreApplication::translate("info_items", "Angle of X Axis"), ZqAngleInXYPlane(context, point->xAxis()));
  });
}
