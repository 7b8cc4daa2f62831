#pragma once
// Rows as data: a provider's fixed rows are one constant array of ZqRow in
// its source unit; one routine turns a row into a description; the steps
// of GetPropertyNames that every provider shares are written once here.
#include "ZqPropertiesKernel.h"
#include <QCoreApplication>
#include <span>

// Category words, untranslated (the icon paths use them as they are).
#define ZQ_GENERAL QT_TRANSLATE_NOOP("property_groups", "General")
#define ZQ_GEOMETRY QT_TRANSLATE_NOOP("property_groups", "Geometry")
#define ZQ_MISC QT_TRANSLATE_NOOP("property_groups", "Misc")
// The hidden property-matching category, never translated.
#define ZQ_MATCHPROP "MATCHPROP"

// How a row changes its description's visibility once it is in the list.
struct ZqVis {
  enum Op { kKeep, kOr, kXor, kSet } op = kKeep;
  unsigned bits = 0;
};
constexpr ZqVis kVisKeep{};
constexpr ZqVis kVisOr4{ZqVis::kOr, 4};
constexpr ZqVis kVisXor8{ZqVis::kXor, 8};
constexpr ZqVis kVisMatchProp{ZqVis::kSet, 4};

struct ZqRow {
  const char* category;      // untranslated category word
  const char* name;          // untranslated row name
  int type;                  // CZqVariant kind number of the editor
  const char* typeId;        // editor identifier, or nullptr for none
  ZqIsReadOnlyMethod readOnly;
  ZqGetMethod get;
  ZqSetMethod set;           // nullptr for computed rows
  const char* icon;          // icon stem "Group_Name"; nullptr: category_NameWithoutBlanks; "" none
  ZqVis vis;
};

// Rows of the MATCHPROP category keep their words untranslated, have no
// editor type and no icons.
bool ZqIsMatchPropRow(const ZqRow& row);

// The icon stem of a row and the two resource paths of a stem.
QString ZqIconStem(const ZqRow& row);
QString ZqDarkIconPath(const QString& stem);
QString ZqLightIconPath(const QString& stem);

// Builds one fixed description from its row, appends it to list and then
// applies the row's visibility edit.
CZqCustomPropertyDescription* ZqBuildFixedDescription(const ZqRow& row, OdArray<CZqPropertyDescription*>& list);

// Builds one dynamic description (flagged dynamic, for AddDynamic).
CZqCustomPropertyDescription* ZqBuildDynamicDescription(const ZqRow& row);

// The shared steps of a provider's GetPropertyNames after its parent has
// run: the provider-class filter, the container check, the object-class
// admission and the static list (built on the first call, when excludeOwn
// is not consulted). Returns true when the provider's conditional and
// dynamic rows should follow.
bool ZqAddStaticRows(CZqPropertiesContainer* container, const OdRxClass* objectClass,
                     const OdRxClass* providerClass, bool excludeOwn, const OdRxClass* drawingClass,
                     const OdRxClass* ownClass, OdArray<CZqPropertyDescription*>& staticList,
                     std::span<const ZqRow> rows);

// Declares the members every provider of the module has: class identity,
// display name, GetPropertyNames and its static list.
#define ZQ_DECLARE_PROVIDER(Provider)                                                              \
  ODRX_DECLARE_MEMBERS(Provider);                                                                  \
                                                                                                   \
 public:                                                                                           \
  CZqString GetClassName(const OdDbObject* object = nullptr) const override;                      \
  void GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container,              \
                        const OdRxClass* objectClass, const OdRxClass* providerClass,               \
                        bool excludeOwn) override;                                                  \
  static OdArray<CZqPropertyDescription*>& staticList()

// Defines GetPropertyNames for a provider whose rows are only its static
// list: the parent's rows, then the shared static-list steps.
#define ZQ_DEFINE_STATIC_PROPERTY_NAMES(Provider, Parent, DrawingClass, Rows)                        \
  OdArray<CZqPropertyDescription*>& Provider::staticList() {                                       \
    static OdArray<CZqPropertyDescription*> list;                                                  \
    return list;                                                                                   \
  }                                                                                                \
  void Provider::GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container,   \
                                  const OdRxClass* objectClass, const OdRxClass* providerClass,     \
                                  bool excludeOwn) {                                               \
    container = nullptr;                                                                           \
    Parent::GetPropertyNames(object, container, objectClass, providerClass, excludeOwn);           \
    ZqAddStaticRows(container, objectClass, providerClass, excludeOwn, DrawingClass::desc(),       \
                    Provider::desc(), staticList(), Rows);                                         \
  }
