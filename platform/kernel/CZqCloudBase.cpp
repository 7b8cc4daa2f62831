#include "CZqCloudBase.h"
#include <cmath>

const char* const CZqCloudBase::kAppName = "PE_CLOUD";

namespace {

bool isStyle(const OdString& style, const char* word) { return style.iCompare(OdString(word)) == 0; }
bool isCircleStyle(const OdString& s) { return isStyle(s, "Circle"); }
bool isEllipseStyle(const OdString& s) { return isStyle(s, "Ellipse") || isStyle(s, "Elliptical"); }
bool isSplineStyle(const OdString& s) { return isStyle(s, "Spline"); }

// Takes the item at the cursor when it has the code.
const OdResBuf* take(const OdResBuf*& cursor, int code) {
  if (!cursor || cursor->restype() != code) return nullptr;
  const OdResBuf* item = cursor;
  cursor = cursor->next();
  return item;
}

bool readBase(const OdResBuf* p, CLOUDLINE_COMMAND_DATA& d) {
  if (isCircleStyle(d.style)) {
    const OdResBuf* c = take(p, OdResBuf::kDxfXdXCoord);
    const OdResBuf* r = take(p, OdResBuf::kDxfXdDist);
    if (!c || !r || !(r->getDouble() > 0)) return false;
    d.center = c->getPoint3d();
    d.baseRadius = r->getDouble();
    return true;
  }
  if (isEllipseStyle(d.style)) {
    const OdResBuf* c = take(p, OdResBuf::kDxfXdXCoord);
    const OdResBuf* a = take(p, OdResBuf::kDxfXdWorldXDisp);
    const OdResBuf* r = take(p, OdResBuf::kDxfXdScale);
    if (!c || !a || !r) return false;
    d.center = c->getPoint3d();
    d.majorAxis = a->getPoint3d().asVector();
    d.radiusRatio = r->getDouble();
    return !d.majorAxis.isZeroLength() && d.radiusRatio > 0 && d.radiusRatio <= 1;
  }
  if (isSplineStyle(d.style)) {
    const OdResBuf* deg = take(p, OdResBuf::kDxfXdInteger16);
    const OdResBuf* n = take(p, OdResBuf::kDxfXdInteger32);
    if (!deg || !n || n->getInt32() < 0) return false;
    d.degree = deg->getInt16();
    for (int i = 0; i < n->getInt32(); ++i) {
      const OdResBuf* c = take(p, OdResBuf::kDxfXdXCoord);
      if (!c) return false;
      d.controlPoints.append(c->getPoint3d());
    }
    const OdResBuf* m = take(p, OdResBuf::kDxfXdInteger32);
    if (!m || m->getInt32() < 0) return false;
    for (int i = 0; i < m->getInt32(); ++i) {
      const OdResBuf* k = take(p, OdResBuf::kDxfXdReal);
      if (!k) return false;
      d.knots.append(k->getDouble());
    }
    return d.degree >= 1 && d.controlPoints.length() >= unsigned(d.degree + 1) &&
           d.knots.length() == d.controlPoints.length() + d.degree + 1;
  }
  return false;
}

// Signed area of a closed 2D path (counter-clockwise positive).
double signedArea(const OdArray<OdGePoint2d>& p) {
  double twice = 0;
  for (unsigned i = 0; i < p.length(); ++i) {
    const OdGePoint2d& a = p[i];
    const OdGePoint2d& b = p[(i + 1) % p.length()];
    twice += a.x * b.y - b.x * a.y;
  }
  return twice * 0.5;
}

// The base parameter at the distance along a path of points that carry
// their parameters (linear between them).
double paramAlong(const OdArray<OdGePoint2d>& piece, const std::vector<double>& params,
                  const std::vector<double>& cumulative, double dist) {
  for (unsigned i = 1; i < piece.length(); ++i) {
    if (dist <= cumulative[i] || i + 1 == piece.length()) {
      const double len = cumulative[i] - cumulative[i - 1];
      const double t = len > 0 ? std::clamp((dist - cumulative[i - 1]) / len, 0.0, 1.0) : 0.0;
      return params[i - 1] + (params[i] - params[i - 1]) * t;
    }
  }
  return params.front();
}

constexpr double kCornerTurn = 30.0 * OdaPI / 180.0;
constexpr double kSamePoint = 1e-10;

}  // namespace

