// Revision clouds: the generator's arcs against the base curve, and the
// "PE_CLOUD" extended data; documents and their views.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

class CloudBaseTest : public ::testing::Test {
 protected:
  void SetUp() override { odDbInitialize(); }

  static OdDbPolylinePtr rectangle(double w, double h, bool ccw = true) {
    OdDbPolylinePtr pl = OdDbPolyline::createObject();
    const OdGePoint2d pts[] = {{0, 0}, {w, 0}, {w, h}, {0, h}};
    for (unsigned i = 0; i < 4; ++i) pl->addVertexAt(i, pts[ccw ? i : 3 - i]);
    pl->setClosed(true);
    return pl;
  }
  static bool generate(CZqCloudBase& cloud, const OdDbCurve* base, double radius, const char* style = "Rectangular") {
    CLOUDLINE_COMMAND_DATA data;
    data.style = style;
    data.arcRadius = radius;
    cloud.setBaseCurve(base);
    cloud.setCloudSetting(data);
    return cloud.cloudBaseMain();
  }
  // The radius of the arc over a chord with a bulge, from the included angle.
  static double arcRadius(double chord, double bulge) {
    const double theta = 4 * std::atan(std::fabs(bulge));
    return chord / (2 * std::sin(theta / 2));
  }
  static double distanceToRectangle(const OdGePoint2d& p, double w, double h) {
    const double dx = std::min(std::fabs(p.x), std::fabs(p.x - w)), dy = std::min(std::fabs(p.y), std::fabs(p.y - h));
    const bool insideX = p.x >= -1e-9 && p.x <= w + 1e-9, insideY = p.y >= -1e-9 && p.y <= h + 1e-9;
    if (insideX && insideY) return std::min(dx, dy);
    return 1e9;
  }
};

struct RadiusCase {
  double radius;
  const char* style;
};

class CloudOnRectangleTest : public CloudBaseTest, public ::testing::WithParamInterface<RadiusCase> {};

