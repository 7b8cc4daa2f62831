// Single-line text rows: the values of real drawings against ezdxf's
// reading, the read-only rules of each justification, the setters and
// their refusals, coordinates in a rotated UCS, the justification edits,
// styles, property matching and the information lines.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbText.h"
#include "DbFontMetrics.h"
#include "DbSymbolTable.h"
#include <QMap>
#include <cmath>

namespace {

constexpr double kDeg = OdaPI / 180.0;

CZqVariant choose(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(int32_t(tag)))); }

// The word of the element a collection marks as current.
QString currentWord(const CZqVariant& v) {
  const CZqVariantCollection& c = v.GetCollection();
  if (c.GetCurrent() < 0 || c.GetCurrent() >= c.GetCount()) return QString();
  return c.GetAt(c.GetCurrent()).GetValue().GetString().qstring();
}

class TextTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addText(const char* s, OdDb::TextHorzMode h = OdDb::kTextLeft, OdDb::TextVertMode v = OdDb::kTextBase,
                       const OdGePoint3d& position = {1, 2, 0}, const OdGePoint3d& alignment = {4, 2, 0}) {
    OdDbTextPtr t = OdDbText::createObject();
    t->setTextString(OdString(s));
    t->setHeight(2.5);
    t->setPosition(position);
    t->setAlignmentPoint(alignment);
    t->setHorizontalMode(h);
    t->setVerticalMode(v);
    return addToModelSpace(t.get());
  }
  OdDbTextPtr open(const OdDbObjectId& id) { return openAs<OdDbText>(id); }
  OdDbObjectId addStyle(const char* name, int genFlags, double oblique = 0, double xScale = 1) {
    OdDbTextStyleTableRecordPtr s = OdDbTextStyleTableRecord::createObject();
    s->setName(OdString(name));
    s->setTextGenerationFlags(genFlags);
    s->setObliquingAngle(oblique);
    s->setXScale(xScale);
    s->setFileName(OdString("romans.shx"));
    OdDbObjectPtr table = db->getTextStyleTableId().openObject(OdDb::kForWrite);
    return static_cast<OdDbSymbolTable*>(table.get())->add(s.get());
  }
  bool readOnly(const OdDbObjectId& id, const char* category, const char* name) {
    OdDbObjectPtr obj = id.openObject();
    auto rows = zqRowsOf(obj.get());
    CZqPropertyDescription* d = zqRow(rows.get(), category, name);
    EXPECT_NE(d, nullptr) << name;
    return d && d->IsReadOnly(obj.get());
  }
};

// --- Real drawings against ezdxf ------------------------------------------------

// The justification words by (horizontal, vertical) mode, as the DXF
// reference names them (group codes 72 and 73).
QString justifyWord(int h, int v) {
  if (v == 0) {
    const char* words[] = {"Left", "Center", "Right", "Aligned", "Middle", "Fit"};
    return h >= 0 && h < 6 ? words[h] : "Left";
  }
  const char* rows[] = {"", "Bottom", "Middle", "Top"};
  const char* cols[] = {"Left", "Center", "Right"};
  if (h < 0 || h > 2) return "Left";
  return QString("%1 %2").arg(rows[v], cols[h]);
}

