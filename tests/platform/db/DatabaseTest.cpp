// The drawing database: ids and handles, open modes, symbol tables,
// extended data, system variables and the UCS service.
#include "ZqTestSupport.h"
#include <cmath>

namespace {

class DatabaseTest : public ::testing::Test {
 protected:
  void SetUp() override {
    odDbInitialize();
    db = OdDbDatabase::createObject();
  }
  OdDbObjectId addLine() {
    OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
    OdDbLinePtr line = OdDbLine::createObject();
    line->setDatabaseDefaults(db.get());
    return OdDbBlockTableRecord::cast(ms.get())->appendOdDbEntity(line.get());
  }
  OdDbDatabasePtr db;
};

TEST_F(DatabaseTest, DefaultDrawingHasTheStandardRecords) {
  EXPECT_FALSE(db->getModelSpaceId().isNull());
  EXPECT_FALSE(db->getPaperSpaceId().isNull());
  EXPECT_FALSE(db->getLayerZeroId().isNull());
  for (const char* lt : {"ByLayer", "ByBlock", "Continuous"}) {
    OdDbObjectPtr t = db->getLinetypeTableId().openObject();
    EXPECT_TRUE(OdDbSymbolTable::cast(t.get())->has(lt)) << lt;
  }
  EXPECT_EQ(g_odDbRegistredDwgClasses[19], OdDbLine::desc());
  EXPECT_EQ(g_odDbRegistredDwgClasses[77], OdDbPolyline::desc());
  EXPECT_EQ(g_odDbRegistredDwgClasses[72], OdDbGroup::desc());
}

TEST_F(DatabaseTest, IdsAndHandlesFindTheSameObject) {
  const OdDbObjectId id = addLine();
  const OdDbHandle h = id.getHandle();
  EXPECT_EQ(db->getOdDbObjectId(h), id);
  EXPECT_EQ(OdDbHandle(h.ascii()), h);
  EXPECT_GT(db->handseed().value(), h.value());
  EXPECT_TRUE(db->getOdDbObjectId(OdDbHandle(0xFFFFFF)).isNull());
  // A handle in use cannot be given again.
  OdDbLinePtr other = OdDbLine::createObject();
  EXPECT_THROW(db->addOdDbObject(other.get(), OdDbObjectId(), h), OdError);
  EXPECT_FALSE(other->isDBRO());
}

TEST_F(DatabaseTest, OpenModesCloseWithTheLastPointer) {
  const OdDbObjectId id = addLine();
  OdDbObject* raw = nullptr;
  {
    OdDbObjectPtr r = id.openObject(OdDb::kForRead);
    raw = r.get();
    EXPECT_TRUE(raw->isReadEnabled());
    EXPECT_FALSE(raw->isWriteEnabled());
    EXPECT_THROW(OdDbLine::cast(raw)->setThickness(1), OdError);
    {
      OdDbObjectPtr w = id.openObject(OdDb::kForWrite);
      EXPECT_TRUE(raw->isWriteEnabled());
    }
  }
  EXPECT_FALSE(raw->isReadEnabled());
  EXPECT_THROW(OdDbLine::cast(raw)->thickness(), OdError);
  // Objects outside a database are their creator's to change.
  OdDbLinePtr loose = OdDbLine::createObject();
  EXPECT_TRUE(loose->isWriteEnabled());
}

TEST_F(DatabaseTest, ErasedObjectsDoNotOpenOrList) {
  const OdDbObjectId a = addLine(), b = addLine();
  {
    OdDbObjectPtr w = a.openObject(OdDb::kForWrite);
    w->erase();
  }
  EXPECT_FALSE(a.openObject());
  EXPECT_TRUE(a.openObject(OdDb::kForRead, true));
  EXPECT_THROW(a.safeOpenObject(), OdError);
  OdDbObjectPtr ms = db->getModelSpaceId().openObject();
  EXPECT_EQ(OdDbBlockTableRecord::cast(ms.get())->entityIds(), OdDbObjectIdArray{b});
}

TEST_F(DatabaseTest, SymbolTableNamesAreUniqueWithoutRegardToCase) {
  OdDbObjectPtr t = db->getLayerTableId().openObject(OdDb::kForWrite);
  auto table = OdDbSymbolTable::cast(t.get());
  auto walls = OdDbLayerTableRecord::createObject();
  walls->setName("Walls");
  const OdDbObjectId id = table->add(walls.get());
  EXPECT_EQ(table->getAt("WALLS"), id);
  auto again = OdDbLayerTableRecord::createObject();
  again->setName("walls");
  EXPECT_THROW(table->add(again.get()), OdError);
  auto doors = OdDbLayerTableRecord::createObject();
  doors->setName("Doors");
  table->add(doors.get());
  EXPECT_THROW(doors->setName("WALLS"), OdError);
  EXPECT_EQ(doors->getName(), OdString("Doors"));
  auto wrong = OdDbLinetypeTableRecord::createObject();
  wrong->setName("Dashed");
  EXPECT_THROW(table->add(wrong.get()), OdError_NotThatKindOfClass);
}

TEST_F(DatabaseTest, EntityLayerAndLinetypeByName) {
  const OdDbObjectId id = addLine();
  OdDbObjectPtr o = id.openObject(OdDb::kForWrite);
  auto* e = static_cast<OdDbEntity*>(o.get());
  EXPECT_EQ(e->layer(), OdString("0"));
  EXPECT_FALSE(e->setLayer(OdString("NoSuchLayer")));
  EXPECT_EQ(e->layer(), OdString("0"));
  EXPECT_TRUE(e->setLinetype(OdString("continuous")));
  EXPECT_EQ(e->linetype(), OdString("Continuous"));
  EXPECT_THROW(e->setLinetypeScale(0), OdError);
  EXPECT_THROW(e->setLineWeight(OdDb::LineWeight(17)), OdError);
}

TEST_F(DatabaseTest, ExtendedDataPerApplication) {
  const OdDbObjectId id = addLine();
  OdDbObjectPtr o = id.openObject(OdDb::kForWrite);
  OdResBufPtr chain = OdResBuf::newRb(OdResBuf::kDxfRegAppName, "PE_CLOUD");
  chain->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, "Rectangular").get())
      ->setNext(OdResBuf::newRb(OdResBuf::kDxfXdReal, 2.5).get());
  o->setXData(chain.get());
  OdResBufPtr other = OdResBuf::newRb(OdResBuf::kDxfRegAppName, "OTHER");
  other->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, 7).get());
  o->setXData(other.get());
  OdResBufPtr back = o->xData("pe_cloud");
  ASSERT_TRUE(back);
  EXPECT_TRUE(OdResBuf::chainsEqual(back.get(), chain.get()));
  EXPECT_EQ(o->xDataApps().size(), 2u);
  // A chain with only the application name removes that application's data.
  o->setXData(OdResBuf::newRb(OdResBuf::kDxfRegAppName, "PE_CLOUD").get());
  EXPECT_FALSE(o->xData("PE_CLOUD"));
  EXPECT_TRUE(o->xData("OTHER"));
  EXPECT_EQ(OdResBuf::kindOf(1040), OdResBuf::kDouble);
  EXPECT_EQ(OdResBuf::kindOf(1071), OdResBuf::kInt32);
  EXPECT_EQ(OdResBuf::kindOf(5), OdResBuf::kString);
}

