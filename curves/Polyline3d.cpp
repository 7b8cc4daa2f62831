#include "Polyline3d.h"
#include "PolylineInfo.h"
#include "ZqAreaText.h"
#include "ZqCallbacks.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "ZqPointListRows.h"
#include "Db3dPolyline.h"

namespace {

using P = OdDb3dPolyline;

CZqVariant getLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  return pl ? ZqDouble(ZqCurvesHelper::GetLength(pl)) : CZqVariant();
}

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const P* pl = ZqReadable<P>(object);
  double area = 0;
  if (!pl || pl->getArea(area) != eOk) return CZqVariant();
  return ZqAreaValue(object, area, index, QCoreApplication::translate("CZq3dPolylinePE", "%1 sq. in. (%2 sq. ft.)"));
}

// How the polyline was smoothed; shown, not edited (a new fit needs new
// vertices).
const ZqChoice kFitTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "None"), OdDb::k3dSimplePoly},
    {QT_TRANSLATE_NOOP("property_values", "Quadratic"), OdDb::k3dQuadSplinePoly},
    {QT_TRANSLATE_NOOP("property_values", "Cubic"), OdDb::k3dCubicSplinePoly},
};

CZqVariant getFitType(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  return pl ? ZqEnumeration(kFitTypes, ZqChoiceIndex(kFitTypes, pl->polyType())) : CZqVariant();
}

constexpr auto getVertices = ZqGetListedVertices<P, &P::numVerts>;
constexpr auto setVertices = ZqSetListedVertices<P>;
template <int Axis> constexpr auto getVertex = ZqGetListedCoordinate<P, &P::numVerts, &P::vertexPosition, Axis>;
template <int Axis>
constexpr auto setVertex = ZqSetListedCoordinate<P, &P::numVerts, &P::vertexPosition, &P::setVertexPosition, Axis>;
constexpr auto getClosed = ZqGetFlag<P, &P::isClosed, kZqYesNo>;
constexpr auto setClosed = ZqSetFlag<P, &P::setClosed, kZqYesNo>;

const ZqRow kRows[] = {
//  category     name                                             type           identifier            read-only    get           set           icon              visibility
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex"),     kZqCollection, ZqGuid::kVertexGUID,  kZqEditable, getVertices,  setVertices,  nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex X"),   kZqDouble,     ZqGuid::kVertexXGUID, kZqEditable, getVertex<0>, setVertex<0>, nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Y"),   kZqDouble,     ZqGuid::kVertexYGUID, kZqEditable, getVertex<1>, setVertex<1>, nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Z"),   kZqDouble,     ZqGuid::kVertexZGUID, kZqEditable, getVertex<2>, setVertex<2>, nullptr,          kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Area"),       kZqUntyped,    nullptr,              kZqReadOnly, getArea,      nullptr,      nullptr,          kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Length"),     kZqUntyped,    nullptr,              kZqReadOnly, getLength,    nullptr,      nullptr,          kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Closed"),     kZqUntyped,    nullptr,              kZqEditable, getClosed,    setClosed,    nullptr,          kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Fit/Smooth"), kZqUntyped,    nullptr,              kZqReadOnly, getFitType,   nullptr,      "Misc_FitSmooth", kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZq3dPolylinePE, QT_TRANSLATE_NOOP("entity_types", "3D Polyline"), kRows)

void CZq3dPolylineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<P>(this, object, context, [&](const P* pl) {
    ZqPrintPolylineHead(pl, context, kFitTypes, QT_TRANSLATE_NOOP("info_items", "Length"));
    for (unsigned i = 0; i < pl->numVerts(); ++i) {
      if (!context->CheckCounter()) return;
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), pl->vertexPosition(i));
    }
  });
}
