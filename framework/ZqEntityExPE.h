#pragma once
// Base of the providers of curves and other measurable entities: after its
// (empty) static list it adds the selection-wide "Total Length" and
// "Total Area" rows when two or more objects are selected.
#include "ZqRows.h"

class CZqEntityExPE : public CZqEntityPE {
  ZQ_DECLARE_PROVIDER(CZqEntityExPE);

 public:
  // The shared always-true test, also the HasDynamicProperties answer of
  // providers that always have dynamic rows.
  static bool AlwaysTrue(const OdDbObject* object, const CZqPropertyDescription& description);
};
