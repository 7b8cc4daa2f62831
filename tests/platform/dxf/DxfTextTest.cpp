// Texts in drawings: TEXT, ATTRIB, ATTDEF and MTEXT values against ezdxf's
// reading of every sample, edits that change only their own tags, new texts
// written and read back by ezdxf, and malformed values refused with their line.
#include "DxfDatabaseSupport.h"

#include <QTemporaryDir>

#include <QtMath>

using namespace dxfdb;

namespace {

// One row per text entity of the drawing (blocks included), in ezdxf's
// words: positions in WCS, angles in degrees.
const char* kTextView = R"(
import ezdxf, sys, json, math, re
from ezdxf.math import Vec3, OCS
doc = ezdxf.readfile(sys.argv[1])
def l(v): return [float(x) for x in v]
# The tag reader leaves \U+XXXX escapes in; they are resolved as a CAD program shows them.
def u(s): return re.sub(r'\\U\+([0-9A-Fa-f]{4})', lambda m: chr(int(m.group(1), 16)), s)
# The angle of the text direction in the object coordinate system.
def mrot(e):
    if e.dxf.hasattr('text_direction'): return math.degrees(Vec3(OCS(e.dxf.get('extrusion', (0, 0, 1))).from_wcs(e.dxf.text_direction)).angle)
    return e.dxf.get('rotation', 0.0)
rows = []
# Without handles (R12): the model space texts in drawing order.
for e in (doc.modelspace() if len(sys.argv) > 2 else doc.entitydb.values()):
    t = e.dxftype()
    if t not in ('TEXT', 'ATTRIB', 'ATTDEF', 'MTEXT'): continue
    d = e.dxf
    r = {'handle': d.handle, 'type': t, 'style': d.get('style', 'Standard'), 'extrusion': l(d.get('extrusion', (0, 0, 1)))}
    if t == 'MTEXT':
        r.update({'insert': l(d.insert), 'height': d.get('char_height', 0.2), 'width': d.get('width', 0.0),
                  'attachment': d.get('attachment_point', 1), 'flow': d.get('flow_direction', 1),
                  'text': u(e.text), 'rotation': mrot(e),
                  'spacing_style': d.get('line_spacing_style', 1), 'spacing_factor': d.get('line_spacing_factor', 1.0),
                  'bg_fill': d.get('bg_fill', 0), 'bg_scale': d.get('box_fill_scale', 1.5)})
    else:
        ocs = e.ocs()
        r.update({'insert': l(ocs.to_wcs(d.insert)), 'height': d.height, 'text': u(d.text), 'rotation': d.get('rotation', 0.0),
                  'width': d.get('width', 1.0), 'oblique': d.get('oblique', 0.0), 'flags': d.get('text_generation_flag', 0),
                  'halign': d.get('halign', 0), 'valign': d.get('valign', 0), 'thickness': d.get('thickness', 0.0),
                  'align': l(ocs.to_wcs(d.align_point)) if d.hasattr('align_point') else None})
        if t in ('ATTRIB', 'ATTDEF'):
            r.update({'tag': d.tag, 'attflags': d.get('flags', 0)})
        if t == 'ATTDEF': r['prompt'] = d.get('prompt', '')
    rows.append(r)
print(json.dumps(rows))
)";

QString recordName(const OdDbObjectId& id) {
  OdDbObjectPtr o = id.openObject();
  auto* rec = odrxCast<OdDbSymbolTableRecord>(o.get());
  return rec ? rec->getName().qstring() : QString();
}

QJsonArray xyz(const OdGePoint3d& p) { return QJsonArray{p.x, p.y, p.z}; }
QJsonArray xyz(const OdGeVector3d& v) { return QJsonArray{v.x, v.y, v.z}; }

