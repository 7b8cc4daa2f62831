// The surface providers: the isolines of every surface, then per kind a
// static list of the operation's parameters. Only the isolines are edited:
// the other parameters would need the surface built again from the curves
// that made it, which the drawing no longer holds.
#include "Solids.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbModelerGeometry.h"

namespace {

using Sf = OdDbSurface;

template <int (Sf::*Get)() const>
CZqVariant getCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const Sf* s = ZqReadable<Sf>(object);
  return s ? CZqVariant(int32_t((s->*Get)())) : CZqVariant();
}

// Isolines: a whole number from 0 to 2047, as an integer or a double.
template <void (Sf::*Set)(int)>
int setCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  Sf* s = ZqWritable<Sf>(object);
  if (!s) return kZqSetRefused;
  double v = 0;
  if (value.GetType() == CZqVariant::kVtInt32) v = value.GetInt32();
  else if (value.GetType() == CZqVariant::kVtDouble) v = value.GetDouble();
  else return kZqSetRefused;
  if (!(v >= 0 && v <= 2047) || v != std::floor(v)) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Invalid input."));
  (s->*Set)(int(v));
  return kZqSetApplied;
}

template <const char* const& Word>
CZqVariant getWord(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  return ZqReadable<Sf>(object) ? CZqVariant(QCoreApplication::translate("property_values", Word)) : CZqVariant();
}

// A parameter edit: bad input is refused as such; a good value is refused
// because the surface cannot be rebuilt here.
int refuseRebuild(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                  const CZqVariant&) {
  if (!ZqWritable<Sf>(object)) return kZqSetRefused;
  if (value.GetType() == CZqVariant::kVtDouble) {
    if (!std::isfinite(value.GetDouble())) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Invalid input."));
  } else if (value.GetType() != CZqVariant::kVtCollectionElement) {
    return kZqSetRefused;
  }
  return ZqRefuseWith(QCoreApplication::translate("errors",
                                                  "%1 cannot be changed here: the surface would have to be built "
                                                  "again from the curves that made it. Nothing was changed.")
                          .arg(description.GetName().qstring()));
}

const char* const kPlanar = QT_TRANSLATE_NOOP("property_values", "Planar");
const char* const kExtruded = QT_TRANSLATE_NOOP("property_values", "Extruded");
const char* const kRevolve = QT_TRANSLATE_NOOP("property_values", "Revolve");
const char* const kSweep = QT_TRANSLATE_NOOP("property_values", "Sweep");
const char* const kLoft = QT_TRANSLATE_NOOP("property_values", "Loft with guide curves");

// Extruded surfaces.
using Ex = OdDbExtrudedSurface;
CZqVariant exHeight(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Ex* s = ZqReadable<Ex>(o);
  return s ? ZqDouble(s->sweepVector().length()) : CZqVariant();
}
CZqVariant exTaper(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Ex* s = ZqReadable<Ex>(o);
  return s ? ZqDouble(s->options().draftAngle) : CZqVariant();
}
template <int Axis>
CZqVariant exDirection(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Ex* s = ZqReadable<Ex>(o);
  return s ? ZqDouble(s->sweepVector().normal()[Axis]) : CZqVariant();
}

// Revolved surfaces.
using Rv = OdDbRevolvedSurface;
CZqVariant rvAngle(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Rv* s = ZqReadable<Rv>(o);
  return s ? ZqDouble(s->revolveAngle()) : CZqVariant();
}
template <int Axis>
CZqVariant rvPosition(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Rv* s = ZqReadable<Rv>(o);
  return s ? ZqDouble(ZqUcsOf(o).wcsToUcs(s->axisPoint())[Axis]) : CZqVariant();
}
template <int Axis>
CZqVariant rvDirection(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Rv* s = ZqReadable<Rv>(o);
  return s ? ZqDouble(s->axisVector()[Axis]) : CZqVariant();
}

// Swept surfaces.
using Sw = OdDbSweptSurface;
template <double OdDbSweepOptions::*Field>
CZqVariant swOption(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Sw* s = ZqReadable<Sw>(o);
  return s ? ZqDouble(s->options().*Field) : CZqVariant();
}
CZqVariant swBank(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Sw* s = ZqReadable<Sw>(o);
  return s ? ZqEnumeration(kZqYesNo, s->options().bank ? 0 : 1) : CZqVariant();
}
// The path's length is not kept with the surface.
CZqVariant noValue(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&) { return CZqVariant(); }

// Lofted surfaces.
using Lf = OdDbLoftedSurface;
const ZqChoice kSurfaceNormals[] = {
    {QT_TRANSLATE_NOOP("property_values", "Ruled"), 0},        {QT_TRANSLATE_NOOP("property_values", "Smooth"), 1},
    {QT_TRANSLATE_NOOP("property_values", "First normal"), 2}, {QT_TRANSLATE_NOOP("property_values", "Last normal"), 3},
    {QT_TRANSLATE_NOOP("property_values", "Ends normal"), 4},  {QT_TRANSLATE_NOOP("property_values", "All normal"), 5},
    {QT_TRANSLATE_NOOP("property_values", "Use draft angles"), 6}};
