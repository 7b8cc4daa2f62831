// zq_dxf_to_binary OUTDIR FILE...: writes each DXF file that reads as binary
// DXF into OUTDIR, without the 22-byte sentinel (the binary fuzz target adds
// it), so that the binary reader's fuzzing starts from real drawings.
#include "DxfFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: zq_dxf_to_binary OUTDIR FILE...\n");
    return 2;
  }
  const QDir out(QString::fromLocal8Bit(argv[1]));
  int status = 0;
  for (int i = 2; i < argc; ++i) {
    const QString path = QString::fromLocal8Bit(argv[i]);
    OdDxf::File file;
    QString error;
    if (!OdDxf::File::load(path, file, error)) {
      std::fprintf(stderr, "%s: %s\n", argv[i], error.toLocal8Bit().constData());
      status = 1;
      continue;
    }
    QFile f(out.filePath(QFileInfo(path).completeBaseName() + QStringLiteral(".bin")));
    if (!f.open(QIODevice::WriteOnly) || f.write(file.write(OdDxf::File::Form::Binary).mid(22)) < 0) status = 1;
  }
  return status;
}
