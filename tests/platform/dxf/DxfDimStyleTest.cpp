// Dimension styles and overrides in drawings: every sample's DIMSTYLE records
// read as ezdxf reads them, a new style's values written and read back by
// ezdxf, and a dimension's overrides (the DSTYLE extended data) read, edited
// and written.
#include "DxfDatabaseSupport.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QtMath>

using namespace dxfdb;
namespace dv = OdDbDimVar;

namespace {

// Every DIMSTYLE record: the variables it holds, by ezdxf's names (records
// by their names, which ezdxf finds from the handles).
const char* kStyleView = R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
names = sys.argv[2].split(',')
out = []
for d in doc.dimstyles:
    vals = {}
    for n in names:
        if d.dxf.hasattr(n): vals[n] = d.dxf.get(n)
    out.append({'handle': d.dxf.handle, 'name': d.dxf.name, 'values': vals})
print(json.dumps(out))
)";

// The variables with a group code.
QStringList names(bool) {
  QStringList out;
  for (int k = 0; k < dv::kCount; ++k)
    if (dv::info(dv::Id(k)).code) out << QString::fromLatin1(dv::info(dv::Id(k)).name);
  return out;
}
QStringList viewArgs(const QString& path) { return {path, names(false).join(',')}; }

// Our value in ezdxf's terms: angles in degrees, colours and line weights
// as numbers, records by name.
QJsonValue asJson(dv::Id id, const dv::Value& v) {
  const dv::Info& i = dv::info(id);
  switch (i.kind) {
    case dv::Kind::Angle: return qRadiansToDegrees(std::get<double>(v));
    case dv::Kind::Real: return std::get<double>(v);
    case dv::Kind::Bool: return std::get<bool>(v) ? 1 : 0;
    case dv::Kind::String: return std::get<OdString>(v).qstring();
    case dv::Kind::Color: return std::get<OdCmColor>(v).colorIndex();
    case dv::Kind::Int:
    case dv::Kind::Char:
    case dv::Kind::LineWeight: return std::get<int>(v);
    default: return dv::toString(id, v).qstring();  // ezdxf names the records
  }
}

std::vector<std::string> styleSamples() {
  std::vector<std::string> out;
  for (const std::string& n : sampleNames())
    if (!isMalformedSample(n) && readBytes(samplePath(QString::fromStdString(n))).contains("AcDbDimStyleTableRecord"))
      out.push_back(n);
  return out;
}

std::string testName(const ::testing::TestParamInfo<std::string>& info) {
  std::string s;
  for (char c : info.param) s += std::isalnum(uchar(c)) ? c : '_';
  return s;
}

class DxfDimStyleSample : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
    odDbInitialize();
  }
};

// One ezdxf run per sample: each variable a record holds is ezdxf's value;
// each it leaves out is the table's default.
TEST_P(DxfDimStyleSample, RecordsEqualEzdxf) {
  const QString path = samplePath(QString::fromStdString(GetParam()));
  bool ok = false;
  const QJsonArray styles = ezdxfJson(QString::fromLatin1(kStyleView), viewArgs(path), &ok).toArray();
  ASSERT_TRUE(ok);
  OdDbDatabasePtr db = load(readBytes(path));
  ASSERT_TRUE(db);
  ASSERT_FALSE(styles.isEmpty());
  int compared = 0;
  for (const QJsonValue& sv : styles) {
    const QJsonObject s = sv.toObject();
    const QString handle = s.value(QStringLiteral("handle")).toString();
    OdDbObjectPtr obj = db->getOdDbObjectId(OdDbHandle(OdString(handle))).openObject();
    auto* style = OdDbDimStyleTableRecord::cast(obj).get();
    // ezdxf makes a "Standard" style of its own where the file has none.
    if (!style && s.value(QStringLiteral("name")).toString() == QLatin1String("Standard")) continue;
    ASSERT_TRUE(style) << handle.toStdString();
    EXPECT_EQ(style->getName().qstring(), s.value(QStringLiteral("name")).toString());
    const QJsonObject values = s.value(QStringLiteral("values")).toObject();
    for (int k = 0; k < dv::kCount; ++k) {
      const dv::Id id = dv::Id(k);
      const dv::Info& i = dv::info(id);
      if (!i.code) continue;
      const QString name = QString::fromLatin1(i.name);
      const QJsonValue got = asJson(id, style->dimVar(id));
      if (values.contains(name)) {
        QJsonValue want = values.value(name);
        if (i.kind == dv::Kind::Real || i.kind == dv::Kind::Angle) want = want.toDouble();
        EXPECT_TRUE(sameJson(got, want, 1e-12)) << handle.toStdString() << " " << i.name;
        ++compared;
      } else {
        EXPECT_TRUE(sameJson(got, asJson(id, i.defaultValue()))) << handle.toStdString() << " " << i.name << " (absent)";
      }
    }
  }
  EXPECT_GT(compared, 0);
}

