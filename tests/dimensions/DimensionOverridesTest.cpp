// Style overrides: set through a row, saved, read back by ezdxf from the
// dimension's extended data (the style untouched); set back to the style's
// value, the pair is gone; the listing prints what differs, in the
// variables' order, and unknown pairs are kept in place.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbDimension.h"
#include "OdResBuf.h"
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QCoreApplication>

namespace {

namespace dv = OdDbDimVar;

const char* kSample = ZQ_SAMPLES_DIR "/libredwg__test__test-data__2000__TS1.dxf";
const char* kAligned = "18C";

// The DSTYLE pairs of a dimension and its style's DIMASZ and DIMTXT, as ezdxf reads them.
const char* kOverridesView = R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
dim = doc.entitydb[sys.argv[2]]
pairs = []
if dim.has_xdata('ACAD'):
    vals = [t.value for t in dim.get_xdata('ACAD')]
    if 'DSTYLE' in vals:
        i = vals.index('DSTYLE') + 2
        while vals[i] != '}':
            pairs.append([vals[i], vals[i + 1]])
            i += 2
style = doc.dimstyles.get(dim.dxf.dimstyle)
print(json.dumps({'pairs': pairs, 'dimasz': style.dxf.dimasz, 'dimtxt': style.dxf.dimtxt}))
)";

class DimensionOverridesTest : public ZqDrawingTest {
 protected:
  void load() {
    QFile f(QString::fromLatin1(kSample));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    QString error;
    drawing = OdDxf::readDrawing(f.readAll(), error);
    ASSERT_TRUE(drawing) << error.toStdString();
  }
  OdDbObjectId dimension(const char* handle) { return drawing->getOdDbObjectId(OdDbHandle(OdString(handle))); }
  int setRow(const char* handle, const char* category, const char* name, const CZqVariant& value) {
    OdDbObjectPtr o = dimension(handle).openObject(OdDb::kForWrite);
    auto rows = zqRowsOf(o.get());
    return zqRow(rows.get(), category, name)->SetValue(o.get(), value, CZqVariant());
  }
  // Saves, then reads the dimension's pairs back with ezdxf.
  QJsonObject savedView(const char* handle) {
    const QString path = QDir::temp().filePath(QStringLiteral("zq_dimovr_%1.dxf").arg(QCoreApplication::applicationPid()));
    QString error;
    EXPECT_TRUE(OdDxf::writeDrawing(drawing.get(), path, error)) << error.toStdString();
    int code = 0;
    const QString out = zqRunPython(QString::fromLatin1(kOverridesView), {path, QString::fromLatin1(handle)}, &code);
    QFile::remove(path);
    EXPECT_EQ(code, 0) << out.toStdString();
    return QJsonDocument::fromJson(out.toUtf8()).object();
  }
  OdDbDatabasePtr drawing;
};

TEST_F(DimensionOverridesTest, SetThenClearReachesOtherReaders) {
  load();
  double styleArrow = 0;
  {
    OdDbObjectPtr o = dimension(kAligned).openObject();
    styleArrow = std::get<double>(OdDbDimension::cast(o)->styleDimVar(dv::k_dimasz));
  }
  const double fileStyleArrow = savedView(kAligned)["dimasz"].toDouble();
  ASSERT_EQ(setRow(kAligned, "Lines && Arrows", "Arrow size", CZqVariant(styleArrow * 3, true)), 5100);
  QJsonObject view = savedView(kAligned);
  ASSERT_EQ(view["pairs"].toArray().size(), 1);
  EXPECT_EQ(view["pairs"][0][0].toInt(), 41);
  EXPECT_DOUBLE_EQ(view["pairs"][0][1].toDouble(), styleArrow * 3);
  EXPECT_DOUBLE_EQ(view["dimasz"].toDouble(), fileStyleArrow);  // the style is untouched
  // Back to the style's value: no override is left.
  ASSERT_EQ(setRow(kAligned, "Lines && Arrows", "Arrow size", CZqVariant(styleArrow, true)), 5100);
  view = savedView(kAligned);
  EXPECT_TRUE(view["pairs"].toArray().isEmpty());
}

// Pairs of codes no variable has stay where they were, in order, around
// the ones an edit adds.
TEST_F(DimensionOverridesTest, UnknownPairsAreKeptInOrder) {
  load();
  {
    OdDbObjectPtr o = dimension(kAligned).openObject(OdDb::kForWrite);
    OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("ACAD"));
    OdResBuf* tail = head.get();
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("DSTYLE")).get());
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdControlString, OdString("{")).get());
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(999)).get());
    tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(7)).get());
    tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdControlString, OdString("}")).get());
    o->setXData(head.get());
  }
  ASSERT_EQ(setRow(kAligned, "Text", "Text height", CZqVariant(0.5, true)), 5100);
  const QJsonArray pairs = savedView(kAligned)["pairs"].toArray();
  ASSERT_EQ(pairs.size(), 2);
  EXPECT_EQ(pairs[0][0].toInt(), 999);
  EXPECT_EQ(pairs[0][1].toInt(), 7);
  EXPECT_EQ(pairs[1][0].toInt(), 140);
}

// The listing prints each differing variable once, in the variables'
// order whatever order the overrides were made in; the three-point angle
// prints none.
TEST_F(DimensionOverridesTest, ListingPrintsDifferencesInVariableOrder) {
  const auto labelsAfterHeader = [&](const OdDbObjectId& id) {
    std::vector<QString> out;
    bool on = false;
    for (const auto& l : info(id)) {
      if (on) out.push_back(l.label);
      on = on || l.label == QLatin1String("Dimension style overrides");
    }
    return out;
  };
  OdDbRotatedDimensionPtr rotated = OdDbRotatedDimension::createObject();
  const OdDbObjectId id = addToModelSpace(rotated.get());
  EXPECT_TRUE(labelsAfterHeader(id).empty());
  EXPECT_EQ(set(id, "Text", "Text height", CZqVariant(0.4, true)), 5100);
  EXPECT_EQ(set(id, "Lines && Arrows", "DimLine LColor", CZqVariant(OdCmColor::fromIndex(1))), 5100);
  EXPECT_EQ(set(id, "Lines && Arrows", "Arrow size", CZqVariant(0.3, true)), 5100);
  EXPECT_EQ(labelsAfterHeader(id), (std::vector<QString>{"DIMASZ", "DIMCLRD", "DIMTXT"}));

  OdDb3PointAngularDimensionPtr angle = OdDb3PointAngularDimension::createObject();
  const OdDbObjectId other = addToModelSpace(angle.get());
  EXPECT_EQ(set(other, "Text", "Text height", CZqVariant(0.4, true)), 5100);
  const auto lines = info(other);
  EXPECT_EQ(lines.back().label, QString("DimensionStyle"));
}

}  // namespace
