#include "Text.h"
#include "ZqAnnotativeRows.h"
#include "ZqCallbacks.h"
#include "CZqObjectAnnotationContext.h"
#include "ZqInfoFrame.h"
#include "DbText.h"
#include "DbMText.h"
#include "DbSymbolTable.h"
#include "OdGeMatrix3d.h"
#include <cmath>

namespace {

using T = OdDbText;

// --- Justification -----------------------------------------------------------

struct Justification {
  ZqChoice choice;  // word and tag (the tag is the place in the table)
  OdDb::TextHorzMode horizontal;
  OdDb::TextVertMode vertical;
};

const Justification kJustifications[] = {
  {{QT_TRANSLATE_NOOP("property_values", "Left"), 0},           OdDb::kTextLeft,   OdDb::kTextBase},
  {{QT_TRANSLATE_NOOP("property_values", "Center"), 1},         OdDb::kTextCenter, OdDb::kTextBase},
  {{QT_TRANSLATE_NOOP("property_values", "Right"), 2},          OdDb::kTextRight,  OdDb::kTextBase},
  {{QT_TRANSLATE_NOOP("property_values", "Aligned"), 3},        OdDb::kTextAlign,  OdDb::kTextBase},
  {{QT_TRANSLATE_NOOP("property_values", "Middle"), 4},         OdDb::kTextMid,    OdDb::kTextBase},
  {{QT_TRANSLATE_NOOP("property_values", "Fit"), 5},            OdDb::kTextFit,    OdDb::kTextBase},
  {{QT_TRANSLATE_NOOP("property_values", "Top Left"), 6},       OdDb::kTextLeft,   OdDb::kTextTop},
  {{QT_TRANSLATE_NOOP("property_values", "Top Center"), 7},     OdDb::kTextCenter, OdDb::kTextTop},
  {{QT_TRANSLATE_NOOP("property_values", "Top Right"), 8},      OdDb::kTextRight,  OdDb::kTextTop},
  {{QT_TRANSLATE_NOOP("property_values", "Middle Left"), 9},    OdDb::kTextLeft,   OdDb::kTextVertMid},
  {{QT_TRANSLATE_NOOP("property_values", "Middle Center"), 10}, OdDb::kTextCenter, OdDb::kTextVertMid},
  {{QT_TRANSLATE_NOOP("property_values", "Middle Right"), 11},  OdDb::kTextRight,  OdDb::kTextVertMid},
  {{QT_TRANSLATE_NOOP("property_values", "Bottom Left"), 12},   OdDb::kTextLeft,   OdDb::kTextBottom},
  {{QT_TRANSLATE_NOOP("property_values", "Bottom Center"), 13}, OdDb::kTextCenter, OdDb::kTextBottom},
  {{QT_TRANSLATE_NOOP("property_values", "Bottom Right"), 14},  OdDb::kTextRight,  OdDb::kTextBottom},
};
constexpr int kLeft = 0, kAligned = 3, kFit = 5;

// The choices of the enumeration, in table order.
const std::array<ZqChoice, std::size(kJustifications)> kJustifyChoices = [] {
  std::array<ZqChoice, std::size(kJustifications)> choices{};
  for (size_t i = 0; i < choices.size(); ++i) choices[i] = kJustifications[i].choice;
  return choices;
}();

// The first table entry with the text's pair of modes; 0 ("Left") when
// none has it.
int justificationOf(const T* text) {
  for (const Justification& j : kJustifications)
    if (j.horizontal == text->horizontalMode() && j.vertical == text->verticalMode()) return j.choice.tag;
  return kLeft;
}

bool isAlignedOrFit(const T* text) {
  return text->horizontalMode() == OdDb::kTextAlign || text->horizontalMode() == OdDb::kTextFit;
}

// The far end of the text's base line, as the style's font measures it.
OdGePoint3d baseLineEnd(const T* text) {
  OdArray<OdGePoint3d> box;
  text->getBoundingPoints(box);
  return box[3];
}

CZqVariant getJustify(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  return text ? ZqEnumeration(kJustifyChoices, justificationOf(text)) : CZqVariant();
}

int setJustify(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
               const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  int32_t tag = 0;
  if (!text || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag < 0 || tag >= int(std::size(kJustifications)))
    return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), kJustifyChoices));
  const Justification& next = kJustifications[tag];
  if (next.horizontal == text->horizontalMode() && next.vertical == text->verticalMode()) return kZqSetApplied;
  // Aligned and fitted text takes its size from its two points, which an
  // annotative text (sized per scale) cannot.
  if ((tag == kAligned || tag == kFit) && ZqIsAnnotative(text))
    return ZqRefuseWith(QCoreApplication::translate("errors", "A text justified Aligned or Fit cannot be annotative."));
  const int old = justificationOf(text);
  // Aligned and fitted text is stretched between its two points; it comes
  // out level and unstretched.
  if (old == kAligned || old == kFit) {
    text->setRotation(0);
    text->setWidthFactor(1.0);
  }
  // A text that was left-justified keeps its start point as the point the
  // new justification holds on to (its alignment point is not used while
  // it is left-justified and may be anywhere).
  if (old == kLeft && tag != kLeft) text->setAlignmentPoint(text->position());
  if (tag == kLeft && old != kAligned && old != kFit) text->setPosition(text->alignmentPoint());
  if (tag == kAligned || tag == kFit) {
    text->setAlignmentPoint(baseLineEnd(text));
    text->setHorizontalMode(next.horizontal);
    text->setVerticalMode(OdDb::kTextBase);
    return kZqSetApplied;
  }
  if (tag == kLeft) text->setAlignmentPoint(text->position());
  text->setHorizontalMode(next.horizontal);
  text->setVerticalMode(next.vertical);
  return kZqSetApplied;
}

