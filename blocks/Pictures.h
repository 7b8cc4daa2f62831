#pragma once
// Callbacks shared by the providers of pictures placed in a drawing (raster
// images, underlays, OLE frames): whole numbers within a row's limit,
// yes/no flags, the status of a referenced file and the rotation of a
// picture's plane in the current UCS.
#include "ZqCallbacks.h"
#include <QCoreApplication>
#include <cmath>

// A whole number of the row's limit (percentages: brightness, fade).
template <class T, int (T::*Get)() const>
CZqVariant ZqGetInt(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(int32_t((t->*Get)())) : CZqVariant();
}

// Takes an integer (or a whole double) within the row's limit; a value
// outside is refused with the limit's sentence and changes nothing.
template <class T, void (T::*Set)(int)>
int ZqSetInt(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  double v = 0;
  if (value.GetType() == CZqVariant::kVtInt32) v = value.GetInt32();
  else if (value.GetType() == CZqVariant::kVtDouble) v = value.GetDouble();
  else return kZqSetRefused;
  if (const int refused = ZqCheckLimit(description, v)) return refused;
  if (v != std::floor(v))
    return ZqRefuseWith(QCoreApplication::translate("errors", "%1 is a whole number.").arg(description.GetName().qstring()));
  (t->*Set)(int(v));
  return kZqSetApplied;
}

// "found" or "not found": whether the file a picture shows is there.
template <class T, bool (T::*Found)() const>
CZqVariant ZqGetFileStatus(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  return CZqVariant(CZqString((t->*Found)() ? QCoreApplication::translate("property_values", "found")
                                            : QCoreApplication::translate("property_values", "not found")));
}

template <class T, OdString (T::*Get)() const>
CZqVariant ZqGetText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(CZqString((t->*Get)())) : CZqVariant();
}

// The angle of a WCS direction in the XY plane of the current UCS, in [0, 2pi).
inline double ZqUcsAngleOf(const OdDbObject* object, const OdGeVector3d& wcsDirection) {
  const OdGeVector3d d = ZqUcsOf(object).wcsToUcs(wcsDirection);
  if (std::hypot(d.x, d.y) <= 1e-12) return 0;
  const double a = std::atan2(d.y, d.x);
  return a < 0 ? a + Oda2PI : a;
}
