#pragma once
// The orders of start-up and tear-down, computed from the rows of the
// attachment table, and the log that takes a failed start-up back.
// The orders are plain functions of the rows (and of the host's answer on
// PDF underlays) so that they are the same for the module and its tests.
#include <functional>
#include <vector>

// Where and under which protocol a row's provider is attached (the Step
// column of ZqProviders.def).
enum class ZqAttachStep {
  kEntity,  // under the property protocol, before the module's classes
  kRecord,  // under the property protocol, after the module's classes
  kOwn,     // under the provider's own protocol class, last
};

struct ZqTableRow {
  int row;
  ZqAttachStep step;
  bool hasInfo;
  double infoPosition;
};

// The row of OdDbPdfReference: attached, and detached, only when the host
// shows PDF underlays.
constexpr int kZqPdfReferenceRow = 45;

// Indices into the rows, in the order each step takes them.
struct ZqStartupOrder {
  std::vector<size_t> entities;  // step 3
  std::vector<size_t> records;   // step 6
  std::vector<size_t> infos;     // step 8
  std::vector<size_t> own;       // step 9
};
ZqStartupOrder ZqStartupOrderOf(const std::vector<ZqTableRow>& rows, bool pdfUnderlays);

// One removal of tear-down step 7: a row's class (row >= 0), or one of the
// classes that never received an information provider (extra >= 0, an
// index into ZqExtraInfoRemovalPositions).
struct ZqInfoRemoval {
  int row = -1;    // index into the rows
  int extra = -1;
};
struct ZqTeardownOrder {
  std::vector<size_t> entities;  // step 2
  std::vector<size_t> records;   // step 3
  std::vector<size_t> own;       // step 4
  std::vector<ZqInfoRemoval> infos;  // step 7
};
// The places of the extra removals among the information rows: right after
// OdDbAlignedDimension, OdDbDiametricDimension, OdDbExtrudedSurface and
// OdDbRadialDimension, in that order (OdDbArcAlignedText, OdDbDimension,
// OdDbViewportTableRecord, OdDbRasterImage).
const std::vector<double>& ZqExtraInfoRemovalPositions();
ZqTeardownOrder ZqTeardownOrderOf(const std::vector<ZqTableRow>& rows, bool pdfUnderlays);

// What a start-up has done so far, each with its undoing. A failure halfway
// undoes the steps taken, newest first, so the class tree is as it was.
class ZqUndoLog {
 public:
  // Runs step; once it has succeeded, undo is recorded.
  void run(const std::function<void()>& step, std::function<void()> undo);
  // Records undo before running step: for steps that may change the class
  // tree and then fail, whose undo is harmless when nothing changed.
  void runGuarded(const std::function<void()>& step, std::function<void()> undo);
  // Undoes everything recorded, newest first. An undo that fails is passed
  // over so that the others still run.
  void rollback() noexcept;
  void clear() { m_undo.clear(); }

 private:
  std::vector<std::function<void()>> m_undo;
};
