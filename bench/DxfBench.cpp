// Load and save speed of the DXF drawing mapper (file <-> database) on a
// generated R2000 drawing of 100,000 entities: lines, circles, 10-vertex
// lightweight polylines and texts in equal numbers (about 17 MB of ASCII).
// Reports MB/s and objects/s.
#include "DbPlainClasses.h"
#include "DxfDatabase.h"
#include "DxfFile.h"
#include "BigDrawing.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>


namespace {

void report(benchmark::State& state, qint64 bytes) {
  state.SetLabel(QStringLiteral("%1 MB, %2 entities").arg(double(bytes) / 1e6, 0, 'f', 1).arg(kEntities).toStdString());
  state.counters["MB"] =
      benchmark::Counter(double(bytes) * double(state.iterations()) / 1e6, benchmark::Counter::kIsRate);
  state.counters["objects"] =
      benchmark::Counter(double(kEntities) * double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_LoadDrawing(benchmark::State& state) {
  const QByteArray& data = zqBigDrawing();
  for (auto _ : state) {
    QString error;
    OdDbDatabasePtr db = OdDxf::readDrawing(data, error);
    if (!db) state.SkipWithError(error.toStdString().c_str());
    benchmark::DoNotOptimize(db.get());
    state.PauseTiming();  // closing the drawing is not loading it
    db.release();
    state.ResumeTiming();
  }
  report(state, data.size());
}

// The same drawing as binary DXF: the numbers are taken as they are stored,
// so the difference to BM_LoadDrawing is what reading numbers from text
// costs.
void BM_LoadDrawingBinary(benchmark::State& state) {
  static const QByteArray data = [] {
    OdDxf::File file;
    QString error;
    OdDxf::File::read(zqBigDrawing(), file, error);
    return file.write(OdDxf::File::Form::Binary);
  }();
  for (auto _ : state) {
    QString error;
    OdDbDatabasePtr db = OdDxf::readDrawing(data, error);
    if (!db) state.SkipWithError(error.toStdString().c_str());
    benchmark::DoNotOptimize(db.get());
    state.PauseTiming();
    db.release();
    state.ResumeTiming();
  }
  report(state, data.size());
}

void BM_SaveUnedited(benchmark::State& state) {
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(zqBigDrawing(), error);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("big.dxf"));
  for (auto _ : state)
    if (!OdDxf::writeDrawing(db.get(), path, error)) state.SkipWithError(error.toStdString().c_str());
  report(state, zqBigDrawing().size());
}

// Every tenth line moved: the save patches 2,500 records.
void BM_SaveEdited(benchmark::State& state) {
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(zqBigDrawing(), error);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("big.dxf"));
  double shift = 0;
  for (auto _ : state) {
    state.PauseTiming();
    shift += 1;
    for (int i = 0; i < kEntities; i += 40) {
      OdDbObjectPtr obj = db->getOdDbObjectId(OdDbHandle(quint64(0x100 + i))).openObject(OdDb::kForWrite);
      static_cast<OdDbLine*>(obj.get())->setStartPoint(OdGePoint3d(shift, shift, 0));
    }
    state.ResumeTiming();
    if (!OdDxf::writeDrawing(db.get(), path, error)) state.SkipWithError(error.toStdString().c_str());
  }
  report(state, zqBigDrawing().size());
}

BENCHMARK(BM_LoadDrawing)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(BM_LoadDrawingBinary)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(BM_SaveUnedited)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(BM_SaveEdited)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();

}  // namespace
