#include "DbText.h"
#include "DbFontMetrics.h"
#include "DbSymbolTable.h"
#include "OdGeMatrix3d.h"

#include <cmath>

namespace {

void requireFinite(double v, const char* what) {
  if (!std::isfinite(v)) throw OdError(eInvalidInput, OdString(QStringLiteral("%1 must be a finite number").arg(QLatin1String(what))));
}

void requireFinite(const OdGePoint3d& p, const char* what) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z))
    throw OdError(eInvalidInput, OdString(QStringLiteral("%1 must have finite coordinates").arg(QLatin1String(what))));
}

void requireTag(const OdString& tag) {
  const QString t = tag.qstring();
  if (t.isEmpty()) throw OdError(eInvalidInput, OdString("an attribute tag must not be empty"));
  if (t.contains(QLatin1Char(' '))) throw OdError(eInvalidInput, OdString("an attribute tag must not contain blanks"));
}

void requireFlags(int f) {
  if (f < 0 || f > 31) throw OdError(eInvalidInput, OdString(QStringLiteral("attribute flags %1 are not from 0 to 31").arg(f)));
}

}  // namespace

OdDbText::OdDbText() = default;

void OdDbText::setPosition(const OdGePoint3d& p) { requireFinite(p, "the text position"); assertWriteEnabled(); m_position = p; }
void OdDbText::setAlignmentPoint(const OdGePoint3d& p) { requireFinite(p, "the alignment point"); assertWriteEnabled(); m_alignment = p; }

void OdDbText::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength() || !std::isfinite(n.length())) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbText::setThickness(double t) { requireFinite(t, "the thickness"); assertWriteEnabled(); m_thickness = t; }

void OdDbText::setOblique(double angle) {
  requireFinite(angle, "the obliquing angle");
  // The same angle within a turn; beyond +-85 degrees text is unreadable.
  double a = std::remainder(angle, 2 * M_PI);
  if (std::fabs(a) > 85.0 * M_PI / 180.0 + 1e-12)
    throw OdError(eInvalidInput, OdString("the obliquing angle must be within 85 degrees either way"));
  assertWriteEnabled();
  m_oblique = angle;
}

void OdDbText::setRotation(double angle) { requireFinite(angle, "the rotation"); assertWriteEnabled(); m_rotation = angle; }

void OdDbText::setHeight(double h) {
  if (!(h > 0) || !std::isfinite(h)) throw OdError(eInvalidInput, OdString("the text height must be greater than 0"));
  assertWriteEnabled();
  m_height = h;
}

void OdDbText::setWidthFactor(double w) {
  if (!(w > 0) || !std::isfinite(w)) throw OdError(eInvalidInput, OdString("the width factor must be greater than 0"));
  assertWriteEnabled();
  m_widthFactor = w;
}

void OdDbText::setTextString(const OdString& s) { assertWriteEnabled(); m_text = s; }
void OdDbText::setTextStyle(const OdDbObjectId& id) { assertWriteEnabled(); m_style = id; }

void OdDbText::setHorizontalMode(OdDb::TextHorzMode m) {
  if (m < OdDb::kTextLeft || m > OdDb::kTextFit)
    throw OdError(eInvalidInput, OdString(QStringLiteral("horizontal text mode %1 is not from 0 to 5").arg(int(m))));
  assertWriteEnabled();
  m_horz = m;
}

void OdDbText::setVerticalMode(OdDb::TextVertMode m) {
  if (m < OdDb::kTextBase || m > OdDb::kTextTop)
    throw OdError(eInvalidInput, OdString(QStringLiteral("vertical text mode %1 is not from 0 to 3").arg(int(m))));
  assertWriteEnabled();
  m_vert = m;
}

void OdDbText::mirrorInX(bool on) { assertWriteEnabled(); m_genFlags = on ? m_genFlags | 2 : m_genFlags & ~2; }
void OdDbText::mirrorInY(bool on) { assertWriteEnabled(); m_genFlags = on ? m_genFlags | 4 : m_genFlags & ~4; }

void OdDbText::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* t = static_cast<const OdDbText*>(source);
  m_position = t->m_position;
  m_alignment = t->m_alignment;
  m_normal = t->m_normal;
  m_thickness = t->m_thickness;
  m_oblique = t->m_oblique;
  m_rotation = t->m_rotation;
  m_height = t->m_height;
  m_widthFactor = t->m_widthFactor;
  m_text = t->m_text;
  m_style = t->m_style;
  m_horz = t->m_horz;
  m_vert = t->m_vert;
  m_genFlags = t->m_genFlags;
}

void OdDbAttributeDefinition::setTag(const OdString& tag) { requireTag(tag); assertWriteEnabled(); m_tag = tag; }
void OdDbAttributeDefinition::setFlags(int f) { requireFlags(f); assertWriteEnabled(); m_flags = f; }

void OdDbAttributeDefinition::copyFrom(const OdRxObject* source) {
  OdDbText::copyFrom(source);
  auto* a = static_cast<const OdDbAttributeDefinition*>(source);
  m_tag = a->m_tag;
  m_prompt = a->m_prompt;
  m_flags = a->m_flags;
  m_fieldLength = a->m_fieldLength;
  m_lockPosition = a->m_lockPosition;
  m_multiline = a->m_multiline;
}

void OdDbAttribute::setTag(const OdString& tag) { requireTag(tag); assertWriteEnabled(); m_tag = tag; }
void OdDbAttribute::setFlags(int f) { requireFlags(f); assertWriteEnabled(); m_flags = f; }

void OdDbAttribute::copyFrom(const OdRxObject* source) {
  OdDbText::copyFrom(source);
  auto* a = static_cast<const OdDbAttribute*>(source);
  m_tag = a->m_tag;
  m_flags = a->m_flags;
  m_fieldLength = a->m_fieldLength;
  m_lockPosition = a->m_lockPosition;
  m_multiline = a->m_multiline;
}

void OdDbText::getBoundingPoints(OdArray<OdGePoint3d>& points) const {
  assertReadEnabled();
  OdDbObjectPtr opened = m_style.isNull() || m_style.isErased() ? OdDbObjectPtr() : m_style.openObject();
  const auto* style = odrxCast<OdDbTextStyleTableRecord>(opened.get());
  const double width = OdDbFontMetrics::advance(style, m_text) * m_height * m_widthFactor;
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_normal);
  OdGeVector3d along = toWorld * OdGeVector3d(std::cos(m_rotation), std::sin(m_rotation), 0);
  OdGeVector3d up = toWorld * OdGeVector3d(-std::sin(m_rotation), std::cos(m_rotation), 0);
  if (isMirroredInX()) along = -along;
  if (isMirroredInY()) up = -up;
  const OdGePoint3d bottomLeft = m_position, bottomRight = m_position + along * width;
  points.clear();
  points.append(bottomLeft + up * m_height);
  points.append(bottomRight + up * m_height);
  points.append(bottomLeft);
  points.append(bottomRight);
}
