#pragma once
// Symbol tables (layers, linetypes, text styles, dimension styles,
// registered applications, blocks) and their records. Names are unique in a
// table and compared without regard to case.
#include "DbEntity.h"

class DB_API OdDbSymbolTableRecord : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbSymbolTableRecord);

 public:
  OdString getName() const { assertReadEnabled(); return m_name; }
  // Renames the record; a name taken by another record of the table raises
  // OdError(eDuplicateRecordName).
  void setName(const OdString& name);
  // Records that come from an external reference ("XREF|NAME").
  bool isDependent() const { return m_name.qstring().contains('|'); }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_name;
};
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

class DB_API OdDbSymbolTable : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbSymbolTable);

 public:
  // The id of the record with this name, or the null id.
  OdDbObjectId getAt(const OdString& name, bool getErasedRecord = false) const;
  bool has(const OdString& name) const { return !getAt(name).isNull(); }
  bool has(const OdDbObjectId& id) const;
  // Adds a record to the table and the database; raises
  // OdError(eDuplicateRecordName) for a name already in the table, and
  // OdError(eInvalidSymbolTableName) for an empty name.
  OdDbObjectId add(OdDbSymbolTableRecord* record);
  // The records in the order they were added.
  OdDbObjectIdArray recordIds() const;
  // Used by the records and the file reader.
  void renameInternal(const OdString& oldName, const OdString& newName);
  void appendInternal(const OdDbObjectId& id);

  // The record class this table holds.
  virtual OdRxClass* recordClass() const = 0;

 private:
  OdDbObjectIdArray m_records;
};
using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;

#define ODDB_DECLARE_TABLE(Table, Record)                             \
  class DB_API Table : public OdDbSymbolTable {                       \
    ODRX_DECLARE_MEMBERS(Table);                                      \
                                                                      \
   public:                                                            \
    static OdSmartPtr<Table> createObject();                          \
    OdRxClass* recordClass() const override;                          \
  };                                                                  \
  using Table##Ptr = OdSmartPtr<Table>

class DB_API OdDbLayerTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbLayerTableRecord);

 public:
  static OdSmartPtr<OdDbLayerTableRecord> createObject();
  OdCmColor color() const { assertReadEnabled(); return m_color; }
  void setColor(const OdCmColor& c) { assertWriteEnabled(); m_color = c; }
  OdDbObjectId linetypeObjectId() const { assertReadEnabled(); return m_linetype; }
  void setLinetypeObjectId(const OdDbObjectId& id) { assertWriteEnabled(); m_linetype = id; }
  OdDb::LineWeight lineWeight() const { assertReadEnabled(); return m_lineWeight; }
  void setLineWeight(OdDb::LineWeight lw) { assertWriteEnabled(); m_lineWeight = lw; }
  OdCmTransparency transparency() const { assertReadEnabled(); return m_transparency; }
  void setTransparency(const OdCmTransparency& t) { assertWriteEnabled(); m_transparency = t; }
  OdString plotStyleName() const { assertReadEnabled(); return m_plotStyle; }
  void setPlotStyleName(const OdString& s) { assertWriteEnabled(); m_plotStyle = s; }
  bool isOff() const { assertReadEnabled(); return m_off; }
  void setIsOff(bool v) { assertWriteEnabled(); m_off = v; }
  bool isFrozen() const { assertReadEnabled(); return m_frozen; }
  void setIsFrozen(bool v) { assertWriteEnabled(); m_frozen = v; }
  bool isLocked() const { assertReadEnabled(); return m_locked; }
  void setIsLocked(bool v) { assertWriteEnabled(); m_locked = v; }
  bool isPlottable() const { assertReadEnabled(); return m_plottable; }
  void setIsPlottable(bool v) { assertWriteEnabled(); m_plottable = v; }
  // The description, kept as CAD hosts keep it: the second text of the
  // layer's "AcAecLayerStandard" extended data. An empty one removes it.
  OdString description() const;
  void setDescription(const OdString& text);
  void copyFrom(const OdRxObject* source) override;

 private:
  OdCmColor m_color = OdCmColor::fromIndex(7);
  OdDbObjectId m_linetype;
  OdDb::LineWeight m_lineWeight = OdDb::kLnWtByLwDefault;
  OdCmTransparency m_transparency{OdCmTransparency::kByAlpha};
  OdString m_plotStyle;
  bool m_off = false, m_frozen = false, m_locked = false, m_plottable = true;
};
using OdDbLayerTableRecordPtr = OdSmartPtr<OdDbLayerTableRecord>;

class DB_API OdDbLinetypeTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbLinetypeTableRecord);

 public:
  static OdSmartPtr<OdDbLinetypeTableRecord> createObject();
  OdString comments() const { assertReadEnabled(); return m_comments; }
  void setComments(const OdString& s) { assertWriteEnabled(); m_comments = s; }
  double patternLength() const { assertReadEnabled(); return m_patternLength; }
  void setPatternLength(double v) { assertWriteEnabled(); m_patternLength = v; }
  const OdArray<double>& dashes() const { assertReadEnabled(); return m_dashes; }
  void setDashes(const OdArray<double>& d) { assertWriteEnabled(); m_dashes = d; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_comments;
  double m_patternLength = 0;
  OdArray<double> m_dashes;
};
using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

