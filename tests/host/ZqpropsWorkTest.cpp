// zqprops for scripts and sessions: selections, the JSON output against
// its schema, undo and redo, unsaved edits and script errors, run through
// the real program.
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include "ZqTestSupport.h"
#include "ZqpropsRun.h"

namespace {

const QString kDemo = QString(ZQ_SOURCE_DIR) + "/samples/demo.dxf";
// Layers WALL, WINDOW, AXIS, ... in model space; a layout with two objects.
const QString kPlan = QString(ZQ_SAMPLES_DIR) + "/libredwg__test__test-data__2013__gh109_1.dxf";

QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& text) {
  const QString path = dir.filePath(name);
  QFile f(path);
  f.open(QIODevice::WriteOnly);
  f.write(text);
  return path;
}

QSet<QString> listedHandles(const QString& listing) {
  static const QRegularExpression heading("^\\S+ \\[([0-9A-F]+)\\] ", QRegularExpression::MultilineOption);
  QSet<QString> out;
  for (auto it = heading.globalMatch(listing); it.hasNext();) out.insert(it.next().captured(1));
  return out;
}

// ---------------------------------------------------------------------------
// Selections, against the same choice made by an independent reader (ezdxf).

struct SelectionCase {
  QStringList args;
  const char* layouts;  // Python: which layouts' entities are candidates
  const char* keep;     // Python: which of them are selected (e is the entity)
};

TEST(ZqpropsSelection, LayerWildcardsSpacesAndKindsPickWhatAnIndependentReaderPicks) {
  const SelectionCase cases[] = {
      {{"--layer", "W*"}, "[d.modelspace()]", "e.dxf.layer.upper().startswith('W')"},
      {{"--layer", "~W*", "--space", "all"}, "d.layouts", "not e.dxf.layer.upper().startswith('W')"},
      {{"--layer", "wall,AXI?"}, "[d.modelspace()]", "e.dxf.layer.upper() in ('WALL', 'AXIS')"},
      {{"--space", "paper"}, "[l for l in d.layouts if not l.is_modelspace]", "True"},
      {{"--space", "all", "--type", "LINE,*TEXT"}, "d.layouts", "e.dxftype() in ('LINE', 'TEXT', 'MTEXT')"},
      {{"--blocks", "--layer", "~0"}, "[b for b in d.blocks if not b.name.lower().startswith('*paper_space')]",
       "e.dxf.get('layer', '0') != '0'"},
      {{"--layer", "[A-D]*,?ALL"}, "[d.modelspace()]", "e.dxf.layer.upper()[0] in 'ABCD' or e.dxf.layer.upper() == 'WALL'"},
  };
  for (const SelectionCase& c : cases) {
    SCOPED_TRACE(c.args.join(' ').toStdString());
    const ProgramRun r = zqprops(QStringList{kPlan, "--list"} + c.args);
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QString expected = zqRunPython(QString("import sys, ezdxf\n"
                                                 "d = ezdxf.readfile(sys.argv[1])\n"
                                                 "for l in %1:\n"
                                                 "    for e in l:\n"
                                                 "        if %2: print(e.dxf.handle)\n")
                                             .arg(c.layouts, c.keep),
                                         {kPlan});
    const QStringList lines = expected.split('\n', Qt::SkipEmptyParts);
    const QSet<QString> want(lines.begin(), lines.end());
    ASSERT_FALSE(want.isEmpty());
    EXPECT_EQ(listedHandles(r.out), want);
  }
}

TEST(ZqpropsSelection, AnEmptySelectionSaysSoAndExitsOne) {
  for (const QStringList& args : {QStringList{"--layer", "NO_SUCH_LAYER"}, QStringList{"--type", "CIRCLE", "--space", "paper"},
                                  QStringList{"--json", "--layer", "~*"}}) {
    const ProgramRun r = zqprops(QStringList{kPlan, "--list"} + args);
    EXPECT_EQ(r.code, 1) << args.join(' ').toStdString();
    EXPECT_TRUE(r.err.contains("nothing selected")) << r.err.toStdString();
    EXPECT_TRUE(r.out.isEmpty());
  }
  EXPECT_EQ(zqprops({kPlan, "--list", "--space", "nowhere"}).code, 2);
}

// ---------------------------------------------------------------------------
// JSON: a small validator for the part of JSON Schema the schema uses.

class SchemaValidator {
 public:
  explicit SchemaValidator(const QJsonObject& root) : m_root(root) {}
  QStringList validate(const QJsonValue& v) {
    m_errors.clear();
    check(v, m_root, "$");
    return m_errors;
  }

