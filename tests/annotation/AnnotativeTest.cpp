// Annotative texts and dimensions: the drawing's scales as ezdxf reads
// them, the rows an annotative text shows (and gives back to the next
// text that is not), the sheet height, orientation and the refusals, the
// information lines, and the marks written into the drawing.
#include "TextTestSupport.h"
#include "CZqObjectAnnotationContext.h"
#include "DxfDatabase.h"
#include "DbDimension.h"
#include "DbText.h"

#include <QFileInfo>
#include <QTemporaryDir>

namespace {

const QString kTextSample = QStringLiteral(ZQ_SAMPLES_DIR "/ezdxf__examples_dxf__text.dxf");
const QString kLeaderSample = QStringLiteral(ZQ_SAMPLES_DIR "/libredwg__test__test-data__2010__Leader.dxf");

// The scale list and current scale of a drawing, and the scales of each
// object that lists some, as ezdxf reads them.
const char* kEzdxfScales = R"(
import sys, ezdxf
doc = ezdxf.readfile(sys.argv[1])
root = doc.rootdict
def own(entity, subclass):
    return entity.xtags.get_subclass(subclass)
for _, scale in root["ACAD_SCALELIST"].items():
    s = own(scale, "AcDbScale")
    print("scale|%s|%r|%r" % (s.get_first_value(300), s.get_first_value(140), s.get_first_value(141)))
variables = root.get("AcDbVariableDictionary")
var = variables.get("CANNOSCALE") if variables is not None else None
print("current|%s" % (var.value if var is not None else ""))
for e in doc.entitydb.values():
    if not getattr(e, "has_extension_dict", False) or not e.has_extension_dict:
        continue
    xdict = e.get_extension_dict()
    manager = xdict.get("AcDbContextDataManager")
    if manager is None or "ACDB_ANNOTATIONSCALES" not in manager:
        continue
    names = []
    for _, ctx in manager["ACDB_ANNOTATIONSCALES"].items():
        scale = doc.entitydb.get(own(ctx, "AcDbAnnotScaleObjectContextData").get_first_value(340))
        if scale is not None:
            names.append(own(scale, "AcDbScale").get_first_value(300))
    print("object|%s|%s" % (e.dxf.handle, ",".join(names)))
)";

class AnnotationScalesSample : public ::testing::TestWithParam<QString> {};

TEST_P(AnnotationScalesSample, AgreeWithEzdxf) {
  zqEnsureModuleLoaded();
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(GetParam(), error);
  ASSERT_TRUE(db) << error.toStdString();
  int code = 0;
  const QString out = zqRunPython(QString::fromLatin1(kEzdxfScales), {GetParam()}, &code);
  ASSERT_EQ(code, 0) << out.toStdString();
  const OdDbAnnotationScales& scales = db->annotationScales();
  QStringList ours, theirs;
  for (const OdDbAnnotationScale& s : scales.scales)
    ours << QStringLiteral("scale|%1|%2|%3").arg(s.name.qstring()).arg(s.paperUnits).arg(s.drawingUnits);
  ours << QStringLiteral("current|%1").arg(scales.current.qstring());
  int objects = 0;
  for (const QString& line : out.split('\n', Qt::SkipEmptyParts)) {
    const QStringList f = line.split('|');
    if (f[0] == "scale") theirs << QStringLiteral("scale|%1|%2|%3").arg(f[1]).arg(f[2].toDouble()).arg(f[3].toDouble());
    else if (f[0] == "current") theirs << line;
    else if (f[0] == "object") {
      ++objects;
      QStringList names;
      for (const OdString& n : scales.objectScales.value(f[1].toULongLong(nullptr, 16))) names << n.qstring();
      EXPECT_EQ(names.join(','), f[2]) << "object " << f[1].toStdString();
    }
  }
  EXPECT_EQ(ours, theirs);
  EXPECT_FALSE(scales.scales.isEmpty());
  EXPECT_EQ(objects, scales.objectScales.size());
}

INSTANTIATE_TEST_SUITE_P(Samples, AnnotationScalesSample, ::testing::Values(kTextSample, kLeaderSample),
                         [](const auto& info) { return zqSampleTestName(QFileInfo(info.param).fileName().toLatin1()); });

class AnnotativeTest : public ZqDrawingTest {
 protected:
  void SetUp() override {
    ZqDrawingTest::SetUp();
    OdDbAnnotationScales scales;
    scales.scales = {{OdString("1:1"), 1, 1}, {OdString("1:50"), 1, 50}, {OdString("2:1"), 2, 1}};
    scales.current = OdString("1:50");
    db->setAnnotationScales(scales);
  }
  OdDbObjectId addText(OdDb::TextHorzMode mode = OdDb::kTextLeft, bool annotative = false) {
    OdDbTextPtr t = OdDbText::createObject();
    t->setTextString(OdString("note"));
    t->setHeight(2.5);
    t->setHorizontalMode(mode);
    t->setAlignmentPoint(OdGePoint3d(10, 0, 0));
    t->setRotation(0.5);
    const OdDbObjectId id = addToModelSpace(t.get());
    if (annotative) {
      OdDbObjectPtr o = id.openObject(OdDb::kForWrite);
      EXPECT_TRUE(CZqObjectAnnotationContext::SetAnnotative(o.get(), true, false));
    }
    return id;
  }
  bool has(const OdDbObjectId& id, const char* category, const char* name) {
    OdDbObjectPtr o = id.openObject();
    auto rows = zqRowsOf(o.get());
    return zqRow(rows.get(), category, name) != nullptr;
  }
  bool readOnly(const OdDbObjectId& id, const char* category, const char* name) {
    OdDbObjectPtr o = id.openObject();
    auto rows = zqRowsOf(o.get());
    CZqPropertyDescription* d = zqRow(rows.get(), category, name);
    EXPECT_NE(d, nullptr) << name;
    return d && d->IsReadOnly(o.get());
  }
};

