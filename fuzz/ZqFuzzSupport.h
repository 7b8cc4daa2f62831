#pragma once
// Shared steps of the fuzz targets and the reliability tests: starting the
// platform with the module loaded, the seed drawings, and a drawing's entity
// records keyed by handle so that two saves can be compared object by object.
#include "DbDatabase.h"
#include "DxfDatabase.h"
#include "DxfFile.h"
#include "RxModule.h"
#include "ZqServices.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace zqfuzz {

// A broken promise of the code under test: printed, then abort() so that the
// fuzzer keeps the input (and a test run fails loudly).
[[noreturn]] inline void fail(const char* what, const QString& detail = QString()) {
  std::fprintf(stderr, "reliability check failed: %s %s\n", what, detail.toLocal8Bit().constData());
  std::abort();
}

// Registers the drawing classes and loads ZQProperties once per process.
// Modules are found in $ZQ_MODULE_PATH, next to the program or in ../lib.
inline bool startPlatform(bool withModule) {
  static bool started = false;
  if (!started) {
    odDbInitialize();
    GetZqSystemServices()->SetEchoToStderr(false);
    started = true;
  }
  if (withModule && !odrxDynamicLinker()->getModule("ZQProperties")) {
    if (!odrxDynamicLinker()->loadModule("ZQProperties")) {
      std::fprintf(stderr, "cannot load ZQProperties: %s\n", odrxDynamicLinker()->lastError().qstring().toLocal8Bit().constData());
      return false;
    }
  }
  return true;
}

inline QByteArray readFile(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Small drawings the edit fuzzers work on: the repository's demonstration
// drawing and the small shared samples that are present.
inline std::vector<QByteArray> seedDrawings() {
  std::vector<QByteArray> out;
  const QString samples = QStringLiteral(ZQ_SAMPLES_DIR "/");
  for (const QString& path :
       {QStringLiteral(ZQ_SOURCE_DIR "/samples/demo.dxf"),
        samples + QStringLiteral("libredwg__test__test-data__2000__entities-2d.dxf"),
        samples + QStringLiteral("libredwg__test__test-data__2000__entities-3d.dxf"),
        samples + QStringLiteral("ezdxf__examples_dxf__text_alignments.dxf"),
        samples + QStringLiteral("ezdxf__examples_dxf__circle_radius_le_0.dxf"),
        samples + QStringLiteral("libredwg__test__test-data__r2.6__dim.dxf")}) {
    QByteArray bytes = readFile(path);
    if (!bytes.isEmpty()) out.push_back(bytes);
  }
  return out;
}

// A refusal names where reading stopped: "line N: ..." or "byte offset N: ...".
inline bool namesAPlace(const QString& error) {
  static const QRegularExpression place(QStringLiteral("^(line \\d+|byte offset \\d+): \\S"));
  return place.match(error).hasMatch();
}

// The entity records of a DXF file (ENTITIES and BLOCKS sections) as text,
// keyed by the handle of the entity they belong to: VERTEX, ATTRIB and SEQEND
// records count as part of the POLYLINE or INSERT before them, so an edit of
// a polyline's vertex is an edit of the polyline. Empty (and *ok false) when
// the bytes do not read.
inline QHash<quint64, QByteArray> entityRecords(const QByteArray& bytes, bool* ok = nullptr) {
  QHash<quint64, QByteArray> out;
  OdDxf::File file;
  QString error;
  const bool read = OdDxf::File::read(bytes, file, error);
  if (ok) *ok = read;
  if (!read) return out;
  for (const OdDxf::Section& s : file.sections()) {
    if (s.name != "ENTITIES" && s.name != "BLOCKS") continue;
    quint64 owner = 0;
    for (const OdDxf::Record& r : s.records) {
      const bool child = r.isType("VERTEX") || r.isType("ATTRIB") || r.isType("SEQEND");
      if (!child) owner = r.handle();
      if (!owner) continue;  // no handle to key it by (R12 without handles)
      QByteArray& text = out[owner];
      for (const OdDxf::Tag& t : r) {
        text += QByteArray::number(t.code());
        text += '\t';
        text += t.raw().toByteArray();
        text += '\n';
      }
    }
  }
  return out;
}

}  // namespace zqfuzz
