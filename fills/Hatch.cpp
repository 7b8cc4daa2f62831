#include "Hatch.h"
#include "ZqAreaText.h"
#include "ZqCallbacks.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "DbHatch.h"

#define ZQ_PATTERN QT_TRANSLATE_NOOP("property_groups", "Pattern")
#define ZQ_GRADIENT QT_TRANSLATE_NOOP("property_groups", "Gradient")

namespace {

using H = OdDbHatch;

const ZqChoice kPatternTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "Predefined"), H::kPreDefined},
    {QT_TRANSLATE_NOOP("property_values", "User defined"), H::kUserDefined},
    {QT_TRANSLATE_NOOP("property_values", "Custom"), H::kCustomDefined},
};
const ZqChoice kIslandStyles[] = {
    {QT_TRANSLATE_NOOP("property_values", "Normal"), H::kNormal},
    {QT_TRANSLATE_NOOP("property_values", "Outer"), H::kOuter},
    {QT_TRANSLATE_NOOP("property_values", "Ignore"), H::kIgnore},
};
// The gradient names, tagged by their place in OdDbHatch::gradientNames().
const ZqChoice kGradients[] = {
    {"LINEAR", 0}, {"CYLINDER", 1}, {"INVCYLINDER", 2}, {"SPHERICAL", 3}, {"INVSPHERICAL", 4},
    {"HEMISPHERICAL", 5}, {"INVHEMISPHERICAL", 6}, {"CURVED", 7}, {"INVCURVED", 8},
};

// The shift of a gradient that is not centred.
constexpr double kOffCentreShift = 0.25;

int patternType(const H* h) { return h->patternType(); }
int islandStyle(const H* h) { return h->hatchStyle(); }

// Enumerations over values the hatch keeps as enums or derives: the flag
// and choice families for free functions.
template <bool (*Get)(const H*)>
CZqVariant getYesNo(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? ZqEnumeration(kZqYesNo, Get(h) ? 0 : 1) : CZqVariant();
}
template <void (*Set)(H*, bool)>
int setYesNo(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  H* h = ZqWritable<H>(object);
  int32_t tag = 0;
  if (!h || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag == 0 || tag == 1) Set(h, tag == 1);
  return kZqSetApplied;
}
template <int (*Get)(const H*), const auto& Choices>
CZqVariant getChoice(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? ZqEnumeration(Choices, ZqChoiceIndex(Choices, Get(h))) : CZqVariant();
}
template <void (*Set)(H*, int), const auto& Choices>
int setChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant&) {
  H* h = ZqWritable<H>(object);
  int32_t tag = 0;
  if (!h || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(Choices, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), Choices));
  Set(h, tag);
  return kZqSetApplied;
}

CZqVariant getType(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? ZqEnumeration(kPatternTypes, ZqChoiceIndex(kPatternTypes, patternType(h))) : CZqVariant();
}

CZqVariant getPatternName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? CZqVariant(h->patternName().qstring()) : CZqVariant();
}

// A predefined pattern by name (SOLID: a solid fill); a user-defined
// hatch becomes predefined. A name the pattern library lacks is refused.
int setPatternName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  H* h = ZqWritable<H>(object);
  if (!h || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString name = value.GetString().qstring().trimmed();
  if (!H::isPredefinedPattern(OdString(name)))
    return ZqRefuseWith(QCoreApplication::translate("errors", "There is no hatch pattern named \"%1\".").arg(name));
  if (h->patternType() == H::kPreDefined && h->patternName().iCompare(OdString(name)) == 0) return kZqSetApplied;
  h->setPattern(H::kPreDefined, OdString(name));
  return kZqSetApplied;
}

bool patternNameReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const H* h = ZqReadable<H>(object);
  return !h || h->isGradient();
}

// Scale applies to predefined and custom patterns, spacing and double to
// user-defined ones; a solid fill has neither.
bool scaleReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const H* h = ZqReadable<H>(object);
  return !h || h->isSolidFill() || h->isGradient() || h->patternType() == H::kUserDefined;
}
bool spacingReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const H* h = ZqReadable<H>(object);
  return !h || h->isSolidFill() || h->isGradient() || h->patternType() != H::kUserDefined;
}
bool originReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const H* h = ZqReadable<H>(object);
  return !h || h->patternLines().isEmpty();
}

// The pattern origin lies in the hatch's plane; it shows in the UCS and an
// edit goes back into the plane.
OdGePoint3d originWcs(const H* h) {
  const OdGePoint2d o = h->originPoint();
  return OdGeMatrix3d::planeToWorld(h->normal()) * OdGePoint3d(o.x, o.y, h->elevation());
}