INSTANTIATE_TEST_SUITE_P(Samples, DxfDimStyleSample, ::testing::ValuesIn(styleSamples()), testName);

// A new style in a new drawing: ezdxf reads every variable as the table's
// default, and a few with values of their own.
TEST(DxfDimStyleNew, NewStyleIsWrittenWithEveryVariable) {
  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  odDbInitialize();
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  OdDbObjectId textStyle;
  {
    OdDbObjectPtr t = db->getTextStyleTableId().openObject();
    textStyle = static_cast<OdDbSymbolTable*>(t.get())->getAt("Standard");
  }
  OdDbDimStyleTableRecordPtr style = OdDbDimStyleTableRecord::createObject();
  style->setName("Neu");
  style->setDimtxt(3.5);
  style->setDimdsep(L',');
  style->setDimjogang(qDegreesToRadians(30.0));
  style->setDimclrt(OdCmColor::fromIndex(1));
  style->setDimlwd(OdDb::kLnWt050);
  style->setDimtih(false);
  style->setDimpost("<> mm");
  style->setDimtxsty(textStyle);
  const dv::Values expected = style->dimVars();
  {
    OdDbObjectPtr t = db->getDimStyleTableId().openObject(OdDb::kForWrite);
    static_cast<OdDbSymbolTable*>(t.get())->add(style.get());
  }
  const OdString handle = style->getDbHandle().ascii();
  style.release();
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("styles.dxf"));
  QString error;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
  bool ok = false;
  const QJsonArray styles = ezdxfJson(QString::fromLatin1(kStyleView), viewArgs(path), &ok).toArray();
  ASSERT_TRUE(ok);
  bool found = false;
  for (const QJsonValue& sv : styles) {
    const QJsonObject s = sv.toObject();
    if (s.value(QStringLiteral("handle")).toString() != handle.qstring()) continue;
    found = true;
    const QJsonObject values = s.value(QStringLiteral("values")).toObject();
    for (int k = 0; k < dv::kCount; ++k) {
      const dv::Info& i = dv::info(dv::Id(k));
      // A new drawing is an AC1015 one: later variables are left out.
      if (!i.code || i.since > 1015 || (i.isReference() && std::get<OdDbObjectId>(expected.get(i.id)).isNull())) continue;
      ASSERT_TRUE(values.contains(QString::fromLatin1(i.name))) << i.name;
      EXPECT_TRUE(sameJson(asJson(i.id, expected.get(i.id)), values.value(QString::fromLatin1(i.name)), 1e-12)) << i.name;
    }
  }
  EXPECT_TRUE(found);
}

