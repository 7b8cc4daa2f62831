// The line's rows, their values in the current UCS, its edits and its
// information lines.
#include "ZqTestSupport.h"
#include "CZqPropertyType.h"
#include <cmath>

namespace {

class LineTest : public ZqDrawingTest {
 protected:
  // The point p (WCS) in the current UCS, computed independently of the
  // platform's coordinate service.
  OdGePoint3d toUcs(const OdGePoint3d& p) const {
    const OdGeVector3d x = db->getUCSXDIR(), y = db->getUCSYDIR(), z = x.crossProduct(y);
    const OdGeVector3d d = p - db->getUCSORG();
    return {d.dotProduct(x), d.dotProduct(y), d.dotProduct(z)};
  }
  OdDbLinePtr open(const OdDbObjectId& id, OdDb::OpenMode mode = OdDb::kForRead) {
    return OdDbLine::cast(id.openObject(mode).get());
  }
};

struct RowCase {
  const char* category;
  const char* name;
  int type;
  const char* typeId;
  bool readOnly;
  bool hasSetter;
  const char* icon;
  unsigned visibility;
};

const RowCase kLineRows[] = {
    {"General", "Thickness", 0, "", false, true, "General_Thickness", 3 | 4},
    {"Geometry", "Start X", 2, CZqPropertyType::kCoordinateXGUID, false, true, "Geometry_StartX", 3},
    {"Geometry", "Start Y", 2, CZqPropertyType::kCoordinateYGUID, false, true, "Geometry_StartY", 3},
    {"Geometry", "Start Z", 2, CZqPropertyType::kCoordinateZGUID, false, true, "Geometry_StartZ", 3},
    {"Geometry", "End X", 2, CZqPropertyType::kCoordinateXGUID, false, true, "Geometry_EndX", 3},
    {"Geometry", "End Y", 2, CZqPropertyType::kCoordinateYGUID, false, true, "Geometry_EndY", 3},
    {"Geometry", "End Z", 2, CZqPropertyType::kCoordinateZGUID, false, true, "Geometry_EndZ", 3},
    {"Geometry", "Delta X", 2, CZqPropertyType::kCoordinateXGUID, true, false, "Geometry_DeltaX", 3},
    {"Geometry", "Delta Y", 2, CZqPropertyType::kCoordinateYGUID, true, false, "Geometry_DeltaY", 3},
    {"Geometry", "Delta Z", 2, CZqPropertyType::kCoordinateZGUID, true, false, "Geometry_DeltaZ", 3},
    {"Geometry", "Length", 0, "", true, false, "Geometry_Length", 3},
    {"Geometry", "Angle", 2, CZqPropertyType::kOrientGUID, true, false, "Geometry_Angle", 3},
};

TEST_F(LineTest, RowsFollowTheGeneralRowsInTableOrder) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 2, 3});
  OdDbLinePtr line = open(id);
  auto rows = zqRowsOf(line.get());
  ASSERT_TRUE(rows);
  const int general = int(CZqEntityPE::GeneralRows().size());
  ASSERT_EQ(rows->GetCount(), general + int(std::size(kLineRows)));
  for (int i = 0; i < int(std::size(kLineRows)); ++i) {
    const RowCase& c = kLineRows[i];
    const CZqPropertyDescription* d = rows->GetAt(general + i);
    SCOPED_TRACE(c.name);
    EXPECT_EQ(d->GetCategory().qstring(), c.category);
    EXPECT_EQ(d->GetName().qstring(), c.name);
    EXPECT_EQ(d->GetType(), CZqCustomPropertyType(c.type, CZqString(c.typeId)));
    EXPECT_EQ(d->GetIsReadOnlyMethod(), c.readOnly ? &CZqCustomPropertyPE::IsReadOnlyTrue : &CZqCustomPropertyPE::IsReadOnlyFalse);
    EXPECT_EQ(d->GetSetMethod() != nullptr, c.hasSetter);
    const QString group = QString(c.icon).section('_', 0, 0);
    EXPECT_EQ(d->GetDarkIcon().qstring(), QString(":/%1/svg_icons/dark/%1/%2.svg").arg(group, c.icon));
    EXPECT_EQ(d->GetLightIcon().qstring(), QString(":/%1/svg_icons/light/%1/%2.svg").arg(group, c.icon));
    EXPECT_EQ(d->GetVisibility(), c.visibility);
    EXPECT_FALSE(d->IsDynamic());
  }
  EXPECT_EQ(zqProviderFor(line.get())->GetClassName(line.get()).qstring(), "Line");
}