class TextSamplesTest : public TextTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(TextSamplesTest, RowsAgreeWithEzdxf) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + GetParam();
  int code = -1;
  const QMap<QString, QStringList> reference = zqPythonRowsByHandle(
      "import sys, math, ezdxf\n"
      "doc = ezdxf.readfile(sys.argv[1])\n"
      "for e in doc.modelspace().query('TEXT'):\n"
      "    ocs = e.ocs()\n"
      "    p = ocs.to_wcs(e.dxf.insert)\n"
      "    a = ocs.to_wcs(e.dxf.align_point) if e.dxf.hasattr('align_point') else p\n"
      "    print(e.dxf.handle, e.dxf.get('halign', 0), e.dxf.get('valign', 0), repr(p.x), repr(p.y), repr(p.z),\n"
      "          repr(a.x), repr(a.y), repr(a.z), repr(e.dxf.height), repr(e.dxf.get('width', 1.0)),\n"
      "          repr(e.dxf.get('rotation', 0.0)), repr(e.dxf.get('oblique', 0.0)), repr(e.dxf.get('thickness', 0.0)),\n"
      "          e.dxf.text.encode('unicode_escape').decode('ascii'))\n",
      {path}, &code);
  ASSERT_EQ(code, 0);
  ASSERT_FALSE(reference.isEmpty());
  QString error;
  db = OdDxf::readDrawing(path, error);
  ASSERT_TRUE(db) << error.toStdString();
  OdDbObjectPtr ms = db->getModelSpaceId().openObject();
  int compared = 0;
  for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(ms.get())->entityIds()) {
    OdDbObjectPtr obj = id.openObject();
    if (obj->isA() != OdDbText::desc()) continue;
    obj.release();
    const QString handle = id.getHandle().ascii().qstring().toUpper();
    SCOPED_TRACE(handle.toStdString());
    ASSERT_TRUE(reference.contains(handle));
    const QStringList f = reference[handle];
    const int h = f[1].toInt(), v = f[2].toInt();
    EXPECT_EQ(currentWord(get(id, "Text", "Justify")), justifyWord(h, v));
    const OdGePoint3d p(f[3].toDouble(), f[4].toDouble(), f[5].toDouble());
    const OdGePoint3d a(f[6].toDouble(), f[7].toDouble(), f[8].toDouble());
    const char* pos[] = {"Position X", "Position Y", "Position Z"};
    const char* align[] = {"Text alignment X", "Text alignment Y", "Text alignment Z"};
    for (int axis = 0; axis < 3; ++axis) {
      EXPECT_NEAR(get(id, "Geometry", pos[axis]).GetDouble(), p[axis], 1e-9);
      if (h != 0 || v != 0) {
        EXPECT_NEAR(get(id, "Text", align[axis]).GetDouble(), a[axis], 1e-9);
      }
    }
    EXPECT_NEAR(get(id, "Text", "Height").GetDouble(), f[9].toDouble(), 1e-12);
    EXPECT_NEAR(get(id, "Text", "Spacing").GetDouble(), f[10].toDouble(), 1e-12);
    double rotation = f[11].toDouble() * kDeg;
    if (rotation < 0) rotation += 2 * OdaPI;
    EXPECT_NEAR(get(id, "Text", "Rotation").GetDouble(), rotation, 1e-9);
    EXPECT_NEAR(get(id, "Text", "Angle").GetDouble(), f[12].toDouble() * kDeg, 1e-9);
    EXPECT_NEAR(get(id, "General", "Thickness").GetDouble(), f[13].toDouble(), 1e-12);
    const QString contents = get(id, "Text", "Contents").GetString().qstring();
    if (f.size() == 15 && !f[14].contains(QChar(0x5c))) {
      EXPECT_EQ(contents, f[14]);
    }
    ++compared;
  }
  EXPECT_EQ(compared, reference.size());
}

INSTANTIATE_TEST_SUITE_P(Samples, TextSamplesTest,
                         ::testing::Values("ezdxf__examples_dxf__text.dxf", "ezdxf__examples_dxf__text_alignments.dxf",
                                           "ezdxf__examples_dxf__text_negative_extrusion.dxf",
                                           "ezdxf__examples_dxf__text_oblique_rotate.dxf"),
                         [](const auto& info) {
                           std::string name = info.param;
                           for (char& ch : name)
                             if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
                           return name;
                         });

// --- Read-only rules by justification ----------------------------------------------

struct RuleCase {
  const char* name;
  OdDb::TextHorzMode h;
  OdDb::TextVertMode v;
  bool positionReadOnly, alignmentReadOnly, rotationReadOnly;
};

class TextRuleTest : public TextTest, public ::testing::WithParamInterface<RuleCase> {};

TEST_P(TextRuleTest, PositionAlignmentAndRotationFollowTheJustification) {
  const RuleCase& c = GetParam();
  const OdDbObjectId id = addText("abc", c.h, c.v);
  for (const char* axis : {"Position X", "Position Y", "Position Z"})
    EXPECT_EQ(readOnly(id, "Geometry", axis), c.positionReadOnly) << axis;
  for (const char* axis : {"Text alignment X", "Text alignment Y", "Text alignment Z"})
    EXPECT_EQ(readOnly(id, "Text", axis), c.alignmentReadOnly) << axis;
  EXPECT_EQ(readOnly(id, "Text", "Rotation"), c.rotationReadOnly);
  EXPECT_FALSE(readOnly(id, "Text", "Height"));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TextRuleTest,
    ::testing::Values(RuleCase{"Left", OdDb::kTextLeft, OdDb::kTextBase, false, true, false},
                      RuleCase{"MiddleCenter", OdDb::kTextCenter, OdDb::kTextVertMid, true, false, false},
                      RuleCase{"Fit", OdDb::kTextFit, OdDb::kTextBase, false, false, true},
                      RuleCase{"Aligned", OdDb::kTextAlign, OdDb::kTextBase, false, false, true},
                      RuleCase{"TopLeft", OdDb::kTextLeft, OdDb::kTextTop, true, false, false},
                      RuleCase{"Right", OdDb::kTextRight, OdDb::kTextBase, true, false, false}),
    [](const auto& info) { return std::string(info.param.name); });

