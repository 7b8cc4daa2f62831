// The getter and setter families providers are made of, tried on the
// platform's entities through rows of a table of this test: limits and
// their sentences, flags, enumerations, colours, symbol-table references
// and UCS coordinates.
#include "ZqTestSupport.h"
#include "ZqCallbacks.h"
#include <cmath>
#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

struct LimitCase {
  ZqLimit limit;
  double value;
  bool taken;
  double takenAs;  // the value after the zero rule
};

TEST(ZqLimitTest, TakesWhatTheLimitAllowsWithTheZeroRule) {
  const LimitCase cases[] = {
      {kZqAny, -1e300, true, -1e300},        {kZqAny, 1e-11, true, 1e-11},          {kZqAny, kNan, false, 0},
      {kZqAny, kInf, false, 0},              {kZqPositive, 2, true, 2},             {kZqPositive, 1e-11, false, 0},
      {kZqPositive, -2, false, 0},           {kZqPositive, kInf, false, 0},         {kZqNonNegative, 0, true, 0},
      {kZqNonNegative, -1e-11, true, 0},     {kZqNonNegative, -1e-9, false, 0},     {kZqNonZero, -3, true, -3},
      {kZqNonZero, 1e-11, false, 0},         {ZqExact(kZqNonZero), 1e-11, true, 1e-11},
      {ZqExact(kZqNonZero), 0, false, 0},    {ZqRange(1, 8), 1, true, 1},           {ZqRange(1, 8), 8, true, 8},
      {ZqRange(1, 8), 8.0001, false, 0},     {ZqRange(1, 8), 0.5, false, 0},        {ZqRange(-1, 1), 1e-12, true, 0},
      {ZqRange(1, 8), kNan, false, 0},
  };
  for (const LimitCase& c : cases) {
    double v = c.value;
    EXPECT_EQ(c.limit.admits(v), c.taken) << c.limit.kind << " " << c.value;
    if (c.taken) {
      EXPECT_EQ(v, c.takenAs) << c.limit.kind << " " << c.value;
      EXPECT_FALSE(std::signbit(v) && v == 0) << "a value taken as zero is +0";
    }
  }
}

TEST(ZqLimitTest, SentenceSaysWhatIsAllowed) {
  EXPECT_EQ(ZqLimitSentence(kZqPositive, "Radius"), "Radius must be greater than 0");
  EXPECT_EQ(ZqLimitSentence(kZqNonNegative, "Width"), "Width must be 0 or greater");
  EXPECT_EQ(ZqLimitSentence(ZqSilent(kZqNonZero), "Scale"), "Scale must not be 0");
  EXPECT_EQ(ZqLimitSentence(ZqRange(1, 8.5), "Precision"), "Precision must be between 1 and 8.5");
  EXPECT_EQ(ZqLimitSentence(ZqMessage(kZqPositive, "Value must be positive"), "Radius"), "Value must be positive");
  EXPECT_TRUE(ZqLimitSentence(kZqAny, "Thickness").isEmpty());
}

// Icons: by default in the folder of their stem's group word; a row may
// name an icon set of its own (inspection, dimension and leader rows).
TEST(ZqRowIconTest, IconFolderOfARow) {
  const ZqRow plain{ZQ_GEOMETRY, "Start X", kZqDouble, nullptr, kZqEditable, nullptr, nullptr, nullptr};
  const ZqRow ownSet{ZQ_GEOMETRY, "Start X", kZqDouble, nullptr, kZqEditable, nullptr, nullptr, nullptr,
                     kVisKeep, kZqAny, "Dimension"};
  const ZqRow none{ZQ_MATCHPROP, "MATCHPROP_Line", kZqUntyped, nullptr, nullptr, nullptr, nullptr, ""};
  std::unique_ptr<CZqCustomPropertyDescription> a(ZqBuildDynamicDescription(plain)), b(ZqBuildDynamicDescription(ownSet)),
      c(ZqBuildDynamicDescription(none));
  EXPECT_EQ(a->GetDarkIcon().qstring(), ":/Geometry/svg_icons/dark/Geometry/Geometry_StartX.svg");
  EXPECT_EQ(b->GetDarkIcon().qstring(), ":/Dimension/svg_icons/dark/Dimension/Geometry_StartX.svg");
  EXPECT_EQ(b->GetLightIcon().qstring(), ":/Dimension/svg_icons/light/Dimension/Geometry_StartX.svg");
  EXPECT_TRUE(c->GetDarkIcon().isEmpty() && c->GetLightIcon().isEmpty());
  // Keys are the untranslated words, for every row.
  EXPECT_EQ(b->GetCategoryKey().qstring(), "Geometry");
  EXPECT_EQ(b->GetNameKey().qstring(), "Start X");
}

