#pragma once
#include "ZqProvider.h"
#include "KVKernel.h"

// Properties of paper-space viewports: centre and size on the sheet, on or
// off, display locking, the scale (a standard one or any other), the view
// twist, how it plots and the layers frozen in it.
class CZqViewportPE : public ZqProvider<CZqViewportPE> {
  ZQ_PROVIDER(CZqViewportPE);
};

class CZqViewportInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
