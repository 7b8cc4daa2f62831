#include "CZqPropertyDescription.h"

CZqPropertyDescription::~CZqPropertyDescription() = default;
CZqCustomPropertyDescription::CZqCustomPropertyDescription() = default;
CZqCustomPropertyDescription::~CZqCustomPropertyDescription() = default;

CZqCustomPropertyDescription* CZqCustomPropertyDescription::CreateStatic() {
  static std::vector<std::unique_ptr<CZqCustomPropertyDescription>> pool;
  pool.push_back(std::make_unique<CZqCustomPropertyDescription>());
  return pool.back().get();
}

CZqVariant CZqCustomPropertyDescription::DoGroupedAction(const OdArray<OdDbObjectId>& objects,
                                                         const CZqVariant& value, const CZqVariant& index) const {
  return m_groupAction ? m_groupAction(objects, *this, value, index) : CZqVariant();
}

CZqVariant CZqCustomPropertyDescription::GetValue(const OdDbObject* object, const CZqVariant& index) const {
  return m_get ? m_get(object, *this, index) : CZqVariant();
}

int CZqCustomPropertyDescription::SetValue(const OdDbObject* object, const CZqVariant& value,
                                           const CZqVariant& index) const {
  return m_set ? m_set(object, *this, value, index) : kZqSetRefused;
}

bool CZqCustomPropertyDescription::IsReadOnly(const OdDbObject* object) const {
  if (m_readOnly) return m_readOnly(object, *this);
  return m_set == nullptr;
}

bool CZqCustomPropertyDescription::operator==(const CZqPropertyDescription& other) const {
  return m_name == other.GetName() && m_category == other.GetCategory() && m_type == other.GetType();
}

CZqPropertiesContainer::~CZqPropertiesContainer() = default;
CZqCustomPropertyContainer::CZqCustomPropertyContainer() = default;
CZqCustomPropertyContainer::~CZqCustomPropertyContainer() = default;

void CZqCustomPropertyContainer::Add(CZqPropertyDescription* description) {
  if (description) m_rows.push_back(description);
}

void CZqCustomPropertyContainer::Add(const OdArray<CZqPropertyDescription*>& list) {
  for (CZqPropertyDescription* d : list) Add(d);
}

void CZqCustomPropertyContainer::AddDynamic(CZqPropertyDescription* description) {
  if (!description) return;
  m_owned.emplace_back(description);
  m_rows.push_back(description);
}

CZqPropertyDescription* CZqCustomPropertyContainer::GetByName(const CZqString& name, const CZqString& category) const {
  // Keys first: a translated text may happen to equal another row's key.
  for (CZqPropertyDescription* d : m_rows)
    if (d->GetNameKey() == name && (category.isEmpty() || d->GetCategoryKey() == category)) return d;
  for (CZqPropertyDescription* d : m_rows)
    if (d->GetName() == name && (category.isEmpty() || d->GetCategory() == category)) return d;
  return nullptr;
}