// --- Read-only rules -------------------------------------------------------------

// Aligned and fitted text takes its rotation from its two points.
bool isRotationReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const T* text = ZqReadable<T>(object);
  if (!text) return false;
  bool followsSheet = false;
  return isAlignedOrFit(text) || (ZqIsAnnotative(text, &followsSheet) && followsSheet);
}

// A left-justified text does not use its alignment point.
bool isAlignmentReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const T* text = ZqReadable<T>(object);
  return text && text->isDefaultAlignment();
}

// The position is the text's own point only for "Left", "Aligned" and
// "Fit"; for the others it follows from the alignment point.
bool isPositionReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const T* text = ZqReadable<T>(object);
  return text && !isAlignedOrFit(text) && !text->isDefaultAlignment();
}

// The text's style record, open for read (null: none).
OdDbTextStyleTableRecordPtr styleOf(const T* text) {
  const OdDbObjectId id = text->textStyle();
  if (id.isNull() || id.isErased()) return OdDbTextStyleTableRecordPtr();
  return OdDbTextStyleTableRecord::cast(id.openObject(OdDb::kForRead).get());
}

constexpr int kStyleBackward = 2, kStyleUpsideDown = 4;

bool styleHas(const T* text, int flag) {
  const OdDbTextStyleTableRecordPtr style = styleOf(text);
  return style && (style->textGenerationFlags() & flag);
}

// A style that is upside down (backward) makes every text of it so.
bool isUpsideDownReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const T* text = ZqReadable<T>(object);
  return text && styleHas(text, kStyleUpsideDown);
}
bool isBackwardReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const T* text = ZqReadable<T>(object);
  return text && styleHas(text, kStyleBackward);
}

// --- Getters and setters -----------------------------------------------------------

CZqVariant getContents(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  return text ? CZqVariant(CZqString(text->textString())) : CZqVariant();
}

// A single line: line breaks and other control characters are refused.
int setContents(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  if (!text || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control) return kZqSetRefused;
  if (s != text->textString().qstring()) text->setTextString(OdString(s));
  return kZqSetApplied;
}

