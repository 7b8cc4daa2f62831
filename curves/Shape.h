#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of shapes: thickness, the insertion point in the current UCS,
// the shape's name (read-only), size, rotation, width factor and oblique
// angle.
class CZqShapePE : public ZqProvider<CZqShapePE> {
  ZQ_PROVIDER(CZqShapePE);
};

class CZqShapeInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
