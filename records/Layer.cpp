#include "Records.h"
#include "ZqRecordRows.h"

namespace {

using L = OdDbLayerTableRecord;

bool isOn(const L* l) { return !l->isOff(); }
bool isCurrent(const L* l) { return l->database() && l->database()->getCLAYER() == l->objectId(); }

CZqVariant getOn(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* l = ZqReadable<L>(object);
  return l ? ZqEnumeration(kZqYesNo, isOn(l) ? 0 : 1) : CZqVariant();
}
int setOn(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  L* l = ZqWritable<L>(object);
  int32_t tag = 0;
  if (!l || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  l->setIsOff(tag == 0);
  return kZqSetApplied;
}

// The current layer cannot be frozen: what is drawn next would not show.
int setFrozen(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& value, const CZqVariant& i) {
  const L* l = ZqWritable<L>(object);
  int32_t tag = 0;
  if (l && ZqChosenTag(value, tag) && tag == 1 && isCurrent(l))
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The current layer cannot be frozen."));
  return ZqSetFlag<L, &L::setIsFrozen, kZqYesNo>(object, d, value, i);
}

// A layer's colour is a colour of its own: never ByLayer or ByBlock.
int setColor(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& value, const CZqVariant& i) {
  if (value.GetType() == CZqVariant::kVtColor && (value.GetColor().isByLayer() || value.GetColor().isByBlock()))
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A layer's color must be a color of its own, not ByLayer or ByBlock."));
  return ZqSetColor<L, &L::setColor>(object, d, value, i);
}

int setLinetype(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& value, const CZqVariant& i) {
  if (!ZqWritable<L>(object)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqLinetypes, value, &why);
  if (!id.isNull()) {
    OdDbObjectPtr lt = id.openObject();
    const QString name = static_cast<OdDbSymbolTableRecord*>(lt.get())->getName().qstring();
    if (name.compare(QLatin1String("ByLayer"), Qt::CaseInsensitive) == 0 ||
        name.compare(QLatin1String("ByBlock"), Qt::CaseInsensitive) == 0)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A layer's linetype must be a linetype of its own, not ByLayer or ByBlock."));
  }
  return ZqSetRecord<L, &L::setLinetypeObjectId, kZqLinetypes>(object, d, value, i);
}

CZqVariant getLineweight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* l = ZqReadable<L>(object);
  return l ? CZqVariant(int32_t(l->lineWeight())) : CZqVariant();
}
int setLineweight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  L* l = ZqWritable<L>(object);
  if (!l || value.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
  const int32_t w = value.GetInt32();
  if (!OdDb::isValidLineWeight(w) || w == OdDb::kLnWtByLayer || w == OdDb::kLnWtByBlock)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A layer's lineweight must be Default or a standard lineweight from 0.00 mm to 2.11 mm."));
  l->setLineWeight(OdDb::LineWeight(w));
  return kZqSetApplied;
}

CZqVariant getTransparency(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* l = ZqReadable<L>(object);
  return l ? CZqVariant(CZqString(QString::number(l->transparency().percent()))) : CZqVariant();
}
int setTransparency(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  L* l = ZqWritable<L>(object);
  if (!l || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  bool ok = false;
  const int percent = value.GetString().qstring().trimmed().toInt(&ok);
  if (!ok || percent < 0 || percent > 90)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A layer's transparency must be a whole percentage from 0 to 90."));
  l->setTransparency(OdCmTransparency::fromPercent(percent));
  return kZqSetApplied;
}

constexpr auto getFrozen = ZqGetFlag<L, &L::isFrozen, kZqYesNo>;
constexpr auto getLocked = ZqGetFlag<L, &L::isLocked, kZqYesNo>;
constexpr auto setLocked = ZqSetFlag<L, &L::setIsLocked, kZqYesNo>;
constexpr auto getPlot = ZqGetFlag<L, &L::isPlottable, kZqYesNo>;
constexpr auto setPlot = ZqSetFlag<L, &L::setIsPlottable, kZqYesNo>;
constexpr auto getColor = ZqGetColor<L, &L::color>;
constexpr auto getLinetype = ZqGetRecord<L, &L::linetypeObjectId>;
constexpr auto getPlotStyle = ZqGetText<L, &L::plotStyleName>;
constexpr auto getDescription = ZqGetText<L, &L::description>;
constexpr auto setDescription = ZqSetText<L, &L::setDescription>;

const ZqRow kRows[] = {
//  category     name                                                  type           identifier                  read-only    get              set              icon
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,                    kZqEditable, ZqGetRecordName, ZqSetRecordName, nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "On"),            kZqCollection, nullptr,                    kZqEditable, getOn,           setOn,           nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Frozen"),        kZqCollection, nullptr,                    kZqEditable, getFrozen,       setFrozen,       nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Locked"),        kZqCollection, nullptr,                    kZqEditable, getLocked,       setLocked,       nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Plot"),          kZqCollection, nullptr,                    kZqEditable, getPlot,         setPlot,         nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Color"),         kZqColor,      nullptr,                    kZqEditable, getColor,        setColor,        nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Linetype"),      kZqId,         ZqGuid::kLinetypeGUID,      kZqEditable, getLinetype,     setLinetype,     nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Lineweight"),    kZqInt32,      ZqGuid::kLineweightGUID,    kZqEditable, getLineweight,   setLineweight,   nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Transparency"),  kZqString,     ZqGuid::kTransparencyGUID,  kZqEditable, getTransparency, setTransparency, nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Plot style"),    kZqString,     ZqGuid::kPlotStyleGUID,     kZqReadOnly, getPlotStyle,    nullptr,         nullptr},
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Description"),   kZqString,     nullptr,                    kZqEditable, getDescription,  setDescription,  nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqLayerPE, QT_TRANSLATE_NOOP("entity_types", "Layer"), kRows)
