#include "Listing.h"
#include "JsonWriter.h"

QString zqDisplayName(const OdDbObject* object) {
  CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(object);
  return pe ? pe->GetClassName(object).qstring() : QString();
}

namespace {

// The value of a row: full-precision numbers, strings, the tag of an
// enumeration's current choice, null where there is no single value.
void writeValue(ZqJsonWriter& w, const CZqVariant& v) {
  switch (v.GetType()) {
    case CZqVariant::kVtDouble: w.value(v.GetDouble()); return;
    case CZqVariant::kVtString: w.value(v.GetString().qstring()); return;
    case CZqVariant::kVtInt32: w.value(int(v.GetInt32())); return;
    case CZqVariant::kVtColor: w.value(v.GetColor().description().qstring()); return;
    case CZqVariant::kVtCollection: {
      const CZqVariantCollection& c = v.GetCollection();
      if (c.GetCurrent() < 0) w.null();
      else writeValue(w, c.GetAt(c.GetCurrent()).GetTag());
      return;
    }
    case CZqVariant::kVtCollectionElement: writeValue(w, v.GetCollectionElement().GetTag()); return;
    case CZqVariant::kVtId: w.value(v.GetId().getHandle().ascii().qstring()); return;
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

std::vector<CZqPaletteRow> rowsOf(OdDbDatabase* db, const OdDbObjectId& id) {
  CZqPropertiesWindowService service(db);
  service.SetSelection({id});
  return service.Rows();
}

QString handleOf(const OdDbObjectId& id) { return id.getHandle().ascii().qstring(); }

}  // namespace

void zqPrintRows(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id) {
  OdDbObjectPtr obj = id.openObject();
  out << (obj ? zqDisplayName(obj.get()) : QString("?")) << " [" << handleOf(id) << "]\n";
  for (const CZqPaletteRow& r : rowsOf(db, id))
    out << "  " << r.ListLine() << "\n";
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
    if (content.rows) {
      OdDbObjectPtr obj = id.openObject();
      w.key("class").value(obj ? obj->isA()->name().qstring() : QString());
      w.key("name").value(obj ? zqDisplayName(obj.get()) : QString());
      obj.release();
      w.key("rows").beginArray();
      for (const CZqPaletteRow& r : rowsOf(db, id)) {
        w.beginObject().key("category").value(r.category.qstring()).key("name").value(r.name.qstring());
        w.key("type").value(r.type.GetType()).key("value");
        if (r.varies) w.null(); else writeValue(w, r.value);
        w.key("text").value(r.text.qstring()).key("readOnly").value(r.readOnly);
        if (r.sample.GetType() == CZqVariant::kVtCollection) writeChoices(w, r.sample.GetCollection());
        w.endObject();
      }
      w.endArray();
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
