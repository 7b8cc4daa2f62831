// Named records: the rows of layers, linetypes, text and dimension styles
// read back from the records, the refusals (forbidden characters, taken and
// fixed names, values a record cannot take) that leave a record as it was,
// renames followed through a real drawing as ezdxf reads it, and every
// record of the sample drawings listed by its own provider.
#include "ZqTestSupport.h"
#include "../host/ZqpropsRun.h"
#include "DbDimStyle.h"
#include "DbSymbolTable.h"
#include "DxfDatabase.h"
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <functional>

namespace {

CZqVariant choose(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(int32_t(tag)))); }
CZqVariant text(const char* s) { return CZqVariant(CZqString(QString::fromUtf8(s))); }
CZqVariant num(double v) { return CZqVariant(v, true); }

class RecordsTest : public ZqDrawingTest {
 protected:
  void SetUp() override {
    ZqDrawingTest::SetUp();
    wall = addRecord(db->getLayerTableId(), OdDbLayerTableRecord::createObject(), "Wall");
    addRecord(db->getLayerTableId(), OdDbLayerTableRecord::createObject(), "Door");
    dashed = addRecord(db->getLinetypeTableId(), OdDbLinetypeTableRecord::createObject(), "Dashed");
    for (const char* fixed : {"ByBlock", "Continuous"})
      if (!static_cast<OdDbSymbolTable*>(db->getLinetypeTableId().openObject().get())->has(fixed))
        addRecord(db->getLinetypeTableId(), OdDbLinetypeTableRecord::createObject(), fixed);
    for (const char* fixed : {"Standard"})
      if (!static_cast<OdDbSymbolTable*>(db->getTextStyleTableId().openObject().get())->has(fixed))
        addRecord(db->getTextStyleTableId(), OdDbTextStyleTableRecord::createObject(), fixed);
    standard = static_cast<OdDbSymbolTable*>(db->getTextStyleTableId().openObject().get())->getAt("Standard");
    roman = addRecord(db->getTextStyleTableId(), OdDbTextStyleTableRecord::createObject(), "Roman");
    addRecord(db->getTextStyleTableId(), OdDbTextStyleTableRecord::createObject(), "Notes");
    iso = addRecord(db->getDimStyleTableId(), OdDbDimStyleTableRecord::createObject(), "ISO-25");
    zero = static_cast<OdDbSymbolTable*>(db->getLayerTableId().openObject().get())->getAt("0");
  }
  OdDbObjectId addRecord(const OdDbObjectId& table, OdDbSymbolTableRecordPtr record, const char* name) {
    record->setName(OdString(name));
    OdDbObjectPtr t = table.openObject(OdDb::kForWrite);
    return static_cast<OdDbSymbolTable*>(t.get())->add(record.get());
  }
  // Everything a record's rows show, as text: what a refusal must leave alone.
  std::vector<CZqVariant> image(const OdDbObjectId& id) {
    OdDbObjectPtr o = id.openObject();
    std::vector<CZqVariant> values;
    auto rows = zqRowsOf(o.get());
    for (int i = 0; i < rows->GetCount(); ++i) values.push_back(rows->GetAt(i)->GetValue(o.get(), CZqVariant()));
    return values;
  }

 public:
  OdDbObjectId wall, dashed, roman, iso, zero, standard;
};

// --- Edits read back from the records ----------------------------------------------

struct Edit {
  const char* what;
  OdDbObjectId RecordsTest::*record;
  const char* category;
  const char* row;
  std::function<CZqVariant(RecordsTest&)> value;
  std::function<bool(const OdDbObject*, RecordsTest&)> holds;
};

template <class T>
const T* as(const OdDbObject* o) { return static_cast<const T*>(o); }

