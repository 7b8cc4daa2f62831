// Revision clouds: the cloud rows of a polyline that carries "PE_CLOUD"
// data, and the radius edit that draws the cloud again along its base.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include <cmath>
#include <functional>

namespace {

class CloudTest : public ZqDrawingTest {
 protected:
  // A cloud drawn on base as the revision-cloud command does: the generator's
  // arcs written into a polyline with the entity properties of a marked-up
  // drawing, and the cloud data.
  OdDbObjectId addCloud(const OdDbCurve* base, CLOUDLINE_COMMAND_DATA data) {
    CZqCloudBase cloud;
    cloud.setBaseCurve(base);
    cloud.setCloudSetting(data);
    EXPECT_TRUE(cloud.cloudBaseMain());
    OdDbPolylinePtr pl = OdDbPolyline::createObject();
    for (unsigned i = 0; i < cloud.points().length(); ++i) pl->addVertexAt(i, cloud.points()[i], cloud.bulges()[i]);
    pl->setClosed(cloud.isClosed());
    pl->setNormal(cloud.normal());
    pl->setElevation(cloud.elevation());
    const OdDbObjectId id = addToModelSpace(pl.get());
    pl->setColorIndex(3);
    pl->setLayer(markupLayer());
    pl->setLinetype(db->getLinetypeContinuousId());
    pl->setLineWeight(OdDb::kLnWt050);
    pl->setConstantWidth(0.2);
    CZqCloudBase::WriteCloudData(pl.get(), data);
    return id;
  }
  OdDbObjectId markupLayer() {
    OdDbObjectPtr t = db->getLayerTableId().openObject(OdDb::kForWrite);
    auto table = OdDbSymbolTable::cast(t.get());
    if (table->has(OdString("Markup"))) return table->getAt(OdString("Markup"));
    OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
    layer->setName("Markup");
    return table->add(layer.get());
  }
  static CLOUDLINE_COMMAND_DATA settings(const char* style, double radius) {
    CLOUDLINE_COMMAND_DATA d;
    d.style = style;
    d.arcRadius = radius;
    return d;
  }
  static OdDbPolylinePtr rectangle(double w, double h) {
    OdDbPolylinePtr pl = OdDbPolyline::createObject();
    const OdGePoint2d pts[] = {{0, 0}, {w, 0}, {w, h}, {0, h}};
    for (unsigned i = 0; i < 4; ++i) pl->addVertexAt(i, pts[i]);
    pl->setClosed(true);
    return pl;
  }
  OdDbPolylinePtr open(const OdDbObjectId& id) { return OdDbPolyline::cast(id.openObject().get()); }

