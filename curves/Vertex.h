#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of one vertex of a 2D polyline, taken on its own: the widths
// and the bulge of the segment that starts at it.
class CZqVertexPE : public ZqProvider<CZqVertexPE> {
  ZQ_PROVIDER(CZqVertexPE);
};

class CZqVertexInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
