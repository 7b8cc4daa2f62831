#include "MinusProperties.h"
#include "DbPlainClasses.h"
#include "ZqServices.h"
#include "ZqSelection.h"
#include <QCoreApplication>
#include <QStringList>

const OdString CZqCommandMinusProperties::globalName() const { return OdString("_-PROPERTIES"); }

const OdString CZqCommandMinusProperties::localName() const {
  return CZqString(QCoreApplication::translate("CZqCommandMinusProperties", "-PROPERTIES",
                                               "Command Name: Needs to be unique and all uppercase."))
      .toOdString();
}

namespace {


// A keyword answer: the whole word or its capital letters ("L" for "List",
// "X" for "eXit"), without regard to case.
bool isKeyword(const QString& answer, const QString& keyword) {
  if (answer.compare(keyword, Qt::CaseInsensitive) == 0) return true;
  QString caps;
  for (QChar c : keyword)
    if (c.isUpper()) caps += c;
  return !caps.isEmpty() && answer.compare(caps, Qt::CaseInsensitive) == 0;
}

void listRows(OdEdCommandContext* ctx, const std::vector<CZqPaletteRow>& rows) {
  for (const CZqPaletteRow& r : rows) ctx->putString(OdString("  " + r.ListLine()));
}

}  // namespace

void CZqCommandMinusProperties::ExecuteCommand(OdEdCommandContext* ctx) {
  auto* db = static_cast<OdDbDatabase*>(ctx->baseDatabase());
  if (!db) return;
  CZqPropertiesWindowService service(db);

  OdDbObjectIdArray selection;
  for (;;) {
    const QString answer = ctx->getString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "Select objects:"))).qstring().trimmed();
    if (answer.isEmpty()) break;
    // The same answers as every selection of the host: handles, kinds,
    // ALL, Previous, and criteria such as Layer=W* or Space=paper.
    OdDbObjectIdArray found;
    QString why;
    if (!CZqSelectionFilter::SelectByAnswer(db, answer, found, &why)) {
      ctx->putString(OdString(why));
      continue;
    }
    for (const OdDbObjectId& id : found)
      if (!selection.contains(id)) selection.append(id);
    ctx->putString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "%1 found, %2 total").arg(found.size()).arg(selection.size())));
  }
  if (selection.isEmpty()) {
    ctx->putString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "Nothing selected.")));
    return;
  }
  service.SetSelection(selection);
  CZqSelectionFilter::SetPrevious(selection);

  for (;;) {
    const std::vector<CZqPaletteRow> rows = service.Rows();
    const QString answer =
        ctx->getString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "Enter property name or [List/eXit] <eXit>:"))).qstring().trimmed();
    if (answer.isEmpty() || isKeyword(answer, "eXit")) return;
    if (isKeyword(answer, "List")) {
      listRows(ctx, rows);
      continue;
    }
    QString why;
    const CZqPaletteRow* row = service.FindRow(rows, answer, &why);
    if (!row) {
      ctx->putString(OdString(why));
      continue;
    }
    if (row->readOnly) {
      ctx->putString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "%1 is read-only.").arg(row->name.qstring())));
      continue;
    }
    const QString typed = ctx->getString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "Enter new value for %1 <%2>:").arg(row->name.qstring(), row->text.qstring()))).qstring();
    if (typed.trimmed().isEmpty()) continue;  // keep the current value
    CZqVariant value;
    if (!service.ParseValue(*row, typed, value, &why)) {
      ctx->putString(OdString(why));
      continue;
    }
    for (const CZqEditResult& r : service.SetValue(row->categoryKey, row->nameKey, value)) {
      if (r.code == kZqSetRefused) {
        ctx->putString(OdString(QCoreApplication::translate("CZqCommandMinusProperties", "Refused for %1: %2").arg(r.id.getHandle().ascii().qstring(),
                                                               r.message.isEmpty() ? QCoreApplication::translate("CZqCommandMinusProperties", "invalid value") : r.message.qstring())));
      }
    }
  }
}
