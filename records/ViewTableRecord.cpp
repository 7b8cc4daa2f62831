#include "Records.h"
#include "ZqRecordRows.h"
#include "DbViewTableRecord.h"

// Named views and viewport configurations share what a view looks at; the
// configuration adds its grid and snap. Both providers live here, over the
// rows of their common class.
namespace {

using A = OdDbAbstractViewTableRecord;
using P = OdDbViewportTableRecord;
#define ZQ_VIEW QT_TRANSLATE_NOOP("property_groups", "View")
#define ZQ_AIDS QT_TRANSLATE_NOOP("property_groups", "Drawing aids")

// One coordinate of a 2D value (display coordinates, spacings): no UCS applies.
template <class T, auto Get, int Axis>
CZqVariant get2d(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  const OdGePoint2d p = (t->*Get)();
  return ZqDouble(Axis == 0 ? p.x : p.y);
}
template <class T, auto Get, auto Set, int Axis>
int set2d(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint2d p = (t->*Get)();
  (Axis == 0 ? p.x : p.y) = v;
  (t->*Set)(p);
  return kZqSetApplied;
}

// The direction the view looks from, in the current UCS.
template <int Axis>
CZqVariant getDirection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const A* a = ZqReadable<A>(object);
  return a ? ZqDouble(ZqUcsOf(object).wcsToUcs(a->viewDirection())[Axis]) : CZqVariant();
}

constexpr auto getCenterX = get2d<A, &A::centerPoint, 0>;
constexpr auto setCenterX = set2d<A, &A::centerPoint, &A::setCenterPoint, 0>;
constexpr auto getCenterY = get2d<A, &A::centerPoint, 1>;
constexpr auto setCenterY = set2d<A, &A::centerPoint, &A::setCenterPoint, 1>;
constexpr auto getHeight = ZqGetDouble<A, &A::height>;
constexpr auto setHeight = ZqSetDouble<A, &A::setHeight>;
constexpr auto getWidth = ZqGetDouble<A, &A::width>;
constexpr auto setWidth = ZqSetDouble<A, &A::setWidth>;
constexpr auto getAspect = ZqGetDouble<P, &P::aspectRatio>;
constexpr auto setAspect = ZqSetDouble<P, &P::setAspectRatio>;
constexpr auto getLens = ZqGetDouble<A, &A::lensLength>;
constexpr auto setLens = ZqSetDouble<A, &A::setLensLength>;
constexpr auto getTwist = ZqGetDouble<A, &A::viewTwist>;
constexpr auto setTwist = ZqSetDouble<A, &A::setViewTwist>;
template <int Axis> constexpr auto getTarget = ZqGetUcsCoordinate<A, &A::target, Axis>;
template <int Axis> constexpr auto setTarget = ZqSetUcsCoordinate<A, &A::target, &A::setTarget, Axis>;
constexpr auto getGrid = ZqGetFlag<P, &P::gridEnabled, kZqYesNo>;
constexpr auto setGrid = ZqSetFlag<P, &P::setGridEnabled, kZqYesNo>;
constexpr auto getSnap = ZqGetFlag<P, &P::snapEnabled, kZqYesNo>;
constexpr auto setSnap = ZqSetFlag<P, &P::setSnapEnabled, kZqYesNo>;
template <int Axis> constexpr auto getGridSpacing = get2d<P, &P::gridIncrements, Axis>;
template <int Axis> constexpr auto setGridSpacing = set2d<P, &P::gridIncrements, &P::setGridIncrements, Axis>;
template <int Axis> constexpr auto getSnapSpacing = get2d<P, &P::snapIncrements, Axis>;
template <int Axis> constexpr auto setSnapSpacing = set2d<P, &P::snapIncrements, &P::setSnapIncrements, Axis>;
constexpr auto getSnapAngle = ZqGetDouble<P, &P::snapAngle>;
constexpr auto setSnapAngle = ZqSetDouble<P, &P::setSnapAngle>;

