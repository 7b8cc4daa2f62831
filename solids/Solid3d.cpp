#include "Solids.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbModelerGeometry.h"
#include <cmath>

namespace {

using S = OdDb3dSolid;
using H = OdDbSolidHistory;

QString tr(const char* name) { return QCoreApplication::translate("property_types", name); }
bool named(const CZqPropertyDescription& d, const char* name) { return d.GetName().qstring() == tr(name); }

const H* historyOf(const OdDbObject* object) {
  const S* solid = ZqReadable<S>(object);
  return solid ? &solid->history() : nullptr;
}

bool isKind(const OdDbObject* object, H::Kind kind) {
  const H* h = historyOf(object);
  return h && h->kind == kind;
}

// --- Solid type and position -----------------------------------------------

const ZqChoice kSolidTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "Box"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Cylinder"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Cone"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Pyramid"), 3},
    {QT_TRANSLATE_NOOP("property_values", "Sphere"), 4},
    {QT_TRANSLATE_NOOP("property_values", "Torus"), 5},
    {QT_TRANSLATE_NOOP("property_values", "Wedge"), 6},
    {QT_TRANSLATE_NOOP("property_values", "Extrude"), 7},
    {QT_TRANSLATE_NOOP("property_values", "Revolve"), 8},
    {QT_TRANSLATE_NOOP("property_values", "Sweep"), 9},
    {QT_TRANSLATE_NOOP("property_values", "Loft with path"), 10},
    {QT_TRANSLATE_NOOP("property_values", "Loft with guide curves"), 11},
    {QT_TRANSLATE_NOOP("property_values", "Loft with cross sections only"), 12},
};

// The choice a history shows: the kinds in list order; a loft by what
// guides it (its record counts guide curves in 91 and has a path in 92).
int solidTypeIndex(const H& h) {
  if (h.kind == H::kNone) return -1;
  if (h.kind != H::kLoft) return int(h.kind);
  if (h.value(92) > 0) return 10;
  return h.value(91) > 0 ? 11 : 12;
}

CZqVariant getSolidType(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h ? ZqEnumeration(kSolidTypes, solidTypeIndex(*h)) : CZqVariant();
}

bool solidTypeReadOnly(const OdDbObject*, const CZqPropertyDescription& d) { return named(d, "Solid type"); }

// Rows whose setter takes the value and changes nothing.
int keepAsIs(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) {
  return ZqWritable<S>(object) ? kZqSetApplied : kZqSetRefused;
}

template <int Axis>
CZqVariant getPosition(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* solid = ZqReadable<S>(object);
  OdGePoint3d p;
  if (!solid || !solid->position(p)) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs(p)[Axis]);
}

template <int Axis>
int setPosition(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                const CZqVariant&) {
  S* solid = ZqWritable<S>(object);
  if (!solid) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p;
  if (!solid->position(p))
    return ZqRefuseWith(QCoreApplication::translate("errors", "The solid's position is not known, so it cannot be moved."));
  if (!ZqReplaceUcsCoordinate(object, p, Axis, v)) return kZqSetApplied;
  QString why;
  if (!solid->setPosition(p, &why)) return ZqRefuseWith(why);
  return kZqSetApplied;
}

// --- History parameters ----------------------------------------------------

// A parameter of the primitive record by group code.
template <int Code>
CZqVariant getValue(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h && h->kind != H::kNone ? ZqDouble(h->value(Code)) : CZqVariant();
}

template <int Code>
CZqVariant getCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h && h->kind != H::kNone ? CZqVariant(int32_t(h->value(Code))) : CZqVariant();
}

CZqVariant getDiameter(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h && h->kind != H::kNone ? ZqDouble(2 * h->value(40)) : CZqVariant();
}

// A cone's top minor radius: the base's proportion kept.
CZqVariant getTopMinor(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  if (!h || h->kind == H::kNone) return CZqVariant();
  const double major = h->value(41);
  return ZqDouble(major != 0 ? h->value(43) * h->value(42) / major : 0);
}

// The rotation of the primitive about its Z axis: the angle of its X axis
// in the XY plane.
CZqVariant getRotation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  if (!h || h->kind == H::kNone) return CZqVariant();
  const double a = std::atan2(h->transform(1, 0), h->transform(0, 0));
  return ZqDouble(a < 0 ? a + Oda2PI : a);
}

// The axis direction of an extrusion (10/20/30 of its record), one component.
template <int Axis>
CZqVariant getDirection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h && h->kind != H::kNone ? ZqDouble(h->value(10 + 10 * Axis)) : CZqVariant();
}

