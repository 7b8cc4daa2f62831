#pragma once
// What zqprops prints for objects: palette rows and information lines, as
// text or as JSON.
#include "DbDatabase.h"
#include "ZQCommandsBase.h"
#include "KVKernel.h"
#include <QJsonObject>
#include <QTextStream>

// The palette rows of one object, as the properties-window service shows them.
QJsonObject zqRowsJson(OdDbDatabase* db, const OdDbObjectId& id);
void zqPrintRows(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id);

// The information listing of one object.
QJsonObject zqInfoJson(OdDbDatabase* db, const OdDbObjectId& id, bool inUcs);
void zqPrintInfo(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, bool inUcs);

// The display name of an object's kind ("Line"), from its provider.
QString zqDisplayName(const OdDbObject* object);
