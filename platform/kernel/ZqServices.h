#pragma once
// Host services the module reaches through global accessors: message boxes,
// capability queries, the edition switch and the selection gate.
#include "KernelExport.h"
#include "CZqString.h"
#include "OdDbObjectId.h"
#include <vector>

// Message boxes. The host shows them; this implementation keeps every box
// it was asked to show (tests and programs read them back) and writes each
// to standard error as "title: text" unless told to be quiet.
class ZQKERNEL_API CZqSystemServices {
 public:
  struct Message {
    CZqString title;
    CZqString text;
  };
  // Returns the button pressed: always 1 (OK); there is no one to ask.
  int MessageBox(const CZqString& text, const CZqString& title, unsigned flags = 0);
  const std::vector<Message>& Messages() const { return m_messages; }
  void ClearMessages() { m_messages.clear(); }
  void SetEchoToStderr(bool echo) { m_echo = echo; }

 private:
  std::vector<Message> m_messages;
  bool m_echo = true;
};
ZQKERNEL_API CZqSystemServices* GetZqSystemServices();

// Capability queries of the host's resources.
class ZQKERNEL_API CZqResources {
 public:
  // Whether the host can show PDF underlays (and so wants their provider).
  bool IsPdfUnderlaySupported() const { return m_pdf; }
  void SetPdfUnderlaySupported(bool on) { m_pdf = on; }

 private:
  bool m_pdf = true;
};
ZQKERNEL_API CZqResources* GetZqResources();

// A number that changes whenever the application's translators change
// (a language installed or removed): texts translated once and kept must be
// translated again when it differs from the one they were made under.
ZQKERNEL_API unsigned zqTranslationGeneration();
// True when the translators changed since `seen` was taken (then `seen` is
// brought up to date): a cache of translated texts is emptied then.
inline bool zqTranslationsChangedSince(unsigned& seen) {
  const unsigned now = zqTranslationGeneration();
  if (seen == now) return false;
  seen = now;
  return true;
}

// Edition queries and small shared utilities.
class ZQKERNEL_API CZqUtils {
 public:
  // True for every edition above the standard one.
  static bool IsNotTelvaneStandard();
  static void SetStandardEdition(bool standard);
  // Brings a text style into the drawing of `styleTable` (a text style
  // table): the style of the same name there when it has one, otherwise a
  // copy of the record (fonts, sizes, flags, typeface data) added to it once.
  // Answers the style to use there; null when `style` is not a text style or
  // the table cannot take it. A style of the same drawing is answered as it is.
  static OdDbObjectId CopyStyles(const OdDbObjectId& style, const OdDbObjectId& styleTable);
};

// The current selection of the active document, as the palette sees it.
class ZQKERNEL_API CZqSelectionSet {
 public:
  const OdDbObjectIdArray& GetObjectIds() const { return m_ids; }
  int Count() const { return int(m_ids.size()); }
  void SetObjectIds(const OdDbObjectIdArray& ids) { m_ids = ids; }

 private:
  OdDbObjectIdArray m_ids;
};

// The gate through which providers see the host's current selection. The
// selection query answers null when nothing is selected.
class ZQKERNEL_API CZqVELOXQTGate {
 public:
  const CZqSelectionSet* GetCurrentSelection() const { return m_hasSelection ? &m_selection : nullptr; }
  void SetCurrentSelection(const OdDbObjectIdArray& ids) { m_selection.SetObjectIds(ids); m_hasSelection = true; }
  void ClearSelection() { m_selection.SetObjectIds({}); m_hasSelection = false; }

 private:
  CZqSelectionSet m_selection;
  bool m_hasSelection = false;
};
// The installed gate, or null when the host has none.
ZQKERNEL_API CZqVELOXQTGate* GetZqVELOXQTGate();
// Installs (or with null removes) the gate; returns the previous one.
ZQKERNEL_API CZqVELOXQTGate* SetZqVELOXQTGate(CZqVELOXQTGate* gate);
