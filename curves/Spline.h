#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of splines: degree, the closed, periodic and rational facts,
// the control points with their navigation, positions in the current UCS
// and weights, the fit data, and length and area.
class CZqSplinePE_Prop : public ZqProvider<CZqSplinePE_Prop> {
  ZQ_PROVIDER(CZqSplinePE_Prop);
};

class CZqSplineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