// The DSTYLE overrides of a dimension: the listing names exactly the
// overridden variables; an override set is written where ezdxf reads it and
// read back by us.
TEST(DxfDimStyleOverrides, ReadEditedAndWritten) {
  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(QStringLiteral("libredwg__test__test-data__2000__TS1.dxf")));
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  const OdDbObjectId dim = db->getOdDbObjectId(OdDbHandle(OdString("1EA")));
  OdDbObjectPtr styleObj = db->getDIMSTYLE().openObject();
  auto* style = OdDbDimStyleTableRecord::cast(styleObj).get();
  ASSERT_TRUE(style);
  {
    OdDbObjectPtr d = dim.openObject();
    // The sample overrides DIMUPT (288) with 1.
    std::vector<OdDbDimStyleOverrides::Line> lines = OdDbDimStyleOverrides::effective(d.get(), style);
    ASSERT_EQ(lines.size(), size_t(dv::kCount));
    for (const auto& l : lines) {
      EXPECT_EQ(l.overridden, l.id == dv::k_dimupt) << dv::info(l.id).name;
      if (l.id == dv::k_dimupt) EXPECT_EQ(std::get<bool>(l.value), true);
      else EXPECT_TRUE(l.value == style->dimVar(l.id)) << dv::info(l.id).name;
    }
  }
  OdDbObjectId textStyle;
  {
    OdDbObjectPtr t = db->getTextStyleTableId().openObject();
    textStyle = static_cast<OdDbSymbolTable*>(t.get())->getAt("Standard");
  }
  {
    OdDbObjectPtr d = dim.openObject(OdDb::kForWrite);
    OdDbDimStyleOverrides::set(d.get(), dv::k_dimtxt, 0.5);
    OdDbDimStyleOverrides::set(d.get(), dv::k_dimupt, false);
    OdDbDimStyleOverrides::set(d.get(), dv::k_dimtxsty, textStyle);
    OdDbDimStyleOverrides::set(d.get(), dv::k_dimjogang, qDegreesToRadians(60.0));
    // Refused: the overrides stay as they were.
    const OdResBufPtr before = d->xData("ACAD");
    EXPECT_THROW(OdDbDimStyleOverrides::set(d.get(), dv::k_dimtxt, 0.0), OdError);
    EXPECT_THROW(OdDbDimStyleOverrides::set(d.get(), dv::k_dimdec, 9), OdError);
    EXPECT_THROW(OdDbDimStyleOverrides::set(d.get(), dv::k_dimasz, OdString("big")), OdError);
    EXPECT_TRUE(OdResBuf::chainsEqual(before.get(), d->xData("ACAD").get()));
  }
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("overrides.dxf"));
  QString error;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
  EXPECT_EQ(changedRecords(bytes, readBytes(path)), QStringList{QStringLiteral("#1EA")});
  const QString script = QStringLiteral(R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
tags = doc.entitydb[sys.argv[2]].get_xdata('ACAD')
vals = [t.value for t in tags]
i = vals.index('DSTYLE') + 2
pairs = []
while vals[i] != '}':
    pairs.append([vals[i], vals[i + 1]]); i += 2
print(json.dumps(pairs))
)");
  bool ok = false;
  const QJsonArray pairs = ezdxfJson(script, {path, QStringLiteral("1EA")}, &ok).toArray();
  ASSERT_TRUE(ok);
  const QJsonArray want{QJsonArray{288, 0}, QJsonArray{140, 0.5}, QJsonArray{340, hex(textStyle)}, QJsonArray{50, 60.0}};
  EXPECT_TRUE(sameJson(pairs, want)) << QJsonDocument(pairs).toJson().toStdString();
  OdDbDatabasePtr back = load(readBytes(path));
  ASSERT_TRUE(back);
  OdDbObjectPtr d = back->getOdDbObjectId(OdDbHandle(OdString("1EA"))).openObject();
  const std::vector<OdDbDimStyleOverrides::Entry> got = OdDbDimStyleOverrides::get(d.get());
  ASSERT_EQ(got.size(), 4u);
  EXPECT_EQ(got[0].id, dv::k_dimupt);
  EXPECT_EQ(std::get<bool>(got[0].value), false);
  EXPECT_EQ(std::get<double>(got[1].value), 0.5);
  EXPECT_EQ(hex(std::get<OdDbObjectId>(got[2].value)), hex(textStyle));
  EXPECT_NEAR(std::get<double>(got[3].value), qDegreesToRadians(60.0), 1e-12);
}

