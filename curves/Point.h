#pragma once
#include "ZqRows.h"
#include "KVKernel.h"

// Properties of points: thickness and the position in the current UCS.
class CZqPointPE : public CZqEntityPE {
  ZQ_DECLARE_PROVIDER(CZqPointPE);
};

class CZqPointInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