CZqVariant getExtrusionHeight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  if (!h || h->kind == H::kNone) return CZqVariant();
  return ZqDouble(OdGeVector3d(h->value(10), h->value(20), h->value(30)).length());
}

bool isElliptical(const H& h) { return std::fabs(h.value(41) - h.value(42)) > 1e-10 * (1 + std::fabs(h.value(41))); }

CZqVariant getElliptical(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h && h->kind != H::kNone ? ZqEnumeration(kZqYesNo, isElliptical(*h) ? 0 : 1) : CZqVariant();
}

template <int Code, const auto& Choices>
CZqVariant getChoice(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = historyOf(object);
  return h && h->kind != H::kNone ? ZqEnumeration(Choices, ZqChoiceIndex(Choices, int32_t(h->value(Code))))
                                  : CZqVariant();
}

// The parameters are shown from the history; changing one would need the
// body built anew from it, which is not done here: a value the row takes
// is refused with a sentence saying so, and nothing changes.
int refuseRebuild(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                  const CZqVariant&) {
  if (!ZqWritable<S>(object)) return kZqSetRefused;
  if (value.GetType() == CZqVariant::kVtDouble) {
    double v = 0;
    if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  } else if (value.GetType() != CZqVariant::kVtCollectionElement && value.GetType() != CZqVariant::kVtInt32) {
    return kZqSetRefused;
  }
  return ZqRefuseWith(QCoreApplication::translate("errors",
                                                  "%1 cannot be changed here: the solid's body would have to be "
                                                  "built again from its history. Nothing was changed.")
                          .arg(description.GetName().qstring()));
}

const ZqChoice kPyramidTypes[] = {{QT_TRANSLATE_NOOP("property_values", "Corner"), 0},
                                  {QT_TRANSLATE_NOOP("property_values", "Side"), 1}};
const ZqChoice kNormalTypes[] = {{QT_TRANSLATE_NOOP("property_values", "Ruled"), 0},
                                 {QT_TRANSLATE_NOOP("property_values", "Smooth fit"), 1},
                                 {QT_TRANSLATE_NOOP("property_values", "Normal to"), 2},
                                 {QT_TRANSLATE_NOOP("property_values", "Draft angles"), 3}};
const ZqChoice kNormalTo[] = {{QT_TRANSLATE_NOOP("property_values", "All Cross Sections"), 0},
                              {QT_TRANSLATE_NOOP("property_values", "Beginning and Ending Cross Sections"), 1},
                              {QT_TRANSLATE_NOOP("property_values", "Beginning Cross Section"), 2},
                              {QT_TRANSLATE_NOOP("property_values", "Ending Cross Section"), 3}};

// The read-only test of each kind, keyed on the row's translated name.
bool boxReadOnly(const OdDbObject*, const CZqPropertyDescription& d) { return named(d, "Rotation"); }
bool cylinderReadOnly(const OdDbObject*, const CZqPropertyDescription& d) {
  return named(d, "Rotation") || named(d, "Elliptical");
}
bool pyramidReadOnly(const OdDbObject*, const CZqPropertyDescription& d) { return named(d, "Rotation"); }
bool extrusionReadOnly(const OdDbObject*, const CZqPropertyDescription& d) {
  return named(d, "Direction x") || named(d, "Direction y") || named(d, "Direction z");
}
// Looks for names no revolve row carries, so every revolve row is editable.
bool revolveReadOnly(const OdDbObject*, const CZqPropertyDescription& d) {
  return named(d, "Direction X") || named(d, "Direction Y") || named(d, "Direction Z");
}
bool sweepReadOnly(const OdDbObject*, const CZqPropertyDescription& d) { return named(d, "Bank") || named(d, "Length"); }
bool loftReadOnly(const OdDbObject*, const CZqPropertyDescription& d) {
  return named(d, "Number of cross sections") || named(d, "Number of guide curves") || named(d, "Closed");
}

bool always(const OdDbObject*) { return true; }
bool isCylinder(const OdDbObject* o) { return isKind(o, H::kCylinder); }
bool isCone(const OdDbObject* o) { return isKind(o, H::kCone); }
bool roundCylinder(const OdDbObject* o) { return isCylinder(o) && !isElliptical(*historyOf(o)); }
bool ellipticalCylinder(const OdDbObject* o) { return isCylinder(o) && isElliptical(*historyOf(o)); }
bool roundCone(const OdDbObject* o) { return isCone(o) && !isElliptical(*historyOf(o)); }
bool ellipticalCone(const OdDbObject* o) { return isCone(o) && isElliptical(*historyOf(o)); }
bool cylinderOrCone(const OdDbObject* o) { return isCylinder(o) || isCone(o); }

