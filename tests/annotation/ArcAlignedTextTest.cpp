// Text laid along an arc: its rows read from a drawing, the refusals of a
// height or radius the text cannot have (with the sentence a host shows),
// the character spacing of fitted text, the offset icons, and edits written
// back into the drawing's tags (an unedited drawing comes back byte for byte).
#include "TextTestSupport.h"
#include "DxfDatabase.h"
#include "DbArcAlignedText.h"
#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr quint64 kHandle = 0x52;  // a handle the sample drawing leaves free

// An R2000 sample with one arc-aligned text added to model space (handle
// 1F): center (5, 6, 0), radius 10, angles 0.5 to 2.5 radians, height 2.5,
// offset 0.5 from the arc, aligned as given.
QByteArray drawingWithArcText(int alignment) {
  QFile f(QString(ZQ_SAMPLES_DIR) + "/libredwg__test__test-data__2000__entities-2d.dxf");
  if (!f.open(QIODevice::ReadOnly)) return {};
  QByteArray bytes = f.readAll();
  const QByteArray tags[] = {"0", "ARCALIGNEDTEXT", "5", "52", "330", "1F", "100", "AcDbEntity", "8", "0",
                             "100", "AcDbArcAlignedText", "1", "ARC TEXT", "2", "Arial", "3", "", "7", "Standard",
                             "10", "5.0", "20", "6.0", "30", "0.0", "40", "10.0", "41", "1.0", "42", "2.5",
                             "43", "0.25", "44", "0.5", "45", "0.0", "46", "0.0", "50", "0.5", "51", "2.5",
                             "70", "0", "71", "2", "72", QByteArray::number(alignment), "73", "1", "74", "0",
                             "75", "0", "76", "0", "77", "0", "78", "34", "79", "0", "90", "0",
                             "210", "0.0", "220", "0.0", "230", "1.0", "280", "1"};
  QByteArray record;
  for (size_t i = 0; i < std::size(tags); i += 2)
    record += tags[i].rightJustified(3, ' ') + "\r\n" + tags[i + 1] + "\r\n";
  // Before the ENDSEC of the ENTITIES section.
  const qsizetype entities = bytes.indexOf("ENTITIES\r\n");
  const qsizetype end = bytes.indexOf("  0\r\nENDSEC\r\n", entities);
  if (entities < 0 || end < 0) return {};
  bytes.insert(end, record);
  return bytes;
}

class ArcAlignedTextTest : public ZqDrawingTest {
 protected:
  void load(int alignment = 4) {
    bytes = drawingWithArcText(alignment);
    ASSERT_FALSE(bytes.isEmpty());
    QString error;
    QStringList warnings;
    db = OdDxf::readDrawing(bytes, error, &warnings);
    ASSERT_TRUE(db) << error.toStdString();
    EXPECT_TRUE(warnings.isEmpty()) << warnings.join('\n').toStdString();
    id = db->getOdDbObjectId(OdDbHandle(kHandle));
    ASSERT_FALSE(id.isNull());
  }
  CZqPropertyDescription* row(const char* category, const char* name) {
    obj = id.openObject();
    rows = zqRowsOf(obj.get());
    return zqRow(rows.get(), category, name);
  }
  QByteArray bytes;
  OdDbObjectId id;
  OdDbObjectPtr obj;
  std::unique_ptr<CZqPropertiesContainer> rows;
};

TEST_F(ArcAlignedTextTest, RowsShowTheDrawingsValues) {
  load();
  OdDbObjectPtr o = id.openObject();
  EXPECT_EQ(zqProviderFor(o.get())->GetClassName(o.get()).qstring(), "ArcAlignedText");
  o.release();
  EXPECT_EQ(get(id, "Text", "Contents").GetString().qstring(), "ARC TEXT");
  const struct {
    const char* category;
    const char* name;
    double value;
  } cases[] = {{"Text", "Height", 2.5},         {"Text", "Width Factor", 1.0},   {"Text", "Char Spacing", 0.25},
               {"Position", "Center X", 5.0},   {"Position", "Center Y", 6.0},   {"Position", "Center Z", 0.0},
               {"Position", "Normal Z", 1.0},   {"Position", "Radius", 10.0},    {"Position", "Start Angle", 0.5},
               {"Position", "End Angle", 2.5},  {"Misc", "Arc Offset", 0.5},     {"Misc", "Left Offset", 0.0}};
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(get(id, c.category, c.name).GetDouble(), c.value) << c.name;
  EXPECT_TRUE(row("Position", "Normal X")->IsReadOnly(obj.get()));
  EXPECT_FALSE(row("Text", "Char Spacing")->IsReadOnly(obj.get()));
  EXPECT_EQ(row("Misc", "Arc Offset")->GetDarkIcon().qstring(), ":/Misc/svg_icons/dark/Misc/Arc_Offset.svg");
  EXPECT_EQ(row("Misc", "Right Offset")->GetLightIcon().qstring(), ":/Misc/svg_icons/light/Misc/Offset_Right.svg");
  EXPECT_TRUE(OdDxf::writeDrawing(db.get()) == bytes);
}