TEST_P(CloudOnRectangleTest, ArcsOfTheRadiusJoinPointsOnTheBaseAndBulgeOutwards) {
  const double w = 40, h = 25, radius = GetParam().radius;
  for (bool ccw : {true, false}) {
    OdDbPolylinePtr base = rectangle(w, h, ccw);
    CZqCloudBase cloud;
    ASSERT_TRUE(generate(cloud, base.get(), radius, GetParam().style));
    EXPECT_TRUE(cloud.isClosed());
    const auto& pts = cloud.points();
    const unsigned n = pts.length();
    ASSERT_EQ(cloud.bulges().length(), n);
    // Each side is divided into arcs no longer than the style's nominal chord.
    const double chord = 2 * radius * std::sin(CZqCloudBase::maxArcSweep(OdString(GetParam().style)) / 2);
    EXPECT_EQ(n, 2 * unsigned(std::ceil(w / chord)) + 2 * unsigned(std::ceil(h / chord)));
    for (const OdGePoint2d& corner : {OdGePoint2d(0, 0), OdGePoint2d(w, 0), OdGePoint2d(w, h), OdGePoint2d(0, h)})
      EXPECT_TRUE(std::any_of(pts.begin(), pts.end(), [&](const OdGePoint2d& p) { return p.distanceTo(corner) < 1e-9; }));
    for (unsigned i = 0; i < n; ++i) {
      const OdGePoint2d a = pts[i], b = pts[(i + 1) % n];
      EXPECT_LT(distanceToRectangle(a, w, h), 1e-9) << "vertex " << i << " off the base";
      EXPECT_NEAR(arcRadius(a.distanceTo(b), cloud.bulges()[i]), radius, 1e-9 * radius) << "arc " << i;
      // The arc's middle point (sagitta to the right for a positive bulge) lies outside the rectangle.
      const double s = cloud.bulges()[i] * a.distanceTo(b) / 2, c = a.distanceTo(b);
      const OdGePoint2d mid((a.x + b.x) / 2 + s * (b.y - a.y) / c, (a.y + b.y) / 2 - s * (b.x - a.x) / c);
      const bool outside = mid.x < -1e-9 || mid.x > w + 1e-9 || mid.y < -1e-9 || mid.y > h + 1e-9;
      EXPECT_TRUE(outside) << "arc " << i << " bulges inwards";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Radii, CloudOnRectangleTest,
                         ::testing::Values(RadiusCase{1.5, "Rectangular"}, RadiusCase{4, "Rectangular"},
                                           RadiusCase{7.25, "Polygon"}, RadiusCase{3, "Freehand"},
                                           RadiusCase{100, "Rectangular"}));

TEST_F(CloudBaseTest, CloudOnACircleKeepsItsPointsOnTheCircle) {
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setCenter(OdGePoint3d(5, -3, 0));
  circle->setRadius(20);
  for (double radius : {2.0, 5.0, 60.0}) {
    CZqCloudBase cloud;
    ASSERT_TRUE(generate(cloud, circle.get(), radius, "Circle"));
    EXPECT_TRUE(cloud.isClosed());
    const unsigned n = cloud.points().length();
    EXPECT_GE(n, 3u);
    const double chord = 2 * radius * std::sin(CZqCloudBase::maxArcSweep("Circle") / 2);
    EXPECT_EQ(n, std::max(3u, unsigned(std::ceil(2 * OdaPI * 20 / chord))));
    for (unsigned i = 0; i < n; ++i) {
      const OdGePoint2d& p = cloud.points()[i];
      EXPECT_NEAR(std::hypot(p.x - 5, p.y + 3), 20, 1e-6);
      EXPECT_NEAR(arcRadius(p.distanceTo(cloud.points()[(i + 1) % n]), cloud.bulges()[i]), radius, 1e-9 * radius);
      EXPECT_GT(cloud.bulges()[i], 0);  // the circle runs counter-clockwise: outwards is positive
    }
  }
}

TEST_F(CloudBaseTest, OpenBaseGivesAnOpenCloudEndingWithoutBulge) {
  OdDbPolylinePtr base = OdDbPolyline::createObject();
  base->addVertexAt(0, OdGePoint2d(0, 0));
  base->addVertexAt(1, OdGePoint2d(10, 0));
  CZqCloudBase cloud;
  ASSERT_TRUE(generate(cloud, base.get(), 2));
  EXPECT_FALSE(cloud.isClosed());
  const auto& pts = cloud.points();
  EXPECT_EQ(pts.front(), OdGePoint2d(0, 0));
  EXPECT_EQ(pts.back(), OdGePoint2d(10, 0));
  EXPECT_EQ(cloud.bulges().back(), 0.0);
  for (const OdGePoint2d& p : pts) EXPECT_NEAR(p.y, 0, 1e-12);
}

TEST_F(CloudBaseTest, NothingIsGeneratedWithoutRadiusOrBase) {
  OdDbPolylinePtr base = rectangle(10, 10);
  CZqCloudBase cloud;
  EXPECT_FALSE(generate(cloud, base.get(), 0));
  EXPECT_FALSE(generate(cloud, base.get(), -3));
  EXPECT_TRUE(cloud.points().isEmpty());
  OdDbPolylinePtr point = OdDbPolyline::createObject();
  point->addVertexAt(0, OdGePoint2d(1, 1));
  EXPECT_FALSE(generate(cloud, point.get(), 1));
  CZqCloudBase noBase;
  EXPECT_FALSE(noBase.cloudBaseMain());
}

TEST_F(CloudBaseTest, CloudIsDrawnInThePlaneOfTheCurveItReplaces) {
  OdDbPolylinePtr base = rectangle(10, 10);
  OdDbPolylinePtr temp = OdDbPolyline::createObject();
  temp->setNormal(OdGeVector3d(0, 0, -1));
  temp->setElevation(3);
  CZqCloudBase cloud;
  cloud.setTempCurve(temp.get());
  ASSERT_TRUE(generate(cloud, base.get(), 2));
  EXPECT_EQ(cloud.normal(), OdGeVector3d(0, 0, -1));
  EXPECT_EQ(cloud.elevation(), 3.0);
  // Seen from below, X is mirrored: the base's (10, 0) is at x = -10.
  EXPECT_TRUE(std::any_of(cloud.points().begin(), cloud.points().end(),
                          [](const OdGePoint2d& p) { return p.distanceTo(OdGePoint2d(-10, 0)) < 1e-9; }));
}

// --- Extended data ----------------------------------------------------------------

// The layout the host's files share: the style word first, the arc radius
// the first real. (Every base kind's data is read back through a drawing
// file in the curve tests.)
TEST_F(CloudBaseTest, SettingsRoundTripThroughTheExtendedData) {
  CLOUDLINE_COMMAND_DATA d;
  d.style = "Spline";
  d.arcRadius = 0.75;
  d.hasBaseData = true;
  d.degree = 2;
  d.controlPoints = {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}};
  d.knots = {0, 0, 0, 1, 1, 1};
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  CZqCloudBase::WriteCloudData(pl.get(), d);
  OdResBufPtr x = pl->xData(OdString("PE_CLOUD"));
  ASSERT_TRUE(x && x->next());
  EXPECT_EQ(x->next()->restype(), 1000);
  EXPECT_EQ(x->next()->getString(), d.style);
  const OdResBuf* firstReal = x->next();
  while (firstReal && firstReal->restype() != 1040) firstReal = firstReal->next();
  ASSERT_TRUE(firstReal);
  EXPECT_EQ(firstReal->getDouble(), d.arcRadius);
  CLOUDLINE_COMMAND_DATA back;
  ASSERT_TRUE(CZqCloudBase::ReadCloudData(pl.get(), back));
  EXPECT_EQ(back.style, d.style);
  EXPECT_EQ(back.arcRadius, d.arcRadius);
  EXPECT_TRUE(back.hasBaseData);
  EXPECT_EQ(back.degree, d.degree);
  EXPECT_EQ(back.controlPoints, d.controlPoints);
  EXPECT_EQ(back.knots, d.knots);
}

TEST_F(CloudBaseTest, IncompleteBaseDataIsNotUsed) {
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  OdResBufPtr x = OdResBuf::newRb(1001, OdString("PE_CLOUD"));
  x->setNext(OdResBuf::newRb(1000, OdString("circle")).get())
      ->setNext(OdResBuf::newRb(1040, 4.0).get())
      ->setNext(OdResBuf::newRb(1010, OdGePoint3d(1, 1, 0)).get());  // the radius is missing
  pl->setXData(x.get());
  CLOUDLINE_COMMAND_DATA d;
  ASSERT_TRUE(CZqCloudBase::ReadCloudData(pl.get(), d));
  EXPECT_EQ(d.style, OdString("circle"));
  EXPECT_EQ(d.arcRadius, 4.0);
  EXPECT_FALSE(d.hasBaseData);
  OdDbPolylinePtr none = OdDbPolyline::createObject();
  EXPECT_FALSE(CZqCloudBase::ReadCloudData(none.get(), d));
}

TEST_F(CloudBaseTest, WritingInADrawingRegistersTheApplication) {
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite).get())->appendOdDbEntity(pl.get());
  CLOUDLINE_COMMAND_DATA d;
  d.style = "Rectangular";
  d.arcRadius = 1;
  CZqCloudBase::WriteCloudData(pl.get(), d);
  OdDbObjectPtr apps = db->getRegAppTableId().openObject();
  EXPECT_TRUE(OdDbSymbolTable::cast(apps.get())->has(OdString("PE_CLOUD")));
}

