#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of an attribute definition: the rows of single-line text, then
// its tag, prompt, default value, flags, lock position and kind of text.
class CZqAttributeDefinitionPE : public ZqProvider<CZqAttributeDefinitionPE> {
  ZQ_PROVIDER(CZqAttributeDefinitionPE);
};

class CZqAttributeDefinitionInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
