// zqprops options that keep edits from being lost: where the drawing is
// saved (-o, --in-place), which release (--save-as), locked layers
// (--force), the current vertex (--vertex, the Vertex row), and refusals
// that are sentences without result codes. Drawings are made and checked
// with an independent DXF reader (ezdxf).
#include <gtest/gtest.h>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include "ZqTestSupport.h"
#include "ZqpropsRun.h"

namespace {


QByteArray bytesOf(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A drawing of the given release with a five-vertex polyline (handle 30 in
// the printed handles), a line on a locked layer, and, when `named`, named
// plot styles. Prints "polyline-handle line-handle".
QStringList makeDrawing(const QString& path, const QString& release, bool named = false) {
  const QString out = zqRunPython(
      "import sys, ezdxf\n"
      "doc = ezdxf.new(sys.argv[2])\n"
      "if sys.argv[3] == '1': doc.header['$PSTYLEMODE'] = 0\n"
      "doc.layers.add('Locked').lock()\n"
      "msp = doc.modelspace()\n"
      "pl = msp.add_lwpolyline([(0, 0), (10, 0), (20, 5), (30, 0), (40, 10)])\n"
      "ln = msp.add_line((0, 0), (5, 5), dxfattribs={'layer': 'Locked'})\n"
      "doc.saveas(sys.argv[1])\n"
      "print(pl.dxf.handle, ln.dxf.handle)\n",
      {path, release, named ? "1" : "0"});
  return out.split(' ', Qt::SkipEmptyParts).replaceInStrings("\n", "");
}

// One line per entity of a saved drawing, read by ezdxf.
QString ezdxf(const QString& path, const QString& code) {
  return zqRunPython("import sys, ezdxf\ndoc = ezdxf.readfile(sys.argv[1])\n" + code, {path}).trimmed();
}

class ZqpropsOptionsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dir.isValid());
    input = dir.filePath("in.dxf");
    out = dir.filePath("out.dxf");
    handles = makeDrawing(input, "R2000");
    ASSERT_EQ(handles.size(), 2) << handles.join(' ').toStdString();
  }
  QTemporaryDir dir;
  QString input, out;
  QStringList handles;  // polyline, line on the locked layer
};

TEST_F(ZqpropsOptionsTest, SetWithoutATargetIsRefusedBeforeAnythingHappens) {
  const QByteArray before = bytesOf(input);
  const ProgramRun r = zqprops({input, "--set", "Color=1"});
  EXPECT_EQ(r.code, 2);
  EXPECT_EQ(r.err.trimmed(), "zqprops: nothing saved: give -o FILE or --in-place");
  EXPECT_EQ(bytesOf(input), before);

  const ProgramRun inPlace = zqprops({input, "--handle", handles[0], "--set", "Color=3", "--in-place"});
  ASSERT_EQ(inPlace.code, 0) << inPlace.err.toStdString();
  EXPECT_EQ(ezdxf(input, "print(doc.entitydb['" + handles[0] + "'].dxf.color)"), "3");
  EXPECT_EQ(zqprops({input, "--set", "Color=1", "--in-place", "-o", out}).code, 2);
}