// Height and width factor: clearing the field (a value that counts as
// zero) re-applies the current value and succeeds; negative values are
// refused by the row's limit.
template <double (T::*Get)() const, void (T::*Set)(double)>
int setSize(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
            const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  if (!text || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  double v = value.GetDouble();
  if (ZqIsZero(v)) v = (text->*Get)();
  if (const int refused = ZqCheckLimit(description, v)) return refused;
  (text->*Set)(v);
  return kZqSetApplied;
}

// Shown within one turn, from 0.
CZqVariant getRotation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  if (!text) return CZqVariant();
  bool followsSheet = false;
  if (ZqIsAnnotative(text, &followsSheet) && followsSheet) return ZqDouble(0.0);
  const double r = text->rotation();
  return ZqDouble(r < 0 ? r + Oda2PI : r);
}

template <bool (T::*Mirrored)() const, int StyleFlag>
CZqVariant getMirror(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  if (!text) return CZqVariant();
  return ZqEnumeration(kZqYesNo, styleHas(text, StyleFlag) || (text->*Mirrored)() ? 0 : 1);
}

// Tag 1 mirrors, any other tag clears.
template <void (T::*Mirror)(bool)>
int setMirror(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  int32_t tag = 0;
  if (!text || !ZqChosenTag(value, tag)) return kZqSetRefused;
  (text->*Mirror)(tag == 1);
  return kZqSetApplied;
}

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  return text ? CZqVariant(text->textStyle()) : CZqVariant();
}

// Sets the style and applies the style's fixed values: obliquing angle,
// width factor (when the style has one), upside down and backward.
int setStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  if (!text || value.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqTextStyles, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  OdDbObjectPtr record = id.openObject(OdDb::kForRead);
  const OdDbTextStyleTableRecord* style = OdDbTextStyleTableRecord::cast(record.get()).get();
  if (!style) throw OdError_NotThatKindOfClass(record->isA(), OdDbTextStyleTableRecord::desc());
  const double oblique = style->obliquingAngle(), xScale = style->xScale();
  const int flags = style->textGenerationFlags();
  text->setTextStyle(id);
  if (std::isfinite(oblique) && std::fabs(std::remainder(oblique, Oda2PI)) <= 85.0 * OdaPI / 180.0)
    text->setOblique(oblique);
  if (xScale > kZqZeroTolerance && std::isfinite(xScale)) text->setWidthFactor(xScale);
  text->mirrorInY(flags & kStyleUpsideDown);
  text->mirrorInX(flags & kStyleBackward);
  CZqObjectAnnotationContext::UpdateTextFromTextStyle(text);
  return kZqSetApplied;
}

int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<OdDbEntity>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &ZqMatchTextProperties);
}

constexpr auto getThickness = ZqGetDouble<T, &T::thickness>;
constexpr auto setThickness = ZqSetDouble<T, &T::setThickness>;
constexpr auto getHeight = ZqGetDouble<T, &T::height>;
constexpr auto setHeight = setSize<&T::height, &T::setHeight>;
constexpr auto setRotation = ZqSetDouble<T, &T::setRotation>;
constexpr auto getWidth = ZqGetDouble<T, &T::widthFactor>;
constexpr auto setWidth = setSize<&T::widthFactor, &T::setWidthFactor>;
constexpr auto getOblique = ZqGetDouble<T, &T::oblique>;
constexpr auto setOblique = ZqSetDouble<T, &T::setOblique>;
template <int Axis> constexpr auto getAlignment = ZqGetUcsCoordinate<T, &T::alignmentPoint, Axis>;
template <int Axis> constexpr auto setAlignment = ZqSetUcsCoordinate<T, &T::alignmentPoint, &T::setAlignmentPoint, Axis>;
template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<T, &T::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<T, &T::position, &T::setPosition, Axis>;
constexpr auto getUpsideDown = getMirror<&T::isMirroredInY, kStyleUpsideDown>;
constexpr auto setUpsideDown = setMirror<&T::mirrorInY>;
constexpr auto getBackward = getMirror<&T::isMirroredInX, kStyleBackward>;
constexpr auto setBackward = setMirror<&T::mirrorInX>;

