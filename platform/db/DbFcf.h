#pragma once
// Geometric tolerance frames: the frame text with its control codes
// ("%%v" between the boxes, "^J" between the lines, "{\Fgdt;j}" for a
// symbol), where the frame stands and which way it reads, and the dimension
// style it draws with.
#include "DbLeader.h"

class DB_API OdDbFcf : public OdDbDimStyled<OdDbEntity> {
  ODRX_DECLARE_MEMBERS(OdDbFcf);

 public:
  static OdSmartPtr<OdDbFcf> createObject();
  OdDbFcf();

  OdString text() const { assertReadEnabled(); return m_text; }
  void setText(const OdString& text);
  // The insertion point (WCS).
  OdGePoint3d location() const { assertReadEnabled(); return m_location; }
  void setLocation(const OdGePoint3d& p);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  // The direction the text reads in (WCS).
  OdGeVector3d direction() const { assertReadEnabled(); return m_direction; }
  void setDirection(const OdGeVector3d& d);

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_text;
  OdGePoint3d m_location;
  OdGeVector3d m_normal{0, 0, 1}, m_direction{1, 0, 0};
};
using OdDbFcfPtr = OdSmartPtr<OdDbFcf>;
