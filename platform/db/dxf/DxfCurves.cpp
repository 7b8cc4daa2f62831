// The curve entities' own data: LINE, CIRCLE, ARC, ELLIPSE, SPLINE, LWPOLYLINE,
// POLYLINE (2D) with its VERTEX records, POINT, RAY and XLINE. Each
// function lists a class's fields in the order the DXF reference gives its
// group codes; object coordinate system values go through the arbitrary
// axis algorithm (OdGeMatrix3d::planeToWorld of the normal).
#include "DbPlainClasses.h"
#include "DxfMapping.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace OdDxf::mapping {

void lineFields(Fields<OdDbLine>& f) {
  f.subclass("AcDbLine");
  f.real(39, &OdDbLine::thickness, &OdDbLine::setThickness, 0.0, Opt::Optional);
  f.point(10, &OdDbLine::startPoint, &OdDbLine::setStartPoint);
  f.point(11, &OdDbLine::endPoint, &OdDbLine::setEndPoint);
  f.normal(210, &OdDbLine::normal, &OdDbLine::setNormal);
}

void circleFields(Fields<OdDbCircle>& f) {
  f.subclass("AcDbCircle");
  f.real(39, &OdDbCircle::thickness, &OdDbCircle::setThickness, 0.0, Opt::Optional);
  f.ocsPoint(10, 210, &OdDbCircle::center, &OdDbCircle::setCenter, &OdDbCircle::normal);
  f.real(40, &OdDbCircle::radius, &OdDbCircle::setRadius);
  f.normal(210, &OdDbCircle::normal, &OdDbCircle::setNormal);
}

void arcFields(Fields<OdDbArc>& f) {
  using A = OdDbArc;
  f.subclass("AcDbCircle");
  f.real(39, &A::thickness, &A::setThickness, 0.0, Opt::Optional);
  f.ocsPoint(10, 210, &A::center, &A::setCenter, &A::normal);
  f.real(40, &A::radius, &A::setRadius);
  f.normal(210, &A::normal, &A::setNormal);
  // The angles are degrees in the file.
  f.subclass("AcDbArc");
  f.real(
      50, [](const A* a) { return qRadiansToDegrees(a->startAngle()); },
      [](A* a, double deg) { a->setStartAngle(qDegreesToRadians(deg)); });
  f.real(
      51, [](const A* a) { return qRadiansToDegrees(a->endAngle()); },
      [](A* a, double deg) { a->setEndAngle(qDegreesToRadians(deg)); });
}

void pointFields(Fields<OdDbPoint>& f) {
  using P = OdDbPoint;
  f.subclass("AcDbPoint");
  f.point(10, &P::position, &P::setPosition);
  f.real(39, &P::thickness, &P::setThickness, 0.0, Opt::Optional);
  f.normal(210, &P::normal, &P::setNormal);
  // The angle of the point's X axis, in degrees in the file.
  f.real(
      50, [](const P* p) { return qRadiansToDegrees(p->ecsRotation()); },
      [](P* p, double deg) { p->setEcsRotation(qDegreesToRadians(deg)); }, 0.0, Opt::Optional);
}

template <class T>
void directionFields(Fields<T>& f, const char* marker) {
  f.subclass(marker);
  f.point(10, &T::basePoint, &T::setBasePoint);
  f.point(11, &T::unitDir, &T::setUnitDir);
}
void rayFields(Fields<OdDbRay>& f) { directionFields(f, "AcDbRay"); }
void xlineFields(Fields<OdDbXline>& f) { directionFields(f, "AcDbXline"); }

