#include "MLeader.h"
#include "ZqAnnotativeRows.h"
#include <map>
#include "Dimension.h"
#include "Leader.h"
#include "ZqInfoFrame.h"
#include "DbMLeader.h"
#include "DbSymbolTable.h"

namespace {

using M = OdDbMLeader;
#define PT(s) QT_TRANSLATE_NOOP("property_types", s)
#define PV(s) QT_TRANSLATE_NOOP("property_values", s)

// --- Static rows ------------------------------------------------------------------------------

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(CZqString(m->styleName())) : CZqVariant();
}
// A style of the drawing by its name (without regard to case).
int setStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString name = value.GetString().qstring();
  for (const M::Style& s : m->availableStyles())
    if (s.name.qstring().compare(name, Qt::CaseInsensitive) == 0) {
      if (!(s.handle == m->styleHandle())) m->setStyle(s);
      return kZqSetApplied;
    }
  return ZqRefuseWith(QCoreApplication::translate("errors", "The drawing has no multileader style \"%1\".").arg(name));
}

CZqVariant getArrow(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? ZqEnumeration(ZqArrowheadChoices(), ZqArrowheadIndex(m->arrowSymbolId())) : CZqVariant();
}
int setArrow(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m) return kZqSetRefused;
  OdDbObjectId block;
  if (const int refused = ZqArrowheadBlock(object, description, value, &block)) return refused;
  if (block != m->arrowSymbolId()) m->setArrowSymbolId(block);
  return kZqSetApplied;
}

const ZqChoice kLeaderType[] = {{PV("Straight"), M::kStraightLeader}, {PV("Spline"), M::kSplineLeader}, {PV("None"), M::kInVisibleLeader}};

constexpr ZqLimit kNotNegative = ZqMessage(kZqNonNegative, "Value must be non-negative");
constexpr ZqLimit kPositive = ZqMessage(kZqPositive, "Value must be positive");

int matchMLeader(const OdDbEntity* source, OdDbObject* target) {
  const M* from = odrxCast<M>(source);
  M* to = odrxCast<M>(target);
  if (!from || !to || !to->isWriteEnabled()) return kZqSetRefused;
  if (from->database() == to->database()) {
    to->setStyle({from->styleName(), from->styleHandle()});
    to->setArrowSymbolId(from->arrowSymbolId());
    to->setLeaderLineTypeId(from->leaderLineTypeId());
  }
  to->setArrowSize(from->arrowSize());
  to->setLeaderLineColor(from->leaderLineColor());
  to->setLineWeight(from->lineWeight());
  to->setLeaderLineType(from->leaderLineType());
  return kZqSetApplied;
}
int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<M>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &matchMLeader);
}

CZqVariant getLinetype(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(m->leaderLineTypeId()) : CZqVariant();
}
int setLinetype(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m || (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqLinetypes, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  m->setLeaderLineTypeId(id);
  return kZqSetApplied;
}

CZqVariant getLineWeight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(int32_t(m->lineWeight())) : CZqVariant();
}
int setLineWeight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m || value.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
  m->setLineWeight(value.GetInt32());
  return kZqSetApplied;
}

