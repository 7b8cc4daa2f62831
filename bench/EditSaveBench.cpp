// Cost of saving after small edits, as the edited things grow:
//  * one vertex of a lightweight polyline of 10k, 40k and 80k vertices moved,
//    then the drawing written (the record's vertex tags are written anew);
//    the same for a 2D polyline (one VERTEX record per vertex);
//  * extended data of n items set on one object (the chain is taken over
//    item by item).
// Both should grow linearly; the reported complexity tells.
#include "DbPlainClasses.h"
#include "DxfDatabase.h"
#include "OdResBuf.h"

#include <benchmark/benchmark.h>

namespace {

// An R2000 drawing with one LWPOLYLINE of n vertices, handle 2A.
QByteArray polylineDrawing(int n) {
  QByteArray d = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$HANDSEED\n  5\n100\n  0\nENDSEC\n"
                 "  0\nSECTION\n  2\nENTITIES\n  0\nLWPOLYLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbPolyline\n"
                 " 90\n" + QByteArray::number(n) + "\n 70\n0\n";
  d.reserve(d.size() + qsizetype(n) * 32);
  for (int i = 0; i < n; ++i)
    d += " 10\n" + QByteArray::number(i) + ".0\n 20\n" + QByteArray::number(i % 7) + ".5\n";
  d += "  0\nENDSEC\n  0\nEOF\n";
  return d;
}

// Saves a drawing of n vertices after moving its middle vertex, once per
// iteration: the edit is outside the timing, the save inside.
template <class Edit>
void saveAfterEdit(benchmark::State& state, const QByteArray& drawing, Edit edit) {
  const int n = int(state.range(0));
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(drawing, error);
  if (!db) {
    state.SkipWithError(error.toStdString().c_str());
    return;
  }
  const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(quint64(0x2A)));
  double y = 0;
  for (auto _ : state) {
    state.PauseTiming();
    {
      OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
      edit(obj.get(), unsigned(n / 2), y += 1);
    }
    state.ResumeTiming();
    const QByteArray out = OdDxf::writeDrawing(db.get(), &error);
    if (out.isEmpty()) state.SkipWithError(error.toStdString().c_str());
    benchmark::DoNotOptimize(out.data());
  }
  state.SetComplexityN(n);
  state.counters["vertices"] = benchmark::Counter(double(n) * double(state.iterations()), benchmark::Counter::kIsRate);
}

void BM_SaveAfterVertexEdit(benchmark::State& state) {
  saveAfterEdit(state, polylineDrawing(int(state.range(0))), [](OdDbObject* obj, unsigned i, double y) {
    static_cast<OdDbPolyline*>(obj)->setPointAt(i, OdGePoint2d(0.25, y));
  });
}

// The same with a 2D polyline: a POLYLINE record, one VERTEX record per
// vertex, SEQEND.
QByteArray polyline2dDrawing(int n) {
  QByteArray d = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$HANDSEED\n  5\nFFFFF\n  0\nENDSEC\n"
                 "  0\nSECTION\n  2\nENTITIES\n  0\nPOLYLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDb2dPolyline\n"
                 " 66\n1\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 70\n0\n";
  d.reserve(d.size() + qsizetype(n) * 110);
  for (int i = 0; i < n; ++i)
    d += "  0\nVERTEX\n  5\n" + QByteArray::number(0x100 + i, 16).toUpper() +
         "\n100\nAcDbEntity\n  8\n0\n100\nAcDbVertex\n100\nAcDb2dVertex\n 10\n" + QByteArray::number(i) +
         ".0\n 20\n" + QByteArray::number(i % 7) + ".5\n 30\n0.0\n";
  d += "  0\nSEQEND\n  5\nFFFF0\n100\nAcDbEntity\n  8\n0\n  0\nENDSEC\n  0\nEOF\n";
  return d;
}

void BM_SaveAfter2dVertexEdit(benchmark::State& state) {
  saveAfterEdit(state, polyline2dDrawing(int(state.range(0))), [](OdDbObject* obj, unsigned i, double y) {
    static_cast<OdDb2dPolyline*>(obj)->vertexForWrite(i)->setPosition(OdGePoint3d(0.25, y, 0));
  });
}

void BM_SetXData(benchmark::State& state) {
  const int n = int(state.range(0));
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("BENCH"));
  OdResBuf* tail = head.get();
  for (int i = 0; i < n; ++i) tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdReal, double(i)).get());
  OdDbObjectPtr line = OdDbLine::createObject();
  for (auto _ : state) {
    line->setXData(head.get());
    benchmark::ClobberMemory();
  }
  state.SetComplexityN(n);
  state.counters["items"] = benchmark::Counter(double(n) * double(state.iterations()), benchmark::Counter::kIsRate);
}

BENCHMARK(BM_SaveAfterVertexEdit)->Arg(10000)->Arg(40000)->Arg(80000)->Unit(benchmark::kMillisecond)->UseRealTime()
    ->Complexity(benchmark::oN);
BENCHMARK(BM_SaveAfter2dVertexEdit)->Arg(10000)->Arg(40000)->Arg(80000)->Unit(benchmark::kMillisecond)->UseRealTime()
    ->Complexity(benchmark::oN);
BENCHMARK(BM_SetXData)->RangeMultiplier(4)->Range(256, 16384)->Unit(benchmark::kMicrosecond)->Complexity(benchmark::oN);

}  // namespace
