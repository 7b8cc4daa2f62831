#pragma once
// The rows of objects whose vertices are a list of WCS points (3D
// polylines, polyface and polygon meshes): the "Vertex" navigation over
// Count() vertices and the indexed vertex's position in the current UCS,
// read through Get(i) and written through Set(i, p).
#include "ZqVertexRows.h"

template <class T, unsigned (T::*Count)() const>
CZqVariant ZqGetListedVertices(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqVertexChoices((t->*Count)(), index) : CZqVariant();
}

// Choosing a vertex changes nothing in the drawing.
template <class T>
int ZqSetListedVertices(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) {
  return ZqWritable<T>(object) ? kZqSetApplied : kZqSetRefused;
}

// Empty for a vertex that is not there.
template <class T, unsigned (T::*Count)() const, OdGePoint3d (T::*Get)(unsigned) const, int Axis>
CZqVariant ZqGetListedCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const T* t = ZqReadable<T>(object);
  const unsigned i = ZqVertexIndex(index);
  if (!t || i >= (t->*Count)()) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs((t->*Get)(i))[Axis]);
}

// A vertex that is not there is refused with a sentence.
template <class T, unsigned (T::*Count)() const, OdGePoint3d (T::*Get)(unsigned) const,
          void (T::*Set)(unsigned, const OdGePoint3d&), int Axis>
int ZqSetListedCoordinate(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                          const CZqVariant& index) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  const unsigned i = ZqVertexIndex(index);
  if (i >= (t->*Count)()) return ZqRefuseVertex(i, (t->*Count)());
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p = (t->*Get)(i);
  if (ZqReplaceUcsCoordinate(object, p, Axis, v)) (t->*Set)(i, p);
  return kZqSetApplied;
}
