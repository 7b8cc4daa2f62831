#include "DbArcAlignedText.h"

#include <cmath>

namespace {

[[noreturn]] void refuse(const QString& why) { throw OdError(eInvalidInput, OdString(why)); }

void requireFinite(double v, const char* what) {
  if (!std::isfinite(v)) refuse(QStringLiteral("%1 must be a finite number").arg(QLatin1String(what)));
}

}  // namespace

OdDbArcAlignedText::OdDbArcAlignedText() = default;

void OdDbArcAlignedText::setTextString(const OdString& s) { assertWriteEnabled(); m_text = s; }

void OdDbArcAlignedText::setTextSize(double h) {
  if (!(h > 0) || !std::isfinite(h)) refuse(QStringLiteral("the text height must be greater than 0"));
  assertWriteEnabled();
  m_size = h;
}

void OdDbArcAlignedText::setXScale(double s) {
  if (!(s > 0) || !std::isfinite(s)) refuse(QStringLiteral("the width factor must be greater than 0"));
  assertWriteEnabled();
  m_xScale = s;
}

void OdDbArcAlignedText::setCharSpacing(double d) { requireFinite(d, "the character spacing"); assertWriteEnabled(); m_charSpacing = d; }

void OdDbArcAlignedText::setCenter(const OdGePoint3d& p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) refuse(QStringLiteral("the center must have finite coordinates"));
  assertWriteEnabled();
  m_center = p;
}

void OdDbArcAlignedText::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength() || !std::isfinite(n.length())) refuse(QStringLiteral("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbArcAlignedText::setRadius(double r) {
  if (!(r > 1e-10) || !std::isfinite(r)) refuse(QStringLiteral("the radius must be greater than 0"));
  assertWriteEnabled();
  m_radius = r;
}

void OdDbArcAlignedText::setStartAngle(double a) { requireFinite(a, "the start angle"); assertWriteEnabled(); m_startAngle = a; }
void OdDbArcAlignedText::setEndAngle(double a) { requireFinite(a, "the end angle"); assertWriteEnabled(); m_endAngle = a; }
void OdDbArcAlignedText::setOffsetFromArc(double d) { requireFinite(d, "the offset from the arc"); assertWriteEnabled(); m_offset = d; }
void OdDbArcAlignedText::setLeftOffset(double d) { requireFinite(d, "the left offset"); assertWriteEnabled(); m_left = d; }
void OdDbArcAlignedText::setRightOffset(double d) { requireFinite(d, "the right offset"); assertWriteEnabled(); m_right = d; }

void OdDbArcAlignedText::setAlignment(Alignment a) {
  if (a < kFit || a > kCenter) refuse(QStringLiteral("alignment %1 is not from 1 to 4").arg(int(a)));
  assertWriteEnabled();
  m_alignment = a;
}

void OdDbArcAlignedText::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* t = static_cast<const OdDbArcAlignedText*>(source);
  m_text = t->m_text;
  m_style = t->m_style;
  m_size = t->m_size;
  m_xScale = t->m_xScale;
  m_charSpacing = t->m_charSpacing;
  m_radius = t->m_radius;
  m_startAngle = t->m_startAngle;
  m_endAngle = t->m_endAngle;
  m_offset = t->m_offset;
  m_left = t->m_left;
  m_right = t->m_right;
  m_center = t->m_center;
  m_normal = t->m_normal;
  m_alignment = t->m_alignment;
}