const Edit kEdits[] = {
    {"layer off", &RecordsTest::wall, "General", "On", [](auto&) { return choose(0); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->isOff(); }},
    {"layer frozen", &RecordsTest::wall, "General", "Frozen", [](auto&) { return choose(1); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->isFrozen(); }},
    {"layer locked", &RecordsTest::wall, "General", "Locked", [](auto&) { return choose(1); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->isLocked(); }},
    {"layer not plotted", &RecordsTest::wall, "General", "Plot", [](auto&) { return choose(0); },
     [](const OdDbObject* o, auto&) { return !as<OdDbLayerTableRecord>(o)->isPlottable(); }},
    {"layer red", &RecordsTest::wall, "General", "Color", [](auto&) { return CZqVariant(OdCmColor::fromIndex(1)); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->color() == OdCmColor::fromIndex(1); }},
    {"layer linetype by name", &RecordsTest::wall, "General", "Linetype", [](auto&) { return text("dashed"); },
     [](const OdDbObject* o, RecordsTest& t) { return as<OdDbLayerTableRecord>(o)->linetypeObjectId() == t.dashed; }},
    {"layer lineweight", &RecordsTest::wall, "General", "Lineweight", [](auto&) { return CZqVariant(int32_t(50)); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->lineWeight() == OdDb::LineWeight(50); }},
    {"layer transparency", &RecordsTest::wall, "General", "Transparency", [](auto&) { return text("40"); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->transparency().percent() == 40; }},
    {"layer description", &RecordsTest::wall, "General", "Description", [](auto&) { return text("Outer walls"); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->description() == OdString("Outer walls"); }},
    {"layer renamed, case only", &RecordsTest::wall, "General", "Name", [](auto&) { return text("WALL"); },
     [](const OdDbObject* o, auto&) { return as<OdDbLayerTableRecord>(o)->getName() == OdString("WALL"); }},
    {"linetype description", &RecordsTest::dashed, "General", "Description", [](auto&) { return text("__ __"); },
     [](const OdDbObject* o, auto&) { return as<OdDbLinetypeTableRecord>(o)->comments() == OdString("__ __"); }},
    {"text style width", &RecordsTest::roman, "Text", "Width factor", [](auto&) { return num(0.8); },
     [](const OdDbObject* o, auto&) { return as<OdDbTextStyleTableRecord>(o)->xScale() == 0.8; }},
    {"text style backwards", &RecordsTest::roman, "Text", "Backwards", [](auto&) { return choose(1); },
     [](const OdDbObject* o, auto&) { return as<OdDbTextStyleTableRecord>(o)->textGenerationFlags() == 2; }},
    {"text style font", &RecordsTest::roman, "Text", "Font name", [](auto&) { return text("romans.shx"); },
     [](const OdDbObject* o, auto&) { return as<OdDbTextStyleTableRecord>(o)->fileName() == OdString("romans.shx"); }},
    {"dimension style arrows", &RecordsTest::iso, "Lines && Arrows", "Arrow size", [](auto&) { return num(2.5); },
     [](const OdDbObject* o, auto&) { return as<OdDbDimStyleTableRecord>(o)->dimasz() == 2.5; }},
    {"dimension style precision", &RecordsTest::iso, "Primary UnitSystem", "Precision", [](auto&) { return CZqVariant(int32_t(2)); },
     [](const OdDbObject* o, auto&) { return as<OdDbDimStyleTableRecord>(o)->dimdec() == 2; }},
    {"dimension style text style", &RecordsTest::iso, "Text", "TextStyle", [](RecordsTest& t) { return CZqVariant(t.roman); },
     [](const OdDbObject* o, RecordsTest& t) { return as<OdDbDimStyleTableRecord>(o)->dimtxsty() == t.roman; }},
};

TEST_F(RecordsTest, EditsReachTheRecord) {
  for (const Edit& e : kEdits) {
    SCOPED_TRACE(e.what);
    const OdDbObjectId id = this->*e.record;
    ASSERT_EQ(set(id, e.category, e.row, e.value(*this)), 5100);
    OdDbObjectPtr o = id.openObject();
    EXPECT_TRUE(e.holds(o.get(), *this));
  }
  EXPECT_EQ(messageCount(), 0u);
}

// --- Refusals ----------------------------------------------------------------------

struct Refusal {
  const char* what;
  OdDbObjectId RecordsTest::*record;
  const char* category;
  const char* row;
  CZqVariant value;
};

