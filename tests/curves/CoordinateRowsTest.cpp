// The rows every provider builds the same way: points shown and edited in
// the current UCS (rotated and shifted), and doubles stored as given.
#include "ZqTestSupport.h"

namespace {

OdDbEntityPtr line() {
  OdDbLinePtr l = OdDbLine::createObject();
  l->setStartPoint(OdGePoint3d(12, 7, -1));
  l->setEndPoint(OdGePoint3d(-3, 4.5, 6));
  return l;
}
OdDbEntityPtr circle() {
  OdDbCirclePtr c = OdDbCircle::createObject();
  c->setCenter(OdGePoint3d(4, -2, 1));
  c->setRadius(3);
  c->setNormal(OdGeVector3d(1, 0, 1).normal());
  return c;
}
OdDbEntityPtr arc() {
  OdDbArcPtr a = OdDbArc::createObject();
  a->setCenter(OdGePoint3d(-1, 3, 2));
  a->setRadius(2);
  a->setStartAngle(1);
  a->setEndAngle(4);
  a->setNormal(OdGeVector3d(0, 1, 1).normal());
  return a;
}
OdDbEntityPtr ellipse() {
  OdDbEllipsePtr e = OdDbEllipse::createObject();
  e->set(OdGePoint3d(3, 1, -2), OdGeVector3d(1, 0, 1).normal(), OdGeVector3d(0, 4, 0), 0.5, 0.5, 2.5);
  return e;
}
OdDbEntityPtr point() {
  OdDbPointPtr p = OdDbPoint::createObject();
  p->setPosition(OdGePoint3d(7, 1, -2));
  return p;
}
template <class T>
OdDbEntityPtr rayLike() {
  OdSmartPtr<T> t = T::createObject();
  t->setBasePoint(OdGePoint3d(2, -1, 4));
  t->setUnitDir(OdGeVector3d(1, 2, 2).normal());
  return t;
}
OdDbEntityPtr polyline() {
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  pl->addVertexAt(0, OdGePoint2d(0, 0));
  pl->addVertexAt(1, OdGePoint2d(1, 0));
  pl->addVertexAt(2, OdGePoint2d(2, 1));
  pl->setNormal(OdGeVector3d(1, 0, 0));  // elevation is in object coordinates: no conversion
  return pl;
}

// What an entity is made of, as points: the first is the one the rows show
// (a vector, for directions, as the point at its tip); editing its rows
// moves no other.
using State = std::vector<OdGePoint3d>;
template <class T>
T* as(OdDbEntity* e) {
  return static_cast<T*>(e);
}
const OdGePoint3d O = OdGePoint3d::kOrigin;

struct UcsCase {
  const char* name;
  OdDbEntityPtr (*make)();
  const char* row;  // the row name before " X", " Y", " Z"
  bool vector;      // shown as a direction
  bool editable;    // edited here (the second point of rays has a test of its own)
  State (*state)(OdDbEntity*);
};

class UcsRowsTest : public ZqDrawingTest, public ::testing::WithParamInterface<UcsCase> {};

TEST_P(UcsRowsTest, PointsAreShownAndEditedInTheUcs) {
  const UcsCase& c = GetParam();
  useRotatedUcs();
  OdDbEntityPtr entity = c.make();
  const State before = c.state(entity.get());
  const OdDbObjectId id = addToModelSpace(entity.get());
  entity.release();
  OdGePoint3d shown = c.vector ? O + toUcs(before[0] - O) : toUcs(before[0]);
  const std::string axes[] = {" X", " Y", " Z"};
  for (int axis = 0; axis < 3; ++axis) {
    const CZqVariant v = get(id, "Geometry", (c.row + axes[axis]).c_str());
    ASSERT_EQ(v.GetType(), CZqVariant::kVtDouble) << axes[axis];
    EXPECT_TRUE(v.IsUnits());
    EXPECT_NEAR(v.GetDouble(), shown[axis], 1e-9) << axes[axis];
  }
  if (!c.editable) return;
  for (int axis = 0; axis < 3; ++axis) {
    const std::string row = c.row + axes[axis];
    SCOPED_TRACE(row);
    // The value shown, set again: nothing is written.
    id.openObject(OdDb::kForWrite)->setModified(false);
    EXPECT_EQ(set(id, "Geometry", row.c_str(), CZqVariant(get(id, "Geometry", row.c_str()).GetDouble(), true)), 5100);
    EXPECT_FALSE(id.openObject()->isModified());
    shown[axis] = 20.0 - 7.5 * axis;
    ASSERT_EQ(set(id, "Geometry", row.c_str(), CZqVariant(shown[axis], true)), 5100);
    EXPECT_TRUE(id.openObject()->isModified());
    OdDbObjectPtr after = id.openObject(OdDb::kForWrite);
    const State now = c.state(static_cast<OdDbEntity*>(after.get()));
    EXPECT_TRUE(toUcs(now[0]).isEqualTo(shown, OdGeTol(1e-9)));
    for (size_t i = 1; i < now.size(); ++i) EXPECT_TRUE(now[i].isEqualTo(before[i], OdGeTol(1e-12))) << "point " << i;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, UcsRowsTest,
    ::testing::Values(
        UcsCase{"LineStart", line, "Start", false, true,
                [](OdDbEntity* e) { return State{as<OdDbLine>(e)->startPoint(), as<OdDbLine>(e)->endPoint()}; }},
        UcsCase{"LineEnd", line, "End", false, true,
                [](OdDbEntity* e) { return State{as<OdDbLine>(e)->endPoint(), as<OdDbLine>(e)->startPoint()}; }},
        UcsCase{"CircleCenter", circle, "Center", false, true,
                [](OdDbEntity* e) {
                  auto* c = as<OdDbCircle>(e);
                  return State{c->center(), O + c->normal(), OdGePoint3d(c->radius(), 0, 0)};
                }},
        UcsCase{"CircleNormal", circle, "Normal", true, false,
                [](OdDbEntity* e) { return State{O + as<OdDbCircle>(e)->normal()}; }},
        UcsCase{"ArcCenter", arc, "Center", false, true,
                [](OdDbEntity* e) {
                  auto* a = as<OdDbArc>(e);
                  return State{a->center(), O + a->normal(), OdGePoint3d(a->radius(), a->startAngle(), a->endAngle())};
                }},
        UcsCase{"ArcNormal", arc, "Normal", true, false, [](OdDbEntity* e) { return State{O + as<OdDbArc>(e)->normal()}; }},
        UcsCase{"EllipseCenter", ellipse, "Center", false, true,
                [](OdDbEntity* e) {
                  auto* el = as<OdDbEllipse>(e);
                  return State{el->center(), O + el->majorAxis(), O + el->normal(),
                               OdGePoint3d(el->radiusRatio(), el->startParam(), el->endParam())};
                }},
        UcsCase{"EllipseMajorAxis", ellipse, "Major axis", true, false,
                [](OdDbEntity* e) { return State{O + as<OdDbEllipse>(e)->majorAxis()}; }},
        UcsCase{"PointPosition", point, "Position", false, true,
                [](OdDbEntity* e) { return State{as<OdDbPoint>(e)->position()}; }},
        UcsCase{"RayBase", rayLike<OdDbRay>, "Base point", false, true,
                [](OdDbEntity* e) { return State{as<OdDbRay>(e)->basePoint(), O + as<OdDbRay>(e)->unitDir()}; }},
        UcsCase{"RaySecond", rayLike<OdDbRay>, "Second point", false, false,
                [](OdDbEntity* e) { return State{as<OdDbRay>(e)->basePoint() + as<OdDbRay>(e)->unitDir()}; }},
        UcsCase{"RayDirection", rayLike<OdDbRay>, "Direction vector", true, false,
                [](OdDbEntity* e) { return State{O + as<OdDbRay>(e)->unitDir()}; }},
        UcsCase{"XlineBase", rayLike<OdDbXline>, "Base point", false, true,
                [](OdDbEntity* e) { return State{as<OdDbXline>(e)->basePoint(), O + as<OdDbXline>(e)->unitDir()}; }},
        UcsCase{"XlineDirection", rayLike<OdDbXline>, "Direction vector", true, false,
                [](OdDbEntity* e) { return State{O + as<OdDbXline>(e)->unitDir()}; }}),
    [](const auto& info) { return std::string(info.param.name); });

struct DoubleCase {
  const char* name;
  OdDbEntityPtr (*make)();
  const char* category;
  const char* row;
  double (*stored)(OdDbEntity*);
};

class DoubleRowsTest : public ZqDrawingTest, public ::testing::WithParamInterface<DoubleCase> {};

TEST_P(DoubleRowsTest, AnyDoubleIsStoredAsGivenIncludingNegative) {
  const DoubleCase& c = GetParam();
  useRotatedUcs();
  OdDbEntityPtr entity = c.make();
  const OdDbObjectId id = addToModelSpace(entity.get());
  entity.release();
  for (double v : {-2.5, 0.0, 3.25}) {
    EXPECT_EQ(set(id, c.category, c.row, CZqVariant(v, true)), 5100);
    OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
    EXPECT_EQ(c.stored(static_cast<OdDbEntity*>(obj.get())), v);
    obj.release();
    EXPECT_EQ(get(id, c.category, c.row), CZqVariant(v, true));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DoubleRowsTest,
    ::testing::Values(
        DoubleCase{"LineThickness", line, "General", "Thickness", [](OdDbEntity* e) { return as<OdDbLine>(e)->thickness(); }},
        DoubleCase{"CircleThickness", circle, "General", "Thickness",
                   [](OdDbEntity* e) { return as<OdDbCircle>(e)->thickness(); }},
        DoubleCase{"PointThickness", point, "General", "Thickness", [](OdDbEntity* e) { return as<OdDbPoint>(e)->thickness(); }},
        DoubleCase{"PolylineThickness", polyline, "General", "Thickness",
                   [](OdDbEntity* e) { return as<OdDbPolyline>(e)->thickness(); }},
        DoubleCase{"PolylineElevation", polyline, "Geometry", "Elevation",
                   [](OdDbEntity* e) { return as<OdDbPolyline>(e)->elevation(); }},
        DoubleCase{"PolylineGlobalWidth", polyline, "Geometry", "Global width",
                   [](OdDbEntity* e) { return as<OdDbPolyline>(e)->getStartWidthAt(1); }}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
