// Solids, regions and surfaces of real drawings: the rows each kind lists,
// the read-only rules and do-nothing setters, refusals that leave the
// object as it was, region measures against the drawing's own corner
// points, a move saved and read again, and byte-identical round trips.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbModelerGeometry.h"
#include <QFile>
#include <QTemporaryDir>
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

OdGeVector3d sizeOf(const OdGeExtents3d& e) { return e.maxPoint() - e.minPoint(); }

OdDbDatabasePtr saveAndReload(OdDbDatabase* db, QByteArray* saved = nullptr) {
  QString error;
  const QByteArray bytes = OdDxf::writeDrawing(db, &error);
  EXPECT_FALSE(bytes.isEmpty()) << error.toStdString();
  if (saved) *saved = bytes;
  OdDbDatabasePtr again = OdDxf::readDrawing(bytes, error);
  EXPECT_TRUE(again) << error.toStdString();
  return again;
}

// ezdxf's own reader: the drawing's problems found by its audit, and for
// each solid handle the box of its body's points placed by its transform,
// from ezdxf's decoding of the binary records (its body loader does not
// take a transform stored as vectors, as this drawing's own body has it).
const char* const kEzdxfBoxes = R"(
import sys, ezdxf
from ezdxf.acis import sab
doc = ezdxf.readfile(sys.argv[1])
print("errors", len(doc.audit().errors))
for h in sys.argv[2:]:
    records = sab.parse_sab(doc.entitydb[h].sab).entities
    def vecs(e, tag): return [t.value for t in e.data if t.tag == tag]
    t = [e for e in records if e.name == "transform"][0]
    x, y, z, move = vecs(t, sab.Tags.DIRECTION_VEC)
    pts = [vecs(e, sab.Tags.LOCATION_VEC)[0] for e in records if e.name == "point"]
    vs = [[p[0] * x[i] + p[1] * y[i] + p[2] * z[i] + move[i] for i in range(3)] for p in pts]
    print(h, *["%.12g" % min(v[i] for v in vs) for i in range(3)], *["%.12g" % max(v[i] for v in vs) for i in range(3)])
)";

