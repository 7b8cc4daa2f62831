#include "Ellipse.h"
#include "ZqCallbacks.h"
#include "ZqAreaText.h"
#include "ZqInfoFrame.h"
#include "DbEllipse.h"
#include <cmath>

namespace {

using E = OdDbEllipse;

// The ratio of the minor to the major radius: above 0, at most 1.
const char* const kRatioSentence = QT_TRANSLATE_NOOP("errors", "Radius ratio must be greater than 0 and at most 1");

double ellipseLength(const E* e) {
  double end = 0, dist = 0;
  e->getEndParam(end);
  e->getDistAtParam(end, dist);
  return dist;
}

double ellipseArea(const E* e) {
  double area = 0;
  e->getArea(area);
  return area;
}

CZqVariant getMajorRadius(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const E* e = ZqReadable<E>(object);
  return e ? ZqDouble(e->majorAxis().length()) : CZqVariant();
}

CZqVariant getMinorRadius(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const E* e = ZqReadable<E>(object);
  return e ? ZqDouble(e->majorAxis().length() * e->radiusRatio()) : CZqVariant();
}

// The minor radius edits the ratio; it cannot outgrow the major radius.
int setMinorRadius(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                   const CZqVariant&) {
  E* e = ZqWritable<E>(object);
  if (!e) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  const double ratio = v / e->majorAxis().length();
  if (ratio > 1 + 1e-12)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Minor radius must not be greater than the major radius"));
  e->setRadiusRatio(std::min(ratio, 1.0));
  return kZqSetApplied;
}

int setRadiusRatio(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                   const CZqVariant&) {
  E* e = ZqWritable<E>(object);
  if (!e) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  if (v > 1) return ZqRefuse(kRatioSentence);
  e->setRadiusRatio(v);
  return kZqSetApplied;
}

template <int Axis>
CZqVariant getMajorAxis(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const E* e = ZqReadable<E>(object);
  return e ? ZqDouble(ZqUcsOf(object).wcsToUcs(e->majorAxis())[Axis]) : CZqVariant();
}

template <int Axis>
CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const E* e = ZqReadable<E>(object);
  return e ? ZqDouble(ZqUcsOf(object).wcsToUcs(e->normal())[Axis]) : CZqVariant();
}

CZqVariant getLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const E* e = ZqReadable<E>(object);
  return e ? ZqDouble(ellipseLength(e)) : CZqVariant();
}

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const E* e = ZqReadable<E>(object);
  if (!e) return CZqVariant();
  return ZqAreaValue(object, ellipseArea(e), index,
                     QCoreApplication::translate("CZqEllipsePE", "%1 sq. in. (%2 sq. ft.)"));
}

constexpr auto getRatio = ZqGetDouble<E, &E::radiusRatio>;
constexpr auto setMajorRadius = ZqSetDouble<E, &E::setMajorRadius>;
constexpr auto getStartAngle = ZqGetDouble<E, &E::startAngle>;
constexpr auto setStartAngle = ZqSetDouble<E, &E::setStartAngle>;
constexpr auto getEndAngle = ZqGetDouble<E, &E::endAngle>;
constexpr auto setEndAngle = ZqSetDouble<E, &E::setEndAngle>;
constexpr auto getStartParam = ZqGetDouble<E, &E::startParam>;
constexpr auto getEndParam = ZqGetDouble<E, &E::endParam>;
template <int Axis> constexpr auto getCenter = ZqGetUcsCoordinate<E, &E::center, Axis>;
template <int Axis> constexpr auto setCenter = ZqSetUcsCoordinate<E, &E::center, &E::setCenter, Axis>;

const ZqLimit kRatio = ZqMessage(kZqPositive, kRatioSentence);

const ZqRow kRows[] = {
//  category     name                                                  type        identifier                read-only    get               set              icon     visibility  limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center X"),        kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable, getCenter<0>,     setCenter<0>,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center Y"),        kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable, getCenter<1>,     setCenter<1>,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Center Z"),        kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable, getCenter<2>,     setCenter<2>,    nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Major radius"),    kZqDouble,  nullptr,                  kZqEditable, getMajorRadius,   setMajorRadius,  nullptr, kVisKeep,   kZqPositive},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Minor radius"),    kZqDouble,  nullptr,                  kZqEditable, getMinorRadius,   setMinorRadius,  nullptr, kVisKeep,   kZqPositive},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Radius ratio"),    kZqDouble,  nullptr,                  kZqEditable, getRatio,         setRadiusRatio,  nullptr, kVisKeep,   kRatio},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Major axis X"),    kZqDouble,  ZqGuid::kCoordinateXGUID, kZqReadOnly, getMajorAxis<0>,  nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Major axis Y"),    kZqDouble,  ZqGuid::kCoordinateYGUID, kZqReadOnly, getMajorAxis<1>,  nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Major axis Z"),    kZqDouble,  ZqGuid::kCoordinateZGUID, kZqReadOnly, getMajorAxis<2>,  nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start angle"),     kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable, getStartAngle,    setStartAngle,   nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End angle"),       kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable, getEndAngle,      setEndAngle,     nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start parameter"), kZqDouble,  nullptr,                  kZqReadOnly, getStartParam,    nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End parameter"),   kZqDouble,  nullptr,                  kZqReadOnly, getEndParam,      nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal X"),        kZqDouble,  nullptr,                  kZqReadOnly, getNormal<0>,     nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal Y"),        kZqDouble,  nullptr,                  kZqReadOnly, getNormal<1>,     nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Normal Z"),        kZqDouble,  nullptr,                  kZqReadOnly, getNormal<2>,     nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Length"),          kZqUntyped, nullptr,                  kZqReadOnly, getLength,        nullptr,         nullptr, kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Area"),            kZqUntyped, nullptr,                  kZqReadOnly, getArea,          nullptr,         nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqEllipsePE, QT_TRANSLATE_NOOP("entity_types", "Ellipse"), kRows)

void CZqEllipseInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbEllipse>(this, object, context, [&](const OdDbEllipse* e) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Center  point"), e->center());
    context->PrintVector3D(QCoreApplication::translate("info_items", "Major axis"), e->majorAxis());
    context->PrintVector3D(QCoreApplication::translate("info_items", "Minor axis"), e->minorAxis());
    context->PrintScale(QCoreApplication::translate("info_items", "Radius ratio"), e->radiusRatio());
    if (!e->isClosed()) {
      context->PrintAngle(QCoreApplication::translate("info_items", "Start angle"), e->startAngle());
      context->PrintAngle(QCoreApplication::translate("info_items", "End angle"), e->endAngle());
    }
    context->PrintDist(QCoreApplication::translate("info_items", "Length"), ellipseLength(e));
    context->PrintArea(QCoreApplication::translate("info_items", "Area"), ellipseArea(e));
    if (context->IsPrintInUCS())
      context->PrintVector3D(QCoreApplication::translate("info_items", "Extrusion direction relative to UCS"), e->normal());
  });
}
