#include "Leader.h"
#include "ZqAnnotativeRows.h"
#include "Dimension.h"
#include "ZqInfoFrame.h"
#include "ZqVertexRows.h"

namespace dv = OdDbDimVar;

// --- Rows shared with tolerance frames ---------------------------------------------------------

namespace ZqStyled {

CZqVariant valueOf(dv::Id id, const dv::Value& v) {
  switch (dv::info(id).kind) {
    case dv::Kind::Color: return CZqVariant(std::get<OdCmColor>(v));
    case dv::Kind::Int:
    case dv::Kind::LineWeight: return CZqVariant(int32_t(std::get<int>(v)));
    case dv::Kind::Real:
    case dv::Kind::Angle: return ZqDouble(std::get<double>(v));
    case dv::Kind::TextStyle: return CZqVariant(std::get<OdDbObjectId>(v));
    default: return CZqVariant();
  }
}

int take(const OdDbObject* object, dv::Id id, const CZqPropertyDescription& description, const CZqVariant& value,
         dv::Value* out) {
  switch (dv::info(id).kind) {
    case dv::Kind::TextStyle: {
      if (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
      QString why;
      const OdDbObjectId style = ZqRecordFor(object, kZqTextStyles, value, &why);
      if (style.isNull()) return ZqRefuseWith(why);
      *out = style;
      return 0;
    }
    case dv::Kind::Color:
      if (value.GetType() != CZqVariant::kVtColor) return kZqSetRefused;
      *out = value.GetColor();
      return 0;
    case dv::Kind::Int:
    case dv::Kind::LineWeight:
      if (value.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
      *out = int(value.GetInt32());
      break;
    case dv::Kind::Real:
    case dv::Kind::Angle: {
      double d = 0;
      if (const int refused = ZqTakeDouble(description, value, d)) return refused;
      *out = d;
      break;
    }
    default: return kZqSetRefused;
  }
  return dv::check(id, *out) ? 0 : refuseValue(id);
}

int refuseValue(dv::Id id) {
  return ZqRefuseWith(QCoreApplication::translate("errors", "%1 cannot take this value").arg(dv::info(id).upperName().qstring()));
}

bool isScaleReadOnly(const OdDbObject* object, const CZqPropertyDescription&) { return ZqIsAnnotative(object); }

void addDynamicRows(const OdDbObject* object, CZqPropertiesContainer* container, std::span<const StyleRow> styleRows,
                    const ZqRow& annotationScale, const QString& scaleDescription) {
  for (const StyleRow& r : styleRows)
    if (CZqPropertyDescription* d = container->GetByName(CZqString(r.name), CZqString(r.category)))
      d->SetType(CZqCustomPropertyType(kZqUntyped, CZqString(r.guid)));
  static const ZqRow annotative = {ZQ_MISC, QT_TRANSLATE_NOOP("property_types", "Annotative"), kZqUntyped, nullptr,
                                   kZqReadOnly, ZqGetAnnotative, nullptr, "Misc_annotative"};
  container->AddDynamic(ZqBuildDynamicDescription(annotative));
  if (!ZqIsAnnotative(object)) return;
  CZqCustomPropertyDescription* scale = ZqBuildDynamicDescription(annotationScale);
  scale->SetVisibility(scale->GetVisibility() ^ 8);
  scale->SetDescription(CZqString(scaleDescription));
  scale->PutGroupActionMethod(ZqAnnotationScalesAction);
  container->AddDynamic(scale);
}

}  // namespace ZqStyled

// --- The leader ---------------------------------------------------------------------------------

namespace {

using L = OdDbLeader;

CZqVariant getAssociative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* leader = ZqReadable<L>(object);
  return leader ? ZqEnumeration(kZqYesNo, leader->annotationObjId().isNull() ? 1 : 0) : CZqVariant();
}

// The vertex the index names, in the current UCS.
template <int Axis>
CZqVariant getVertex(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const L* leader = ZqReadable<L>(object);
  const unsigned i = ZqVertexIndex(index);
  if (!leader || i >= leader->numVerts()) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs(leader->vertexAt(i))[Axis]);
}
template <int Axis>
int setVertex(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant& index) {
  L* leader = ZqWritable<L>(object);
  if (!leader) return kZqSetRefused;
  const unsigned i = ZqVertexIndex(index);
  if (i >= leader->numVerts()) return ZqRefuseVertex(i, leader->numVerts());
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p = leader->vertexAt(i);
  if (ZqReplaceUcsCoordinate(object, p, Axis, v)) leader->setVertexAt(i, p);
  return kZqSetApplied;
}

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& i) {
  return ZqStyled::getStyle<L>(object, d, i);
}
int setStyle(const OdDbObject* object, const CZqPropertyDescription& d, const CZqVariant& v, const CZqVariant& i) {
  return ZqStyled::setStyle<L>(object, d, v, i);
}

