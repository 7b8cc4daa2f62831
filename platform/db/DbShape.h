#pragma once
// A shape: one symbol of a shape file, placed at a point with a size, a
// rotation, a width factor and an oblique angle, in the plane of its normal.
#include "DbEntity.h"

class DB_API OdDbShape : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbShape);

 public:
  static OdSmartPtr<OdDbShape> createObject();
  OdDbShape();

  OdString name() const { assertReadEnabled(); return m_name; }
  void setName(const OdString& name);
  // The insertion point in WCS.
  OdGePoint3d position() const { assertReadEnabled(); return m_position; }
  void setPosition(const OdGePoint3d& p);
  // Size and width factor must be greater than 0, the oblique angle within
  // 85 degrees either way; otherwise OdError(eInvalidInput).
  double size() const { assertReadEnabled(); return m_size; }
  void setSize(double size);
  double rotation() const { assertReadEnabled(); return m_rotation; }
  void setRotation(double angle);
  double widthFactor() const { assertReadEnabled(); return m_widthFactor; }
  void setWidthFactor(double factor);
  double oblique() const { assertReadEnabled(); return m_oblique; }
  void setOblique(double angle);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_name;
  OdGePoint3d m_position;
  double m_size = 1, m_rotation = 0, m_widthFactor = 1, m_oblique = 0, m_thickness = 0;
  OdGeVector3d m_normal{0, 0, 1};
};
using OdDbShapePtr = OdSmartPtr<OdDbShape>;
