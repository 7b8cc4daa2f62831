#include "Polyline2d.h"
#include "PolylineInfo.h"
#include "ZqAreaText.h"
#include "ZqCallbacks.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "ZqMatchPolyline.h"
#include "ZqVertexRows.h"
#include "Db2dPolyline.h"

namespace {

using P = OdDb2dPolyline;

// The polyline when it is readable and has the indexed vertex.
const P* readableVertex(const OdDbObject* object, const CZqVariant& index, unsigned& i) {
  const P* pl = ZqReadable<P>(object);
  i = ZqVertexIndex(index);
  return pl && i < pl->numVerts() ? pl : nullptr;
}

// The polyline open for write; *refused is set (with the sentence shown)
// when it has no such vertex.
P* writableVertex(const OdDbObject* object, const CZqVariant& index, unsigned& i, int& refused) {
  P* pl = ZqWritable<P>(object);
  i = ZqVertexIndex(index);
  refused = kZqSetRefused;
  if (pl && i >= pl->numVerts()) refused = ZqRefuseVertex(i, pl->numVerts());
  return pl && i < pl->numVerts() ? pl : nullptr;
}

template <int Axis>
CZqVariant getVertexCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  unsigned i = 0;
  const P* pl = readableVertex(object, index, i);
  return pl ? ZqDouble(ZqUcsOf(object).wcsToUcs(pl->vertexPosition(i))[Axis]) : CZqVariant();
}

// The vertex edited in the UCS goes back into the polyline's plane: its
// object coordinates; the elevation stays the polyline's.
template <int Axis>
int setVertexCoordinate(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                        const CZqVariant& index) {
  unsigned i = 0;
  int refused = 0;
  P* pl = writableVertex(object, index, i, refused);
  if (!pl) return refused;
  double v = 0;
  if (const int bad = ZqTakeDouble(description, value, v)) return bad;
  OdGePoint3d p = pl->vertexPosition(i);
  if (!ZqReplaceUcsCoordinate(object, p, Axis, v)) return kZqSetApplied;
  const OdGePoint3d ocs = OdGeMatrix3d::worldToPlane(pl->normal()) * p;
  OdDb2dVertex* vertex = pl->vertexForWrite(i);
  vertex->setPosition(OdGePoint3d(ocs.x, ocs.y, vertex->position().z));
  return kZqSetApplied;
}

bool isVertexReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const P* pl = ZqReadable<P>(object);
  return !pl || !ZqIsInViewPlane(object, pl->normal());
}

template <bool Start>
CZqVariant getSegmentWidth(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  unsigned i = 0;
  const P* pl = readableVertex(object, index, i);
  if (!pl) return CZqVariant();
  return ZqDouble(Start ? pl->vertexAt(i)->startWidth() : pl->vertexAt(i)->endWidth());
}

template <bool Start>
int setSegmentWidth(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                    const CZqVariant& index) {
  unsigned i = 0;
  int refused = 0;
  P* pl = writableVertex(object, index, i, refused);
  if (!pl) return refused;
  double w = 0;
  if (const int bad = ZqTakeDouble(description, value, w)) return bad;
  if (Start) pl->vertexForWrite(i)->setStartWidth(w);
  else pl->vertexForWrite(i)->setEndWidth(w);
  return kZqSetApplied;
}

// The width every segment has at both ends; empty when they differ.
bool uniformWidth(const P* pl, double& width) {
  const unsigned segments = ZqSegmentCount(pl);
  if (pl->numVerts() == 0) return false;
  width = pl->vertexAt(0)->startWidth();
  for (unsigned i = 0; i < std::max(segments, 1u); ++i) {
    const OdDb2dVertex* v = pl->vertexAt(i);
    if (v->startWidth() != width || v->endWidth() != width) return false;
  }
  return true;
}

CZqVariant getGlobalWidth(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  double w = 0;
  return pl && uniformWidth(pl, w) ? ZqDouble(w) : CZqVariant();
}

// One width for every segment, and for vertices added later.
int setGlobalWidth(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                   const CZqVariant&) {
  P* pl = ZqWritable<P>(object);
  if (!pl) return kZqSetRefused;
  double w = 0;
  if (const int refused = ZqTakeDouble(description, value, w)) return refused;
  pl->setDefaultStartWidth(w);
  pl->setDefaultEndWidth(w);
  for (unsigned i = 0; i < pl->numVerts(); ++i) {
    pl->vertexForWrite(i)->setStartWidth(w);
    pl->vertexForWrite(i)->setEndWidth(w);
  }
  return kZqSetApplied;
}

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const P* pl = ZqReadable<P>(object);
  double area = 0;
  if (!pl || pl->getArea(area) != eOk) return CZqVariant();
  return ZqAreaValue(object, area, index, QCoreApplication::translate("CZq2dPolylinePE", "%1 sq. in. (%2 sq. ft.)"));
}

CZqVariant getLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  return pl ? ZqDouble(ZqCurvesHelper::GetLength(pl)) : CZqVariant();
}

// How the polyline was smoothed; shown, not edited (a new fit needs new
// vertices).
const ZqChoice kFitTypes[] = {
    {QT_TRANSLATE_NOOP("property_values", "None"), OdDb::k2dSimplePoly},
    {QT_TRANSLATE_NOOP("property_values", "Curve fit"), OdDb::k2dFitCurvePoly},
    {QT_TRANSLATE_NOOP("property_values", "Quadratic"), OdDb::k2dQuadSplinePoly},
    {QT_TRANSLATE_NOOP("property_values", "Cubic"), OdDb::k2dCubicSplinePoly},
};

