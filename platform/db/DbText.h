#pragma once
// Single-line text, and the attributes and attribute definitions that are
// single-line texts with a tag.
#include "DbEntity.h"

namespace OdDb {
enum TextHorzMode : int { kTextLeft = 0, kTextCenter = 1, kTextRight = 2, kTextAlign = 3, kTextMid = 4, kTextFit = 5 };
enum TextVertMode : int { kTextBase = 0, kTextBottom = 1, kTextVertMid = 2, kTextTop = 3 };
}  // namespace OdDb

// A line of text. Points are WCS; the text lies in the plane of its normal.
// The position is where a left-aligned text starts on its base line; for
// every other justification the alignment point is the one that counts
// (both for "Aligned" and "Fit").
class DB_API OdDbText : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbText);

 public:
  static OdSmartPtr<OdDbText> createObject();
  OdDbText();

  OdGePoint3d position() const { assertReadEnabled(); return m_position; }
  void setPosition(const OdGePoint3d& p);
  OdGePoint3d alignmentPoint() const { assertReadEnabled(); return m_alignment; }
  void setAlignmentPoint(const OdGePoint3d& p);
  // Left on the base line: the alignment point is not used.
  bool isDefaultAlignment() const { return horizontalMode() == OdDb::kTextLeft && verticalMode() == OdDb::kTextBase; }
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  double thickness() const { assertReadEnabled(); return m_thickness; }
  void setThickness(double t);
  // Obliquing angle (radians), within +-85 degrees.
  double oblique() const { assertReadEnabled(); return m_oblique; }
  void setOblique(double angle);
  double rotation() const { assertReadEnabled(); return m_rotation; }
  void setRotation(double angle);
  // Greater than 0.
  double height() const { assertReadEnabled(); return m_height; }
  void setHeight(double h);
  // Greater than 0.
  double widthFactor() const { assertReadEnabled(); return m_widthFactor; }
  void setWidthFactor(double w);
  OdString textString() const { assertReadEnabled(); return m_text; }
  void setTextString(const OdString& s);
  // The text style record (null: none).
  OdDbObjectId textStyle() const { assertReadEnabled(); return m_style; }
  void setTextStyle(const OdDbObjectId& id);
  OdDb::TextHorzMode horizontalMode() const { assertReadEnabled(); return m_horz; }
  void setHorizontalMode(OdDb::TextHorzMode m);
  OdDb::TextVertMode verticalMode() const { assertReadEnabled(); return m_vert; }
  void setVerticalMode(OdDb::TextVertMode m);
  // Backward (mirrored in X) and upside down (mirrored in Y): the text
  // generation flags 2 and 4.
  bool isMirroredInX() const { assertReadEnabled(); return m_genFlags & 2; }
  void mirrorInX(bool on);
  bool isMirroredInY() const { assertReadEnabled(); return m_genFlags & 4; }
  void mirrorInY(bool on);

  // The corners of the text's box in WCS, measured with the real font of
  // its style (see DbFontMetrics.h): top left, top right, bottom left,
  // bottom right, from the start point along the base line (backward and
  // upside-down text runs the other way). The box is as high as a capital.
  void getBoundingPoints(OdArray<OdGePoint3d>& points) const;

  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_position, m_alignment;
  OdGeVector3d m_normal{0, 0, 1};
  double m_thickness = 0, m_oblique = 0, m_rotation = 0, m_height = 0.2, m_widthFactor = 1;
  OdString m_text;
  OdDbObjectId m_style;
  OdDb::TextHorzMode m_horz = OdDb::kTextLeft;
  OdDb::TextVertMode m_vert = OdDb::kTextBase;
  int m_genFlags = 0;
};
using OdDbTextPtr = OdSmartPtr<OdDbText>;

// An attribute definition of a block: tag, prompt, default value (the text
// string) and flags.
class DB_API OdDbAttributeDefinition : public OdDbText {
  ODRX_DECLARE_MEMBERS(OdDbAttributeDefinition);

 public:
  static OdSmartPtr<OdDbAttributeDefinition> createObject();