constexpr ZqLimit kSize = ZqMessage(kZqPositive, QT_TRANSLATE_NOOP("errors", "Invalid input."));
constexpr ZqLimit kAny = ZqMessage(kZqAny, QT_TRANSLATE_NOOP("errors", "Invalid input."));

#define G ZQ_GEOMETRY
#define N(name) QT_TRANSLATE_NOOP("property_types", name)
const char* const kAngle = ZqGuid::kAngleGUID;

const ZqConditionalRow kSolidRows[] = {
//  when    category  name                  type           identifier                read-only          get               set               icon                           vis       limit
  {always, {G,  N("Solid type"),            kZqCollection, nullptr,                  solidTypeReadOnly, getSolidType,     keepAsIs,         "Geometry_SurfaceType"}},
  {always, {G,  N("Position X"),            kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable,       getPosition<0>,   setPosition<0>,   "Geometry_CoordinateX"}},
  {always, {G,  N("Position Y"),            kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable,       getPosition<1>,   setPosition<1>,   "Geometry_CoordinateY"}},
  {always, {G,  N("Position Z"),            kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable,       getPosition<2>,   setPosition<2>,   "Geometry_CoordinateZ"}},
};

const ZqConditionalRow kBoxRows[] = {
  {always, {G,  N("Length"),                kZqDouble,     nullptr,  boxReadOnly,       getValue<40>,      refuseRebuild, "Geometry_Length",   kVisKeep, kSize}},
  {always, {G,  N("Width"),                 kZqDouble,     nullptr,  boxReadOnly,       getValue<41>,      refuseRebuild, "Geometry_Width",    kVisKeep, kSize}},
  {always, {G,  N("Height"),                kZqDouble,     nullptr,  boxReadOnly,       getValue<42>,      refuseRebuild, "Geometry_Height",   kVisKeep, kSize}},
  {always, {G,  N("Rotation"),              kZqDouble,     kAngle,   boxReadOnly,       getRotation,       keepAsIs,      "Misc_Rotation"}},
};

const ZqConditionalRow kCylinderRows[] = {
  {cylinderOrCone,     {G, N("Elliptical"),        kZqCollection, nullptr, cylinderReadOnly, getElliptical, keepAsIs,      "Geometry_Elliptical"}},
  {ellipticalCylinder, {G, N("Major radius"),      kZqDouble,     nullptr, cylinderReadOnly, getValue<41>,  refuseRebuild, "Geometry_MajorRadius", kVisKeep, kSize}},
  {ellipticalCylinder, {G, N("Minor radius"),      kZqDouble,     nullptr, cylinderReadOnly, getValue<42>,  refuseRebuild, "Geometry_MinorRadius", kVisKeep, kSize}},
  {roundCylinder,      {G, N("Radius"),            kZqDouble,     nullptr, cylinderReadOnly, getValue<41>,  refuseRebuild, "Geometry_Radius",      kVisKeep, kSize}},
  {roundCone,          {G, N("Base radius"),       kZqDouble,     nullptr, cylinderReadOnly, getValue<41>,  refuseRebuild, "Geometry_Radius",      kVisKeep, kSize}},
  {roundCone,          {G, N("Top radius"),        kZqDouble,     nullptr, cylinderReadOnly, getValue<43>,  refuseRebuild, "Geometry_Radius",      kVisKeep, ZqMessage(kZqNonNegative, "Invalid input.")}},
  {ellipticalCone,     {G, N("Base major radius"), kZqDouble,     nullptr, cylinderReadOnly, getValue<41>,  refuseRebuild, "Geometry_MajorRadius", kVisKeep, kSize}},
  {ellipticalCone,     {G, N("Base minor radius"), kZqDouble,     nullptr, cylinderReadOnly, getValue<42>,  refuseRebuild, "Geometry_MinorRadius", kVisKeep, kSize}},
  {ellipticalCone,     {G, N("Top major radius"),  kZqDouble,     nullptr, cylinderReadOnly, getValue<43>,  refuseRebuild, "Geometry_MajorRadius", kVisKeep, ZqMessage(kZqNonNegative, "Invalid input.")}},
  {ellipticalCone,     {G, N("Top minor radius"),  kZqDouble,     nullptr, cylinderReadOnly, getTopMinor,   refuseRebuild, "Geometry_MinorRadius", kVisKeep, ZqMessage(kZqNonNegative, "Invalid input.")}},
  {cylinderOrCone,     {G, N("Height"),            kZqDouble,     nullptr, cylinderReadOnly, getValue<40>,  refuseRebuild, "Geometry_Height",      kVisKeep, kSize}},
  {cylinderOrCone,     {G, N("Rotation"),          kZqDouble,     kAngle,  cylinderReadOnly, getRotation,   keepAsIs,      "Misc_Rotation"}},
};

