// Malformed drawings: refused with the line or byte offset where reading
// failed, or repaired with a warning that says what was repaired - never a
// crash, never a silently empty drawing. Drawings without handles (R12 with
// $HANDLING 0) load and keep having none.
#include "DxfDatabaseSupport.h"

#include <QRegularExpression>
#include <QTemporaryDir>


using namespace dxfdb;

namespace {

const QString kDuplicates = QStringLiteral("ezdxf__integration_tests__data__duplicate_handles.dxf");
const QString kRecover = QStringLiteral("ezdxf__integration_tests__data__recover01.dxf");

// The 1-based line on which `marker` starts in ASCII text (a leading line
// end in the marker only anchors it).
int lineOf(const QByteArray& text, const QByteArray& marker) {
  qsizetype at = text.indexOf(marker);
  if (at >= 0 && marker.startsWith('\n')) ++at;
  return at < 0 ? -1 : int(text.left(at).count('\n')) + 1;
}

// A minimal R2000 drawing around some ENTITIES records.
QByteArray drawing(const QByteArray& entities, const QByteArray& header = QByteArray()) {
  return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n" + header +
         "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" + entities + "  0\nENDSEC\n  0\nEOF\n";
}

const QByteArray kLine = "  0\nLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
                         " 11\n3.0\n 21\n4.0\n 31\n0.0\n";

TEST(DxfDatabaseMalformed, RefusedWithWhereAndWhat) {
  odDbInitialize();
  struct Case {
    const char* name;
    QByteArray bytes;
    QByteArray marker;  // where the message must point (its line), or empty
    const char* what;   // a piece of the message
  };
  QByteArray badNumber = kLine;
  badNumber.replace(" 20\n2.0\n", " 20\n2.0x\n");
  // A damaged record type: its control characters are spelled out, so the
  // message still starts with its line.
  QByteArray damagedType = badNumber;
  damagedType.replace("  0\nLINE\n", "  0\n\rLI\x01NE\n");
  QByteArray badHandle = kLine;
  badHandle.replace("  5\n2A\n", "  5\nQ7\n");
  const QByteArray polyline = "  0\nPOLYLINE\n  5\n30\n100\nAcDbEntity\n  8\n0\n100\nAcDb2dPolyline\n 66\n1\n 10\n0.0\n"
                              " 20\n0.0\n 30\n0.0\n 70\n0\n  0\nVERTEX\n  5\n31\n100\nAcDbEntity\n  8\n0\n100\nAcDbVertex\n"
                              "100\nAcDb2dVertex\n 10\n1.0\n 20\n1.0\n 30\n0.0\n";
  const QByteArray insert = "  0\nINSERT\n  5\n40\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockReference\n 66\n1\n  2\nB\n"
                            "  0\nATTRIB\n  5\n41\n100\nAcDbEntity\n  8\n0\n100\nAcDbText\n  1\nv\n";
  const QByteArray blocks = "  0\nSECTION\n  2\nBLOCKS\n  0\nBLOCK\n  5\n20\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockBegin\n"
                            "  2\nOPEN\n 70\n0\n" + kLine + "  0\nENDSEC\n  0\nEOF\n";
  const Case cases[] = {
      {"not DXF", "hello world\n", "hello", "not a DXF file"},
      {"empty", "", "", "empty file"},
      {"truncated", drawing(kLine).left(drawing(kLine).indexOf("3.0") + 1), "", "truncated"},
      {"number", drawing(badNumber), "2.0x", "group code 20 value '2.0x' is not a number"},
      {"damaged record type", drawing(damagedType), "2.0x", "\\rLI\\x01NE (handle 2A): group code 20 value '2.0x'"},
      {"handle", drawing(badHandle), "Q7", "handle 'Q7' of LINE is not hexadecimal"},
      {"no SEQEND", drawing(polyline + kLine), "\nLINE\n", "POLYLINE (handle 30) is not closed by SEQEND"},
      {"attributes without SEQEND", drawing(insert + kLine), "\nLINE\n", "INSERT (handle 40) has attributes not closed by SEQEND"},
      {"block without ENDBLK", blocks, "BLOCK\n", "BLOCK 'OPEN' is not closed by ENDBLK"},
      {"no drawing sections", "  0\nSECTION\n  2\nCLASSES\n  0\nENDSEC\n  0\nEOF\n", "", "no HEADER, TABLES, BLOCKS or ENTITIES"},
  };
  QTemporaryDir dir;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    QString error;
    QStringList warnings;
    EXPECT_FALSE(OdDxf::readDrawing(c.bytes, error, &warnings));
    EXPECT_TRUE(error.contains(QLatin1String(c.what))) << error.toStdString();
    const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("^line (\\d+): ")).match(error);
    ASSERT_TRUE(m.hasMatch()) << error.toStdString();
    if (!c.marker.isEmpty()) {
      EXPECT_EQ(m.captured(1).toInt(), lineOf(c.bytes, c.marker)) << error.toStdString();
    }
    // The same through a file.
    const QString path = dir.filePath(QStringLiteral("in.dxf"));
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(c.bytes);
    f.close();
    QString fileError;
    EXPECT_FALSE(OdDxf::readDrawing(path, fileError));
    EXPECT_EQ(fileError, error);
  }
  QString error;
  EXPECT_FALSE(OdDxf::readDrawing(QStringLiteral("/nonexistent/x.dxf"), error));
  EXPECT_TRUE(error.contains(QStringLiteral("cannot open"))) << error.toStdString();
}