// Our values in the shape of kTextView's rows (only the keys it has).
QJsonObject ours(const OdDbObject* o) {
  QJsonObject r;
  auto styleName = [](const OdDbObjectId& id) {
    const QString n = recordName(id);
    return n;
  };
  if (auto* m = OdDbMText::cast(o).get()) {
    r[QStringLiteral("insert")] = xyz(m->location());
    r[QStringLiteral("height")] = m->textHeight();
    r[QStringLiteral("width")] = m->width();
    r[QStringLiteral("attachment")] = int(m->attachment());
    r[QStringLiteral("flow")] = int(m->flowDirection());
    r[QStringLiteral("text")] = m->contents().qstring();
    r[QStringLiteral("rotation")] = qRadiansToDegrees(m->rotation());
    r[QStringLiteral("spacing_style")] = int(m->lineSpacingStyle());
    r[QStringLiteral("spacing_factor")] = m->lineSpacingFactor();
    r[QStringLiteral("bg_fill")] = m->backgroundFillFlags();
    r[QStringLiteral("bg_scale")] = m->getBackgroundScaleFactor();
    r[QStringLiteral("style")] = styleName(m->textStyle());
    r[QStringLiteral("extrusion")] = xyz(m->normal());
    return r;
  }
  auto* t = OdDbText::cast(o).get();
  if (!t) return r;
  r[QStringLiteral("insert")] = xyz(t->position());
  r[QStringLiteral("height")] = t->height();
  r[QStringLiteral("text")] = t->textString().qstring();
  r[QStringLiteral("rotation")] = qRadiansToDegrees(t->rotation());
  r[QStringLiteral("width")] = t->widthFactor();
  r[QStringLiteral("oblique")] = qRadiansToDegrees(t->oblique());
  r[QStringLiteral("flags")] = (t->isMirroredInX() ? 2 : 0) | (t->isMirroredInY() ? 4 : 0);
  r[QStringLiteral("halign")] = int(t->horizontalMode());
  r[QStringLiteral("valign")] = int(t->verticalMode());
  r[QStringLiteral("thickness")] = t->thickness();
  r[QStringLiteral("align")] = xyz(t->alignmentPoint());
  r[QStringLiteral("style")] = styleName(t->textStyle());
  r[QStringLiteral("extrusion")] = xyz(t->normal());
  if (auto* a = OdDbAttribute::cast(o).get()) {
    r[QStringLiteral("tag")] = a->tag().qstring();
    r[QStringLiteral("attflags")] = a->flags();
  }
  if (auto* d = OdDbAttributeDefinition::cast(o).get()) {
    r[QStringLiteral("tag")] = d->tag().qstring();
    r[QStringLiteral("attflags")] = d->flags();
    r[QStringLiteral("prompt")] = d->prompt().qstring();
  }
  return r;
}

// Compares every key ezdxf gave (a null alignment point: none in the file).
void expectSame(const QJsonObject& want, const QJsonObject& got, const QString& what) {
  for (auto it = want.begin(); it != want.end(); ++it) {
    const QString key = it.key();
    if (key == QLatin1String("handle") || key == QLatin1String("type") || it.value().isNull()) continue;
    if (key == QLatin1String("style")) {
      EXPECT_EQ(got.value(key).toString().toCaseFolded(), it.value().toString().toCaseFolded()) << what.toStdString();
      continue;
    }
    // Angles compare within a turn.
    if (key == QLatin1String("rotation") || key == QLatin1String("oblique")) {
      const double d = std::remainder(got.value(key).toDouble() - it.value().toDouble(), 360.0);
      EXPECT_NEAR(d, 0.0, 1e-9) << what.toStdString() << " " << key.toStdString();
      continue;
    }
    EXPECT_TRUE(sameJson(got.value(key), it.value(), 1e-9)) << what.toStdString() << " " << key.toStdString();
  }
}

std::vector<std::string> textSamples() {
  std::vector<std::string> out;
  for (const std::string& n : sampleNames()) {
    if (isMalformedSample(n)) continue;
    const QByteArray b = readBytes(samplePath(QString::fromStdString(n)));
    if (b.contains("\nTEXT") || b.contains("\nMTEXT") || b.contains("\nATTRIB") || b.contains("\nATTDEF")) out.push_back(n);
  }
  return out;
}

std::string testName(const ::testing::TestParamInfo<std::string>& info) {
  std::string s;
  for (char c : info.param) s += std::isalnum(uchar(c)) ? c : '_';
  return s;
}

class DxfTextSample : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
    odDbInitialize();
  }
};

