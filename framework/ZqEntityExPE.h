#pragma once
// Base of the providers of curves and other measurable entities: after its
// (empty) static list it adds the selection-wide "Total Length" and
// "Total Area" rows when two or more objects are selected.
#include "ZqProvider.h"

class CZqEntityExPE : public ZqProvider<CZqEntityExPE> {
  ZQ_PROVIDER(CZqEntityExPE);

 public:
  // The shared always-true test, also the HasDynamicProperties answer of
  // providers that always have dynamic rows.
  static bool AlwaysTrue(const OdDbObject* object, const CZqPropertyDescription& description);
};
