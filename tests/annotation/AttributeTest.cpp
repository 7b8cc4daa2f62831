// Attributes and attribute definitions, and every text of the sample
// drawings: each lists with its own provider and rows, its attribute values
// agree with ezdxf and an unedited save gives the file back; edits of the
// attribute rows are read back by ezdxf; refusals are sentences.
#include "TextTestSupport.h"
#include "DxfDatabase.h"
#include "DbMText.h"
#include "DbText.h"
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

namespace {

class AttributeTest : public ZqDrawingTest {
 protected:
  QString lastMessage() const { return GetZqSystemServices()->Messages().back().text.qstring(); }
  bool readOnly(const OdDbObjectId& id, const char* name) {
    OdDbObjectPtr obj = id.openObject();
    auto rows = zqRowsOf(obj.get());
    CZqPropertyDescription* d = zqRow(rows.get(), "Attribute", name);
    EXPECT_NE(d, nullptr) << name;
    return d && d->IsReadOnly(obj.get());
  }
};

// --- Every text of the samples ---------------------------------------------------------

class TextKindsSamplesTest : public AttributeTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(TextKindsSamplesTest, ListWithTheirOwnRowsAgreeWithEzdxfAndRoundTrip) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + GetParam();
  int code = -1;
  const QMap<QString, QStringList> reference = zqPythonRowsByHandle(
      "import sys, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "for e in doc.entitydb.values():\n"
      "    t = e.dxftype()\n"
      "    if t in ('TEXT', 'MTEXT'): print(e.dxf.handle, t)\n"
      "    if t in ('ATTRIB', 'ATTDEF'):\n"
      "        print(e.dxf.handle, t, e.dxf.tag, e.dxf.flags, e.dxf.get('lock_position', 0),\n"
      "              int(e.has_embedded_mtext_entity), (e.dxf.prompt.replace(' ', '_') or '-') if t == 'ATTDEF' else '-')\n",
      {path}, &code);
  ASSERT_EQ(code, 0);
  QString error;
  db = OdDxf::readDrawing(path, error);
  ASSERT_TRUE(db) << error.toStdString();
  const QMap<QString, QString> names{{"TEXT", "Simplenote"}, {"MTEXT", "MText"},
                                     {"ATTDEF", "Attribute Definition"}, {"ATTRIB", "Attribute"}};
  int listed = 0;
  for (auto it = reference.cbegin(); it != reference.cend(); ++it) {
    SCOPED_TRACE(it.key().toStdString());
    const QStringList& f = it.value();
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(it.key().toULongLong(nullptr, 16)));
    ASSERT_FALSE(id.isNull());
    OdDbObjectPtr obj = id.openObject();
    EXPECT_EQ(zqProviderFor(obj.get())->GetClassName(obj.get()).qstring(), names[f[1]]);
    auto rows = zqRowsOf(obj.get());
    EXPECT_NE(zqRow(rows.get(), "Text", "Contents"), nullptr);
    obj.release();
    ++listed;
    if (f.size() < 7) continue;
    EXPECT_EQ(get(id, "Attribute", "Tag").GetString().qstring(), f[2]);
    const int flags = f[3].toInt();
    EXPECT_EQ(zqCurrentWord(get(id, "Attribute", "Invisible")), flags & 1 ? "Yes" : "No");
    EXPECT_EQ(zqCurrentWord(get(id, "Attribute", "Constant")), flags & 2 ? "Yes" : "No");
    EXPECT_EQ(zqCurrentWord(get(id, "Attribute", "Verify")), flags & 4 ? "Yes" : "No");
    EXPECT_EQ(zqCurrentWord(get(id, "Attribute", "Preset")), flags & 8 ? "Yes" : "No");
    EXPECT_EQ(zqCurrentWord(get(id, "Attribute", "Lock position")), f[4] == "1" ? "Yes" : "No");
    EXPECT_EQ(zqCurrentWord(get(id, "Attribute", "Multiline")), f[5] == "1" ? "Yes" : "No");
    if (f[1] == "ATTDEF") {
      const QString prompt = get(id, "Attribute", "Prompt").GetString().qstring();
      EXPECT_EQ(prompt.isEmpty() ? "-" : QString(prompt).replace(' ', '_'), f[6]);
    }
  }
  EXPECT_GT(listed, 0);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(OdDxf::writeDrawing(db.get()) == file.readAll());
}

