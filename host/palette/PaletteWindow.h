#pragma once
// The main window of zqpalette: the drawing view with a tab per space
// (model space and each layout), the Properties palette and the
// information listing in docks, and the File and Edit menus (open, save,
// recent files, undo, redo).
#include "DbDatabase.h"
#include <QMainWindow>
#include <QStringList>

class QAction;
class QMenu;
class QPlainTextEdit;
class QTabBar;
class ZqDrawingView;
class ZqPaletteWidget;

class ZqPaletteWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit ZqPaletteWindow(QWidget* parent = nullptr);
  ~ZqPaletteWindow() override;

  // Reads a drawing; false with the reason (the current drawing stays).
  bool openDrawing(const QString& path, QString* why = nullptr);
  // Saves the drawing (safely: a temporary file renamed over the target).
  bool saveDrawing(const QString& path, QString* why = nullptr);
  // Selects the objects with these handles (showing the space of the first).
  bool selectHandles(const QStringList& handles, QString* why = nullptr);
  void setSelection(const OdDbObjectIdArray& ids);

  OdDbDatabase* database() const { return m_db.get(); }
  QString drawingPath() const { return m_path; }
  ZqPaletteWidget* palette() const { return m_palette; }
  ZqDrawingView* view() const { return m_view; }
  QPlainTextEdit* information() const { return m_info; }
  QTabBar* spaces() const { return m_spaces; }
  QAction* undoAction() const { return m_undo; }
  QAction* redoAction() const { return m_redo; }
  // Whether closing asks about unsaved edits with a dialog (off in tests).
  void setAskOnClose(bool on) { m_ask = on; }

 public slots:
  void undo();
  void redo();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void buildMenus();
  void showSpace(int tab);
  void afterEdit();
  void updateInformation();
  void updateTitle();
  void addRecent(const QString& path);
  void fillRecent();
  bool maybeSave();
  void openWithDialog();
  bool saveAsWithDialog();

  OdDbDatabasePtr m_db;
  QString m_path;
  OdDbObjectIdArray m_blocks;  // model space, then the layouts, as the tabs
  ZqDrawingView* m_view;
  QTabBar* m_spaces;
  ZqPaletteWidget* m_palette;
  QPlainTextEdit* m_info;
  QMenu* m_recent = nullptr;
  QAction* m_undo = nullptr;
  QAction* m_redo = nullptr;
  bool m_ask = true;
};
