#include "DbModelerGeometry.h"
#include "DbGaussLegendre.h"
#include <QCoreApplication>
#include <cmath>
#include <optional>
#include <algorithm>
#include <functional>

// ---------------------------------------------------------------------------
// SAT text as records

namespace {

QString tr(const char* text) { return QCoreApplication::translate("OdDbAcis", text); }

// One record: its type and its fields after the type. From ACIS 7.0 on every
// entity record carries two more fields after its attribute pointer (a
// history number and a pointer); they are dropped so that field i means the
// same in every version.
struct SatRecord {
  QByteArray type;
  std::vector<QByteArray> f;
  // Where each field's text starts in the SAT text (for rewriting numbers).
  std::vector<qsizetype> at;
};

class Sat {
 public:
  // False when the text has no header or a record is cut off.
  bool parse(const QByteArray& text) {
    m_text = text;
    qsizetype pos = 0;
    for (int line = 0; line < 3; ++line) {
      const qsizetype nl = text.indexOf('\n', pos);
      if (nl < 0) return false;
      if (line == 0) {
        bool ok = false;
        m_version = text.mid(pos, nl - pos).trimmed().split(' ').value(0).toInt(&ok);
        if (!ok) return false;
      }
      pos = nl + 1;
    }
    SatRecord rec;
    bool ended = false;
    while (pos < text.size()) {
      while (pos < text.size() && std::isspace(static_cast<unsigned char>(text[pos]))) ++pos;
      if (pos >= text.size()) break;
      qsizetype start = pos;
      QByteArray token;
      if (text[pos] == '@') {  // counted string: @n then n characters
        qsizetype p = pos + 1;
        while (p < text.size() && std::isdigit(static_cast<unsigned char>(text[p]))) ++p;
        const qsizetype n = text.mid(pos + 1, p - pos - 1).toLongLong();
        if (p >= text.size() || n < 0 || p + 1 + n > text.size()) return false;
        start = p + 1;
        token = text.mid(start, n);
        pos = start + n;
      } else {
        while (pos < text.size() && !std::isspace(static_cast<unsigned char>(text[pos]))) ++pos;
        token = text.mid(start, pos - start);
      }
      if (token.startsWith("End-of-")) {
        ended = true;
        break;
      }
      if (token == "#") {
        if (rec.type.isEmpty()) return false;
        normalize(rec);
        m_records.push_back(std::move(rec));
        rec = SatRecord();
        continue;
      }
      if (rec.type.isEmpty()) rec.type = token;
      else {
        rec.f.push_back(token);
        rec.at.push_back(start);
      }
    }
    // Older data ends with its last record; newer data with an end marker.
    (void)ended;
    return rec.type.isEmpty() && !m_records.empty();
  }

  int version() const { return m_version; }
  const std::vector<SatRecord>& records() const { return m_records; }
  const SatRecord* at(int i) const { return i >= 0 && size_t(i) < m_records.size() ? &m_records[size_t(i)] : nullptr; }
  const QByteArray& text() const { return m_text; }

 private:
  void normalize(SatRecord& r) const {
    if (m_version < 700 || r.f.size() < 3) return;
    const QByteArray& a = r.f[1];
    if (!a.startsWith('$') && r.f[2].startsWith('$')) {
      r.f.erase(r.f.begin() + 1, r.f.begin() + 3);
      r.at.erase(r.at.begin() + 1, r.at.begin() + 3);
    }
  }

