#include "ZQCommandsBase.h"
#include "ZqServices.h"
#include "OdDbUnitsFormatter.h"
#include <QCoreApplication>
#include <algorithm>
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

std::vector<CZqPaletteRow> CZqPropertiesWindowService::Rows(unsigned requiredBits) const {
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
        e.row.value = d->GetValue(o.object.get(), CZqVariant());
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
        if (!e.row.varies && !(e.row.value == d->GetValue(o.object.get(), CZqVariant()))) e.row.varies = true;
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
}
int CZqPropertiesWindowService::RefusedEdits() { return g_refusedEdits; }

std::vector<CZqEditResult> CZqPropertiesWindowService::SetValue(const CZqString& category, const CZqString& name,
                                                                const CZqVariant& value, const CZqVariant& index) {
  std::vector<CZqEditResult> results;
  CZqSystemServices* services = GetZqSystemServices();
  for (const OdDbObjectId& id : m_selection) {
    CZqEditResult result;
    result.id = id;
    result.code = kZqSetRefused;
    ObjectRows o = rowsOf(id, OdDb::kForWrite);
    const CZqPropertyDescription* d = o.container ? o.container->GetByName(name, category) : nullptr;
    if (!d) {
      result.message = QCoreApplication::translate("errors", "The object has no such property.");
    } else if (d->IsReadOnly(o.object.get())) {
      result.message = QCoreApplication::translate("errors", "The property is read-only.");
    } else {
      const size_t before = services->Messages().size();
      result.code = d->SetValue(o.object.get(), value, index);
      if (services->Messages().size() > before) result.message = services->Messages().back().text;
      else if (result.code == kZqSetRefused) result.message = d->GetRefusalText();
    }
    if (result.code == kZqSetRefused) ++g_refusedEdits;
    results.push_back(result);
  }
  return results;
}

CZqString CZqPropertiesWindowService::FormatValue(const OdDbDatabase* db, const CZqVariant& value,
                                                  const CZqCustomPropertyType& type) {
  const QString id = type.GetTypeId().qstring();
  switch (value.GetType()) {
    case CZqVariant::kVtEmpty: return CZqString();
    case CZqVariant::kVtDouble: {
      const double d = value.GetDouble();
      if (db && CZqPropertyType::isAngle(id)) return CZqString(db->formatter().formatAngle(d));
      if (db && value.IsUnits()) return CZqString(db->formatter().formatDistance(d));
      return CZqString(QString::number(d, 'f', db ? db->getLUPREC() : 4));
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
  if (!ok) return false;
  // "0.25" and "0.25 mm" are millimetres, "25" hundredths of a millimetre.
  const bool millimetres = mm || n.contains('.');
  out = int32_t(std::lround(millimetres ? v * 100 : v));
  return OdDb::isValidLineWeight(out);
}
}  // namespace

bool CZqPropertiesWindowService::ParseValue(const CZqPaletteRow& row, const QString& typed, CZqVariant& value,
                                            QString* why) const {
  const QString text = typed.trimmed();
  const QString typeId = row.type.GetTypeId().qstring();
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
      if (!m_db) return fail(QCoreApplication::translate("errors", "No drawing."));
      double v = 0;
      const OdDbUnitsFormatter f = m_db->formatter();
      const bool ok = CZqPropertyType::isAngle(typeId) ? f.parseAngle(OdString(text), v) : f.parseDistance(OdString(text), v);
      if (!ok) return fail(QCoreApplication::translate("errors", "Invalid input.") + " " + text);
      value = CZqVariant(v, true);
      return true;
    }
    case CZqVariant::kVtString:
      value = CZqVariant(CZqString(typed));
      return true;
    case CZqVariant::kVtInt32: {
      int32_t v = 0;
      bool ok = false;
      if (typeId == QLatin1String(CZqPropertyType::kLineweightGUID)) ok = parseLineweight(text, v);
      else v = text.toInt(&ok);
      if (!ok) return fail(QCoreApplication::translate("errors", "Invalid input.") + " " + text);
      value = CZqVariant(v);
      return true;
    }
    case CZqVariant::kVtColor: {
      OdCmColor c;
      if (!OdCmColor::parse(OdString(text), c)) return fail(QCoreApplication::translate("errors", "Invalid input.") + " " + text);
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
      if (at < 0) return fail(QCoreApplication::translate("errors", "Invalid input.") + " " + text);
      value = CZqVariant(choices.GetAt(at));
      return true;
    }
    case CZqVariant::kVtId: {
      if (!m_db) return fail(QCoreApplication::translate("errors", "No drawing."));
      OdDbObjectPtr table = tableForIdRow(m_db, typeId).openObject();
      auto t = OdDbSymbolTable::cast(table.get());
      const OdDbObjectId id = t ? t->getAt(OdString(text)) : OdDbObjectId();
      if (id.isNull()) return fail(QCoreApplication::translate("errors", "No such name:") + " " + text);
      value = CZqVariant(id);
      return true;
    }
    default:
      return fail(QCoreApplication::translate("errors", "The property cannot be set from text."));
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
  const OdDbCurve* curve = odrxCast<OdDbCurve>(object);
  if (!curve || !curve->isReadEnabled()) return 0.0;
  double area = 0;
  return curve->getArea(area) == eOk ? area : 0.0;
}
