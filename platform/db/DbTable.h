#pragma once
// Tables: a grid of cells placed like a block reference (the drawing keeps
// the table's picture as an anonymous block). The table knows its rows and
// columns with their sizes, its style, and the text of each cell.
#include "DbBlockReference.h"
#include <vector>

class DB_API OdDbTable : public OdDbBlockReference {
  ODRX_DECLARE_MEMBERS(OdDbTable);

 public:
  static OdSmartPtr<OdDbTable> createObject();

  enum CellType { kTextCell = 1, kBlockCell = 2 };

  int numRows() const { assertReadEnabled(); return int(m_d.rowHeights.size()); }
  int numColumns() const { assertReadEnabled(); return int(m_d.columnWidths.size()); }
  // Sizes of the rows and columns; setting them sets how many there are
  // (every cell a text cell without text).
  double rowHeight(int row) const;
  double columnWidth(int column) const;
  void setGridInternal(const std::vector<double>& rowHeights, const std::vector<double>& columnWidths);
  // Sum of the column widths and of the row heights.
  double width() const;
  double height() const;

  // The direction of the table's rows in WCS (group 11).
  OdGeVector3d direction() const { assertReadEnabled(); return m_d.direction; }
  void setDirection(const OdGeVector3d& d) { assertWriteEnabled(); m_d.direction = d; }

  // The table style: its name and whether its rows flow upwards, read from
  // the style (an object of the drawing's OBJECTS section).
  OdString tableStyleName() const { assertReadEnabled(); return m_d.styleName; }
  bool flowsUp() const { assertReadEnabled(); return m_d.flowsUp; }
  void setStyleInternal(const OdString& name, bool flowsUp);

  // Cells row by row. A cell out of range raises OdError(eInvalidInput).
  int cellType(int row, int column) const { return cell(row, column).type; }
  OdString textString(int row, int column) const { return cell(row, column).text; }
  // Whether the drawing holds the cell's text in a tag of its own that an
  // edit can change (a text cell; a cell of an R2007 table without value
  // has none).
  bool isTextEditable(int row, int column) const { return cell(row, column).editable; }
  // Raises OdError(eInvalidInput) for a cell whose text cannot be edited.
  void setTextString(int row, int column, const OdString& text);
  void setCellInternal(int row, int column, int type, const OdString& text, bool editable);

  void copyFrom(const OdRxObject* source) override;

 private:
  struct Cell {
    int type = kTextCell;
    OdString text;
    bool editable = false;
  };
  const Cell& cell(int row, int column) const;
  struct Data {
    std::vector<double> rowHeights, columnWidths;
    std::vector<Cell> cells;
    OdGeVector3d direction{1, 0, 0};
    OdString styleName;
    bool flowsUp = false;
  } m_d;
};
using OdDbTablePtr = OdSmartPtr<OdDbTable>;
