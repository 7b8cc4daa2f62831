#pragma once
// Meshes: the polyface mesh and the polygon mesh (POLYLINE records with
// VERTEX records of their own) and the subdivision mesh (MESH). Their
// vertices are WCS points kept by the mesh itself.
#include "DbEntity.h"
#include "DbSpline.h"

// A polyface mesh: vertices and faces of up to four corners. A face names
// its corners by vertex number (from 1); a negative number hides the edge
// that starts at that corner, 0 leaves the corner out.
class DB_API OdDbPolyFaceMesh : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbPolyFaceMesh);

 public:
  struct Face {
    int corner[4] = {0, 0, 0, 0};
    friend bool operator==(const Face&, const Face&) = default;
  };
  static OdSmartPtr<OdDbPolyFaceMesh> createObject();
  OdDbPolyFaceMesh();

  unsigned numVertices() const { assertReadEnabled(); return m_vertices.length(); }
  unsigned numFaces() const { assertReadEnabled(); return m_faces.length(); }
  // An index past the last raises OdError_InvalidIndex.
  OdGePoint3d vertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const OdGePoint3d& p);
  const Face& faceAt(unsigned index) const;
  unsigned appendVertex(const OdGePoint3d& p);
  // A face naming a vertex the mesh does not have raises OdError(eInvalidInput).
  unsigned appendFace(const Face& face);
  // The area of every face (a four-cornered one as two triangles).
  double surfaceArea() const;

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3dArray m_vertices;
  OdArray<Face> m_faces;
};
using OdDbPolyFaceMeshPtr = OdSmartPtr<OdDbPolyFaceMesh>;

namespace OdDb {
enum PolyMeshType { kSimpleMesh = 0, kQuadSurfaceMesh = 5, kCubicSurfaceMesh = 6, kBezierSurfaceMesh = 8 };
}

// A polygon mesh: an M x N grid of vertices (row after row of N), open or
// closed in each direction, and how it is smoothed.
class DB_API OdDbPolygonMesh : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbPolygonMesh);

 public:
  static OdSmartPtr<OdDbPolygonMesh> createObject();
  OdDbPolygonMesh();

  // Makes an M x N grid of vertices at the origin; sizes under 2 raise
  // OdError(eInvalidInput).
  void setSize(int m, int n);
  int mSize() const { assertReadEnabled(); return m_m; }
  int nSize() const { assertReadEnabled(); return m_n; }
  OdGePoint3d vertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const OdGePoint3d& p);
  unsigned numVertices() const { assertReadEnabled(); return m_vertices.length(); }

  bool isMClosed() const { assertReadEnabled(); return m_mClosed; }
  void setMClosed(bool closed);
  bool isNClosed() const { assertReadEnabled(); return m_nClosed; }
  void setNClosed(bool closed);
  OdDb::PolyMeshType polyMeshType() const { assertReadEnabled(); return m_type; }
  void setPolyMeshType(OdDb::PolyMeshType t);
  // The vertices of the smoothed surface in each direction (2 to 200).
  int mSurfaceDensity() const { assertReadEnabled(); return m_mDensity; }
  void setMSurfaceDensity(int d);
  int nSurfaceDensity() const { assertReadEnabled(); return m_nDensity; }
  void setNSurfaceDensity(int d);
  // The area of the grid's quadrilaterals (each as two triangles), the
  // closing rows and columns included.
  double surfaceArea() const;

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3dArray m_vertices;
  int m_m = 0, m_n = 0, m_mDensity = 0, m_nDensity = 0;
  bool m_mClosed = false, m_nClosed = false;
  OdDb::PolyMeshType m_type = OdDb::kSimpleMesh;
};
using OdDbPolygonMeshPtr = OdSmartPtr<OdDbPolygonMesh>;

// A subdivision mesh: vertices, faces as lists of vertex indices, edges as
// pairs, and the smoothness level it is shown at (0 to 4).
class DB_API OdDbSubDMesh : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbSubDMesh);

 public:
  static OdSmartPtr<OdDbSubDMesh> createObject();
  OdDbSubDMesh();

  // Vertices and faces, the face list as the file has it: a corner count,
  // then that many vertex indices (from 0), face after face. A list that
  // names a vertex the mesh does not have raises OdError(eInvalidInput).
  void setSubDMesh(const OdGePoint3dArray& vertices, const OdArray<int>& faceList, int smoothLevel);
  const OdGePoint3dArray& vertices() const { assertReadEnabled(); return m_vertices; }
  unsigned numVertices() const { assertReadEnabled(); return m_vertices.length(); }
  unsigned numFaces() const;
  const OdArray<int>& faceList() const { assertReadEnabled(); return m_faceList; }
  // The edges: given by the file, or each side of a face once.
  unsigned numEdges() const;
  void setEdgeCount(int edges);
  int smoothLevel() const { assertReadEnabled(); return m_level; }
  // Levels outside 0..4 raise OdError(eInvalidInput).
  void setSmoothLevel(int level);
  // The area of the faces at level 0 (each fanned into triangles).
  double surfaceArea() const;

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3dArray m_vertices;
  OdArray<int> m_faceList;
  int m_edges = -1;  // -1: counted from the faces
  int m_level = 0;
};
using OdDbSubDMeshPtr = OdSmartPtr<OdDbSubDMesh>;
