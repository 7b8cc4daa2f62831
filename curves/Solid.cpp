#include "Solid.h"
#include "PlanarQuadRows.h"

ZQ_DEFINE_PROVIDER(CZqSolidPE, QT_TRANSLATE_NOOP("entity_types", "Solid"), ZqPlanarQuad<OdDbSolid>::kRows)

void CZqSolidInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPlanarQuad<OdDbSolid>::print(this, object, context);
}
