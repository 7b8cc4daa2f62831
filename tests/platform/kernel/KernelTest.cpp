// The host kernel: variants, the information sink, and the
// properties-window service on a selection.
#include "ZqTestSupport.h"
#include "OdDbUnitsFormatter.h"
#include <limits>

namespace {

TEST(VariantTest, KindsAndEquality) {
  EXPECT_TRUE(CZqVariant().IsEmpty());
  EXPECT_EQ(CZqVariant(2.0, true).GetType(), CZqVariant::kVtDouble);
  EXPECT_NE(CZqVariant(2.0, true), CZqVariant(int32_t(2)));
  EXPECT_EQ(CZqVariant("a"), CZqVariant(CZqString("a")));
  EXPECT_EQ(CZqVariant("a").GetDouble(), 0.0);  // wrong accessor: neutral value
  CZqVariantCollection yesNo;
  yesNo.Add({CZqVariant("Yes"), CZqVariant(int32_t(1))});
  yesNo.Add({CZqVariant("No"), CZqVariant(int32_t(0))});
  CZqVariantCollection other = yesNo;
  yesNo.SetCurrent(0);
  other.SetCurrent(1);
  EXPECT_NE(CZqVariant(yesNo), CZqVariant(other));
  EXPECT_EQ(yesNo.FindTag(0), 1);
  EXPECT_EQ(CZqVariant(yesNo).GetCollection().GetAt(0).GetValue().GetString().qstring(), "Yes");
}

class KernelTest : public ZqDrawingTest {};

TEST_F(KernelTest, InfoContextFormatsInTheDrawingUnitsAndKeepsRecords) {
  db->setLUNITS(4);  // architectural
  db->setLUPREC(4);
  db->setAUNITS(1);
  db->setAUPREC(2);
  CZqPrintInfoContext ctx(db.get());
  ctx.PrintDist("d", 18.5);
  ctx.PrintAngle("a", 45.5 * OdaPI / 180);
  ctx.PrintBool("b", true);
  ctx.PrintString("s");
  ASSERT_EQ(ctx.Lines().size(), 4u);
  EXPECT_EQ(ctx.Lines()[0].text, "1'-6 1/2\"");
  EXPECT_EQ(ctx.Lines()[0].value.toDouble(), 18.5);
  EXPECT_EQ(ctx.Lines()[1].text, "45d30'");
  EXPECT_EQ(ctx.Lines()[2].text, "Yes");
  EXPECT_TRUE(ctx.Lines()[3].value.isNull());
  EXPECT_EQ(QString(CZqPrintInfoContext::kindName(ctx.Lines()[1].kind)), "angle");
}

TEST_F(KernelTest, InfoContextTransformsPointsOnlyInUcs) {
  useRotatedUcs();
  const OdGePoint3d p(10, -5, 2);  // the UCS origin
  CZqPrintInfoContext world(db.get(), false), local(db.get(), true);
  world.PrintPoint("p", p);
  local.PrintPoint("p", p);
  EXPECT_EQ(world.Lines()[0].value.toList()[0].toDouble(), 10.0);
  EXPECT_NEAR(local.Lines()[0].value.toList()[0].toDouble(), 0.0, 1e-12);
  EXPECT_TRUE(world.GetWorldToWorkingPlaneMatrix().isEqualTo(OdGeMatrix3d::kIdentity));
  EXPECT_TRUE((local.GetWorldToWorkingPlaneMatrix() * p).isEqualTo(OdGePoint3d::kOrigin, OdGeTol(1e-12)));
}

TEST_F(KernelTest, CheckCounterStopsAtTheLimit) {
  CZqPrintInfoContext limited(db.get(), false, 2), cancelled(db.get());
  EXPECT_TRUE(limited.CheckCounter());
  EXPECT_TRUE(limited.CheckCounter());
  EXPECT_FALSE(limited.CheckCounter());
  cancelled.Cancel();
  EXPECT_FALSE(cancelled.CheckCounter());
}

TEST_F(KernelTest, ServiceShowsCommonRowsAndVariesAndEditsEveryObject) {
  const OdDbObjectId a = addLine({0, 0, 0}, {1, 0, 0}), b = addLine({0, 0, 0}, {0, 2, 0});
  CZqPropertiesWindowService service(db.get());
  service.SetSelection({a, b});
  auto rows = service.Rows();
  auto find = [&](const char* name) -> const CZqPaletteRow* {
    for (const auto& r : rows)
      if (r.name.qstring() == name) return &r;
    return nullptr;
  };
  ASSERT_TRUE(find("Start X") && find("End X") && find("Layer") && find("Total Length"));
  EXPECT_FALSE(find("Start X")->varies);
  EXPECT_TRUE(find("End X")->varies);
  EXPECT_EQ(find("End X")->text.qstring(), "*VARIES*");
  EXPECT_TRUE(find("End X")->value.IsEmpty());
  EXPECT_TRUE(find("Length")->readOnly);
  // Categories are grouped in order of first appearance.
  EXPECT_EQ(rows.front().category.qstring(), "General");
  EXPECT_EQ(rows.back().category.qstring(), "Geometry");

  const auto results = service.SetValue("Geometry", "End X", CZqVariant(7.0, true));
  ASSERT_EQ(results.size(), 2u);
  for (const auto& r : results) EXPECT_EQ(r.code, 5100);
  rows = service.Rows();
  EXPECT_FALSE(find("End X")->varies);
  EXPECT_EQ(find("End X")->text.qstring(), "7.0000");

  const auto refused = service.SetValue("Geometry", "Length", CZqVariant(7.0, true));
  EXPECT_EQ(refused[0].code, -5001);
  EXPECT_FALSE(refused[0].message.isEmpty());
  const auto badScale = service.SetValue("General", "Linetype scale", CZqVariant(-1.0, false));
  EXPECT_EQ(badScale[0].code, -5001);
  EXPECT_EQ(badScale[0].message.qstring(), "Value must be positive");
}

TEST_F(KernelTest, FindRowByNameOrCategoryAndName) {
  const OdDbObjectId a = addLine({0, 0, 0}, {1, 0, 0});
  CZqPropertiesWindowService service(db.get());
  service.SetSelection({a});
  const auto rows = service.Rows();
  QString why;
  EXPECT_TRUE(service.FindRow(rows, "start x"));
  EXPECT_TRUE(service.FindRow(rows, "Geometry/Length"));
  EXPECT_FALSE(service.FindRow(rows, "General/Length", &why));
  EXPECT_FALSE(service.FindRow(rows, "Nothing", &why));
  EXPECT_TRUE(why.contains("Nothing"));
}

TEST_F(KernelTest, GeneralRowsValidateTheirValues) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  struct Case { const char* name; CZqVariant value; int code; } cases[] = {
      {"Color", CZqVariant(OdCmColor::fromIndex(3)), 5100},
      {"Color", CZqVariant(int32_t(3)), -5001},
      {"Lineweight", CZqVariant(int32_t(25)), 5100},
      {"Lineweight", CZqVariant(int32_t(26)), -5001},
      {"Transparency", CZqVariant("45"), 5100},
      {"Transparency", CZqVariant("95"), -5001},
      {"Linetype scale", CZqVariant(2.0, false), 5100},
      {"Linetype scale", CZqVariant(0.0, false), -5001},
      {"Layer", CZqVariant(db->getLayerZeroId()), 5100},
      {"Layer", CZqVariant(db->getLinetypeContinuousId()), -5001},
      {"Linetype", CZqVariant(db->getLinetypeContinuousId()), 5100},
      {"Hyperlink", CZqVariant("https://example.org"), 5100},
  };
  for (const Case& c : cases) EXPECT_EQ(set(id, "General", c.name, c.value), c.code) << c.name;
  EXPECT_EQ(get(id, "General", "Color").GetColor(), OdCmColor::fromIndex(3));
  EXPECT_EQ(get(id, "General", "Lineweight").GetInt32(), 25);
  EXPECT_EQ(get(id, "General", "Transparency").GetString().qstring(), "45");
  EXPECT_EQ(get(id, "General", "Hyperlink").GetString().qstring(), "https://example.org");
}

}  // namespace