void ellipseFields(Fields<OdDbEllipse>& f) {
  using E = OdDbEllipse;
  RecordIO& io = f.io();
  E* e = f.object();
  f.subclass("AcDbEllipse");
  if (io.reading()) {
    // The values hold together (the major axis lies in the plane of the
    // normal): they are set at once.
    const OdGePoint3d c = io.point(10);
    OdGeVector3d major = io.point(11, OdGePoint3d(1, 0, 0)).asVector();
    const OdGeVector3d n = readNormal(io, 210);
    double ratio = io.real(40, 1.0), start = io.real(41, 0.0), end = io.real(42, Oda2PI);
    if (ratio > 1 && std::isfinite(ratio) && major.isPerpendicularTo(n, OdGeTol(1e-8))) {
      // The minor axis is the longer one: the axes are swapped, which moves
      // the parameters back a quarter turn (the same curve).
      io.warn(io.find(40), QStringLiteral("radius ratio %1 above 1; the axes are swapped").arg(ratio));
      major = n.normal().crossProduct(major) * ratio;
      ratio = 1 / ratio;
      auto turn = [](double t) {
        t = std::fmod(t - OdaPI / 2, Oda2PI);
        return t < 0 ? t + Oda2PI : t;
      };
      const bool full = std::fabs(end - start) >= Oda2PI - 1e-12;
      start = turn(start);
      end = full ? start + Oda2PI : turn(end);
    }
    f.apply(40, [&] {
      e->set(c, n, major, ratio);
      e->setParams(start, end);
    });
    return;
  }
  auto asPoint = [](const OdGeVector3d& v) { return OdGePoint3d(v.x, v.y, v.z); };
  if (f.changed(&E::center)) io.putPoint(10, e->center()); else io.skip(10, 3);
  if (f.changed(&E::majorAxis)) io.putPoint(11, asPoint(e->majorAxis())); else io.skip(11, 3);
  if (f.changed(&E::normal, Opt::Optional)) io.putPoint(210, asPoint(e->normal())); else io.skip(210, 3);
  if (f.changed(&E::radiusRatio)) io.putReal(40, e->radiusRatio()); else io.skip(40);
  if (f.changed(&E::startParam)) io.putReal(41, e->startParam()); else io.skip(41);
  if (f.changed(&E::endParam)) io.putReal(42, e->endParam()); else io.skip(42);
}

// ---------------------------------------------------------------------------
// LWPOLYLINE: the vertices are repeated 10/20 (object coordinates) each
// followed by its optional 91 id, 40/41 widths and 42 bulge.

struct LwVertex {
  OdGePoint2d pt;
  double bulge, startWidth, endWidth;
  friend bool operator==(const LwVertex& a, const LwVertex& b) {
    return same(a.pt, b.pt) && same(a.bulge, b.bulge) && same(a.startWidth, b.startWidth) && same(a.endWidth, b.endWidth);
  }
};

std::vector<LwVertex> lwVertices(const OdDbPolyline* p) {
  std::vector<LwVertex> out(p->numVerts());
  for (unsigned i = 0; i < p->numVerts(); ++i) {
    p->getPointAt(i, out[i].pt);
    out[i].bulge = p->getBulgeAt(i);
    p->getWidthsAt(i, out[i].startWidth, out[i].endWidth);
  }
  return out;
}

bool isVertexCode(int c) { return c == 10 || c == 20 || c == 91 || c == 40 || c == 41 || c == 42; }

