// Measurements of every kind from geometry laid out in a rotated, shifted
// UCS and computed here; degenerate points; and every dimension of the
// sample drawings: its own kind's rows, its measurement against the value
// the writing program kept (read by ezdxf), and a byte-identical round trip.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include "DbDimension.h"
#include "DbSymbolTable.h"
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>
#include <functional>

namespace {

constexpr double kDeg = OdaPI / 180.0;

class DimensionMeasureTest : public ZqDrawingTest {
 protected:
  // A point given in the rotated UCS, in WCS: origin (10,-5,2), X axis at 30 degrees.
  static OdGePoint3d wcs(double x, double y) {
    const double a = 30 * kDeg;
    return OdGePoint3d(10 + x * std::cos(a) - y * std::sin(a), -5 + x * std::sin(a) + y * std::cos(a), 2);
  }
};

struct MeasureCase {
  const char* name;
  std::function<OdDbDimensionPtr(OdGePoint3d (*)(double, double))> make;
  double expected;
};

const MeasureCase kMeasureCases[] = {
    {"Aligned3_4_5",
     [](auto w) {
       auto d = OdDbAlignedDimension::createObject();
       d->setXLine1Point(w(1, 2));
       d->setXLine2Point(w(4, 6));
       return OdDbDimensionPtr(d);
     },
     5.0},
    // Along the UCS X axis (30 degrees in the plane): the X difference only.
    {"RotatedAlongUcsX",
     [](auto w) {
       auto d = OdDbRotatedDimension::createObject();
       d->setXLine1Point(w(1, 2));
       d->setXLine2Point(w(4, 6));
       d->setRotation(30 * kDeg);
       return OdDbDimensionPtr(d);
     },
     3.0},
    {"ThreePointRightAngle",
     [](auto w) {
       auto d = OdDb3PointAngularDimension::createObject();
       d->setCenterPoint(w(0, 0));
       d->setXLine1Point(w(2, 0));
       d->setXLine2Point(w(0, 3));
       d->setArcPoint(w(1, 1));
       return OdDbDimensionPtr(d);
     },
     90 * kDeg},
    {"ThreePointReflexSide",
     [](auto w) {
       auto d = OdDb3PointAngularDimension::createObject();
       d->setCenterPoint(w(0, 0));
       d->setXLine1Point(w(2, 0));
       d->setXLine2Point(w(0, 3));
       d->setArcPoint(w(-1, -1));
       return OdDbDimensionPtr(d);
     },
     270 * kDeg},
    // Lines y = 0 and y = x (sqrt 3) meet at the origin; the arc point
    // picks the 120 degree sector between the left and the upper ray.
    {"TwoLineSectorOfTheArcPoint",
     [](auto w) {
       auto d = OdDb2LineAngularDimension::createObject();
       d->setXLine1Start(w(1, 0));
       d->setXLine1End(w(3, 0));
       d->setXLine2Start(w(1, std::sqrt(3.0)));
       d->setXLine2End(w(2, 2 * std::sqrt(3.0)));
       d->setArcPoint(w(-1, 1.5));
       return OdDbDimensionPtr(d);
     },
     120 * kDeg},
    {"ArcLengthQuarter",
     [](auto w) {
       auto d = OdDbArcDimension::createObject();
       d->setCenterPoint(w(0, 0));
       d->setXLine1Point(w(2, 0));
       d->setXLine2Point(w(0, 2));
       d->setArcPoint(w(3, 3));
       return OdDbDimensionPtr(d);
     },
     OdaPI},
    {"ArcLengthLongWay",
     [](auto w) {
       auto d = OdDbArcDimension::createObject();
       d->setCenterPoint(w(0, 0));
       d->setXLine1Point(w(2, 0));
       d->setXLine2Point(w(0, 2));
       d->setArcPoint(w(-3, -3));
       return OdDbDimensionPtr(d);
     },
     3 * OdaPI},
    {"Radial",
     [](auto w) {
       auto d = OdDbRadialDimension::createObject();
       d->setCenter(w(1, 1));
       d->setChordPoint(w(4, 5));
       return OdDbDimensionPtr(d);
     },
     5.0},
    {"RadialLarge",
     [](auto w) {
       auto d = OdDbRadialDimensionLarge::createObject();
       d->setCenter(w(-6, 0));
       d->setChordPoint(w(0, 8));
       d->setOverrideCenter(w(-1, 0));
       return OdDbDimensionPtr(d);
     },
     10.0},
    {"Diametric",
     [](auto w) {
       auto d = OdDbDiametricDimension::createObject();
       d->setFarChordPoint(w(-3, -4));
       d->setChordPoint(w(3, 4));
       return OdDbDimensionPtr(d);
     },
     10.0},
    {"OrdinateY",
     [](auto w) {
       auto d = OdDbOrdinateDimension::createObject();
       d->setOrigin(w(0, 0));
       d->setDefiningPoint(w(3, 4));
       d->setHorizontalRotation(30 * kDeg);
       return OdDbDimensionPtr(d);
     },
     4.0},
};

class DimensionMeasure : public DimensionMeasureTest, public ::testing::WithParamInterface<MeasureCase> {};

// The measurement row and the value the file keeps both follow the points.
TEST_P(DimensionMeasure, MeasuresTheGeometry) {
  useRotatedUcs();
  OdDbDimensionPtr d = GetParam().make(&DimensionMeasureTest::wcs);
  EXPECT_NEAR(d->measurement(), GetParam().expected, 1e-9);
  EXPECT_NEAR(d->cachedMeasurement(), GetParam().expected, 1e-9);
  const OdDbObjectId id = addToModelSpace(d.get());
  const char* row = "Measurement";
  EXPECT_NEAR(get(id, "Text", row).GetDouble(), GetParam().expected, 1e-9);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DimensionMeasure, ::testing::ValuesIn(kMeasureCases),
                         [](const auto& info) { return std::string(info.param.name); });

// Degenerate points: the measurement is the file's, never NaN, and the
// listing says the dimension cannot be measured.
TEST_F(DimensionMeasureTest, DegeneratePointsKeepTheFilesValue) {
  const std::function<OdDbDimensionPtr()> makers[] = {
      [] {
        auto d = OdDbAlignedDimension::createObject();
        d->setXLine1Point(OdGePoint3d(1, 1, 0));
        d->setXLine2Point(OdGePoint3d(1, 1, 0));
        return OdDbDimensionPtr(d);
      },
      [] {
        auto d = OdDb3PointAngularDimension::createObject();
        d->setCenterPoint(OdGePoint3d(0, 0, 0));
        d->setXLine1Point(OdGePoint3d(1, 0, 0));
        d->setXLine2Point(OdGePoint3d(3, 0, 0));
        return OdDbDimensionPtr(d);
      },
      [] {
        auto d = OdDb2LineAngularDimension::createObject();
        d->setXLine1Start(OdGePoint3d(0, 0, 0));
        d->setXLine1End(OdGePoint3d(1, 0, 0));
        d->setXLine2Start(OdGePoint3d(0, 1, 0));
        d->setXLine2End(OdGePoint3d(1, 1, 0));
        return OdDbDimensionPtr(d);
      },
      [] {
        auto d = OdDbArcDimension::createObject();
        d->setCenterPoint(OdGePoint3d(2, 2, 0));
        d->setXLine1Point(OdGePoint3d(2, 2, 0));
        return OdDbDimensionPtr(d);
      },
      [] { return OdDbDimensionPtr(OdDbDiametricDimension::createObject()); },
  };
  for (const auto& make : makers) {
    OdDbDimensionPtr d = make();
    d->setCachedMeasurement(7.25);
    const OdDbObjectId id = addToModelSpace(d.get());
    SCOPED_TRACE(d->isA()->name().toStdString());
    EXPECT_EQ(get(id, "Text", "Measurement").GetDouble(), 7.25);
    const auto lines = info(id);
    const auto* line = infoLine(lines, "measurement");
    ASSERT_NE(line, nullptr);
    EXPECT_TRUE(line->text.contains("cannot be measured"));
  }
}

// ---------------------------------------------------------------------------
// Sample drawings

const char* const kSamples[] = {
    "libredwg__test__test-data__2000__TS1.dxf",     "libredwg__test__test-data__example_2000.dxf",
    "libredwg__test__test-data__example_2018.dxf",  "libredwg__test__test-data__example_r14.dxf",
    "libredwg__test__test-data__r2.6__dim.dxf",     "libredwg__test__test-data__2013__gh109_1.dxf",
    "netDxf__TestDxfDocument__sample.dxf",          "ezdxf__examples_dxf__uncommon.dxf",
    "libredwg__test__test-data__2000__entities-2d.dxf"};

// Every dimension ezdxf finds: handle, record type, kind and the
// measurement the writer kept (null when none).
const char* kDimensionsView = R"(
import ezdxf, sys, json
doc = ezdxf.readfile(sys.argv[1])
out = []
for e in doc.entitydb.values():
    if e.dxftype() in ('DIMENSION', 'ARC_DIMENSION', 'LARGE_RADIAL_DIMENSION') and e.dxf.owner is not None:
        m = e.dxf.get('actual_measurement')
        out.append([e.dxf.handle, e.dxftype(), e.dxf.get('dimtype', 0) & 15, m])
print(json.dumps(out))
)";

