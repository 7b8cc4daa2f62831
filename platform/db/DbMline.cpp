#include "DbMline.h"
#include <algorithm>
#include <cmath>

OdDbMline::OdDbMline() = default;

void OdDbMline::setStyleName(const OdString& name) { assertWriteEnabled(); m_styleName = name; }
void OdDbMline::setStyleOffsets(const OdArray<double>& offsets) { assertWriteEnabled(); m_styleOffsets = offsets; }

unsigned OdDbMline::numElements() const {
  assertReadEnabled();
  return m_vertices.isEmpty() ? unsigned(m_styleOffsets.length()) : m_vertices[0].params.length();
}

const OdDbMline::Vertex& OdDbMline::vertexData(unsigned index) const {
  assertReadEnabled();
  if (index >= m_vertices.length()) throw OdError_InvalidIndex();
  return m_vertices[index];
}

void OdDbMline::setData(Mline::MlineJustification just, double scale, int flags, const OdGeVector3d& normal,
                        const OdArray<Vertex>& vertices) {
  assertWriteEnabled();
  m_just = just;
  m_scale = scale;
  m_flags = flags;
  m_normal = normal.isZeroLength() ? OdGeVector3d(0, 0, 1) : normal.normal();
  m_vertices = vertices;
}

namespace {

// The sine of the angle between the miter and the segment: how far off the
// line a unit step along the miter goes.
double miterSine(const OdDbMline::Vertex& v, const OdGeVector3d& normal) {
  return v.miter.dotProduct(normal.crossProduct(v.direction));
}

}  // namespace

OdArray<double> OdDbMline::elementOffsets() const {
  assertReadEnabled();
  OdArray<double> out;
  if (m_vertices.isEmpty()) return out;
  const Vertex& v = m_vertices[0];
  const double s = miterSine(v, m_normal);
  for (const OdArray<double>& p : v.params) out.append(p.isEmpty() ? 0.0 : p[0] * s);
  return out;
}

// Each element's distance along each vertex's miter from its offset.
void OdDbMline::placeElements(const OdArray<double>& offsets) {
  for (Vertex& v : m_vertices) {
    const double s = miterSine(v, m_normal);
    for (unsigned k = 0; k < v.params.length() && k < offsets.length(); ++k) {
      if (v.params[k].isEmpty()) v.params[k].append(0.0);
      v.params[k][0] = std::fabs(s) > 1e-12 ? offsets[k] / s : 0.0;
    }
  }
}

// Works out each vertex's segment direction and miter from the positions,
// then places the elements.
void OdDbMline::rebuild(const OdArray<double>& offsets) {
  const unsigned n = m_vertices.length();
  if (n < 2) return;
  const bool closed = m_flags & 2;
  auto dir = [&](unsigned i) {
    const OdGeVector3d d = m_vertices[(i + 1) % n].position - m_vertices[i].position;
    return d.isZeroLength() ? OdGeVector3d(1, 0, 0) : d.normal();
  };
  for (unsigned i = 0; i < n; ++i) {
    Vertex& v = m_vertices[i];
    const bool last = i + 1 == n && !closed;
    v.direction = last ? dir(i - 1) : dir(i);
    const OdGeVector3d left = m_normal.crossProduct(v.direction);
    OdGeVector3d miter = left;
    if ((i > 0 || closed) && !last) {
      const OdGeVector3d before = m_normal.crossProduct(dir((i + n - 1) % n));
      const OdGeVector3d sum = before + left;
      if (!sum.isZeroLength()) miter = sum.normal();
    }
    v.miter = miter;
  }
  placeElements(offsets);
}

void OdDbMline::setScale(double scale) {
  if (!(std::fabs(scale) > 0) || !std::isfinite(scale)) throw OdError(eInvalidInput, OdString("a multiline's scale is not 0"));
  OdArray<double> offsets = elementOffsets();
  assertWriteEnabled();
  for (double& o : offsets) o *= scale / m_scale;
  m_scale = scale;
  placeElements(offsets);
}

void OdDbMline::setJustification(Mline::MlineJustification just) {
  if (just == justification()) return;
  OdArray<double> rel = elementOffsets();
  // The offsets from the style's zero line, scaled: known when the line is
  // the zero line, or from the style's own offsets.
  OdArray<double> abs;
  if (m_just == Mline::kZero) {
    abs = rel;
  } else if (m_styleOffsets.length() == rel.length()) {
    for (double o : m_styleOffsets) abs.append(o * m_scale);
  }
  OdArray<double> out;
  if (!abs.isEmpty()) {
    const double top = *std::max_element(abs.begin(), abs.end()), bottom = *std::min_element(abs.begin(), abs.end());
    const double line = just == Mline::kTop ? top : just == Mline::kBottom ? bottom : 0.0;
    for (double o : abs) out.append(o - line);
  } else if (just != Mline::kZero && !rel.isEmpty()) {
    // Top to bottom and back: the elements move by the width.
    const double top = *std::max_element(rel.begin(), rel.end()), bottom = *std::min_element(rel.begin(), rel.end());
    for (double o : rel) out.append(just == Mline::kTop ? o - top : o - bottom);
  } else if (!rel.isEmpty()) {
    throw OdError(eInvalidInput, OdString("the offsets of the multiline's style are not known"));
  }
  assertWriteEnabled();
  m_just = just;
  placeElements(out);
}

void OdDbMline::setClosed(bool closed) {
  if (closed == isClosed()) return;
  const OdArray<double> offsets = elementOffsets();
  assertWriteEnabled();
  m_flags = closed ? (m_flags | 2) : (m_flags & ~2);
  rebuild(offsets);
}

void OdDbMline::setVertexAt(unsigned index, const OdGePoint3d& p) {
  if (index >= m_vertices.length()) throw OdError_InvalidIndex();
  const OdArray<double> offsets = elementOffsets();
  assertWriteEnabled();
  m_vertices[index].position = p;
  rebuild(offsets);
}

double OdDbMline::length() const {
  assertReadEnabled();
  double len = 0;
  const unsigned n = m_vertices.length();
  for (unsigned i = 0; i + 1 < n; ++i) len += m_vertices[i].position.distanceTo(m_vertices[i + 1].position);
  if ((m_flags & 2) && n > 2) len += m_vertices[n - 1].position.distanceTo(m_vertices[0].position);
  return len;
}

bool OdDbMline::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  if (m_vertices.isEmpty()) return false;
  ext = OdGeExtents3d();
  for (const Vertex& v : m_vertices)
    for (const OdArray<double>& p : v.params) ext.addPoint(v.position + v.miter * (p.isEmpty() ? 0.0 : p[0]));
  return true;
}

void OdDbMline::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  auto* m = static_cast<const OdDbMline*>(source);
  m_styleName = m->m_styleName;
  m_styleOffsets = m->m_styleOffsets;
  m_just = m->m_just;
  m_scale = m->m_scale;
  m_flags = m->m_flags;
  m_normal = m->m_normal;
  m_vertices = m->m_vertices;
}
