#include "ZqVertexRows.h"
#include "ZQCommandsBase.h"
#include "DbAbstractViewPE.h"

unsigned ZqVertexIndex(const CZqVariant& index) {
  return index.GetType() == CZqVariant::kVtInt32 ? unsigned(index.GetInt32()) : 0u;
}

CZqVariant ZqVertexChoices(unsigned count, const CZqVariant& index) {
  CZqVariantCollection vertices;
  for (unsigned i = 0; i < count; ++i) {
    const CZqVariant number(int32_t(i + 1));
    vertices.Add(CZqVariantCollectionElement(number, number));
  }
  vertices.SetCurrent(int(ZqVertexIndex(index)));
  return CZqVariant(vertices);
}

int ZqRefuseVertex(unsigned index, unsigned count) {
  return ZqRefuseWith(QCoreApplication::translate("errors", "There is no vertex %1: the object has %2 vertices.")
                          .arg(index + 1)
                          .arg(count));
}

bool ZqIsInViewPlane(const OdDbObject* object, const OdGeVector3d& normal) {
  OdGeVector3d z = ZqUcsOf(object).ucsZAxis();
  if (CZqDocument* document = ACTIVE_DOCUMENT) {
    OdGePoint3d origin;
    OdGeVector3d x, y;
    OdAbstractViewPEPtr view = OdAbstractViewPE::of(document->activeView());
    if (view && view->getUcs(document->activeView(), origin, x, y)) z = x.crossProduct(y);
  }
  return normal.isCodirectionalTo(z, OdGeContext::gTol);
}
