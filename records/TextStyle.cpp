#include "Records.h"
#include "ZqRecordRows.h"

namespace {

using S = OdDbTextStyleTableRecord;
#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")

// Text generation flags: 2 backwards, 4 upside down.
template <int Bit>
bool hasGeneration(const S* s) { return s->textGenerationFlags() & Bit; }

template <int Bit>
CZqVariant getGeneration(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? ZqEnumeration(kZqYesNo, hasGeneration<Bit>(s) ? 0 : 1) : CZqVariant();
}
template <int Bit>
int setGeneration(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  S* s = ZqWritable<S>(object);
  int32_t tag = 0;
  if (!s || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  s->setTextGenerationFlags(tag ? s->textGenerationFlags() | Bit : s->textGenerationFlags() & ~Bit);
  return kZqSetApplied;
}

// A shape file's style holds shapes, not a font: its font rows are fixed.
bool isShapeFile(const OdDbObject* object, const CZqPropertyDescription&) {
  const S* s = ZqReadable<S>(object);
  return !s || s->isShapeFile();
}

CZqVariant getVertical(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? ZqEnumeration(kZqYesNo, s->isVertical() ? 0 : 1) : CZqVariant();
}

constexpr auto getFont = ZqGetText<S, &S::fileName>;
constexpr auto setFont = ZqSetText<S, &S::setFileName>;
constexpr auto getBigFont = ZqGetText<S, &S::bigFontFileName>;
constexpr auto setBigFont = ZqSetText<S, &S::setBigFontFileName>;
constexpr auto getHeight = ZqGetDouble<S, &S::textSize>;
constexpr auto setHeight = ZqSetDouble<S, &S::setTextSize>;
constexpr auto getWidth = ZqGetDouble<S, &S::xScale>;
constexpr auto setWidth = ZqSetDouble<S, &S::setXScale>;
constexpr auto getOblique = ZqGetDouble<S, &S::obliquingAngle>;
constexpr auto setOblique = ZqSetDouble<S, &S::setObliquingAngle>;
// Height 0 means "asked for at each text"; the obliquing angle is the one
// texts take, -85..85 degrees.
constexpr ZqLimit kOblique = ZqRange(-85.0 * OdaPI / 180.0, 85.0 * OdaPI / 180.0);

const ZqRow kRows[] = {
//  category     name                                                  type           identifier          read-only    get                 set                 icon      visibility limit
  {ZQ_GENERAL,  QT_TRANSLATE_NOOP("property_types", "Name"),          kZqString,     nullptr,            kZqEditable, ZqGetRecordName,    ZqSetRecordName,    nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Font name"),     kZqString,     nullptr,            isShapeFile, getFont,            setFont,            nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Big font"),      kZqString,     nullptr,            isShapeFile, getBigFont,         setBigFont,         nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Height"),        kZqDouble,     nullptr,            kZqEditable, getHeight,          setHeight,          nullptr,  kVisKeep,  kZqNonNegative},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Width factor"),  kZqDouble,     nullptr,            kZqEditable, getWidth,           setWidth,           nullptr,  kVisKeep,  kZqPositive},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Oblique angle"), kZqDouble,     ZqGuid::kAngleGUID, kZqEditable, getOblique,         setOblique,         nullptr,  kVisKeep,  kOblique},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Backwards"),     kZqCollection, nullptr,            kZqEditable, getGeneration<2>,   setGeneration<2>,   nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Upside down"),   kZqCollection, nullptr,            kZqEditable, getGeneration<4>,   setGeneration<4>,   nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Vertical"),      kZqCollection, nullptr,            kZqReadOnly, getVertical,        nullptr,            nullptr},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqTextStylePE, QT_TRANSLATE_NOOP("entity_types", "Text Style"), kRows)
