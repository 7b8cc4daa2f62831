#pragma once
// The provider base. Every provider of the module is
//
//   class CZqLinePE : public ZqProvider<CZqLinePE> { ZQ_PROVIDER(CZqLinePE); };
//
// with, in its source unit, its row tables, its own callbacks and
//
//   ZQ_DEFINE_PROVIDER(CZqLinePE, QT_TRANSLATE_NOOP("entity_types", "Line"), kRows)
//
// The parent class and the drawing class come from module/ZqProviders.def,
// so the class tree the module registers, the C++ base and the parent whose
// rows come first are one statement. ZqProvider then does what every
// provider repeats: the display name, the parent's rows first, the filter
// and class checks, the static list built once, the conditional rows and
// the hook for rows built per object.
#include "ZqRows.h"
#include "DbPlainClasses.h"
#include <type_traits>

// The parent and drawing class of each provider, read from the table. A
// provider the module registers no class for (the style records) derives
// from the property protocol itself.
template <class Provider> struct ZqParentOf { using type = CZqPropertyBase; };
// A shared base's drawing class; a provider attached to a class of its own
// (a row of the table) takes that class instead.
template <class Provider> struct ZqBaseDrawingClassOf;
template <class Provider, class = void> struct ZqDrawingClassOf : ZqBaseDrawingClassOf<Provider> {};
#define ZQ_CLASS(Provider, Parent, RegisterPosition) \
  class Provider;                                    \
  class Parent;                                      \
  template <> struct ZqParentOf<Provider> { using type = Parent; };
#define ZQ_BASE_CLASS(Provider, Parent, DrawingClass, RegisterPosition, UnregisterPosition) \
  class Provider;                                                                        \
  class Parent;                                                                          \
  class DrawingClass;                                                                    \
  template <> struct ZqParentOf<Provider> { using type = Parent; };                      \
  template <> struct ZqBaseDrawingClassOf<Provider> { using type = DrawingClass; };
#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Step, Info, InfoPosition) \
  class Provider;                                                                     \
  class DrawingClass;                                                                 \
  template <> struct ZqDrawingClassOf<Provider> { using type = DrawingClass; };
#define ZQ_PRIMITIVE_CLASS(Provider, Parent, DrawingClass, RegisterPosition)          \
  class Provider;                                                                    \
  class Parent;                                                                      \
  class DrawingClass;                                                                \
  template <> struct ZqParentOf<Provider> { using type = Parent; };                  \
  template <> struct ZqDrawingClassOf<Provider> { using type = DrawingClass; };
#include "ZqProviders.def"

template <class Provider> using ZqParent = typename ZqParentOf<Provider>::type;
template <class Provider> using ZqDrawingClass = typename ZqDrawingClassOf<Provider>::type;

// What a provider states about itself: everything else is ZqProvider's.
struct ZqProviderRows {
  const char* displayName;  // "entity_types" key of GetClassName; null: the parent's name
  std::span<const ZqRow> fixed = {};
  std::span<const ZqConditionalRow> conditional = {};
  // Rows that cannot be a table: built per call for object and handed to
  // the container with AddDynamic.
  void (*objectRows)(const OdDbObject* object, CZqPropertiesContainer* container) = nullptr;
};

template <class Self>
class ZqProvider : public ZqParent<Self> {
 public:
  using Parent = ZqParent<Self>;

  CZqString GetClassName(const OdDbObject* object = nullptr) const override {
    const char* name = Self::rows().displayName;
    return name ? CZqString(QCoreApplication::translate("entity_types", name)) : Parent::GetClassName(object);
  }

  void GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container, const OdRxClass* objectClass,
                        const OdRxClass* providerClass, bool excludeOwn) override {
    container = nullptr;
    Parent::GetPropertyNames(object, container, objectClass, providerClass, excludeOwn);
    if constexpr (std::is_same_v<Parent, CZqPropertyBase>) {
      // Directly under the protocol (records, styles, lights): no parent
      // makes the container, so the provider does; an entity among them
      // still shows the general rows every entity has.
      container = new CZqCustomPropertyContainer();
      if (ZqDrawingClass<Self>::desc()->isDerivedFrom(OdDbEntity::desc())) container->Add(CZqEntityPE::GeneralRows());
    }
    const ZqProviderRows& rows = Self::rows();
    if (!ZqAddStaticRows(container, objectClass, providerClass, excludeOwn, ZqDrawingClass<Self>::desc(), Self::desc(),
                         Self::staticList(), rows.fixed))
      return;
    ZqAddConditionalRows(object, container, rows.conditional);
    if (rows.objectRows) rows.objectRows(object, container);
  }
};

// Declares, in a provider's class body, its class identity, its rows and
// its static list.
#define ZQ_PROVIDER(Provider)                  \
  ODRX_DECLARE_MEMBERS(Provider);              \
                                               \
 public:                                       \
  static const ZqProviderRows& rows();         \
  static OdArray<CZqPropertyDescription*>& staticList()

// Defines them in the provider's source unit: the class registered under
// its parent from the table, the display name and the row tables
// (fixed rows, then optionally conditional rows and the per-object hook).
#define ZQ_DEFINE_PROVIDER(Provider, DisplayName, ...)                           \
  ODRX_DEFINE_MEMBERS(Provider, ZqParent<Provider>)                              \
  OdArray<CZqPropertyDescription*>& Provider::staticList() {                     \
    static OdArray<CZqPropertyDescription*> list;                                \
    return list;                                                                 \
  }                                                                              \
  const ZqProviderRows& Provider::rows() {                                       \
    static const ZqProviderRows r{DisplayName, __VA_ARGS__};                     \
    return r;                                                                    \
  }
