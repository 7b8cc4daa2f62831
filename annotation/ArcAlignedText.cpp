#include "ArcAlignedText.h"
#include "ZqCallbacks.h"
#include "DbArcAlignedText.h"

namespace {

using R = OdDbArcAlignedText;

CZqVariant getContents(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* t = ZqReadable<R>(object);
  return t ? CZqVariant(CZqString(t->textString())) : CZqVariant();
}

// One line of text: control characters have no place on the arc.
int setContents(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  R* t = ZqWritable<R>(object);
  if (!t || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control) return kZqSetRefused;
  t->setTextString(OdString(s));
  return kZqSetApplied;
}

// Character spacing does not apply while the text is fitted to the arc.
bool isSpacingReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const R* t = ZqReadable<R>(object);
  return t && t->alignment() == R::kFit;
}

// The normal as a direction in the current UCS.
template <int Axis>
CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* t = ZqReadable<R>(object);
  if (!t) return CZqVariant();
  const OdDbCoordinateService ucs = ZqUcsOf(object);
  return ZqDouble((ucs.wcsToUcs(OdGePoint3d::kOrigin + t->normal()) - ucs.wcsToUcs(OdGePoint3d::kOrigin))[Axis]);
}

// Angles shown within one turn, from 0.
template <double (R::*Get)() const>
CZqVariant getAngle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* t = ZqReadable<R>(object);
  if (!t) return CZqVariant();
  const double a = (t->*Get)();
  return ZqDouble(a < 0 ? a + Oda2PI : a);
}

constexpr auto getHeight = ZqGetDouble<R, &R::textSize>;
constexpr auto setHeight = ZqSetDouble<R, &R::setTextSize>;
constexpr auto getWidth = ZqGetDouble<R, &R::xScale>;
constexpr auto setWidth = ZqSetDouble<R, &R::setXScale>;
constexpr auto getSpacing = ZqGetDouble<R, &R::charSpacing>;
constexpr auto setSpacing = ZqSetDouble<R, &R::setCharSpacing>;
constexpr auto getRadius = ZqGetDouble<R, &R::radius>;
constexpr auto setRadius = ZqSetDouble<R, &R::setRadius>;
constexpr auto getStart = getAngle<&R::startAngle>;
constexpr auto setStart = ZqSetDouble<R, &R::setStartAngle>;
constexpr auto getEnd = getAngle<&R::endAngle>;
constexpr auto setEnd = ZqSetDouble<R, &R::setEndAngle>;
constexpr auto getArcOffset = ZqGetDouble<R, &R::offsetFromArc>;
constexpr auto setArcOffset = ZqSetDouble<R, &R::setOffsetFromArc>;
constexpr auto getLeftOffset = ZqGetDouble<R, &R::leftOffset>;
constexpr auto setLeftOffset = ZqSetDouble<R, &R::setLeftOffset>;
constexpr auto getRightOffset = ZqGetDouble<R, &R::rightOffset>;
constexpr auto setRightOffset = ZqSetDouble<R, &R::setRightOffset>;
template <int Axis> constexpr auto getCenter = ZqGetUcsCoordinate<R, &R::center, Axis>;
template <int Axis> constexpr auto setCenter = ZqSetUcsCoordinate<R, &R::center, &R::setCenter, Axis>;

// Refused without a message box, as the palette does for this object; the
// host still has the sentence. A height of exactly 0 or less is refused; a
// radius must be greater than 1e-10. A width factor of 0 or less would turn
// the text inside out and is refused too.
constexpr ZqLimit kHeight = ZqSilent(ZqExact(kZqPositive));
constexpr ZqLimit kRadius = ZqSilent(kZqPositive);
constexpr ZqLimit kWidth = ZqSilent(ZqExact(kZqPositive));
constexpr ZqLimit kQuiet = ZqSilent(kZqAny);

#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
#define ZQ_POSITION QT_TRANSLATE_NOOP("property_groups", "Position")

const ZqRow kRows[] = {
//  category     name                                                type        identifier                read-only          get              set              icon                  visibility  limit    icon folder
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Contents"),     kZqUntyped, nullptr,                  kZqEditable,       getContents,     setContents,     "Text_Contents"},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Height"),       kZqUntyped, nullptr,                  kZqEditable,       getHeight,       setHeight,       "Text_Height",        kVisKeep,   kHeight},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Width Factor"), kZqUntyped, nullptr,                  kZqEditable,       getWidth,        setWidth,        "Text_WidthFactor",   kVisKeep,   kWidth},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Char Spacing"), kZqUntyped, nullptr,                  isSpacingReadOnly, getSpacing,      setSpacing,      "Text_CharSpacing",   kVisKeep,   kQuiet},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Center X"),     kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable,       getCenter<0>,    setCenter<0>,    "Geometry_CenterX",   kVisKeep,   kQuiet},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Center Y"),     kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable,       getCenter<1>,    setCenter<1>,    "Geometry_CenterY",   kVisKeep,   kQuiet},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Center Z"),     kZqDouble,  ZqGuid::kCoordinateZGUID, kZqEditable,       getCenter<2>,    setCenter<2>,    "Geometry_CenterZ",   kVisKeep,   kQuiet},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Normal X"),     kZqDouble,  nullptr,                  kZqReadOnly,       getNormal<0>,    nullptr,         "Geometry_NormalX"},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Normal Y"),     kZqDouble,  nullptr,                  kZqReadOnly,       getNormal<1>,    nullptr,         "Geometry_NormalY"},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Normal Z"),     kZqDouble,  nullptr,                  kZqReadOnly,       getNormal<2>,    nullptr,         "Geometry_NormalZ"},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Radius"),       kZqUntyped, nullptr,                  kZqEditable,       getRadius,       setRadius,       "Geometry_Radius",    kVisKeep,   kRadius},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "Start Angle"),  kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable,       getStart,        setStart,        "Geometry_StartAngle", kVisKeep,  kQuiet},
  {ZQ_POSITION, QT_TRANSLATE_NOOP("property_types", "End Angle"),    kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable,       getEnd,          setEnd,          "Geometry_EndAngle",  kVisKeep,   kQuiet},
  // The offset icons are named after the offset, not after their category.
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Arc Offset"),   kZqUntyped, nullptr,                  kZqEditable,       getArcOffset,    setArcOffset,    "Arc_Offset",         kVisKeep,   kQuiet,  "Misc"},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Left Offset"),  kZqUntyped, nullptr,                  kZqEditable,       getLeftOffset,   setLeftOffset,   "Offset_Left",        kVisKeep,   kQuiet,  "Misc"},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Right Offset"), kZqUntyped, nullptr,                  kZqEditable,       getRightOffset,  setRightOffset,  "Offset_Right",       kVisKeep,   kQuiet,  "Misc"},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqArcAlignedTextPE, QT_TRANSLATE_NOOP("entity_types", "ArcAlignedText"), kRows)
