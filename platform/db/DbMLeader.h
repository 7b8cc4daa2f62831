#pragma once
// Multileaders: leader lines (each a list of vertices, WCS) from arrows to
// one content - a multiline text, a block reference or a tolerance frame,
// or none - with a landing (dogleg) where the lines meet the content, drawn
// after a multileader style. A drawing file keeps the content and the lines
// in a "context data" block; what the platform does not model there is
// kept by the file as it is.
#include "DbEntity.h"

#include <vector>

class DB_API OdDbMLeader : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbMLeader);

 public:
  static OdSmartPtr<OdDbMLeader> createObject();
  OdDbMLeader();

  enum ContentType { kNoneContent = 0, kBlockContent = 1, kMTextContent = 2, kToleranceContent = 3 };
  enum LeaderType { kInVisibleLeader = 0, kStraightLeader = 1, kSplineLeader = 2 };

  // The multileader style, by handle and by the name the drawing's
  // MLEADERSTYLE dictionary gives it ("" when the drawing lacks it), and
  // the styles that dictionary lists.
  struct Style {
    OdString name;
    OdDbHandle handle;
  };
  OdDbHandle styleHandle() const { assertReadEnabled(); return m_style.handle; }
  OdString styleName() const { assertReadEnabled(); return m_style.name; }
  void setStyle(const Style& style);
  const std::vector<Style>& availableStyles() const { assertReadEnabled(); return m_styles; }
  void setAvailableStyles(const std::vector<Style>& styles);

  int contentType() const { assertReadEnabled(); return m_contentType; }
  void setContentType(int t);
  int leaderLineType() const { assertReadEnabled(); return m_leaderType; }
  void setLeaderLineType(int t);

  // Doubles and flags by their DXF meaning; the setters refuse values that
  // are not finite, and sizes below 0, with OdError(eInvalidInput).
#define ODDB_MLEADER_VALUES(X)                                                              \
  X(arrowSize, setArrowSize, 0.18, true)            /* the arrowheads' size */               \
  X(doglegLength, setDoglegLength, 0.36, true)      /* the landing distance */               \
  X(scale, setScale, 1.0, true)                     /* the overall scale */                  \
  X(textHeight, setTextHeight, 0.18, true)                                                   \
  X(landingGap, setLandingGap, 0.09, true)          /* between the landing and the text */   \
  X(textRotation, setTextRotation, 0.0, false)                                               \
  X(textWidth, setTextWidth, 0.0, true)                                                      \
  X(lineSpacingFactor, setLineSpacingFactor, 1.0, true)                                      \
  X(blockScale, setBlockScale, 1.0, false)
#define ODDB_MLEADER_INTS(X)                                                                \
  X(lineWeight, setLineWeight, -2)                                                          \
  X(lineSpacingStyle, setLineSpacingStyle, 1)                                               \
  X(textAttachmentType, setTextAttachmentType, 0)   /* 0 horizontal, 1 vertical */          \
  X(leftAttachment, setLeftAttachment, 1)                                                   \
  X(rightAttachment, setRightAttachment, 1)                                                 \
  X(topAttachment, setTopAttachment, 9)                                                     \
  X(bottomAttachment, setBottomAttachment, 9)                                               \
  X(textJustify, setTextJustify, 1)                 /* the text's alignment */              \
  X(textFlowDirection, setTextFlowDirection, 1)                                             \
  X(toleranceAttachment, setToleranceAttachment, 0)                                         \
  X(landingEnabled, setLandingEnabled, 1)                                                   \
  X(doglegEnabled, setDoglegEnabled, 1)                                                     \
  X(textFrame, setTextFrame, 0)                                                             \
  X(backgroundMask, setBackgroundMask, 0)                                                   \
  X(leaderExtension, setLeaderExtension, 0)         /* extend the leader to the text */
#define ODDB_MLEADER_DECLARE_DOUBLE(Get, Set, Default, NonNegative) \
  double Get() const { assertReadEnabled(); return m_##Get; }      \
  void Set(double v);
#define ODDB_MLEADER_DECLARE_INT(Get, Set, Default) \
  int Get() const { assertReadEnabled(); return m_##Get; } \
  void Set(int v) { assertWriteEnabled(); m_##Get = v; }
  ODDB_MLEADER_VALUES(ODDB_MLEADER_DECLARE_DOUBLE)
  ODDB_MLEADER_INTS(ODDB_MLEADER_DECLARE_INT)

  OdCmColor leaderLineColor() const { assertReadEnabled(); return m_lineColor; }
  void setLeaderLineColor(const OdCmColor& c) { assertWriteEnabled(); m_lineColor = c; }
  OdCmColor blockColor() const { assertReadEnabled(); return m_blockColor; }
  void setBlockColor(const OdCmColor& c) { assertWriteEnabled(); m_blockColor = c; }
  OdDbObjectId leaderLineTypeId() const { assertReadEnabled(); return m_linetype; }
  void setLeaderLineTypeId(const OdDbObjectId& id) { assertWriteEnabled(); m_linetype = id; }
  // The arrowhead's block (null: closed filled).
  OdDbObjectId arrowSymbolId() const { assertReadEnabled(); return m_arrow; }
  void setArrowSymbolId(const OdDbObjectId& id) { assertWriteEnabled(); m_arrow = id; }
  OdDbObjectId textStyleId() const { assertReadEnabled(); return m_textStyle; }
  void setTextStyleId(const OdDbObjectId& id) { assertWriteEnabled(); m_textStyle = id; }
  // The block of a block content (null when the drawing lacks it; its
  // handle is kept).
  OdDbObjectId blockContentId() const { assertReadEnabled(); return m_block; }
  OdDbHandle blockContentHandle() const { assertReadEnabled(); return m_blockHandle; }
  void setBlockContentId(const OdDbObjectId& id);
  void setBlockContentHandle(const OdDbHandle& h, const OdDbObjectId& id) { assertWriteEnabled(); m_blockHandle = h; m_block = id; }

  // The multiline text of a text content, with its formatting codes.
  OdString contents() const { assertReadEnabled(); return m_contents; }
  void setContents(const OdString& text) { assertWriteEnabled(); m_contents = text; }

  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  // The leader lines, each its vertices from the arrow on.
  const std::vector<std::vector<OdGePoint3d>>& leaderLines() const { assertReadEnabled(); return m_lines; }
  void setLeaderLines(const std::vector<std::vector<OdGePoint3d>>& lines);

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  Style m_style;
  std::vector<Style> m_styles;
  int m_contentType = kMTextContent, m_leaderType = kStraightLeader;
#define ODDB_MLEADER_DOUBLE_MEMBER(Get, Set, Default, NonNegative) double m_##Get = Default;
#define ODDB_MLEADER_INT_MEMBER(Get, Set, Default) int m_##Get = Default;
  ODDB_MLEADER_VALUES(ODDB_MLEADER_DOUBLE_MEMBER)
  ODDB_MLEADER_INTS(ODDB_MLEADER_INT_MEMBER)
  OdCmColor m_lineColor = OdCmColor::byBlock(), m_blockColor = OdCmColor::byBlock();
  OdDbObjectId m_linetype, m_arrow, m_textStyle, m_block;
  OdDbHandle m_blockHandle;
  OdString m_contents;
  OdGeVector3d m_normal{0, 0, 1};
  std::vector<std::vector<OdGePoint3d>> m_lines;
};
using OdDbMLeaderPtr = OdSmartPtr<OdDbMLeader>;
