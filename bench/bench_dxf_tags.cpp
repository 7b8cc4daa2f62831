// Load and save speed of the DXF tag layer on a generated drawing of 100,000
// entities (about 20 MB of ASCII DXF, written the way AutoCAD writes R2000).
#include "DxfFile.h"

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <charconv>
#include <random>

namespace {

const QByteArray& bigDrawing() {
  static const QByteArray data = [] {
    QByteArray out;
    out.reserve(24 << 20);
    auto tag = [&](int code, QByteArrayView value) {
      char buf[8];
      const auto r = std::to_chars(buf, buf + sizeof buf, code);
      for (auto n = r.ptr - buf; n < 3; ++n) out += ' ';
      out.append(buf, r.ptr - buf).append("\r\n").append(value).append("\r\n");
    };
    std::mt19937_64 rng(1);
    std::uniform_real_distribution<double> coord(-1e5, 1e5);
    auto real = [&] { return OdDxf::formatReal(coord(rng)); };
    tag(0, "SECTION"); tag(2, "HEADER"); tag(9, "$ACADVER"); tag(1, "AC1015"); tag(9, "$DWGCODEPAGE");
    tag(3, "ANSI_1252"); tag(0, "ENDSEC"); tag(0, "SECTION"); tag(2, "ENTITIES");
    for (int i = 0; i < 100000; ++i) {
      const QByteArray handle = QByteArray::number(0x100 + i, 16).toUpper();
      static const char* const kinds[] = {"LINE", "CIRCLE", "TEXT", "LWPOLYLINE"};
      tag(0, kinds[i % 4]); tag(5, handle); tag(330, "1F"); tag(100, "AcDbEntity"); tag(8, "0");
      switch (i % 4) {
        case 0:
          tag(62, "     7"); tag(100, "AcDbLine");
          for (int c : {10, 20, 30, 11, 21, 31}) tag(c, real());
          break;
        case 1:
          tag(100, "AcDbCircle");
          for (int c : {10, 20, 30, 40}) tag(c, real());
          break;
        case 2:
          tag(100, "AcDbText");
          for (int c : {10, 20, 30, 40}) tag(c, real());
          tag(1, "Text " + handle); tag(100, "AcDbText");
          break;
        default:
          tag(100, "AcDbPolyline"); tag(90, "        3"); tag(70, "     1");
          for (int k = 0; k < 3; ++k) {
            tag(10, real());
            tag(20, real());
          }
      }
    }
    tag(0, "ENDSEC"); tag(0, "EOF");
    return out;
  }();
  return data;
}

void BM_ReadAscii(benchmark::State& state) {
  const QByteArray& data = bigDrawing();
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
  OdDxf::File::read(bigDrawing(), f, error);
  for (auto _ : state) benchmark::DoNotOptimize(f.write());
  state.SetBytesProcessed(state.iterations() * bigDrawing().size());
}

void BM_SaveAscii(benchmark::State& state) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(bigDrawing(), f, error);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("big.dxf"));
  for (auto _ : state) benchmark::DoNotOptimize(f.save(path, error));
  state.SetBytesProcessed(state.iterations() * bigDrawing().size());
}

void BM_ReadBinary(benchmark::State& state) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(bigDrawing(), f, error);
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
  OdDxf::File::read(bigDrawing(), f, error);
  for (auto _ : state) benchmark::DoNotOptimize(f.write(OdDxf::File::Form::Binary));
}

BENCHMARK(BM_ReadAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SaveAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadBinary)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ConvertToBinary)->Unit(benchmark::kMillisecond);

}  // namespace