void lwpolylineFields(Fields<OdDbPolyline>& f) {
  using P = OdDbPolyline;
  RecordIO& io = f.io();
  P* pl = f.object();
  f.subclass("AcDbPolyline");
  const bool reading = io.reading();
  std::vector<LwVertex> now;
  bool verticesChanged = false;
  if (!reading) {
    now = lwVertices(pl);
    verticesChanged = io.mode() == RecordIO::Create || !(now == lwVertices(f.before()));
  }
  if (reading) {
    // 90 tells the count; the vertices that are there count.
  } else if (verticesChanged) {
    io.putInteger(90, qint64(now.size()));
  } else {
    io.skip(90);
  }
  f.flag(70, 1, &P::isClosed, &P::setClosed);
  f.flag(70, 128, &P::hasPlinegen, &P::setPlinegen);
  f.real(43, &P::getConstantWidth, &P::setConstantWidth, 0.0, Opt::Optional);
  f.real(38, &P::elevation, &P::setElevation, 0.0, Opt::Optional);
  f.real(39, &P::thickness, &P::setThickness, 0.0, Opt::Optional);

  Record& r = io.record();
  const int first = io.find(10);
  int last = first;  // the vertex tags run from `first` to `last`
  bool hadWidths = false, hadBulges = false;
  if (first >= 0) {
    for (int i = first; i < r.size() && isVertexCode(r.at(i).code()); ++i) {
      last = i;
      hadWidths = hadWidths || r.at(i).code() == 40 || r.at(i).code() == 41;
      hadBulges = hadBulges || r.at(i).code() == 42;
    }
  }
  if (reading) {
    unsigned count = 0;
    for (int i = first; i >= 0 && i <= last; ++i) count += r.at(i).code() == 10;
    if (pl->numVerts() == 0) pl->reset(false, count);  // makes room for them
    unsigned n = 0;
    for (int i = first; i >= 0 && i <= last;) {
      OdGePoint2d pt(io.realAt(i), 0);
      double bulge = 0, sw = -1, ew = -1;
      int k = i + 1;
      for (; k <= last && r.at(k).code() != 10; ++k) {
        switch (r.at(k).code()) {
          case 20: pt.y = io.realAt(k); break;
          case 40: sw = io.realAt(k); break;
          case 41: ew = io.realAt(k); break;
          case 42: bulge = io.realAt(k); break;
          default: break;  // 91: the vertex identifier
        }
      }
      const unsigned index = n++;
      f.apply(10, [&] { pl->addVertexAt(index, pt, bulge, sw, ew); });
      i = k;
    }
    const int ci = io.find(90);
    if (ci >= 0 && io.integerAt(ci) != qint64(n))
      io.warn(ci, QStringLiteral("%1 vertices announced, %2 found; the ones found are read").arg(io.integerAt(ci)).arg(n));
  } else if (verticesChanged) {
    // The vertices are written anew, in the style the record had.
    const double cw = pl->getConstantWidth();
    if (first >= 0) {
      io.removeAt(first, last - first + 1);
      io.moveTo(first);
    }
    for (const LwVertex& v : now) {
      r.setReal(io.insertTag(10), v.pt.x);
      r.setReal(io.insertTag(20), v.pt.y);
      if (hadWidths || v.startWidth != cw || v.endWidth != cw) {
        r.setReal(io.insertTag(40), v.startWidth);
        r.setReal(io.insertTag(41), v.endWidth);
      }
      if (hadBulges || v.bulge != 0) r.setReal(io.insertTag(42), v.bulge);
    }
  } else if (last >= 0) {
    io.moveTo(last + 1);
  }
  f.normal(210, &P::normal, &P::setNormal);
}

// ---------------------------------------------------------------------------
// SPLINE: flags, degree and counts, tolerances, tangents, then the knots
// (40), weights (41), control points (10/20/30) and fit points (11/21/31).

struct Nurbs {
  int degree = 0;
  bool rational = false, closed = false, periodic = false;
  OdGePoint3dArray ctrl;
  OdGeDoubleArray knots, weights;
  OdGePoint3dArray fit;
  double fitTol = 0;
  bool sameControl(const Nurbs& o) const {
    auto eq = [](const auto& a, const auto& b) {
      return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](const auto& x, const auto& y) { return same(x, y); });
    };
    return degree == o.degree && rational == o.rational && closed == o.closed && periodic == o.periodic &&
           eq(ctrl, o.ctrl) && eq(knots, o.knots) && eq(weights, o.weights);
  }
  bool sameFit(const Nurbs& o) const {
    return fit.size() == o.fit.size() && same(fitTol, o.fitTol) &&
           std::equal(fit.begin(), fit.end(), o.fit.begin(), [](const auto& x, const auto& y) { return same(x, y); });
  }
};

Nurbs nurbsOf(const OdDbSpline* s) {
  Nurbs n;
  s->getNurbsData(n.degree, n.rational, n.closed, n.periodic, n.ctrl, n.knots, n.weights);
  for (int i = 0; i < s->numFitPoints(); ++i) {
    OdGePoint3d p;
    s->getFitPointAt(i, p);
    n.fit.append(p);
  }
  n.fitTol = s->fitTolerance();
  return n;
}