// Sizes greater than 0; obliquing within 85 degrees either way. Refused
// without a message box.
constexpr ZqLimit kSize = ZqSilent(kZqPositive);
// Any finite number (NaN and infinities refused without a box).
constexpr ZqLimit kQuiet = ZqSilent(kZqAny);
constexpr ZqLimit kOblique = ZqSilent(ZqRange(-85.0 * OdaPI / 180.0, 85.0 * OdaPI / 180.0));

#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
constexpr ZqVis kVisEdition = kVisOr4UnlessStandard;

const ZqRow kRows[] = {
//  category     name                                                     type        identifier                read-only             get               set               icon                     visibility   limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Thickness"),         kZqUntyped, nullptr,                  kZqEditable,          getThickness,     setThickness,     nullptr,                 kVisOr4,     kQuiet},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Contents"),          kZqUntyped, nullptr,                  kZqEditable,          getContents,      setContents,      "Text_ContentsSimple",   kVisKeep},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "TextStyle"),         kZqId,      ZqGuid::kTextStyleGUID,   kZqEditable,          getStyle,         setStyle,         nullptr,                 kVisKeep},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Justify"),           kZqUntyped, nullptr,                  kZqEditable,          getJustify,       setJustify,       nullptr,                 kVisKeep},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Height"),            kZqUntyped, nullptr,                  kZqEditable,          getHeight,        setHeight,        nullptr,                 kVisEdition, kSize},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Rotation"),          kZqDouble,  ZqGuid::kAngleGUID,       isRotationReadOnly,   getRotation,      setRotation,      nullptr,                 kVisEdition, kQuiet},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Spacing"),           kZqUntyped, nullptr,                  kZqEditable,          getWidth,         setWidth,         "Text_WidthFactor",      kVisEdition, kSize},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Angle"),             kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable,          getOblique,       setOblique,       "Text_Obliquing",        kVisEdition, kOblique},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Text alignment X"),  kZqUntyped, nullptr,                  isAlignmentReadOnly,  getAlignment<0>,  setAlignment<0>,  "Text_TextAlignmentX",   kVisKeep},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Text alignment Y"),  kZqUntyped, nullptr,                  isAlignmentReadOnly,  getAlignment<1>,  setAlignment<1>,  "Text_TextAlignmentY",   kVisKeep},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Text alignment Z"),  kZqUntyped, nullptr,                  isAlignmentReadOnly,  getAlignment<2>,  setAlignment<2>,  "Text_TextAlignmentZ",   kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),        kZqDouble,  ZqGuid::kCoordinateXGUID, isPositionReadOnly,   getPosition<0>,   setPosition<0>,   "Geometry_CoordinateX",  kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),        kZqDouble,  ZqGuid::kCoordinateYGUID, isPositionReadOnly,   getPosition<1>,   setPosition<1>,   "Geometry_CoordinateY",  kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),        kZqDouble,  ZqGuid::kCoordinateZGUID, isPositionReadOnly,   getPosition<2>,   setPosition<2>,   "Geometry_CoordinateZ",  kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "UpsideDown"),        kZqUntyped, nullptr,                  isUpsideDownReadOnly, getUpsideDown,    setUpsideDown,    nullptr,                 kVisEdition},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Backward"),          kZqUntyped, nullptr,                  isBackwardReadOnly,   getBackward,      setBackward,      nullptr,                 kVisEdition},
  {ZQ_MATCHPROP, "MATCHPROP_Text",                                        kZqUntyped, nullptr,                  kZqEditable,          ZqGetOwnId,       setMatch,         "",                      kVisMatchProp},
};

// --- Annotative rows ---------------------------------------------------------------

