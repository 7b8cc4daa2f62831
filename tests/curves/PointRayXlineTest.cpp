// Points, rays and construction lines: positions, base points, second
// points and directions in the current UCS, and their information lines.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

class PointRayXlineTest : public ZqDrawingTest {
 protected:
  OdGePoint3d toUcs(const OdGePoint3d& p) const {
    const OdGeVector3d x = db->getUCSXDIR(), y = db->getUCSYDIR(), z = x.crossProduct(y);
    const OdGeVector3d d = p - db->getUCSORG();
    return {d.dotProduct(x), d.dotProduct(y), d.dotProduct(z)};
  }
  OdGeVector3d toUcs(const OdGeVector3d& v) const { return toUcs(OdGePoint3d::kOrigin + v) - toUcs(OdGePoint3d::kOrigin); }
  static std::vector<QString> labelsOf(const std::vector<CZqPrintInfoContext::Line>& lines) {
    std::vector<QString> out;
    for (const auto& l : lines) out.push_back(l.label);
    return out;
  }
  static double angleOf(double x, double y) {
    const double a = std::atan2(y, x);
    return a < 0 ? a + 2 * OdaPI : a;
  }
};

// --- Points ------------------------------------------------------------------------

TEST_F(PointRayXlineTest, PointPositionInTheUcs) {
  useRotatedUcs();
  OdDbPointPtr p = OdDbPoint::createObject();
  p->setPosition(OdGePoint3d(7, 1, -2));
  const OdDbObjectId id = addToModelSpace(p.get());
  p.release();
  const OdGePoint3d u = toUcs(OdGePoint3d(7, 1, -2));
  const char* names[] = {"Position X", "Position Y", "Position Z"};
  for (int axis = 0; axis < 3; ++axis) EXPECT_NEAR(get(id, "Geometry", names[axis]).GetDouble(), u[axis], 1e-9);
  ASSERT_EQ(set(id, "Geometry", "Position Y", CZqVariant(-8.0, true)), 5100);
  OdDbPointPtr after = OdDbPoint::cast(id.openObject().get());
  EXPECT_NEAR(toUcs(after->position()).y, -8, 1e-9);
  EXPECT_NEAR(toUcs(after->position()).x, u.x, 1e-9);
  EXPECT_EQ(set(id, "General", "Thickness", CZqVariant(-1.5, true)), 5100);
  EXPECT_EQ(OdDbPoint::cast(id.openObject().get())->thickness(), -1.5);
  EXPECT_EQ(set(id, "General", "Thickness", CZqVariant("1")), -5001);
}

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

TYPED_TEST(RayLikeTest, RowsShowBaseSecondPointAndDirectionInTheUcs) {
  this->useRotatedUcs();
  const OdGePoint3d base(2, -1, 4);
  const OdGeVector3d dir = OdGeVector3d(1, 2, 2).normal();
  const OdDbObjectId id = this->add(base, dir);
  const OdGePoint3d b = this->toUcs(base), s = this->toUcs(base + dir);
  const OdGeVector3d d = this->toUcs(dir);
  const char axes[] = {'X', 'Y', 'Z'};
  for (int a = 0; a < 3; ++a) {
    const std::string suffix(1, axes[a]);
    EXPECT_NEAR(this->get(id, "Geometry", ("Base point " + suffix).c_str()).GetDouble(), b[a], 1e-9);
    EXPECT_NEAR(this->get(id, "Geometry", ("Second point " + suffix).c_str()).GetDouble(), s[a], 1e-9);
    EXPECT_NEAR(this->get(id, "Geometry", ("Direction vector " + suffix).c_str()).GetDouble(), d[a], 1e-9);
  }
}

TYPED_TEST(RayLikeTest, MovingTheBasePointKeepsTheDirection) {
  this->useRotatedUcs();
  const OdGeVector3d dir = OdGeVector3d(3, -4, 0).normal();
  const OdDbObjectId id = this->add({1, 1, 1}, dir);
  const double secondBefore = this->get(id, "Geometry", "Second point X").GetDouble();
  const double baseBefore = this->get(id, "Geometry", "Base point X").GetDouble();
  ASSERT_EQ(this->set(id, "Geometry", "Base point X", CZqVariant(baseBefore + 6.5, true)), 5100);
  EXPECT_TRUE(this->open(id)->unitDir().isEqualTo(dir, OdGeTol(1e-12)));
  EXPECT_NEAR(this->get(id, "Geometry", "Second point X").GetDouble(), secondBefore + 6.5, 1e-9);
}

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

TYPED_TEST(RayLikeTest, DirectionRowsAreReadOnlyAndRefuseEdits) {
  const OdDbObjectId id = this->add({0, 0, 0}, {0, 0, 1});
  OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
  auto rows = zqRowsOf(obj.get());
  for (const char* name : {"Direction vector X", "Direction vector Y", "Direction vector Z"}) {
    CZqPropertyDescription* d = zqRow(rows.get(), "Geometry", name);
    ASSERT_TRUE(d);
    EXPECT_TRUE(d->IsReadOnly(obj.get()));
    EXPECT_EQ(d->SetValue(obj.get(), CZqVariant(1.0, true), {}), -5001);
  }
  for (const char* name : {"Base point X", "Second point Y"})
    EXPECT_EQ(zqRow(rows.get(), "Geometry", name)->SetValue(obj.get(), CZqVariant("1"), {}), -5001) << name;
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

TEST_F(PointRayXlineTest, DisplayNamesAndTheConstructionLineKey) {
  struct Case { OdRxClass* cls; const char* name; } cases[] = {
      {OdDbPoint::desc(), "Point"}, {OdDbRay::desc(), "Ray"}, {OdDbXline::desc(), "ILine"},
      {OdDbCircle::desc(), "Circle"}, {OdDbPolyline::desc(), "PolyLine"}};
  for (const Case& c : cases) {
    OdDbObjectPtr obj = OdDbObject::cast(c.cls->create().get());
    ASSERT_TRUE(obj);
    CZqPropertyBase* pe = zqProviderFor(obj.get());
    ASSERT_TRUE(pe);
    EXPECT_EQ(pe->GetClassName(obj.get()).qstring(), c.name);
    EXPECT_EQ(pe->GetClassKey().qstring(), c.cls == OdDbXline::desc() ? "ILINE" : "");
  }
}

}  // namespace
