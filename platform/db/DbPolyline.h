#pragma once
// The lightweight polyline: a planar list of vertices in object coordinates
// (the plane of its normal, at its elevation), with a bulge and a start and
// end width per vertex.
#include "DbEntity.h"
#include "OdGeCircArc.h"
#include "OdGeLineSeg.h"

class DB_API OdDbPolyline : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbPolyline);

 public:
  // What segment i (from vertex i to the next) is: a straight line, an arc,
  // two coincident vertices, a lone point (the only vertex, or the last
  // vertex of an open polyline), or nothing (no such vertex).
  enum SegType { kLine, kArc, kCoincident, kPoint, kEmpty };

  static OdSmartPtr<OdDbPolyline> createObject();
  OdDbPolyline();

  unsigned numVerts() const { assertReadEnabled(); return m_verts.length(); }
  // Inserts a vertex before index (appends when index is at or past the end).
  // A negative width stands for the polyline's constant width.
  void addVertexAt(unsigned index, const OdGePoint2d& pt, double bulge = 0, double startWidth = -1,
                   double endWidth = -1);
  void removeVertexAt(unsigned index);
  // Keeps the first numVerts vertices when reuse is set, else removes all.
  void reset(bool reuse, unsigned numVerts);

  // Vertex access. An index past the last vertex raises OdError_InvalidIndex.
  void getPointAt(unsigned index, OdGePoint2d& pt) const;   // object coordinates
  void getPointAt(unsigned index, OdGePoint3d& pt) const;   // WCS
  void setPointAt(unsigned index, const OdGePoint2d& pt);
  double getBulgeAt(unsigned index) const;
  void setBulgeAt(unsigned index, double bulge);
  void getWidthsAt(unsigned index, double& startWidth, double& endWidth) const;
  // Widths that differ from the constant width end it (it becomes 0).
  void setWidthsAt(unsigned index, double startWidth, double endWidth);
  double getStartWidthAt(unsigned index) const;
  double getEndWidthAt(unsigned index) const;
  void setStartWidthAt(unsigned index, double w);
  void setEndWidthAt(unsigned index, double w);

  SegType segType(unsigned index) const;
  // The segment from vertex index to the next one; an index whose segment is
  // not of that kind raises OdError(eInvalidInput).
  void getLineSegAt(unsigned index, OdGeLineSeg2d& seg) const;
  void getLineSegAt(unsigned index, OdGeLineSeg3d& seg) const;
  void getArcSegAt(unsigned index, OdGeCircArc2d& arc) const;
  void getArcSegAt(unsigned index, OdGeCircArc3d& arc) const;

  // The width every segment has, or 0. Setting it gives every vertex that
  // start and end width.
  double getConstantWidth() const { assertReadEnabled(); return m_constantWidth; }
  void setConstantWidth(double width);
  bool hasWidth() const;
  bool hasBulges() const;
  bool isOnlyLines() const { return !hasBulges(); }

  bool isClosed() const override { assertReadEnabled(); return m_closed; }
  void setClosed(bool closed);
  // Linetype generation: the pattern runs continuously across vertices.
  bool hasPlinegen() const { assertReadEnabled(); return m_plinegen; }
  void setPlinegen(bool on);
  double elevation() const { assertReadEnabled(); return m_elevation; }
  void setElevation(double z);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  // The parameter runs from 0 at vertex 0 by one per segment; param i + t
  // lies at the fraction t of segment i's length.
  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  struct Vertex {
    OdGePoint2d pt;
    double bulge = 0, startWidth = 0, endWidth = 0;
  };
  const Vertex& vertex(unsigned index) const;
  Vertex& vertexForWrite(unsigned index);
  OdGePoint3d toWcs(const OdGePoint2d& p) const;
  void checkSegment(unsigned index, SegType wanted) const;

  OdArray<Vertex> m_verts;
  double m_constantWidth = 0, m_elevation = 0, m_thickness = 0;
  OdGeVector3d m_normal{0, 0, 1};
  bool m_closed = false, m_plinegen = false;
};
using OdDbPolylinePtr = OdSmartPtr<OdDbPolyline>;