  // Every segment is an arc of the radius (computed from its chord and bulge).
  static void expectArcsOfRadius(const OdDbPolyline* pl, double radius) {
    const unsigned n = pl->numVerts(), segments = pl->isClosed() ? n : n - 1;
    for (unsigned i = 0; i < segments; ++i) {
      OdGePoint2d a, b;
      pl->getPointAt(i, a);
      pl->getPointAt((i + 1) % n, b);
      const double theta = 4 * std::atan(std::fabs(pl->getBulgeAt(i)));
      EXPECT_NEAR(a.distanceTo(b) / (2 * std::sin(theta / 2)), radius, 1e-9 * radius) << "arc " << i;
    }
  }
};

TEST_F(CloudTest, CloudRowsAppearOnlyOnClouds) {
  OdDbPolylinePtr base = rectangle(20, 10);
  const OdDbObjectId cloud = addCloud(base.get(), settings("Rectangular", 2));
  OdDbObjectPtr obj = cloud.openObject();
  auto rows = zqRowsOf(obj.get());
  CZqPropertyDescription* shape = zqRow(rows.get(), "Cloud Settings", "Shape");
  CZqPropertyDescription* radius = zqRow(rows.get(), "Cloud Settings", "Radius");
  ASSERT_TRUE(shape && radius);
  EXPECT_TRUE(shape->IsDynamic());
  EXPECT_TRUE(radius->IsDynamic());
  EXPECT_EQ(shape->GetType(), CZqCustomPropertyType(0, CZqString()));
  EXPECT_EQ(radius->GetType(), CZqCustomPropertyType(2, CZqString()));
  EXPECT_EQ(shape->GetDarkIcon().qstring(), ":/Misc/svg_icons/dark/Misc/Misc_Name.svg");
  EXPECT_EQ(radius->GetLightIcon().qstring(), ":/Geometry/svg_icons/light/Geometry/Geometry_Radius.svg");
  EXPECT_TRUE(shape->IsReadOnly(obj.get()));
  EXPECT_FALSE(radius->IsReadOnly(obj.get()));
  // The cloud rows come after the fixed rows.
  EXPECT_EQ(rows->GetAt(rows->GetCount() - 1), radius);
  EXPECT_EQ(rows->GetAt(rows->GetCount() - 2), shape);

  OdDbPolylinePtr plain = rectangle(1, 1);
  const OdDbObjectId plainId = addToModelSpace(plain.get());
  plain.release();
  OdDbObjectPtr p = plainId.openObject();
  auto plainRows = zqRowsOf(p.get());
  EXPECT_EQ(plainRows->GetCount(), rows->GetCount() - 2);
  EXPECT_FALSE(zqRow(plainRows.get(), "Cloud Settings", "Radius"));
}

TEST_F(CloudTest, ShapeShowsTheStyleWord) {
  struct Case { const char* stored; const char* shown; } cases[] = {
      {"Rectangular", "Rectangular"}, {"elliptical", "Elliptical"}, {"FREEHAND", "Freehand"},
      {"Custom", "Custom"}, {"Polygon", "Polygon"}, {"spline", "spline"}};
  OdDbPolylinePtr base = rectangle(10, 10);
  for (const Case& c : cases) {
    const OdDbObjectId id = addCloud(base.get(), settings(c.stored, 1.5));
    EXPECT_EQ(get(id, "Cloud Settings", "Shape").GetString().qstring(), c.shown) << c.stored;
    EXPECT_EQ(get(id, "Cloud Settings", "Radius"), CZqVariant(1.5, true));
  }
}

TEST_F(CloudTest, RadiusEditRedrawsTheCloudAndKeepsItsProperties) {
  OdDbPolylinePtr base = rectangle(30, 12);
  const OdDbObjectId id = addCloud(base.get(), settings("Rectangular", 3));
  {
    OdDbPolylinePtr pl = OdDbPolyline::cast(id.openObject(OdDb::kForWrite).get());
    pl->setElevation(4.5);
  }
  const unsigned before = open(id)->numVerts();
  for (double radius : {1.0, 5.0}) {
    SCOPED_TRACE(radius);
    ASSERT_EQ(set(id, "Cloud Settings", "Radius", CZqVariant(radius, true)), 5100);
    OdDbPolylinePtr pl = open(id);
    expectArcsOfRadius(pl.get(), radius);
    // Every vertex stays on the rectangle, and each corner is a vertex.
    for (unsigned i = 0; i < pl->numVerts(); ++i) {
      OdGePoint2d p;
      pl->getPointAt(i, p);
      const bool onEdge = std::fabs(p.x) < 1e-9 || std::fabs(p.x - 30) < 1e-9 || std::fabs(p.y) < 1e-9 || std::fabs(p.y - 12) < 1e-9;
      EXPECT_TRUE(onEdge) << "vertex " << i;
    }
    EXPECT_TRUE(pl->isClosed());
    EXPECT_EQ(pl->colorIndex(), 3);
    EXPECT_EQ(pl->layerId(), markupLayer());
    EXPECT_EQ(pl->linetypeId(), db->getLinetypeContinuousId());
    EXPECT_EQ(pl->lineWeight(), OdDb::kLnWt050);
    EXPECT_EQ(pl->elevation(), 4.5);
    EXPECT_EQ(pl->getConstantWidth(), 0.2);
    EXPECT_EQ(get(id, "Cloud Settings", "Radius").GetDouble(), radius);
    EXPECT_EQ(get(id, "Cloud Settings", "Shape").GetString().qstring(), "Rectangular");
  }
  // A smaller radius gives more arcs than the first cloud, a larger one fewer.
  EXPECT_LT(open(id)->numVerts(), before);
  ASSERT_EQ(set(id, "Cloud Settings", "Radius", CZqVariant(1.0, true)), 5100);
  EXPECT_GT(open(id)->numVerts(), before);
  EXPECT_EQ(messageCount(), 0u);
}

TEST_F(CloudTest, RadiusOfZeroOrLessIsRefusedWithItsMessage) {
  OdDbPolylinePtr base = rectangle(10, 10);
  const OdDbObjectId id = addCloud(base.get(), settings("Polygon", 2));
  const unsigned verts = open(id)->numVerts();
  for (double bad : {0.0, -2.0, 1e-11}) {
    GetZqSystemServices()->ClearMessages();
    EXPECT_EQ(set(id, "Cloud Settings", "Radius", CZqVariant(bad, true)), -5001) << bad;
    ASSERT_EQ(messageCount(), 1u);
    EXPECT_EQ(GetZqSystemServices()->Messages().back().text.qstring(), "Value must be positive and non-zero.");
    EXPECT_EQ(GetZqSystemServices()->Messages().back().title.qstring(), "Error");
  }
  GetZqSystemServices()->ClearMessages();
  EXPECT_EQ(set(id, "Cloud Settings", "Radius", CZqVariant("3")), -5001);
  EXPECT_EQ(set(id, "Cloud Settings", "Shape", CZqVariant("Freehand")), -5001);
  EXPECT_EQ(messageCount(), 0u);
  EXPECT_EQ(open(id)->numVerts(), verts);
  EXPECT_EQ(get(id, "Cloud Settings", "Radius").GetDouble(), 2.0);
  EXPECT_EQ(get(id, "Cloud Settings", "Shape").GetString().qstring(), "Polygon");
}

// Items of the cloud data this module does not know (written by a later
// version of the cloud command, or by another program) survive a radius
// edit in their places; only the radius changes.
TEST_F(CloudTest, RadiusEditKeepsEveryOtherCloudItemInOrder) {
  OdDbPolylinePtr base = rectangle(12, 8);
  const OdDbObjectId id = addCloud(base.get(), settings("Rectangular", 2));
  {
    OdDbPolylinePtr pl = OdDbPolyline::cast(id.openObject(OdDb::kForWrite).get());
    OdResBufPtr chain = pl->xData(OdString(CZqCloudBase::kAppName));
    OdResBuf* tail = chain.get();
    while (tail->next()) tail = tail->next();
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("reviewed by QA")).get());
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, 7).get());
    tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdReal, 42.5).get());
    pl->setXData(chain.get());
  }
  auto items = [&] {
    std::vector<std::pair<int, QString>> out;
    OdDbObjectPtr obj = id.openObject();
    for (OdResBufPtr p = obj->xData(OdString(CZqCloudBase::kAppName)); p; p = p->nextPtr()) {
      QString value;
      switch (p->restype()) {
        case OdResBuf::kDxfXdReal: value = QString::number(p->getDouble()); break;
        case OdResBuf::kDxfXdInteger16: value = QString::number(p->getInt16()); break;
        default: value = p->getString().qstring();
      }
      out.emplace_back(p->restype(), value);
    }
    return out;
  };
  std::vector<std::pair<int, QString>> expected = items();
  ASSERT_EQ(expected.size(), 6u);  // application, style, radius, and the three added
  ASSERT_EQ(set(id, "Cloud Settings", "Radius", CZqVariant(1.5, true)), 5100);
  expected[2].second = "1.5";
  EXPECT_EQ(items(), expected);
  EXPECT_EQ(get(id, "Cloud Settings", "Radius").GetDouble(), 1.5);
}

