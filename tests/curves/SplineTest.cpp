// Splines: the rows of a quadratic Bezier arch and of a rational circle in
// a rotated, shifted UCS against independent values (Simpson's rule for
// the arch's length, 2 pi r and pi r^2 for the circle), the edits with
// their refusals, and the information lines.
#include "ZqTestSupport.h"
#include <cmath>
#include <optional>

namespace {

// The arch: control points (0,0,0), (1,2,0), (2,0,0), clamped knots.
double archLength() {
  // |B'(t)| = 2 |(1-t)(P1-P0) + t(P2-P1)| = 2 |(1, 2 - 4t)|
  const int n = 20000;
  auto f = [](double t) { return 2 * std::hypot(1.0, 2 - 4 * t); };
  double sum = f(0) + f(1);
  for (int i = 1; i < n; ++i) sum += f(double(i) / n) * (i % 2 ? 4 : 2);
  return sum / n / 3;
}

class SplineTest : public ZqDrawingTest {
 public:
  OdDbObjectId addArch() {
    OdDbSplinePtr s = OdDbSpline::createObject();
    s->setNurbsData(2, false, false, false, {{0, 0, 0}, {1, 2, 0}, {2, 0, 0}}, {0, 0, 0, 1, 1, 1}, {});
    return addToModelSpace(s.get());
  }
  // A circle of radius 2 about (5, 5, 1): nine control points on a square,
  // the corners weighted sqrt(2)/2.
  OdDbObjectId addCircle() {
    const double w = std::sqrt(0.5);
    OdGePoint3dArray ctrl;
    const double xy[][2] = {{2, 0}, {2, 2}, {0, 2}, {-2, 2}, {-2, 0}, {-2, -2}, {0, -2}, {2, -2}, {2, 0}};
    for (const auto& p : xy) ctrl.append(OdGePoint3d(5 + p[0], 5 + p[1], 1));
    OdDbSplinePtr s = OdDbSpline::createObject();
    s->setNurbsData(2, true, true, false, ctrl, {0, 0, 0, .25, .25, .5, .5, .75, .75, 1, 1, 1}, {1, w, 1, w, 1, w, 1, w, 1});
    return addToModelSpace(s.get());
  }
  OdDbObjectId addFitted() {
    OdDbSplinePtr s = OdDbSpline::createObject();
    s->setFitData({{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}, {4, 0, 0}}, 3, 0.0);
    return addToModelSpace(s.get());
  }

 protected:
  static CZqVariant point(int i) { return CZqVariant(int32_t(i)); }
  double number(const OdDbObjectId& id, const char* row, const CZqVariant& index = {}) {
    const CZqVariant v = get(id, std::string(row) == "Closed" || std::string(row) == "Rational" ? "Misc" : "Geometry", row, index);
    if (v.GetType() == CZqVariant::kVtInt32) return v.GetInt32();
    if (v.GetType() == CZqVariant::kVtCollection) return v.GetCollection().GetCurrent();  // Yes 0, No 1
    EXPECT_EQ(v.GetType(), CZqVariant::kVtDouble) << row;
    return v.GetDouble();
  }
};

TEST_F(SplineTest, RowsShowTheSplineInTheUcs) {
  useRotatedUcs();
  const OdDbObjectId arch = addArch(), circle = addCircle();
  const OdGePoint3d a1 = toUcs(OdGePoint3d(1, 2, 0)), c2 = toUcs(OdGePoint3d(5, 7, 1));
  const CZqVariant bare(1111.0, false);
  const struct {
    const char* row;
    CZqVariant index;
    double arch, circle;
  } rows[] = {
      {"Degree", {}, 2, 2},
      {"Control point X", point(1), a1.x, toUcs(OdGePoint3d(7, 7, 1)).x},
      {"Control point Y", point(1), a1.y, toUcs(OdGePoint3d(7, 7, 1)).y},
      {"Control point Z", point(2), toUcs(OdGePoint3d(2, 0, 0)).z, c2.z},
      {"Weight", point(1), 1, std::sqrt(0.5)},
      {"Number of control points", {}, 3, 9},
      {"Number of fit points", {}, 0, 0},
      {"Length", {}, archLength(), 4 * OdaPI},
      {"Closed", {}, 1, 0},
      {"Rational", {}, 1, 0},
  };
  for (const auto& r : rows) {
    EXPECT_NEAR(number(arch, r.row, r.index), r.arch, 1e-7) << r.row;
    EXPECT_NEAR(number(circle, r.row, r.index), r.circle, 1e-7) << r.row;
  }
  // Only the closed one has an area (sampled: a few parts in 10^5).
  EXPECT_EQ(get(arch, "Geometry", "Area", bare).GetType(), CZqVariant::kVtEmpty);
  EXPECT_NEAR(get(circle, "Geometry", "Area", bare).GetDouble(), 4 * OdaPI, 1e-4 * 4 * OdaPI);
  EXPECT_EQ(get(arch, "Geometry", "Control point X", point(3)).GetType(), CZqVariant::kVtEmpty);
}

struct SplineEditCase {
  const char* name;
  OdDbObjectId (SplineTest::*make)();
  const char* row;
  CZqVariant value;
  int index;
  bool taken;
  size_t messages;
  bool (*check)(const OdDbSpline* s);  // what holds afterwards
};

class SplineEditTest : public SplineTest, public ::testing::WithParamInterface<SplineEditCase> {};

TEST_P(SplineEditTest, EditsAndRefusals) {
  const SplineEditCase& c = GetParam();
  const OdDbObjectId id = (this->*c.make)();
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, "Geometry", c.row, c.value, point(c.index)), c.taken ? 5100 : -5001);
  EXPECT_EQ(messageCount(), c.messages);
  OdDbSplinePtr s = openAs<OdDbSpline>(id);
  EXPECT_EQ(s->isModified(), c.taken);
  EXPECT_TRUE(c.check(s.get()));
}

