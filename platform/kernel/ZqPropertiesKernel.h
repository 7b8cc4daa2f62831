#pragma once
// The property framework of the host: the protocol class under which
// property providers hang, the provider bases and the generic entity
// provider with the rows every entity shows.
#include "KernelExport.h"
#include "CZqPropertyDescription.h"
#include "CZqPropertyType.h"
#include "OdRxClass.h"

class OdDbObject;

// The property protocol: what the palette asks a drawing class for.
class ZQKERNEL_API CZqPropertyBase : public OdRxObject {
  ODRX_DECLARE_MEMBERS(CZqPropertyBase);

 public:
  CZqPropertyBase();
  ~CZqPropertyBase() override;

  // The translated display name of the object's kind.
  virtual CZqString GetClassName(const OdDbObject* object = nullptr) const;
  // Fills container with the rows of object (see CZqEntityPE).
  virtual void GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container,
                                const OdRxClass* objectClass, const OdRxClass* providerClass,
                                bool excludeOwn);
  virtual bool HasDynamicProperties(const OdDbObject* object) const;
  // Reads or writes one row found by its (translated) name or by its editor
  // identifier. The Get forms return false when there is no such row.
  virtual bool GetPropertyByName(const OdDbObject* object, const CZqString& name, CZqVariant& value,
                                 const CZqVariant& index = CZqVariant());
  virtual bool GetPropertyByGUID(const OdDbObject* object, const CZqString& guid, CZqVariant& value,
                                 const CZqVariant& index = CZqVariant());
  virtual int SetPropertyByName(const OdDbObject* object, const CZqString& name, const CZqVariant& value,
                                const CZqVariant& index = CZqVariant());
  virtual int SetPropertyByGUID(const OdDbObject* object, const CZqString& guid, const CZqVariant& value,
                                const CZqVariant& index = CZqVariant());
  // The provider that really serves object (itself unless a provider
  // delegates to another, as a solid does to its primitive's provider).
  virtual CZqPropertyBase* GetPropertyPEOverride(const OdDbObject* object);
  // Rows that exist only for some objects of the class; none by default.
  virtual void GetPropertyNamesDynamic(const OdDbObject* object, CZqPropertiesContainer*& container);

  // Untranslated key some hosts ask for instead of the display name.
  virtual CZqString GetClassKey() const { return CZqString(); }

 protected:
  // All rows of object through GetPropertyNames; the caller owns the result.
  CZqPropertiesContainer* collect(const OdDbObject* object);
};
using CZqPropertyBasePtr = OdSmartPtr<CZqPropertyBase>;

class ZQKERNEL_API CZqCustomPropertyPE : public CZqPropertyBase {
  ODRX_DECLARE_MEMBERS(CZqCustomPropertyPE);

 public:
  // Shared read-only callbacks.
  static bool IsReadOnlyFalse(const OdDbObject* object, const CZqPropertyDescription& description);
  static bool IsReadOnlyTrue(const OdDbObject* object, const CZqPropertyDescription& description);
};

// The generic entity provider. Its GetPropertyNames creates the container
// and adds the rows every entity has, in the "General" category: Color,
// Layer, Linetype, Linetype scale, Plot style, Lineweight, Transparency,
// Hyperlink.
class ZQKERNEL_API CZqEntityPE : public CZqCustomPropertyPE {
  ODRX_DECLARE_MEMBERS(CZqEntityPE);

 public:
  CZqEntityPE();
  ~CZqEntityPE() override;
  CZqString GetClassName(const OdDbObject* object = nullptr) const override;
  void GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container,
                        const OdRxClass* objectClass, const OdRxClass* providerClass, bool excludeOwn) override;
  // The general rows (built on first use, shared by every entity).
  static const OdArray<CZqPropertyDescription*>& GeneralRows();
};

// The drawing-view provider of the host; registered by modules that use it.
class ZQKERNEL_API CZqDrawingViewPE : public CZqPropertyBase {
  ODRX_DECLARE_MEMBERS(CZqDrawingViewPE);
};

// Creates property providers for classes on demand. Modules create it
// before attaching their providers and destroy it when they detach them.
class ZQKERNEL_API CZqPropertyPEClassFactory {
 public:
  static void create();
  static void destroy();
  static bool isCreated();
  // The provider that serves object: its class's (or nearest ancestor's)
  // CZqPropertyBase extension, after GetPropertyPEOverride. Null when the
  // factory does not exist or no provider is attached.
  static CZqPropertyBase* providerFor(const OdDbObject* object);
};