// An edited style changes only its own record and tags; ezdxf reads the new
// value.
TEST(DxfDimStyleEdit, EditChangesOnlyTheStyleRecord) {
  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(QStringLiteral("ezdxf__examples_dxf__VP4.dxf")));
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  OdDbObjectId id;
  {
    OdDbObjectPtr t = db->getDimStyleTableId().openObject();
    id = static_cast<OdDbSymbolTable*>(t.get())->getAt("ISO-25");
  }
  ASSERT_FALSE(id.isNull());
  {
    OdDbObjectPtr s = id.openObject(OdDb::kForWrite);
    auto* style = OdDbDimStyleTableRecord::cast(s).get();
    style->setDimasz(4.0);       // the record has 41
    style->setDimscale(2.0);     // it has no 40: inserted
    EXPECT_THROW(style->setDimtxt(-1), OdError);
    EXPECT_EQ(style->dimtxt(), 2.5);
  }
  const QByteArray out = save(db.get());
  const QStringList changed = changedRecords(bytes, out);
  ASSERT_EQ(changed, QStringList{QStringLiteral("#") + hex(id)});
  const QList<QByteArray> a = recordsOf(bytes).value(changed[0]).split('\n'), b = recordsOf(out).value(changed[0]).split('\n');
  EXPECT_EQ(b.size(), a.size() + 1);  // one tag more: 40
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("edited.dxf"));
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(out);
  f.close();
  bool ok = false;
  const QJsonArray styles = ezdxfJson(QString::fromLatin1(kStyleView), {path, QStringLiteral("dimasz,dimscale,dimtxt")}, &ok).toArray();
  ASSERT_TRUE(ok);
  for (const QJsonValue& sv : styles)
    if (sv.toObject().value(QStringLiteral("name")).toString() == QLatin1String("ISO-25")) {
      const QJsonObject v = sv.toObject().value(QStringLiteral("values")).toObject();
      EXPECT_EQ(v.value(QStringLiteral("dimasz")).toDouble(), 4.0);
      EXPECT_EQ(v.value(QStringLiteral("dimscale")).toDouble(), 2.0);
      EXPECT_EQ(v.value(QStringLiteral("dimtxt")).toDouble(), 2.5);
    }
}

