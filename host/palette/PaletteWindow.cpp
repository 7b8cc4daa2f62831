#include "PaletteWindow.h"
#include "DrawingView.h"
#include "PaletteWidget.h"
#include "DbLayout.h"
#include "DbUndo.h"
#include "DxfDatabase.h"
#include "Listing.h"
#include "ZqSelection.h"
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStatusBar>
#include <QTabBar>
#include <QTextStream>
#include <QTreeView>
#include <QVBoxLayout>

namespace {
constexpr int kMaxRecent = 8;
// The information listing shows at most this many objects (a whole drawing would take long).
constexpr size_t kMaxListed = 500;
}  // namespace

ZqPaletteWindow::ZqPaletteWindow(QWidget* parent)
    : QMainWindow(parent), m_view(new ZqDrawingView), m_spaces(new QTabBar), m_palette(new ZqPaletteWidget),
      m_info(new QPlainTextEdit) {
  auto* central = new QWidget;
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_view, 1);
  layout->addWidget(m_spaces);
  m_spaces->setShape(QTabBar::RoundedSouth);
  setCentralWidget(central);

  auto* paletteDock = new QDockWidget(QCoreApplication::translate("zqpalette", "Properties"), this);
  paletteDock->setObjectName("properties");
  paletteDock->setWidget(m_palette);
  addDockWidget(Qt::LeftDockWidgetArea, paletteDock);
  auto* infoDock = new QDockWidget(QCoreApplication::translate("zqpalette", "Information"), this);
  infoDock->setObjectName("information");
  m_info->setReadOnly(true);
  m_info->setLineWrapMode(QPlainTextEdit::NoWrap);
  m_info->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 9));
  infoDock->setWidget(m_info);
  addDockWidget(Qt::BottomDockWidgetArea, infoDock);
  m_palette->setMinimumWidth(300);

  buildMenus();
  connect(m_spaces, &QTabBar::currentChanged, this, &ZqPaletteWindow::showSpace);
  connect(m_view, &ZqDrawingView::selectionChanged, this, &ZqPaletteWindow::setSelection);
  connect(m_palette->model(), &ZqPaletteModel::edited, this, [this](const OdDbObjectIdArray& ids) {
    m_view->objectsChanged(ids);
    afterEdit();
  });
  updateTitle();
}

ZqPaletteWindow::~ZqPaletteWindow() {
  // The palette's rows refer to the drawing: they go first.
  m_palette->model()->setDatabase(nullptr);
}

void ZqPaletteWindow::buildMenus() {
  QMenu* file = menuBar()->addMenu(QCoreApplication::translate("zqpalette", "&File"));
  file->addAction(QCoreApplication::translate("zqpalette", "&Open..."), QKeySequence::Open, this, &ZqPaletteWindow::openWithDialog);
  file->addAction(QCoreApplication::translate("zqpalette", "&Save"), QKeySequence::Save, this, [this] {
    QString why;
    if (m_path.isEmpty()) saveAsWithDialog();
    else if (!saveDrawing(m_path, &why)) QMessageBox::warning(this, QCoreApplication::translate("zqpalette", "Save"), why);
  });
  file->addAction(QCoreApplication::translate("zqpalette", "Save &As..."), QKeySequence::SaveAs, this, &ZqPaletteWindow::saveAsWithDialog);
  m_recent = file->addMenu(QCoreApplication::translate("zqpalette", "Recent Files"));
  fillRecent();
  file->addSeparator();
  file->addAction(QCoreApplication::translate("zqpalette", "&Quit"), QKeySequence::Quit, this, &QWidget::close);

  QMenu* edit = menuBar()->addMenu(QCoreApplication::translate("zqpalette", "&Edit"));
  m_undo = edit->addAction(QCoreApplication::translate("zqpalette", "&Undo"), QKeySequence::Undo, this, &ZqPaletteWindow::undo);
  m_redo = edit->addAction(QCoreApplication::translate("zqpalette", "&Redo"), QKeySequence::Redo, this, &ZqPaletteWindow::redo);
  edit->addSeparator();
  edit->addAction(QCoreApplication::translate("zqpalette", "Select &All"), QKeySequence::SelectAll, this, [this] {
    setSelection(m_view->geometry().items().empty() ? OdDbObjectIdArray() : [this] {
      OdDbObjectIdArray ids;
      for (const auto& it : m_view->geometry().items()) ids.append(it.id);
      return ids;
    }());
  });
  edit->addAction(QCoreApplication::translate("zqpalette", "&Deselect"), QKeySequence(Qt::Key_Escape), this, [this] { setSelection({}); });

  QMenu* view = menuBar()->addMenu(QCoreApplication::translate("zqpalette", "&View"));
  view->addAction(QCoreApplication::translate("zqpalette", "Zoom &Extents"), QKeySequence(Qt::CTRL | Qt::Key_E), m_view, &ZqDrawingView::zoomExtents);
}

