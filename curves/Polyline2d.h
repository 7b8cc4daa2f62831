#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of 2D (heavy) polylines: thickness, the vertices with their
// navigation, positions in the current UCS and segment widths, the global
// width, elevation, area and length, closure, the fit type and linetype
// generation, and property matching with other polylines.
class CZq2dPolylinePE : public ZqProvider<CZq2dPolylinePE> {
  ZQ_PROVIDER(CZq2dPolylinePE);
};

class CZq2dPolylineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