// The shared height row is renamed for an annotative text and named back
// for the next text that is not: whichever order the texts come in.
TEST_F(AnnotativeTest, AnnotativeTextShowsItsScaleAndSheetHeightAndTheNextTextItsHeight) {
  const OdDbObjectId plain = addText(), annotative = addText(OdDb::kTextLeft, true);
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(zqCurrentWord(get(annotative, "Text", "Annotative")), "Yes");
    EXPECT_EQ(get(annotative, "Text", "Annotative Scale").GetString().qstring(), "1:50");
    EXPECT_DOUBLE_EQ(get(annotative, "Text", "Sheet text height").GetDouble(), 2.5 / 50);
    EXPECT_DOUBLE_EQ(get(annotative, "Text", "Model text height").GetDouble(), 2.5);
    EXPECT_TRUE(readOnly(annotative, "Text", "Model text height"));
    EXPECT_FALSE(has(annotative, "Text", "Height"));
    EXPECT_EQ(get(annotative, "Text", "Edit annotation scales").GetString().qstring(), "1:50");

    EXPECT_EQ(zqCurrentWord(get(plain, "Text", "Annotative")), "No");
    EXPECT_FALSE(readOnly(plain, "Text", "Height"));
    for (const char* row : {"Model text height", "Sheet text height", "Annotative Scale", "Match orientation to sheet"})
      EXPECT_FALSE(has(plain, "Text", row)) << row;
  }
}

TEST_F(AnnotativeTest, SheetHeightAndOrientationEdits) {
  const OdDbObjectId id = addText(OdDb::kTextLeft, true);
  EXPECT_EQ(set(id, "Text", "Sheet text height", CZqVariant(0.1, true)), kZqSetApplied);
  EXPECT_DOUBLE_EQ(openAs<OdDbText>(id)->height(), 5.0);
  EXPECT_EQ(set(id, "Text", "Sheet text height", CZqVariant(0.0, true)), kZqSetApplied);  // clearing keeps it
  EXPECT_DOUBLE_EQ(openAs<OdDbText>(id)->height(), 5.0);
  EXPECT_EQ(set(id, "Text", "Sheet text height", CZqVariant(-1.0, true)), kZqSetRefused);

  EXPECT_FALSE(readOnly(id, "Text", "Rotation"));
  EXPECT_EQ(set(id, "Text", "Match orientation to sheet", zqChoose(0)), kZqSetApplied);
  EXPECT_TRUE(readOnly(id, "Text", "Rotation"));
  EXPECT_DOUBLE_EQ(get(id, "Text", "Rotation").GetDouble(), 0.0);
  EXPECT_DOUBLE_EQ(openAs<OdDbText>(id)->rotation(), 0.5);  // kept for when it stops following the sheet

  // Turned off, the text gives its orientation back.
  EXPECT_EQ(set(id, "Text", "Annotative", zqChoose(1)), kZqSetApplied);
  EXPECT_FALSE(CZqObjectAnnotationContext::IsAnnotative(id));
  EXPECT_DOUBLE_EQ(get(id, "Text", "Rotation").GetDouble(), 0.5);
}

// Aligned and fitted text is sized by its two points; it cannot be
// annotative, either way round.
TEST_F(AnnotativeTest, AlignedOrFitAndAnnotativeExcludeEachOther) {
  const OdDbObjectId fit = addText(OdDb::kTextFit);
  const size_t before = messageCount();
  EXPECT_EQ(set(fit, "Text", "Annotative", zqChoose(0)), kZqSetRefused);
  EXPECT_FALSE(CZqObjectAnnotationContext::IsAnnotative(fit));
  const OdDbObjectId annotative = addText(OdDb::kTextLeft, true);
  EXPECT_EQ(set(annotative, "Text", "Justify", zqChoose(5)), kZqSetRefused);
  EXPECT_EQ(openAs<OdDbText>(annotative)->horizontalMode(), OdDb::kTextLeft);
  ASSERT_EQ(messageCount(), before + 2);
  EXPECT_EQ(GetZqSystemServices()->Messages().back().text.qstring(), "A text justified Aligned or Fit cannot be annotative.");
}

