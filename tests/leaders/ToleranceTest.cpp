// Tolerance frames: rows in palette order with their editors, the text
// height's limit, and the listing with an override made through a row.
#include "LeadersTestSupport.h"

namespace {

const char* kFrame = "9DE";  // in the leader sample, the annotation of leader 9DD

class ToleranceTest : public ZqLeadersTest {};

TEST_F(ToleranceTest, RowsComeInPaletteOrderWithTheirEditors) {
  load("libredwg__test__test-data__2010__Leader.dxf");
  const std::vector<std::string> expected = {
      "Geometry/Position X", "Geometry/Position Y", "Geometry/Position Z", "Misc/Dim style",
      "Text/Text",           "Text/Text height",    "Text/TextStyle",      "Fit/Dim scale overall",
      "Lines && Arrows/DimLine LColor", "MATCHPROP/MATCHPROP_Fcf", "Misc/Annotative"};
  EXPECT_EQ(ownRows(object(kFrame), "Geometry/Position X"), expected);
  OdDbObjectPtr o = object(kFrame).openObject();
  auto rows = zqRowsOf(o.get());
  EXPECT_EQ(zqRow(rows.get(), "Misc", "Dim style")->GetType().GetTypeId().qstring(), CZqPropertyType::kDimStyleGUID);
  EXPECT_EQ(zqRow(rows.get(), "Text", "TextStyle")->GetType().GetTypeId().qstring(), CZqPropertyType::kTextStyleGUID);
  EXPECT_EQ(zqRow(rows.get(), "Text", "Text")->GetType().GetType(), CZqVariant::kVtColor);
}

TEST_F(ToleranceTest, TextHeightTakesOnlyPositiveValuesAndIsListedAsAnOverride) {
  load("libredwg__test__test-data__2010__Leader.dxf");
  const OdDbObjectId id = object(kFrame);
  for (double bad : {0.0, -1.0, 1e-12}) {
    EXPECT_EQ(set(id, "Text", "Text height", CZqVariant(bad, true)), kZqSetRefused) << bad;
    EXPECT_EQ(GetZqSystemServices()->Messages().back().text, "Value must be positive");
  }
  EXPECT_EQ(infoLine(info(id), "Dimension style overrides"), nullptr);
  ASSERT_EQ(set(id, "Text", "Text height", CZqVariant(0.35, true)), kZqSetApplied);
  const auto labels = labelsOf(info(id));
  const auto from = std::find(labels.begin(), labels.end(), "Position");
  ASSERT_NE(from, labels.end());
  EXPECT_EQ(std::vector<QString>(from, labels.end()),
            (std::vector<QString>{"Position", "text", "DimensionStyle", "Dimension style overrides", "DIMTXT"}));
  // The override reaches another reader as the frame's DSTYLE pair.
  const auto rows = ezdxfRows(saved(),
                              "e = doc.entitydb['9DE']\n"
                              "v = [t.value for t in e.get_xdata('ACAD')]\n"
                              "print('9DE', v[v.index('DSTYLE') + 2], v[v.index('DSTYLE') + 3], e.dxf.content)\n");
  EXPECT_EQ(rows["9DE"], (QStringList{"9DE", "140", "0.35", "{\\Fgdt;j}%%v1%%v%%v%%v%%v"}));
}

}  // namespace