template <int (Lf::*Get)() const>
CZqVariant lfCount(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const Lf* s = ZqReadable<Lf>(o);
  return s ? CZqVariant(int32_t((s->*Get)())) : CZqVariant();
}
constexpr auto lfNormal = ZqGetChoice<Lf, &Lf::normalOption, kSurfaceNormals>;
constexpr auto lfClosed = ZqGetFlag<Lf, &Lf::closed, kZqYesNo>;

#define G ZQ_GEOMETRY
#define N(name) QT_TRANSLATE_NOOP("property_types", name)
const char* const kAngle = ZqGuid::kAngleGUID;

const ZqRow kSurfaceRows[] = {
//  cat name              type        identifier read-only    get                             set                             icon
  {G, N("U isolines"),    kZqUntyped, nullptr,   kZqEditable, getCount<&Sf::uIsolines>,       setCount<&Sf::setUIsolines>,    "Geometry_UIsoLines"},
  {G, N("V isolines"),    kZqUntyped, nullptr,   kZqEditable, getCount<&Sf::vIsolines>,       setCount<&Sf::setVIsolines>,    "Geometry_VIsoLines"},
};
const ZqRow kPlaneRows[] = {
  {G, N("Surface type"),  kZqUntyped, nullptr,   kZqReadOnly, getWord<kPlanar>,               nullptr,                        "Geometry_SurfaceType"},
};
const ZqRow kExtrudedRows[] = {
  {G, N("Surface type"),  kZqUntyped, nullptr,   kZqReadOnly, getWord<kExtruded>,             nullptr,                        "Geometry_SurfaceType"},
  {G, N("Height"),        kZqUntyped, nullptr,   kZqEditable, exHeight,                       refuseRebuild,                  "Geometry_Height"},
  {G, N("Taper angle"),   kZqDouble,  nullptr,   kZqEditable, exTaper,                        refuseRebuild,                  "Geometry_TaperAngle"},
  {G, N("Direction x"),   kZqDouble,  nullptr,   kZqReadOnly, exDirection<0>,                 nullptr,                        "Geometry_DirectionX"},
  {G, N("Direction y"),   kZqDouble,  nullptr,   kZqReadOnly, exDirection<1>,                 nullptr,                        "Geometry_DirectionY"},
  {G, N("Direction z"),   kZqDouble,  nullptr,   kZqReadOnly, exDirection<2>,                 nullptr,                        "Geometry_DirectionZ"},
};
const ZqRow kRevolvedRows[] = {
  {G, N("Surface type"),        kZqUntyped, nullptr,                  kZqReadOnly, getWord<kRevolve>, nullptr,       "Geometry_SurfaceType"},
  {G, N("Angle of revolution"), kZqDouble,  kAngle,                   kZqEditable, rvAngle,           refuseRebuild, "Geometry_RevolutionAngle"},
  {G, N("Axis position X"),     kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable, rvPosition<0>,     refuseRebuild, "Geometry_AxisPositionX"},
  {G, N("Axis position Y"),     kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable, rvPosition<1>,     refuseRebuild, "Geometry_AxisPositionY"},
  {G, N("Axis position Z"),     kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable, rvPosition<2>,     refuseRebuild, "Geometry_AxisPositionZ"},
  {G, N("Axis direction X"),    kZqDouble,  nullptr,                  kZqReadOnly, rvDirection<0>,    nullptr,       "Geometry_AxisDirectionX"},
  {G, N("Axis direction Y"),    kZqDouble,  nullptr,                  kZqReadOnly, rvDirection<1>,    nullptr,       "Geometry_AxisDirectionY"},
  {G, N("Axis direction Z"),    kZqDouble,  nullptr,                  kZqReadOnly, rvDirection<2>,    nullptr,       "Geometry_AxisDirectionZ"},
};
// "Profile rotation" and "Scale along path" share one setter, which tells
// them apart by the description's name.
const ZqRow kSweptRows[] = {
  {G, N("Surface type"),     kZqUntyped,    nullptr, kZqReadOnly, getWord<kSweep>,                          nullptr,       "Geometry_SurfaceType"},
  {G, N("Profile rotation"), kZqDouble,     kAngle,  kZqEditable, swOption<&OdDbSweepOptions::alignAngle>,  refuseRebuild, "Geometry_ProfileRotation"},
  {G, N("Scale along path"), kZqUntyped,    nullptr, kZqEditable, swOption<&OdDbSweepOptions::scaleFactor>, refuseRebuild, "Geometry_ScaleAlongPath"},
  {G, N("Twist along path"), kZqDouble,     kAngle,  kZqEditable, swOption<&OdDbSweepOptions::twistAngle>,  refuseRebuild, "Geometry_TwistAlongPath"},
  {G, N("Bank"),             kZqCollection, nullptr, kZqReadOnly, swBank,                                   nullptr,       "Geometry_Bank"},
  {G, N("Length"),           kZqDouble,     nullptr, kZqReadOnly, noValue,                                  nullptr,       "Geometry_Length"},
};
// "Surface Type" with a capital T, and always the guide-curve word.
const ZqRow kLoftedRows[] = {
  {G, N("Surface Type"),             kZqUntyped,    nullptr, kZqReadOnly, getWord<kLoft>,              nullptr,       "Geometry_SurfaceType"},
  {G, N("Number of Cross sections"), kZqUntyped,    nullptr, kZqReadOnly, lfCount<&Lf::crossSections>, nullptr,       "Geometry_NumCrossSections"},
  {G, N("Number of Guide curves"),   kZqUntyped,    nullptr, kZqReadOnly, lfCount<&Lf::guides>,        nullptr,       "Geometry_NumGuideCurves"},
  {G, N("Surface normal"),           kZqCollection, nullptr, kZqEditable, lfNormal,                    refuseRebuild, "Geometry_SurfaceNormals"},
  {ZQ_MISC, N("Closed"),             kZqCollection, nullptr, kZqEditable, lfClosed,                    refuseRebuild, "Misc_Closed"},
};
#undef G
#undef N

