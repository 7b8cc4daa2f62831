// The line's own rows: deltas, length and the angle with its precision and
// snapping; and its information lines.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

class LineTest : public ZqDrawingTest {};

// The rows the line alone has (its coordinates, thickness and refusals are
// tested with every provider's).
TEST_F(LineTest, DeltasAndLengthInTheUcs) {
  useRotatedUcs();
  const OdGePoint3d s(12, 7, -1), e(-3, 4.5, 6);
  const OdDbObjectId id = addLine(s, e);
  const OdGeVector3d d = toUcs(e) - toUcs(s);
  struct Case { const char* name; double expected; } cases[] = {
      {"Delta X", d.x}, {"Delta Y", d.y}, {"Delta Z", d.z}, {"Length", s.distanceTo(e)}};
  for (const Case& c : cases) {
    const CZqVariant v = get(id, "Geometry", c.name);
    ASSERT_EQ(v.GetType(), CZqVariant::kVtDouble) << c.name;
    EXPECT_TRUE(v.IsUnits()) << c.name;
    EXPECT_NEAR(v.GetDouble(), c.expected, 1e-9) << c.name;
  }
}

struct AngleCase {
  const char* label;
  OdGePoint3d start, end;
  int luprec, auprec;
  double expectedDegrees;
};

class LineAngleTest : public LineTest, public ::testing::WithParamInterface<AngleCase> {};

TEST_P(LineAngleTest, AngleFollowsPrecisionAndSnapping) {
  const AngleCase& c = GetParam();
  db->setLUPREC(c.luprec);
  db->setAUPREC(c.auprec);
  const OdDbObjectId id = addLine(c.start, c.end);
  // Coordinates are rounded to the linear precision first, so unsnapped
  // angles agree to that precision only.
  EXPECT_NEAR(get(id, "Geometry", "Angle").GetDouble() * 180.0 / OdaPI, c.expectedDegrees, 1e-6);
}

OdGePoint3d polar(double degrees, double length = 10) {
  const double a = degrees * OdaPI / 180.0;
  return {length * std::cos(a), length * std::sin(a), 0};
}

INSTANTIATE_TEST_SUITE_P(
    Cases, LineAngleTest,
    ::testing::Values(
        AngleCase{"snap_up", {0, 0, 0}, polar(44.6), 8, 0, 45},
        AngleCase{"snap_down", {0, 0, 0}, polar(44.4), 8, 0, 44},
        AngleCase{"pointing_left", {10, 0, 0}, {0, 0, 0}, 4, 0, 180},
        AngleCase{"no_snap_with_precision", {0, 0, 0}, polar(44.6), 8, 2, 44.6},
        AngleCase{"vertical_line", {1, 2, 3}, {1, 2, 9}, 4, 0, 0},
        AngleCase{"negative_direction_wraps", {0, 0, 0}, polar(-30), 8, 3, 330},
        // Rounding the end points to 0 decimals makes (0.4, 0.6) a 90 degree line.
        AngleCase{"rounded_coordinates", {0, 0, 0}, {0.4, 0.6, 0}, 0, 4, 90},
        AngleCase{"rounded_to_zero_length", {0, 0, 0}, {0.3, 0.2, 5}, 0, 4, 0}),
    [](const auto& info) { return std::string(info.param.label); });

TEST_F(LineTest, AngleIsMeasuredInTheUcsPlane) {
  useRotatedUcs();  // X axis at 30 degrees
  db->setAUPREC(4);
  const OdDbObjectId id = addLine({0, 0, 0}, polar(75));
  EXPECT_NEAR(get(id, "Geometry", "Angle").GetDouble() * 180 / OdaPI, 45.0, 1e-6);
}

TEST_F(LineTest, InformationLinesWithAndWithoutUcs) {
  useRotatedUcs();
  const OdGePoint3d s(1, 2, 3), e(4, 6, 3);
  const OdDbObjectId id = addLine(s, e);
  for (bool inUcs : {false, true}) {
    SCOPED_TRACE(inUcs ? "UCS" : "WCS");
    const auto lines = info(id, inUcs);
    std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype", "from point", "to point", "Length"};
    if (inUcs) expected.push_back("Length in CCS");
    expected.insert(expected.end(), {"Angle in XY Plane", "Delta X", "Delta Y", "Delta Z"});
    EXPECT_EQ(labelsOf(lines), expected);
    const OdGePoint3d ws = inUcs ? toUcs(s) : s, we = inUcs ? toUcs(e) : e;
    EXPECT_NEAR(infoLine(lines, "Length")->value.toDouble(), 5.0, 1e-12);
    EXPECT_NEAR(infoLine(lines, "Delta X")->value.toDouble(), we.x - ws.x, 1e-9);
    EXPECT_NEAR(infoLine(lines, "Delta Y")->value.toDouble(), we.y - ws.y, 1e-9);
    double expectedAngle = std::atan2(we.y - ws.y, we.x - ws.x);
    if (expectedAngle < 0) expectedAngle += 2 * OdaPI;
    EXPECT_NEAR(infoLine(lines, "Angle in XY Plane")->value.toDouble(), expectedAngle, 1e-9);
    EXPECT_EQ(infoLine(lines, "from point")->kind, CZqPrintInfoContext::kPoint);
    EXPECT_NEAR(infoLine(lines, "from point")->value.toList()[0].toDouble(), ws.x, 1e-9);
    if (inUcs) {
      EXPECT_NEAR(infoLine(lines, "Length in CCS")->value.toDouble(), 5.0, 1e-9);
    }
  }
  // A vertical line has no angle in the XY plane.
  EXPECT_EQ(infoLine(info(addLine({5, 5, 0}, {5, 5, 10})), "Angle in XY Plane")->value.toDouble(), 0.0);
}

}  // namespace
