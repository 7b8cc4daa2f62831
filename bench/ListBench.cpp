// Speed of listing a drawing of 100,000 objects (see BigDrawing.h): the
// palette rows of every object, the --list --json output built from them,
// the information listing, and the whole zqprops program (load, list,
// write) as a user runs it.
#include "BigDrawing.h"
#include "DxfDatabase.h"
#include "Listing.h"
#include "RxModule.h"
#include "ZqServices.h"

#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace {

ZqLoadedDrawing& drawing() { return zqLoadedBigDrawing(); }

void perObject(benchmark::State& state, size_t objects) {
  state.counters["objects/s"] =
      benchmark::Counter(double(objects) * double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_PaletteRows(benchmark::State& state) {
  ZqLoadedDrawing& d = drawing();
  for (auto _ : state) {
    CZqPropertiesWindowService service(d.db.get());
    size_t rows = 0;
    for (const OdDbObjectId& id : d.ids) {
      service.SetSelection({id});
      rows += service.Rows().size();
    }
    benchmark::DoNotOptimize(rows);
  }
  perObject(state, d.ids.size());
}

void listJson(benchmark::State& state, const ZqJsonContent& content) {
  ZqLoadedDrawing& d = drawing();
  qint64 bytes = 0;
  for (auto _ : state) {
    QBuffer json;
    json.open(QIODevice::WriteOnly);
    zqWriteListingJson(json, "big.dxf", d.db.get(), d.ids, content);
    bytes = json.size();
  }
  perObject(state, d.ids.size());
  state.counters["json_MB"] = double(bytes) / 1e6;
}

void BM_ListJson(benchmark::State& state) { listJson(state, ZqJsonContent{true, false, false}); }
void BM_InfoJson(benchmark::State& state) { listJson(state, ZqJsonContent{false, true, false}); }

// The program itself: zqprops big.dxf --list --json > file.
void BM_ZqpropsListJson(benchmark::State& state) {
  QTemporaryDir dir;
  const QString path = dir.filePath("big.dxf");
  QFile f(path);
  f.open(QIODevice::WriteOnly);
  f.write(zqBigDrawing());
  f.close();
  const QString program = QFileInfo(QFileInfo("/proc/self/exe").symLinkTarget()).absolutePath() + "/zqprops";
  for (auto _ : state) {
    QProcess p;
    p.setStandardOutputFile(dir.filePath("out.json"));
    p.start(program, {path, "--list", "--json"});
    if (!p.waitForFinished(300000) || p.exitCode() != 0) state.SkipWithError("zqprops failed");
  }
  perObject(state, size_t(kEntities));
  state.counters["dxf_MB"] = double(zqBigDrawing().size()) / 1e6;
}

BENCHMARK(BM_PaletteRows)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ListJson)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_InfoJson)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ZqpropsListJson)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
