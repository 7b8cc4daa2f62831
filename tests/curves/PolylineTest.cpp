// The lightweight polyline's rows: vertices in the current UCS and their
// read-only rule, segment and global widths, area and length, closing and
// linetype generation, property matching with 2D polylines, and the
// information lines.
#include "ZqTestSupport.h"
#include "ZqReferenceGeometry.h"
#include "ZqMatchPolyline.h"
#include <cmath>
#include <optional>

namespace {

class PolylineTest : public ZqDrawingTest {
 protected:
  void TearDown() override {
    CZqDocument::setActive(nullptr);
    ZqDrawingTest::TearDown();
  }
  OdDbObjectId addPolyline(const std::vector<ZqRefVertex>& v, bool closed = false,
                           const OdGeVector3d& normal = OdGeVector3d::kZAxis, double elevation = 0) {
    OdDbPolylinePtr pl = OdDbPolyline::createObject();
    for (unsigned i = 0; i < v.size(); ++i) pl->addVertexAt(i, OdGePoint2d(v[i].x, v[i].y), v[i].bulge);
    pl->setClosed(closed);
    pl->setNormal(normal);
    pl->setElevation(elevation);
    return addToModelSpace(pl.get());
  }
  OdDbPolylinePtr open(const OdDbObjectId& id, OdDb::OpenMode mode = OdDb::kForRead) {
    return openAs<OdDbPolyline>(id, mode);
  }
  static CZqVariant vertex(int i) { return CZqVariant(int32_t(i)); }
  static CZqVariant number(double v) { return CZqVariant(v, true); }
};

// --- Vertices ------------------------------------------------------------------------

TEST_F(PolylineTest, VertexRowListsTheVerticesNumberedFromOne) {
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  const CZqVariant v = get(id, "Geometry", "Vertex", vertex(2));
  ASSERT_EQ(v.GetType(), CZqVariant::kVtCollection);
  const CZqVariantCollection& c = v.GetCollection();
  ASSERT_EQ(c.GetCount(), 3);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(c.GetAt(i).GetValue(), CZqVariant(int32_t(i + 1)));
    EXPECT_EQ(c.GetAt(i).GetTag(), CZqVariant(int32_t(i + 1)));
  }
  EXPECT_EQ(c.GetCurrent(), 2);
  EXPECT_EQ(get(addPolyline({}), "Geometry", "Vertex").GetCollection().GetCount(), 0);
  // Choosing a vertex changes nothing.
  EXPECT_EQ(set(id, "Geometry", "Vertex", CZqVariant("anything")), 5100);
  EXPECT_EQ(open(id)->numVerts(), 3u);
}

TEST_F(PolylineTest, VertexCoordinatesAreShownAndEditedInTheUcs) {
  useRotatedUcs();
  const OdGeVector3d normal = OdGeVector3d(0, 0, 1);
  const OdDbObjectId id = addPolyline({{1, 2, 0}, {5, -3, 0.5}, {7, 7, 0}}, false, normal, 1.5);
  for (int i = 0; i < 3; ++i) {
    OdGePoint3d wcs;
    open(id)->getPointAt(i, wcs);
    const OdGePoint3d ucs = toUcs(wcs);
    EXPECT_NEAR(get(id, "Geometry", "Vertex X", vertex(i)).GetDouble(), ucs.x, 1e-9);
    EXPECT_NEAR(get(id, "Geometry", "Vertex Y", vertex(i)).GetDouble(), ucs.y, 1e-9);
  }
  // Any index that is not an integer stands for vertex 0.
  EXPECT_NEAR(get(id, "Geometry", "Vertex X", number(2)).GetDouble(), get(id, "Geometry", "Vertex X", vertex(0)).GetDouble(), 0);

  OdGePoint3d before;
  open(id)->getPointAt(1, before);
  // The value shown, set again: nothing is written.
  open(id)->setModified(false);
  EXPECT_EQ(set(id, "Geometry", "Vertex X", get(id, "Geometry", "Vertex X", vertex(1)), vertex(1)), 5100);
  EXPECT_FALSE(open(id)->isModified());
  ASSERT_EQ(set(id, "Geometry", "Vertex X", number(40), vertex(1)), 5100);
  OdGePoint3d after;
  open(id)->getPointAt(1, after);
  const OdGePoint3d u0 = toUcs(before), u1 = toUcs(after);
  EXPECT_NEAR(u1.x, 40, 1e-9);
  EXPECT_NEAR(u1.y, u0.y, 1e-9);
  EXPECT_NEAR(after.z, 1.5, 1e-12);  // still in the polyline's plane at its elevation
  EXPECT_EQ(open(id)->getBulgeAt(1), 0.5);
  EXPECT_EQ(set(id, "Geometry", "Vertex Y", number(1), vertex(7)), -5001);  // no such vertex
  EXPECT_TRUE(get(id, "Geometry", "Vertex Y", vertex(7)).IsEmpty());
  EXPECT_TRUE(get(addPolyline({}), "Geometry", "Vertex X").IsEmpty());
}