void splineFields(Fields<OdDbSpline>& f) {
  RecordIO& io = f.io();
  OdDbSpline* sp = f.object();
  Record& r = io.record();
  f.subclass("AcDbSpline");
  auto points = [&](int code) {
    OdGePoint3dArray out;
    for (int i = io.find(code); i >= 0; i = io.find(code, i + 1)) {
      OdGePoint3d p(io.realAt(i), 0, 0);
      if (i + 1 < r.size() && r.at(i + 1).code() == code + 10) p.y = io.realAt(i + 1);
      if (i + 2 < r.size() && r.at(i + 2).code() == code + 20) p.z = io.realAt(i + 2);
      out.append(p);
    }
    return out;
  };
  auto reals = [&](int code) {
    OdGeDoubleArray out;
    for (int i = io.find(code); i >= 0; i = io.find(code, i + 1)) out.append(io.realAt(i));
    return out;
  };
  if (io.reading()) {
    const qint64 flags = io.integer(70, 0);
    const int degree = int(io.integer(71, 3));
    const OdGePoint3dArray ctrl = points(10), fit = points(11);
    const OdGeDoubleArray knots = reals(40), weights = reals(41);
    if (!ctrl.isEmpty()) {
      // Control data wins; fit points the file has as well stay in it.
      f.apply(10, [&] { sp->setNurbsData(degree, flags & 4, flags & 1, flags & 2, ctrl, knots, weights); });
    } else if (!fit.isEmpty()) {
      const OdGePoint3d st = io.point(12), et = io.point(13);
      f.apply(11, [&] { sp->setFitData(fit, degree, io.real(44, 0.0), st.asVector(), et.asVector()); });
    }
    return;
  }
  const Nurbs now = nurbsOf(sp), was = nurbsOf(f.before());
  const bool create = io.mode() == RecordIO::Create;
  const bool controlChanged = create || !now.sameControl(was), fitChanged = create || !now.sameFit(was);
  if (!controlChanged && !fitChanged) return;
  // Flags keep the planar and linear bits the file gives.
  const qint64 flags = (io.integer(70, 0) & ~qint64(7)) | (now.closed ? 1 : 0) | (now.periodic ? 2 : 0) |
                       (now.rational ? 4 : 0);
  io.putInteger(70, flags);
  io.putInteger(71, now.degree);
  io.putInteger(72, now.knots.length());
  io.putInteger(73, now.ctrl.length());
  io.putInteger(74, now.fit.length());
  if (!now.fit.isEmpty()) io.putReal(44, now.fitTol);
  // The repeated values are written anew after the counts, tolerances and tangents.
  for (int code : {40, 41, 10, 20, 30, 11, 21, 31})
    while (io.has(code)) io.remove(code);
  if (now.fit.isEmpty())
    for (int code : {12, 22, 32, 13, 23, 33}) io.remove(code);
  int after = -1;
  for (int code : {70, 71, 72, 73, 74, 42, 43, 44, 12, 22, 32, 13, 23, 33, 210, 220, 230}) {
    const int i = io.find(code);
    if (i > after) after = i;
  }
  if (after >= 0) io.moveTo(after + 1);
  for (double k : now.knots) r.setReal(io.insertTag(40), k);
  for (double w : now.weights) r.setReal(io.insertTag(41), w);
  for (const OdGePoint3d& p : now.ctrl) {
    r.setReal(io.insertTag(10), p.x);
    r.setReal(io.insertTag(20), p.y);
    r.setReal(io.insertTag(30), p.z);
  }
  for (const OdGePoint3d& p : now.fit) {
    r.setReal(io.insertTag(11), p.x);
    r.setReal(io.insertTag(21), p.y);
    r.setReal(io.insertTag(31), p.z);
  }
}

// ---------------------------------------------------------------------------
// POLYLINE (2D) and its VERTEX records.

void vertex2dFields(Fields<OdDb2dVertex>& f) {
  using V = OdDb2dVertex;
  f.subclass("AcDbVertex");
  f.subclass("AcDb2dVertex");
  // The position in the polyline's object coordinates.
  f.point(10, &V::position, &V::setPosition);
  f.real(40, &V::startWidth, &V::setStartWidth, 0.0, Opt::Optional);
  f.real(41, &V::endWidth, &V::setEndWidth, 0.0, Opt::Optional);
  f.real(42, &V::bulge, &V::setBulge, 0.0, Opt::Optional);
  // 70 flags: 1 made by curve fitting, 8 made by spline fitting, 16 a spline
  // frame control point.
  f.integer(
      70,
      [](const V* v) {
        switch (v->vertexType()) {
          case OdDb::k2dCurveFitVertex: return 1;
          case OdDb::k2dSplineFitVertex: return 8;
          case OdDb::k2dSplineCtlVertex: return 16;
          default: return 0;
        }
      },
      [](V* v, int flags) {
        v->setVertexType(flags & 16  ? OdDb::k2dSplineCtlVertex
                         : flags & 8 ? OdDb::k2dSplineFitVertex
                         : flags & 1 ? OdDb::k2dCurveFitVertex
                                     : OdDb::k2dVertex);
      },
      0, Opt::Optional);
}

