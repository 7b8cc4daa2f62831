#pragma once
// The shared callback contract: casting and open checks, variant kinds,
// refusals with a message box, the limits of a row, coordinate editing in
// the current UCS and the zero rule; and the getter/setter families that
// providers instantiate per accessor. A provider's own callbacks are a few
// lines on top.
#include "ZqRows.h"
#include "ZqEnumerations.h"
#include "ZqServices.h"
#include "DbDatabase.h"
#include <QCoreApplication>
#include <cmath>

// Values within this distance of zero count as zero.
constexpr double kZqZeroTolerance = 1e-10;
inline bool ZqIsZero(double v) { return std::fabs(v) <= kZqZeroTolerance; }

// The object as T when it is one and open for read (getters) or write
// (setters); null otherwise.
template <class T>
const T* ZqReadable(const OdDbObject* object) {
  const T* t = odrxCast<T>(object);
  return t && t->isReadEnabled() ? t : nullptr;
}
template <class T>
T* ZqWritable(const OdDbObject* object) {
  T* t = odrxCast<T>(object);
  return t && t->isWriteEnabled() ? t : nullptr;
}

// Shows the message box of a refused value ("errors" context, title
// "Error") and returns the refusal code.
int ZqRefuse(const char* message);
int ZqRefuseWith(const QString& translatedMessage);
// For values a drawing can hold only from release `needed` on: refuses with
// `message` (context "errors", "... needs a drawing saved as %1 or later;
// this drawing is %2.") when the object's drawing is saved in an older
// release, and answers 0 when the value can be kept.
int ZqRefuseBeforeRelease(const OdDbObject* object, int needed, const char* message);

// Reads the double a setter of description takes: the value must be a
// double (otherwise refused without a message) and within the limit of the
// description's row (otherwise refused with the limit's sentence, in a
// message box unless the row is silent). A value that counts as zero is
// made exactly 0. Returns 0 when v is taken, else the refusal code.
int ZqTakeDouble(const CZqPropertyDescription& description, const CZqVariant& value, double& v);
// The limit check alone, for setters that read their number from text:
// 0 when v is within the limit of the description's row (the zero rule
// applied to v), else the refusal code after the limit's message box.
int ZqCheckLimit(const CZqPropertyDescription& description, double& v);

// The current UCS of the object's database (the WCS for an object outside
// any database).
OdDbCoordinateService ZqUcsOf(const OdDbObject* object);

// Getter of a double: the value as a double variant shown in units.
inline CZqVariant ZqDouble(double v) { return CZqVariant(v, true); }

// Replaces one UCS coordinate (axis 0, 1, 2) of a WCS point; a value
// within 1e-10 of zero is taken as 0. Returns false when the coordinate
// already has that value, so that nothing is written.
bool ZqReplaceUcsCoordinate(const OdDbObject* object, OdGePoint3d& wcsPoint, int axis, double value);

// --- Doubles -------------------------------------------------------------------

template <class T, double (T::*Get)() const>
CZqVariant ZqGetDouble(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqDouble((t->*Get)()) : CZqVariant();
}

// Sets a double within the limit of the row (none: any finite value, as given).
template <class T, void (T::*Set)(double)>
int ZqSetDouble(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  (t->*Set)(v);
  return kZqSetApplied;
}

// --- Points in the current UCS -----------------------------------------------

// One UCS coordinate of a point the class stores in WCS.
template <class T, OdGePoint3d (T::*Get)() const, int Axis>
CZqVariant ZqGetUcsCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs((t->*Get)())[Axis]);
}

template <class T, OdGePoint3d (T::*Get)() const, void (T::*Set)(const OdGePoint3d&), int Axis>
int ZqSetUcsCoordinate(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                       const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p = (t->*Get)();
  if (ZqReplaceUcsCoordinate(object, p, Axis, v)) (t->*Set)(p);
  return kZqSetApplied;
}

// --- Enumerations ----------------------------------------------------------------

// A two-way choice over a flag: Choices lists the word for true (tag 1)
// and the word for false (tag 0), as kZqYesNo and kZqEnabledDisabled do.
template <class T, bool (T::*Get)() const, const ZqChoice (&Choices)[2]>
CZqVariant ZqGetFlag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqEnumeration(Choices, (t->*Get)() ? 0 : 1) : CZqVariant();
}

// Tag 1 sets the flag, tag 0 clears it, any other tag changes nothing.
template <class T, void (T::*Set)(bool), const ZqChoice (&Choices)[2]>
int ZqSetFlag(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  int32_t tag = 0;
  if (!t || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag == 1) (t->*Set)(true);
  else if (tag == 0) (t->*Set)(false);
  return kZqSetApplied;
}

// An enumeration over a stored number: the choices in list order, the one
// whose tag is the stored number current.
template <class T, int (T::*Get)() const, const auto& Choices>
CZqVariant ZqGetChoice(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqEnumeration(Choices, ZqChoiceIndex(Choices, (t->*Get)())) : CZqVariant();
}

// Stores the chosen tag; a tag that is not one of the choices is refused
// with a sentence that lists them.
template <class T, void (T::*Set)(int), const auto& Choices>
int ZqSetChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  int32_t tag = 0;
  if (!t || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(Choices, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), Choices));
  (t->*Set)(tag);
  return kZqSetApplied;
}

// --- Colours -----------------------------------------------------------------------

template <class T, OdCmColor (T::*Get)() const>
CZqVariant ZqGetColor(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant((t->*Get)()) : CZqVariant();
}

template <class T, void (T::*Set)(const OdCmColor&)>
int ZqSetColor(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t || value.GetType() != CZqVariant::kVtColor) return kZqSetRefused;
  (t->*Set)(value.GetColor());
  return kZqSetApplied;
}

// --- Symbol-table references -------------------------------------------------------

// A symbol table of the drawing (layers, text styles, dimension styles,
// linetypes, blocks) and the word a refusal names its records by.
struct ZqSymbolTable {
  OdDbObjectId (OdDbDatabase::*tableId)() const;
  const char* word;  // "errors" context: "layer", "text style", ...
};
extern const ZqSymbolTable kZqLayers, kZqTextStyles, kZqDimensionStyles, kZqLinetypes, kZqBlocks;

// The record a value names in the object's own drawing: an id of a record
// of the table, or its name as a string (without regard to case). Null when
// the value names none; *why then says so in a sentence.
OdDbObjectId ZqRecordFor(const OdDbObject* object, const ZqSymbolTable& table, const CZqVariant& value, QString* why);

template <class T, OdDbObjectId (T::*Get)() const>
CZqVariant ZqGetRecord(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant((t->*Get)()) : CZqVariant();
}

template <class T, void (T::*Set)(const OdDbObjectId&), const ZqSymbolTable& Table>
int ZqSetRecord(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t || (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, Table, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  (t->*Set)(id);
  return kZqSetApplied;
}

// --- Property matching -------------------------------------------------------------

// MATCHPROP rows: the getter answers the object's own id; the setter opens
// the source named by an id and lets copy() take its properties. A source
// that does not open is refused; one that is not an entity raises
// OdError_NotThatKindOfClass.
CZqVariant ZqGetOwnId(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int ZqMatchFrom(const OdDbObject* target, const CZqVariant& value, int (*copy)(const OdDbEntity* source, OdDbObject* target));