CZqVariant getFitType(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  return pl ? ZqEnumeration(kFitTypes, ZqChoiceIndex(kFitTypes, pl->polyType())) : CZqVariant();
}

bool hasPlinegen(const P* pl) { return pl->isLinetypeGenerationOn(); }
CZqVariant getPlinegen(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  return pl ? ZqEnumeration(kZqEnabledDisabled, hasPlinegen(pl) ? 0 : 1) : CZqVariant();
}

int setPlinegen(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  P* pl = ZqWritable<P>(object);
  int32_t tag = 0;
  if (!pl || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag == 1) pl->setLinetypeGenerationOn();
  else if (tag == 0) pl->setLinetypeGenerationOff();
  return kZqSetApplied;
}

int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<P>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &MatchPolylineProperties);
}

constexpr auto getThickness = ZqGetDouble<P, &P::thickness>;
constexpr auto setThickness = ZqSetDouble<P, &P::setThickness>;
constexpr auto getElevation = ZqGetDouble<P, &P::elevation>;
constexpr auto setElevation = ZqSetDouble<P, &P::setElevation>;
constexpr auto getClosed = ZqGetFlag<P, &P::isClosed, kZqYesNo>;
constexpr auto setClosed = ZqSetFlag<P, &P::setClosed, kZqYesNo>;
constexpr auto isReadOnly = kZqReadOnly;

const ZqRow kRows[] = {
//  category       name                                                         type            identifier                     read-only          get                      set                      icon                           visibility     limit
  {ZQ_GENERAL,    QT_TRANSLATE_NOOP("property_types", "Thickness"),            kZqDouble,      nullptr,                       kZqEditable,       getThickness,            setThickness,            nullptr,                       kVisOr4},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Vertex"),               kZqCollection,  ZqGuid::kVertexGUID,           kZqEditable,       ZqGetVertexRow<P>,       ZqSetVertexRow<P>,       nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Vertex X"),             kZqDouble,      ZqGuid::kVertexXGUID,          isVertexReadOnly,  getVertexCoordinate<0>,  setVertexCoordinate<0>,  nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Vertex Y"),             kZqDouble,      ZqGuid::kVertexYGUID,          isVertexReadOnly,  getVertexCoordinate<1>,  setVertexCoordinate<1>,  nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Start segment width"),  kZqUntyped,     ZqGuid::kVertexStartWidthGUID, kZqEditable,       getSegmentWidth<true>,   setSegmentWidth<true>,   "Geometry_StartSegmentWidth",  kVisXor8,      kZqNonNegative},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "End segment width"),    kZqUntyped,     ZqGuid::kVertexEndWidthGUID,   kZqEditable,       getSegmentWidth<false>,  setSegmentWidth<false>,  "Geometry_EndSegmentWidth",    kVisXor8,      kZqNonNegative},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Global width"),         kZqUntyped,     nullptr,                       kZqEditable,       getGlobalWidth,          setGlobalWidth,          "Geometry_GlobalWidth",        kVisKeep,      kZqNonNegative},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Elevation"),            kZqUntyped,     nullptr,                       kZqEditable,       getElevation,            setElevation,            nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Area"),                 kZqUntyped,     nullptr,                       kZqReadOnly,       getArea,                 nullptr,                 nullptr,                       kVisKeep},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Length"),               kZqUntyped,     nullptr,                       kZqReadOnly,       getLength,               nullptr,                 nullptr,                       kVisKeep},
  {ZQ_MISC,       QT_TRANSLATE_NOOP("property_types", "Closed"),               kZqUntyped,     nullptr,                       kZqEditable,       getClosed,               setClosed,               nullptr,                       kVisKeep},
  {ZQ_MISC,       QT_TRANSLATE_NOOP("property_types", "Fit/Smooth"),           kZqUntyped,     nullptr,                       isReadOnly,        getFitType,              nullptr,                 "Misc_FitSmooth",              kVisKeep},
  {ZQ_MISC,       QT_TRANSLATE_NOOP("property_types", "LineStyleGen"),         kZqUntyped,     nullptr,                       kZqEditable,       getPlinegen,             setPlinegen,             "Misc_LTGeneration",           kVisXor8},
  {ZQ_MATCHPROP,  "MATCHPROP_2dPolyline",                                      kZqUntyped,     nullptr,                       nullptr,           ZqGetOwnId,              setMatch,                "",                            kVisMatchProp},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZq2dPolylinePE, QT_TRANSLATE_NOOP("entity_types", "2D Polyline"), kRows)

void CZq2dPolylineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDb2dPolyline>(this, object, context, [&](const OdDb2dPolyline* pl) {
    ZqPrintPolylineHead(pl, context, kFitTypes, QT_TRANSLATE_NOOP("info_items", "Perimeter"));
    double width = 0;
    const bool uniform = uniformWidth(pl, width);
    if (uniform) context->PrintWidth(QCoreApplication::translate("property_types", "Global width"), width);
    for (unsigned i = 0; i < pl->numVerts(); ++i) {
      if (!context->CheckCounter()) return;
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), pl->vertexPosition(i));
      if (!uniform && i < ZqSegmentCount(pl)) {
        context->PrintWidth(QCoreApplication::translate("property_types", "Start segment width"), pl->vertexAt(i)->startWidth());
        context->PrintWidth(QCoreApplication::translate("property_types", "End segment width"), pl->vertexAt(i)->endWidth());
      }
    }
  });
}
