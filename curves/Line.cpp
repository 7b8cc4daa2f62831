#include "Line.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbLine.h"
#include <cmath>

namespace {

using L = OdDbLine;

// End minus start, in the current UCS.
template <int Axis>
CZqVariant getDelta(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* line = ZqReadable<L>(object);
  if (!line) return CZqVariant();
  const OdDbCoordinateService ucs = ZqUcsOf(object);
  return ZqDouble(ucs.wcsToUcs(line->endPoint())[Axis] - ucs.wcsToUcs(line->startPoint())[Axis]);
}

CZqVariant getLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* line = ZqReadable<L>(object);
  return line ? ZqDouble((line->endPoint() - line->startPoint()).length()) : CZqVariant();
}

// The angle of the line in the UCS's XY plane, with the end points rounded
// to the drawing's linear precision first (so that the angle agrees with
// the coordinates the user sees), snapped to whole degrees at angular
// precision 0. A line perpendicular to the plane has angle 0.
CZqVariant getAngle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* line = ZqReadable<L>(object);
  if (!line) return CZqVariant();
  const OdDbCoordinateService ucs = ZqUcsOf(object);
  OdGePoint3d s = ucs.wcsToUcs(line->startPoint()), e = ucs.wcsToUcs(line->endPoint());
  const OdDbDatabase* db = line->database();
  const double scale = std::pow(10.0, db ? db->getLUPREC() : 4);
  for (OdGePoint3d* p : {&s, &e}) {
    p->x = std::round(p->x * scale) / scale;
    p->y = std::round(p->y * scale) / scale;
  }
  const OdGeVector2d d(e.x - s.x, e.y - s.y);
  double angle = 0;
  if (std::fabs(d.length()) > 1e-10) {
    angle = std::atan2(d.y, d.x);
    if (angle < 0) angle += Oda2PI;
  }
  if (!db || db->getAUPREC() <= 0) angle = std::round(angle / OdaPI * 180.0 + 1e-9) * OdaPI / 180.0;
  return ZqDouble(angle);
}

constexpr auto getThickness = ZqGetDouble<L, &L::thickness>;
constexpr auto setThickness = ZqSetDouble<L, &L::setThickness>;
template <int Axis> constexpr auto getStart = ZqGetUcsCoordinate<L, &L::startPoint, Axis>;
template <int Axis> constexpr auto setStart = ZqSetUcsCoordinate<L, &L::startPoint, &L::setStartPoint, Axis>;
template <int Axis> constexpr auto getEnd = ZqGetUcsCoordinate<L, &L::endPoint, Axis>;
template <int Axis> constexpr auto setEnd = ZqSetUcsCoordinate<L, &L::endPoint, &L::setEndPoint, Axis>;

const ZqRow kRows[] = {
//  category     name                                            type        identifier                read-only     get           set           icon     visibility
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Thickness"), kZqUntyped, nullptr,                  kZqEditable,  getThickness, setThickness, nullptr, kVisOr4},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start X"),   kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable,  getStart<0>,  setStart<0>,  nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start Y"),   kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable,  getStart<1>,  setStart<1>,  nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start Z"),   kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable,  getStart<2>,  setStart<2>,  nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End X"),     kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable,  getEnd<0>,    setEnd<0>,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End Y"),     kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable,  getEnd<1>,    setEnd<1>,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End Z"),     kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable,  getEnd<2>,    setEnd<2>,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Delta X"),   kZqDouble,  ZqGuid::kCoordinateXGUID, kZqReadOnly,  getDelta<0>,  nullptr,      nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Delta Y"),   kZqDouble,  ZqGuid::kCoordinateYGUID, kZqReadOnly,  getDelta<1>,  nullptr,      nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Delta Z"),   kZqDouble,  ZqGuid::kCoordinateZGUID, kZqReadOnly,  getDelta<2>,  nullptr,      nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Length"),    kZqUntyped, nullptr,                  kZqReadOnly,  getLength,    nullptr,      nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Angle"),     kZqDouble,  ZqGuid::kOrientGUID,      kZqReadOnly,  getAngle,     nullptr,      nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqLinePE, QT_TRANSLATE_NOOP("entity_types", "Line"), kRows)

void CZqLineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbLine>(this, object, context, [&](const OdDbLine* line) {
    context->PrintPoint(QCoreApplication::translate("info_items", "from point"), line->startPoint());
    context->PrintPoint(QCoreApplication::translate("info_items", "to point"), line->endPoint());
    const OdGePoint3d s = ZqWorkingPoint(context, line->startPoint());
    const OdGePoint3d e = ZqWorkingPoint(context, line->endPoint());
    const OdGeVector3d d = e - s;
    context->PrintDist(QCoreApplication::translate("info_items", "Length"), d.length());
    const double inPlane = std::hypot(d.x, d.y);
    if (context->IsPrintInUCS())
      context->PrintDist(QCoreApplication::translate("info_items", "Length in CCS"), inPlane);
    double angle = 0;
    if (std::fabs(inPlane) > 1e-10) {
      angle = std::atan2(d.y, d.x);
      if (angle < 0) angle += Oda2PI;
    }
    context->PrintAngle(QCoreApplication::translate("info_items", "Angle in XY Plane"), angle);
    context->PrintDist(QCoreApplication::translate("info_items", "Delta X"), d.x);
    context->PrintDist(QCoreApplication::translate("info_items", "Delta Y"), d.y);
    context->PrintDist(QCoreApplication::translate("info_items", "Delta Z"), d.z);
  });
}
