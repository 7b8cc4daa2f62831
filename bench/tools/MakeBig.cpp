// zqmkbig N OUT.dxf [--binary]: writes the benchmarks' kind of drawing (lines,
// circles, 10-vertex polylines and texts in equal numbers on three layers)
// with N entities, for timing zqprops on large drawings (the README's figures
// use N = 1000000). --binary writes the same drawing as binary DXF.
#include "BigDrawing.h"
#include "DxfFile.h"
#include <QFile>
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argc, char** argv) {
  const bool binary = argc == 4 && std::strcmp(argv[3], "--binary") == 0;
  const long n = argc == 3 || binary ? std::strtol(argv[1], nullptr, 10) : 0;
  if (n < 1 || n > 50000000) {
    std::fprintf(stderr, "usage: zqmkbig ENTITIES OUT.dxf [--binary] (ENTITIES from 1 to 50000000)\n");
    return 2;
  }
  QFile out(QString::fromLocal8Bit(argv[2]));
  QByteArray data = zqMakeBigDrawing(int(n));
  if (binary) {
    OdDxf::File file;
    QString error;
    if (!OdDxf::File::read(data, file, error)) {
      std::fprintf(stderr, "zqmkbig: %s\n", qPrintable(error));
      return 2;
    }
    QStringList problems;
    data = file.write(OdDxf::File::Form::Binary, &problems);
    for (const QString& p : problems) std::fprintf(stderr, "zqmkbig: %s\n", qPrintable(p));
  }
  if (!out.open(QIODevice::WriteOnly) || out.write(data) != data.size() || !out.flush()) {
    std::fprintf(stderr, "zqmkbig: cannot write %s: %s\n", argv[2], qPrintable(out.errorString()));
    return 2;
  }
  return 0;
}
