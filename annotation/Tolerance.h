#pragma once
// Geometric tolerance frames: position, the style they draw with and the
// style variables their palette shows.
#include "ZqEntityExPE.h"
#include "KVKernel.h"

class CZqFcfPE : public ZqProvider<CZqFcfPE> {
  ZQ_PROVIDER(CZqFcfPE);
};

class CZqFcfInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
