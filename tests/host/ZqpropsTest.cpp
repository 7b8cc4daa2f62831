// zqprops as a user runs it: output, JSON shape, exit codes and error text,
// edits saved to a new file and checked with an independent DXF reader.
#include <gtest/gtest.h>
#include <QByteArray>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include "ZqTestSupport.h"
#include "ZqpropsRun.h"

namespace {


const QString kDemo = QString(ZQ_SOURCE_DIR) + "/samples/demo.dxf";

// Reads entities of a DXF with ezdxf: one line per entity, "TYPE HANDLE key=value ...".
QString ezdxfDump(const QString& path, const QString& expr) {
  return zqRunPython(
      "import sys, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "for e in doc.modelspace():\n"
      "    print(e.dxftype(), e.dxf.handle, " + expr + ")\n",
      {path});
}

TEST(ZqpropsTest, ListsEveryObjectWithItsRows) {
  const ProgramRun r = zqprops({kDemo, "--list"});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
  EXPECT_GE(r.out.count(QRegularExpression("^LINE \\[[0-9A-F]+\\] Line \\(CZqLinePE\\)$", QRegularExpression::MultilineOption)), 4);
  EXPECT_TRUE(r.out.contains("General/Layer: Outline"));
  EXPECT_TRUE(r.out.contains("Geometry/Length: 100.0000  (read-only)"));
}

TEST(ZqpropsTest, JsonListHasTheDocumentedShape) {
  const ProgramRun r = zqprops({kDemo, "--list", "--json"});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  QJsonParseError pe;
  const QJsonDocument doc = QJsonDocument::fromJson(r.out.toUtf8(), &pe);
  ASSERT_EQ(pe.error, QJsonParseError::NoError) << pe.errorString().toStdString();
  EXPECT_EQ(doc["drawing"].toString(), "demo.dxf");
  const QJsonArray objects = doc["objects"].toArray();
  ASSERT_FALSE(objects.isEmpty());
  const QJsonObject line = objects[0].toObject();
  EXPECT_EQ(line["class"].toString(), "OdDbLine");
  EXPECT_EQ(line["type"].toString(), "LINE");
  EXPECT_EQ(line["provider"].toString(), "CZqLinePE");
  EXPECT_EQ(line["name"].toString(), "Line");
  EXPECT_EQ(line["space"].toString(), "model");
  EXPECT_FALSE(line["handle"].toString().isEmpty());
  const QJsonObject rows = line["rows"].toObject();
  for (const QString& key : rows.keys())
    for (const char* member : {"category", "name", "label", "type", "value", "text", "readOnly"})
      EXPECT_TRUE(rows[key].toObject().contains(member)) << key.toStdString() << " " << member;
  const QJsonObject startX = rows["Geometry/Start X"].toObject(), color = rows["General/Color"].toObject();
  const bool sawStartX = !startX.isEmpty(), sawColor = !color.isEmpty();
  EXPECT_EQ(startX["type"].toInt(), 2);
  EXPECT_TRUE(startX["value"].isDouble());
  EXPECT_FALSE(startX["readOnly"].toBool());
  EXPECT_EQ(color["value"].toString(), "ByLayer");
  EXPECT_TRUE(sawStartX && sawColor);
}

TEST(ZqpropsTest, JsonInfoLinesCarryKindsAndValues) {
  const ProgramRun r = zqprops({kDemo, "--info", "--json"});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  const QJsonArray lines = QJsonDocument::fromJson(r.out.toUtf8())["objects"][0]["lines"].toArray();
  ASSERT_FALSE(lines.isEmpty());
  QJsonObject length;
  for (const QJsonValue& v : lines)
    if (v["label"] == "Length") length = v.toObject();
  EXPECT_EQ(length["kind"].toString(), "distance");
  EXPECT_DOUBLE_EQ(length["value"].toDouble(), 100.0);
  EXPECT_EQ(length["text"].toString(), "100.0000");
}

TEST(ZqpropsTest, SetSavesOnlyTheEditAndKeepsTheInput) {
  QTemporaryDir dir;
  const QString out = dir.filePath("out.dxf");
  QFile demo(kDemo);
  ASSERT_TRUE(demo.open(QIODevice::ReadOnly));
  const QByteArray before = demo.readAll();
  const QString handle = QJsonDocument::fromJson(zqprops({kDemo, "--list", "--json"}).out.toUtf8())["objects"][0]["handle"].toString();
  const ProgramRun r = zqprops({kDemo, "--handle", handle, "--set", "Thickness=2.5", "--set", "start x=1.5E+02", "-o", out});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  QFile again(kDemo);
  ASSERT_TRUE(again.open(QIODevice::ReadOnly));
  EXPECT_EQ(again.readAll(), before);
  // The edited line, read independently; the other lines are untouched.
  const QString edited = ezdxfDump(out, "e.dxf.get('thickness', 0), round(e.dxf.start.x, 6) if e.dxftype() == 'LINE' else ''");
  const QString original = ezdxfDump(kDemo, "e.dxf.get('thickness', 0), round(e.dxf.start.x, 6) if e.dxftype() == 'LINE' else ''");
  const QStringList a = edited.split('\n'), b = original.split('\n');
  ASSERT_EQ(a.size(), b.size());
  int differing = 0;
  for (int i = 0; i < a.size(); ++i) {
    if (a[i] == b[i]) continue;
    ++differing;
    EXPECT_TRUE(a[i].startsWith("LINE " + handle)) << a[i].toStdString();
    EXPECT_TRUE(a[i].contains(" 2.5 ")) << a[i].toStdString();
  }
  EXPECT_EQ(differing, 1);
  // 150 in the current UCS, not in the world.
  const ProgramRun check = zqprops({out, "--handle", handle, "--list", "--json"});
  for (const QJsonValue& v : QJsonDocument::fromJson(check.out.toUtf8())["objects"][0]["rows"].toArray())
    if (v["name"] == "Start X") {
      EXPECT_NEAR(v["value"].toDouble(), 150.0, 1e-9);
    }
}

TEST(ZqpropsTest, ExitCodesAndErrorLines) {
  QTemporaryDir dir;
  const QString out = dir.filePath("out.dxf");
  struct Case {
    const char* label;
    QStringList args;
    int code;
    const char* errorPart;
  } cases[] = {
      {"refused value", {kDemo, "--set", "Linetype scale=-1", "-o", out}, 1, "Value must be positive"},
      {"unparsable value", {kDemo, "--set", "Start X=abc", "-o", out}, 1, "\"abc\" is not a number"},
      {"read-only row", {kDemo, "--set", "Length=3", "-o", out}, 1, "read-only"},
      {"unknown row", {kDemo, "--set", "Nothing=1", "-o", out}, 2, "no object has a property named"},
      {"malformed set", {kDemo, "--set", "Thickness", "-o", out}, 2, "NAME=VALUE"},
      {"set without a target", {kDemo, "--set", "Start X=1"}, 2, "nothing saved: give -o FILE or --in-place"},
      {"unknown handle", {kDemo, "--handle", "FFFFF", "--list"}, 2, "no object with handle"},
      {"no drawing", {"--list"}, 2, "expected one drawing"},
      {"missing file", {dir.filePath("none.dxf"), "--list"}, 2, "none.dxf"},
      {"bad option", {kDemo, "--frobnicate"}, 2, "frobnicate"},
  };
  for (const Case& c : cases) {
    const ProgramRun r = zqprops(c.args);
    EXPECT_EQ(r.code, c.code) << c.label << ": " << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(c.errorPart)) << c.label << ": " << r.err.toStdString();
    for (const QString& line : r.err.split('\n', Qt::SkipEmptyParts)) EXPECT_TRUE(line.startsWith("zqprops")) << c.label;
  }
}

