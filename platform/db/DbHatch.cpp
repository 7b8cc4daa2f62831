#include "DbHatch.h"
#include "DbBulgeGeometry.h"
#include "DbSpline.h"
#include "OdResBuf.h"
#include <algorithm>
#include <cmath>

namespace {

constexpr double kDeg = OdaPI / 180;

// The built-in pattern library: each pattern's line families at scale 1
// and angle 0 (angle in degrees, base point, offset, dashes).
struct LibraryLine {
  double angle, baseX, baseY, offsetX, offsetY;
  std::initializer_list<double> dashes;
};
struct LibraryPattern {
  const char* name;
  std::initializer_list<LibraryLine> lines;
};
// clang-format off
const LibraryPattern kLibrary[] = {
    {"SOLID",  {}},
    {"LINE",   {{0, 0, 0, 0, .125, {}}}},
    {"NET",    {{0, 0, 0, 0, .125, {}}, {90, 0, 0, 0, .125, {}}}},
    {"NET3",   {{0, 0, 0, 0, .125, {}}, {60, 0, 0, 0, .125, {}}, {120, 0, 0, 0, .125, {}}}},
    {"DASH",   {{0, 0, 0, .125, .125, {.125, -.125}}}},
    {"SQUARE", {{0, 0, 0, 0, .125, {.125, -.125}}, {90, 0, 0, 0, .125, {.125, -.125}}}},
    {"ANSI31", {{45, 0, 0, 0, .125, {}}}},
    {"ANSI32", {{45, 0, 0, 0, .375, {}}, {45, .176776695, 0, 0, .375, {}}}},
    {"ANSI33", {{45, 0, 0, 0, .25, {}}, {45, .176776695, 0, 0, .25, {.125, -.0625}}}},
    {"ANSI34", {{45, 0, 0, 0, .75, {}}, {45, .176776695, 0, 0, .75, {}}, {45, .353553391, 0, 0, .75, {}},
                {45, .530330086, 0, 0, .75, {}}}},
    {"ANSI35", {{45, 0, 0, 0, .25, {}}, {45, .176776695, 0, 0, .25, {.3125, -.0625, 0, -.0625}}}},
    {"ANSI36", {{45, 0, 0, .21875, .125, {.3125, -.0625, 0, -.0625}}}},
    {"ANSI37", {{45, 0, 0, 0, .125, {}}, {135, 0, 0, 0, .125, {}}}},
    {"ANSI38", {{45, 0, 0, 0, .125, {}}, {135, 0, 0, .25, .125, {.3125, -.1875}}}},
};
// clang-format on

const LibraryPattern* libraryPattern(const OdString& name) {
  for (const LibraryPattern& p : kLibrary)
    if (name.iCompare(OdString(p.name)) == 0) return &p;
  return nullptr;
}

OdGeVector2d rotated(const OdGeVector2d& v, double a) {
  const double c = std::cos(a), s = std::sin(a);
  return {v.x * c - v.y * s, v.x * s + v.y * c};
}

// ---------------------------------------------------------------------------
// Area: each loop's signed area from its edges by Green's theorem (exact for
// lines, arcs and elliptical arcs; splines by Gauss-Legendre quadrature),
// and a polygon through each loop for the checks (closed, not crossing,
// nesting).

double norm360(double sweep) {
  sweep = std::fmod(sweep, Oda2PI);
  if (sweep <= 1e-12) sweep += Oda2PI;
  return sweep;
}

// Traversal of an arc edge: the angle it starts at and its signed sweep.
void traversal(const OdDbHatch::Edge& e, double& start, double& sweep) {
  const double s = norm360(e.endAngle - e.startAngle);
  if (e.ccw) {
    start = e.startAngle;
    sweep = s;
  } else {
    start = -e.startAngle;
    sweep = -s;
  }
}

// The parameter of the ellipse point at an angle from the major axis.
double ellipseParam(double angle, double ratio) { return std::atan2(std::sin(angle), ratio * std::cos(angle)); }

struct EdgeCurve {
  OdGePoint2d c;
  OdGeVector2d u, v;  // point(t) = c + u cos t + v sin t
  double t0 = 0, sweep = 0;
  OdGePoint2d at(double t) const { return c + u * std::cos(t) + v * std::sin(t); }
};

EdgeCurve conic(const OdDbHatch::Edge& e) {
  EdgeCurve k;
  k.c = e.center;
  double start = 0, sweep = 0;
  traversal(e, start, sweep);
  if (e.type == OdDbHatch::kCirArc) {
    k.u = OdGeVector2d(e.radius, 0);
    k.v = OdGeVector2d(0, e.radius);
    k.t0 = start;
    k.sweep = sweep;
    return k;
  }
  k.u = e.majorAxis;
  k.v = OdGeVector2d(-e.majorAxis.y, e.majorAxis.x) * e.ratio;
  // Angles to parameters, keeping the direction and the full turn.
  const double t0 = ellipseParam(start, e.ratio);
  double t1 = ellipseParam(start + sweep, e.ratio);
  if (sweep > 0) {
    while (t1 <= t0 + 1e-12) t1 += Oda2PI;
    if (sweep >= Oda2PI - 1e-12) t1 = t0 + Oda2PI;
  } else {
    while (t1 >= t0 - 1e-12) t1 -= Oda2PI;
    if (sweep <= -Oda2PI + 1e-12) t1 = t0 - Oda2PI;
  }
  k.t0 = t0;
  k.sweep = t1 - t0;
  return k;
}

double cross(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.y - a.y * b.x; }

OdDbSplinePtr splineOf(const OdDbHatch::Edge& e) {
  OdDbSplinePtr s = OdDbSpline::createObject();
  if (!e.controlPoints.isEmpty()) {
    OdGePoint3dArray ctrl;
    for (const OdGePoint2d& p : e.controlPoints) ctrl.append(OdGePoint3d(p.x, p.y, 0));
    s->setNurbsData(e.degree, e.rational, false, e.periodic, ctrl, e.knots, e.weights);
  } else {
    OdGePoint3dArray fit;
    for (const OdGePoint2d& p : e.fitPoints) fit.append(OdGePoint3d(p.x, p.y, 0));
    s->setFitData(fit, e.degree, 0, OdGeVector3d(), OdGeVector3d());
  }
  return s;
}

struct LoopShape {
  double area = 0;                 // signed
  std::vector<OdGePoint2d> polygon;  // closed: the last point is not repeated
  bool ok = true;
};

void addPoint(LoopShape& s, const OdGePoint2d& p) {
  if (s.polygon.empty() || s.polygon.back().distanceTo(p) > 1e-12) s.polygon.push_back(p);
}

LoopShape shapeOf(const OdDbHatch::Loop& loop) {
  LoopShape s;
  if (loop.type & OdDbHatch::kPolyline) {
    OdArray<OdDbBulge::Vertex> v;
    for (unsigned i = 0; i < loop.vertices.length(); ++i)
      v.append({loop.vertices[i], i < loop.bulges.length() ? loop.bulges[i] : 0.0});
    // A hatch loop is closed whatever its flag says: its last vertex joins
    // the first.
    s.area = OdDbBulge::signedArea(v, true);
    const unsigned n = v.length();
    for (unsigned i = 0; i < n; ++i) {
      const OdGePoint2d a = v[i].pt, b = v[(i + 1) % n].pt;
      const int steps = OdDbBulge::isArc(a, b, v[i].bulge) ? 32 : 1;
      for (int k = 0; k < steps; ++k) addPoint(s, OdDbBulge::segmentPoint(a, b, v[i].bulge, double(k) / steps));
    }
    s.ok = n >= 3 || (n == 2 && std::fabs(s.area) > 0);
    return s;
  }
  OdGePoint2d first, last;
  bool any = false;
  for (const OdDbHatch::Edge& e : loop.edges) {
    OdGePoint2d a, b;
    switch (e.type) {
      case OdDbHatch::kLine:
        a = e.start;
        b = e.end;
        s.area += 0.5 * cross(a, b);
        addPoint(s, a);
        break;
      case OdDbHatch::kCirArc:
      case OdDbHatch::kEllArc: {
        const EdgeCurve k = conic(e);
        a = k.at(k.t0);
        b = k.at(k.t0 + k.sweep);
        // Half the integral of cross(P, P') dt: cross(c, P(t1) - P(t0)) + cross(u, v) * sweep.
        s.area += 0.5 * (cross(k.c, OdGePoint2d::kOrigin + (b - a)) + k.u.crossProduct(k.v) * k.sweep);
        const int steps = std::max(8, int(std::ceil(std::fabs(k.sweep) / (Oda2PI / 128))));
        for (int i = 0; i < steps; ++i) addPoint(s, k.at(k.t0 + k.sweep * i / steps));
        break;
      }
      case OdDbHatch::kSpline: {
        if (e.controlPoints.length() < 2 && e.fitPoints.length() < 2) {
          s.ok = false;
          return s;
        }
        OdDbSplinePtr sp = splineOf(e);
        double u0 = 0, u1 = 0;
        sp->getStartParam(u0);
        sp->getEndParam(u1);
        const int steps = 512;
        OdGePoint3d p3;
        sp->getPointAtParam(u0, p3);
        a = OdGePoint2d(p3.x, p3.y);
        OdGePoint2d prev = a;
        addPoint(s, a);
        for (int i = 1; i <= steps; ++i) {
          // Simpson's rule on each step, through its midpoint.
          OdGePoint3d m3;
          sp->getPointAtParam(u0 + (u1 - u0) * (i - 0.5) / steps, m3);
          sp->getPointAtParam(u0 + (u1 - u0) * double(i) / steps, p3);
          const OdGePoint2d m(m3.x, m3.y), p(p3.x, p3.y);
          // The chord, plus the parabolic segment through m (4/3 of the
          // triangle prev-m-p).
          s.area += 0.5 * cross(prev, p) + (2.0 / 3.0) * (m - prev).crossProduct(p - prev);
          if (i < steps) addPoint(s, p);
          prev = p;
        }
        b = prev;
        break;
      }
    }
    if (any && last.distanceTo(a) > 1e-6 * std::max(1.0, a.asVector().length())) s.ok = false;  // a gap
    if (!any) first = a;
    any = true;
    last = b;
  }
  // The last edge returns to the first: the chain is closed.
  if (!any || last.distanceTo(first) > 1e-6 * std::max(1.0, first.asVector().length())) s.ok = false;
  return s;
}

// Whether segments p1-p2 and q1-q2 cross at a point inside both.
bool properlyCross(const OdGePoint2d& p1, const OdGePoint2d& p2, const OdGePoint2d& q1, const OdGePoint2d& q2) {
  const OdGeVector2d r = p2 - p1, s = q2 - q1;
  const double d = r.crossProduct(s);
  const double scale = std::max(r.length(), s.length());
  if (std::fabs(d) <= 1e-12 * scale * scale) return false;  // parallel: overlaps are no crossing of areas
  const double t = (q1 - p1).crossProduct(s) / d, u = (q1 - p1).crossProduct(r) / d;
  const double eps = 1e-9;
  return t > eps && t < 1 - eps && u > eps && u < 1 - eps;
}

struct Segment {
  OdGePoint2d a, b;
  int loop, index;
};

bool anyCrossing(const std::vector<LoopShape>& shapes) {
  std::vector<Segment> segs;
  std::vector<int> counts;
  for (int l = 0; l < int(shapes.size()); ++l) {
    const auto& poly = shapes[size_t(l)].polygon;
    const int n = int(poly.size());
    counts.push_back(n);
    for (int i = 0; i < n; ++i) segs.push_back({poly[size_t(i)], poly[size_t((i + 1) % n)], l, i});
  }
  // Sweep along X: only segments whose X ranges overlap are compared.
  std::sort(segs.begin(), segs.end(),
            [](const Segment& x, const Segment& y) { return std::min(x.a.x, x.b.x) < std::min(y.a.x, y.b.x); });
  for (size_t i = 0; i < segs.size(); ++i) {
    const double maxX = std::max(segs[i].a.x, segs[i].b.x);
    for (size_t j = i + 1; j < segs.size() && std::min(segs[j].a.x, segs[j].b.x) <= maxX; ++j) {
      const Segment &p = segs[i], &q = segs[j];
      if (p.loop == q.loop) {
        const int n = counts[size_t(p.loop)];
        const int d = std::abs(p.index - q.index);
        if (d <= 1 || d == n - 1) continue;  // neighbours share an end
      }
      if (properlyCross(p.a, p.b, q.a, q.b)) return true;
    }
  }
  return false;
}

bool inside(const OdGePoint2d& p, const std::vector<OdGePoint2d>& poly) {
  bool in = false;
  const size_t n = poly.size();
  for (size_t i = 0, j = n - 1; i < n; j = i++) {
    const OdGePoint2d &a = poly[i], &b = poly[j];
    if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x) in = !in;
  }
  return in;
}

}  // namespace

