#include "ZqPropertiesModule.h"
#include "DbDatabase.h"
#include "DbPlainClasses.h"
#include "ZqServices.h"
#include <algorithm>
#include <vector>

ODRX_DEFINE_DYNAMIC_MODULE(CZqPropertiesModule)

struct ZqAttachment {
  ZqTableRow table;
  OdRxClass* drawingClass;
  OdRxObject* provider;
  OdRxClass* (*ownProtocol)();  // the provider's own class (rows attached under it)
  OdRxObject* info;             // null: the class gets no information provider
};

namespace {

struct ProviderClass {
  double registerPosition;
  double unregisterPosition;  // bases only
  bool base;
  void (*init)();
  void (*uninit)();
};

OdRxClass* drawingClassOf(int registeredIndex, OdRxClass* own) {
  return registeredIndex > 0 ? g_odDbRegistredDwgClasses[registeredIndex] : own;
}

bool pdfUnderlaysWanted() { return GetZqResources()->IsPdfUnderlaySupported(); }

// Classes that never receive an information provider but are detached from
// it all the same at tear-down (at the places ZqExtraInfoRemovalPositions
// gives).
OdRxClass* (*const kExtraInfoRemovals[])() = {&OdDbArcAlignedText::desc, &OdDbDimension::desc,
                                              &OdDbViewportTableRecord::desc, &OdDbRasterImage::desc};

template <class T, class Key>
std::vector<T> sortedBy(std::vector<T> items, Key key) {
  std::stable_sort(items.begin(), items.end(), [&](const T& a, const T& b) { return key(a) < key(b); });
  return items;
}

std::vector<ProviderClass> providerClasses() {
  std::vector<ProviderClass> out;
#define ZQ_BASE_CLASS(Provider, Parent, DrawingClass, RegisterPosition, UnregisterPosition) \
  out.push_back({RegisterPosition, UnregisterPosition, true, &Provider::rxInit, &Provider::rxUninit});
#define ZQ_CLASS(Provider, Parent, RegisterPosition) \
  out.push_back({RegisterPosition, 0, false, &Provider::rxInit, &Provider::rxUninit});
#include "ZqProviders.def"
  return out;
}

// Attaches ext to cls under protocol, recording how to take it back: the
// extension found there before is put back, or the slot emptied. The undo
// is recorded first, so an attachment that fails after changing the class
// is taken back as well.
void attach(ZqUndoLog& log, OdRxClass* cls, OdRxClass* protocol, OdRxObject* ext) {
  const OdRxObjectPtr before = cls->getX(protocol);
  log.runGuarded([=] { cls->addX(protocol, ext); },
                 [=] {
                   if (cls->getX(protocol).get() != ext) return;
                   if (before) cls->addX(protocol, before.get());
                   else cls->delX(protocol);
                 });
}

// Registers a class descriptor; once registered, unregistering it is the undo.
void registerClass(ZqUndoLog& log, void (*init)(), void (*uninit)()) { log.run(init, uninit); }

}  // namespace

CZqPropertiesModule::CZqPropertiesModule() = default;
CZqPropertiesModule::~CZqPropertiesModule() = default;

