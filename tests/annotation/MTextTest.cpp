// Multiline text rows: the values of real drawings against ezdxf's reading
// (plain text and columns included), edits read back by ezdxf, refusals as
// sentences, the plain-text view of formatting codes, matching between
// single-line and multiline text, and the information lines.
#include "TextTestSupport.h"
#include "DxfDatabase.h"
#include "DbMText.h"
#include "DbText.h"
#include <QMap>
#include <QTemporaryDir>
#include <cmath>

namespace {

constexpr double kDeg = OdaPI / 180.0;

class MTextTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addMText(const char* contents) {
    OdDbMTextPtr m = OdDbMText::createObject();
    m->setContents(OdString(contents));
    m->setTextHeight(2.5);
    m->setLocation({1, 2, 0});
    m->setWidth(40);
    return addToModelSpace(m.get());
  }
  OdDbMTextPtr open(const OdDbObjectId& id) { return openAs<OdDbMText>(id); }
  QString lastMessage() const { return GetZqSystemServices()->Messages().back().text.qstring(); }
};

// --- Real drawings against ezdxf -------------------------------------------------

class MTextSamplesTest : public MTextTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(MTextSamplesTest, RowsAgreeWithEzdxf) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + GetParam();
  int code = -1;
  const QMap<QString, QStringList> reference = zqPythonRowsByHandle(
      "import sys, re, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "for e in doc.entitydb.values():\n"
      "    if e.dxftype() != 'MTEXT': continue\n"
      "    # ezdxf's plain text keeps \\U+XXXX and stacks as written: the former\n"
      "    # decoded here, texts with stacks left out (the table test has them).\n"
      "    plain = re.sub(r'\\\\U\\+([0-9A-Fa-f]{4})', lambda m: chr(int(m.group(1), 16)), e.plain_text())\n"
      "    plain = '-' if '\\\\S' in e.text else plain.encode('unicode_escape').decode('ascii')\n"
      "    p = e.dxf.insert\n"
      "    c = e.columns if e.has_columns else None\n"
      "    print(e.dxf.handle, repr(p.x), repr(p.y), repr(p.z), repr(e.dxf.char_height), repr(e.dxf.get('width', 0.0)),\n"
      "          e.dxf.get('attachment_point', 1), e.dxf.get('flow_direction', 1), e.dxf.get('line_spacing_style', 1),\n"
      "          repr(e.dxf.get('line_spacing_factor', 1.0)), repr(e.get_rotation()), e.dxf.get('bg_fill', 0) & 1,\n"
      "          int(c.column_type) if c else 0, c.count if c else 0, repr(c.width) if c else 0, repr(c.gutter_width) if c else 0,\n"
      "          plain)\n",
      {path}, &code);
  ASSERT_EQ(code, 0);
  ASSERT_FALSE(reference.isEmpty());
  QString error;
  db = OdDxf::readDrawing(path, error);
  ASSERT_TRUE(db) << error.toStdString();
  int compared = 0;
  zqForEachEntity(db.get(), [&](const OdDbObjectId& id) {
    if (!open(id)) return;
    const QString handle = id.getHandle().ascii().qstring().toUpper();
    SCOPED_TRACE(handle.toStdString());
    ASSERT_TRUE(reference.contains(handle));
    const QStringList f = reference[handle];
    ASSERT_GE(f.size(), 17);
    const char* pos[] = {"Position X", "Position Y", "Position Z"};
    for (int axis = 0; axis < 3; ++axis) EXPECT_NEAR(get(id, "Geometry", pos[axis]).GetDouble(), f[1 + axis].toDouble(), 1e-9);
    EXPECT_NEAR(get(id, "Text", "Height").GetDouble(), f[4].toDouble(), 1e-12);
    EXPECT_NEAR(get(id, "Text", "Width").GetDouble(), f[5].toDouble(), 1e-12);
    EXPECT_EQ(get(id, "Text", "Justify").GetCollection().GetCurrent() + 1, f[6].toInt());
    EXPECT_EQ(get(id, "Text", "Direction").GetCollection().GetCurrent() + 1, f[7].toInt());
    EXPECT_EQ(get(id, "Text", "Line space style").GetCollection().GetCurrent() + 1, f[8].toInt());
    EXPECT_NEAR(get(id, "Text", "Line space factor").GetDouble(), f[9].toDouble(), 1e-12);
    const double turn = std::remainder(get(id, "Text", "Rotation").GetDouble() - f[10].toDouble() * kDeg, 2 * OdaPI);
    EXPECT_NEAR(turn, 0.0, 1e-9);
    EXPECT_EQ(zqCurrentWord(get(id, "Text", "Background mask")), f[11] == "1" ? "Yes" : "No");
    EXPECT_EQ(get(id, "Columns", "Columns").GetCollection().GetCurrent(), f[12].toInt());
    if (f[12] != "0") {
      EXPECT_EQ(get(id, "Columns", "Column count").GetInt32(), f[13].toInt());
      EXPECT_NEAR(get(id, "Columns", "Column width").GetDouble(), f[14].toDouble(), 1e-9);
      EXPECT_NEAR(get(id, "Columns", "Column gutter").GetDouble(), f[15].toDouble(), 1e-9);
    }
    // ezdxf's plain text, escaped; the rest of the line after the 16 fields.
    const QString plain = QStringList(f.mid(16)).join(' ');
    const QString ours = get(id, "Text", "Plain text").GetString().qstring();
    QString escaped;
    for (const QChar ch : ours) {
      if (ch == '\n') escaped += "\\n";
      else if (ch == '\t') escaped += "\\t";
      else if (ch == '\\') escaped += "\\\\";
      else if (ch.unicode() > 0xff) escaped += QString("\\u%1").arg(ch.unicode(), 4, 16, QChar('0'));
      else if (ch.unicode() > 0x7e) escaped += QString("\\x%1").arg(ch.unicode(), 2, 16, QChar('0'));
      else escaped += ch;
    }
    if (plain != "-") {
      EXPECT_EQ(escaped, plain);
    }
    ++compared;
  });
  EXPECT_EQ(compared, reference.size());
}

