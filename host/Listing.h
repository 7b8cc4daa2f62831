#pragma once
// What zqprops prints for objects: palette rows and information lines, as
// text or as JSON.
#include "DbDatabase.h"
#include "ZQCommandsBase.h"
#include "KVKernel.h"
#include <QIODevice>
#include <QStringList>
#include <QTextStream>
#include <functional>
#include <memory>

// Which rows a listing shows: every row, or those named "Category/Name"
// (or "Name" alone), by their keys or their displayed texts, without
// regard to case.
class ZqRowPicker {
 public:
  ZqRowPicker() = default;
  explicit ZqRowPicker(const QStringList& names);
  bool all() const { return m_names.isEmpty(); }
  bool picks(const CZqPaletteRow& row) const;
  bool picks(const CZqString& categoryKey, const CZqString& nameKey, const CZqString& category, const CZqString& name) const;
  // The service's filter for these rows (none when every row is wanted).
  CZqPropertiesWindowService::RowFilter filter() const;
  // The names that no row of the listed objects matched (for a warning).
  QStringList unused() const;

 private:
  struct Name {
    QString category, name;
  };
  QList<Name> m_names;
  std::shared_ptr<QList<bool>> m_used;  // shared by the copies a listing makes
};

// The stable key of a row: "Category/Name" in the untranslated words.
QString zqRowKey(const CZqPaletteRow& row);

// The palette rows of one object, as the properties-window service shows
// them, under a heading with the object's DXF type, handle, display name
// and provider class.
void zqPrintRows(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, const ZqRowPicker& rows = {});
// The information listing of one object.
void zqPrintInfo(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, bool inUcs);

// What a JSON listing holds of each object.
struct ZqJsonContent {
  bool rows = true;     // "rows"
  bool info = false;    // "lines"
  bool inUcs = false;   // information in the current UCS
  ZqRowPicker pick = {};
};
// Writes {"drawing": drawing, "objects": [{"handle": ..., ...}, ...]} to
// out, one object at a time (host/zqprops.schema.json describes it).
void zqWriteListingJson(QIODevice& out, const QString& drawing, OdDbDatabase* db, const OdDbObjectIdArray& ids,
                        const ZqJsonContent& content);

// The display name of an object's kind ("Line"), from its provider.
QString zqDisplayName(const OdDbObject* object);
// The class name of the provider that serves the object ("CZqLinePE").
QString zqProviderName(const OdDbObject* object);