namespace {

// The polyline type from the 70 flags (2 curve fit, 4 spline fit) and the 75
// smooth surface type (5 quadratic, 6 cubic B-spline).
OdDb::Poly2dType polyType(qint64 flags, qint64 smooth) {
  if (flags & 4) return smooth == 5 ? OdDb::k2dQuadSplinePoly : OdDb::k2dCubicSplinePoly;
  if (flags & 2) return OdDb::k2dFitCurvePoly;
  return OdDb::k2dSimplePoly;
}

// Reads a VERTEX record into a vertex; widths it leaves out are the polyline's.
// One VERTEX record of `pl`. A vertex read without widths of its own takes
// the polyline's default widths.
void vertexRecord(Context& ctx, Record& r, OdDb2dVertex* v, const OdDb2dVertex* before, RecordIO::Mode mode,
                  const OdDb2dPolyline* pl) {
  RecordIO io(ctx, r, mode);
  entityCommonFields(io, v, before);
  Fields<OdDb2dVertex> f(io, v, before);
  vertex2dFields(f);
  if (mode == RecordIO::Read) {
    if (!io.has(40)) v->setStartWidth(pl->defaultStartWidth());
    if (!io.has(41)) v->setEndWidth(pl->defaultEndWidth());
  }
  entityXdataFields(io, v, before);
}

}  // namespace

void polyline2dFields(Fields<OdDb2dPolyline>& f) {
  using P = OdDb2dPolyline;
  RecordIO& io = f.io();
  Context& ctx = io.ctx();
  P* pl = f.object();
  const bool create = io.mode() == RecordIO::Create;
  f.subclass("AcDb2dPolyline");
  if (create) io.putInteger(66, 1);
  // The dummy point's Z is the elevation.
  if (create) io.putPoint(10, OdGePoint3d(0, 0, pl->elevation())); else io.skip(10, 2);
  f.real(30, &P::elevation, &P::setElevation);
  f.real(39, &P::thickness, &P::setThickness, 0.0, Opt::Optional);
  f.flag(70, 1, &P::isClosed, &P::setClosed);
  f.flag(70, 128, &P::isLinetypeGenerationOn, [](P* p, bool on) {
    if (on) p->setLinetypeGenerationOn(); else p->setLinetypeGenerationOff();
  });
  if (io.reading()) {
    f.apply(70, [&] { pl->setPolyType(polyType(io.integer(70, 0), io.integer(75, 0))); });
  } else if (f.changed(&P::polyType)) {
    const OdDb::Poly2dType t = pl->polyType();
    const qint64 bits = t == OdDb::k2dFitCurvePoly ? 2 : t == OdDb::k2dSimplePoly ? 0 : 4;
    io.putInteger(70, (io.integer(70, 0) & ~qint64(6)) | bits);
  } else {
    io.skip(70);
  }
  f.real(40, &P::defaultStartWidth, &P::setDefaultStartWidth, 0.0, Opt::Optional);
  f.real(41, &P::defaultEndWidth, &P::setDefaultEndWidth, 0.0, Opt::Optional);
  if (!io.reading()) {
    const OdDb::Poly2dType t = pl->polyType();
    const bool spline = t == OdDb::k2dQuadSplinePoly || t == OdDb::k2dCubicSplinePoly;
    if (f.changed(&P::polyType, Opt::Optional) && (spline || io.has(75)))
      io.putInteger(75, t == OdDb::k2dQuadSplinePoly ? 5 : t == OdDb::k2dCubicSplinePoly ? 6 : 0);
    else
      io.skip(75);
  }
  f.normal(210, &P::normal, &P::setNormal);

  polylineVertices<OdDb2dVertex>(f, [&ctx, pl](Record& r, OdDb2dVertex* v, const OdDb2dVertex* before, RecordIO::Mode mode) {
    vertexRecord(ctx, r, v, before, mode, pl);
  });
}

}  // namespace OdDxf::mapping

