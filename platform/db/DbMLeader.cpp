#include "DbMLeader.h"
#include "OdGePlane.h"

#include <cmath>

OdSmartPtr<OdDbMLeader> OdDbMLeader::createObject() { return OdSmartPtr<OdDbMLeader>(new OdDbMLeader()); }
OdDbMLeader::OdDbMLeader() = default;

#define ODDB_MLEADER_DEFINE_DOUBLE(Get, Set, Default, NonNegative)                                      \
  void OdDbMLeader::Set(double v) {                                                                     \
    if (!std::isfinite(v) || (NonNegative && v < 0))                                                    \
      throw OdError(eInvalidInput, OdString(NonNegative ? #Get " must be a number not below 0" : #Get " must be finite")); \
    assertWriteEnabled();                                                                               \
    m_##Get = v;                                                                                        \
  }
ODDB_MLEADER_VALUES(ODDB_MLEADER_DEFINE_DOUBLE)

void OdDbMLeader::setStyle(const Style& style) { assertWriteEnabled(); m_style = style; }
void OdDbMLeader::setAvailableStyles(const std::vector<Style>& styles) { assertWriteEnabled(); m_styles = styles; }

void OdDbMLeader::setContentType(int t) {
  if (t < kNoneContent || t > kToleranceContent) throw OdError(eInvalidInput, OdString("the content type must be from 0 to 3"));
  assertWriteEnabled();
  m_contentType = t;
}

void OdDbMLeader::setLeaderLineType(int t) {
  if (t < kInVisibleLeader || t > kSplineLeader) throw OdError(eInvalidInput, OdString("the leader type must be from 0 to 2"));
  assertWriteEnabled();
  m_leaderType = t;
}

void OdDbMLeader::setBlockContentId(const OdDbObjectId& id) {
  assertWriteEnabled();
  m_block = id;
  m_blockHandle = id.isNull() ? OdDbHandle() : id.getHandle();
}

void OdDbMLeader::setNormal(const OdGeVector3d& n) {
  if (!std::isfinite(n.length()) || n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbMLeader::setLeaderLines(const std::vector<std::vector<OdGePoint3d>>& lines) {
  for (const auto& line : lines)
    for (const OdGePoint3d& p : line)
      if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z))
        throw OdError(eInvalidInput, OdString("a vertex must be finite"));
  assertWriteEnabled();
  m_lines = lines;
}

bool OdDbMLeader::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  bool any = false;
  for (const auto& line : m_lines)
    for (const OdGePoint3d& p : line) ext.addPoint(p), any = true;
  return any;
}

void OdDbMLeader::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* m = static_cast<const OdDbMLeader*>(source);
  m_style = m->m_style;
  m_styles = m->m_styles;
  m_contentType = m->m_contentType;
  m_leaderType = m->m_leaderType;
#define ODDB_MLEADER_COPY_D(Get, Set, Default, NonNegative) m_##Get = m->m_##Get;
#define ODDB_MLEADER_COPY_I(Get, Set, Default) m_##Get = m->m_##Get;
  ODDB_MLEADER_VALUES(ODDB_MLEADER_COPY_D)
  ODDB_MLEADER_INTS(ODDB_MLEADER_COPY_I)
  m_lineColor = m->m_lineColor;
  m_blockColor = m->m_blockColor;
  m_linetype = m->m_linetype;
  m_arrow = m->m_arrow;
  m_textStyle = m->m_textStyle;
  m_block = m->m_block;
  m_blockHandle = m->m_blockHandle;
  m_contents = m->m_contents;
  m_normal = m->m_normal;
  m_lines = m->m_lines;
}
