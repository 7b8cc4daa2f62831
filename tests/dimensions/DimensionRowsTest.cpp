// Dimension rows: the order of the container of every kind (common block,
// annotative row, one- or two-arrow rows, the kind's own rows), setters and
// their refusals, and the rows that read parts of a variable.
#include "ZqTestSupport.h"
#include "DbDimension.h"
#include "DbSymbolTable.h"
#include <functional>

namespace {

namespace dv = OdDbDimVar;

CZqVariant choose(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(int32_t(tag)))); }

QString currentWord(const CZqVariant& v) {
  const CZqVariantCollection& c = v.GetCollection();
  if (c.GetCurrent() < 0 || c.GetCurrent() >= c.GetCount()) return QString();
  return c.GetAt(c.GetCurrent()).GetValue().GetString().qstring();
}

// The rows as the Parts list them (category/name), written out here.
const char* const kCommon[] = {
    "General/Associative", "Misc/Dim style", "Lines && Arrows/Arrow size", "Text/Fill color", "Text/Text color",
    "Text/Text height", "Text/Text offset", "Text/TextStyle", "Text/Position x", "Text/Position y", "Text/Rotation",
    "Text/Text override", "Fit/Dim scale overall", "Fit/Text movement", "Primary UnitSystem/Decimal separator",
    "Primary UnitSystem/Dim Roundoff", "Primary UnitSystem/Dim prefix", "Primary UnitSystem/Dim suffix",
    "Primary UnitSystem/Suppress leading zeros", "Primary UnitSystem/Suppress trailing zeros",
    "Tolerance/Tolerance display", "Tolerance/Tolerance limit lower", "Tolerance/Tolerance limit upper",
    "Tolerance/Tolerance pos vert", "Tolerance/Tolerance precision", "Tolerance/Tolerance suppress leading zeros",
    "Tolerance/Tolerance suppress trailing zeros", "Tolerance/Tolerance text height", "Tolerance/Inspection frame",
    "Tolerance/Inspection frame shape", "Tolerance/Inspection label", "Tolerance/Inspection rate",
    "MATCHPROP/MATCHPROP_Dimension", "Misc/Annotative"};
const char* const kAltBlock[] = {
    "Tolerance/Alt tolerance precision", "Tolerance/Alt tolerance suppress leading zeros",
    "Tolerance/Alt tolerance suppress trailing zeros", "Tolerance/Alt tolerance suppress zero feet",
    "Tolerance/Alt tolerance suppress zero inches", "Alternate UnitSystem/Alt enabled", "Alternate UnitSystem/Alt format",
    "Alternate UnitSystem/Alt precision", "Alternate UnitSystem/Alt round", "Alternate UnitSystem/Alt scale",
    "Alternate UnitSystem/Alt prefix", "Alternate UnitSystem/Alt suffix",
    "Alternate UnitSystem/Alt suppress leading zeros", "Alternate UnitSystem/Alt suppress trailing zeros",
    "Alternate UnitSystem/Alt suppress zeros feet", "Alternate UnitSystem/Alt suppress zeros inches"};
const char* const kTolFeet[] = {"Tolerance/Tolerance suppress zero feet", "Tolerance/Tolerance suppress zero inches"};
const char* const kUnits[] = {"Primary UnitSystem/Dim scale linear", "Primary UnitSystem/Dim UnitSystem",
                              "Primary UnitSystem/Precision"};
const char* const kFeet[] = {"Primary UnitSystem/Suppress zero feet", "Primary UnitSystem/Suppress zero inches"};
const char* const kOneArrowHead[] = {
    "Lines && Arrows/Arrow", "Lines && Arrows/CenterMark", "Fit/DimLine forced", "Lines && Arrows/CenterMark size",
    "Lines && Arrows/DimLine LWeight", "Lines && Arrows/DimLine LColor", "Lines && Arrows/Ext line",
    "Lines && Arrows/DimLine LStyle", "Text/Fractional type", "Text/Measurement", "Text/Text outside align",
    "Text/Text pos vert", "Text/Text inside align", "Fit/Fit"};
const char* const kTwoArrow[] = {
    "Lines && Arrows/Arrow 1", "Lines && Arrows/Arrow 2", "Lines && Arrows/DimLine LWeight",
    "Lines && Arrows/ExtLine LWeight", "Lines && Arrows/DimLine 1", "Lines && Arrows/DimLine 2",
    "Lines && Arrows/DimLine LColor", "Lines && Arrows/DimLine LStyle", "Lines && Arrows/ExtLine 1 LStyle",
    "Lines && Arrows/ExtLine 2 LStyle", "Lines && Arrows/DimLine ext", "Lines && Arrows/ExtLine 1",
    "Lines && Arrows/ExtLine 2", "Lines && Arrows/ExtLine fixed", "Lines && Arrows/ExtLine fixed length",
    "Lines && Arrows/ExtLine LColor", "Lines && Arrows/ExtLine ext", "Lines && Arrows/ExtLine offset",
    "Text/Text outside align", "Text/Text pos hor", "Text/Text pos vert", "Text/Text inside align",
    "Fit/DimLine forced", "Fit/DimLine inside", "Fit/Fit", "Fit/Text inside", "Text/Text view direction"};