  QByteArray m_text;
  int m_version = 0;
  std::vector<SatRecord> m_records;
};

int ptr(const SatRecord& r, size_t i) {
  if (i >= r.f.size() || !r.f[i].startsWith('$')) return -2;
  bool ok = false;
  const int v = r.f[i].mid(1).toInt(&ok);
  return ok ? v : -2;
}

std::optional<double> num(const SatRecord& r, size_t i) {
  if (i >= r.f.size()) return std::nullopt;
  bool ok = false;
  const double v = r.f[i].toDouble(&ok);
  if (!ok || !std::isfinite(v)) return std::nullopt;
  return v;
}

std::optional<OdGeVector3d> vec(const SatRecord& r, size_t i) {
  const auto x = num(r, i), y = num(r, i + 1), z = num(r, i + 2);
  if (!x || !y || !z) return std::nullopt;
  return OdGeVector3d(*x, *y, *z);
}

std::optional<OdGePoint3d> pt(const SatRecord& r, size_t i) {
  const auto v = vec(r, i);
  return v ? std::optional<OdGePoint3d>(OdGePoint3d::kOrigin + *v) : std::nullopt;
}

bool parseData(const OdDbAcisData& data, Sat& sat, QString* why) {
  if (data.sat.isEmpty()) {
    if (why) *why = data.sab.isEmpty() ? tr("The object has no modeller data.")
                                       : tr("The modeller data is binary and cannot be read here.");
    return false;
  }
  if (!sat.parse(data.sat)) {
    if (why) *why = tr("The modeller data is damaged or cut off.");
    return false;
  }
  return true;
}

// A curve piece from parameter t0 to t1 in WCS.
struct EdgePath {
  std::function<OdGePoint3d(double)> at;
  std::function<OdGeVector3d(double)> tangent;
  double t0 = 0, t1 = 1;
};

}  // namespace

QByteArray OdDbAcis::decodeLine(QByteArrayView dxf) {
  QByteArray out;
  out.reserve(dxf.size());
  for (qsizetype i = 0; i < dxf.size(); ++i) {
    char c = dxf[i];
    // A DXF string writes '^' as "^ " (caret notation).
    if (c == '^' && i + 1 < dxf.size()) {
      const char n = dxf[++i];
      c = n == ' ' ? '^' : char(n ^ 0x40);
    }
    out.append(c == ' ' ? ' ' : char(159 - static_cast<unsigned char>(c)));
  }
  return out;
}

QByteArray OdDbAcis::encodeLine(QByteArrayView sat) {
  QByteArray out;
  out.reserve(sat.size());
  for (const char s : sat) {
    if (s == ' ') {
      out.append(' ');
      continue;
    }
    const char c = char(159 - static_cast<unsigned char>(s));
    if (c == '^') out.append("^ ");
    else if (static_cast<unsigned char>(c) < 32) out.append('^').append(char(c ^ 0x40));
    else out.append(c);
  }
  return out;
}

bool OdDbAcis::extents(const OdDbAcisData& data, OdGeExtents3d& ext, QString* why) {
  Sat sat;
  if (!parseData(data, sat, why)) return false;
  OdGeExtents3d e;
  bool any = false;
  auto add = [&](const OdGePoint3d& p, double r) {
    e.addPoint(p - OdGeVector3d(r, r, r));
    e.addPoint(p + OdGeVector3d(r, r, r));
    any = true;
  };
  for (const SatRecord& r : sat.records()) {
    if (r.type == "point") {
      if (const auto p = pt(r, 1)) add(*p, 0);
    } else if (r.type == "ellipse-curve") {
      const auto c = pt(r, 1);
      const auto major = vec(r, 7);
      if (c && major) add(*c, major->length());
    } else if (r.type == "sphere-surface") {
      const auto c = pt(r, 1);
      const auto radius = num(r, 4);
      if (c && radius) add(*c, std::fabs(*radius));
    } else if (r.type == "torus-surface") {
      const auto c = pt(r, 1);
      const auto major = num(r, 7), minor = num(r, 8);
      if (c && major && minor) add(*c, std::fabs(*major) + std::fabs(*minor));
    }
  }
  if (!any) {
    if (why) *why = tr("The modeller data holds no geometry whose position is known.");
    return false;
  }
  ext = e;
  return true;
}

