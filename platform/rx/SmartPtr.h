#pragma once
// Intrusive smart pointer over the reference count of OdRxObject. Assigning an
// object of another class through OdSmartPtr<T>(ptr) checks the class with
// isKindOf and throws OdError_NotThatKindOfClass when it does not fit.
#include <utility>
#include <cstddef>
#include <type_traits>

enum OdRxObjMod { kOdRxObjAttach };

template <class T>
class OdSmartPtr {
 public:
  OdSmartPtr() = default;
  OdSmartPtr(std::nullptr_t) {}
  OdSmartPtr(T* p) : m_p(p) { if (m_p) m_p->addRef(); }
  OdSmartPtr(T* p, OdRxObjMod) : m_p(p) {}
  OdSmartPtr(const OdSmartPtr& o) : m_p(o.m_p) { if (m_p) m_p->addRef(); }
  OdSmartPtr(OdSmartPtr&& o) noexcept : m_p(std::exchange(o.m_p, nullptr)) {}
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  OdSmartPtr(const OdSmartPtr<U>& o) : m_p(o.get()) { if (m_p) m_p->addRef(); }
  ~OdSmartPtr() { release(); }

  OdSmartPtr& operator=(const OdSmartPtr& o) { OdSmartPtr(o).swap(*this); return *this; }
  OdSmartPtr& operator=(OdSmartPtr&& o) noexcept { OdSmartPtr(std::move(o)).swap(*this); return *this; }
  OdSmartPtr& operator=(T* p) { OdSmartPtr(p).swap(*this); return *this; }
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  OdSmartPtr& operator=(const OdSmartPtr<U>& o) { OdSmartPtr(o).swap(*this); return *this; }
  OdSmartPtr& operator=(std::nullptr_t) { release(); return *this; }

  void release() { if (m_p) { T* p = std::exchange(m_p, nullptr); p->release(); } }
  T* detach() { return std::exchange(m_p, nullptr); }
  void swap(OdSmartPtr& o) noexcept { std::swap(m_p, o.m_p); }

  T* get() const { return m_p; }
  T* operator->() const { return m_p; }
  T& operator*() const { return *m_p; }
  bool isNull() const { return m_p == nullptr; }
  explicit operator bool() const { return m_p != nullptr; }
  operator T*() const { return m_p; }

 private:
  T* m_p = nullptr;
};
