// Reading a DXF file into a database and writing the database back into the
// file it was read from (see DxfDatabase.h).
//
// The database keeps the file's records (DrawingData, its fileData()) and,
// for each record, the object it belongs to. Writing brings a copy of the
// records up to date - edited objects patched, erased ones dropped, new ones
// added - and serializes it; the copy replaces the kept one once that worked.
#include "DxfDatabase.h"

#include "DbPlainClasses.h"
#include "DbUndo.h"
#include "DxfDrawing.h"
#include "DxfInternal.h"

#include <QFile>

namespace OdDxf {
namespace mapping {

// Reads the class's fields of an object from a record (common entity
// properties, the class's own, extended data).
void readFields(RecordIO& io, OdDbObject* obj) {
  if (auto* e = odrxCast<OdDbEntity>(obj)) {
    entityCommonFields(io, e, nullptr);
    if (const ClassMapping* m = entityMapping(obj->isA())) m->fields(io, obj, nullptr);
    entityXdataFields(io, e, nullptr);
  } else if (const ClassMapping* m = recordMapping(obj->isA())) {
    m->fields(io, obj, nullptr);
    xdataFields(io, obj, nullptr, ownXdataApps(obj->isA()));
  }
}

// Writes the fields of `obj` that differ from `before` (Patch), or all of
// them (Create, `before` a default object).
void writeFields(RecordIO& io, OdDbObject* obj, const OdDbObject* before) {
  if (auto* e = odrxCast<OdDbEntity>(obj)) {
    auto* b = static_cast<const OdDbEntity*>(before);
    entityCommonFields(io, e, b);
    if (const ClassMapping* m = entityMapping(obj->isA())) m->fields(io, obj, before);
    entityXdataFields(io, e, b);
  } else if (const ClassMapping* m = recordMapping(obj->isA())) {
    m->fields(io, obj, before);
    xdataFields(io, obj, before, ownXdataApps(obj->isA()));
  }
}


}  // namespace mapping

using mapping::DrawingData;

OdDbDatabasePtr readDrawing(const QByteArray& bytes, QString& error, QStringList* warnings, const ReadOptions& options) {
  OdSmartPtr<DrawingData> data(new DrawingData);
  QStringList local;
  if (!File::read(bytes, data->file, error, &local)) return {};
  OdDbDatabasePtr db = OdDbDatabase::createObject(false);
  try {
    mapping::readObjects(*data, db.get(), &local);
  } catch (const mapping::MapError& e) {
    error = e.message;
    return {};
  } catch (const OdError& e) {
    error = QStringLiteral("cannot read the drawing: %1").arg(e.description().qstring());
    return {};
  } catch (const std::exception& e) {
    error = QStringLiteral("cannot read the drawing: %1").arg(QString::fromLocal8Bit(e.what()));
    return {};
  }
  data->ctx.warnings = nullptr;
  if (options.strict && !local.isEmpty()) {
    error = local.front();
    return {};
  }
  db->setFileData(data.get());
  if (warnings) *warnings += local;
  return db;
}

OdDbDatabasePtr readDrawing(const QString& path, QString& error, QStringList* warnings, const ReadOptions& options) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    error = QStringLiteral("cannot open '%1': %2").arg(path, file.errorString());
    return {};
  }
  QByteArray bytes;
  if (!detail::readWhole(file, bytes)) {
    error = QStringLiteral("cannot read '%1': %2").arg(path, file.errorString());
    return {};
  }
  return readDrawing(bytes, error, warnings, options);
}

QByteArray writeDrawing(OdDbDatabase* db, QString* error) {
  QByteArray out;
  QString err;
  if (!mapping::writeImpl(db, out, err)) {
    if (error) *error = err;
    return {};
  }
  mapping::reindex(*mapping::drawingData(db), db);
  db->undoJournal().noteWritten();
  return out;
}

bool writeDrawing(OdDbDatabase* db, const QString& path, QString& error) {
  QByteArray bytes;
  if (!mapping::writeImpl(db, bytes, error)) return false;
  DrawingData* d = mapping::drawingData(db);
  mapping::reindex(*d, db);
  db->undoJournal().noteWritten();
  if (!saveBytes(path, bytes, error)) return false;
  // Saved: nothing counts as modified any more.
  for (const auto& owners : d->owners)
    for (OdDbStub* s : owners)
      if (s && s->object) s->object->setModified(false);
  db->undoJournal().markSaved();
  return true;
}

}  // namespace OdDxf

