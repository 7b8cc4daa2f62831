#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of ellipses and elliptical arcs: the centre in the current
// UCS, the major axis, the radii and their ratio, the start and end angles
// (and parameters), the normal, and the length and area.
class CZqEllipsePE : public ZqProvider<CZqEllipsePE> {
  ZQ_PROVIDER(CZqEllipsePE);
};

class CZqEllipseInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