OdDbHatch::OdDbHatch() {
  m_gradientColors[0] = OdCmColor::fromIndex(5);
  m_gradientColors[1] = OdCmColor::fromIndex(2);
}

const OdDbHatch::Loop& OdDbHatch::loopAt(int index) const {
  assertReadEnabled();
  if (index < 0 || index >= int(m_loops.length())) throw OdError(eInvalidIndex);
  return m_loops[index];
}

void OdDbHatch::appendLoop(const Loop& loop) {
  assertWriteEnabled();
  m_loops.append(loop);
}

void OdDbHatch::appendLoop(int loopType, const OdArray<OdGePoint2d>& vertices, const OdGeDoubleArray& bulges) {
  Loop l;
  l.type = loopType | kPolyline;
  l.vertices = vertices;
  l.bulges = bulges;
  appendLoop(l);
}

void OdDbHatch::removeLoopAt(int index) {
  if (index < 0 || index >= numLoops()) throw OdError(eInvalidIndex);
  assertWriteEnabled();
  m_loops.removeAt(index);
}

const OdArray<OdString>& OdDbHatch::predefinedPatternNames() {
  static const OdArray<OdString> names = [] {
    OdArray<OdString> out;
    for (const LibraryPattern& p : kLibrary) out.append(OdString(p.name));
    return out;
  }();
  return names;
}

