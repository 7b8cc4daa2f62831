#pragma once
// Multiline text: formatted contents in a reference rectangle.
#include "DbEntity.h"

namespace OdDb {
enum LineSpacingStyle { kAtLeast = 1, kExactly = 2 };
}  // namespace OdDb

// Points and the direction are WCS; the text lies in the plane of its
// normal. Columns and the rest of what the platform does not model stay in
// the drawing file as they were read.
class DB_API OdDbMText : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbMText);

 public:
  enum AttachmentPoint {
    kTopLeft = 1, kTopCenter = 2, kTopRight = 3, kMiddleLeft = 4, kMiddleCenter = 5, kMiddleRight = 6,
    kBottomLeft = 7, kBottomCenter = 8, kBottomRight = 9
  };
  enum FlowDirection { kLtoR = 1, kRtoL = 2, kTtoB = 3, kBtoT = 4, kByStyle = 5 };

  static OdSmartPtr<OdDbMText> createObject();
  OdDbMText();

  OdGePoint3d location() const { assertReadEnabled(); return m_location; }
  void setLocation(const OdGePoint3d& p);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  // A new normal keeps the rotation: the direction turns with the plane.
  void setNormal(const OdGeVector3d& n);
  // The X axis of the text, a unit vector in the plane of the normal.
  OdGeVector3d direction() const { assertReadEnabled(); return m_direction; }
  // Projected into the plane of the normal; refused when it is parallel to it.
  void setDirection(const OdGeVector3d& d);
  // The angle of the direction in the plane of the normal (radians).
  double rotation() const;
  void setRotation(double angle);
  // Greater than 0.
  double textHeight() const { assertReadEnabled(); return m_height; }
  void setTextHeight(double h);
  // The reference rectangle's width; 0 for no wrapping.
  double width() const { assertReadEnabled(); return m_width; }
  void setWidth(double w);
  AttachmentPoint attachment() const { assertReadEnabled(); return m_attachment; }
  void setAttachment(AttachmentPoint a);
  FlowDirection flowDirection() const { assertReadEnabled(); return m_flow; }
  void setFlowDirection(FlowDirection d);
  OdDb::LineSpacingStyle lineSpacingStyle() const { assertReadEnabled(); return m_spacingStyle; }
  void setLineSpacingStyle(OdDb::LineSpacingStyle s);
  // From 0.25 to 4.
  double lineSpacingFactor() const { assertReadEnabled(); return m_spacingFactor; }
  void setLineSpacingFactor(double f);
  // The contents with their formatting codes.
  OdString contents() const { assertReadEnabled(); return m_contents; }
  void setContents(const OdString& s);
  OdDbObjectId textStyle() const { assertReadEnabled(); return m_style; }
  void setTextStyle(const OdDbObjectId& id);

  // Background fill (group 90: 1 fill on, 2 use the drawing's background
  // colour), its colour (63/421) and the scale of the fill box (45, 1 to 5).
  bool backgroundFillOn() const { assertReadEnabled(); return m_fillFlags & 1; }
  void setBackgroundFill(bool on);
  bool useBackgroundColorOn() const { assertReadEnabled(); return m_fillFlags & 2; }
  void setUseBackgroundColor(bool on);
  int backgroundFillFlags() const { assertReadEnabled(); return m_fillFlags; }
  void setBackgroundFillFlags(int flags);
  OdCmColor getBackgroundFillColor() const { assertReadEnabled(); return m_fillColor; }
  void setBackgroundFillColor(const OdCmColor& c);
  double getBackgroundScaleFactor() const { assertReadEnabled(); return m_fillScale; }
  void setBackgroundScaleFactor(double s);

  // Columns, as the drawing file holds them (an R2018 file in the text's
  // embedded object, older ones in the ACAD extended data). The platform
  // does not lay text out in columns; it keeps and shows what was read.
  enum ColumnType { kNoColumns = 0, kStaticColumns = 1, kDynamicColumns = 2 };
  ColumnType getColumnType() const { assertReadEnabled(); return m_columnType; }
  int getColumnCount() const { assertReadEnabled(); return m_columnCount; }
  double getColumnWidth() const { assertReadEnabled(); return m_columnWidth; }
  double getColumnGutterWidth() const { assertReadEnabled(); return m_columnGutter; }
  bool getColumnAutoHeight() const { assertReadEnabled(); return m_columnAutoHeight; }
  bool getColumnFlowReversed() const { assertReadEnabled(); return m_columnFlowReversed; }
  // The height of the columns (the defined height of the text); 0 when the
  // columns take the height of their contents.
  double getColumnHeight() const { assertReadEnabled(); return m_columnHeight; }
  // Refused: a type out of 0..2, a negative count, width, gutter or height.
  void setColumnType(ColumnType type);
  void setColumnCount(int count);
  void setColumnWidth(double w);
  void setColumnGutterWidth(double g);
  void setColumnAutoHeight(bool on) { assertWriteEnabled(); m_columnAutoHeight = on; }
  void setColumnFlowReversed(bool on) { assertWriteEnabled(); m_columnFlowReversed = on; }
  void setColumnHeight(double h);

  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_location;
  OdGeVector3d m_normal{0, 0, 1}, m_direction{1, 0, 0};
  double m_height = 0.2, m_width = 0, m_spacingFactor = 1, m_fillScale = 1.5;
  AttachmentPoint m_attachment = kTopLeft;
  FlowDirection m_flow = kLtoR;
  OdDb::LineSpacingStyle m_spacingStyle = OdDb::kAtLeast;
  OdString m_contents;
  OdDbObjectId m_style;
  int m_fillFlags = 0;
  OdCmColor m_fillColor = OdCmColor::byBlock();
  ColumnType m_columnType = kNoColumns;
  int m_columnCount = 0;
  double m_columnWidth = 0, m_columnGutter = 0, m_columnHeight = 0;
  bool m_columnAutoHeight = false, m_columnFlowReversed = false;
};
using OdDbMTextPtr = OdSmartPtr<OdDbMText>;
