#include "ZqLifecycle.h"
#include <algorithm>

namespace {

constexpr int kMLeaderRow = 64;
constexpr int kRasterImageRow = 44;

bool shown(const ZqTableRow& r, bool pdfUnderlays) { return r.row != kZqPdfReferenceRow || pdfUnderlays; }

template <class Key>
std::vector<size_t> ordered(const std::vector<ZqTableRow>& rows, bool pdfUnderlays, bool (*wanted)(const ZqTableRow&),
                            Key key) {
  std::vector<size_t> out;
  for (size_t i = 0; i < rows.size(); ++i)
    if (wanted(rows[i]) && shown(rows[i], pdfUnderlays)) out.push_back(i);
  std::stable_sort(out.begin(), out.end(), [&](size_t a, size_t b) { return key(rows[a]) < key(rows[b]); });
  return out;
}

bool isEntity(const ZqTableRow& r) { return r.step == ZqAttachStep::kEntity; }
bool isRecord(const ZqTableRow& r) { return r.step == ZqAttachStep::kRecord; }
bool isOwn(const ZqTableRow& r) { return r.step == ZqAttachStep::kOwn; }
bool hasInfo(const ZqTableRow& r) { return r.hasInfo; }
double tableOrder(const ZqTableRow& r) { return r.row; }
double infoOrder(const ZqTableRow& r) { return r.infoPosition; }
// Detaching follows the start-up order, except that the multileader's row
// comes right after the raster image's.
double detachOrder(const ZqTableRow& r) { return r.row == kMLeaderRow ? kRasterImageRow + 0.5 : r.row; }

}  // namespace

ZqStartupOrder ZqStartupOrderOf(const std::vector<ZqTableRow>& rows, bool pdf) {
  ZqStartupOrder o;
  o.entities = ordered(rows, pdf, isEntity, tableOrder);
  o.records = ordered(rows, pdf, isRecord, tableOrder);
  o.infos = ordered(rows, pdf, hasInfo, infoOrder);
  o.own = ordered(rows, pdf, isOwn, tableOrder);
  return o;
}

const std::vector<double>& ZqExtraInfoRemovalPositions() {
  static const std::vector<double> positions{6.5, 15.5, 19.5, 43.05};
  return positions;
}

ZqTeardownOrder ZqTeardownOrderOf(const std::vector<ZqTableRow>& rows, bool pdf) {
  ZqTeardownOrder o;
  o.entities = ordered(rows, pdf, isEntity, detachOrder);
  o.records = ordered(rows, pdf, isRecord, tableOrder);
  o.own = ordered(rows, pdf, isOwn, tableOrder);
  // The information providers in start-up order (with the PDF-underlay
  // condition asked again), and the extra classes at their places.
  struct Removal {
    ZqInfoRemoval what;
    double position;
  };
  std::vector<Removal> removals;
  for (size_t i : ordered(rows, pdf, hasInfo, infoOrder)) removals.push_back({{int(i), -1}, rows[i].infoPosition});
  const std::vector<double>& extras = ZqExtraInfoRemovalPositions();
  for (size_t e = 0; e < extras.size(); ++e) removals.push_back({{-1, int(e)}, extras[e]});
  std::stable_sort(removals.begin(), removals.end(), [](const Removal& a, const Removal& b) { return a.position < b.position; });
  for (const Removal& r : removals) o.infos.push_back(r.what);
  return o;
}

void ZqUndoLog::run(const std::function<void()>& step, std::function<void()> undo) {
  step();
  m_undo.push_back(std::move(undo));
}

void ZqUndoLog::runGuarded(const std::function<void()>& step, std::function<void()> undo) {
  m_undo.push_back(std::move(undo));
  step();
}

void ZqUndoLog::rollback() noexcept {
  while (!m_undo.empty()) {
    std::function<void()> undo = std::move(m_undo.back());
    m_undo.pop_back();
    try {
      undo();
    } catch (...) {
      // Go on: what can still be taken down is taken down.
    }
  }
}
