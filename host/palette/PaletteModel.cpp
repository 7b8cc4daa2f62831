#include "PaletteModel.h"
#include "Listing.h"
#include "DbDatabase.h"
#include "DbUndo.h"
#include <QBrush>
#include <QFile>
#include <QIcon>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
#include <QPalette>
#include <algorithm>

namespace {
QString rowKey(const CZqString& category, const CZqString& name) { return category.qstring() + QChar(0x1F) + name.qstring(); }

// The rows a provider gives one object (the container owns the dynamic ones).
std::unique_ptr<CZqPropertiesContainer> containerOf(const OdDbObject* object) {
  CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(object);
  if (!pe) return nullptr;
  CZqPropertiesContainer* c = nullptr;
  pe->GetPropertyNames(object, c, nullptr, nullptr, false);
  if (c) pe->GetPropertyNamesDynamic(object, c);
  return std::unique_ptr<CZqPropertiesContainer>(c);
}

OdDbObjectId tableFor(const OdDbDatabase* db, const QString& typeId) {
  if (typeId == QLatin1String(CZqPropertyType::kLayerGUID)) return db->getLayerTableId();
  if (typeId == QLatin1String(CZqPropertyType::kLinetypeGUID)) return db->getLinetypeTableId();
  if (typeId == QLatin1String(CZqPropertyType::kTextStyleGUID)) return db->getTextStyleTableId();
  if (typeId == QLatin1String(CZqPropertyType::kDimStyleGUID)) return db->getDimStyleTableId();
  return {};
}
constexpr quintptr kCategoryId = 0;
}  // namespace

ZqPaletteModel::ZqPaletteModel(QObject* parent) : QAbstractItemModel(parent) {}
ZqPaletteModel::~ZqPaletteModel() = default;

void ZqPaletteModel::setDatabase(OdDbDatabase* db) {
  m_db = db;
  m_service = db ? std::make_unique<CZqPropertiesWindowService>(db) : nullptr;
  setSelection({});
}

void ZqPaletteModel::setSelection(const OdDbObjectIdArray& ids) {
  m_selection = ids;
  m_filter = -1;
  group();
  if (m_service) m_service->SetSelection(activeObjects());
  rebuild();
}

void ZqPaletteModel::group() {
  m_groups.clear();
  QHash<const OdRxClass*, int> groupOf;
  for (const OdDbObjectId& id : m_selection) {
    OdDbObjectPtr obj = id.openObject();
    if (!obj) continue;
    const OdRxClass* cls = obj->isA();
    auto it = groupOf.find(cls);
    if (it == groupOf.end()) {
      it = groupOf.insert(cls, int(m_groups.size()));
      m_groups.push_back({cls, zqDisplayName(obj.get()), {}});
    }
    m_groups[size_t(*it)].ids.append(id);
  }
}

void ZqPaletteModel::setClassFilter(int group) {
  m_filter = group >= 0 && group < int(m_groups.size()) ? group : -1;
  if (m_service) m_service->SetSelection(activeObjects());
  rebuild();
}

const OdDbObjectIdArray& ZqPaletteModel::activeObjects() const {
  return m_filter >= 0 ? m_groups[size_t(m_filter)].ids : m_selection;
}

QStringList ZqPaletteModel::filterEntries() const {
  QStringList out;
  qsizetype total = 0;
  for (const ZqPaletteClassGroup& g : m_groups) total += g.ids.size();
  out << QCoreApplication::translate("zqpalette", "All (%1)").arg(total);
  for (const ZqPaletteClassGroup& g : m_groups) out << QCoreApplication::translate("zqpalette", "%1 (%2)").arg(g.name).arg(g.ids.size());
  return out;
}

std::vector<int> ZqPaletteModel::activeGroups() const {
  std::vector<int> out;
  if (m_filter >= 0) {
    out.push_back(m_filter);
  } else {
    for (int i = 0; i < int(m_groups.size()); ++i) out.push_back(i);
  }
  return out;
}