// A flag the multileader keeps as 0 or 1, shown as "Yes"/"No".
template <int (M::*Get)() const, void (M::*Set)(int)>
CZqVariant getYesNo(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? ZqEnumeration(kZqYesNo, (m->*Get)() ? 0 : 1) : CZqVariant();
}
template <int (M::*Get)() const, void (M::*Set)(int)>
int setYesNo(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  int32_t tag = 0;
  if (!m || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  if (tag != (m->*Get)()) (m->*Set)(tag);
  return kZqSetApplied;
}

#define ZQ_LEADERS QT_TRANSLATE_NOOP("property_groups", "Leaders")
// clang-format off
const ZqRow kRows[] = {
//  category      name                         type        identifier               read-only    get                                                    set                                                    icon                           visibility     limit          icon folder
  {ZQ_MISC,       PT("Multi leader Style"),    kZqUntyped, nullptr,                 kZqEditable, getStyle,                                             setStyle,                                              "mld_MultileaderStyle",        kVisKeep,      kZqAny,        "Mleader"},
  {ZQ_LEADERS,    PT("Arrow"),                 kZqUntyped, nullptr,                 kZqEditable, getArrow,                                             setArrow,                                              "Lines_Arrows_Arrow1"},
  {ZQ_LEADERS,    PT("Arrow size"),            kZqUntyped, nullptr,                 kZqEditable, ZqGetDouble<M, &M::arrowSize>,                        ZqSetDouble<M, &M::setArrowSize>,                      "Lines_Arrows_ArrowSize",      kVisKeep,      kNotNegative},
  {ZQ_LEADERS,    PT("Leader line color"),     kZqColor,   nullptr,                 kZqEditable, ZqGetColor<M, &M::leaderLineColor>,                   ZqSetColor<M, &M::setLeaderLineColor>,                 "Lines_Arrows_DimLineColor"},
  {ZQ_LEADERS,    PT("Leader line style"),     kZqUntyped, nullptr,                 kZqEditable, getLinetype,                                          setLinetype,                                           "Lines_Arrows_DimLineStyle"},
  {ZQ_LEADERS,    PT("Leader line weight"),    kZqInt32,   ZqGuid::kLineweightGUID, kZqEditable, getLineWeight,                                        setLineWeight,                                         "Lines_Arrows_DimLineWeight"},
  {ZQ_LEADERS,    PT("Leader Extension"),      kZqUntyped, nullptr,                 kZqEditable, getYesNo<&M::leaderExtension, &M::setLeaderExtension>, setYesNo<&M::leaderExtension, &M::setLeaderExtension>, "mld_LeaderExtension",         kVisKeep,      kZqAny,        "Mleader"},
  {ZQ_LEADERS,    PT("Type"),                  kZqUntyped, nullptr,                 kZqEditable, ZqGetChoice<M, &M::leaderLineType, kLeaderType>,      ZqSetChoice<M, &M::setLeaderLineType, kLeaderType>,    "Misc_LeaderType"},
  {ZQ_MATCHPROP,  "MATCHPROP_MLeader",         kZqUntyped, nullptr,                 kZqEditable, ZqGetOwnId,                                           setMatch,                                              "",                            kVisMatchProp},
};
// clang-format on

// --- Content rows: one getter, one setter, one read-only test ---------------------------------

const ZqChoice kAttachmentType[] = {{PV("Horizontal"), 0}, {PV("Vertical"), 1}};
const ZqChoice kDirection[] = {{PV("Left to right"), 1}, {PV("Top to bottom"), 3}, {PV("By style"), 5}};
const ZqChoice kJustify[] = {{PV("Left"), 1}, {PV("Center"), 2}, {PV("Right"), 3}};
const ZqChoice kSideAttachment[] = {
    {PV("Top of top line"), 0},        {PV("Middle of top line"), 1},           {PV("Middle of text"), 2},
    {PV("Middle of bottom line"), 3},  {PV("Bottom of bottom line"), 4},        {PV("Bottom line"), 5},
    {PV("Bottom of top line underlined"), 6}, {PV("Bottom of top line"), 7},   {PV("Bottom of all text"), 8}};
const ZqChoice kEndAttachment[] = {{PV("Center"), 9}, {PV("Underline and center"), 10}};
const ZqChoice kSpacingStyle[] = {{PV("At least"), 1}, {PV("Exactly"), 2}};
const ZqChoice kToleranceAttachment[] = {{PV("Insertion point"), 0}, {PV("Middle"), 1}};

// A content row: its value read and written through the multileader.
struct Content {
  const char* name;  // untranslated; the dispatch compares it translated
  CZqVariant (*get)(const M* m);
  int (*set)(M* m, const CZqPropertyDescription& description, const CZqVariant& value);
};

template <double (M::*Get)() const>
CZqVariant number(const M* m) { return ZqDouble((m->*Get)()); }
template <double (M::*Get)() const, void (M::*Set)(double), const ZqLimit& Limit>
int setNumber(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  if (value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  double v = value.GetDouble();
  if (!Limit.admits(v)) return ZqRefuse(Limit.message ? Limit.message : "Invalid input.");
  if (v != (m->*Get)()) (m->*Set)(v);
  return kZqSetApplied;
}
template <int (M::*Get)() const, const auto& Choices>
CZqVariant choice(const M* m) { return ZqEnumeration(Choices, ZqChoiceIndex(Choices, (m->*Get)())); }
template <int (M::*Get)() const, void (M::*Set)(int), const auto& Choices>
int setChoice(M* m, const CZqPropertyDescription& description, const CZqVariant& value) {
  int32_t tag = 0;
  if (!ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(Choices, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), Choices));
  if (tag != (m->*Get)()) (m->*Set)(tag);
  return kZqSetApplied;
}
template <int (M::*Get)() const>
CZqVariant yesNo(const M* m) { return ZqEnumeration(kZqYesNo, (m->*Get)() ? 0 : 1); }
template <int (M::*Get)() const, void (M::*Set)(int)>
int setYesNoContent(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  int32_t tag = 0;
  if (!ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  if (tag != (m->*Get)()) (m->*Set)(tag);
  return kZqSetApplied;
}

// Edits of a block content need the block.
int refuseMissingBlock() {
  return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The multileader's block is missing from the drawing."));
}
CZqVariant blockName(const M* m) {
  OdDbObjectPtr o = m->blockContentId().isNull() ? OdDbObjectPtr() : m->blockContentId().openObject();
  auto* rec = odrxCast<OdDbBlockTableRecord>(o.get());
  return CZqVariant(CZqString(rec ? rec->getName() : OdString()));
}
int setBlockName(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  if (value.GetType() != CZqVariant::kVtString && value.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(m, kZqBlocks, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  if (id != m->blockContentId()) m->setBlockContentId(id);
  return kZqSetApplied;
}
CZqVariant blockColor(const M* m) { return CZqVariant(m->blockColor()); }
int setBlockColor(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  if (m->blockContentId().isNull()) return refuseMissingBlock();
  if (value.GetType() != CZqVariant::kVtColor) return kZqSetRefused;
  m->setBlockColor(value.GetColor());
  return kZqSetApplied;
}
constexpr ZqLimit kAny = kZqAny;
int setBlockScale(M* m, const CZqPropertyDescription& d, const CZqVariant& value) {
  if (m->blockContentId().isNull()) return refuseMissingBlock();
  return setNumber<&M::blockScale, &M::setBlockScale, kPositive>(m, d, value);
}
CZqVariant contents(const M* m) { return CZqVariant(CZqString(m->contents())); }
int setContents(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  if (value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A multileader text cannot hold control characters; use \\P for a new line."));
  if (s != m->contents().qstring()) m->setContents(OdString(s));
  return kZqSetApplied;
}
// The distance between lines: 5/3 of the text height times the factor.
CZqVariant spacingDistance(const M* m) { return ZqDouble(m->lineSpacingFactor() * m->textHeight() * 5.0 / 3.0); }
int setSpacingDistance(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  if (value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  double v = value.GetDouble();
  if (!kPositive.admits(v) || !(m->textHeight() > 0)) return ZqRefuse(kPositive.message);
  m->setLineSpacingFactor(v / (m->textHeight() * 5.0 / 3.0));
  return kZqSetApplied;
}
CZqVariant textStyle(const M* m) { return CZqVariant(m->textStyleId()); }
int setTextStyle(M* m, const CZqPropertyDescription&, const CZqVariant& value) {
  if (value.GetType() != CZqVariant::kVtString && value.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(m, kZqTextStyles, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  m->setTextStyleId(id);
  return kZqSetApplied;
}
CZqVariant annotationScale(const M* m) { return ZqDouble(m->scale()); }

// clang-format off
const Content kContents[] = {
  {PT("Overall scale"),       number<&M::scale>,                                  setNumber<&M::scale, &M::setScale, kPositive>},
  {PT("Horizontal landing"),  yesNo<&M::landingEnabled>,                          setYesNoContent<&M::landingEnabled, &M::setLandingEnabled>},
  {PT("Landing distance"),    number<&M::doglegLength>,                           setNumber<&M::doglegLength, &M::setDoglegLength, kNotNegative>},
  {PT("Annotative Scale"),    annotationScale,                                    nullptr},
  {PT("Block name"),          blockName,                                          setBlockName},
  {PT("Color"),               blockColor,                                         setBlockColor},
  {PT("Scale"),               number<&M::blockScale>,                             setBlockScale},
  {PT("Attachment type"),     choice<&M::textAttachmentType, kAttachmentType>,    setChoice<&M::textAttachmentType, &M::setTextAttachmentType, kAttachmentType>},
  {PT("Background mask"),     yesNo<&M::backgroundMask>,                          setYesNoContent<&M::backgroundMask, &M::setBackgroundMask>},
  {PT("Content"),             contents,                                           setContents},
  {PT("Direction"),           choice<&M::textFlowDirection, kDirection>,          setChoice<&M::textFlowDirection, &M::setTextFlowDirection, kDirection>},
  {PT("Height"),              number<&M::textHeight>,                             setNumber<&M::textHeight, &M::setTextHeight, kPositive>},
  {PT("Justify"),             choice<&M::textJustify, kJustify>,                  setChoice<&M::textJustify, &M::setTextJustify, kJustify>},
  {PT("Landing gap"),         number<&M::landingGap>,                             setNumber<&M::landingGap, &M::setLandingGap, kNotNegative>},
  {PT("Left attachment"),     choice<&M::leftAttachment, kSideAttachment>,        setChoice<&M::leftAttachment, &M::setLeftAttachment, kSideAttachment>},
  {PT("Right attachment"),    choice<&M::rightAttachment, kSideAttachment>,       setChoice<&M::rightAttachment, &M::setRightAttachment, kSideAttachment>},
  {PT("Top attachment"),      choice<&M::topAttachment, kEndAttachment>,          setChoice<&M::topAttachment, &M::setTopAttachment, kEndAttachment>},
  {PT("Bottom attachment"),   choice<&M::bottomAttachment, kEndAttachment>,       setChoice<&M::bottomAttachment, &M::setBottomAttachment, kEndAttachment>},
  {PT("Line space factor"),   number<&M::lineSpacingFactor>,                      setNumber<&M::lineSpacingFactor, &M::setLineSpacingFactor, kPositive>},
  {PT("Line space style"),    choice<&M::lineSpacingStyle, kSpacingStyle>,        setChoice<&M::lineSpacingStyle, &M::setLineSpacingStyle, kSpacingStyle>},
  {PT("Line space distance"), spacingDistance,                                    setSpacingDistance},
  {PT("Rotation"),            number<&M::textRotation>,                           setNumber<&M::textRotation, &M::setTextRotation, kAny>},
  {PT("Text frame"),          yesNo<&M::textFrame>,                               setYesNoContent<&M::textFrame, &M::setTextFrame>},
  {PT("TextStyle"),           textStyle,                                          setTextStyle},
  {PT("Width"),               number<&M::textWidth>,                              setNumber<&M::textWidth, &M::setTextWidth, kNotNegative>},
  {PT("Attachment"),          choice<&M::toleranceAttachment, kToleranceAttachment>, nullptr},
};
// clang-format on

// The content row a description shows, by its translated name.
const Content* contentOf(const CZqPropertyDescription& description) {
  const QString name = description.GetName().qstring();
  for (const Content& c : kContents)
    if (QCoreApplication::translate("property_types", c.name) == name) return &c;
  return nullptr;
}

CZqVariant getContent(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  const Content* c = contentOf(description);
  return m && c ? c->get(m) : CZqVariant();
}
int setContent(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value, const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  const Content* c = contentOf(description);
  if (!m || !c || !c->set) return kZqSetRefused;
  try {
    return c->set(m, description, value);
  } catch (const OdError&) {
    return ZqRefuse("Invalid input.");
  }
}
// The landing distance needs a visible leader with its landing on; the
// horizontal landing a visible leader. "Annotative Scale" needs an
// annotative multileader; the tolerance attachment follows the frame and
// is shown only.
bool isContentReadOnly(const OdDbObject* object, const CZqPropertyDescription& description) {
  const M* m = ZqReadable<M>(object);
  const Content* c = contentOf(description);
  if (!m || !c) return false;
  const QLatin1String name(c->name);
  if (name == QLatin1String("Landing distance"))
    return m->leaderLineType() == M::kInVisibleLeader || !m->landingEnabled() || !m->doglegEnabled();
  if (name == QLatin1String("Horizontal landing")) return m->leaderLineType() == M::kInVisibleLeader;
  if (name == QLatin1String("Annotative Scale")) return !ZqIsAnnotative(object);
  return !c->set;
}

// The dynamic rows: category, name, editor and icon.
struct ContentRow {
  const char* category;
  const char* name;
  ZqKind type;
  const char* typeId;
  const char* icon;
  const char* folder;  // nullptr: the icon's group word
};
#define ZQ_BLOCK QT_TRANSLATE_NOOP("property_groups", "Block")
#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
#define ZQ_TOL QT_TRANSLATE_NOOP("property_groups", "Tolerance")
// clang-format off
const ContentRow kAlways[] = {
  {ZQ_LEADERS, PT("Overall scale"),      kZqUntyped, nullptr, "mld_ScaleOverall",      "Mleader"},
  {ZQ_LEADERS, PT("Horizontal landing"), kZqUntyped, nullptr, "mld_HorizontalLanding", "Mleader"},
  {ZQ_LEADERS, PT("Landing distance"),   kZqUntyped, nullptr, "mld_LandingDistance",   "Mleader"},
};
const ContentRow kBlockRows[] = {
  {ZQ_BLOCK, PT("Block name"), kZqUntyped, nullptr,                        "Misc_Name",       nullptr},
  {ZQ_BLOCK, PT("Color"),      kZqColor,   ZqGuid::kBackgroundColorGUID,   "Text_FillColor",  nullptr},
  {ZQ_BLOCK, PT("Scale"),      kZqUntyped, nullptr,                        "Misc_UnitFactor", nullptr},
};
const ContentRow kTextHead[] = {
  {ZQ_TEXT, PT("Attachment type"), kZqUntyped, nullptr, "mld_AttachmentType",  "Mleader"},
  {ZQ_TEXT, PT("Background mask"), kZqUntyped, nullptr, "Text_BackgroundMask", nullptr},
  {ZQ_TEXT, PT("Content"),         kZqUntyped, nullptr, "Text_Contents",       nullptr},
  {ZQ_TEXT, PT("Direction"),       kZqUntyped, nullptr, "Text_Direction",      nullptr},
  {ZQ_TEXT, PT("Height"),          kZqUntyped, nullptr, "Text_Height",         nullptr},
  {ZQ_TEXT, PT("Justify"),         kZqUntyped, nullptr, "Text_Justify",        nullptr},
  {ZQ_TEXT, PT("Landing gap"),     kZqUntyped, nullptr, "mld_LandingGap",      "Mleader"},
};
const ContentRow kHorizontal[] = {
  {ZQ_TEXT, PT("Left attachment"),  kZqUntyped, nullptr, "mld_LeftAttachment",  "Mleader"},
  {ZQ_TEXT, PT("Right attachment"), kZqUntyped, nullptr, "mld_RightAttachment", "Mleader"},
};
// The icons as the palette has them: the top row takes the left row's, the
// bottom row the right row's (its light path is corrected nowhere).
const ContentRow kVertical[] = {
  {ZQ_TEXT, PT("Top attachment"),    kZqUntyped, nullptr, "mld_LeftAttachment",  "Mleader"},
  {ZQ_TEXT, PT("Bottom attachment"), kZqUntyped, nullptr, "mld_RightAttachment", "Mleader"},
};
const ContentRow kTextTail[] = {
  {ZQ_TEXT, PT("Line space factor"),   kZqUntyped, nullptr,                  "Text_LineSpaceFactor",   nullptr},
  {ZQ_TEXT, PT("Line space style"),    kZqUntyped, nullptr,                  "Text_LineSpaceStyle",    nullptr},
  {ZQ_TEXT, PT("Line space distance"), kZqUntyped, nullptr,                  "Text_LineSpaceDistance", nullptr},
  {ZQ_TEXT, PT("Rotation"),            kZqDouble,  ZqGuid::kAngleGUID,       "Text_Rotation",          nullptr},
  {ZQ_TEXT, PT("Text frame"),          kZqUntyped, nullptr,                  "mld_TextFrame",          "Mleader"},
  {ZQ_TEXT, PT("TextStyle"),           kZqUntyped, ZqGuid::kTextStyleGUID,   "Text_TextStyle",         nullptr},
  {ZQ_TEXT, PT("Width"),               kZqUntyped, nullptr,                  "Text_Width",             nullptr},
};
const ContentRow kToleranceRows[] = {
  {ZQ_TOL, PT("Attachment"), kZqUntyped, nullptr, "mld_ToleranceAttachment", "Mleader"},
};
// clang-format on
const char* const kBottomLightIcon = ":/Mleader/svg_icons/light//Mleader/mld_RightAttachment.sv";

void addContentRows(CZqPropertiesContainer* container, std::span<const ContentRow> rows) {
  const QString scaleText = QCoreApplication::translate("CZqMLeaderPE", "Edit annotation scales");
  // The descriptions keep a pointer to their row: the rows live as long as
  // the tables they are made from.
  static std::map<const ContentRow*, ZqRow> made;
  for (const ContentRow& r : rows) {
    auto it = made.find(&r);
    if (it == made.end())
      it = made.emplace(&r, ZqRow{r.category, r.name, r.type, r.typeId, isContentReadOnly, getContent, setContent, r.icon,
                                  kVisKeep, kZqAny, r.folder}).first;
    CZqCustomPropertyDescription* d = ZqBuildDynamicDescription(it->second);
    if (QLatin1String(r.name) == QLatin1String("Bottom attachment")) d->SetLightIcon(CZqString(kBottomLightIcon));
    d->SetDescription(CZqString(scaleText));
    container->AddDynamic(d);
  }
}

void dynamicRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  const M* m = ZqReadable<M>(object);
  if (!m) return;
  if (CZqPropertyDescription* style = container->GetByName(CZqString("Multi leader Style"), CZqString("Misc")))
    style->SetType(CZqCustomPropertyType(kZqUntyped, CZqString(ZqGuid::kMLeaderStyleGUID)));
  addContentRows(container, kAlways);
  static const ZqRow annotative = {ZQ_MISC, PT("Annotative"), kZqUntyped, nullptr, kZqReadOnly,
                                   ZqGetAnnotative, nullptr, "Misc_annotative"};
  container->AddDynamic(ZqBuildDynamicDescription(annotative));
  if (ZqIsAnnotative(object)) {
    static const ContentRow scale[] = {{ZQ_MISC, PT("Annotative Scale"), kZqUntyped, ZqGuid::kLineEditToolButtonGUID,
                                        "Misc_annotative_scale", "Misc"}};
    addContentRows(container, scale);
  }
  switch (m->contentType()) {
    case M::kBlockContent: addContentRows(container, kBlockRows); break;
    case M::kMTextContent:
      addContentRows(container, kTextHead);
      addContentRows(container, m->textAttachmentType() == 0 ? std::span<const ContentRow>(kHorizontal)
                                                             : std::span<const ContentRow>(kVertical));
      addContentRows(container, kTextTail);
      break;
    case M::kToleranceContent: addContentRows(container, kToleranceRows); break;
    default: break;
  }
}

}  // namespace

ZQ_DEFINE_PROVIDER(CZqMLeaderPE, QT_TRANSLATE_NOOP("entity_types", "MultiLeader"), kRows, {}, &dynamicRows)

#define II(s) QCoreApplication::translate("info_items", s)
#define IV(s) CZqString(QCoreApplication::translate("info_values", s))

void CZqMLeaderInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<M>(this, object, context, [&](const M* m) {
    static const char* const leaderTypes[] = {QT_TRANSLATE_NOOP("info_values", "Invisible"),
                                              QT_TRANSLATE_NOOP("info_values", "Straight"),
                                              QT_TRANSLATE_NOOP("info_values", "Spline")};
    static const char* const contentTypes[] = {QT_TRANSLATE_NOOP("info_values", "None"), QT_TRANSLATE_NOOP("info_values", "Block"),
                                               QT_TRANSLATE_NOOP("info_values", "Note"),
                                               QT_TRANSLATE_NOOP("info_values", "Tolerance")};
    context->PrintVector3D(II("Normal"), m->normal());
    context->PrintString(II("Leader Type"), IV(leaderTypes[m->leaderLineType()]));
    context->PrintString(II("Content Type"), IV(contentTypes[m->contentType()]));
    context->PrintBool(II("Landing Line"), m->landingEnabled() != 0);
    context->PrintString(II("MultiLeader style"), CZqString(m->styleName()));
    context->PrintInt(II("Leader number"), int(m->leaderLines().size()));
    for (const auto& line : m->leaderLines())
      for (const OdGePoint3d& p : line) {
        if (!context->CheckCounter()) return;
        context->PrintPoint(II("Vertex"), p);
      }
  });
}
