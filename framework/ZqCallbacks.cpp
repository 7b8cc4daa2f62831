#include "ZqCallbacks.h"

int ZqRefuse(const char* message) {
  GetZqSystemServices()->MessageBox(QCoreApplication::translate("errors", message),
                                    QCoreApplication::translate("errors", "Error"));
  return kZqSetRefused;
}

OdDbCoordinateService ZqUcsOf(const OdDbObject* object) {
  if (OdDbDatabase* db = object ? object->database() : nullptr) return db->coordinateService();
  return OdDbCoordinateService(OdGePoint3d::kOrigin, OdGeVector3d::kXAxis, OdGeVector3d::kYAxis);
}

bool ZqReplaceUcsCoordinate(const OdDbObject* object, OdGePoint3d& wcsPoint, int axis, double value) {
  const OdDbCoordinateService ucs = ZqUcsOf(object);
  OdGePoint3d p = ucs.wcsToUcs(wcsPoint);
  if (p[axis] == value) return false;
  p[axis] = value;
  wcsPoint = ucs.ucsToWcs(p);
  return true;
}

CZqVariant ZqGetOwnId(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  return object ? CZqVariant(object->objectId()) : CZqVariant();
}

int ZqMatchFrom(const OdDbObject* target, const CZqVariant& value, int (*copy)(const OdDbEntity*, OdDbObject*)) {
  if (!target || value.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  OdDbObjectPtr source = value.GetId().openObject(OdDb::kForRead);
  if (!source) return kZqSetRefused;
  const OdDbEntity* entity = odrxCast<OdDbEntity>(source.get());
  if (!entity) throw OdError_NotThatKindOfClass(source->isA(), OdDbEntity::desc());
  return copy(entity, const_cast<OdDbObject*>(target));
}
