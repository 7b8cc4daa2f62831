#include "ZQCommandsBase.h"
#include "ZqServices.h"
#include "OdDbUnitsFormatter.h"
#include "DbPlainClasses.h"
#include "DbUndo.h"
#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <QHash>
#include <optional>
#include <memory>

const OdString CZqCommand::groupName() const { return OdString("ZQCOMMANDS"); }

void CZqCommand::execute(OdEdCommandContext* pCmdCtx) {
  try {
    ExecuteCommand(pCmdCtx);
  } catch (const OdEdCancel&) {
    pCmdCtx->putString(OdString("*Cancel*"));
  } catch (const OdError& e) {
    pCmdCtx->putString(OdString(QCoreApplication::translate("errors", "Error") + ": " + e.description().qstring()));
  }
}

QString CZqPaletteRow::ListLine() const {
  QString line = QString("%1/%2: %3").arg(category.qstring(), name.qstring(), text.qstring());
  if (readOnly) line += "  " + QCoreApplication::translate("property_values", "(read-only)");
  return line;
}

CZqPropertiesWindowService::CZqPropertiesWindowService(OdDbDatabase* db) : m_db(db) {}
CZqPropertiesWindowService::~CZqPropertiesWindowService() = default;

void CZqPropertiesWindowService::SetSelection(const OdDbObjectIdArray& ids) {
  if (!(ids == m_selection)) m_index = CZqVariant();
  m_selection = ids;
  if (CZqVELOXQTGate* gate = GetZqVELOXQTGate()) gate->SetCurrentSelection(ids);
}

namespace {
struct ObjectRows {
  OdDbObjectPtr object;
  std::unique_ptr<CZqPropertiesContainer> container;
};

ObjectRows rowsOf(const OdDbObjectId& id, OdDb::OpenMode mode) {
  ObjectRows r;
  r.object = id.openObject(mode);
  if (!r.object) return r;
  CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(r.object.get());
  if (!pe) return r;
  CZqPropertiesContainer* c = nullptr;
  pe->GetPropertyNames(r.object.get(), c, nullptr, nullptr, false);
  if (c) pe->GetPropertyNamesDynamic(r.object.get(), c);
  r.container.reset(c);
  return r;
}

QString key(const CZqString& category, const CZqString& name) { return category.qstring() + QChar(0x1F) + name.qstring(); }
}  // namespace

std::vector<CZqPaletteRow> CZqPropertiesWindowService::Rows(unsigned requiredBits) const { return Rows(requiredBits, {}); }

std::vector<CZqPaletteRow> CZqPropertiesWindowService::Rows(unsigned requiredBits, const RowFilter& want) const {
  struct Entry {
    CZqPaletteRow row;
    int seen = 0;      // how many of the selected objects have the row so far
    int category = 0;  // order of first appearance of the row's category
  };
  std::vector<Entry> entries;
  std::vector<QString> categories;
  QHash<QString, size_t> index;  // only needed to match rows of further objects
  const bool multi = m_selection.size() > 1;
  int objectNo = 0;
  for (const OdDbObjectId& id : m_selection) {
    ObjectRows o = rowsOf(id, OdDb::kForRead);
    if (!o.container) return {};  // an object without rows: nothing is common
    ++objectNo;
    for (int i = 0; i < o.container->GetCount(); ++i) {
      const CZqPropertyDescription* d = o.container->GetAt(i);
      const unsigned vis = d->GetVisibility();
      if ((vis & requiredBits) != requiredBits) continue;
      if (multi && (vis & kZqVisSingleOnly)) continue;
      if (objectNo == 1) {
        if (want && !want(d->GetCategoryKey(), d->GetNameKey(), d->GetCategory(), d->GetName())) continue;
        const QString k = multi ? key(d->GetCategoryKey(), d->GetNameKey()) : QString();
        if (multi && index.contains(k)) continue;  // a name repeated within one object: the first serves
        if (multi) index.insert(k, entries.size());
        Entry e;
        e.row.category = d->GetCategory();
        e.row.name = d->GetName();
        e.row.categoryKey = d->GetCategoryKey();
        e.row.nameKey = d->GetNameKey();
        e.row.type = d->GetType();
        e.row.visibility = vis;
        e.row.readOnly = d->IsReadOnly(o.object.get());
        e.row.value = d->GetValue(o.object.get(), m_index);
        e.row.sample = e.row.value;
        e.seen = 1;
        const QString& cat = e.row.category.qstring();
        auto it = std::find(categories.begin(), categories.end(), cat);
        e.category = int(it - categories.begin());
        if (it == categories.end()) categories.push_back(cat);
        entries.push_back(std::move(e));
      } else {
        auto it = index.find(key(d->GetCategoryKey(), d->GetNameKey()));
        if (it == index.end() || entries[*it].seen != objectNo - 1) continue;
        Entry& e = entries[*it];
        e.seen = objectNo;
        e.row.readOnly = e.row.readOnly || d->IsReadOnly(o.object.get());
        if (!e.row.varies && !(e.row.value == d->GetValue(o.object.get(), m_index))) e.row.varies = true;
      }
    }
  }
  // The rows every object has, grouped by category in order of first appearance.
  std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.category < b.category; });
  std::vector<CZqPaletteRow> out;
  out.reserve(entries.size());
  for (Entry& e : entries) {
    if (e.seen != objectNo) continue;
    if (e.row.varies) {
      e.row.value = CZqVariant();
      e.row.text = QCoreApplication::translate("property_values", "*VARIES*");
    } else {
      e.row.text = FormatValue(m_db, e.row.value, e.row.type);
    }
    out.push_back(std::move(e.row));
  }
  return out;
}

