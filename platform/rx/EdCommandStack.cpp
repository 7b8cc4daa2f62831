#include "EdCommandStack.h"

ODRX_DEFINE_PLATFORM_MEMBERS(OdEdCommand, OdRxObject, nullptr, "")

namespace {
bool sameName(const OdString& a, const OdString& b) { return a.iCompare(b) == 0; }
}  // namespace

void OdEdCommandStack::addCommand(OdEdCommand* pCommand) {
  if (!pCommand) throw OdError(eNullPtr, OdString("addCommand without a command"));
  for (const OdEdCommandPtr& c : m_commands) {
    if (c.get() == pCommand ||
        (sameName(c->groupName(), pCommand->groupName()) &&
         (sameName(c->globalName(), pCommand->globalName()) ||
          sameName(c->localName(), pCommand->localName()))))
      throw OdError(eCommandAlreadyExists, pCommand->globalName());
  }
  m_commands.append(OdEdCommandPtr(pCommand));
  OdRxDetail::notifyCommandAdded(pCommand);
}

bool OdEdCommandStack::removeCmd(OdEdCommand* pCommand) {
  for (unsigned i = 0; i < m_commands.length(); ++i) {
    if (m_commands[i].get() == pCommand) {
      OdEdCommandPtr keep = m_commands[i];
      m_commands.removeAt(i);
      OdRxDetail::notifyCommandRemoved(pCommand);
      return true;
    }
  }
  return false;
}

bool OdEdCommandStack::removeCmd(const OdString& groupName, const OdString& globalName) {
  for (const OdEdCommandPtr& c : m_commands)
    if (sameName(c->groupName(), groupName) && sameName(c->globalName(), globalName))
      return removeCmd(c.get());
  return false;
}

OdEdCommand* OdEdCommandStack::lookupGlobalCmd(const OdString& globalName) const {
  for (const OdEdCommandPtr& c : m_commands)
    if (sameName(c->globalName(), globalName)) return c.get();
  return nullptr;
}

OdEdCommand* OdEdCommandStack::lookupLocalCmd(const OdString& localName) const {
  for (const OdEdCommandPtr& c : m_commands)
    if (sameName(c->localName(), localName)) return c.get();
  return nullptr;
}

OdEdCommand* OdEdCommandStack::lookupCmd(const OdString& name) const {
  if (name.qstring().startsWith('_')) {
    if (OdEdCommand* c = lookupGlobalCmd(name)) return c;
    // "_LINE" also finds a command whose global name is "LINE".
    return lookupGlobalCmd(OdString(name.qstring().mid(1)));
  }
  if (OdEdCommand* c = lookupLocalCmd(name)) return c;
  if (OdEdCommand* c = lookupGlobalCmd(name)) return c;
  // Global names carry a leading underscore; "-PROPERTIES" finds
  // "_-PROPERTIES" whatever the local name is in the current language.
  return lookupGlobalCmd(OdString("_" + name.qstring()));
}

OdArray<OdEdCommand*> OdEdCommandStack::commands() const {
  OdArray<OdEdCommand*> out;
  for (const OdEdCommandPtr& c : m_commands) out.append(c.get());
  return out;
}

OdEdCommandStack* odedRegCmds() {
  static OdEdCommandStack stack;
  return &stack;
}

OdEdUserIO::~OdEdUserIO() = default;
OdEdCommandContext::~OdEdCommandContext() = default;
OdEdCancel::~OdEdCancel() = default;
