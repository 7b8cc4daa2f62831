#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of circles: thickness, the centre in the current UCS, the size
// as radius, diameter, circumference and area (all editing the radius), and
// the normal.
class CZqCirclePE : public ZqProvider<CZqCirclePE> {
  ZQ_PROVIDER(CZqCirclePE);
};

class CZqCircleInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