TEST_F(PolylineTest, EditingAVertexOfATiltedPolylineProjectsIntoItsPlane) {
  const OdGeVector3d normal = OdGeVector3d(1, 1, 1).normal();
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {4, 1, 0}}, false, normal, 2);
  ASSERT_EQ(set(id, "Geometry", "Vertex X", number(10), vertex(1)), 5100);
  OdGePoint3d p;
  open(id)->getPointAt(1, p);
  // The WCS point with X replaced, moved along the normal onto the plane.
  OdGePoint3d before;
  {
    OdDbPolylinePtr fresh = OdDbPolyline::createObject();
    fresh->setNormal(normal);
    fresh->setElevation(2);
    fresh->addVertexAt(0, OdGePoint2d(4, 1));
    fresh->getPointAt(0, before);
  }
  OdGePoint3d edited = before;
  edited.x = 10;
  const OdGePoint3d expected = edited - normal * ((edited.asVector().dotProduct(normal)) - 2);
  EXPECT_NEAR(p.distanceTo(expected), 0, 1e-9);
}

struct ReadOnlyCase {
  const char* name;
  bool document;             // an active document whose view has its own UCS
  OdGeVector3d ucsX, ucsY;   // the view's (or else the drawing's) UCS axes
  OdGeVector3d normal;       // the polyline's normal
  bool readOnly;
};

class VertexReadOnlyTest : public PolylineTest, public ::testing::WithParamInterface<ReadOnlyCase> {};

TEST_P(VertexReadOnlyTest, VertexXYEditableOnlyWhenFacingTheViewsUcs) {
  const ReadOnlyCase& c = GetParam();
  CZqDocument doc(db.get());
  if (c.document) {
    CZqDocument::setActive(&doc);
    doc.activeView()->setUcs(OdGePoint3d(3, 3, 3), c.ucsX, c.ucsY);
  } else {
    db->setUCS(OdGePoint3d(3, 3, 3), c.ucsX, c.ucsY);
  }
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {1, 1, 0}}, false, c.normal);
  OdDbPolylinePtr pl = open(id);
  auto rows = zqRowsOf(pl.get());
  for (const char* name : {"Vertex X", "Vertex Y"})
    EXPECT_EQ(zqRow(rows.get(), "Geometry", name)->IsReadOnly(pl.get()), c.readOnly) << name;
  // The other rows are not affected.
  EXPECT_FALSE(zqRow(rows.get(), "Geometry", "Start segment width")->IsReadOnly(pl.get()));
}