TEST(ZqpropsTest, MalformedDrawingIsRefusedWithWhereItWentWrong) {
  QTemporaryDir dir;
  const QString bad = dir.filePath("bad.dxf");
  QFile f(bad);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("  0\nSECTION\n  2\nENTITIES\nxyz\nLINE\n");
  f.close();
  const QString out = dir.filePath("out.dxf");
  const ProgramRun r = zqprops({bad, "-o", out});
  EXPECT_EQ(r.code, 2);
  EXPECT_TRUE(r.err.contains("line 5")) << r.err.toStdString();
  EXPECT_FALSE(QFile::exists(out));
}

TEST(ZqpropsTest, ScriptRunsThePropertiesCommandAndSaves) {
  QTemporaryDir dir;
  const QString script = dir.filePath("edit.scr"), out = dir.filePath("out.dxf");
  QFile f(script);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("-PROPERTIES\nLINE\n\nList\nLayer\nAxis\nX\nSAVE\n" + out.toUtf8() + "\nQUIT\n");
  f.close();
  const ProgramRun r = zqprops({kDemo, "--script", script});
  ASSERT_EQ(r.code, 0) << r.err.toStdString() << r.out.toStdString();
  EXPECT_TRUE(r.out.contains("Enter property name or [List/eXit] <eXit>:"));
  EXPECT_TRUE(r.out.contains("General/Layer: *VARIES*"));
  const QString layers = ezdxfDump(out, "e.dxf.layer");
  EXPECT_EQ(layers.count("Axis"), layers.count("LINE"));
}