double CZqCloudBase::maxArcSweep(const OdString& style) {
  if (isStyle(style, "Freehand") || isStyle(style, "Custom")) return 150.0 * OdaPI / 180.0;
  return 120.0 * OdaPI / 180.0;
}

bool CZqCloudBase::ReadCloudData(const OdDbObject* object, CLOUDLINE_COMMAND_DATA& data) {
  if (!object || !object->isReadEnabled()) return false;
  OdResBufPtr chain = object->xData(OdString(kAppName));
  if (!chain) return false;
  data = CLOUDLINE_COMMAND_DATA();
  const OdResBuf* p = chain->next();
  if (p && p->restype() == OdResBuf::kDxfXdAsciiString) data.style = p->getString();
  for (; p; p = p->next()) {
    if (p->restype() == OdResBuf::kDxfXdReal) {
      data.arcRadius = p->getDouble();
      CLOUDLINE_COMMAND_DATA base = data;
      if (readBase(p->next(), base)) {
        data = base;
        data.hasBaseData = true;
      }
      break;
    }
  }
  return true;
}

OdResBufPtr CZqCloudBase::CloudXData(const CLOUDLINE_COMMAND_DATA& d) {
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString(kAppName));
  OdResBuf* tail = head.get();
  auto add = [&](OdResBufPtr item) { tail = tail->setNext(item.get()); };
  add(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, d.style));
  add(OdResBuf::newRb(OdResBuf::kDxfXdReal, d.arcRadius));
  if (!d.hasBaseData) return head;
  if (isCircleStyle(d.style)) {
    add(OdResBuf::newRb(OdResBuf::kDxfXdXCoord, d.center));
    add(OdResBuf::newRb(OdResBuf::kDxfXdDist, d.baseRadius));
  } else if (isEllipseStyle(d.style)) {
    add(OdResBuf::newRb(OdResBuf::kDxfXdXCoord, d.center));
    add(OdResBuf::newRb(OdResBuf::kDxfXdWorldXDisp, OdGePoint3d::kOrigin + d.majorAxis));
    add(OdResBuf::newRb(OdResBuf::kDxfXdScale, d.radiusRatio));
  } else if (isSplineStyle(d.style)) {
    add(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, d.degree));
    add(OdResBuf::newRb(OdResBuf::kDxfXdInteger32, int(d.controlPoints.length())));
    for (const OdGePoint3d& c : d.controlPoints) add(OdResBuf::newRb(OdResBuf::kDxfXdXCoord, c));
    add(OdResBuf::newRb(OdResBuf::kDxfXdInteger32, int(d.knots.length())));
    for (double k : d.knots) add(OdResBuf::newRb(OdResBuf::kDxfXdReal, k));
  }
  return head;
}

void CZqCloudBase::WriteCloudData(OdDbEntity* entity, const CLOUDLINE_COMMAND_DATA& data) {
  if (!entity) return;
  if (OdDbDatabase* db = entity->database()) db->newRegApp(OdString(kAppName));
  entity->setXData(CloudXData(data).get());
}

void CZqCloudBase::setBaseCurve(const OdDbCurve* base) { m_base = const_cast<OdDbCurve*>(base); }
void CZqCloudBase::setTempCurve(const OdDbCurve* temp) { m_temp = const_cast<OdDbCurve*>(temp); }