struct BaseCase {
  const char* style;
  std::function<OdDbCurvePtr()> base;
  std::function<void(CLOUDLINE_COMMAND_DATA&)> stored;     // the base data the cloud keeps
  std::function<double(const OdGePoint3d&)> offBase;        // distance of a WCS point from the base
};

class CloudBaseCurveTest : public CloudTest, public ::testing::WithParamInterface<BaseCase> {};

// The stored base data survive a drawing file, and the radius edit redraws
// the cloud along the base curve they describe.
TEST_P(CloudBaseCurveTest, CloudFollowsTheStoredBaseCurveAfterADrawingFile) {
  const BaseCase& c = GetParam();
  OdDbCurvePtr base = c.base();
  CLOUDLINE_COMMAND_DATA data = settings(c.style, 1.5);
  c.stored(data);
  const OdDbHandle handle = addCloud(base.get(), data).getHandle();
  QString error;
  db = OdDxf::readDrawing(OdDxf::writeDrawing(db.get(), &error), error);
  ASSERT_TRUE(db) << error.toStdString();
  const OdDbObjectId id = db->getOdDbObjectId(handle);
  EXPECT_EQ(get(id, "Cloud Settings", "Shape").GetString().qstring(), c.style);
  ASSERT_EQ(set(id, "Cloud Settings", "Radius", CZqVariant(0.8, true)), 5100);
  OdDbPolylinePtr pl = open(id);
  expectArcsOfRadius(pl.get(), 0.8);
  EXPECT_TRUE(pl->isClosed());
  for (unsigned i = 0; i < pl->numVerts(); ++i) {
    OdGePoint3d p;
    pl->getPointAt(i, p);
    EXPECT_LT(c.offBase(p), 1e-6) << "vertex " << i;
  }
  // The base data is still there for the next edit.
  CLOUDLINE_COMMAND_DATA after;
  ASSERT_TRUE(CZqCloudBase::ReadCloudData(pl.get(), after));
  EXPECT_TRUE(after.hasBaseData);
  EXPECT_EQ(after.arcRadius, 0.8);
}

