#include "Xline.h"
#include "ZqRayRows.h"
#include "ZqInfoFrame.h"
#include "DbXline.h"

ZQ_DEFINE_PROVIDER(CZqXlinePE, QT_TRANSLATE_NOOP("entity_types", "ILine"), kZqRayRows<OdDbXline>)

CZqString CZqXlinePE::GetClassKey() const { return CZqString("ILINE"); }

void CZqXlineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbXline>(this, object, context, [&](const OdDbXline* xline) {
    // Lower case, unlike the ray's labels: these are keys of their own.
    context->PrintPoint(QCoreApplication::translate("info_items", "base point"), xline->basePoint());
    context->PrintVector3D(QCoreApplication::translate("info_items", "unit direction"), xline->unitDir());
    context->PrintAngle(QCoreApplication::translate("info_items", "Angle in XY Plane"), ZqAngleInXYPlane(context, xline->unitDir()));
  });
}
