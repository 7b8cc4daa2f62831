// Points, rays and construction lines: the second point that turns the
// direction, and their information lines.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

class PointRayXlineTest : public ZqDrawingTest {};

// --- Points ------------------------------------------------------------------------

TEST_F(PointRayXlineTest, PointInformationGivesTheXAxisAngleInTheWorkingPlane) {
  useRotatedUcs();  // X at 30 degrees about Z
  OdDbPointPtr p = OdDbPoint::createObject();
  p->setPosition(OdGePoint3d(1, 2, 3));
  p->setEcsRotation(OdaPI / 2);  // the point's X axis along world Y
  const OdDbObjectId id = addToModelSpace(p.get());
  p.release();
  for (bool inUcs : {false, true}) {
    const auto lines = info(id, inUcs);
    const std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype", "Position", "Angle of X Axis"};
    EXPECT_EQ(labelsOf(lines), expected);
    EXPECT_NEAR(infoLine(lines, "Angle of X Axis")->value.toDouble(), (inUcs ? 60.0 : 90.0) * OdaPI / 180, 1e-12);
  }
}

// --- Rays and construction lines ----------------------------------------------------------

template <class T>
class RayLikeTest : public PointRayXlineTest {
 protected:
  OdDbObjectId add(const OdGePoint3d& base, const OdGeVector3d& dir) {
    OdSmartPtr<T> t = T::createObject();
    t->setBasePoint(base);
    t->setUnitDir(dir);
    return this->addToModelSpace(t.get());
  }
  OdSmartPtr<T> open(const OdDbObjectId& id) { return T::cast(id.openObject().get()); }
};

using RayLikeTypes = ::testing::Types<OdDbRay, OdDbXline>;
TYPED_TEST_SUITE(RayLikeTest, RayLikeTypes);

TYPED_TEST(RayLikeTest, MovingTheSecondPointTurnsTheDirectionAboutTheBasePoint) {
  this->useRotatedUcs();
  struct Case { int axis; double value; } cases[] = {{0, 10}, {1, -3}, {2, 0.5}};
  const char* names[] = {"Second point X", "Second point Y", "Second point Z"};
  for (const auto& c : cases) {
    const OdGePoint3d base(2, 3, 4);
    const OdGeVector3d dir(0, 1, 0);
    const OdDbObjectId id = this->add(base, dir);
    ASSERT_EQ(this->set(id, "Geometry", names[c.axis], CZqVariant(c.value, true)), 5100);
    // In the UCS: the second point gets the new coordinate; the direction is
    // from the base point to it, made unit length.
    OdGePoint3d second = this->toUcs(base + dir);
    second[c.axis] = c.value;
    const OdGeVector3d expected = (second - this->toUcs(base)).normal();
    auto t = this->open(id);
    EXPECT_TRUE(this->toUcs(t->unitDir()).isEqualTo(expected, OdGeTol(1e-9))) << names[c.axis];
    EXPECT_NEAR(t->unitDir().length(), 1, 1e-12);
    EXPECT_EQ(t->basePoint(), base);
  }
}

TYPED_TEST(RayLikeTest, SecondPointOnTheBasePointLeavesAZeroDirection) {
  const OdDbObjectId id = this->add({5, 2, 0}, {1, 0, 0});
  EXPECT_EQ(this->set(id, "Geometry", "Second point X", CZqVariant(5.0, true)), 5100);
  EXPECT_TRUE(this->open(id)->unitDir().isZeroLength(OdGeTol(1e-300)));
}

TYPED_TEST(RayLikeTest, InformationLines) {
  this->useRotatedUcs();
  const OdGeVector3d dir = OdGeVector3d(0, 1, 0);  // 90 degrees, 60 in the rotated UCS
  const OdDbObjectId id = this->add({1, 2, 3}, dir);
  const bool ray = std::is_same_v<TypeParam, OdDbRay>;
  for (bool inUcs : {false, true}) {
    const auto lines = this->info(id, inUcs);
    const std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype",
                                        ray ? "Base point" : "base point", ray ? "Unit direction" : "unit direction",
                                        "Angle in XY Plane"};
    EXPECT_EQ(this->labelsOf(lines), expected);
    EXPECT_NEAR(this->infoLine(lines, "Angle in XY Plane")->value.toDouble(), (inUcs ? 60.0 : 90.0) * OdaPI / 180, 1e-12);
  }
  // A direction along Z has no angle in the XY plane.
  const OdDbObjectId up = this->add({0, 0, 0}, {0, 0, 1});
  EXPECT_EQ(this->infoLine(this->info(up), "Angle in XY Plane")->value.toDouble(), 0.0);
}

}  // namespace