const double kS = std::sqrt(0.5);
INSTANTIATE_TEST_SUITE_P(
    Views, VertexReadOnlyTest,
    ::testing::Values(
        ReadOnlyCase{"world", false, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, false},
        ReadOnlyCase{"drawing_ucs_upside_down", false, {1, 0, 0}, {0, -1, 0}, {0, 0, 1}, true},
        ReadOnlyCase{"view_ucs_upside_down", true, {1, 0, 0}, {0, -1, 0}, {0, 0, 1}, true},
        ReadOnlyCase{"polyline_upside_down", true, {1, 0, 0}, {0, 1, 0}, {0, 0, -1}, true},
        ReadOnlyCase{"both_upside_down", true, {0, 1, 0}, {1, 0, 0}, {0, 0, -1}, false},
        ReadOnlyCase{"view_rotated_about_z", true, {kS, kS, 0}, {-kS, kS, 0}, {0, 0, 1}, false},
        ReadOnlyCase{"tilted_view_matching", true, {1, 0, 0}, {0, kS, -kS}, {0, kS, kS}, false},
        ReadOnlyCase{"tilted_view_world_polyline", true, {1, 0, 0}, {0, kS, -kS}, {0, 0, 1}, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(PolylineTest, TheViewsUcsDecidesWhileTheDrawingsUcsIsIgnored) {
  CZqDocument doc(db.get());
  CZqDocument::setActive(&doc);
  db->setUCS(OdGePoint3d(), OdGeVector3d(1, 0, 0), OdGeVector3d(0, -1, 0));  // the drawing's UCS faces down
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {1, 1, 0}});
  OdDbPolylinePtr pl = open(id);
  auto rows = zqRowsOf(pl.get());
  CZqPropertyDescription* vx = zqRow(rows.get(), "Geometry", "Vertex X");
  EXPECT_TRUE(vx->IsReadOnly(pl.get()));  // the view follows the drawing's UCS by default
  doc.activeView()->setUcs(OdGePoint3d(), OdGeVector3d(1, 0, 0), OdGeVector3d(0, 1, 0));
  EXPECT_FALSE(vx->IsReadOnly(pl.get()));
  pl.release();
  EXPECT_TRUE(vx->IsReadOnly(pl.get()));  // not a polyline that can be read
}

// --- Widths --------------------------------------------------------------------------

struct WidthCase {
  const char* name;
  unsigned verts;
  bool closed;
  double constant;                                  // set first when not 0
  std::vector<std::pair<double, double>> widths;    // else these per vertex
  const char* row;
  CZqVariant index;
  double value;
  int code;
  double constantAfter;
  std::vector<std::pair<double, double>> after;     // expected widths per vertex
};

class SegmentWidthTest : public PolylineTest, public ::testing::WithParamInterface<WidthCase> {};

TEST_P(SegmentWidthTest, WidthEditsSpreadTheConstantWidthToTheOtherSegments) {
  const WidthCase& c = GetParam();
  std::vector<ZqRefVertex> v;
  for (unsigned i = 0; i < c.verts; ++i) v.push_back({double(i), double(i % 2), 0});
  const OdDbObjectId id = addPolyline(v, c.closed);
  {
    OdDbPolylinePtr pl = open(id, OdDb::kForWrite);
    if (c.constant != 0) pl->setConstantWidth(c.constant);
    for (unsigned i = 0; i < c.widths.size(); ++i) pl->setWidthsAt(i, c.widths[i].first, c.widths[i].second);
  }
  EXPECT_EQ(set(id, "Geometry", c.row, number(c.value), c.index), c.code);
  OdDbPolylinePtr pl = open(id);
  EXPECT_EQ(pl->getConstantWidth(), c.constantAfter);
  for (unsigned i = 0; i < c.after.size(); ++i) {
    double s = 0, e = 0;
    pl->getWidthsAt(i, s, e);
    EXPECT_EQ(s, c.after[i].first) << "start width of vertex " << i;
    EXPECT_EQ(e, c.after[i].second) << "end width of vertex " << i;
  }
  EXPECT_EQ(messageCount(), 0u);
}

const char* const kStart = "Start segment width";
const char* const kEnd = "End segment width";
INSTANTIATE_TEST_SUITE_P(
    Cases, SegmentWidthTest,
    ::testing::Values(
        // Constant width 2, start width of segment 1 set to 3: the others keep 2/2.
        WidthCase{"constant_spread", 4, false, 2, {}, kStart, CZqVariant(int32_t(1)), 3, 5100, 0,
                  {{2, 2}, {3, 2}, {2, 2}, {0, 0}}},
        WidthCase{"constant_spread_closed_end", 3, true, 1.5, {}, kEnd, CZqVariant(int32_t(2)), 0, 5100, 0,
                  {{1.5, 1.5}, {1.5, 1.5}, {1.5, 0}}},
        // One vertex: the constant width is cleared and nothing else written.
        WidthCase{"single_vertex", 1, false, 2, {}, kStart, CZqVariant(int32_t(0)), 3, 5100, 0, {{0, 0}}},
        WidthCase{"no_constant_width", 3, false, 0, {{1, 1}, {1, 1}}, kStart, CZqVariant(int32_t(0)), 4, 5100, 0,
                  {{4, 1}, {1, 1}, {0, 0}}},
        WidthCase{"end_width_keeps_start", 3, false, 0, {{1, 2}, {3, 4}}, kEnd, CZqVariant(int32_t(1)), 9, 5100, 0,
                  {{1, 2}, {3, 9}}},
        WidthCase{"negative_refused", 3, false, 2, {}, kStart, CZqVariant(int32_t(1)), -1, -5001, 2,
                  {{2, 2}, {2, 2}, {2, 2}}},
        WidthCase{"zero_accepted", 3, false, 2, {}, kEnd, CZqVariant(int32_t(0)), 0, 5100, 0, {{2, 0}, {2, 2}}},
        WidthCase{"double_index_means_vertex_0", 3, false, 0, {{1, 1}, {1, 1}}, kStart, CZqVariant(2.0, false), 5,
                  5100, 0, {{5, 1}, {1, 1}}},
        WidthCase{"index_past_the_end", 2, false, 2, {}, kStart, CZqVariant(int32_t(5)), 1, -5001, 2, {{2, 2}, {2, 2}}}),
    [](const auto& info) { return std::string(info.param.name); });

struct GlobalWidthCase {
  const char* name;
  unsigned verts;
  bool closed;
  double constant;
  std::vector<std::pair<double, double>> widths;
  std::optional<double> expected;  // none: an empty value
};

class GlobalWidthTest : public PolylineTest, public ::testing::WithParamInterface<GlobalWidthCase> {};

TEST_P(GlobalWidthTest, GlobalWidthIsTheWidthEverySegmentShares) {
  const GlobalWidthCase& c = GetParam();
  std::vector<ZqRefVertex> v;
  for (unsigned i = 0; i < c.verts; ++i) v.push_back({double(i), 0, 0});
  const OdDbObjectId id = addPolyline(v, c.closed);
  {
    OdDbPolylinePtr pl = open(id, OdDb::kForWrite);
    for (unsigned i = 0; i < c.widths.size(); ++i) pl->setWidthsAt(i, c.widths[i].first, c.widths[i].second);
    if (c.constant != 0) pl->setConstantWidth(c.constant);
  }
  const CZqVariant w = get(id, "Geometry", "Global width");
  if (c.expected) {
    ASSERT_EQ(w.GetType(), CZqVariant::kVtDouble);
    EXPECT_EQ(w.GetDouble(), *c.expected);
  } else {
    EXPECT_TRUE(w.IsEmpty());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, GlobalWidthTest,
    ::testing::Values(GlobalWidthCase{"constant", 3, false, 2.5, {}, 2.5},
                      GlobalWidthCase{"all_zero", 3, false, 0, {}, 0.0},
                      GlobalWidthCase{"shared_without_constant", 3, false, 0, {{1, 1}, {1, 1}}, 1.0},
                      GlobalWidthCase{"tapered_segment", 3, false, 0, {{1, 1}, {1, 2}}, std::nullopt},
                      GlobalWidthCase{"second_segment_differs", 3, false, 0, {{1, 1}, {2, 2}}, std::nullopt},
                      GlobalWidthCase{"last_vertex_of_open_ignored", 3, false, 0, {{1, 1}, {1, 1}, {7, 3}}, 1.0},
                      GlobalWidthCase{"closing_segment_counts", 3, true, 0, {{1, 1}, {1, 1}, {7, 3}}, std::nullopt},
                      GlobalWidthCase{"no_vertices", 0, false, 0, {}, std::nullopt}),
    [](const auto& info) { return std::string(info.param.name); });

// --- Area and length -----------------------------------------------------------------

struct MeasureCase {
  const char* name;
  std::vector<ZqRefVertex> v;
  bool closed;
};

class PolylineMeasureTest : public PolylineTest, public ::testing::WithParamInterface<MeasureCase> {};

// Against the figure sampled from first principles: the rows and the
// listing, the 2D polyline with the same vertices (which selection totals
// measure), and the point halfway along each segment's parameter.
TEST_P(PolylineMeasureTest, LengthAndAreaAgreeWithTheSampledFigure) {
  const MeasureCase& c = GetParam();
  const OdDbObjectId id = addPolyline(c.v, c.closed, OdGeVector3d(0, -1, 1), 4);  // any plane measures the same
  const auto ref = zqRefPolylinePoints(c.v, c.closed);
  const double length = zqRefChainLength(ref), area = c.v.size() < 2 ? 0.0 : zqRefChainArea(ref);
  const double lengthTol = 1e-6 * std::max(1.0, length), areaTol = 1e-6 * std::max(1.0, area);
  const CZqVariant l = get(id, "Geometry", "Length");
  ASSERT_EQ(l.GetType(), CZqVariant::kVtDouble);
  EXPECT_NEAR(l.GetDouble(), length, lengthTol);
  const CZqVariant a = get(id, "Geometry", "Area", CZqVariant(1111.0, false));
  ASSERT_EQ(a.GetType(), CZqVariant::kVtDouble);
  EXPECT_NEAR(a.GetDouble(), area, areaTol);
  const auto lines = info(id);
  EXPECT_NEAR(infoLine(lines, "Perimeter")->value.toDouble(), length, lengthTol);
  EXPECT_NEAR(infoLine(lines, "Area")->value.toDouble(), area, areaTol);
  if (c.v.size() < 2) return;

  OdDb2dPolylinePtr p2 = OdDb2dPolyline::createObject();
  for (const ZqRefVertex& v : c.v) {
    OdDb2dVertexPtr vx = OdDb2dVertex::createObject();
    vx->setPosition(OdGePoint3d(v.x, v.y, 0));
    vx->setBulge(v.bulge);
    p2->appendVertex(vx.get());
  }
  p2->setClosed(c.closed);
  double end = 0, length2 = 0, area2 = 0;
  ASSERT_EQ(p2->getEndParam(end), eOk);
  ASSERT_EQ(p2->getDistAtParam(end, length2), eOk);
  ASSERT_EQ(p2->getArea(area2), eOk);
  EXPECT_NEAR(length2, length, lengthTol);
  EXPECT_NEAR(area2, area, areaTol);

  OdDbPolylinePtr plain = OdDbPolyline::createObject();
  for (unsigned i = 0; i < c.v.size(); ++i) plain->addVertexAt(i, OdGePoint2d(c.v[i].x, c.v[i].y), c.v[i].bulge);
  plain->setClosed(c.closed);
  const size_t n = c.v.size();
  for (size_t i = 0; i < (c.closed ? n : n - 1); ++i) {
    const ZqRefVertex &from = c.v[i], &to = c.v[(i + 1) % n];
    const auto mid = zqRefSegmentPoints({from.x, from.y}, {to.x, to.y}, from.bulge, 2)[1];
    OdGePoint3d p;
    ASSERT_EQ(plain->getPointAtParam(i + 0.5, p), eOk);
    EXPECT_NEAR(p.distanceTo(OdGePoint3d(mid.x, mid.y, 0)), 0, 1e-9) << "segment " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Shapes, PolylineMeasureTest,
    ::testing::Values(MeasureCase{"rectangle", {{0, 0, 0}, {6, 0, 0}, {6, 2, 0}, {0, 2, 0}}, true},
                      MeasureCase{"slot", {{0, 0, 0}, {6, 0, 1}, {6, 2, 0}, {0, 2, 1}}, true},
                      MeasureCase{"outward_arcs", {{0, 0, 0.4}, {4, 0, 0.4}, {4, 4, 0.4}, {0, 4, 0.4}}, true},
                      MeasureCase{"inward_arcs_cw", {{0, 0, 0.3}, {0, 4, 0.3}, {4, 4, 0.3}, {4, 0, 0.3}}, true},
                      MeasureCase{"major_arcs", {{0, 0, 2}, {5, 0, 0}, {5, 5, -1.5}, {0, 5, 0}}, true},
                      MeasureCase{"donut", {{0, 0, 1}, {4, 0, 1}}, true},
                      MeasureCase{"open_arcs", {{0, 0, -0.4}, {3, 3, 0.9}, {6, 0, 0}}, false},
                      MeasureCase{"open_closing_chord", {{0, 0, 1}, {2, 0, 0}}, false},
                      MeasureCase{"clockwise_mixed", {{0, 0, -0.2}, {0, 5, 0.3}, {5, 5, 0}, {5, 0, -1}}, true},
                      MeasureCase{"coincident_points", {{1, 1, 0}, {1, 1, 0.5}, {4, 1, 0}}, false},
                      MeasureCase{"single_vertex", {{2, 2, 0.5}}, false},
                      MeasureCase{"empty", {}, false}),
    [](const auto& info) { return std::string(info.param.name); });

// --- Closed and linetype generation ---------------------------------------------------

TEST_F(PolylineTest, ClosedAndLinetypeGenerationAreChoicesWithTags) {
  struct Row {
    const char* name;
    const char* first;
    const char* second;
    bool (OdDbPolyline::*state)() const;
  } rows[] = {{"Closed", "Yes", "No", &OdDbPolyline::isClosed}, {"LineStyleGen", "Enabled", "Disabled", &OdDbPolyline::hasPlinegen}};
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  for (const Row& r : rows) {
    SCOPED_TRACE(r.name);
    const CZqVariant v = get(id, "Misc", r.name);
    ASSERT_EQ(v.GetType(), CZqVariant::kVtCollection);
    const CZqVariantCollection& c = v.GetCollection();
    ASSERT_EQ(c.GetCount(), 2);
    EXPECT_EQ(c.GetAt(0).GetValue().GetString().qstring(), r.first);
    EXPECT_EQ(c.GetAt(0).GetTag(), CZqVariant(int32_t(1)));
    EXPECT_EQ(c.GetAt(1).GetValue().GetString().qstring(), r.second);
    EXPECT_EQ(c.GetAt(1).GetTag(), CZqVariant(int32_t(0)));
    EXPECT_EQ(c.GetCurrent(), 1);  // open, no generation
    struct Step { int32_t tag; bool after; } steps[] = {{1, true}, {7, true}, {0, false}, {-1, false}};
    for (const Step& s : steps) {
      EXPECT_EQ(set(id, "Misc", r.name, CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(s.tag)))), 5100);
      EXPECT_EQ((open(id).get()->*r.state)(), s.after) << "tag " << s.tag;
      EXPECT_EQ(get(id, "Misc", r.name).GetCollection().GetCurrent(), s.after ? 0 : 1);
    }
    EXPECT_EQ(set(id, "Misc", r.name, CZqVariant(int32_t(1))), -5001);
  }
}

// --- Property matching -----------------------------------------------------------------

OdDb2dPolylinePtr make2d(const std::vector<std::pair<double, double>>& widths, bool plinegen) {
  OdDb2dPolylinePtr p = OdDb2dPolyline::createObject();
  for (unsigned i = 0; i < widths.size(); ++i) {
    OdDb2dVertexPtr v = OdDb2dVertex::createObject();
    v->setPosition(OdGePoint3d(i, i * i, 0));
    v->setStartWidth(widths[i].first);
    v->setEndWidth(widths[i].second);
    p->appendVertex(v.get());
  }
  if (plinegen) p->setLinetypeGenerationOn();
  return p;
}

TEST_F(PolylineTest, MatchingCopiesLinetypeGenerationAndAUniformWidth) {
  struct Case {
    const char* name;
    double constant;
    std::vector<std::pair<double, double>> widths;
    bool plinegen;
    std::optional<double> copied;
  } cases[] = {
      {"constant", 3, {}, true, 3.0},
      {"shared_segment_width", 0, {{1.5, 1.5}, {1.5, 1.5}}, false, 1.5},
      {"tapered_keeps_target_width", 0, {{1, 2}, {2, 2}}, true, std::nullopt},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const OdDbObjectId source = addPolyline({{0, 0, 0}, {1, 0, 0}, {2, 1, 0}});
    {
      OdDbPolylinePtr pl = open(source, OdDb::kForWrite);
      for (unsigned i = 0; i < c.widths.size(); ++i) pl->setWidthsAt(i, c.widths[i].first, c.widths[i].second);
      if (c.constant != 0) pl->setConstantWidth(c.constant);
      pl->setPlinegen(c.plinegen);
    }
    const OdDbObjectId target = addPolyline({{5, 5, 0}, {6, 5, 0}, {6, 6, 0}});
    {
      OdDbPolylinePtr pl = open(target, OdDb::kForWrite);
      pl->setConstantWidth(0.25);
      pl->setPlinegen(!c.plinegen);
    }
    EXPECT_EQ(set(target, "MATCHPROP", "MATCHPROP_Polyline", CZqVariant(source)), 5100);
    OdDbPolylinePtr t = open(target);
    EXPECT_EQ(t->hasPlinegen(), c.plinegen);
    EXPECT_EQ(t->getConstantWidth(), c.copied.value_or(0.25));
    EXPECT_EQ(t->getEndWidthAt(1), c.copied.value_or(0.25));
  }
}

TEST_F(PolylineTest, MatchingFromAndOntoTwoDimensionalPolylines) {
  // 2D source onto a lightweight target, through the row.
  OdDb2dPolylinePtr source2d = make2d({{2, 2}, {2, 2}, {5, 1}}, true);  // the last vertex of an open one is no segment
  const OdDbObjectId sourceId = addToModelSpace(source2d.get());
  source2d.release();
  const OdDbObjectId target = addPolyline({{0, 0, 0}, {1, 0, 0}});
  EXPECT_EQ(set(target, "MATCHPROP", "MATCHPROP_Polyline", CZqVariant(sourceId)), 5100);
  EXPECT_EQ(open(target)->getConstantWidth(), 2.0);
  EXPECT_TRUE(open(target)->hasPlinegen());

  // A lightweight source onto a 2D target: default widths and every vertex.
  const OdDbObjectId lwSource = addPolyline({{0, 0, 0}, {1, 0, 0}});
  open(lwSource, OdDb::kForWrite)->setConstantWidth(0.75);
  OdDb2dPolylinePtr target2d = make2d({{1, 3}, {0, 0}}, true);
  OdDbPolylinePtr lw = open(lwSource);
  EXPECT_EQ(MatchPolylineProperties(lw.get(), target2d.get()), 5100);
  EXPECT_FALSE(target2d->isLinetypeGenerationOn());
  EXPECT_EQ(target2d->defaultStartWidth(), 0.75);
  EXPECT_EQ(target2d->defaultEndWidth(), 0.75);
  for (unsigned i = 0; i < 2; ++i) {
    EXPECT_EQ(target2d->vertexAt(i)->startWidth(), 0.75);
    EXPECT_EQ(target2d->vertexAt(i)->endWidth(), 0.75);
  }
  // 2D onto 2D, and a source that is no polyline.
  OdDb2dPolylinePtr other = make2d({{4, 4}}, false);
  EXPECT_EQ(MatchPolylineProperties(other.get(), target2d.get()), 5100);
  EXPECT_EQ(target2d->vertexAt(1)->endWidth(), 4.0);
  OdDbLinePtr line = OdDbLine::createObject();
  EXPECT_EQ(MatchPolylineProperties(line.get(), target2d.get()), -5001);
  EXPECT_EQ(MatchPolylineProperties(other.get(), line.get()), -5001);
}

TEST_F(PolylineTest, MatchingRowAnswersItsOwnIdAndChecksTheSource) {
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {1, 0, 0}});
  const CZqVariant own = get(id, "MATCHPROP", "MATCHPROP_Polyline");
  ASSERT_EQ(own.GetType(), CZqVariant::kVtId);
  EXPECT_EQ(own.GetId(), id);
  EXPECT_EQ(set(id, "MATCHPROP", "MATCHPROP_Polyline", CZqVariant(OdDbObjectId())), -5001);
  EXPECT_EQ(set(id, "MATCHPROP", "MATCHPROP_Polyline", CZqVariant(addLine({0, 0, 0}, {1, 1, 1}))), -5001);
  EXPECT_EQ(set(id, "MATCHPROP", "MATCHPROP_Polyline", CZqVariant(2.0, false)), -5001);
  EXPECT_THROW(set(id, "MATCHPROP", "MATCHPROP_Polyline", CZqVariant(db->getLayerZeroId())), OdError_NotThatKindOfClass);
}

