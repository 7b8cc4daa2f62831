#pragma once
// The host's command base and the properties-window service shared by the
// Properties palette, the command-line properties command and the programs.
#include "KernelExport.h"
#include "EdCommandStack.h"
#include "ZqPropertiesKernel.h"
#include "DbDatabase.h"
#include "CZqCloudBase.h"
#include "CZqDocument.h"
#include <functional>
#include <memory>
#include <vector>

// Base of the host's commands: the command group, error handling around the
// body, and the body as the command's own operation.
class ZQKERNEL_API CZqCommand : public OdEdCommand {
 public:
  const OdString groupName() const override;
  // Runs ExecuteCommand. A cancel (end of input) ends the command quietly
  // with "*Cancel*"; a platform error is reported as a line and ends it.
  void execute(OdEdCommandContext* pCmdCtx) override;
  virtual CZqString displayName() const { return CZqString(localName()); }
  virtual CZqString Help() const { return CZqString(); }
  virtual int GetHelpId() const { return 0; }
  virtual void undefine(bool) {}

 protected:
  virtual void ExecuteCommand(OdEdCommandContext* pCmdCtx) = 0;
};

// One row of the palette for a selection: the rows that every selected
// object has (by category and name), in the order of the first object.
struct ZQKERNEL_API CZqPaletteRow {
  CZqString category;           // as displayed (translated)
  CZqString name;
  CZqString categoryKey;        // untranslated: what lookups and scripts use
  CZqString nameKey;
  CZqCustomPropertyType type;
  unsigned visibility = 0;
  bool readOnly = false;        // read-only for at least one object
  bool varies = false;          // the objects show different values
  CZqVariant value;             // the common value (empty when it varies)
  CZqVariant sample;            // the first object's value, even when it varies
  CZqString text;               // the value as the palette shows it

  // The row as a listing prints it: "Category/Name: text", marked when
  // read-only.
  QString ListLine() const;
};

// The result of applying one edit to one object.
struct ZQKERNEL_API CZqEditResult {
  OdDbObjectId id;
  int code = 0;                 // the setter's answer (5100 applied, -5001 refused)
  CZqString message;            // why it was refused: a sentence (empty when applied)
};

class ZQKERNEL_API CZqPropertiesWindowService {
 public:
  explicit CZqPropertiesWindowService(OdDbDatabase* db);
  ~CZqPropertiesWindowService();

  // Sets the selection and publishes it through the selection gate. A
  // selection other than the current one starts at the first item again.
  void SetSelection(const OdDbObjectIdArray& ids);
  const OdDbObjectIdArray& Selection() const { return m_selection; }

  // The current item of rows that show one of several (the vertex of a
  // polyline's vertex rows): the index variant given to every getter and
  // setter; empty stands for the first item. Setting a current-item row (the
  // Vertex row) to a choice makes that item current; nothing in the drawing
  // changes then.
  const CZqVariant& CurrentIndex() const { return m_index; }
  void SetCurrentIndex(const CZqVariant& index) { m_index = index; }
  // Whether a row chooses the current item rather than holding a value.
  static bool IsCurrentItemRow(const CZqCustomPropertyType& type);

  // Edits of objects on a locked layer are refused unless allowed here (for
  // every service of the process; a program's "force" option).
  static void SetEditLockedLayers(bool allow);
  static bool EditLockedLayers();

  // The rows shown for the selection: rows of every object with the
  // palette bit; with more than one object, rows marked single-only are
  // left out. Rows are grouped by category in order of first appearance.
  std::vector<CZqPaletteRow> Rows(unsigned requiredBits = kZqVisPalette) const;
  // Only the rows `want` accepts (given the row's keys and displayed
  // texts): the others are neither read nor formatted.
  using RowFilter = std::function<bool(const CZqString& categoryKey, const CZqString& nameKey, const CZqString& category,
                                       const CZqString& name)>;
  std::vector<CZqPaletteRow> Rows(unsigned requiredBits, const RowFilter& want) const;
  // Finds a row by its untranslated name or its displayed name,
  // case-insensitively; "Category/Name" picks one of two rows of the same
  // name. Null with a reason when none
  // or more than one row matches.
  const CZqPaletteRow* FindRow(const std::vector<CZqPaletteRow>& rows, const QString& name, QString* why = nullptr) const;
  // Applies value to the row on every selected object, at `index` (empty:
  // the current item, see CurrentIndex): each is opened for write and the row's setter
  // called. Refused, with a sentence in the result's message, are: a
  // read-only row, an object on a locked layer (unless allowed), a number
  // that is not finite, and whatever the setter refuses; where a setter
  // refuses without a message box, the sentence is the row's own refusal
  // text or else says what the row needs. category and name are the row's
  // keys (its displayed texts are understood as well).
  std::vector<CZqEditResult> SetValue(const CZqString& category, const CZqString& name, const CZqVariant& value,
                                      const CZqVariant& index = CZqVariant());
  // Turns what a user typed into the value a row's setter takes, decided by
  // the kind of value the row shows: distances and angles through the
  // drawing's value parser, strings as typed, integers (lineweights also as
  // "0.25 mm", ByLayer, ByBlock, Default), an enumeration choice by its word
  // or its number, a colour by index, name, ByLayer, ByBlock or r,g,b, and a
  // layer, linetype or style by name. False with a reason for what cannot
  // be read.
  bool ParseValue(const CZqPaletteRow& row, const QString& text, CZqVariant& value, QString* why = nullptr) const;
  // Edits refused by setters since the process started, over every service
  // (programs turn this into their exit status).
  static int RefusedEdits();
  // The text the palette shows for a value of a row.
  static CZqString FormatValue(const OdDbDatabase* db, const CZqVariant& value, const CZqCustomPropertyType& type);

 private:
  OdDbDatabase* m_db;
  OdDbObjectIdArray m_selection;
  CZqVariant m_index;
};

// The palette rows of one object, in the order Rows gives them for a
// selection of that object alone, but neither read nor formatted: a listing
// reads and formats only what it prints, an edit calls only the row it
// changes.
class ZQKERNEL_API CZqObjectRows {
 public:
  // The rows of the object with every bit of requiredBits; only those
  // `want` accepts when it is given.
  explicit CZqObjectRows(const OdDbObjectId& id, unsigned requiredBits = kZqVisPalette,
                         const CZqPropertiesWindowService::RowFilter& want = {}, OdDb::OpenMode mode = OdDb::kForRead);
  ~CZqObjectRows();
  CZqObjectRows(const CZqObjectRows&) = delete;
  CZqObjectRows& operator=(const CZqObjectRows&) = delete;

  // The opened object (null when it could not be opened).
  const OdDbObject* object() const { return m_object.get(); }
  // Whether a provider serves the object (an object without one has no rows).
  bool hasProvider() const { return m_container != nullptr; }
  int size() const { return int(m_rows.size()); }
  const CZqPropertyDescription& at(int i) const { return *m_rows[size_t(i)]; }

 private:
  OdDbObjectPtr m_object;
  std::unique_ptr<CZqPropertiesContainer> m_container;
  std::vector<const CZqPropertyDescription*> m_rows;
};

// Length and area of curves, as the selection totals use them.
class ZQKERNEL_API ZqCurvesHelper {
 public:
  // Length from start to end parameter; 0 for what is not a curve.
  static double GetLength(const OdDbObject* object);
  // Enclosed area; 0 for what has none.
  static double GetArea(const OdDbObject* object);
};
