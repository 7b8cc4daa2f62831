#include "OdRxClass.h"
#include "OdResult.h"
#include <algorithm>
#include <map>
#include <memory>

namespace {

struct RxSystem {
  // Case-sensitive, ordered by name so that listings are stable.
  std::map<QString, OdRxClass*> dictionary;
  std::vector<OdRxSystemObserver*> observers;
};

RxSystem& rxSystem() {
  static RxSystem system;
  return system;
}

template <class F>
void notify(F&& f) {
  // Copy: an observer may remove itself while being notified.
  auto observers = rxSystem().observers;
  for (OdRxSystemObserver* obs : observers) f(obs);
}

OdRxClass* rootClass(const char16_t* name, OdRxClass* parent) {
  auto* cls = new OdStaticRxObject<OdRxClass>(OdString(QString::fromUtf16(name)), parent, nullptr,
                                               OdString(), OdString());
  rxSystem().dictionary[cls->name().qstring()] = cls;
  return cls;
}

}  // namespace

OdRxObject::~OdRxObject() = default;

OdRxClass* OdRxObject::desc() {
  static OdRxClass* cls = rootClass(u"OdRxObject", nullptr);
  return cls;
}
OdRxClass* OdRxObject::isA() const { return OdRxObject::desc(); }

bool OdRxObject::isKindOf(const OdRxClass* cls) const {
  const OdRxClass* mine = isA();
  return cls && mine && mine->isDerivedFrom(cls);
}

OdRxObjectPtr OdRxObject::queryX(const OdRxClass* protocolClass) const {
  if (!protocolClass) return {};
  if (isKindOf(protocolClass)) return OdRxObjectPtr(const_cast<OdRxObject*>(this));
  for (const OdRxClass* cls = isA(); cls; cls = cls->myParent()) {
    OdRxObjectPtr ext = cls->getX(protocolClass);
    if (ext) return ext;
  }
  return {};
}

OdRxObjectPtr OdRxObject::x(const OdRxClass* protocolClass) const {
  OdRxObjectPtr ext = queryX(protocolClass);
  if (!ext) throw OdError_NotThatKindOfClass(isA(), protocolClass);
  return ext;
}

OdRxClass* OdRxClass::desc() {
  static OdRxClass* cls = rootClass(u"OdRxClass", OdRxObject::desc());
  return cls;
}
OdRxClass* OdRxClass::isA() const { return OdRxClass::desc(); }

OdRxClass::OdRxClass(OdString name, OdRxClass* parent, OdPseudoConstructorType ctor,
                     OdString dxfName, OdString appName)
    : m_name(std::move(name)),
      m_parent(parent),
      m_ctor(ctor),
      m_dxfName(std::move(dxfName)),
      m_appName(std::move(appName)) {}

OdRxClass::~OdRxClass() = default;

bool OdRxClass::isDerivedFrom(const OdRxClass* other) const {
  if (!other) return false;
  for (const OdRxClass* cls = this; cls; cls = cls->m_parent.get())
    if (cls == other) return true;
  return false;
}

OdRxObjectPtr OdRxClass::create() const { return m_ctor ? m_ctor() : OdRxObjectPtr(); }

OdRxObjectPtr OdRxClass::addX(OdRxClass* protocolClass, OdRxObject* pProtocolObject) {
  if (!protocolClass) throw OdError(eNullPtr, OdString("addX without a protocol class"));
  OdRxObjectPtr previous;
  auto it = std::find_if(m_extensions.begin(), m_extensions.end(),
                         [&](const auto& e) { return e.first == protocolClass; });
  if (it != m_extensions.end()) {
    previous = it->second;
    if (pProtocolObject)
      it->second = pProtocolObject;
    else
      m_extensions.erase(it);
  } else if (pProtocolObject) {
    m_extensions.emplace_back(protocolClass, OdRxObjectPtr(pProtocolObject));
  }
  notify([&](OdRxSystemObserver* o) {
    o->extensionAdded(this, protocolClass, pProtocolObject, previous.get());
  });
  return previous;
}

OdRxObjectPtr OdRxClass::getX(const OdRxClass* protocolClass) const {
  for (const auto& e : m_extensions)
    if (e.first == protocolClass) return e.second;
  return {};
}

OdRxObjectPtr OdRxClass::delX(OdRxClass* protocolClass) {
  OdRxObjectPtr removed;
  auto it = std::find_if(m_extensions.begin(), m_extensions.end(),
                         [&](const auto& e) { return e.first == protocolClass; });
  if (it != m_extensions.end()) {
    removed = it->second;
    m_extensions.erase(it);
  }
  notify([&](OdRxSystemObserver* o) { o->extensionRemoved(this, protocolClass, removed.get()); });
  return removed;
}

