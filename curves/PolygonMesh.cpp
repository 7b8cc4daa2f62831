#include "Mesh.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "ZqPointListRows.h"
#include "ZqWholeNumberRows.h"
#include "DbMesh.h"

namespace {

using M = OdDbPolygonMesh;

// How the mesh is smoothed; shown, not edited (the smoothed surface is
// made by the command that smooths it).
const ZqChoice kFitTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "None"), OdDb::kSimpleMesh},
    {QT_TRANSLATE_NOOP("property_values", "Quadratic"), OdDb::kQuadSurfaceMesh},
    {QT_TRANSLATE_NOOP("property_values", "Cubic"), OdDb::kCubicSurfaceMesh},
    {QT_TRANSLATE_NOOP("property_values", "Bezier"), OdDb::kBezierSurfaceMesh},
};

CZqVariant getFitType(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* mesh = ZqReadable<M>(object);
  return mesh ? ZqEnumeration(kFitTypes, ZqChoiceIndex(kFitTypes, mesh->polyMeshType())) : CZqVariant();
}

constexpr auto getVertices = ZqGetListedVertices<M, &M::numVertices>;
constexpr auto setVertices = ZqSetListedVertices<M>;
template <int Axis> constexpr auto getVertex = ZqGetListedCoordinate<M, &M::numVertices, &M::vertexAt, Axis>;
template <int Axis>
constexpr auto setVertex = ZqSetListedCoordinate<M, &M::numVertices, &M::vertexAt, &M::setVertexAt, Axis>;
constexpr auto getMSize = ZqGetWholeNumber<M, &M::mSize>;
constexpr auto getNSize = ZqGetWholeNumber<M, &M::nSize>;
constexpr auto getMClosed = ZqGetFlag<M, &M::isMClosed, kZqYesNo>;
constexpr auto setMClosed = ZqSetFlag<M, &M::setMClosed, kZqYesNo>;
constexpr auto getNClosed = ZqGetFlag<M, &M::isNClosed, kZqYesNo>;
constexpr auto setNClosed = ZqSetFlag<M, &M::setNClosed, kZqYesNo>;
constexpr auto getMDensity = ZqGetWholeNumber<M, &M::mSurfaceDensity>;
constexpr auto setMDensity = ZqSetWholeNumber<M, &M::setMSurfaceDensity>;
constexpr auto getNDensity = ZqGetWholeNumber<M, &M::nSurfaceDensity>;
constexpr auto setNDensity = ZqSetWholeNumber<M, &M::setNSurfaceDensity>;
constexpr ZqLimit kDensity = ZqRange(0, 200);

const ZqRow kRows[] = {
//  category     name                                                 type           identifier            read-only    get           set           icon              visibility  limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex"),         kZqCollection, ZqGuid::kVertexGUID,  kZqEditable, getVertices,  setVertices,  nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex X"),       kZqDouble,     ZqGuid::kVertexXGUID, kZqEditable, getVertex<0>, setVertex<0>, nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Y"),       kZqDouble,     ZqGuid::kVertexYGUID, kZqEditable, getVertex<1>, setVertex<1>, nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Z"),       kZqDouble,     ZqGuid::kVertexZGUID, kZqEditable, getVertex<2>, setVertex<2>, nullptr,          kVisXor8},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "M vertex count"), kZqInt32,      nullptr,              kZqReadOnly, getMSize,     nullptr,      nullptr,          kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "N vertex count"), kZqInt32,      nullptr,              kZqReadOnly, getNSize,     nullptr,      nullptr,          kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "M closed"),       kZqUntyped,    nullptr,              kZqEditable, getMClosed,   setMClosed,   nullptr,          kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "N closed"),       kZqUntyped,    nullptr,              kZqEditable, getNClosed,   setNClosed,   nullptr,          kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "M density"),      kZqInt32,      nullptr,              kZqEditable, getMDensity,  setMDensity,  nullptr,          kVisKeep,   kDensity},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "N density"),      kZqInt32,      nullptr,              kZqEditable, getNDensity,  setNDensity,  nullptr,          kVisKeep,   kDensity},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Fit/Smooth"),     kZqUntyped,    nullptr,              kZqReadOnly, getFitType,   nullptr,      "Misc_FitSmooth", kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqPolygonMeshPE, QT_TRANSLATE_NOOP("entity_types", "Polygon Mesh"), kRows)

void CZqPolygonMeshInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<M>(this, object, context, [&](const M* mesh) {
    auto openClosed = [](bool closed) {
      return closed ? QCoreApplication::translate("info_values", "Closed") : QCoreApplication::translate("info_values", "Open");
    };
    context->PrintInt(QCoreApplication::translate("info_items", "M vertex count"), mesh->mSize());
    context->PrintInt(QCoreApplication::translate("info_items", "N vertex count"), mesh->nSize());
    context->PrintString(QCoreApplication::translate("info_items", "M closed"), openClosed(mesh->isMClosed()));
    context->PrintString(QCoreApplication::translate("info_items", "N closed"), openClosed(mesh->isNClosed()));
    const int fit = ZqChoiceIndex(kFitTypes, mesh->polyMeshType());
    if (fit > 0) {
      context->PrintString(QCoreApplication::translate("info_items", "Fit/Smooth"),
                           QCoreApplication::translate("property_values", kFitTypes[fit].word));
      context->PrintInt(QCoreApplication::translate("info_items", "M density"), mesh->mSurfaceDensity());
      context->PrintInt(QCoreApplication::translate("info_items", "N density"), mesh->nSurfaceDensity());
    }
    context->PrintArea(QCoreApplication::translate("info_items", "Surface area"), mesh->surfaceArea());
    for (unsigned i = 0; i < mesh->numVertices(); ++i) {
      if (!context->CheckCounter()) return;
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), mesh->vertexAt(i));
    }
  });
}
