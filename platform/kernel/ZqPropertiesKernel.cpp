#include "ZqPropertiesKernel.h"
#include "DbDatabase.h"
#include "ZqServices.h"
#include "DbRelease.h"
#include <QCoreApplication>
#include <QStringList>
#include <cmath>

// CZqPropertyBase and CZqCustomPropertyPE are registered together: the
// first is the protocol, the second the base every provider derives from.
namespace {
OdRxClass* g_pPropertyBaseDesc = nullptr;
OdRxClass* g_pCustomPropertyDesc = nullptr;
}  // namespace

OdRxClass* CZqPropertyBase::desc() { return g_pPropertyBaseDesc; }
OdRxClass* CZqPropertyBase::isA() const { return g_pPropertyBaseDesc; }
void CZqPropertyBase::rxInit() {
  if (g_pPropertyBaseDesc) throw OdError(eClassAlreadyRegistered, OdString("CZqPropertyBase"));
  g_pPropertyBaseDesc = newOdRxClass(L"CZqPropertyBase", OdRxObject::desc());
  g_pCustomPropertyDesc = newOdRxClass(L"CZqCustomPropertyPE", g_pPropertyBaseDesc);
}
void CZqPropertyBase::rxUninit() {
  if (!g_pPropertyBaseDesc) throw OdError(eClassNotRegistered, OdString("CZqPropertyBase"));
  deleteOdRxClass(g_pCustomPropertyDesc);
  g_pCustomPropertyDesc = nullptr;
  deleteOdRxClass(g_pPropertyBaseDesc);
  g_pPropertyBaseDesc = nullptr;
}

OdRxClass* CZqCustomPropertyPE::desc() { return g_pCustomPropertyDesc; }
OdRxClass* CZqCustomPropertyPE::isA() const { return g_pCustomPropertyDesc; }
void CZqCustomPropertyPE::rxInit() {}
void CZqCustomPropertyPE::rxUninit() {}

ODRX_DEFINE_MEMBERS(CZqEntityPE, CZqCustomPropertyPE)
ODRX_DEFINE_MEMBERS(CZqDrawingViewPE, OdRxObject)

CZqPropertyBase::CZqPropertyBase() = default;
CZqPropertyBase::~CZqPropertyBase() = default;

CZqString CZqPropertyBase::GetClassName(const OdDbObject*) const { return CZqString(); }

void CZqPropertyBase::GetPropertyNames(const OdDbObject*, CZqPropertiesContainer*& container, const OdRxClass*,
                                       const OdRxClass*, bool) {
  container = nullptr;
}

bool CZqPropertyBase::HasDynamicProperties(const OdDbObject*) const { return false; }

CZqPropertiesContainer* CZqPropertyBase::collect(const OdDbObject* object) {
  CZqPropertiesContainer* container = nullptr;
  GetPropertyNames(object, container, nullptr, nullptr, false);
  if (container) GetPropertyNamesDynamic(object, container);
  return container;
}

namespace {
CZqPropertyDescription* findByGuid(CZqPropertiesContainer* c, const CZqString& guid) {
  for (int i = 0; c && i < c->GetCount(); ++i)
    if (c->GetAt(i)->GetType().GetTypeId() == guid) return c->GetAt(i);
  return nullptr;
}
}  // namespace

bool CZqPropertyBase::GetPropertyByName(const OdDbObject* object, const CZqString& name, CZqVariant& value,
                                        const CZqVariant& index) {
  std::unique_ptr<CZqPropertiesContainer> c(collect(object));
  CZqPropertyDescription* d = c ? c->GetByName(name) : nullptr;
  if (!d) return false;
  value = d->GetValue(object, index);
  return true;
}

bool CZqPropertyBase::GetPropertyByGUID(const OdDbObject* object, const CZqString& guid, CZqVariant& value,
                                        const CZqVariant& index) {
  std::unique_ptr<CZqPropertiesContainer> c(collect(object));
  CZqPropertyDescription* d = findByGuid(c.get(), guid);
  if (!d) return false;
  value = d->GetValue(object, index);
  return true;
}

