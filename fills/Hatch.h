#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of hatches: the pattern (type, name, angle, scale or spacing,
// double, origin), associativity, island detection, background colour and,
// for gradient fills, the gradient; the elevation, the filled area and the
// number of boundary loops.
class CZqHatchPE : public ZqProvider<CZqHatchPE> {
  ZQ_PROVIDER(CZqHatchPE);
};

class CZqHatchInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
