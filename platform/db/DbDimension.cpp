#include "DbDimension.h"
#include "OdGeMatrix3d.h"

#include <cmath>

namespace {

// The style's value of a variable, or the table's default without a style.
OdDbDimVar::Value styleValue(const OdDbObjectId& style, OdDbDimVar::Id id) {
  if (!style.isNull()) {
    OdDbObjectPtr o = style.openObject(OdDb::kForRead);
    if (auto* rec = OdDbDimStyleTableRecord::cast(o).get()) return rec->dimVar(id);
  }
  return OdDbDimVar::info(id).defaultValue();
}

// Below this, lengths and sines count as zero: the points are degenerate.
constexpr double kTiny = 1e-10;

double finiteOr(double v, double fallback) { return std::isfinite(v) ? v : fallback; }

// A point in the plane of the normal (2D).
OdGePoint3d inPlane(const OdGeVector3d& normal, const OdGePoint3d& p) {
  return OdGeMatrix3d::worldToPlane(normal) * p;
}

double angleOf(const OdGePoint3d& from, const OdGePoint3d& to) {
  return std::atan2(to.y - from.y, to.x - from.x);
}

// The angle from a to b counter-clockwise, in [0, 2pi).
double ccw(double a, double b) {
  double d = std::fmod(b - a, 2 * M_PI);
  if (d < 0) d += 2 * M_PI;
  return d;
}

bool allFinite(const OdGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

}  // namespace

OdDbDimension::OdDbDimension() = default;
OdDbDimension::OdDbDimension(int kind) : m_flags(kind) {}

int OdDbDimension::slot(int code) {
  switch (code) {
    case 10: return 0;
    case 13: return 1;
    case 14: return 2;
    case 15: return 3;
    case 16: return 4;
    case 17: return 5;
  }
  throw OdError(eInvalidInput, OdString("no defining point of this group code"));
}

int OdDbDimension::valueSlot(int code) {
  switch (code) {
    case 40: return 0;
    case 41: return 1;
    case 50: return 2;
    case 52: return 3;
    case 70: return 4;
    case 71: return 5;
  }
  throw OdError(eInvalidInput, OdString("no value of this group code"));
}

void OdDbDimension::setDimensionStyle(const OdDbObjectId& id) {
  if (!id.isNull()) {
    OdDbObjectPtr o = id.openObject(OdDb::kForRead);
    if (!OdDbDimStyleTableRecord::cast(o).get())
      throw OdError(eInvalidInput, OdString("the dimension style is not a dimension style record"));
  }
  assertWriteEnabled();
  if (m_style != id) m_regenerate = true;
  m_style = id;
}

OdDbDimVar::Value OdDbDimension::dimVar(OdDbDimVar::Id id) const {
  assertReadEnabled();
  OdDbDimVar::Value v;
  if (OdDbDimStyleOverrides::find(this, id, &v)) return v;
  return styleValue(m_style, id);
}

void OdDbDimension::setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v) {
  OdString why;
  if (!OdDbDimVar::check(id, v, &why)) throw OdError(eInvalidInput, why);
  // The style's own value is no override: the pair goes.
  if (v == styleValue(m_style, id)) {
    assertWriteEnabled();
    if (OdDbDimStyleOverrides::find(this, id)) OdDbDimStyleOverrides::remove(this, id);
  } else {
    OdDbDimStyleOverrides::set(this, id, v);
  }
  m_regenerate = true;
}

OdDbDimVar::Value OdDbDimension::styleDimVar(OdDbDimVar::Id id) const {
  assertReadEnabled();
  return styleValue(m_style, id);
}

void OdDbDimension::clearDimVar(OdDbDimVar::Id id) {
  assertWriteEnabled();
  if (!OdDbDimStyleOverrides::find(this, id)) return;
  OdDbDimStyleOverrides::remove(this, id);
  m_regenerate = true;
}

