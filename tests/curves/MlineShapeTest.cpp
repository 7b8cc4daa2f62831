// Multilines and shapes: rows in a rotated, shifted UCS, and edits with
// their refusals (the elements of a multiline worked out by hand: an L of
// two segments, elements 1 either side of the zero line).
#include "ZqTestSupport.h"
#include <cmath>

namespace {

CZqVariant choice(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant(int32_t(tag)), CZqVariant(int32_t(tag)))); }
const double kRoot2 = std::sqrt(2.0);

class MlineShapeTest : public ZqDrawingTest {
 protected:
  // (0,0) -> (4,0) -> (4,3), justified on the zero line, scale 2, the
  // style's elements at +0.5 and -0.5; `styleKnown` says whether the
  // style's offsets are known.
  OdDbObjectId addMline(Mline::MlineJustification just = Mline::kZero, bool styleKnown = false) {
    OdDbMlinePtr ml = OdDbMline::createObject();
    auto vertex = [](OdGePoint3d p, OdGeVector3d d, OdGeVector3d m, double t) {
      OdDbMline::Vertex v;
      v.position = p;
      v.direction = d;
      v.miter = m;
      v.params = {{t}, {-t}};
      v.fillParams = {{}, {}};
      return v;
    };
    // Zero line: the elements at +1 and -1 (scaled); along a miter of sine s at +-1/s.
    OdArray<OdDbMline::Vertex> v{vertex({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 1),
                                 vertex({4, 0, 0}, {0, 1, 0}, OdGeVector3d(-1, 1, 0) / kRoot2, kRoot2),
                                 vertex({4, 3, 0}, {0, 1, 0}, {-1, 0, 0}, 1)};
    if (just == Mline::kTop)  // the line on the upper element: 0 and -2
      for (auto& x : v) x.params = {{0.0}, {-2 * x.params[0][0]}};
    ml->setData(just, 2, 1, OdGeVector3d::kZAxis, v);
    ml->setStyleName("STANDARD");
    if (styleKnown) ml->setStyleOffsets({0.5, -0.5});
    return addToModelSpace(ml.get());
  }
  OdDbObjectId addShape() {
    OdDbShapePtr s = OdDbShape::createObject();
    s->setName("BOX");
    s->setPosition(OdGePoint3d(3, 4, 5));
    s->setSize(2.5);
    s->setRotation(0.5);
    s->setWidthFactor(0.75);
    s->setOblique(0.25);
    return addToModelSpace(s.get());
  }
  OdDbObjectId add(const std::string& kind) {
    if (kind == "shape") return addShape();
    return addMline(kind.rfind("mline_top", 0) == 0 ? Mline::kTop : Mline::kZero, kind == "mline_top_style");
  }
};

TEST_F(MlineShapeTest, RowsShowTheirValuesInTheUcs) {
  useRotatedUcs();
  const OdDbObjectId ml = addMline(), shape = addShape();
  const struct {
    OdDbObjectId id;
    const char* category;
    const char* row;
    int index;
    double expected;
  } rows[] = {
      {ml, "Geometry", "Vertex X", 1, toUcs(OdGePoint3d(4, 0, 0)).x},
      {ml, "Geometry", "Vertex Y", 2, toUcs(OdGePoint3d(4, 3, 0)).y},
      {ml, "Geometry", "Vertex Z", 2, toUcs(OdGePoint3d(4, 3, 0)).z},
      {ml, "Misc", "Scale", 0, 2},
      {shape, "Geometry", "Position X", 0, toUcs(OdGePoint3d(3, 4, 5)).x},
      {shape, "Geometry", "Position Y", 0, toUcs(OdGePoint3d(3, 4, 5)).y},
      {shape, "Geometry", "Position Z", 0, toUcs(OdGePoint3d(3, 4, 5)).z},
      {shape, "Misc", "Height", 0, 2.5},
      {shape, "Misc", "Rotation", 0, 0.5},
      {shape, "Misc", "Width factor", 0, 0.75},
      {shape, "Misc", "Oblique angle", 0, 0.25},
  };
  for (const auto& r : rows) {
    const CZqVariant v = get(r.id, r.category, r.row, CZqVariant(int32_t(r.index)));
    ASSERT_EQ(v.GetType(), CZqVariant::kVtDouble) << r.row;
    EXPECT_NEAR(v.GetDouble(), r.expected, 1e-12) << r.row;
  }
  EXPECT_EQ(get(ml, "Misc", "Style").GetString().qstring(), QStringLiteral("STANDARD"));
  EXPECT_EQ(get(ml, "Misc", "Justify").GetCollection().GetCurrent(), 1);
  EXPECT_EQ(get(ml, "Misc", "Closed").GetCollection().GetCurrent(), 1);
  EXPECT_EQ(get(ml, "Geometry", "Vertex", CZqVariant(int32_t(2))).GetCollection().GetCount(), 3);
  EXPECT_EQ(get(shape, "Misc", "Name").GetString().qstring(), QStringLiteral("BOX"));
  EXPECT_NEAR(infoLine(info(ml), "Length")->value.toDouble(), 7, 1e-12);
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
  bool (*check)(const OdDbEntity* e);
};

class MlineShapeEditTest : public MlineShapeTest, public ::testing::WithParamInterface<EditCase> {};

TEST_P(MlineShapeEditTest, EditsChangeWhatTheyNameAndRefusalsNothing) {
  const EditCase& c = GetParam();
  const OdDbObjectId id = add(c.kind);
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, c.category, c.row, c.value, CZqVariant(int32_t(c.index))), c.taken ? 5100 : -5001);
  EXPECT_EQ(messageCount(), c.messages);
  OdDbEntityPtr e = openAs<OdDbEntity>(id);
  EXPECT_EQ(e->isModified(), c.taken);
  EXPECT_TRUE(c.check(e.get()));
}

