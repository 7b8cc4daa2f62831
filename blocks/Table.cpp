#include "Blocks.h"
#include "Pictures.h"
#include "ZqInfoFrame.h"
#include "ZqVertexRows.h"
#include "DbTable.h"

namespace {

using T = OdDbTable;

#define ZQ_TABLE QT_TRANSLATE_NOOP("property_groups", "Table")
#define ZQ_CELL QT_TRANSLATE_NOOP("property_groups", "Cell")

int cellCount(const T* t) { return t->numRows() * t->numColumns(); }

// The cells, row by row, as the host navigates them (like vertices): one
// choice per cell, the indexed one current.
CZqVariant getCell(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const T* t = ZqReadable<T>(object);
  if (!t) return CZqVariant();
  CZqVariantCollection cells;
  for (int i = 0; i < cellCount(t); ++i) {
    const CZqVariant word(CZqString(QCoreApplication::translate("property_values", "Row %1, column %2")
                                        .arg(i / t->numColumns() + 1)
                                        .arg(i % t->numColumns() + 1)));
    cells.Add(CZqVariantCollectionElement(word, CZqVariant(int32_t(i))));
  }
  cells.SetCurrent(int(ZqVertexIndex(index)));
  return CZqVariant(cells);
}

int setCell(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) {
  return ZqWritable<T>(object) ? kZqSetApplied : kZqSetRefused;
}

CZqVariant getCellText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const T* t = ZqReadable<T>(object);
  const int i = int(ZqVertexIndex(index));
  if (!t || i >= cellCount(t)) return CZqVariant();
  return CZqVariant(CZqString(t->textString(i / t->numColumns(), i % t->numColumns())));
}

// Only the indexed cell's text changes. A text is one line (a table
// writes its line breaks as \P); a block cell, or a cell whose text the
// drawing keeps in pieces or not at all, is refused with a sentence.
int setCellText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant& index) {
  T* t = ZqWritable<T>(object);
  if (!t || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const int i = int(ZqVertexIndex(index));
  if (i >= cellCount(t))
    return ZqRefuseWith(QCoreApplication::translate("errors", "There is no cell %1: the table has %2 cells.")
                            .arg(i + 1)
                            .arg(cellCount(t)));
  const int row = i / t->numColumns(), column = i % t->numColumns();
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A cell's text is one line: write a line break as \\P."));
  if (s.size() > 250)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A cell's text can be at most 250 characters long."));
  if (t->cellType(row, column) != T::kTextCell)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "This cell holds a block, not text."));
  if (!t->isTextEditable(row, column))
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The drawing keeps no text of its own for this cell: it cannot be edited here."));
  if (t->textString(row, column).qstring() != s) t->setTextString(row, column, OdString(s));
  return kZqSetApplied;
}

bool cellTextReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const T* t = ZqReadable<T>(object);
  return !t || cellCount(t) == 0;
}

template <int (T::*Get)() const>
CZqVariant getCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(int32_t((t->*Get)())) : CZqVariant();
}

const ZqChoice kDirections[] = {
    {QT_TRANSLATE_NOOP("property_values", "Down"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Up"), 1},
};
int flowOf(const T* t) { return t->flowsUp() ? 1 : 0; }
CZqVariant getDirection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? ZqEnumeration(kDirections, flowOf(t)) : CZqVariant();
}

// The insertion point is the block reference's.
using R = OdDbBlockReference;
template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<R, &R::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<R, &R::position, &R::setPosition, Axis>;
constexpr auto getWidth = ZqGetDouble<T, &T::width>;
constexpr auto getHeight = ZqGetDouble<T, &T::height>;
constexpr auto getStyle = ZqGetText<T, &T::tableStyleName>;

const ZqRow kRows[] = {
//  category     name                                                    type           identifier                read-only         get                          set             icon                    visibility
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),      kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable,      getPosition<0>,              setPosition<0>, "Geometry_CoordinateX", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),      kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable,      getPosition<1>,              setPosition<1>, "Geometry_CoordinateY", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),      kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable,      getPosition<2>,              setPosition<2>, "Geometry_CoordinateZ", kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Table width"),     kZqDouble,     nullptr,                  kZqReadOnly,      getWidth,                    nullptr,        "Geometry_Width",       kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Table height"),    kZqDouble,     nullptr,                  kZqReadOnly,      getHeight,                   nullptr,        "Geometry_Height",      kVisKeep},
  {ZQ_TABLE,    QT_TRANSLATE_NOOP("property_types", "Table style"),     kZqString,     nullptr,                  kZqReadOnly,      getStyle,                    nullptr,        nullptr},
  {ZQ_TABLE,    QT_TRANSLATE_NOOP("property_types", "Rows"),            kZqInt32,      nullptr,                  kZqReadOnly,      getCount<&T::numRows>,       nullptr,        "Misc_Rows"},
  {ZQ_TABLE,    QT_TRANSLATE_NOOP("property_types", "Columns"),         kZqInt32,      nullptr,                  kZqReadOnly,      getCount<&T::numColumns>,    nullptr,        "Misc_Columns"},
  {ZQ_TABLE,    QT_TRANSLATE_NOOP("property_types", "Direction"),       kZqCollection, nullptr,                  kZqReadOnly,      getDirection,                nullptr,        nullptr},
  {ZQ_CELL,     QT_TRANSLATE_NOOP("property_types", "Cell"),            kZqCollection, ZqGuid::kVertexGUID,      kZqEditable,      getCell,                     setCell,        nullptr,                kVisXor8},
  {ZQ_CELL,     QT_TRANSLATE_NOOP("property_types", "Contents"),        kZqString,     nullptr,                  cellTextReadOnly, getCellText,                 setCellText,    nullptr,                kVisXor8},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqTablePE, QT_TRANSLATE_NOOP("entity_types", "Table"), kRows)

void CZqTableInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<T>(this, object, context, [&](const T* t) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Table style")), CZqString(t->tableStyleName()));
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "Insertion point")), t->position());
    context->PrintInt(item(QT_TRANSLATE_NOOP("info_items", "Rows")), t->numRows());
    context->PrintInt(item(QT_TRANSLATE_NOOP("info_items", "Columns")), t->numColumns());
    context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Table width")), t->width());
    context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Table height")), t->height());
  });
}