CZqObjectRows::CZqObjectRows(const OdDbObjectId& id, unsigned requiredBits,
                             const CZqPropertiesWindowService::RowFilter& want, OdDb::OpenMode mode) {
  ObjectRows o = rowsOf(id, mode);
  m_object = o.object;
  m_container = std::move(o.container);
  if (!m_container) return;
  // Grouped by category in order of first appearance, as Rows groups them;
  // a provider lists its rows grouped already, so this is mostly a copy.
  struct Entry {
    int category;
    const CZqPropertyDescription* d;
  };
  std::vector<Entry> entries;
  entries.reserve(size_t(m_container->GetCount()));
  std::vector<QString> categories;
  bool grouped = true;
  for (int i = 0; i < m_container->GetCount(); ++i) {
    const CZqPropertyDescription* d = m_container->GetAt(i);
    if ((d->GetVisibility() & requiredBits) != requiredBits) continue;
    if (want && !want(d->GetCategoryKey(), d->GetNameKey(), d->GetCategory(), d->GetName())) continue;
    const QString cat = d->GetCategory().qstring();
    int c = int(categories.size());
    if (!categories.empty() && categories.back() == cat) {
      c = c - 1;
    } else {
      auto it = std::find(categories.begin(), categories.end(), cat);
      if (it == categories.end()) categories.push_back(cat);
      else grouped = false, c = int(it - categories.begin());
    }
    entries.push_back({c, d});
  }
  if (!grouped)
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.category < b.category; });
  m_rows.reserve(entries.size());
  for (const Entry& e : entries) m_rows.push_back(e.d);
}

CZqObjectRows::~CZqObjectRows() = default;

const CZqPaletteRow* CZqPropertiesWindowService::FindRow(const std::vector<CZqPaletteRow>& rows, const QString& name,
                                                         QString* why) const {
  QString category, rowName = name.trimmed();
  const int slash = rowName.indexOf('/');
  if (slash > 0) {
    category = rowName.left(slash).trimmed();
    rowName = rowName.mid(slash + 1).trimmed();
  }
  const CZqPaletteRow* found = nullptr;
  int matches = 0;
  for (const CZqPaletteRow& r : rows) {
    auto is = [](const CZqString& text, const CZqString& key, const QString& typed) {
      return key.qstring().compare(typed, Qt::CaseInsensitive) == 0 || text.qstring().compare(typed, Qt::CaseInsensitive) == 0;
    };
    if (!is(r.name, r.nameKey, rowName)) continue;
    if (!category.isEmpty() && !is(r.category, r.categoryKey, category)) continue;
    if (!found) found = &r;
    ++matches;
  }
  if (matches == 1) return found;
  if (why) {
    *why = matches == 0 ? QCoreApplication::translate("errors", "No property named \"%1\".").arg(name)
                        : QCoreApplication::translate("errors", "\"%1\" is ambiguous: use Category/Name.").arg(name);
  }
  return nullptr;
}