// Binary DXF names byte offsets.
TEST(DxfDatabaseMalformed, BinaryRefusalsNameTheByteOffset) {
  odDbInitialize();
  OdDbDatabasePtr db = load(drawing(kLine));
  ASSERT_TRUE(db);
  OdDxf::File f;
  QString error;
  ASSERT_TRUE(OdDxf::File::read(drawing(kLine), f, error));
  const QByteArray bin = f.write(OdDxf::File::Form::Binary);
  // Our reading of the binary form: the same drawing.
  OdDbDatabasePtr fromBin = load(bin);
  ASSERT_TRUE(fromBin);
  EXPECT_EQ(save(fromBin.get()), bin);

  // A handle that is not hexadecimal: its value's offset in the file.
  QByteArray badHandle = bin;
  const qsizetype at = badHandle.indexOf(QByteArray("2A\0", 3));
  ASSERT_GT(at, 0);
  badHandle[at] = 'Q';
  EXPECT_FALSE(OdDxf::readDrawing(badHandle, error));
  EXPECT_TRUE(error.startsWith(QStringLiteral("byte offset %1:").arg(at - 2))) << error.toStdString();
  EXPECT_TRUE(error.contains(QStringLiteral("not hexadecimal"))) << error.toStdString();
  // Cut short.
  EXPECT_FALSE(OdDxf::readDrawing(bin.left(bin.size() - 30), error));
  EXPECT_TRUE(error.startsWith(QStringLiteral("byte offset "))) << error.toStdString();
}