// Rows that only editions above the standard one show: flag 4 added there,
// the visibility kept in the standard edition; the other operations do
// not depend on the edition.
TEST(ZqRowVisibilityTest, EditionRowsAddFlag4AboveTheStandardEditionOnly) {
  const bool wasStandard = !CZqUtils::IsNotTelvaneStandard();
  struct Case {
    ZqVis vis;
    bool standard;
    bool flag4;
  };
  const Case cases[] = {{kVisOr4UnlessStandard, false, true}, {kVisOr4UnlessStandard, true, false},
                        {kVisOr4, true, true},                {kVisOr4, false, true},
                        {kVisKeep, false, false}};
  OdArray<CZqPropertyDescription*> list;
  for (const Case& c : cases) {
    CZqUtils::SetStandardEdition(c.standard);
    const ZqRow row{ZQ_GENERAL, "Thickness", kZqDouble, nullptr, kZqEditable, nullptr, nullptr, nullptr, c.vis};
    const ZqRow plain{ZQ_GENERAL, "Thickness", kZqDouble, nullptr, kZqEditable, nullptr, nullptr, nullptr, kVisKeep};
    const unsigned before = ZqBuildFixedDescription(plain, list)->GetVisibility();
    const unsigned after = ZqBuildFixedDescription(row, list)->GetVisibility();
    ASSERT_EQ(before & 4u, 0u);
    EXPECT_EQ(after, c.flag4 ? (before | 4u) : before) << "standard " << c.standard << " op " << int(c.vis.op);
  }
  CZqUtils::SetStandardEdition(wasStandard);
}

using E = OdDbEntity;
using L = OdDbLine;
using P = OdDbPolyline;

const ZqChoice kPrimaries[] = {{"Red", 1}, {"Green", 3}, {"Blue", 5}};

// A row table over the platform's accessors, as a provider writes one.
const ZqRow kRows[] = {
//  category     name                 type           identifier                read-only    get                                           set                                                       icon  visibility  limit
  {ZQ_GENERAL,  "Thickness",         kZqDouble,     nullptr,                  kZqEditable, ZqGetDouble<L, &L::thickness>,                ZqSetDouble<L, &L::setThickness>,                         nullptr, kVisKeep, kZqPositive},
  {ZQ_GENERAL,  "Quiet thickness",   kZqDouble,     nullptr,                  kZqEditable, ZqGetDouble<L, &L::thickness>,                ZqSetDouble<L, &L::setThickness>,                         nullptr, kVisKeep, ZqSilent(kZqNonNegative)},
  {ZQ_GEOMETRY, "Start X",           kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, ZqGetUcsCoordinate<L, &L::startPoint, 0>,   ZqSetUcsCoordinate<L, &L::startPoint, &L::setStartPoint, 0>, nullptr, kVisKeep},
  {ZQ_MISC,     "Closed",            kZqUntyped,    nullptr,                  kZqEditable, ZqGetFlag<P, &P::isClosed, kZqYesNo>,         ZqSetFlag<P, &P::setClosed, kZqYesNo>,                    nullptr, kVisKeep},
  {ZQ_GENERAL,  "Primary",           kZqCollection, nullptr,                  kZqEditable, ZqGetChoice<E, &E::colorIndex, kPrimaries>,   ZqSetChoice<E, &E::setColorIndex, kPrimaries>,            nullptr, kVisKeep},
  {ZQ_GENERAL,  "Color",             kZqColor,      nullptr,                  kZqEditable, ZqGetColor<E, &E::color>,                     ZqSetColor<E, &E::setColor>,                              nullptr, kVisKeep},
  {ZQ_GENERAL,  "Layer",             kZqId,         ZqGuid::kLayerGUID,       kZqEditable, ZqGetRecord<E, &E::layerId>,                  ZqSetRecord<E, &E::setLayer, kZqLayers>,                  nullptr, kVisKeep},
};

