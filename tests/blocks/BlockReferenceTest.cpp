// Block references and multiple inserts: rows on constructed references in
// a rotated UCS, refusals, attribute edits read back by ezdxf, and every
// reference of the sample drawings (block definitions and paper space
// included) listed with its own rows and saved back unchanged.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbBlockReference.h"
#include "DbText.h"
#include <QFile>
#include <QTemporaryDir>
#include <cmath>

namespace {

class BlockReferenceTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addBlock(const char* name, int scaling) {
    auto block = OdDbBlockTableRecord::createObject();
    block->setName(name);
    block->setOrigin(OdGePoint3d(1, 1, 0));
    block->setBlockScaling(scaling);
    OdDbObjectPtr t = db->getBlockTableId().openObject(OdDb::kForWrite);
    return static_cast<OdDbSymbolTable*>(t.get())->add(block.get());
  }
  OdDbObjectId addReference(const OdDbObjectId& block, bool multiple = false) {
    OdDbBlockReferencePtr ref = multiple ? OdDbBlockReferencePtr(OdDbMInsertBlock::createObject())
                                         : OdDbBlockReference::createObject();
    ref->setBlockTableRecord(block);
    ref->setPosition(OdGePoint3d(4, 5, 6));
    ref->setScaleFactors(OdGeScale3d(2, 3, 4));
    return addToModelSpace(ref.get());
  }
  QString lastMessage() const { return GetZqSystemServices()->Messages().back().text.qstring(); }
};

TEST_F(BlockReferenceTest, RowsShowAndEditThePlacementInTheCurrentUcs) {
  useRotatedUcs();
  const OdDbObjectId ref = addReference(addBlock("B", 0));
  const OdGePoint3d ucs = toUcs(OdGePoint3d(4, 5, 6));
  const char* axes[] = {"Position X", "Position Y", "Position Z"};
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(get(ref, "Geometry", axes[i]).GetDouble(), ucs[i], 1e-9) << axes[i];
  EXPECT_EQ(set(ref, "Geometry", "Position X", CZqVariant(20.0, true)), kZqSetApplied);
  const OdGePoint3d moved = toUcs(openAs<OdDbBlockReference>(ref)->position());
  EXPECT_NEAR(moved.x, 20, 1e-9);
  EXPECT_NEAR(moved.y, ucs.y, 1e-9);
  // Normals are shown in the UCS too: the rotated UCS keeps Z.
  EXPECT_NEAR(get(ref, "Misc", "Normal Z").GetDouble(), 1, 1e-12);
  EXPECT_NEAR(get(ref, "Misc", "Normal X").GetDouble(), 0, 1e-12);
  EXPECT_EQ(get(ref, "Misc", "Name").GetCollection().GetAt(get(ref, "Misc", "Name").GetCollection().GetCurrent())
                .GetValue().GetString().qstring(),
            "B");
}

TEST_F(BlockReferenceTest, ScalesFollowTheBlocksScalingAndRefuseZero) {
  struct Case {
    int scaling;
    double value;
    int result;
    OdGeScale3d expected;
  };
  const Case cases[] = {
      {0, -1.5, kZqSetApplied, {2, -1.5, 4}},   // any factors: only Y changes (a mirror)
      {1, 5.0, kZqSetApplied, {5, 5, 5}},       // uniform: every axis takes it
      {0, 0.0, kZqSetRefused, {2, 3, 4}},       // zero refused, nothing changed
      {0, 1e-12, kZqSetRefused, {2, 3, 4}},     // counts as zero
  };
  int n = 0;
  for (const Case& c : cases) {
    SCOPED_TRACE(n);
    const OdDbObjectId ref = addReference(addBlock(qPrintable(QString("S%1").arg(n++)), c.scaling));
    const size_t before = messageCount();
    EXPECT_EQ(set(ref, "Geometry", "Scale Y", CZqVariant(c.value, false)), c.result);
    EXPECT_TRUE(openAs<OdDbBlockReference>(ref)->scaleFactors() == c.expected);
    EXPECT_EQ(messageCount(), before + (c.result == kZqSetRefused ? 1 : 0));
    if (c.result == kZqSetRefused) {
      EXPECT_EQ(lastMessage(), "A scale factor cannot be 0.");
    }
  }
}

