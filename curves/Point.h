#pragma once
#include "ZqProvider.h"
#include "KVKernel.h"

// Properties of points: thickness and the position in the current UCS.
class CZqPointPE : public ZqProvider<CZqPointPE> {
  ZQ_PROVIDER(CZqPointPE);
};

class CZqPointInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
