#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of lightweight polylines: thickness, the vertices with their
// segment widths, global width, elevation, area, length, closing and
// linetype generation, the hidden matching row, and the settings of a
// revision cloud for a polyline that is one.
class CZqPolylinePE : public ZqProvider<CZqPolylinePE> {
  ZQ_PROVIDER(CZqPolylinePE);
};

class CZqPolylineInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