OdGePoint3d controlPoint(const OdDbSpline* s, int i) {
  OdGePoint3d p;
  s->getControlPointAt(i, p);
  return p;
}
bool archUnchanged(const OdDbSpline* s) {
  return s->degree() == 2 && !s->isRational() && controlPoint(s, 1) == OdGePoint3d(1, 2, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SplineEditTest,
    ::testing::Values(
        SplineEditCase{"control_point_moves", &SplineTest::addArch, "Control point Y", CZqVariant(-3.0, true), 1, true, 0,
                       [](const OdDbSpline* s) { return controlPoint(s, 1) == OdGePoint3d(1, -3, 0) && controlPoint(s, 2) == OdGePoint3d(2, 0, 0); }},
        SplineEditCase{"control_point_past_the_last", &SplineTest::addArch, "Control point X", CZqVariant(1.0, true), 3, false, 1, archUnchanged},
        SplineEditCase{"weight_makes_rational", &SplineTest::addArch, "Weight", CZqVariant(2.0, true), 1, true, 0,
                       [](const OdDbSpline* s) { return s->isRational(); }},
        SplineEditCase{"zero_weight_refused", &SplineTest::addArch, "Weight", CZqVariant(0.0, true), 1, false, 1, archUnchanged},
        SplineEditCase{"degree_of_control_spline_refused", &SplineTest::addArch, "Degree", CZqVariant(int32_t(3)), 0, false, 1, archUnchanged},
        SplineEditCase{"degree_eleven_refused", &SplineTest::addFitted, "Degree", CZqVariant(int32_t(11)), 0, false, 1,
                       [](const OdDbSpline* s) { return s->degree() == 3; }},
        SplineEditCase{"fraction_degree_refused", &SplineTest::addFitted, "Degree", CZqVariant(2.5, true), 0, false, 1,
                       [](const OdDbSpline* s) { return s->degree() == 3; }},
        SplineEditCase{"degree_refits", &SplineTest::addFitted, "Degree", CZqVariant(int32_t(2)), 0, true, 0,
                       [](const OdDbSpline* s) { return s->degree() == 2 && s->numFitPoints() == 5; }}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(SplineTest, InformationListsPointsUntilTheCounterStops) {
  const OdDbObjectId id = addFitted();
  const auto lines = info(id);
  int control = 0, fit = 0;
  for (const auto& l : lines) {
    control += l.label.startsWith("Control Point ");
    fit += l.label.startsWith("Fit Point ");
  }
  EXPECT_EQ(control, openAs<OdDbSpline>(id)->numControlPoints());
  EXPECT_EQ(fit, 5);
  EXPECT_EQ(infoLine(lines, "Degree")->value.toInt(), 3);
  EXPECT_EQ(infoLine(lines, "Area"), nullptr);  // open
  const auto capped = info(id, false, 2);
  EXPECT_EQ(labelsOf(capped).back(), QStringLiteral("Control Point 1"));
  EXPECT_NE(infoLine(info(addCircle()), "Area"), nullptr);
}

}  // namespace