TEST_F(DatabaseTest, UcsServiceConvertsBothWays) {
  const double a = 0.4;
  db->setUCS({3, 4, 5}, {std::cos(a), std::sin(a), 0}, {0, 0, 2});
  const OdDbCoordinateService ucs = db->coordinateService();
  const OdGePoint3d p(7, -1, 2);
  EXPECT_TRUE(ucs.ucsToWcs(ucs.wcsToUcs(p)).isEqualTo(p, OdGeTol(1e-12)));
  EXPECT_TRUE(ucs.wcsToUcs(OdGePoint3d(3, 4, 5)).isEqualTo(OdGePoint3d::kOrigin, OdGeTol(1e-12)));
  // Y was the world Z axis, so UCS Z is X x Y.
  EXPECT_TRUE(ucs.ucsZAxis().isEqualTo(OdGeVector3d(std::cos(a), std::sin(a), 0).crossProduct({0, 0, 1}), OdGeTol(1e-12)));
  EXPECT_THROW(db->setUCS({0, 0, 0}, {1, 0, 0}, {2, 0, 0}), OdError);
  EXPECT_THROW(db->setLUNITS(6), OdError);
  EXPECT_THROW(db->setAUPREC(9), OdError);
}

TEST(ColorTest, ParsesWhatUsersTypeAndNamesColours) {
  struct Case { const char* text; bool ok; const char* description; } cases[] = {
      {"1", true, "red"}, {"red", true, "red"}, {"ByLayer", true, "ByLayer"}, {"byblock", true, "ByBlock"},
      {"256", true, "ByLayer"}, {"0", true, "ByBlock"}, {"42", true, "42"}, {"10, 20 ,30", true, "10,20,30"},
      {"257", false, ""}, {"-1", false, ""}, {"1,2", false, ""}, {"300,0,0", false, ""}, {"purple", false, ""},
  };
  for (const Case& c : cases) {
    OdCmColor color;
    EXPECT_EQ(OdCmColor::parse(c.text, color), c.ok) << c.text;
    if (c.ok) {
      EXPECT_EQ(color.description().toStdString(), c.description) << c.text;
    }
  }
  uint8_t r, g, b;
  OdCmColor::paletteRGB(10, r, g, b);
  EXPECT_EQ(std::vector<int>({r, g, b}), std::vector<int>({255, 0, 0}));
  EXPECT_EQ(OdCmTransparency::fromPacked(OdCmTransparency::fromPercent(40).packed()).percent(), 40);
}

}  // namespace