// One ezdxf run per sample: every text entity's values are ezdxf's.
TEST_P(DxfTextSample, ValuesEqualEzdxf) {
  const QString path = samplePath(QString::fromStdString(GetParam()));
  bool ok = false;
  const QJsonArray rows = ezdxfJson(QString::fromLatin1(kTextView), {path}, &ok).toArray();
  ASSERT_TRUE(ok);
  QStringList warnings;
  OdDbDatabasePtr db = load(readBytes(path), &warnings);
  ASSERT_TRUE(db);
  ASSERT_FALSE(rows.isEmpty());
  // A drawing without handles: the model space texts by their order.
  const bool handles = db->originalFileVersion().qstring() >= QLatin1String("AC1012");
  QJsonArray byOrder = rows;
  std::vector<OdDbObjectId> texts;
  if (!handles) {
    byOrder = ezdxfJson(QString::fromLatin1(kTextView), {path, QStringLiteral("msp")}, &ok).toArray();
    ASSERT_TRUE(ok);
    for (const OdDbObjectId& id : entitiesOf(db->getModelSpaceId()))
      if (id.openObject()->isKindOf(OdDbText::desc()) || id.openObject()->isKindOf(OdDbMText::desc())) texts.push_back(id);
    ASSERT_EQ(qsizetype(texts.size()), byOrder.size());
  }
  for (qsizetype k = 0; k < byOrder.size(); ++k) {
    const QJsonObject want = byOrder[k].toObject();
    const QString handle = want.value(QStringLiteral("handle")).toString();
    OdDbObjectPtr obj = handles ? db->getOdDbObjectId(OdDbHandle(OdString(handle))).openObject() : texts[size_t(k)].openObject();
    ASSERT_TRUE(obj) << handle.toStdString();
    EXPECT_EQ(obj->isA()->dxfName().qstring(), want.value(QStringLiteral("type")).toString()) << handle.toStdString();
    expectSame(want, ours(obj.get()), want.value(QStringLiteral("type")).toString() + QLatin1Char(' ') + handle);
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, DxfTextSample, ::testing::ValuesIn(textSamples()), testName);

// ---------------------------------------------------------------------------
// Edits

class DxfTextEdit : public ::testing::Test {
 protected:
  void SetUp() override {
    odDbInitialize();
    bytes = readBytes(samplePath(QStringLiteral("ezdxf__examples_dxf__text.dxf")));
    db = load(bytes);
    ASSERT_TRUE(db);
    text = firstOf(db.get(), OdDbText::desc());
    mtext = firstOf(db.get(), OdDbMText::desc());
    ASSERT_FALSE(text.isNull());
    ASSERT_FALSE(mtext.isNull());
  }
  // The edited drawing, saved to a file ezdxf can read.
  QString saved(const QByteArray& out) {
    const QString path = dir.filePath(QStringLiteral("edited.dxf"));
    QFile f(path);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(out);
    return path;
  }
  QByteArray bytes;
  OdDbDatabasePtr db;
  OdDbObjectId text, mtext;
  QTemporaryDir dir;
};

// Each edit rewrites the tags of its own value and nothing else; ezdxf reads
// the new values.
TEST_F(DxfTextEdit, EachEditChangesOnlyItsOwnTags) {
  // A style other than the text's own, so that setting it is a change.
  OdDbObjectId style;
  {
    const QString own = recordName(OdDbText::cast(text.openObject().get())->textStyle());
    OdDbObjectPtr t = db->getTextStyleTableId().openObject();
    for (const OdDbObjectId& id : static_cast<OdDbSymbolTable*>(t.get())->recordIds())
      if (recordName(id).compare(own, Qt::CaseInsensitive) != 0 && !recordName(id).isEmpty())
        style = id;
  }
  ASSERT_FALSE(style.isNull()) << "the sample has a second text style";
  const QString longText = QString(600, QLatin1Char('x')) + QStringLiteral("\\Pend");
  // The style is found again by name in each fresh load: ids of an earlier
  // load die with its database.
  const QString styleName = recordName(style);
  struct Case {
    const char* what;
    std::function<void(OdDbDatabase*)> edit;
    std::vector<int> codes;  // the group codes that may change
  };
  const Case cases[] = {
      {"height", [&](OdDbDatabase*) { OdDbTextPtr(OdDbText::cast(text.openObject(OdDb::kForWrite)))->setHeight(12.5); }, {40}},
      {"rotation", [&](OdDbDatabase*) { OdDbTextPtr(OdDbText::cast(text.openObject(OdDb::kForWrite)))->setRotation(OdaPI / 6); }, {50}},
      {"style", [&](OdDbDatabase*) { OdDbTextPtr(OdDbText::cast(text.openObject(OdDb::kForWrite)))->setTextStyle(style); }, {7}},
      {"text contents", [&](OdDbDatabase*) { OdDbTextPtr(OdDbText::cast(text.openObject(OdDb::kForWrite)))->setTextString("nova"); }, {1}},
      {"mtext contents", [&](OdDbDatabase*) { OdDbMTextPtr(OdDbMText::cast(mtext.openObject(OdDb::kForWrite)))->setContents(OdString(longText)); }, {1, 3}},
      {"mtext height", [&](OdDbDatabase*) { OdDbMTextPtr(OdDbMText::cast(mtext.openObject(OdDb::kForWrite)))->setTextHeight(7.0); }, {40}},
      {"mtext rotation", [&](OdDbDatabase*) { OdDbMTextPtr(OdDbMText::cast(mtext.openObject(OdDb::kForWrite)))->setRotation(OdaPI / 2); }, {11, 21, 31}},
      {"mtext background", [&](OdDbDatabase*) {
         OdDbMTextPtr m = OdDbMText::cast(mtext.openObject(OdDb::kForWrite));
         m->setBackgroundFill(true);
         m->setBackgroundFillColor(OdCmColor::fromIndex(3));
       }, {90, 63}},
      // The attribute's lock (its second 280; the first is its version).
      {"attribute lock", [&](OdDbDatabase* d) {
         OdDbAttributePtr(OdDbAttribute::cast(d->getOdDbObjectId(OdDbHandle(0x757)).openObject(OdDb::kForWrite)))->setLockPositionInBlock(false);
       }, {280}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    OdDbDatabasePtr fresh = load(bytes);
    db = fresh;
    text = firstOf(db.get(), OdDbText::desc());
    mtext = firstOf(db.get(), OdDbMText::desc());
    {
      OdDbObjectPtr t = db->getTextStyleTableId().openObject();
      for (const OdDbObjectId& id : static_cast<OdDbSymbolTable*>(t.get())->recordIds())
        if (recordName(id) == styleName) style = id;
    }
    c.edit(db.get());
    const QByteArray out = save(db.get());
    const QStringList changed = changedRecords(bytes, out);
    ASSERT_EQ(changed.size(), 1) << changed.join(',').toStdString();
    // The changed record differs only in tags of the edit's codes.
    const QMap<QString, QByteArray> a = recordsOf(bytes), b = recordsOf(out);
    QList<QByteArray> la = a.value(changed[0]).split('\n'), lb = b.value(changed[0]).split('\n');
    auto codeOf = [](const QByteArray& line) { return line.split('\t').value(0).toInt(); };
    auto strip = [&](QList<QByteArray> lines) {
      QList<QByteArray> kept;
      for (const QByteArray& l : lines)
        if (std::find(c.codes.begin(), c.codes.end(), codeOf(l)) == c.codes.end()) kept.append(l);
      return kept;
    };
    EXPECT_EQ(strip(la), strip(lb));
  }

  // The last state (mtext rotated) and a combined edit read back by ezdxf.
  OdDbDatabasePtr edited = load(bytes);
  const OdDbObjectId t = firstOf(edited.get(), OdDbText::desc()), m = firstOf(edited.get(), OdDbMText::desc());
  {
    OdDbTextPtr tp = OdDbText::cast(t.openObject(OdDb::kForWrite));
    tp->setHeight(12.5);
    tp->setRotation(OdaPI / 6);
    OdDbMTextPtr mp = OdDbMText::cast(m.openObject(OdDb::kForWrite));
    mp->setContents(OdString(longText));
    mp->setTextHeight(7.0);
  }
  const QString path = saved(save(edited.get()));
  const QString script = QStringLiteral(R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
t = doc.entitydb[sys.argv[2]]; m = doc.entitydb[sys.argv[3]]
print(json.dumps([t.dxf.height, t.dxf.rotation, m.text, m.dxf.char_height]))
)");
  bool ok = false;
  const QJsonArray got = ezdxfJson(script, {path, hex(t), hex(m)}, &ok).toArray();
  ASSERT_TRUE(ok);
  EXPECT_DOUBLE_EQ(got[0].toDouble(), 12.5);
  EXPECT_NEAR(got[1].toDouble(), 30.0, 1e-9);
  EXPECT_EQ(got[2].toString(), longText);
  EXPECT_DOUBLE_EQ(got[3].toDouble(), 7.0);
}

// Columns and the kind of an attribute's text are kept as read; a changed
// one is refused when saving rather than lost.
TEST_F(DxfTextEdit, ColumnsAndMultilineAttributesAreRefusedWhenChanged) {
  OdDbObjectId columned;
  for (quint64 h = 1; h < db->handseed().value() && columned.isNull(); ++h) {
    const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(h));
    OdDbMTextPtr m = id.isNull() ? OdDbMTextPtr() : OdDbMText::cast(id.openObject().get());
    if (m && m->getColumnType() != OdDbMText::kNoColumns) columned = id;
  }
  ASSERT_FALSE(columned.isNull());
  const double gutter = OdDbMText::cast(columned.openObject().get())->getColumnGutterWidth();
  OdDbMTextPtr(OdDbMText::cast(columned.openObject(OdDb::kForWrite)))->setColumnGutterWidth(gutter + 1.0);
  QString error;
  EXPECT_TRUE(OdDxf::writeDrawing(db.get(), &error).isEmpty());
  EXPECT_TRUE(error.contains("columns")) << error.toStdString();
  OdDbMTextPtr(OdDbMText::cast(columned.openObject(OdDb::kForWrite)))->setColumnGutterWidth(gutter);
  error.clear();
  EXPECT_FALSE(OdDxf::writeDrawing(db.get(), &error).isEmpty()) << error.toStdString();
  OdDbAttributePtr(OdDbAttribute::cast(db->getOdDbObjectId(OdDbHandle(0x757)).openObject(OdDb::kForWrite)))->setMultilineFlag(true);
  EXPECT_TRUE(OdDxf::writeDrawing(db.get(), &error).isEmpty());
  EXPECT_TRUE(error.contains("multiline")) << error.toStdString();
}

// A value an object refuses is refused by its setter and the object stays
// as it was.
TEST_F(DxfTextEdit, RefusedValuesLeaveTheTextAsItWas) {
  OdDbTextPtr t = OdDbText::cast(text.openObject(OdDb::kForWrite));
  const double h = t->height(), w = t->widthFactor(), o = t->oblique();
  EXPECT_THROW(t->setHeight(0), OdError);
  EXPECT_THROW(t->setHeight(-1), OdError);
  EXPECT_THROW(t->setWidthFactor(0), OdError);
  EXPECT_THROW(t->setOblique(qDegreesToRadians(86.0)), OdError);
  EXPECT_THROW(t->setHorizontalMode(OdDb::TextHorzMode(6)), OdError);
  EXPECT_EQ(t->height(), h);
  EXPECT_EQ(t->widthFactor(), w);
  EXPECT_EQ(t->oblique(), o);
  OdDbMTextPtr m = OdDbMText::cast(mtext.openObject(OdDb::kForWrite));
  const double f = m->lineSpacingFactor();
  EXPECT_THROW(m->setLineSpacingFactor(4.5), OdError);
  EXPECT_THROW(m->setAttachment(OdDbMText::AttachmentPoint(10)), OdError);
  EXPECT_THROW(m->setDirection(m->normal()), OdError);
  EXPECT_EQ(m->lineSpacingFactor(), f);
}

// New texts are written (in a sample and in a new drawing) and ezdxf reads
// every value back.
TEST(DxfTextCreate, NewTextAndMTextAreWrittenAndReadBack) {
  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  odDbInitialize();
  for (const bool fromSample : {true, false}) {
    SCOPED_TRACE(fromSample ? "sample" : "new drawing");
    OdDbDatabasePtr db = fromSample ? load(readBytes(samplePath(QStringLiteral("libredwg__test__test-data__2000__entities-2d.dxf"))))
                                    : OdDbDatabase::createObject();
    ASSERT_TRUE(db);
    OdDbTextPtr t = OdDbText::createObject();
    t->setDatabaseDefaults(db.get());
    t->setNormal(OdGeVector3d(0, 1, 1));
    t->setPosition(OdGePoint3d(1, 2, 3));
    t->setHorizontalMode(OdDb::kTextCenter);
    t->setVerticalMode(OdDb::kTextTop);
    t->setAlignmentPoint(OdGePoint3d(4, 5, 6));
    t->setHeight(2.5);
    t->setRotation(OdaPI / 4);
    t->setWidthFactor(0.8);
    t->setOblique(qDegreesToRadians(15.0));
    t->mirrorInX(true);
    t->setTextString("Neue Zeile äöü");
    OdDbObjectId standard;
    {
      OdDbObjectPtr st = db->getTextStyleTableId().openObject();
      standard = static_cast<OdDbSymbolTable*>(st.get())->getAt("Standard");
    }
    ASSERT_FALSE(standard.isNull());
    t->setTextStyle(standard);
    OdDbMTextPtr m = OdDbMText::createObject();
    m->setDatabaseDefaults(db.get());
    m->setLocation(OdGePoint3d(10, 20, 0));
    m->setTextHeight(3.5);
    m->setWidth(40);
    m->setAttachment(OdDbMText::kMiddleCenter);
    m->setRotation(OdaPI / 3);
    m->setLineSpacingFactor(1.5);
    m->setTextStyle(standard);
    m->setContents(OdString(QString(300, QLatin1Char('a')) + QStringLiteral("\\Pzwei")));
    OdDbObjectId tid, mid;
    {
      OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
      tid = static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(t.get());
      mid = static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(m.get());
    }
    t.release();
    m.release();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("new.dxf"));
    QString error;
    ASSERT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
    bool ok = false;
    const QJsonArray rows = ezdxfJson(QString::fromLatin1(kTextView), {path}, &ok).toArray();
    ASSERT_TRUE(ok);
    int found = 0;
    for (const QJsonValue& v : rows) {
      const QJsonObject want = v.toObject();
      const QString h = want.value(QStringLiteral("handle")).toString();
      if (h != hex(tid) && h != hex(mid)) continue;
      ++found;
      OdDbObjectPtr obj = db->getOdDbObjectId(OdDbHandle(OdString(h))).openObject();
      expectSame(want, ours(obj.get()), h);
    }
    EXPECT_EQ(found, 2);
    // Our reader gives the same values again.
    OdDbDatabasePtr back = load(readBytes(path));
    ASSERT_TRUE(back);
    for (const OdDbObjectId& id : {tid, mid}) {
      OdDbObjectPtr a = id.openObject(), b = back->getOdDbObjectId(id.getHandle()).openObject();
      ASSERT_TRUE(b);
      expectSame(ours(a.get()), ours(b.get()), QStringLiteral("read back"));
    }
  }
}

