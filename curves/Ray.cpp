#include "Ray.h"
#include "ZqRayRows.h"
#include "ZqInfoFrame.h"
#include "DbRay.h"

ZQ_DEFINE_PROVIDER(CZqRayPE, QT_TRANSLATE_NOOP("entity_types", "Ray"), kZqRayRows<OdDbRay>)

void CZqRayInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbRay>(this, object, context, [&](const OdDbRay* ray) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Base point"), ray->basePoint());
    context->PrintVector3D(QCoreApplication::translate("info_items", "Unit direction"), ray->unitDir());
    context->PrintAngle(QCoreApplication::translate("info_items", "Angle in XY Plane"), ZqAngleInXYPlane(context, ray->unitDir()));
  });
}