void ZqPaletteModel::refresh() {
  // The same selection, class filter and current item; objects erased by an
  // undo drop out.
  const CZqVariant index = m_service ? m_service->CurrentIndex() : CZqVariant();
  const OdDbObjectIdArray active = activeObjects();
  const QString filterName = m_filter >= 0 ? m_groups[size_t(m_filter)].name : QString();
  OdDbObjectIdArray kept;
  for (const OdDbObjectId& id : m_selection) {
    OdDbObjectPtr obj = id.openObject();
    if (obj && !obj->isErased()) kept.append(id);
  }
  m_selection = kept;
  group();
  m_filter = -1;
  if (!filterName.isEmpty())
    for (int i = 0; i < int(m_groups.size()); ++i)
      if (m_groups[size_t(i)].name == filterName) m_filter = i;
  if (m_service) {
    m_service->SetSelection(activeObjects());
    if (activeObjects() == active) m_service->SetCurrentIndex(index);
  }
  rebuild();
}

void ZqPaletteModel::rebuild() {
  beginResetModel();
  m_entries.clear();
  m_categories.clear();
  m_containers.clear();
  const std::vector<int> groups = activeGroups();
  const bool multi = activeObjects().size() > 1;
  bool complete = !groups.empty();
  // Each class's rows, from its first object.
  std::vector<QHash<QString, const CZqPropertyDescription*>> byKey(groups.size());
  for (size_t g = 0; g < groups.size() && complete; ++g) {
    OdDbObjectPtr obj = m_groups[size_t(groups[g])].ids.front().openObject();
    auto c = obj ? containerOf(obj.get()) : nullptr;
    if (!c) {
      complete = false;  // an object without rows: nothing is common
      break;
    }
    for (int i = 0; i < c->GetCount(); ++i) {
      const CZqPropertyDescription* d = c->GetAt(i);
      const unsigned vis = d->GetVisibility();
      if (!(vis & kZqVisPalette) || (multi && (vis & kZqVisSingleOnly))) continue;
      const QString k = rowKey(d->GetCategoryKey(), d->GetNameKey());
      // A name repeated within one object: shown for that object alone; for
      // several objects the first serves.
      const bool repeated = byKey[g].contains(k);
      if (repeated && multi) continue;
      if (!repeated) byKey[g].insert(k, d);
      if (g == 0) {
        Entry e;
        e.row.category = d->GetCategory();
        e.row.name = d->GetName();
        e.row.categoryKey = d->GetCategoryKey();
        e.row.nameKey = d->GetNameKey();
        e.row.type = d->GetType();
        e.row.visibility = vis;
        e.action = d->IsGroupedAction();
        e.darkIcon = d->GetDarkIcon().qstring();
        e.lightIcon = d->GetLightIcon().qstring();
        if (repeated) e.descs.push_back(d);
        m_entries.push_back(std::move(e));
      }
    }
    m_containers.push_back(std::move(c));
  }
  if (!complete) {
    m_entries.clear();
    m_containers.clear();
  }
  // Only the rows every class has, grouped by category in order of first appearance.
  std::vector<Entry> kept;
  for (Entry& e : m_entries) {
    const QString k = rowKey(e.row.categoryKey, e.row.nameKey);
    bool everywhere = true;
    if (!e.descs.empty()) {
      // A repeated row of a single object keeps its own description.
    } else
    for (size_t g = 0; g < groups.size() && everywhere; ++g) {
      auto it = byKey[g].find(k);
      if (it == byKey[g].end()) everywhere = false;
      else e.descs.push_back(*it);
    }
    if (!everywhere) continue;
    const QString label = e.row.category.qstring();
    auto cat = std::find_if(m_categories.begin(), m_categories.end(), [&](const Category& c) { return c.label == label; });
    if (cat == m_categories.end()) cat = m_categories.insert(m_categories.end(), Category{label, {}});
    cat->rows.push_back(int(kept.size()));
    kept.push_back(std::move(e));
  }
  m_entries = std::move(kept);
  endResetModel();
}

void ZqPaletteModel::readValue(Entry& e) const {
  if (e.read) return;
  e.read = true;
  const std::vector<int> groups = activeGroups();
  const CZqVariant index = m_service ? m_service->CurrentIndex() : CZqVariant();
  bool first = true;
  e.row.readOnly = false;
  e.row.varies = false;
  for (size_t g = 0; g < groups.size() && g < e.descs.size(); ++g) {
    const CZqPropertyDescription* d = e.descs[g];
    for (const OdDbObjectId& id : m_groups[size_t(groups[g])].ids) {
      OdDbObjectPtr obj = id.openObject();
      if (!obj) continue;
      e.row.readOnly = e.row.readOnly || d->IsReadOnly(obj.get());
      if (!e.row.varies) {
        CZqVariant v = d->GetValue(obj.get(), index);
        if (first) {
          e.row.value = v;
          e.row.sample = std::move(v);
          first = false;
        } else if (!(v == e.row.value)) {
          e.row.varies = true;
        }
      }
      if (e.row.varies && e.row.readOnly) break;
    }
  }
  if (e.row.varies) {
    e.row.value = CZqVariant();
    e.row.text = QCoreApplication::translate("property_values", "*VARIES*");
  } else {
    e.row.text = CZqPropertiesWindowService::FormatValue(m_db, e.row.value, e.row.type);
  }
}