const ZqConditionalRow kPyramidRows[] = {
  {always, {G, N("Type"),        kZqCollection, nullptr, pyramidReadOnly, getChoice<280, kPyramidTypes>, refuseRebuild, "Geometry_PyramidType"}},
  {always, {G, N("Base radius"), kZqDouble,     nullptr, pyramidReadOnly, getValue<41>,  refuseRebuild, "Geometry_Radius", kVisKeep, kSize}},
  {always, {G, N("Top radius"),  kZqDouble,     nullptr, pyramidReadOnly, getValue<42>,  refuseRebuild, "Geometry_Radius", kVisKeep, ZqMessage(kZqNonNegative, "Invalid input.")}},
  {always, {G, N("Side"),        kZqInt32,      nullptr, pyramidReadOnly, getCount<92>,  refuseRebuild, "Geometry_Sides"}},
  {always, {G, N("Height"),      kZqDouble,     nullptr, pyramidReadOnly, getValue<40>,  refuseRebuild, "Geometry_Height", kVisKeep, kSize}},
  {always, {G, N("Rotation"),    kZqDouble,     kAngle,  pyramidReadOnly, getRotation,   keepAsIs,      "Misc_Rotation"}},
};

const ZqConditionalRow kSphereRows[] = {
  {always, {G, N("Radius"),   kZqDouble, nullptr, kZqEditable, getValue<40>, refuseRebuild, "Geometry_Radius",   kVisKeep, kSize}},
  {always, {G, N("Diameter"), kZqDouble, nullptr, kZqEditable, getDiameter,  refuseRebuild, "Geometry_Diameter", kVisKeep, kSize}},
};

// Both torus rows use the length icon.
const ZqConditionalRow kTorusRows[] = {
  {always, {G, N("Radius of torus"), kZqDouble, nullptr, kZqEditable, getValue<40>, refuseRebuild, "Geometry_Length", kVisKeep, kSize}},
  {always, {G, N("Radius of tube"),  kZqDouble, nullptr, kZqEditable, getValue<41>, refuseRebuild, "Geometry_Length", kVisKeep, kSize}},
};

const ZqConditionalRow kExtrusionRows[] = {
  {always, {G, N("Height"),      kZqDouble, nullptr, extrusionReadOnly, getExtrusionHeight, refuseRebuild, "Geometry_Height",     kVisKeep, kSize}},
  {always, {G, N("Taper angle"), kZqDouble, kAngle,  extrusionReadOnly, getValue<42>,       refuseRebuild, "Geometry_TaperAngle", kVisKeep, kAny}},
  {always, {G, N("Direction x"), kZqDouble, nullptr, extrusionReadOnly, getDirection<0>,    keepAsIs,      "Geometry_DirectionX"}},
  {always, {G, N("Direction y"), kZqDouble, nullptr, extrusionReadOnly, getDirection<1>,    keepAsIs,      "Geometry_DirectionY"}},
  {always, {G, N("Direction z"), kZqDouble, nullptr, extrusionReadOnly, getDirection<2>,    keepAsIs,      "Geometry_DirectionZ"}},
};

const ZqConditionalRow kRevolveRows[] = {
  {always, {G, N("Angle of revolution"), kZqDouble, kAngle,  revolveReadOnly, getValue<40>, refuseRebuild, "Geometry_RevolutionAngle", kVisKeep, kAny}},
  {always, {G, N("Axis position X"),     kZqDouble, nullptr, revolveReadOnly, getValue<10>, refuseRebuild, "Geometry_AxisPositionX",   kVisKeep, kAny}},
  {always, {G, N("Axis position Y"),     kZqDouble, nullptr, revolveReadOnly, getValue<20>, refuseRebuild, "Geometry_AxisPositionY",   kVisKeep, kAny}},
  {always, {G, N("Axis position Z"),     kZqDouble, nullptr, revolveReadOnly, getValue<30>, refuseRebuild, "Geometry_AxisPositionZ",   kVisKeep, kAny}},
  {always, {G, N("Axis direction X"),    kZqDouble, nullptr, revolveReadOnly, getValue<11>, refuseRebuild, "Geometry_AxisDirectionX",  kVisKeep, kAny}},
  {always, {G, N("Axis direction Y"),    kZqDouble, nullptr, revolveReadOnly, getValue<21>, refuseRebuild, "Geometry_AxisDirectionY",  kVisKeep, kAny}},
  {always, {G, N("Axis direction Z"),    kZqDouble, nullptr, revolveReadOnly, getValue<31>, refuseRebuild, "Geometry_AxisDirectionZ",  kVisKeep, kAny}},
};

