#pragma once
// Callbacks shared by the providers of pictures placed in a drawing (raster
// images, underlays, OLE frames): the status of a referenced file and the
// rotation of a picture's plane in the current UCS. Whole-number rows
// (brightness, contrast, fade) use ZqWholeNumberRows.h.
#include "ZqCallbacks.h"
#include "ZqWholeNumberRows.h"
#include <QCoreApplication>
#include <cmath>

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
