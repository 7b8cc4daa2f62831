// 2D polylines: the rows of a polyline with a bulged side, widths and an
// elevation, in a rotated, shifted UCS, against the figure sampled from
// first principles; vertex edits with navigation, refusals, and the
// information lines.
#include "ZqTestSupport.h"
#include "ZqReferenceGeometry.h"
#include <cmath>
#include <optional>

namespace {

// A 4 x 3 rectangle at elevation 2 whose right side is a half circle
// bulging outwards; every segment 0.5 wide.
const std::vector<ZqRefVertex> kVertices = {{0, 0, 0}, {4, 0, 1}, {4, 3, 0}, {0, 3, 0}};

class Polyline2dTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addPolyline(bool closed = true) {
    OdDb2dPolylinePtr pl = OdDb2dPolyline::createObject();
    pl->setElevation(2);
    for (const ZqRefVertex& v : kVertices) {
      OdDb2dVertexPtr vx = OdDb2dVertex::createObject();
      vx->setPosition(OdGePoint3d(v.x, v.y, 0));
      vx->setBulge(v.bulge);
      vx->setStartWidth(0.5);
      vx->setEndWidth(0.5);
      pl->appendVertex(vx.get());
    }
    pl->setClosed(closed);
    return addToModelSpace(pl.get());
  }
  static CZqVariant vertex(int i) { return CZqVariant(int32_t(i)); }
};

// A spline-fit polyline keeps its frame (control points far outside) among
// its vertices; length and area are those of the fitted curve alone.
TEST_F(Polyline2dTest, SplineFrameCountsNeitherInLengthNorArea) {
  OdDb2dPolylinePtr pl = OdDb2dPolyline::createObject();
  pl->setPolyType(OdDb::k2dCubicSplinePoly);
  const struct {
    double x, y;
    OdDb::Vertex2dType type;
  } verts[] = {{-50, -50, OdDb::k2dSplineCtlVertex}, {0, 0, OdDb::k2dSplineFitVertex}, {3, 0, OdDb::k2dSplineFitVertex},
               {50, 50, OdDb::k2dSplineCtlVertex},   {3, 4, OdDb::k2dSplineFitVertex}, {0, 4, OdDb::k2dSplineFitVertex}};
  for (const auto& v : verts) {
    OdDb2dVertexPtr vx = OdDb2dVertex::createObject();
    vx->setPosition(OdGePoint3d(v.x, v.y, 0));
    vx->setVertexType(v.type);
    pl->appendVertex(vx.get());
  }
  pl->setClosed(true);
  const OdDbObjectId id = addToModelSpace(pl.get());
  EXPECT_NEAR(get(id, "Geometry", "Length").GetDouble(), 14, 1e-12);
  EXPECT_NEAR(get(id, "Geometry", "Area", CZqVariant(1111.0, false)).GetDouble(), 12, 1e-12);
}

TEST_F(Polyline2dTest, RowsShowThePolylineInTheUcs) {
  useRotatedUcs();
  const OdDbObjectId id = addPolyline();
  const auto ref = zqRefPolylinePoints(kVertices, true);
  const OdGePoint3d v2 = toUcs(OdGePoint3d(4, 3, 2));
  const struct {
    const char* row;
    CZqVariant index;
    double expected;
  } rows[] = {
      {"Vertex X", vertex(2), v2.x},
      {"Vertex Y", vertex(2), v2.y},
      {"Start segment width", vertex(1), 0.5},
      {"End segment width", vertex(3), 0.5},
      {"Global width", {}, 0.5},
      {"Elevation", {}, 2},
      {"Length", {}, zqRefChainLength(ref)},
      {"Area", CZqVariant(1111.0, false), zqRefChainArea(ref)},
  };
  for (const auto& r : rows) {
    const CZqVariant v = get(id, "Geometry", r.row, r.index);
    ASSERT_EQ(v.GetType(), CZqVariant::kVtDouble) << r.row;
    EXPECT_NEAR(v.GetDouble(), r.expected, 1e-6) << r.row;
  }
  // Four vertices, the indexed one current; closed; no fit.
  const CZqVariant choices = get(id, "Geometry", "Vertex", vertex(3));
  EXPECT_EQ(choices.GetCollection().GetCount(), 4);
  EXPECT_EQ(choices.GetCollection().GetCurrent(), 3);
  EXPECT_EQ(get(id, "Misc", "Closed").GetCollection().GetCurrent(), 0);
  EXPECT_EQ(get(id, "Misc", "Fit/Smooth").GetCollection().GetCurrent(), 0);
  // A vertex that is not there shows nothing.
  EXPECT_EQ(get(id, "Geometry", "Vertex X", vertex(4)).GetType(), CZqVariant::kVtEmpty);
}