std::vector<Refusal> refusals() {
  std::vector<Refusal> out = {
      {"name taken, other case", &RecordsTest::wall, "General", "Name", text("DOOR")},
      {"empty name", &RecordsTest::wall, "General", "Name", text("  ")},
      {"leading blank", &RecordsTest::wall, "General", "Name", text(" Wall2")},
      {"layer 0", &RecordsTest::zero, "General", "Name", text("Base")},
      {"linetype name taken", &RecordsTest::dashed, "General", "Name", text("continuous")},
      {"text style name taken", &RecordsTest::roman, "General", "Name", text("Notes")},
      {"text style Standard", &RecordsTest::standard, "General", "Name", text("Normal")},
      {"layer colour ByLayer", &RecordsTest::wall, "General", "Color", CZqVariant(OdCmColor::byLayer())},
      {"layer linetype ByBlock", &RecordsTest::wall, "General", "Linetype", text("ByBlock")},
      {"layer linetype missing", &RecordsTest::wall, "General", "Linetype", text("Hidden")},
      {"layer lineweight ByLayer", &RecordsTest::wall, "General", "Lineweight", CZqVariant(int32_t(OdDb::kLnWtByLayer))},
      {"layer lineweight odd", &RecordsTest::wall, "General", "Lineweight", CZqVariant(int32_t(33))},
      {"layer transparency 95", &RecordsTest::wall, "General", "Transparency", text("95")},
      {"current layer frozen", &RecordsTest::zero, "General", "Frozen", choose(1)},
      {"text style width 0", &RecordsTest::roman, "Text", "Width factor", num(0.0)},
      {"text style oblique 86", &RecordsTest::roman, "Text", "Oblique angle", num(86 * OdaPI / 180)},
      {"dimension style precision 9", &RecordsTest::iso, "Primary UnitSystem", "Precision", CZqVariant(int32_t(9))},
      {"dimension style text height 0", &RecordsTest::iso, "Text", "Text height", num(0.0)},
  };
  for (const char* c = "<>/\\\":;?*|,=`"; *c; ++c) {
    static std::vector<std::string> names;
    names.push_back(std::string("Wall") + *c + "2");
    out.push_back({"forbidden character", &RecordsTest::wall, "General", "Name", text(names.back().c_str())});
  }
  return out;
}

TEST_F(RecordsTest, RefusalsSayWhyAndChangeNothing) {
  db->setCLAYER(zero);
  for (const Refusal& r : refusals()) {
    SCOPED_TRACE(std::string(r.what) + (r.value.GetType() == CZqVariant::kVtString ? " " + r.value.GetString().qstring().toStdString() : ""));
    const OdDbObjectId id = this->*r.record;
    const std::vector<CZqVariant> before = image(id);
    const size_t messages = messageCount();
    EXPECT_EQ(set(id, r.category, r.row, r.value), -5001);
    ASSERT_EQ(messageCount(), messages + 1);
    EXPECT_FALSE(GetZqSystemServices()->Messages().back().text.isEmpty());
    EXPECT_EQ(image(id), before);
  }
}

// --- Renames in real drawings, read back by ezdxf ---------------------------------

struct Rename {
  const char* sample;
  const char* kind;  // --records word
  const char* from;
  const char* to;
};

const Rename kRenames[] = {
    {"libredwg__test__test-data__example_2000.dxf", "layers", "Tavolo 3", "Table 3"},
    {"ezdxf__examples_dxf__text.dxf", "textstyles", "Simplex_100", "Simplex 100"},
    {"netDxf__TestDxfDocument__sample.dxf", "textstyles", "MyTextStyle", "My style"},
    {"libredwg__test__test-data__example_2000.dxf", "dimstyles", "ISO-25", "ISO 25"},
    {"libredwg__test__test-data__2010__Leader.dxf", "dimstyles", "Annotative", "Notes"},
};

// Counts, in every block and layout, the references to a name (layers of
// every entity and attribute, styles of texts, dimension styles), and checks
// that the two files differ only in tags whose value went from the old name
// to the new one.
const char* kCountReferences = R"(
import sys, ezdxf
kind, path, name = sys.argv[1], sys.argv[2], sys.argv[3]
attr = {'layers': 'layer', 'textstyles': 'style', 'dimstyles': 'dimstyle'}[kind]
doc = ezdxf.readfile(path)
n = 0
for block in doc.blocks:
    for e in block:
        for x in [e] + list(getattr(e, 'attribs', [])):
            try:
                if x.dxf.hasattr(attr) and x.dxf.get(attr).lower() == name.lower(): n += 1
            except Exception: pass
table = {'layers': doc.layers, 'textstyles': doc.styles, 'dimstyles': doc.dimstyles}[kind]
print(n, sum(1 for r in table if r.dxf.name == name))
)";

const char* kDiffOnlyNames = R"(
import sys
a = open(sys.argv[1], 'rb').read().split(b'\n')
b = open(sys.argv[2], 'rb').read().split(b'\n')
old, new = sys.argv[3].encode(), sys.argv[4].encode()
if len(a) != len(b): print('lengths', len(a), len(b)); sys.exit(0)
bad = [i for i in range(len(a)) if a[i] != b[i] and not (a[i].strip() == old and b[i].strip() == new)]
print('ok' if not bad else 'differs at %d: %r -> %r' % (bad[0], a[bad[0]], b[bad[0]]))
)";

