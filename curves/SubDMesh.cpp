#include "Mesh.h"
#include "ZqInfoFrame.h"
#include "ZqWholeNumberRows.h"
#include "DbMesh.h"

namespace {

using M = OdDbSubDMesh;

constexpr auto getLevel = ZqGetWholeNumber<M, &M::smoothLevel>;
constexpr auto setLevel = ZqSetWholeNumber<M, &M::setSmoothLevel>;
constexpr auto getVertexCount = ZqGetCount<M, &M::numVertices>;
constexpr auto getFaceCount = ZqGetCount<M, &M::numFaces>;
constexpr auto getEdgeCount = ZqGetCount<M, &M::numEdges>;

const ZqRow kRows[] = {
//  category     name                                               type      identifier read-only    get             set       icon     visibility  limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Smoothness"),   kZqInt32, nullptr,   kZqEditable, getLevel,       setLevel, nullptr, kVisKeep,   ZqRange(0, 4)},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Vertex count"), kZqInt32, nullptr,   kZqReadOnly, getVertexCount, nullptr,  nullptr, kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Face count"),   kZqInt32, nullptr,   kZqReadOnly, getFaceCount,   nullptr,  nullptr, kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Edge count"),   kZqInt32, nullptr,   kZqReadOnly, getEdgeCount,   nullptr,  nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqSubDMeshPE, QT_TRANSLATE_NOOP("entity_types", "Mesh"), kRows)

void CZqSubDMeshInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<M>(this, object, context, [&](const M* mesh) {
    context->PrintInt(QCoreApplication::translate("info_items", "Smoothness"), mesh->smoothLevel());
    context->PrintInt(QCoreApplication::translate("info_items", "Vertex count"), int(mesh->numVertices()));
    context->PrintInt(QCoreApplication::translate("info_items", "Face count"), int(mesh->numFaces()));
    context->PrintInt(QCoreApplication::translate("info_items", "Edge count"), int(mesh->numEdges()));
    context->PrintArea(QCoreApplication::translate("info_items", "Surface area"), mesh->surfaceArea());
  });
}
