// The circle's rows: the size rows that all edit the radius, the area as
// text in the drawing's units (with the polyline's), and the information
// lines.
#include "ZqTestSupport.h"
#include "OdDbUnitsFormatter.h"
#include <QRegularExpression>
#include <cmath>
#include <optional>

namespace {

class CircleTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addCircle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal = OdGeVector3d::kZAxis) {
    OdDbCirclePtr c = OdDbCircle::createObject();
    c->setCenter(center);
    c->setRadius(radius);
    c->setNormal(normal);
    return addToModelSpace(c.get());
  }
  OdDbCirclePtr open(const OdDbObjectId& id) { return openAs<OdDbCircle>(id); }
};

struct SizeCase {
  const char* name;
  const char* row;
  CZqVariant value;
  std::optional<double> radius;  // none: refused, the radius stays 4
};

class CircleSizeTest : public CircleTest, public ::testing::WithParamInterface<SizeCase> {};

TEST_P(CircleSizeTest, EverySizeRowEditsTheRadius) {
  const SizeCase& c = GetParam();
  const OdDbObjectId id = addCircle({1, 1, 0}, 4);
  EXPECT_EQ(set(id, "Geometry", c.row, c.value), c.radius ? 5100 : -5001);
  EXPECT_NEAR(open(id)->radius(), c.radius.value_or(4.0), 1e-12);
  EXPECT_EQ(messageCount(), 0u);  // no setter of circles shows a message
  const double r = open(id)->radius();
  EXPECT_NEAR(get(id, "Geometry", "Radius").GetDouble(), r, 1e-12);
  EXPECT_NEAR(get(id, "Geometry", "Diameter").GetDouble(), 2 * r, 1e-12);
  EXPECT_NEAR(get(id, "Geometry", "Circumference").GetDouble(), 2 * OdaPI * r, 1e-12);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CircleSizeTest,
    ::testing::Values(SizeCase{"radius", "Radius", CZqVariant(7.5, true), 7.5},
                      SizeCase{"negative_radius_taken_as_positive", "Radius", CZqVariant(-5.0, true), 5.0},
                      SizeCase{"zero_radius_refused", "Radius", CZqVariant(0.0, true), std::nullopt},
                      SizeCase{"diameter", "Diameter", CZqVariant(10.0, true), 5.0},
                      SizeCase{"negative_diameter", "Diameter", CZqVariant(-3.0, true), 1.5},
                      SizeCase{"zero_diameter_refused", "Diameter", CZqVariant(0.0, true), std::nullopt},
                      SizeCase{"circumference", "Circumference", CZqVariant(2 * OdaPI, true), 1.0},
                      SizeCase{"zero_circumference_refused", "Circumference", CZqVariant(-0.0, true), std::nullopt},
                      SizeCase{"tiny_radius_is_not_zero", "Radius", CZqVariant(1e-12, true), 1e-12},
                      SizeCase{"radius_as_text_refused", "Radius", CZqVariant("5"), std::nullopt},
                      SizeCase{"diameter_as_integer_refused", "Diameter", CZqVariant(int32_t(10)), std::nullopt}),
    [](const auto& info) { return std::string(info.param.name); });

// The area rows of circles and polylines: text in the drawing's units, or
// the bare number when asked for it.
struct AreaTextCase {
  const char* shape;
  int lunits;
  double area;
};

class AreaTextTest : public CircleTest, public ::testing::WithParamInterface<AreaTextCase> {};

TEST_P(AreaTextTest, AreaIsTextInTheDrawingsUnitsOrTheBareNumberOnRequest) {
  const AreaTextCase& c = GetParam();
  db->setLUNITS(c.lunits);
  OdDbObjectId id;
  if (std::string(c.shape) == "circle") {
    id = addCircle({0, 0, 0}, std::sqrt(c.area / OdaPI));
  } else {
    const double side = std::sqrt(c.area);
    OdDbPolylinePtr pl = OdDbPolyline::createObject();
    const OdGePoint2d corners[] = {{0, 0}, {side, 0}, {side, side}, {0, side}};
    for (unsigned i = 0; i < 4; ++i) pl->addVertexAt(i, corners[i]);
    pl->setClosed(true);
    id = addToModelSpace(pl.get());
  }
  const CZqVariant bare = get(id, "Geometry", "Area", CZqVariant(1111.0, false));
  ASSERT_EQ(bare.GetType(), CZqVariant::kVtDouble);
  EXPECT_NEAR(bare.GetDouble(), c.area, 1e-9 * c.area);
  const CZqVariant text = get(id, "Geometry", "Area");
  ASSERT_EQ(text.GetType(), CZqVariant::kVtString);
  if (c.lunits == 3 || c.lunits == 4) {
    const auto m = QRegularExpression(R"(^(\S+) sq\. in\. \((\S+) sq\. ft\.\)$)").match(text.GetString().qstring());
    ASSERT_TRUE(m.hasMatch()) << text.GetString().qstring().toStdString();
    EXPECT_NEAR(m.captured(1).toDouble(), c.area, 1e-3);
    EXPECT_NEAR(m.captured(2).toDouble(), c.area / 144, 1e-3);
  } else {
    EXPECT_EQ(text.GetString().qstring(), db->formatter().formatArea(c.area).qstring());
  }
  // Another index value is no request for the number.
  EXPECT_EQ(get(id, "Geometry", "Area", CZqVariant(1111.5, false)).GetType(), CZqVariant::kVtString);
  EXPECT_EQ(get(id, "Geometry", "Area", CZqVariant(int32_t(1111))).GetType(), CZqVariant::kVtString);
}

