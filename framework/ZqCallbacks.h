#pragma once
// The shared callback contract: casting and open checks, variant kinds,
// refusals with a message box, coordinate editing in the current UCS and
// the zero rule. A provider's own callbacks are a few lines on top.
#include "ZqPropertiesKernel.h"
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

// The current UCS of the object's database (the WCS for an object outside
// any database).
OdDbCoordinateService ZqUcsOf(const OdDbObject* object);

// Getter of a double: the value as a double variant shown in units.
inline CZqVariant ZqDouble(double v) { return CZqVariant(v, true); }

// Replaces one UCS coordinate (axis 0, 1, 2) of a WCS point. Returns false
// when the coordinate already has that value, so that nothing is written.
bool ZqReplaceUcsCoordinate(const OdDbObject* object, OdGePoint3d& wcsPoint, int axis, double value);

// Callbacks for the common row shapes, instantiated per accessor.
template <class T, double (T::*Get)() const>
CZqVariant ZqGetDouble(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqDouble((t->*Get)()) : CZqVariant();
}

// Sets a double as given: no range check.
template <class T, void (T::*Set)(double)>
int ZqSetDouble(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  (t->*Set)(value.GetDouble());
  return kZqSetApplied;
}

// One UCS coordinate of a point the class stores in WCS.
template <class T, OdGePoint3d (T::*Get)() const, int Axis>
CZqVariant ZqGetUcsCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs((t->*Get)())[Axis]);
}

template <class T, OdGePoint3d (T::*Get)() const, void (T::*Set)(const OdGePoint3d&), int Axis>
int ZqSetUcsCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value,
                       const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  OdGePoint3d p = (t->*Get)();
  if (ZqReplaceUcsCoordinate(object, p, Axis, value.GetDouble())) (t->*Set)(p);
  return kZqSetApplied;
}

// MATCHPROP rows: the getter answers the object's own id; the setter opens
// the source named by an id and lets copy() take its properties. A source
// that does not open is refused; one that is not an entity raises
// OdError_NotThatKindOfClass.
CZqVariant ZqGetOwnId(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int ZqMatchFrom(const OdDbObject* target, const CZqVariant& value, int (*copy)(const OdDbEntity* source, OdDbObject* target));