// The listing of a surface: its kind's rows under their names, as shown.
void printRows(const OdDbObject* object, CZqPrintInfoContext* context, std::span<const ZqRow> rows) {
  for (const ZqRow& row : rows) {
    if (row.get == noValue) continue;
    CZqCustomPropertyDescription d;
    const CZqVariant v = row.get(object, d, CZqVariant());
    const QString label = QCoreApplication::translate("info_items", row.name);
    switch (v.GetType()) {
      case CZqVariant::kVtDouble:
        if (row.typeId == kAngle) context->PrintAngle(label, v.GetDouble());
        else context->PrintDist(label, v.GetDouble());
        break;
      case CZqVariant::kVtInt32: context->PrintInt(label, v.GetInt32()); break;
      case CZqVariant::kVtString: context->PrintString(label, v.GetString()); break;
      case CZqVariant::kVtCollection:
        if (v.GetCollection().GetCurrent() >= 0)
          context->PrintString(label, v.GetCollection().GetAt(v.GetCollection().GetCurrent()).GetValue().GetString());
        break;
      default: break;
    }
  }
}

}  // namespace

// The generic provider uses the planar surface's name.
ZQ_DEFINE_PROVIDER(CZqSurfacePE, QT_TRANSLATE_NOOP("entity_types", "Surface (Planar)"), kSurfaceRows)
ZQ_DEFINE_PROVIDER(CZqPlaneSurfacePE, QT_TRANSLATE_NOOP("entity_types", "Surface (Planar)"), kPlaneRows)
ZQ_DEFINE_PROVIDER(CZqExtrudedSurfacePE, QT_TRANSLATE_NOOP("entity_types", "Surface (Extrusion)"), kExtrudedRows)
ZQ_DEFINE_PROVIDER(CZqRevolvedSurfacePE, QT_TRANSLATE_NOOP("entity_types", "Surface (Revolve)"), kRevolvedRows)
ZQ_DEFINE_PROVIDER(CZqSweptSurfacePE, QT_TRANSLATE_NOOP("entity_types", "Surface (Sweep)"), kSweptRows)
ZQ_DEFINE_PROVIDER(CZqLoftedSurfacePE, QT_TRANSLATE_NOOP("entity_types", "Surface (Loft)"), kLoftedRows)

#define ZQ_SURFACE_INFO(Info, Class, Rows)                                                          \
  void Info::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {              \
    ZqPrintInfoFrame<Class>(this, object, context, [&](const Class*) {                              \
      printRows(object, context, kSurfaceRows);                                                     \
      printRows(object, context, Rows);                                                             \
    });                                                                                             \
  }
ZQ_SURFACE_INFO(CZqSurfaceInfo, OdDbSurface, std::span<const ZqRow>())
ZQ_SURFACE_INFO(CZqPlaneSurfaceInfo, OdDbPlaneSurface, kPlaneRows)
ZQ_SURFACE_INFO(CZqExtrudedSurfaceInfo, OdDbExtrudedSurface, kExtrudedRows)
ZQ_SURFACE_INFO(CZqRevolvedSurfaceInfo, OdDbRevolvedSurface, kRevolvedRows)
ZQ_SURFACE_INFO(CZqSweptSurfaceInfo, OdDbSweptSurface, kSweptRows)
ZQ_SURFACE_INFO(CZqLoftedSurfaceInfo, OdDbLoftedSurface, kLoftedRows)
