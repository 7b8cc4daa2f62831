#include "Arc.h"
#include "ZqCallbacks.h"
#include "ZqAreaText.h"
#include "ZqInfoFrame.h"
#include "DbArc.h"
#include <cmath>

namespace {

using A = OdDbArc;

double normalizedAngle(double a) {
  a = std::fmod(a, Oda2PI);
  return a < 0 ? a + Oda2PI : a;
}

// What is added to an angle of the arc's own coordinate system to measure
// it from the X axis of a system whose rotation is toSystem: the angle of
// the arc's X axis there, when the arc lies in that system's XY plane with
// the same sense of rotation. In any other plane the arc's own angles are
// shown, as there is no other X axis to measure from.
double angleOffset(const OdGeMatrix3d& toSystem, const OdGeVector3d& normal) {
  const OdGeVector3d z = toSystem * normal;
  if (!z.isCodirectionalTo(OdGeVector3d::kZAxis)) return 0;
  OdGeVector3d x, y;
  odgeArbitraryAxes(normal, x, y);
  const OdGeVector3d xs = toSystem * x;
  return std::atan2(xs.y, xs.x);
}

double ucsOffset(const OdDbObject* object, const A* arc) {
  return angleOffset(ZqUcsOf(object).wcsToUcsMatrix(), arc->normal());
}

double arcLength(const A* arc) {
  double end = 0, dist = 0;
  arc->getEndParam(end);
  arc->getDistAtParam(end, dist);
  return dist;
}

double arcArea(const A* arc) {
  double area = 0;
  arc->getArea(area);
  return area;
}

template <double (A::*Angle)() const>
CZqVariant getAngle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* arc = ZqReadable<A>(object);
  return arc ? ZqDouble(normalizedAngle((arc->*Angle)() + ucsOffset(object, arc))) : CZqVariant();
}

// An angle typed in the UCS is stored in the arc's own system; the other
// end, the centre and the radius stay.
template <void (A::*SetAngle)(double)>
int setAngle(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  A* arc = ZqWritable<A>(object);
  if (!arc) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  (arc->*SetAngle)(normalizedAngle(v - ucsOffset(object, arc)));
  return kZqSetApplied;
}

CZqVariant getTotalAngle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* arc = ZqReadable<A>(object);
  return arc ? ZqDouble(arc->totalAngle()) : CZqVariant();
}

CZqVariant getArcLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* arc = ZqReadable<A>(object);
  return arc ? ZqDouble(arcLength(arc)) : CZqVariant();
}

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const A* arc = ZqReadable<A>(object);
  if (!arc) return CZqVariant();
  return ZqAreaValue(object, arcArea(arc), index, QCoreApplication::translate("CZqArcPE", "%1 sq. in. (%2 sq. ft.)"));
}

// The end points follow from centre, radius and angles; they are shown, not edited.
template <OdResult (A::*Point)(OdGePoint3d&) const, int Axis>
CZqVariant getEndPoint(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* arc = ZqReadable<A>(object);
  if (!arc) return CZqVariant();
  OdGePoint3d p;
  (arc->*Point)(p);
  return ZqDouble(ZqUcsOf(object).wcsToUcs(p)[Axis]);
}

template <int Axis>
CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* arc = ZqReadable<A>(object);
  return arc ? ZqDouble(ZqUcsOf(object).wcsToUcs(arc->normal())[Axis]) : CZqVariant();
}

constexpr auto getThickness = ZqGetDouble<A, &A::thickness>;
constexpr auto setThickness = ZqSetDouble<A, &A::setThickness>;
constexpr auto getRadius = ZqGetDouble<A, &A::radius>;
constexpr auto setRadius = ZqSetDouble<A, &A::setRadius>;
template <int Axis> constexpr auto getCenter = ZqGetUcsCoordinate<A, &A::center, Axis>;
template <int Axis> constexpr auto setCenter = ZqSetUcsCoordinate<A, &A::center, &A::setCenter, Axis>;
template <int Axis> constexpr auto getStart = getEndPoint<&A::getStartPoint, Axis>;
template <int Axis> constexpr auto getEnd = getEndPoint<&A::getEndPoint, Axis>;
constexpr auto getStartAngle = getAngle<&A::startAngle>;
constexpr auto setStartAngle = setAngle<&A::setStartAngle>;
constexpr auto getEndAngle = getAngle<&A::endAngle>;
constexpr auto setEndAngle = setAngle<&A::setEndAngle>;

