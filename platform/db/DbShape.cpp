#include "DbShape.h"
#include <cmath>

OdDbShape::OdDbShape() = default;

void OdDbShape::setName(const OdString& name) { assertWriteEnabled(); m_name = name; }
void OdDbShape::setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_position = p; }
void OdDbShape::setRotation(double angle) { assertWriteEnabled(); m_rotation = angle; }
void OdDbShape::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }

void OdDbShape::setSize(double size) {
  if (!(size > 0) || !std::isfinite(size)) throw OdError(eInvalidInput, OdString("a shape's size is greater than 0"));
  assertWriteEnabled();
  m_size = size;
}

void OdDbShape::setWidthFactor(double factor) {
  if (!(factor > 0) || !std::isfinite(factor)) throw OdError(eInvalidInput, OdString("a width factor is greater than 0"));
  assertWriteEnabled();
  m_widthFactor = factor;
}

void OdDbShape::setOblique(double angle) {
  if (!(std::fabs(angle) <= 85.0 * OdaPI / 180.0 + 1e-12)) throw OdError(eInvalidInput, OdString("an oblique angle is within 85 degrees"));
  assertWriteEnabled();
  m_oblique = angle;
}

void OdDbShape::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbShape::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* s = static_cast<const OdDbShape*>(source);
  m_name = s->m_name;
  m_position = s->m_position;
  m_size = s->m_size;
  m_rotation = s->m_rotation;
  m_widthFactor = s->m_widthFactor;
  m_oblique = s->m_oblique;
  m_thickness = s->m_thickness;
  m_normal = s->m_normal;
}
