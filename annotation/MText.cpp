#include "MText.h"
#include "Text.h"
#include "ZqAnnotativeRows.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbMText.h"
#include "DbSymbolTable.h"
#include <cmath>

namespace {

using M = OdDbMText;

// --- Choices ---------------------------------------------------------------------

// The nine attachment points; the tag is the stored number.
const ZqChoice kAttachments[] = {
  {QT_TRANSLATE_NOOP("property_values", "Top Left"), 1},      {QT_TRANSLATE_NOOP("property_values", "Top Center"), 2},
  {QT_TRANSLATE_NOOP("property_values", "Top Right"), 3},     {QT_TRANSLATE_NOOP("property_values", "Middle Left"), 4},
  {QT_TRANSLATE_NOOP("property_values", "Middle Center"), 5}, {QT_TRANSLATE_NOOP("property_values", "Middle Right"), 6},
  {QT_TRANSLATE_NOOP("property_values", "Bottom Left"), 7},   {QT_TRANSLATE_NOOP("property_values", "Bottom Center"), 8},
  {QT_TRANSLATE_NOOP("property_values", "Bottom Right"), 9},
};

const ZqChoice kDirections[] = {
  {QT_TRANSLATE_NOOP("property_values", "Left to right"), 1}, {QT_TRANSLATE_NOOP("property_values", "Right to left"), 2},
  {QT_TRANSLATE_NOOP("property_values", "Top to bottom"), 3}, {QT_TRANSLATE_NOOP("property_values", "Bottom to top"), 4},
  {QT_TRANSLATE_NOOP("property_values", "By style"), 5},
};

const ZqChoice kSpacingStyles[] = {
  {QT_TRANSLATE_NOOP("property_values", "At least"), 1},
  {QT_TRANSLATE_NOOP("property_values", "Exactly"), 2},
};

const ZqChoice kColumnTypes[] = {
  {QT_TRANSLATE_NOOP("property_values", "None"), 0},
  {QT_TRANSLATE_NOOP("property_values", "Static"), 1},
  {QT_TRANSLATE_NOOP("property_values", "Dynamic"), 2},
};

// The same words as the information listing prints them (for the
// translation catalogue; the listing translates the choice's word).
[[maybe_unused]] const char* const kInfoWords[] = {
  QT_TRANSLATE_NOOP("info_values", "Top Left"),      QT_TRANSLATE_NOOP("info_values", "Top Center"),
  QT_TRANSLATE_NOOP("info_values", "Top Right"),     QT_TRANSLATE_NOOP("info_values", "Middle Left"),
  QT_TRANSLATE_NOOP("info_values", "Middle Center"), QT_TRANSLATE_NOOP("info_values", "Middle Right"),
  QT_TRANSLATE_NOOP("info_values", "Bottom Left"),   QT_TRANSLATE_NOOP("info_values", "Bottom Center"),
  QT_TRANSLATE_NOOP("info_values", "Bottom Right"),  QT_TRANSLATE_NOOP("info_values", "Left to right"),
  QT_TRANSLATE_NOOP("info_values", "Right to left"), QT_TRANSLATE_NOOP("info_values", "Top to bottom"),
  QT_TRANSLATE_NOOP("info_values", "Bottom to top"), QT_TRANSLATE_NOOP("info_values", "By style"),
};

// Accessors over the enumerations, as ZqGetChoice/ZqSetChoice take them.
int attachmentOf(const M* m) { return m->attachment(); }
int directionOf(const M* m) { return m->flowDirection(); }
int spacingStyleOf(const M* m) { return m->lineSpacingStyle(); }
int columnTypeOf(const M* m) { return m->getColumnType(); }

template <int (*Get)(const M*), const auto& Choices>
CZqVariant getChoice(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? ZqEnumeration(Choices, ZqChoiceIndex(Choices, Get(m))) : CZqVariant();
}

template <const auto& Choices, void (*Set)(M*, int)>
int setChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  int32_t tag = 0;
  if (!m || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(Choices, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), Choices));
  Set(m, tag);
  return kZqSetApplied;
}

void putAttachment(M* m, int tag) { m->setAttachment(M::AttachmentPoint(tag)); }
void putDirection(M* m, int tag) { m->setFlowDirection(M::FlowDirection(tag)); }
void putSpacingStyle(M* m, int tag) { m->setLineSpacingStyle(OdDb::LineSpacingStyle(tag)); }

// --- Contents ------------------------------------------------------------------------

CZqVariant getContents(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(CZqString(m->contents())) : CZqVariant();
}