INSTANTIATE_TEST_SUITE_P(Samples, TextKindsSamplesTest,
                         ::testing::Values("ezdxf__examples_dxf__text.dxf", "ezdxf__examples_dxf__uncommon.dxf",
                                           "netDxf__TestDxfDocument__sample.dxf",
                                           "libredwg__test__test-data__example_2000.dxf",
                                           "libredwg__test__test-data__example_2018.dxf",
                                           "libredwg__test__test-data__example_r14.dxf",
                                           "libredwg__test__test-data__2000__TS1.dxf",
                                           "libredwg__test__test-data__2000__entities-2d.dxf",
                                           "libredwg__test__test-data__2000__entities-3d.dxf",
                                           "libredwg__test__test-data__2013__gh109_1.dxf",
                                           "libredwg__test__test-data__2010__Leader.dxf",
                                           "ezdxf__examples_dxf__VP4.dxf"),
                         [](const auto& info) { return zqSampleTestName(info.param); });

// --- Edits read back by ezdxf -------------------------------------------------------------

// The object of a class with the lowest handle (attributes included, which
// belong to their block reference rather than to a block).
OdDbObjectId firstOf(OdDbDatabase* db, OdRxClass* cls) {
  for (quint64 h = 1; h < db->handseed().value(); ++h) {
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(h));
    if (!id.isNull() && !id.isErased() && id.openObject()->isA() == cls) return id;
  }
  return OdDbObjectId();
}

TEST_F(AttributeTest, EditsOfBothKindsAreReadBackByEzdxf) {
  QString error;
  db = OdDxf::readDrawing(QString(ZQ_SAMPLES_DIR) + "/ezdxf__examples_dxf__text.dxf", error);
  ASSERT_TRUE(db) << error.toStdString();
  const OdDbObjectId def = firstOf(db.get(), OdDbAttributeDefinition::desc());
  ASSERT_FALSE(def.isNull());
  // An attribute whose lock is set, so that clearing it shows.
  const OdDbObjectId attrib = db->getOdDbObjectId(OdDbHandle(0x757));
  ASSERT_FALSE(attrib.isNull());
  EXPECT_EQ(set(def, "Attribute", "Tag", CZqVariant("NEW_TAG")), 5100);
  EXPECT_EQ(set(def, "Attribute", "Prompt", CZqVariant("Type the number")), 5100);
  EXPECT_EQ(set(def, "Attribute", "Value", CZqVariant("42")), 5100);
  EXPECT_EQ(set(def, "Attribute", "Invisible", zqChoose(1)), 5100);
  EXPECT_EQ(set(def, "Attribute", "Constant", zqChoose(1)), 5100);
  EXPECT_EQ(set(def, "Attribute", "Lock position", zqChoose(0)), 5100);
  EXPECT_EQ(set(attrib, "Attribute", "Value", CZqVariant("changed value")), 5100);
  EXPECT_EQ(set(attrib, "Attribute", "Lock position", zqChoose(0)), 5100);
  EXPECT_EQ(set(attrib, "Attribute", "Tag", CZqVariant("OTHER")), 5100);
  QTemporaryDir dir;
  const QString out = dir.filePath("edited.dxf");
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), out, error)) << error.toStdString();
  int code = -1;
  const QString read = zqRunPython(
      "import sys, ezdxf\n"
      "sys.stderr = sys.stdout\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "for h in sys.argv[2:]:\n"
      "    e = doc.entitydb[h]\n"
      "    print(e.dxf.tag, e.dxf.prompt if e.dxftype() == 'ATTDEF' else '-', e.dxf.text, e.dxf.flags, e.dxf.get('lock_position', 0), e.dxf.get('version', 0), sep='|')\n",
      {out, def.getHandle().ascii().qstring(), attrib.getHandle().ascii().qstring()}, &code);
  ASSERT_EQ(code, 0) << read.toStdString();
  EXPECT_EQ(read, "NEW_TAG|Type the number|42|3|0|0\nOTHER|-|changed value|0|0|0\n");
}