const char* const kAngular[] = {"Text/Measurement", "Primary UnitSystem/Angle precision",
                                "Primary UnitSystem/Angle format", "Primary UnitSystem/Suppress leading zeros",
                                "Primary UnitSystem/Suppress trailing zeros"};

using Rows = std::vector<std::string>;
Rows operator+(Rows a, const Rows& b) { return a.insert(a.end(), b.begin(), b.end()), a; }
template <size_t N>
Rows rows(const char* const (&names)[N]) { return Rows(names, names + N); }

Rows oneArrow() {
  return rows(kOneArrowHead) + rows(kUnits) + rows(kFeet) + rows(kTolFeet) + rows(kAltBlock) +
         Rows{"Text/Text view direction"};
}
Rows linear(bool arcSymbol) {
  Rows head{"Text/Fractional type"};
  if (arcSymbol) head.push_back("Text/Arc length symbol");
  head.push_back("Text/Measurement");
  return head + rows(kUnits) + rows(kFeet) + rows(kTolFeet) + rows(kAltBlock);
}

struct KindCase {
  const char* name;
  std::function<OdDbDimensionPtr()> make;
  const char* displayName;
  std::function<Rows()> own;  // the rows after the common block
};

const KindCase kKinds[] = {
    {"Aligned", [] { return OdDbDimensionPtr(OdDbAlignedDimension::createObject()); }, "AlignedDimension",
     [] { return rows(kTwoArrow) + linear(false); }},
    {"Rotated", [] { return OdDbDimensionPtr(OdDbRotatedDimension::createObject()); }, "RotatedDimension",
     [] { return rows(kTwoArrow) + linear(false); }},
    {"ArcLength", [] { return OdDbDimensionPtr(OdDbArcDimension::createObject()); }, "ArcLengthDimension",
     [] { return rows(kTwoArrow) + linear(true); }},
    {"TwoLine", [] { return OdDbDimensionPtr(OdDb2LineAngularDimension::createObject()); }, "2LineAngularDimension",
     [] { return rows(kTwoArrow) + rows(kAngular); }},
    {"ThreePoint", [] { return OdDbDimensionPtr(OdDb3PointAngularDimension::createObject()); }, "3PointAngularDimension",
     [] { return rows(kTwoArrow) + rows(kAngular); }},
    {"Radial", [] { return OdDbDimensionPtr(OdDbRadialDimension::createObject()); }, "RadialDimension",
     [] { return oneArrow() + Rows{"Lines && Arrows/DimLine"}; }},
    {"RadialLarge", [] { return OdDbDimensionPtr(OdDbRadialDimensionLarge::createObject()); }, "RadialDimensionLarge",
     [] {
       return oneArrow() + Rows{"Lines && Arrows/DimLine", "Lines && Arrows/Center location override X",
                                "Lines && Arrows/Center location override Y", "Lines && Arrows/Jog location X",
                                "Lines && Arrows/Jog location Y", "Lines && Arrows/Jog angle"};
     }},
    {"Diametric", [] { return OdDbDimensionPtr(OdDbDiametricDimension::createObject()); }, "DiametricDimension",
     [] { return oneArrow() + Rows{"Lines && Arrows/Dim line 1", "Lines && Arrows/Dim line 2"}; }},
    {"Ordinate", [] { return OdDbDimensionPtr(OdDbOrdinateDimension::createObject()); }, "OrdinateDimension",
     [] {
       return Rows{"Lines && Arrows/ExtLine LWeight", "Lines && Arrows/ExtLine LStyle", "Lines && Arrows/ExtLine fixed",
                   "Lines && Arrows/ExtLine fixed length", "Lines && Arrows/ExtLine LColor",
                   "Lines && Arrows/ExtLine offset", "Text/Text pos vert", "Text/Fractional type", "Text/Measurement"} +
              rows(kUnits) + rows(kTolFeet) + rows(kTolFeet) + rows(kAltBlock);
     }},
};

class DimensionKindRows : public ZqDrawingTest, public ::testing::WithParamInterface<KindCase> {};