class RowFamiliesTest : public ZqDrawingTest {
 protected:
  // The description of a row of the table, as a provider builds it.
  std::unique_ptr<CZqCustomPropertyDescription> row(const char* name) {
    for (const ZqRow& r : kRows)
      if (QByteArray(r.name) == name) return std::unique_ptr<CZqCustomPropertyDescription>(ZqBuildDynamicDescription(r));
    ADD_FAILURE() << name;
    return nullptr;
  }
  int setOn(const OdDbObjectId& id, const char* name, const CZqVariant& value) {
    OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
    return row(name)->SetValue(obj.get(), value, CZqVariant());
  }
  CZqVariant getOf(const OdDbObjectId& id, const char* name) {
    OdDbObjectPtr obj = id.openObject();
    return row(name)->GetValue(obj.get(), CZqVariant());
  }
  QString lastMessage() const {
    return GetZqSystemServices()->Messages().empty() ? QString() : GetZqSystemServices()->Messages().back().text.qstring();
  }
  static CZqVariant chosen(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(int32_t(tag)))); }
};

TEST_F(RowFamiliesTest, CheckedDoublesRefuseWithTheLimitsSentence) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  EXPECT_EQ(setOn(id, "Thickness", CZqVariant(2.5, true)), kZqSetApplied);
  for (double bad : {-1.0, 0.0, 1e-11, kNan, kInf}) {
    GetZqSystemServices()->ClearMessages();
    EXPECT_EQ(setOn(id, "Thickness", CZqVariant(bad, true)), kZqSetRefused) << bad;
    EXPECT_EQ(messageCount(), 1u) << bad;
    EXPECT_EQ(lastMessage(), "Thickness must be greater than 0");
  }
  EXPECT_EQ(getOf(id, "Thickness").GetDouble(), 2.5);  // a refused edit leaves the object as it was
  // A wrong kind of value is refused without a message.
  GetZqSystemServices()->ClearMessages();
  EXPECT_EQ(setOn(id, "Thickness", CZqVariant("3")), kZqSetRefused);
  EXPECT_EQ(messageCount(), 0u);
  // A silent row shows no box; its description states the sentence for the host.
  EXPECT_EQ(setOn(id, "Quiet thickness", CZqVariant(-1.0, true)), kZqSetRefused);
  EXPECT_EQ(messageCount(), 0u);
  EXPECT_EQ(row("Quiet thickness")->GetRefusalText().qstring(), "Quiet thickness must be 0 or greater");
  EXPECT_EQ(setOn(id, "Quiet thickness", CZqVariant(-1e-12, true)), kZqSetApplied);
  EXPECT_EQ(getOf(id, "Thickness").GetDouble(), 0.0);
}

TEST_F(RowFamiliesTest, UcsCoordinatesTakeNearZeroAsZero) {
  const OdDbObjectId id = addLine({3, 0, 0}, {4, 0, 0});
  EXPECT_EQ(setOn(id, "Start X", CZqVariant(5e-11, true)), kZqSetApplied);
  EXPECT_EQ(openAs<OdDbLine>(id)->startPoint().x, 0.0);
  EXPECT_EQ(setOn(id, "Start X", CZqVariant(-7.0, true)), kZqSetApplied);
  EXPECT_EQ(openAs<OdDbLine>(id)->startPoint().x, -7.0);
}