TEST_F(ZqpropsOptionsTest, LineweightsPastThirtyTwoBitsAreRefusedNotWrapped) {
  const ProgramRun r = zqprops({input, "--handle", handles[0], "--set", "Lineweight=4294967301", "--set", "Color=2", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains("\"4294967301\" is not a lineweight")) << r.err.toStdString();
  // The refused edit changed nothing; the accepted one was saved.
  EXPECT_EQ(ezdxf(out, "e = doc.entitydb['" + handles[0] + "']\nprint(e.dxf.lineweight, e.dxf.color)"), "-1 2");
}

TEST_F(ZqpropsOptionsTest, ReleaseLimitsAndSaveAs) {
  ProgramRun r = zqprops({input, "--handle", handles[0], "--set", "Transparency=40", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains("Transparency needs a drawing saved as R2004 or later; this drawing is R2000.")) << r.err.toStdString();

  r = zqprops({input, "--handle", handles[0], "--save-as", "R2018", "--set", "Transparency=40", "--set", "Color=10,20,30", "-o", out});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(ezdxf(out, "e = doc.entitydb['" + handles[0] + "']\n"
                       "print(doc.dxfversion, round(e.transparency, 2), e.rgb)"),
            "AC1032 0.4 (10, 20, 30)");

  // An older release, or one that is no release, is refused before reading on.
  EXPECT_EQ(zqprops({out, "--save-as", "R2004", "-o", dir.filePath("old.dxf")}).code, 2);
  r = zqprops({input, "--save-as", "R14", "-o", dir.filePath("r14.dxf")});
  EXPECT_EQ(r.code, 2);
  EXPECT_TRUE(r.err.contains("--save-as takes one of R2000, R2004, R2007, R2010, R2013, R2018")) << r.err.toStdString();
  EXPECT_FALSE(QFile::exists(dir.filePath("r14.dxf")));
}

TEST_F(ZqpropsOptionsTest, SaveAsAReleaseOfUtf8TextReencodesTheText) {
  const QString latin = dir.filePath("latin.dxf");
  zqRunPython("import sys, ezdxf\ndoc = ezdxf.new('R2000')\ndoc.layers.add('Straße')\n"
              "doc.modelspace().add_line((0, 0), (1, 1), dxfattribs={'layer': 'Straße'})\n"
              "doc.saveas(sys.argv[1], encoding='cp1252')\n",
              {latin});
  ASSERT_TRUE(bytesOf(latin).contains("Stra\xdf" "e"));
  const ProgramRun r = zqprops({latin, "--save-as", "R2018", "-o", out});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_TRUE(bytesOf(out).contains("Stra\xc3\x9f" "e"));
  EXPECT_EQ(ezdxf(out, "print(doc.dxfversion, [e.dxf.layer for e in doc.modelspace()][0])"), "AC1032 Straße");
}

TEST_F(ZqpropsOptionsTest, PlotStyleNamesAreCheckedWhenSetAndOtherEditsSurvive) {
  ProgramRun r = zqprops({input, "--handle", handles[0], "--set", "Plot style=Normal", "--set", "Color=4", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains("This drawing plots by colour")) << r.err.toStdString();
  EXPECT_EQ(ezdxf(out, "print(doc.entitydb['" + handles[0] + "'].dxf.color)"), "4");

  const QString named = dir.filePath("named.dxf");
  const QStringList h = makeDrawing(named, "R2000", true);
  ASSERT_EQ(h.size(), 2);
  r = zqprops({named, "--handle", h[0], "--set", "Plot style=Missing", "--set", "Color=5", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains("The drawing has no plot style named \"Missing\": choose ByLayer or one of Normal.")) << r.err.toStdString();
  EXPECT_EQ(ezdxf(out, "print(doc.entitydb['" + h[0] + "'].dxf.color)"), "5");

  r = zqprops({named, "--handle", h[0], "--set", "Plot style=normal", "-o", out});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(ezdxf(out, "e = doc.entitydb['" + h[0] + "']\n"
                       "d = doc.rootdict['ACAD_PLOTSTYLENAME']\n"
                       "print([k for k, v in d.items() if v.dxf.handle == e.dxf.plotstyle_handle])"),
            "['Normal']");
}

TEST_F(ZqpropsOptionsTest, LockedLayersNeedForce) {
  const QString line = handles[1];
  ProgramRun r = zqprops({input, "--handle", line, "--set", "Color=1", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains(QString("zqprops: %1: Color: The object is on a locked layer.\n").arg(line))) << r.err.toStdString();
  r = zqprops({input, "--handle", line, "--set", "Layer=0", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_EQ(ezdxf(out, "print(doc.entitydb['" + line + "'].dxf.layer)"), "Locked");

  const QByteArray script = "-PROPERTIES\n" + line.toLatin1() + "\n\nColor\n1\nX\nSAVE\n" + out.toUtf8() + "\nQUIT\n";
  r = zqprops({input}, script);
  EXPECT_TRUE(r.out.contains("The object is on a locked layer.")) << r.out.toStdString();

  r = zqprops({input, "--handle", line, "--set", "Layer=0", "--force", "-o", out});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(ezdxf(out, "print(doc.entitydb['" + line + "'].dxf.layer)"), "0");
}

// Exactly vertex 3 of the five moves, however it was chosen.
TEST_F(ZqpropsOptionsTest, VertexNavigationEditsTheChosenVertexOnly) {
  const QString pl = handles[0];
  const QByteArray script =
      "-PROPERTIES\n" + pl.toLatin1() + "\n\nVertex\n3\nVertex X\n77\nX\nSAVE\n" + dir.filePath("script.dxf").toUtf8() + "\nQUIT\n";
  struct Case { const char* label; QStringList args; QByteArray input; QString saved; } cases[] = {
      {"--set Vertex", {input, "--handle", pl, "--set", "Vertex=3", "--set", "Vertex X=77", "-o", out}, {}, out},
      {"--vertex", {input, "--handle", pl, "--vertex", "3", "--set", "Vertex X=77", "-o", dir.filePath("v.dxf")}, {}, dir.filePath("v.dxf")},
      {"-PROPERTIES", {input}, script, dir.filePath("script.dxf")},
  };
  for (const Case& c : cases) {
    const ProgramRun r = zqprops(c.args, c.input);
    ASSERT_EQ(r.code, 0) << c.label << ": " << r.err.toStdString();
    EXPECT_EQ(ezdxf(c.saved, "print([tuple(p[:2]) for p in doc.entitydb['" + pl + "'].get_points()])"),
              "[(0.0, 0.0), (10.0, 0.0), (77.0, 5.0), (30.0, 0.0), (40.0, 10.0)]")
        << c.label;
  }
  const ProgramRun r = zqprops({input, "--handle", pl, "--vertex", "9", "--set", "Vertex X=1", "-o", dir.filePath("nine.dxf")});
  EXPECT_EQ(r.code, 2);
  EXPECT_TRUE(r.err.contains("\"9\" is not one of the choices of Vertex: 1, 2, 3, 4, 5.")) << r.err.toStdString();
  EXPECT_FALSE(QFile::exists(dir.filePath("nine.dxf")));
}

TEST_F(ZqpropsOptionsTest, RefusalsAreSentencesWithoutCodes) {
  const struct { const char* set; const char* sentence; } cases[] = {
      {"Linetype scale=inf", "\"inf\" is not a number: Linetype scale needs a finite number such as 12.5."},
      {"Color=300", "\"300\" is not a colour"},
      {"Layer=Nowhere", "The drawing has no layer named \"Nowhere\"."},
      {"Transparency=95", "Transparency must be ByLayer, ByBlock or a whole percentage from 0 to 90."},
  };
  for (const auto& c : cases) {
    const ProgramRun r = zqprops({input, "--handle", handles[0], "--set", c.set, "-o", out});
    EXPECT_EQ(r.code, 1) << c.set;
    EXPECT_TRUE(r.err.contains(c.sentence)) << r.err.toStdString();
    EXPECT_FALSE(r.err.contains("5001") || r.err.contains("5100") || r.err.contains("refused (")) << r.err.toStdString();
  }
}

TEST_F(ZqpropsOptionsTest, UnknownLanguageWarnsAndGoesOnInEnglish) {
  const ProgramRun r = zqprops({input, "--lang", "xx", "--handle", handles[0], "--list"});
  EXPECT_EQ(r.code, 0);
  EXPECT_TRUE(r.err.contains("there is no translation catalog for the language \"xx\"; messages stay in English.")) << r.err.toStdString();
  EXPECT_TRUE(r.out.contains("General/Color")) << r.out.toStdString();
}

}  // namespace
