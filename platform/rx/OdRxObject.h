#pragma once
// Root of the run-time class system: reference counting, class identity and
// protocol extensions.
#include "RxExport.h"
#include "SmartPtr.h"
#include "OdResult.h"

class OdRxClass;
class OdRxObject;
using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

class RX_API OdRxObject {
 public:
  OdRxObject() = default;
  OdRxObject(const OdRxObject&) = delete;
  OdRxObject& operator=(const OdRxObject&) = delete;
  virtual ~OdRxObject();

  virtual void addRef() { ++m_nRefCounter; }
  virtual void release() {
    if (--m_nRefCounter == 0) delete this;
  }
  virtual long numRefs() const { return m_nRefCounter; }

  static OdRxClass* desc();
  virtual OdRxClass* isA() const;
  bool isKindOf(const OdRxClass* cls) const;

  // The protocol extension for protocolClass: the object itself when it is of
  // that class, otherwise the extension attached to its class or to the
  // nearest ancestor class that has one. Null when none is found.
  OdRxObjectPtr queryX(const OdRxClass* protocolClass) const;
  // As queryX, but a missing extension throws OdError_NotThatKindOfClass.
  OdRxObjectPtr x(const OdRxClass* protocolClass) const;

  static OdRxObjectPtr cast(const OdRxObject* p) { return OdRxObjectPtr(const_cast<OdRxObject*>(p)); }

 private:
  long m_nRefCounter = 0;
};

// Wraps a class whose instances live inside another object (module members,
// statics): reference counting is switched off and the object is never
// deleted through a smart pointer.
template <class T>
class OdStaticRxObject : public T {
 public:
  using T::T;
  void addRef() override {}
  void release() override {}
  long numRefs() const override { return 1; }
};

// Declares the class-identity members of an OdRxObject-derived class whose
// descriptor is created at run time by rxInit and removed by rxUninit.
#define ODRX_DECLARE_MEMBERS(ClassName)                                       \
 public:                                                                      \
  static OdSmartPtr<ClassName> cast(const OdRxObject* pObj) {                 \
    if (pObj && pObj->isKindOf(ClassName::desc()))                            \
      return OdSmartPtr<ClassName>(                                           \
          static_cast<ClassName*>(const_cast<OdRxObject*>(pObj)));            \
    return OdSmartPtr<ClassName>();                                           \
  }                                                                           \
  static OdRxClass* desc();                                                   \
  OdRxClass* isA() const override;                                            \
  static void rxInit();                                                       \
  static void rxUninit()

// Pointer-free cast used where only a raw pointer is wanted.
template <class T>
T* odrxCast(const OdRxObject* pObj) {
  return (pObj && pObj->isKindOf(T::desc())) ? static_cast<T*>(const_cast<OdRxObject*>(pObj)) : nullptr;
}