bool OdDbAcis::regionMeasures(const OdDbAcisData& data, double& area, double& perimeter, QString* why) {
  Sat sat;
  if (!parseData(data, sat, why)) return false;
  const bool params = sat.version() >= 700;  // edges carry their parameters
  auto fail = [&](const QString& text) {
    if (why) *why = text;
    return false;
  };
  const QString damaged = tr("The modeller data is damaged or cut off.");
  double totalArea = 0, totalLength = 0;
  bool anyFace = false;
  for (const SatRecord& face : sat.records()) {
    if (face.type != "face") continue;
    anyFace = true;
    const SatRecord* surface = sat.at(ptr(face, 5));
    if (!surface || surface->type != "plane-surface") return fail(tr("The region is not flat."));
    const auto normal = vec(*surface, 4);
    if (!normal || normal->isZeroLength()) return fail(damaged);
    const OdGeMatrix3d toPlane = OdGeMatrix3d::worldToPlane(*normal);
    std::vector<double> loopAreas;
    int loopIndex = ptr(face, 2);
    for (int guardLoops = 0; loopIndex >= 0; ++guardLoops) {
      const SatRecord* loop = sat.at(loopIndex);
      if (!loop || loop->type != "loop" || guardLoops > 100000) return fail(damaged);
      double loopArea = 0;
      const int first = ptr(*loop, 2);
      int coedgeIndex = first;
      for (int guard = 0;; ++guard) {
        const SatRecord* coedge = sat.at(coedgeIndex);
        if (!coedge || coedge->type != "coedge" || guard > 100000) return fail(damaged);
        const SatRecord* edge = sat.at(ptr(*coedge, 4));
        if (!edge || edge->type != "edge") return fail(damaged);
        const size_t v2Field = params ? 3 : 2, curveField = params ? 6 : 4, senseField = params ? 7 : 5;
        auto vertexPoint = [&](size_t field) -> std::optional<OdGePoint3d> {
          const SatRecord* v = sat.at(ptr(*edge, field));
          if (!v || v->type != "vertex") return std::nullopt;
          const SatRecord* p = sat.at(ptr(*v, 2));
          return p && p->type == "point" ? pt(*p, 1) : std::nullopt;
        };
        const auto start = vertexPoint(1), end = vertexPoint(v2Field);
        const SatRecord* curve = sat.at(ptr(*edge, curveField));
        if (!start || !end || !curve) return fail(damaged);
        const bool edgeReversed = edge->f.size() > senseField && edge->f[senseField] == "reversed";
        const bool coedgeReversed = coedge->f.size() > 5 && coedge->f[5] == "reversed";
        EdgePath path;
        if (curve->type == "straight-curve") {
          const OdGePoint3d a = *start, b = *end;
          path.at = [a, b](double t) { return a + (b - a) * t; };
          path.tangent = [a, b](double) { return b - a; };
        } else if (curve->type == "ellipse-curve") {
          const auto c = pt(*curve, 1);
          const auto n = vec(*curve, 4), major = vec(*curve, 7);
          const auto ratio = num(*curve, 10);
          if (!c || !n || !major || !ratio || n->isZeroLength() || major->isZeroLength()) return fail(damaged);
          const OdGeVector3d u = *major, w = n->normal().crossProduct(*major) * *ratio;
          auto angleOf = [&](const OdGePoint3d& p) {
            const OdGeVector3d d = p - *c;
            return std::atan2(d.dotProduct(w) / w.lengthSqrd(), d.dotProduct(u) / u.lengthSqrd());
          };
          double t0 = angleOf(*start), t1 = angleOf(*end);
          const bool closed = start->isEqualTo(*end, OdGeTol(1e-9 * (1 + u.length())));
          if (!edgeReversed) {
            while (t1 <= t0 + (closed ? 1e-12 : 0)) t1 += Oda2PI;
            if (closed) t1 = t0 + Oda2PI;
          } else {
            while (t1 >= t0 - (closed ? 1e-12 : 0)) t1 -= Oda2PI;
            if (closed) t1 = t0 - Oda2PI;
          }
          const OdGePoint3d centre = *c;
          path.at = [centre, u, w](double t) { return centre + u * std::cos(t) + w * std::sin(t); };
          path.tangent = [u, w](double t) { return u * -std::sin(t) + w * std::cos(t); };
          path.t0 = t0;
          path.t1 = t1;
        } else {
          return fail(tr("The region has an edge of a kind that cannot be measured here (%1).")
                          .arg(QString::fromLatin1(curve->type)));
        }
        // 0.5 * integral of (x dy - y dx) in the plane's coordinates.
        auto green = [&](double t) {
          const OdGePoint3d p = toPlane * path.at(t);
          const OdGeVector3d d = toPlane * path.tangent(t);
          return 0.5 * (p.x * d.y - p.y * d.x);
        };
        const double a = odDbIntegrate(green, path.t0, path.t1, 16);
        const double len = std::fabs(odDbIntegrate([&](double t) { return path.tangent(t).length(); }, path.t0, path.t1, 16));
        loopArea += coedgeReversed ? -a : a;
        totalLength += len;
        coedgeIndex = ptr(*coedge, 1);
        if (coedgeIndex == first || coedgeIndex < 0) break;
      }
      loopAreas.push_back(std::fabs(loopArea));
      loopIndex = ptr(*loop, 1);
    }
    if (loopAreas.empty()) return fail(damaged);
    double outer = 0, sum = 0;
    for (double a : loopAreas) {
      outer = std::max(outer, a);
      sum += a;
    }
    totalArea += outer - (sum - outer);
  }
  if (!anyFace) return fail(tr("The modeller data holds no face."));
  area = totalArea;
  perimeter = totalLength;
  return true;
}