// --- Information lines ------------------------------------------------------------------

TEST_F(PolylineTest, InformationLinesWithUniformAndVaryingWidths) {
  const OdDbObjectId id = addPolyline({{0, 0, 0}, {4, 0, 0}, {4, 3, 0}}, true);
  {
    const auto lines = info(id);
    const std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype",
                                        "PolyLine Flags", "Area", "Perimeter", "Global width",
                                        "Location 0", "Location 1", "Location 2"};
    EXPECT_EQ(labelsOf(lines), expected);
    EXPECT_EQ(infoLine(lines, "PolyLine Flags")->value.toString(), "Closed");
    EXPECT_NEAR(infoLine(lines, "Area")->value.toDouble(), 6, 1e-12);
    EXPECT_NEAR(infoLine(lines, "Perimeter")->value.toDouble(), 12, 1e-12);
    EXPECT_EQ(infoLine(lines, "Location 2")->value.toList()[1].toDouble(), 3.0);
  }
  {
    OdDbPolylinePtr pl = open(id, OdDb::kForWrite);
    pl->setClosed(false);
    pl->setWidthsAt(1, 1, 2);
  }
  const auto lines = info(id);
  const std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype",
                                      "PolyLine Flags", "Area", "Perimeter",
                                      "Location 0", "Start segment width", "End segment width",
                                      "Location 1", "Start segment width", "End segment width", "Location 2"};
  EXPECT_EQ(labelsOf(lines), expected);
  EXPECT_EQ(infoLine(lines, "PolyLine Flags")->value.toString(), "Open");
  EXPECT_EQ(lines[13].value.toDouble(), 1.0);
  EXPECT_EQ(lines[14].value.toDouble(), 2.0);
}

