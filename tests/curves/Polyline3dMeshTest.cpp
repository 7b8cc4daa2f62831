// 3D polylines, polyface meshes, polygon meshes and subdivision meshes:
// their rows in a rotated, shifted UCS against values worked out by hand,
// edits and refusals (one table for every kind), and the information lines.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

CZqVariant vertex(int i) { return CZqVariant(int32_t(i)); }
CZqVariant choice(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant(int32_t(tag)), CZqVariant(int32_t(tag)))); }

class MeshTest : public ZqDrawingTest {
 protected:
  // A 3 x 4 rectangle standing upright in the plane y = 1; closed.
  OdDbObjectId add3dPolyline() {
    OdDb3dPolylinePtr pl = OdDb3dPolyline::createObject();
    for (const OdGePoint3d& p : {OdGePoint3d(0, 1, 0), OdGePoint3d(3, 1, 0), OdGePoint3d(3, 1, 4), OdGePoint3d(0, 1, 4)}) {
      OdDb3dPolylineVertexPtr v = OdDb3dPolylineVertex::createObject();
      v->setPosition(p);
      pl->appendVertex(v.get());
    }
    pl->setClosed(true);
    return addToModelSpace(pl.get());
  }
  // A unit cube's bottom and one side: 6 vertices, 2 faces, the side's
  // edge on the bottom hidden.
  OdDbObjectId addPolyFaceMesh() {
    OdDbPolyFaceMeshPtr m = OdDbPolyFaceMesh::createObject();
    for (const OdGePoint3d& p : {OdGePoint3d(0, 0, 0), OdGePoint3d(1, 0, 0), OdGePoint3d(1, 1, 0), OdGePoint3d(0, 1, 0),
                                 OdGePoint3d(1, 0, 1), OdGePoint3d(0, 0, 1)})
      m->appendVertex(p);
    m->appendFace({{1, 2, 3, 4}});
    m->appendFace({{-1, 2, 5, 6}});
    return addToModelSpace(m.get());
  }
  // A 3 x 2 grid over z = x * y, closed in N.
  OdDbObjectId addPolygonMesh() {
    OdDbPolygonMeshPtr m = OdDbPolygonMesh::createObject();
    m->setSize(3, 2);
    for (int i = 0; i < 3; ++i)
      for (int j = 0; j < 2; ++j) m->setVertexAt(unsigned(i * 2 + j), OdGePoint3d(i, j, i * j));
    m->setNClosed(true);
    m->setMSurfaceDensity(6);
    m->setNSurfaceDensity(8);
    m->setPolyMeshType(OdDb::kCubicSurfaceMesh);
    return addToModelSpace(m.get());
  }
  // A square pyramid without base: 5 vertices, 4 triangles, 8 edges.
  OdDbObjectId addSubDMesh() {
    OdDbSubDMeshPtr m = OdDbSubDMesh::createObject();
    const OdGePoint3dArray v{OdGePoint3d(0, 0, 0), OdGePoint3d(2, 0, 0), OdGePoint3d(2, 2, 0), OdGePoint3d(0, 2, 0),
                             OdGePoint3d(1, 1, 1)};
    const OdArray<int> faces{3, 0, 1, 4, 3, 1, 2, 4, 3, 2, 3, 4, 3, 3, 0, 4};
    m->setSubDMesh(v, faces, 2);
    return addToModelSpace(m.get());
  }
  OdDbObjectId add(const std::string& kind) {
    if (kind == "3dpolyline") return add3dPolyline();
    if (kind == "polyface") return addPolyFaceMesh();
    if (kind == "polygon") return addPolygonMesh();
    return addSubDMesh();
  }
};

struct RowCase {
  const char* kind;
  const char* provider;
  const char* category;
  const char* row;
  int index;
  double expected;  // NaN: the row shows the UCS coordinate of `wcs` on `axis`
  OdGePoint3d wcs;
  int axis;
};

class MeshRowsTest : public MeshTest, public ::testing::WithParamInterface<RowCase> {};

