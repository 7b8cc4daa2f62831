#include "DbUndo.h"
#include "DbDatabase.h"
#include <cstdlib>

OdDbUndoJournal::OdDbUndoJournal() = default;
OdDbUndoJournal::~OdDbUndoJournal() = default;

void OdDbUndoJournal::startStep(const OdString& name) {
  if (m_depth++ == 0) m_open = Step{name, {}};
}

void OdDbUndoJournal::endStep() {
  if (m_depth == 0 || --m_depth > 0) return;
  if (m_open.entries.empty()) return;
  m_done.push_back(std::move(m_open));
  m_open = Step{};
  m_undone.clear();
  // A new step after undoing past the save: the saved state is gone from the history.
  if (m_sinceSave < 0) m_saveLost = true;
  m_sinceSave = m_saveLost ? std::abs(m_sinceSave) + 1 : m_sinceSave + 1;
}

OdDbUndoJournal::Entry OdDbUndoJournal::capture(const OdDbObject* object) const {
  Entry e;
  e.id = object->objectId();
  e.modified = object->isModified();
  e.writes = m_writes;
  OdRxObjectPtr copy = object->isA()->create();
  auto* state = odrxCast<OdDbObject>(copy.get());
  if (!state) throw OdError(eNotApplicable, object->isA()->name());
  state->copyFrom(object);
  state->setOwnerId(object->ownerId());
  if (OdResBufPtr x = object->xData()) state->setXData(x.get());
  e.state = OdDbObjectPtr(state);
  return e;
}

bool OdDbUndoJournal::record(const OdDbObject* object) {
  if (m_depth == 0 || !object || object->objectId().isNull()) return false;
  for (const Entry& e : m_open.entries)
    if (e.id == object->objectId()) return false;
  m_open.entries.push_back(capture(object));
  return true;
}

void OdDbUndoJournal::forget(const OdDbObject* object) {
  if (!object) return;
  for (auto it = m_open.entries.begin(); it != m_open.entries.end(); ++it)
    if (it->id == object->objectId()) {
      m_open.entries.erase(it);
      return;
    }
}

// Puts every object of the step back as recorded, and keeps in the step
// what it was, so that the same step can go the other way.
void OdDbUndoJournal::restore(Step& step) {
  for (auto it = step.entries.rbegin(); it != step.entries.rend(); ++it) {
    OdDbObjectPtr obj = it->id.openObject(OdDb::kForWrite, true);
    if (!obj) continue;
    Entry now = capture(obj.get());
    obj->copyFrom(it->state.get());
    // Extended data: applications the recorded state lacks are removed.
    for (const OdString& app : obj->xDataApps()) {
      OdResBufPtr only = OdResBuf::newRb(OdResBuf::kDxfRegAppName, app);
      obj->setXData(only.get());
    }
    if (OdResBufPtr x = it->state->xData()) obj->setXData(x.get());
    // Unchanged since it was read or saved, and no write since: the file's
    // own records describe it again.
    obj->setModified(it->modified || it->writes != m_writes);
    *it = std::move(now);
  }
}

bool OdDbUndoJournal::undo() {
  if (m_done.empty() || m_depth > 0) return false;
  Step step = std::move(m_done.back());
  m_done.pop_back();
  restore(step);
  m_undone.push_back(std::move(step));
  --m_sinceSave;
  return true;
}

bool OdDbUndoJournal::redo() {
  if (m_undone.empty() || m_depth > 0) return false;
  Step step = std::move(m_undone.back());
  m_undone.pop_back();
  restore(step);
  m_done.push_back(std::move(step));
  ++m_sinceSave;
  return true;
}

OdString OdDbUndoJournal::undoName() const { return m_done.empty() ? OdString() : m_done.back().name; }
OdString OdDbUndoJournal::redoName() const { return m_undone.empty() ? OdString() : m_undone.back().name; }

void OdDbUndoJournal::markSaved() {
  m_sinceSave = 0;
  m_saveLost = false;
}

int OdDbUndoJournal::unsavedSteps() const {
  if (m_saveLost) return std::max(1, std::abs(m_sinceSave));
  return std::abs(m_sinceSave);
}
