#pragma once
// Class descriptors, the class dictionary and protocol extensions.
#include "OdRxObject.h"
#include "OdString.h"
#include "OdArray.h"
#include <vector>
#include <utility>

using OdPseudoConstructorType = OdRxObjectPtr (*)();

class RX_API OdRxClass : public OdRxObject {
 public:
  static OdRxClass* desc();
  OdRxClass* isA() const override;

  const OdString& name() const { return m_name; }
  OdRxClass* myParent() const { return m_parent.get(); }
  const OdString& dxfName() const { return m_dxfName; }
  const OdString& appName() const { return m_appName; }
  // True when this class is other or derives from it.
  bool isDerivedFrom(const OdRxClass* other) const;

  // Instance of the class through its pseudo-constructor; null for classes
  // that have none (abstract or protocol classes).
  OdRxObjectPtr create() const;
  OdPseudoConstructorType constructor() const { return m_ctor; }

  // Protocol extensions, keyed by the exact protocol class. addX returns the
  // extension that was attached before (null if none); delX the one removed.
  OdRxObjectPtr addX(OdRxClass* protocolClass, OdRxObject* pProtocolObject);
  OdRxObjectPtr getX(const OdRxClass* protocolClass) const;
  OdRxObjectPtr delX(OdRxClass* protocolClass);

  // Constructed by newOdRxClass only; deleted by deleteOdRxClass.
  OdRxClass(OdString name, OdRxClass* parent, OdPseudoConstructorType ctor, OdString dxfName,
            OdString appName);
  ~OdRxClass() override;

 private:
  OdString m_name;
  // A class keeps its parent alive: a module may remove a parent's
  // descriptor from the dictionary before the descriptors derived from it.
  OdSmartPtr<OdRxClass> m_parent;
  OdPseudoConstructorType m_ctor;
  OdString m_dxfName;
  OdString m_appName;
  std::vector<std::pair<const OdRxClass*, OdRxObjectPtr>> m_extensions;
};
using OdRxClassPtr = OdSmartPtr<OdRxClass>;

// Creates a class descriptor and enters it in the class dictionary. A name
// that is already registered raises OdError(eClassAlreadyRegistered).
RX_API OdRxClass* newOdRxClass(const OdString& className, OdRxClass* pParentClass,
                               OdPseudoConstructorType pConstr = nullptr, int dwgVer = 0,
                               int maintVer = 0, int proxyFlags = 0,
                               const OdString& dxfName = OdString(),
                               const OdString& appName = OdString());
// Removes a class descriptor from the dictionary and destroys it. A class
// that is not in the dictionary raises OdError(eClassNotRegistered).
RX_API void deleteOdRxClass(OdRxClass* pClass);

// The class dictionary: every registered class by name.
class RX_API OdRxClassDictionary {
 public:
  OdRxClass* getAt(const OdString& name) const;
  bool has(const OdString& name) const { return getAt(name) != nullptr; }
  OdArray<OdRxClass*> classes() const;
};
RX_API OdRxClassDictionary& odrxClassDictionary();

// Observer of the run-time system, for hosts and tests that need to see the
// order in which a module sets itself up and takes itself down.
class OdEdCommand;
class RX_API OdRxSystemObserver {
 public:
  virtual ~OdRxSystemObserver();
  virtual void classAdded(const OdRxClass*) {}
  virtual void classRemoved(const OdRxClass*) {}
  // previous: the extension replaced (null if none).
  virtual void extensionAdded(const OdRxClass* /*cls*/, const OdRxClass* /*protocol*/,
                              const OdRxObject* /*ext*/, const OdRxObject* /*previous*/) {}
  // removed: the extension taken off (null when the class had none).
  virtual void extensionRemoved(const OdRxClass* /*cls*/, const OdRxClass* /*protocol*/,
                                const OdRxObject* /*removed*/) {}
  virtual void commandAdded(const OdEdCommand*) {}
  virtual void commandRemoved(const OdEdCommand*) {}
};
RX_API void odrxAddSystemObserver(OdRxSystemObserver* obs);
RX_API void odrxRemoveSystemObserver(OdRxSystemObserver* obs);

namespace OdRxDetail {
RX_API void notifyCommandAdded(const OdEdCommand* cmd);
RX_API void notifyCommandRemoved(const OdEdCommand* cmd);
}  // namespace OdRxDetail

// Defines desc/isA/rxInit/rxUninit for a class whose descriptor is created at
// run time. rxInit raises eClassAlreadyRegistered when the descriptor is set;
// rxUninit raises eClassNotRegistered when it is not.
#define ODRX_DEFINE_MEMBERS_EX(ClassName, ParentName, Ctor, DxfName, AppName) \
  static OdRxClass* g_p##ClassName##Desc = nullptr;                          \
  OdRxClass* ClassName::desc() { return g_p##ClassName##Desc; }              \
  OdRxClass* ClassName::isA() const { return g_p##ClassName##Desc; }         \
  void ClassName::rxInit() {                                                 \
    if (g_p##ClassName##Desc) throw OdError(eClassAlreadyRegistered, OdString(#ClassName)); \
    g_p##ClassName##Desc = ::newOdRxClass(OdString(L## #ClassName), ParentName::desc(), Ctor, \
                                          0, 0, 0, DxfName, AppName);        \
  }                                                                          \
  void ClassName::rxUninit() {                                               \
    if (!g_p##ClassName##Desc) throw OdError(eClassNotRegistered, OdString(#ClassName)); \
    ::deleteOdRxClass(g_p##ClassName##Desc);                                 \
    g_p##ClassName##Desc = nullptr;                                          \
  }

#define ODRX_DEFINE_MEMBERS(ClassName, ParentName) \
  ODRX_DEFINE_MEMBERS_EX(ClassName, ParentName, nullptr, OdString(), OdString())

// Defines the class-identity members of a platform class. Its descriptor is
// created and entered in the class dictionary on first use (parents first)
// and lives as long as the process.
#define ODRX_DEFINE_PLATFORM_MEMBERS(ClassName, ParentName, Ctor, DxfName)      \
  OdRxClass* ClassName::desc() {                                               \
    static OdRxClass* s_pDesc = ::newOdRxClass(OdString(L## #ClassName), ParentName::desc(), \
                                               Ctor, 0, 0, 0, OdString(DxfName), OdString()); \
    return s_pDesc;                                                            \
  }                                                                            \
  OdRxClass* ClassName::isA() const { return ClassName::desc(); }              \
  void ClassName::rxInit() { ClassName::desc(); }                              \
  void ClassName::rxUninit() {}

// Pseudo-constructor for a concrete class.
#define ODRX_DEFINE_PSEUDO_CONSTRUCTOR(ClassName) \
  static OdRxObjectPtr ClassName##_pseudoConstructor() { return OdRxObjectPtr(new ClassName()); }
