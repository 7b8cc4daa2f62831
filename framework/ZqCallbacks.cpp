#include "ZqCallbacks.h"
#include "DbRelease.h"
#include "DbSymbolTable.h"

int ZqRefuse(const char* message) { return ZqRefuseWith(QCoreApplication::translate("errors", message)); }

int ZqRefuseWith(const QString& translatedMessage) {
  GetZqSystemServices()->MessageBox(translatedMessage, QCoreApplication::translate("errors", "Error"));
  return kZqSetRefused;
}

int ZqRefuseBeforeRelease(const OdDbObject* object, int needed, const char* message) {
  const int release = OdDb::databaseRelease(object ? object->database() : nullptr);
  if (release == 0 || release >= needed) return 0;
  return ZqRefuseWith(QCoreApplication::translate("errors", message).arg(OdDb::releaseName(needed), OdDb::releaseName(release)));
}

int ZqTakeDouble(const CZqPropertyDescription& description, const CZqVariant& value, double& v) {
  if (value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  v = value.GetDouble();
  return ZqCheckLimit(description, v);
}

int ZqCheckLimit(const CZqPropertyDescription& description, double& v) {
  const ZqRow* row = ZqRowOf(description);
  const ZqLimit& limit = row ? row->limit : kZqAny;
  if (limit.admits(v)) return 0;
  if (limit.box) {
    const QString sentence = ZqLimitSentence(limit, description.GetName().qstring());
    ZqRefuseWith(sentence.isEmpty() ? QCoreApplication::translate("errors", "Invalid input.") : sentence);
  }
  return kZqSetRefused;
}

OdDbCoordinateService ZqUcsOf(const OdDbObject* object) {
  // Getters ask for it row by row; its matrices (an inverse among them) are
  // made again only when the UCS differs from the one asked for last.
  struct Last {
    OdGePoint3d origin;
    OdGeVector3d x = OdGeVector3d::kXAxis, y = OdGeVector3d::kYAxis;
    OdDbCoordinateService service{OdGePoint3d::kOrigin, OdGeVector3d::kXAxis, OdGeVector3d::kYAxis};
  };
  thread_local Last last;
  const OdDbDatabase* db = object ? object->database() : nullptr;
  const OdGePoint3d origin = db ? db->getUCSORG() : OdGePoint3d::kOrigin;
  const OdGeVector3d x = db ? db->getUCSXDIR() : OdGeVector3d::kXAxis;
  const OdGeVector3d y = db ? db->getUCSYDIR() : OdGeVector3d::kYAxis;
  if (!(origin == last.origin && x == last.x && y == last.y)) {
    last.service = OdDbCoordinateService(origin, x, y);
    last.origin = origin, last.x = x, last.y = y;
  }
  return last.service;
}

bool ZqReplaceUcsCoordinate(const OdDbObject* object, OdGePoint3d& wcsPoint, int axis, double value) {
  if (ZqIsZero(value)) value = 0;
  const OdDbCoordinateService ucs = ZqUcsOf(object);
  OdGePoint3d p = ucs.wcsToUcs(wcsPoint);
  if (p[axis] == value) return false;
  p[axis] = value;
  wcsPoint = ucs.ucsToWcs(p);
  return true;
}

const ZqSymbolTable kZqLayers{&OdDbDatabase::getLayerTableId, QT_TRANSLATE_NOOP("errors", "layer")};
const ZqSymbolTable kZqTextStyles{&OdDbDatabase::getTextStyleTableId, QT_TRANSLATE_NOOP("errors", "text style")};
const ZqSymbolTable kZqDimensionStyles{&OdDbDatabase::getDimStyleTableId, QT_TRANSLATE_NOOP("errors", "dimension style")};
const ZqSymbolTable kZqLinetypes{&OdDbDatabase::getLinetypeTableId, QT_TRANSLATE_NOOP("errors", "linetype")};
const ZqSymbolTable kZqBlocks{&OdDbDatabase::getBlockTableId, QT_TRANSLATE_NOOP("errors", "block")};

OdDbObjectId ZqRecordFor(const OdDbObject* object, const ZqSymbolTable& table, const CZqVariant& value, QString* why) {
  const QString word = QCoreApplication::translate("errors", table.word);
  OdDbDatabase* db = object ? object->database() : nullptr;
  OdDbObjectPtr tableObject = db ? (db->*table.tableId)().openObject() : OdDbObjectPtr();
  const OdDbSymbolTable* records = odrxCast<OdDbSymbolTable>(tableObject.get());
  if (!records) {
    if (why) *why = QCoreApplication::translate("errors", "The object is in no drawing, so it can name no %1.").arg(word);
    return OdDbObjectId();
  }
  if (value.GetType() == CZqVariant::kVtString) {
    const QString name = value.GetString().qstring().trimmed();
    const OdDbObjectId id = records->getAt(OdString(name));
    if (id.isNull() && why) *why = QCoreApplication::translate("errors", "There is no %1 named \"%2\".").arg(word, name);
    return id;
  }
  const OdDbObjectId id = value.GetId();
  if (!id.isNull() && !id.isErased() && id.database() == db && records->has(id)) return id;
  if (why) *why = QCoreApplication::translate("errors", "The value is not a %1 of this drawing.").arg(word);
  return OdDbObjectId();
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
