#include "Polyline.h"
#include "ZqCallbacks.h"
#include "ZqAreaText.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "ZqMatchPolyline.h"
#include "ZqVertexRows.h"
#include "ZQCommandsBase.h"
#include "DbPlainClasses.h"

namespace {

using P = OdDbPolyline;

// The vertex a row's index names: an integer index is the zero-based vertex,
// any other index stands for vertex 0.
unsigned vertexIndex(const CZqVariant& index) { return ZqVertexIndex(index); }

// The polyline when it is readable (writable) and has the indexed vertex.
const P* readableVertex(const OdDbObject* object, const CZqVariant& index, unsigned& i) {
  const P* pl = ZqReadable<P>(object);
  i = vertexIndex(index);
  return pl && i < pl->numVerts() ? pl : nullptr;
}
P* writableVertex(const OdDbObject* object, const CZqVariant& index, unsigned& i) {
  P* pl = ZqWritable<P>(object);
  i = vertexIndex(index);
  return pl && i < pl->numVerts() ? pl : nullptr;
}

// --- Vertex ------------------------------------------------------------------

template <int Axis>
CZqVariant getVertexCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  unsigned i = 0;
  const P* pl = readableVertex(object, index, i);
  if (!pl) return CZqVariant();
  OdGePoint3d p;
  pl->getPointAt(i, p);
  return ZqDouble(ZqUcsOf(object).wcsToUcs(p)[Axis]);
}

// The vertex edited in the UCS is taken back into the polyline's plane: the
// WCS point projected onto the plane through the origin with the polyline's
// normal, in that plane's (object) coordinates.
template <int Axis>
int setVertexCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value,
                        const CZqVariant& index) {
  unsigned i = 0;
  P* pl = writableVertex(object, index, i);
  if (!pl || value.GetType() != CZqVariant::kVtDouble) return kZqSetRefused;
  OdGePoint3d p;
  pl->getPointAt(i, p);
  if (!ZqReplaceUcsCoordinate(object, p, Axis, value.GetDouble())) return kZqSetApplied;
  const OdGePlane plane(OdGePoint3d::kOrigin, pl->normal());
  pl->setPointAt(i, p.convert2d(plane));
  return kZqSetApplied;
}

// Vertex X and Y are editable only when the polyline lies in the current
// view's XY plane facing the same way: its normal codirectional with the
// view's UCS Z axis. Without an open document the drawing's UCS serves.
bool isVertexReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const P* pl = ZqReadable<P>(object);
  return !pl || !ZqIsInViewPlane(object, pl->normal());
}

// --- Widths ------------------------------------------------------------------

template <bool Start>
CZqVariant getSegmentWidth(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  unsigned i = 0;
  const P* pl = readableVertex(object, index, i);
  if (!pl) return CZqVariant();
  double s = 0, e = 0;
  pl->getWidthsAt(i, s, e);
  return ZqDouble(Start ? s : e);
}

// A segment width ends the constant width: the other segments keep it as
// their own widths. On a polyline without segments only the constant width
// is cleared.
template <bool Start>
int setSegmentWidth(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                    const CZqVariant& index) {
  unsigned i = 0;
  P* pl = writableVertex(object, index, i);
  if (!pl) return kZqSetRefused;
  double width = 0;
  if (const int refused = ZqTakeDouble(description, value, width)) return refused;
  double s = 0, e = 0;
  pl->getWidthsAt(i, s, e);
  const double constant = pl->getConstantWidth();
  if (constant != 0) {
    pl->setConstantWidth(0);
    const unsigned segments = ZqSegmentCount(pl);
    if (segments == 0) return kZqSetApplied;
    for (unsigned j = 0; j < segments; ++j)
      if (j != i) pl->setWidthsAt(j, constant, constant);
  }
  pl->setWidthsAt(i, Start ? width : s, Start ? e : width);
  return kZqSetApplied;
}

// The constant width, or the width every segment has at both ends; empty
// when the widths differ.
CZqVariant getGlobalWidth(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  if (!pl) return CZqVariant();
  if (pl->getConstantWidth() != 0) return ZqDouble(pl->getConstantWidth());
  if (pl->numVerts() == 0) return CZqVariant();
  double first = 0, firstEnd = 0;
  pl->getWidthsAt(0, first, firstEnd);
  if (first != firstEnd) return CZqVariant();
  for (unsigned i = 1; i < ZqSegmentCount(pl); ++i) {
    double s = 0, e = 0;
    pl->getWidthsAt(i, s, e);
    if (s != first || e != first) return CZqVariant();
  }
  return ZqDouble(first);
}

// --- Measures ----------------------------------------------------------------

CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const P* pl = ZqReadable<P>(object);
  double area = 0;
  if (!pl || pl->getArea(area) != eOk) return CZqVariant();
  return ZqAreaValue(object, area, index, QCoreApplication::translate("CZqPolylinePE", "%1 sq. in. (%2 sq. ft.)"));
}

// Arcs by their arc length, lines by their length; lone and coincident
// points add nothing.
CZqVariant getLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  if (!pl) return CZqVariant();
  double length = 0;
  for (unsigned i = 0; i < pl->numVerts(); ++i) {
    switch (pl->segType(i)) {
      case P::kArc: {
        OdGeCircArc2d arc;
        pl->getArcSegAt(i, arc);
        length += arc.radius() * (arc.endAng() - arc.startAng());
        break;
      }
      case P::kLine: {
        OdGeLineSeg2d line;
        pl->getLineSegAt(i, line);
        length += line.startPoint().distanceTo(line.endPoint());
        break;
      }
      default: break;
    }
  }
  return ZqDouble(length);
}

// --- Misc ----------------------------------------------------------------------

int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<P>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &MatchPolylineProperties);
}

// --- Revision cloud ------------------------------------------------------------

// The style words the cloud dialog names; other stored words show as stored.
const char* const kDialogStyles[] = {
    QT_TRANSLATE_NOOP("CZqDlgCloudSettings", "Rectangular"),
    QT_TRANSLATE_NOOP("CZqDlgCloudSettings", "Elliptical"),
    QT_TRANSLATE_NOOP("CZqDlgCloudSettings", "Freehand"),
    QT_TRANSLATE_NOOP("CZqDlgCloudSettings", "Custom"),
};

// The two cloud rows share their callbacks and are told apart by their keys.
bool isShapeRow(const CZqPropertyDescription& d) { return d.GetNameKey().qstring() == QLatin1String("Shape"); }
bool isRadiusRow(const CZqPropertyDescription& d) { return d.GetNameKey().qstring() == QLatin1String("Radius"); }

bool isRevisionCloud(const OdDbObject* object) {
  const P* pl = ZqReadable<P>(object);
  return pl && pl->xData(OdString(CZqCloudBase::kAppName));
}

// The cloud's extended data with its radius (the first real) replaced and
// every other item, known to this module or not, kept in its place.
OdResBufPtr withRadius(const OdResBuf* chain, double radius) {
  OdResBufPtr copy = chain->copyChain();
  for (OdResBuf* p = copy->next(); p; p = p->next())
    if (p->restype() == OdResBuf::kDxfXdReal) {
      p->setValue(radius);
      break;
    }
  return copy;
}

CZqVariant getCloud(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const P* pl = ZqReadable<P>(object);
  CLOUDLINE_COMMAND_DATA data;
  if (!pl || !CZqCloudBase::ReadCloudData(pl, data)) return CZqVariant();
  if (isShapeRow(description)) {
    for (const char* word : kDialogStyles)
      if (data.style.iCompare(OdString(word)) == 0)
        return CZqVariant(QCoreApplication::translate("CZqDlgCloudSettings", word));
    return CZqVariant(data.style.qstring());
  }
  if (isRadiusRow(description)) return ZqDouble(data.arcRadius);
  return CZqVariant();
}

bool isCloudReadOnly(const OdDbObject*, const CZqPropertyDescription& description) { return !isRadiusRow(description); }

// The curve the cloud was drawn on: the stored circle, ellipse (a full
// turn) or spline for those styles, otherwise the cloud's own vertices in
// its plane.
OdDbCurvePtr cloudBase(const P* pl, const CLOUDLINE_COMMAND_DATA& data) {
  const OdString& style = data.style;
  if (data.hasBaseData) {
    if (style.iCompare(OdString("Circle")) == 0) {
      OdDbCirclePtr circle = OdDbCircle::createObject();
      circle->setNormal(pl->normal());
      circle->setCenter(data.center);
      circle->setRadius(data.baseRadius);
      return OdDbCurvePtr(circle.get());
    }
    if (style.iCompare(OdString("Ellipse")) == 0 || style.iCompare(OdString("Elliptical")) == 0) {
      OdDbEllipsePtr ellipse = OdDbEllipse::createObject();
      ellipse->set(data.center, pl->normal(), data.majorAxis, data.radiusRatio, 0, Oda2PI);
      return OdDbCurvePtr(ellipse.get());
    }
    if (style.iCompare(OdString("Spline")) == 0) {
      OdDbSplinePtr spline = OdDbSpline::createObject();
      spline->setNurbsData(data.degree, false, false, false, data.controlPoints, data.knots, OdGeDoubleArray());
      return OdDbCurvePtr(spline.get());
    }
  }
  OdDbPolylinePtr base = OdDbPolyline::createObject();
  const OdGeMatrix3d toPlane = OdGeMatrix3d::worldToPlane(pl->normal());
  for (unsigned i = 0; i < pl->numVerts(); ++i) {
    OdGePoint3d p;
    pl->getPointAt(i, p);
    base->addVertexAt(i, (toPlane * p).convert2d());
  }
  base->setNormal(pl->normal());
  base->setElevation(pl->elevation());
  base->setClosed(pl->isClosed());
  return OdDbCurvePtr(base.get());
}

