#pragma once
// Choosing the objects a command works on, the same way for the programs'
// options and the "Select objects:" prompt: by handle, by kind, by layer
// (with the wildcards CAD users type), by space, inside block definitions,
// and any intersection of these.
#include "KernelExport.h"
#include "DbDatabase.h"
#include <QString>
#include <QStringList>
#include <optional>

// CAD wildcards, without regard to case: `*` any run of characters, `?` one
// character, `#` one digit, `@` one letter, `.` one character that is
// neither letter nor digit, `[abc]`/`[a-z]`/`[~abc]` one of (or none of) a
// set, a back quote takes the next character literally, a comma separates
// alternatives and a leading `~` matches what the rest does not match.
ZQKERNEL_API bool zqWildcardMatch(const QString& text, const QString& pattern);

class ZQKERNEL_API CZqSelectionFilter {
 public:
  enum Space { kModelSpace, kPaperSpace, kAllSpaces };

  QStringList handles;          // hexadecimal handles; empty: every object of the spaces
  QString types;                // DXF types or display names, wildcards and commas
  QString layers;               // layer names, wildcards and commas
  std::optional<Space> space;   // unset: model space (or, with handles, wherever they are)
  bool blocks = false;          // also the objects inside block definitions
  // Named records instead of drawing objects: the tables by word (layers,
  // linetypes, textstyles, dimstyles, views, vports) or record type (LAYER,
  // LTYPE, STYLE, DIMSTYLE, VIEW, VPORT), and the objects of the drawing's
  // dictionaries (groups, mlinestyles, tablestyles, or GROUP, MLINESTYLE,
  // TABLESTYLE), comma list; `names` narrows them (wildcards, commas).
  QString records;
  QString names;

  // The table a --records word names (the ids of its database's table), or
  // false for a word that names none. For the objects of a dictionary,
  // `table` gives the named-objects dictionary and `dictionary` the name of
  // theirs in it (null for a table).
  static bool ParseRecordKind(const QString& word, OdDbObjectId (OdDbDatabase::**table)() const,
                              const char** dictionary = nullptr);

  // Whether anything beyond the default (every object of model space) was asked for.
  bool IsSet() const {
    return !handles.isEmpty() || !types.isEmpty() || !layers.isEmpty() || space || blocks || !records.isEmpty();
  }

  // "model", "paper" or "all" (also the translated words); false otherwise.
  static bool ParseSpace(const QString& word, Space& space);

  // The objects that meet every criterion, in drawing order (model space,
  // then the layouts, then block definitions; handles in the order given).
  // False with a sentence when a handle names no object of the drawing.
  bool Select(OdDbDatabase* db, OdDbObjectIdArray& out, QString* why = nullptr) const;

  // Whether one object meets the type, layer and space criteria.
  bool Matches(const OdDbObject* object) const;

  // The objects an answer to "Select objects:" names: ALL (every object of
  // model space), P or Previous (the previous selection), criteria words
  // Type=LIST, Layer=PATTERN, Space=model|paper|all and Blocks (combined
  // with spaces), or handles and kinds (DXF type or display name, with
  // wildcards). False with a sentence when a criterion cannot be read or a
  // handle names nothing.
  static bool SelectByAnswer(OdDbDatabase* db, const QString& answer, OdDbObjectIdArray& out, QString* why = nullptr);

  // The previous selection: the last one a command or program made.
  static void SetPrevious(const OdDbObjectIdArray& ids);
  static const OdDbObjectIdArray& Previous();
};

// Where an object lives: "model", "paper" (a layout) or "block" (a block
// definition), the name of the block record that holds it and the name of
// that block's layout as the drawing's tabs show it ("Model", "Sheet 1").
struct ZQKERNEL_API CZqObjectPlace {
  QString space;
  QString block;
  QString layout;  // the name of the block's layout (its tab); empty in block definitions
  static CZqObjectPlace Of(const OdDbObject* object);
};