// The path's length is not kept by the record: the row shows no value.
CZqVariant noValue(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&) { return CZqVariant(); }

const ZqConditionalRow kSweepRows[] = {
  {always, {G, N("Profile rotation"), kZqDouble,     kAngle,  sweepReadOnly, getValue<49>, refuseRebuild, "Geometry_ProfileRotation", kVisKeep, kAny}},
  {always, {G, N("Scale along path"), kZqDouble,     nullptr, sweepReadOnly, getValue<48>, refuseRebuild, "Geometry_ScaleAlongPath",  kVisKeep, kSize}},
  {always, {G, N("Twist along path"), kZqDouble,     kAngle,  sweepReadOnly, getValue<45>, refuseRebuild, "Geometry_TwistAlongPath",  kVisKeep, kAny}},
  {always, {G, N("Bank"),             kZqCollection, nullptr, sweepReadOnly, getChoice<293, kZqYesNo>, keepAsIs, "Geometry_Bank"}},
  {always, {G, N("Length"),           kZqDouble,     nullptr, sweepReadOnly, noValue,      keepAsIs,      "Geometry_Length"}},
};

const ZqConditionalRow kLoftRows[] = {
  {always, {G, N("Number of cross sections"), kZqInt32,      nullptr, loftReadOnly, getCount<90>,              refuseRebuild, "Geometry_CrossSections"}},
  {always, {G, N("Number of guide curves"),   kZqInt32,      nullptr, loftReadOnly, getCount<91>,              refuseRebuild, "Geometry_GuideCurves"}},
  {always, {G, N("Surface normal type"),      kZqCollection, nullptr, loftReadOnly, getChoice<70, kNormalTypes>, refuseRebuild, "Geometry_NormalType"}},
  {always, {G, N("Normal to"),                kZqCollection, nullptr, loftReadOnly, getChoice<71, kNormalTo>,  refuseRebuild, "Geometry_NormalTo"}},
  {always, {G, N("Start draft angle"),        kZqDouble,     kAngle,  loftReadOnly, getValue<41>,              refuseRebuild, "Geometry_StartDraftAngle", kVisKeep, kAny}},
  {always, {G, N("End draft angle"),          kZqDouble,     kAngle,  loftReadOnly, getValue<42>,              refuseRebuild, "Geometry_EndDraftAngle",   kVisKeep, kAny}},
  {always, {G, N("Start magnitude"),          kZqDouble,     nullptr, loftReadOnly, getValue<43>,              refuseRebuild, "Geometry_StartMagnitude",  kVisKeep, kAny}},
  {always, {G, N("End magnitude"),            kZqDouble,     nullptr, loftReadOnly, getValue<44>,              refuseRebuild, "Geometry_EndMagnitude",    kVisKeep, kAny}},
  {always, {ZQ_MISC, N("Closed"),             kZqCollection, nullptr, loftReadOnly, getChoice<294, kZqYesNo>,  refuseRebuild, "Misc_Closed"}},
};
#undef G
#undef N

// The kind providers, found by history kind.
template <class P>
CZq3dSolidPE* kindProvider() {
  static OdStaticRxObject<P> provider;
  return &provider;
}

CZq3dSolidPE* providerFor(H::Kind kind) {
  using Get = CZq3dSolidPE* (*)();
  static const Get kProviders[] = {
      &kindProvider<CZqBoxPE>,   &kindProvider<CZqCylinderPE>, &kindProvider<CZqCylinderPE>,
      &kindProvider<CZqPyramidPE>, &kindProvider<CZqSpherePE>, &kindProvider<CZqTorusPE>,
      &kindProvider<CZqWedgePE>, &kindProvider<CZqExtrusionPE>, &kindProvider<CZqRevolvePE>,
      &kindProvider<CZqSweepPE>, &kindProvider<CZqLoftPE>};
  return kind == H::kNone ? nullptr : kProviders[kind]();
}