const OdDbMline* mline(const OdDbEntity* e) { return static_cast<const OdDbMline*>(e); }
const OdDbShape* shape(const OdDbEntity* e) { return static_cast<const OdDbShape*>(e); }
// The distances along the miter of the two elements at vertex i.
bool params(const OdDbEntity* e, unsigned i, double first, double second) {
  const auto& p = mline(e)->vertexData(i).params;
  return std::fabs(p[0][0] - first) < 1e-12 && std::fabs(p[1][0] - second) < 1e-12;
}
bool mlineUnchanged(const OdDbEntity* e) { return mline(e)->scale() == 2 && params(e, 1, kRoot2, -kRoot2) && params(e, 2, 1, -1); }
bool shapeUnchanged(const OdDbEntity* e) { return shape(e)->size() == 2.5 && shape(e)->widthFactor() == 0.75 && shape(e)->oblique() == 0.25; }

INSTANTIATE_TEST_SUITE_P(
    Cases, MlineShapeEditTest,
    ::testing::Values(
        EditCase{"scale_moves_elements_out", "mline", "Misc", "Scale", CZqVariant(4.0, false), 0, true, 0,
                 [](const OdDbEntity* e) { return mline(e)->scale() == 4 && params(e, 1, 2 * kRoot2, -2 * kRoot2) && params(e, 0, 2, -2); }},
        EditCase{"negative_scale_flips_elements", "mline", "Misc", "Scale", CZqVariant(-2.0, false), 0, true, 0,
                 [](const OdDbEntity* e) { return params(e, 1, -kRoot2, kRoot2); }},
        EditCase{"zero_scale_refused", "mline", "Misc", "Scale", CZqVariant(0.0, false), 0, false, 1, mlineUnchanged},
        EditCase{"justified_on_top", "mline", "Misc", "Justify", choice(Mline::kTop), 0, true, 0,
                 [](const OdDbEntity* e) { return mline(e)->justification() == Mline::kTop && params(e, 1, 0, -2 * kRoot2); }},
        EditCase{"top_to_bottom_without_style", "mline_top", "Misc", "Justify", choice(Mline::kBottom), 0, true, 0,
                 [](const OdDbEntity* e) { return params(e, 0, 2, 0) && params(e, 1, 2 * kRoot2, 0); }},
        EditCase{"top_to_zero_without_style_refused", "mline_top", "Misc", "Justify", choice(Mline::kZero), 0, false, 1,
                 [](const OdDbEntity* e) { return mline(e)->justification() == Mline::kTop && params(e, 0, 0, -2); }},
        EditCase{"top_to_zero_with_known_style", "mline_top_style", "Misc", "Justify", choice(Mline::kZero), 0, true, 0,
                 [](const OdDbEntity* e) { return params(e, 2, 1, -1) && params(e, 1, kRoot2, -kRoot2); }},
        EditCase{"unknown_justification_refused", "mline", "Misc", "Justify", choice(7), 0, false, 1, mlineUnchanged},
        // The corner moves down: the first segment now runs to (4,-4), the
        // second up along x = 4; the miter at the corner turns with them.
        EditCase{"vertex_moves_and_miters_follow", "mline", "Geometry", "Vertex Y", CZqVariant(-4.0, true), 1, true, 0,
                 [](const OdDbEntity* e) {
                   const OdDbMline::Vertex& v = mline(e)->vertexData(1);
                   const OdGeVector3d d0 = OdGeVector3d(4, -4, 0).normal();
                   const OdGeVector3d want = (OdGeVector3d(-d0.y, d0.x, 0) + OdGeVector3d(-1, 0, 0)).normal();
                   const double s = want.dotProduct(OdGeVector3d(-1, 0, 0));
                   return v.position.isEqualTo(OdGePoint3d(4, -4, 0)) && v.miter.isEqualTo(want) && params(e, 1, 1 / s, -1 / s) &&
                          params(e, 2, 1, -1);
                 }},
        EditCase{"vertex_past_the_last_refused", "mline", "Geometry", "Vertex X", CZqVariant(1.0, true), 3, false, 1, mlineUnchanged},
        EditCase{"style_is_read_only", "mline", "Misc", "Style", CZqVariant("OTHER"), 0, false, 0,
                 [](const OdDbEntity* e) { return mline(e)->styleName() == OdString("STANDARD"); }},
        EditCase{"shape_height_taken", "shape", "Misc", "Height", CZqVariant(4.0, true), 0, true, 0,
                 [](const OdDbEntity* e) { return shape(e)->size() == 4; }},
        EditCase{"shape_zero_height_refused", "shape", "Misc", "Height", CZqVariant(0.0, true), 0, false, 1, shapeUnchanged},
        EditCase{"shape_negative_width_factor_refused", "shape", "Misc", "Width factor", CZqVariant(-1.0, false), 0, false, 1, shapeUnchanged},
        EditCase{"shape_steep_oblique_refused", "shape", "Misc", "Oblique angle", CZqVariant(1.5, true), 0, false, 1, shapeUnchanged},
        EditCase{"shape_oblique_taken", "shape", "Misc", "Oblique angle", CZqVariant(-1.0, true), 0, true, 0,
                 [](const OdDbEntity* e) { return shape(e)->oblique() == -1; }}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
