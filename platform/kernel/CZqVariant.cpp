#include "CZqVariant.h"

CZqVariant::CZqVariant(double value, bool bUnits) : m_type(kVtDouble), m_units(bUnits), m_value(value) {}
CZqVariant::CZqVariant(const CZqString& value) : m_type(kVtString), m_value(value) {}
CZqVariant::CZqVariant(int32_t value) : m_type(kVtInt32), m_value(value) {}
CZqVariant::CZqVariant(const OdCmColor& value) : m_type(kVtColor), m_value(value) {}
CZqVariant::CZqVariant(const CZqVariantCollection& value)
    : m_type(kVtCollection), m_value(std::make_shared<const CZqVariantCollection>(value)) {}
CZqVariant::CZqVariant(std::shared_ptr<const CZqVariantCollection> value)
    : m_type(value ? kVtCollection : kVtEmpty) {
  if (value) m_value = std::move(value);
}
CZqVariant::CZqVariant(const CZqVariantCollectionElement& value)
    : m_type(kVtCollectionElement), m_value(std::make_shared<const CZqVariantCollectionElement>(value)) {}
CZqVariant::CZqVariant(const OdDbObjectId& value) : m_type(kVtId), m_value(value) {}

double CZqVariant::GetDouble() const {
  if (auto* d = std::get_if<double>(&m_value)) return *d;
  return 0.0;
}

CZqString CZqVariant::GetString() const {
  if (auto* s = std::get_if<CZqString>(&m_value)) return *s;
  return {};
}

int32_t CZqVariant::GetInt32() const {
  if (auto* i = std::get_if<int32_t>(&m_value)) return *i;
  return 0;
}

OdCmColor CZqVariant::GetColor() const {
  if (auto* c = std::get_if<OdCmColor>(&m_value)) return *c;
  return {};
}

std::shared_ptr<const CZqVariantCollection> CZqVariant::GetSharedCollection() const {
  if (auto* c = std::get_if<std::shared_ptr<const CZqVariantCollection>>(&m_value)) return *c;
  return nullptr;
}

const CZqVariantCollection& CZqVariant::GetCollection() const {
  static const CZqVariantCollection empty;
  if (auto* c = std::get_if<std::shared_ptr<const CZqVariantCollection>>(&m_value)) return **c;
  return empty;
}

const CZqVariantCollectionElement& CZqVariant::GetCollectionElement() const {
  static const CZqVariantCollectionElement empty;
  if (auto* e = std::get_if<std::shared_ptr<const CZqVariantCollectionElement>>(&m_value)) return **e;
  return empty;
}

OdDbObjectId CZqVariant::GetId() const {
  if (auto* id = std::get_if<OdDbObjectId>(&m_value)) return *id;
  return {};
}

bool operator==(const CZqVariant& a, const CZqVariant& b) {
  if (a.m_type != b.m_type) return false;
  switch (a.m_type) {
    case CZqVariant::kVtEmpty: return true;
    case CZqVariant::kVtCollection: return a.GetCollection() == b.GetCollection();
    case CZqVariant::kVtCollectionElement: return a.GetCollectionElement() == b.GetCollectionElement();
    default: return a.m_value == b.m_value;
  }
}

int CZqVariantCollection::FindTag(int32_t tag) const {
  for (int i = 0; i < GetCount(); ++i) {
    const CZqVariant& t = m_elements[size_t(i)].GetTag();
    if (t.GetType() == CZqVariant::kVtInt32 && t.GetInt32() == tag) return i;
  }
  return -1;
}
