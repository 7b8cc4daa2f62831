#pragma once
// Multileaders: the static rows of their leader lines and style, and the
// rows of their content (none, a block, a text or a tolerance frame), which
// share one getter, one setter and one read-only test.
#include "ZqEntityExPE.h"
#include "KVKernel.h"

class CZqMLeaderPE : public ZqProvider<CZqMLeaderPE> {
  ZQ_PROVIDER(CZqMLeaderPE);
};

class CZqMLeaderInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