bool OdDbAcis::translate(OdDbAcisData& data, const OdGeVector3d& by, QString* why) {
  Sat sat;
  if (!parseData(data, sat, why)) return false;
  // Records whose first three numbers (after the attribute pointer) are a
  // position; a transform's translation follows its nine matrix entries.
  struct Moved {
    const char* type;
    size_t field;
  };
  static const Moved kMoved[] = {{"point", 1},          {"straight-curve", 1}, {"ellipse-curve", 1},
                                 {"plane-surface", 1},  {"cone-surface", 1},   {"sphere-surface", 1},
                                 {"torus-surface", 1},  {"transform", 10}};
  // Geometry that is neither moved here nor free of positions.
  static const char* const kFixed[] = {"spline-surface", "intcurve-curve", "pcurve", "exactcur", "exppc"};
  std::vector<std::pair<qsizetype, std::pair<qsizetype, QByteArray>>> edits;  // position, (length, text)
  for (const SatRecord& r : sat.records()) {
    for (const char* f : kFixed)
      if (r.type == f) {
        if (why) *why = tr("The body has free-form geometry, which cannot be moved here.");
        return false;
      }
    for (const Moved& m : kMoved) {
      if (r.type != m.type) continue;
      for (int k = 0; k < 3; ++k) {
        const auto v = num(r, m.field + size_t(k));
        if (!v) {
          if (why) *why = tr("The modeller data is damaged or cut off.");
          return false;
        }
        const double moved = *v + by[k];
        edits.push_back({r.at[m.field + size_t(k)], {r.f[m.field + size_t(k)].size(), QByteArray::number(moved, 'g', 17)}});
      }
    }
  }
  QByteArray text = data.sat;
  std::sort(edits.begin(), edits.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  for (const auto& e : edits) text.replace(e.first, e.second.first, e.second.second);
  data.sat = text;
  return true;
}

// ---------------------------------------------------------------------------
// The classes

void OdDbModelerEntity::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  m_acis = static_cast<const OdDbModelerEntity*>(source)->m_acis;
}

double OdDbSolidHistory::value(int code, double def) const {
  for (const auto& [c, v] : values)
    if (c == code) return v;
  return def;
}