// A dimension's style and variables: the style ezdxf names, each variable
// the override or else the style's value; a new style is written to group 3
// alone; the effective values go to a scratch record and back.
TEST(DxfDimension, StyleAndEffectiveVariables) {
  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  odDbInitialize();
  const QString path = samplePath(QStringLiteral("libredwg__test__test-data__2000__TS1.dxf"));
  const QByteArray bytes = readBytes(path);
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  bool ok = false;
  const QJsonArray dims = ezdxfJson(QStringLiteral(R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
print(json.dumps([[d.dxf.handle, d.dxf.dimstyle] for d in doc.entitydb.values() if d.dxftype() == 'DIMENSION']))
)"), {path}, &ok).toArray();
  ASSERT_TRUE(ok);
  ASSERT_EQ(dims.size(), 6);
  for (const QJsonValue& v : dims) {
    OdDbObjectPtr o = db->getOdDbObjectId(OdDbHandle(OdString(v[0].toString()))).openObject();
    auto* d = OdDbDimension::cast(o).get();
    ASSERT_TRUE(d) << v[0].toString().toStdString();
    OdDbObjectPtr st = d->dimensionStyle().openObject();
    auto* style = OdDbDimStyleTableRecord::cast(st).get();
    ASSERT_TRUE(style);
    EXPECT_EQ(style->getName().qstring(), v[1].toString());
    EXPECT_EQ(d->dimtxt(), style->dimtxt());
    EXPECT_EQ(d->dimupt(), v[0].toString() == QLatin1String("1EA") || v[0].toString() == QLatin1String("1FC") || style->dimupt());
  }

  const OdDbObjectId dimId = db->getOdDbObjectId(OdDbHandle(OdString("1EA")));
  OdDbObjectId annotative;
  {
    OdDbObjectPtr t = db->getDimStyleTableId().openObject();
    annotative = static_cast<OdDbSymbolTable*>(t.get())->getAt("Annotative");
  }
  ASSERT_FALSE(annotative.isNull());
  {
    OdDbObjectPtr o = dimId.openObject(OdDb::kForWrite);
    auto* d = OdDbDimension::cast(o).get();
    OdDbDimStyleTableRecordPtr scratch = OdDbDimStyleTableRecord::createObject();
    d->getDimstyleData(scratch.get());
    EXPECT_TRUE(scratch->dimupt());
    scratch->setDimtxt(d->dimtxt() * 2);
    d->setDimstyleData(scratch.get());
    std::vector<dv::Id> ids;
    for (const auto& e : OdDbDimStyleOverrides::get(d)) ids.push_back(e.id);
    EXPECT_EQ(ids, (std::vector<dv::Id>{dv::k_dimupt, dv::k_dimtxt}));
    OdDbDimStyleOverrides::remove(d, dv::k_dimtxt);
    d->setDimensionStyle(annotative);
    EXPECT_THROW(d->setDimensionStyle(db->getTEXTSTYLE()), OdError);
  }
  const QByteArray out = save(db.get());
  // The dimension, and the block it draws anew (its old entities go, new
  // ones come); no other dimension.
  const QStringList changed = changedRecords(bytes, out);
  ASSERT_FALSE(changed.isEmpty());
  EXPECT_EQ(changed.first(), QStringLiteral("#1EA"));
  for (const char* other : {"#182", "#18C", "#19A", "#1AB", "#1FC"}) EXPECT_FALSE(changed.contains(QLatin1String(other)));
  const QString edited = QDir::temp().filePath(QStringLiteral("zq_dimstyle_%1.dxf").arg(QCoreApplication::applicationPid()));
  QFile f(edited);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(out);
  f.close();
  const QJsonArray after = ezdxfJson(QStringLiteral(R"(
import ezdxf, sys, json
print(json.dumps([ezdxf.readfile(sys.argv[1]).entitydb['1EA'].dxf.dimstyle]))
)"), {edited}, &ok).toArray();
  QFile::remove(edited);
  ASSERT_TRUE(ok);
  EXPECT_EQ(after[0].toString(), QStringLiteral("Annotative"));

  // A new dimension is written whole (without a block: readers draw it).
  OdDbRotatedDimensionPtr dim = OdDbRotatedDimension::createObject();
  dim->setXLine1Point(OdGePoint3d(1, 2, 0));
  dim->setXLine2Point(OdGePoint3d(4, 6, 0));
  {
    OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
    static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(dim.get());
  }
  QString error;
  const QByteArray withNew = OdDxf::writeDrawing(db.get(), &error);
  EXPECT_FALSE(withNew.isEmpty()) << error.toStdString();
  EXPECT_TRUE(withNew.contains(dim->objectId().getHandle().ascii().qstring().toLatin1()));
}

// A variable the file's release has no group code for is refused when
// saving, with a sentence naming it; nothing is written.
TEST(DxfDimStyleEdit, VariableTooNewForTheReleaseIsRefused) {
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(QStringLiteral("libredwg__test__test-data__2000__TS1.dxf")));  // AC1015
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  {
    OdDbObjectPtr s = db->getDIMSTYLE().openObject(OdDb::kForWrite);
    OdDbDimStyleTableRecord::cast(s)->setDimfxl(3.0);  // came with AC1021
  }
  QString error;
  EXPECT_TRUE(OdDxf::writeDrawing(db.get(), &error).isEmpty());
  EXPECT_TRUE(error.contains(QStringLiteral("DIMFXL cannot be written to release AC1015"))) << error.toStdString();
  // Set back, the drawing saves as it was read.
  {
    OdDbObjectPtr s = db->getDIMSTYLE().openObject(OdDb::kForWrite);
    OdDbDimStyleTableRecord::cast(s)->setDimfxl(1.0);
  }
  EXPECT_EQ(save(db.get()), bytes);
}

}  // namespace
