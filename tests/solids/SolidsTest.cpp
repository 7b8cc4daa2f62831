// Solids, regions and surfaces of real drawings: the rows each kind lists,
// the read-only rules and do-nothing setters, refusals that leave the
// object as it was, region measures against the drawing's own corner
// points, a move saved and read again, and byte-identical round trips.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbModelerGeometry.h"
#include <QFile>
#include <cmath>

namespace {

const QString kSamples = QStringLiteral(ZQ_SAMPLES_DIR "/");

OdDbDatabasePtr load(const char* name, QByteArray* bytes = nullptr) {
  QFile f(kSamples + name);
  EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << name;
  const QByteArray data = f.readAll();
  if (bytes) *bytes = data;
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(data, error);
  EXPECT_TRUE(db) << name << ": " << error.toStdString();
  return db;
}

OdDbObjectId byHandle(OdDbDatabase* db, quint64 h) { return db->getOdDbObjectId(OdDbHandle(h)); }

// The names of the Geometry and Misc rows, in order, with "!" for read-only ones.
QStringList ownRows(const OdDbObjectId& id) {
  OdDbObjectPtr o = id.openObject(OdDb::kForRead);
  std::unique_ptr<CZqPropertiesContainer> rows = zqRowsOf(o.get());
  QStringList out;
  for (int i = 0; i < rows->GetCount(); ++i) {
    CZqPropertyDescription* d = rows->GetAt(i);
    const QString cat = d->GetCategory().qstring();
    if (cat != "Geometry" && cat != "Misc") continue;
    out << d->GetName().qstring() + (d->IsReadOnly(o.get()) ? "!" : "");
  }
  return out;
}

class SolidsTest : public ZqDrawingTest {};

struct KindCase {
  const char* file;
  quint64 handle;
  const char* rows;
};

// Each modelled object of the samples with the rows it lists.
const KindCase kKinds[] = {
    {"ezdxf__examples_dxf__uncommon.dxf", 0x62C,
     "Solid type!,Position X,Position Y,Position Z,Length,Width,Height,Rotation!"},
    {"ezdxf__examples__acistools__3dsolids.dxf", 0x99, "Solid type!,Position X,Position Y,Position Z"},
    {"libredwg__test__test-data__example_2000.dxf", 0x176, "Area!,Perimeter!"},
    {"libredwg__test__test-data__2004__Surface.dxf", 0x34D,
     "U isolines,V isolines,Surface Type!,Number of Cross sections!,Number of Guide curves!,Surface normal,Closed"},
    {"libredwg__test__test-data__2004__Surface.dxf", 0x2D8,
     "U isolines,V isolines,Surface type!,Height,Taper angle,Direction x!,Direction y!,Direction z!"},
    {"libredwg__test__test-data__2004__Surface.dxf", 0x411,
     "U isolines,V isolines,Surface type!,Profile rotation,Scale along path,Twist along path,Bank!,Length!"},
};

TEST_F(SolidsTest, EachKindListsItsRowsAndReadOnlyStates) {
  for (const KindCase& c : kKinds) {
    OdDbDatabasePtr d = load(c.file);
    ASSERT_TRUE(d);
    EXPECT_EQ(ownRows(byHandle(d.get(), c.handle)).join(','), QString(c.rows)) << c.file << " " << std::hex << c.handle;
  }
}

TEST_F(SolidsTest, BoxShowsItsHistoryAndRefusesWhatItCannotRebuild) {
  OdDbDatabasePtr d = load("ezdxf__examples_dxf__uncommon.dxf");
  const OdDbObjectId id = byHandle(d.get(), 0x62C);
  // The primitive record's numbers (40, 41, 42) and placement (43, 47, 51 in degrees).
  EXPECT_DOUBLE_EQ(get(id, "Geometry", "Length").GetDouble(), 5.212766356463204);
  EXPECT_DOUBLE_EQ(get(id, "Geometry", "Height").GetDouble(), 0.6383777655023177);
  EXPECT_NEAR(get(id, "Geometry", "Position Z").GetDouble(), 18.28817584913748 * OdaPI / 180, 1e-12);
  const size_t before = messageCount();
  EXPECT_EQ(set(id, "Geometry", "Rotation", CZqVariant(1.0, true)), 5100);
  EXPECT_EQ(messageCount(), before);
  EXPECT_EQ(set(id, "Geometry", "Length", CZqVariant(-1.0, true)), -5001);
  EXPECT_EQ(GetZqSystemServices()->Messages().back().text.qstring(), QString("Invalid input."));
  EXPECT_EQ(set(id, "Geometry", "Length", CZqVariant(7.0, true)), -5001);
  EXPECT_EQ(set(id, "Geometry", "Length", CZqVariant("7")), -5001);
  EXPECT_DOUBLE_EQ(get(id, "Geometry", "Length").GetDouble(), 5.212766356463204);
}

// Moving a solid with SAT text moves its history and its body by the same
// amount; after saving and reading again both say so.
TEST_F(SolidsTest, MovedSolidKeepsHistoryAndBodyTogetherThroughASave) {
  OdDbDatabasePtr d = load("ezdxf__examples__acistools__3dsolids.dxf");
  const OdDbObjectId id = byHandle(d.get(), 0x99);
  OdGeExtents3d was;
  ASSERT_TRUE(openAs<OdDb3dSolid>(id)->bodyExtents(was));
  ASSERT_EQ(set(id, "Geometry", "Position X", CZqVariant(was.center().x + 10, true)), 5100);
  QString error;
  const QByteArray saved = OdDxf::writeDrawing(d.get(), &error);
  ASSERT_FALSE(saved.isEmpty()) << error.toStdString();
  OdDbDatabasePtr again = OdDxf::readDrawing(saved, error);
  ASSERT_TRUE(again) << error.toStdString();
  OdGeExtents3d now;
  ASSERT_TRUE(OdDb3dSolid::cast(byHandle(again.get(), 0x99).openObject().get())->bodyExtents(now));
  EXPECT_NEAR(now.minPoint().x - was.minPoint().x, 10, 1e-9);
  EXPECT_NEAR(now.maxPoint().y - was.maxPoint().y, 0, 1e-9);
}

// The rectangle's corners, read from the drawing's SAT points by ezdxf.
TEST_F(SolidsTest, RegionAreaAndPerimeterMatchItsCorners) {
  OdDbDatabasePtr d = load("libredwg__test__test-data__example_2000.dxf");
  const double w = 6836.331483613786986 - 3632.041854448754748, h = 3983.339979056661832 + 45.80779034293664154;
  OdSmartPtr<OdDbRegion> r = OdDbRegion::cast(byHandle(d.get(), 0x176).openObject().get());
  double area = 0, perimeter = 0;
  ASSERT_TRUE(r->measures(area, perimeter));
  EXPECT_NEAR(area, w * h, 1e-6);
  EXPECT_NEAR(perimeter, 2 * (w + h), 1e-6);
}

// A square with a round hole and an arc-bounded half disc, made as SAT text.
TEST_F(SolidsTest, RegionMeasuresArcsAndHoles) {
  const QByteArray sat =
      "700 0 1 0\n@4 test 0\n1 1e-06 1e-10\n"
      "body $-1 -1 $-1 $1 $-1 $-1 #\n"                                   // 0
      "lump $-1 -1 $-1 $-1 $2 $0 #\n"                                    // 1
      "shell $-1 -1 $-1 $-1 $-1 $3 $-1 $1 #\n"                           // 2
      "face $-1 -1 $-1 $-1 $4 $2 $-1 $5 forward double out #\n"          // 3
      "loop $-1 -1 $-1 $6 $7 $3 #\n"                                     // 4 outer: square 10x10
      "plane-surface $-1 -1 $-1 0 0 0 0 0 1 1 0 0 forward_v I I I I #\n" // 5
      "loop $-1 -1 $-1 $-1 $8 $3 #\n"                                    // 6 hole: circle r=2
      "coedge $-1 -1 $-1 $7 $7 $-1 $9 forward $4 $-1 #\n"                // 7 one edge around the square? (see 9)
      "coedge $-1 -1 $-1 $8 $8 $-1 $10 forward $6 $-1 #\n"               // 8
      "edge $-1 -1 $-1 $11 0 $11 1 $7 $12 forward @7 unknown #\n"        // 9 a full circle r=5 as outer
      "edge $-1 -1 $-1 $13 0 $13 1 $8 $14 forward @7 unknown #\n"        // 10
      "vertex $-1 -1 $-1 $9 $15 #\n"                                     // 11
      "ellipse-curve $-1 -1 $-1 0 0 0 0 0 1 5 0 0 1 I I #\n"             // 12
      "vertex $-1 -1 $-1 $10 $16 #\n"                                    // 13
      "ellipse-curve $-1 -1 $-1 1 1 0 0 0 1 0 2 0 1 I I #\n"             // 14
      "point $-1 -1 $-1 5 0 0 #\n"                                       // 15
      "point $-1 -1 $-1 1 3 0 #\n"                                       // 16
      "End-of-ACIS-data\n";
  double area = 0, perimeter = 0;
  QString why;
  ASSERT_TRUE(OdDbAcis::regionMeasures({sat, {}}, area, perimeter, &why)) << why.toStdString();
  EXPECT_NEAR(area, OdaPI * 25 - OdaPI * 4, 1e-9);
  EXPECT_NEAR(perimeter, Oda2PI * 5 + Oda2PI * 2, 1e-9);
  // Cut off in the middle of a record: not computable, with a reason.
  EXPECT_FALSE(OdDbAcis::regionMeasures({sat.left(sat.indexOf("vertex")) + "vertex $-1", {}}, area, perimeter, &why));
  EXPECT_FALSE(why.isEmpty());
}

TEST_F(SolidsTest, SolidInformationLinesFollowTheRows) {
  OdDbDatabasePtr d = load("ezdxf__examples_dxf__uncommon.dxf");
  const auto lines = info(byHandle(d.get(), 0x62C));
  const auto* type = infoLine(lines, "Solid type");
  ASSERT_TRUE(type);
  EXPECT_EQ(type->value.toString(), QString("Box"));
  const auto* length = infoLine(lines, "Length");
  ASSERT_TRUE(length);
  EXPECT_DOUBLE_EQ(length->value.toDouble(), 5.212766356463204);
}

TEST_F(SolidsTest, EverySampleWithModellerDataRoundTripsByteForByte) {
  for (const char* name : {"ezdxf__examples__acistools__3dsolids.dxf", "ezdxf__examples_dxf__uncommon.dxf",
                           "ezdxf__exploration__acis__torus_r2000.dxf", "ezdxf__exploration__acis__torus_r2010.dxf",
                           "libredwg__test__test-data__2000__TS1.dxf", "libredwg__test__test-data__2004__Surface.dxf",
                           "libredwg__test__test-data__example_2000.dxf", "libredwg__test__test-data__example_2018.dxf",
                           "libredwg__test__test-data__example_r14.dxf"}) {
    QByteArray bytes;
    OdDbDatabasePtr d = load(name, &bytes);
    ASSERT_TRUE(d);
    EXPECT_TRUE(OdDxf::writeDrawing(d.get()) == bytes) << name;
  }
}

}  // namespace
