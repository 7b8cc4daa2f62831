#include "DbMesh.h"
#include <cmath>
#include <set>
#include <utility>

namespace {

double triangleArea(const OdGePoint3d& a, const OdGePoint3d& b, const OdGePoint3d& c) {
  return (b - a).crossProduct(c - a).length() / 2;
}

bool extentsOf(const OdGePoint3dArray& pts, OdGeExtents3d& ext) {
  if (pts.isEmpty()) return false;
  ext = OdGeExtents3d();
  for (const OdGePoint3d& p : pts) ext.addPoint(p);
  return true;
}

}  // namespace

// --- Polyface mesh -------------------------------------------------------------

OdDbPolyFaceMesh::OdDbPolyFaceMesh() = default;

OdGePoint3d OdDbPolyFaceMesh::vertexAt(unsigned index) const {
  assertReadEnabled();
  if (index >= m_vertices.length()) throw OdError_InvalidIndex();
  return m_vertices[index];
}

void OdDbPolyFaceMesh::setVertexAt(unsigned index, const OdGePoint3d& p) {
  if (index >= m_vertices.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  m_vertices[index] = p;
}

const OdDbPolyFaceMesh::Face& OdDbPolyFaceMesh::faceAt(unsigned index) const {
  assertReadEnabled();
  if (index >= m_faces.length()) throw OdError_InvalidIndex();
  return m_faces[index];
}

unsigned OdDbPolyFaceMesh::appendVertex(const OdGePoint3d& p) {
  assertWriteEnabled();
  m_vertices.append(p);
  return m_vertices.length() - 1;
}

unsigned OdDbPolyFaceMesh::appendFace(const Face& face) {
  for (int c : face.corner)
    if (unsigned(std::abs(c)) > m_vertices.length())
      throw OdError(eInvalidInput, OdString("a face names a vertex the mesh does not have"));
  assertWriteEnabled();
  m_faces.append(face);
  return m_faces.length() - 1;
}

double OdDbPolyFaceMesh::surfaceArea() const {
  assertReadEnabled();
  double area = 0;
  for (const Face& f : m_faces) {
    OdGePoint3dArray corners;
    for (int c : f.corner)
      if (c != 0) corners.append(m_vertices[unsigned(std::abs(c)) - 1]);
    for (unsigned i = 2; i < corners.length(); ++i) area += triangleArea(corners[0], corners[i - 1], corners[i]);
  }
  return area;
}

bool OdDbPolyFaceMesh::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  return extentsOf(m_vertices, ext);
}

void OdDbPolyFaceMesh::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* m = static_cast<const OdDbPolyFaceMesh*>(source);
  m_vertices = m->m_vertices;
  m_faces = m->m_faces;
}

// --- Polygon mesh ----------------------------------------------------------------

OdDbPolygonMesh::OdDbPolygonMesh() = default;

void OdDbPolygonMesh::setSize(int m, int n) {
  if (m < 2 || n < 2 || m > 32767 || n > 32767) throw OdError(eInvalidInput, OdString("a mesh has 2 to 32767 vertices each way"));
  assertWriteEnabled();
  m_m = m;
  m_n = n;
  m_vertices.assign(size_t(m) * size_t(n), OdGePoint3d());
}

OdGePoint3d OdDbPolygonMesh::vertexAt(unsigned index) const {
  assertReadEnabled();
  if (index >= m_vertices.length()) throw OdError_InvalidIndex();
  return m_vertices[index];
}

void OdDbPolygonMesh::setVertexAt(unsigned index, const OdGePoint3d& p) {
  if (index >= m_vertices.length()) throw OdError_InvalidIndex();
  assertWriteEnabled();
  m_vertices[index] = p;
}

void OdDbPolygonMesh::setMClosed(bool closed) { assertWriteEnabled(); m_mClosed = closed; }
void OdDbPolygonMesh::setNClosed(bool closed) { assertWriteEnabled(); m_nClosed = closed; }
void OdDbPolygonMesh::setPolyMeshType(OdDb::PolyMeshType t) { assertWriteEnabled(); m_type = t; }

void OdDbPolygonMesh::setMSurfaceDensity(int d) {
  if (d < 0 || d > 200) throw OdError(eInvalidInput, OdString("a surface density is 0 to 200"));
  assertWriteEnabled();
  m_mDensity = d;
}

void OdDbPolygonMesh::setNSurfaceDensity(int d) {
  if (d < 0 || d > 200) throw OdError(eInvalidInput, OdString("a surface density is 0 to 200"));
  assertWriteEnabled();
  m_nDensity = d;
}