template <int Axis>
CZqVariant getOrigin(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? ZqDouble(ZqUcsOf(object).wcsToUcs(originWcs(h))[Axis]) : CZqVariant();
}

template <int Axis>
int setOrigin(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant&) {
  H* h = ZqWritable<H>(object);
  if (!h) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p = originWcs(h);
  if (!ZqReplaceUcsCoordinate(object, p, Axis, v)) return kZqSetApplied;
  const OdGePoint3d ocs = OdGeMatrix3d::worldToPlane(h->normal()) * p;
  h->setOriginPoint(OdGePoint2d(ocs.x, ocs.y));
  return kZqSetApplied;
}

bool isDouble(const H* h) { return h->patternDouble(); }
void setDouble(H* h, bool on) { h->setPatternDouble(on); }
bool isAssociative(const H* h) { return h->associative(); }

// A hatch becomes associative only with the objects it was made from.
int setAssociative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  H* h = ZqWritable<H>(object);
  int32_t tag = 0;
  if (!h || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag == 1 && !h->associative() && h->sourceHandles().isEmpty())
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Only a hatch made from boundary objects can be associative"));
  if (tag == 0 || tag == 1) h->setAssociative(tag == 1);
  return kZqSetApplied;
}

void setIslandStyle(H* h, int style) { h->setHatchStyle(H::HatchStyle(style)); }

CZqVariant getBackground(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? CZqVariant(h->backgroundColor()) : CZqVariant();
}

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const H* h = ZqReadable<H>(object);
  if (!h) return CZqVariant();
  double area = 0;
  if (h->getArea(area) != eOk)
    return index.GetType() == CZqVariant::kVtDouble ? CZqVariant()
                                                    : CZqVariant(QCoreApplication::translate("property_values", "Not computable"));
  return ZqAreaValue(object, area, index, QCoreApplication::translate("CZqHatchPE", "%1 sq. in. (%2 sq. ft.)"));
}

CZqVariant getBoundaries(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? CZqVariant(int32_t(h->numLoops())) : CZqVariant();
}

template <int Axis>
CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? ZqDouble(ZqUcsOf(object).wcsToUcs(h->normal())[Axis]) : CZqVariant();
}

// --- Gradient ---------------------------------------------------------------

bool isGradient(const OdDbObject* object) {
  const H* h = ZqReadable<H>(object);
  return h && h->isGradient();
}

int gradientIndex(const H* h) {
  const OdArray<OdString>& names = H::gradientNames();
  for (unsigned i = 0; i < names.length(); ++i)
    if (names[i].iCompare(h->gradientName()) == 0) return int(i);
  return -1;
}
void setGradientIndex(H* h, int index) { h->setGradientName(H::gradientNames()[index]); }

template <int Index>
CZqVariant getGradientColor(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const H* h = ZqReadable<H>(object);
  return h ? CZqVariant(h->gradientColor(Index)) : CZqVariant();
}

// Gradient colours are kept as red, green and blue; an index colour is
// taken as its palette colour. ByLayer and ByBlock have no colour of their own.
template <int Index>
int setGradientColor(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  H* h = ZqWritable<H>(object);
  if (!h || value.GetType() != CZqVariant::kVtColor) return kZqSetRefused;
  OdCmColor c = value.GetColor();
  if (c.isByACI()) {
    uint8_t r = 0, g = 0, b = 0;
    OdCmColor::paletteRGB(c.colorIndex(), r, g, b);
    c = OdCmColor::fromRGB(r, g, b);
  }
  if (!c.isByColor()) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A gradient colour must be a colour of its own, not ByLayer or ByBlock"));
  h->setGradientColor(Index, c);
  return kZqSetApplied;
}

bool isCentered(const H* h) { return h->gradientShift() == 0; }
void setCentered(H* h, bool on) {
  if (on != isCentered(h)) h->setGradientShift(on ? 0 : kOffCentreShift);
}

// --- Matching ----------------------------------------------------------------

// Takes the source hatch's pattern and island style; the target keeps its
// boundary and its pattern origin.
int matchHatch(const OdDbEntity* source, OdDbObject* target) {
  const H* from = odrxCast<H>(source);
  H* to = odrxCast<H>(target);
  if (!from || !to) return kZqSetApplied;
  const OdGePoint2d origin = to->originPoint();
  to->setPatternData(from->patternType(), from->patternName(), from->isSolidFill(), from->patternAngle(),
                     from->patternScale(), from->patternSpace(), from->patternDouble(), from->patternLines());
  to->setOriginPoint(origin);
  to->setHatchStyle(from->hatchStyle());
  return kZqSetApplied;
}