  // Not empty, no blanks.
  OdString tag() const { assertReadEnabled(); return m_tag; }
  void setTag(const OdString& tag);
  OdString prompt() const { assertReadEnabled(); return m_prompt; }
  void setPrompt(const OdString& s) { assertWriteEnabled(); m_prompt = s; }
  // Group 70: 1 invisible, 2 constant, 4 verify, 8 preset.
  int flags() const { assertReadEnabled(); return m_flags; }
  void setFlags(int f);
  bool isInvisible() const { return flags() & 1; }
  void setInvisible(bool on) { setFlags(on ? flags() | 1 : flags() & ~1); }
  bool isConstant() const { return flags() & 2; }
  void setConstant(bool on) { setFlags(on ? flags() | 2 : flags() & ~2); }
  bool isVerifiable() const { return flags() & 4; }
  void setVerifiable(bool on) { setFlags(on ? flags() | 4 : flags() & ~4); }
  bool isPreset() const { return flags() & 8; }
  void setPreset(bool on) { setFlags(on ? flags() | 8 : flags() & ~8); }
  int fieldLength() const { assertReadEnabled(); return m_fieldLength; }
  void setFieldLength(int n) { assertWriteEnabled(); m_fieldLength = n; }
  // Whether the attribute keeps its place in a block reference when the
  // reference's grips are moved (R2010 and later files).
  bool lockPositionInBlock() const { assertReadEnabled(); return m_lockPosition; }
  void setLockPositionInBlock(bool on) { assertWriteEnabled(); m_lockPosition = on; }
  // Whether the file holds the attribute as multiline text (R2018 and later
  // files). The platform keeps the multiline text as read and does not
  // convert between the two kinds; setMultilineFlag is for the reader.
  bool isMTextAttributeDefinition() const { assertReadEnabled(); return m_multiline; }
  void setMultilineFlag(bool on) { assertWriteEnabled(); m_multiline = on; }

  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_tag, m_prompt;
  int m_flags = 0, m_fieldLength = 0;
  bool m_lockPosition = false, m_multiline = false;
};
using OdDbAttributeDefinitionPtr = OdSmartPtr<OdDbAttributeDefinition>;

// An attribute of a block reference: tag, value (the text string) and flags.
class DB_API OdDbAttribute : public OdDbText {
  ODRX_DECLARE_MEMBERS(OdDbAttribute);

 public:
  static OdSmartPtr<OdDbAttribute> createObject();

  OdString tag() const { assertReadEnabled(); return m_tag; }
  void setTag(const OdString& tag);
  // Group 70: 1 invisible, 2 constant, 4 verify, 8 preset.
  int flags() const { assertReadEnabled(); return m_flags; }
  void setFlags(int f);
  bool isInvisible() const { return flags() & 1; }
  void setInvisible(bool on) { setFlags(on ? flags() | 1 : flags() & ~1); }
  bool isConstant() const { return flags() & 2; }
  bool isVerifiable() const { return flags() & 4; }
  bool isPreset() const { return flags() & 8; }
  int fieldLength() const { assertReadEnabled(); return m_fieldLength; }
  void setFieldLength(int n) { assertWriteEnabled(); m_fieldLength = n; }
  // Whether the attribute keeps its place in a block reference when the
  // reference's grips are moved (R2010 and later files).
  bool lockPositionInBlock() const { assertReadEnabled(); return m_lockPosition; }
  void setLockPositionInBlock(bool on) { assertWriteEnabled(); m_lockPosition = on; }
  // Whether the file holds the attribute as multiline text (R2018 and later
  // files). The platform keeps the multiline text as read and does not
  // convert between the two kinds; setMultilineFlag is for the reader.
  bool isMTextAttribute() const { assertReadEnabled(); return m_multiline; }
  void setMultilineFlag(bool on) { assertWriteEnabled(); m_multiline = on; }

  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_tag;
  int m_flags = 0, m_fieldLength = 0;
  bool m_lockPosition = false, m_multiline = false;
};
using OdDbAttributePtr = OdSmartPtr<OdDbAttribute>;
