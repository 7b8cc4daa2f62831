#include "ZqServices.h"
#include "DbSymbolTable.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

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

// Counts the application's LanguageChange events, which installing or
// removing a translator sends at once, and the applications themselves.
class TranslationWatcher : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::LanguageChange && watched == m_app) ++m_generation;
    return false;
  }
  unsigned generation() {
    QCoreApplication* app = QCoreApplication::instance();
    if (app != m_app) {
      if (app) app->installEventFilter(this);
      m_app = app;
      ++m_generation;
    }
    return m_generation;
  }

 private:
  QPointer<QCoreApplication> m_app;
  unsigned m_generation = 1;
};

}  // namespace

unsigned zqTranslationGeneration() {
  static TranslationWatcher watcher;
  return watcher.generation();
}

namespace {
bool g_standardEdition = false;
CZqVELOXQTGate g_defaultGate;
CZqVELOXQTGate* g_gate = &g_defaultGate;
}  // namespace

bool CZqUtils::IsNotTelvaneStandard() { return !g_standardEdition; }
void CZqUtils::SetStandardEdition(bool standard) { g_standardEdition = standard; }

OdDbObjectId CZqUtils::CopyStyles(const OdDbObjectId& style, const OdDbObjectId& styleTable) {
  if (style.isNull() || style.isErased() || styleTable.isNull()) return OdDbObjectId();
  if (style.database() == styleTable.database()) return style;
  const OdDbObjectPtr record = style.openObject(OdDb::kForRead);
  const auto* source = odrxCast<OdDbTextStyleTableRecord>(record.get());
  if (!source) return OdDbObjectId();
  const OdDbObjectPtr tableObject = styleTable.openObject(OdDb::kForWrite);
  auto* table = odrxCast<OdDbTextStyleTable>(tableObject.get());
  if (!table) return OdDbObjectId();
  const OdDbObjectId existing = table->getAt(source->getName());
  if (!existing.isNull()) return existing;
  OdDbTextStyleTableRecordPtr copy = OdDbTextStyleTableRecord::createObject();
  copy->copyFrom(source);
  copy->setName(source->getName());
  // The typeface of a TrueType style is kept in the style's extended data.
  if (OdResBufPtr typeface = source->xData(OdString("ACAD"))) copy->setXData(typeface.get());
  return table->add(copy.get());
}

CZqVELOXQTGate* GetZqVELOXQTGate() { return g_gate; }

CZqVELOXQTGate* SetZqVELOXQTGate(CZqVELOXQTGate* gate) {
  CZqVELOXQTGate* previous = g_gate;
  g_gate = gate;
  return previous;
}
