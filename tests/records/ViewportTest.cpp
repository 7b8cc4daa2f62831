// Paper-space viewports: the rows of a constructed viewport (centre in a
// rotated UCS, scales, flags) read back from the object, the refusals, and
// every viewport of the sample drawings against ezdxf's reading.
#include "ZqTestSupport.h"
#include "../host/ZqpropsRun.h"
#include "DbViewport.h"
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

namespace {

CZqVariant num(double v) { return CZqVariant(v, true); }
CZqVariant choose(int tag) { return CZqVariant(CZqVariantCollectionElement(CZqVariant("x"), CZqVariant(int32_t(tag)))); }

class ViewportTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addViewport(int number) {
    OdDbViewportPtr v = OdDbViewport::createObject();
    v->setCenterPoint({100, 50, 0});
    v->setWidth(80);
    v->setHeight(40);
    v->setViewHeight(400);  // 1:10
    v->setNumber(number);
    return addToModelSpace(v.get());
  }
  OdDbViewportPtr open(const OdDbObjectId& id) { return openAs<OdDbViewport>(id); }
};

TEST_F(ViewportTest, RowsShowAndEditTheViewport) {
  useRotatedUcs();
  const OdDbObjectId id = addViewport(2);
  const OdGePoint3d c = toUcs(OdGePoint3d(100, 50, 0));
  EXPECT_NEAR(get(id, "Geometry", "Center X").GetDouble(), c.x, 1e-9);
  EXPECT_NEAR(get(id, "Geometry", "Center Y").GetDouble(), c.y, 1e-9);
  EXPECT_EQ(get(id, "Misc", "Standard scale").GetCollection().GetCurrent(), 6);  // "1:10" after "Custom" and five others
  EXPECT_NEAR(get(id, "Misc", "Custom scale").GetDouble(), 0.1, 1e-12);

  struct Edit {
    const char* row;
    CZqVariant value;
    double viewHeight;  // expected model-space height shown
    int flags;
  } const edits[] = {
      {"Standard scale", choose(11), 40 / 0.02, 0},         // 1:50
      {"Custom scale", num(2.5), 40 / 2.5, 0},
      {"Standard scale", choose(0), 40 / 2.5, 0},          // Custom: the scale stays
      {"On", choose(0), 40 / 2.5, OdDbViewport::kViewportOff},
      {"Display locked", choose(1), 40 / 2.5, OdDbViewport::kViewportOff | OdDbViewport::kZoomLocked},
  };
  for (const Edit& e : edits) {
    SCOPED_TRACE(e.row);
    ASSERT_EQ(set(id, "Misc", e.row, e.value), 5100);
    EXPECT_NEAR(open(id)->viewHeight(), e.viewHeight, 1e-9);
    EXPECT_EQ(open(id)->statusFlags(), e.flags);
  }
  EXPECT_EQ(set(id, "Misc", "Shade plot", choose(2)), 5100);
  EXPECT_EQ(open(id)->shadePlot(), 2);
}

TEST_F(ViewportTest, RefusalsLeaveTheViewportAsItWas) {
  const OdDbObjectId sheet = addViewport(1), view = addViewport(2);
  struct Refusal {
    OdDbObjectId id;
    const char* category;
    const char* row;
    CZqVariant value;
  } const refusals[] = {
      {sheet, "Misc", "On", choose(0)},
      {sheet, "Misc", "Display locked", choose(1)},
      {view, "Misc", "Custom scale", num(0.0)},
      {view, "Misc", "Custom scale", num(-2.0)},
      {view, "Geometry", "Width", num(0.0)},
      {view, "Misc", "Standard scale", choose(99)},
      {view, "Misc", "Shade plot", choose(7)},
  };
  for (const Refusal& r : refusals) {
    SCOPED_TRACE(r.row);
    const size_t messages = messageCount();
    EXPECT_EQ(set(r.id, r.category, r.row, r.value), -5001);
    EXPECT_EQ(messageCount(), messages + 1);
    EXPECT_EQ(open(r.id)->statusFlags(), 0);
    EXPECT_EQ(open(r.id)->viewHeight(), 400);
    EXPECT_EQ(open(r.id)->width(), 80);
  }
}

// Every viewport of the samples, paper space included, is listed by its
// own provider with ezdxf's width, height and scale.
TEST(ViewportSamples, EveryViewportListsWithItsOwnRows) {
  const char* script = R"(
import sys, ezdxf
doc = ezdxf.readfile(sys.argv[1])
for layout in doc.layouts:
    for e in layout.query('VIEWPORT'):
        print(e.dxf.handle, e.dxf.width, e.dxf.height, e.dxf.get('view_height', 0))
)";
  int seen = 0;
  for (const QString& name : QDir(ZQ_SAMPLES_DIR).entryList({"*.dxf"}, QDir::Files)) {
    const QString path = QString(ZQ_SAMPLES_DIR) + "/" + name;
    int code = 0;
    const QMap<QString, QStringList> expected = zqPythonRowsByHandle(script, {path}, &code);
    if (code != 0 || expected.isEmpty()) continue;
    SCOPED_TRACE(name.toStdString());
    const ProgramRun run = zqprops({path, "--space", "all", "--type", "VIEWPORT", "--json"});
    ASSERT_EQ(run.code, 0) << run.err.toStdString();
    const QJsonArray objects = QJsonDocument::fromJson(run.out.toUtf8()).object()["objects"].toArray();
    EXPECT_EQ(objects.size(), expected.size());
    for (const QJsonValue& v : objects) {
      const QJsonObject o = v.toObject();
      const QStringList e = expected.value(o["handle"].toString().toUpper());
      ASSERT_EQ(e.size(), 4) << o["handle"].toString().toStdString();
      EXPECT_EQ(o["provider"].toString(), "CZqViewportPE");
      const QJsonObject rows = o["rows"].toObject();
      EXPECT_NEAR(rows["Geometry/Width"].toObject()["value"].toDouble(), e[1].toDouble(), 1e-9);
      EXPECT_NEAR(rows["Geometry/Height"].toObject()["value"].toDouble(), e[2].toDouble(), 1e-9);
      if (e[3].toDouble() > 0) {
        EXPECT_NEAR(rows["Misc/Custom scale"].toObject()["value"].toDouble(), e[2].toDouble() / e[3].toDouble(), 1e-9);
      }
      ++seen;
    }
  }
  EXPECT_GT(seen, 0);
}

}  // namespace
