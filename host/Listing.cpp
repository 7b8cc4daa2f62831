#include "Listing.h"
#include <QJsonArray>

QString zqDisplayName(const OdDbObject* object) {
  CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(object);
  return pe ? pe->GetClassName(object).qstring() : QString();
}

namespace {

// The value of a row as JSON: full-precision numbers, strings, the tag of
// an enumeration's current choice, null where there is no single value.
QJsonValue valueJson(const CZqVariant& v) {
  switch (v.GetType()) {
    case CZqVariant::kVtDouble: return v.GetDouble();
    case CZqVariant::kVtString: return v.GetString().qstring();
    case CZqVariant::kVtInt32: return v.GetInt32();
    case CZqVariant::kVtColor: return v.GetColor().description().qstring();
    case CZqVariant::kVtCollection: {
      const CZqVariantCollection& c = v.GetCollection();
      if (c.GetCurrent() < 0) return QJsonValue::Null;
      return valueJson(c.GetAt(c.GetCurrent()).GetTag());
    }
    case CZqVariant::kVtCollectionElement: return valueJson(v.GetCollectionElement().GetTag());
    case CZqVariant::kVtId: return QString(v.GetId().getHandle().ascii());
    default: return QJsonValue::Null;
  }
}

QJsonValue choicesJson(const CZqVariant& v) {
  if (v.GetType() != CZqVariant::kVtCollection) return QJsonValue::Undefined;
  QJsonArray out;
  const CZqVariantCollection& c = v.GetCollection();
  for (int i = 0; i < c.GetCount(); ++i)
    out.append(QJsonObject{{"text", c.GetAt(i).GetValue().GetString().qstring()}, {"tag", valueJson(c.GetAt(i).GetTag())}});
  return out;
}

std::vector<CZqPaletteRow> rowsOf(OdDbDatabase* db, const OdDbObjectId& id) {
  CZqPropertiesWindowService service(db);
  service.SetSelection({id});
  return service.Rows();
}

QString handleOf(const OdDbObjectId& id) { return id.getHandle().ascii().qstring(); }

}  // namespace

QJsonObject zqRowsJson(OdDbDatabase* db, const OdDbObjectId& id) {
  OdDbObjectPtr obj = id.openObject();
  QJsonObject o{{"handle", handleOf(id)},
                {"class", obj ? obj->isA()->name().qstring() : QString()},
                {"name", obj ? zqDisplayName(obj.get()) : QString()}};
  QJsonArray rows;
  for (const CZqPaletteRow& r : rowsOf(db, id)) {
    QJsonObject row{{"category", r.category.qstring()}, {"name", r.name.qstring()}, {"type", r.type.GetType()},
                    {"value", r.varies ? QJsonValue(QJsonValue::Null) : valueJson(r.value)},
                    {"text", r.text.qstring()}, {"readOnly", r.readOnly}};
    const QJsonValue choices = choicesJson(r.value);
    if (!choices.isUndefined()) row["choices"] = choices;
    rows.append(row);
  }
  o["rows"] = rows;
  return o;
}

void zqPrintRows(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id) {
  OdDbObjectPtr obj = id.openObject();
  out << (obj ? zqDisplayName(obj.get()) : QString("?")) << " [" << handleOf(id) << "]\n";
  for (const CZqPaletteRow& r : rowsOf(db, id))
    out << "  " << r.category.qstring() << "/" << r.name.qstring() << ": " << r.text.qstring()
        << (r.readOnly ? "  (read-only)" : "") << "\n";
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

QJsonObject zqInfoJson(OdDbDatabase* db, const OdDbObjectId& id, bool inUcs) {
  QJsonArray lines;
  for (const auto& l : infoLines(db, id, inUcs))
    lines.append(QJsonObject{{"label", l.label}, {"kind", CZqPrintInfoContext::kindName(l.kind)},
                             {"value", QJsonValue::fromVariant(l.value)}, {"text", l.text}});
  return QJsonObject{{"handle", handleOf(id)}, {"lines", lines}};
}

void zqPrintInfo(QTextStream& out, OdDbDatabase* db, const OdDbObjectId& id, bool inUcs) {
  for (const auto& l : infoLines(db, id, inUcs))
    out << QString("%1  %2").arg(l.label, 28).arg(l.text) << "\n";
  out << "\n";
}
