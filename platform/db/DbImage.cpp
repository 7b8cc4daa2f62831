#include "DbImage.h"
#include <QDir>
#include <QFileInfo>
#include <cmath>

namespace {
bool positiveFinite(double v) { return v > 0 && std::isfinite(v); }
int percent(int v) {
  if (v < 0 || v > 100) throw OdError(eInvalidInput);
  return v;
}
}  // namespace

OdSmartPtr<OdDbRasterImage> OdDbRasterImage::createObject() { return OdSmartPtr<OdDbRasterImage>(new OdDbRasterImage()); }

void OdDbRasterImage::setOrientation(const OdGePoint3d& origin, const OdGeVector3d& u, const OdGeVector3d& v) {
  if (!(u.length() > 0) || !(v.length() > 0) || !(u.crossProduct(v).length() > 0)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.origin = origin;
  m_d.u = u;
  m_d.v = v;
}

double OdDbRasterImage::width() const { return uVector().length() * imageSize().x; }
double OdDbRasterImage::height() const { return vVector().length() * imageSize().y; }

void OdDbRasterImage::setWidth(double w) {
  if (!positiveFinite(w) || !(width() > 0)) throw OdError(eInvalidInput);
  setOrientation(position(), uVector() * (w / width()), vVector());
}

void OdDbRasterImage::setHeight(double h) {
  if (!positiveFinite(h) || !(height() > 0)) throw OdError(eInvalidInput);
  setOrientation(position(), uVector(), vVector() * (h / height()));
}

double OdDbRasterImage::scale() const {
  // Pictures with a resolution are as wide as their pixels at that
  // resolution, in the unit of the definition (taken as a drawing unit).
  const double defaultWidth = resolutionUnits() != 0 ? imageSize().x * pixelSize().x : 1.0;
  return defaultWidth > 0 ? width() / defaultWidth : 0.0;
}

void OdDbRasterImage::setScale(double s) {
  const double now = scale();
  if (!positiveFinite(s) || !(now > 0)) throw OdError(eInvalidInput);
  setOrientation(position(), uVector() * (s / now), vVector() * (s / now));
}

OdGeVector3d OdDbRasterImage::normal() const {
  const OdGeVector3d n = uVector().crossProduct(vVector());
  return n.length() > 0 ? n.normal() : OdGeVector3d(0, 0, 1);
}

void OdDbRasterImage::setBrightness(int v) {
  const int p = percent(v);
  assertWriteEnabled();
  m_d.brightness = p;
}
void OdDbRasterImage::setContrast(int v) {
  const int p = percent(v);
  assertWriteEnabled();
  m_d.contrast = p;
}
void OdDbRasterImage::setFade(int v) {
  const int p = percent(v);
  assertWriteEnabled();
  m_d.fade = p;
}

void OdDbRasterImage::setDefinitionInternal(const OdString& name, const OdString& path, int resolutionUnits,
                                            const OdGePoint2d& pixelSize) {
  m_d.name = name;
  m_d.path = path;
  m_d.resolutionUnits = resolutionUnits;
  m_d.pixelSize = pixelSize;
}

bool OdDbRasterImage::isFileFound() const {
  QString path = imageFilePath().qstring();
  if (path.isEmpty()) return false;
  path.replace('\\', '/');
  const QFileInfo info(path);
  return info.exists() && info.isFile();
}

bool OdDbRasterImage::getGeomExtents(OdGeExtents3d& ext) const {
  const OdGeVector3d w = uVector() * imageSize().x, h = vVector() * imageSize().y;
  ext = OdGeExtents3d();
  for (const OdGePoint3d& p : {position(), position() + w, position() + h, position() + w + h}) ext.addPoint(p);
  return true;
}

void OdDbRasterImage::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  m_d = static_cast<const OdDbRasterImage*>(source)->m_d;
}