// Values a drawing may not have: the default or the nearest valid value,
// with a warning naming the line; the file keeps its bytes.
TEST(DxfDatabaseMalformed, OutOfRangeValuesAreRepairedWithAWarning) {
  odDbInitialize();
  struct Case {
    const char* name;
    QByteArray header;
    QByteArray entity;
    QByteArray marker;
    const char* what;
    std::function<void(OdDbDatabase*)> check;
  };
  QByteArray badColor = kLine;
  badColor.replace("  8\n0\n", "  8\n0\n 62\n300\n");
  QByteArray zeroNormal = kLine;
  zeroNormal.replace(" 31\n0.0\n", " 31\n0.0\n210\n0.0\n220\n0.0\n230\n0.0\n");
  QByteArray badScale = kLine;
  badScale.replace("  8\n0\n", "  8\n0\n 48\n-2.0\n");
  const Case cases[] = {
      {"LUNITS", "  9\n$LUNITS\n 70\n9\n", kLine, "\n9\n", "$LUNITS 9 out of range (1..5); default kept: 2",
       [](OdDbDatabase* db) { EXPECT_EQ(db->getLUNITS(), 2); }},
      {"LUPREC", "  9\n$LUPREC\n 70\n12\n", kLine, "12\n", "$LUPREC 12 out of range (0..8); clamped to 8",
       [](OdDbDatabase* db) { EXPECT_EQ(db->getLUPREC(), 8); }},
      {"AUNITS text", "  9\n$AUNITS\n 70\nxx\n", kLine, "xx\n", "$AUNITS value 'xx' is not a number",
       [](OdDbDatabase* db) { EXPECT_EQ(db->getAUNITS(), 0); }},
      {"UCS axes", "  9\n$UCSORG\n 10\n1.0\n 20\n2.0\n 30\n3.0\n  9\n$UCSXDIR\n 10\n1.0\n 20\n0.0\n 30\n0.0\n"
                   "  9\n$UCSYDIR\n 10\n2.0\n 20\n0.0\n 30\n0.0\n",
       kLine, "$UCSORG", "do not make a coordinate system",
       [](OdDbDatabase* db) { EXPECT_EQ(db->getUCSYDIR(), OdGeVector3d(0, 1, 0)); }},
      {"colour", "", badColor, "300", "colour 300 is not a colour index; ByLayer used",
       [](OdDbDatabase* db) { EXPECT_TRUE(OdDbEntity::cast(firstOf(db, OdDbLine::desc()).openObject().get())->color().isByLayer()); }},
      {"normal", "", zeroNormal, "210\n0.0\n220", "is not a direction; (0,0,1) used",
       [](OdDbDatabase* db) {
         EXPECT_EQ(OdDbLine::cast(firstOf(db, OdDbLine::desc()).openObject().get())->normal(), OdGeVector3d(0, 0, 1));
       }},
      {"linetype scale", "", badScale, "-2.0", "group code 48 value '-2.0' refused",
       [](OdDbDatabase* db) { EXPECT_EQ(OdDbEntity::cast(firstOf(db, OdDbLine::desc()).openObject().get())->linetypeScale(), 1.0); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const QByteArray bytes = drawing(c.entity, c.header);
    QStringList warnings;
    OdDbDatabasePtr db = load(bytes, &warnings);
    ASSERT_TRUE(db);
    ASSERT_EQ(warnings.size(), 1) << warnings.join('\n').toStdString();
    EXPECT_TRUE(warnings[0].contains(QLatin1String(c.what))) << warnings[0].toStdString();
    // The value's line: markers that start with a group code point one line on.
    const int line = lineOf(bytes, c.marker) + (c.marker.startsWith("210") ? 1 : 0);
    EXPECT_TRUE(warnings[0].startsWith(QStringLiteral("line %1: ").arg(line))) << warnings[0].toStdString();
    c.check(db.get());
    // Touched but unedited, the repaired value is not written over the file's.
    touchAll(db.get(), bytes);
    EXPECT_EQ(save(db.get()), bytes);
  }
}

// An ellipse whose ratio is above 1 (its minor axis is the longer one): the
// axes are swapped, and the arc keeps its ends.
TEST(DxfDatabaseMalformed, EllipseWithRatioAboveOneHasItsAxesSwapped) {
  odDbInitialize();
  const OdGePoint3d c(2, 3, 0);
  const OdGeVector3d major(4, 0, 0), normal(0, 0, 1);
  const double ratio = 1.25, start = 0.5, end = 2.5;
  const QByteArray ellipse = "  0\nELLIPSE\n  5\n2E\n100\nAcDbEntity\n  8\n0\n100\nAcDbEllipse\n 10\n2.0\n 20\n3.0\n"
                             " 30\n0.0\n 11\n4.0\n 21\n0.0\n 31\n0.0\n 40\n1.25\n 41\n0.5\n 42\n2.5\n";
  const QByteArray bytes = drawing(ellipse);
  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  ASSERT_EQ(warnings.size(), 1);
  EXPECT_EQ(warnings[0], QStringLiteral("line %1: ELLIPSE (handle 2E): radius ratio 1.25 above 1; the axes are swapped")
                             .arg(lineOf(bytes, "1.25")));
  OdDbObjectPtr obj = firstOf(db.get(), OdDbEllipse::desc()).openObject();
  auto* e = static_cast<OdDbEllipse*>(obj.get());
  EXPECT_LE(e->radiusRatio(), 1.0);
  // The file's curve: c + major cos t + (normal x major) ratio sin t.
  auto at = [&](double t) { return c + major * std::cos(t) + normal.crossProduct(major) * ratio * std::sin(t); };
  OdGePoint3d s, f;
  ASSERT_EQ(e->getStartPoint(s), eOk);
  ASSERT_EQ(e->getEndPoint(f), eOk);
  EXPECT_TRUE(s.isEqualTo(at(start), OdGeTol(1e-9))) << s.x << "," << s.y;
  EXPECT_TRUE(f.isEqualTo(at(end), OdGeTol(1e-9))) << f.x << "," << f.y;
  obj.release();
  touchAll(db.get(), bytes);
  EXPECT_EQ(save(db.get()), bytes);
}

// Duplicate handles: the first record keeps the handle, later ones get fresh
// ones (written back), $HANDSEED is raised above them; each repair is a warning.
TEST(DxfDatabaseMalformed, DuplicateHandlesAreGivenFreshOnes) {
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(kDuplicates));
  // Handles by the DXF reference: group 5 (105 for DIMSTYLE) before the first
  // subclass marker, outside HEADER - counted straight from the lines.
  std::map<QByteArray, int> seen;
  int records = 0, entities = 0;
  {
    const std::vector<LineTag> tags = plainTags(bytes);
    QByteArray section, type;
    bool head = false;
    for (size_t i = 0; i < tags.size(); ++i) {
      const LineTag& t = tags[i];
      if (t.code == 0) {
        type = t.value.trimmed();
        head = true;
        if (type == "SECTION") section = tags[i + 1].value.trimmed();
        else if (section == "ENTITIES" && type != "ENDSEC") ++entities;
      }
      if (t.code == 100) head = false;
      if (head && section != "HEADER" && ((t.code == 5 && type != "DIMSTYLE") || (t.code == 105 && type == "DIMSTYLE"))) {
        ++seen[t.value.trimmed()];
        ++records;
      }
    }
  }
  int duplicates = 0;
  QList<quint64> duplicated;
  for (const auto& [h, n] : seen) {
    duplicates += n - 1;
    if (n > 1) duplicated.append(h.toULongLong(nullptr, 16));
  }
  ASSERT_GT(duplicates, 0);
  std::sort(duplicated.begin(), duplicated.end());
  OdDxf::File original;
  QString error;
  ASSERT_TRUE(OdDxf::File::read(bytes, original, error));
  EXPECT_EQ(original.duplicateHandles(), duplicated);

  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  const QStringList repairs = warnings.filter(QStringLiteral("is already used by"));
  EXPECT_EQ(repairs.size(), duplicates);
  for (const QString& w : repairs)
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^line \\d+: handle [0-9A-F]+ of \\w+ is already used by \\w+ at line \\d+; "
                                                  "given handle [0-9A-F]+$"))
                    .match(w)
                    .hasMatch())
        << w.toStdString();
  EXPECT_EQ(warnings.filter(QStringLiteral("$HANDSEED")).size(), 1);
  EXPECT_EQ(int(entitiesOf(db->getModelSpaceId()).size()), entities);

  // Written back: every handle once, the seed above them all, each repaired
  // record changed in its handle only.
  const QByteArray out = save(db.get());
  OdDxf::File f;
  ASSERT_TRUE(OdDxf::File::read(out, f, error));
  EXPECT_TRUE(f.duplicateHandles().isEmpty());
  quint64 highest = 0;
  int written = 0;
  for (const OdDxf::Section& s : f.sections())
    if (s.name != "HEADER")
      for (const OdDxf::Record& r : s.records) {
        highest = qMax(highest, r.handle());
        written += r.handle() != 0;
      }
  EXPECT_EQ(written, records);
  EXPECT_GT(f.headerVariable("$HANDSEED")->at(1).handle(), highest);
  EXPECT_EQ(plainTags(out).size(), plainTags(bytes).size());
  // Loaded again, nothing is left to repair.
  QStringList again;
  ASSERT_TRUE(load(out, &again));
  EXPECT_EQ(again.filter(QStringLiteral("already used")).size(), 0);
}

