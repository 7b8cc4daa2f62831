#include "Solids.h"
#include "ZqCallbacks.h"
#include "ZqAreaText.h"
#include "ZqInfoFrame.h"
#include "DbModelerGeometry.h"

namespace {

using R = OdDbRegion;

// A region whose modeller data cannot be measured shows no value (the
// reader has warned about it once); never 0.
CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const R* region = ZqReadable<R>(object);
  double area = 0, perimeter = 0;
  if (!region || !region->measures(area, perimeter)) return CZqVariant();
  return ZqAreaValue(object, area, index, QCoreApplication::translate("CZqRegionPE", "%1 sq. in. (%2 sq. ft.)"));
}

CZqVariant getPerimeter(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* region = ZqReadable<R>(object);
  double area = 0, perimeter = 0;
  if (!region || !region->measures(area, perimeter)) return CZqVariant();
  return ZqDouble(perimeter);
}

const ZqRow kRows[] = {
//  category     name                                          type       identifier read-only    get           set      icon
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Area"),      kZqDouble, nullptr,   kZqReadOnly, getArea,      nullptr, nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Perimeter"), kZqDouble, nullptr,   kZqReadOnly, getPerimeter, nullptr, nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqRegionPE, QT_TRANSLATE_NOOP("entity_types", "Region"), kRows)

void CZqRegionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<R>(this, object, context, [&](const R* region) {
    double area = 0, perimeter = 0;
    QString why;
    if (region->measures(area, perimeter, &why)) {
      context->PrintArea(QCoreApplication::translate("info_items", "Area"), area);
      context->PrintDist(QCoreApplication::translate("info_items", "Perimeter"), perimeter);
    } else {
      context->PrintString(QCoreApplication::translate("info_items", "Area"), CZqString(why));
    }
    OdGeExtents3d ext;
    if (region->bodyExtents(ext)) context->PrintBoundingBox(QCoreApplication::translate("info_items", "Bounding box"), ext);
  });
}