TEST_P(MeshRowsTest, RowShowsItsValueInTheUcs) {
  const RowCase& c = GetParam();
  useRotatedUcs();
  const OdDbObjectId id = add(c.kind);
  EXPECT_EQ(zqProviderFor(id.openObject().get())->isA()->name().toStdString(), c.provider);
  const CZqVariant v = get(id, c.category, c.row, vertex(c.index));
  const double want = std::isnan(c.expected) ? toUcs(c.wcs)[c.axis] : c.expected;
  switch (v.GetType()) {
    case CZqVariant::kVtDouble: EXPECT_NEAR(v.GetDouble(), want, 1e-9); break;
    case CZqVariant::kVtInt32: EXPECT_EQ(v.GetInt32(), int(want)); break;
    case CZqVariant::kVtCollection: EXPECT_EQ(v.GetCollection().GetCurrent(), int(want)); break;
    default: ADD_FAILURE() << "no value";
  }
}

const double kUcs = NAN;
// The rectangle: perimeter 14, area 12 (upright, so only a vector area
// gives it). Polygon mesh: z = x*y over [0,2] x [0,1] closed in N: two
// strips of two triangles each way.
const double kGridArea = [] {
  auto tri = [](OdGePoint3d a, OdGePoint3d b, OdGePoint3d c) { return (b - a).crossProduct(c - a).length() / 2; };
  auto p = [](int i, int j) { return OdGePoint3d(i, j % 2, i * (j % 2)); };
  double a = 0;
  for (int i = 0; i < 2; ++i)
    for (int j = 0; j < 2; ++j) a += tri(p(i, j), p(i + 1, j), p(i + 1, j + 1)) + tri(p(i, j), p(i + 1, j + 1), p(i, j + 1));
  return a;
}();

