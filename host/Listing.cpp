#include "Listing.h"
#include "JsonWriter.h"
#include "ZqSelection.h"
#include <QBuffer>
#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>
#include <unordered_map>
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
  // Every object of a kind asks about the same rows, whose texts are shared
  // strings: the answer is kept by the strings' storage. The memo holds the
  // strings, so that storage is not freed and taken by other texts while
  // the memo lives; it stops growing at a limit (rows made afresh for each
  // object bring new strings every time).
  struct Memo {
    struct Entry {
      QString ck, nk, c, n;
      bool picked;
    };
    struct Hash {
      size_t operator()(const std::array<const void*, 4>& k) const {
        size_t h = 0;
        for (const void* p : k) h = h * 1000003u ^ std::hash<const void*>()(p);
        return h;
      }
    };
    std::unordered_map<std::array<const void*, 4>, Entry, Hash> answers;
  };
  auto memo = std::make_shared<Memo>();
  return [this, memo](const CZqString& ck, const CZqString& nk, const CZqString& c, const CZqString& n) {
    const std::array<const void*, 4> key{ck.qstring().constData(), nk.qstring().constData(), c.qstring().constData(),
                                         n.qstring().constData()};
    // The texts' storage may be reused by other texts once freed: an answer
    // counts only for the same texts.
    if (auto it = memo->answers.find(key); it != memo->answers.end()) {
      const Memo::Entry& e = it->second;
      if (e.ck == ck.qstring() && e.nk == nk.qstring() && e.c == c.qstring() && e.n == n.qstring()) return e.picked;
      memo->answers.erase(it);
    }
    const bool picked = picks(ck, nk, c, n);
    if (memo->answers.size() < 4096) memo->answers.emplace(key, Memo::Entry{ck.qstring(), nk.qstring(), c.qstring(), n.qstring(), picked});
    return picked;
  };
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

// QString::toDouble, but plain decimal numbers ("12.5", "-3e-4") are read
// without going through the locale's conversion.
double toNumber(const QString& text, bool& ok) {
  char buf[64];
  const qsizetype n = text.size();
  bool plain = n < qsizetype(sizeof buf);
  for (qsizetype i = 0; plain && i < n; ++i) {
    const char16_t c = text[i].unicode();
    plain = (c >= '0' && c <= '9') || c == '.' || c == '-' || c == 'e' || c == 'E' || (c == '+' && i > 0);
    buf[i] = char(c);
  }
  if (plain) {
    double d = 0;
    const auto r = std::from_chars(buf, buf + n, d);
    if (r.ec == std::errc() && r.ptr == buf + n && std::isfinite(d)) {
      ok = true;
      return d;
    }
  }
  return text.toDouble(&ok);
}