namespace {
const char* const kRecordTypes[] = {"ACSH_BOX_CLASS",      "ACSH_CYLINDER_CLASS", "ACSH_CONE_CLASS",
                                    "ACSH_PYRAMID_CLASS",  "ACSH_SPHERE_CLASS",   "ACSH_TORUS_CLASS",
                                    "ACSH_WEDGE_CLASS",    "ACSH_EXTRUSION_CLASS", "ACSH_REVOLVE_CLASS",
                                    "ACSH_SWEEP_CLASS",    "ACSH_LOFT_CLASS"};
}

bool OdDbSolidHistory::operator==(const OdDbSolidHistory& o) const {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c)
      if (transform(r, c) != o.transform(r, c)) return false;
  return kind == o.kind && values == o.values && node == o.node;
}

const char* OdDbSolidHistory::recordType(Kind kind) { return kind == kNone ? "" : kRecordTypes[kind]; }

OdDbSolidHistory::Kind OdDbSolidHistory::kindOfRecord(QByteArrayView type) {
  for (int k = 0; k < int(std::size(kRecordTypes)); ++k)
    if (type == kRecordTypes[k]) return Kind(k);
  return kNone;
}

bool OdDb3dSolid::position(OdGePoint3d& p) const {
  assertReadEnabled();
  if (m_history.kind != OdDbSolidHistory::kNone) {
    p = m_history.transform * OdGePoint3d::kOrigin;
    return true;
  }
  OdGeExtents3d ext;
  if (!bodyExtents(ext)) return false;
  p = ext.center();
  return true;
}

bool OdDb3dSolid::setPosition(const OdGePoint3d& p, QString* why) {
  assertWriteEnabled();
  OdGePoint3d now;
  if (!position(now)) {
    if (why) *why = tr("The solid's position is not known, so it cannot be moved.");
    return false;
  }
  const OdGeVector3d by = p - now;
  if (by.isZeroLength(OdGeTol(0, 0))) return true;
  OdDbAcisData data = acisData();
  if (!OdDbAcis::translate(data, by, why)) return false;
  OdDbSolidHistory h = m_history;
  h.transform.preMultBy(OdGeMatrix3d::translation(by));
  setAcisData(data);
  m_history = h;
  return true;
}

void OdDb3dSolid::copyFrom(const OdRxObject* source) {
  OdDbModelerEntity::copyFrom(source);
  m_history = static_cast<const OdDb3dSolid*>(source)->m_history;
}

void OdDbSurface::setUIsolines(int n) {
  assertWriteEnabled();
  if (n < 0 || n > 2047) throw OdError(eInvalidInput);
  m_u = n;
}

void OdDbSurface::setVIsolines(int n) {
  assertWriteEnabled();
  if (n < 0 || n > 2047) throw OdError(eInvalidInput);
  m_v = n;
}

void OdDbSurface::copyFrom(const OdRxObject* source) {
  OdDbModelerEntity::copyFrom(source);
  auto* s = static_cast<const OdDbSurface*>(source);
  m_u = s->m_u;
  m_v = s->m_v;
}

void OdDbExtrudedSurface::copyFrom(const OdRxObject* source) {
  OdDbSurface::copyFrom(source);
  auto* s = static_cast<const OdDbExtrudedSurface*>(source);
  m_sweep = s->m_sweep;
  m_options = s->m_options;
}

void OdDbRevolvedSurface::copyFrom(const OdRxObject* source) {
  OdDbSurface::copyFrom(source);
  auto* s = static_cast<const OdDbRevolvedSurface*>(source);
  m_axisPoint = s->m_axisPoint;
  m_axis = s->m_axis;
  m_angle = s->m_angle;
}

void OdDbSweptSurface::copyFrom(const OdRxObject* source) {
  OdDbSurface::copyFrom(source);
  m_options = static_cast<const OdDbSweptSurface*>(source)->m_options;
}

void OdDbLoftedSurface::copyFrom(const OdRxObject* source) {
  OdDbSurface::copyFrom(source);
  auto* s = static_cast<const OdDbLoftedSurface*>(source);
  m_normal = s->m_normal;
  m_closed = s->m_closed;
  m_sections = s->m_sections;
  m_guides = s->m_guides;
}
