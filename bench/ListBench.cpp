// Speed of listing every object's palette rows as JSON (zqprops --list
// --json) on a drawing of 100,000 lines, circles, 10-vertex lightweight
// polylines and texts, with ZQProperties loaded through the dynamic linker.
#include "Listing.h"
#include "DbPlainClasses.h"
#include "DbPolyline.h"
#include "DbCircle.h"
#include "RxModule.h"
#include "ZqServices.h"

#include <benchmark/benchmark.h>

#include <QBuffer>

namespace {

constexpr int kObjects = 100000;

OdDbDatabasePtr makeDrawing() {
  odDbInitialize();
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  auto* space = static_cast<OdDbBlockTableRecord*>(ms.get());
  for (int i = 0; i < kObjects; ++i) {
    const double x = (i % 1000) * 1.5, y = (i / 1000) * 2.25;
    OdDbEntityPtr e;
    switch (i % 4) {
      case 0: {
        OdDbLinePtr l = OdDbLine::createObject();
        l->setStartPoint({x, y, 0});
        l->setEndPoint({x + 1, y + 0.5, 0});
        e = l;
        break;
      }
      case 1: {
        OdDbCirclePtr c = OdDbCircle::createObject();
        c->setCenter({x, y, 0});
        c->setRadius(0.75);
        e = c;
        break;
      }
      case 2: {
        OdDbPolylinePtr p = OdDbPolyline::createObject();
        for (unsigned v = 0; v < 10; ++v) p->addVertexAt(v, {x + v * 0.1, y + (v % 2) * 0.2}, v == 4 ? 0.5 : 0.0);
        e = p;
        break;
      }
      default:
        e = OdDbText::createObject();
        break;
    }
    e->setDatabaseDefaults(db.get());
    space->appendOdDbEntity(e.get());
  }
  return db;
}

struct Fixture {
  Fixture() {
    GetZqSystemServices()->SetEchoToStderr(false);
    db = makeDrawing();
    odrxDynamicLinker()->loadModule("ZQProperties");
    OdDbObjectPtr ms = db->getModelSpaceId().openObject();
    ids = static_cast<OdDbBlockTableRecord*>(ms.get())->entityIds();
  }
  OdDbDatabasePtr db;
  OdDbObjectIdArray ids;
};

Fixture& fixture() {
  static Fixture f;
  return f;
}

void BM_ListJson(benchmark::State& state) {
  Fixture& f = fixture();
  size_t bytes = 0;
  for (auto _ : state) {
    QBuffer json;
    json.open(QIODevice::WriteOnly);
    zqWriteListingJson(json, "big.dxf", f.db.get(), f.ids, ZqJsonContent{true, false, false});
    bytes = size_t(json.size());
    benchmark::DoNotOptimize(json.data().data());
  }
  state.counters["objects/s"] = benchmark::Counter(double(f.ids.size()), benchmark::Counter::kIsIterationInvariantRate);
  state.counters["json_MB"] = double(bytes) / 1e6;
}
BENCHMARK(BM_ListJson)->Unit(benchmark::kMillisecond)->Iterations(2);

void BM_InfoJson(benchmark::State& state) {
  Fixture& f = fixture();
  for (auto _ : state) {
    QBuffer json;
    json.open(QIODevice::WriteOnly);
    zqWriteListingJson(json, "big.dxf", f.db.get(), f.ids, ZqJsonContent{false, true, false});
    benchmark::DoNotOptimize(json.data().data());
  }
  state.counters["objects/s"] = benchmark::Counter(double(f.ids.size()), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_InfoJson)->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace

namespace {
// The palette rows alone, without JSON: what the service costs.
void BM_PaletteRows(benchmark::State& state) {
  Fixture& f = fixture();
  for (auto _ : state) {
    CZqPropertiesWindowService service(f.db.get());
    size_t rows = 0;
    for (const OdDbObjectId& id : f.ids) {
      service.SetSelection({id});
      rows += service.Rows().size();
    }
    benchmark::DoNotOptimize(rows);
  }
  state.counters["objects/s"] = benchmark::Counter(double(f.ids.size()), benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(BM_PaletteRows)->Unit(benchmark::kMillisecond)->Iterations(2);
}  // namespace
