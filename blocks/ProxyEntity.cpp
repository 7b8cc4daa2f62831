#include "Blocks.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbProxyEntity.h"

namespace {

using P = OdDbProxyEntity;

// The operations, in the order of their bits, as a user reads them.
struct Operation {
  int bit;
  const char* word;  // "property_values"
};
const Operation kOperations[] = {
    {P::kEraseAllowed, QT_TRANSLATE_NOOP("property_values", "Erase")},
    {P::kTransformAllowed, QT_TRANSLATE_NOOP("property_values", "Transform")},
    {P::kColorChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Color change")},
    {P::kLayerChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Layer change")},
    {P::kLinetypeChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Linetype change")},
    {P::kLinetypeScaleChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Linetype scale change")},
    {P::kVisibilityChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Visibility change")},
    {P::kCloningAllowed, QT_TRANSLATE_NOOP("property_values", "Cloning")},
    {P::kLineWeightChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Lineweight change")},
    {P::kPlotStyleNameChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Plot style change")},
    {P::kMaterialChangeAllowed, QT_TRANSLATE_NOOP("property_values", "Material change")},
};

QString allowedOperations(const P* proxy) {
  QStringList words;
  for (const Operation& op : kOperations)
    if (proxy->proxyFlags() & op.bit) words << QCoreApplication::translate("property_values", op.word);
  return words.isEmpty() ? QCoreApplication::translate("property_values", "None") : words.join(QStringLiteral(", "));
}

// A class the drawing does not describe is named "Unknown".
QString orUnknown(const OdString& s) {
  return s.isEmpty() ? QCoreApplication::translate("property_values", "Unknown") : s.qstring();
}

template <OdString (P::*Get)() const>
CZqVariant getText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* proxy = ZqReadable<P>(object);
  return proxy ? CZqVariant(orUnknown((proxy->*Get)())) : CZqVariant();
}

CZqVariant getOperations(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* proxy = ZqReadable<P>(object);
  return proxy ? CZqVariant(allowedOperations(proxy)) : CZqVariant();
}

const ZqRow kRows[] = {
//  category  name                                                        type       identifier read-only    get                                   set      icon     visibility
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Original class name"), kZqString, nullptr,   kZqReadOnly, getText<&P::originalClassName>,       nullptr, nullptr, kVisKeep},
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "DXF name"),            kZqString, nullptr,   kZqReadOnly, getText<&P::originalDxfName>,         nullptr, nullptr, kVisKeep},
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Application"),         kZqString, nullptr,   kZqReadOnly, getText<&P::applicationDescription>,  nullptr, nullptr, kVisKeep},
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Allowed operations"),  kZqString, nullptr,   kZqReadOnly, getOperations,                        nullptr, nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqProxyEntityPE, QT_TRANSLATE_NOOP("entity_types", "Proxy Entity"), kRows)

void CZqProxyEntityInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<P>(this, object, context, [&](const P* proxy) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Original class name")),
                         CZqString(orUnknown(proxy->originalClassName())));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "DXF name")), CZqString(orUnknown(proxy->originalDxfName())));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Application")),
                         CZqString(orUnknown(proxy->applicationDescription())));
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Allowed operations")), CZqString(allowedOperations(proxy)));
  });
}