// recover01: entities in several ENTITIES sections, header variables after an
// ENDSEC, a stray ENDSEC, no EOF - all entities read, the file kept as it is
// and EOF added.
TEST(DxfDatabaseMalformed, ScatteredSectionsAreReadWhole) {
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(kRecover));
  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  EXPECT_EQ(warnings.filter(QStringLiteral("more than one ENTITIES section")).size(), 1);
  for (const char* w : {"line 1141: 8 tags after ENDSEC of section ENTITIES kept as they are",
                        "line 1157: 'ENDSEC' outside any section kept as it is",
                        "line 29473: EOF missing at the end of the file; added"})
    EXPECT_TRUE(warnings.contains(QLatin1String(w))) << w;
  int lines = 0, texts = 0;
  for (const LineTag& t : plainTags(bytes))
    if (t.code == 0) {
      lines += t.value.trimmed() == "LINE";
      texts += t.value.trimmed() == "TEXT";
    }
  int ourLines = 0, ourTexts = 0;
  for (const OdDbObjectId& id : entitiesOf(db->getModelSpaceId())) {
    OdDbObjectPtr e = id.openObject();
    ourLines += e->isA() == OdDbLine::desc();
    ourTexts += e->isA() == OdDbText::desc();
  }
  EXPECT_EQ(ourLines, lines);
  EXPECT_EQ(ourTexts, texts);
  EXPECT_EQ(save(db.get()), bytes + "  0\nEOF\n");

  // An edit changes that line only.
  const OdDbObjectId line = firstOf(db.get(), OdDbLine::desc());
  static_cast<OdDbLine*>(line.openObject(OdDb::kForWrite).get())->setEndPoint(OdGePoint3d(1, 1, 0));
  const QStringList changed = changedRecords(bytes + "  0\nEOF\n", save(db.get()));
  ASSERT_EQ(changed.size(), 1);
  EXPECT_TRUE(changed[0].startsWith(QStringLiteral("ENTITIES:LINE#")));

  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  bool ok = false;
  const QJsonValue v = ezdxfJson(QStringLiteral(R"(
import sys, json
from ezdxf import recover
doc, auditor = recover.readfile(sys.argv[1])
print(json.dumps([e.dxftype() for e in doc.modelspace()]))
)"),
                                 {samplePath(kRecover)}, &ok);
  ASSERT_TRUE(ok);
  const QJsonArray types = v.toArray();
  const OdDbObjectIdArray ids = entitiesOf(db->getModelSpaceId());
  ASSERT_EQ(qsizetype(ids.size()), types.size());
  for (qsizetype i = 0; i < types.size(); ++i)
    EXPECT_EQ(ids[size_t(i)].openObject()->isA()->dxfName().qstring(), types[i].toString()) << i;
}

