#include "DbMText.h"

#include <cmath>

namespace {

[[noreturn]] void refuse(const QString& why) { throw OdError(eInvalidInput, OdString(why)); }

bool finite(const OdGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

}  // namespace

OdDbMText::OdDbMText() = default;

void OdDbMText::setLocation(const OdGePoint3d& p) {
  if (!finite(p)) refuse(QStringLiteral("the location must have finite coordinates"));
  assertWriteEnabled();
  m_location = p;
}

void OdDbMText::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength() || !std::isfinite(n.length())) refuse(QStringLiteral("zero normal"));
  const double angle = rotation();
  assertWriteEnabled();
  m_normal = n.normal();
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_normal);
  m_direction = (toWorld * OdGePoint3d(std::cos(angle), std::sin(angle), 0) - toWorld * OdGePoint3d()).normal();
}

void OdDbMText::setDirection(const OdGeVector3d& d) {
  assertReadEnabled();
  const OdGeVector3d inPlane = d - m_normal * d.dotProduct(m_normal);
  if (!std::isfinite(d.length()) || inPlane.length() < 1e-12 * std::max(1.0, d.length()))
    refuse(QStringLiteral("the text direction must not be parallel to the normal"));
  assertWriteEnabled();
  m_direction = inPlane.normal();
}

double OdDbMText::rotation() const {
  assertReadEnabled();
  const OdGePoint3d p = OdGeMatrix3d::worldToPlane(m_normal) * OdGePoint3d(m_direction.x, m_direction.y, m_direction.z);
  const OdGePoint3d o = OdGeMatrix3d::worldToPlane(m_normal) * OdGePoint3d();
  double a = std::atan2(p.y - o.y, p.x - o.x);
  return a < 0 ? a + 2 * M_PI : a;
}

void OdDbMText::setRotation(double angle) {
  if (!std::isfinite(angle)) refuse(QStringLiteral("the rotation must be a finite number"));
  assertWriteEnabled();
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_normal);
  m_direction = (toWorld * OdGePoint3d(std::cos(angle), std::sin(angle), 0) - toWorld * OdGePoint3d()).normal();
}

void OdDbMText::setTextHeight(double h) {
  if (!(h > 0) || !std::isfinite(h)) refuse(QStringLiteral("the text height must be greater than 0"));
  assertWriteEnabled();
  m_height = h;
}

void OdDbMText::setWidth(double w) {
  if (!(w >= 0) || !std::isfinite(w)) refuse(QStringLiteral("the width must not be negative"));
  assertWriteEnabled();
  m_width = w;
}

void OdDbMText::setAttachment(AttachmentPoint a) {
  if (a < kTopLeft || a > kBottomRight) refuse(QStringLiteral("attachment %1 is not from 1 to 9").arg(int(a)));
  assertWriteEnabled();
  m_attachment = a;
}

void OdDbMText::setFlowDirection(FlowDirection d) {
  if (d < kLtoR || d > kByStyle) refuse(QStringLiteral("drawing direction %1 is not from 1 to 5").arg(int(d)));
  assertWriteEnabled();
  m_flow = d;
}

void OdDbMText::setLineSpacingStyle(OdDb::LineSpacingStyle s) {
  if (s != OdDb::kAtLeast && s != OdDb::kExactly) refuse(QStringLiteral("line spacing style %1 is not 1 or 2").arg(int(s)));
  assertWriteEnabled();
  m_spacingStyle = s;
}

void OdDbMText::setLineSpacingFactor(double f) {
  if (!(f >= 0.25 - 1e-12 && f <= 4 + 1e-12)) refuse(QStringLiteral("the line spacing factor must be from 0.25 to 4"));
  assertWriteEnabled();
  m_spacingFactor = f;
}

void OdDbMText::setContents(const OdString& s) { assertWriteEnabled(); m_contents = s; }
void OdDbMText::setTextStyle(const OdDbObjectId& id) { assertWriteEnabled(); m_style = id; }

void OdDbMText::setBackgroundFill(bool on) { assertWriteEnabled(); m_fillFlags = on ? m_fillFlags | 1 : m_fillFlags & ~1; }
void OdDbMText::setUseBackgroundColor(bool on) { assertWriteEnabled(); m_fillFlags = on ? m_fillFlags | 2 : m_fillFlags & ~2; }

void OdDbMText::setBackgroundFillFlags(int flags) {
  if (flags < 0 || flags > 31) refuse(QStringLiteral("background fill flags %1 are not from 0 to 31").arg(flags));
  assertWriteEnabled();
  m_fillFlags = flags;
}

void OdDbMText::setBackgroundFillColor(const OdCmColor& c) { assertWriteEnabled(); m_fillColor = c; }

void OdDbMText::setBackgroundScaleFactor(double s) {
  if (!(s >= 1 - 1e-12 && s <= 5 + 1e-12)) refuse(QStringLiteral("the background scale factor must be from 1 to 5"));
  assertWriteEnabled();
  m_fillScale = s;
}

void OdDbMText::setColumnType(ColumnType type) {
  if (type < kNoColumns || type > kDynamicColumns) refuse(QStringLiteral("column type %1 is not from 0 to 2").arg(int(type)));
  assertWriteEnabled();
  m_columnType = type;
}

void OdDbMText::setColumnCount(int count) {
  if (count < 0) refuse(QStringLiteral("the column count must not be negative"));
  assertWriteEnabled();
  m_columnCount = count;
}

namespace {
void checkColumnSize(double v, const char* what) {
  if (!(v >= 0) || !std::isfinite(v)) refuse(QStringLiteral("the column %1 must not be negative").arg(QLatin1String(what)));
}
}  // namespace

void OdDbMText::setColumnWidth(double w) { checkColumnSize(w, "width"); assertWriteEnabled(); m_columnWidth = w; }
void OdDbMText::setColumnGutterWidth(double g) { checkColumnSize(g, "gutter"); assertWriteEnabled(); m_columnGutter = g; }
void OdDbMText::setColumnHeight(double h) { checkColumnSize(h, "height"); assertWriteEnabled(); m_columnHeight = h; }

void OdDbMText::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* t = static_cast<const OdDbMText*>(source);
  m_location = t->m_location;
  m_normal = t->m_normal;
  m_direction = t->m_direction;
  m_height = t->m_height;
  m_width = t->m_width;
  m_spacingFactor = t->m_spacingFactor;
  m_fillScale = t->m_fillScale;
  m_attachment = t->m_attachment;
  m_flow = t->m_flow;
  m_spacingStyle = t->m_spacingStyle;
  m_contents = t->m_contents;
  m_style = t->m_style;
  m_fillFlags = t->m_fillFlags;
  m_fillColor = t->m_fillColor;
  m_columnType = t->m_columnType;
  m_columnCount = t->m_columnCount;
  m_columnWidth = t->m_columnWidth;
  m_columnGutter = t->m_columnGutter;
  m_columnHeight = t->m_columnHeight;
  m_columnAutoHeight = t->m_columnAutoHeight;
  m_columnFlowReversed = t->m_columnFlowReversed;
}