// The palette's texts of numbers are written without the formatter where
// that gives the same text: compared with the formatter and with
// QString::number on values that round apart (halfway cases), round to
// zero, are negative zero, huge or not finite, at every precision.
TEST_F(KernelTest, NumberTextsAreTheFormattersAtEveryPrecision) {
  const double values[] = {0.0, -0.0, 1.0, -1.0, 0.125, -0.125, 0.03125, 2.5, 0.5, 1.0 / 3, -2.0 / 3, 12.3456789,
                           -0.00001, 0.00004999, 123456.78125, 1e14 + 0.5, 1e15, -1e300, 5e-324,
                           std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()};
  const CZqCustomPropertyType plain(CZqVariant::kVtDouble, CZqString());
  for (int lunits : {2, 1, 4})
    for (int prec = 0; prec <= 8; ++prec) {
      db->setLUNITS(lunits);
      db->setLUPREC(prec);
      for (double v : values) {
        SCOPED_TRACE(testing::Message() << "lunits " << lunits << " prec " << prec << " value " << v);
        EXPECT_EQ(CZqPropertiesWindowService::FormatValue(db.get(), CZqVariant(v, true), plain).qstring(),
                  db->formatter().formatDistance(v).qstring());
        EXPECT_EQ(CZqPropertiesWindowService::FormatValue(db.get(), CZqVariant(v, false), plain).qstring(),
                  QString::number(v, 'f', prec));
      }
    }
}