// --- Documents and views -----------------------------------------------------------

TEST_F(CloudBaseTest, DocumentViewFollowsTheDrawingUcsUntilItHasItsOwn) {
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  EXPECT_EQ(ACTIVE_DOCUMENT, nullptr);
  {
    CZqDocument doc(db.get());
    CZqDocument::setActive(&doc);
    EXPECT_EQ(ACTIVE_DOCUMENT, &doc);
    OdAbstractViewPEPtr pe = OdAbstractViewPE::of(doc.activeView());
    ASSERT_TRUE(pe);
    OdGePoint3d o;
    OdGeVector3d x, y;
    db->setUCS(OdGePoint3d(1, 2, 3), OdGeVector3d(0, 1, 0), OdGeVector3d(-1, 0, 0));
    ASSERT_TRUE(pe->getUcs(doc.activeView(), o, x, y));
    EXPECT_EQ(o, OdGePoint3d(1, 2, 3));
    EXPECT_EQ(x, OdGeVector3d(0, 1, 0));
    pe->setUcs(doc.activeView(), OdGePoint3d(), OdGeVector3d(1, 0, 0), OdGeVector3d(0, -1, 0));
    pe->getUcs(doc.activeView(), o, x, y);
    EXPECT_EQ(x.crossProduct(y), OdGeVector3d(0, 0, -1));
    EXPECT_EQ(db->getUCSXDIR(), OdGeVector3d(0, 1, 0));  // the drawing's UCS is untouched
    doc.activeView()->followDatabaseUcs();
    pe->getUcs(doc.activeView(), o, x, y);
    EXPECT_EQ(x, OdGeVector3d(0, 1, 0));
    EXPECT_THROW(doc.activeView()->setUcs(o, x, x), OdError);
  }
  EXPECT_EQ(ACTIVE_DOCUMENT, nullptr);  // a closed document is no longer active
  OdDbPolylinePtr notAView = OdDbPolyline::createObject();
  EXPECT_FALSE(OdAbstractViewPE::of(notAView.get()));
}

}  // namespace
