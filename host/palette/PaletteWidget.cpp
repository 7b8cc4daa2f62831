#include "PaletteWidget.h"
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QSpinBox>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

// The editor of an action row: the value and a button opening its dialog.
class ActionEditor : public QWidget {
 public:
  ActionEditor(QWidget* parent) : QWidget(parent), line(new QLineEdit(this)), button(new QToolButton(this)) {
    auto* l = new QHBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(0);
    line->setFrame(false);
    button->setText("...");
    l->addWidget(line, 1);
    l->addWidget(button);
    setFocusProxy(line);
  }
  QLineEdit* line;
  QToolButton* button;
};

// Colour choices a user picks by name; the last entry opens the colour picker.
const char* const kColours[] = {"ByLayer", "ByBlock", "red", "yellow", "green", "cyan", "blue", "magenta", "white"};
}  // namespace

ZqPaletteDelegate::ZqPaletteDelegate(ZqPaletteModel* model, QObject* parent) : QStyledItemDelegate(parent), m_model(model) {}

QWidget* ZqPaletteDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  const CZqPaletteRow* row = m_model->row(index);
  if (!row || row->readOnly) return nullptr;
  const QString typeId = row->type.GetTypeId().qstring();
  const int kind = row->sample.IsEmpty() ? row->type.GetType() : int(row->sample.GetType());
  if (m_model->isCurrentItemRow(index)) {
    auto* spin = new QSpinBox(parent);
    const int count = row->sample.GetType() == CZqVariant::kVtCollection ? row->sample.GetCollection().GetCount() : 1;
    spin->setRange(1, std::max(1, count));
    spin->setFrame(false);
    return spin;
  }
  if (m_model->isActionRow(index)) {
    auto* editor = new ActionEditor(parent);
    auto* palette = qobject_cast<ZqPaletteWidget*>(this->parent());
    const QPersistentModelIndex at(index);
    QObject::connect(editor->button, &QToolButton::clicked, editor, [palette, at] {
      if (palette && at.isValid()) palette->openActionDialog(at);
    });
    return editor;
  }
  if (kind == CZqVariant::kVtCollection || kind == CZqVariant::kVtCollectionElement) {
    auto* combo = new QComboBox(parent);
    if (row->sample.GetType() == CZqVariant::kVtCollection) {
      const CZqVariantCollection& c = row->sample.GetCollection();
      for (int i = 0; i < c.GetCount(); ++i) combo->addItem(CZqPropertiesWindowService::FormatValue(nullptr, c.GetAt(i).GetValue(), {}).qstring());
    }
    return combo;
  }
  if (kind == CZqVariant::kVtId) {
    auto* combo = new QComboBox(parent);
    combo->addItems(m_model->recordNames(index));
    return combo;
  }
  if (kind == CZqVariant::kVtColor) {
    auto* combo = new QComboBox(parent);
    combo->setEditable(true);
    for (const char* c : kColours) combo->addItem(QString::fromLatin1(c));
    combo->addItem(QCoreApplication::translate("zqpalette", "Select Colour..."));
    const int pick = combo->count() - 1;
    QObject::connect(combo, qOverload<int>(&QComboBox::activated), combo, [combo, pick](int i) {
      if (i != pick) return;
      const QColor c = QColorDialog::getColor(Qt::white, combo, QCoreApplication::translate("zqpalette", "Select Colour"));
      combo->setEditText(c.isValid() ? QStringLiteral("%1,%2,%3").arg(c.red()).arg(c.green()).arg(c.blue()) : QString());
    });
    return combo;
  }
  if (kind == CZqVariant::kVtInt32 && typeId == QLatin1String(CZqPropertyType::kLineweightGUID)) {
    auto* combo = new QComboBox(parent);
    for (int lw : {-1, -2, -3, 0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211})
      combo->addItem(OdDb::lineWeightName(lw).qstring());
    return combo;
  }
  auto* line = new QLineEdit(parent);
  line->setFrame(false);
  return line;
}

void ZqPaletteDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const CZqPaletteRow* row = m_model->row(index);
  if (!row) return;
  // A value that varies starts empty: nothing typed changes nothing.
  const QString text = row->varies ? QString() : row->text.qstring();
  if (auto* spin = qobject_cast<QSpinBox*>(editor)) {
    const CZqVariant& v = row->sample;
    spin->setValue(v.GetType() == CZqVariant::kVtCollection ? v.GetCollection().GetCurrent() + 1 : 1);
  } else if (auto* combo = qobject_cast<QComboBox*>(editor)) {
    const int at = combo->findText(text);
    if (at >= 0) combo->setCurrentIndex(at);
    else if (combo->isEditable()) combo->setEditText(text);
    else combo->setCurrentIndex(-1);
  } else if (auto* line = qobject_cast<QLineEdit*>(editor)) {
    line->setText(text);
  } else if (auto* action = dynamic_cast<ActionEditor*>(editor)) {
    action->line->setText(text);
  }
}