int CZqPropertyBase::SetPropertyByName(const OdDbObject* object, const CZqString& name, const CZqVariant& value,
                                       const CZqVariant& index) {
  std::unique_ptr<CZqPropertiesContainer> c(collect(object));
  CZqPropertyDescription* d = c ? c->GetByName(name) : nullptr;
  return d ? d->SetValue(object, value, index) : kZqSetRefused;
}

int CZqPropertyBase::SetPropertyByGUID(const OdDbObject* object, const CZqString& guid, const CZqVariant& value,
                                       const CZqVariant& index) {
  std::unique_ptr<CZqPropertiesContainer> c(collect(object));
  CZqPropertyDescription* d = findByGuid(c.get(), guid);
  return d ? d->SetValue(object, value, index) : kZqSetRefused;
}

CZqPropertyBase* CZqPropertyBase::GetPropertyPEOverride(const OdDbObject*) { return this; }

void CZqPropertyBase::GetPropertyNamesDynamic(const OdDbObject*, CZqPropertiesContainer*&) {}

bool CZqCustomPropertyPE::IsReadOnlyFalse(const OdDbObject*, const CZqPropertyDescription&) { return false; }
bool CZqCustomPropertyPE::IsReadOnlyTrue(const OdDbObject*, const CZqPropertyDescription&) { return true; }

// ---------------------------------------------------------------------------
// The general rows.

namespace {


int refuse(const QString& message) {
  GetZqSystemServices()->MessageBox(message, QCoreApplication::translate("errors", "Error"));
  return kZqSetRefused;
}
int refuse(const char* message) { return refuse(QCoreApplication::translate("errors", message)); }

// Opens the entity for the callbacks: getters need read access, setters write access.
const OdDbEntity* readable(const OdDbObject* o) {
  const OdDbEntity* e = odrxCast<OdDbEntity>(o);
  return e && e->isReadEnabled() ? e : nullptr;
}
OdDbEntity* writable(const OdDbObject* o) {
  OdDbEntity* e = odrxCast<OdDbEntity>(o);
  return e && e->isWriteEnabled() ? e : nullptr;
}

// A record id of the table of the entity's own database, or null.
bool isRecordOf(const OdDbEntity* e, const OdDbObjectId& id, OdDbObjectId (OdDbDatabase::*table)() const) {
  if (id.isNull() || !e->database() || id.database() != e->database()) return false;
  OdDbObjectPtr rec = id.openObject();
  return rec && rec->ownerId() == (e->database()->*table)();
}

// The oldest releases whose drawing files hold a general value that differs
// from what every file implies (a true colour, a lineweight, ...).
constexpr int kLtScaleRelease = 1012;     // R13: group 48
constexpr int kLineweightRelease = 1015;  // R2000: group 370
constexpr int kPlotStyleRelease = 1015;   // R2000: group 390 and the plot style names
constexpr int kTrueColorRelease = 1018;   // R2004: group 420
constexpr int kTransparencyRelease = 1018;  // R2004: group 440
constexpr int kHyperlinkRelease = 1009;   // R12: extended data, where hyperlinks are kept

// True when the release the entity's drawing is saved in holds a value that
// needs `needed`; otherwise refuses with `message` ("... needs a drawing
// saved as %1 or later; this drawing is %2.").
bool releaseHolds(const OdDbEntity* e, int needed, const char* message) {
  const int release = OdDb::databaseRelease(e->database());
  if (release == 0 || release >= needed) return true;
  refuse(QCoreApplication::translate("errors", message).arg(OdDb::releaseName(needed), OdDb::releaseName(release)));
  return false;
}

CZqVariant getColor(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  return e ? CZqVariant(e->color()) : CZqVariant();
}
int setColor(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtColor) return kZqSetRefused;
  if (v.GetColor().isByColor() &&
      !releaseHolds(e, kTrueColorRelease, QT_TRANSLATE_NOOP("errors", "A true colour needs a drawing saved as %1 or later; this drawing is %2.")))
    return kZqSetRefused;
  e->setColor(v.GetColor());
  return kZqSetApplied;
}

