#include "Attribute.h"
#include "ZqAttributeRows.h"
#include "ZqInfoFrame.h"
#include "DbText.h"

namespace {

using A = OdDbAttribute;
using namespace ZqAttributeLike;

constexpr auto getMultiline = ZqGetFlag<A, &A::isMTextAttribute, kZqYesNo>;

// Constant, verify and preset belong to the definition; an attribute shows
// them as it has them.
const ZqRow kRows[] = {
//  category       name                                                 type        identifier read-only    get                  set                  icon
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Tag"),           kZqString,  nullptr,   kZqEditable, getTag<A>,           setTag<A>,           nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Value"),         kZqString,  nullptr,   kZqEditable, getValue<A>,         setValue<A>,         nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Invisible"),     kZqUntyped, nullptr,   kZqEditable, getInvisible<A>,     setInvisible<A>,     nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Constant"),      kZqUntyped, nullptr,   kZqReadOnly, getConstant<A>,      nullptr,             nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Verify"),        kZqUntyped, nullptr,   kZqReadOnly, getVerify<A>,        nullptr,             nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Preset"),        kZqUntyped, nullptr,   kZqReadOnly, getPreset<A>,        nullptr,             nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Lock position"), kZqUntyped, nullptr,   kZqEditable, getLock<A>,          setLock<A>,          nullptr},
  {ZQ_ATTRIBUTE,  QT_TRANSLATE_NOOP("property_types", "Multiline"),     kZqUntyped, nullptr,   kZqReadOnly, getMultiline,        nullptr,             nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqAttributePE, QT_TRANSLATE_NOOP("entity_types", "Attribute"), kRows)

void CZqBlockAttributeInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<A>(this, object, context, [&](const A* a) {
    ZqPrintTextLines(a, context);
    context->PrintString(QCoreApplication::translate("info_items", "Tag"), a->tag());
    context->PrintBool(QCoreApplication::translate("info_items", "Invisible"), a->isInvisible());
    context->PrintBool(QCoreApplication::translate("info_items", "Constant"), a->isConstant());
    context->PrintBool(QCoreApplication::translate("info_items", "Verify"), a->isVerifiable());
    context->PrintBool(QCoreApplication::translate("info_items", "Preset"), a->isPreset());
    context->PrintBool(QCoreApplication::translate("info_items", "Lock position"), a->lockPositionInBlock());
  });
}
