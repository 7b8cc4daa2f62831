#include "Listing.h"
#include "JsonWriter.h"
#include "ZqSelection.h"
#include <cmath>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <typeinfo>

QString zqDisplayName(const OdDbObject* object) {
  CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(object);
  return pe ? pe->GetClassName(object).qstring() : QString();
}

QString zqProviderName(const OdDbObject* object) {
  CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(object);
  if (!pe) return QString();
  if (pe->isA()) return pe->isA()->name().qstring();
  // A provider without a class descriptor of its own (the style records):
  // its C++ class names it, inside the static-object wrapper.
  int status = 0;
  std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(typeid(*pe).name(), nullptr, nullptr, &status), std::free);
  QString s = status == 0 && name ? QString::fromLatin1(name.get()) : QString();
  const qsizetype open = s.indexOf('<');
  if (open >= 0 && s.endsWith('>')) s = s.mid(open + 1, s.size() - open - 2);
  return s;
}

QString zqRowKey(const CZqPaletteRow& row) { return row.categoryKey.qstring() + '/' + row.nameKey.qstring(); }

ZqRowPicker::ZqRowPicker(const QStringList& names) {
  for (const QString& n : names) {
    const QString t = n.trimmed();
    if (t.isEmpty()) continue;
    const int slash = t.indexOf('/');
    m_names.append(slash > 0 ? Name{t.left(slash).trimmed(), t.mid(slash + 1).trimmed()} : Name{QString(), t});
  }
  m_used = std::make_shared<QList<bool>>(m_names.size(), false);
}

bool ZqRowPicker::picks(const CZqPaletteRow& row) const { return picks(row.categoryKey, row.nameKey, row.category, row.name); }

CZqPropertiesWindowService::RowFilter ZqRowPicker::filter() const {
  if (all()) return {};
  return [this](const CZqString& ck, const CZqString& nk, const CZqString& c, const CZqString& n) { return picks(ck, nk, c, n); };
}

bool ZqRowPicker::picks(const CZqString& categoryKey, const CZqString& nameKey, const CZqString& category,
                        const CZqString& name) const {
  if (m_names.isEmpty()) return true;
  auto is = [](const CZqString& key, const CZqString& shown, const QString& typed) {
    return key.qstring().compare(typed, Qt::CaseInsensitive) == 0 || shown.qstring().compare(typed, Qt::CaseInsensitive) == 0;
  };
  for (int i = 0; i < m_names.size(); ++i) {
    const Name& n = m_names[i];
    if (!is(nameKey, name, n.name)) continue;
    if (!n.category.isEmpty() && !is(categoryKey, category, n.category)) continue;
    (*m_used)[i] = true;
    return true;
  }
  return false;
}

QStringList ZqRowPicker::unused() const {
  QStringList out;
  for (int i = 0; i < m_names.size(); ++i)
    if (!(*m_used)[i]) out << (m_names[i].category.isEmpty() ? m_names[i].name : m_names[i].category + '/' + m_names[i].name);
  return out;
}

namespace {

// The value of a row: full-precision numbers, strings, the tag of an
// enumeration's current choice, null where there is no single value.
void writeValue(ZqJsonWriter& w, const CZqVariant& v, bool untyped = false) {
  switch (v.GetType()) {
    case CZqVariant::kVtDouble: w.value(v.GetDouble()); return;
    case CZqVariant::kVtString: {
      // A computed figure some providers hand over as text (an area) is a number.
      const QString text = v.GetString().qstring();
      bool number = false;
      const double d = untyped && !text.isEmpty() ? text.toDouble(&number) : 0.0;
      if (number && std::isfinite(d)) w.value(d);
      else w.value(text);
      return;
    }
    case CZqVariant::kVtInt32: w.value(int(v.GetInt32())); return;
    case CZqVariant::kVtColor: w.value(v.GetColor().description().qstring()); return;
    case CZqVariant::kVtCollection: {
      const CZqVariantCollection& c = v.GetCollection();
      if (c.GetCurrent() < 0) w.null();
      else writeValue(w, c.GetAt(c.GetCurrent()).GetTag());
      return;
    }
    case CZqVariant::kVtCollectionElement: writeValue(w, v.GetCollectionElement().GetTag()); return;
    case CZqVariant::kVtId: {
      // Records by name (a layer's name, not its handle); other objects by handle.
      OdDbObjectPtr obj = v.GetId().openObject();
      if (auto rec = OdDbSymbolTableRecord::cast(obj.get())) w.value(rec->getName().qstring());
      else w.value(v.GetId().getHandle().ascii().qstring());
      return;
    }
    default: w.null(); return;
  }
}

void writeChoices(ZqJsonWriter& w, const CZqVariantCollection& c) {
  w.key("choices").beginArray();
  for (int i = 0; i < c.GetCount(); ++i) {
    w.beginObject().key("text").value(c.GetAt(i).GetValue().GetString().qstring()).key("tag");
    writeValue(w, c.GetAt(i).GetTag());
    w.endObject();
  }
  w.endArray();
}

std::vector<CZqPaletteRow> rowsOf(OdDbDatabase* db, const OdDbObjectId& id, const ZqRowPicker& picker = {}) {
  CZqPropertiesWindowService service(db);
  service.SetSelection({id});
  return service.Rows(kZqVisPalette, picker.filter());
}

QString handleOf(const OdDbObjectId& id) { return id.getHandle().ascii().qstring(); }

QString layerOf(const OdDbObject* obj) {
  const OdDbEntity* e = odrxCast<OdDbEntity>(obj);
  return e ? e->layer().qstring() : QString();
}

}  // namespace

