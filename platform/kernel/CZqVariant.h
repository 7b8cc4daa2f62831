#pragma once
// The tagged value that travels between the palette and the property
// callbacks: a double, a string, an integer, a colour, an enumeration (a
// collection of choices or one chosen element) or an object id.
#include "KernelExport.h"
#include "CZqString.h"
#include "OdCmColor.h"
#include "OdDbObjectId.h"
#include <memory>
#include <variant>
#include <vector>

class CZqVariantCollection;
class CZqVariantCollectionElement;

class ZQKERNEL_API CZqVariant {
 public:
  // Kind numbers as the palette knows them.
  enum _Type {
    kVtEmpty = 0,              // no value (the editor follows the row's identifier)
    kVtDouble = 2,
    kVtString = 3,
    kVtInt32 = 4,
    kVtColor = 5,
    kVtCollection = 6,
    kVtCollectionElement = 7,
    kVtId = 8,
  };

  CZqVariant() = default;
  // bUnits: the number is a length or coordinate that the palette shows in
  // the drawing's linear units; false shows the plain number.
  CZqVariant(double value, bool bUnits);
  explicit CZqVariant(const CZqString& value);
  explicit CZqVariant(const QString& value) : CZqVariant(CZqString(value)) {}
  explicit CZqVariant(const char* value) : CZqVariant(CZqString(value)) {}
  explicit CZqVariant(int32_t value);
  explicit CZqVariant(const OdCmColor& value);
  explicit CZqVariant(const CZqVariantCollection& value);
  // A collection shared with other values (an enumeration made once).
  explicit CZqVariant(std::shared_ptr<const CZqVariantCollection> value);
  explicit CZqVariant(const CZqVariantCollectionElement& value);
  explicit CZqVariant(const OdDbObjectId& value);

  _Type GetType() const { return m_type; }
  bool IsEmpty() const { return m_type == kVtEmpty; }
  // Whether a double is shown in linear units (the constructor's flag).
  bool IsUnits() const { return m_units; }

  // Accessors return a neutral value (0, empty) when the kind differs;
  // callers check GetType first.
  double GetDouble() const;
  CZqString GetString() const;
  int32_t GetInt32() const;
  OdCmColor GetColor() const;
  const CZqVariantCollection& GetCollection() const;
  // The collection as it is shared (null when the value is no collection):
  // holding it keeps its address, so a cache may key on it.
  std::shared_ptr<const CZqVariantCollection> GetSharedCollection() const;
  const CZqVariantCollectionElement& GetCollectionElement() const;
  OdDbObjectId GetId() const;

  void SetDouble(double v, bool bUnits = true) { *this = CZqVariant(v, bUnits); }
  void SetString(const CZqString& v) { *this = CZqVariant(v); }
  void SetInt32(int32_t v) { *this = CZqVariant(v); }

  // Same kind and same value (collections: same choices and current choice).
  friend ZQKERNEL_API bool operator==(const CZqVariant& a, const CZqVariant& b);
  friend bool operator!=(const CZqVariant& a, const CZqVariant& b) { return !(a == b); }

 private:
  _Type m_type = kVtEmpty;
  bool m_units = false;
  std::variant<std::monostate, double, CZqString, int32_t, OdCmColor,
               std::shared_ptr<const CZqVariantCollection>, std::shared_ptr<const CZqVariantCollectionElement>,
               OdDbObjectId>
      m_value;
};

// One choice of an enumeration: the value is the (translated) word shown,
// the tag the number stored.
class ZQKERNEL_API CZqVariantCollectionElement {
 public:
  CZqVariantCollectionElement() = default;
  CZqVariantCollectionElement(const CZqVariant& value, const CZqVariant& tag) : m_value(value), m_tag(tag) {}
  void SetValue(const CZqVariant& v) { m_value = v; }
  void SetTag(const CZqVariant& t) { m_tag = t; }
  const CZqVariant& GetValue() const { return m_value; }
  const CZqVariant& GetTag() const { return m_tag; }
  friend bool operator==(const CZqVariantCollectionElement& a, const CZqVariantCollectionElement& b) {
    return a.m_value == b.m_value && a.m_tag == b.m_tag;
  }

 private:
  CZqVariant m_value, m_tag;
};

// The choices of an enumeration in list order, with the current one marked.
class ZQKERNEL_API CZqVariantCollection {
 public:
  void Add(const CZqVariantCollectionElement& e) { m_elements.push_back(e); }
  int GetCount() const { return int(m_elements.size()); }
  const CZqVariantCollectionElement& GetAt(int i) const { return m_elements.at(size_t(i)); }
  // Index of the current choice, -1 for none.
  int GetCurrent() const { return m_current; }
  void SetCurrent(int i) { m_current = (i >= 0 && i < GetCount()) ? i : -1; }
  // The element whose tag is this integer, or -1.
  int FindTag(int32_t tag) const;
  friend bool operator==(const CZqVariantCollection& a, const CZqVariantCollection& b) {
    return a.m_current == b.m_current && a.m_elements == b.m_elements;
  }

 private:
  std::vector<CZqVariantCollectionElement> m_elements;
  int m_current = -1;
};