int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<H>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &matchHatch);
}

constexpr auto getAngle = ZqGetDouble<H, &H::patternAngle>;
constexpr auto setAngle = ZqSetDouble<H, &H::setPatternAngle>;
constexpr auto getScale = ZqGetDouble<H, &H::patternScale>;
constexpr auto setScale = ZqSetDouble<H, &H::setPatternScale>;
constexpr auto getSpacing = ZqGetDouble<H, &H::patternSpace>;
constexpr auto setSpacing = ZqSetDouble<H, &H::setPatternSpace>;
constexpr auto getDouble = getYesNo<&isDouble>;
constexpr auto setDoubleRow = setYesNo<&setDouble>;
constexpr auto getAssociative = getYesNo<&isAssociative>;
constexpr auto getIslands = getChoice<&islandStyle, kIslandStyles>;
constexpr auto setIslands = setChoice<&setIslandStyle, kIslandStyles>;
constexpr auto setBackground = ZqSetColor<H, &H::setBackgroundColor>;
constexpr auto getElevation = ZqGetDouble<H, &H::elevation>;
constexpr auto setElevation = ZqSetDouble<H, &H::setElevation>;
constexpr auto getGradientName = getChoice<&gradientIndex, kGradients>;
constexpr auto setGradientName = setChoice<&setGradientIndex, kGradients>;
constexpr auto getGradientAngle = ZqGetDouble<H, &H::gradientAngle>;
constexpr auto setGradientAngle = ZqSetDouble<H, &H::setGradientAngle>;
constexpr auto getCentered = getYesNo<&isCentered>;
constexpr auto setCenteredRow = setYesNo<&setCentered>;

const ZqRow kRows[] = {
//  category      name                                                           type           identifier                              read-only             get                  set                  icon                        visibility     limit
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Type"),                   kZqCollection, nullptr,                                kZqReadOnly,          getType,             nullptr,             nullptr,                    kVisKeep},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Pattern name"),           kZqString,     nullptr,                                patternNameReadOnly,  getPatternName,      setPatternName,      nullptr,                    kVisOr4},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Angle"),                  kZqDouble,     ZqGuid::kAngleGUID,                     kZqEditable,          getAngle,            setAngle,            nullptr,                    kVisOr4},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Scale"),                  kZqDouble,     nullptr,                                scaleReadOnly,        getScale,            setScale,            nullptr,                    kVisOr4,       kZqPositive},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Spacing"),                kZqDouble,     nullptr,                                spacingReadOnly,      getSpacing,          setSpacing,          nullptr,                    kVisOr4,       kZqPositive},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Double"),                 kZqCollection, nullptr,                                spacingReadOnly,      getDouble,           setDoubleRow,        nullptr,                    kVisOr4},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Origin X"),               kZqDouble,     ZqGuid::kCoordinateXGUID,               originReadOnly,       getOrigin<0>,        setOrigin<0>,        nullptr,                    kVisKeep},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Origin Y"),               kZqDouble,     ZqGuid::kCoordinateYGUID,               originReadOnly,       getOrigin<1>,        setOrigin<1>,        nullptr,                    kVisKeep},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Associative"),            kZqCollection, nullptr,                                kZqEditable,          getAssociative,      setAssociative,      nullptr,                    kVisKeep},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Island detection style"), kZqCollection, nullptr,                                kZqEditable,          getIslands,          setIslands,          nullptr,                    kVisOr4},
  {ZQ_PATTERN,   QT_TRANSLATE_NOOP("property_types", "Background color"),       kZqColor,      ZqGuid::kBackgroundColorWithNoneGUID,   kZqEditable,          getBackground,       setBackground,       nullptr,                    kVisOr4},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Elevation"),              kZqDouble,     nullptr,                                kZqEditable,          getElevation,        setElevation,        nullptr,                    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Area"),                   kZqUntyped,    nullptr,                                kZqReadOnly,          getArea,             nullptr,             nullptr,                    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Boundaries"),             kZqInt32,      nullptr,                                kZqReadOnly,          getBoundaries,       nullptr,             nullptr,                    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal X"),               kZqDouble,     nullptr,                                kZqReadOnly,          getNormal<0>,        nullptr,             nullptr,                    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal Y"),               kZqDouble,     nullptr,                                kZqReadOnly,          getNormal<1>,        nullptr,             nullptr,                    kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Normal Z"),               kZqDouble,     nullptr,                                kZqReadOnly,          getNormal<2>,        nullptr,             nullptr,                    kVisKeep},
  {ZQ_MATCHPROP, "MATCHPROP_Hatch",                                             kZqUntyped,    nullptr,                                nullptr,              ZqGetOwnId,          setMatch,            "",                         kVisMatchProp},
};

