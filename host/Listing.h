#pragma once
// What zqprops prints for objects: palette rows and information lines, as
// text or as JSON.
#include "DbDatabase.h"
#include "ZQCommandsBase.h"
#include "KVKernel.h"
#include <QIODevice>
#include <QTextStream>
#include <functional>

// The palette rows of one object, as the properties-window service shows them.
void zqPrintRows(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id);
// The information listing of one object.
void zqPrintInfo(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, bool inUcs);

// What a JSON listing holds of each object.
struct ZqJsonContent {
  bool rows = true;     // "class", "name" and "rows"
  bool info = false;    // "lines"
  bool inUcs = false;   // information in the current UCS
};
// Writes {"drawing": drawing, "objects": [{"handle": ..., ...}, ...]} to
// out, one object at a time.
void zqWriteListingJson(QIODevice& out, const QString& drawing, OdDbDatabase* db, const OdDbObjectIdArray& ids,
                        const ZqJsonContent& content);

// The display name of an object's kind ("Line"), from its provider.
QString zqDisplayName(const OdDbObject* object);
