// Associative dimensions: what each dimension of a drawing with DIMASSOC
// objects is attached to, against a plain reading of the file's tags; the
// listing's lines; and an edit of a defining point, which keeps the
// association in the saved drawing.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbDimension.h"
#include "DbSymbolTable.h"
#include <QFile>
#include <QTemporaryDir>

namespace {

const char* const kSample = "libredwg__test__test-data__2000__TS1.dxf";

// Per DIMASSOC object: the dimension it names, its 90 flags and per
// reference the object snap (72) and the last entity handle (331).
const char* kAssocView = R"(
import sys
lines = open(sys.argv[1], encoding='utf-8', errors='replace').read().splitlines()
records, cur = [], None
for i in range(0, len(lines) - 1, 2):
    code, value = int(lines[i]), lines[i + 1].strip()
    if code == 0:
        cur = []
        records.append((value, cur))
    elif cur is not None:
        cur.append((code, value))
for kind, tags in records:
    if kind != 'DIMASSOC':
        continue
    at = tags.index((100, 'AcDbDimAssoc'))
    dim, flags, refs = tags[at + 1][1], 0, []
    for code, value in tags[at + 2:]:
        if code == 90 and not refs: flags = int(value)
        elif code == 1: refs.append(['', ''])
        elif code == 72 and refs: refs[-1][0] = value
        elif code == 331 and refs: refs[-1][1] = value.upper()
    print(dim, flags, *[s + ':' + h for s, h in refs])
)";

class DimensionAssociation : public ZqDrawingTest {
 protected:
  OdDbDatabasePtr load(QByteArray* bytes = nullptr) {
    QFile f(QString(ZQ_SAMPLES_DIR "/") + kSample);
    if (!f.open(QIODevice::ReadOnly)) return {};
    const QByteArray data = f.readAll();
    if (bytes) *bytes = data;
    QString error;
    OdDbDatabasePtr db = OdDxf::readDrawing(data, error);
    EXPECT_TRUE(db) << error.toStdString();
    return db;
  }
  static std::vector<OdDbObjectId> dimensions(OdDbDatabase* db) {
    std::vector<OdDbObjectId> out;
    OdDbObjectPtr t = db->getBlockTableId().openObject();
    for (const OdDbObjectId& b : static_cast<OdDbSymbolTable*>(t.get())->recordIds()) {
      OdDbObjectPtr block = b.openObject();
      for (const OdDbObjectId& e : static_cast<OdDbBlockTableRecord*>(block.get())->entityIds())
        if (e.openObject()->isKindOf(OdDbDimension::desc())) out.push_back(e);
    }
    return out;
  }
  static QStringList listing(OdDbDatabase* db, const OdDbObjectId& id) {
    OdDbObjectPtr o = id.openObject();
    CZqPrintInfoContext context(db);
    zqInfoFor(o.get())->PrintObjectInfo(o.get(), &context);
    QStringList out;
    for (const auto& line : context.Lines()) out << line.label + " = " + line.text;
    return out;
  }
};

TEST_F(DimensionAssociation, EveryDimensionIsAttachedAsItsDimAssocSays) {
  OdDbDatabasePtr db = load();
  if (!db) GTEST_SKIP() << "sample drawing missing";
  int code = 0;
  const auto expected = zqPythonRowsByHandle(QString::fromLatin1(kAssocView), {QString(ZQ_SAMPLES_DIR "/") + kSample}, &code);
  ASSERT_EQ(code, 0);
  ASSERT_FALSE(expected.isEmpty());
  int associative = 0;
  for (const OdDbObjectId& id : dimensions(db.get())) {
    const QString handle = id.getHandle().ascii().qstring();
    SCOPED_TRACE(handle.toStdString());
    OdDbObjectPtr o = id.openObject();
    const auto* dim = OdDbDimension::cast(o).get();
    const QStringList want = expected.value(handle);
    EXPECT_EQ(dim->isAssociative(), !want.isEmpty());
    if (want.isEmpty()) continue;
    ++associative;
    // The references follow the flag bits in order: the n-th reference is
    // the point of the n-th set bit.
    const int flags = want.value(1).toInt();  // after the handle
    std::vector<int> points;
    for (int bit = 0; bit < 4; ++bit)
      if (flags & (1 << bit)) points.push_back(bit);
    const auto& refs = dim->association().points;
    ASSERT_EQ(refs.size(), size_t(want.size() - 2));
    for (size_t k = 0; k < refs.size(); ++k) {
      EXPECT_EQ(refs[k].point, points.at(k));
      EXPECT_EQ(QString("%1:%2").arg(refs[k].osnap).arg(QString::number(refs[k].handle, 16).toUpper()), want[int(k) + 2]);
      EXPECT_FALSE(refs[k].object.isNull());
    }
  }
  EXPECT_EQ(associative, expected.size());
}

