#include "Mesh.h"
#include "ZqInfoFrame.h"
#include "ZqPointListRows.h"
#include "ZqWholeNumberRows.h"
#include "DbMesh.h"

namespace {

using M = OdDbPolyFaceMesh;

constexpr auto getVertices = ZqGetListedVertices<M, &M::numVertices>;
constexpr auto setVertices = ZqSetListedVertices<M>;
template <int Axis> constexpr auto getVertex = ZqGetListedCoordinate<M, &M::numVertices, &M::vertexAt, Axis>;
template <int Axis>
constexpr auto setVertex = ZqSetListedCoordinate<M, &M::numVertices, &M::vertexAt, &M::setVertexAt, Axis>;
constexpr auto getVertexCount = ZqGetCount<M, &M::numVertices>;
constexpr auto getFaceCount = ZqGetCount<M, &M::numFaces>;

const ZqRow kRows[] = {
//  category     name                                               type           identifier            read-only    get             set           icon     visibility
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex"),       kZqCollection, ZqGuid::kVertexGUID,  kZqEditable, getVertices,    setVertices,  nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex X"),     kZqDouble,     ZqGuid::kVertexXGUID, kZqEditable, getVertex<0>,   setVertex<0>, nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Y"),     kZqDouble,     ZqGuid::kVertexYGUID, kZqEditable, getVertex<1>,   setVertex<1>, nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Z"),     kZqDouble,     ZqGuid::kVertexZGUID, kZqEditable, getVertex<2>,   setVertex<2>, nullptr, kVisXor8},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Vertex count"), kZqInt32,      nullptr,              kZqReadOnly, getVertexCount, nullptr,      nullptr, kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Face count"),   kZqInt32,      nullptr,              kZqReadOnly, getFaceCount,   nullptr,      nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqPolyFaceMeshPE, QT_TRANSLATE_NOOP("entity_types", "Polyface Mesh"), kRows)

void CZqPolyFaceMeshInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<M>(this, object, context, [&](const M* mesh) {
    context->PrintInt(QCoreApplication::translate("info_items", "Vertex count"), int(mesh->numVertices()));
    context->PrintInt(QCoreApplication::translate("info_items", "Face count"), int(mesh->numFaces()));
    context->PrintArea(QCoreApplication::translate("info_items", "Surface area"), mesh->surfaceArea());
    for (unsigned i = 0; i < mesh->numVertices(); ++i) {
      if (!context->CheckCounter()) return;
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), mesh->vertexAt(i));
    }
  });
}
