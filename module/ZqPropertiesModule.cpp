#include "ZqPropertiesModule.h"
#include "DbDatabase.h"
#include "DbPlainClasses.h"
#include "ZqServices.h"
#include <algorithm>
#include <vector>

ODRX_DEFINE_DYNAMIC_MODULE(CZqPropertiesModule)

namespace {

}  // namespace

struct ZqAttachment {
  int row;
  OdRxClass* drawingClass;
  OdRxObject* provider;
  OdRxObject* info;       // null: the class gets no information provider
  double infoPosition;
};

namespace {

struct ProviderClass {
  double registerPosition;
  double unregisterPosition;  // bases only
  bool base;
  void (*init)();
  void (*uninit)();
};

constexpr int kPdfReferenceRow = 45;
constexpr int kMLeaderRow = 64;
constexpr int kLastEntityRow = 64;
constexpr int kRasterImageRow = 44;

OdRxClass* drawingClassOf(int registeredIndex, OdRxClass* own) {
  return registeredIndex > 0 ? g_odDbRegistredDwgClasses[registeredIndex] : own;
}

bool pdfUnderlaysWanted() { return GetZqResources()->IsPdfUnderlaySupported(); }

// Detaching the providers follows the start-up order, except that the
// multileader's row comes right after the raster image's.
double detachPosition(int row) { return row == kMLeaderRow ? kRasterImageRow + 0.5 : row; }

// Classes that never receive an information provider but are detached from
// it all the same at tear-down, each right after the row named by position.
struct ExtraInfoRemoval {
  OdRxClass* (*cls)();
  double position;
};
const ExtraInfoRemoval kExtraInfoRemovals[] = {
    {&OdDbArcAlignedText::desc, 6.5},        // after OdDbAlignedDimension
    {&OdDbDimension::desc, 15.5},            // after OdDbDiametricDimension
    {&OdDbViewportTableRecord::desc, 19.5},  // after OdDbExtrudedSurface
    {&OdDbRasterImage::desc, 43.05},         // after OdDbRadialDimension
};

template <class T, class Key>
std::vector<T> sortedBy(std::vector<T> items, Key key) {
  std::stable_sort(items.begin(), items.end(), [&](const T& a, const T& b) { return key(a) < key(b); });
  return items;
}

}  // namespace

CZqPropertiesModule::CZqPropertiesModule() = default;
CZqPropertiesModule::~CZqPropertiesModule() = default;

namespace {
std::vector<ProviderClass> providerClasses() {
  std::vector<ProviderClass> out;
#define ZQ_BASE_CLASS(Provider, Parent, RegisterPosition, UnregisterPosition) \
  out.push_back({RegisterPosition, UnregisterPosition, true, &Provider::rxInit, &Provider::rxUninit});
#define ZQ_CLASS(Provider, Parent, RegisterPosition) \
  out.push_back({RegisterPosition, 0, false, &Provider::rxInit, &Provider::rxUninit});
#include "ZqProviders.def"
  return out;
}
}  // namespace

std::vector<ZqAttachment> CZqPropertiesModule::attachments() {
  std::vector<ZqAttachment> rows;
#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Info, InfoPosition) \
  rows.push_back({Row, drawingClassOf(RegisteredIndex, DrawingClass::desc()), &m_##Provider, &m_##Info, InfoPosition});
#include "ZqProviders.def"
  return rows;
}

void CZqPropertiesModule::initApp() {
  const std::vector<ZqAttachment> rows = attachments();

  // 1-2. The property protocol and the provider factory.
  CZqPropertyBase::rxInit();
  CZqPropertyPEClassFactory::create();
  // 3. Entity providers in table order; PDF underlays only when the host shows them.
  for (const ZqAttachment& a : rows) {
    if (a.row > kLastEntityRow) continue;
    if (a.row == kPdfReferenceRow && !pdfUnderlaysWanted()) continue;
    a.drawingClass->addX(CZqPropertyBase::desc(), a.provider);
  }
  // 4-5. The generic provider's class, then the module's own classes: the
  // shared bases first, then the others in their registration order.
  CZqEntityPE::rxInit();
  for (const ProviderClass& c : sortedBy(providerClasses(), [](const ProviderClass& c) { return c.registerPosition; }))
    c.init();
  // 6. Table records and styles.
  for (const ZqAttachment& a : rows)
    if (a.row > kLastEntityRow) a.drawingClass->addX(CZqPropertyBase::desc(), a.provider);
  // 7-8. Information providers.
  CZqPrintObjectInfoPE::rxInit();
  for (const ZqAttachment& a : sortedBy(rows, [](const ZqAttachment& a) { return a.infoPosition; })) {
    if (!a.info) continue;
    if (a.row == kPdfReferenceRow && !pdfUnderlaysWanted()) continue;
    a.drawingClass->addX(CZqPrintObjectInfoPE::desc(), a.info);
  }
  // 11-12. The host's drawing-view provider class, and the command.
  CZqDrawingViewPE::rxInit();
  odedRegCmds()->addCommand(&m_command);
}

void CZqPropertiesModule::uninitApp() {
  const std::vector<ZqAttachment> rows = attachments();

  // 1. The command.
  odedRegCmds()->removeCmd(&m_command);
  // 2-3. Entity providers, then table records and styles.
  for (const ZqAttachment& a : sortedBy(rows, [](const ZqAttachment& a) { return detachPosition(a.row); })) {
    if (a.row > kLastEntityRow) continue;
    if (a.row == kPdfReferenceRow && !pdfUnderlaysWanted()) continue;
    a.drawingClass->delX(CZqPropertyBase::desc());
  }
  for (const ZqAttachment& a : rows)
    if (a.row > kLastEntityRow) a.drawingClass->delX(CZqPropertyBase::desc());
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
  // 7. Information providers in start-up order, with the classes that
  // never had one detached at their places as well.
  struct InfoRemoval {
    OdRxClass* cls;
    double position;
  };
  std::vector<InfoRemoval> removals;
  for (const ZqAttachment& a : rows)
    if (a.info) removals.push_back({a.drawingClass, a.infoPosition});
  for (const ExtraInfoRemoval& e : kExtraInfoRemovals) removals.push_back({e.cls(), e.position});
  for (const InfoRemoval& r : sortedBy(removals, [](const InfoRemoval& r) { return r.position; }))
    r.cls->delX(CZqPrintObjectInfoPE::desc());
  // 8-11. The factory, the information protocol, the drawing-view class.
  CZqPropertyPEClassFactory::destroy();
  CZqPrintObjectInfoPE::rxUninit();
  CZqDrawingViewPE::rxUninit();
}
