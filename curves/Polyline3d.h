#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of 3D polylines: the vertices with their navigation and their
// positions in the current UCS, length and area, closure and the spline-fit
// type.
class CZq3dPolylinePE : public ZqProvider<CZq3dPolylinePE> {
  ZQ_PROVIDER(CZq3dPolylinePE);
};

class CZq3dPolylineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
