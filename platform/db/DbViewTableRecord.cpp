#include "DbViewTableRecord.h"

OdSmartPtr<OdDbViewTableRecord> OdDbViewTableRecord::createObject() {
  return OdSmartPtr<OdDbViewTableRecord>(new OdDbViewTableRecord());
}
OdSmartPtr<OdDbViewportTableRecord> OdDbViewportTableRecord::createObject() {
  return OdSmartPtr<OdDbViewportTableRecord>(new OdDbViewportTableRecord());
}
OdSmartPtr<OdDbViewTable> OdDbViewTable::createObject() { return OdSmartPtr<OdDbViewTable>(new OdDbViewTable()); }
OdRxClass* OdDbViewTable::recordClass() const { return OdDbViewTableRecord::desc(); }
OdSmartPtr<OdDbViewportTable> OdDbViewportTable::createObject() { return OdSmartPtr<OdDbViewportTable>(new OdDbViewportTable()); }
OdRxClass* OdDbViewportTable::recordClass() const { return OdDbViewportTableRecord::desc(); }

void OdDbAbstractViewTableRecord::copyFrom(const OdRxObject* source) {
  OdDbSymbolTableRecord::copyFrom(source);
  auto* v = static_cast<const OdDbAbstractViewTableRecord*>(source);
  m_center = v->m_center;
  m_height = v->m_height;
  m_width = v->m_width;
  m_lens = v->m_lens;
  m_twist = v->m_twist;
  m_direction = v->m_direction;
  m_target = v->m_target;
}

void OdDbViewTableRecord::copyFrom(const OdRxObject* source) {
  OdDbAbstractViewTableRecord::copyFrom(source);
  m_flags = static_cast<const OdDbViewTableRecord*>(source)->m_flags;
}

void OdDbViewportTableRecord::copyFrom(const OdRxObject* source) {
  OdDbAbstractViewTableRecord::copyFrom(source);
  auto* v = static_cast<const OdDbViewportTableRecord*>(source);
  m_grid = v->m_grid;
  m_snap = v->m_snap;
  m_gridSpacing = v->m_gridSpacing;
  m_snapSpacing = v->m_snapSpacing;
  m_snapBase = v->m_snapBase;
  m_snapAngle = v->m_snapAngle;
}