class DB_API OdDbTextStyleTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbTextStyleTableRecord);

 public:
  static OdSmartPtr<OdDbTextStyleTableRecord> createObject();
  double textSize() const { assertReadEnabled(); return m_textSize; }
  void setTextSize(double v) { assertWriteEnabled(); m_textSize = v; }
  double xScale() const { assertReadEnabled(); return m_xScale; }
  void setXScale(double v) { assertWriteEnabled(); m_xScale = v; }
  double obliquingAngle() const { assertReadEnabled(); return m_oblique; }
  void setObliquingAngle(double v) { assertWriteEnabled(); m_oblique = v; }
  double priorSize() const { assertReadEnabled(); return m_priorSize; }
  void setPriorSize(double v) { assertWriteEnabled(); m_priorSize = v; }
  OdString fileName() const { assertReadEnabled(); return m_fileName; }
  void setFileName(const OdString& s) { assertWriteEnabled(); m_fileName = s; }
  OdString bigFontFileName() const { assertReadEnabled(); return m_bigFont; }
  void setBigFontFileName(const OdString& s) { assertWriteEnabled(); m_bigFont = s; }
  bool isShapeFile() const { assertReadEnabled(); return m_flags & 1; }
  bool isVertical() const { assertReadEnabled(); return m_flags & 4; }
  int flags() const { assertReadEnabled(); return m_flags; }
  void setFlags(int f) { assertWriteEnabled(); m_flags = f; }
  // Text generation flags: 2 backward, 4 upside down.
  int textGenerationFlags() const { assertReadEnabled(); return m_genFlags; }
  void setTextGenerationFlags(int f) { assertWriteEnabled(); m_genFlags = f; }
  void copyFrom(const OdRxObject* source) override;

 private:
  double m_textSize = 0, m_xScale = 1, m_oblique = 0, m_priorSize = 2.5;
  OdString m_fileName{"txt"}, m_bigFont;
  int m_flags = 0, m_genFlags = 0;
};
using OdDbTextStyleTableRecordPtr = OdSmartPtr<OdDbTextStyleTableRecord>;

// Dimension style records: DbDimStyle.h.
class OdDbDimStyleTableRecord;

class DB_API OdDbRegAppTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbRegAppTableRecord);

 public:
  static OdSmartPtr<OdDbRegAppTableRecord> createObject();
};
using OdDbRegAppTableRecordPtr = OdSmartPtr<OdDbRegAppTableRecord>;

// A block: model space, a paper-space layout or a block definition, owning
// its entities in drawing order.
class DB_API OdDbBlockTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbBlockTableRecord);

 public:
  static OdSmartPtr<OdDbBlockTableRecord> createObject();
  static const OdString& modelSpaceStr();   // "*Model_Space"
  static const OdString& paperSpaceStr();   // "*Paper_Space"
  bool isModelSpace() const;
  bool isPaperSpace() const;
  bool isLayout() const { return isModelSpace() || isPaperSpace(); }

  // Adds the entity to the database (when it is not yet in it) and to this
  // block, last in drawing order. The block must be in a database.
  OdDbObjectId appendOdDbEntity(OdDbEntity* entity);
  // The entities of the block in drawing order (erased ones left out unless asked).
  OdDbObjectIdArray entityIds(bool includeErased = false) const;
  // Used by the file reader to keep the order of the file.
  void appendEntityIdInternal(const OdDbObjectId& id) { m_entities.append(id); }

  OdGePoint3d origin() const { assertReadEnabled(); return m_origin; }
  void setOrigin(const OdGePoint3d& p) { assertWriteEnabled(); m_origin = p; }
  // How references may scale the block: 0 any factors, 1 the same factor
  // on every axis. Its insertion units ($INSUNITS codes) and whether
  // references may be exploded.
  int blockScaling() const { assertReadEnabled(); return m_scaling; }
  void setBlockScaling(int v) { assertWriteEnabled(); m_scaling = v; }
  int blockInsertUnits() const { assertReadEnabled(); return m_insertUnits; }
  void setBlockInsertUnits(int v) { assertWriteEnabled(); m_insertUnits = v; }
  bool explodable() const { assertReadEnabled(); return m_explodable; }
  void setExplodable(bool v) { assertWriteEnabled(); m_explodable = v; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbObjectIdArray m_entities;
  OdGePoint3d m_origin;
  int m_scaling = 0, m_insertUnits = 0;
  bool m_explodable = true;
};
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

ODDB_DECLARE_TABLE(OdDbLayerTable, OdDbLayerTableRecord);
ODDB_DECLARE_TABLE(OdDbLinetypeTable, OdDbLinetypeTableRecord);
ODDB_DECLARE_TABLE(OdDbTextStyleTable, OdDbTextStyleTableRecord);
ODDB_DECLARE_TABLE(OdDbDimStyleTable, OdDbDimStyleTableRecord);
ODDB_DECLARE_TABLE(OdDbRegAppTable, OdDbRegAppTableRecord);
ODDB_DECLARE_TABLE(OdDbBlockTable, OdDbBlockTableRecord);