// The diametric dimension 1EA follows the center of the circle 1E9 with its
// second point; the aligned 18C has no association.
TEST_F(DimensionAssociation, ListingSaysWhatTheDimensionFollows) {
  OdDbDatabasePtr db = load();
  if (!db) GTEST_SKIP() << "sample drawing missing";
  const QStringList diametric = listing(db.get(), db->getOdDbObjectId(OdDbHandle(0x1EA)));
  EXPECT_TRUE(diametric.contains("association = associative")) << diametric.join('\n').toStdString();
  EXPECT_TRUE(diametric.contains("2nd defining point attached to = center of CIRCLE 1E9"));
  const QStringList aligned = listing(db.get(), db->getOdDbObjectId(OdDbHandle(0x18C)));
  EXPECT_TRUE(aligned.contains("association = not associative"));
  for (const QString& line : aligned) EXPECT_FALSE(line.contains("attached to"));
}

// Moving a defining point keeps the association: the saved dimension still
// names its DIMASSOC object, which still names the dimension.
TEST_F(DimensionAssociation, EditOfADefiningPointKeepsTheAssociation) {
  QByteArray bytes;
  OdDbDatabasePtr db = load(&bytes);
  if (!db) GTEST_SKIP() << "sample drawing missing";
  const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(0x1EA));
  {
    OdDbObjectPtr o = id.openObject(OdDb::kForWrite);
    auto* dim = OdDbDiametricDimension::cast(o).get();
    ASSERT_NE(dim, nullptr);
    dim->setChordPoint(dim->chordPoint() + OdGeVector3d(1, 0, 0));
    EXPECT_TRUE(dim->isAssociative());
  }
  EXPECT_TRUE(listing(db.get(), id).contains("association = associative"));
  QString error;
  const QByteArray saved = OdDxf::writeDrawing(db.get(), &error);
  ASSERT_FALSE(saved.isEmpty()) << error.toStdString();
  QTemporaryDir dir;
  const QString path = dir.filePath("assoc-edited.dxf");
  QFile out(path);
  ASSERT_TRUE(out.open(QIODevice::WriteOnly));
  out.write(saved);
  out.close();
  int code = 0;
  const QString seen = zqRunPython(QStringLiteral(R"(
import ezdxf, sys
doc = ezdxf.readfile(sys.argv[1])
dim = doc.entitydb['1EA']
for h in dim.reactors.get():
    o = doc.entitydb.get(h)
    print(h, o.dxftype() if o else None)
)"),
                                   {path}, &code);
  ASSERT_EQ(code, 0) << seen.toStdString();
  EXPECT_EQ(seen.trimmed(), QString("1FB DIMASSOC"));
  OdDbDatabasePtr again = OdDxf::readDrawing(saved, error);
  ASSERT_TRUE(again) << error.toStdString();
  OdDbObjectPtr o = again->getOdDbObjectId(OdDbHandle(0x1EA)).openObject();
  EXPECT_TRUE(OdDbDimension::cast(o)->isAssociative());
}

}  // namespace