const ZqRow kRows[] = {
//  category     name                                              type        identifier                read-only    get              set             icon     visibility  limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Thickness"),   kZqUntyped, nullptr,                  kZqEditable, getThickness,    setThickness,   nullptr, kVisOr4},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start X"),     kZqDouble,  ZqGuid::kCoordinateXGUID, kZqReadOnly, getStart<0>,     nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start Y"),     kZqDouble,  ZqGuid::kCoordinateYGUID, kZqReadOnly, getStart<1>,     nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start Z"),     kZqDouble,  ZqGuid::kCoordinateZGUID, kZqReadOnly, getStart<2>,     nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center X"),    kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable, getCenter<0>,    setCenter<0>,   nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center Y"),    kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable, getCenter<1>,    setCenter<1>,   nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center Z"),    kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable, getCenter<2>,    setCenter<2>,   nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End X"),       kZqDouble,  ZqGuid::kCoordinateXGUID, kZqReadOnly, getEnd<0>,       nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End Y"),       kZqDouble,  ZqGuid::kCoordinateYGUID, kZqReadOnly, getEnd<1>,       nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End Z"),       kZqDouble,  ZqGuid::kCoordinateZGUID, kZqReadOnly, getEnd<2>,       nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Radius"),      kZqDouble,  nullptr,                  kZqEditable, getRadius,       setRadius,      nullptr, kVisKeep,   kZqPositive},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start angle"), kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable, getStartAngle,   setStartAngle,  nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End angle"),   kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable, getEndAngle,     setEndAngle,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Total angle"), kZqDouble,  ZqGuid::kAngleGUID,       kZqReadOnly, getTotalAngle,   nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Arc length"),  kZqDouble,  nullptr,                  kZqReadOnly, getArcLength,    nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Area"),        kZqDouble,  nullptr,                  kZqReadOnly, getArea,         nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal X"),    kZqDouble,  nullptr,                  kZqReadOnly, getNormal<0>,    nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal Y"),    kZqDouble,  nullptr,                  kZqReadOnly, getNormal<1>,    nullptr,        nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal Z"),    kZqDouble,  nullptr,                  kZqReadOnly, getNormal<2>,    nullptr,        nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqArcPE, QT_TRANSLATE_NOOP("entity_types", "Arc"), kRows)

void CZqArcInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbArc>(this, object, context, [&](const OdDbArc* arc) {
    const OdGeMatrix3d toSystem = context->IsPrintInUCS() ? context->GetWorldToWorkingPlaneMatrix() : OdGeMatrix3d();
    const double offset = angleOffset(toSystem, arc->normal());
    context->PrintPoint(QCoreApplication::translate("info_items", "Center  point"), arc->center());
    context->PrintDist(QCoreApplication::translate("info_items", "Radius"), arc->radius());
    context->PrintAngle(QCoreApplication::translate("info_items", "Start angle"), normalizedAngle(arc->startAngle() + offset));
    context->PrintAngle(QCoreApplication::translate("info_items", "End angle"), normalizedAngle(arc->endAngle() + offset));
    context->PrintAngle(QCoreApplication::translate("info_items", "Total angle"), arc->totalAngle());
    context->PrintDist(QCoreApplication::translate("info_items", "Length"), arcLength(arc));
    context->PrintArea(QCoreApplication::translate("info_items", "Area"), arcArea(arc));
    if (context->IsPrintInUCS())
      context->PrintVector3D(QCoreApplication::translate("info_items", "Extrusion direction relative to UCS"), arc->normal());
  });
}
