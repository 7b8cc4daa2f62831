#pragma once
// Block references (INSERT): a block placed at a point with scale factors,
// a rotation about its normal and the attributes that go with it; multiple
// inserts (MINSERT), the same placed in rows and columns.
#include "DbEntity.h"

class OdDbAttribute;

// Scale factors along X, Y and Z.
struct OdGeScale3d {
  double sx = 1, sy = 1, sz = 1;
  OdGeScale3d() = default;
  OdGeScale3d(double x, double y, double z) : sx(x), sy(y), sz(z) {}
  double operator[](int i) const { return i == 0 ? sx : i == 1 ? sy : sz; }
  double& operator[](int i) { return i == 0 ? sx : i == 1 ? sy : sz; }
  friend bool operator==(const OdGeScale3d&, const OdGeScale3d&) = default;
};

class DB_API OdDbBlockReference : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbBlockReference);

 public:
  static OdSmartPtr<OdDbBlockReference> createObject();

  // The block placed. A reference read from a file may name a block that is
  // defined further on; it is found by name when first asked.
  OdDbObjectId blockTableRecord() const;
  // Raises OdError(eInvalidInput) for an id that is not a block of the
  // reference's drawing.
  void setBlockTableRecord(const OdDbObjectId& id);
  // The name of the block placed (the name the file gave when it names no
  // block of the drawing).
  OdString blockName() const;
  void setBlockNameInternal(const OdString& name);

  // The insertion point in WCS.
  OdGePoint3d position() const { assertReadEnabled(); return m_position; }
  void setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_position = p; }
  // A factor of 0 (or not finite) raises OdError(eInvalidInput).
  OdGeScale3d scaleFactors() const { assertReadEnabled(); return m_scale; }
  void setScaleFactors(const OdGeScale3d& s);
  double rotation() const { assertReadEnabled(); return m_rotation; }
  void setRotation(double angle);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  // Block coordinates to WCS: base point to the origin, scaled, rotated,
  // into the plane of the normal, moved to the insertion point.
  OdGeMatrix3d blockTransform() const;

  // Factor from the block's insertion units to the drawing's ($INSUNITS);
  // 1 when either is unitless.
  double unitFactor() const;

  // The attributes of the reference (owned by it), in file order.
  const OdDbObjectIdArray& attributeIds() const { assertReadEnabled(); return m_attributes; }
  // Adds an attribute to the database, owned by this reference (which must
  // be in a database).
  OdDbObjectId appendAttribute(OdDbAttribute* attribute);
  void appendAttributeInternal(const OdDbObjectId& id) { m_attributes.append(id); }

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  mutable OdDbObjectId m_block;
  OdString m_blockName;
  OdGePoint3d m_position;
  OdGeScale3d m_scale;
  double m_rotation = 0;
  OdGeVector3d m_normal{0, 0, 1};
  OdDbObjectIdArray m_attributes;
};
using OdDbBlockReferencePtr = OdSmartPtr<OdDbBlockReference>;

// A block reference repeated in a grid of rows and columns (spacing along
// the reference's own X and Y axes).
class DB_API OdDbMInsertBlock : public OdDbBlockReference {
  ODRX_DECLARE_MEMBERS(OdDbMInsertBlock);

 public:
  static OdSmartPtr<OdDbMInsertBlock> createObject();
  // Counts are 1..32767; others raise OdError(eInvalidInput).
  int columns() const { assertReadEnabled(); return m_columns; }
  void setColumns(int n);
  int rows() const { assertReadEnabled(); return m_rows; }
  void setRows(int n);
  double columnSpacing() const { assertReadEnabled(); return m_columnSpacing; }
  void setColumnSpacing(double d);
  double rowSpacing() const { assertReadEnabled(); return m_rowSpacing; }
  void setRowSpacing(double d);
  void copyFrom(const OdRxObject* source) override;

 private:
  int m_columns = 1, m_rows = 1;
  double m_columnSpacing = 0, m_rowSpacing = 0;
};
using OdDbMInsertBlockPtr = OdSmartPtr<OdDbMInsertBlock>;

// Meters per drawing unit of the insertion-units code (0 unitless: 0).
DB_API double odDbMetersPerUnit(int insunits);