 private:
  static QString typeOf(const QJsonValue& v) {
    if (v.isDouble()) return v.toDouble() == std::floor(v.toDouble()) ? "integer" : "number";
    if (v.isString()) return "string";
    if (v.isBool()) return "boolean";
    if (v.isNull()) return "null";
    return v.isArray() ? "array" : "object";
  }
  static bool hasType(const QJsonValue& v, const QString& want) {
    const QString t = typeOf(v);
    return t == want || (want == "number" && t == "integer");
  }
  void check(const QJsonValue& v, QJsonObject s, const QString& at) {
    if (s.contains("$ref")) s = m_root["$defs"][s["$ref"].toString().section('/', -1)].toObject();
    if (s.contains("type")) {
      const QJsonValue t = s["type"];
      bool ok = false;
      for (const QJsonValue& one : t.isArray() ? t.toArray() : QJsonArray{t}) ok = ok || hasType(v, one.toString());
      if (!ok) return fail(at, "is " + typeOf(v));
    }
    if (s.contains("enum") && !s["enum"].toArray().contains(v)) return fail(at, "is not one of the enumeration");
    if (s.contains("pattern") && !QRegularExpression(s["pattern"].toString()).match(v.toString()).hasMatch())
      return fail(at, "does not match " + s["pattern"].toString());
    if (v.isArray() && s.contains("items"))
      for (int i = 0; i < v.toArray().size(); ++i) check(v.toArray()[i], s["items"].toObject(), at + QString("[%1]").arg(i));
    if (!v.isObject()) return;
    const QJsonObject o = v.toObject(), props = s["properties"].toObject();
    for (const QJsonValue& r : s["required"].toArray())
      if (!o.contains(r.toString())) fail(at, "lacks " + r.toString());
    for (auto it = o.begin(); it != o.end(); ++it) {
      if (props.contains(it.key())) check(it.value(), props[it.key()].toObject(), at + "." + it.key());
      else if (s["additionalProperties"].isObject()) check(it.value(), s["additionalProperties"].toObject(), at + "." + it.key());
      else if (s["additionalProperties"] == QJsonValue(false)) fail(at, "has the unknown member " + it.key());
    }
  }
  void fail(const QString& at, const QString& what) { m_errors << at + " " + what; }

  QJsonObject m_root;
  QStringList m_errors;
};

QJsonDocument parse(const ProgramRun& r) {
  QJsonParseError pe;
  const QJsonDocument doc = QJsonDocument::fromJson(r.out.toUtf8(), &pe);
  EXPECT_EQ(pe.error, QJsonParseError::NoError) << pe.errorString().toStdString();
  return doc;
}

TEST(ZqpropsJson, OutputOfEveryFormMeetsTheSchema) {
  const QJsonObject schema = QJsonDocument::fromJson(readAll(QString(ZQ_SOURCE_DIR) + "/host/zqprops.schema.json")).object();
  ASSERT_FALSE(schema.isEmpty());
  SchemaValidator validator(schema);
  // The validator itself refuses what the schema forbids.
  EXPECT_FALSE(validator.validate(QJsonDocument::fromJson(R"({"drawing":"x","objects":[{"handle":"1F"}]})").object()).isEmpty());
  const QStringList forms[] = {{kDemo, "--json"}, {kDemo, "--list", "--info", "--json"}, {kDemo, "--info", "--json"},
                               {kPlan, "--json", "--space", "all", "--blocks"}, {kDemo, "--json", "--lang", "de"}};
  for (const QStringList& args : forms) {
    SCOPED_TRACE(args.mid(1).join(' ').toStdString());
    const ProgramRun r = zqprops(args);
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QJsonDocument doc = parse(r);
    EXPECT_EQ(validator.validate(doc.object()).join('\n').toStdString(), "");
    EXPECT_FALSE(doc["objects"].toArray().isEmpty());
  }
}

TEST(ZqpropsJson, KeysStayTheSameInGermanWhileLabelsAreTranslated) {
  const QJsonDocument en = parse(zqprops({kDemo, "--json"})), de = parse(zqprops({kDemo, "--json", "--lang", "de"}));
  const QJsonArray a = en["objects"].toArray(), b = de["objects"].toArray();
  ASSERT_EQ(a.size(), b.size());
  int translated = 0;
  for (int i = 0; i < a.size(); ++i) {
    const QJsonObject ra = a[i]["rows"].toObject(), rb = b[i]["rows"].toObject();
    EXPECT_EQ(ra.keys(), rb.keys());
    for (const QString& k : ra.keys()) {
      EXPECT_EQ(ra[k]["name"], rb[k]["name"]);
      if (ra[k]["value"].isDouble()) {
        EXPECT_EQ(ra[k]["value"], rb[k]["value"]) << k.toStdString();
      }
      translated += ra[k]["label"] != rb[k]["label"];
    }
  }
  EXPECT_GT(translated, 0);
}

