// Ellipses and elliptical arcs: every row in a rotated, shifted UCS against
// values worked out from the ellipse's definition (the length by Simpson's
// rule over the arc-length integrand), the edits and refusals, and the
// information lines.
#include "ZqTestSupport.h"
#include <cmath>
#include <optional>

namespace {

constexpr double kDeg = OdaPI / 180;

// Semi-axes a = 5 (along (3, 4, 0)) and b = 2, centre (2, 3, -1).
constexpr double kA = 5, kB = 2;

// Length of the ellipse from parameter t0 to t1, by Simpson's rule.
double simpsonLength(double t0, double t1) {
  const int n = 20000;
  const double h = (t1 - t0) / n;
  auto f = [](double t) { return std::hypot(kA * std::sin(t), kB * std::cos(t)); };
  double sum = f(t0) + f(t1);
  for (int i = 1; i < n; ++i) sum += f(t0 + i * h) * (i % 2 ? 4 : 2);
  return sum * h / 3;
}

// The parameter of the point that lies at `angle` from the major axis.
double paramOf(double angle) { return std::atan2(kA * std::sin(angle), kB * std::cos(angle)); }

class EllipseTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addEllipse(double startAngle = 0, double endAngle = Oda2PI) {
    OdDbEllipsePtr e = OdDbEllipse::createObject();
    e->set(kCenter, OdGeVector3d::kZAxis, OdGeVector3d(3, 4, 0), kB / kA, startAngle, endAngle);
    return addToModelSpace(e.get());
  }
  double row(const OdDbObjectId& id, const char* name) {
    const bool area = std::string(name) == "Area";
    const CZqVariant v = get(id, "Geometry", name, area ? CZqVariant(1111.0, false) : CZqVariant());
    EXPECT_EQ(v.GetType(), CZqVariant::kVtDouble) << name;
    return v.GetDouble();
  }
  const OdGePoint3d kCenter{2, 3, -1};
};

TEST_F(EllipseTest, RowsShowTheEllipseInTheUcs) {
  useRotatedUcs();
  const OdGePoint3d c = toUcs(kCenter);
  const OdGeVector3d major = toUcs(OdGeVector3d(3, 4, 0));
  const double t0 = paramOf(30 * kDeg), t1 = paramOf(120 * kDeg);
  struct Case {
    const char* row;
    double full, arc;
  };
  const Case rows[] = {
      {"Center X", c.x, c.x},
      {"Center Y", c.y, c.y},
      {"Center Z", c.z, c.z},
      {"Major radius", kA, kA},
      {"Minor radius", kB, kB},
      {"Radius ratio", kB / kA, kB / kA},
      {"Major axis X", major.x, major.x},
      {"Major axis Y", major.y, major.y},
      {"Major axis Z", major.z, major.z},
      {"Start angle", 0, 30 * kDeg},
      {"End angle", Oda2PI, 120 * kDeg},
      {"Start parameter", 0, t0},
      {"End parameter", Oda2PI, t1},
      {"Normal X", 0, 0},
      {"Normal Y", 0, 0},
      {"Normal Z", 1, 1},
      {"Length", simpsonLength(0, Oda2PI), simpsonLength(t0, t1)},
      // The arc's area is the segment its chord cuts off.
      {"Area", OdaPI * kA * kB, kA * kB / 2 * ((t1 - t0) - std::sin(t1 - t0))},
  };
  const OdDbObjectId full = addEllipse(), arc = addEllipse(30 * kDeg, 120 * kDeg);
  for (const Case& r : rows) {
    EXPECT_NEAR(row(full, r.row), r.full, 1e-9) << r.row;
    EXPECT_NEAR(row(arc, r.row), r.arc, 1e-9) << r.row;
  }
}

struct EllipseState {
  double major, ratio, startDeg, endDeg;
};

struct EllipseEditCase {
  const char* name;
  const char* row;
  CZqVariant value;
  std::optional<EllipseState> after;  // none: refused, nothing changed
  size_t messages;
};

class EllipseEditTest : public EllipseTest, public ::testing::WithParamInterface<EllipseEditCase> {};

