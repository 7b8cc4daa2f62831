#include "ZqServices.h"
#include <cstdio>

int CZqSystemServices::MessageBox(const CZqString& text, const CZqString& title, unsigned) {
  m_messages.push_back({title, text});
  if (m_echo) std::fprintf(stderr, "%s: %s\n", title.qstring().toLocal8Bit().constData(), text.qstring().toLocal8Bit().constData());
  return 1;
}

CZqSystemServices* GetZqSystemServices() {
  static CZqSystemServices services;
  return &services;
}

CZqResources* GetZqResources() {
  static CZqResources resources;
  return &resources;
}

namespace {
bool g_standardEdition = false;
CZqVELOXQTGate g_defaultGate;
CZqVELOXQTGate* g_gate = &g_defaultGate;
}  // namespace

bool CZqUtils::IsNotTelvaneStandard() { return !g_standardEdition; }
void CZqUtils::SetStandardEdition(bool standard) { g_standardEdition = standard; }

CZqVELOXQTGate* GetZqVELOXQTGate() { return g_gate; }

CZqVELOXQTGate* SetZqVELOXQTGate(CZqVELOXQTGate* gate) {
  CZqVELOXQTGate* previous = g_gate;
  g_gate = gate;
  return previous;
}