// The height on the sheet: the model height times the current scale.
CZqVariant getSheetHeight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  if (!text) return CZqVariant();
  return ZqDouble(text->height() * CZqObjectAnnotationContext(text->objectId()).CurrentFactor());
}
int setSheetHeight(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                   const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  if (!text || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  double sheet = value.GetDouble();
  if (ZqIsZero(sheet)) return kZqSetApplied;  // clearing the field keeps the height
  if (const int refused = ZqCheckLimit(description, sheet)) return refused;
  const double model = sheet / CZqObjectAnnotationContext(text->objectId()).CurrentFactor();
  return CZqObjectAnnotationContext::UpdateAnnotativeTextHeight(text, model) ? kZqSetApplied : kZqSetRefused;
}

CZqVariant getMatchOrientation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* text = ZqReadable<T>(object);
  if (!text) return CZqVariant();
  bool followsSheet = false;
  ZqIsAnnotative(text, &followsSheet);
  return ZqEnumeration(kZqYesNo, followsSheet ? 0 : 1);
}
int setMatchOrientation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* text = ZqWritable<T>(object);
  int32_t tag = 0;
  if (!text || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  QString why;
  return CZqObjectAnnotationContext::SetMatchOrientation(text, tag == 0, &why) ? kZqSetApplied : ZqRefuseWith(why);
}

const ZqRow kSheetHeightRow = {ZQ_TEXT, QT_TRANSLATE_NOOP("property_types", "Sheet text height"), kZqUntyped, nullptr,
                               kZqEditable, getSheetHeight, setSheetHeight, "Text_sheet_text_height", kVisKeep, kSize, "Text"};
const ZqRow kMatchOrientationRow = {ZQ_TEXT, QT_TRANSLATE_NOOP("property_types", "Match orientation to sheet"), kZqUntyped,
                                    nullptr, kZqEditable, getMatchOrientation, setMatchOrientation, "Misc_match_orientation",
                                    kVisKeep, kZqAny, "Misc"};
const ZqRow kEditScalesRow = {ZQ_TEXT, QT_TRANSLATE_NOOP("property_types", "Edit annotation scales"), kZqUntyped, nullptr,
                              kZqReadOnly, ZqGetAnnotationScales, nullptr, "Misc_annotative_scale", kVisEdition, kZqAny, "Misc"};

// The shared "Height" row is "Model text height" (read-only: the sheet
// height is what a user edits) while the text is annotative, and "Height"
// again for any other text.
// The two looks of the shared height row, made once per language.
struct HeightLook {
  CZqString name, key, dark, light;
};
const HeightLook& heightLook(bool annotative) {
  static HeightLook looks[2];
  static unsigned generation = 0;
  if (zqTranslationsChangedSince(generation)) {
    for (const bool a : {false, true}) {
      const char* name = a ? QT_TRANSLATE_NOOP("property_types", "Model text height") : "Height";
      const QString stem = a ? QStringLiteral("Text_model_text_height") : QStringLiteral("Text_Height");
      looks[a] = HeightLook{QCoreApplication::translate("property_types", name), CZqString(name),
                            ZqDarkIconPath(stem, QStringLiteral("Text")), ZqLightIconPath(stem, QStringLiteral("Text"))};
    }
  }
  return looks[annotative];
}

void nameHeightRow(CZqPropertiesContainer* container, bool annotative) {
  static const CZqString text(ZQ_TEXT);
  const HeightLook& look = heightLook(annotative);
  CZqPropertyDescription* height = container->GetByName(heightLook(false).key, text);
  if (!height) height = container->GetByName(heightLook(true).key, text);
  if (!height) return;
  // Most texts of a drawing follow one another with the row as it is.
  if (height->GetNameKey().qstring() == look.key.qstring() && height->GetName().qstring() == look.name.qstring()) return;
  height->SetName(look.name);
  height->SetKeys(text, look.key);
  height->SetDarkIcon(look.dark);
  height->SetLightIcon(look.light);
  height->PutIsReadOnlyMethod(annotative ? kZqReadOnly : kZqEditable);
}

void annotativeRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  const bool annotative = ZqIsAnnotative(object);
  nameHeightRow(container, annotative);
  ZqAddAnnotativeRows(object, container, ZQ_TEXT, "CZqTextPE");
  if (annotative) {
    container->AddDynamic(ZqBuildDynamicDescription(kSheetHeightRow));
    container->AddDynamic(ZqBuildDynamicDescription(kMatchOrientationRow));
  }
  CZqCustomPropertyDescription* scales = ZqBuildDynamicDescription(kEditScalesRow);
  scales->PutGroupActionMethod(ZqAnnotationScalesAction);
  scales->SetDescription(CZqString(QCoreApplication::translate("CZqTextPE", "Edit annotation scales")));
  container->AddDynamic(scales);
}

}  // namespace

