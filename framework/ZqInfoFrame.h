#pragma once
// The frame every information provider follows: the general lines first,
// then the class's own lines when the object is of that class.
#include "KVKernel.h"
#include "ZqCallbacks.h"

template <class T, class Body>
void ZqPrintInfoFrame(CZqPrintObjectInfoPE* self, const OdDbObject* object, CZqPrintInfoContext* context, Body body) {
  self->CZqPrintObjectInfoPE::PrintObjectInfo(object, context);
  const T* t = context ? ZqReadable<T>(object) : nullptr;
  if (t) body(t);
}

// A WCS point in the listing's working plane: transformed when the listing
// is in the UCS, as it is otherwise.
inline OdGePoint3d ZqWorkingPoint(CZqPrintInfoContext* context, const OdGePoint3d& p) {
  return context->IsPrintInUCS() ? context->GetWorldToWorkingPlaneMatrix() * p : p;
}

// The angle of a WCS direction in the XY plane of the listing's working
// plane, in [0, 2pi); 0 for a direction perpendicular to that plane.
inline double ZqAngleInXYPlane(CZqPrintInfoContext* context, const OdGeVector3d& wcsDirection) {
  const OdGeVector3d d = context->IsPrintInUCS() ? context->GetWorldToWorkingPlaneMatrix() * wcsDirection : wcsDirection;
  if (std::hypot(d.x, d.y) <= 1e-10) return 0;
  const double a = std::atan2(d.y, d.x);
  return a < 0 ? a + Oda2PI : a;
}
