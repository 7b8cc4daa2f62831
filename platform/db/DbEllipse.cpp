#include "DbEllipse.h"
#include "DbGaussLegendre.h"

OdDbEllipse::OdDbEllipse() = default;

namespace {
double normalized(double a) {
  a = std::fmod(a, Oda2PI);
  return a < 0 ? a + Oda2PI : a;
}
}  // namespace

void OdDbEllipse::set(const OdGePoint3d& center, const OdGeVector3d& unitNormal, const OdGeVector3d& majorAxis,
                      double radiusRatio, double startAngle, double endAngle) {
  if (unitNormal.isZeroLength() || majorAxis.isZeroLength() || !majorAxis.isPerpendicularTo(unitNormal, OdGeTol(1e-8)))
    throw OdError(eInvalidInput, OdString("the major axis must be non-zero and perpendicular to the normal"));
  if (!(radiusRatio > 0 && radiusRatio <= 1)) throw OdError(eInvalidInput, OdString("radius ratio must be in (0, 1]"));
  assertWriteEnabled();
  m_center = center;
  m_normal = unitNormal.normal();
  m_major = majorAxis;
  m_ratio = radiusRatio;
  const bool full = std::fabs(endAngle - startAngle) >= Oda2PI - 1e-12;
  m_startParam = normalized(paramAtAngle(startAngle));
  double sweep = full ? Oda2PI : normalized(paramAtAngle(endAngle)) - m_startParam;
  if (sweep <= 0) sweep += Oda2PI;
  m_endParam = m_startParam + sweep;
}

void OdDbEllipse::setStartAngle(double angle) {
  if (!std::isfinite(angle)) throw OdError(eInvalidInput, OdString("angle must be a finite number"));
  const double end = endAngle();
  set(m_center, m_normal, m_major, m_ratio, angle, end);
}

void OdDbEllipse::setEndAngle(double angle) {
  if (!std::isfinite(angle)) throw OdError(eInvalidInput, OdString("angle must be a finite number"));
  set(m_center, m_normal, m_major, m_ratio, startAngle(), angle);
}

void OdDbEllipse::setMajorRadius(double r) {
  if (!(r > 0) || !std::isfinite(r)) throw OdError(eInvalidInput, OdString("radius must be positive"));
  assertWriteEnabled();
  m_major = m_major.normal() * r;
}

void OdDbEllipse::setRadiusRatio(double ratio) {
  if (!(ratio > 0 && ratio <= 1)) throw OdError(eInvalidInput, OdString("radius ratio must be in (0, 1]"));
  assertWriteEnabled();
  m_ratio = ratio;
}

void OdDbEllipse::setCenter(const OdGePoint3d& c) { assertWriteEnabled(); m_center = c; }

void OdDbEllipse::setParams(double startParam, double endParam) {
  assertWriteEnabled();
  m_startParam = startParam;
  m_endParam = endParam > startParam ? endParam : endParam + Oda2PI;
}

OdGeVector3d OdDbEllipse::minorAxis() const {
  assertReadEnabled();
  return m_normal.crossProduct(m_major) * m_ratio;
}

// tan(angle) = ratio * tan(param), keeping the quadrant.
double OdDbEllipse::paramAtAngle(double angle) const { return std::atan2(std::sin(angle), m_ratio * std::cos(angle)); }
double OdDbEllipse::angleAtParam(double param) const { return std::atan2(m_ratio * std::sin(param), std::cos(param)); }

double OdDbEllipse::startAngle() const { assertReadEnabled(); return normalized(angleAtParam(m_startParam)); }
double OdDbEllipse::endAngle() const {
  assertReadEnabled();
  if (m_endParam - m_startParam >= Oda2PI - 1e-12) return startAngle() + Oda2PI;
  return normalized(angleAtParam(m_endParam));
}

bool OdDbEllipse::isClosed() const { assertReadEnabled(); return m_endParam - m_startParam >= Oda2PI - 1e-12; }

OdResult OdDbEllipse::getStartParam(double& param) const { assertReadEnabled(); param = m_startParam; return eOk; }
OdResult OdDbEllipse::getEndParam(double& param) const { assertReadEnabled(); param = m_endParam; return eOk; }
OdResult OdDbEllipse::getStartPoint(OdGePoint3d& p) const { return getPointAtParam(m_startParam, p); }
OdResult OdDbEllipse::getEndPoint(OdGePoint3d& p) const { return getPointAtParam(m_endParam, p); }

OdResult OdDbEllipse::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  p = m_center + m_major * std::cos(param) + minorAxis() * std::sin(param);
  return eOk;
}

OdResult OdDbEllipse::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  if (param < m_startParam - 1e-10 || param > m_endParam + 1e-10) return eInvalidInput;
  const double a = m_major.length(), b = a * m_ratio;
  // |dP/dt| = sqrt(a^2 sin^2 t + b^2 cos^2 t)
  dist = odDbIntegrate([&](double t) { return std::hypot(a * std::sin(t), b * std::cos(t)); }, m_startParam, param,
                       std::max(1, int(std::ceil((param - m_startParam) / (OdaPI / 16)))));
  return eOk;
}

// The area between the arc and its chord (the whole ellipse when closed).
OdResult OdDbEllipse::getArea(double& area) const {
  assertReadEnabled();
  const double a = m_major.length(), b = a * m_ratio, sweep = m_endParam - m_startParam;
  area = 0.5 * a * b * (sweep - std::sin(sweep));
  return eOk;
}

bool OdDbEllipse::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  const int steps = 256;
  for (int i = 0; i <= steps; ++i) {
    OdGePoint3d p;
    getPointAtParam(m_startParam + (m_endParam - m_startParam) * i / steps, p);
    ext.addPoint(p);
  }
  return true;
}

void OdDbEllipse::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* e = static_cast<const OdDbEllipse*>(source);
  m_center = e->m_center;
  m_normal = e->m_normal;
  m_major = e->m_major;
  m_ratio = e->m_ratio;
  m_startParam = e->m_startParam;
  m_endParam = e->m_endParam;
}