bool CZqCloudBase::planeOf(const OdDbCurve* curve, OdGeVector3d& normal, double& elevation) const {
  if (!curve) return false;
  OdGePoint3d onPlane;
  if (auto* pl = odrxCast<OdDbPolyline>(curve)) {
    normal = pl->normal();
    elevation = pl->elevation();
    return true;
  }
  if (auto* pl = odrxCast<OdDb2dPolyline>(curve)) {
    normal = pl->normal();
    elevation = pl->elevation();
    return true;
  }
  if (auto* c = odrxCast<OdDbCircle>(curve)) {
    normal = c->normal();
    onPlane = c->center();
  } else if (auto* e = odrxCast<OdDbEllipse>(curve)) {
    normal = e->normal();
    onPlane = e->center();
  } else if (auto* s = odrxCast<OdDbSpline>(curve)) {
    // The plane of the control polygon (Newell's normal).
    OdGeVector3d n;
    const int count = s->numControlPoints();
    for (int i = 0; i < count; ++i) {
      OdGePoint3d a, b;
      s->getControlPointAt(i, a);
      s->getControlPointAt((i + 1) % count, b);
      n += a.asVector().crossProduct(b.asVector());
    }
    normal = n.isZeroLength() ? OdGeVector3d::kZAxis : n.normal();
    if (normal.z < 0) normal = -normal;
    if (count > 0) s->getControlPointAt(0, onPlane);
  } else {
    return false;
  }
  elevation = (OdGeMatrix3d::worldToPlane(normal) * onPlane).z;
  return true;
}

bool CZqCloudBase::basePath(OdArray<OdGePoint2d>& path, std::vector<double>& params, bool& closed) const {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::worldToPlane(m_normal);
  auto add = [&](const OdGePoint3d& wcs, double param) {
    const OdGePoint2d p = (toPlane * wcs).convert2d();
    if (!path.isEmpty() && path.last().distanceTo(p) <= kSamePoint) return;
    path.append(p);
    params.push_back(param);
  };
  closed = m_base->isClosed();
  if (auto* pl = odrxCast<OdDbPolyline>(m_base.get())) {
    // The vertices, with arcs of the base followed by points along them.
    const unsigned n = pl->numVerts();
    for (unsigned i = 0; i < n; ++i) {
      OdGePoint3d p;
      pl->getPointAt(i, p);
      add(p, i);
      if (pl->segType(i) != OdDbPolyline::kArc) continue;
      for (int k = 1; k < 32; ++k) {
        pl->getPointAtParam(i + k / 32.0, p);
        add(p, i + k / 32.0);
      }
    }
  } else {
    double start = 0, end = 0;
    if (m_base->getStartParam(start) != eOk || m_base->getEndParam(end) != eOk || !(end > start)) return false;
    const int samples = 720;
    for (int k = 0; k <= samples; ++k) {
      OdGePoint3d p;
      const double param = start + (end - start) * k / samples;
      if (m_base->getPointAtParam(param, p) != eOk) return false;
      add(p, param);
    }
  }
  if (closed && path.length() > 1 && path.first().distanceTo(path.last()) <= kSamePoint) {
    path.removeAt(path.length() - 1);
    params.pop_back();
  }
  return path.length() >= 2;
}