// --- Setters -------------------------------------------------------------------------

TEST_F(TextTest, NegativeRotationIsShownWithinOneTurn) {
  const OdDbObjectId id = addText("abc");
  {
    OdDbTextPtr t = openAs<OdDbText>(id, OdDb::kForWrite);
    t->setRotation(-90 * kDeg);
  }
  EXPECT_NEAR(get(id, "Text", "Rotation").GetDouble(), 270 * kDeg, 1e-12);
}

struct SizeCase {
  const char* name;
  const char* row;
  CZqVariant value;
  int result;
  double expected;  // the height (Height) or width factor (Spacing) after the edit
};

class TextSizeTest : public TextTest, public ::testing::WithParamInterface<SizeCase> {};

TEST_P(TextSizeTest, ZeroKeepsTheValueAndNegativesAreRefusedQuietly) {
  const SizeCase& c = GetParam();
  const OdDbObjectId id = addText("abc");
  {
    OdDbTextPtr t = openAs<OdDbText>(id, OdDb::kForWrite);
    t->setWidthFactor(0.75);
  }
  EXPECT_EQ(set(id, "Text", c.row, c.value), c.result);
  const OdDbTextPtr t = open(id);
  EXPECT_DOUBLE_EQ(std::string(c.row) == "Height" ? t->height() : t->widthFactor(), c.expected);
  EXPECT_EQ(messageCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TextSizeTest,
    ::testing::Values(SizeCase{"height", "Height", CZqVariant(4.0, true), 5100, 4.0},
                      SizeCase{"height_zero_keeps", "Height", CZqVariant(0.0, true), 5100, 2.5},
                      SizeCase{"height_near_zero_keeps", "Height", CZqVariant(5e-11, true), 5100, 2.5},
                      SizeCase{"height_negative_refused", "Height", CZqVariant(-1.0, true), -5001, 2.5},
                      SizeCase{"height_text_refused", "Height", CZqVariant("4"), -5001, 2.5},
                      SizeCase{"spacing", "Spacing", CZqVariant(1.25, true), 5100, 1.25},
                      SizeCase{"spacing_zero_keeps", "Spacing", CZqVariant(0.0, true), 5100, 0.75},
                      SizeCase{"spacing_negative_refused", "Spacing", CZqVariant(-0.5, true), -5001, 0.75}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(TextTest, RefusedValuesLeaveTheTextAsItWas) {
  const OdDbObjectId id = addText("abc");
  EXPECT_EQ(set(id, "Text", "Angle", CZqVariant(86 * kDeg, true)), -5001);
  EXPECT_EQ(set(id, "Text", "Contents", CZqVariant("two\nlines")), -5001);
  EXPECT_EQ(set(id, "Text", "Contents", CZqVariant(int32_t(3))), -5001);
  EXPECT_EQ(set(id, "Text", "Justify", choose(15)), -5001);
  EXPECT_EQ(set(id, "Text", "Justify", CZqVariant(int32_t(4))), -5001);
  EXPECT_EQ(set(id, "Text", "Rotation", CZqVariant(std::nan(""), true)), -5001);
  const OdDbTextPtr t = open(id);
  EXPECT_EQ(t->oblique(), 0.0);
  EXPECT_EQ(t->textString().qstring(), "abc");
  EXPECT_EQ(t->horizontalMode(), OdDb::kTextLeft);
  EXPECT_EQ(t->rotation(), 0.0);
  // Only the out-of-range justification shows a message: it names the choices.
  ASSERT_EQ(messageCount(), 1u);
  EXPECT_TRUE(GetZqSystemServices()->Messages().back().text.qstring().contains("Bottom Right"));
}

TEST_F(TextTest, EditsReachTheText) {
  const OdDbObjectId id = addText("abc");
  EXPECT_EQ(set(id, "Text", "Contents", CZqVariant("new words")), 5100);
  EXPECT_EQ(set(id, "Text", "Contents", CZqVariant("new words")), 5100);
  EXPECT_EQ(set(id, "Text", "Angle", CZqVariant(-30 * kDeg, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Rotation", CZqVariant(45 * kDeg, true)), 5100);
  EXPECT_EQ(set(id, "General", "Thickness", CZqVariant(0.5, true)), 5100);
  EXPECT_EQ(set(id, "Misc", "UpsideDown", choose(1)), 5100);
  EXPECT_EQ(set(id, "Misc", "Backward", choose(1)), 5100);
  {
    const OdDbTextPtr t = open(id);
    EXPECT_EQ(t->textString().qstring(), "new words");
    EXPECT_NEAR(t->oblique(), -30 * kDeg, 1e-12);
    EXPECT_NEAR(t->rotation(), 45 * kDeg, 1e-12);
    EXPECT_EQ(t->thickness(), 0.5);
    EXPECT_TRUE(t->isMirroredInY());
    EXPECT_TRUE(t->isMirroredInX());
  }
  EXPECT_EQ(currentWord(get(id, "Misc", "UpsideDown")), "Yes");
  EXPECT_EQ(set(id, "Misc", "Backward", choose(0)), 5100);
  EXPECT_FALSE(open(id)->isMirroredInX());
  EXPECT_EQ(currentWord(get(id, "Misc", "Backward")), "No");
}

// --- Coordinates in the current UCS ----------------------------------------------------

TEST_F(TextTest, PositionAndAlignmentAreShownAndEditedInTheUcs) {
  useRotatedUcs();
  const OdGePoint3d position(3, 7, 1), alignment(-2, 5, 4);
  const OdDbObjectId id = addText("abc", OdDb::kTextFit, OdDb::kTextBase, position, alignment);
  const char* pos[] = {"Position X", "Position Y", "Position Z"};
  const char* align[] = {"Text alignment X", "Text alignment Y", "Text alignment Z"};
  for (int axis = 0; axis < 3; ++axis) {
    EXPECT_NEAR(get(id, "Geometry", pos[axis]).GetDouble(), toUcs(position)[axis], 1e-9);
    EXPECT_NEAR(get(id, "Text", align[axis]).GetDouble(), toUcs(alignment)[axis], 1e-9);
  }
  EXPECT_EQ(set(id, "Geometry", "Position Y", CZqVariant(12.0, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Text alignment X", CZqVariant(-6.0, true)), 5100);
  const OdDbTextPtr t = open(id);
  const OdGePoint3d p = toUcs(t->position()), a = toUcs(t->alignmentPoint());
  EXPECT_NEAR(p.x, toUcs(position).x, 1e-9);
  EXPECT_NEAR(p.y, 12.0, 1e-9);
  EXPECT_NEAR(p.z, toUcs(position).z, 1e-9);
  EXPECT_NEAR(a.x, -6.0, 1e-9);
  EXPECT_NEAR(a.y, toUcs(alignment).y, 1e-9);
}

// --- Justification --------------------------------------------------------------------

TEST_F(TextTest, ChoosingTheCurrentJustificationChangesNothing) {
  const OdDbObjectId id = addText("abc", OdDb::kTextCenter, OdDb::kTextVertMid, {1, 2, 0}, {9, 8, 0});
  EXPECT_EQ(currentWord(get(id, "Text", "Justify")), "Middle Center");
  EXPECT_EQ(set(id, "Text", "Justify", choose(10)), 5100);
  const OdDbTextPtr t = open(id);
  EXPECT_EQ(t->position(), OdGePoint3d(1, 2, 0));
  EXPECT_EQ(t->alignmentPoint(), OdGePoint3d(9, 8, 0));
}

// The first entry with the text's pair of modes; a pair no entry has
// shows as "Left".
TEST_F(TextTest, JustificationShownIsTheEntryOfBothModes) {
  const struct {
    OdDb::TextHorzMode h;
    OdDb::TextVertMode v;
    const char* word;
  } cases[] = {{OdDb::kTextMid, OdDb::kTextBase, "Middle"},        {OdDb::kTextCenter, OdDb::kTextVertMid, "Middle Center"},
               {OdDb::kTextRight, OdDb::kTextBottom, "Bottom Right"}, {OdDb::kTextLeft, OdDb::kTextTop, "Top Left"},
               {OdDb::kTextAlign, OdDb::kTextTop, "Left"},          {OdDb::kTextMid, OdDb::kTextVertMid, "Left"}};
  for (const auto& c : cases) {
    const OdDbObjectId id = addText("abc", c.h, c.v);
    const CZqVariant v = get(id, "Text", "Justify");
    EXPECT_EQ(currentWord(v), c.word);
    EXPECT_EQ(v.GetCollection().GetCount(), 15);
  }
}

TEST_F(TextTest, LeavingAndReturningToLeftKeepsTheTextInPlace) {
  const OdDbObjectId id = addText("abc", OdDb::kTextLeft, OdDb::kTextBase, {1, 2, 0}, {0, 0, 0});
  EXPECT_EQ(set(id, "Text", "Justify", choose(10)), 5100);
  {
    const OdDbTextPtr t = open(id);
    EXPECT_EQ(t->horizontalMode(), OdDb::kTextCenter);
    EXPECT_EQ(t->verticalMode(), OdDb::kTextVertMid);
    EXPECT_EQ(t->alignmentPoint(), OdGePoint3d(1, 2, 0));
  }
  // Moving the alignment point and going back to "Left" starts the text there.
  EXPECT_EQ(set(id, "Text", "Text alignment X", CZqVariant(6.0, true)), 5100);
  EXPECT_EQ(set(id, "Text", "Justify", choose(0)), 5100);
  const OdDbTextPtr t = open(id);
  EXPECT_TRUE(t->isDefaultAlignment());
  EXPECT_EQ(t->position(), OdGePoint3d(6, 2, 0));
}

TEST_F(TextTest, FitStretchesAlongTheBaseLineAndLeavingItLevelsTheText) {
  const OdDbObjectId id = addText("abcd", OdDb::kTextLeft, OdDb::kTextTop, {1, 2, 0}, {1, 2, 0});
  {
    OdDbTextPtr t = openAs<OdDbText>(id, OdDb::kForWrite);
    t->setRotation(90 * kDeg);
  }
  EXPECT_EQ(set(id, "Text", "Justify", choose(5)), 5100);
  {
    const OdDbTextPtr t = open(id);
    EXPECT_EQ(t->horizontalMode(), OdDb::kTextFit);
    EXPECT_EQ(t->verticalMode(), OdDb::kTextBase);
    // The measured advance of the string at height 2.5, up the rotated
    // base line (the measure itself is checked against the font's tables).
    EXPECT_NEAR(t->alignmentPoint().x, 1.0, 1e-9);
    EXPECT_NEAR(t->alignmentPoint().y, 2.0 + 2.5 * OdDbFontMetrics::advance(nullptr, OdString("abcd")), 1e-9);
  }
  EXPECT_TRUE(readOnly(id, "Text", "Rotation"));
  {
    OdDbTextPtr t = openAs<OdDbText>(id, OdDb::kForWrite);
    t->setWidthFactor(0.4);
  }
  EXPECT_EQ(set(id, "Text", "Justify", choose(1)), 5100);
  const OdDbTextPtr t = open(id);
  EXPECT_EQ(t->rotation(), 0.0);
  EXPECT_EQ(t->widthFactor(), 1.0);
  EXPECT_EQ(t->horizontalMode(), OdDb::kTextCenter);
}

// --- Styles ---------------------------------------------------------------------------------

TEST_F(TextTest, AnUpsideDownStyleMakesTheRowReadOnlyAndYes) {
  const OdDbObjectId style = addStyle("Flipped", 4, 10 * kDeg, 0.8);
  const OdDbObjectId id = addText("abc");
  EXPECT_FALSE(readOnly(id, "Misc", "UpsideDown"));
  EXPECT_EQ(currentWord(get(id, "Misc", "UpsideDown")), "No");
  EXPECT_EQ(set(id, "Text", "TextStyle", CZqVariant(style)), 5100);
  EXPECT_TRUE(readOnly(id, "Misc", "UpsideDown"));
  EXPECT_FALSE(readOnly(id, "Misc", "Backward"));
  EXPECT_EQ(currentWord(get(id, "Misc", "UpsideDown")), "Yes");
  const OdDbTextPtr t = open(id);
  EXPECT_EQ(t->textStyle(), style);
  EXPECT_NEAR(t->oblique(), 10 * kDeg, 1e-12);
  EXPECT_NEAR(t->widthFactor(), 0.8, 1e-12);
  EXPECT_TRUE(t->isMirroredInY());
  EXPECT_FALSE(t->isMirroredInX());
}

TEST_F(TextTest, AStyleOfAnotherKindIsRefusedWithASentence) {
  const OdDbObjectId id = addText("abc");
  const OdDbObjectId line = addLine({0, 0, 0}, {1, 1, 0});
  EXPECT_EQ(set(id, "Text", "TextStyle", CZqVariant(line)), -5001);
  EXPECT_TRUE(open(id)->textStyle().isNull());
  ASSERT_EQ(messageCount(), 1u);
  EXPECT_TRUE(GetZqSystemServices()->Messages().back().text.qstring().contains("text style"));
}

// --- Property matching ------------------------------------------------------------------

TEST_F(TextTest, MatchingCopiesStyleRotationObliqueHeightAndWidth) {
  const OdDbObjectId style = addStyle("Source", 0);
  const OdDbObjectId source = addText("from");
  {
    OdDbTextPtr t = openAs<OdDbText>(source, OdDb::kForWrite);
    t->setTextStyle(style);
    t->setRotation(0.5);
    t->setOblique(0.2);
    t->setHeight(7);
    t->setWidthFactor(1.5);
  }
  const OdDbObjectId target = addText("to", OdDb::kTextCenter);
  EXPECT_EQ(get(target, "MATCHPROP", "MATCHPROP_Text").GetId(), target);
  EXPECT_EQ(set(target, "MATCHPROP", "MATCHPROP_Text", CZqVariant(source)), 5100);
  const OdDbTextPtr t = open(target);
  EXPECT_EQ(t->textStyle(), style);
  EXPECT_EQ(t->rotation(), 0.5);
  EXPECT_EQ(t->oblique(), 0.2);
  EXPECT_EQ(t->height(), 7.0);
  EXPECT_EQ(t->widthFactor(), 1.5);
  EXPECT_EQ(t->textString().qstring(), "to");
  EXPECT_EQ(t->horizontalMode(), OdDb::kTextCenter);

  // A line has no text properties to give.
  const OdDbObjectId line = addLine({0, 0, 0}, {1, 1, 0});
  EXPECT_EQ(set(target, "MATCHPROP", "MATCHPROP_Text", CZqVariant(line)), -5001);
  EXPECT_EQ(open(target)->height(), 7.0);
}

// A source in another drawing: its style is brought into the target's drawing
// once, fonts and flags and typeface with it; a style of the same name there
// is used as it is.
TEST_F(TextTest, MatchingFromAnotherDrawingCopiesTheStyleOnce) {
  OdDbDatabasePtr other = OdDbDatabase::createObject();
  OdDbTextStyleTableRecordPtr s = OdDbTextStyleTableRecord::createObject();
  s->setName(OdString("Imported"));
  s->setFileName(OdString("DejaVuSans.ttf"));
  s->setXScale(0.8);
  s->setObliquingAngle(0.25);
  s->setTextGenerationFlags(2);
  OdResBufPtr typeface = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("ACAD"));
  typeface->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("DejaVu Sans")).get());
  s->setXData(typeface.get());
  OdDbObjectId sourceStyle;
  {
    OdDbObjectPtr table = other->getTextStyleTableId().openObject(OdDb::kForWrite);
    sourceStyle = static_cast<OdDbSymbolTable*>(table.get())->add(s.get());
  }
  OdDbTextPtr from = OdDbText::createObject();
  from->setTextString(OdString("from"));
  from->setTextStyle(sourceStyle);
  from->setHeight(4);
  OdDbObjectId source;
  {
    OdDbObjectPtr ms = other->getModelSpaceId().openObject(OdDb::kForWrite);
    source = static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(from.get());
  }
  auto styleCount = [&] {
    OdDbObjectPtr table = db->getTextStyleTableId().openObject();
    return static_cast<OdDbSymbolTable*>(table.get())->recordIds().size();
  };
  const size_t before = styleCount();
  const OdDbObjectId first = addText("one"), second = addText("two");
  EXPECT_EQ(set(first, "MATCHPROP", "MATCHPROP_Text", CZqVariant(source)), 5100);
  EXPECT_EQ(set(second, "MATCHPROP", "MATCHPROP_Text", CZqVariant(source)), 5100);
  EXPECT_EQ(styleCount(), before + 1);
  const OdDbObjectId copied = open(first)->textStyle();
  ASSERT_FALSE(copied.isNull());
  EXPECT_EQ(copied.database(), db.get());
  EXPECT_EQ(open(second)->textStyle(), copied);
  EXPECT_EQ(open(first)->height(), 4.0);
  const OdDbTextStyleTableRecordPtr style = openAs<OdDbTextStyleTableRecord>(copied);
  EXPECT_EQ(style->getName().qstring(), "Imported");
  EXPECT_EQ(style->fileName().qstring(), "DejaVuSans.ttf");
  EXPECT_EQ(style->xScale(), 0.8);
  EXPECT_EQ(style->obliquingAngle(), 0.25);
  EXPECT_EQ(style->textGenerationFlags(), 2);
  OdResBufPtr x = style->xData(OdString("ACAD"));
  ASSERT_TRUE(x && x->next());
  EXPECT_EQ(x->next()->getString().qstring(), "DejaVu Sans");
  // The source drawing is left as it was.
  EXPECT_EQ(sourceStyle.database(), other.get());

  // The copy is written as a style record of the target drawing.
  QString error;
  const QByteArray saved = OdDxf::writeDrawing(db.get(), &error);
  ASSERT_TRUE(error.isEmpty()) << error.toStdString();
  OdDbDatabasePtr again = OdDxf::readDrawing(saved, error);
  ASSERT_TRUE(again) << error.toStdString();
  OdDbObjectPtr table = again->getTextStyleTableId().openObject();
  EXPECT_TRUE(static_cast<OdDbSymbolTable*>(table.get())->has(OdString("Imported")));
}

// --- Information -----------------------------------------------------------------------------

TEST_F(TextTest, InformationListsStyleFontPointHeightTextAndAngles) {
  const OdDbObjectId style = addStyle("Notes", 0);
  const OdDbObjectId id = addText("hello", OdDb::kTextLeft, OdDb::kTextBase, {3, 4, 0});
  {
    OdDbTextPtr t = openAs<OdDbText>(id, OdDb::kForWrite);
    t->setTextStyle(style);
    t->setRotation(30 * kDeg);
    t->setOblique(5 * kDeg);
    t->setWidthFactor(0.9);
  }
  const auto lines = info(id);
  const std::vector<QString> labels = labelsOf(lines);
  const std::vector<QString> own{"TextStyle", "Typeface", "Font file", "Start point", "height",
                                 "text", "rotation angle", "width scale", "obliquing angle"};
  ASSERT_GE(labels.size(), own.size());
  EXPECT_EQ(std::vector<QString>(labels.end() - own.size(), labels.end()), own);
  EXPECT_EQ(infoLine(lines, "TextStyle")->value.toString(), "Notes");
  EXPECT_EQ(infoLine(lines, "Font file")->value.toString(), "romans.shx");
  EXPECT_EQ(infoLine(lines, "text")->value.toString(), "hello");
  EXPECT_DOUBLE_EQ(infoLine(lines, "height")->value.toDouble(), 2.5);
  EXPECT_NEAR(infoLine(lines, "rotation angle")->value.toDouble(), 30 * kDeg, 1e-12);
  EXPECT_NEAR(infoLine(lines, "obliquing angle")->value.toDouble(), 5 * kDeg, 1e-12);
  EXPECT_DOUBLE_EQ(infoLine(lines, "width scale")->value.toDouble(), 0.9);
  const QVariantList p = infoLine(lines, "Start point")->value.toList();
  ASSERT_EQ(p.size(), 3);
  EXPECT_EQ(p[0].toDouble(), 3.0);
  EXPECT_EQ(p[1].toDouble(), 4.0);
}

TEST_F(TextTest, TheProviderNamesTheTextSimplenote) {
  const OdDbObjectId id = addText("abc");
  OdDbObjectPtr obj = id.openObject();
  EXPECT_EQ(zqProviderFor(obj.get())->GetClassName(obj.get()).qstring(), "Simplenote");
}

}  // namespace