// After the general rows: the common block, "Annotative", the one- or
// two-arrow rows and the kind's own, in that order; and the kind's name.
TEST_P(DimensionKindRows, ContainerHoldsTheBlocksInOrder) {
  OdDbDimensionPtr dim = GetParam().make();
  const OdDbObjectId id = addToModelSpace(dim.get());
  OdDbObjectPtr obj = id.openObject();
  EXPECT_EQ(zqProviderFor(obj.get())->GetClassName(obj.get()).qstring(), QString(GetParam().displayName));
  auto container = zqRowsOf(obj.get());
  Rows got;
  bool started = false;
  for (int i = 0; i < container->GetCount(); ++i) {
    const CZqPropertyDescription* d = container->GetAt(i);
    const std::string key = d->GetCategoryKey().qstring().toStdString() + "/" + d->GetNameKey().qstring().toStdString();
    started = started || key == "General/Associative";
    if (started) got.push_back(key);
  }
  EXPECT_EQ(got, rows(kCommon) + GetParam().own());
}

INSTANTIATE_TEST_SUITE_P(Kinds, DimensionKindRows, ::testing::ValuesIn(kKinds),
                         [](const auto& info) { return std::string(info.param.name); });

class DimensionRowsTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addRotated() {
    OdDbRotatedDimensionPtr d = OdDbRotatedDimension::createObject();
    d->setXLine1Point(OdGePoint3d(0, 0, 0));
    d->setXLine2Point(OdGePoint3d(3, 0, 0));
    return addToModelSpace(d.get());
  }
  std::vector<dv::Id> overrides(const OdDbObjectId& id) {
    std::vector<dv::Id> out;
    OdDbObjectPtr o = id.openObject();
    for (const auto& e : OdDbDimStyleOverrides::get(o.get())) out.push_back(e.id);
    return out;
  }
};

// Each refused value shows its row's message and leaves no override; each
// accepted one becomes the dimension's value.
TEST_F(DimensionRowsTest, SettersRefuseOutOfRangeValuesWithTheirMessages) {
  const struct {
    const char *category, *name;
    CZqVariant value;
    const char* message;  // null: accepted
  } cases[] = {
      {"Lines && Arrows", "Arrow size", CZqVariant(-1.0, true), "Value must be positive"},
      {"Lines && Arrows", "Arrow size", CZqVariant(0.0, true), nullptr},
      {"Text", "Text height", CZqVariant(0.0, true), "Value must be positive"},
      {"Text", "Text height", CZqVariant(-2.0, true), "Value must be positive"},
      {"Fit", "Dim scale overall", CZqVariant(-1.0, true), "Value must be non-negative"},
      {"Primary UnitSystem", "Dim Roundoff", CZqVariant(-0.5, true), "Value must be positive"},
      {"Primary UnitSystem", "Decimal separator", CZqVariant(CZqString(",,")), "Decimal separator must be one character"},
      {"Primary UnitSystem", "Decimal separator", CZqVariant(CZqString("")), "Decimal separator must be one character"},
      {"Primary UnitSystem", "Decimal separator", CZqVariant(CZqString(",")), nullptr},
      {"Tolerance", "Tolerance text height", CZqVariant(-1.0, true), "Value must be positive"},
      {"Lines && Arrows", "DimLine ext", CZqVariant(-0.1, true), "Value must be non-negative"},
      {"Lines && Arrows", "ExtLine offset", CZqVariant(-0.1, true), "Value must be non-negative"},
      {"Primary UnitSystem", "Precision", choose(9), "DIMDEC cannot take this value"},
      {"Text", "TextStyle", CZqVariant(CZqString("NoSuchStyle")), ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " " + (c.message ? c.message : "accepted"));
    const OdDbObjectId id = addRotated();
    GetZqSystemServices()->ClearMessages();
    const int result = set(id, c.category, c.name, c.value);
    if (!c.message) {
      EXPECT_EQ(result, 5100);
      EXPECT_EQ(messageCount(), 0u);
      continue;
    }
    EXPECT_EQ(result, -5001);
    ASSERT_EQ(messageCount(), 1u);
    if (*c.message) {
      EXPECT_EQ(GetZqSystemServices()->Messages()[0].text.qstring(), QString(c.message));
    }
    EXPECT_TRUE(overrides(id).empty());
  }
}

// Prefix and suffix are the two sides of "<>"; a string without it is all
// prefix; editing one side keeps the other.
TEST_F(DimensionRowsTest, PrefixAndSuffixSplitTheTextAroundThePlaceholder) {
  const struct {
    const char* post;
    const char *prefix, *suffix;
  } cases[] = {{"Ø<> mm", "Ø", " mm"}, {"approx. ", "approx. ", ""}, {"<>cm", "", "cm"}};
  for (const auto& c : cases) {
    const OdDbObjectId id = addRotated();
    {
      OdDbDimensionPtr d = openAs<OdDbDimension>(id, OdDb::kForWrite);
      d->setDimpost(OdString(QString::fromUtf8(c.post)));
    }
    EXPECT_EQ(get(id, "Primary UnitSystem", "Dim prefix").GetString().qstring(), QString::fromUtf8(c.prefix));
    EXPECT_EQ(get(id, "Primary UnitSystem", "Dim suffix").GetString().qstring(), QString::fromUtf8(c.suffix));
  }
  const OdDbObjectId id = addRotated();
  ASSERT_EQ(set(id, "Primary UnitSystem", "Dim suffix", CZqVariant(CZqString(" m"))), 5100);
  ASSERT_EQ(set(id, "Primary UnitSystem", "Dim prefix", CZqVariant(CZqString("L="))), 5100);
  EXPECT_EQ(openAs<OdDbDimension>(id)->dimpost().qstring(), QString("L=<> m"));
}

