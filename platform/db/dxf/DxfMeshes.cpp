// POLYLINE records of the 3D polyline, the polyface mesh and the polygon
// mesh with their VERTEX records, and the subdivision mesh (MESH). The
// POLYLINE's flags (70) say which of them a record is; its VERTEX records
// follow it up to SEQEND and are written with it.
#include "DbPlainClasses.h"
#include "DxfMapping.h"

#include <algorithm>

namespace OdDxf::mapping {

Record newVertexRecord(Context& ctx, const Record& owner) {
  Record vr = ctx.file->newRecord("VERTEX");
  if (ctx.handles) vr.setHandle(vr.append(5), ctx.newHandle());
  if (ctx.markers) {
    if (ctx.handles) vr.setHandle(vr.append(330), owner.handle());
    vr.setRaw(vr.append(100), "AcDbEntity");
  }
  return vr;
}

namespace {

// The POLYLINE's own head: the entities-follow flag and the dummy point of
// a new record, then the flag bits of the kind (8, 16 or 64) in 70.
void polylineHead(RecordIO& io, int kindBit) {
  if (io.mode() != RecordIO::Create) {
    io.skip(66);
    io.skip(10, 3);
    return;
  }
  io.putInteger(66, 1);
  io.putPoint(10, OdGePoint3d());
  io.putInteger(70, kindBit);
}

// The point (10) of a mesh VERTEX record: read, or patched when it moved.
OdGePoint3d readMeshPoint(Context& ctx, Record& r, const char* marker) {
  RecordIO io(ctx, r, RecordIO::Read);
  io.subclass(marker);
  return io.point(10);
}

void patchMeshPoint(Context& ctx, Record& r, const char* marker, const OdGePoint3d& p) {
  RecordIO io(ctx, r, RecordIO::Patch);
  io.subclass("AcDbVertex");
  io.subclass(marker);
  io.putPoint(10, p);
}

// A new mesh VERTEX record: its point and flags, and for a face record its
// corners.
Record newMeshVertex(Context& ctx, const Record& owner, const char* marker, const OdGePoint3d& p, int flags,
                     const int* corners = nullptr) {
  Record vr = newVertexRecord(ctx, owner);
  RecordIO io(ctx, vr, RecordIO::Create);
  io.subclass("AcDbVertex");
  io.subclass(marker);
  io.putPoint(10, p);
  io.putInteger(70, flags);
  if (corners)
    for (int k = 0; k < 4; ++k)
      if (corners[k] != 0 || k < 3) io.putInteger(71 + k, corners[k]);
  return vr;
}

// The VERTEX record's flags (70), wherever its subclass puts them.
qint64 flagsOf(const Record& r) {
  const int i = r.find(70);
  return i < 0 ? 0 : r.at(i).integer();
}

}  // namespace

// ---------------------------------------------------------------------------
// 3D polyline

void vertex3dFields(Fields<OdDb3dPolylineVertex>& f) {
  using V = OdDb3dPolylineVertex;
  f.subclass("AcDbVertex");
  f.subclass("AcDb3dPolylineVertex");
  f.point(10, &V::position, &V::setPosition);
  // 70 flags: 32 a 3D polyline vertex, 8 made by spline fitting, 16 a
  // spline frame control point.
  f.integer(
      70,
      [](const V* v) {
        return 32 | (v->vertexType() == OdDb::k3dFitVertex ? 8 : v->vertexType() == OdDb::k3dControlVertex ? 16 : 0);
      },
      [](V* v, int flags) {
        v->setVertexType(flags & 16 ? OdDb::k3dControlVertex : flags & 8 ? OdDb::k3dFitVertex : OdDb::k3dSimpleVertex);
      });
}

namespace {

void vertex3dRecord(Context& ctx, Record& r, OdDb3dPolylineVertex* v, const OdDb3dPolylineVertex* before, RecordIO::Mode mode) {
  RecordIO io(ctx, r, mode);
  entityCommonFields(io, v, before);
  Fields<OdDb3dPolylineVertex> f(io, v, before);
  vertex3dFields(f);
  entityXdataFields(io, v, before);
}

}  // namespace

void polyline3dFields(Fields<OdDb3dPolyline>& f) {
  using P = OdDb3dPolyline;
  RecordIO& io = f.io();
  Context& ctx = io.ctx();
  P* pl = f.object();
  f.subclass("AcDb3dPolyline");
  polylineHead(io, 8);
  f.flag(70, 1, &P::isClosed, &P::setClosed);
  // Spline fit: flag 4, and 75 says quadratic (5) or cubic (6).
  if (io.reading()) {
    const qint64 flags = io.integer(70, 0), smooth = io.integer(75, 0);
    f.apply(70, [&] {
      pl->setPolyType(!(flags & 4) ? OdDb::k3dSimplePoly : smooth == 5 ? OdDb::k3dQuadSplinePoly : OdDb::k3dCubicSplinePoly);
    });
  } else if (f.changed(&P::polyType, Opt::Optional)) {
    const OdDb::Poly3dType t = pl->polyType();
    io.putInteger(70, (io.integer(70, 0) & ~qint64(4)) | (t == OdDb::k3dSimplePoly ? 0 : 4));
    if (t != OdDb::k3dSimplePoly || io.has(75)) io.putInteger(75, t == OdDb::k3dQuadSplinePoly ? 5 : t == OdDb::k3dCubicSplinePoly ? 6 : 0);
  } else {
    io.skip(70);
    io.skip(75);
  }

  polylineVertices<OdDb3dPolylineVertex>(
      f, [&ctx](Record& r, OdDb3dPolylineVertex* v, const OdDb3dPolylineVertex* before, RecordIO::Mode mode) {
        vertex3dRecord(ctx, r, v, before, mode);
      });
}

// ---------------------------------------------------------------------------
// Polyface mesh: 71 vertex count, 72 face count; the vertex records (flags
// 64 + 128) come first, then the face records (flags 128) with their
// corners in 71..74.

void polyFaceMeshFields(Fields<OdDbPolyFaceMesh>& f) {
  using M = OdDbPolyFaceMesh;
  RecordIO& io = f.io();
  Context& ctx = io.ctx();
  M* mesh = f.object();
  f.subclass("AcDbPolyFaceMesh");
  polylineHead(io, 64);
  QList<Record>* seq = io.sequence();
  if (io.reading()) {
    if (!seq) return;
    for (Record& vr : *seq) {
      const qint64 flags = flagsOf(vr);
      if (flags & 64) {
        const OdGePoint3d p = readMeshPoint(ctx, vr, "AcDbPolyFaceMeshVertex");
        f.apply(10, [&] { mesh->appendVertex(p); });
      } else if (flags & 128) {
        RecordIO vio(ctx, vr, RecordIO::Read);
        vio.subclass("AcDbFaceRecord");
        M::Face face;
        for (int k = 0; k < 4; ++k) face.corner[k] = int(vio.integer(71 + k, 0));
        try {
          mesh->appendFace(face);
        } catch (const OdError&) {
          vio.warn(vio.find(71), QStringLiteral("face names a vertex the mesh does not have; left out of the mesh, kept in the file"));
        }
      }
    }
    return;
  }
  const M* before = f.before();
  const bool create = io.mode() == RecordIO::Create;
  const bool sameShape = !create && mesh->numVertices() == before->numVertices() && mesh->numFaces() == before->numFaces();
  if (sameShape) {
    io.skip(70);
    io.skip(71);
    io.skip(72);
  } else {
    io.putInteger(71, mesh->numVertices());
    io.putInteger(72, mesh->numFaces());
  }
  if (!seq) return;
  const bool wasQuiet = ctx.quiet;
  ctx.quiet = true;
  if (sameShape) {
    // Only vertex positions change: each moved vertex's point is patched.
    int vertex = 0;
    for (Record& vr : *seq) {
      if (!(flagsOf(vr) & 64)) continue;
      const unsigned i = unsigned(vertex++);
      if (i < mesh->numVertices() && !same(mesh->vertexAt(i), before->vertexAt(i)))
        patchMeshPoint(ctx, vr, "AcDbPolyFaceMeshVertex", mesh->vertexAt(i));
    }
  } else {
    seq->clear();
    for (unsigned i = 0; i < mesh->numVertices(); ++i)
      seq->append(newMeshVertex(ctx, io.record(), "AcDbPolyFaceMeshVertex", mesh->vertexAt(i), 64 | 128));
    for (unsigned i = 0; i < mesh->numFaces(); ++i)
      seq->append(newMeshVertex(ctx, io.record(), "AcDbFaceRecord", OdGePoint3d(), 128, mesh->faceAt(i).corner));
  }
  ctx.quiet = wasQuiet;
}

// ---------------------------------------------------------------------------
// Polygon mesh: 70 flags (16 a mesh, 1 closed in M, 32 closed in N, 4
// smoothed), 71/72 the M and N vertex counts, 73/74 the surface densities,
// 75 the surface type; M x N vertex records (flags 64).

void polygonMeshFields(Fields<OdDbPolygonMesh>& f) {
  using M = OdDbPolygonMesh;
  RecordIO& io = f.io();
  Context& ctx = io.ctx();
  M* mesh = f.object();
  f.subclass("AcDbPolygonMesh");
  polylineHead(io, 16);
  f.flag(70, 1, &M::isMClosed, &M::setMClosed);
  f.flag(70, 32, &M::isNClosed, &M::setNClosed);
  QList<Record>* seq = io.sequence();
  if (io.reading()) {
    const qint64 m = io.integer(71, 0), n = io.integer(72, 0);
    f.apply(71, [&] { mesh->setSize(int(m), int(n)); });
    f.apply(73, [&] { mesh->setMSurfaceDensity(int(io.integer(73, 0))); });
    f.apply(74, [&] { mesh->setNSurfaceDensity(int(io.integer(74, 0))); });
    const qint64 type = io.integer(75, 0);
    if (io.integer(70, 0) & 4)
      f.apply(75, [&] {
        mesh->setPolyMeshType(type == 5 ? OdDb::kQuadSurfaceMesh : type == 8 ? OdDb::kBezierSurfaceMesh : OdDb::kCubicSurfaceMesh);
      });
    if (!seq) return;
    unsigned i = 0;
    for (Record& vr : *seq) {
      if (!(flagsOf(vr) & 64)) continue;
      const OdGePoint3d p = readMeshPoint(ctx, vr, "AcDbPolygonMeshVertex");
      if (i < mesh->numVertices()) mesh->setVertexAt(i, p);
      ++i;
    }
    if (i != mesh->numVertices())
      io.warn(io.find(71), QStringLiteral("%1 x %2 vertices announced, %3 found").arg(m).arg(n).arg(i));
    return;
  }
  const M* before = f.before();
  const bool create = io.mode() == RecordIO::Create;
  if (f.changed(&M::polyMeshType, Opt::Optional)) {
    const OdDb::PolyMeshType t = mesh->polyMeshType();
    io.putInteger(70, (io.integer(70, 0) & ~qint64(4)) | (t == OdDb::kSimpleMesh ? 0 : 4));
  }
  const bool sameShape = !create && mesh->mSize() == before->mSize() && mesh->nSize() == before->nSize();
  if (sameShape) {
    io.skip(71);
    io.skip(72);
  } else {
    io.putInteger(71, mesh->mSize());
    io.putInteger(72, mesh->nSize());
  }
  f.integer(73, &M::mSurfaceDensity, &M::setMSurfaceDensity, 0, Opt::Optional);
  f.integer(74, &M::nSurfaceDensity, &M::setNSurfaceDensity, 0, Opt::Optional);
  f.integer(75, [](const M* x) { return int(x->polyMeshType()); }, [](M*, int) {}, 0, Opt::Optional);
  if (!seq) return;
  const bool wasQuiet = ctx.quiet;
  ctx.quiet = true;
  if (sameShape) {
    unsigned i = 0;
    for (Record& vr : *seq) {
      if (!(flagsOf(vr) & 64)) continue;
      if (i < mesh->numVertices() && !same(mesh->vertexAt(i), before->vertexAt(i)))
        patchMeshPoint(ctx, vr, "AcDbPolygonMeshVertex", mesh->vertexAt(i));
      ++i;
    }
  } else {
    seq->clear();
    for (unsigned i = 0; i < mesh->numVertices(); ++i)
      seq->append(newMeshVertex(ctx, io.record(), "AcDbPolygonMeshVertex", mesh->vertexAt(i), 64));
  }
  ctx.quiet = wasQuiet;
}

// ---------------------------------------------------------------------------
// MESH: 91 the smoothness level, 92 the vertex count and the vertices, 93
// the size of the face list and its items (90), 94 the edge count. Only the
// level is written back: the rest stays as the file has it.

void subDMeshFields(Fields<OdDbSubDMesh>& f) {
  using M = OdDbSubDMesh;
  RecordIO& io = f.io();
  M* mesh = f.object();
  Record& r = io.record();
  f.subclass("AcDbSubDMesh");
  if (!io.reading()) {
    f.integer(91, &M::smoothLevel, &M::setSmoothLevel);
    return;
  }
  OdGePoint3dArray vertices;
  OdArray<int> faces;
  int i = io.find(92);
  const qint64 count = i >= 0 ? io.integerAt(i) : 0;
  for (int k = i + 1; i >= 0 && k < r.size() && qint64(vertices.length()) < count && r.at(k).code() == 10; k += 3) {
    OdGePoint3d p(io.realAt(k), 0, 0);
    if (k + 1 < r.size() && r.at(k + 1).code() == 20) p.y = io.realAt(k + 1);
    if (k + 2 < r.size() && r.at(k + 2).code() == 30) p.z = io.realAt(k + 2);
    vertices.append(p);
  }
  i = io.find(93);
  const qint64 items = i >= 0 ? io.integerAt(i) : 0;
  for (int k = i + 1; i >= 0 && k < r.size() && qint64(faces.length()) < items && r.at(k).code() == 90; ++k)
    faces.append(int(io.integerAt(k)));
  const qint64 level = io.integer(91, 0);
  f.apply(92, [&] { mesh->setSubDMesh(vertices, faces, int(level)); });
  if (io.has(94)) mesh->setEdgeCount(int(io.integer(94, 0)));
}

}  // namespace OdDxf::mapping