namespace {
int g_refusedEdits = 0;
bool g_editLockedLayers = false;

bool onLockedLayer(const OdDbObject* object) {
  const OdDbEntity* e = odrxCast<OdDbEntity>(object);
  if (!e) return false;
  OdDbObjectPtr layer = e->layerId().openObject();
  const OdDbLayerTableRecord* l = odrxCast<OdDbLayerTableRecord>(layer.get());
  return l && l->isLocked();
}

// What a row takes, for a setter that refused a value of another kind.
QString needsSentence(const CZqPropertyDescription& d, int kind) {
  const QString name = d.GetName().qstring();
  const QString id = d.GetType().GetTypeId().qstring();
  switch (kind) {
    case CZqVariant::kVtDouble:
      return CZqPropertyType::isAngle(id) ? QCoreApplication::translate("errors", "%1 needs an angle.").arg(name)
                                           : QCoreApplication::translate("errors", "%1 needs a number.").arg(name);
    case CZqVariant::kVtString: return QCoreApplication::translate("errors", "%1 needs text.").arg(name);
    case CZqVariant::kVtInt32: return QCoreApplication::translate("errors", "%1 needs a whole number.").arg(name);
    case CZqVariant::kVtColor: return QCoreApplication::translate("errors", "%1 needs a colour.").arg(name);
    case CZqVariant::kVtCollection:
    case CZqVariant::kVtCollectionElement: return QCoreApplication::translate("errors", "%1 needs one of its choices.").arg(name);
    case CZqVariant::kVtId:
      if (id == QLatin1String(CZqPropertyType::kLayerGUID)) return QCoreApplication::translate("errors", "%1 needs one of the drawing's layers.").arg(name);
      if (id == QLatin1String(CZqPropertyType::kLinetypeGUID)) return QCoreApplication::translate("errors", "%1 needs one of the drawing's linetypes.").arg(name);
      if (id == QLatin1String(CZqPropertyType::kTextStyleGUID)) return QCoreApplication::translate("errors", "%1 needs one of the drawing's text styles.").arg(name);
      if (id == QLatin1String(CZqPropertyType::kDimStyleGUID)) return QCoreApplication::translate("errors", "%1 needs one of the drawing's dimension styles.").arg(name);
      return QCoreApplication::translate("errors", "%1 needs an object of the drawing.").arg(name);
    default: return {};
  }
}

// Whether value (a choice or its number) is one of the choices a row shows.
bool isChoice(const CZqVariant& shown, const CZqVariant& value) {
  if (shown.GetType() != CZqVariant::kVtCollection) return false;
  const CZqVariant tag = value.GetType() == CZqVariant::kVtCollectionElement ? value.GetCollectionElement().GetTag() : value;
  return tag.GetType() == CZqVariant::kVtInt32 && shown.GetCollection().FindTag(tag.GetInt32()) >= 0;
}

bool sameKind(int a, int b) {
  auto norm = [](int k) { return k == CZqVariant::kVtCollectionElement ? int(CZqVariant::kVtCollection) : k; };
  return norm(a) == norm(b);
}

// A sentence for a refusal the setter gave no message box for.
QString refusalSentence(const CZqPropertyDescription& d, const OdDbObject* object, const CZqVariant& value,
                        const CZqVariant& index) {
  if (!object->isWriteEnabled()) return QCoreApplication::translate("errors", "The object could not be opened for editing.");
  int kind = d.GetValue(object, index).GetType();
  if (kind == CZqVariant::kVtEmpty) kind = d.GetType().GetType();
  if (kind != CZqVariant::kVtEmpty && !sameKind(kind, value.GetType())) {
    const QString s = needsSentence(d, kind);
    if (!s.isEmpty()) return s;
  }
  if (d.GetValue(object, index).IsEmpty() && !index.IsEmpty())
    return QCoreApplication::translate("errors", "The object has no item %1 for %2.").arg(index.GetInt32() + 1).arg(d.GetName().qstring());
  return QCoreApplication::translate("errors", "%1 does not take this value.").arg(d.GetName().qstring());
}
}  // namespace