// A new radius draws the cloud again along its base; the polyline keeps its
// entity properties, elevation and constant width, and its cloud data the
// new radius with every other item as it was.
int setCloud(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  P* pl = ZqWritable<P>(object);
  if (!pl || !isRadiusRow(description)) return kZqSetRefused;
  double radius = 0;
  if (const int refused = ZqTakeDouble(description, value, radius)) return refused;
  CLOUDLINE_COMMAND_DATA data;
  const OdResBufPtr xdata = pl->xData(OdString(CZqCloudBase::kAppName));
  if (!xdata || !CZqCloudBase::ReadCloudData(pl, data)) return kZqSetRefused;
  CZqCloudBase cloud;
  try {
    cloud.setBaseCurve(cloudBase(pl, data));
  } catch (const OdError&) {
    return kZqSetRefused;  // stored base data that no curve can be made of
  }
  cloud.setTempCurve(pl);
  data.arcRadius = radius;
  cloud.setCloudSetting(data);
  if (!cloud.cloudBaseMain()) return kZqSetRefused;

  const OdCmColor color = pl->color();
  const OdDbObjectId linetype = pl->linetypeId(), layer = pl->layerId();
  const OdDb::LineWeight lineWeight = pl->lineWeight();
  const double elevation = pl->elevation(), constantWidth = pl->getConstantWidth();
  pl->reset(false, 0);
  for (unsigned i = 0; i < cloud.points().length(); ++i) pl->addVertexAt(i, cloud.points()[i], cloud.bulges()[i]);
  pl->setClosed(cloud.isClosed());
  pl->setColor(color);
  pl->setLinetype(linetype);
  pl->setLayer(layer);
  pl->setLineWeight(lineWeight);
  pl->setElevation(elevation);
  pl->setConstantWidth(constantWidth);
  pl->setXData(withRadius(xdata.get(), radius).get());
  return kZqSetApplied;
}

constexpr auto getThickness = ZqGetDouble<P, &P::thickness>;
constexpr auto setThickness = ZqSetDouble<P, &P::setThickness>;
constexpr auto setGlobalWidth = ZqSetDouble<P, &P::setConstantWidth>;
constexpr auto getElevation = ZqGetDouble<P, &P::elevation>;
constexpr auto setElevation = ZqSetDouble<P, &P::setElevation>;
constexpr auto getClosed = ZqGetFlag<P, &P::isClosed, kZqYesNo>;
constexpr auto setClosed = ZqSetFlag<P, &P::setClosed, kZqYesNo>;
constexpr auto getPlinegen = ZqGetFlag<P, &P::hasPlinegen, kZqEnabledDisabled>;
constexpr auto setPlinegen = ZqSetFlag<P, &P::setPlinegen, kZqEnabledDisabled>;
// Segment widths refuse negative values, without a message box.
constexpr ZqLimit kWidth = ZqSilent(kZqNonNegative);
constexpr ZqLimit kCloudRadius = ZqMessage(kZqPositive, QT_TRANSLATE_NOOP("errors", "Value must be positive and non-zero."));

