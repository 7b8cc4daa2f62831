#pragma once
// Text laid along a circular arc.
#include "DbEntity.h"

// The arc is the circle of center and radius (WCS, in the plane of the
// normal) from the start to the end angle (radians, counterclockwise about
// the normal). The text runs along it at its offset from the arc, kept
// clear of the arc's ends by the left and right offsets. What the platform
// does not model (font names, bold/italic, the arc it follows) stays in the
// drawing file as read.
class DB_API OdDbArcAlignedText : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbArcAlignedText);

 public:
  // Where the text sits on the arc (group 72).
  enum Alignment { kFit = 1, kLeft = 2, kRight = 3, kCenter = 4 };

  static OdSmartPtr<OdDbArcAlignedText> createObject();
  OdDbArcAlignedText();

  OdString textString() const { assertReadEnabled(); return m_text; }
  void setTextString(const OdString& s);
  OdDbObjectId textStyle() const { assertReadEnabled(); return m_style; }
  void setTextStyle(const OdDbObjectId& id) { assertWriteEnabled(); m_style = id; }
  // Greater than 0.
  double textSize() const { assertReadEnabled(); return m_size; }
  void setTextSize(double h);
  // Greater than 0.
  double xScale() const { assertReadEnabled(); return m_xScale; }
  void setXScale(double s);
  // The extra space between characters; any finite number.
  double charSpacing() const { assertReadEnabled(); return m_charSpacing; }
  void setCharSpacing(double d);
  OdGePoint3d center() const { assertReadEnabled(); return m_center; }
  void setCenter(const OdGePoint3d& p);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  // Greater than 1e-10.
  double radius() const { assertReadEnabled(); return m_radius; }
  void setRadius(double r);
  double startAngle() const { assertReadEnabled(); return m_startAngle; }
  void setStartAngle(double a);
  double endAngle() const { assertReadEnabled(); return m_endAngle; }
  void setEndAngle(double a);
  double offsetFromArc() const { assertReadEnabled(); return m_offset; }
  void setOffsetFromArc(double d);
  double leftOffset() const { assertReadEnabled(); return m_left; }
  void setLeftOffset(double d);
  double rightOffset() const { assertReadEnabled(); return m_right; }
  void setRightOffset(double d);
  Alignment alignment() const { assertReadEnabled(); return m_alignment; }
  void setAlignment(Alignment a);

  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_text;
  OdDbObjectId m_style;
  double m_size = 0.2, m_xScale = 1, m_charSpacing = 0, m_radius = 1, m_startAngle = 0, m_endAngle = OdaPI;
  double m_offset = 0, m_left = 0, m_right = 0;
  OdGePoint3d m_center;
  OdGeVector3d m_normal{0, 0, 1};
  Alignment m_alignment = kFit;
};
using OdDbArcAlignedTextPtr = OdSmartPtr<OdDbArcAlignedText>;