// The box of the sample (its body binary, R2018): a new length rebuilds the
// body, and after a save both the history and the body say so, here and in
// ezdxf.
TEST_F(SolidsTest, BoxLengthEditRebuildsBodyThroughASave) {
  OdDbDatabasePtr d = load("ezdxf__examples_dxf__uncommon.dxf");
  const OdDbObjectId id = byHandle(d.get(), 0x62C);
  const double length = 5.212766356463204;
  OdGeExtents3d was;
  ASSERT_TRUE(openAs<OdDb3dSolid>(id)->bodyExtents(was));
  EXPECT_NEAR(sizeOf(was).x, length, 1e-9);  // the file's own body, read from its binary form
  const size_t before = messageCount();
  EXPECT_EQ(set(id, "Geometry", "Rotation", CZqVariant(1.0, true)), 5100);
  EXPECT_EQ(set(id, "Geometry", "Length", CZqVariant(-1.0, true)), -5001);
  EXPECT_EQ(GetZqSystemServices()->Messages().back().text.qstring(), QString("Invalid input."));
  EXPECT_EQ(set(id, "Geometry", "Length", CZqVariant("7")), -5001);
  EXPECT_DOUBLE_EQ(get(id, "Geometry", "Length").GetDouble(), length);
  EXPECT_EQ(messageCount(), before + 1);

  ASSERT_EQ(set(id, "Geometry", "Length", CZqVariant(7.0, true)), 5100);
  QByteArray saved;
  OdDbDatabasePtr again = saveAndReload(d.get(), &saved);
  ASSERT_TRUE(again);
  const OdDbObjectId id2 = byHandle(again.get(), 0x62C);
  EXPECT_DOUBLE_EQ(get(id2, "Geometry", "Length").GetDouble(), 7.0);
  OdGeExtents3d now;
  ASSERT_TRUE(openAs<OdDb3dSolid>(id2)->bodyExtents(now));
  EXPECT_NEAR(sizeOf(now).x - sizeOf(was).x, 7.0 - length, 1e-9);
  EXPECT_NEAR(sizeOf(now).y, sizeOf(was).y, 1e-9);
  EXPECT_NEAR(sizeOf(now).z, sizeOf(was).z, 1e-9);
  EXPECT_TRUE(now.center().isEqualTo(was.center(), OdGeTol(1e-9)));

  int code = -1;
  zqRunPython("import ezdxf.acis.api", {}, &code);
  if (code != 0) GTEST_SKIP() << "/usr/bin/python3 with ezdxf not available";
  QTemporaryDir dir;
  QFile f(dir.filePath("box.dxf"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(saved);
  f.close();
  const QStringList out = zqRunPython(kEzdxfBoxes, {f.fileName(), "62C"}, &code).split('\n');
  ASSERT_EQ(code, 0) << out.join('\n').toStdString();
  EXPECT_EQ(out.value(0), QString("errors 0"));
  const QStringList box = out.value(1).split(' ');
  ASSERT_EQ(box.size(), 7) << out.join('\n').toStdString();
  for (int i = 0; i < 3; ++i) {
    EXPECT_NEAR(box[1 + i].toDouble(), now.minPoint()[i], 1e-9) << i;
    EXPECT_NEAR(box[4 + i].toDouble(), now.maxPoint()[i], 1e-9) << i;
  }
}

struct PrimitiveCase {
  OdDbSolidHistory::Kind kind;
  std::vector<std::pair<int, double>> values;
  OdGeVector3d size;  // of the body's box
};

// Each buildable kind made from the sample box's history (same placement,
// other kind and parameters), saved and read again: the body's box has the
// primitive's own size about the history's origin.
TEST_F(SolidsTest, EachPrimitiveKindRebuildsItsBody) {
  const double r4 = 2 / std::cos(OdaPI / 4);  // corner distance of a square whose sides touch radius 2
  const PrimitiveCase cases[] = {
      {OdDbSolidHistory::kBox, {{40, 3}, {41, 2}, {42, 1}}, {3, 2, 1}},
      {OdDbSolidHistory::kWedge, {{40, 4}, {41, 3}, {42, 2}}, {4, 3, 2}},
      {OdDbSolidHistory::kPyramid, {{40, 5}, {41, 2}, {42, 0}, {92, 4}, {280, 0}}, {4, 4, 5}},
      {OdDbSolidHistory::kPyramid, {{40, 5}, {41, 2}, {42, 1}, {92, 4}, {280, 1}}, {2 * r4, 2 * r4, 5}},
      {OdDbSolidHistory::kCylinder, {{40, 3}, {41, 2}, {42, 2}}, {4, 4, 3}},
      {OdDbSolidHistory::kCone, {{40, 2}, {41, 3}, {42, 1}, {43, 4}}, {8, 2 * 4.0 / 3, 2}},
      {OdDbSolidHistory::kSphere, {{40, 1.5}}, {3, 3, 3}},
      {OdDbSolidHistory::kTorus, {{40, 4}, {41, 1}}, {10, 10, 10}},  // the box read around a torus is its ball
  };
  for (const PrimitiveCase& c : cases) {
    OdDbDatabasePtr d = load("ezdxf__examples_dxf__uncommon.dxf");
    const OdDbObjectId id = byHandle(d.get(), 0x62C);
    OdDbSolidHistory h = openAs<OdDb3dSolid>(id)->history();
    const OdGePoint3d origin = h.transform * OdGePoint3d::kOrigin;
    h.kind = c.kind;
    h.values = c.values;
    {
      OdDb3dSolidPtr s = OdDb3dSolid::cast(id.openObject(OdDb::kForWrite).get());
      QString why;
      ASSERT_TRUE(s->rebuild(h, &why)) << why.toStdString();
    }
    OdDbDatabasePtr again = saveAndReload(d.get());
    ASSERT_TRUE(again);
    OdGeExtents3d e;
    ASSERT_TRUE(openAs<OdDb3dSolid>(byHandle(again.get(), 0x62C))->bodyExtents(e)) << c.kind;
    EXPECT_TRUE(sizeOf(e).isEqualTo(c.size, OdGeTol(1e-9))) << c.kind << ": " << sizeOf(e).x << " " << sizeOf(e).y << " " << sizeOf(e).z;
    // The height is centred on the history's origin.
    EXPECT_NEAR(e.center().z, origin.z, 1e-9) << c.kind;
  }
}

// A wedge built as SAT text in the version of a drawing's own SAT body,
// turned a quarter about Z and moved: ezdxf loads it and meshes its planar
// faces to the same box as the one read here.
TEST_F(SolidsTest, SatBodyOfARotatedWedgeLoadsInEzdxf) {
  OdDbDatabasePtr d = load("ezdxf__examples__acistools__3dsolids.dxf");
  const OdDbAcisData like = openAs<OdDb3dSolid>(byHandle(d.get(), 0x99))->acisData();
  ASSERT_FALSE(like.sat.isEmpty());
  OdDbSolidHistory h;
  h.kind = OdDbSolidHistory::kWedge;
  h.values = {{40, 4}, {41, 2}, {42, 1}};
  h.transform = OdGeMatrix3d::translation({10, 20, 30}) * OdGeMatrix3d::rotation(OdaPI / 2, OdGeVector3d::kZAxis);
  OdDbAcisData built;
  QString why;
  ASSERT_TRUE(OdDbAcis::buildPrimitive(h, like, built, &why)) << why.toStdString();
  EXPECT_TRUE(built.sat.startsWith(like.sat.left(like.sat.indexOf('\n') + 1)));  // the same header
  OdGeExtents3d e;
  ASSERT_TRUE(OdDbAcis::extents(built, e, &why)) << why.toStdString();
  EXPECT_TRUE(e.minPoint().isEqualTo({9, 18, 29.5}, OdGeTol(1e-9)));
  EXPECT_TRUE(e.maxPoint().isEqualTo({11, 22, 30.5}, OdGeTol(1e-9)));

  int code = -1;
  zqRunPython("import ezdxf.acis.api", {}, &code);
  if (code != 0) GTEST_SKIP() << "/usr/bin/python3 with ezdxf not available";
  const QString out = zqRunPython(R"(
import sys
from ezdxf.acis import api
body = api.load(sys.argv[1])[0]
vs = [v for m in api.mesh_from_body(body) for v in m.vertices]
print(*["%.9f" % f(v[i] for v in vs) for f in (min, max) for i in range(3)])
)", {QString::fromLatin1(built.sat)}, &code);
  ASSERT_EQ(code, 0) << out.toStdString();
  EXPECT_EQ(out.trimmed(), QString("9.000000000 18.000000000 29.500000000 11.000000000 22.000000000 30.500000000"));
}

// A cone's rows follow its base: four radius rows for an elliptical base,
// two for a round one; a new height builds the elliptical body.
TEST_F(SolidsTest, EllipticalConeShowsFourRadiusRows) {
  OdDbDatabasePtr d = load("ezdxf__examples_dxf__uncommon.dxf");
  const OdDbObjectId id = byHandle(d.get(), 0x62C);
  const std::pair<double, const char*> cases[] = {
      {2, "Solid type!,Position X,Position Y,Position Z,Elliptical!,Base radius,Top radius,Height,Rotation!"},
      {1, "Solid type!,Position X,Position Y,Position Z,Elliptical!,Base major radius,Base minor radius,"
          "Top major radius,Top minor radius,Height,Rotation!"}};
  for (const auto& [minor, rows] : cases) {
    {
      OdDb3dSolidPtr s = OdDb3dSolid::cast(id.openObject(OdDb::kForWrite).get());
      OdDbSolidHistory h = s->history();
      h.kind = OdDbSolidHistory::kCone;
      h.values = {{40, 3}, {41, 2}, {42, minor}, {43, 1}};
      s->setHistory(h);
    }
    EXPECT_EQ(ownRows(id).join(','), QString(rows)) << minor;
    EXPECT_EQ(get(id, "Geometry", "Elliptical").GetCollection().GetCurrent(), minor == 2 ? 1 : 0);
  }
  EXPECT_DOUBLE_EQ(get(id, "Geometry", "Top minor radius").GetDouble(), 0.5);  // the base's proportion
  EXPECT_EQ(set(id, "Geometry", "Height", CZqVariant(4.0, true)), 5100);
  OdGeExtents3d e;
  ASSERT_TRUE(openAs<OdDb3dSolid>(id)->bodyExtents(e));
  EXPECT_TRUE(sizeOf(e).isEqualTo({4, 2, 4}, OdGeTol(1e-9)));
}

// Isoline counts are edited, kept through a save, and bad counts refused.
TEST_F(SolidsTest, SurfaceIsolinesAreEditedAndSaved) {
  OdDbDatabasePtr d = load("libredwg__test__test-data__2004__Surface.dxf");
  const OdDbObjectId id = byHandle(d.get(), 0x2D8);
  const CZqVariant was = get(id, "Geometry", "V isolines");
  EXPECT_EQ(set(id, "Geometry", "U isolines", CZqVariant(int32_t(12))), 5100);
  for (const CZqVariant& bad : {CZqVariant(int32_t(-1)), CZqVariant(int32_t(2048)), CZqVariant(2.5, true)})
    EXPECT_EQ(set(id, "Geometry", "V isolines", bad), -5001);
  OdDbDatabasePtr again = saveAndReload(d.get());
  ASSERT_TRUE(again);
  const OdDbObjectId id2 = byHandle(again.get(), 0x2D8);
  EXPECT_EQ(get(id2, "Geometry", "U isolines").GetInt32(), 12);
  EXPECT_EQ(get(id2, "Geometry", "V isolines").GetInt32(), was.GetInt32());
}

// Parameters that make no solid are refused with a sentence; the solid
// keeps its body and history.
TEST_F(SolidsTest, ParametersThatMakeNoSolidAreRefused) {
  OdDbDatabasePtr d = load("ezdxf__examples_dxf__uncommon.dxf");
  const OdDbObjectId id = byHandle(d.get(), 0x62C);
  OdDb3dSolidPtr s = OdDb3dSolid::cast(id.openObject(OdDb::kForWrite).get());
  const OdDbAcisData body = s->acisData();
  const OdDbSolidHistory history = s->history();
  const std::pair<OdDbSolidHistory::Kind, std::vector<std::pair<int, double>>> bad[] = {
      {OdDbSolidHistory::kBox, {{40, 0}, {41, 1}, {42, 1}}},
      {OdDbSolidHistory::kWedge, {{40, 1}, {41, -1}, {42, 1}}},
      {OdDbSolidHistory::kTorus, {{40, 2}, {41, 2}}},
      {OdDbSolidHistory::kPyramid, {{40, 1}, {41, 1}, {42, 0}, {92, 2}}},
      {OdDbSolidHistory::kSphere, {{40, 0}}},
      {OdDbSolidHistory::kCone, {{40, 1}, {41, 2}, {42, 2}, {43, 2}}},
      {OdDbSolidHistory::kCylinder, {{40, 1}, {41, 2}, {42, 0}}},
      {OdDbSolidHistory::kExtrude, {{40, 1}}},
  };
  for (const auto& [kind, values] : bad) {
    OdDbSolidHistory h = history;
    h.kind = kind;
    h.values = values;
    QString why;
    EXPECT_FALSE(s->rebuild(h, &why)) << kind;
    EXPECT_FALSE(why.isEmpty()) << kind;
    EXPECT_TRUE(s->acisData() == body) << kind;
    EXPECT_TRUE(s->history() == history) << kind;
  }
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