// The value of a row: full-precision numbers, strings, the tag of an
// enumeration's current choice, null where there is no single value.
void writeValue(ZqJsonWriter& w, const CZqVariant& v, bool untyped = false) {
  switch (v.GetType()) {
    case CZqVariant::kVtDouble: w.value(v.GetDouble()); return;
    case CZqVariant::kVtString: {
      // A computed figure some providers hand over as text (an area) is a number.
      const QString text = v.GetString().qstring();
      bool number = false;
      const double d = untyped && !text.isEmpty() ? toNumber(text, number) : 0.0;
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

// The choices of an enumeration value. Providers share one collection among
// all the values that show the same list and choice, so its JSON text is
// made once per collection; the cache holds the collections it has text
// for, so an address it knows cannot be taken by another list meanwhile.
void writeChoices(ZqJsonWriter& w, const CZqVariant& value) {
  struct Made {
    std::shared_ptr<const CZqVariantCollection> collection;
    std::string json;
  };
  static std::unordered_map<const CZqVariantCollection*, Made> made;
  const std::shared_ptr<const CZqVariantCollection> c = value.GetSharedCollection();
  if (!c) return;
  auto found = made.find(c.get());
  if (found == made.end()) {
    if (made.size() > 4096) made.clear();  // lists made per object: keep the cache small
    QBuffer text;
    text.open(QIODevice::WriteOnly);
    {
      ZqJsonWriter list(text);
      list.beginArray();
      for (int i = 0; i < c->GetCount(); ++i) {
        list.beginObject().quotedKey(R"("text")").value(c->GetAt(i).GetValue().GetString().qstring()).quotedKey(R"("tag")");
        writeValue(list, c->GetAt(i).GetTag());
        list.endObject();
      }
      list.endArray();
    }
    found = made.emplace(c.get(), Made{c, text.data().toStdString()}).first;
  }
  w.quotedKey(R"("choices")").rawValue(found->second.json);
}

std::vector<CZqPaletteRow> rowsOf(OdDbDatabase* db, const OdDbObjectId& id, const ZqRowPicker& picker = {}) {
  CZqPropertiesWindowService service(db);
  service.SetSelection({id});
  return service.Rows(kZqVisPalette, picker.filter());
}

QString handleOf(const OdDbObjectId& id) { return id.getHandle().ascii().qstring(); }

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

namespace {

// What a listing writes alike for every object with a row: the row's key
// and texts up to its "value" key, prepared once per row and not per object.
struct RowHead {
  std::string json;
  QString nameKey;  // a shared description may be renamed for one object (an annotative text's height)
  int key = 0;   // the row key's number, to tell a repeated key within one object
  int type = 0;  // the editor kind the text was made with
};

class RowHeads {
 public:
  // The head of a row. Rows of a provider's shared list are the same
  // description for every object; rows made afresh for one object are
  // known by the row record they were built from.
  const RowHead& of(const CZqPropertyDescription& d) {
    const int type = d.GetType().GetType();
    const void* id = d.IsDynamic() ? d.GetRowData() : static_cast<const void*>(&d);
    if (!id) {
      m_scratch = make(d, type, QString());
      return m_scratch;
    }
    auto& map = d.IsDynamic() ? m_byRowData : m_byDescription;
    auto it = map.find(id);
    if (it == map.end() || it->second.type != type || it->second.nameKey != d.GetNameKey().qstring())
      it = map.insert_or_assign(id, make(d, type, QString())).first;
    return it->second;
  }
  // The head of a row whose key repeats within one object: "Key#n".
  RowHead repeated(const CZqPropertyDescription& d, int n) {
    return make(d, d.GetType().GetType(), QStringLiteral("#%1").arg(n));
  }

 private:
  RowHead make(const CZqPropertyDescription& d, int type, const QString& suffix) {
    const QString categoryKey = d.GetCategoryKey().qstring(), nameKey = d.GetNameKey().qstring();
    const QString key = categoryKey + '/' + nameKey;
    RowHead h;
    h.type = type;
    h.nameKey = nameKey;
    h.key = m_keys.emplace(key, int(m_keys.size())).first->second;
    ZqJsonWriter::quoteTo(h.json, key + suffix);
    h.json += ":{\"category\":";
    ZqJsonWriter::quoteTo(h.json, categoryKey);
    h.json += ",\"name\":";
    ZqJsonWriter::quoteTo(h.json, nameKey);
    h.json += ",\"categoryLabel\":";
    ZqJsonWriter::quoteTo(h.json, d.GetCategory().qstring());
    h.json += ",\"label\":";
    ZqJsonWriter::quoteTo(h.json, d.GetName().qstring());
    h.json += ",\"type\":" + std::to_string(type) + ",\"value\":";
    return h;
  }

  std::unordered_map<const void*, RowHead> m_byDescription, m_byRowData;
  std::unordered_map<QString, int> m_keys;
  RowHead m_scratch;
};

// The members every object of one class served by one provider has alike:
// its DXF type, class and provider.
class KindHeads {
 public:
  const std::string& of(const OdDbObject* obj) {
    const OdRxClass* cls = obj ? obj->isA() : nullptr;
    CZqPropertyBase* pe = obj ? CZqPropertyPEClassFactory::providerFor(obj) : nullptr;
    auto it = m_heads.find({cls, pe});
    if (it != m_heads.end()) return it->second;
    std::string json = ",\"type\":";
    ZqJsonWriter::quoteTo(json, cls ? cls->dxfName().qstring() : QString());
    json += ",\"class\":";
    ZqJsonWriter::quoteTo(json, cls ? cls->name().qstring() : QString());
    json += ",\"provider\":";
    ZqJsonWriter::quoteTo(json, obj ? zqProviderName(obj) : QString());
    json += ",\"name\":";
    return m_heads.emplace(std::pair{cls, pe}, std::move(json)).first->second;
  }

 private:
  struct Hash {
    size_t operator()(const std::pair<const OdRxClass*, CZqPropertyBase*>& k) const {
      return std::hash<const void*>()(k.first) * 31 + std::hash<const void*>()(k.second);
    }
  };
  std::unordered_map<std::pair<const OdRxClass*, CZqPropertyBase*>, std::string, Hash> m_heads;
};

}  // namespace

void zqWriteListingJson(QIODevice& out, const QString& drawing, OdDbDatabase* db, const OdDbObjectIdArray& ids,
                        const ZqJsonContent& content) {
  ZqJsonWriter w(out);
  RowHeads rowHeads;
  KindHeads kindHeads;
  // Layers and owners are few: their names are looked up once.
  std::unordered_map<const OdDbStub*, QString> layerNames;
  std::unordered_map<const OdDbStub*, CZqObjectPlace> places;
  const CZqPropertiesWindowService::RowFilter filter = content.pick.filter();
  std::vector<int> keys;  // the row keys of the current object so far
  std::string head;
  w.beginObject().key("drawing").value(drawing).key("objects").beginArray();
  for (const OdDbObjectId& id : ids) {
    // Opened once, for the object's members and its rows.
    CZqObjectRows rows(id, kZqVisPalette, filter);
    const OdDbObject* obj = rows.object();
    head = "{\"handle\":";
    ZqJsonWriter::quoteTo(head, handleOf(id));
    head += kindHeads.of(obj);
    w.objectHead(head).value(obj ? zqDisplayName(obj) : QString());
    const OdDbEntity* e = odrxCast<OdDbEntity>(obj);
    if (e) {
      auto it = layerNames.find(e->layerId().stub());
      if (it == layerNames.end()) it = layerNames.emplace(e->layerId().stub(), e->layer().qstring()).first;
      w.key("layer").value(it->second);
    } else {
      w.key("layer").value(QString());
    }
    {
      const OdDbObjectId owner = obj ? obj->ownerId() : OdDbObjectId();
      auto it = places.find(owner.stub());
      if (it == places.end()) it = places.emplace(owner.stub(), CZqObjectPlace::Of(obj)).first;
      w.key("space").value(it->second.space).key("block").value(it->second.block).key("layout").value(it->second.layout);
    }
    if (content.rows) {
      w.key("rows").beginObject();
      keys.clear();
      for (int i = 0; i < rows.size(); ++i) {
        const CZqPropertyDescription& d = rows.at(i);
        const RowHead* h = &rowHeads.of(d);
        RowHead again;
        if (const int n = int(std::count(keys.begin(), keys.end(), h->key)) + 1; n > 1) {
          again = rowHeads.repeated(d, n);
          h = &again;
        }
        keys.push_back(h->key);
        w.objectHead(h->json);
        // The values a selection of this object alone shows (see
        // CZqPropertiesWindowService::Rows): read once, formatted once.
        const CZqVariant value = d.GetValue(obj, CZqVariant());
        const bool readOnly = d.IsReadOnly(obj);
        writeValue(w, value, h->type == CZqVariant::kVtDouble || (h->type == 0 && readOnly));
        w.quotedKey(R"("text")").value(CZqPropertiesWindowService::FormatValue(db, value, d.GetType()).qstring());
        w.quotedKey(R"("readOnly")").value(readOnly);
        if (value.GetType() == CZqVariant::kVtCollection) writeChoices(w, value);
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