CZqVariant getPlainText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(CZqString(ZqMTextPlainText(m->contents().qstring()))) : CZqVariant();
}

// The contents as typed, formatting codes kept. A line break typed in the
// field becomes a paragraph break (\P) and a tab the text's tab (^I); other
// control characters have no place in a drawing and are refused.
int setContents(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  QString s = value.GetString().qstring();
  s.replace(QLatin1String("\r\n"), QLatin1String("\\P")).replace(QChar('\n'), QLatin1String("\\P"));
  s.replace(QChar('\t'), QLatin1String("^I"));
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Multiline text can hold line breaks and tabs but no other control characters"));
  if (s != m->contents().qstring()) m->setContents(OdString(s));
  return kZqSetApplied;
}

// --- Sizes and style --------------------------------------------------------------------

// Clearing the height (a value that counts as zero) re-applies the current
// one and succeeds, as for single-line text; negatives are refused by the
// row's limit.
int setHeight(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  double v = value.GetDouble();
  if (ZqIsZero(v)) v = m->textHeight();
  if (const int refused = ZqCheckLimit(description, v)) return refused;
  m->setTextHeight(v);
  return kZqSetApplied;
}

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(m->textStyle()) : CZqVariant();
}

int setStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m || (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqTextStyles, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  m->setTextStyle(id);
  return kZqSetApplied;
}

// --- Background mask ------------------------------------------------------------------------

bool isMaskOff(const OdDbObject* object, const CZqPropertyDescription&) {
  const M* m = ZqReadable<M>(object);
  return m && !m->backgroundFillOn();
}

// The colour is not used while the mask takes the drawing's background.
bool isMaskColorUnused(const OdDbObject* object, const CZqPropertyDescription&) {
  const M* m = ZqReadable<M>(object);
  return m && (!m->backgroundFillOn() || m->useBackgroundColorOn());
}

// --- Columns ------------------------------------------------------------------------------------

CZqVariant getColumnCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(int32_t(m->getColumnCount())) : CZqVariant();
}

// --- Matching --------------------------------------------------------------------------------------

int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<OdDbEntity>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &ZqMatchTextProperties);
}

constexpr auto getHeight = ZqGetDouble<M, &M::textHeight>;
constexpr auto getWidth = ZqGetDouble<M, &M::width>;
constexpr auto setWidth = ZqSetDouble<M, &M::setWidth>;
constexpr auto getRotation = ZqGetDouble<M, &M::rotation>;
constexpr auto setRotation = ZqSetDouble<M, &M::setRotation>;
constexpr auto getSpacing = ZqGetDouble<M, &M::lineSpacingFactor>;
constexpr auto setSpacing = ZqSetDouble<M, &M::setLineSpacingFactor>;
constexpr auto getMask = ZqGetFlag<M, &M::backgroundFillOn, kZqYesNo>;
constexpr auto setMask = ZqSetFlag<M, &M::setBackgroundFill, kZqYesNo>;
constexpr auto getUseBackground = ZqGetFlag<M, &M::useBackgroundColorOn, kZqYesNo>;
constexpr auto setUseBackground = ZqSetFlag<M, &M::setUseBackgroundColor, kZqYesNo>;
constexpr auto getMaskColor = ZqGetColor<M, &M::getBackgroundFillColor>;
constexpr auto setMaskColor = ZqSetColor<M, &M::setBackgroundFillColor>;
constexpr auto getBorder = ZqGetDouble<M, &M::getBackgroundScaleFactor>;
constexpr auto setBorder = ZqSetDouble<M, &M::setBackgroundScaleFactor>;
constexpr auto getColumnWidth = ZqGetDouble<M, &M::getColumnWidth>;
constexpr auto getGutter = ZqGetDouble<M, &M::getColumnGutterWidth>;
constexpr auto getColumnHeight = ZqGetDouble<M, &M::getColumnHeight>;
template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<M, &M::location, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<M, &M::location, &M::setLocation, Axis>;
constexpr auto getAttachment = getChoice<attachmentOf, kAttachments>;
constexpr auto setAttachment = setChoice<kAttachments, putAttachment>;
constexpr auto getDirection = getChoice<directionOf, kDirections>;
constexpr auto setDirection = setChoice<kDirections, putDirection>;
constexpr auto getSpacingStyle = getChoice<spacingStyleOf, kSpacingStyles>;
constexpr auto setSpacingStyle = setChoice<kSpacingStyles, putSpacingStyle>;
constexpr auto getColumnType = getChoice<columnTypeOf, kColumnTypes>;

