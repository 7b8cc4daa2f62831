#include "ZqRecordRows.h"
#include "DbDimStyle.h"
#include "DbGroup.h"
#include "DbMlineStyle.h"
#include "DbTableStyle.h"
#include "DbViewTableRecord.h"

namespace {

// The word a sentence names a record's kind by ("errors" context).
const char* kindWord(const OdDbSymbolTableRecord* r) {
  if (r->isKindOf(OdDbLayerTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "layer");
  if (r->isKindOf(OdDbLinetypeTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "linetype");
  if (r->isKindOf(OdDbTextStyleTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "text style");
  if (r->isKindOf(OdDbDimStyleTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "dimension style");
  if (r->isKindOf(OdDbBlockTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "block");
  if (r->isKindOf(OdDbViewTableRecord::desc())) return QT_TRANSLATE_NOOP("errors", "view");
  return QT_TRANSLATE_NOOP("errors", "record");
}

const char* kindWord(const OdDbObject* o) {
  if (auto* r = odrxCast<OdDbSymbolTableRecord>(o)) return kindWord(r);
  if (o->isKindOf(OdDbGroup::desc())) return QT_TRANSLATE_NOOP("errors", "group");
  if (o->isKindOf(OdDbMlineStyle::desc())) return QT_TRANSLATE_NOOP("errors", "multiline style");
  if (o->isKindOf(OdDbTableStyle::desc())) return QT_TRANSLATE_NOOP("errors", "table style");
  return QT_TRANSLATE_NOOP("errors", "record");
}

// What every name must be: not empty, none of the forbidden characters, no
// blank at either end.
QString badName(const QString& name) {
  if (name.trimmed().isEmpty()) return QCoreApplication::translate("errors", "A name cannot be empty.");
  for (const char* c = kZqForbiddenNameCharacters; *c; ++c)
    if (name.contains(QLatin1Char(*c)))
      return QCoreApplication::translate("errors", "A name cannot contain any of the characters %1; \"%2\" contains %3.")
          .arg(QStringLiteral("< > / \\ \" : ; ? * | , = `"), name, QString(QLatin1Char(*c)));
  if (name != name.trimmed())
    return QCoreApplication::translate("errors", "A name cannot begin or end with a blank.");
  return {};
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
  if (const QString why = badName(name); !why.isEmpty()) return why;
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

namespace {

// The name of an object its dictionary names: a multiline style keeps a
// copy of its own (the one shown), the others have only the entry.
QString objectName(const OdDbObject* o) {
  if (auto* m = odrxCast<OdDbMlineStyle>(o)) return m->name().qstring();
  return oddbNameInOwnerDictionary(o).qstring();
}

}  // namespace

QString ZqDictionaryRenameRefusal(const OdDbObject* object, const QString& name) {
  const QString kind = QCoreApplication::translate("errors", kindWord(object));
  // The styles every drawing has: what names no style uses them.
  const bool style = object->isKindOf(OdDbMlineStyle::desc()) || object->isKindOf(OdDbTableStyle::desc());
  if (style && objectName(object).compare(QLatin1String("Standard"), Qt::CaseInsensitive) == 0)
    return QCoreApplication::translate("errors", "The %1 \"%2\" is part of every drawing and cannot be renamed.")
        .arg(kind, objectName(object));
  if (const QString why = badName(name); !why.isEmpty()) return why;
  OdDbObjectPtr owner = object->ownerId().openObject();
  auto* dict = odrxCast<OdDbDictionary>(owner.get());
  if (!dict || dict->nameAt(object->objectId()).isEmpty())
    return QCoreApplication::translate("errors", "This %1 belongs to no dictionary of the drawing and cannot be renamed.").arg(kind);
  const OdDbObjectId other = dict->getAt(OdString(name));
  if (!other.isNull() && other != object->objectId())
    return QCoreApplication::translate("errors", "A %1 named \"%2\" already exists.").arg(kind, name);
  return {};
}

CZqVariant ZqGetObjectName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  return object && object->isReadEnabled() ? CZqVariant(CZqString(objectName(object))) : CZqVariant();
}

int ZqSetObjectName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  auto* o = ZqWritable<OdDbObject>(object);
  if (!o || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString name = value.GetString().qstring();
  if (name == objectName(o)) return kZqSetApplied;
  const QString why = ZqDictionaryRenameRefusal(o, name);
  if (!why.isEmpty()) return ZqRefuseWith(why);
  try {
    if (auto* g = odrxCast<OdDbGroup>(o)) g->setName(OdString(name));
    else if (auto* m = odrxCast<OdDbMlineStyle>(o)) m->setName(OdString(name));
    else if (auto* t = odrxCast<OdDbTableStyle>(o)) t->setName(OdString(name));
    else return kZqSetRefused;
  } catch (const OdError&) {
    return ZqRefuseWith(QCoreApplication::translate("errors", "A %1 named \"%2\" already exists.")
                            .arg(QCoreApplication::translate("errors", kindWord(o)), name));
  }
  return kZqSetApplied;
}
