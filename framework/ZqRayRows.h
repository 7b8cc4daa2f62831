#pragma once
// The rows that rays and construction lines share: base point, second point
// (base point plus the unit direction) and direction, in the current UCS.
// T is OdDbRay or OdDbXline; both have basePoint/setBasePoint and
// unitDir/setUnitDir.
#include "ZqCallbacks.h"

namespace ZqRayLike {

template <class T, int Axis>
CZqVariant getSecondPoint(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs(t->basePoint() + t->unitDir())[Axis]);
}

// Moves the second point's UCS coordinate: the direction changes by the same
// amount in that coordinate and is made unit length again (a zero direction
// stays zero); the base point stays.
template <class T, int Axis>
int setSecondPoint(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                   const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  const OdDbCoordinateService ucs = ZqUcsOf(object);
  const OdGePoint3d base = ucs.wcsToUcs(t->basePoint());
  OdGePoint3d second = base + ucs.wcsToUcs(t->unitDir());
  second[Axis] = ZqIsZero(v) ? 0.0 : v;
  const OdGeVector3d dir = (second - base).normal(OdGeContext::gZeroTol);
  t->setUnitDir(ucs.ucsToWcs(dir));
  return kZqSetApplied;
}

template <class T, int Axis>
CZqVariant getDirection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs(t->unitDir())[Axis]);
}

template <class T, int Axis> constexpr auto getBase = ZqGetUcsCoordinate<T, &T::basePoint, Axis>;
template <class T, int Axis> constexpr auto setBase = ZqSetUcsCoordinate<T, &T::basePoint, &T::setBasePoint, Axis>;

}  // namespace ZqRayLike

template <class T>
inline const ZqRow kZqRayRows[] = {
//  category      name                                                        type       identifier                read-only    get                               set                               icon                      visibility
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Base point X"),        kZqDouble, ZqGuid::kCoordinateXGUID, kZqEditable, ZqRayLike::getBase<T, 0>,         ZqRayLike::setBase<T, 0>,         "Geometry_BasePointX",    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Base point Y"),        kZqDouble, ZqGuid::kCoordinateYGUID, kZqEditable, ZqRayLike::getBase<T, 1>,         ZqRayLike::setBase<T, 1>,         "Geometry_BasePointY",    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Base point Z"),        kZqDouble, ZqGuid::kCoordinateZGUID, kZqEditable, ZqRayLike::getBase<T, 2>,         ZqRayLike::setBase<T, 2>,         "Geometry_BasePointZ",    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Second point X"),      kZqDouble, ZqGuid::kCoordinateXGUID, kZqEditable, ZqRayLike::getSecondPoint<T, 0>,  ZqRayLike::setSecondPoint<T, 0>,  "Geometry_SecondPointX",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Second point Y"),      kZqDouble, ZqGuid::kCoordinateYGUID, kZqEditable, ZqRayLike::getSecondPoint<T, 1>,  ZqRayLike::setSecondPoint<T, 1>,  "Geometry_SecondPointY",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Second point Z"),      kZqDouble, ZqGuid::kCoordinateZGUID, kZqEditable, ZqRayLike::getSecondPoint<T, 2>,  ZqRayLike::setSecondPoint<T, 2>,  "Geometry_SecondPointZ",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Direction vector X"),  kZqDouble, ZqGuid::kCoordinateXGUID, kZqReadOnly, ZqRayLike::getDirection<T, 0>,    nullptr,                          "Geometry_DirectionX",    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Direction vector Y"),  kZqDouble, ZqGuid::kCoordinateYGUID, kZqReadOnly, ZqRayLike::getDirection<T, 1>,    nullptr,                          "Geometry_DirectionY",    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Direction vector Z"),  kZqDouble, ZqGuid::kCoordinateZGUID, kZqReadOnly, ZqRayLike::getDirection<T, 2>,    nullptr,                          "Geometry_DirectionZ",    kVisKeep},
};