int CZqPropertiesWindowService::RefusedEdits() { return g_refusedEdits; }
void CZqPropertiesWindowService::SetEditLockedLayers(bool allow) { g_editLockedLayers = allow; }
bool CZqPropertiesWindowService::EditLockedLayers() { return g_editLockedLayers; }

bool CZqPropertiesWindowService::IsCurrentItemRow(const CZqCustomPropertyType& type) {
  return type.GetTypeId().qstring() == QLatin1String(CZqPropertyType::kVertexGUID);
}

std::vector<CZqEditResult> CZqPropertiesWindowService::SetValue(const CZqString& category, const CZqString& name,
                                                                const CZqVariant& value, const CZqVariant& at) {
  std::vector<CZqEditResult> results;
  CZqSystemServices* services = GetZqSystemServices();
  const CZqVariant index = at.IsEmpty() ? m_index : at;
  int chosenItem = -1;  // the item a current-item row chose on every object
  bool allChose = !m_selection.isEmpty();
  // The edit of every selected object is one undo step.
  OdDbUndoJournal* journal = m_db ? &m_db->undoJournal() : nullptr;
  if (journal) journal->startStep(OdString(QStringLiteral("PROPERTIES %1/%2").arg(category.qstring(), name.qstring())));
  struct StepEnd {
    OdDbUndoJournal* journal;
    ~StepEnd() { if (journal) journal->endStep(); }
  } stepEnd{journal};
  for (const OdDbObjectId& id : m_selection) {
    CZqEditResult result;
    result.id = id;
    result.code = kZqSetRefused;
    ObjectRows o = rowsOf(id, OdDb::kForWrite);
    const CZqPropertyDescription* d = o.container ? o.container->GetByName(name, category) : nullptr;
    const bool choosesItem = d && IsCurrentItemRow(d->GetType());
    if (!o.object) {
      result.message = QCoreApplication::translate("errors", "The object could not be opened for editing.");
    } else if (!d) {
      result.message = QCoreApplication::translate("errors", "The object has no such property.");
    } else if (d->IsReadOnly(o.object.get())) {
      result.message = QCoreApplication::translate("errors", "%1 is read-only.").arg(d->GetName().qstring());
    } else if (!choosesItem && !g_editLockedLayers && onLockedLayer(o.object.get())) {
      // Choosing the current item changes nothing; any other edit changes an
      // object on a locked layer (moving it to another layer too).
      result.message = QCoreApplication::translate("errors", "The object is on a locked layer.");
    } else if (choosesItem && !isChoice(d->GetValue(o.object.get(), index), value)) {
      result.message = QCoreApplication::translate("errors", "%1 has no such choice.").arg(d->GetName().qstring());
    } else if (value.GetType() == CZqVariant::kVtDouble && !std::isfinite(value.GetDouble())) {
      result.message = QCoreApplication::translate("errors", "%1 needs a finite number.").arg(d->GetName().qstring());
    } else {
      const size_t before = services->Messages().size();
      // Choosing the current item changes nothing that could be undone.
      const bool recorded = journal && !choosesItem && journal->record(o.object.get());
      result.code = d->SetValue(o.object.get(), value, index);
      if (result.code == kZqSetRefused) {
        if (recorded) journal->forget(o.object.get());
        if (services->Messages().size() > before) result.message = services->Messages().back().text;
        if (result.message.isEmpty()) result.message = d->GetRefusalText();
        if (result.message.isEmpty()) result.message = refusalSentence(*d, o.object.get(), value, index);
      }
    }
    if (choosesItem && result.code != kZqSetRefused) {
      int tag = -1;
      if (value.GetType() == CZqVariant::kVtCollectionElement && value.GetCollectionElement().GetTag().GetType() == CZqVariant::kVtInt32)
        tag = value.GetCollectionElement().GetTag().GetInt32();
      else if (value.GetType() == CZqVariant::kVtInt32)
        tag = value.GetInt32();
      if (tag >= 1 && (chosenItem < 0 || chosenItem == tag - 1)) chosenItem = tag - 1;
      else allChose = false;
    } else {
      allChose = false;
    }
    if (result.code == kZqSetRefused) ++g_refusedEdits;
    results.push_back(result);
  }
  // Choices are numbered from 1; the index is the item's zero-based number.
  if (allChose && chosenItem >= 0) m_index = CZqVariant(int32_t(chosenItem));
  return results;
}

