#pragma once
#include "ZqProvider.h"
#include "KVKernel.h"

// Properties of construction lines: the rows of rays over OdDbXline.
class CZqXlinePE : public ZqProvider<CZqXlinePE> {
  ZQ_PROVIDER(CZqXlinePE);

 public:
  // The untranslated key by which hosts name construction lines.
  CZqString GetClassKey() const override;
};

class CZqXlineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
