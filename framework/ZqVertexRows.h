#pragma once
// The vertex navigation rows shared by the polyline providers: the index
// the host passes, the "Vertex" choice list, the refusal of a vertex that
// does not exist, and whether a planar curve's vertices can be edited in
// the current view.
#include "ZqCallbacks.h"

// The vertex a row's index names: an integer index is the zero-based
// vertex (a negative one names none), any other index stands for vertex 0.
unsigned ZqVertexIndex(const CZqVariant& index);

// One choice per vertex, numbered from 1, the indexed vertex current.
CZqVariant ZqVertexChoices(unsigned count, const CZqVariant& index);

// Refuses an edit of a vertex past the last one, with a sentence that
// gives the vertex (numbered from 1, as the Vertex row numbers them) and
// how many there are.
int ZqRefuseVertex(unsigned index, unsigned count);

// Whether a curve in the plane of normal lies in the current view's XY
// plane facing the same way (its normal codirectional with the view's UCS
// Z axis; the drawing's UCS when no document is open): only then are its
// vertices edited as X and Y.
bool ZqIsInViewPlane(const OdDbObject* object, const OdGeVector3d& normal);

// The "Vertex" row of a curve class C with numVerts(): the getter lists the
// vertices; choosing one changes nothing in the drawing.
template <class C>
CZqVariant ZqGetVertexRow(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const C* curve = ZqReadable<C>(object);
  return curve ? ZqVertexChoices(curve->numVerts(), index) : CZqVariant();
}
template <class C>
int ZqSetVertexRow(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) {
  return ZqWritable<C>(object) ? kZqSetApplied : kZqSetRefused;
}

// The segments of a polyline of class C: one per vertex when closed, one
// fewer when open.
template <class C>
unsigned ZqSegmentCount(const C* curve) {
  const unsigned n = curve->numVerts();
  return curve->isClosed() ? n : (n > 0 ? n - 1 : 0);
}