const ZqRow kRows[] = {
//  category       name                                                         type            identifier                     read-only          get                      set                      icon                           visibility     limit
  {ZQ_GENERAL,    QT_TRANSLATE_NOOP("property_types", "Thickness"),            kZqDouble,      nullptr,                       kZqEditable,       getThickness,            setThickness,            nullptr,                       kVisOr4},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Vertex"),               kZqCollection,  ZqGuid::kVertexGUID,           kZqEditable,       ZqGetVertexRow<P>,       ZqSetVertexRow<P>,       nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Vertex X"),             kZqDouble,      ZqGuid::kVertexXGUID,          isVertexReadOnly,  getVertexCoordinate<0>,  setVertexCoordinate<0>,  nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Vertex Y"),             kZqDouble,      ZqGuid::kVertexYGUID,          isVertexReadOnly,  getVertexCoordinate<1>,  setVertexCoordinate<1>,  nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Start segment width"),  kZqUntyped,     ZqGuid::kVertexStartWidthGUID, kZqEditable,       getSegmentWidth<true>,   setSegmentWidth<true>,   "Geometry_StartSegmentWidth",  kVisXor8,      kWidth},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "End segment width"),    kZqUntyped,     ZqGuid::kVertexEndWidthGUID,   kZqEditable,       getSegmentWidth<false>,  setSegmentWidth<false>,  "Geometry_EndSegmentWidth",    kVisXor8,      kWidth},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Global width"),         kZqUntyped,     nullptr,                       kZqEditable,       getGlobalWidth,          setGlobalWidth,          "Geometry_GlobalWidth",        kVisKeep},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Elevation"),            kZqUntyped,     nullptr,                       kZqEditable,       getElevation,            setElevation,            nullptr,                       kVisXor8},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Area"),                 kZqUntyped,     nullptr,                       kZqReadOnly,       getArea,                 nullptr,                 nullptr,                       kVisKeep},
  {ZQ_GEOMETRY,   QT_TRANSLATE_NOOP("property_types", "Length"),               kZqUntyped,     nullptr,                       kZqReadOnly,       getLength,               nullptr,                 nullptr,                       kVisKeep},
  {ZQ_MISC,       QT_TRANSLATE_NOOP("property_types", "Closed"),               kZqUntyped,     nullptr,                       kZqEditable,       getClosed,               setClosed,               nullptr,                       kVisKeep},
  {ZQ_MISC,       QT_TRANSLATE_NOOP("property_types", "LineStyleGen"),         kZqUntyped,     nullptr,                       kZqEditable,       getPlinegen,             setPlinegen,             "Misc_LTGeneration",           kVisXor8},
  {ZQ_MATCHPROP,  "MATCHPROP_Polyline",                                        kZqUntyped,     nullptr,                       nullptr,           ZqGetOwnId,              setMatch,                "",                            kVisMatchProp},
};

// The cloud settings, for a polyline that is a revision cloud.
const ZqConditionalRow kCloudRows[] = {
//  only when          category                                                 name                                            type        identifier  read-only         get        set        icon                visibility  limit
  {isRevisionCloud, {QT_TRANSLATE_NOOP("property_groups", "Cloud Settings"),  QT_TRANSLATE_NOOP("property_types", "Shape"),   kZqUntyped, nullptr,    isCloudReadOnly,  getCloud,  setCloud,  "Misc_Name",        kVisKeep}},
  {isRevisionCloud, {QT_TRANSLATE_NOOP("property_groups", "Cloud Settings"),  QT_TRANSLATE_NOOP("property_types", "Radius"),  kZqDouble,  nullptr,    isCloudReadOnly,  getCloud,  setCloud,  "Geometry_Radius",  kVisKeep,   kCloudRadius}},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqPolylinePE, QT_TRANSLATE_NOOP("entity_types", "PolyLine"), kRows, kCloudRows)

void CZqPolylineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbPolyline>(this, object, context, [&](const OdDbPolyline* pl) {
    context->PrintString(QCoreApplication::translate("info_items", "PolyLine Flags"),
                         pl->isClosed() ? QCoreApplication::translate("info_values", "Closed")
                                        : QCoreApplication::translate("info_values", "Open"));
    double area = 0;
    pl->getArea(area);
    context->PrintArea(QCoreApplication::translate("info_items", "Area"), area);
    double end = 0, perimeter = 0;
    if (pl->getEndParam(end) == eOk) pl->getDistAtParam(end, perimeter);
    context->PrintDist(QCoreApplication::translate("info_items", "Perimeter"), perimeter);

    const unsigned n = pl->numVerts();
    if (n == 0) return;
    // Uniform: every vertex but the last has start = end = vertex 0's start
    // width (the closing segment is not looked at).
    double first = 0, firstEnd = 0;
    pl->getWidthsAt(0, first, firstEnd);
    bool uniform = first == firstEnd;
    for (unsigned i = 1; uniform && i + 1 < n; ++i) {
      double s = 0, e = 0;
      pl->getWidthsAt(i, s, e);
      uniform = s == first && e == first;
    }
    if (uniform) context->PrintWidth(QCoreApplication::translate("property_types", "Global width"), pl->getConstantWidth());
    // The listing may be stopped before each vertex: one question per vertex.
    for (unsigned i = 0; i < n; ++i) {
      if (!context->CheckCounter()) return;
      OdGePoint3d p;
      pl->getPointAt(i, p);
      context->PrintPoint(QCoreApplication::translate("info_items", "Location %1").arg(i), p);
      if (!uniform && i + 1 < n) {
        double s = 0, e = 0;
        pl->getWidthsAt(i, s, e);
        context->PrintWidth(QCoreApplication::translate("property_types", "Start segment width"), s);
        context->PrintWidth(QCoreApplication::translate("property_types", "End segment width"), e);
      }
    }
  });
}
