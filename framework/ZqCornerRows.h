#pragma once
// The rows of four-cornered entities (3D faces, solids, traces): the
// "Vertex" navigation over the corners and the current corner's position
// in the current UCS. T gives the corner at an index through Get and takes
// it through Set, both in WCS.
#include "ZqVertexRows.h"

constexpr unsigned kZqCorners = 4;

template <class T>
CZqVariant ZqGetCorners(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  return ZqReadable<T>(object) ? ZqVertexChoices(kZqCorners, index) : CZqVariant();
}

// Choosing a corner changes nothing in the drawing.
template <class T>
int ZqSetCorners(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) {
  return ZqWritable<T>(object) ? kZqSetApplied : kZqSetRefused;
}

template <class T, OdResult (T::*Get)(unsigned, OdGePoint3d&) const, int Axis>
CZqVariant ZqGetCornerCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const T* t = ZqReadable<T>(object);
  OdGePoint3d p;
  if (!t || (t->*Get)(ZqVertexIndex(index), p) != eOk) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs(p)[Axis]);
}

// A corner that is not there is refused with a sentence.
template <class T, OdResult (T::*Get)(unsigned, OdGePoint3d&) const, void (T::*Set)(unsigned, const OdGePoint3d&),
          int Axis>
int ZqSetCornerCoordinate(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                          const CZqVariant& index) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  const unsigned i = ZqVertexIndex(index);
  if (i >= kZqCorners) return ZqRefuseVertex(i, kZqCorners);
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p;
  (t->*Get)(i, p);
  if (ZqReplaceUcsCoordinate(object, p, Axis, v)) (t->*Set)(i, p);
  return kZqSetApplied;
}
