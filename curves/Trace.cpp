#include "Solid.h"
#include "PlanarQuadRows.h"

ZQ_DEFINE_PROVIDER(CZqTracePE, QT_TRANSLATE_NOOP("entity_types", "Trace"), ZqPlanarQuad<OdDbTrace>::kRows)

void CZqTraceInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPlanarQuad<OdDbTrace>::print(this, object, context);
}