INSTANTIATE_TEST_SUITE_P(
    Units, AreaTextTest,
    ::testing::Values(AreaTextCase{"circle", 1, 1728}, AreaTextCase{"circle", 2, 250}, AreaTextCase{"circle", 3, 1728},
                      AreaTextCase{"circle", 4, 30}, AreaTextCase{"circle", 5, 12.25}, AreaTextCase{"polyline", 1, 250},
                      AreaTextCase{"polyline", 2, 1728}, AreaTextCase{"polyline", 3, 1728},
                      AreaTextCase{"polyline", 4, 1728}, AreaTextCase{"polyline", 5, 12.25}),
    [](const auto& info) { return std::string(info.param.shape) + std::to_string(info.index); });

struct AreaEditCase {
  const char* name;
  int lunits;
  CZqVariant value;
  std::optional<double> area;  // none: refused
};

class CircleAreaEditTest : public CircleTest, public ::testing::WithParamInterface<AreaEditCase> {};

TEST_P(CircleAreaEditTest, AreaTakesTextOnly) {
  const AreaEditCase& c = GetParam();
  db->setLUNITS(c.lunits);
  const OdDbObjectId id = addCircle({0, 0, 0}, 2);
  EXPECT_EQ(set(id, "Geometry", "Area", c.value), c.area ? 5100 : -5001);
  EXPECT_NEAR(open(id)->radius(), c.area ? std::sqrt(*c.area / OdaPI) : 2.0, 1e-12);
  EXPECT_EQ(messageCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CircleAreaEditTest,
    ::testing::Values(AreaEditCase{"architectural_with_unit", 4, CZqVariant("144 sq. in."), 144.0},
                      AreaEditCase{"architectural_bare_number_refused", 4, CZqVariant("144"), std::nullopt},
                      AreaEditCase{"architectural_shown_text", 4, CZqVariant("1728.0000 sq. in. (12.0000 sq. ft.)"), 1728.0},
                      AreaEditCase{"engineering_with_unit", 3, CZqVariant("50.5sq. in."), 50.5},
                      AreaEditCase{"architectural_nothing_before_unit", 4, CZqVariant("sq. in."), std::nullopt},
                      AreaEditCase{"decimal", 2, CZqVariant("78.5"), 78.5},
                      AreaEditCase{"decimal_negative_taken_as_positive", 2, CZqVariant("-78.5"), 78.5},
                      AreaEditCase{"decimal_with_unit_text_refused", 2, CZqVariant("144 sq. in."), std::nullopt},
                      AreaEditCase{"zero_refused", 2, CZqVariant("0"), std::nullopt},
                      AreaEditCase{"not_a_number", 2, CZqVariant("abc"), std::nullopt},
                      AreaEditCase{"double_refused", 2, CZqVariant(144.0, true), std::nullopt},
                      AreaEditCase{"double_refused_architectural", 4, CZqVariant(144.0, true), std::nullopt}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CircleTest, InformationLines) {
  useRotatedUcs();
  const OdGeVector3d normal(0, 0, 1);
  const OdDbObjectId id = addCircle({3, 4, 5}, 2.5, normal);
  for (bool inUcs : {false, true}) {
    SCOPED_TRACE(inUcs ? "UCS" : "WCS");
    const auto lines = info(id, inUcs);
    std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype",
                                  "Center  point", "Radius", "Circumference", "Area"};
    if (inUcs) expected.push_back("Extrusion direction relative to UCS");
    EXPECT_EQ(labelsOf(lines), expected);
    EXPECT_EQ(infoLine(lines, "Radius")->value.toDouble(), 2.5);
    EXPECT_NEAR(infoLine(lines, "Circumference")->value.toDouble(), 5 * OdaPI, 1e-12);
    EXPECT_EQ(infoLine(lines, "Area")->kind, CZqPrintInfoContext::kArea);
    EXPECT_NEAR(infoLine(lines, "Area")->value.toDouble(), 6.25 * OdaPI, 1e-12);
    const OdGePoint3d c = inUcs ? toUcs(OdGePoint3d(3, 4, 5)) : OdGePoint3d(3, 4, 5);
    EXPECT_NEAR(infoLine(lines, "Center  point")->value.toList()[0].toDouble(), c.x, 1e-9);
    if (inUcs) {
      // The rotated UCS keeps Z: the normal is still (0, 0, 1) there.
      EXPECT_NEAR(infoLine(lines, "Extrusion direction relative to UCS")->value.toList()[2].toDouble(), 1, 1e-12);
    }
  }
}

TEST_F(CircleTest, TwoSelectedCirclesShowTheTotalArea) {
  CZqVELOXQTGate gate;
  CZqVELOXQTGate* previous = SetZqVELOXQTGate(&gate);
  const OdDbObjectId a = addCircle({0, 0, 0}, 1), b = addCircle({5, 0, 0}, 2);
  gate.SetCurrentSelection({a, b});
  OdDbObjectPtr obj = a.openObject();
  auto rows = zqRowsOf(obj.get());
  ASSERT_TRUE(zqRow(rows.get(), "Geometry", "Total Area"));
  EXPECT_FALSE(zqRow(rows.get(), "Geometry", "Total Length"));
  EXPECT_NEAR(zqRow(rows.get(), "Geometry", "Total Area")->GetValue(obj.get(), {}).GetDouble(), 5 * OdaPI, 1e-12);
  SetZqVELOXQTGate(previous);
}

}  // namespace