// The path and the arrow, as one choice: the tag's bit 2 is the arrow,
// bit 1 the spline.
const ZqChoice kLeaderType[] = {
    {QT_TRANSLATE_NOOP("property_values", "Line with no arrow"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Spline with no arrow"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Line with arrow"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Spline with arrow"), 3},
};
int typeOf(const L* leader) { return (leader->hasArrowHead() ? 2 : 0) + (leader->isSplined() ? 1 : 0); }
CZqVariant getType(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* leader = ZqReadable<L>(object);
  return leader ? ZqEnumeration(kLeaderType, typeOf(leader)) : CZqVariant();
}
int setType(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value, const CZqVariant&) {
  L* leader = ZqWritable<L>(object);
  int32_t tag = 0;
  if (!leader || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(kLeaderType, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), kLeaderType));
  if (tag == typeOf(leader)) return kZqSetApplied;
  leader->setHasArrowHead(tag & 2);
  leader->setSplined(tag & 1);
  return kZqSetApplied;
}

// The arrowheads a leader offers, by the block that draws each (the first,
// closed filled, is drawn without one).
const struct Arrowhead {
  ZqChoice choice;
  const char* block;
} kArrowheads[] = {
    {{QT_TRANSLATE_NOOP("property_values", "Closed filled"), 0}, ""},
    {{QT_TRANSLATE_NOOP("property_values", "Closed blank"), 1}, "_ClosedBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Closed"), 2}, "_Closed"},
    {{QT_TRANSLATE_NOOP("property_values", "Architectural tick"), 3}, "_ArchTick"},
    {{QT_TRANSLATE_NOOP("property_values", "Oblique"), 4}, "_Oblique"},
    {{QT_TRANSLATE_NOOP("property_values", "Open"), 5}, "_Open"},
    {{QT_TRANSLATE_NOOP("property_values", "Origin indicator"), 6}, "_Origin"},
    {{QT_TRANSLATE_NOOP("property_values", "Origin indicator 2"), 7}, "_Origin2"},
    {{QT_TRANSLATE_NOOP("property_values", "Right angle"), 8}, "_Open90"},
    {{QT_TRANSLATE_NOOP("property_values", "Open 30"), 9}, "_Open30"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot small"), 10}, "_DotSmall"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot blank"), 11}, "_DotBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot small blank"), 12}, "_Small"},
    {{QT_TRANSLATE_NOOP("property_values", "Box filled"), 13}, "_BoxFilled"},
    {{QT_TRANSLATE_NOOP("property_values", "Datum triangle"), 14}, "_DatumBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Datum triangle filled"), 15}, "_DatumFilled"},
    {{QT_TRANSLATE_NOOP("property_values", "Integral"), 16}, "_Integral"},
    {{QT_TRANSLATE_NOOP("property_values", "None"), 17}, "_None"},
};
const auto kArrowChoices = [] {
  std::array<ZqChoice, std::size(kArrowheads)> out{};
  for (size_t i = 0; i < out.size(); ++i) out[i] = kArrowheads[i].choice;
  return out;
}();

}  // namespace

// The arrowhead a block draws: its index in the list, 0 for none, -1 for a
// block of the user's own.
int ZqArrowheadIndex(const OdDbObjectId& block) {
  if (block.isNull()) return 0;
  OdDbObjectPtr o = block.openObject();
  auto* rec = odrxCast<OdDbBlockTableRecord>(o.get());
  if (!rec) return -1;
  const QString name = rec->getName().qstring();
  for (size_t i = 1; i < std::size(kArrowheads); ++i)
    if (name.compare(QLatin1String(kArrowheads[i].block), Qt::CaseInsensitive) == 0) return int(i);
  return -1;
}

