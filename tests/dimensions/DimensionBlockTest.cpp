// The block that draws a dimension after an edit, read back by ezdxf: an
// aligned dimension's block is drawn anew and shows the new measurement,
// the other dimensions keep theirs, and a kind that is not drawn here
// leaves out its block reference so that a reader draws it.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbDimension.h"
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {

const char* const kSample = "libredwg__test__test-data__2000__TS1.dxf";

// Per dimension: its block's entity kinds in order, the multiline text of
// the block, the measurement computed from its defining points (aligned
// only) and its precision.
const char* kBlocksView = R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
out = {}
for e in doc.modelspace().query('DIMENSION'):
    blk = e.get_geometry_block()
    kinds = [x.dxftype() for x in blk] if blk is not None else None
    texts = [x.plain_text() for x in blk if x.dxftype() == 'MTEXT'] if blk is not None else []
    m = None
    if e.dimtype == 1:
        m = (e.dxf.defpoint2 - e.dxf.defpoint3).magnitude
    out[e.dxf.handle] = {'kinds': kinds, 'texts': texts, 'measured': m, 'dec': e.override().get('dimdec')}
print(json.dumps(out))
)";

QJsonObject blocksOf(const QString& path) {
  int code = 0;
  const QString out = zqRunPython(QString::fromLatin1(kBlocksView), {path}, &code);
  EXPECT_EQ(code, 0) << out.toStdString();
  return QJsonDocument::fromJson(out.toUtf8()).object();
}

TEST(DimensionBlock, EditedAlignedDimensionIsDrawnAnewOthersKeepTheirBlocks) {
  const QString original = QString(ZQ_SAMPLES_DIR "/") + kSample;
  QFile f(original);
  if (!f.open(QIODevice::ReadOnly)) GTEST_SKIP() << "sample drawing missing";
  zqEnsureModuleLoaded();
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(f.readAll(), error);
  ASSERT_TRUE(db) << error.toStdString();
  {
    OdDbObjectPtr o = db->getOdDbObjectId(OdDbHandle(0x18C)).openObject(OdDb::kForWrite);
    auto* aligned = OdDbAlignedDimension::cast(o).get();
    ASSERT_NE(aligned, nullptr);
    const OdGeVector3d along = (aligned->xLine2Point() - aligned->xLine1Point()).normal();
    aligned->setXLine2Point(aligned->xLine2Point() + along * 1.25);
    // An angular dimension: not drawn here.
    OdDbObjectPtr a = db->getOdDbObjectId(OdDbHandle(0x19A)).openObject(OdDb::kForWrite);
    auto* angular = OdDb3PointAngularDimension::cast(a).get();
    ASSERT_NE(angular, nullptr);
    angular->setArcPoint(angular->arcPoint() + OdGeVector3d(0.5, 0.5, 0));
  }
  QTemporaryDir dir;
  const QString saved = dir.filePath("edited.dxf");
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), saved, error)) << error.toStdString();

  const QJsonObject before = blocksOf(original), after = blocksOf(saved);
  ASSERT_FALSE(after.isEmpty());
  const QJsonObject edited = after["18C"].toObject();
  const QStringList kinds = edited["kinds"].toVariant().toStringList();
  EXPECT_GE(kinds.count("LINE"), 3) << kinds.join(' ').toStdString();  // two extension lines and the dimension line
  EXPECT_EQ(kinds.count("SOLID") + kinds.count("INSERT"), 2);
  ASSERT_EQ(edited["texts"].toArray().size(), 1);
  const double shown = edited["texts"].toArray()[0].toString().toDouble();
  const double measured = edited["measured"].toDouble();
  EXPECT_NEAR(shown, measured, 0.51 * std::pow(10.0, -edited["dec"].toInt()));
  EXPECT_NE(before["18C"].toObject()["texts"], edited["texts"]);
  // The angular dimension names no block now; every other one keeps its own.
  EXPECT_TRUE(after["19A"].toObject()["kinds"].isNull());
  for (const QString& handle : before.keys())
    if (handle != "18C" && handle != "19A") {
      EXPECT_EQ(before[handle], after[handle]) << handle.toStdString();
    }
}

}  // namespace
