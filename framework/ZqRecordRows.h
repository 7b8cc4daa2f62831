#pragma once
// Rows shared by the providers of named records (layers, linetypes, text
// and dimension styles, views, groups, styles): the name, with the checks a
// CAD host makes before it renames a record, and plain text rows.
#include "ZqCallbacks.h"
#include "DbSymbolTable.h"

// The characters a record name may not contain.
inline constexpr char kZqForbiddenNameCharacters[] = "<>/\\\":;?*|,=`";

// Why `name` cannot become the name of record (translated), or an empty
// string when it can: an empty name, a forbidden character, a record whose
// name the drawing fixes (layer "0", the linetypes ByLayer, ByBlock and
// Continuous, the text and dimension style Standard, the layout blocks), a
// name another record of the table has.
QString ZqRenameRefusal(const OdDbSymbolTableRecord* record, const QString& name);

// The "Name" row of a record: the getter, and the setter that renames it
// (refused with a sentence, the record unchanged, when ZqRenameRefusal says
// so). The drawing's references to the record follow it, as they refer to
// the record itself.
CZqVariant ZqGetRecordName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int ZqSetRecordName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&);

// The "Name" row of an object a dictionary of the drawing names (a group,
// a multiline style, a table style): the same rules as for records, checked
// against the other entries of its dictionary; the styles named Standard
// keep their name. Renaming renames its entry, which is what the drawing
// refers to it by (multilines name their style, and follow it).
QString ZqDictionaryRenameRefusal(const OdDbObject* object, const QString& name);
CZqVariant ZqGetObjectName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int ZqSetObjectName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&);

// --- Text ------------------------------------------------------------------------

template <class T, OdString (T::*Get)() const>
CZqVariant ZqGetText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(CZqString((t->*Get)())) : CZqVariant();
}

template <class T, void (T::*Set)(const OdString&)>
int ZqSetText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  (t->*Set)(OdString(value.GetString().qstring()));
  return kZqSetApplied;
}

// --- Whole numbers -----------------------------------------------------------------

template <class T, int (T::*Get)() const>
CZqVariant ZqGetInt(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(int32_t((t->*Get)())) : CZqVariant();
}