std::span<const ZqChoice> ZqArrowheadChoices() { return kArrowChoices; }

// The block of the arrowhead of a tag, in the object's drawing: *block is
// null for closed filled; a refusal when the drawing lacks the block.
int ZqArrowheadBlock(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                     OdDbObjectId* block) {
  int32_t tag = 0;
  if (!ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag < 0 || size_t(tag) >= std::size(kArrowheads))
    return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), kArrowChoices));
  *block = OdDbObjectId();
  if (tag == 0) return 0;
  QString why;
  *block = ZqRecordFor(object, kZqBlocks, CZqVariant(CZqString(QLatin1String(kArrowheads[tag].block))), &why);
  if (block->isNull())
    return ZqRefuseWith(QCoreApplication::translate("errors", "The drawing has no block for the arrowhead \"%1\"")
                            .arg(QCoreApplication::translate("property_values", kArrowheads[tag].choice.word)));
  return 0;
}

namespace {

CZqVariant getArrow(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const L* leader = ZqReadable<L>(object);
  return leader ? ZqEnumeration(kArrowChoices, ZqArrowheadIndex(leader->dimldrblk())) : CZqVariant();
}
int setArrow(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value, const CZqVariant&) {
  L* leader = ZqWritable<L>(object);
  if (!leader) return kZqSetRefused;
  OdDbObjectId block;
  if (const int refused = ZqArrowheadBlock(object, description, value, &block)) return refused;
  if (block != leader->dimldrblk()) leader->setDimldrblk(block);
  return kZqSetApplied;
}

int matchLeader(const OdDbEntity* source, OdDbObject* target) {
  const L* from = odrxCast<L>(source);
  L* to = odrxCast<L>(target);
  if (!from || !to || !to->isWriteEnabled()) return kZqSetRefused;
  if (typeOf(from) != typeOf(to)) {
    to->setHasArrowHead(from->hasArrowHead());
    to->setSplined(from->isSplined());
  }
  return ZqStyled::matchStyle(from, to);
}
int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<L>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &matchLeader);
}

#define ZQ_LA QT_TRANSLATE_NOOP("property_groups", "Lines && Arrows")
#define PT(s) QT_TRANSLATE_NOOP("property_types", s)
constexpr ZqLimit kNotNegative = ZqMessage(kZqNonNegative, "Value must be non-negative");
template <dv::Id Id> constexpr auto getV = ZqStyled::get<L, Id>;
template <dv::Id Id> constexpr auto setV = ZqStyled::set<L, Id>;

