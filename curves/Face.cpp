#include "Solid.h"
#include "ZqCornerRows.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "DbSolid.h"

namespace {

using F = OdDbFace;

// Whether the edge from the current corner to the next is drawn.
CZqVariant getEdgeVisible(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const F* f = ZqReadable<F>(object);
  const unsigned i = ZqVertexIndex(index);
  if (!f || i >= kZqCorners) return CZqVariant();
  return ZqEnumeration(kZqYesNo, f->isEdgeVisibleAt(i) ? 0 : 1);
}

int setEdgeVisible(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value,
                   const CZqVariant& index) {
  F* f = ZqWritable<F>(object);
  int32_t tag = 0;
  if (!f || !ZqChosenTag(value, tag)) return kZqSetRefused;
  const unsigned i = ZqVertexIndex(index);
  if (i >= kZqCorners) return ZqRefuseVertex(i, kZqCorners);
  if (tag == 1) f->makeEdgeVisibleAt(i);
  else if (tag == 0) f->makeEdgeInvisibleAt(i);
  return kZqSetApplied;
}

template <int Axis> constexpr auto getCorner = ZqGetCornerCoordinate<F, &F::getVertexAt, Axis>;
template <int Axis> constexpr auto setCorner = ZqSetCornerCoordinate<F, &F::getVertexAt, &F::setVertexAt, Axis>;

const ZqRow kRows[] = {
//  category     name                                               type            identifier             read-only    get               set               icon     visibility
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex"),       kZqCollection,  ZqGuid::kVertexGUID,   kZqEditable, ZqGetCorners<F>,  ZqSetCorners<F>,  nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex X"),     kZqDouble,      ZqGuid::kVertexXGUID,  kZqEditable, getCorner<0>,     setCorner<0>,     nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Y"),     kZqDouble,      ZqGuid::kVertexYGUID,  kZqEditable, getCorner<1>,     setCorner<1>,     nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Z"),     kZqDouble,      ZqGuid::kVertexZGUID,  kZqEditable, getCorner<2>,     setCorner<2>,     nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Edge visible"), kZqUntyped,     nullptr,               kZqEditable, getEdgeVisible,   setEdgeVisible,   nullptr, kVisXor8},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqFacePE, QT_TRANSLATE_NOOP("entity_types", "3D Face"), kRows)

void CZqFaceInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbFace>(this, object, context, [&](const OdDbFace* f) {
    for (unsigned i = 0; i < kZqCorners; ++i) {
      OdGePoint3d p;
      f->getVertexAt(i, p);
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), p);
      if (!f->isEdgeVisibleAt(i))
        context->PrintString(QCoreApplication::translate("info_items", "Edge %1").arg(i),
                             QCoreApplication::translate("info_values", "Invisible"));
    }
  });
}