class PolylineCounterTest : public PolylineTest, public ::testing::WithParamInterface<int> {};

TEST_P(PolylineCounterTest, CheckCounterStopsTheVertexList) {
  const int limit = GetParam();
  std::vector<ZqRefVertex> v;
  for (int i = 0; i < 50; ++i) v.push_back({double(i), double(i % 3), 0});
  const OdDbObjectId id = addPolyline(v);
  const auto lines = info(id, false, limit);
  int locations = 0;
  for (const auto& l : lines) locations += l.label.startsWith("Location ");
  EXPECT_EQ(locations, limit < 0 ? 50 : std::min(limit, 50));
  EXPECT_TRUE(infoLine(lines, "Perimeter"));  // the general lines are all there
  if (locations > 0) {
    EXPECT_TRUE(infoLine(lines, "Location 0"));
  }
}

INSTANTIATE_TEST_SUITE_P(Limits, PolylineCounterTest, ::testing::Values(-1, 0, 1, 7, 50, 80));

// The listing asks the counter once per vertex line it is about to print:
// n questions for n vertices, and one more only when it is told to stop.
TEST_F(PolylineTest, CheckCounterIsAskedOncePerVertexLine) {
  const struct { int vertices, limit, calls; } cases[] = {{1, -1, 1}, {5, -1, 5}, {50, -1, 50}, {50, 7, 8}, {5, 0, 1}};
  for (const auto& c : cases) {
    std::vector<ZqRefVertex> v;
    for (int i = 0; i < c.vertices; ++i) v.push_back({double(i), double(i % 3), 0});
    const OdDbObjectId id = addPolyline(v);
    OdDbObjectPtr obj = id.openObject();
    CZqPrintInfoContext ctx(db.get(), false, c.limit);
    zqInfoFor(obj.get())->PrintObjectInfo(obj.get(), &ctx);
    EXPECT_EQ(ctx.CounterCalls(), c.calls) << c.vertices << " vertices, limit " << c.limit;
  }
}

}  // namespace