// A value that is not a number is refused, naming its line.
TEST(DxfTextMalformed, NonNumbersAreRefusedWithTheirLine) {
  odDbInitialize();
  const QByteArray head = "0\nSECTION\n2\nENTITIES\n";
  const QByteArray tail = "0\nENDSEC\n0\nEOF\n";
  const struct {
    QByteArray record;
    int line;       // of the bad value
    const char* code;
  } cases[] = {
      {"0\nTEXT\n8\n0\n10\n1\n20\n2\n40\nhigh\n1\nabc\n", 14, "40"},
      {"0\nTEXT\n8\n0\n10\n1\n20\n2\n40\n1\n1\nabc\n50\n3O\n", 18, "50"},
      {"0\nMTEXT\n8\n0\n10\n1\n20\n2\n40\n1\n71\nfive\n1\nabc\n", 16, "71"},
      {"0\nATTDEF\n8\n0\n10\n1\n20\n2\n40\n1\n1\nv\n3\np\n2\nTAG\n70\nx\n", 22, "70"},
  };
  for (const auto& c : cases) {
    QString error;
    OdDbDatabasePtr db = OdDxf::readDrawing(head + c.record + tail, error);
    EXPECT_FALSE(db) << c.record.toStdString();
    EXPECT_TRUE(error.contains(QStringLiteral("line %1").arg(c.line))) << error.toStdString();
    EXPECT_TRUE(error.contains(QStringLiteral("group code %1").arg(QLatin1String(c.code)))) << error.toStdString();
  }
}

}  // namespace