namespace {
// QString::number(v, 'f', prec) for the values that need nothing of it:
// zero (but not minus zero), and finite values below 1e15 that are not
// exactly halfway between two results (which the two ways of rounding would
// round apart). False for the others, which the caller formats as before.
bool fastFixed(double v, int prec, QString& text) {
  if (prec < 0 || prec > 8) return false;
  if (v == 0 && !std::signbit(v)) {
    static const QString zeros[9] = {"0", "0.0", "0.00", "0.000", "0.0000", "0.00000", "0.000000", "0.0000000", "0.00000000"};
    text = zeros[prec];
    return true;
  }
  if (!(v != 0 && std::fabs(v) < 1e15)) return false;
  // Halfway: v * 10^prec ends in exactly .5, so v * 2^(prec+1) is an odd
  // whole number.
  const double twice = std::ldexp(v, prec + 1);
  if (twice == std::trunc(twice) && std::fmod(twice, 2.0) != 0) return false;
  char buf[40];
  const auto r = std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed, prec);
  if (r.ec != std::errc()) return false;
  text = QString::fromLatin1(buf, r.ptr - buf);
  return true;
}
}  // namespace

CZqString CZqPropertiesWindowService::FormatValue(const OdDbDatabase* db, const CZqVariant& value,
                                                  const CZqCustomPropertyType& type) {
  const QString id = type.GetTypeId().qstring();
  switch (value.GetType()) {
    case CZqVariant::kVtEmpty: return CZqString();
    case CZqVariant::kVtDouble: {
      const double d = value.GetDouble();
      if (db && CZqPropertyType::isAngle(id)) return CZqString(db->formatter().formatAngle(d));
      if (db && value.IsUnits()) {
        // Decimal units are most drawings' and most rows': written directly,
        // as the formatter writes them (a value that rounds to zero without
        // its minus sign).
        const OdDbUnitsSettings units = db->unitsSettings();
        QString text;
        if ((units.lunits < 1 || units.lunits == 2 || units.lunits > 5) &&
            fastFixed(d, std::clamp(units.luprec, 0, 8), text)) {
          if (text.startsWith(u'-') &&
              std::all_of(text.begin() + 1, text.end(), [](QChar c) { return c == u'0' || c == u'.'; }))
            text.remove(0, 1);
          return CZqString(text);
        }
        return CZqString(db->formatter().formatDistance(d));
      }
      const int prec = db ? db->getLUPREC() : 4;
      QString text;
      if (fastFixed(d, prec, text)) return CZqString(text);
      return CZqString(QString::number(d, 'f', prec));
    }
    case CZqVariant::kVtString: return value.GetString();
    case CZqVariant::kVtInt32:
      if (id == QLatin1String(CZqPropertyType::kLineweightGUID)) return CZqString(OdDb::lineWeightName(value.GetInt32()));
      return CZqString(QString::number(value.GetInt32()));
    case CZqVariant::kVtColor: return CZqString(value.GetColor().description());
    case CZqVariant::kVtCollection: {
      const CZqVariantCollection& c = value.GetCollection();
      if (c.GetCurrent() < 0) return CZqString();
      return FormatValue(db, c.GetAt(c.GetCurrent()).GetValue(), CZqCustomPropertyType());
    }
    case CZqVariant::kVtCollectionElement:
      return FormatValue(db, value.GetCollectionElement().GetValue(), CZqCustomPropertyType());
    case CZqVariant::kVtId: {
      OdDbObjectPtr obj = value.GetId().openObject();
      if (auto rec = OdDbSymbolTableRecord::cast(obj.get())) return CZqString(rec->getName());
      return CZqString(value.GetId().getHandle().ascii());
    }
  }
  return CZqString();
}