ZQ_DEFINE_PROVIDER(CZqTextPE, QT_TRANSLATE_NOOP("entity_types", "Simplenote"), kRows, {}, &annotativeRows)

namespace {

// The source's style as the target's drawing has it: the same record in one
// drawing, the record of the same name in another (none when it lacks one).
OdDbObjectId styleForTarget(const OdDbObjectId& style, const OdDbObject* target) {
  if (style.isNull() || !target->database()) return OdDbObjectId();
  return CZqUtils::CopyStyles(style, target->database()->getTextStyleTableId());
}

}  // namespace

int ZqMatchTextProperties(const OdDbEntity* source, OdDbObject* target) {
  const T* fromText = odrxCast<T>(source);
  const OdDbMText* fromMText = odrxCast<OdDbMText>(source);
  T* toText = odrxCast<T>(target);
  OdDbMText* toMText = odrxCast<OdDbMText>(target);
  if ((!fromText && !fromMText) || (!toText && !toMText) || !target->isWriteEnabled()) return kZqSetRefused;
  const OdDbObjectId style = styleForTarget(fromText ? fromText->textStyle() : fromMText->textStyle(), target);
  const double rotation = fromText ? fromText->rotation() : fromMText->rotation();
  const double height = fromText ? fromText->height() : fromMText->textHeight();
  if (toText) {
    if (!style.isNull()) toText->setTextStyle(style);
    toText->setRotation(rotation);
    toText->setHeight(height);
    // A multiline source has no obliquing angle or width factor to give.
    if (fromText) {
      toText->setOblique(fromText->oblique());
      toText->setWidthFactor(fromText->widthFactor());
    }
    return kZqSetApplied;
  }
  if (!style.isNull()) toMText->setTextStyle(style);
  toMText->setRotation(rotation);
  toMText->setTextHeight(height);
  // The background mask and the attachment come only from a multiline source.
  if (fromMText) {
    toMText->setBackgroundFillColor(fromMText->getBackgroundFillColor());
    toMText->setBackgroundFill(fromMText->backgroundFillOn());
    toMText->setUseBackgroundColor(fromMText->useBackgroundColorOn());
    toMText->setAttachment(fromMText->attachment());
  }
  return kZqSetApplied;
}

void ZqPrintTextLines(const OdDbText* text, CZqPrintInfoContext* context) {
  const OdDbTextStyleTableRecordPtr style = styleOf(text);
  context->PrintString(QCoreApplication::translate("info_items", "TextStyle"), style ? style->getName() : OdString());
  // The platform's styles name a font file only; a font file carries no
  // separate typeface name.
  context->PrintString(QCoreApplication::translate("info_items", "Typeface"), OdString());
  context->PrintString(QCoreApplication::translate("info_items", "Font file"), style ? style->fileName() : OdString());
  context->PrintPoint(QCoreApplication::translate("info_items", "Start point"), text->position());
  if (ZqIsAnnotative(text)) {
    const double factor = CZqObjectAnnotationContext(text->objectId()).CurrentFactor();
    context->PrintDist(QCoreApplication::translate("info_items", "Sheet text height"), text->height() * factor);
    context->PrintDist(QCoreApplication::translate("info_items", "Model text height"), text->height());
  } else {
    context->PrintDist(QCoreApplication::translate("info_items", "height"), text->height());
  }
  context->PrintString(QCoreApplication::translate("info_items", "text"), text->textString());
  context->PrintAngle(QCoreApplication::translate("info_items", "rotation angle"), text->rotation());
  context->PrintScale(QCoreApplication::translate("info_items", "width scale"), text->widthFactor());
  context->PrintAngle(QCoreApplication::translate("info_items", "obliquing angle"), text->oblique());
}

std::span<const ZqRow> ZqTextRows() { return kRows; }

void CZqTextInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbText>(this, object, context, [&](const OdDbText* text) { ZqPrintTextLines(text, context); });
}
