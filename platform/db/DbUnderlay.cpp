#include "DbUnderlay.h"
#include <QFileInfo>
#include <cmath>

void OdDbUnderlayReference::setScaleFactors(const OdGeScale3d& s) {
  for (int i = 0; i < 3; ++i)
    if (s[i] == 0 || !std::isfinite(s[i])) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.scale = s;
}

void OdDbUnderlayReference::setContrast(int v) {
  if (v < 20 || v > 100) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.contrast = v;
}

void OdDbUnderlayReference::setFade(int v) {
  if (v < 0 || v > 80) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.fade = v;
}

void OdDbUnderlayReference::setDefinitionInternal(const OdString& name, const OdString& path, const OdString& item) {
  m_d.name = name;
  m_d.path = path;
  m_d.item = item;
}

bool OdDbUnderlayReference::isFileFound() const {
  QString path = filePath().qstring();
  path.replace('\\', '/');
  const QFileInfo info(path);
  return !path.isEmpty() && info.exists() && info.isFile();
}

void OdDbUnderlayReference::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  m_d = static_cast<const OdDbUnderlayReference*>(source)->m_d;
}
