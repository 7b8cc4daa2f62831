#pragma once
// The drawing the benchmarks work on: an R2000 drawing of 100,000 entities
// (lines, circles, 10-vertex lightweight polylines and texts in equal
// numbers, on three layers), generated once per process as ASCII DXF.
#include "DbDatabase.h"

#include <QByteArray>

constexpr int kEntities = 100000;
const QByteArray& zqBigDrawing();
// The same kind of drawing with any number of entities (zqmkbig writes one).
QByteArray zqMakeBigDrawing(int entities);

// The 100,000-entity drawing read into a database once per process, with
// the module loaded, and its model-space objects (LoadedDrawing.cpp; the
// benchmarks only).
struct ZqLoadedDrawing {
  OdDbDatabasePtr db;
  OdDbObjectIdArray ids;
};
ZqLoadedDrawing& zqLoadedBigDrawing();