CZqVariant getLayer(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  return e ? CZqVariant(e->layerId()) : CZqVariant();
}
int setLayer(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  if (!isRecordOf(e, v.GetId(), &OdDbDatabase::getLayerTableId))
    return refuse(QT_TRANSLATE_NOOP("errors", "The layer must be one of the drawing's layers."));
  e->setLayer(v.GetId());
  return kZqSetApplied;
}

CZqVariant getLinetype(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  return e ? CZqVariant(e->linetypeId()) : CZqVariant();
}
int setLinetype(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  if (!isRecordOf(e, v.GetId(), &OdDbDatabase::getLinetypeTableId))
    return refuse(QT_TRANSLATE_NOOP("errors", "The linetype must be one of the drawing's linetypes."));
  e->setLinetype(v.GetId());
  return kZqSetApplied;
}

CZqVariant getLtScale(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  return e ? CZqVariant(e->linetypeScale(), false) : CZqVariant();
}
int setLtScale(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  const double scale = v.GetDouble();
  if (!std::isfinite(scale)) return refuse(QT_TRANSLATE_NOOP("errors", "Linetype scale must be a finite number greater than 0."));
  if (!(scale > 1e-10)) return refuse(QT_TRANSLATE_NOOP("errors", "Value must be positive"));
  if (scale != 1.0 &&
      !releaseHolds(e, kLtScaleRelease, QT_TRANSLATE_NOOP("errors", "Linetype scale needs a drawing saved as %1 or later; this drawing is %2.")))
    return kZqSetRefused;
  e->setLinetypeScale(scale);
  return kZqSetApplied;
}

// Plot styles. A drawing that plots by colour shows ByColor for every object;
// in one with named plot styles an object without a plot style of its own
// plots as its layer says (ByLayer).
bool namedPlotStyles(const OdDbEntity* e) { return e->database() && !e->database()->getPSTYLEMODE(); }

CZqVariant getPlotStyle(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  if (!e) return {};
  const OdString s = e->plotStyleName();
  if (!s.isEmpty()) return CZqVariant(CZqString(s.qstring()));
  return CZqVariant(CZqString(namedPlotStyles(e) ? QString("ByLayer") : QString("ByColor")));
}

// The drawing's plot style names as a list for a message.
QString plotStyleList(const OdDbDatabase* db) {
  QStringList names;
  for (const OdString& n : db->plotStyleNames()) names << n.qstring();
  return names.join(", ");
}

int setPlotStyle(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = v.GetString().qstring().trimmed();
  const OdDbDatabase* db = e->database();
  const bool isByColor = s.compare("ByColor", Qt::CaseInsensitive) == 0;
  if (!namedPlotStyles(e)) {
    // Colour-dependent plot styles: the entity plots by its colour.
    if (!isByColor)
      return refuse(QT_TRANSLATE_NOOP("errors", "This drawing plots by colour: its objects take only the plot style ByColor."));
    e->setPlotStyleName(OdString());
    return kZqSetApplied;
  }
  const QString names = plotStyleList(db);
  if (isByColor)
    return refuse(QCoreApplication::translate("errors", "This drawing uses named plot styles: choose ByLayer or one of %1.").arg(names));
  if (s.compare("ByLayer", Qt::CaseInsensitive) == 0) {
    e->setPlotStyleName(OdString());
    return kZqSetApplied;
  }
  if (s.compare("ByBlock", Qt::CaseInsensitive) == 0)
    return refuse(QCoreApplication::translate("errors", "The plot style ByBlock cannot be saved in the drawing: choose ByLayer or one of %1.").arg(names));
  if (!releaseHolds(e, kPlotStyleRelease, QT_TRANSLATE_NOOP("errors", "Plot styles need a drawing saved as %1 or later; this drawing is %2.")))
    return kZqSetRefused;
  for (const OdString& n : db->plotStyleNames())
    if (n.qstring().compare(s, Qt::CaseInsensitive) == 0) {
      e->setPlotStyleName(n);
      return kZqSetApplied;
    }
  return refuse(QCoreApplication::translate("errors", "The drawing has no plot style named \"%1\": choose ByLayer or one of %2.").arg(s, names));
}

