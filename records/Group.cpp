#include "Records.h"
#include "ZqRecordRows.h"
#include "DbGroup.h"

namespace {

using G = OdDbGroup;

CZqVariant getMembers(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const G* g = ZqReadable<G>(object);
  return g ? CZqVariant(int32_t(g->numEntities())) : CZqVariant();
}

constexpr auto getDescription = ZqGetText<G, &G::description>;
constexpr auto setDescription = ZqSetText<G, &G::setDescription>;
constexpr auto getSelectable = ZqGetFlag<G, &G::isSelectable, kZqYesNo>;
constexpr auto setSelectable = ZqSetFlag<G, &G::setSelectable, kZqYesNo>;

const ZqRow kRows[] = {
//  category     name                                                  type           identifier  read-only    get              set              icon
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,    kZqEditable, ZqGetObjectName, ZqSetObjectName, nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Description"),   kZqString,     nullptr,    kZqEditable, getDescription,  setDescription,  nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Selectable"),    kZqCollection, nullptr,    kZqEditable, getSelectable,   setSelectable,   nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Members"),       kZqInt32,      nullptr,    kZqReadOnly, getMembers,      nullptr,         nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqGroupPE, QT_TRANSLATE_NOOP("entity_types", "Group"), kRows)