TEST(ZqpropsJson, RowsPicksRowsAndNumbersAreNumbers) {
  const QJsonDocument doc = parse(zqprops({kDemo, "--json", "--type", "CIRCLE", "--rows", "Geometry/Radius,General/Layer,Area"}));
  const QJsonArray objects = doc["objects"].toArray();
  ASSERT_FALSE(objects.isEmpty());
  for (const QJsonValue& o : objects) {
    EXPECT_EQ(o["type"].toString(), "CIRCLE");
    const QJsonObject rows = o["rows"].toObject();
    EXPECT_EQ(rows.keys(), (QStringList{"General/Layer", "Geometry/Area", "Geometry/Radius"}));
    const double r = rows["Geometry/Radius"]["value"].toDouble();
    EXPECT_TRUE(rows["Geometry/Area"]["value"].isDouble());
    EXPECT_NEAR(rows["Geometry/Area"]["value"].toDouble(), M_PI * r * r, 1e-3 * r * r);
    EXPECT_EQ(rows["General/Layer"]["value"], o["layer"]);
  }
}

// The JSON listing reads rows its own way (each object opened once, texts
// of rows prepared once per row): it must show, object by object, the rows
// and texts the text listing shows, on every sample, with and without
// --rows, in English and German.
TEST(ZqpropsJson, RowsAndTextsAreThoseOfTheTextListingOnEverySample) {
  static const QRegularExpression heading("^\\S+ \\[([0-9A-F]+)\\] ");
  const QString readOnly = "  (read-only)";
  QStringList drawings{kDemo};
  for (const QString& f : QDir(ZQ_SAMPLES_DIR).entryList({"*.dxf"})) drawings << QString(ZQ_SAMPLES_DIR) + "/" + f;
  const QStringList variants[] = {{}, {"--rows", "Layer,Geometry/Radius,Area,Contents"}, {"--lang", "de"}};
  int compared = 0;
  for (const QString& drawing : drawings) {
    for (const QStringList& extra : variants) {
      SCOPED_TRACE((QFileInfo(drawing).fileName() + " " + extra.join(' ')).toStdString());
      const QStringList common = QStringList{drawing, "--space", "all", "--blocks"} + extra;
      const ProgramRun text = zqprops(common + QStringList{"--list"}), json = zqprops(common + QStringList{"--json"});
      if (text.code != 0) continue;  // a drawing without objects, or a --rows none of them has
      ASSERT_EQ(json.code, text.code) << json.err.toStdString();
      // Lines of the text listing, object by object (in --lang de the
      // read-only mark is translated: compared without it, and read-only
      // by the JSON flag in English only).
      QHash<QString, QStringList> listed;
      QString handle;
      int headings = 0;
      QStringList lines = text.out.split('\n');
      if (!lines.isEmpty() && lines.back().isEmpty()) lines.removeLast();
      for (const QString& line : lines) {
        if (const auto m = heading.match(line); m.hasMatch()) handle = m.captured(1), ++headings;
        else if (line.startsWith("  ")) listed[handle] << line.mid(2);
        else if (!listed[handle].isEmpty()) listed[handle].back() += "\n" + line;  // a text of several lines
      }
      const QJsonArray objects = parse(json)["objects"].toArray();
      ASSERT_EQ(objects.size(), headings);
      for (const QJsonValue& o : objects) {
        QStringList shown;
        const QJsonObject rows = o["rows"].toObject();
        for (const QString& k : rows.keys()) {
          const QJsonObject r = rows[k].toObject();
          QString line = r["categoryLabel"].toString() + "/" + r["label"].toString() + ": " + r["text"].toString();
          if (extra.isEmpty() && r["readOnly"].toBool()) line += readOnly;
          shown << line;
        }
        QStringList expected = listed.value(o["handle"].toString());
        if (!extra.isEmpty())
          for (QString& l : expected)
            if (l.endsWith(readOnly)) l.chop(readOnly.size());
        static const QRegularExpression translatedMark("  \\([^()]*\\)$");
        if (extra.size() == 2 && extra[0] == "--lang")
          for (QString& l : expected) l.remove(translatedMark);
        shown.sort();
        expected.sort();
        EXPECT_EQ(shown.join('\n').toStdString(), expected.join('\n').toStdString()) << o["handle"].toString().toStdString();
        compared += int(shown.size());
      }
    }
  }
  EXPECT_GT(compared, 1000);
}

// ---------------------------------------------------------------------------
// Undo, redo, unsaved edits and scripts.