// --- Refusals and read-only rows ------------------------------------------------------------

TEST_F(AttributeTest, BadTagsValuesAndLocksInOldDrawingsAreRefusedWithSentences) {
  QString error;
  db = OdDxf::readDrawing(QString(ZQ_SAMPLES_DIR) + "/libredwg__test__test-data__2000__entities-2d.dxf", error);
  ASSERT_TRUE(db) << error.toStdString();
  const OdDbObjectId def = firstOf(db.get(), OdDbAttributeDefinition::desc());
  const OdDbObjectId attrib = firstOf(db.get(), OdDbAttribute::desc());
  ASSERT_FALSE(def.isNull());
  ASSERT_FALSE(attrib.isNull());
  const QString tag = openAs<OdDbAttributeDefinition>(def)->tag().qstring();
  const struct {
    OdDbObjectId id;
    const char* row;
    CZqVariant value;
    const char* sentence;
  } cases[] = {
      {def, "Tag", CZqVariant("two words"), "one word"},
      {def, "Tag", CZqVariant(""), "one word"},
      {def, "Prompt", CZqVariant("line\nbreak"), "one line"},
      {attrib, "Value", CZqVariant("a\tb"), "one line"},
      {attrib, "Lock position", zqChoose(1), "R2010"},
  };
  for (const auto& c : cases) {
    const size_t before = messageCount();
    EXPECT_EQ(set(c.id, "Attribute", c.row, c.value), -5001) << c.row;
    ASSERT_EQ(messageCount(), before + 1) << c.row;
    EXPECT_TRUE(lastMessage().contains(c.sentence)) << lastMessage().toStdString();
  }
  EXPECT_EQ(openAs<OdDbAttributeDefinition>(def)->tag().qstring(), tag);
  EXPECT_FALSE(openAs<OdDbAttribute>(attrib)->lockPositionInBlock());
  // What belongs to the definition is read-only on an attribute.
  for (const char* row : {"Constant", "Verify", "Preset", "Multiline"}) EXPECT_TRUE(readOnly(attrib, row)) << row;
  for (const char* row : {"Constant", "Verify", "Preset"}) EXPECT_FALSE(readOnly(def, row)) << row;
}

TEST_F(AttributeTest, InformationAddsTheAttributeLinesToTheTextLines) {
  OdDbAttributeDefinitionPtr d = OdDbAttributeDefinition::createObject();
  d->setTag(OdString("PART"));
  d->setPrompt(OdString("Part number"));
  d->setTextString(OdString("0000"));
  d->setVerifiable(true);
  const OdDbObjectId id = addToModelSpace(d.get());
  d.release();
  const auto lines = info(id);
  const std::vector<QString> labels = labelsOf(lines);
  const std::vector<QString> own{"text", "rotation angle", "width scale", "obliquing angle", "Tag", "Prompt",
                                 "Invisible", "Constant", "Verify", "Preset", "Lock position"};
  ASSERT_GE(labels.size(), own.size());
  EXPECT_EQ(std::vector<QString>(labels.end() - own.size(), labels.end()), own);
  EXPECT_EQ(infoLine(lines, "Prompt")->value.toString(), "Part number");
  EXPECT_EQ(infoLine(lines, "text")->value.toString(), "0000");
  EXPECT_TRUE(infoLine(lines, "Verify")->value.toBool());
  EXPECT_FALSE(infoLine(lines, "Invisible")->value.toBool());
}

}  // namespace
