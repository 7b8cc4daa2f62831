#include "Ray.h"
#include "ZqRayRows.h"
#include "ZqInfoFrame.h"
#include "DbRay.h"

ODRX_DEFINE_MEMBERS(CZqRayPE, CZqEntityPE)

ZQ_DEFINE_STATIC_PROPERTY_NAMES(CZqRayPE, CZqEntityPE, OdDbRay, kZqRayRows<OdDbRay>)

CZqString CZqRayPE::GetClassName(const OdDbObject*) const { return QCoreApplication::translate("entity_types", "Ray"); }

void CZqRayInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbRay>(this, object, context, [&](const OdDbRay* ray) {
    context->PrintPoint(QCoreApplication::translate("info_items", "Base point"), ray->basePoint());
    context->PrintVector3D(QCoreApplication::translate("info_items", "Unit direction"), ray->unitDir());
    context->PrintAngle(QCoreApplication::translate("info_items", "Angle in XY Plane"), ZqAngleInXYPlane(context, ray->unitDir()));
  });
}
