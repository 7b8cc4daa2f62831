// The curve entities of the platform: lightweight and 2D polylines with
// bulges, circles, ellipses, splines, points, rays and construction lines,
// checked against geometry computed independently.
#include "ZqTestSupport.h"
#include "ZqReferenceGeometry.h"
#include <cmath>

namespace {

class CurveEntitiesTest : public ::testing::Test {
 protected:
  void SetUp() override { odDbInitialize(); }
};

OdDbPolylinePtr makePolyline(const std::vector<ZqRefVertex>& v, bool closed) {
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  for (unsigned i = 0; i < v.size(); ++i) pl->addVertexAt(i, OdGePoint2d(v[i].x, v[i].y), v[i].bulge);
  pl->setClosed(closed);
  return pl;
}

// --- Bulged segments ------------------------------------------------------------

struct ArcCase {
  const char* name;
  OdGePoint2d a, b;
  double bulge;
};

class BulgeArcTest : public ::testing::TestWithParam<ArcCase> {};

TEST_P(BulgeArcTest, ArcRunsFromStartToEndThroughTheSagittaPoint) {
  const ArcCase& c = GetParam();
  OdGeCircArc2d arc;
  arc.set(c.a, c.b, c.bulge);
  EXPECT_NEAR(arc.startPoint().distanceTo(c.a), 0, 1e-9);
  EXPECT_NEAR(arc.endPoint().distanceTo(c.b), 0, 1e-9);
  EXPECT_NEAR(arc.endAng() - arc.startAng(), 4 * std::atan(std::fabs(c.bulge)), 1e-12);
  EXPECT_EQ(arc.isClockWise(), c.bulge < 0);
  const auto ref = zqRefSegmentPoints(c.a, c.b, c.bulge, 2);
  const OdGePoint2d mid = arc.evalPoint((arc.startAng() + arc.endAng()) / 2);
  EXPECT_NEAR(mid.distanceTo(ref[1]), 0, 1e-9);
  EXPECT_NEAR(arc.radius(), arc.center().distanceTo(c.a), 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Arcs, BulgeArcTest,
                         ::testing::Values(ArcCase{"half_ccw", {1, 0}, {-1, 0}, 1.0},
                                           ArcCase{"half_cw", {1, 0}, {-1, 0}, -1.0},
                                           ArcCase{"shallow", {0, 0}, {10, 0}, 0.1},
                                           ArcCase{"shallow_cw", {0, 0}, {10, 3}, -0.25},
                                           ArcCase{"major_arc", {2, 1}, {-3, 4}, 2.5},
                                           ArcCase{"major_arc_cw", {2, 1}, {-3, 4}, -3.0}),
                         [](const auto& info) { return std::string(info.param.name); });

// --- Segment kinds ---------------------------------------------------------------------

TEST_F(CurveEntitiesTest, SegmentKindsOfEveryVertex) {
  struct Case {
    std::vector<ZqRefVertex> v;
    bool closed;
    std::vector<OdDbPolyline::SegType> kinds;  // for indices 0..n (n: past the end)
  } cases[] = {
      {{{0, 0, 0}, {1, 0, 0.5}, {2, 0, 0}}, false, {OdDbPolyline::kLine, OdDbPolyline::kArc, OdDbPolyline::kPoint, OdDbPolyline::kEmpty}},
      {{{0, 0, 0}, {1, 0, 0.5}, {2, 0, 0}}, true, {OdDbPolyline::kLine, OdDbPolyline::kArc, OdDbPolyline::kLine, OdDbPolyline::kEmpty}},
      {{{3, 3, 0.7}}, false, {OdDbPolyline::kPoint, OdDbPolyline::kEmpty}},
      {{{1, 1, 0.5}, {1, 1, 0}, {2, 2, 0}}, false, {OdDbPolyline::kCoincident, OdDbPolyline::kLine, OdDbPolyline::kPoint, OdDbPolyline::kEmpty}},
      {{}, false, {OdDbPolyline::kEmpty}},
  };
  for (const Case& c : cases) {
    OdDbPolylinePtr pl = makePolyline(c.v, c.closed);
    for (unsigned i = 0; i < c.kinds.size(); ++i) EXPECT_EQ(pl->segType(i), c.kinds[i]) << "vertex " << i;
  }
}

TEST_F(CurveEntitiesTest, ArcSegmentInSpaceMatchesThePlaneArc) {
  OdDbPolylinePtr pl = makePolyline({{1, 2, -0.6}, {4, -1, 0.8}, {0, -3, 0}}, false);
  const OdGeVector3d normal = OdGeVector3d(1, 2, 3).normal();
  pl->setNormal(normal);
  pl->setElevation(2.5);
  for (unsigned i = 0; i < 2; ++i) {
    OdGeCircArc3d arc;
    pl->getArcSegAt(i, arc);
    OdGePoint3d start, end, mid;
    pl->getPointAt(i, start);
    pl->getPointAt(i + 1, end);
    pl->getPointAtParam(i + 0.5, mid);
    EXPECT_NEAR(arc.startPoint().distanceTo(start), 0, 1e-9);
    EXPECT_NEAR(arc.endPoint().distanceTo(end), 0, 1e-9);
    EXPECT_NEAR(arc.evalPoint((arc.startAng() + arc.endAng()) / 2).distanceTo(mid), 0, 1e-9);
    EXPECT_TRUE(arc.normal().isParallelTo(normal));
  }
  EXPECT_THROW({ OdGeLineSeg2d s; pl->getLineSegAt(0, s); }, OdError);
  EXPECT_THROW({ OdGePoint2d p; pl->getPointAt(3, p); }, OdError);
}

TEST_F(CurveEntitiesTest, VerticesAreObjectCoordinatesOfTheNormalAtTheElevation) {
  OdDbPolylinePtr pl = makePolyline({{3, -2, 0}}, false);
  const OdGeVector3d n(0, -1, 1);
  pl->setNormal(n);
  pl->setElevation(4);
  OdGePoint3d p;
  pl->getPointAt(0, p);
  // The arbitrary axis algorithm, written out: |nx|, |ny| < 1/64 is false here,
  // so X = Wz x N.
  const OdGeVector3d z = n.normal(), x = OdGeVector3d(0, 0, 1).crossProduct(z).normal(), y = z.crossProduct(x);
  const OdGePoint3d expected = OdGePoint3d::kOrigin + x * 3 + y * -2 + z * 4;
  EXPECT_NEAR(p.distanceTo(expected), 0, 1e-12);
}

TEST_F(CurveEntitiesTest, ConstantWidthIsEveryVertexWidthUntilOneDiffers) {
  OdDbPolylinePtr pl = makePolyline({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, false);
  pl->setConstantWidth(1.5);
  for (unsigned i = 0; i < 3; ++i) {
    double s = 0, e = 0;
    pl->getWidthsAt(i, s, e);
    EXPECT_EQ(s, 1.5);
    EXPECT_EQ(e, 1.5);
  }
  pl->setWidthsAt(1, 1.5, 1.5);
  EXPECT_EQ(pl->getConstantWidth(), 1.5);
  pl->setWidthsAt(1, 2.0, 1.5);
  EXPECT_EQ(pl->getConstantWidth(), 0.0);
  EXPECT_EQ(pl->getStartWidthAt(0), 1.5);
  pl->addVertexAt(3, OdGePoint2d(3, 0));
  EXPECT_EQ(pl->getStartWidthAt(3), 0.0);  // the constant width is gone
}

// --- Circles, ellipses, splines -------------------------------------------------------

TEST_F(CurveEntitiesTest, CircleMeasuresAndPoints) {
  OdDbCirclePtr c = OdDbCircle::createObject();
  c->setCenter(OdGePoint3d(1, 2, 3));
  c->setRadius(2.5);
  c->setNormal(OdGeVector3d(0, 1, 0));
  double area = 0, half = 0;
  c->getArea(area);
  c->getDistAtParam(OdaPI, half);
  EXPECT_NEAR(area, OdaPI * 6.25, 1e-12);
  EXPECT_NEAR(half, OdaPI * 2.5, 1e-12);
  for (double t : {0.0, 1.0, 2.5, 4.0}) {
    OdGePoint3d p;
    c->getPointAtParam(t, p);
    EXPECT_NEAR(p.distanceTo(c->center()), 2.5, 1e-12);
    EXPECT_NEAR((p - c->center()).dotProduct(c->normal()), 0, 1e-12);
  }
  EXPECT_THROW(c->setRadius(0), OdError);
  EXPECT_THROW(c->setRadius(-1), OdError);
  EXPECT_EQ(c->radius(), 2.5);
}

TEST_F(CurveEntitiesTest, ArcSweepsCounterClockwiseAcrossZero) {
  OdDbArcPtr a = OdDbArc::createObject();
  a->setRadius(2);
  a->setStartAngle(-OdaPI / 3);       // 300 degrees
  a->setEndAngle(Oda2PI + OdaPI / 6);  // 30 degrees
  EXPECT_NEAR(a->startAngle(), 5 * OdaPI / 3, 1e-12);
  EXPECT_NEAR(a->totalAngle(), OdaPI / 2, 1e-12);
  double end = 0, dist = 0, area = 0;
  ASSERT_EQ(a->getEndParam(end), eOk);
  ASSERT_EQ(a->getDistAtParam(end, dist), eOk);
  EXPECT_NEAR(dist, OdaPI, 1e-12);
  ASSERT_EQ(a->getArea(area), eOk);
  EXPECT_NEAR(area, 2 * (OdaPI / 2 - 1), 1e-12);  // r^2/2 (sweep - sin sweep)
  OdGePoint3d p;
  a->getEndPoint(p);
  EXPECT_TRUE(p.isEqualTo(OdGePoint3d(std::sqrt(3.0), 1, 0), OdGeTol(1e-12)));
  // Equal angles make a full turn; bad values change nothing.
  a->setEndAngle(a->startAngle());
  EXPECT_NEAR(a->totalAngle(), Oda2PI, 1e-12);
  EXPECT_THROW(a->setRadius(0), OdError);
  EXPECT_THROW(a->setStartAngle(NAN), OdError);
  EXPECT_EQ(a->radius(), 2);
  EXPECT_NEAR(a->startAngle(), 5 * OdaPI / 3, 1e-12);
}

TEST_F(CurveEntitiesTest, EllipseCircumferenceAndArea) {
  struct Case { double a, ratio; } cases[] = {{5, 1}, {5, 0.6}, {3, 0.2}, {10, 0.95}};
  for (const Case& c : cases) {
    OdDbEllipsePtr e = OdDbEllipse::createObject();
    e->set(OdGePoint3d(1, 1, 0), OdGeVector3d::kZAxis, OdGeVector3d(0, c.a, 0), c.ratio);
    const double a = c.a, b = c.a * c.ratio;
    // Ramanujan's second approximation (error far below the tolerance here).
    const double h = (a - b) * (a - b) / ((a + b) * (a + b));
    const double perimeter = OdaPI * (a + b) * (1 + 3 * h / (10 + std::sqrt(4 - 3 * h)));
    double end = 0, dist = 0, area = 0;
    e->getEndParam(end);
    e->getDistAtParam(end, dist);
    e->getArea(area);
    EXPECT_NEAR(dist, perimeter, 1e-6 * perimeter);
    EXPECT_NEAR(area, OdaPI * a * b, 1e-9);
    EXPECT_TRUE(e->isClosed());
    OdGePoint3d p;
    e->getPointAtParam(OdaPI / 2, p);  // the end of the minor axis, left of the major one
    EXPECT_NEAR(p.distanceTo(OdGePoint3d(1 - b, 1, 0)), 0, 1e-12);
  }
}

TEST_F(CurveEntitiesTest, EllipticalArcAnglesAndChordArea) {
  OdDbEllipsePtr e = OdDbEllipse::createObject();
  e->set(OdGePoint3d::kOrigin, OdGeVector3d::kZAxis, OdGeVector3d(4, 0, 0), 0.5, 0, OdaPI / 2);
  EXPECT_FALSE(e->isClosed());
  OdGePoint3d s, t;
  e->getStartPoint(s);
  e->getEndPoint(t);
  EXPECT_NEAR(s.distanceTo(OdGePoint3d(4, 0, 0)), 0, 1e-12);
  EXPECT_NEAR(t.distanceTo(OdGePoint3d(0, 2, 0)), 0, 1e-12);
  double area = 0;
  e->getArea(area);
  EXPECT_NEAR(area, OdaPI * 4 * 2 / 4 - 4 * 2 / 2.0, 1e-9);  // quarter ellipse minus the triangle
}

TEST_F(CurveEntitiesTest, SplineThroughFitPointsOfACircle) {
  OdGePoint3dArray fit;
  const int n = 13;
  for (int i = 0; i <= n; ++i) fit.append(OdGePoint3d(3 * std::cos(2 * OdaPI * i / n), 3 * std::sin(2 * OdaPI * i / n), 0));
  OdDbSplinePtr s = OdDbSpline::createObject();
  s->setFitData(fit, 3, 0.0);
  EXPECT_EQ(s->degree(), 3);
  EXPECT_TRUE(s->isClosed());
  double lo = 0, hi = 0;
  s->getStartParam(lo);
  s->getEndParam(hi);
  // Every fit point lies on the curve, and the curve stays near the circle.
  std::vector<OdGePoint3d> samples;
  for (int i = 0; i <= 20000; ++i) {
    OdGePoint3d p;
    s->getPointAtParam(lo + (hi - lo) * i / 20000, p);
    samples.push_back(p);
    EXPECT_NEAR(p.distanceTo(OdGePoint3d::kOrigin), 3, 0.02);
  }
  for (const OdGePoint3d& f : fit) {
    double best = 1e9;
    for (const OdGePoint3d& p : samples) best = std::min(best, p.distanceTo(f));
    EXPECT_LT(best, 2e-3);
  }
  double length = 0, area = 0;
  s->getDistAtParam(hi, length);
  s->getArea(area);
  EXPECT_NEAR(length, 2 * OdaPI * 3, 0.05);
  EXPECT_NEAR(area, OdaPI * 9, 0.2);
}

TEST_F(CurveEntitiesTest, SplineNurbsDataIsChecked) {
  OdDbSplinePtr s = OdDbSpline::createObject();
  const OdGePoint3dArray ctrl{{0, 0, 0}, {1, 2, 0}, {3, 2, 0}, {4, 0, 0}};
  EXPECT_THROW(s->setNurbsData(3, false, false, false, ctrl, {0, 0, 0, 1, 1, 1}, {}), OdError);
  EXPECT_THROW(s->setNurbsData(3, false, false, false, ctrl, {0, 0, 0, 0, 1, 1, 0.5, 1}, {}), OdError);
  s->setNurbsData(3, false, false, false, ctrl, {0, 0, 0, 0, 1, 1, 1, 1}, {});
  // A single Bezier span: the midpoint is (P0 + 3P1 + 3P2 + P3) / 8.
  OdGePoint3d mid;
  s->getPointAtParam(0.5, mid);
  EXPECT_NEAR(mid.distanceTo(OdGePoint3d((0 + 3 + 9 + 4) / 8.0, (0 + 6 + 6 + 0) / 8.0, 0)), 0, 1e-12);
}

// --- Points, rays, construction lines --------------------------------------------------

TEST_F(CurveEntitiesTest, RayAndXlineKeepAUnitDirection) {
  OdDbRayPtr ray = OdDbRay::createObject();
  ray->setBasePoint(OdGePoint3d(1, 1, 1));
  ray->setUnitDir(OdGeVector3d(3, 4, 0));
  EXPECT_NEAR((ray->unitDir() - OdGeVector3d(0.6, 0.8, 0)).length(), 0, 1e-15);
  EXPECT_EQ(ray->secondPoint(), OdGePoint3d(1.6, 1.8, 1));
  ray->setUnitDir(OdGeVector3d());
  EXPECT_TRUE(ray->unitDir().isZeroLength());
  OdDbXlinePtr xl = OdDbXline::createObject();
  xl->setBasePoint(OdGePoint3d(0, 0, 0));
  xl->setSecondPoint(OdGePoint3d(0, 0, -7));
  EXPECT_EQ(xl->unitDir(), OdGeVector3d(0, 0, -1));
  OdGePoint3d p;
  EXPECT_EQ(xl->getPointAtParam(-2, p), eOk);
  EXPECT_EQ(p, OdGePoint3d(0, 0, 2));
  EXPECT_NE(ray->getPointAtParam(-2, p), eOk);
}

TEST_F(CurveEntitiesTest, PointXAxisTurnsInItsObjectPlane) {
  OdDbPointPtr pt = OdDbPoint::createObject();
  pt->setEcsRotation(OdaPI / 2);
  EXPECT_NEAR((pt->xAxis() - OdGeVector3d(0, 1, 0)).length(), 0, 1e-15);
  pt->setNormal(OdGeVector3d(0, 0, -1));
  pt->setEcsRotation(0);
  // Arbitrary axis of -Z: X = Wy x N = (-1, 0, 0).
  EXPECT_NEAR((pt->xAxis() - OdGeVector3d(-1, 0, 0)).length(), 0, 1e-15);
}

TEST_F(CurveEntitiesTest, TwoDimensionalPolylineOwnsItsVertices) {
  OdDb2dPolylinePtr p = OdDb2dPolyline::createObject();
  OdDb2dVertexPtr v = OdDb2dVertex::createObject();
  v->setStartWidth(1);
  v->setEndWidth(2);
  p->appendVertex(v.get());
  OdDb2dPolylinePtr copy = OdDb2dPolyline::createObject();
  copy->copyFrom(p.get());
  copy->vertexForWrite(0)->setStartWidth(5);
  EXPECT_EQ(p->vertexAt(0)->startWidth(), 1.0);  // a deep copy
  EXPECT_EQ(copy->vertexAt(0)->startWidth(), 5.0);
  EXPECT_THROW(p->vertexAt(1), OdError);
}

}  // namespace
