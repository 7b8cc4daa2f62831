#pragma once
// The undo journal of a drawing database. An edit opens a step, records
// each object's state before its first change in the step, and closes the
// step; undoing a step puts every recorded object back as it was (its id
// and handle stay the same), redoing it brings the edit back.
#include "DbObject.h"
#include <vector>

class DB_API OdDbUndoJournal {
 public:
  OdDbUndoJournal();
  ~OdDbUndoJournal();
  OdDbUndoJournal(const OdDbUndoJournal&) = delete;
  OdDbUndoJournal& operator=(const OdDbUndoJournal&) = delete;

  // Steps nest: only the outermost startStep/endStep pair makes a step, so
  // an edit of many objects made of smaller edits is undone at once. A step
  // that recorded nothing is dropped; a kept one ends what could be redone.
  void startStep(const OdString& name);
  void endStep();
  bool inStep() const { return m_depth > 0; }

  // Records the object's state before it changes (once per step; nothing
  // outside a step). The object must be open for read or write. True when
  // this call made the record.
  bool record(const OdDbObject* object);
  // Drops the record of an object that was not changed after all (an edit
  // that was refused), so that a step of refusals undoes nothing.
  void forget(const OdDbObject* object);

  // Undo or redo the last step; false when there is none.
  bool undo();
  bool redo();
  int undoSteps() const { return int(m_done.size()); }
  int redoSteps() const { return int(m_undone.size()); }
  OdString undoName() const;
  OdString redoName() const;

  // Saving: markSaved after a save to the drawing file; noteWritten after
  // any write (the file's records then show the edited objects, so an
  // object put back is written out from its data, not from the old records).
  void markSaved();
  void noteWritten() { ++m_writes; }
  // Steps done or undone since the last save (0: the drawing is as saved).
  int unsavedSteps() const;

 private:
  struct Entry {
    OdDbObjectId id;
    OdDbObjectPtr state;   // a copy outside the database
    bool modified = false; // the object's modified flag then
    int writes = 0;        // writes before the record
  };
  struct Step {
    OdString name;
    std::vector<Entry> entries;
  };
  Entry capture(const OdDbObject* object) const;
  void restore(Step& step);

  std::vector<Step> m_done, m_undone;
  Step m_open;
  int m_depth = 0;
  int m_writes = 0;
  int m_sinceSave = 0;      // steps done (+) or undone (-) since the save
  bool m_saveLost = false;  // the saved state can no longer be reached by undo/redo
};
