// Load and save speed of the DXF tag layer on the generated drawing of
// BigDrawing.h (100,000 entities, about 22 MB of ASCII DXF).
#include "BigDrawing.h"
#include "DxfFile.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

namespace {


void BM_ReadAscii(benchmark::State& state) {
  const QByteArray& data = zqBigDrawing();
  for (auto _ : state) {
    OdDxf::File f;
    QString error;
    benchmark::DoNotOptimize(OdDxf::File::read(data, f, error));
  }
  state.SetBytesProcessed(state.iterations() * data.size());
}

void BM_WriteAscii(benchmark::State& state) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(zqBigDrawing(), f, error);
  for (auto _ : state) benchmark::DoNotOptimize(f.write());
  state.SetBytesProcessed(state.iterations() * zqBigDrawing().size());
}

void BM_SaveAscii(benchmark::State& state) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(zqBigDrawing(), f, error);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("big.dxf"));
  for (auto _ : state) benchmark::DoNotOptimize(f.save(path, error));
  state.SetBytesProcessed(state.iterations() * zqBigDrawing().size());
}

void BM_ReadBinary(benchmark::State& state) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(zqBigDrawing(), f, error);
  const QByteArray bin = f.write(OdDxf::File::Form::Binary);
  for (auto _ : state) {
    OdDxf::File g;
    benchmark::DoNotOptimize(OdDxf::File::read(bin, g, error));
  }
  state.SetBytesProcessed(state.iterations() * bin.size());
}

void BM_ConvertToBinary(benchmark::State& state) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(zqBigDrawing(), f, error);
  for (auto _ : state) benchmark::DoNotOptimize(f.write(OdDxf::File::Form::Binary));
}

BENCHMARK(BM_ReadAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadBinary)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ConvertToBinary)->Unit(benchmark::kMillisecond);

}  // namespace