// clang-format off
const ZqRow kRows[] = {
//  category                                       name                      type           identifier               read-only                   get                        set                        icon                          visibility     limit
  {ZQ_GENERAL,                                     PT("Associative"),        kZqUntyped,    nullptr,                 kZqReadOnly,                getAssociative,            nullptr,                   "General_Associative"},
  {ZQ_GEOMETRY,                                    PT("Vertex"),             kZqCollection, ZqGuid::kVertexGUID,     kZqEditable,                ZqGetVertexRow<L>,         ZqSetVertexRow<L>,         "Geometry_Vertex"},
  {ZQ_GEOMETRY,                                    PT("Vertex x"),           kZqDouble,     ZqGuid::kVertexXGUID,    kZqEditable,                getVertex<0>,              setVertex<0>,              "Geometry_VertexX"},
  {ZQ_GEOMETRY,                                    PT("Vertex y"),           kZqDouble,     ZqGuid::kVertexYGUID,    kZqEditable,                getVertex<1>,              setVertex<1>,              "Geometry_VertexY"},
  {ZQ_GEOMETRY,                                    PT("Vertex z"),           kZqDouble,     ZqGuid::kVertexZGUID,    kZqEditable,                getVertex<2>,              setVertex<2>,              "Geometry_VertexZ"},
  {ZQ_MISC,                                        PT("DimStyle"),           kZqUntyped,    nullptr,                 kZqEditable,                getStyle,                  setStyle,                  "Misc_DimStyle"},
  {ZQ_MISC,                                        PT("Type"),               kZqUntyped,    nullptr,                 kZqEditable,                getType,                   setType,                   "Misc_LeaderType"},
  {ZQ_LA,                                          PT("Arrow"),              kZqUntyped,    nullptr,                 kZqEditable,                getArrow,                  setArrow,                  "Lines_Arrows_Arrow1"},
  {ZQ_LA,                                          PT("Arrow size"),         kZqUntyped,    nullptr,                 kZqEditable,                getV<dv::k_dimasz>,        setV<dv::k_dimasz>,        "Lines_Arrows_ArrowSize",     kVisKeep,      kNotNegative},
  {ZQ_LA,                                          PT("DimLine LWeight"),    kZqInt32,      ZqGuid::kLineweightGUID, kZqEditable,                getV<dv::k_dimlwd>,        setV<dv::k_dimlwd>,        "Lines_Arrows_DimLineWeight"},
  // The plain editor, not the colour editor, as the palette has always shown it.
  {ZQ_LA,                                          PT("DimLine LColor"),     kZqUntyped,    nullptr,                 kZqEditable,                getV<dv::k_dimclrd>,       setV<dv::k_dimclrd>,       "Lines_Arrows_DimLineColor"},
  {QT_TRANSLATE_NOOP("property_groups", "Fit"),    PT("DimScale overall"),   kZqUntyped,    nullptr,                 ZqStyled::isScaleReadOnly,  getV<dv::k_dimscale>,      setV<dv::k_dimscale>,      "Fit_DimScaleOverall",        kVisKeep,      kNotNegative},
  {QT_TRANSLATE_NOOP("property_groups", "Text"),   PT("Text offset"),        kZqUntyped,    nullptr,                 kZqEditable,                getV<dv::k_dimgap>,        setV<dv::k_dimgap>,        "Text_Offset"},
  {ZQ_MATCHPROP,                                   "MATCHPROP_Leader",       kZqUntyped,    nullptr,                 kZqEditable,                ZqGetOwnId,                setMatch,                  "",                           kVisMatchProp},
};
const ZqRow kScaleRow = {ZQ_MISC, PT("Annotative Scale"), kZqUntyped, ZqGuid::kLineEditToolButtonGUID, ZqIsAnnotationScaleReadOnly,
                         getV<dv::k_dimscale>, nullptr, "Misc_annotative_scale", kVisKeep, kZqAny, "Misc"};
// clang-format on

const ZqStyled::StyleRow kStyleRows[] = {{ZQ_MISC, "DimStyle", ZqGuid::kDimStyleGUID}};

void dynamicRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  ZqStyled::addDynamicRows(object, container, kStyleRows, kScaleRow,
                           QCoreApplication::translate("CZqLeaderPE", "Edit annotation scales"));
}

}  // namespace

ZQ_DEFINE_PROVIDER(CZqLeaderPE, QT_TRANSLATE_NOOP("entity_types", "Leader"), kRows, {}, &dynamicRows)

#define II(s) QCoreApplication::translate("info_items", s)

void CZqLeaderInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<L>(this, object, context, [&](const L* leader) {
    context->PrintBool(II("related"), !leader->annotationObjId().isNull());
    context->PrintString(II("type"), CZqString(QCoreApplication::translate("info_values", "leader")));
    context->PrintVector3D(II("Normal"), leader->normal());
    context->PrintVector3D(II("Horizontal direction"), leader->horizontalDirection());
    for (unsigned i = 0; i < leader->numVerts(); ++i) {
      if (!context->CheckCounter()) break;
      context->PrintPoint(II("Vertex"), leader->vertexAt(i));
    }
    context->PrintBool(II("Hook Line"), leader->hasHookLine());
    context->PrintBool(II("Arrow"), leader->hasArrowHead());
    OdDbObjectPtr style = leader->dimensionStyle().isNull() ? OdDbObjectPtr() : leader->dimensionStyle().openObject();
    const auto* record = odrxCast<OdDbDimStyleTableRecord>(style.get());
    context->PrintString(II("DimensionStyle"), record ? CZqString(record->getName()) : CZqString());
    ZqPrintDimStyleOverrides(object, leader->dimensionStyle(), context);
  });
}