TEST_P(EllipseEditTest, EditsKeepTheRestAndRefusalsChangeNothing) {
  const EllipseEditCase& c = GetParam();
  const OdDbObjectId id = addEllipse(30 * kDeg, 120 * kDeg);
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, "Geometry", c.row, c.value), c.after ? 5100 : -5001);
  const EllipseState want = c.after.value_or(EllipseState{kA, kB / kA, 30, 120});
  OdDbEllipsePtr e = openAs<OdDbEllipse>(id);
  EXPECT_TRUE(e->center().isEqualTo(kCenter));
  EXPECT_TRUE(e->majorAxis().normal().isEqualTo(OdGeVector3d(0.6, 0.8, 0)));
  EXPECT_NEAR(e->majorAxis().length(), want.major, 1e-12);
  EXPECT_NEAR(e->radiusRatio(), want.ratio, 1e-12);
  EXPECT_NEAR(e->startAngle(), want.startDeg * kDeg, 1e-12);
  EXPECT_NEAR(e->endAngle(), want.endDeg * kDeg, 1e-12);
  EXPECT_EQ(e->isModified(), c.after.has_value());
  EXPECT_EQ(messageCount(), c.messages);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, EllipseEditTest,
    ::testing::Values(
        // A new major radius scales the ellipse: ratio and parameters stay,
        // so the angles do too.
        EllipseEditCase{"major_radius_keeps_ratio", "Major radius", CZqVariant(10.0, true), EllipseState{10, 0.4, 30, 120}, 0},
        EllipseEditCase{"zero_major_radius_refused", "Major radius", CZqVariant(0.0, true), std::nullopt, 1},
        EllipseEditCase{"minor_radius_sets_ratio", "Minor radius", CZqVariant(4.0, true),
                        EllipseState{5, 0.8, std::atan2(0.8 * std::sin(paramOf(30 * kDeg)), std::cos(paramOf(30 * kDeg))) / kDeg,
                                     std::atan2(0.8 * std::sin(paramOf(120 * kDeg)), std::cos(paramOf(120 * kDeg))) / kDeg},
                        0},
        EllipseEditCase{"minor_above_major_refused", "Minor radius", CZqVariant(6.0, true), std::nullopt, 1},
        EllipseEditCase{"negative_minor_refused", "Minor radius", CZqVariant(-1.0, true), std::nullopt, 1},
        EllipseEditCase{"ratio_zero_refused", "Radius ratio", CZqVariant(0.0, true), std::nullopt, 1},
        EllipseEditCase{"ratio_above_one_refused", "Radius ratio", CZqVariant(1.5, true), std::nullopt, 1},
        EllipseEditCase{"ratio_as_text_refused_quietly", "Radius ratio", CZqVariant("0.5"), std::nullopt, 0},
        EllipseEditCase{"start_angle_keeps_end", "Start angle", CZqVariant(60 * kDeg, true), EllipseState{5, 0.4, 60, 120}, 0},
        EllipseEditCase{"end_angle_keeps_start", "End angle", CZqVariant(-90 * kDeg, true), EllipseState{5, 0.4, 30, 270}, 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(EllipseTest, InformationListsAnglesOnlyForArcs) {
  const std::vector<QString> head{"Class name", "Handle", "Layer", "Space", "Color", "Linetype",
                                  "Center  point", "Major axis", "Minor axis", "Radius ratio"};
  const OdDbObjectId full = addEllipse(), arc = addEllipse(30 * kDeg, 120 * kDeg);
  std::vector<QString> expected = head;
  expected.insert(expected.end(), {"Length", "Area"});
  EXPECT_EQ(labelsOf(info(full)), expected);
  const auto lines = info(arc, true);
  expected = head;
  expected.insert(expected.end(), {"Start angle", "End angle", "Length", "Area", "Extrusion direction relative to UCS"});
  EXPECT_EQ(labelsOf(lines), expected);
  EXPECT_NEAR(infoLine(lines, "End angle")->value.toDouble(), 120 * kDeg, 1e-12);
  EXPECT_NEAR(infoLine(lines, "Length")->value.toDouble(), simpsonLength(paramOf(30 * kDeg), paramOf(120 * kDeg)), 1e-9);
}

}  // namespace