void OdDbDimension::getDimstyleData(OdDbDimStyleTableRecord* record) const {
  for (const OdDbDimStyleOverrides::Line& l : OdDbDimStyleOverrides::effective(this, nullptr))
    record->setDimVar(l.id, l.overridden ? l.value : styleValue(m_style, l.id));
}

void OdDbDimension::setDimstyleData(const OdDbDimStyleTableRecord* record) {
  for (int k = 0; k < OdDbDimVar::kCount; ++k) {
    const auto id = OdDbDimVar::Id(k);
    if (!OdDbDimVar::info(id).code) continue;  // nowhere to keep it
    const OdDbDimVar::Value v = record->dimVar(id);
    if (v == styleValue(m_style, id)) OdDbDimStyleOverrides::remove(this, id);
    else OdDbDimStyleOverrides::set(this, id, v);
  }
  m_regenerate = true;
}

void OdDbDimension::setDimensionText(const OdString& text) {
  assertWriteEnabled();
  if (!(m_text == text)) m_regenerate = true;
  m_text = text;
}

void OdDbDimension::setTextPosition(const OdGePoint3d& p) {
  if (!allFinite(p)) throw OdError(eInvalidInput, OdString("the text position must be finite"));
  assertWriteEnabled();
  if (p != m_textPosition) m_regenerate = true;
  m_textPosition = p;
}

void OdDbDimension::setTextRotation(double r) {
  if (!std::isfinite(r)) throw OdError(eInvalidInput, OdString("the text rotation must be finite"));
  assertWriteEnabled();
  if (r != m_textRotation) m_regenerate = true;
  m_textRotation = r;
}

void OdDbDimension::setHorizontalRotation(double r) {
  if (!std::isfinite(r)) throw OdError(eInvalidInput, OdString("the horizontal direction must be finite"));
  assertWriteEnabled();
  if (r == m_horizontalRotation) return;
  m_horizontalRotation = r;
  geometryChanged();  // the axes of an ordinate turn with it
}

void OdDbDimension::setNormal(const OdGeVector3d& n) {
  if (n.isZeroLength()) throw OdError(eInvalidInput, OdString("zero normal"));
  assertWriteEnabled();
  m_normal = n.normal();
}

void OdDbDimension::setTextAttachment(int a) {
  if (a < 1 || a > 9) throw OdError(eInvalidInput, OdString("the text attachment must be from 1 to 9"));
  assertWriteEnabled();
  m_attachment = a;
}

void OdDbDimension::setTextLineSpacingStyle(int s) {
  if (s < 1 || s > 2) throw OdError(eInvalidInput, OdString("the line spacing style must be 1 or 2"));
  assertWriteEnabled();
  m_spacingStyle = s;
}

void OdDbDimension::setTextLineSpacingFactor(double f) {
  if (!(f > 0) || !std::isfinite(f)) throw OdError(eInvalidInput, OdString("the line spacing factor must be greater than 0"));
  assertWriteEnabled();
  m_spacingFactor = f;
}

void OdDbDimension::setDimensionFlags(int flags) {
  assertWriteEnabled();
  m_flags = flags;
}

void OdDbDimension::setDimBlockName(const OdString& name) {
  assertWriteEnabled();
  m_block = name;
}

void OdDbDimension::setNeedsBlockRegeneration(bool on) {
  assertWriteEnabled();
  m_regenerate = on;
}

void OdDbDimension::setAssociative(bool on) {
  assertWriteEnabled();
  m_associative = on;
}

void OdDbDimension::setAssociation(const OdDbDimAssoc& a) {
  assertWriteEnabled();
  m_association = a;
  m_associative = a.handle != 0;
}

bool OdDbDimension::measure(double&) const { return false; }

double OdDbDimension::measurement() const {
  double v = 0;
  return measure(v) ? v : finiteOr(cachedMeasurement(), 0);
}

void OdDbDimension::setCachedMeasurement(double v) {
  assertWriteEnabled();
  m_cached = v;
}

