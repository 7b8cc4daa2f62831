// Arcs: every row of an arc in a rotated, shifted UCS against values worked
// out from the arc's definition, the edits (each keeps what a user expects
// fixed), the refusals and the information lines.
#include "ZqTestSupport.h"
#include <cmath>
#include <optional>

namespace {

constexpr double kDeg = OdaPI / 180;

class ArcTest : public ZqDrawingTest {
 protected:
  // Centre (4, -2, 1), radius 3, from 30 to 300 degrees about the normal.
  OdDbObjectId addArc(const OdGeVector3d& normal = OdGeVector3d::kZAxis) {
    OdDbArcPtr a = OdDbArc::createObject();
    a->setCenter(kCenter);
    a->setRadius(3);
    a->setStartAngle(30 * kDeg);
    a->setEndAngle(300 * kDeg);
    a->setNormal(normal);
    return addToModelSpace(a.get());
  }
  const OdGePoint3d kCenter{4, -2, 1};
  double row(const OdDbObjectId& id, const char* name) {
    const bool area = std::string(name) == "Area";
    const CZqVariant v = get(id, "Geometry", name, area ? CZqVariant(1111.0, false) : CZqVariant());
    EXPECT_EQ(v.GetType(), CZqVariant::kVtDouble) << name;
    return v.GetDouble();
  }
};

TEST_F(ArcTest, RowsShowTheArcInTheUcs) {
  useRotatedUcs();
  // About +Z the arc's own axes are the world's: its ends lie at 30 and 300
  // degrees from world X. The UCS is turned 30 degrees, so the angles read
  // 0 and 270 there.
  const OdGePoint3d s = kCenter + OdGeVector3d(std::cos(30 * kDeg), std::sin(30 * kDeg), 0) * 3;
  const OdGePoint3d e = kCenter + OdGeVector3d(std::cos(300 * kDeg), std::sin(300 * kDeg), 0) * 3;
  const OdGePoint3d su = toUcs(s), cu = toUcs(kCenter), eu = toUcs(e);
  const double sweep = 270 * kDeg;
  const struct {
    const char* row;
    double expected;
  } rows[] = {
      {"Start X", su.x},   {"Start Y", su.y},      {"Start Z", su.z},           {"Center X", cu.x},
      {"Center Y", cu.y},  {"Center Z", cu.z},     {"End X", eu.x},             {"End Y", eu.y},
      {"End Z", eu.z},     {"Radius", 3},          {"Start angle", 0},          {"End angle", 270 * kDeg},
      {"Total angle", sweep}, {"Arc length", 3 * sweep}, {"Area", 4.5 * (sweep - std::sin(sweep))},
      {"Normal X", 0},     {"Normal Y", 0},        {"Normal Z", 1},
  };
  const OdDbObjectId id = addArc();
  for (const auto& r : rows) EXPECT_NEAR(row(id, r.row), r.expected, 1e-9) << r.row;

  // Turned over (normal -Z) the arc does not turn the UCS's way: its own
  // angles are shown. Its X axis is then world -X (arbitrary axis rule).
  const OdDbObjectId flipped = addArc(-OdGeVector3d::kZAxis);
  const OdGePoint3d fs = toUcs(kCenter + OdGeVector3d(-std::cos(30 * kDeg), std::sin(30 * kDeg), 0) * 3);
  EXPECT_NEAR(row(flipped, "Start X"), fs.x, 1e-9);
  EXPECT_NEAR(row(flipped, "Start Y"), fs.y, 1e-9);
  EXPECT_NEAR(row(flipped, "Start angle"), 30 * kDeg, 1e-12);
  EXPECT_NEAR(row(flipped, "Normal Z"), -1, 1e-12);
  // The area row is text unless the number is asked for.
  EXPECT_EQ(get(id, "Geometry", "Area").GetType(), CZqVariant::kVtString);
}

struct ArcState {
  double radius, startDeg, endDeg, thickness;
};

struct ArcEditCase {
  const char* name;
  const char* category;
  const char* row;
  CZqVariant value;
  std::optional<ArcState> after;  // none: refused, nothing changed
  size_t messages;
};

class ArcEditTest : public ArcTest, public ::testing::WithParamInterface<ArcEditCase> {};

TEST_P(ArcEditTest, EditsKeepTheRestAndRefusalsChangeNothing) {
  const ArcEditCase& c = GetParam();
  useRotatedUcs();
  const OdDbObjectId id = addArc();
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, c.category, c.row, c.value), c.after ? 5100 : -5001);
  const ArcState want = c.after.value_or(ArcState{3, 30, 300, 0});
  OdDbArcPtr a = openAs<OdDbArc>(id);
  EXPECT_TRUE(a->center().isEqualTo(kCenter));
  EXPECT_NEAR(a->radius(), want.radius, 1e-12);
  EXPECT_NEAR(a->startAngle(), want.startDeg * kDeg, 1e-12);
  EXPECT_NEAR(a->endAngle(), want.endDeg * kDeg, 1e-12);
  EXPECT_EQ(a->thickness(), want.thickness);
  EXPECT_EQ(a->isModified(), c.after.has_value());
  EXPECT_EQ(messageCount(), c.messages);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ArcEditTest,
    ::testing::Values(
        ArcEditCase{"radius_keeps_centre_and_angles", "Geometry", "Radius", CZqVariant(5.5, true), ArcState{5.5, 30, 300, 0}, 0},
        ArcEditCase{"zero_radius_refused", "Geometry", "Radius", CZqVariant(0.0, true), std::nullopt, 1},
        ArcEditCase{"negative_radius_refused", "Geometry", "Radius", CZqVariant(-2.0, true), std::nullopt, 1},
        ArcEditCase{"radius_as_text_refused_quietly", "Geometry", "Radius", CZqVariant("5"), std::nullopt, 0},
        // 90 degrees in the UCS are 120 in the arc's own (world) system.
        ArcEditCase{"start_angle_in_ucs", "Geometry", "Start angle", CZqVariant(90 * kDeg, true), ArcState{3, 120, 300, 0}, 0},
        ArcEditCase{"end_angle_below_zero_wraps", "Geometry", "End angle", CZqVariant(-45 * kDeg, true), ArcState{3, 30, 345, 0}, 0},
        ArcEditCase{"infinite_angle_refused", "Geometry", "Start angle", CZqVariant(INFINITY, true), std::nullopt, 1},
        ArcEditCase{"thickness_negative", "General", "Thickness", CZqVariant(-1.5, true), ArcState{3, 30, 300, -1.5}, 0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ArcTest, InformationListsTheArcsMeasures) {
  useRotatedUcs();
  const OdDbObjectId id = addArc();
  for (bool inUcs : {false, true}) {
    SCOPED_TRACE(inUcs);
    const auto lines = info(id, inUcs);
    std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype", "Center  point",
                                  "Radius", "Start angle", "End angle", "Total angle", "Length", "Area"};
    if (inUcs) expected.push_back("Extrusion direction relative to UCS");
    EXPECT_EQ(labelsOf(lines), expected);
    // Angles from the X axis of the listing's plane: world, or the UCS turned 30 degrees.
    EXPECT_NEAR(infoLine(lines, "Start angle")->value.toDouble(), (inUcs ? 0 : 30) * kDeg, 1e-12);
    EXPECT_NEAR(infoLine(lines, "End angle")->value.toDouble(), (inUcs ? 270 : 300) * kDeg, 1e-12);
    EXPECT_NEAR(infoLine(lines, "Total angle")->value.toDouble(), 270 * kDeg, 1e-12);
    EXPECT_NEAR(infoLine(lines, "Length")->value.toDouble(), 3 * 270 * kDeg, 1e-12);
    EXPECT_EQ(infoLine(lines, "Area")->kind, CZqPrintInfoContext::kArea);
  }
}

}  // namespace