bool OdDbHatch::isPredefinedPattern(const OdString& name) { return libraryPattern(name) != nullptr; }

void OdDbHatch::setPattern(HatchPatternType type, const OdString& name) {
  const LibraryPattern* lib = type == kPreDefined ? libraryPattern(name) : nullptr;
  if (type == kPreDefined && !lib) throw OdError(eInvalidInput);
  assertWriteEnabled();
  const OdGePoint2d origin = originPoint();
  m_patternType = type;
  m_patternName = lib ? OdString(lib->name) : name;
  m_solid = lib && lib->lines.size() == 0;
  if (m_solid) {
    m_lines.clear();
    return;
  }
  if (type == kCustomDefined) return;
  regenerateLines();
  setOriginPoint(origin);
}

// Lays the lines out anew from the library (predefined) or from the angle,
// spacing and double flag (user-defined), through the WCS origin of the
// plane; the caller moves them to the origin it keeps.
void OdDbHatch::regenerateLines() {
  m_lines.clear();
  if (m_patternType == kUserDefined) {
    for (int k = 0; k < (m_double ? 2 : 1); ++k) {
      PatternLine l;
      l.angle = m_angle + k * OdaPI / 2;
      l.offset = rotated(OdGeVector2d(0, m_spacing), l.angle);
      m_lines.append(l);
    }
    return;
  }
  const LibraryPattern* lib = libraryPattern(m_patternName);
  if (!lib) return;
  for (const LibraryLine& ll : lib->lines) {
    PatternLine l;
    l.angle = ll.angle * kDeg + m_angle;
    l.base = OdGePoint2d::kOrigin + rotated(OdGeVector2d(ll.baseX, ll.baseY) * m_scale, m_angle);
    l.offset = rotated(rotated(OdGeVector2d(ll.offsetX, ll.offsetY), ll.angle * kDeg) * m_scale, m_angle);
    for (double d : ll.dashes) l.dashes.append(d * m_scale);
    m_lines.append(l);
  }
}

