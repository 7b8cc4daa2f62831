#pragma once
// Rows that hold a whole number (a count, a level, a density): shown as an
// integer, taken as an integer or as a double without fraction, within the
// row's limit.
#include "ZqCallbacks.h"

template <class T, int (T::*Get)() const>
CZqVariant ZqGetWholeNumber(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(int32_t((t->*Get)())) : CZqVariant();
}

template <class T, unsigned (T::*Get)() const>
CZqVariant ZqGetCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(int32_t((t->*Get)())) : CZqVariant();
}

// Reads the whole number a setter takes: refused without a message when the
// value is neither an integer nor a double, with a sentence when it has a
// fraction or is outside the row's limit. Returns 0 when n is taken.
int ZqTakeWholeNumber(const CZqPropertyDescription& description, const CZqVariant& value, int& n);

template <class T, void (T::*Set)(int)>
int ZqSetWholeNumber(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                     const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  int n = 0;
  if (const int refused = ZqTakeWholeNumber(description, value, n)) return refused;
  (t->*Set)(n);
  return kZqSetApplied;
}
