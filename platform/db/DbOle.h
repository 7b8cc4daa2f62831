#pragma once
// OLE frames: an object of another program embedded in, or linked to, the
// drawing, shown in a rectangle given by its upper left and lower right
// corners. The object's data stays in the drawing as it is.
#include "DbEntity.h"

class DB_API OdDbFrame : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbFrame);
};

class DB_API OdDbOleFrame : public OdDbFrame {
  ODRX_DECLARE_MEMBERS(OdDbOleFrame);
};

class DB_API OdDbOle2Frame : public OdDbOleFrame {
  ODRX_DECLARE_MEMBERS(OdDbOle2Frame);

 public:
  static OdSmartPtr<OdDbOle2Frame> createObject();

  enum Type { kLink = 1, kEmbedded = 2, kStatic = 3 };

  // Corners in WCS.
  OdGePoint3d upperLeft() const { assertReadEnabled(); return m_d.upperLeft; }
  OdGePoint3d lowerRight() const { assertReadEnabled(); return m_d.lowerRight; }
  void setUpperLeft(const OdGePoint3d& p) { assertWriteEnabled(); m_d.upperLeft = p; }
  void setLowerRight(const OdGePoint3d& p) { assertWriteEnabled(); m_d.lowerRight = p; }
  // Moves the frame so that its upper left corner is at p.
  void setPosition(const OdGePoint3d& p);
  // Width (along X) and height (along Y); setting one keeps the upper left
  // corner. Not positive raises OdError(eInvalidInput).
  double width() const;
  double height() const;
  void setWidth(double w);
  void setHeight(double h);
  int type() const { assertReadEnabled(); return m_d.type; }
  void setType(int t) { assertWriteEnabled(); m_d.type = t; }
  // 0 model space, 1 paper space (group 72).
  int tileMode() const { assertReadEnabled(); return m_d.tileMode; }
  void setTileMode(int m) { assertWriteEnabled(); m_d.tileMode = m; }

  void copyFrom(const OdRxObject* source) override;

 private:
  struct Data {
    OdGePoint3d upperLeft, lowerRight;
    int type = kEmbedded, tileMode = 0;
  } m_d;
};
using OdDbOle2FramePtr = OdSmartPtr<OdDbOle2Frame>;