OdRxClass* newOdRxClass(const OdString& className, OdRxClass* pParentClass,
                        OdPseudoConstructorType pConstr, int, int, int, const OdString& dxfName,
                        const OdString& appName) {
  OdRxObject::desc();  // the roots are always in the dictionary
  OdRxClass::desc();
  auto& dict = rxSystem().dictionary;
  if (dict.count(className.qstring()))
    throw OdError(eClassAlreadyRegistered, className);
  auto* cls = new OdRxClass(className, pParentClass ? pParentClass : OdRxObject::desc(), pConstr,
                            dxfName, appName);
  cls->addRef();  // held by the dictionary
  dict[className.qstring()] = cls;
  notify([&](OdRxSystemObserver* o) { o->classAdded(cls); });
  return cls;
}

void deleteOdRxClass(OdRxClass* pClass) {
  auto& dict = rxSystem().dictionary;
  auto it = pClass ? dict.find(pClass->name().qstring()) : dict.end();
  if (it == dict.end() || it->second != pClass)
    throw OdError(eClassNotRegistered, pClass ? pClass->name() : OdString("(null)"));
  notify([&](OdRxSystemObserver* o) { o->classRemoved(pClass); });
  dict.erase(it);
  pClass->release();
}

OdRxClass* OdRxClassDictionary::getAt(const OdString& name) const {
  OdRxObject::desc();
  OdRxClass::desc();
  auto& dict = rxSystem().dictionary;
  auto it = dict.find(name.qstring());
  return it == dict.end() ? nullptr : it->second;
}

OdArray<OdRxClass*> OdRxClassDictionary::classes() const {
  OdArray<OdRxClass*> out;
  for (auto& [name, cls] : rxSystem().dictionary) out.append(cls);
  return out;
}

OdRxClassDictionary& odrxClassDictionary() {
  static OdRxClassDictionary dict;
  return dict;
}

OdRxSystemObserver::~OdRxSystemObserver() = default;

void odrxAddSystemObserver(OdRxSystemObserver* obs) {
  auto& v = rxSystem().observers;
  if (obs && std::find(v.begin(), v.end(), obs) == v.end()) v.push_back(obs);
}

void odrxRemoveSystemObserver(OdRxSystemObserver* obs) {
  auto& v = rxSystem().observers;
  v.erase(std::remove(v.begin(), v.end(), obs), v.end());
}

namespace OdRxDetail {
void notifyCommandAdded(const OdEdCommand* cmd) {
  notify([&](OdRxSystemObserver* o) { o->commandAdded(cmd); });
}
void notifyCommandRemoved(const OdEdCommand* cmd) {
  notify([&](OdRxSystemObserver* o) { o->commandRemoved(cmd); });
}
}  // namespace OdRxDetail

OdString odResultName(OdResult res) {
  switch (res) {
    case eOk: return "eOk";
    case eNotImplementedYet: return "eNotImplementedYet";
    case eNotApplicable: return "eNotApplicable";
    case eInvalidInput: return "eInvalidInput";
    case eOutOfMemory: return "eOutOfMemory";
    case eInvalidIndex: return "eInvalidIndex";
    case eKeyNotFound: return "eKeyNotFound";
    case eDuplicateKey: return "eDuplicateKey";
    case eNullObjectId: return "eNullObjectId";
    case eWrongDatabase: return "eWrongDatabase";
    case eNotOpenForRead: return "eNotOpenForRead";
    case eNotOpenForWrite: return "eNotOpenForWrite";
    case eNotThatKindOfClass: return "eNotThatKindOfClass";
    case eWasErased: return "eWasErased";
    case eInvalidOpenState: return "eInvalidOpenState";
    case eFileNotFound: return "eFileNotFound";
    case eFileAccessErr: return "eFileAccessErr";
    case eBadDxfFile: return "eBadDxfFile";
    case eIncompatibleVersion: return "eIncompatibleVersion";
    case eNullPtr: return "eNullPtr";
    case eNotInDatabase: return "eNotInDatabase";
    case eDuplicateRecordName: return "eDuplicateRecordName";
    case eAlreadyInDb: return "eAlreadyInDb";
    case eInvalidSymbolTableName: return "eInvalidSymbolTableName";
    case eModuleNotFound: return "eModuleNotFound";
    case eInvalidModule: return "eInvalidModule";
    case eCommandAlreadyExists: return "eCommandAlreadyExists";
    case eCommandNotFound: return "eCommandNotFound";
    case eClassNotRegistered: return "eClassNotRegistered";
    case eClassAlreadyRegistered: return "eClassAlreadyRegistered";
  }
  return OdString(QString("OdResult %1").arg(int(res)));
}

OdError::~OdError() = default;
OdError_NotThatKindOfClass::~OdError_NotThatKindOfClass() = default;
OdError_InvalidIndex::~OdError_InvalidIndex() = default;

OdString OdError::description() const {
  OdString text = odResultName(m_code);
  if (!m_detail.isEmpty()) text += OdString(": ") + m_detail;
  return text;
}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass(const OdRxClass* actual,
                                                       const OdRxClass* wanted)
    : OdError(eNotThatKindOfClass,
              OdString((actual ? actual->name().qstring() : QString("(null)")) + " is not a " +
                       (wanted ? wanted->name().qstring() : QString("(null)")))) {}
