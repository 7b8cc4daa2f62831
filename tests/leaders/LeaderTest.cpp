// Leaders: the rows in palette order, vertex navigation and its refusal,
// the limits of the style rows, the listing, and an edited vertex read back
// by another DXF reader.
#include "LeadersTestSupport.h"

namespace {

const char* kLeaderSample = "libredwg__test__test-data__2010__Leader.dxf";
const char* kAnnotativeLeader = "72E";  // three vertices, DSTYLE overrides, annotative
const char* kPlainLeader = "9DD";       // five vertices, pointing at a tolerance frame

class LeaderTest : public ZqLeadersTest {};

TEST_F(LeaderTest, RowsComeInPaletteOrderWithTheirEditors) {
  load(kLeaderSample);
  const std::vector<std::string> own = {
      "General/Associative",        "Geometry/Vertex",           "Geometry/Vertex x",
      "Geometry/Vertex y",          "Geometry/Vertex z",         "Misc/DimStyle",
      "Misc/Type",                  "Lines && Arrows/Arrow",     "Lines && Arrows/Arrow size",
      "Lines && Arrows/DimLine LWeight", "Lines && Arrows/DimLine LColor", "Fit/DimScale overall",
      "Text/Text offset",           "MATCHPROP/MATCHPROP_Leader", "Misc/Annotative"};
  std::vector<std::string> withScale = own;
  withScale.push_back("Misc/Annotative Scale");
  EXPECT_EQ(ownRows(object(kPlainLeader), "General/Associative"), own);
  EXPECT_EQ(ownRows(object(kAnnotativeLeader), "General/Associative"), withScale);

  OdDbObjectPtr o = object(kPlainLeader).openObject();
  auto rows = zqRowsOf(o.get());
  // The dimension rows' spellings are other rows.
  EXPECT_EQ(zqRow(rows.get(), "Misc", "Dim style"), nullptr);
  EXPECT_EQ(zqRow(rows.get(), "Fit", "Dim scale overall"), nullptr);
  const CZqPropertyDescription* color = zqRow(rows.get(), "Lines && Arrows", "DimLine LColor");
  EXPECT_EQ(color->GetType().GetType(), 0);
  EXPECT_TRUE(color->GetType().GetTypeId().qstring().isEmpty());
  EXPECT_EQ(zqRow(rows.get(), "Misc", "DimStyle")->GetType().GetTypeId().qstring(), CZqPropertyType::kDimStyleGUID);
  EXPECT_EQ(zqRow(rows.get(), "Geometry", "Vertex")->GetType().GetTypeId().qstring(), CZqPropertyType::kVertexGUID);

  // The scale row of an annotative leader edits the scales of the whole selection.
  OdDbObjectPtr annotative = object(kAnnotativeLeader).openObject();
  auto annotativeRows = zqRowsOf(annotative.get());
  const CZqPropertyDescription* scale = zqRow(annotativeRows.get(), "Misc", "Annotative Scale");
  ASSERT_NE(scale, nullptr);
  ASSERT_NE(scale->GetGroupActionMethod(), nullptr);
  EXPECT_EQ(scale->GetDescription().qstring(), QStringLiteral("Edit annotation scales"));
  const CZqVariant scales = scale->GetGroupActionMethod()(OdDbObjectIdArray{object(kAnnotativeLeader)}, *scale, {}, {});
  EXPECT_FALSE(scales.GetString().qstring().isEmpty());
}

TEST_F(LeaderTest, ScaleIsReadOnlyOnlyWhileAnnotative) {
  load(kLeaderSample);
  EXPECT_TRUE(readOnly(object(kAnnotativeLeader), "Fit", "DimScale overall"));
  EXPECT_FALSE(readOnly(object(kPlainLeader), "Fit", "DimScale overall"));
}

// Refused edits say why and leave the leader as it was.
struct Refusal {
  const char* category;
  const char* name;
  CZqVariant value;
  CZqVariant index;
  const char* message;
};

TEST_F(LeaderTest, RefusedEditsSayWhyAndChangeNothing) {
  load(kLeaderSample);
  const Refusal cases[] = {
      {"Lines && Arrows", "Arrow size", CZqVariant(-0.5, true), {}, "Value must be non-negative"},
      {"Fit", "DimScale overall", CZqVariant(-2.0, true), {}, "Value must be non-negative"},
      {"Geometry", "Vertex x", CZqVariant(1.0, true), CZqVariant(int32_t(5)), "There is no vertex 6: the object has 5 vertices."},
      {"Misc", "DimStyle", CZqVariant(CZqString("NoSuchStyle")), {}, nullptr},
  };
  for (const Refusal& c : cases) {
    SCOPED_TRACE(c.name);
    const QByteArray before = saved();
    const size_t messages = messageCount();
    EXPECT_EQ(set(object(kPlainLeader), c.category, c.name, c.value, c.index), kZqSetRefused);
    ASSERT_EQ(messageCount(), messages + 1);
    if (c.message) {
      EXPECT_EQ(GetZqSystemServices()->Messages().back().text, c.message);
    }
    EXPECT_TRUE(saved() == before);
  }
}

TEST_F(LeaderTest, TypeAndArrowEditTheirOwnSettings) {
  load(kLeaderSample);
  const OdDbObjectId id = object(kPlainLeader);
  ASSERT_EQ(set(id, "Misc", "Type", zqChoose(1)), kZqSetApplied);  // spline with no arrow
  {
    OdDbLeaderPtr l = openAs<OdDbLeader>(id);
    EXPECT_TRUE(l->isSplined());
    EXPECT_FALSE(l->hasArrowHead());
  }
  // "Open 30" needs its block, which this drawing has; "Integral" it lacks.
  ASSERT_EQ(set(id, "Lines && Arrows", "Arrow", zqChoose(9)), kZqSetApplied);
  EXPECT_EQ(zqCurrentWord(get(id, "Lines && Arrows", "Arrow")), "Open 30");
  EXPECT_EQ(set(id, "Lines && Arrows", "Arrow", zqChoose(16)), kZqSetRefused);
  EXPECT_EQ(zqCurrentWord(get(id, "Lines && Arrows", "Arrow")), "Open 30");
}

TEST_F(LeaderTest, ListingHasEveryVertexAndEndsWithTheOverrides) {
  load(kLeaderSample);
  const auto lines = info(object(kAnnotativeLeader));
  std::vector<QString> labels = labelsOf(lines);
  const auto from = std::find(labels.begin(), labels.end(), "related");
  ASSERT_NE(from, labels.end());
  const std::vector<QString> expected = {"related", "type", "Normal", "Horizontal direction", "Vertex", "Vertex",
                                         "Vertex", "Hook Line", "Arrow", "DimensionStyle",
                                         "Dimension style overrides", "DIMASZ", "DIMLDRBLK"};
  EXPECT_EQ(std::vector<QString>(from, labels.end()), expected);
  EXPECT_EQ(infoLine(lines, "DimensionStyle")->text, "Annotative");
  // A listing stopped after two elements shows two vertices.
  const auto capped = labelsOf(info(object(kPlainLeader), false, 2));
  EXPECT_EQ(std::count(capped.begin(), capped.end(), "Vertex"), 2);
}

TEST_F(LeaderTest, EditedVertexIsReadBackByEzdxf) {
  load(kLeaderSample);
  const OdDbObjectId id = object(kPlainLeader);
  // Vertex 3 (index 2) moves; the others stay.
  ASSERT_EQ(set(id, "Geometry", "Vertex x", CZqVariant(21.25, true), CZqVariant(int32_t(2))), kZqSetApplied);
  ASSERT_EQ(set(id, "Geometry", "Vertex y", CZqVariant(-3.5, true), CZqVariant(int32_t(2))), kZqSetApplied);
  const auto rows = ezdxfRows(saved(),
                              "for e in doc.modelspace().query('LEADER'):\n"
                              "    print(e.dxf.handle, len(e.vertices), *['%r,%r' % (v[0], v[1]) for v in e.vertices])\n");
  const QStringList& f = rows[kPlainLeader];
  ASSERT_EQ(f.size(), 7);
  EXPECT_EQ(f[1], "5");
  EXPECT_EQ(f[4], "21.25,-3.5");
  EXPECT_EQ(f[2], "17.20132719194104,17.20681379236364");
  EXPECT_EQ(f[5], "19.8689346484682,16.80016719146989");
}

}  // namespace