TEST_F(BlockReferenceTest, TheBlockIsChosenAmongTheDrawingsBlocks) {
  const OdDbObjectId a = addBlock("A", 0), b = addBlock("Other", 0);
  const OdDbObjectId ref = addReference(a);
  // Layouts and anonymous blocks are not offered.
  const CZqVariantCollection choices = get(ref, "Misc", "Name").GetCollection();
  QStringList words;
  for (int i = 0; i < choices.GetCount(); ++i) words << choices.GetAt(i).GetValue().GetString().qstring();
  EXPECT_EQ(words, (QStringList{"A", "Other"}));
  EXPECT_EQ(set(ref, "Misc", "Name", CZqVariant(choices.GetAt(1))), kZqSetApplied);
  EXPECT_EQ(openAs<OdDbBlockReference>(ref)->blockTableRecord(), b);
  for (const char* bad : {"Missing", "*Model_Space"}) {
    EXPECT_EQ(set(ref, "Misc", "Name", CZqVariant(bad)), kZqSetRefused) << bad;
    EXPECT_EQ(openAs<OdDbBlockReference>(ref)->blockTableRecord(), b);
  }
  EXPECT_EQ(lastMessage(), "A layout cannot be placed as a block.");
}

TEST_F(BlockReferenceTest, AttributesAreRowsByTagAndGridRowsCheckTheirCounts) {
  const OdDbObjectId ref = addReference(addBlock("G", 0), true);
  {
    OdDbBlockReferencePtr r = openAs<OdDbBlockReference>(ref, OdDb::kForWrite);
    for (const char* tag : {"NO", "NO", "ROOM"}) {
      auto att = OdDbAttribute::createObject();
      att->setTag(tag);
      att->setTextString(OdString(QString(tag).toLower()));
      r->appendAttribute(att.get());
    }
  }
  EXPECT_EQ(get(ref, "Attributes", "NO (2)").GetString().qstring(), "no");
  EXPECT_EQ(set(ref, "Attributes", "ROOM", CZqVariant("Kitchen")), kZqSetApplied);
  EXPECT_EQ(set(ref, "Attributes", "NO (2)", CZqVariant("two\nlines")), kZqSetRefused);
  const OdDbObjectIdArray ids = openAs<OdDbBlockReference>(ref)->attributeIds();
  EXPECT_EQ(openAs<OdDbAttribute>(ids[2])->textString().qstring(), "Kitchen");
  EXPECT_EQ(openAs<OdDbAttribute>(ids[1])->textString().qstring(), "no");

  struct Case {
    const char* row;
    CZqVariant value;
    int result;
  };
  const Case cases[] = {{"Columns", CZqVariant(int32_t(3)), kZqSetApplied},
                        {"Rows", CZqVariant(int32_t(0)), kZqSetRefused},
                        {"Rows", CZqVariant(2.5, false), kZqSetRefused},
                        {"Rows", CZqVariant(int32_t(40000)), kZqSetRefused}};
  for (const Case& c : cases) EXPECT_EQ(set(ref, "Misc", c.row, c.value), c.result) << c.row;
  OdDbMInsertBlockPtr m = openAs<OdDbMInsertBlock>(ref);
  EXPECT_EQ(m->columns(), 3);
  EXPECT_EQ(m->rows(), 1);
}

// --- The samples ---------------------------------------------------------------------