// Rows of gradient fills only.
const ZqConditionalRow kGradientRows[] = {
//  when         category     name                                                   type           identifier                read-only    get                    set                    icon      visibility
  {isGradient, {ZQ_GRADIENT, QT_TRANSLATE_NOOP("property_types", "Gradient name"),  kZqCollection, nullptr,                  kZqEditable, getGradientName,       setGradientName,       nullptr,  kVisKeep}},
  {isGradient, {ZQ_GRADIENT, QT_TRANSLATE_NOOP("property_types", "Color 1"),        kZqColor,      ZqGuid::kHatchColorGUID,  kZqEditable, getGradientColor<0>,   setGradientColor<0>,   nullptr,  kVisKeep}},
  {isGradient, {ZQ_GRADIENT, QT_TRANSLATE_NOOP("property_types", "Color 2"),        kZqColor,      ZqGuid::kHatchColorGUID,  kZqEditable, getGradientColor<1>,   setGradientColor<1>,   nullptr,  kVisKeep}},
  {isGradient, {ZQ_GRADIENT, QT_TRANSLATE_NOOP("property_types", "Gradient angle"), kZqDouble,     ZqGuid::kAngleGUID,       kZqEditable, getGradientAngle,      setGradientAngle,      nullptr,  kVisKeep}},
  {isGradient, {ZQ_GRADIENT, QT_TRANSLATE_NOOP("property_types", "Centered"),       kZqCollection, nullptr,                  kZqEditable, getCentered,           setCenteredRow,        nullptr,  kVisKeep}},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqHatchPE, QT_TRANSLATE_NOOP("entity_types", "Hatch"), kRows, kGradientRows)

void CZqHatchInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbHatch>(this, object, context, [&](const OdDbHatch* h) {
    auto label = [](const char* key) { return QCoreApplication::translate("info_items", key); };
    const int type = ZqChoiceIndex(kPatternTypes, h->patternType());
    context->PrintString(label(QT_TRANSLATE_NOOP("info_items", "Pattern type")),
                         QCoreApplication::translate("property_values", kPatternTypes[type].word));
    context->PrintString(label(QT_TRANSLATE_NOOP("info_items", "Pattern name")), h->patternName().qstring());
    if (!h->isSolidFill()) {
      context->PrintAngle(label(QT_TRANSLATE_NOOP("info_items", "Angle")), h->patternAngle());
      if (h->patternType() == H::kUserDefined) {
        context->PrintDist(label(QT_TRANSLATE_NOOP("info_items", "Spacing")), h->patternSpace());
        context->PrintBool(label(QT_TRANSLATE_NOOP("info_items", "Double")), h->patternDouble());
      } else {
        context->PrintScale(label(QT_TRANSLATE_NOOP("info_items", "Scale")), h->patternScale());
      }
      context->PrintPoint(label(QT_TRANSLATE_NOOP("info_items", "Origin")), originWcs(h));
    }
    if (h->isGradient())
      context->PrintString(label(QT_TRANSLATE_NOOP("info_items", "Gradient name")), h->gradientName().qstring());
    context->PrintBool(label(QT_TRANSLATE_NOOP("info_items", "Associative")), h->associative());
    context->PrintString(label(QT_TRANSLATE_NOOP("info_items", "Island detection style")),
                         QCoreApplication::translate("property_values", kIslandStyles[ZqChoiceIndex(kIslandStyles, h->hatchStyle())].word));
    context->PrintInt(label(QT_TRANSLATE_NOOP("info_items", "Boundaries")), h->numLoops());
    double area = 0;
    if (h->getArea(area) == eOk)
      context->PrintArea(label(QT_TRANSLATE_NOOP("info_items", "Area")), area);
    else
      context->PrintString(label(QT_TRANSLATE_NOOP("info_items", "Area")),
                           QCoreApplication::translate("info_values", "not computable (the boundary crosses itself or is open)"));
    context->PrintDist(label(QT_TRANSLATE_NOOP("info_items", "Elevation")), h->elevation());
    if (context->IsPrintInUCS())
      context->PrintVector3D(label(QT_TRANSLATE_NOOP("info_items", "Extrusion direction relative to UCS")), h->normal());
  });
}
