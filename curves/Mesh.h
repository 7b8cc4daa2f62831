#pragma once
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// Properties of polyface meshes: the vertices with their navigation and
// positions in the current UCS, and how many vertices and faces there are.
class CZqPolyFaceMeshPE : public ZqProvider<CZqPolyFaceMeshPE> {
  ZQ_PROVIDER(CZqPolyFaceMeshPE);
};

class CZqPolyFaceMeshInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// Properties of polygon meshes: the vertices, the M and N sizes, closure in
// each direction, the surface densities and the smoothing type.
class CZqPolygonMeshPE : public ZqProvider<CZqPolygonMeshPE> {
  ZQ_PROVIDER(CZqPolygonMeshPE);
};

class CZqPolygonMeshInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// Properties of subdivision meshes: the smoothness level and how many
// vertices, faces and edges there are.
class CZqSubDMeshPE : public ZqProvider<CZqSubDMeshPE> {
  ZQ_PROVIDER(CZqSubDMeshPE);
};

class CZqSubDMeshInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