bool CZqCloudBase::cloudBaseMain() {
  m_points.clear();
  m_bulges.clear();
  const double radius = m_data.arcRadius;
  if (!m_base || !(radius > 0) || !std::isfinite(radius)) return false;
  if (!planeOf(m_temp.get(), m_normal, m_elevation) && !planeOf(m_base.get(), m_normal, m_elevation)) {
    m_normal = OdGeVector3d::kZAxis;
    m_elevation = 0;
  }
  OdArray<OdGePoint2d> path;
  std::vector<double> params;
  bool closed = false;
  if (!basePath(path, params, closed)) return false;
  double startParam = 0, endParam = 0;
  m_base->getStartParam(startParam);
  m_base->getEndParam(endParam);
  const double period = endParam - startParam;
  const unsigned n = path.length();

  // Corners: points where the base turns by more than kCornerTurn. They
  // split the base into pieces, each divided evenly on its own.
  std::vector<bool> corner(n, false);
  for (unsigned i = 0; i < n; ++i) {
    if (!closed && (i == 0 || i == n - 1)) continue;
    const OdGeVector2d in = path[i] - path[(i + n - 1) % n], out = path[(i + 1) % n] - path[i];
    const double turn = std::fabs(std::atan2(in.crossProduct(out), in.dotProduct(out)));
    corner[i] = turn > kCornerTurn;
  }
  unsigned first = 0;
  if (closed) {
    for (unsigned i = 0; i < n; ++i)
      if (corner[i]) { first = i; break; }
  }
  // The base as a walk from its first point (a corner when it has one) to
  // its end, the start repeated at the end of a closed base. Parameters
  // past the end of a closed base run on by one period.
  OdArray<OdGePoint2d> walk;
  std::vector<double> walkParams;
  std::vector<bool> isBreak;
  const unsigned count = closed ? n + 1 : n;
  for (unsigned k = 0; k < count; ++k) {
    const unsigned i = (first + k) % n;
    walk.append(path[i]);
    walkParams.push_back(first + k >= n ? params[i] + period : params[i]);
    isBreak.push_back(k == 0 || k == count - 1 || corner[i]);
  }

  struct Piece {
    OdArray<OdGePoint2d> pts;
    std::vector<double> params, cumulative;
    int arcs = 0;
  };
  std::vector<Piece> pieces;
  const double nominalChord = 2 * radius * std::sin(maxArcSweep(m_data.style) / 2);
  for (unsigned k = 0; k + 1 < walk.length();) {
    Piece piece;
    piece.pts.append(walk[k]);
    piece.params.push_back(walkParams[k]);
    piece.cumulative.push_back(0);
    unsigned j = k + 1;
    for (; j < walk.length(); ++j) {
      piece.cumulative.push_back(piece.cumulative.back() + walk[j].distanceTo(walk[j - 1]));
      piece.pts.append(walk[j]);
      piece.params.push_back(walkParams[j]);
      if (isBreak[j]) break;
    }
    const double len = piece.cumulative.back();
    if (len > kSamePoint) {
      piece.arcs = std::max(1, int(std::ceil(len / nominalChord - 1e-9)));
      pieces.push_back(std::move(piece));
    }
    k = j;
  }
  if (pieces.empty()) return false;
  if (closed) {
    // A closed cloud has at least three arcs: the longest pieces get more.
    int total = 0;
    for (const Piece& p : pieces) total += p.arcs;
    for (; total < 3; ++total) {
      auto longest = std::max_element(pieces.begin(), pieces.end(), [](const Piece& a, const Piece& b) {
        return a.cumulative.back() / a.arcs < b.cumulative.back() / b.arcs;
      });
      ++longest->arcs;
    }
  }
  // The points lie on the base itself, found by their parameters.
  const OdGeMatrix3d toPlane = OdGeMatrix3d::worldToPlane(m_normal);
  auto pointAt = [&](double param) {
    if (closed && param > endParam) param -= period;
    OdGePoint3d p;
    m_base->getPointAtParam(std::clamp(param, startParam, endParam), p);
    return (toPlane * p).convert2d();
  };
  for (const Piece& p : pieces) {
    const double len = p.cumulative.back();
    for (int a = 0; a < p.arcs; ++a) m_points.append(pointAt(paramAlong(p.pts, p.params, p.cumulative, len * a / p.arcs)));
  }
  if (!closed) m_points.append(pointAt(pieces.back().params.back()));

  // Arcs of the radius over each chord (never more than half a circle),
  // bulging outwards of a closed base.
  const double side = closed && signedArea(path) < 0 ? -1.0 : 1.0;
  const unsigned points = m_points.length();
  for (unsigned i = 0; i < points; ++i) {
    if (!closed && i + 1 == points) {
      m_bulges.append(0.0);
      break;
    }
    const double chord = m_points[i].distanceTo(m_points[(i + 1) % points]);
    const double sweep = 2 * std::asin(std::min(1.0, chord / (2 * radius)));
    m_bulges.append(chord > kSamePoint ? side * std::tan(sweep / 4) : 0.0);
  }
  m_closed = closed;
  return true;
}
