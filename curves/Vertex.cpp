#include "Vertex.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "Db2dPolyline.h"

namespace {

using V = OdDb2dVertex;

constexpr auto getStartWidth = ZqGetDouble<V, &V::startWidth>;
constexpr auto setStartWidth = ZqSetDouble<V, &V::setStartWidth>;
constexpr auto getEndWidth = ZqGetDouble<V, &V::endWidth>;
constexpr auto setEndWidth = ZqSetDouble<V, &V::setEndWidth>;
constexpr auto getBulge = ZqGetDouble<V, &V::bulge>;
constexpr auto setBulge = ZqSetDouble<V, &V::setBulge>;

const ZqRow kRows[] = {
//  category     name                                                       type        identifier                     read-only    get            set            icon                          visibility  limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Start segment width"), kZqUntyped, ZqGuid::kVertexStartWidthGUID, kZqEditable, getStartWidth, setStartWidth, "Geometry_StartSegmentWidth", kVisKeep,   kZqNonNegative},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "End segment width"),   kZqUntyped, ZqGuid::kVertexEndWidthGUID,   kZqEditable, getEndWidth,   setEndWidth,   "Geometry_EndSegmentWidth",   kVisKeep,   kZqNonNegative},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Bulge"),               kZqDouble,  nullptr,                       kZqEditable, getBulge,      setBulge,      nullptr,                      kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqVertexPE, QT_TRANSLATE_NOOP("entity_types", "Vertex"), kRows)

void CZqVertexInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDb2dVertex>(this, object, context, [&](const OdDb2dVertex* v) {
    context->PrintWidth(QCoreApplication::translate("property_types", "Start segment width"), v->startWidth());
    context->PrintWidth(QCoreApplication::translate("property_types", "End segment width"), v->endWidth());
    context->PrintScale(QCoreApplication::translate("property_types", "Bulge"), v->bulge());
  });
}
