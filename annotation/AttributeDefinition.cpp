#include "AttributeDefinition.h"
#include "Text.h"
#include "ZqAttributeRows.h"
#include "ZqInfoFrame.h"
#include "DbText.h"
#include <vector>

namespace {

using D = OdDbAttributeDefinition;
using namespace ZqAttributeLike;

CZqVariant getPrompt(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* d = ZqReadable<D>(object);
  return d ? CZqVariant(CZqString(d->prompt())) : CZqVariant();
}

// A prompt is one line.
int setPrompt(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* d = ZqWritable<D>(object);
  if (!d || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A prompt is one line: it cannot contain line breaks or control characters"));
  if (s != d->prompt().qstring()) d->setPrompt(OdString(s));
  return kZqSetApplied;
}

constexpr auto setConstant = ZqSetFlag<D, &D::setConstant, kZqYesNo>;
constexpr auto setVerify = ZqSetFlag<D, &D::setVerifiable, kZqYesNo>;
constexpr auto setPreset = ZqSetFlag<D, &D::setPreset, kZqYesNo>;
constexpr auto getMultiline = ZqGetFlag<D, &D::isMTextAttributeDefinition, kZqYesNo>;

const ZqRow kOwnRows[] = {
//  category       name                                                 type        identifier read-only    get                  set                  icon
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Tag"),           kZqString,  nullptr,   kZqEditable, getTag<D>,           setTag<D>,           nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Prompt"),        kZqString,  nullptr,   kZqEditable, getPrompt,           setPrompt,           nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Value"),         kZqString,  nullptr,   kZqEditable, getValue<D>,         setValue<D>,         nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Invisible"),     kZqUntyped, nullptr,   kZqEditable, getInvisible<D>,     setInvisible<D>,     nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Constant"),      kZqUntyped, nullptr,   kZqEditable, getConstant<D>,      setConstant,         nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Verify"),        kZqUntyped, nullptr,   kZqEditable, getVerify<D>,        setVerify,           nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Preset"),        kZqUntyped, nullptr,   kZqEditable, getPreset<D>,        setPreset,           nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Lock position"), kZqUntyped, nullptr,   kZqEditable, getLock<D>,          setLock<D>,          nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Multiline"),     kZqUntyped, nullptr,   kZqReadOnly, getMultiline,        nullptr,             nullptr},
};

// The provider's parent is the generic one: the text rows come first here,
// then the definition's own.
std::span<const ZqRow> textAndOwnRows() {
  static const std::vector<ZqRow> all = [] {
    std::vector<ZqRow> r(ZqTextRows().begin(), ZqTextRows().end());
    r.insert(r.end(), std::begin(kOwnRows), std::end(kOwnRows));
    return r;
  }();
  return all;
}

}  // namespace

ZQ_DEFINE_PROVIDER(CZqAttributeDefinitionPE, QT_TRANSLATE_NOOP("entity_types", "Attribute Definition"), textAndOwnRows())

void CZqAttributeDefinitionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<D>(this, object, context, [&](const D* d) {
    ZqPrintTextLines(d, context);
    context->PrintString(QCoreApplication::translate("info_items", "Tag"), d->tag());
    context->PrintString(QCoreApplication::translate("info_items", "Prompt"), d->prompt());
    context->PrintBool(QCoreApplication::translate("info_items", "Invisible"), d->isInvisible());
    context->PrintBool(QCoreApplication::translate("info_items", "Constant"), d->isConstant());
    context->PrintBool(QCoreApplication::translate("info_items", "Verify"), d->isVerifiable());
    context->PrintBool(QCoreApplication::translate("info_items", "Preset"), d->isPreset());
    context->PrintBool(QCoreApplication::translate("info_items", "Lock position"), d->lockPositionInBlock());
  });
}
