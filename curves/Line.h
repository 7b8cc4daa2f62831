#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of lines: thickness, the two end points in the current UCS,
// their deltas, length and angle.
class CZqLinePE : public ZqProvider<CZqLinePE> {
  ZQ_PROVIDER(CZqLinePE);
};

class CZqLineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