#define ZQ_VIEW_ROWS                                                                                                                                                              \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Center X"),      kZqDouble,     nullptr,                  kZqEditable, getCenterX,     setCenterX,     nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Center Y"),      kZqDouble,     nullptr,                  kZqEditable, getCenterY,     setCenterY,     nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Height"),        kZqDouble,     nullptr,                  kZqEditable, getHeight,      setHeight,      nullptr, kVisKeep, kZqPositive}

#define ZQ_VIEW_DIRECTION_ROWS                                                                                                                                                    \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Target X"),      kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getTarget<0>,   setTarget<0>,   nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Target Y"),      kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getTarget<1>,   setTarget<1>,   nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Target Z"),      kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getTarget<2>,   setTarget<2>,   nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Direction X"),   kZqDouble,     nullptr,                  kZqReadOnly, getDirection<0>, nullptr,       nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Direction Y"),   kZqDouble,     nullptr,                  kZqReadOnly, getDirection<1>, nullptr,       nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Direction Z"),   kZqDouble,     nullptr,                  kZqReadOnly, getDirection<2>, nullptr,       nullptr},                   \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Lens length"),   kZqDouble,     nullptr,                  kZqEditable, getLens,        setLens,        nullptr, kVisKeep, kZqPositive}, \
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Twist angle"),   kZqDouble,     ZqGuid::kAngleGUID,       kZqEditable, getTwist,       setTwist,       nullptr}

const ZqRow kViewRows[] = {
//  category     name                                                  type           identifier                read-only    get              set              icon     visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,                  kZqEditable, ZqGetRecordName, ZqSetRecordName, nullptr},
  ZQ_VIEW_ROWS,
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Width"),         kZqDouble,     nullptr,                  kZqEditable, getWidth,        setWidth,        nullptr, kVisKeep, kZqPositive},
  ZQ_VIEW_DIRECTION_ROWS,
};

// The configuration's name (*Active: the current view) is fixed.
const ZqRow kViewportRows[] = {
//  category     name                                                  type           identifier                read-only              get                set                icon     visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,                  kZqReadOnly,           ZqGetRecordName,   nullptr,           nullptr},
  ZQ_VIEW_ROWS,
  {ZQ_VIEW,     QT_TRANSLATE_NOOP("property_types", "Aspect ratio"),  kZqDouble,     nullptr,                  kZqEditable,           getAspect,         setAspect,         nullptr, kVisKeep, kZqPositive},
  ZQ_VIEW_DIRECTION_ROWS,
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Grid"),          kZqCollection, nullptr,                  kZqEditable,           getGrid,           setGrid,           "DrawingAids_Grid"},
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Grid X spacing"), kZqDouble,    nullptr,                  kZqEditable,           getGridSpacing<0>, setGridSpacing<0>, "DrawingAids_GridXspacing", kVisKeep, kZqPositive},
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Grid Y spacing"), kZqDouble,    nullptr,                  kZqEditable,           getGridSpacing<1>, setGridSpacing<1>, "DrawingAids_GridYspacing", kVisKeep, kZqPositive},
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Snap"),          kZqCollection, nullptr,                  kZqEditable,           getSnap,           setSnap,           "DrawingAids_Snap"},
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Snap X spacing"), kZqDouble,    nullptr,                  kZqEditable,           getSnapSpacing<0>, setSnapSpacing<0>, "DrawingAids_SnapXspacing", kVisKeep, kZqPositive},
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Snap Y spacing"), kZqDouble,    nullptr,                  kZqEditable,           getSnapSpacing<1>, setSnapSpacing<1>, "DrawingAids_SnapYspacing", kVisKeep, kZqPositive},
  {ZQ_AIDS,     QT_TRANSLATE_NOOP("property_types", "Snap angle"),    kZqDouble,     ZqGuid::kAngleGUID,       kZqEditable,           getSnapAngle,      setSnapAngle,      "DrawingAids_Snapangle"},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqViewTableRecordPE, QT_TRANSLATE_NOOP("entity_types", "View"), kViewRows)
ZQ_DEFINE_PROVIDER(CZqViewportTableRecordPE, QT_TRANSLATE_NOOP("entity_types", "Viewport Configuration"), kViewportRows)