CZqVariant getLineweight(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  return e ? CZqVariant(int32_t(e->lineWeight())) : CZqVariant();
}
int setLineweight(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
  if (!OdDb::isValidLineWeight(v.GetInt32()))
    return refuse(QT_TRANSLATE_NOOP("errors", "Lineweight must be ByLayer, ByBlock, Default or a standard lineweight from 0.00 mm to 2.11 mm."));
  if (v.GetInt32() != OdDb::kLnWtByLayer &&
      !releaseHolds(e, kLineweightRelease, QT_TRANSLATE_NOOP("errors", "Lineweight needs a drawing saved as %1 or later; this drawing is %2.")))
    return kZqSetRefused;
  e->setLineWeight(OdDb::LineWeight(v.GetInt32()));
  return kZqSetApplied;
}

CZqVariant getTransparency(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  return e ? CZqVariant(CZqString(e->transparency().description())) : CZqVariant();
}
int setTransparency(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = v.GetString().qstring().trimmed();
  OdCmTransparency t;
  if (s.compare("ByLayer", Qt::CaseInsensitive) == 0) t = OdCmTransparency(OdCmTransparency::kByLayer);
  else if (s.compare("ByBlock", Qt::CaseInsensitive) == 0) t = OdCmTransparency(OdCmTransparency::kByBlock);
  else {
    bool ok = false;
    const int percent = s.toInt(&ok);
    if (!ok || percent < 0 || percent > 90)
      return refuse(QT_TRANSLATE_NOOP("errors", "Transparency must be ByLayer, ByBlock or a whole percentage from 0 to 90."));
    t = OdCmTransparency::fromPercent(percent);
  }
  if (!t.isByLayer() &&
      !releaseHolds(e, kTransparencyRelease, QT_TRANSLATE_NOOP("errors", "Transparency needs a drawing saved as %1 or later; this drawing is %2.")))
    return kZqSetRefused;
  e->setTransparency(t);
  return kZqSetApplied;
}

CZqVariant getHyperlink(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant&) {
  const OdDbEntity* e = readable(o);
  if (!e) return {};
  const auto& links = e->hyperlinks();
  return CZqVariant(CZqString(links.isEmpty() ? QString() : links.front().name.qstring()));
}
int setHyperlink(const OdDbObject* o, const CZqPropertyDescription&, const CZqVariant& v, const CZqVariant&) {
  OdDbEntity* e = writable(o);
  if (!e || v.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  OdArray<OdDbHyperlink> links = e->hyperlinks();
  const QString url = v.GetString().qstring().trimmed();
  if (!url.isEmpty() &&
      !releaseHolds(e, kHyperlinkRelease, QT_TRANSLATE_NOOP("errors", "A hyperlink needs a drawing saved as %1 or later; this drawing is %2.")))
    return kZqSetRefused;
  if (url.isEmpty()) links.clear();
  else if (links.isEmpty()) links.append(OdDbHyperlink{OdString(url), {}, {}});
  else links.front().name = OdString(url);
  try {
    e->setHyperlinks(links);
  } catch (const OdError&) {
    return refuse(QT_TRANSLATE_NOOP("errors", "A hyperlink cannot contain line breaks or control characters"));
  }
  return kZqSetApplied;
}

struct GeneralRow {
  const char* name;
  const char* icon;
  int type;
  const char* guid;
  ZqGetMethod get;
  ZqSetMethod set;
};

//  name              icon             type  identifier                           get              set
const GeneralRow kGeneralRows[] = {
    {QT_TRANSLATE_NOOP("property_types", "Color"),          "Color",          5, nullptr,                             getColor,        setColor},
    {QT_TRANSLATE_NOOP("property_types", "Layer"),          "Layer",          8, CZqPropertyType::kLayerGUID,         getLayer,        setLayer},
    {QT_TRANSLATE_NOOP("property_types", "Linetype"),       "Linetype",       8, CZqPropertyType::kLinetypeGUID,      getLinetype,     setLinetype},
    {QT_TRANSLATE_NOOP("property_types", "Linetype scale"), "LinetypeScale",  2, nullptr,                             getLtScale,      setLtScale},
    {QT_TRANSLATE_NOOP("property_types", "Plot style"),     "PlotStyle",      3, CZqPropertyType::kPlotStyleGUID,     getPlotStyle,    setPlotStyle},
    {QT_TRANSLATE_NOOP("property_types", "Lineweight"),     "Lineweight",     4, CZqPropertyType::kLineweightGUID,    getLineweight,   setLineweight},
    {QT_TRANSLATE_NOOP("property_types", "Transparency"),   "Transparency",   3, CZqPropertyType::kTransparencyGUID,  getTransparency, setTransparency},
    {QT_TRANSLATE_NOOP("property_types", "Hyperlink"),      "Hyperlink",      3, CZqPropertyType::kHyperlinkGUID,     getHyperlink,    setHyperlink},
};

}  // namespace