class RenameTest : public ::testing::TestWithParam<Rename> {};

TEST_P(RenameTest, EveryReferenceFollowsAndNothingElseChanges) {
  const Rename& r = GetParam();
  const QString in = QString(ZQ_SAMPLES_DIR) + "/" + r.sample;
  QTemporaryDir dir;
  const QString out = dir.filePath("renamed.dxf");
  const ProgramRun run = zqprops({in, "--records", r.kind, "--name", r.from, "--set", QString("Name=") + r.to, "-o", out});
  ASSERT_EQ(run.code, 0) << run.err.toStdString();
  const QStringList before = zqRunPython(kCountReferences, {r.kind, in, r.from}).split(' ');
  const QStringList afterOld = zqRunPython(kCountReferences, {r.kind, out, r.from}).split(' ');
  const QStringList afterNew = zqRunPython(kCountReferences, {r.kind, out, r.to}).split(' ');
  ASSERT_EQ(before.size(), 2);
  EXPECT_GT(before[0].toInt(), 0) << "the sample names " << r.from << " nowhere";
  EXPECT_EQ(afterOld[0].toInt(), 0);
  EXPECT_EQ(afterNew[0].toInt(), before[0].toInt());
  EXPECT_EQ(afterNew.value(1).trimmed(), "1");
  EXPECT_EQ(zqRunPython(kDiffOnlyNames, {in, out, r.from, r.to}).trimmed(), "ok");
}

INSTANTIATE_TEST_SUITE_P(Samples, RenameTest, ::testing::ValuesIn(kRenames));

// --- Every record of every sample -----------------------------------------------

TEST(RecordSamples, EveryRecordListsWithItsOwnProviderAndRoundTrips) {
  // The display name and provider of each record type.
  const QMap<QString, QStringList> shown = {{"LAYER", {"Layer", "CZqLayerPE"}},
                                            {"LTYPE", {"Linetype", "CZqLineStylePE"}},
                                            {"STYLE", {"Text Style", "CZqTextStylePE"}},
                                            {"DIMSTYLE", {"Dimension Style", "CZqDimensionStylePE"}},
                                            {"VIEW", {"View", "CZqViewTableRecordPE"}},
                                            {"VPORT", {"Viewport Configuration", "CZqViewportTableRecordPE"}},
                                            {"GROUP", {"Group", "CZqGroupPE"}},
                                            {"MLINESTYLE", {"Multiline Style", "CZqRichLineStylePE"}},
                                            {"TABLESTYLE", {"Table Style", "CZqTableStylePE"}}};
  const QStringList samples = QDir(ZQ_SAMPLES_DIR).entryList({"*.dxf"}, QDir::Files);
  ASSERT_FALSE(samples.isEmpty());
  for (const QString& name : samples) {
    SCOPED_TRACE(name.toStdString());
    const QString path = QString(ZQ_SAMPLES_DIR) + "/" + name;
    const ProgramRun run = zqprops({path, "--records", "layers,linetypes,textstyles,dimstyles,views,vports,groups,mlinestyles,tablestyles", "--json"});
    if (run.code != 0) {
      // Drawings the platform refuses to read are refused before any record.
      EXPECT_TRUE(run.err.contains("zqprops:")) << run.err.toStdString();
      continue;
    }
    const QJsonArray objects = QJsonDocument::fromJson(run.out.toUtf8()).object()["objects"].toArray();
    EXPECT_FALSE(objects.isEmpty());
    for (const QJsonValue& v : objects) {
      const QJsonObject o = v.toObject();
      const QString type = o["type"].toString();
      ASSERT_TRUE(shown.contains(type)) << type.toStdString();
      EXPECT_EQ(o["name"].toString(), shown[type][0]);
      EXPECT_EQ(o["provider"].toString(), shown[type][1]);
      EXPECT_TRUE(o["rows"].toObject().contains("General/Name")) << type.toStdString();
    }
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    // A drawing the reader had to repair is written repaired.
    QString error;
    QStringList warnings;
    OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error, &warnings);
    ASSERT_TRUE(db) << error.toStdString();
    if (warnings.isEmpty()) {
      EXPECT_TRUE(OdDxf::writeDrawing(db.get(), &error) == bytes) << error.toStdString();
    }
  }
}

}  // namespace
