#include "Spline.h"
#include "ZqAreaText.h"
#include "ZqCallbacks.h"
#include "ZqEnumerations.h"
#include "ZqInfoFrame.h"
#include "ZqVertexRows.h"
#include "DbSpline.h"

namespace {

using S = OdDbSpline;

const char* const kDegreeSentence = QT_TRANSLATE_NOOP("errors", "Degree must be a whole number from 1 to 10");

struct Nurbs {
  int degree = 0;
  bool rational = false, closed = false, periodic = false;
  OdGePoint3dArray ctrl;
  OdGeDoubleArray knots, weights;
  explicit Nurbs(const S* s) { s->getNurbsData(degree, rational, closed, periodic, ctrl, knots, weights); }
  // Writes the data back; false (nothing changed) when the spline refuses it.
  bool store(S* s) const {
    try {
      s->setNurbsData(degree, rational, closed, periodic, ctrl, knots, weights);
      return true;
    } catch (const OdError&) {
      return false;
    }
  }
};

double splineLength(const S* s) {
  double end = 0, dist = 0;
  if (s->getEndParam(end) != eOk || s->getDistAtParam(end, dist) != eOk) return 0;
  return dist;
}

// The spline open for write with the indexed control point; a point that
// is not there is refused with a sentence.
S* writableControlPoint(const OdDbObject* object, const CZqVariant& index, unsigned& i, int& refused) {
  S* s = ZqWritable<S>(object);
  i = ZqVertexIndex(index);
  refused = kZqSetRefused;
  if (s && i >= unsigned(s->numControlPoints())) refused = ZqRefuseVertex(i, unsigned(s->numControlPoints()));
  return s && i < unsigned(s->numControlPoints()) ? s : nullptr;
}

CZqVariant getDegree(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? CZqVariant(int32_t(s->degree())) : CZqVariant();
}

// A new degree fits the curve through its fit points again; a spline made
// of control points alone keeps its degree.
int setDegree(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant&) {
  S* s = ZqWritable<S>(object);
  if (!s) return kZqSetRefused;
  double v = 0;
  if (value.GetType() == CZqVariant::kVtInt32) v = value.GetInt32();
  else if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  if (!(v >= 1 && v <= 10) || v != std::floor(v)) return ZqRefuse(kDegreeSentence);
  if (int(v) == s->degree()) return kZqSetApplied;
  if (!s->hasFitData())
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The degree of a spline without fit points cannot be changed"));
  OdGePoint3dArray fit;
  for (int k = 0; k < s->numFitPoints(); ++k) {
    OdGePoint3d p;
    s->getFitPointAt(k, p);
    fit.append(p);
  }
  if (unsigned(v) >= fit.length()) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "The degree must be lower than the number of fit points"));
  s->setFitData(fit, int(v), s->fitTolerance());
  return kZqSetApplied;
}

bool isDegreeReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const S* s = ZqReadable<S>(object);
  return !s || !s->hasFitData();
}

template <bool (S::*Fact)() const>
CZqVariant getFact(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? ZqEnumeration(kZqYesNo, (s->*Fact)() ? 0 : 1) : CZqVariant();
}

CZqVariant getControlPoint(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const S* s = ZqReadable<S>(object);
  return s ? ZqVertexChoices(unsigned(s->numControlPoints()), index) : CZqVariant();
}

int setControlPoint(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) {
  return ZqWritable<S>(object) ? kZqSetApplied : kZqSetRefused;
}

template <int Axis>
CZqVariant getControlCoordinate(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const S* s = ZqReadable<S>(object);
  OdGePoint3d p;
  if (!s || s->getControlPointAt(int(ZqVertexIndex(index)), p) != eOk) return CZqVariant();
  return ZqDouble(ZqUcsOf(object).wcsToUcs(p)[Axis]);
}

// Moving a control point leaves the fit points behind: the spline keeps its
// control data only, as a CAD editor does.
template <int Axis>
int setControlCoordinate(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                         const CZqVariant& index) {
  unsigned i = 0;
  int refused = 0;
  S* s = writableControlPoint(object, index, i, refused);
  if (!s) return refused;
  double v = 0;
  if (const int bad = ZqTakeDouble(description, value, v)) return bad;
  Nurbs n(s);
  if (!ZqReplaceUcsCoordinate(object, n.ctrl[i], Axis, v)) return kZqSetApplied;
  return n.store(s) ? kZqSetApplied : kZqSetRefused;
}

CZqVariant getWeight(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const S* s = ZqReadable<S>(object);
  const unsigned i = ZqVertexIndex(index);
  if (!s || i >= unsigned(s->numControlPoints())) return CZqVariant();
  const Nurbs n(s);
  return CZqVariant(n.weights.isEmpty() ? 1.0 : n.weights[i], false);
}

// A weight other than 1 makes the spline rational (the others weigh 1).
int setWeight(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant& index) {
  unsigned i = 0;
  int refused = 0;
  S* s = writableControlPoint(object, index, i, refused);
  if (!s) return refused;
  double w = 0;
  if (const int bad = ZqTakeDouble(description, value, w)) return bad;
  Nurbs n(s);
  if (n.weights.isEmpty()) {
    if (w == 1) return kZqSetApplied;
    for (unsigned k = 0; k < n.ctrl.length(); ++k) n.weights.append(1.0);
    n.rational = true;
  }
  n.weights[i] = w;
  return n.store(s) ? kZqSetApplied : kZqSetRefused;
}

