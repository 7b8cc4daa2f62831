#pragma once
#include "Text.h"

// Properties of an attribute of a block reference: the rows of single-line
// text (from CZqTextPE, its parent), then its tag, value, flags, lock
// position and kind of text.
class CZqAttributePE : public ZqProvider<CZqAttributePE> {
  ZQ_PROVIDER(CZqAttributePE);
};

class CZqBlockAttributeInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