QString ZqPaletteDelegate::editorText(QWidget* editor) {
  if (auto* spin = qobject_cast<QSpinBox*>(editor)) return QString::number(spin->value());
  if (auto* combo = qobject_cast<QComboBox*>(editor)) return combo->currentText();
  if (auto* line = qobject_cast<QLineEdit*>(editor)) return line->text();
  if (auto* action = dynamic_cast<ActionEditor*>(editor)) return action->line->text();
  return {};
}

void ZqPaletteDelegate::setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex& index) const {
  const CZqPaletteRow* row = m_model->row(index);
  if (!row) return;
  const QString text = editorText(editor);
  // Leaving an editor unchanged (or a varying value untouched) is no edit.
  if (text.isEmpty() && row->varies) return;
  if (!row->varies && text == row->text.qstring()) return;
  // The edit rebuilds the rows; it runs once the editor has closed.
  ZqPaletteModel* model = m_model;
  const QPersistentModelIndex at(index);
  QMetaObject::invokeMethod(model, [model, at, text] {
    if (at.isValid()) model->commitText(at, text);
  }, Qt::QueuedConnection);
}

ZqPaletteWidget::ZqPaletteWidget(QWidget* parent)
    : QWidget(parent), m_model(new ZqPaletteModel(this)), m_classes(new QComboBox(this)), m_tree(new QTreeView(this)),
      m_message(new QLabel(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->addWidget(m_classes);
  layout->addWidget(m_tree, 1);
  layout->addWidget(m_message);
  m_message->setWordWrap(true);
  m_message->setStyleSheet("color: #b00000");
  m_message->hide();
  m_tree->setModel(m_model);
  m_tree->setItemDelegate(new ZqPaletteDelegate(m_model, this));
  m_tree->setUniformRowHeights(true);
  m_tree->setAlternatingRowColors(true);
  m_tree->setEditTriggers(QAbstractItemView::AllEditTriggers);
  m_tree->header()->setSectionResizeMode(QHeaderView::Interactive);
  m_tree->header()->resizeSection(0, 160);
  m_tree->header()->setStretchLastSection(true);
  m_tree->setSelectionBehavior(QAbstractItemView::SelectItems);
  connect(m_classes, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int i) {
    if (m_reloading) return;
    m_model->setClassFilter(i - 1);
    expandAll();
  });
  connect(m_model, &ZqPaletteModel::refused, this, &ZqPaletteWidget::showRefusal);
  connect(m_model, &ZqPaletteModel::edited, this, [this] {
    m_lastMessage.clear();
    m_message->hide();
  });
  connect(m_model, &QAbstractItemModel::modelReset, this, &ZqPaletteWidget::expandAll);
  connect(m_tree, &QTreeView::collapsed, this, [this](const QModelIndex& i) {
    const QString c = i.data().toString();
    if (!m_collapsed.contains(c)) m_collapsed << c;
  });
  connect(m_tree, &QTreeView::expanded, this, [this](const QModelIndex& i) { m_collapsed.removeAll(i.data().toString()); });
  reload();
}

void ZqPaletteWidget::reload() {
  m_reloading = true;
  m_classes->clear();
  m_classes->addItems(m_model->filterEntries());
  m_classes->setCurrentIndex(m_model->classFilter() + 1);
  m_reloading = false;
  expandAll();
}

void ZqPaletteWidget::expandAll() {
  // Categories open unless the user closed them; each row's first column
  // spans both for categories.
  const QSignalBlocker block(m_tree);
  for (int c = 0; c < m_model->rowCount(); ++c) {
    const QModelIndex cat = m_model->index(c, 0);
    m_tree->setFirstColumnSpanned(c, {}, true);
    m_tree->setExpanded(cat, !m_collapsed.contains(cat.data().toString()));
  }
}

void ZqPaletteWidget::showRefusal(const QString& message) {
  m_lastMessage = message;
  m_message->setText(message);
  m_message->show();
  if (!m_boxes) return;
  auto* box = new QMessageBox(QMessageBox::Warning, QCoreApplication::translate("errors", "Error"), message, QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

void ZqPaletteWidget::openActionDialog(const QModelIndex& index) {
  const CZqPaletteRow* row = m_model->row(index);
  if (!row) return;
  QDialog dialog(this);
  dialog.setWindowTitle(row->nameKey.qstring() == QLatin1String("Annotative Scale") ? QCoreApplication::translate("zqpalette", "Edit annotation scales") : row->name.qstring());
  auto* form = new QFormLayout(&dialog);
  auto* edit = new QLineEdit(row->varies ? QString() : row->text.qstring(), &dialog);
  form->addRow(row->name.qstring(), edit);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
  form->addRow(buttons);
  connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  if (dialog.exec() != QDialog::Accepted) return;
  m_model->runAction(index, edit->text());
}
