#pragma once
// The 3D polyline and its vertices. As with the 2D polyline, the polyline
// owns its vertices as sub-objects: they are read through it and written
// through it when it is open for write.
#include "Db2dPolyline.h"
#include "DbSpline.h"

namespace OdDb {
enum Vertex3dType { k3dSimpleVertex = 0, k3dControlVertex = 1, k3dFitVertex = 2 };
enum Poly3dType { k3dSimplePoly = 0, k3dQuadSplinePoly = 1, k3dCubicSplinePoly = 2 };
}  // namespace OdDb

// One vertex of a 3D polyline: a WCS position and whether it is an ordinary
// vertex, a spline frame control point or a point of the fitted spline.
class DB_API OdDb3dPolylineVertex : public OdDbVertex {
  ODRX_DECLARE_MEMBERS(OdDb3dPolylineVertex);

 public:
  static OdSmartPtr<OdDb3dPolylineVertex> createObject();
  OdDb3dPolylineVertex();

  OdGePoint3d position() const { assertReadEnabled(); return m_position; }
  void setPosition(const OdGePoint3d& p);
  OdDb::Vertex3dType vertexType() const { assertReadEnabled(); return m_type; }
  void setVertexType(OdDb::Vertex3dType t);
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_position;
  OdDb::Vertex3dType m_type = OdDb::k3dSimpleVertex;
};
using OdDb3dPolylineVertexPtr = OdSmartPtr<OdDb3dPolylineVertex>;

class DB_API OdDb3dPolyline : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDb3dPolyline);

 public:
  static OdSmartPtr<OdDb3dPolyline> createObject();
  OdDb3dPolyline();

  // Appends the vertex (the polyline keeps it) and returns its index.
  unsigned appendVertex(OdDb3dPolylineVertex* vertex);
  unsigned numVerts() const { assertReadEnabled(); return m_verts.length(); }
  // An index past the last vertex raises OdError_InvalidIndex.
  const OdDb3dPolylineVertex* vertexAt(unsigned index) const;
  OdDb3dPolylineVertex* vertexForWrite(unsigned index);
  // The position of a vertex, read or replaced through the polyline.
  OdGePoint3d vertexPosition(unsigned index) const { return vertexAt(index)->position(); }
  void setVertexPosition(unsigned index, const OdGePoint3d& p) { vertexForWrite(index)->setPosition(p); }

  OdDb::Poly3dType polyType() const { assertReadEnabled(); return m_type; }
  void setPolyType(OdDb::Poly3dType t);
  bool isClosed() const override { assertReadEnabled(); return m_closed; }
  void makeClosed() { setClosed(true); }
  void makeOpen() { setClosed(false); }
  void setClosed(bool closed);

  // The parameter runs from 0 at the first vertex on the curve, one per
  // straight segment; a spline-fit polyline's frame is not on the curve.
  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdGePoint3dArray curvePoints() const;
  OdArray<OdDb3dPolylineVertexPtr> m_verts;
  OdDb::Poly3dType m_type = OdDb::k3dSimplePoly;
  bool m_closed = false;
};
using OdDb3dPolylinePtr = OdSmartPtr<OdDb3dPolyline>;