OdDbCurvePtr circleBase() {
  OdDbCirclePtr c = OdDbCircle::createObject();
  c->setCenter(OdGePoint3d(10, 5, 0));
  c->setRadius(6);
  return OdDbCurvePtr(c.get());
}
OdDbCurvePtr ellipseBase() {
  OdDbEllipsePtr e = OdDbEllipse::createObject();
  e->set(OdGePoint3d(-4, 0, 0), OdGeVector3d::kZAxis, OdGeVector3d(3, 4, 0), 0.5);
  return OdDbCurvePtr(e.get());
}
const OdGePoint3dArray kSplineCtrl{{0, 0, 0}, {6, -2, 0}, {10, 4, 0}, {4, 9, 0}, {-2, 5, 0}, {0, 0, 0}};
const OdGeDoubleArray kSplineKnots{0, 0, 0, 0, 1, 2, 3, 3, 3, 3};
OdDbSplinePtr splineBase() {
  OdDbSplinePtr s = OdDbSpline::createObject();
  s->setNurbsData(3, false, false, false, kSplineCtrl, kSplineKnots, {});
  return s;
}
double offSpline(const OdGePoint3d& p) {
  // The closest of many points on the curve, refined by bisection on the parameter.
  OdDbSplinePtr s = splineBase();
  double best = 1e9, bestU = 0;
  for (int i = 0; i <= 3000; ++i) {
    OdGePoint3d q;
    s->getPointAtParam(3.0 * i / 3000, q);
    if (q.distanceTo(p) < best) { best = q.distanceTo(p); bestU = 3.0 * i / 3000; }
  }
  double lo = std::max(0.0, bestU - 0.001), hi = std::min(3.0, bestU + 0.001);
  for (int k = 0; k < 60; ++k) {
    const double a = lo + (hi - lo) / 3, b = hi - (hi - lo) / 3;
    OdGePoint3d qa, qb;
    s->getPointAtParam(a, qa);
    s->getPointAtParam(b, qb);
    if (qa.distanceTo(p) < qb.distanceTo(p)) hi = b; else lo = a;
  }
  OdGePoint3d q;
  s->getPointAtParam((lo + hi) / 2, q);
  return q.distanceTo(p);
}

INSTANTIATE_TEST_SUITE_P(
    Bases, CloudBaseCurveTest,
    ::testing::Values(
        BaseCase{"Circle", circleBase,
                 [](CLOUDLINE_COMMAND_DATA& d) { d.hasBaseData = true; d.center = OdGePoint3d(10, 5, 0); d.baseRadius = 6; },
                 [](const OdGePoint3d& p) { return std::fabs(p.distanceTo(OdGePoint3d(10, 5, 0)) - 6); }},
        BaseCase{"Elliptical", ellipseBase,
                 [](CLOUDLINE_COMMAND_DATA& d) {
                   d.hasBaseData = true; d.center = OdGePoint3d(-4, 0, 0); d.majorAxis = OdGeVector3d(3, 4, 0); d.radiusRatio = 0.5;
                 },
                 [](const OdGePoint3d& p) {
                   // In the ellipse's axes (major along (3,4)/5, radii 5 and 2.5).
                   const OdGeVector3d d = p - OdGePoint3d(-4, 0, 0);
                   const double u = (d.x * 3 + d.y * 4) / 5, v = (-d.x * 4 + d.y * 3) / 5;
                   return std::fabs(std::hypot(u / 5, v / 2.5) - 1) * 2.5;
                 }},
        BaseCase{"Spline", [] { return OdDbCurvePtr(splineBase().get()); },
                 [](CLOUDLINE_COMMAND_DATA& d) { d.hasBaseData = true; d.degree = 3; d.controlPoints = kSplineCtrl; d.knots = kSplineKnots; },
                 offSpline}),
    [](const auto& info) { return std::string(info.param.style); });

}  // namespace
