#include "Mline.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "ZqPointListRows.h"
#include "DbMline.h"

namespace {

using M = OdDbMline;

const ZqChoice kJustifications[] = {
    {QT_TRANSLATE_NOOP("property_values", "Top"), Mline::kTop},
    {QT_TRANSLATE_NOOP("property_values", "Zero"), Mline::kZero},
    {QT_TRANSLATE_NOOP("property_values", "Bottom"), Mline::kBottom},
};

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* ml = ZqReadable<M>(object);
  return ml ? CZqVariant(CZqString(ml->styleName())) : CZqVariant();
}

CZqVariant getJustification(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* ml = ZqReadable<M>(object);
  return ml ? ZqEnumeration(kJustifications, ZqChoiceIndex(kJustifications, ml->justification())) : CZqVariant();
}

// The elements keep their place relative to the style's zero line; a move
// to or from that line needs the style's offsets.
int setJustification(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                     const CZqVariant&) {
  M* ml = ZqWritable<M>(object);
  int32_t tag = 0;
  if (!ml || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(kJustifications, tag) < 0)
    return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), kJustifications));
  try {
    ml->setJustification(Mline::MlineJustification(tag));
  } catch (const OdError&) {
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The justification cannot be changed: the offsets of the multiline style are not known."));
  }
  return kZqSetApplied;
}

constexpr auto getVertices = ZqGetListedVertices<M, &M::numVertices>;
constexpr auto setVertices = ZqSetListedVertices<M>;
template <int Axis> constexpr auto getVertex = ZqGetListedCoordinate<M, &M::numVertices, &M::vertexAt, Axis>;
template <int Axis>
constexpr auto setVertex = ZqSetListedCoordinate<M, &M::numVertices, &M::vertexAt, &M::setVertexAt, Axis>;
constexpr auto getScale = ZqGetDouble<M, &M::scale>;
constexpr auto setScale = ZqSetDouble<M, &M::setScale>;
constexpr auto getClosed = ZqGetFlag<M, &M::isClosed, kZqYesNo>;
constexpr auto setClosed = ZqSetFlag<M, &M::setClosed, kZqYesNo>;

const ZqRow kRows[] = {
//  category     name                                           type           identifier            read-only    get               set               icon     visibility  limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex"),   kZqCollection, ZqGuid::kVertexGUID,  kZqEditable, getVertices,      setVertices,      nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex X"), kZqDouble,     ZqGuid::kVertexXGUID, kZqEditable, getVertex<0>,     setVertex<0>,     nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Y"), kZqDouble,     ZqGuid::kVertexYGUID, kZqEditable, getVertex<1>,     setVertex<1>,     nullptr, kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Vertex Z"), kZqDouble,     ZqGuid::kVertexZGUID, kZqEditable, getVertex<2>,     setVertex<2>,     nullptr, kVisXor8},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Style"),    kZqString,     nullptr,              kZqReadOnly, getStyle,         nullptr,          nullptr, kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Justify"),  kZqUntyped,    nullptr,              kZqEditable, getJustification, setJustification, nullptr, kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Scale"),    kZqDouble,     nullptr,              kZqEditable, getScale,         setScale,         nullptr, kVisKeep,   kZqNonZero},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Closed"),   kZqUntyped,    nullptr,              kZqEditable, getClosed,        setClosed,        nullptr, kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqMlinePE, QT_TRANSLATE_NOOP("entity_types", "Multiline"), kRows)

void CZqMlineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<M>(this, object, context, [&](const M* ml) {
    context->PrintString(QCoreApplication::translate("info_items", "Style"), CZqString(ml->styleName()));
    const int just = ZqChoiceIndex(kJustifications, ml->justification());
    if (just >= 0)
      context->PrintString(QCoreApplication::translate("info_items", "Justify"),
                           QCoreApplication::translate("property_values", kJustifications[just].word));
    context->PrintScale(QCoreApplication::translate("info_items", "Scale"), ml->scale());
    context->PrintString(QCoreApplication::translate("info_items", "PolyLine Flags"),
                         ml->isClosed() ? QCoreApplication::translate("info_values", "Closed")
                                        : QCoreApplication::translate("info_values", "Open"));
    context->PrintDist(QCoreApplication::translate("info_items", "Length"), ml->length());
    for (unsigned i = 0; i < ml->numVertices(); ++i) {
      if (!context->CheckCounter()) return;
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), ml->vertexAt(i));
    }
  });
}