namespace {

// The symbol table an object-id row picks its records from.
OdDbObjectId tableForIdRow(const OdDbDatabase* db, const QString& typeId) {
  if (typeId == QLatin1String(CZqPropertyType::kLayerGUID)) return db->getLayerTableId();
  if (typeId == QLatin1String(CZqPropertyType::kLinetypeGUID)) return db->getLinetypeTableId();
  if (typeId == QLatin1String(CZqPropertyType::kTextStyleGUID)) return db->getTextStyleTableId();
  if (typeId == QLatin1String(CZqPropertyType::kDimStyleGUID)) return db->getDimStyleTableId();
  return {};
}

bool parseLineweight(const QString& t, int32_t& out) {
  if (t.compare("ByLayer", Qt::CaseInsensitive) == 0) { out = OdDb::kLnWtByLayer; return true; }
  if (t.compare("ByBlock", Qt::CaseInsensitive) == 0) { out = OdDb::kLnWtByBlock; return true; }
  if (t.compare("Default", Qt::CaseInsensitive) == 0) { out = OdDb::kLnWtByLwDefault; return true; }
  QString n = t;
  const bool mm = n.endsWith("mm", Qt::CaseInsensitive);
  if (mm) n.chop(2);
  bool ok = false;
  const double v = n.trimmed().toDouble(&ok);
  if (!ok || !std::isfinite(v)) return false;
  // "0.25" and "0.25 mm" are millimetres, "25" hundredths of a millimetre.
  const double hundredths = mm || n.contains('.') ? v * 100 : v;
  // Range first: a number past every lineweight must not wrap into one.
  if (std::fabs(hundredths) > 1000) return false;
  const double rounded = std::round(hundredths);
  if (std::fabs(hundredths - rounded) > 1e-6) return false;
  out = int32_t(rounded);
  return OdDb::isValidLineWeight(out);
}

QString choiceWords(const CZqVariantCollection& choices) {
  QStringList words;
  const int shown = std::min(choices.GetCount(), 12);
  for (int i = 0; i < shown; ++i) {
    const CZqVariant& v = choices.GetAt(i).GetValue();
    words << (v.GetType() == CZqVariant::kVtString ? v.GetString().qstring() : QString::number(v.GetInt32()));
  }
  if (choices.GetCount() > shown) words << QString("... %1").arg(choices.GetAt(choices.GetCount() - 1).GetValue().GetType() == CZqVariant::kVtString
                                                                       ? choices.GetAt(choices.GetCount() - 1).GetValue().GetString().qstring()
                                                                       : QString::number(choices.GetAt(choices.GetCount() - 1).GetValue().GetInt32()));
  return words.join(", ");
}

QString noRecordSentence(const QString& typeId, const QString& name) {
  if (typeId == QLatin1String(CZqPropertyType::kLayerGUID)) return QCoreApplication::translate("errors", "The drawing has no layer named \"%1\".").arg(name);
  if (typeId == QLatin1String(CZqPropertyType::kLinetypeGUID)) return QCoreApplication::translate("errors", "The drawing has no linetype named \"%1\".").arg(name);
  if (typeId == QLatin1String(CZqPropertyType::kTextStyleGUID)) return QCoreApplication::translate("errors", "The drawing has no text style named \"%1\".").arg(name);
  if (typeId == QLatin1String(CZqPropertyType::kDimStyleGUID)) return QCoreApplication::translate("errors", "The drawing has no dimension style named \"%1\".").arg(name);
  return QCoreApplication::translate("errors", "The drawing has nothing named \"%1\" for this property.").arg(name);
}
}  // namespace

