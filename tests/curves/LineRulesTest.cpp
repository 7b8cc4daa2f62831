// Rules of the line that need a drawing made for them: the 1e-9 degree
// nudge of the whole-degree snap, and the measures in a UCS tilted out of
// the world's XY plane.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

class LineRulesTest : public ZqDrawingTest {
 protected:
  // A UCS turned 30 degrees about the world X axis and moved.
  void useTiltedUcs() {
    const double a = 30.0 * OdaPI / 180.0;
    db->setUCS(OdGePoint3d(2, 3, -1), OdGeVector3d::kXAxis, OdGeVector3d(0, std::cos(a), std::sin(a)));
  }
};

// Integer end points (unchanged by the rounding to the linear precision)
// whose angle lies just below a half degree: by less than 1e-9 degree the
// snap takes it up, by more it takes it down. The angles, computed in
// double precision as the getter does: 5.49999999944 and 1.49999999785.
TEST_F(LineRulesTest, WholeDegreeSnapNudgesHalfDegreesUpByOneBillionth) {
  db->setLUPREC(4);
  db->setAUPREC(0);
  const struct { OdGePoint3d end; double shownDegrees; } cases[] = {
      {{231989, 22338, 0}, 6},  // 0.56e-9 degree below 5.5
      {{134347, 3518, 0}, 1},   // 2.2e-9 degree below 1.5
  };
  for (const auto& c : cases) {
    const double exact = std::atan2(c.end.y, c.end.x) * 180 / OdaPI;
    ASSERT_LT(exact, std::floor(exact) + 0.5);  // below the half degree, as the case says
    const OdDbObjectId id = addLine({0, 0, 0}, c.end);
    EXPECT_DOUBLE_EQ(get(id, "Geometry", "Angle").GetDouble(), c.shownDegrees * OdaPI / 180) << exact;
  }
}

// Delta Z is the difference along the UCS Z axis, which a tilted UCS turns
// away from the world's; "Length in CCS" is the length in the UCS XY plane.
TEST_F(LineRulesTest, DeltasAndLengthInCcsInATiltedUcs) {
  useTiltedUcs();
  const OdGePoint3d s(1, 2, 3), e(4, -2, 15);
  const OdDbObjectId id = addLine(s, e);
  // The UCS axes: X (1,0,0), Y (0, cos 30, sin 30), Z (0, -sin 30, cos 30).
  const double c30 = std::sqrt(3.0) / 2, s30 = 0.5;
  const OdGeVector3d d = e - s;  // (3, -4, 12)
  const double dx = d.x, dy = d.y * c30 + d.z * s30, dz = -d.y * s30 + d.z * c30;
  EXPECT_NEAR(get(id, "Geometry", "Delta X").GetDouble(), dx, 1e-9);
  EXPECT_NEAR(get(id, "Geometry", "Delta Y").GetDouble(), dy, 1e-9);
  EXPECT_NEAR(get(id, "Geometry", "Delta Z").GetDouble(), dz, 1e-9);
  EXPECT_GT(std::fabs(dz - d.z), 0.3);  // not the world's delta
  EXPECT_NEAR(get(id, "Geometry", "Length").GetDouble(), 13, 1e-12);

  const auto lines = info(id, true);
  EXPECT_NEAR(infoLine(lines, "Length")->value.toDouble(), 13, 1e-9);
  EXPECT_NEAR(infoLine(lines, "Length in CCS")->value.toDouble(), std::hypot(dx, dy), 1e-9);
  EXPECT_NEAR(infoLine(lines, "Delta Z")->value.toDouble(), dz, 1e-9);
  // In the world the line has no "Length in CCS" and its own Delta Z.
  const auto world = info(id, false);
  EXPECT_EQ(infoLine(world, "Length in CCS"), nullptr);
  EXPECT_NEAR(infoLine(world, "Delta Z")->value.toDouble(), d.z, 1e-12);
}

}  // namespace