std::vector<CZqPaletteRow> ZqPaletteModel::rows() {
  std::vector<CZqPaletteRow> out;
  for (const Category& c : m_categories)
    for (int r : c.rows) {
      readValue(m_entries[size_t(r)]);
      out.push_back(m_entries[size_t(r)].row);
    }
  return out;
}

const ZqPaletteModel::Entry* ZqPaletteModel::entryOf(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kCategoryId) return nullptr;
  const size_t cat = size_t(index.internalId() - 1);
  if (cat >= m_categories.size() || index.row() >= int(m_categories[cat].rows.size())) return nullptr;
  Entry& e = m_entries[size_t(m_categories[cat].rows[size_t(index.row())])];
  readValue(e);
  return &e;
}

const CZqPaletteRow* ZqPaletteModel::row(const QModelIndex& index) {
  const Entry* e = entryOf(index);
  return e ? &e->row : nullptr;
}

QModelIndex ZqPaletteModel::find(const QString& category, const QString& name) const {
  auto is = [](const CZqString& key, const CZqString& shown, const QString& typed) {
    return key.qstring().compare(typed, Qt::CaseInsensitive) == 0 || shown.qstring().compare(typed, Qt::CaseInsensitive) == 0;
  };
  for (size_t c = 0; c < m_categories.size(); ++c)
    for (size_t r = 0; r < m_categories[c].rows.size(); ++r) {
      const CZqPaletteRow& row = m_entries[size_t(m_categories[c].rows[r])].row;
      if (is(row.nameKey, row.name, name) && (category.isEmpty() || is(row.categoryKey, row.category, category)))
        return createIndex(int(r), kValueColumn, quintptr(c + 1));
    }
  return {};
}

bool ZqPaletteModel::isActionRow(const QModelIndex& index) const {
  const Entry* e = entryOf(index);
  return e && (e->action || e->row.type.GetTypeId().qstring() == QLatin1String(CZqPropertyType::kLineEditToolButtonGUID));
}

bool ZqPaletteModel::isCurrentItemRow(const QModelIndex& index) const {
  const Entry* e = entryOf(index);
  return e && CZqPropertiesWindowService::IsCurrentItemRow(e->row.type);
}

QString ZqPaletteModel::iconPath(const QModelIndex& index, bool dark) const {
  const Entry* e = entryOf(index);
  return e ? (dark ? e->darkIcon : e->lightIcon) : QString();
}

QStringList ZqPaletteModel::recordNames(const QModelIndex& index) const {
  const Entry* e = entryOf(index);
  QStringList names;
  if (!e || !m_db) return names;
  OdDbObjectPtr table = tableFor(m_db, e->row.type.GetTypeId().qstring()).openObject();
  if (auto* t = OdDbSymbolTable::cast(table.get()).get()) {
    for (const OdDbObjectId& id : t->recordIds()) {
      OdDbObjectPtr rec = id.openObject();
      if (auto* r = OdDbSymbolTableRecord::cast(rec.get()).get()) names << r->getName().qstring();
    }
  }
  return names;
}

bool ZqPaletteModel::applyResults(const std::vector<CZqEditResult>& results, QString* why) {
  OdDbObjectIdArray changed;
  QString message;
  for (const CZqEditResult& r : results) {
    if (r.code == kZqSetRefused) {
      if (message.isEmpty()) message = r.message.qstring();
    } else {
      changed.append(r.id);
    }
  }
  refresh();
  if (!changed.isEmpty()) emit edited(changed);
  if (message.isEmpty()) return true;
  if (why) *why = message;
  emit refused(message);
  return !changed.isEmpty();
}

bool ZqPaletteModel::commitText(const QModelIndex& index, const QString& text, QString* why) {
  const Entry* e = entryOf(index);
  if (!e || !m_service) return false;
  CZqVariant value;
  QString reason;
  if (!m_service->ParseValue(e->row, text, value, &reason)) {
    if (why) *why = reason;
    emit refused(reason);
    return false;
  }
  return commitValue(index, value, why);
}

