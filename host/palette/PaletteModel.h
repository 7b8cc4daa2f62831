#pragma once
// The rows of the Properties palette for a selection, as a Qt item model:
// categories at the top level (in palette order), their rows below, two
// columns (name, value).
//
// A selection of many objects is handled class by class: the rows of a
// class are asked once, from its first object, and the rows the palette
// shows are those every selected class has. Values are read only when the
// view asks for a row, and then over every selected object, stopping at the
// first one that differs ("*VARIES*"). Edits go through the kernel's
// properties-window service, one undo step each.
#include "ZQCommandsBase.h"
#include <QAbstractItemModel>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

// The objects of one class in the selection.
struct ZqPaletteClassGroup {
  const OdRxClass* cls = nullptr;
  QString name;          // the display name ("Line")
  OdDbObjectIdArray ids;
};

class ZqPaletteModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum Role { kRowKeyRole = Qt::UserRole + 1, kReadOnlyRole, kVariesRole, kKindRole };
  enum Column { kNameColumn = 0, kValueColumn = 1 };

  explicit ZqPaletteModel(QObject* parent = nullptr);
  ~ZqPaletteModel() override;

  // The drawing; the selection becomes empty.
  void setDatabase(OdDbDatabase* db);
  OdDbDatabase* database() const { return m_db; }
  // The selected objects; the class filter goes back to every class.
  void setSelection(const OdDbObjectIdArray& ids);
  const OdDbObjectIdArray& selection() const { return m_selection; }
  // The selection grouped by class, in order of first appearance.
  const std::vector<ZqPaletteClassGroup>& groups() const { return m_groups; }
  // Shows the rows of one class of the selection (-1: every class).
  void setClassFilter(int group);
  int classFilter() const { return m_filter; }
  // The objects the palette shows and edits (the selection, or one class of it).
  const OdDbObjectIdArray& activeObjects() const;
  // The entries of the selection list: "All (N)", then "Line (2)" per class.
  QStringList filterEntries() const;

  // Reads the drawing again (after an edit, an undo or a redo): the same
  // selection, filter and current item; objects no longer there are dropped.
  void refresh();

  // Every row, values read, in palette order (what the palette shows).
  std::vector<CZqPaletteRow> rows();
  // The row behind an index (its value read on first use); null for a category.
  const CZqPaletteRow* row(const QModelIndex& index);
  // The index (value column) of a row by its keys or displayed texts.
  QModelIndex find(const QString& category, const QString& name) const;
  // Whether a row runs an action on the selection (its editor opens a dialog).
  bool isActionRow(const QModelIndex& index) const;
  // Whether the row chooses the current item (the vertex) rather than holding a value.
  bool isCurrentItemRow(const QModelIndex& index) const;
  // The row's icon file for a dark or a light palette (may not exist).
  QString iconPath(const QModelIndex& index, bool dark) const;
  // Names of the records an object-id row chooses from (layers, linetypes, styles).
  QStringList recordNames(const QModelIndex& index) const;

  // Applies what a user typed (read by the row's value parser) or chose to
  // every active object. False with the sentence to show when the text
  // cannot be read or every object refused; nothing changes then.
  bool commitText(const QModelIndex& index, const QString& text, QString* why = nullptr);
  bool commitValue(const QModelIndex& index, const CZqVariant& value, QString* why = nullptr);
  // Runs an action row's action on the active objects with a typed value.
  bool runAction(const QModelIndex& index, const QString& text, QString* why = nullptr);

  CZqPropertiesWindowService* service() { return m_service.get(); }

  // QAbstractItemModel
  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

 signals:
  // After an edit that changed at least one object.
  void edited(const OdDbObjectIdArray& ids);
  // An edit was refused; message is the sentence to show.
  void refused(const QString& message);

 private:
  struct Entry {
    CZqPaletteRow row;
    std::vector<const CZqPropertyDescription*> descs;  // one per group of the active classes
    bool read = false;
    bool action = false;
    QString darkIcon, lightIcon;
  };
  struct Category {
    QString label;
    std::vector<int> rows;  // indices into m_entries
  };
  void group();
  void rebuild();
  void readValue(Entry& e) const;
  std::vector<int> activeGroups() const;
  const Entry* entryOf(const QModelIndex& index) const;
  bool applyResults(const std::vector<CZqEditResult>& results, QString* why);

  OdDbDatabase* m_db = nullptr;
  std::unique_ptr<CZqPropertiesWindowService> m_service;
  OdDbObjectIdArray m_selection;
  std::vector<ZqPaletteClassGroup> m_groups;
  int m_filter = -1;
  // The rows of each class, from its first object (kept: dynamic rows live in them).
  std::vector<std::unique_ptr<CZqPropertiesContainer>> m_containers;
  mutable std::vector<Entry> m_entries;
  std::vector<Category> m_categories;
};