INSTANTIATE_TEST_SUITE_P(Samples, MTextSamplesTest,
                         ::testing::Values("ezdxf__examples_dxf__text.dxf", "ezdxf__examples_dxf__uncommon.dxf",
                                           "netDxf__TestDxfDocument__sample.dxf",
                                           "libredwg__test__test-data__example_2000.dxf",
                                           "libredwg__test__test-data__example_2018.dxf",
                                           "libredwg__test__test-data__example_r14.dxf",
                                           "libredwg__test__test-data__2013__gh109_1.dxf"),
                         [](const auto& info) { return zqSampleTestName(info.param); });

// --- Edits read back by ezdxf ------------------------------------------------------------

TEST_F(MTextTest, EachKindOfEditIsReadBackByEzdxf) {
  QString error;
  db = OdDxf::readDrawing(QString(ZQ_SAMPLES_DIR) + "/ezdxf__examples_dxf__uncommon.dxf", error);
  ASSERT_TRUE(db) << error.toStdString();
  OdDbObjectId id;
  zqForEachEntity(db.get(), [&](const OdDbObjectId& e) {
    if (id.isNull() && open(e) && open(e)->getColumnType() == OdDbMText::kNoColumns) id = e;
  });
  ASSERT_FALSE(id.isNull());
  EXPECT_EQ(set(id, "Text", "Contents", CZqVariant("first\nsecond {\\H2x;big}")), 5100);
  EXPECT_EQ(set(id, "Text", "Height", CZqVariant(3.5, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Width", CZqVariant(55.0, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Rotation", CZqVariant(30 * kDeg, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Justify", zqChoose(9)), 5100);
  EXPECT_EQ(set(id, "Text", "Direction", zqChoose(3)), 5100);
  EXPECT_EQ(set(id, "Text", "Line space factor", CZqVariant(1.5, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Line space style", zqChoose(2)), 5100);
  EXPECT_EQ(set(id, "Text", "Background mask", zqChoose(1)), 5100);
  EXPECT_EQ(set(id, "Text", "Mask color", CZqVariant(OdCmColor::fromIndex(3))), 5100);
  EXPECT_EQ(set(id, "Text", "Border offset", CZqVariant(2.0, true)), 5100);
  EXPECT_EQ(set(id, "Geometry", "Position X", CZqVariant(-7.25, true)), 5100);
  QTemporaryDir dir;
  const QString out = dir.filePath("edited.dxf");
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), out, error)) << error.toStdString();
  int code = -1;
  const QString read = zqRunPython(
      "import sys, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "e = doc.entitydb[sys.argv[2]]\n"
      "print(repr(e.text), e.dxf.char_height, e.dxf.width, round(e.get_rotation(), 9), e.dxf.attachment_point,\n"
      "      e.dxf.flow_direction, e.dxf.line_spacing_factor, e.dxf.line_spacing_style, e.dxf.bg_fill,\n"
      "      e.dxf.bg_fill_color, e.dxf.box_fill_scale, e.dxf.insert.x)\n",
      {out, id.getHandle().ascii().qstring()}, &code);
  ASSERT_EQ(code, 0) << read.toStdString();
  EXPECT_EQ(read.trimmed(), "'first\\\\Psecond {\\\\H2x;big}' 3.5 55.0 30.0 9 3 1.5 2 1 3 2.0 -7.25");
}

// --- Refusals ----------------------------------------------------------------------------

struct RefusalCase {
  const char* name;
  const char* category;
  const char* row;
  CZqVariant value;
  const char* sentence;  // part of the message shown; null: refused without a message
};

class MTextRefusalTest : public MTextTest, public ::testing::WithParamInterface<RefusalCase> {};

TEST_P(MTextRefusalTest, IsRefusedAndLeavesTheTextAsItWas) {
  const RefusalCase& c = GetParam();
  const OdDbObjectId id = addMText("abc");
  EXPECT_EQ(set(id, c.category, c.row, c.value), -5001);
  const OdDbMTextPtr m = open(id);
  EXPECT_EQ(m->contents().qstring(), "abc");
  EXPECT_EQ(m->textHeight(), 2.5);
  EXPECT_EQ(m->width(), 40.0);
  EXPECT_EQ(m->attachment(), OdDbMText::kTopLeft);
  EXPECT_EQ(m->lineSpacingFactor(), 1.0);
  EXPECT_EQ(m->getBackgroundScaleFactor(), 1.5);
  if (!c.sentence) {
    EXPECT_EQ(messageCount(), 0u);
    return;
  }
  ASSERT_EQ(messageCount(), 1u);
  EXPECT_TRUE(lastMessage().contains(c.sentence)) << lastMessage().toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MTextRefusalTest,
    ::testing::Values(
        RefusalCase{"control_character", "Text", "Contents", CZqVariant("a\x07" "b"), "no other control characters"},
        RefusalCase{"contents_not_text", "Text", "Contents", CZqVariant(int32_t(5)), nullptr},
        RefusalCase{"negative_height", "Text", "Height", CZqVariant(-1.0, true), nullptr},
        RefusalCase{"negative_width", "Text", "Width", CZqVariant(-1.0, true), "Width"},
        RefusalCase{"spacing_too_large", "Text", "Line space factor", CZqVariant(4.5, true), "Line space factor"},
        RefusalCase{"border_too_small", "Text", "Border offset", CZqVariant(0.5, true), "Border offset"},
        RefusalCase{"tenth_attachment", "Text", "Justify", zqChoose(10), "Bottom Right"},
        RefusalCase{"no_such_style", "Text", "TextStyle", CZqVariant("Nowhere"), "text style"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(MTextTest, ClearingTheHeightKeepsItAndColumnsAreReadOnly) {
  const OdDbObjectId id = addMText("abc");
  EXPECT_EQ(set(id, "Text", "Height", CZqVariant(0.0, true)), 5100);
  EXPECT_EQ(open(id)->textHeight(), 2.5);
  OdDbObjectPtr obj = id.openObject();
  auto rows = zqRowsOf(obj.get());
  for (const char* name : {"Columns", "Column count", "Column width", "Column gutter", "Column height"}) {
    CZqPropertyDescription* d = zqRow(rows.get(), "Columns", name);
    ASSERT_NE(d, nullptr) << name;
    EXPECT_TRUE(d->IsReadOnly(obj.get())) << name;
  }
  // The mask's own rows wait for the mask; its colour also for the drawing's background not being used.
  EXPECT_TRUE(zqRow(rows.get(), "Text", "Border offset")->IsReadOnly(obj.get()));
  obj.release();
  EXPECT_EQ(set(id, "Text", "Background mask", zqChoose(1)), 5100);
  obj = id.openObject();
  EXPECT_FALSE(zqRow(rows.get(), "Text", "Border offset")->IsReadOnly(obj.get()));
  EXPECT_FALSE(zqRow(rows.get(), "Text", "Mask color")->IsReadOnly(obj.get()));
  obj.release();
  EXPECT_EQ(set(id, "Text", "Use drawing background", zqChoose(1)), 5100);
  obj = id.openObject();
  EXPECT_TRUE(zqRow(rows.get(), "Text", "Mask color")->IsReadOnly(obj.get()));
}

// --- Plain text ----------------------------------------------------------------------------

TEST_F(MTextTest, PlainTextLeavesOutTheFormattingCodes) {
  const struct {
    const char* contents;
    const char* plain;
  } cases[] = {
      {"one\\Ptwo", "one\ntwo"},
      {"{\\fArial|b1|i0;bold} and {\\H2.5x;\\C1;red}", "bold and red"},
      {"\\A1;12.5", "12.5"},
      {"%%d %%p %%c %%%", "\xC2\xB0 \xC2\xB1 \xE2\x88\x85 %"},
      {"\\U+00E4 \\\\ \\{x\\}", "\xC3\xA4 \\ {x}"},
      {"1\\S1^2; and \\S3#4;", "11/2 and 3/4"},
      {"\\Lunder\\l a^Ib", "under a\tb"},
      {"non\\~breaking", "non\xC2\xA0" "breaking"},
  };
  for (const auto& c : cases) {
    const OdDbObjectId id = addMText(c.contents);
    EXPECT_EQ(get(id, "Text", "Plain text").GetString().qstring(), QString::fromUtf8(c.plain)) << c.contents;
    EXPECT_EQ(get(id, "Text", "Contents").GetString().qstring(), QString::fromUtf8(c.contents));
  }
}

// --- Matching ------------------------------------------------------------------------------

TEST_F(MTextTest, MatchingGoesBetweenSingleLineAndMultilineText) {
  const OdDbObjectId source = addMText("from");
  {
    OdDbMTextPtr m = openAs<OdDbMText>(source, OdDb::kForWrite);
    m->setRotation(0.5);
    m->setTextHeight(7);
    m->setAttachment(OdDbMText::kMiddleRight);
    m->setBackgroundFill(true);
    m->setBackgroundFillColor(OdCmColor::fromIndex(5));
  }
  const OdDbObjectId target = addMText("to");
  EXPECT_EQ(get(target, "MATCHPROP", "MATCHPROP_Text").GetId(), target);
  EXPECT_EQ(set(target, "MATCHPROP", "MATCHPROP_Text", CZqVariant(source)), 5100);
  {
    const OdDbMTextPtr m = open(target);
    EXPECT_NEAR(m->rotation(), 0.5, 1e-12);
    EXPECT_EQ(m->textHeight(), 7.0);
    EXPECT_EQ(m->attachment(), OdDbMText::kMiddleRight);
    EXPECT_TRUE(m->backgroundFillOn());
    EXPECT_EQ(m->getBackgroundFillColor(), OdCmColor::fromIndex(5));
    EXPECT_EQ(m->contents().qstring(), "to");
  }
  // A single-line target takes height and rotation and keeps its own width factor.
  OdDbTextPtr t = OdDbText::createObject();
  t->setTextString(OdString("single"));
  t->setWidthFactor(0.8);
  const OdDbObjectId text = addToModelSpace(t.get());
  t.release();
  EXPECT_EQ(set(text, "MATCHPROP", "MATCHPROP_Text", CZqVariant(source)), 5100);
  {
    const OdDbTextPtr s = openAs<OdDbText>(text);
    EXPECT_EQ(s->height(), 7.0);
    EXPECT_NEAR(s->rotation(), 0.5, 1e-12);
    EXPECT_EQ(s->widthFactor(), 0.8);
  }
  // And back: a single-line source gives a multiline target its height, not its mask.
  {
    OdDbTextPtr s = openAs<OdDbText>(text, OdDb::kForWrite);
    s->setHeight(1.25);
  }
  EXPECT_EQ(set(source, "MATCHPROP", "MATCHPROP_Text", CZqVariant(text)), 5100);
  EXPECT_EQ(open(source)->textHeight(), 1.25);
  EXPECT_TRUE(open(source)->backgroundFillOn());
}

// --- Information ---------------------------------------------------------------------------

TEST_F(MTextTest, InformationListsStyleLocationAttachmentSizesAndPlainText) {
  const OdDbObjectId id = addMText("two\\Plines");
  {
    OdDbMTextPtr m = openAs<OdDbMText>(id, OdDb::kForWrite);
    m->setAttachment(OdDbMText::kBottomCenter);
    m->setFlowDirection(OdDbMText::kTtoB);
    m->setRotation(30 * kDeg);
  }
  const auto lines = info(id);
  const std::vector<QString> labels = labelsOf(lines);
  const std::vector<QString> own{"TextStyle", "Font file", "Location", "Attachment", "Direction", "height",
                                 "width", "rotation angle", "line spacing factor", "text"};
  ASSERT_GE(labels.size(), own.size());
  EXPECT_EQ(std::vector<QString>(labels.end() - own.size(), labels.end()), own);
  EXPECT_EQ(infoLine(lines, "Attachment")->value.toString(), "Bottom Center");
  EXPECT_EQ(infoLine(lines, "Direction")->value.toString(), "Top to bottom");
  EXPECT_EQ(infoLine(lines, "text")->value.toString(), "two\nlines");
  EXPECT_DOUBLE_EQ(infoLine(lines, "width")->value.toDouble(), 40.0);
  EXPECT_NEAR(infoLine(lines, "rotation angle")->value.toDouble(), 30 * kDeg, 1e-12);
}

}  // namespace