bool ZqPaletteModel::commitValue(const QModelIndex& index, const CZqVariant& value, QString* why) {
  const Entry* e = entryOf(index);
  if (!e || !m_service) return false;
  if (e->row.readOnly) {
    const QString message = QCoreApplication::translate("errors", "%1 is read-only.").arg(e->row.name.qstring());
    if (why) *why = message;
    emit refused(message);
    return false;
  }
  const CZqString category = e->row.categoryKey, name = e->row.nameKey;
  const std::vector<CZqEditResult> results = m_service->SetValue(category, name, value);
  bool anyRefused = false;
  for (const CZqEditResult& r : results) anyRefused = anyRefused || r.code == kZqSetRefused;
  const bool ok = applyResults(results, why);
  return ok && !anyRefused;
}

bool ZqPaletteModel::runAction(const QModelIndex& index, const QString& text, QString* why) {
  const Entry* e = entryOf(index);
  if (!e) return false;
  if (!e->action || e->descs.empty()) return commitText(index, text, why);
  // The action of the first class's row serves the whole selection.
  m_db->undoJournal().startStep(OdString(QStringLiteral("PROPERTIES %1").arg(e->row.nameKey.qstring())));
  e->descs.front()->DoGroupedAction(activeObjects(), CZqVariant(CZqString(text)), m_service->CurrentIndex());
  m_db->undoJournal().endStep();
  const OdDbObjectIdArray ids = activeObjects();
  refresh();
  emit edited(ids);
  return true;
}

QModelIndex ZqPaletteModel::index(int row, int column, const QModelIndex& parent) const {
  if (column < 0 || column > 1 || row < 0) return {};
  if (!parent.isValid()) return row < int(m_categories.size()) ? createIndex(row, column, kCategoryId) : QModelIndex();
  if (parent.internalId() != kCategoryId) return {};
  const size_t cat = size_t(parent.row());
  if (cat >= m_categories.size() || row >= int(m_categories[cat].rows.size())) return {};
  return createIndex(row, column, quintptr(cat + 1));
}

QModelIndex ZqPaletteModel::parent(const QModelIndex& child) const {
  if (!child.isValid() || child.internalId() == kCategoryId) return {};
  return createIndex(int(child.internalId() - 1), 0, kCategoryId);
}

int ZqPaletteModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return int(m_categories.size());
  if (parent.internalId() != kCategoryId || parent.column() != 0) return 0;
  return size_t(parent.row()) < m_categories.size() ? int(m_categories[size_t(parent.row())].rows.size()) : 0;
}

int ZqPaletteModel::columnCount(const QModelIndex&) const { return 2; }

QVariant ZqPaletteModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (index.internalId() == kCategoryId) {
    if (role == Qt::DisplayRole && index.column() == 0) return m_categories[size_t(index.row())].label;
    return {};
  }
  const Entry* e = entryOf(index);
  if (!e) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return index.column() == kNameColumn ? e->row.name.qstring() : e->row.text.qstring();
    case Qt::DecorationRole: {
      if (index.column() != kNameColumn) return {};
      // The icon for the palette's shade; a missing icon file shows none.
      const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
      const QString path = dark ? e->darkIcon : e->lightIcon;
      if (path.isEmpty() || !QFile::exists(path)) return {};
      return QIcon(path);
    }
    case Qt::ToolTipRole:
      return index.column() == kNameColumn ? zqRowKey(e->row) : e->row.text.qstring();
    case Qt::ForegroundRole:
      if (e->row.readOnly) return QBrush(QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text));
      return {};
    case kRowKeyRole: return zqRowKey(e->row);
    case kReadOnlyRole: return e->row.readOnly;
    case kVariesRole: return e->row.varies;
    case kKindRole: return e->row.sample.IsEmpty() ? e->row.type.GetType() : int(e->row.sample.GetType());
    default: return {};
  }
}

QVariant ZqPaletteModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == kNameColumn ? QCoreApplication::translate("zqpalette", "Property") : QCoreApplication::translate("zqpalette", "Value");
}

Qt::ItemFlags ZqPaletteModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  Qt::ItemFlags f = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  const Entry* e = entryOf(index);
  if (e && index.column() == kValueColumn && !e->row.readOnly) f |= Qt::ItemIsEditable;
  return f;
}

bool ZqPaletteModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || index.column() != kValueColumn) return false;
  return commitText(index, value.toString());
}