INSTANTIATE_TEST_SUITE_P(
    Rows, MeshRowsTest,
    ::testing::Values(
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Geometry", "Vertex X", 2, kUcs, {3, 1, 4}, 0},
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Geometry", "Vertex Y", 2, kUcs, {3, 1, 4}, 1},
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Geometry", "Vertex Z", 2, kUcs, {3, 1, 4}, 2},
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Geometry", "Vertex", 3, 3, {}, 0},
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Geometry", "Length", 0, 14, {}, 0},
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Misc", "Closed", 0, 0, {}, 0},
        RowCase{"3dpolyline", "CZq3dPolylinePE", "Misc", "Fit/Smooth", 0, 0, {}, 0},
        RowCase{"polyface", "CZqPolyFaceMeshPE", "Geometry", "Vertex Z", 4, kUcs, {1, 0, 1}, 2},
        RowCase{"polyface", "CZqPolyFaceMeshPE", "Geometry", "Vertex X", 5, kUcs, {0, 0, 1}, 0},
        RowCase{"polyface", "CZqPolyFaceMeshPE", "Misc", "Vertex count", 0, 6, {}, 0},
        RowCase{"polyface", "CZqPolyFaceMeshPE", "Misc", "Face count", 0, 2, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Geometry", "Vertex Y", 5, kUcs, {2, 1, 2}, 1},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "M vertex count", 0, 3, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "N vertex count", 0, 2, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "M closed", 0, 1, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "N closed", 0, 0, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "M density", 0, 6, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "N density", 0, 8, {}, 0},
        RowCase{"polygon", "CZqPolygonMeshPE", "Misc", "Fit/Smooth", 0, 2, {}, 0},
        RowCase{"subd", "CZqSubDMeshPE", "Geometry", "Smoothness", 0, 2, {}, 0},
        RowCase{"subd", "CZqSubDMeshPE", "Misc", "Vertex count", 0, 5, {}, 0},
        RowCase{"subd", "CZqSubDMeshPE", "Misc", "Face count", 0, 4, {}, 0},
        RowCase{"subd", "CZqSubDMeshPE", "Misc", "Edge count", 0, 8, {}, 0}),
    [](const auto& info) {
      std::string name = std::string(info.param.kind) + "_" + info.param.row + "_" + std::to_string(info.index);
      for (char& ch : name)
        if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
      return name;
    });

TEST_F(MeshTest, AreaOfAnUprightPolylineAndOfTheMeshSurfaces) {
  const OdDbObjectId pl = add3dPolyline();
  EXPECT_NEAR(get(pl, "Geometry", "Area", CZqVariant(1111.0, false)).GetDouble(), 12, 1e-12);
  EXPECT_NEAR(infoLine(info(addPolygonMesh()), "Surface area")->value.toDouble(), kGridArea, 1e-12);
  // Bottom 1 + side 1.
  EXPECT_NEAR(infoLine(info(addPolyFaceMesh()), "Surface area")->value.toDouble(), 2, 1e-12);
  // Four triangles of base 2 and slant height sqrt(2).
  EXPECT_NEAR(infoLine(info(addSubDMesh()), "Surface area")->value.toDouble(), 4 * std::sqrt(2.0), 1e-12);
}

// A spline-fit 3D polyline keeps its frame among its vertices; its length
// is that of the fitted points alone.
TEST_F(MeshTest, SplineFrameIsNotPartOfTheLength) {
  OdDb3dPolylinePtr pl = OdDb3dPolyline::createObject();
  pl->setPolyType(OdDb::k3dCubicSplinePoly);
  const struct {
    OdGePoint3d p;
    OdDb::Vertex3dType type;
  } verts[] = {{{-50, 0, 9}, OdDb::k3dControlVertex}, {{0, 0, 0}, OdDb::k3dFitVertex},
               {{50, 50, 9}, OdDb::k3dControlVertex}, {{0, 3, 4}, OdDb::k3dFitVertex}};
  for (const auto& v : verts) {
    OdDb3dPolylineVertexPtr vx = OdDb3dPolylineVertex::createObject();
    vx->setPosition(v.p);
    vx->setVertexType(v.type);
    pl->appendVertex(vx.get());
  }
  const OdDbObjectId id = addToModelSpace(pl.get());
  EXPECT_NEAR(get(id, "Geometry", "Length").GetDouble(), 5, 1e-12);
  EXPECT_EQ(get(id, "Misc", "Fit/Smooth").GetCollection().GetCurrent(), 2);
}

struct EditCase {
  const char* name;
  const char* kind;
  const char* category;
  const char* row;
  CZqVariant value;
  int index;
  bool taken;
  size_t messages;
  bool (*check)(const OdDbEntity* e);  // what holds afterwards
};

class MeshEditTest : public MeshTest, public ::testing::WithParamInterface<EditCase> {};

TEST_P(MeshEditTest, EditsChangeWhatTheyNameAndRefusalsNothing) {
  const EditCase& c = GetParam();
  const OdDbObjectId id = add(c.kind);
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, c.category, c.row, c.value, vertex(c.index)), c.taken ? 5100 : -5001);
  EXPECT_EQ(messageCount(), c.messages);
  OdDbEntityPtr e = openAs<OdDbEntity>(id);
  EXPECT_EQ(e->isModified(), c.taken);
  EXPECT_TRUE(c.check(e.get()));
}

