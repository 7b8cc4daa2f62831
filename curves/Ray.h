#pragma once
#include "ZqProvider.h"
#include "KVKernel.h"

// Properties of rays: base point, second point and direction in the current UCS.
class CZqRayPE : public ZqProvider<CZqRayPE> {
  ZQ_PROVIDER(CZqRayPE);
};

class CZqRayInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