class BlockReferenceSamplesTest : public BlockReferenceTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(BlockReferenceSamplesTest, EveryReferenceListsWithItsOwnRowsAndRoundTrips) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + GetParam();
  int code = -1;
  const QMap<QString, QStringList> reference = zqPythonRowsByHandle(
      "import sys, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "for e in doc.entitydb.values():\n"
      "    if e.dxftype() == 'INSERT':\n"
      "        d = e.dxf\n"
      "        print(d.handle, d.name.replace(' ', '_'), d.xscale, d.yscale, d.rotation,\n"
      "              d.column_count, d.row_count, len(e.attribs))\n",
      {path}, &code);
  ASSERT_EQ(code, 0);
  ASSERT_FALSE(reference.isEmpty());
  QString error;
  db = OdDxf::readDrawing(path, error);
  ASSERT_TRUE(db) << error.toStdString();
  for (auto it = reference.cbegin(); it != reference.cend(); ++it) {
    SCOPED_TRACE(it.key().toStdString());
    const QStringList& f = it.value();
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(it.key().toULongLong(nullptr, 16)));
    ASSERT_FALSE(id.isNull());
    OdDbBlockReferencePtr ref = openAs<OdDbBlockReference>(id);
    ASSERT_TRUE(ref);
    const bool grid = f[5].toInt() > 1 || f[6].toInt() > 1;
    EXPECT_EQ(zqProviderFor(ref.get())->isA()->name().qstring(), grid ? "CZqMInsertBlockPE" : "CZqBlockReferencePE");
    EXPECT_EQ(QString(ref->blockName().qstring()).replace(' ', '_'), f[1]);
    EXPECT_NEAR(ref->scaleFactors().sx, f[2].toDouble(), 1e-9);
    EXPECT_NEAR(ref->scaleFactors().sy, f[3].toDouble(), 1e-9);
    EXPECT_NEAR(std::remainder(ref->rotation() * 180 / OdaPI - f[4].toDouble(), 360), 0, 1e-9);
    EXPECT_EQ(int(ref->attributeIds().size()), f[7].toInt());
    auto rows = zqRowsOf(ref.get());
    EXPECT_NE(zqRow(rows.get(), "Geometry", "Scale X"), nullptr);
    if (grid) {
      EXPECT_EQ(get(id, "Misc", "Columns").GetInt32(), f[5].toInt());
    }
  }
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(OdDxf::writeDrawing(db.get()) == file.readAll());
}

INSTANTIATE_TEST_SUITE_P(Samples, BlockReferenceSamplesTest,
                         ::testing::Values("libredwg__test__test-data__2013__gh109_1.dxf",
                                           "libredwg__test__test-data__example_2000.dxf",
                                           "libredwg__test__test-data__example_r14.dxf",
                                           "libredwg__test__test-data__2000__entities-2d.dxf",
                                           "libredwg__test__test-data__2000__TS1.dxf",
                                           "ezdxf__examples_dxf__text.dxf", "ezdxf__examples_dxf__uncommon.dxf",
                                           "netDxf__TestDxfDocument__sample.dxf"));

// An attribute edited through its reference's row: ezdxf reads the new value
// and the file changes in that one line.
TEST_F(BlockReferenceTest, AnAttributeEditIsReadBackByEzdxfAndChangesOnlyItsTag) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/libredwg__test__test-data__2000__entities-2d.dxf";
  QString error;
  db = OdDxf::readDrawing(path, error);
  ASSERT_TRUE(db) << error.toStdString();
  OdDbObjectId ref;
  QString tag;
  OdDbObjectPtr ms = db->getModelSpaceId().openObject();
  for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(ms.get())->entityIds()) {
    OdDbBlockReferencePtr r = OdDbBlockReference::cast(id.openObject().get());
    if (r && !r->attributeIds().isEmpty()) {
      ref = id;
      tag = openAs<OdDbAttribute>(r->attributeIds()[0])->tag().qstring();
    }
  }
  ms.release();
  ASSERT_FALSE(ref.isNull());
  ASSERT_EQ(set(ref, "Attributes", qPrintable(tag), CZqVariant("Edited value")), kZqSetApplied);
  QTemporaryDir dir;
  const QString out = dir.filePath("out.dxf");
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), out, error)) << error.toStdString();
  int code = -1;
  const QString text = zqRunPython(
      "import sys, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "e = doc.entitydb[sys.argv[2]]\n"
      "print(e.get_attrib_text(sys.argv[3]))\n",
      {out, QString::number(ref.getHandle().value(), 16).toUpper(), tag}, &code);
  ASSERT_EQ(code, 0);
  EXPECT_EQ(text.trimmed(), "Edited value");
  QFile a(path), b(out);
  ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
  const QList<QByteArray> was = a.readAll().split('\n'), now = b.readAll().split('\n');
  ASSERT_EQ(was.size(), now.size());
  int changed = 0;
  for (qsizetype i = 0; i < was.size(); ++i) changed += was[i] != now[i];
  EXPECT_EQ(changed, 1);
}

}  // namespace