// R12 without handles ($HANDLING 0) and without tables: the layers it names
// are made in memory, objects get handles that are never written.
TEST(DxfDatabaseMalformed, DrawingWithoutHandlesKeepsHavingNone) {
  odDbInitialize();
  const QByteArray bytes =
      "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  9\n$HANDLING\n 70\n     0\n  0\nENDSEC\n"
      "  0\nSECTION\n  2\nENTITIES\n"
      "  0\nLINE\n  8\nWALLS\n 62\n     1\n 10\n0.0\n 20\n0.0\n 11\n5.0\n 21\n5.0\n"
      "  0\nLINE\n  8\nDOORS\n 10\n1.0\n 20\n1.0\n 30\n0.0\n 11\n2.0\n 21\n2.0\n 31\n0.0\n"
      "  0\nENDSEC\n  0\nEOF\n";
  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
  const OdDbObjectIdArray ids = entitiesOf(db->getModelSpaceId());
  ASSERT_EQ(ids.size(), 2u);
  EXPECT_EQ(OdDbEntity::cast(ids[0].openObject().get())->layer(), OdString("WALLS"));
  EXPECT_EQ(OdDbEntity::cast(ids[1].openObject().get())->layer(), OdString("DOORS"));
  EXPECT_NE(ids[0].getHandle(), ids[1].getHandle());
  EXPECT_EQ(save(db.get()), bytes);

  // An edit: only that record changes, without gaining a handle; Z stays out
  // of the 2D points while it is 0.
  static_cast<OdDbLine*>(ids[0].openObject(OdDb::kForWrite).get())->setEndPoint(OdGePoint3d(7, 8, 0));
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  auto line = OdDbLine::createObject();
  line->setDatabaseDefaults(db.get());
  line->setEndPoint(OdGePoint3d(1, 1, 1));
  static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(line.get());
  ms.release();
  QByteArray expected = bytes;
  expected.replace(" 11\n5.0\n 21\n5.0\n", " 11\n7.0\n 21\n8.0\n");
  // The new line is on the current layer: "0", which the file has not named
  // (made in memory, it gets no record of its own).
  expected.replace("  0\nENDSEC\n  0\nEOF\n",
                   "  0\nLINE\n  8\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 11\n1.0\n 21\n1.0\n 31\n1.0\n  0\nENDSEC\n  0\nEOF\n");
  const QByteArray out = save(db.get());
  EXPECT_FALSE(out.contains("\n  5\n"));
  EXPECT_EQ(out.toStdString(), expected.toStdString());
}

}  // namespace