template <int (S::*Count)() const>
CZqVariant getCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? CZqVariant(int32_t((s->*Count)())) : CZqVariant();
}

CZqVariant getLength(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const S* s = ZqReadable<S>(object);
  return s ? ZqDouble(splineLength(s)) : CZqVariant();
}

// Only a closed spline encloses an area.
CZqVariant getArea(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& index) {
  const S* s = ZqReadable<S>(object);
  double area = 0;
  if (!s || !s->isClosed() || s->getArea(area) != eOk) return CZqVariant();
  return ZqAreaValue(object, area, index, QCoreApplication::translate("CZqSplinePE_Prop", "%1 sq. in. (%2 sq. ft.)"));
}

constexpr auto getFitTolerance = ZqGetDouble<S, &S::fitTolerance>;
constexpr ZqLimit kWeight = kZqPositive;

const ZqRow kRows[] = {
//  category     name                                                         type            identifier                        read-only          get                        set                        icon                     visibility  limit
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Degree"),                kZqInt32,       nullptr,                          isDegreeReadOnly,  getDegree,                 setDegree,                 nullptr,                 kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Control point"),         kZqCollection,  ZqGuid::kSplineControlPointGUID,  kZqEditable,       getControlPoint,           setControlPoint,           nullptr,                 kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Control point X"),       kZqDouble,      ZqGuid::kVertexXGUID,             kZqEditable,       getControlCoordinate<0>,   setControlCoordinate<0>,   nullptr,                 kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Control point Y"),       kZqDouble,      ZqGuid::kVertexYGUID,             kZqEditable,       getControlCoordinate<1>,   setControlCoordinate<1>,   nullptr,                 kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Control point Z"),       kZqDouble,      ZqGuid::kVertexZGUID,             kZqEditable,       getControlCoordinate<2>,   setControlCoordinate<2>,   nullptr,                 kVisXor8},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Weight"),                kZqDouble,      nullptr,                          kZqEditable,       getWeight,                 setWeight,                 nullptr,                 kVisXor8,   kWeight},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Number of control points"), kZqInt32,    nullptr,                          kZqReadOnly,       getCount<&S::numControlPoints>, nullptr,              nullptr,                 kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Number of fit points"),  kZqInt32,       nullptr,                          kZqReadOnly,       getCount<&S::numFitPoints>, nullptr,                  nullptr,                 kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Fit tolerance"),         kZqDouble,      nullptr,                          kZqReadOnly,       getFitTolerance,           nullptr,                   nullptr,                 kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Length"),                kZqUntyped,     nullptr,                          kZqReadOnly,       getLength,                 nullptr,                   nullptr,                 kVisKeep},
  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Area"),                  kZqUntyped,     nullptr,                          kZqReadOnly,       getArea,                   nullptr,                   nullptr,                 kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Closed"),                kZqUntyped,     nullptr,                          kZqReadOnly,       getFact<&S::isClosed>,     nullptr,                   nullptr,                 kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Periodic"),              kZqUntyped,     nullptr,                          kZqReadOnly,       getFact<&S::isPeriodic>,   nullptr,                   nullptr,                 kVisKeep},
  {ZQ_MISC,     QT_TRANSLATE_NOOP("property_types", "Rational"),              kZqUntyped,     nullptr,                          kZqReadOnly,       getFact<&S::isRational>,   nullptr,                   nullptr,                 kVisKeep},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqSplinePE_Prop, QT_TRANSLATE_NOOP("entity_types", "Spline"), kRows)

void CZqSplineInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<OdDbSpline>(this, object, context, [&](const OdDbSpline* s) {
    auto yesNo = [](bool b) {
      return b ? QCoreApplication::translate("info_values", "Yes") : QCoreApplication::translate("info_values", "No");
    };
    context->PrintInt(QCoreApplication::translate("info_items", "Degree"), s->degree());
    context->PrintString(QCoreApplication::translate("info_items", "Closed"), yesNo(s->isClosed()));
    context->PrintString(QCoreApplication::translate("info_items", "Periodic"), yesNo(s->isPeriodic()));
    context->PrintString(QCoreApplication::translate("info_items", "Rational"), yesNo(s->isRational()));
    context->PrintDist(QCoreApplication::translate("info_items", "Length"), splineLength(s));
    double area = 0;
    if (s->isClosed() && s->getArea(area) == eOk) context->PrintArea(QCoreApplication::translate("info_items", "Area"), area);
    context->PrintInt(QCoreApplication::translate("info_items", "Number of control points"), s->numControlPoints());
    for (int i = 0; i < s->numControlPoints(); ++i) {
      if (!context->CheckCounter()) return;
      OdGePoint3d p;
      s->getControlPointAt(i, p);
      context->PrintPoint(QCoreApplication::translate("info_items", "Control Point %1").arg(i), p);
    }
    context->PrintInt(QCoreApplication::translate("info_items", "Number of fit points"), s->numFitPoints());
    for (int i = 0; i < s->numFitPoints(); ++i) {
      if (!context->CheckCounter()) return;
      OdGePoint3d p;
      s->getFitPointAt(i, p);
      context->PrintPoint(QCoreApplication::translate("info_items", "Fit Point %1").arg(i), p);
    }
  });
}