void OdDbHatch::setPatternAngle(double angle) {
  if (!std::isfinite(angle)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  const double delta = angle - m_angle;
  const OdGePoint2d o = originPoint();
  for (PatternLine& l : m_lines) {
    l.angle += delta;
    l.base = o + rotated(l.base - o, delta);
    l.offset = rotated(l.offset, delta);
  }
  m_angle = angle;
}

void OdDbHatch::setPatternScale(double scale) {
  if (!(scale > 0) || !std::isfinite(scale)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  if (m_patternType != kUserDefined) {
    const double f = scale / m_scale;
    const OdGePoint2d o = originPoint();
    for (PatternLine& l : m_lines) {
      l.base = o + (l.base - o) * f;
      l.offset = l.offset * f;
      for (double& d : l.dashes) d *= f;
    }
  }
  m_scale = scale;
}

void OdDbHatch::setPatternSpace(double spacing) {
  if (!(spacing > 0) || !std::isfinite(spacing)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_spacing = spacing;
  if (m_patternType == kUserDefined && !m_solid) {
    const OdGePoint2d o = originPoint();
    regenerateLines();
    setOriginPoint(o);
  }
}

void OdDbHatch::setPatternDouble(bool on) {
  assertWriteEnabled();
  m_double = on;
  if (m_patternType == kUserDefined && !m_solid) {
    const OdGePoint2d o = originPoint();
    regenerateLines();
    setOriginPoint(o);
  }
}

void OdDbHatch::setPatternData(HatchPatternType type, const OdString& name, bool solid, double angle, double scale,
                               double spacing, bool isDouble, const OdArray<PatternLine>& lines) {
  assertWriteEnabled();
  m_patternType = type;
  m_patternName = name;
  m_solid = solid;
  m_angle = angle;
  m_scale = scale;
  m_spacing = spacing;
  m_double = isDouble;
  m_lines = lines;
}

void OdDbHatch::setPatternLines(const OdArray<PatternLine>& lines) {
  assertWriteEnabled();
  m_lines = lines;
}

OdGePoint2d OdDbHatch::originPoint() const {
  assertReadEnabled();
  return m_lines.isEmpty() ? OdGePoint2d::kOrigin : m_lines[0].base;
}

void OdDbHatch::setOriginPoint(const OdGePoint2d& p) {
  assertWriteEnabled();
  if (m_lines.isEmpty()) return;
  const OdGeVector2d d = p - m_lines[0].base;
  for (PatternLine& l : m_lines) l.base = l.base + d;
}

void OdDbHatch::setAssociative(bool on) {
  assertWriteEnabled();
  m_associative = on;
}

void OdDbHatch::setSourceHandles(const OdArray<quint64>& handles) {
  assertWriteEnabled();
  m_sources = handles;
}

void OdDbHatch::setHatchStyle(HatchStyle style) {
  if (style < kNormal || style > kIgnore) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_style = style;
}

void OdDbHatch::setElevation(double z) {
  assertWriteEnabled();
  m_elevation = z;
}

void OdDbHatch::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbHatch::setGradient(bool on) {
  assertWriteEnabled();
  m_gradient = on;
}

const OdArray<OdString>& OdDbHatch::gradientNames() {
  static const OdArray<OdString> names = [] {
    OdArray<OdString> out;
    for (const char* n : {"LINEAR", "CYLINDER", "INVCYLINDER", "SPHERICAL", "INVSPHERICAL", "HEMISPHERICAL",
                          "INVHEMISPHERICAL", "CURVED", "INVCURVED"})
      out.append(OdString(n));
    return out;
  }();
  return names;
}

void OdDbHatch::setGradientName(const OdString& name) {
  const OdArray<OdString>& names = gradientNames();
  const auto it = std::find_if(names.begin(), names.end(), [&](const OdString& n) { return n.iCompare(name) == 0; });
  if (it == names.end()) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_gradientName = *it;
}

void OdDbHatch::setGradientAngle(double angle) {
  if (!std::isfinite(angle)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_gradientAngle = angle;
}

void OdDbHatch::setGradientShift(double shift) {
  if (!std::isfinite(shift)) throw OdError(eInvalidInput);
  assertWriteEnabled();
  m_gradientShift = shift;
}

OdCmColor OdDbHatch::gradientColor(int index) const {
  assertReadEnabled();
  if (index < 0 || index > 1) throw OdError(eInvalidIndex);
  return m_gradientColors[index];
}

void OdDbHatch::setGradientColor(int index, const OdCmColor& color) {
  if (index < 0 || index > 1) throw OdError(eInvalidIndex);
  assertWriteEnabled();
  m_gradientColors[index] = color;
}

void OdDbHatch::setGradientOneColorMode(bool on) {
  assertWriteEnabled();
  m_oneColor = on;
}

namespace {
const char* const kBackgroundApp = "HATCHBACKGROUNDCOLOR";
}

OdCmColor OdDbHatch::backgroundColor() const {
  OdResBufPtr xd = xData(OdString(kBackgroundApp));
  for (const OdResBuf* rb = xd.get(); rb; rb = rb->next()) {
    if (rb->restype() != 1071) continue;
    const quint32 packed = quint32(rb->getInt32());
    const quint32 method = packed >> 24;
    if (method == OdCmEntityColor::kByACI) return OdCmColor::fromIndex(int(packed & 0xFF));
    if (method == OdCmEntityColor::kByColor)
      return OdCmColor::fromRGB(uint8_t(packed >> 16), uint8_t(packed >> 8), uint8_t(packed));
    break;
  }
  return OdCmColor(OdCmEntityColor::kNone);
}

void OdDbHatch::setBackgroundColor(const OdCmColor& color) {
  quint32 packed = quint32(OdCmEntityColor::kNone) << 24;
  if (color.isByACI()) packed = (quint32(OdCmEntityColor::kByACI) << 24) | quint32(color.colorIndex() & 0xFF);
  else if (color.isByColor())
    packed = (quint32(OdCmEntityColor::kByColor) << 24) | (quint32(color.red()) << 16) | (quint32(color.green()) << 8) |
             color.blue();
  OdResBufPtr head = OdResBuf::newRb(1001, OdString(kBackgroundApp));
  head->setNext(OdResBuf::newRb(1071, int64_t(qint32(packed))).get());
  setXData(head.get());
}

void OdDbHatch::setBoundaryUnderstood(bool ok) {
  assertWriteEnabled();
  m_boundaryOk = ok;
}

OdResult OdDbHatch::getArea(double& area) const {
  assertReadEnabled();
  area = 0;
  if (!m_boundaryOk) return eNotApplicable;
  std::vector<LoopShape> shapes;
  for (const Loop& l : m_loops) {
    shapes.push_back(shapeOf(l));
    if (!shapes.back().ok || shapes.back().polygon.size() < 2) return eNotApplicable;
  }
  if (anyCrossing(shapes)) return eNotApplicable;
  // Nesting depth of each loop: how many other loops hold it. Even depths
  // are filled and odd ones are islands; the outer style fills only the
  // outermost ring, the ignore style every outermost loop whole.
  for (size_t i = 0; i < shapes.size(); ++i) {
    int depth = 0;
    for (size_t j = 0; j < shapes.size(); ++j)
      if (j != i && std::fabs(shapes[j].area) > std::fabs(shapes[i].area) && inside(shapes[i].polygon[0], shapes[j].polygon))
        ++depth;
    const double a = std::fabs(shapes[i].area);
    switch (m_style) {
      case kNormal: area += depth % 2 ? -a : a; break;
      case kOuter: area += depth == 0 ? a : depth == 1 ? -a : 0; break;
      case kIgnore: area += depth == 0 ? a : 0; break;
    }
  }
  return eOk;
}

bool OdDbHatch::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  ext = OdGeExtents3d();
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(m_normal);
  bool any = false;
  for (const Loop& l : m_loops) {
    for (const OdGePoint2d& p : shapeOf(l).polygon) {
      ext.addPoint(toWorld * OdGePoint3d(p.x, p.y, m_elevation));
      any = true;
    }
  }
  return any;
}

void OdDbHatch::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* h = static_cast<const OdDbHatch*>(source);
  m_loops = h->m_loops;
  m_lines = h->m_lines;
  m_sources = h->m_sources;
  m_patternType = h->m_patternType;
  m_patternName = h->m_patternName;
  m_style = h->m_style;
  m_angle = h->m_angle;
  m_scale = h->m_scale;
  m_spacing = h->m_spacing;
  m_elevation = h->m_elevation;
  m_gradientAngle = h->m_gradientAngle;
  m_gradientShift = h->m_gradientShift;
  m_normal = h->m_normal;
  m_gradientColors[0] = h->m_gradientColors[0];
  m_gradientColors[1] = h->m_gradientColors[1];
  m_gradientName = h->m_gradientName;
  m_solid = h->m_solid;
  m_double = h->m_double;
  m_associative = h->m_associative;
  m_gradient = h->m_gradient;
  m_oneColor = h->m_oneColor;
  m_boundaryOk = h->m_boundaryOk;
}