bool ZqPaletteWindow::openDrawing(const QString& path, QString* why) {
  QString error;
  QStringList warnings;
  OdDbDatabasePtr db = OdDxf::readDrawing(path, error, &warnings);
  if (!db) {
    if (why) *why = error;
    return false;
  }
  m_palette->model()->setDatabase(nullptr);
  m_db = db;
  m_path = path;
  // Model space first, then the layouts in the order of the block table.
  m_blocks.clear();
  m_blocks.append(m_db->getModelSpaceId());
  OdDbObjectPtr table = m_db->getBlockTableId().openObject();
  if (auto* t = odrxCast<OdDbBlockTable>(table.get()))
    for (const OdDbObjectId& id : t->recordIds()) {
      OdDbObjectPtr rec = id.openObject();
      if (auto* b = odrxCast<OdDbBlockTableRecord>(rec.get()); b && b->isPaperSpace() && id != m_db->getModelSpaceId())
        m_blocks.append(id);
    }
  {
    const QSignalBlocker block(m_spaces);
    while (m_spaces->count()) m_spaces->removeTab(0);
    m_spaces->addTab(QCoreApplication::translate("zqpalette", "Model"));
    // Each layout's tab shows the layout's name; one without a layout object
    // its place among the tabs.
    for (size_t i = 1; i < m_blocks.size(); ++i) {
      OdDbObjectPtr l = oddbLayoutOf(m_blocks[unsigned(i)]).openObject();
      auto* layout = odrxCast<OdDbLayout>(l.get());
      m_spaces->addTab(layout ? layout->getLayoutName().qstring() : QCoreApplication::translate("zqpalette", "Layout%1").arg(i));
    }
    m_spaces->setCurrentIndex(0);
  }
  m_palette->model()->setDatabase(m_db.get());
  m_view->setBlock(m_db.get(), m_blocks.front());
  setSelection({});
  addRecent(path);
  updateTitle();
  for (const QString& w : warnings) statusBar()->showMessage(QCoreApplication::translate("zqpalette", "warning: %1").arg(w), 10000);
  return true;
}

bool ZqPaletteWindow::saveDrawing(const QString& path, QString* why) {
  if (!m_db) return false;
  QString error;
  if (!OdDxf::writeDrawing(m_db.get(), path, error)) {
    if (why) *why = error;
    return false;
  }
  m_path = path;
  addRecent(path);
  updateTitle();
  statusBar()->showMessage(QCoreApplication::translate("zqpalette", "Saved %1.").arg(QFileInfo(path).fileName()), 5000);
  return true;
}

bool ZqPaletteWindow::selectHandles(const QStringList& handles, QString* why) {
  if (!m_db) return false;
  CZqSelectionFilter filter;
  filter.handles = handles;
  OdDbObjectIdArray ids;
  if (!filter.Select(m_db.get(), ids, why)) return false;
  // Show the space of the first object.
  if (!ids.isEmpty()) {
    OdDbObjectPtr obj = ids.front().openObject();
    const OdDbObjectId owner = obj ? obj->ownerId() : OdDbObjectId();
    for (size_t i = 0; i < m_blocks.size(); ++i)
      if (m_blocks[i] == owner && int(i) != m_spaces->currentIndex()) m_spaces->setCurrentIndex(int(i));
  }
  setSelection(ids);
  return true;
}

void ZqPaletteWindow::setSelection(const OdDbObjectIdArray& ids) {
  m_view->setSelection(ids);
  m_palette->model()->setSelection(ids);
  m_palette->reload();
  CZqSelectionFilter::SetPrevious(ids);
  updateInformation();
}

void ZqPaletteWindow::showSpace(int tab) {
  if (!m_db || tab < 0 || size_t(tab) >= m_blocks.size()) return;
  m_view->setBlock(m_db.get(), m_blocks[size_t(tab)]);
  setSelection({});
}

void ZqPaletteWindow::undo() {
  if (!m_db || !m_db->undoJournal().undo()) return;
  statusBar()->showMessage(QCoreApplication::translate("zqpalette", "Undone."), 3000);
  afterEdit();
  m_palette->model()->refresh();
  m_palette->reload();
  // What was undone may lie anywhere in the space: read it again, keeping the view.
  OdDbObjectIdArray all;
  for (const auto& it : m_view->geometry().items()) all.append(it.id);
  m_view->objectsChanged(all);
}

