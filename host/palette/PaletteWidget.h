#pragma once
// The Properties palette: the selection list ("All (N)", one entry per
// class) above a tree of the rows grouped by category, each value edited
// with the editor its kind calls for.
#include "PaletteModel.h"
#include <QStyledItemDelegate>
#include <QWidget>

class QComboBox;
class QTreeView;
class QLabel;

// Creates the editor of a row: a line edit read by the value parser, a spin
// box for the current vertex, a list for enumerations, Yes/No and records
// (layers, linetypes, styles), a colour list with a colour picker, and a
// line edit with a button that opens a dialog for action rows.
class ZqPaletteDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit ZqPaletteDelegate(ZqPaletteModel* model, QObject* parent = nullptr);
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

  // The text an editor holds, as the row's value parser reads it.
  static QString editorText(QWidget* editor);

 private:
  ZqPaletteModel* m_model;
};

class ZqPaletteWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ZqPaletteWidget(QWidget* parent = nullptr);
  ZqPaletteModel* model() const { return m_model; }
  QTreeView* tree() const { return m_tree; }
  QComboBox* classList() const { return m_classes; }
  // The last refusal shown (empty when the last edit was taken).
  QString lastMessage() const { return m_lastMessage; }
  // Whether refusals are shown in a message box (off in tests and screenshots).
  void setMessageBoxes(bool on) { m_boxes = on; }

  // Opens the dialog of an action row ("Edit annotation scales").
  void openActionDialog(const QModelIndex& index);

 public slots:
  // Shows the rows of the model's selection (after it changed).
  void reload();

 private:
  void showRefusal(const QString& message);
  void expandAll();

  ZqPaletteModel* m_model;
  QComboBox* m_classes;
  QTreeView* m_tree;
  QLabel* m_message;
  QString m_lastMessage;
  QStringList m_collapsed;  // categories the user closed, kept across reloads
  bool m_boxes = true;
  bool m_reloading = false;
};
