#include "DbSolid.h"

OdResult OdDbQuadCorners::getPointAt(unsigned index, OdGePoint3d& p) const {
  if (index > 3) return eInvalidIndex;
  p = m_corners[index];
  return eOk;
}

void OdDbQuadCorners::setPointAt(unsigned index, const OdGePoint3d& p) {
  if (index > 3) throw OdError(eInvalidIndex);
  m_corners[index] = p;
}

OdDbFace::OdDbFace() = default;

OdResult OdDbFace::getVertexAt(unsigned index, OdGePoint3d& p) const {
  assertReadEnabled();
  return m_quad.getPointAt(index, p);
}

void OdDbFace::setVertexAt(unsigned index, const OdGePoint3d& p) {
  if (index > 3) throw OdError(eInvalidIndex);
  assertWriteEnabled();
  m_quad.setPointAt(index, p);
}

bool OdDbFace::isEdgeVisibleAt(unsigned index) const {
  assertReadEnabled();
  if (index > 3) throw OdError(eInvalidIndex);
  return !(m_invisible & (1 << index));
}

void OdDbFace::makeEdgeVisibleAt(unsigned index) {
  if (index > 3) throw OdError(eInvalidIndex);
  assertWriteEnabled();
  m_invisible &= ~(1 << index);
}

void OdDbFace::makeEdgeInvisibleAt(unsigned index) {
  if (index > 3) throw OdError(eInvalidIndex);
  assertWriteEnabled();
  m_invisible |= 1 << index;
}

void OdDbFace::setInvisibleEdges(int bits) {
  assertWriteEnabled();
  m_invisible = bits;
}

bool OdDbFace::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  for (unsigned i = 0; i < 4; ++i) {
    OdGePoint3d p;
    m_quad.getPointAt(i, p);
    ext.addPoint(p);
  }
  return true;
}

void OdDbFace::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* f = static_cast<const OdDbFace*>(source);
  m_quad = f->m_quad;
  m_invisible = f->m_invisible;
}

#define ODDB_DEFINE_PLANAR_QUAD(Class)                                                  \
  Class::Class() = default;                                                             \
  OdResult Class::getPointAt(unsigned index, OdGePoint3d& p) const {                    \
    assertReadEnabled();                                                                \
    return OdDbQuadCorners::getPointAt(index, p);                                       \
  }                                                                                     \
  void Class::setPointAt(unsigned index, const OdGePoint3d& p) {                        \
    if (index > 3) throw OdError(eInvalidIndex);                                        \
    assertWriteEnabled();                                                               \
    OdDbQuadCorners::setPointAt(index, p);                                              \
  }                                                                                     \
  void Class::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }         \
  void Class::setNormal(const OdGeVector3d& n) {                                        \
    if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));        \
    assertWriteEnabled();                                                               \
    m_normal = n.normal();                                                              \
  }                                                                                     \
  bool Class::getGeomExtents(OdGeExtents3d& ext) const {                                \
    assertReadEnabled();                                                                \
    ext = OdGeExtents3d();                                                              \
    for (const OdGePoint3d& p : m_corners) {                                            \
      ext.addPoint(p);                                                                  \
      if (m_thickness != 0) ext.addPoint(p + m_normal * m_thickness);                   \
    }                                                                                   \
    return true;                                                                        \
  }                                                                                     \
  void Class::copyFrom(const OdRxObject* source) {                                      \
    OdDbEntity::copyFrom(source);                                                       \
    auto* s = static_cast<const Class*>(source);                                        \
    for (int i = 0; i < 4; ++i) m_corners[i] = s->m_corners[i];                         \
    m_thickness = s->m_thickness;                                                       \
    m_normal = s->m_normal;                                                             \
  }

ODDB_DEFINE_PLANAR_QUAD(OdDbSolid)
ODDB_DEFINE_PLANAR_QUAD(OdDbTrace)
