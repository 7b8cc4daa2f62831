#include "Circle.h"
#include "ZqCallbacks.h"
#include "ZqAreaText.h"
#include "ZqInfoFrame.h"
#include "DbCircle.h"
#include <cmath>

namespace {

using C = OdDbCircle;

// Every size row edits the radius: the entry's sign is dropped (a negative
// entry is taken as its absolute value); the rows' limit refuses 0.
double radiusFromRadius(double v) { return v; }
double radiusFromDiameter(double v) { return v * 0.5; }
double radiusFromCircumference(double v) { return v / 6.283185307179586; }

template <double (*RadiusOf)(double)>
int setSize(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
            const CZqVariant&) {
  C* circle = ZqWritable<C>(object);
  if (!circle) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  const double r = RadiusOf(std::fabs(v));
  if (!(r > 0) || !std::isfinite(r)) return kZqSetRefused;
  circle->setRadius(r);
  return kZqSetApplied;
}

CZqVariant getDiameter(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const C* circle = ZqReadable<C>(object);
  return circle ? ZqDouble(2 * circle->radius()) : CZqVariant();
}

CZqVariant getCircumference(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const C* circle = ZqReadable<C>(object);
  return circle ? ZqDouble(Oda2PI * circle->radius()) : CZqVariant();
}

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const C* circle = ZqReadable<C>(object);
  if (!circle) return CZqVariant();
  return ZqAreaValue(object, OdaPI * circle->radius() * circle->radius(), index,
                     QCoreApplication::translate("CZqCirclePE", "%1 sq. in. (%2 sq. ft.)"));
}

// The row is declared as a double, but only text is taken: the text the row
// shows, in engineering and architectural units with its "sq. in.".
int setArea(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
            const CZqVariant&) {
  C* circle = ZqWritable<C>(object);
  if (!circle || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  double area = 0;
  if (!ZqParseAreaText(object, value.GetString().qstring(), area)) return kZqSetRefused;
  if (const int refused = ZqCheckLimit(description, area)) return refused;
  const double r = std::sqrt(std::fabs(area) / OdaPI);
  if (!(r > 0) || !std::isfinite(r)) return kZqSetRefused;
  circle->setRadius(r);
  return kZqSetApplied;
}

template <int Axis>
CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const C* circle = ZqReadable<C>(object);
  return circle ? ZqDouble(ZqUcsOf(object).wcsToUcs(circle->normal())[Axis]) : CZqVariant();
}

constexpr auto getThickness = ZqGetDouble<C, &C::thickness>;
constexpr auto setThickness = ZqSetDouble<C, &C::setThickness>;
constexpr auto getRadius = ZqGetDouble<C, &C::radius>;
template <int Axis> constexpr auto getCenter = ZqGetUcsCoordinate<C, &C::center, Axis>;
template <int Axis> constexpr auto setCenter = ZqSetUcsCoordinate<C, &C::center, &C::setCenter, Axis>;
constexpr auto setRadius = setSize<radiusFromRadius>;
constexpr auto setDiameter = setSize<radiusFromDiameter>;
constexpr auto setCircumference = setSize<radiusFromCircumference>;
// Sizes are refused at exactly 0 (the tiniest size is a size), without a
// message box.
constexpr ZqLimit kSize = ZqSilent(ZqExact(kZqNonZero));
// The area: text that reads as an area other than exactly 0.
constexpr ZqLimit kArea = ZqSilent(ZqExact(ZqMessage(kZqNonZero, QT_TRANSLATE_NOOP("errors",
    "Area must be an area other than 0, followed by \"sq. in.\" in engineering and architectural units"))));

const ZqRow kRows[] = {
//  category      name                                                   type        identifier                read-only    get                set                icon      visibility  limit
  {ZQ_GENERAL,   QT_TRANSLATE_NOOP("property_types", "Thickness"),      kZqUntyped, nullptr,                  kZqEditable, getThickness,      setThickness,      nullptr,  kVisOr4},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Center X"),       kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable, getCenter<0>,      setCenter<0>,      nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Center Y"),       kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable, getCenter<1>,      setCenter<1>,      nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Center Z"),       kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable, getCenter<2>,      setCenter<2>,      nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Radius"),         kZqDouble,  nullptr,                  kZqEditable, getRadius,         setRadius,         nullptr,  kVisKeep,   kSize},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Diameter"),       kZqDouble,  nullptr,                  kZqEditable, getDiameter,       setDiameter,       nullptr,  kVisKeep,   kSize},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Circumference"),  kZqDouble,  nullptr,                  kZqEditable, getCircumference,  setCircumference,  nullptr,  kVisKeep,   kSize},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Area"),           kZqDouble,  nullptr,                  kZqEditable, getArea,           setArea,           nullptr,  kVisKeep,   kArea},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal X"),       kZqDouble,  nullptr,                  kZqReadOnly, getNormal<0>,      nullptr,           nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal Y"),       kZqDouble,  nullptr,                  kZqReadOnly, getNormal<1>,      nullptr,           nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal Z"),       kZqDouble,  nullptr,                  kZqReadOnly, getNormal<2>,      nullptr,           nullptr,  kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqCirclePE, QT_TRANSLATE_NOOP("entity_types", "Circle"), kRows)

void CZqCircleInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbCircle>(this, object, context, [&](const OdDbCircle* circle) {
    const double r = circle->radius();
    // Two blanks in "Center  point": that is the key.
    context->PrintPoint(QCoreApplication::translate("info_items", "Center  point"), circle->center());
    context->PrintDist(QCoreApplication::translate("info_items", "Radius"), r);
    context->PrintDist(QCoreApplication::translate("info_items", "Circumference"), Oda2PI * r);
    context->PrintArea(QCoreApplication::translate("info_items", "Area"), OdaPI * r * r);
    if (context->IsPrintInUCS())
      context->PrintVector3D(QCoreApplication::translate("info_items", "Extrusion direction relative to UCS"), circle->normal());
  });
}
