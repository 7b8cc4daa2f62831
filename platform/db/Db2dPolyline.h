#pragma once
// The 2D (heavy) polyline and its vertices. The polyline owns its vertices
// as sub-objects: they are read through the polyline and written through it
// when it is open for write.
#include "DbEntity.h"

// Base of the vertices of 2D and 3D polylines and meshes.
class DB_API OdDbVertex : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbVertex);
};
using OdDbVertexPtr = OdSmartPtr<OdDbVertex>;

namespace OdDb {
enum Vertex2dType { k2dVertex = 0, k2dSplineCtlVertex = 1, k2dSplineFitVertex = 2, k2dCurveFitVertex = 3 };
enum Poly2dType { k2dSimplePoly = 0, k2dFitCurvePoly = 1, k2dQuadSplinePoly = 2, k2dCubicSplinePoly = 3 };
}  // namespace OdDb

// One vertex of a 2D polyline: its position in the polyline's object
// coordinates (Z is ignored; the polyline's elevation applies), the bulge of
// the segment that starts at it, and that segment's start and end width.
class DB_API OdDb2dVertex : public OdDbVertex {
  ODRX_DECLARE_MEMBERS(OdDb2dVertex);

 public:
  static OdSmartPtr<OdDb2dVertex> createObject();
  OdDb2dVertex();

  OdGePoint3d position() const { assertReadEnabled(); return m_position; }
  void setPosition(const OdGePoint3d& p);
  double bulge() const { assertReadEnabled(); return m_bulge; }
  void setBulge(double b);
  double startWidth() const { assertReadEnabled(); return m_startWidth; }
  void setStartWidth(double w);
  double endWidth() const { assertReadEnabled(); return m_endWidth; }
  void setEndWidth(double w);
  OdDb::Vertex2dType vertexType() const { assertReadEnabled(); return m_type; }
  void setVertexType(OdDb::Vertex2dType t);
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_position;
  double m_bulge = 0, m_startWidth = 0, m_endWidth = 0;
  OdDb::Vertex2dType m_type = OdDb::k2dVertex;
};
using OdDb2dVertexPtr = OdSmartPtr<OdDb2dVertex>;

class DB_API OdDb2dPolyline : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDb2dPolyline);

 public:
  static OdSmartPtr<OdDb2dPolyline> createObject();
  OdDb2dPolyline();

  // Appends the vertex (the polyline keeps it) and returns its index.
  unsigned appendVertex(OdDb2dVertex* vertex);
  unsigned numVerts() const { assertReadEnabled(); return m_verts.length(); }
  // The vertex at index for reading, or for writing (the polyline must be
  // open for write). An index past the last vertex raises OdError_InvalidIndex.
  const OdDb2dVertex* vertexAt(unsigned index) const;
  OdDb2dVertex* vertexForWrite(unsigned index);
  void removeVertexAt(unsigned index);

  OdDb::Poly2dType polyType() const { assertReadEnabled(); return m_type; }
  void setPolyType(OdDb::Poly2dType t);
  bool isClosed() const override { assertReadEnabled(); return m_closed; }
  void makeClosed() { setClosed(true); }
  void makeOpen() { setClosed(false); }
  void setClosed(bool closed);
  bool isLinetypeGenerationOn() const { assertReadEnabled(); return m_plinegen; }
  void setLinetypeGenerationOn();
  void setLinetypeGenerationOff();
  // The widths a vertex takes when the file gives none.
  double defaultStartWidth() const { assertReadEnabled(); return m_defaultStart; }
  void setDefaultStartWidth(double w);
  double defaultEndWidth() const { assertReadEnabled(); return m_defaultEnd; }
  void setDefaultEndWidth(double w);
  double elevation() const { assertReadEnabled(); return m_elevation; }
  void setElevation(double z);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  // The vertex in WCS.
  OdGePoint3d vertexPosition(unsigned index) const;

  // The parameter runs as the lightweight polyline's: one per segment.
  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdArray<OdDb2dVertexPtr> m_verts;
  OdDb::Poly2dType m_type = OdDb::k2dSimplePoly;
  double m_defaultStart = 0, m_defaultEnd = 0, m_elevation = 0, m_thickness = 0;
  OdGeVector3d m_normal{0, 0, 1};
  bool m_closed = false, m_plinegen = false;
};
using OdDb2dPolylinePtr = OdSmartPtr<OdDb2dPolyline>;
