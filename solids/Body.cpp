#include "Solids.h"
#include "ZqInfoFrame.h"
#include "DbModelerGeometry.h"

// A body shows the general rows only; its listing gives its extents.
ZQ_DEFINE_PROVIDER(CZqBodyPE, QT_TRANSLATE_NOOP("entity_types", "Body"))

void CZqBodyInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbBody>(this, object, context, [&](const OdDbBody* body) {
    OdGeExtents3d ext;
    if (body->bodyExtents(ext)) context->PrintBoundingBox(QCoreApplication::translate("info_items", "Bounding box"), ext);
  });
}