bool CZqPropertiesWindowService::ParseValue(const CZqPaletteRow& row, const QString& typed, CZqVariant& value,
                                            QString* why) const {
  const QString text = typed.trimmed();
  const QString typeId = row.type.GetTypeId().qstring();
  const QString name = row.name.qstring();
  auto fail = [&](const QString& reason) {
    if (why) *why = reason;
    return false;
  };
  // The kind of value the row shows decides how the answer is read; a row
  // without a value falls back to its declared editor kind.
  int kind = row.sample.GetType();
  if (kind == CZqVariant::kVtEmpty) kind = row.type.GetType();
  switch (kind) {
    case CZqVariant::kVtDouble: {
      if (!m_db) return fail(QCoreApplication::translate("errors", "There is no drawing to edit."));
      double v = 0;
      const OdDbUnitsFormatter f = m_db->formatter();
      if (CZqPropertyType::isAngle(typeId)) {
        if (!f.parseAngle(OdString(text), v))
          return fail(QCoreApplication::translate("errors", "\"%1\" is not an angle: %2 needs a finite angle such as 45 or 45d30'.").arg(text, name));
      } else if (!f.parseDistance(OdString(text), v)) {
        return fail(QCoreApplication::translate("errors", "\"%1\" is not a number: %2 needs a finite number such as 12.5.").arg(text, name));
      }
      value = CZqVariant(v, true);
      return true;
    }
    case CZqVariant::kVtString:
      value = CZqVariant(CZqString(typed));
      return true;
    case CZqVariant::kVtInt32: {
      int32_t v = 0;
      bool ok = false;
      if (typeId == QLatin1String(CZqPropertyType::kLineweightGUID)) {
        if (!parseLineweight(text, v))
          return fail(QCoreApplication::translate("errors", "\"%1\" is not a lineweight: %2 takes ByLayer, ByBlock, Default or a standard lineweight from 0.00 mm to 2.11 mm (0.25 or 25 for 0.25 mm).").arg(text, name));
      } else {
        v = text.toInt(&ok);
        if (!ok) {
          // Digits only: a whole number, but one past what 32 bits hold.
          static const QRegularExpression digits(QStringLiteral("^[+-]?[0-9]+$"));
          if (digits.match(text).hasMatch())
            return fail(QCoreApplication::translate("errors", "%1 is out of range: %2 needs a whole number from -2147483648 to 2147483647.").arg(text, name));
          return fail(QCoreApplication::translate("errors", "\"%1\" is not a whole number: %2 needs one.").arg(text, name));
        }
      }
      value = CZqVariant(v);
      return true;
    }
    case CZqVariant::kVtColor: {
      OdCmColor c;
      if (!OdCmColor::parse(OdString(text), c))
        return fail(QCoreApplication::translate("errors", "\"%1\" is not a colour: %2 takes an index from 0 to 256, a colour name (red, yellow, green, cyan, blue, magenta, white), ByLayer, ByBlock or red,green,blue from 0 to 255.").arg(text, name));
      value = CZqVariant(c);
      return true;
    }
    case CZqVariant::kVtCollection:
    case CZqVariant::kVtCollectionElement: {
      const CZqVariantCollection& choices = row.sample.GetCollection();
      for (int i = 0; i < choices.GetCount(); ++i)
        if (choices.GetAt(i).GetValue().GetString().qstring().compare(text, Qt::CaseInsensitive) == 0) {
          value = CZqVariant(choices.GetAt(i));
          return true;
        }
      bool ok = false;
      const int n = text.toInt(&ok);
      const int at = ok ? choices.FindTag(n) : -1;
      if (at < 0) return fail(QCoreApplication::translate("errors", "\"%1\" is not one of the choices of %2: %3.").arg(text, name, choiceWords(choices)));
      value = CZqVariant(choices.GetAt(at));
      return true;
    }
    case CZqVariant::kVtId: {
      if (!m_db) return fail(QCoreApplication::translate("errors", "There is no drawing to edit."));
      OdDbObjectPtr table = tableForIdRow(m_db, typeId).openObject();
      auto t = OdDbSymbolTable::cast(table.get());
      const OdDbObjectId id = t ? t->getAt(OdString(text)) : OdDbObjectId();
      if (id.isNull()) return fail(noRecordSentence(typeId, text));
      value = CZqVariant(id);
      return true;
    }
    default:
      return fail(QCoreApplication::translate("errors", "%1 cannot be set from text.").arg(name));
  }
}

double ZqCurvesHelper::GetLength(const OdDbObject* object) {
  const OdDbCurve* curve = odrxCast<OdDbCurve>(object);
  if (!curve || !curve->isReadEnabled()) return 0.0;
  double end = 0, dist = 0;
  if (curve->getEndParam(end) != eOk || curve->getDistAtParam(end, dist) != eOk) return 0.0;
  return dist;
}

double ZqCurvesHelper::GetArea(const OdDbObject* object) {
  // Hatches are no curves: their area is what they fill.
  if (const OdDbHatch* hatch = odrxCast<OdDbHatch>(object)) {
    double area = 0;
    return hatch->isReadEnabled() && hatch->getArea(area) == eOk ? area : 0.0;
  }
  const OdDbCurve* curve = odrxCast<OdDbCurve>(object);
  if (!curve || !curve->isReadEnabled()) return 0.0;
  double area = 0;
  return curve->getArea(area) == eOk ? area : 0.0;
}
