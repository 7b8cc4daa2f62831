#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of arcs: thickness, the centre and the end points in the
// current UCS, radius, start and end angle, and the measures that follow
// from them (total angle, arc length, area), and the normal.
class CZqArcPE : public ZqProvider<CZqArcPE> {
  ZQ_PROVIDER(CZqArcPE);
};

class CZqArcInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