constexpr ZqLimit kHeight = ZqSilent(kZqPositive);
constexpr ZqLimit kWidth = kZqNonNegative;
constexpr ZqLimit kSpacing = ZqRange(0.25, 4.0);
constexpr ZqLimit kBorder = ZqRange(1.0, 5.0);

#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
#define ZQ_COLUMNS QT_TRANSLATE_NOOP("property_groups", "Columns")

const ZqRow kRows[] = {
//  category     name                                                          type        identifier                   read-only          get               set               icon                    visibility  limit
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Contents"),               kZqUntyped, nullptr,                     kZqEditable,       getContents,      setContents,      nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Plain text"),             kZqString,  nullptr,                     kZqReadOnly,       getPlainText,     nullptr,          nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "TextStyle"),              kZqId,      ZqGuid::kTextStyleGUID,      kZqEditable,       getStyle,         setStyle,         nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Justify"),                kZqUntyped, nullptr,                     kZqEditable,       getAttachment,    setAttachment,    nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Direction"),              kZqUntyped, nullptr,                     kZqEditable,       getDirection,     setDirection,     nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Height"),                 kZqUntyped, nullptr,                     kZqEditable,       getHeight,        setHeight,        nullptr,                kVisKeep,   kHeight},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Width"),                  kZqDouble,  nullptr,                     kZqEditable,       getWidth,         setWidth,         nullptr,                kVisKeep,   kWidth},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Rotation"),               kZqDouble,  ZqGuid::kAngleGUID,          kZqEditable,       getRotation,      setRotation,      nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Line space factor"),      kZqDouble,  nullptr,                     kZqEditable,       getSpacing,       setSpacing,       nullptr,                kVisKeep,   kSpacing},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Line space style"),       kZqUntyped, nullptr,                     kZqEditable,       getSpacingStyle,  setSpacingStyle,  nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Background mask"),        kZqUntyped, nullptr,                     kZqEditable,       getMask,          setMask,          nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Mask color"),             kZqColor,   ZqGuid::kBackgroundColorGUID, isMaskColorUnused, getMaskColor,    setMaskColor,     nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Use drawing background"), kZqUntyped, nullptr,                     isMaskOff,         getUseBackground, setUseBackground, nullptr},
  {ZQ_TEXT,     QT_TRANSLATE_NOOP("property_types", "Border offset"),          kZqDouble,  nullptr,                     isMaskOff,         getBorder,        setBorder,        nullptr,                kVisKeep,   kBorder},
  // Columns are shown as the file holds them; the platform lays out no columns to edit.
  {ZQ_COLUMNS,  QT_TRANSLATE_NOOP("property_types", "Columns"),                kZqUntyped, nullptr,                     kZqReadOnly,       getColumnType,    nullptr,          nullptr},
  {ZQ_COLUMNS,  QT_TRANSLATE_NOOP("property_types", "Column count"),           kZqInt32,   nullptr,                     kZqReadOnly,       getColumnCount,   nullptr,          nullptr},
  {ZQ_COLUMNS,  QT_TRANSLATE_NOOP("property_types", "Column width"),           kZqDouble,  nullptr,                     kZqReadOnly,       getColumnWidth,   nullptr,          nullptr},
  {ZQ_COLUMNS,  QT_TRANSLATE_NOOP("property_types", "Column gutter"),          kZqDouble,  nullptr,                     kZqReadOnly,       getGutter,        nullptr,          nullptr},
  {ZQ_COLUMNS,  QT_TRANSLATE_NOOP("property_types", "Column height"),          kZqDouble,  nullptr,                     kZqReadOnly,       getColumnHeight,  nullptr,          nullptr},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position X"),             kZqDouble,  ZqGuid::kCoordinateXGUID,    kZqEditable,       getPosition<0>,   setPosition<0>,   "Geometry_CoordinateX"},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Y"),             kZqDouble,  ZqGuid::kCoordinateYGUID,    kZqEditable,       getPosition<1>,   setPosition<1>,   "Geometry_CoordinateY"},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Position Z"),             kZqDouble,  ZqGuid::kCoordinateZGUID,    kZqEditable,       getPosition<2>,   setPosition<2>,   "Geometry_CoordinateZ"},
  {ZQ_MATCHPROP, "MATCHPROP_Text",                                             kZqUntyped, nullptr,                     kZqEditable,       ZqGetOwnId,       setMatch,         "",                     kVisMatchProp},
};

// Reads the hexadecimal digits of s from i (count of them); -1 if any is not one.
int hexAt(const QString& s, qsizetype i, int count) {
  if (i + count > s.size()) return -1;
  bool ok = false;
  const int v = s.mid(i, count).toInt(&ok, 16);
  return ok ? v : -1;
}