TEST_F(AnnotativeTest, InformationGivesSheetAndModelHeightInsteadOfHeight) {
  const OdDbObjectId id = addText(OdDb::kTextLeft, true);
  const auto lines = info(id);
  const std::vector<QString> labels = labelsOf(lines);
  EXPECT_EQ(std::count(labels.begin(), labels.end(), QStringLiteral("height")), 0);
  ASSERT_NE(infoLine(lines, "Sheet text height"), nullptr);
  EXPECT_DOUBLE_EQ(infoLine(lines, "Sheet text height")->value.toDouble(), 2.5 / 50);
  EXPECT_DOUBLE_EQ(infoLine(lines, "Model text height")->value.toDouble(), 2.5);
}

// A dimension turned annotative: its overall scale becomes read-only and
// its scale row appears.
TEST_F(AnnotativeTest, DimensionTurnedAnnotative) {
  OdDbAlignedDimensionPtr d = OdDbAlignedDimension::createObject();
  d->setXLine1Point(OdGePoint3d(0, 0, 0));
  d->setXLine2Point(OdGePoint3d(10, 0, 0));
  d->setDimLinePoint(OdGePoint3d(5, 3, 0));
  const OdDbObjectId id = addToModelSpace(d.get());
  d.release();
  EXPECT_FALSE(readOnly(id, "Fit", "Dim scale overall"));
  EXPECT_FALSE(has(id, "Misc", "Annotative Scale"));
  EXPECT_EQ(set(id, "Misc", "Annotative", zqChoose(0)), kZqSetApplied);
  EXPECT_TRUE(readOnly(id, "Fit", "Dim scale overall"));
  EXPECT_EQ(get(id, "Misc", "Annotative Scale").GetString().qstring(), "1:50");
}

// What is written: the application data a CAD host reads (flag 1, and flag
// 0 once turned off) and, once annotative, the extension dictionary with the
// context data of the current scale; read back by ezdxf and by our reader.
// A second save adds nothing.
TEST(AnnotativeFile, TurningATextAnnotativeWritesItsMarkAndScaleContext) {
  zqEnsureModuleLoaded();
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(kTextSample, error);
  ASSERT_TRUE(db) << error.toStdString();
  OdDbObjectId textId;
  zqForEachEntity(db.get(), [&](const OdDbObjectId& id) {
    if (textId.isNull() && id.openObject()->isA() == OdDbText::desc()) textId = id;
  });
  ASSERT_FALSE(textId.isNull());
  const OdDbAnnotationScale* current = db->annotationScales().byName(db->annotationScales().current);
  ASSERT_TRUE(current && current->handle);
  const QString handle = textId.getHandle().ascii().qstring();
  const char* script = R"(
import sys, ezdxf
doc = ezdxf.readfile(sys.argv[1])
e = doc.entitydb[sys.argv[2]]
print([t.value for t in e.get_xdata("AcadAnnotative")] if e.has_xdata("AcadAnnotative") else None)
contexts = []
if e.has_extension_dict:
    scales = e.get_extension_dict()["AcDbContextDataManager"]["ACDB_ANNOTATIONSCALES"]
    for name, c in scales.items():
        tags = {t.code: t.value for t in c.xtags.get_subclass("AcDbAnnotScaleObjectContextData")}
        contexts.append([name, c.dxftype(), tags[340], c.dxf.owner == scales.dxf.handle])
print(contexts)
auditor = doc.audit()
print(len(auditor.errors))
)";
  QTemporaryDir dir;
  QByteArray previous;
  for (const bool on : {true, false}) {
    {
      OdDbObjectPtr o = textId.openObject(OdDb::kForWrite);
      ASSERT_TRUE(CZqObjectAnnotationContext::SetAnnotative(o.get(), on, false));
    }
    const QString path = dir.filePath(QStringLiteral("out.dxf"));
    ASSERT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
    int code = 0;
    const QStringList out = zqRunPython(QString::fromLatin1(script), {path, handle}, &code).trimmed().split('\n');
    EXPECT_EQ(code, 0);
    ASSERT_EQ(out.size(), 3) << out.join('\n').toStdString();
    EXPECT_EQ(out[0], on ? "['AnnotativeData', '{', 1, 1, '}']" : "['AnnotativeData', '{', 1, 0, '}']");
    // Turning the text off again keeps its context, as it keeps its mark.
    EXPECT_EQ(out[1], QStringLiteral("[['*A1', 'ACDB_TEXTOBJECTCONTEXTDATA_CLASS', '%1', True]]")
                          .arg(QString::number(current->handle, 16).toUpper()));
    EXPECT_EQ(out[2], "0");

    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray bytes = f.readAll();
    OdDbDatabasePtr again = OdDxf::readDrawing(bytes, error);
    ASSERT_TRUE(again) << error.toStdString();
    EXPECT_EQ(again->annotationScales().objectScales.value(textId.getHandle().value()), QList<OdString>{current->name});
    if (!previous.isEmpty()) {
      EXPECT_EQ(bytes.count("ACDB_TEXTOBJECTCONTEXTDATA_CLASS"), previous.count("ACDB_TEXTOBJECTCONTEXTDATA_CLASS"));
    }
    previous = bytes;
  }
}

}  // namespace