double OdDbPolygonMesh::surfaceArea() const {
  assertReadEnabled();
  if (m_m < 2 || m_n < 2 || m_vertices.length() != unsigned(m_m * m_n)) return 0;
  auto at = [&](int i, int j) { return m_vertices[unsigned((i % m_m) * m_n + (j % m_n))]; };
  double area = 0;
  for (int i = 0; i < (m_mClosed ? m_m : m_m - 1); ++i)
    for (int j = 0; j < (m_nClosed ? m_n : m_n - 1); ++j)
      area += triangleArea(at(i, j), at(i + 1, j), at(i + 1, j + 1)) + triangleArea(at(i, j), at(i + 1, j + 1), at(i, j + 1));
  return area;
}

bool OdDbPolygonMesh::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  return extentsOf(m_vertices, ext);
}

void OdDbPolygonMesh::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* m = static_cast<const OdDbPolygonMesh*>(source);
  m_vertices = m->m_vertices;
  m_m = m->m_m;
  m_n = m->m_n;
  m_mDensity = m->m_mDensity;
  m_nDensity = m->m_nDensity;
  m_mClosed = m->m_mClosed;
  m_nClosed = m->m_nClosed;
  m_type = m->m_type;
}

// --- Subdivision mesh --------------------------------------------------------------

OdDbSubDMesh::OdDbSubDMesh() = default;

void OdDbSubDMesh::setSubDMesh(const OdGePoint3dArray& vertices, const OdArray<int>& faceList, int smoothLevel) {
  for (unsigned i = 0; i < faceList.length();) {
    const int n = faceList[i];
    if (n < 1 || i + unsigned(n) >= faceList.length()) throw OdError(eInvalidInput, OdString("the face list ends inside a face"));
    for (int k = 1; k <= n; ++k)
      if (faceList[i + k] < 0 || unsigned(faceList[i + k]) >= vertices.length())
        throw OdError(eInvalidInput, OdString("a face names a vertex the mesh does not have"));
    i += unsigned(n) + 1;
  }
  if (smoothLevel < 0 || smoothLevel > 4) throw OdError(eInvalidInput, OdString("the smoothness level is 0 to 4"));
  assertWriteEnabled();
  m_vertices = vertices;
  m_faceList = faceList;
  m_level = smoothLevel;
}

unsigned OdDbSubDMesh::numFaces() const {
  assertReadEnabled();
  unsigned n = 0;
  for (unsigned i = 0; i < m_faceList.length(); i += unsigned(m_faceList[i]) + 1) ++n;
  return n;
}

unsigned OdDbSubDMesh::numEdges() const {
  assertReadEnabled();
  if (m_edges >= 0) return unsigned(m_edges);
  std::set<std::pair<int, int>> edges;
  for (unsigned i = 0; i < m_faceList.length(); i += unsigned(m_faceList[i]) + 1) {
    const int n = m_faceList[i];
    for (int k = 0; k < n; ++k) {
      const int a = m_faceList[i + 1 + unsigned(k)], b = m_faceList[i + 1 + unsigned((k + 1) % n)];
      edges.insert({std::min(a, b), std::max(a, b)});
    }
  }
  return unsigned(edges.size());
}

void OdDbSubDMesh::setEdgeCount(int edges) { assertWriteEnabled(); m_edges = edges; }

void OdDbSubDMesh::setSmoothLevel(int level) {
  if (level < 0 || level > 4) throw OdError(eInvalidInput, OdString("the smoothness level is 0 to 4"));
  assertWriteEnabled();
  m_level = level;
}

double OdDbSubDMesh::surfaceArea() const {
  assertReadEnabled();
  double area = 0;
  for (unsigned i = 0; i < m_faceList.length(); i += unsigned(m_faceList[i]) + 1) {
    const OdGePoint3d& a = m_vertices[unsigned(m_faceList[i + 1])];
    for (int k = 2; k < m_faceList[i]; ++k)
      area += triangleArea(a, m_vertices[unsigned(m_faceList[i + unsigned(k)])], m_vertices[unsigned(m_faceList[i + 1 + unsigned(k)])]);
  }
  return area;
}

bool OdDbSubDMesh::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  return extentsOf(m_vertices, ext);
}

void OdDbSubDMesh::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* m = static_cast<const OdDbSubDMesh*>(source);
  m_vertices = m->m_vertices;
  m_faceList = m->m_faceList;
  m_edges = m->m_edges;
  m_level = m->m_level;
}