TEST_F(LineTest, ValuesAreShownInTheRotatedAndShiftedUcs) {
  useRotatedUcs();
  const OdGePoint3d s(12, 7, -1), e(-3, 4.5, 6);
  const OdDbObjectId id = addLine(s, e);
  const OdGePoint3d us = toUcs(s), ue = toUcs(e);
  struct Case { const char* name; double expected; } cases[] = {
      {"Start X", us.x}, {"Start Y", us.y}, {"Start Z", us.z}, {"End X", ue.x}, {"End Y", ue.y},
      {"End Z", ue.z}, {"Delta X", ue.x - us.x}, {"Delta Y", ue.y - us.y}, {"Delta Z", ue.z - us.z},
      {"Length", s.distanceTo(e)},
  };
  for (const Case& c : cases) {
    const CZqVariant v = get(id, "Geometry", c.name);
    ASSERT_EQ(v.GetType(), CZqVariant::kVtDouble) << c.name;
    EXPECT_TRUE(v.IsUnits()) << c.name;
    EXPECT_NEAR(v.GetDouble(), c.expected, 1e-9) << c.name;
  }
}

TEST_F(LineTest, CoordinateEditsWorkInTheUcsAndMoveOnlyThatCoordinate) {
  useRotatedUcs();
  const OdGePoint3d s(12, 7, -1), e(-3, 4.5, 6);
  struct Case { const char* name; bool start; int axis; double value; } cases[] = {
      {"Start X", true, 0, 100}, {"Start Y", true, 1, -20}, {"Start Z", true, 2, 7.5},
      {"End X", false, 0, 0},    {"End Y", false, 1, 3},    {"End Z", false, 2, -9},
  };
  for (const Case& c : cases) {
    const OdDbObjectId id = addLine(s, e);
    ASSERT_EQ(set(id, "Geometry", c.name, CZqVariant(c.value, true)), 5100) << c.name;
    OdDbLinePtr line = open(id);
    OdGePoint3d expected = toUcs(c.start ? s : e);
    expected[c.axis] = c.value;
    const OdGePoint3d got = toUcs(c.start ? line->startPoint() : line->endPoint());
    EXPECT_TRUE(got.isEqualTo(expected, OdGeTol(1e-9))) << c.name;
    // The other end does not move.
    EXPECT_TRUE((c.start ? line->endPoint() : line->startPoint()).isEqualTo(c.start ? e : s, OdGeTol(1e-12))) << c.name;
  }
}

TEST_F(LineTest, SettingTheCurrentValueLeavesTheLineUnmodified) {
  useRotatedUcs();
  const OdDbObjectId id = addLine({12, 7, -1}, {-3, 4.5, 6});
  const double current = get(id, "Geometry", "Start X").GetDouble();
  {
    OdDbLinePtr line = open(id);
    line->setModified(false);
  }
  EXPECT_EQ(set(id, "Geometry", "Start X", CZqVariant(current, true)), 5100);
  EXPECT_FALSE(open(id)->isModified());
  EXPECT_EQ(set(id, "Geometry", "Start X", CZqVariant(current + 1, true)), 5100);
  EXPECT_TRUE(open(id)->isModified());
}

TEST_F(LineTest, ThicknessTakesAnyValueIncludingNegative) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  for (double t : {-2.5, 0.0, 3.25}) {
    EXPECT_EQ(set(id, "General", "Thickness", CZqVariant(t, true)), 5100);
    EXPECT_EQ(open(id)->thickness(), t);
    EXPECT_EQ(get(id, "General", "Thickness").GetDouble(), t);
  }
}

