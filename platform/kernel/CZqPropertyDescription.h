#pragma once
// One row of the Properties palette: its texts, editor type, icons,
// visibility and the callbacks that read, write and grey it.
#include "KernelExport.h"
#include "CZqVariant.h"
#include "OdArray.h"
#include <memory>
#include <vector>

class OdDbObject;
class CZqPropertyDescription;

using ZqGetMethod = CZqVariant (*)(const OdDbObject* object, const CZqPropertyDescription& description,
                                   const CZqVariant& index);
using ZqSetMethod = int (*)(const OdDbObject* object, const CZqPropertyDescription& description,
                            const CZqVariant& value, const CZqVariant& index);
using ZqIsReadOnlyMethod = bool (*)(const OdDbObject* object, const CZqPropertyDescription& description);
using ZqGroupActionMethod = CZqVariant (*)(const OdArray<OdDbObjectId>& objects,
                                           const CZqPropertyDescription& description,
                                           const CZqVariant& value, const CZqVariant& index);

// Results of set callbacks.
constexpr int kZqSetApplied = 5100;
constexpr int kZqSetRefused = -5001;

// Visibility bits: 1 Properties palette, 2 quick properties, 4 property
// matching, 8 hidden when more than one object is selected; 16 and 32 are
// reserved. A new description is shown in both palettes.
enum ZqVisibility : unsigned {
  kZqVisPalette = 1,
  kZqVisQuick = 2,
  kZqVisMatch = 4,
  kZqVisSingleOnly = 8,
  kZqVisDefault = kZqVisPalette | kZqVisQuick,
};

class ZQKERNEL_API CZqCustomPropertyType {
 public:
  CZqCustomPropertyType() = default;
  CZqCustomPropertyType(int type, const CZqString& typeId) : m_type(type), m_id(typeId) {}
  int GetType() const { return m_type; }
  const CZqString& GetTypeId() const { return m_id; }
  friend bool operator==(const CZqCustomPropertyType& a, const CZqCustomPropertyType& b) {
    return a.m_type == b.m_type && a.m_id == b.m_id;
  }

 private:
  int m_type = 0;
  CZqString m_id;
};

class ZQKERNEL_API CZqPropertyDescription {
 public:
  virtual ~CZqPropertyDescription();
  virtual CZqString GetName() const = 0;
  virtual CZqString GetCategory() const = 0;
  virtual CZqString GetDescription() const = 0;
  virtual CZqCustomPropertyType GetType() const = 0;
  virtual CZqString GetIcon() const = 0;
  virtual CZqString GetDarkIcon() const = 0;
  virtual CZqString GetLightIcon() const = 0;
  virtual bool IsDynamic() const = 0;
  virtual bool IsGroupedAction() const = 0;
  virtual CZqVariant DoGroupedAction(const OdArray<OdDbObjectId>& objects, const CZqVariant& value,
                                     const CZqVariant& index) const = 0;
  // Calls the get callback; empty without one.
  virtual CZqVariant GetValue(const OdDbObject* object, const CZqVariant& index) const = 0;
  // Calls the set callback; refused (-5001) without one.
  virtual int SetValue(const OdDbObject* object, const CZqVariant& value, const CZqVariant& index) const = 0;
  // Calls the read-only callback; a row without one is read-only when it
  // has no set callback.
  virtual bool IsReadOnly(const OdDbObject* object) const = 0;
  virtual unsigned GetVisibility() const = 0;
  virtual void SetName(const CZqString& name) = 0;
  virtual void SetCategory(const CZqString& category) = 0;
  virtual void SetDescription(const CZqString& text) = 0;
  virtual void SetType(const CZqCustomPropertyType& type) = 0;
  virtual void SetIcon(const CZqString& path) = 0;
  virtual void SetDarkIcon(const CZqString& path) = 0;
  virtual void SetLightIcon(const CZqString& path) = 0;
  virtual void SetIsDynamic(bool dynamic) = 0;
  virtual void PutGetMethod(ZqGetMethod method) = 0;
  virtual void PutSetMethod(ZqSetMethod method) = 0;
  virtual void PutIsReadOnlyMethod(ZqIsReadOnlyMethod method) = 0;
  virtual void PutGroupActionMethod(ZqGroupActionMethod method) = 0;
  virtual ZqIsReadOnlyMethod GetIsReadOnlyMethod() const = 0;
  virtual ZqGetMethod GetGetMethod() const = 0;
  virtual ZqSetMethod GetSetMethod() const = 0;
  virtual ZqGroupActionMethod GetGroupActionMethod() const = 0;
  virtual bool operator==(const CZqPropertyDescription& other) const = 0;
  virtual void SetVisibility(unsigned visibility) = 0;

  // The untranslated category and name the row is known by: lookups,
  // scripts and the matching of rows across objects use them, whatever the
  // language; GetCategory and GetName are for display. Without keys of its
  // own a row is known by its displayed texts.
  virtual CZqString GetCategoryKey() const { return GetCategory(); }
  virtual CZqString GetNameKey() const { return GetName(); }
  virtual void SetKeys(const CZqString& category, const CZqString& name) { (void)category, (void)name; }
  // A sentence that says which values the row takes ("Radius must be
  // greater than 0"), for hosts to show when a setter refuses a value
  // without a message of its own; empty when the row states none.
  virtual CZqString GetRefusalText() const { return CZqString(); }
  virtual void SetRefusalText(const CZqString& text) { (void)text; }
  // The provider's own record of the row, opaque to the host (null when
  // the provider keeps none).
  virtual const void* GetRowData() const { return nullptr; }
  virtual void SetRowData(const void* data) { (void)data; }
};