TEST(ZqpropsTest, InteractiveThroughAPipe) {
  const ProgramRun r = zqprops({kDemo}, "LIST\nALL\n\nQUIT\n");
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_TRUE(r.out.contains("Command:"));
  EXPECT_TRUE(r.out.contains("from point"));
}

TEST(ZqpropsTest, SaveOverTheInputNeedsMinusO) {
  QTemporaryDir dir;
  const QString copy = dir.filePath("copy.dxf");
  ASSERT_TRUE(QFile::copy(kDemo, copy));
  const ProgramRun refused = zqprops({copy}, "SAVE\n" + copy.toUtf8() + "\nQUIT\n");
  EXPECT_EQ(refused.code, 2);
  EXPECT_TRUE(refused.err.contains("input drawing")) << refused.err.toStdString();
  const ProgramRun allowed = zqprops({copy, "--set", "Thickness=1", "-o", copy});
  EXPECT_EQ(allowed.code, 0) << allowed.err.toStdString();
}

TEST(ZqpropsTest, RoundTripWithoutEditsIsByteIdentical) {
  QTemporaryDir dir;
  for (const char* sample : {"libredwg__test__test-data__2000__entities-2d.dxf", "ezdxf__examples_dxf__text.dxf"}) {
    const QString in = QString(ZQ_SAMPLES_DIR) + "/" + sample, out = dir.filePath(sample);
    const ProgramRun r = zqprops({in, "-o", out});
    ASSERT_EQ(r.code, 0) << sample << r.err.toStdString();
    QFile a(in), b(out);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    EXPECT_EQ(a.readAll(), b.readAll()) << sample;
  }
}

TEST(ZqpropsTest, UnknownLanguageFallsBackToEnglish) {
  const ProgramRun r = zqprops({kDemo, "--list", "--lang", "xx"});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.err.contains("no translation catalog")) << r.err.toStdString();
  EXPECT_TRUE(r.out.contains("Geometry/Start X"));
}

}  // namespace

namespace {

// The committed sample is what zqmkdemo writes today: regenerate it with
// build/bin/zqmkdemo samples/demo.dxf when the demonstration drawing changes.
TEST(ZqpropsTest, DemoSampleIsUpToDate) {
  QTemporaryDir dir;
  const QString fresh = dir.filePath("demo.dxf");
  QProcess p;
  p.start(QString(ZQ_BINARY_DIR) + "/bin/zqmkdemo", {fresh});
  ASSERT_TRUE(p.waitForFinished(60000));
  ASSERT_EQ(p.exitCode(), 0);
  QFile a(fresh), b(kDemo);
  ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
  EXPECT_EQ(a.readAll(), b.readAll());
}

}  // namespace

namespace {

TEST(ZqpropsTest, GermanCatalogTranslatesRowsAndKeepsEnglishCommandNames) {
  const ProgramRun list = zqprops({kDemo, "--list", "--lang", "de"});
  ASSERT_EQ(list.code, 0) << list.err.toStdString();
  EXPECT_TRUE(list.err.isEmpty()) << list.err.toStdString();
  EXPECT_TRUE(list.out.contains("] Kreis (CZqCirclePE)"));
  EXPECT_TRUE(list.out.contains("Allgemein/Farbe: ByLayer"));
  EXPECT_TRUE(list.out.contains("Geometrie/Startpunkt X"));
  // Rows are named in the catalog's language; the command keeps its global name.
  QTemporaryDir dir;
  const QString out = dir.filePath("out.dxf");
  const ProgramRun set = zqprops({kDemo, "--lang", "de", "--set", "Objekthöhe=3", "-o", out});
  EXPECT_EQ(set.code, 0) << set.err.toStdString();
  const ProgramRun script = zqprops({kDemo, "--lang", "de"}, "-PROPERTIES\nALL\n\nX\nQUIT\n");
  EXPECT_EQ(script.code, 0);
  EXPECT_TRUE(script.out.contains("Objekte wählen:")) << script.out.toStdString();
}

}  // namespace