void OdDbDimension::setKindPoint(int code, const OdGePoint3d& p) {
  if (!allFinite(p)) throw OdError(eInvalidInput, OdString("a defining point must be finite"));
  assertWriteEnabled();
  OdGePoint3d& slotPoint = m_points[slot(code)];
  if (p == slotPoint) return;
  slotPoint = p;
  geometryChanged();
}

void OdDbDimension::setKindValue(int code, double v) {
  if (!std::isfinite(v)) throw OdError(eInvalidInput, OdString("the value must be finite"));
  assertWriteEnabled();
  double& slotValue = m_values[valueSlot(code)];
  if (v == slotValue) return;
  slotValue = v;
  geometryChanged();
}

void OdDbDimension::geometryChanged() {
  double v = 0;
  if (measure(v)) m_cached = v;
  m_regenerate = true;
}

void OdDbDimension::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  const auto* d = static_cast<const OdDbDimension*>(source);
  m_style = d->m_style;
  m_text = d->m_text;
  m_block = d->m_block;
  m_textPosition = d->m_textPosition;
  m_textRotation = d->m_textRotation;
  m_horizontalRotation = d->m_horizontalRotation;
  m_spacingFactor = d->m_spacingFactor;
  m_cached = d->m_cached;
  m_normal = d->m_normal;
  m_attachment = d->m_attachment;
  m_spacingStyle = d->m_spacingStyle;
  m_flags = d->m_flags;
  m_regenerate = d->m_regenerate;
  m_associative = d->m_associative;
  m_association = d->m_association;
  for (int i = 0; i < 6; ++i) {
    m_points[i] = d->m_points[i];
    m_values[i] = d->m_values[i];
  }
}

// --- The kinds -----------------------------------------------------------------

#define ODDB_DEFINE_DIM_KIND(Class, Kind)                                                  \
  Class::Class() : OdDbDimension(Kind) {}                                                  \
  OdSmartPtr<Class> Class::createObject() { return OdSmartPtr<Class>(new Class()); }
// Kind numbers of group 70; 32: the block is this dimension's own.
ODDB_DEFINE_DIM_KIND(OdDbRotatedDimension, 32)
ODDB_DEFINE_DIM_KIND(OdDbAlignedDimension, 32 | 1)
ODDB_DEFINE_DIM_KIND(OdDb2LineAngularDimension, 32 | 2)
ODDB_DEFINE_DIM_KIND(OdDbDiametricDimension, 32 | 3)
ODDB_DEFINE_DIM_KIND(OdDbRadialDimension, 32 | 4)
ODDB_DEFINE_DIM_KIND(OdDb3PointAngularDimension, 32 | 5)
ODDB_DEFINE_DIM_KIND(OdDbOrdinateDimension, 32 | 6)
ODDB_DEFINE_DIM_KIND(OdDbArcDimension, 32 | 5)
ODDB_DEFINE_DIM_KIND(OdDbRadialDimensionLarge, 32 | 9)
#undef ODDB_DEFINE_DIM_KIND

namespace {

bool distance(const OdGePoint3d& a, const OdGePoint3d& b, double& value) {
  const double d = a.distanceTo(b);
  if (!(d > kTiny) || !std::isfinite(d)) return false;
  value = d;
  return true;
}

// The sweep about `center` from `a` to `b` on the side of `through`, in
// the plane of the normal.
bool sweepThrough(const OdGeVector3d& normal, const OdGePoint3d& center, const OdGePoint3d& a, const OdGePoint3d& b,
                  const OdGePoint3d& through, double& sweep) {
  const OdGePoint3d c = inPlane(normal, center), pa = inPlane(normal, a), pb = inPlane(normal, b),
                    pt = inPlane(normal, through);
  auto far = [&](const OdGePoint3d& p) { return std::hypot(p.x - c.x, p.y - c.y) > kTiny; };
  if (!far(pa) || !far(pb)) return false;
  const double start = angleOf(c, pa), s = ccw(start, angleOf(c, pb));
  if (!(s > kTiny)) return false;
  sweep = !far(pt) || ccw(start, angleOf(c, pt)) <= s ? s : 2 * M_PI - s;
  return true;
}

}  // namespace

