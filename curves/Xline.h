#pragma once
#include "ZqRows.h"
#include "KVKernel.h"

// Properties of construction lines: the rows of rays over OdDbXline.
class CZqXlinePE : public CZqEntityPE {
  ZQ_DECLARE_PROVIDER(CZqXlinePE);

 public:
  // The untranslated key by which hosts name construction lines.
  CZqString GetClassKey() const override;
};

class CZqXlineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