// The rows of a kind, for its information lines.
std::span<const ZqConditionalRow> rowsOf(H::Kind kind) {
  switch (kind) {
    case H::kBox: case H::kWedge: return kBoxRows;
    case H::kCylinder: case H::kCone: return kCylinderRows;
    case H::kPyramid: return kPyramidRows;
    case H::kSphere: return kSphereRows;
    case H::kTorus: return kTorusRows;
    case H::kExtrude: return kExtrusionRows;
    case H::kRevolve: return kRevolveRows;
    case H::kSweep: return kSweepRows;
    case H::kLoft: return kLoftRows;
    default: return {};
  }
}

}  // namespace

// CZq3dSolidPE's class identity comes from the table; the kind providers
// are defined here, each with the rows of its kind.
ZQ_DEFINE_PROVIDER(CZq3dSolidPE, QT_TRANSLATE_NOOP("entity_types", "3D Solid"), {}, kSolidRows)
ZQ_DEFINE_PROVIDER(CZqBoxPE, nullptr, {}, kBoxRows)
ZQ_DEFINE_PROVIDER(CZqWedgePE, nullptr, {}, kBoxRows)
ZQ_DEFINE_PROVIDER(CZqCylinderPE, nullptr, {}, kCylinderRows)
ZQ_DEFINE_PROVIDER(CZqPyramidPE, nullptr, {}, kPyramidRows)
ZQ_DEFINE_PROVIDER(CZqSpherePE, nullptr, {}, kSphereRows)
ZQ_DEFINE_PROVIDER(CZqTorusPE, nullptr, {}, kTorusRows)
ZQ_DEFINE_PROVIDER(CZqExtrusionPE, nullptr, {}, kExtrusionRows)
ZQ_DEFINE_PROVIDER(CZqRevolvePE, nullptr, {}, kRevolveRows)
ZQ_DEFINE_PROVIDER(CZqSweepPE, nullptr, {}, kSweepRows)
ZQ_DEFINE_PROVIDER(CZqLoftPE, nullptr, {}, kLoftRows)

void CZq3dSolidPE::GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container,
                                    const OdRxClass* objectClass, const OdRxClass* providerClass, bool excludeOwn) {
  // The attached provider hands a solid with history to its kind's provider,
  // which comes back here (as its parent) for the solid's own rows.
  if (isA() == CZq3dSolidPE::desc()) {
    const H* h = historyOf(object);
    if (CZq3dSolidPE* kind = h ? providerFor(h->kind) : nullptr; kind && kind->isA()) {
      kind->GetPropertyNames(object, container, objectClass, providerClass, excludeOwn);
      return;
    }
  }
  ZqProvider<CZq3dSolidPE>::GetPropertyNames(object, container, objectClass, providerClass, excludeOwn);
}

void CZq3dSolidInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<S>(this, object, context, [&](const S* solid) {
    const H& h = solid->history();
    auto label = [](const char* name) { return QCoreApplication::translate("info_items", name); };
    const int type = solidTypeIndex(h);
    if (type >= 0)
      context->PrintString(label("Solid type"),
                           QCoreApplication::translate("info_values", kSolidTypes[type].word));
    OdGePoint3d p;
    if (solid->position(p)) context->PrintPoint(label("Position"), p);
    // The kind's parameters under the names of its rows, as the rows show them.
    for (const ZqConditionalRow& c : rowsOf(h.kind)) {
      if (!c.when(object) || c.row.get == noValue) continue;
      CZqCustomPropertyDescription d;
      d.SetName(CZqString(tr(c.row.name)));
      const CZqVariant v = c.row.get(object, d, CZqVariant());
      if (v.GetType() == CZqVariant::kVtDouble) {
        if (c.row.typeId == kAngle) context->PrintAngle(label(c.row.name), v.GetDouble());
        else context->PrintDist(label(c.row.name), v.GetDouble());
      } else if (v.GetType() == CZqVariant::kVtInt32) {
        context->PrintInt(label(c.row.name), v.GetInt32());
      } else if (v.GetType() == CZqVariant::kVtCollection) {
        const CZqVariantCollection& choices = v.GetCollection();
        if (choices.GetCurrent() >= 0)
          context->PrintString(label(c.row.name), choices.GetAt(choices.GetCurrent()).GetValue().GetString());
      }
    }
  });
}
