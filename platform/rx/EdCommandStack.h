#pragma once
// The command stack: commands registered by modules, found by global (English,
// underscore-prefixed) or local (translated) name, and run with a context that
// carries the user's prompts and answers.
#include "OdRxObject.h"
#include "OdRxClass.h"
#include "OdString.h"
#include "OdArray.h"

class OdRxModule;
class OdEdCommandContext;

class RX_API OdEdCommand : public OdRxObject {
 public:
  static OdRxClass* desc();
  OdRxClass* isA() const override;
  static void rxInit();
  static void rxUninit();
  virtual const OdString groupName() const = 0;
  virtual const OdString globalName() const = 0;
  virtual const OdString localName() const { return globalName(); }
  virtual void execute(OdEdCommandContext* pCmdCtx) = 0;
  virtual OdRxModule* module() const { return nullptr; }
  virtual int flags() const { return 0; }
};
using OdEdCommandPtr = OdSmartPtr<OdEdCommand>;

class RX_API OdEdCommandStack {
 public:
  // Adds a command. A command with the same global or local name in the
  // same group raises OdError(eCommandAlreadyExists).
  void addCommand(OdEdCommand* pCommand);
  // Removes this command object; false when it was not registered.
  bool removeCmd(OdEdCommand* pCommand);
  bool removeCmd(const OdString& groupName, const OdString& globalName);
  // Lookups ignore case. A leading underscore asks for the global name only;
  // a name without one is matched against local names first, then global.
  OdEdCommand* lookupGlobalCmd(const OdString& globalName) const;
  OdEdCommand* lookupLocalCmd(const OdString& localName) const;
  OdEdCommand* lookupCmd(const OdString& name) const;
  OdArray<OdEdCommand*> commands() const;

 private:
  OdArray<OdEdCommandPtr> m_commands;
};
RX_API OdEdCommandStack* odedRegCmds();

// Where a command asks its questions. A host supplies one that talks to a
// terminal, replays a script, or answers from a list in tests.
class RX_API OdEdUserIO {
 public:
  virtual ~OdEdUserIO();
  // Shows the prompt and returns the answer. Throws OdEdCancel when input
  // ends (end of file or the user cancels).
  virtual OdString getString(const OdString& prompt) = 0;
  virtual void putString(const OdString& text) = 0;
};

// Raised when the user cancels or input ends while a command waits.
class RX_API OdEdCancel : public OdError {
 public:
  OdEdCancel() : OdError(eInvalidInput, OdString("cancelled")) {}
  ~OdEdCancel() override;
};

class OdDbDatabase;
class RX_API OdEdCommandContext {
 public:
  OdEdCommandContext(OdEdUserIO* io, OdRxObject* baseDatabase) : m_io(io), m_db(baseDatabase) {}
  virtual ~OdEdCommandContext();
  OdEdUserIO* userIO() const { return m_io; }
  OdRxObject* baseDatabase() const { return m_db; }
  OdString getString(const OdString& prompt) { return m_io->getString(prompt); }
  void putString(const OdString& text) { m_io->putString(text); }

 private:
  OdEdUserIO* m_io;
  OdRxObject* m_db;
};
