#include "Circle.h"
#include "ZqCallbacks.h"
#include "ZqAreaText.h"
#include "ZqInfoFrame.h"
#include "DbCircle.h"
#include <cmath>

ODRX_DEFINE_MEMBERS(CZqCirclePE, CZqEntityExPE)

namespace {

using C = OdDbCircle;

// Every size row edits the radius: the entry's sign is dropped (a negative
// entry is taken as its absolute value), an entry of exactly 0 is refused.
double radiusFromRadius(double v) { return v; }
double radiusFromDiameter(double v) { return v * 0.5; }
double radiusFromCircumference(double v) { return v / 6.283185307179586; }

template <double (*RadiusOf)(double)>
int setSize(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  C* circle = ZqWritable<C>(object);
  if (!circle || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  const double v = value.GetDouble();
  if (v == 0.0) return kZqSetRefused;
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
int setArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  C* circle = ZqWritable<C>(object);
  if (!circle || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  double area = 0;
  if (!ZqParseAreaText(object, value.GetString().qstring(), area) || area == 0.0) return kZqSetRefused;
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
constexpr auto editable = &CZqCustomPropertyPE::IsReadOnlyFalse;
constexpr auto readOnly = &CZqCustomPropertyPE::IsReadOnlyTrue;
using T = CZqPropertyType;

const ZqRow kRows[] = {
//  category      name                                                   type  identifier            read-only  get                set                icon      visibility
  {ZQ_GENERAL,   QT_TRANSLATE_NOOP("property_types", "Thickness"),      0,    nullptr,              editable,  getThickness,      setThickness,      nullptr,  kVisOr4},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Center X"),       2,    T::kCoordinateXGUID,  editable,  getCenter<0>,      setCenter<0>,      nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Center Y"),       2,    T::kCoordinateYGUID,  editable,  getCenter<1>,      setCenter<1>,      nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Center Z"),       2,    T::kCoordinateZGUID,  editable,  getCenter<2>,      setCenter<2>,      nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Radius"),         2,    nullptr,              editable,  getRadius,         setRadius,         nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Diameter"),       2,    nullptr,              editable,  getDiameter,       setDiameter,       nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Circumference"),  2,    nullptr,              editable,  getCircumference,  setCircumference,  nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Area"),           2,    nullptr,              editable,  getArea,           setArea,           nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal X"),       2,    nullptr,              readOnly,  getNormal<0>,      nullptr,           nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal Y"),       2,    nullptr,              readOnly,  getNormal<1>,      nullptr,           nullptr,  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal Z"),       2,    nullptr,              readOnly,  getNormal<2>,      nullptr,           nullptr,  kVisKeep},
};

}  // namespace

ZQ_DEFINE_STATIC_PROPERTY_NAMES(CZqCirclePE, CZqEntityExPE, OdDbCircle, kRows)

CZqString CZqCirclePE::GetClassName(const OdDbObject*) const { return QCoreApplication::translate("entity_types", "Circle"); }

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