class DimensionSamples : public ZqDrawingTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(DimensionSamples, ListWithTheirKindAndRoundTripUnchanged) {
  const QString path = QString(ZQ_SAMPLES_DIR "/") + GetParam();
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray bytes = f.readAll();
  QString error;
  OdDbDatabasePtr drawing = OdDxf::readDrawing(bytes, error);
  ASSERT_TRUE(drawing) << error.toStdString();
  int code = 0;
  const QString out = zqRunPython(QString::fromLatin1(kDimensionsView), {path}, &code);
  ASSERT_EQ(code, 0) << out.toStdString();
  const QJsonArray dims = QJsonDocument::fromJson(out.toUtf8()).array();
  ASSERT_FALSE(dims.isEmpty());
  // Drawings without handles get ezdxf's own: those are matched by order.
  std::vector<OdDbObjectId> ours;
  {
    OdDbObjectPtr t = drawing->getBlockTableId().openObject();
    for (const OdDbObjectId& b : static_cast<OdDbSymbolTable*>(t.get())->recordIds()) {
      OdDbObjectPtr block = b.openObject();
      for (const OdDbObjectId& e : static_cast<OdDbBlockTableRecord*>(block.get())->entityIds()) {
        OdDbObjectPtr o = e.openObject();
        if (o->isKindOf(OdDbDimension::desc())) ours.push_back(e);
      }
    }
  }
  EXPECT_EQ(ours.size(), size_t(dims.size()));
  for (const QJsonValue& v : dims) {
    const QString handle = v[0].toString();
    SCOPED_TRACE(handle.toStdString());
    OdDbObjectPtr obj = drawing->getOdDbObjectId(OdDbHandle(OdString(handle))).openObject();
    const auto* dim = OdDbDimension::cast(obj).get();
    if (!dim) continue;  // a handle ezdxf made up
    // The kind's own provider and rows: its measurement row answers.
    CZqPropertyBase* pe = zqProviderFor(obj.get());
    ASSERT_NE(pe, nullptr);
    EXPECT_NE(pe->isA()->name().qstring(), QString("CZqDimensionPE"));
    auto rows = zqRowsOf(obj.get());
    const bool ordinateOrTwoArrow = zqRow(rows.get(), "Text", "Measurement") != nullptr;
    EXPECT_TRUE(ordinateOrTwoArrow || dim->isKindOf(OdDb2LineAngularDimension::desc()) ||
                dim->isKindOf(OdDb3PointAngularDimension::desc()));
    EXPECT_TRUE(std::isfinite(dim->measurement()));
    // The writer's value where it kept one (ordinates: the size of the
    // distance along the axis).
    if (!v[3].isNull()) {
      double measured = 0;
      if (dim->measure(measured)) {
        const double kept = std::fabs(v[3].toDouble());
        EXPECT_NEAR(measured, kept, 1e-6 * std::max(1.0, kept)) << dim->isA()->name().toStdString();
      }
    }
    // Its listing prints without failing and names its style.
    CZqPrintInfoContext context(drawing.get());
    zqInfoFor(obj.get())->PrintObjectInfo(obj.get(), &context);
    bool named = false;
    for (const auto& line : context.Lines()) named = named || line.label == QLatin1String("DimensionStyle");
    EXPECT_TRUE(named);
  }
  const QByteArray again = OdDxf::writeDrawing(drawing.get(), &error);
  EXPECT_TRUE(again == bytes) << error.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Samples, DimensionSamples, ::testing::ValuesIn(kSamples), [](const auto& info) {
  std::string s = info.param;
  for (char& c : s)
    if (!isalnum(static_cast<unsigned char>(c))) c = '_';
  return s;
});

}  // namespace