TEST(ZqpropsSession, UndoOfAMultiObjectEditSavesTheOriginalBytesAndRedoTheEdit) {
  QTemporaryDir dir;
  const QString undone = dir.filePath("undone.dxf"), redone = dir.filePath("redone.dxf"), direct = dir.filePath("direct.dxf");
  ASSERT_EQ(zqprops({kDemo, "--type", "LINE", "--set", "Color=1", "--set", "Layer=0", "-o", direct}).code, 0);
  const QString script = writeFile(dir, "edit.scr",
                                    "-PROPERTIES\nLINE\n\nColor\n1\nLayer\n0\nX\n"
                                    "; both edits of every line go, then come back\n"
                                    "UNDO 2\nSAVE " + undone.toUtf8() + "\nREDO\nREDO\nSAVE " + redone.toUtf8() + "\n");
  const ProgramRun r = zqprops({kDemo, "--script", script});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_TRUE(r.out.contains("Undone:")) << r.out.toStdString();
  EXPECT_EQ(readAll(undone), readAll(kDemo));
  EXPECT_NE(readAll(redone), readAll(kDemo));
  EXPECT_EQ(readAll(redone), readAll(direct));
}

TEST(ZqpropsSession, PropertiesCommandTakesTheProgramsSelectionAsPrevious) {
  QTemporaryDir dir;
  const QString out = dir.filePath("out.dxf");
  const QString script = writeFile(dir, "p.scr", "-PROPERTIES\nP\n\nColor\n1\nX\n-PROPERTIES\nType=CIRCLE Layer=Out*\n\nColor\n2\nX\n"
                                                 "SAVE " + out.toUtf8() + "\n");
  const ProgramRun r = zqprops({kDemo, "--layer", "Axis", "--script", script});
  ASSERT_EQ(r.code, 0) << r.err.toStdString();
  const QJsonArray objects = parse(zqprops({out, "--json", "--rows", "Color"}))["objects"].toArray();
  ASSERT_FALSE(objects.isEmpty());
  for (const QJsonValue& o : objects) {
    const QString want = o["layer"] == "Axis" ? "red" : o["type"] == "CIRCLE" ? "yellow" : "ByLayer";
    EXPECT_EQ(o["rows"]["General/Color"]["value"].toString(), want) << o["handle"].toString().toStdString();
  }
}

TEST(ZqpropsSession, UnsavedEditsAndScriptErrorsGiveTheirExitStatus) {
  QTemporaryDir dir;
  struct Case {
    QByteArray script;
    QStringList extra;
    int code;
    const char* err;  // expected on standard error ("" for nothing)
  } cases[] = {
      {"-PROPERTIES\nALL\n\nColor\n2\nX\nQUIT\n", {}, 3, "zqprops: 1 unsaved edit; use -o or SAVE"},
      {"-PROPERTIES\nALL\n\nColor\n2\nLayer\nAxis\nX\n", {}, 3, "zqprops: 2 unsaved edits; use -o or SAVE"},
      {"-PROPERTIES\nALL\n\nColor\n2\nX\nU\n", {}, 0, ""},
      // A refused edit changes nothing: no step to undo, nothing unsaved.
      {"-PROPERTIES\nALL\n\nLinetype scale\n-1\nX\n", {}, 1, ""},
      {"; a comment\n\n   ; another\nLIST\nALL\n\nFROB\nLIST\n", {}, 2, "s.scr:7: Unknown command \"FROB\"."},
      {"FROB\n-PROPERTIES\nALL\n\nColor\n2\nX\nSAVE\n" + dir.filePath("k.dxf").toUtf8() + "\n", {"--keep-going"}, 2, "s.scr:1: Unknown command"},
      {"UNDO\nmany\n", {}, 2, "s.scr:2: UNDO needs a whole number"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.script.toStdString());
    const ProgramRun r = zqprops(QStringList{kDemo, "--script", writeFile(dir, "s.scr", c.script)} + c.extra);
    EXPECT_EQ(r.code, c.code) << r.err.toStdString();
    if (*c.err) EXPECT_TRUE(r.err.contains(c.err)) << r.err.toStdString();
    else EXPECT_TRUE(r.err.isEmpty()) << r.err.toStdString();
  }
  // --keep-going went on to the edit and the save after the bad line.
  EXPECT_NE(readAll(dir.filePath("k.dxf")), readAll(kDemo));
  EXPECT_FALSE(readAll(dir.filePath("k.dxf")).isEmpty());
  // Piped answers are no terminal: nothing is asked, the exit status tells.
  const ProgramRun piped = zqprops({kDemo}, "-PROPERTIES\nALL\n\nColor\n3\nX\n");
  EXPECT_EQ(piped.code, 3);
}

}  // namespace