std::vector<ZqAttachment> CZqPropertiesModule::attachments() {
  std::vector<ZqAttachment> rows;
#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Step, Info, InfoPosition)                    \
  rows.push_back({{Row, ZqAttachStep::k##Step, true, InfoPosition},                                        \
                  drawingClassOf(RegisteredIndex, DrawingClass::desc()), &m_##Provider, &Provider::desc, \
                  m_info##Row.get()});
#include "ZqProviders.def"
  for (ZqAttachment& a : rows) a.table.hasInfo = a.info != nullptr;
  return rows;
}

void CZqPropertiesModule::initApp() {
  // A start-up that fails halfway leaves nothing behind: the providers it
  // attached would otherwise outlive the module that is unloaded after it.
  ZqUndoLog log;
  try {
    startUp(log);
  } catch (...) {
    log.rollback();
    throw;
  }
}

void CZqPropertiesModule::startUp(ZqUndoLog& log) {
  const std::vector<ZqAttachment> rows = attachments();
  std::vector<ZqTableRow> table;
  for (const ZqAttachment& a : rows) table.push_back(a.table);
  const ZqStartupOrder order = ZqStartupOrderOf(table, pdfUnderlaysWanted());

  // 1-2. The property protocol and the provider factory.
  registerClass(log, &CZqPropertyBase::rxInit, &CZqPropertyBase::rxUninit);
  log.run(&CZqPropertyPEClassFactory::create, &CZqPropertyPEClassFactory::destroy);
  // 3. Entity providers in table order; PDF underlays only when the host shows them.
  for (size_t i : order.entities) attach(log, rows[i].drawingClass, CZqPropertyBase::desc(), rows[i].provider);
  // 4-5. The generic provider's class, then the module's own classes: the
  // shared bases first, then the others in their registration order.
  registerClass(log, &CZqEntityPE::rxInit, &CZqEntityPE::rxUninit);
  for (const ProviderClass& c : sortedBy(providerClasses(), [](const ProviderClass& c) { return c.registerPosition; }))
    registerClass(log, c.init, c.uninit);
  // 6. Table records and styles.
  for (size_t i : order.records) attach(log, rows[i].drawingClass, CZqPropertyBase::desc(), rows[i].provider);
  // 7-8. Information providers.
  registerClass(log, &CZqPrintObjectInfoPE::rxInit, &CZqPrintObjectInfoPE::rxUninit);
  for (size_t i : order.infos) attach(log, rows[i].drawingClass, CZqPrintObjectInfoPE::desc(), rows[i].info);
  // 9. Providers under a protocol of their own.
  for (size_t i : order.own) attach(log, rows[i].drawingClass, rows[i].ownProtocol(), rows[i].provider);
  // 10. The solid-primitive provider classes, which the solid provider
  // chooses among per object.
#define ZQ_PRIMITIVE_CLASS(Provider, Parent, DrawingClass, RegisterPosition) \
  registerClass(log, &Provider::rxInit, &Provider::rxUninit);
#include "ZqProviders.def"
  // 11-12. The host's drawing-view provider class, and the command.
  registerClass(log, &CZqDrawingViewPE::rxInit, &CZqDrawingViewPE::rxUninit);
  log.run([this] { odedRegCmds()->addCommand(&m_command); }, [this] { odedRegCmds()->removeCmd(&m_command); });
}

void CZqPropertiesModule::uninitApp() {
  const std::vector<ZqAttachment> rows = attachments();
  std::vector<ZqTableRow> table;
  for (const ZqAttachment& a : rows) table.push_back(a.table);
  const ZqTeardownOrder order = ZqTeardownOrderOf(table, pdfUnderlaysWanted());

  // 1. The command.
  odedRegCmds()->removeCmd(&m_command);
  // 2-4. Entity providers, table records and styles, providers under their own protocol.
  for (size_t i : order.entities) rows[i].drawingClass->delX(CZqPropertyBase::desc());
  for (size_t i : order.records) rows[i].drawingClass->delX(CZqPropertyBase::desc());
  for (size_t i : order.own) rows[i].drawingClass->delX(rows[i].ownProtocol());
  // 5. The module's classes: derived ones in registration order, then the
  // bases in their own order.
  const std::vector<ProviderClass> classes = providerClasses();
  for (const ProviderClass& c : sortedBy(classes, [](const ProviderClass& c) { return c.registerPosition; }))
    if (!c.base) c.uninit();
  for (const ProviderClass& c : sortedBy(classes, [](const ProviderClass& c) { return c.unregisterPosition; }))
    if (c.base) c.uninit();
  // 6. The generic provider's class and the protocol.
  CZqEntityPE::rxUninit();
  CZqPropertyBase::rxUninit();
  // 7. Information providers in start-up order (PDF underlays only when
  // the host shows them), with the classes that never had one detached at
  // their places as well.
  for (const ZqInfoRemoval& r : order.infos) {
    OdRxClass* cls = r.row >= 0 ? rows[size_t(r.row)].drawingClass : kExtraInfoRemovals[r.extra]();
    cls->delX(CZqPrintObjectInfoPE::desc());
  }
  // 8-9. The factory and the information protocol.
  CZqPropertyPEClassFactory::destroy();
  CZqPrintObjectInfoPE::rxUninit();
  // 10. The solid-primitive classes in their start-up order.
#define ZQ_PRIMITIVE_CLASS(Provider, Parent, DrawingClass, RegisterPosition) Provider::rxUninit();
#include "ZqProviders.def"
  // 11. The drawing-view class.
  CZqDrawingViewPE::rxUninit();
}
