#include "DbObject.h"
#include "DbDatabase.h"

OdDbObject::OdDbObject() = default;
OdDbObject::~OdDbObject() = default;

void OdDbObject::release() {
  // The database holds one reference to each of its objects; when every
  // other reference (the ones handed out by opens) is gone, the object is
  // closed.
  const long left = numRefs() - 1;
  if (left == 1 && isDBRO()) m_openMode = OdDb::kNotOpen;
  OdRxObject::release();
}

OdDb::OpenMode OdDbObject::openMode() const { return isDBRO() ? m_openMode : OdDb::kForWrite; }

bool OdDbObject::isReadEnabled() const { return openMode() != OdDb::kNotOpen; }
bool OdDbObject::isWriteEnabled() const { return openMode() == OdDb::kForWrite; }

void OdDbObject::assertReadEnabled() const {
  if (!isReadEnabled()) throw OdError(eNotOpenForRead, isA() ? isA()->name() : OdString());
}

void OdDbObject::assertWriteEnabled() {
  if (!isWriteEnabled()) throw OdError(eNotOpenForWrite, isA() ? isA()->name() : OdString());
  m_modified = true;
}

void OdDbObject::upgradeOpen() {
  if (!isReadEnabled()) throw OdError(eNotOpenForRead);
  m_openMode = OdDb::kForWrite;
}

void OdDbObject::downgradeOpen() {
  if (!isReadEnabled()) throw OdError(eNotOpenForRead);
  m_openMode = OdDb::kForRead;
}

void OdDbObject::erase(bool erasing) {
  assertWriteEnabled();
  m_erased = erasing;
}

OdResBufPtr OdDbObject::xData(const OdString& regappName) const {
  assertReadEnabled();
  if (regappName.isEmpty()) {
    OdResBufPtr head, tail;
    for (const OdResBufPtr& chain : m_xdata) {
      OdResBufPtr copy = chain->copyChain();
      if (!head) head = copy; else tail->setNext(copy.get());
      tail = copy->last();
    }
    return head;
  }
  for (const OdResBufPtr& chain : m_xdata)
    if (chain->getString().iCompare(regappName) == 0) return chain->copyChain();
  return {};
}

const OdResBuf* OdDbObject::xDataChain(const OdString& regappName) const {
  assertReadEnabled();
  for (const OdResBufPtr& chain : m_xdata)
    if (chain->getString().iCompare(regappName) == 0) return chain.get();
  return nullptr;
}

OdArray<OdString> OdDbObject::xDataApps() const {
  OdArray<OdString> out;
  for (const OdResBufPtr& chain : m_xdata) out.append(chain->getString());
  return out;
}

void OdDbObject::setXData(const OdResBuf* xdata) {
  assertWriteEnabled();
  // A chain may hold several applications, each starting with its 1001 item.
  for (const OdResBuf* p = xdata; p;) {
    if (p->restype() != OdResBuf::kDxfRegAppName) throw OdError(eInvalidInput, OdString("extended data must start with an application name"));
    const OdString app = p->getString();
    OdResBufPtr chain = OdResBuf::newRb(OdResBuf::kDxfRegAppName, app);
    OdResBuf* tail = chain.get();
    p = p->next();
    for (; p && p->restype() != OdResBuf::kDxfRegAppName; p = p->next()) tail = tail->setNext(p->copyItem().get());
    auto it = std::find_if(m_xdata.begin(), m_xdata.end(),
                           [&](const OdResBufPtr& c) { return c->getString().iCompare(app) == 0; });
    const bool remove = chain->next() == nullptr;
    if (it != m_xdata.end()) {
      if (remove) m_xdata.erase(it); else *it = chain;
    } else if (!remove) {
      m_xdata.push_back(chain);
    }
  }
}

void OdDbObject::copyFrom(const OdRxObject* source) {
  if (!source || !source->isKindOf(isA())) throw OdError_NotThatKindOfClass(source ? source->isA() : nullptr, isA());
  assertWriteEnabled();
}