void zqPrintRows(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, const ZqRowPicker& picker) {
  {
    OdDbObjectPtr obj = id.openObject();
    if (obj)
      out << obj->isA()->dxfName().qstring() << " [" << handleOf(id) << "] " << zqDisplayName(obj.get()) << " ("
          << zqProviderName(obj.get()) << ")\n";
    else
      out << "? [" << handleOf(id) << "]\n";
  }
  for (const CZqPaletteRow& r : rowsOf(db, id, picker)) out << "  " << r.ListLine() << "\n";
}

namespace {
std::vector<CZqPrintInfoContext::Line> infoLines(OdDbDatabase* db, const OdDbObjectId& id, bool inUcs) {
  OdDbObjectPtr obj = id.openObject();
  CZqPrintInfoContext ctx(db, inUcs);
  if (!obj || !CZqPrintObjectInfoPE::desc()) return {};
  OdRxObjectPtr x = obj->queryX(CZqPrintObjectInfoPE::desc());
  if (auto* pe = static_cast<CZqPrintObjectInfoPE*>(x.get())) pe->PrintObjectInfo(obj.get(), &ctx);
  return ctx.Lines();
}
}  // namespace

void zqPrintInfo(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, bool inUcs) {
  for (const auto& l : infoLines(db, id, inUcs))
    out << QString("%1  %2").arg(l.label, 28).arg(l.text) << "\n";
  out << "\n";
}

void zqWriteListingJson(QIODevice& out, const QString& drawing, OdDbDatabase* db, const OdDbObjectIdArray& ids,
                        const ZqJsonContent& content) {
  ZqJsonWriter w(out);
  w.beginObject().key("drawing").value(drawing).key("objects").beginArray();
  for (const OdDbObjectId& id : ids) {
    w.beginObject().key("handle").value(handleOf(id));
    {
      OdDbObjectPtr obj = id.openObject();
      const CZqObjectPlace place = CZqObjectPlace::Of(obj.get());
      w.key("type").value(obj ? obj->isA()->dxfName().qstring() : QString());
      w.key("class").value(obj ? obj->isA()->name().qstring() : QString());
      w.key("provider").value(zqProviderName(obj.get()));
      w.key("name").value(obj ? zqDisplayName(obj.get()) : QString());
      w.key("layer").value(layerOf(obj.get()));
      w.key("space").value(place.space).key("block").value(place.block);
    }
    if (content.rows) {
      w.key("rows").beginObject();
      QHash<QString, int> seen;  // a key repeated within one object gets "#2", "#3", ...
      for (const CZqPaletteRow& r : rowsOf(db, id, content.pick)) {
        QString key = zqRowKey(r);
        if (const int n = ++seen[key]; n > 1) key += QStringLiteral("#%1").arg(n);
        w.key(key).beginObject();
        w.key("category").value(r.categoryKey.qstring()).key("name").value(r.nameKey.qstring());
        w.key("categoryLabel").value(r.category.qstring()).key("label").value(r.name.qstring());
        w.key("type").value(r.type.GetType()).key("value");
        if (r.varies) w.null(); else writeValue(w, r.value, r.type.GetType() == CZqVariant::kVtDouble || (r.type.GetType() == 0 && r.readOnly));
        w.key("text").value(r.text.qstring()).key("readOnly").value(r.readOnly);
        if (r.sample.GetType() == CZqVariant::kVtCollection) writeChoices(w, r.sample.GetCollection());
        w.endObject();
      }
      w.endObject();
    }
    if (content.info) {
      w.key("lines").beginArray();
      for (const auto& l : infoLines(db, id, content.inUcs)) {
        w.beginObject().key("label").value(l.label).key("kind").value(CZqPrintInfoContext::kindName(l.kind));
        w.key("value").value(l.value).key("text").value(l.text).endObject();
      }
      w.endArray();
    }
    w.endObject();
  }
  w.endArray().endObject();
  w.flush();
  out.write("\n");
}