bool OdDbAlignedDimension::measure(double& value) const { return distance(xLine1Point(), xLine2Point(), value); }

bool OdDbRotatedDimension::measure(double& value) const {
  const OdGeVector3d dir = OdGeMatrix3d::planeToWorld(normal()) * OdGeVector3d(std::cos(rotation()), std::sin(rotation()), 0);
  const double d = std::fabs((xLine2Point() - xLine1Point()).dotProduct(dir));
  if (!(d > kTiny) || !std::isfinite(d)) return false;
  value = d;
  return true;
}

bool OdDb2LineAngularDimension::measure(double& value) const {
  const OdGeVector3d n = normal();
  const OdGePoint3d a1 = inPlane(n, xLine1Start()), a2 = inPlane(n, xLine1End()), b1 = inPlane(n, xLine2Start()),
                    b2 = inPlane(n, xLine2End()), arc = inPlane(n, arcPoint());
  const double dax = a2.x - a1.x, day = a2.y - a1.y, dbx = b2.x - b1.x, dby = b2.y - b1.y;
  const double la = std::hypot(dax, day), lb = std::hypot(dbx, dby);
  if (!(la > kTiny) || !(lb > kTiny)) return false;
  const double cross = dax * dby - day * dbx;
  if (std::fabs(cross) / (la * lb) <= kTiny) return false;  // parallel lines meet nowhere
  // Where the lines meet, then the pair of rays (one of each line) whose
  // sector, under half a turn, holds the arc point.
  const double t = ((b1.x - a1.x) * dby - (b1.y - a1.y) * dbx) / cross;
  const OdGePoint3d c(a1.x + t * dax, a1.y + t * day, 0);
  const double ra = std::atan2(day, dax), rb = std::atan2(dby, dbx);
  const double pa = std::hypot(arc.x - c.x, arc.y - c.y) > kTiny ? angleOf(c, arc) : ra;
  for (double first : {ra, ra + M_PI})
    for (double second : {rb, rb + M_PI}) {
      for (auto [from, to] : {std::pair{first, second}, std::pair{second, first}}) {
        const double s = ccw(from, to);
        if (s < M_PI && ccw(from, pa) <= s + kTiny) {
          value = s;
          return s > kTiny;
        }
      }
    }
  return false;
}

bool OdDb3PointAngularDimension::measure(double& value) const {
  return sweepThrough(normal(), centerPoint(), xLine1Point(), xLine2Point(), arcPoint(), value);
}

bool OdDbArcDimension::measure(double& value) const {
  double sweep = 0, radius = 0;
  if (!distance(centerPoint(), xLine1Point(), radius)) return false;
  if (!sweepThrough(normal(), centerPoint(), xLine1Point(), xLine2Point(), arcPoint(), sweep)) return false;
  value = radius * sweep;
  return true;
}

bool OdDbRadialDimension::measure(double& value) const { return distance(center(), chordPoint(), value); }
bool OdDbRadialDimensionLarge::measure(double& value) const { return distance(center(), chordPoint(), value); }
bool OdDbDiametricDimension::measure(double& value) const { return distance(farChordPoint(), chordPoint(), value); }

bool OdDbOrdinateDimension::measure(double& value) const {
  // Along the X or Y axis of the plane, turned by the horizontal direction.
  const OdGeVector3d n = normal();
  const OdGePoint3d o = inPlane(n, origin()), f = inPlane(n, definingPoint());
  const double dx = f.x - o.x, dy = f.y - o.y, h = horizontalRotation();
  const double along = isUsingXAxis() ? dx * std::cos(h) + dy * std::sin(h) : -dx * std::sin(h) + dy * std::cos(h);
  if (!std::isfinite(along)) return false;
  value = std::fabs(along);
  return true;
}
