#include "DbLine.h"

OdDbLine::OdDbLine() = default;

void OdDbLine::setStartPoint(const OdGePoint3d& p) { assertWriteEnabled(); m_start = p; }
void OdDbLine::setEndPoint(const OdGePoint3d& p) { assertWriteEnabled(); m_end = p; }
void OdDbLine::setThickness(double t) { assertWriteEnabled(); m_thickness = t; }

void OdDbLine::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

// The parameter runs from 0 at the start point to the length at the end point.
OdResult OdDbLine::getStartParam(double& param) const { assertReadEnabled(); param = 0; return eOk; }
OdResult OdDbLine::getEndParam(double& param) const { assertReadEnabled(); param = m_start.distanceTo(m_end); return eOk; }
OdResult OdDbLine::getStartPoint(OdGePoint3d& p) const { assertReadEnabled(); p = m_start; return eOk; }
OdResult OdDbLine::getEndPoint(OdGePoint3d& p) const { assertReadEnabled(); p = m_end; return eOk; }

OdResult OdDbLine::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  const double len = m_start.distanceTo(m_end);
  if (param < -1e-10 || param > len + 1e-10) return eInvalidInput;
  p = len > 0 ? m_start + (m_end - m_start) * (param / len) : m_start;
  return eOk;
}

OdResult OdDbLine::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  const double len = m_start.distanceTo(m_end);
  if (param < -1e-10 || param > len + 1e-10) return eInvalidInput;
  dist = param;
  return eOk;
}

OdResult OdDbLine::getArea(double& area) const { assertReadEnabled(); area = 0; return eOk; }

bool OdDbLine::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  ext.addPoint(m_start).addPoint(m_end);
  if (m_thickness != 0) {
    ext.addPoint(m_start + m_normal * m_thickness).addPoint(m_end + m_normal * m_thickness);
  }
  return true;
}

void OdDbLine::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* l = static_cast<const OdDbLine*>(source);
  m_start = l->m_start;
  m_end = l->m_end;
  m_thickness = l->m_thickness;
  m_normal = l->m_normal;
}
