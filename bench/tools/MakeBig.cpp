// zqmkbig N OUT.dxf: writes the benchmarks' kind of drawing (lines, circles,
// 10-vertex polylines and texts in equal numbers on three layers) with N
// entities, for timing zqprops on large drawings (the README's figures use
// N = 1000000).
#include "BigDrawing.h"
#include <QFile>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  const long n = argc == 3 ? std::strtol(argv[1], nullptr, 10) : 0;
  if (n < 1 || n > 50000000) {
    std::fprintf(stderr, "usage: zqmkbig ENTITIES OUT.dxf (ENTITIES from 1 to 50000000)\n");
    return 2;
  }
  QFile out(QString::fromLocal8Bit(argv[2]));
  const QByteArray data = zqMakeBigDrawing(int(n));
  if (!out.open(QIODevice::WriteOnly) || out.write(data) != data.size() || !out.flush()) {
    std::fprintf(stderr, "zqmkbig: cannot write %s: %s\n", argv[2], qPrintable(out.errorString()));
    return 2;
  }
  return 0;
}