// "Annotative" for every multiline text; its scale for an annotative one.
void annotativeRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  ZqAddAnnotativeRows(object, container, ZQ_TEXT, "CZqMTextPE");
}

}  // namespace

QString ZqMTextPlainText(const QString& s) {
  QString out;
  out.reserve(s.size());
  const qsizetype n = s.size();
  for (qsizetype i = 0; i < n;) {
    const QChar c = s[i];
    if (c == '{' || c == '}') {
      ++i;
      continue;
    }
    if (c == '^' && i + 1 < n) {
      const QChar d = s[i + 1];
      if (d == 'I') out += '\t';
      else if (d == 'J') out += '\n';
      else if (d == ' ') out += '^';
      i += 2;
      continue;
    }
    if (c == '%' && i + 2 < n && s[i + 1] == '%') {
      const QChar d = s[i + 2].toLower();
      const QChar special = d == 'd' ? QChar(0x00B0) : d == 'p' ? QChar(0x00B1) : d == 'c' ? QChar(0x2205) : d == '%' ? QChar('%') : QChar();
      if (!special.isNull()) {
        out += special;
        i += 3;
        continue;
      }
    }
    if (c != '\\' || i + 1 >= n) {
      out += c;
      ++i;
      continue;
    }
    const QChar d = s[i + 1];
    const qsizetype semicolon = s.indexOf(';', i + 2);
    switch (d.unicode()) {
      case 'P': case 'N': out += '\n'; i += 2; break;
      case '~': out += QChar(0x00A0); i += 2; break;
      case '\\': case '{': case '}': out += d; i += 2; break;
      case 'L': case 'l': case 'O': case 'o': case 'K': case 'k': i += 2; break;
      case 'U':
        if (i + 2 < n && s[i + 2] == '+' && hexAt(s, i + 3, 4) >= 0) {
          out += QChar(char16_t(hexAt(s, i + 3, 4)));
          i += 7;
        } else {
          out += d;
          i += 2;
        }
        break;
      case 'S': {  // a stack: "top^bottom;", "top/bottom;" or "top#bottom;"
        const qsizetype end = semicolon < 0 ? n : semicolon;
        QString stack = s.mid(i + 2, end - i - 2);
        for (QChar& ch : stack)
          if (ch == '^' || ch == '#') ch = '/';
        out += stack;
        i = end + 1;
        break;
      }
      case 'f': case 'F': case 'H': case 'h': case 'C': case 'c': case 'T': case 'Q': case 'W': case 'A': case 'p':
        i = semicolon < 0 ? n : semicolon + 1;
        break;
      default: out += d; i += 2; break;
    }
  }
  return out;
}

ZQ_DEFINE_PROVIDER(CZqMTextPE, QT_TRANSLATE_NOOP("entity_types", "MText"), kRows, {}, &annotativeRows)

void CZqMTextInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<M>(this, object, context, [&](const M* m) {
    const OdDbObjectId styleId = m->textStyle();
    OdDbTextStyleTableRecordPtr style;
    if (!styleId.isNull() && !styleId.isErased())
      style = OdDbTextStyleTableRecord::cast(styleId.openObject(OdDb::kForRead).get());
    auto word = [](std::span<const ZqChoice> choices, int tag) {
      const int at = ZqChoiceIndex(choices, tag);
      return CZqString(at < 0 ? QString() : QCoreApplication::translate("info_values", choices[at].word));
    };
    context->PrintString(QCoreApplication::translate("info_items", "TextStyle"), style ? style->getName() : OdString());
    context->PrintString(QCoreApplication::translate("info_items", "Font file"), style ? style->fileName() : OdString());
    context->PrintPoint(QCoreApplication::translate("info_items", "Location"), m->location());
    context->PrintString(QCoreApplication::translate("info_items", "Attachment"), word(kAttachments, m->attachment()));
    context->PrintString(QCoreApplication::translate("info_items", "Direction"), word(kDirections, m->flowDirection()));
    context->PrintDist(QCoreApplication::translate("info_items", "height"), m->textHeight());
    context->PrintDist(QCoreApplication::translate("info_items", "width"), m->width());
    context->PrintAngle(QCoreApplication::translate("info_items", "rotation angle"), m->rotation());
    context->PrintScale(QCoreApplication::translate("info_items", "line spacing factor"), m->lineSpacingFactor());
    context->PrintString(QCoreApplication::translate("info_items", "text"), CZqString(ZqMTextPlainText(m->contents().qstring())));
  });
}