class ZQKERNEL_API CZqCustomPropertyDescription : public CZqPropertyDescription {
 public:
  CZqCustomPropertyDescription();
  ~CZqCustomPropertyDescription() override;
  CZqString GetName() const override { return m_name; }
  CZqString GetCategory() const override { return m_category; }
  CZqString GetDescription() const override { return m_description; }
  CZqCustomPropertyType GetType() const override { return m_type; }
  CZqString GetIcon() const override { return m_icon; }
  CZqString GetDarkIcon() const override { return m_darkIcon; }
  CZqString GetLightIcon() const override { return m_lightIcon; }
  bool IsDynamic() const override { return m_dynamic; }
  bool IsGroupedAction() const override { return m_groupAction != nullptr; }
  CZqVariant DoGroupedAction(const OdArray<OdDbObjectId>& objects, const CZqVariant& value,
                             const CZqVariant& index) const override;
  CZqVariant GetValue(const OdDbObject* object, const CZqVariant& index) const override;
  int SetValue(const OdDbObject* object, const CZqVariant& value, const CZqVariant& index) const override;
  bool IsReadOnly(const OdDbObject* object) const override;
  unsigned GetVisibility() const override { return m_visibility; }
  void SetName(const CZqString& name) override { m_name = name; }
  void SetCategory(const CZqString& category) override { m_category = category; }
  void SetDescription(const CZqString& text) override { m_description = text; }
  void SetType(const CZqCustomPropertyType& type) override { m_type = type; }
  void SetIcon(const CZqString& path) override { m_icon = path; }
  void SetDarkIcon(const CZqString& path) override { m_darkIcon = path; }
  void SetLightIcon(const CZqString& path) override { m_lightIcon = path; }
  void SetIsDynamic(bool dynamic) override { m_dynamic = dynamic; }
  void PutGetMethod(ZqGetMethod method) override { m_get = method; }
  void PutSetMethod(ZqSetMethod method) override { m_set = method; }
  void PutIsReadOnlyMethod(ZqIsReadOnlyMethod method) override { m_readOnly = method; }
  void PutGroupActionMethod(ZqGroupActionMethod method) override { m_groupAction = method; }
  ZqIsReadOnlyMethod GetIsReadOnlyMethod() const override { return m_readOnly; }
  ZqGetMethod GetGetMethod() const override { return m_get; }
  ZqSetMethod GetSetMethod() const override { return m_set; }
  ZqGroupActionMethod GetGroupActionMethod() const override { return m_groupAction; }
  // A description for a provider's static list: it lives as long as the
  // process, whether or not the module that asked for it stays loaded.
  static CZqCustomPropertyDescription* CreateStatic();
  // Two descriptions are equal when they describe the same row: category,
  // name and editor type.
  bool operator==(const CZqPropertyDescription& other) const override;
  void SetVisibility(unsigned visibility) override { m_visibility = visibility; }
  CZqString GetCategoryKey() const override { return m_hasKeys ? m_categoryKey : m_category; }
  CZqString GetNameKey() const override { return m_hasKeys ? m_nameKey : m_name; }
  void SetKeys(const CZqString& category, const CZqString& name) override {
    m_categoryKey = category, m_nameKey = name, m_hasKeys = true;
  }
  CZqString GetRefusalText() const override { return m_refusal; }
  void SetRefusalText(const CZqString& text) override { m_refusal = text; }
  const void* GetRowData() const override { return m_rowData; }
  void SetRowData(const void* data) override { m_rowData = data; }

 private:
  CZqString m_name, m_category, m_description, m_icon, m_darkIcon, m_lightIcon;
  CZqString m_categoryKey, m_nameKey, m_refusal;
  bool m_hasKeys = false;
  const void* m_rowData = nullptr;
  CZqCustomPropertyType m_type;
  bool m_dynamic = false;
  unsigned m_visibility = kZqVisDefault;
  ZqGetMethod m_get = nullptr;
  ZqSetMethod m_set = nullptr;
  ZqIsReadOnlyMethod m_readOnly = nullptr;
  ZqGroupActionMethod m_groupAction = nullptr;
};

// The rows a provider hands to the palette, in order. Rows of a static list
// are shared and not owned; dynamic rows are owned by the container.
class ZQKERNEL_API CZqPropertiesContainer {
 public:
  virtual ~CZqPropertiesContainer();
  virtual void Add(CZqPropertyDescription* description) = 0;
  virtual void Add(const OdArray<CZqPropertyDescription*>& list) = 0;
  virtual void AddDynamic(CZqPropertyDescription* description) = 0;
  // The first row with this name, optionally in one category: the
  // untranslated key or the displayed (translated) text.
  virtual CZqPropertyDescription* GetByName(const CZqString& name, const CZqString& category = CZqString()) const = 0;
  virtual int GetCount() const = 0;
  virtual CZqPropertyDescription* GetAt(int index) const = 0;
};

class ZQKERNEL_API CZqCustomPropertyContainer : public CZqPropertiesContainer {
 public:
  CZqCustomPropertyContainer();
  ~CZqCustomPropertyContainer() override;
  void Add(CZqPropertyDescription* description) override;
  void Add(const OdArray<CZqPropertyDescription*>& list) override;
  void AddDynamic(CZqPropertyDescription* description) override;
  CZqPropertyDescription* GetByName(const CZqString& name, const CZqString& category = CZqString()) const override;
  int GetCount() const override { return int(m_rows.size()); }
  CZqPropertyDescription* GetAt(int index) const override { return m_rows.at(size_t(index)); }

 private:
  std::vector<CZqPropertyDescription*> m_rows;
  std::vector<std::unique_ptr<CZqPropertyDescription>> m_owned;
};
