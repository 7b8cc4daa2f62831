#pragma once
// Named views (VIEW) and viewport configurations (VPORT): what a view looks
// at - its centre and size in display coordinates, the direction it looks
// from, its target, lens and twist - and, for viewport configurations, the
// drawing aids of the viewport (grid and snap). The configuration named
// "*Active" is the current model-space view.
#include "DbSymbolTable.h"
#include "OdGePoint.h"

class DB_API OdDbAbstractViewTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbAbstractViewTableRecord);

 public:
  OdGePoint2d centerPoint() const { assertReadEnabled(); return m_center; }
  void setCenterPoint(const OdGePoint2d& p) { assertWriteEnabled(); m_center = p; }
  double height() const { assertReadEnabled(); return m_height; }
  void setHeight(double v) { assertWriteEnabled(); m_height = v; }
  double width() const { assertReadEnabled(); return m_width; }
  void setWidth(double v) { assertWriteEnabled(); m_width = v; }
  OdGeVector3d viewDirection() const { assertReadEnabled(); return m_direction; }
  void setViewDirection(const OdGeVector3d& v) { assertWriteEnabled(); m_direction = v; }
  OdGePoint3d target() const { assertReadEnabled(); return m_target; }
  void setTarget(const OdGePoint3d& p) { assertWriteEnabled(); m_target = p; }
  double lensLength() const { assertReadEnabled(); return m_lens; }
  void setLensLength(double v) { assertWriteEnabled(); m_lens = v; }
  double viewTwist() const { assertReadEnabled(); return m_twist; }
  void setViewTwist(double v) { assertWriteEnabled(); m_twist = v; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint2d m_center;
  double m_height = 1, m_width = 1, m_lens = 50, m_twist = 0;
  OdGeVector3d m_direction{0, 0, 1};
  OdGePoint3d m_target;
};

class DB_API OdDbViewTableRecord : public OdDbAbstractViewTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbViewTableRecord);

 public:
  static OdSmartPtr<OdDbViewTableRecord> createObject();
  // Views saved in paper space (flag 1 of group 70).
  bool isPaperspaceView() const { assertReadEnabled(); return m_flags & 1; }
  int flags() const { assertReadEnabled(); return m_flags; }
  void setFlags(int f) { assertWriteEnabled(); m_flags = f; }
  void copyFrom(const OdRxObject* source) override;

 private:
  int m_flags = 0;
};
using OdDbViewTableRecordPtr = OdSmartPtr<OdDbViewTableRecord>;

class DB_API OdDbViewportTableRecord : public OdDbAbstractViewTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbViewportTableRecord);

 public:
  static OdSmartPtr<OdDbViewportTableRecord> createObject();
  bool gridEnabled() const { assertReadEnabled(); return m_grid; }
  void setGridEnabled(bool v) { assertWriteEnabled(); m_grid = v; }
  OdGePoint2d gridIncrements() const { assertReadEnabled(); return m_gridSpacing; }
  void setGridIncrements(const OdGePoint2d& v) { assertWriteEnabled(); m_gridSpacing = v; }
  bool snapEnabled() const { assertReadEnabled(); return m_snap; }
  void setSnapEnabled(bool v) { assertWriteEnabled(); m_snap = v; }
  OdGePoint2d snapIncrements() const { assertReadEnabled(); return m_snapSpacing; }
  void setSnapIncrements(const OdGePoint2d& v) { assertWriteEnabled(); m_snapSpacing = v; }
  OdGePoint2d snapBase() const { assertReadEnabled(); return m_snapBase; }
  void setSnapBase(const OdGePoint2d& p) { assertWriteEnabled(); m_snapBase = p; }
  double snapAngle() const { assertReadEnabled(); return m_snapAngle; }
  void setSnapAngle(double v) { assertWriteEnabled(); m_snapAngle = v; }
  // Width over height: the width follows the height and this ratio.
  double aspectRatio() const { return height() != 0 ? width() / height() : 1.0; }
  void setAspectRatio(double r) { setWidth(height() * r); }
  void copyFrom(const OdRxObject* source) override;

 private:
  bool m_grid = false, m_snap = false;
  OdGePoint2d m_gridSpacing{10, 10}, m_snapSpacing{10, 10}, m_snapBase;
  double m_snapAngle = 0;
};
using OdDbViewportTableRecordPtr = OdSmartPtr<OdDbViewportTableRecord>;

ODDB_DECLARE_TABLE(OdDbViewTable, OdDbViewTableRecord);
ODDB_DECLARE_TABLE(OdDbViewportTable, OdDbViewportTableRecord);