void ZqPaletteWindow::redo() {
  if (!m_db || !m_db->undoJournal().redo()) return;
  statusBar()->showMessage(QCoreApplication::translate("zqpalette", "Redone."), 3000);
  afterEdit();
  m_palette->model()->refresh();
  m_palette->reload();
  OdDbObjectIdArray all;
  for (const auto& it : m_view->geometry().items()) all.append(it.id);
  m_view->objectsChanged(all);
}

void ZqPaletteWindow::afterEdit() {
  updateTitle();
  updateInformation();
}

void ZqPaletteWindow::updateInformation() {
  QString text;
  if (m_db) {
    QTextStream out(&text);
    const OdDbObjectIdArray& ids = m_palette->model()->selection();
    for (size_t i = 0; i < ids.size() && i < kMaxListed; ++i) zqPrintInfo(out, m_db.get(), ids[i], false);
    if (ids.size() > kMaxListed) out << QCoreApplication::translate("zqpalette", "... and %1 more objects.").arg(ids.size() - kMaxListed) << "\n";
  }
  m_info->setPlainText(text);
}

void ZqPaletteWindow::updateTitle() {
  const bool unsaved = m_db && m_db->undoJournal().unsavedSteps() != 0;
  setWindowTitle(QStringLiteral("%1%2 - zqpalette").arg(m_path.isEmpty() ? QCoreApplication::translate("zqpalette", "(no drawing)") : QFileInfo(m_path).fileName(), unsaved ? "*" : ""));
  if (m_undo) m_undo->setEnabled(m_db && m_db->undoJournal().undoSteps() > 0);
  if (m_redo) m_redo->setEnabled(m_db && m_db->undoJournal().redoSteps() > 0);
}

void ZqPaletteWindow::addRecent(const QString& path) {
  QSettings settings("ZQProperties", "zqpalette");
  QStringList files = settings.value("recentFiles").toStringList();
  const QString full = QFileInfo(path).absoluteFilePath();
  files.removeAll(full);
  files.prepend(full);
  while (files.size() > kMaxRecent) files.removeLast();
  settings.setValue("recentFiles", files);
  fillRecent();
}

void ZqPaletteWindow::fillRecent() {
  if (!m_recent) return;
  m_recent->clear();
  QSettings settings("ZQProperties", "zqpalette");
  for (const QString& f : settings.value("recentFiles").toStringList())
    m_recent->addAction(QFileInfo(f).fileName(), this, [this, f] {
      if (!maybeSave()) return;
      QString why;
      if (!openDrawing(f, &why)) QMessageBox::warning(this, QCoreApplication::translate("zqpalette", "Open"), QCoreApplication::translate("zqpalette", "Cannot open %1: %2").arg(f, why));
    })->setToolTip(f);
  m_recent->setEnabled(!m_recent->isEmpty());
}

bool ZqPaletteWindow::maybeSave() {
  if (!m_db || m_db->undoJournal().unsavedSteps() == 0 || !m_ask) return true;
  const auto answer = QMessageBox::question(this, QCoreApplication::translate("zqpalette", "Unsaved changes"),
                                            QCoreApplication::translate("zqpalette", "The drawing %1 has unsaved changes. Save them?").arg(QFileInfo(m_path).fileName()),
                                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
  if (answer == QMessageBox::Cancel) return false;
  if (answer == QMessageBox::Discard) return true;
  QString why;
  if (saveDrawing(m_path, &why)) return true;
  QMessageBox::warning(this, QCoreApplication::translate("zqpalette", "Save"), why);
  return false;
}

void ZqPaletteWindow::closeEvent(QCloseEvent* event) {
  if (maybeSave()) event->accept();
  else event->ignore();
}

void ZqPaletteWindow::openWithDialog() {
  if (!maybeSave()) return;
  const QString path = QFileDialog::getOpenFileName(this, QCoreApplication::translate("zqpalette", "Open Drawing"), QFileInfo(m_path).absolutePath(), QCoreApplication::translate("zqpalette", "DXF drawings (*.dxf);;All files (*)"));
  if (path.isEmpty()) return;
  QString why;
  if (!openDrawing(path, &why)) QMessageBox::warning(this, QCoreApplication::translate("zqpalette", "Open"), QCoreApplication::translate("zqpalette", "Cannot open %1: %2").arg(path, why));
}

bool ZqPaletteWindow::saveAsWithDialog() {
  if (!m_db) return false;
  const QString path = QFileDialog::getSaveFileName(this, QCoreApplication::translate("zqpalette", "Save Drawing As"), m_path, QCoreApplication::translate("zqpalette", "DXF drawings (*.dxf)"));
  if (path.isEmpty()) return false;
  QString why;
  if (saveDrawing(path, &why)) return true;
  QMessageBox::warning(this, QCoreApplication::translate("zqpalette", "Save"), why);
  return false;
}