TEST_F(RowFamiliesTest, FlagsAreYesNoChoices) {
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  pl->addVertexAt(0, {0, 0});
  pl->addVertexAt(1, {1, 0});
  const OdDbObjectId id = addToModelSpace(pl.get());
  pl.release();
  const CZqVariant open = getOf(id, "Closed");
  ASSERT_EQ(open.GetType(), CZqVariant::kVtCollection);
  EXPECT_EQ(open.GetCollection().GetCurrent(), 1);  // "No"
  EXPECT_EQ(open.GetCollection().GetAt(0).GetValue().GetString().qstring(), "Yes");
  const struct { CZqVariant value; int code; bool closed; } cases[] = {
      {chosen(1), kZqSetApplied, true}, {chosen(7), kZqSetApplied, true}, {CZqVariant(1.0, false), kZqSetRefused, true},
      {chosen(0), kZqSetApplied, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(setOn(id, "Closed", c.value), c.code);
    EXPECT_EQ(openAs<OdDbPolyline>(id)->isClosed(), c.closed);
  }
}

TEST_F(RowFamiliesTest, ChoicesTakeOnlyTheirTags) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  EXPECT_EQ(setOn(id, "Primary", chosen(3)), kZqSetApplied);
  EXPECT_EQ(openAs<OdDbLine>(id)->colorIndex(), 3);
  const CZqVariant shown = getOf(id, "Primary");
  EXPECT_EQ(shown.GetCollection().GetCount(), 3);
  EXPECT_EQ(shown.GetCollection().GetCurrent(), 1);
  GetZqSystemServices()->ClearMessages();
  EXPECT_EQ(setOn(id, "Primary", chosen(4)), kZqSetRefused);
  EXPECT_EQ(lastMessage(), "Primary takes one of: Red, Green, Blue");
  EXPECT_EQ(openAs<OdDbLine>(id)->colorIndex(), 3);
  // A colour outside the choices shows no current choice.
  openAs<OdDbLine>(id, OdDb::kForWrite)->setColorIndex(2);
  EXPECT_EQ(getOf(id, "Primary").GetCollection().GetCurrent(), -1);
}

TEST_F(RowFamiliesTest, ColoursAndSymbolTableReferences) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  OdCmColor red;
  red.setColorIndex(1);
  EXPECT_EQ(setOn(id, "Color", CZqVariant(red)), kZqSetApplied);
  EXPECT_EQ(getOf(id, "Color"), CZqVariant(red));
  EXPECT_EQ(setOn(id, "Color", CZqVariant(int32_t(1))), kZqSetRefused);

  OdDbObjectId walls;
  {
    OdDbObjectPtr t = db->getLayerTableId().openObject(OdDb::kForWrite);
    OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
    layer->setName("Walls");
    walls = OdDbSymbolTable::cast(t.get())->add(layer.get());
  }
  EXPECT_EQ(setOn(id, "Layer", CZqVariant("walls")), kZqSetApplied);  // by name, without regard to case
  EXPECT_EQ(getOf(id, "Layer").GetId(), walls);
  const OdDbObjectId zero = db->getLayerZeroId();
  EXPECT_EQ(setOn(id, "Layer", CZqVariant(zero)), kZqSetApplied);  // by id
  EXPECT_EQ(openAs<OdDbLine>(id)->layerId(), zero);
  const struct { CZqVariant value; const char* message; } refusals[] = {
      {CZqVariant("Roof"), "There is no layer named \"Roof\"."},
      {CZqVariant(db->getLinetypeContinuousId()), "The value is not a layer of this drawing."},
      {CZqVariant(OdDbObjectId()), "The value is not a layer of this drawing."},
  };
  for (const auto& r : refusals) {
    GetZqSystemServices()->ClearMessages();
    EXPECT_EQ(setOn(id, "Layer", r.value), kZqSetRefused) << r.message;
    EXPECT_EQ(lastMessage(), r.message);
    EXPECT_EQ(openAs<OdDbLine>(id)->layerId(), zero);
  }
  // A layer of another drawing is not one of this drawing's.
  OdDbDatabasePtr other = OdDbDatabase::createObject();
  EXPECT_EQ(setOn(id, "Layer", CZqVariant(other->getLayerZeroId())), kZqSetRefused);
}

}  // namespace