// ---------------------------------------------------------------------------
// MLINE: 2 the style's name (340 its handle), 40 scale, 70 justification,
// 71 flags, 72/73 the vertex and element counts, 10 the start point, 210
// the normal; then per vertex 11 its position, 12 the segment direction,
// 13 the miter, and per element 74 + its 41 parameters, 75 + its 42 area
// fill parameters.

namespace OdDxf::mapping {

namespace {

bool isMlineVertexCode(int c) {
  switch (c) {
    case 11: case 21: case 31: case 12: case 22: case 32: case 13: case 23: case 33: case 74: case 41: case 75: case 42:
      return true;
    default:
      return false;
  }
}

bool sameVertices(const OdDbMline* a, const OdDbMline* b) {
  if (a->numVertices() != b->numVertices()) return false;
  auto sameList = [](const OdArray<OdArray<double>>& x, const OdArray<OdArray<double>>& y) {
    if (x.length() != y.length()) return false;
    for (unsigned k = 0; k < x.length(); ++k)
      if (x[k].length() != y[k].length() || !std::equal(x[k].begin(), x[k].end(), y[k].begin(), [](double p, double q) { return same(p, q); }))
        return false;
    return true;
  };
  for (unsigned i = 0; i < a->numVertices(); ++i) {
    const OdDbMline::Vertex &u = a->vertexData(i), &v = b->vertexData(i);
    if (!same(u.position, v.position) || !same(u.direction, v.direction) || !same(u.miter, v.miter) ||
        !sameList(u.params, v.params) || !sameList(u.fillParams, v.fillParams))
      return false;
  }
  return true;
}

// The element offsets (49) of the MLINESTYLE record with this handle.
OdArray<double> styleOffsets(const Context& ctx, quint64 handle) {
  OdArray<double> out;
  if (!handle || !ctx.file) return out;
  for (const Section& s : ctx.file->sections()) {
    if (s.name != "OBJECTS") continue;
    for (const Record& r : s.records) {
      if (!r.isType("MLINESTYLE") || r.handle() != handle) continue;
      for (int i = 1; i < r.size(); ++i)
        if (r.at(i).code() == 49) out.append(r.at(i).real());
      return out;
    }
  }
  return out;
}

}  // namespace

void mlineFields(Fields<OdDbMline>& f) {
  using M = OdDbMline;
  RecordIO& io = f.io();
  M* ml = f.object();
  Record& r = io.record();
  f.subclass("AcDbMline");
  if (io.reading()) {
    f.apply(2, [&] { ml->setStyleName(OdString(io.string(2))); });
    const OdArray<double> offsets = styleOffsets(io.ctx(), io.handle(340));
    const qint64 elements = io.integer(73, 0);
    if (qint64(offsets.length()) == elements) ml->setStyleOffsets(offsets);
    OdArray<M::Vertex> vertices;
    const int first = io.find(11);
    for (int i = first; i >= 0 && i < r.size() && isMlineVertexCode(r.at(i).code());) {
      if (r.at(i).code() != 11) {
        ++i;
        continue;
      }
      M::Vertex v;
      auto point = [&](int code) {
        OdGePoint3d p(io.realAt(i), 0, 0);
        if (i + 1 < r.size() && r.at(i + 1).code() == code + 10) p.y = io.realAt(++i);
        if (i + 1 < r.size() && r.at(i + 1).code() == code + 20) p.z = io.realAt(++i);
        ++i;
        return p;
      };
      v.position = point(11);
      if (i < r.size() && r.at(i).code() == 12) v.direction = point(12).asVector();
      if (i < r.size() && r.at(i).code() == 13) v.miter = point(13).asVector();
      while (i < r.size() && r.at(i).code() == 74) {
        OdArray<double> params, fill;
        for (qint64 n = io.integerAt(i++); n > 0 && i < r.size() && r.at(i).code() == 41; --n) params.append(io.realAt(i++));
        if (i < r.size() && r.at(i).code() == 75)
          for (qint64 n = io.integerAt(i++); n > 0 && i < r.size() && r.at(i).code() == 42; --n) fill.append(io.realAt(i++));
        v.params.append(params);
        v.fillParams.append(fill);
      }
      vertices.append(v);
    }
    const qint64 just = io.integer(70, 0);
    const OdGeVector3d n = readNormal(io, 210);
    const double scale = io.real(40, 1.0);
    f.apply(40, [&] {
      ml->setData(just == 1 ? Mline::kZero : just == 2 ? Mline::kBottom : Mline::kTop, scale, int(io.integer(71, 1)), n, vertices);
    });
    return;
  }
  const M* before = f.before();
  f.string(2, &M::styleName, &M::setStyleName);
  io.skip(340);
  f.real(40, &M::scale, [](M*, double) {});
  f.integer(70, [](const M* m) { return int(m->justification()); }, [](M*, int) {});
  f.integer(71, &M::flags, [](M*, int) {});
  f.integer(72, &M::numVertices, [](M*, unsigned) {});
  f.integer(73, &M::numElements, [](M*, unsigned) {});
  f.point(10, [](const M* m) { return m->numVertices() ? m->vertexAt(0) : OdGePoint3d(); }, [](M*, const OdGePoint3d&) {});
  f.normal(210, &M::normal, [](M*, const OdGeVector3d&) {});
  if (sameVertices(ml, before)) return;
  // The vertices are written anew.
  const int first = io.find(11);
  if (first >= 0) {
    int last = first;
    while (last + 1 < r.size() && isMlineVertexCode(r.at(last + 1).code()) && r.at(last + 1).code() != 1001) ++last;
    io.removeAt(first, last - first + 1);
    io.moveTo(first);
  }
  auto putPoint = [&](int code, const OdGePoint3d& p) {
    r.setReal(io.insertTag(code), p.x);
    r.setReal(io.insertTag(code + 10), p.y);
    r.setReal(io.insertTag(code + 20), p.z);
  };
  for (unsigned i = 0; i < ml->numVertices(); ++i) {
    const M::Vertex& v = ml->vertexData(i);
    putPoint(11, v.position);
    putPoint(12, OdGePoint3d::kOrigin + v.direction);
    putPoint(13, OdGePoint3d::kOrigin + v.miter);
    for (unsigned k = 0; k < v.params.length(); ++k) {
      r.setInteger(io.insertTag(74), v.params[k].length());
      for (double p : v.params[k]) r.setReal(io.insertTag(41), p);
      const OdArray<double> none;
      const OdArray<double>& fill = k < v.fillParams.length() ? v.fillParams[k] : none;
      r.setInteger(io.insertTag(75), fill.length());
      for (double p : fill) r.setReal(io.insertTag(42), p);
    }
  }
}

}  // namespace OdDxf::mapping