const OdDb3dPolyline* poly(const OdDbEntity* e) { return static_cast<const OdDb3dPolyline*>(e); }
const OdDbPolygonMesh* grid(const OdDbEntity* e) { return static_cast<const OdDbPolygonMesh*>(e); }
bool gridUnchanged(const OdDbEntity* e) {
  return grid(e)->mSurfaceDensity() == 6 && grid(e)->nSurfaceDensity() == 8 && !grid(e)->isMClosed();
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MeshEditTest,
    ::testing::Values(
        EditCase{"polyline_vertex_z_moves_that_vertex", "3dpolyline", "Geometry", "Vertex Z", CZqVariant(-2.0, true), 1, true, 0,
                 [](const OdDbEntity* e) {
                   return poly(e)->vertexPosition(1).isEqualTo(OdGePoint3d(3, 1, -2)) &&
                          poly(e)->vertexPosition(2).isEqualTo(OdGePoint3d(3, 1, 4));
                 }},
        EditCase{"polyline_vertex_past_the_last_refused", "3dpolyline", "Geometry", "Vertex X", CZqVariant(1.0, true), 4, false, 1,
                 [](const OdDbEntity* e) { return poly(e)->vertexPosition(3).isEqualTo(OdGePoint3d(0, 1, 4)); }},
        EditCase{"polyline_opened", "3dpolyline", "Misc", "Closed", choice(0), 0, true, 0,
                 [](const OdDbEntity* e) { return !poly(e)->isClosed(); }},
        EditCase{"polyline_string_for_a_coordinate_refused_quietly", "3dpolyline", "Geometry", "Vertex Y", CZqVariant("2"), 0,
                 false, 0, [](const OdDbEntity* e) { return poly(e)->vertexPosition(0).isEqualTo(OdGePoint3d(0, 1, 0)); }},
        EditCase{"polyface_vertex_moves", "polyface", "Geometry", "Vertex X", CZqVariant(7.0, true), 5, true, 0,
                 [](const OdDbEntity* e) {
                   return static_cast<const OdDbPolyFaceMesh*>(e)->vertexAt(5).isEqualTo(OdGePoint3d(7, 0, 1));
                 }},
        EditCase{"polyface_vertex_past_the_last_refused", "polyface", "Geometry", "Vertex Z", CZqVariant(7.0, true), 6, false, 1,
                 [](const OdDbEntity* e) { return static_cast<const OdDbPolyFaceMesh*>(e)->numVertices() == 6; }},
        EditCase{"grid_closed_in_m", "polygon", "Misc", "M closed", choice(1), 0, true, 0,
                 [](const OdDbEntity* e) { return grid(e)->isMClosed() && grid(e)->isNClosed(); }},
        EditCase{"grid_density_taken", "polygon", "Misc", "N density", CZqVariant(int32_t(12)), 0, true, 0,
                 [](const OdDbEntity* e) { return grid(e)->nSurfaceDensity() == 12 && grid(e)->mSurfaceDensity() == 6; }},
        EditCase{"grid_density_over_200_refused", "polygon", "Misc", "M density", CZqVariant(int32_t(201)), 0, false, 1, gridUnchanged},
        EditCase{"grid_density_with_fraction_refused", "polygon", "Misc", "M density", CZqVariant(2.5, false), 0, false, 1, gridUnchanged},
        EditCase{"grid_counts_are_not_edited", "polygon", "Misc", "M vertex count", CZqVariant(int32_t(4)), 0, false, 0,
                 [](const OdDbEntity* e) { return grid(e)->mSize() == 3; }},
        EditCase{"smoothness_taken", "subd", "Geometry", "Smoothness", CZqVariant(4.0, false), 0, true, 0,
                 [](const OdDbEntity* e) { return static_cast<const OdDbSubDMesh*>(e)->smoothLevel() == 4; }},
        EditCase{"smoothness_over_4_refused", "subd", "Geometry", "Smoothness", CZqVariant(int32_t(5)), 0, false, 1,
                 [](const OdDbEntity* e) { return static_cast<const OdDbSubDMesh*>(e)->smoothLevel() == 2; }},
        EditCase{"negative_smoothness_refused", "subd", "Geometry", "Smoothness", CZqVariant(int32_t(-1)), 0, false, 1,
                 [](const OdDbEntity* e) { return static_cast<const OdDbSubDMesh*>(e)->smoothLevel() == 2; }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(MeshTest, InformationListsVerticesUntilTheCounterStops) {
  const OdDbObjectId id = add3dPolyline();
  const auto lines = info(id, false, 2);
  EXPECT_EQ(infoLine(lines, "PolyLine Flags")->value.toString(), QStringLiteral("Closed"));
  EXPECT_NEAR(infoLine(lines, "Length")->value.toDouble(), 14, 1e-12);
  EXPECT_NE(infoLine(lines, "Location 1"), nullptr);
  EXPECT_EQ(infoLine(lines, "Location 2"), nullptr);
  const auto grid = info(addPolygonMesh());
  EXPECT_EQ(infoLine(grid, "Fit/Smooth")->value.toString(), QStringLiteral("Cubic"));
  EXPECT_EQ(infoLine(grid, "N closed")->value.toString(), QStringLiteral("Closed"));
  EXPECT_NE(infoLine(grid, "Location 5"), nullptr);
}

}  // namespace
