#include "DbTable.h"
#include <numeric>

OdSmartPtr<OdDbTable> OdDbTable::createObject() { return OdSmartPtr<OdDbTable>(new OdDbTable()); }

double OdDbTable::rowHeight(int row) const {
  if (row < 0 || row >= numRows()) throw OdError(eInvalidInput);
  return m_d.rowHeights[size_t(row)];
}

double OdDbTable::columnWidth(int column) const {
  if (column < 0 || column >= numColumns()) throw OdError(eInvalidInput);
  return m_d.columnWidths[size_t(column)];
}

void OdDbTable::setGridInternal(const std::vector<double>& rowHeights, const std::vector<double>& columnWidths) {
  assertWriteEnabled();
  m_d.rowHeights = rowHeights;
  m_d.columnWidths = columnWidths;
  m_d.cells.assign(rowHeights.size() * columnWidths.size(), Cell());
}

double OdDbTable::width() const {
  assertReadEnabled();
  return std::accumulate(m_d.columnWidths.begin(), m_d.columnWidths.end(), 0.0);
}

double OdDbTable::height() const {
  assertReadEnabled();
  return std::accumulate(m_d.rowHeights.begin(), m_d.rowHeights.end(), 0.0);
}

void OdDbTable::setStyleInternal(const OdString& name, bool flowsUp) {
  m_d.styleName = name;
  m_d.flowsUp = flowsUp;
}

const OdDbTable::Cell& OdDbTable::cell(int row, int column) const {
  assertReadEnabled();
  if (row < 0 || row >= numRows() || column < 0 || column >= numColumns()) throw OdError(eInvalidInput);
  return m_d.cells[size_t(row) * m_d.columnWidths.size() + size_t(column)];
}

void OdDbTable::setTextString(int row, int column, const OdString& text) {
  if (!isTextEditable(row, column)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_d.cells[size_t(row) * m_d.columnWidths.size() + size_t(column)].text = text;
}

void OdDbTable::setCellInternal(int row, int column, int type, const OdString& text, bool editable) {
  cell(row, column);  // range check
  m_d.cells[size_t(row) * m_d.columnWidths.size() + size_t(column)] = Cell{type, text, editable};
}

void OdDbTable::copyFrom(const OdRxObject* source) {
  OdDbBlockReference::copyFrom(source);
  m_d = static_cast<const OdDbTable*>(source)->m_d;
}