TEST_F(LineTest, SettersRefuseWrongClassClosedObjectsAndWrongKindsSilently) {
  const OdDbObjectId lineId = addLine({1, 2, 3}, {4, 5, 6});
  OdDbLinePtr reference = open(lineId);
  auto rows = zqRowsOf(reference.get());
  reference.release();
  OdDbEntityPtr point = OdDbEntity::cast(OdDbPoint::desc()->create().get());
  const OdDbObjectId pointId = addToModelSpace(point.get());
  point.release();
  for (const RowCase& c : kLineRows) {
    if (!c.hasSetter) continue;
    SCOPED_TRACE(c.name);
    CZqPropertyDescription* d = zqRow(rows.get(), c.category, c.name);
    ASSERT_NE(d, nullptr);
    {  // not a line
      OdDbObjectPtr p = pointId.openObject(OdDb::kForWrite);
      EXPECT_EQ(d->SetValue(p.get(), CZqVariant(9.0, true), {}), -5001);
      EXPECT_TRUE(d->GetValue(p.get(), {}).IsEmpty());
    }
    {  // open for read only
      OdDbObjectPtr l = lineId.openObject(OdDb::kForRead);
      EXPECT_EQ(d->SetValue(l.get(), CZqVariant(9.0, true), {}), -5001);
    }
    for (const CZqVariant& wrong : {CZqVariant("9"), CZqVariant(int32_t(9)), CZqVariant()}) {
      OdDbObjectPtr l = lineId.openObject(OdDb::kForWrite);
      EXPECT_EQ(d->SetValue(l.get(), wrong, {}), -5001);
    }
  }
  OdDbLinePtr after = open(lineId);
  EXPECT_EQ(after->startPoint(), OdGePoint3d(1, 2, 3));
  EXPECT_EQ(after->endPoint(), OdGePoint3d(4, 5, 6));
  EXPECT_EQ(after->thickness(), 0.0);
  EXPECT_EQ(messageCount(), 0u);
}

TEST_F(LineTest, GettersOfAClosedLineAreEmpty) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 1, 0});
  OdDbLinePtr line = open(id);
  auto rows = zqRowsOf(line.get());
  OdDbLine* raw = line.get();
  line.release();  // closes it; the database still holds it
  ASSERT_FALSE(raw->isReadEnabled());
  for (const RowCase& c : kLineRows) EXPECT_TRUE(zqRow(rows.get(), c.category, c.name)->GetValue(raw, {}).IsEmpty()) << c.name;
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
    std::vector<QString> labels;
    for (const auto& l : lines) labels.push_back(l.label);
    std::vector<QString> expected{"Class name", "Handle", "Layer", "Space", "Color", "Linetype", "from point", "to point", "Length"};
    if (inUcs) expected.push_back("Length in CCS");
    expected.insert(expected.end(), {"Angle in XY Plane", "Delta X", "Delta Y", "Delta Z"});
    EXPECT_EQ(labels, expected);
    const OdGePoint3d ws = inUcs ? toUcs(s) : s, we = inUcs ? toUcs(e) : e;
    EXPECT_NEAR(infoLine(lines, "Length")->value.toDouble(), 5.0, 1e-12);
    EXPECT_NEAR(infoLine(lines, "Delta X")->value.toDouble(), we.x - ws.x, 1e-9);
    EXPECT_NEAR(infoLine(lines, "Delta Y")->value.toDouble(), we.y - ws.y, 1e-9);
    double expectedAngle = std::atan2(we.y - ws.y, we.x - ws.x);
    if (expectedAngle < 0) expectedAngle += 2 * OdaPI;
    EXPECT_NEAR(infoLine(lines, "Angle in XY Plane")->value.toDouble(), expectedAngle, 1e-9);
    EXPECT_EQ(infoLine(lines, "from point")->kind, CZqPrintInfoContext::kPoint);
    const QVariantList from = infoLine(lines, "from point")->value.toList();
    EXPECT_NEAR(from[0].toDouble(), ws.x, 1e-9);
    EXPECT_NEAR(from[1].toDouble(), ws.y, 1e-9);
    if (inUcs) {
      EXPECT_NEAR(infoLine(lines, "Length in CCS")->value.toDouble(), 5.0, 1e-9);
    }
  }
}

TEST_F(LineTest, VerticalLineHasZeroAngleInItsInformation) {
  const OdDbObjectId id = addLine({5, 5, 0}, {5, 5, 10});
  EXPECT_EQ(infoLine(info(id), "Angle in XY Plane")->value.toDouble(), 0.0);
}

}  // namespace
