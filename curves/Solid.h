#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of filled solids and traces: thickness, the four corners with
// their navigation and positions in the current UCS, and the normal.
class CZqSolidPE : public ZqProvider<CZqSolidPE> {
  ZQ_PROVIDER(CZqSolidPE);
};

class CZqSolidInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

class CZqTracePE : public ZqProvider<CZqTracePE> {
  ZQ_PROVIDER(CZqTracePE);
};

class CZqTraceInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// Properties of 3D faces: the four corners with their navigation and
// positions in the current UCS, and whether the edge from the current
// corner is visible.
class CZqFacePE : public ZqProvider<CZqFacePE> {
  ZQ_PROVIDER(CZqFacePE);
};

class CZqFaceInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