struct EditCase {
  const char* name;
  const char* category;
  const char* row;
  CZqVariant value;
  int vertex;
  bool taken;
  size_t messages;
  // What must hold afterwards (the polyline open for read).
  bool (*check)(const OdDb2dPolyline* pl);
};

class Polyline2dEditTest : public Polyline2dTest, public ::testing::WithParamInterface<EditCase> {};

TEST_P(Polyline2dEditTest, EditsChangeOnlyTheirVertexAndRefusalsNothing) {
  const EditCase& c = GetParam();
  const OdDbObjectId id = addPolyline();
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, c.category, c.row, c.value, vertex(c.vertex)), c.taken ? 5100 : -5001);
  EXPECT_EQ(messageCount(), c.messages);
  OdDb2dPolylinePtr pl = openAs<OdDb2dPolyline>(id);
  EXPECT_EQ(pl->isModified(), c.taken);
  EXPECT_TRUE(c.check(pl.get()));
}

bool unchanged(const OdDb2dPolyline* pl) {
  for (unsigned i = 0; i < 4; ++i) {
    const OdDb2dVertex* v = pl->vertexAt(i);
    if (v->position() != OdGePoint3d(kVertices[i].x, kVertices[i].y, 0) || v->startWidth() != 0.5 || v->endWidth() != 0.5)
      return false;
  }
  return pl->numVerts() == 4 && pl->isClosed();
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Polyline2dEditTest,
    ::testing::Values(
        EditCase{"vertex_x_moves_that_vertex", "Geometry", "Vertex X", CZqVariant(-1.5, true), 1, true, 0,
                 [](const OdDb2dPolyline* pl) {
                   return pl->vertexPosition(1).isEqualTo(OdGePoint3d(-1.5, 0, 2)) &&
                          pl->vertexPosition(2).isEqualTo(OdGePoint3d(4, 3, 2));
                 }},
        EditCase{"vertex_past_the_last_refused", "Geometry", "Vertex Y", CZqVariant(1.0, true), 4, false, 1, unchanged},
        EditCase{"negative_segment_width_refused", "Geometry", "Start segment width", CZqVariant(-1.0, true), 0, false, 1,
                 unchanged},
        EditCase{"end_width_of_one_segment", "Geometry", "End segment width", CZqVariant(2.0, true), 2, true, 0,
                 [](const OdDb2dPolyline* pl) {
                   return pl->vertexAt(2)->endWidth() == 2 && pl->vertexAt(2)->startWidth() == 0.5 &&
                          pl->vertexAt(1)->endWidth() == 0.5;
                 }},
        EditCase{"global_width_for_every_segment", "Geometry", "Global width", CZqVariant(1.25, true), 0, true, 0,
                 [](const OdDb2dPolyline* pl) {
                   for (unsigned i = 0; i < 4; ++i)
                     if (pl->vertexAt(i)->startWidth() != 1.25 || pl->vertexAt(i)->endWidth() != 1.25) return false;
                   return pl->defaultStartWidth() == 1.25;
                 }},
        EditCase{"opened", "Misc", "Closed", CZqVariant(CZqVariantCollectionElement(CZqVariant(int32_t(0)), CZqVariant(int32_t(0)))),
                 0, true, 0, [](const OdDb2dPolyline* pl) { return !pl->isClosed(); }},
        EditCase{"fit_type_is_not_edited", "Misc", "Fit/Smooth",
                 CZqVariant(CZqVariantCollectionElement(CZqVariant(int32_t(3)), CZqVariant(int32_t(3)))), 0, false, 0,
                 unchanged}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Polyline2dTest, InformationListsEveryVertexUntilTheCounterStops) {
  const OdDbObjectId id = addPolyline(false);
  const std::vector<QString> head{"Class name", "Handle", "Layer",        "Space",     "Color",
                                  "Linetype",   "PolyLine Flags", "Area", "Perimeter", "Global width"};
  std::vector<QString> all = head;
  for (int i = 0; i < 4; ++i) all.push_back(QStringLiteral("Location %1").arg(i));
  EXPECT_EQ(labelsOf(info(id)), all);
  const auto lines = info(id, false, 2);
  EXPECT_EQ(labelsOf(lines).size(), head.size() + 2);
  EXPECT_EQ(infoLine(lines, "PolyLine Flags")->value.toString(), QStringLiteral("Open"));
  const QVariantList p = infoLine(lines, "Location 1")->value.toList();
  EXPECT_EQ(p, (QVariantList{4.0, 0.0, 2.0}));
}

}  // namespace