// Zero suppression rows each flip their own part of one variable; the
// rotated dimension's alternate leading row reads the trailing setting.
TEST_F(DimensionRowsTest, ZeroSuppressionRowsShareTheirVariable) {
  const OdDbObjectId id = addRotated();
  ASSERT_EQ(set(id, "Primary UnitSystem", "Suppress trailing zeros", choose(1)), 5100);
  ASSERT_EQ(set(id, "Primary UnitSystem", "Suppress zero inches", choose(0)), 5100);
  EXPECT_EQ(openAs<OdDbDimension>(id)->dimzin(), 8 | 3);  // trailing; zero feet only
  EXPECT_EQ(currentWord(get(id, "Primary UnitSystem", "Suppress leading zeros")), "No");
  {
    OdDbDimensionPtr d = openAs<OdDbDimension>(id, OdDb::kForWrite);
    d->setDimaltz(8);  // trailing suppressed, leading shown
  }
  EXPECT_EQ(currentWord(get(id, "Alternate UnitSystem", "Alt suppress trailing zeros")), "Yes");
  EXPECT_EQ(currentWord(get(id, "Alternate UnitSystem", "Alt suppress leading zeros")), "Yes");
  OdDbAlignedDimensionPtr aligned = OdDbAlignedDimension::createObject();
  const OdDbObjectId other = addToModelSpace(aligned.get());
  {
    OdDbDimensionPtr d = openAs<OdDbDimension>(other, OdDb::kForWrite);
    d->setDimaltz(8);
  }
  EXPECT_EQ(currentWord(get(other, "Alternate UnitSystem", "Alt suppress leading zeros")), "No");
}

// The tolerance limits are editable only where the display uses them; the
// display itself is DIMTOL, DIMLIM and the sign of DIMGAP together.
TEST_F(DimensionRowsTest, ToleranceDisplayDecidesWhichLimitsAreEditable) {
  const OdDbObjectId id = addRotated();
  const struct {
    int display;
    bool lowerReadOnly, upperReadOnly;
  } cases[] = {{0, true, true}, {1, true, false}, {2, false, false}, {3, false, false}, {4, true, true}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.display);
    ASSERT_EQ(set(id, "Tolerance", "Tolerance display", choose(c.display)), 5100);
    if (c.display == 2) {
      OdDbDimensionPtr d = openAs<OdDbDimension>(id, OdDb::kForWrite);
      d->setDimtp(0.2);
      d->setDimtm(0.1);
    }
    OdDbObjectPtr obj = id.openObject();
    auto container = zqRowsOf(obj.get());
    EXPECT_EQ(zqRow(container.get(), "Tolerance", "Tolerance limit lower")->IsReadOnly(obj.get()), c.lowerReadOnly);
    EXPECT_EQ(zqRow(container.get(), "Tolerance", "Tolerance limit upper")->IsReadOnly(obj.get()), c.upperReadOnly);
    EXPECT_EQ(get(id, "Tolerance", "Tolerance display").GetCollection().GetCurrent(), c.display);
  }
}

// Inspection frame shape keeps every bit but the low three.
TEST_F(DimensionRowsTest, InspectionShapeKeepsTheOtherFlags) {
  const OdDbObjectId id = addRotated();
  ASSERT_EQ(set(id, "Tolerance", "Inspection frame", choose(1)), 5100);
  ASSERT_EQ(set(id, "Tolerance", "Inspection frame shape", choose(2)), 5100);
  ASSERT_EQ(set(id, "Tolerance", "Inspection label", CZqVariant(CZqString("A1"))), 5100);
  EXPECT_EQ(currentWord(get(id, "Tolerance", "Inspection frame")), "Yes");
  EXPECT_EQ(currentWord(get(id, "Tolerance", "Inspection frame shape")), "Angular");
  EXPECT_EQ(get(id, "Tolerance", "Inspection label").GetString().qstring(), "A1");
  ASSERT_EQ(set(id, "Tolerance", "Inspection frame shape", choose(1)), 5100);
  EXPECT_EQ(currentWord(get(id, "Tolerance", "Inspection frame")), "Yes");
}

}  // namespace
