// Length and area of the lightweight polylines of real drawings, as the
// drawing mapper reads them (their vertices are checked against ezdxf's
// reading with the mapper), against the figure sampled from first principles.
#include "ZqTestSupport.h"
#include "ZqReferenceGeometry.h"
#include "DxfDatabase.h"
#include <cmath>

namespace {

class PolylineSamplesTest : public ZqDrawingTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(PolylineSamplesTest, LengthAndAreaAgreeWithTheSampledFigure) {
  QString error;
  db = OdDxf::readDrawing(QString(ZQ_SAMPLES_DIR) + "/" + GetParam(), error);
  ASSERT_TRUE(db) << error.toStdString();
  OdDbObjectPtr blocks = db->getBlockTableId().openObject();
  int compared = 0;
  for (const OdDbObjectId& block : static_cast<OdDbBlockTable*>(blocks.get())->recordIds()) {
    OdDbObjectPtr btr = block.openObject();
    for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(btr.get())->entityIds()) {
      OdDbPolylinePtr pl = OdDbPolyline::cast(id.openObject().get());
      if (!pl) continue;
      SCOPED_TRACE(id.getHandle().ascii().toStdString());
      std::vector<ZqRefVertex> v;
      for (unsigned i = 0; i < pl->numVerts(); ++i) {
        OdGePoint2d p;
        pl->getPointAt(i, p);
        v.push_back({p.x, p.y, pl->getBulgeAt(i)});
      }
      const auto ref = zqRefPolylinePoints(v, pl->isClosed());
      pl.release();
      const double length = zqRefChainLength(ref), area = v.size() < 2 ? 0.0 : zqRefChainArea(ref);
      EXPECT_NEAR(get(id, "Geometry", "Length").GetDouble(), length, 1e-6 * std::max(1.0, length));
      EXPECT_NEAR(get(id, "Geometry", "Area", CZqVariant(1111.0, false)).GetDouble(), area, 1e-6 * std::max(1.0, area));
      ++compared;
    }
  }
  EXPECT_GT(compared, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Samples, PolylineSamplesTest,
    ::testing::Values("ezdxf__examples_dxf__VP4.dxf", "ezdxf__examples_dxf__text.dxf",
                      "ezdxf__examples_dxf__uncommon.dxf", "libredwg__test__test-data__2000__TS1.dxf",
                      "libredwg__test__test-data__2000__entities-2d.dxf", "libredwg__test__test-data__2004__Surface.dxf",
                      "libredwg__test__test-data__2007__Donut.dxf", "libredwg__test__test-data__2013__gh109_1.dxf",
                      "libredwg__test__test-data__example_2000.dxf", "libredwg__test__test-data__example_r14.dxf",
                      "netDxf__TestDxfDocument__sample.dxf"),
    [](const auto& info) {
      std::string name = info.param;
      for (char& ch : name)
        if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
      return name;
    });

}  // namespace
