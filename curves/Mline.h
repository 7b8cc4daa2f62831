#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of multilines: the vertices with their navigation and
// positions in the current UCS, the style's name (read-only), the
// justification, the scale and closure.
class CZqMlinePE : public ZqProvider<CZqMlinePE> {
  ZQ_PROVIDER(CZqMlinePE);
};

class CZqMlineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