CZqEntityPE::CZqEntityPE() = default;
CZqEntityPE::~CZqEntityPE() = default;

CZqString CZqEntityPE::GetClassName(const OdDbObject*) const { return QCoreApplication::translate("entity_types", "Entity"); }

const OdArray<CZqPropertyDescription*>& CZqEntityPE::GeneralRows() {
  static const OdArray<CZqPropertyDescription*> rows = [] {
    OdArray<CZqPropertyDescription*> list;
    for (const GeneralRow& r : kGeneralRows) {
      auto* d = CZqCustomPropertyDescription::CreateStatic();
      d->SetCategory(QCoreApplication::translate("property_groups", "General"));
      d->SetName(QCoreApplication::translate("property_types", r.name));
      d->SetKeys(CZqString("General"), CZqString(r.name));
      d->SetType(CZqCustomPropertyType(r.type, r.guid ? CZqString(r.guid) : CZqString()));
      d->PutGetMethod(r.get);
      d->PutSetMethod(r.set);
      d->PutIsReadOnlyMethod(&CZqCustomPropertyPE::IsReadOnlyFalse);
      d->SetDarkIcon(QString(":/General/svg_icons/dark/General/General_%1.svg").arg(r.icon));
      d->SetLightIcon(QString(":/General/svg_icons/light/General/General_%1.svg").arg(r.icon));
      list.append(d);
    }
    return list;
  }();
  return rows;
}

void CZqEntityPE::GetPropertyNames(const OdDbObject*, CZqPropertiesContainer*& container, const OdRxClass*,
                                   const OdRxClass*, bool) {
  container = new CZqCustomPropertyContainer();
  container->Add(GeneralRows());
}

// ---------------------------------------------------------------------------

namespace {
bool g_factoryCreated = false;
}

void CZqPropertyPEClassFactory::create() { g_factoryCreated = true; }
void CZqPropertyPEClassFactory::destroy() { g_factoryCreated = false; }
bool CZqPropertyPEClassFactory::isCreated() { return g_factoryCreated; }

CZqPropertyBase* CZqPropertyPEClassFactory::providerFor(const OdDbObject* object) {
  if (!g_factoryCreated || !object || !CZqPropertyBase::desc()) return nullptr;
  OdRxObjectPtr x = object->queryX(CZqPropertyBase::desc());
  // Groups answer to a protocol of their own, which the palette knows by
  // its class name.
  if (!x)
    if (OdRxClass* groups = odrxClassDictionary().getAt(OdString("CZqGroupPE")); groups && groups->isDerivedFrom(CZqPropertyBase::desc()))
      x = object->queryX(groups);
  auto* pe = static_cast<CZqPropertyBase*>(x.get());
  return pe ? pe->GetPropertyPEOverride(object) : nullptr;
}
