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

