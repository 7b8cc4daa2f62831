// Speed of texts: 100,000 single-line texts (two styles, every
// justification, one in ten annotative) listed with their rows and values
// as `zqprops --list --json` writes them, shown in the palette as one
// selection, and measured for their bounding points.
#include "CZqObjectAnnotationContext.h"
#include "DbSymbolTable.h"
#include "DbText.h"
#include "Listing.h"
#include "RxModule.h"
#include "ZQCommandsBase.h"
#include "ZqServices.h"

#include <benchmark/benchmark.h>

#include <QIODevice>

namespace {

struct Texts {
  explicit Texts(int count) {
    odDbInitialize();
    GetZqSystemServices()->SetEchoToStderr(false);
    odrxDynamicLinker()->loadModule("ZQProperties");
    db = OdDbDatabase::createObject();
    OdDbObjectId styles[2];
    {
      OdDbObjectPtr t = db->getTextStyleTableId().openObject(OdDb::kForWrite);
      auto* table = static_cast<OdDbSymbolTable*>(t.get());
      const char* fonts[2] = {"DejaVuSans.ttf", "romans.shx"};
      for (int k = 0; k < 2; ++k) {
        OdDbTextStyleTableRecordPtr s = OdDbTextStyleTableRecord::createObject();
        s->setName(OdString(QStringLiteral("Style%1").arg(k)));
        s->setFileName(OdString(fonts[k]));
        styles[k] = table->add(s.get());
      }
    }
    OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
    auto* space = static_cast<OdDbBlockTableRecord*>(ms.get());
    const OdDb::TextHorzMode horizontal[] = {OdDb::kTextLeft, OdDb::kTextCenter, OdDb::kTextRight, OdDb::kTextMid};
    for (int i = 0; i < count; ++i) {
      OdDbTextPtr t = OdDbText::createObject();
      t->setDatabaseDefaults(db.get());
      t->setTextString(OdString(QStringLiteral("Room %1 %%c%2").arg(i).arg(i % 97)));
      t->setTextStyle(styles[i % 2]);
      t->setHeight(2.5 + i % 5);
      t->setRotation(0.01 * (i % 31));
      t->setPosition(OdGePoint3d(i % 1000, i / 1000, 0));
      t->setHorizontalMode(horizontal[i % 4]);
      t->setAlignmentPoint(OdGePoint3d(i % 1000 + 5, i / 1000, 0));
      ids.append(space->appendOdDbEntity(t.get()));
      if (i % 10 == 0) CZqObjectAnnotationContext::SetAnnotative(t.get(), true, false);
    }
  }
  OdDbDatabasePtr db;
  OdDbObjectIdArray ids;
};

// Output that is counted and thrown away, as a pipe reader would: the
// listing is measured, not a growing buffer.
class Discard : public QIODevice {
 public:
  Discard() { open(QIODevice::WriteOnly); }
  qint64 written = 0;

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char*, qint64 n) override { return written += n, n; }
};

Texts& texts() {
  static Texts t(100000);
  return t;
}

// Every text with its rows and their values, as the JSON listing writes them.
void BM_TextListJson(benchmark::State& state) {
  Texts& t = texts();
  for (auto _ : state) {
    Discard json;
    zqWriteListingJson(json, "texts.dxf", t.db.get(), t.ids, ZqJsonContent{true, false, false});
    benchmark::DoNotOptimize(json.written);
  }
  state.counters["texts"] = double(t.ids.size());
}
BENCHMARK(BM_TextListJson)->Unit(benchmark::kMillisecond);

// All of them selected at once in the palette: the rows they share and
// whether each value varies.
void BM_TextSelectionRows(benchmark::State& state) {
  Texts& t = texts();
  for (auto _ : state) {
    CZqPropertiesWindowService service(t.db.get());
    service.SetSelection(t.ids);
    benchmark::DoNotOptimize(service.Rows().size());
  }
  state.counters["texts"] = double(t.ids.size());
}
BENCHMARK(BM_TextSelectionRows)->Unit(benchmark::kMillisecond);

// The four corners of every text, measured with its style's font.
void BM_TextBoundingPoints(benchmark::State& state) {
  Texts& t = texts();
  for (auto _ : state) {
    OdArray<OdGePoint3d> points;
    double sum = 0;
    for (const OdDbObjectId& id : t.ids) {
      const OdDbObjectPtr o = id.openObject();
      static_cast<const OdDbText*>(o.get())->getBoundingPoints(points);
      sum += points.isEmpty() ? 0 : points[1].x;
    }
    benchmark::DoNotOptimize(sum);
  }
  state.counters["texts"] = double(t.ids.size());
}
BENCHMARK(BM_TextBoundingPoints)->Unit(benchmark::kMillisecond);

}  // namespace