TEST_F(ArcAlignedTextTest, FittedTextHasNoCharacterSpacingToEdit) {
  load(1);
  EXPECT_TRUE(row("Text", "Char Spacing")->IsReadOnly(obj.get()));
}

// Refused quietly, as the palette does for this object; the sentence is
// there for a host to show.
TEST_F(ArcAlignedTextTest, HeightAndRadiusThatCannotBeAreRefusedWithSentences) {
  load();
  const struct {
    const char* category;
    const char* name;
    double value;
    const char* sentence;
  } cases[] = {{"Text", "Height", 0.0, "Height must be greater than 0"},
               {"Text", "Height", -2.0, "Height must be greater than 0"},
               {"Position", "Radius", 0.0, "Radius must be greater than 0"},
               {"Position", "Radius", 1e-11, "Radius must be greater than 0"},
               {"Position", "Radius", -4.0, "Radius must be greater than 0"}};
  for (const auto& c : cases) {
    EXPECT_EQ(set(id, c.category, c.name, CZqVariant(c.value, true)), -5001) << c.name << " " << c.value;
    EXPECT_EQ(row(c.category, c.name)->GetRefusalText().qstring(), c.sentence);
  }
  EXPECT_EQ(messageCount(), 0u);
  OdDbArcAlignedTextPtr t = openAs<OdDbArcAlignedText>(id);
  EXPECT_EQ(t->textSize(), 2.5);
  EXPECT_EQ(t->radius(), 10.0);
  // The tiniest height is a height.
  t.release();
  EXPECT_EQ(set(id, "Text", "Height", CZqVariant(1e-12, true)), 5100);
  EXPECT_EQ(openAs<OdDbArcAlignedText>(id)->textSize(), 1e-12);
}

TEST_F(ArcAlignedTextTest, EditsAreWrittenToTheirOwnTags) {
  load();
  EXPECT_EQ(set(id, "Text", "Contents", CZqVariant("NEW WORDS")), 5100);
  EXPECT_EQ(set(id, "Text", "Height", CZqVariant(3.0, true)), 5100);
  EXPECT_EQ(set(id, "Position", "Radius", CZqVariant(12.0, true)), 5100);
  EXPECT_EQ(set(id, "Position", "Start Angle", CZqVariant(1.0, true)), 5100);
  EXPECT_EQ(set(id, "Position", "Center X", CZqVariant(-3.0, true)), 5100);
  EXPECT_EQ(set(id, "Misc", "Right Offset", CZqVariant(0.75, true)), 5100);
  QTemporaryDir dir;
  const QString out = dir.filePath("edited.dxf");
  QString error;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), out, error)) << error.toStdString();
  // The record's tags as plain pairs, read independently.
  int code = -1;
  const QString read = zqRunPython(
      "import sys\n"
      "lines = open(sys.argv[1], encoding='cp1252').read().splitlines()\n"
      "pairs = [(lines[i].strip(), lines[i + 1]) for i in range(0, len(lines) - 1, 2)]\n"
      "i = next(k for k, p in enumerate(pairs) if p == ('0', 'ARCALIGNEDTEXT'))\n"
      "j = next(k for k in range(i + 1, len(pairs)) if pairs[k][0] == '0')\n"
      "print(' '.join(c + '=' + v for c, v in pairs[i + 1:j] if c in ('1', '10', '40', '42', '45', '50', '51')))\n",
      {out}, &code);
  ASSERT_EQ(code, 0) << read.toStdString();
  EXPECT_EQ(read.trimmed(), "1=NEW WORDS 10=-3.0 40=12.0 42=3.0 45=0.75 50=1.0 51=2.5");
}

}  // namespace