// ---------------------------------------------------------------------------
// SHAPE: 39 thickness, 10 the insertion point (object coordinates), 40 the
// size, 2 the shape's name, 50 rotation, 41 width factor and 51 oblique
// angle (degrees), 210 the normal.

namespace OdDxf::mapping {

void shapeFields(Fields<OdDbShape>& f) {
  using S = OdDbShape;
  f.subclass("AcDbShape");
  f.real(39, &S::thickness, &S::setThickness, 0.0, Opt::Optional);
  f.ocsPoint(10, 210, &S::position, &S::setPosition, &S::normal);
  f.real(40, &S::size, &S::setSize, 1.0);
  f.string(2, &S::name, &S::setName);
  auto degrees = [&](int code, double (S::*get)() const, void (S::*set)(double)) {
    f.real(
        code, [get](const S* s) { return qRadiansToDegrees((s->*get)()); },
        [set](S* s, double deg) { (s->*set)(qDegreesToRadians(deg)); }, 0.0, Opt::Optional);
  };
  degrees(50, &S::rotation, &S::setRotation);
  f.real(41, &S::widthFactor, &S::setWidthFactor, 1.0, Opt::Optional);
  degrees(51, &S::oblique, &S::setOblique);
  f.normal(210, &S::normal, &S::setNormal);
}

}  // namespace OdDxf::mapping
