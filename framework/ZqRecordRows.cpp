#include "ZqRecordRows.h"
#include "DbDimStyle.h"

namespace {

// The word a sentence names a record's kind by ("errors" context).
const char* kindWord(const OdDbSymbolTableRecord* r) {
  if (r->isKindOf(OdDbLayerTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "layer");
  if (r->isKindOf(OdDbLinetypeTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "linetype");
  if (r->isKindOf(OdDbTextStyleTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "text style");
  if (r->isKindOf(OdDbDimStyleTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "dimension style");
  if (r->isKindOf(OdDbBlockTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "block");
  return QT_TRANSLATE_NOOP("errors", "record");
}

// Names the drawing itself relies on: renaming these records is refused.
// Texts and dimensions that name no style use "Standard", so it stays.
bool isFixedName(const OdDbSymbolTableRecord* r) {
  const QString name = r->getName().qstring();
  auto is = [&](const char* fixed) { return name.compare(QLatin1String(fixed), Qt::CaseInsensitive) == 0; };
  if (r->isKindOf(OdDbLayerTableRecord::desc())) return is("0") || is("Defpoints");
  if (r->isKindOf(OdDbLinetypeTableRecord::desc())) return is("ByLayer") || is("ByBlock") || is("Continuous");
  if (r->isKindOf(OdDbTextStyleTableRecord::desc()) || r->isKindOf(OdDbDimStyleTableRecord::desc())) return is("Standard");
  if (auto* b = odrxCast<OdDbBlockTableRecord>(r)) return b->isLayout();
  return false;
}

}  // namespace

QString ZqRenameRefusal(const OdDbSymbolTableRecord* record, const QString& name) {
  const QString kind = QCoreApplication::translate("errors", kindWord(record));
  if (isFixedName(record))
    return QCoreApplication::translate("errors", "The %1 \"%2\" is part of every drawing and cannot be renamed.")
        .arg(kind, record->getName().qstring());
  if (name.trimmed().isEmpty()) return QCoreApplication::translate("errors", "A name cannot be empty.");
  for (const char* c = kZqForbiddenNameCharacters; *c; ++c)
    if (name.contains(QLatin1Char(*c)))
      return QCoreApplication::translate("errors", "A name cannot contain any of the characters %1; \"%2\" contains %3.")
          .arg(QStringLiteral("< > / \\ \" : ; ? * | , = `"), name, QString(QLatin1Char(*c)));
  if (name != name.trimmed())
    return QCoreApplication::translate("errors", "A name cannot begin or end with a blank.");
  OdDbObjectPtr table = record->ownerId().openObject();
  auto* t = odrxCast<OdDbSymbolTable>(table.get());
  const OdDbObjectId other = t ? t->getAt(OdString(name)) : OdDbObjectId();
  if (!other.isNull() && other != record->objectId())
    return QCoreApplication::translate("errors", "A %1 named \"%2\" already exists.").arg(kind, name);
  return {};
}

CZqVariant ZqGetRecordName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const auto* r = ZqReadable<OdDbSymbolTableRecord>(object);
  return r ? CZqVariant(CZqString(r->getName())) : CZqVariant();
}

int ZqSetRecordName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  auto* r = ZqWritable<OdDbSymbolTableRecord>(object);
  if (!r || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString name = value.GetString().qstring();
  if (name == r->getName().qstring()) return kZqSetApplied;
  const QString why = ZqRenameRefusal(r, name);
  if (!why.isEmpty()) return ZqRefuseWith(why);
  try {
    r->setName(OdString(name));
  } catch (const OdError&) {
    return ZqRefuseWith(QCoreApplication::translate("errors", "A %1 named \"%2\" already exists.")
                            .arg(QCoreApplication::translate("errors", kindWord(r)), name));
  }
  return kZqSetApplied;
}
