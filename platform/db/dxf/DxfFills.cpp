// HATCH: the elevation point and normal, the pattern name and flags, the
// boundary loops (polylines, or chains of line, arc, elliptical arc and
// spline edges, each with the handles of its source objects), the hatch
// style and pattern values with their line families, the seed points and
// the gradient. The loops repeat group codes that the header uses (10/20),
// so the whole subclass is walked in order, and each value's tag is known
// by its place: edits patch those tags and nothing else.
#include "DbPlainClasses.h"
#include "DxfMapping.h"

#include <QtMath>

#include <cmath>
#include <vector>

namespace OdDxf::mapping {

namespace {

using H = OdDbHatch;

// Where each value of the subclass is (-1: not in the record).
struct HatchTags {
  int elevation = -1, name = -1, solid = -1, associative = -1;
  int style = -1, type = -1, angle = -1, scale = -1, isDouble = -1, lineCount = -1, linesEnd = -1;
  int gradient = -1, oneColor = -1, gradientAngle = -1, gradientShift = -1, gradientName = -1;
  std::vector<int> gradientRgb;
};

// A walk over the tags of the subclass region.
class Walker {
 public:
  Walker(const RecordIO& io, int begin, int end) : m_io(io), m_r(io.record()), m_i(begin), m_end(end) {}
  int pos() const { return m_i; }
  bool atEnd() const { return m_i >= m_end; }
  int code() const { return atEnd() ? -1 : m_r.at(m_i).code(); }
  // The tag at the position when it has this code (the walk moves on).
  bool take(int c, int* at = nullptr) {
    if (code() != c) return false;
    if (at) *at = m_i;
    ++m_i;
    return true;
  }
  double real(int c, bool& ok) {
    const int i = m_i;
    if (!take(c)) return ok = false, 0.0;
    return m_io.realAt(i);
  }
  qint64 integer(int c, bool& ok) {
    const int i = m_i;
    if (!take(c)) return ok = false, 0;
    return m_io.integerAt(i);
  }
  OdGePoint2d point(int c, bool& ok) {
    const double x = real(c, ok), y = real(c + 10, ok);
    return OdGePoint2d(x, y);
  }
  void next() { ++m_i; }
  void jumpTo(const Walker& other) { m_i = other.m_i; }

 private:
  const RecordIO& m_io;
  const Record& m_r;
  int m_i, m_end;
};

// Counts that a file may give are read within a sane bound, so that a
// damaged count cannot make the reader allocate without end.
bool count(Walker& w, int code, qint64& n) {
  bool ok = true;
  n = w.integer(code, ok);
  return ok && n >= 0 && n < 10'000'000;
}

bool readEdge(Walker& w, H::Edge& e) {
  bool ok = true;
  e.type = H::HatchEdgeType(w.integer(72, ok));
  switch (e.type) {
    case H::kLine:
      e.start = w.point(10, ok);
      e.end = w.point(11, ok);
      return ok;
    case H::kCirArc:
      e.center = w.point(10, ok);
      e.radius = w.real(40, ok);
      e.startAngle = qDegreesToRadians(w.real(50, ok));
      e.endAngle = qDegreesToRadians(w.real(51, ok));
      e.ccw = w.integer(73, ok) != 0;
      return ok;
    case H::kEllArc:
      e.center = w.point(10, ok);
      e.majorAxis = w.point(11, ok).asVector();
      e.ratio = w.real(40, ok);
      e.startAngle = qDegreesToRadians(w.real(50, ok));
      e.endAngle = qDegreesToRadians(w.real(51, ok));
      e.ccw = w.integer(73, ok) != 0;
      return ok;
    case H::kSpline: {
      qint64 knots = 0, ctrl = 0;
      e.degree = int(w.integer(94, ok));
      e.rational = w.integer(73, ok) != 0;
      e.periodic = w.integer(74, ok) != 0;
      if (!ok || !count(w, 95, knots) || !count(w, 96, ctrl)) return false;
      for (qint64 k = 0; k < knots && ok; ++k) e.knots.append(w.real(40, ok));
      for (qint64 k = 0; k < ctrl && ok; ++k) {
        e.controlPoints.append(w.point(10, ok));
        if (w.code() == 42) e.weights.append(w.real(42, ok));
      }
      // Fit data (later releases) begins with its count, which the loop's
      // count of source objects also uses: it is fit data when fit points
      // or a second 97 follow.
      if (w.code() == 97) {
        Walker probe = w;
        qint64 fit = 0;
        if (count(probe, 97, fit) && ((fit > 0 && probe.code() == 11) || (fit == 0 && probe.code() == 97))) {
          w.jumpTo(probe);
          for (qint64 k = 0; k < fit && ok; ++k) e.fitPoints.append(w.point(11, ok));
          if (w.code() == 12) w.point(12, ok);
          if (w.code() == 13) w.point(13, ok);
        }
      }
      return ok && e.degree >= 1 && e.degree <= 25;
    }
  }
  return false;
}

bool readLoop(Walker& w, H::Loop& loop, OdArray<quint64>& sources, const RecordIO& io) {
  bool ok = true;
  loop.type = int(w.integer(92, ok));
  if (!ok) return false;
  if (loop.type & H::kPolyline) {
    const bool bulges = w.integer(72, ok) != 0;
    loop.closed = w.integer(73, ok) != 0;
    qint64 n = 0;
    if (!ok || !count(w, 93, n)) return false;
    for (qint64 k = 0; k < n && ok; ++k) {
      loop.vertices.append(w.point(10, ok));
      loop.bulges.append(bulges || w.code() == 42 ? (w.code() == 42 ? w.real(42, ok) : 0.0) : 0.0);
    }
  } else {
    qint64 n = 0;
    if (!count(w, 93, n)) return false;
    for (qint64 k = 0; k < n && ok; ++k) {
      H::Edge e;
      ok = readEdge(w, e);
      loop.edges.append(e);
    }
  }
  if (!ok) return false;
  qint64 m = 0;
  if (w.code() == 97 && !count(w, 97, m)) return false;
  for (qint64 k = 0; k < m; ++k) {
    int at = -1;
    if (!w.take(330, &at)) return false;
    sources.append(io.record().at(at).handle());
  }
  return true;
}

// Walks the subclass: fills `tags` and, when `hatch` is given, reads the
// values into it. False when the boundary loops cannot be read; the values
// after them are then not found either.
bool walkHatch(const RecordIO& io, int begin, int end, HatchTags& tags, H* hatch) {
  Walker w(io, begin, end);
  bool ok = true;
  OdArray<H::Loop> loops;
  OdArray<quint64> sources;
  while (!w.atEnd() && w.code() != 91) {
    switch (w.code()) {
      case 30: tags.elevation = w.pos(); break;
      case 2: tags.name = w.pos(); break;
      case 70: tags.solid = w.pos(); break;
      case 71: tags.associative = w.pos(); break;
      default: break;
    }
    w.next();
  }
  qint64 n = 0;
  bool loopsOk = !w.atEnd() && count(w, 91, n);
  for (qint64 k = 0; k < n && loopsOk; ++k) {
    H::Loop loop;
    loopsOk = readLoop(w, loop, sources, io);
    loops.append(loop);
  }
  OdArray<H::PatternLine> lines;
  while (loopsOk && !w.atEnd()) {
    switch (w.code()) {
      case 75: tags.style = w.pos(); break;
      case 76: tags.type = w.pos(); break;
      case 52: tags.angle = w.pos(); break;
      case 41: tags.scale = w.pos(); break;
      case 77: tags.isDouble = w.pos(); break;
      case 450: tags.gradient = w.pos(); break;
      case 452: tags.oneColor = w.pos(); break;
      case 460: tags.gradientAngle = w.pos(); break;
      case 461: tags.gradientShift = w.pos(); break;
      case 470: tags.gradientName = w.pos(); break;
      case 421: if (tags.gradient >= 0) tags.gradientRgb.push_back(w.pos()); break;
      case 78: {
        tags.lineCount = w.pos();
        qint64 count78 = 0;
        if (!count(w, 78, count78)) return false;
        for (qint64 k = 0; k < count78 && ok; ++k) {
          H::PatternLine l;
          l.angle = qDegreesToRadians(w.real(53, ok));
          // The base point (43/44) and offset (45/46) are not the c, c+10
          // pairs that point() reads.
          const double bx = w.real(43, ok), by = w.real(44, ok);
          l.base = OdGePoint2d(bx, by);
          const double ox = w.real(45, ok), oy = w.real(46, ok);
          l.offset = OdGeVector2d(ox, oy);
          qint64 dashes = 0;
          if (!ok || !count(w, 79, dashes)) return false;
          for (qint64 d = 0; d < dashes && ok; ++d) l.dashes.append(w.real(49, ok));
          lines.append(l);
        }
        if (!ok) return false;
        tags.linesEnd = w.pos();
        continue;
      }
      default: break;
    }
    w.next();
  }
  if (!hatch) return loopsOk;
  auto realAt = [&](int i, double def) { return i >= 0 ? io.realAt(i) : def; };
  auto intAt = [&](int i, qint64 def) { return i >= 0 ? io.integerAt(i) : def; };
  const int typeValue = int(intAt(tags.type, 1));
  const H::HatchPatternType type = typeValue == 0 ? H::kUserDefined : typeValue == 2 ? H::kCustomDefined : H::kPreDefined;
  const double scaleOrSpace = realAt(tags.scale, 1.0);
  const bool solid = intAt(tags.solid, 0) & 1;
  hatch->setPatternData(type, OdString(tags.name >= 0 ? io.record().str(tags.name) : QString()), solid,
                        qDegreesToRadians(realAt(tags.angle, 0.0)),
                        type == H::kUserDefined || !(scaleOrSpace > 0) ? 1.0 : scaleOrSpace,
                        type == H::kUserDefined && scaleOrSpace > 0 ? scaleOrSpace : 1.0, intAt(tags.isDouble, 0) != 0,
                        lines);
  hatch->setElevation(realAt(tags.elevation, 0.0));
  hatch->setAssociative(intAt(tags.associative, 0) != 0);
  const qint64 style = intAt(tags.style, 0);
  hatch->setHatchStyle(style >= 0 && style <= 2 ? H::HatchStyle(style) : H::kNormal);
  for (const H::Loop& l : loops) hatch->appendLoop(l);
  hatch->setSourceHandles(sources);
  hatch->setBoundaryUnderstood(loopsOk);
  hatch->setGradient(intAt(tags.gradient, 0) != 0);
  hatch->setGradientOneColorMode(intAt(tags.oneColor, 0) != 0);
  hatch->setGradientAngle(realAt(tags.gradientAngle, 0.0));
  hatch->setGradientShift(realAt(tags.gradientShift, 0.0));
  if (tags.gradientName >= 0) {
    const QString name = io.record().str(tags.gradientName);
    try {
      hatch->setGradientName(OdString(name));
    } catch (const OdError&) {
      // A gradient of a name this platform does not know stays as named in
      // the file; it is shown, and only a known name can replace it.
    }
  }
  for (size_t k = 0; k < tags.gradientRgb.size() && k < 2; ++k) {
    const quint32 rgb = quint32(io.integerAt(tags.gradientRgb[k]));
    hatch->setGradientColor(int(k), OdCmColor::fromRGB(uint8_t(rgb >> 16), uint8_t(rgb >> 8), uint8_t(rgb)));
  }
  return loopsOk;
}

// The subclass region of a record: [begin, end).
void regionOf(const RecordIO& io, QByteArrayView marker, int& begin, int& end) {
  const Record& r = io.record();
  begin = -1;
  for (int i = 1; i < r.size(); ++i)
    if (r.at(i).code() == 100 && r.at(i).trimmed() == marker) {
      begin = i + 1;
      break;
    }
  if (begin < 0) {  // no markers: the values start at the elevation point
    begin = r.find(10, 1);
    if (begin < 0) begin = r.size();
  }
  end = begin;
  while (end < r.size() && r.at(end).code() != 100 && r.at(end).code() != 1001) ++end;
}

bool sameLines(const OdArray<H::PatternLine>& a, const OdArray<H::PatternLine>& b) {
  if (a.length() != b.length()) return false;
  for (unsigned i = 0; i < a.length(); ++i) {
    const H::PatternLine &x = a[i], &y = b[i];
    if (!same(x.angle, y.angle) || !same(x.base, y.base) || !same(x.offset.x, y.offset.x) ||
        !same(x.offset.y, y.offset.y) || x.dashes.length() != y.dashes.length())
      return false;
    for (unsigned d = 0; d < x.dashes.length(); ++d)
      if (!same(x.dashes[d], y.dashes[d])) return false;
  }
  return true;
}

// Writes a pattern line family's tags at the insertion point.
void insertLines(RecordIO& io, const OdArray<H::PatternLine>& lines) {
  Record& r = io.record();
  for (const H::PatternLine& l : lines) {
    r.setReal(io.insertTag(53), qRadiansToDegrees(l.angle));
    r.setReal(io.insertTag(43), l.base.x);
    r.setReal(io.insertTag(44), l.base.y);
    r.setReal(io.insertTag(45), l.offset.x);
    r.setReal(io.insertTag(46), l.offset.y);
    r.setInteger(io.insertTag(79), l.dashes.length());
    for (double d : l.dashes) r.setReal(io.insertTag(49), d);
  }
}

}  // namespace

void hatchFields(Fields<OdDbHatch>& f) {
  RecordIO& io = f.io();
  H* h = f.object();
  f.subclass("AcDbHatch");
  int begin = 0, end = 0;
  regionOf(io, "AcDbHatch", begin, end);
  if (io.reading()) {
    HatchTags tags;
    if (!walkHatch(io, begin, end, tags, h))
      io.warn(begin, QStringLiteral("the hatch boundary could not be read; its area is not computable"));
    const OdGeVector3d n = readNormal(io, 210);
    f.apply(210, [&] { h->setNormal(n); });
    return;
  }
  // New hatches are not written (the mapping is partial): this is a patch.
  const H* was = f.before();
  HatchTags t;
  walkHatch(io, begin, end, t, nullptr);
  Record& r = io.record();
  auto patchReal = [&](int at, double now, double before) {
    if (at >= 0 && !same(now, before)) r.setReal(at, now);
  };
  auto patchInt = [&](int at, qint64 now, qint64 before) {
    if (at >= 0 && now != before) r.setInteger(at, now);
  };
  patchReal(t.elevation, h->elevation(), was->elevation());
  if (t.name >= 0 && h->patternName() != was->patternName()) writeString(io.ctx(), r, t.name, h->patternName().qstring());
  if (t.solid >= 0 && h->isSolidFill() != was->isSolidFill())
    r.setInteger(t.solid, (io.integerAt(t.solid) & ~qint64(1)) | (h->isSolidFill() ? 1 : 0));
  patchInt(t.associative, h->associative(), was->associative());
  patchInt(t.style, h->hatchStyle(), was->hatchStyle());
  patchInt(t.type, h->patternType(), was->patternType());
  patchReal(t.angle, qRadiansToDegrees(h->patternAngle()), qRadiansToDegrees(was->patternAngle()));
  const auto scaleOrSpace = [](const H* x) { return x->patternType() == H::kUserDefined ? x->patternSpace() : x->patternScale(); };
  patchReal(t.scale, scaleOrSpace(h), scaleOrSpace(was));
  patchInt(t.isDouble, h->patternDouble(), was->patternDouble());
  if (!sameLines(h->patternLines(), was->patternLines())) {
    if (t.lineCount >= 0) {
      io.removeAt(t.lineCount + 1, t.linesEnd - t.lineCount - 1);
      r.setInteger(t.lineCount, h->patternLines().length());
      io.moveTo(t.lineCount + 1);
    } else {
      // A solid fill becomes a pattern: its values and lines go after the
      // pattern type.
      io.moveTo(t.type >= 0 ? t.type + 1 : end);
      r.setReal(io.insertTag(52), qRadiansToDegrees(h->patternAngle()));
      r.setReal(io.insertTag(41), scaleOrSpace(h));
      r.setInteger(io.insertTag(77), h->patternDouble());
      r.setInteger(io.insertTag(78), h->patternLines().length());
    }
    insertLines(io, h->patternLines());
  }
  if (h->isGradient()) {
    patchInt(t.oneColor, h->gradientOneColorMode(), was->gradientOneColorMode());
    patchReal(t.gradientAngle, h->gradientAngle(), was->gradientAngle());
    patchReal(t.gradientShift, h->gradientShift(), was->gradientShift());
    if (t.gradientName >= 0 && h->gradientName() != was->gradientName())
      writeString(io.ctx(), r, t.gradientName, h->gradientName().qstring());
    for (size_t k = 0; k < t.gradientRgb.size() && k < 2; ++k) {
      const OdCmColor c = h->gradientColor(int(k));
      if (c != was->gradientColor(int(k)))
        r.setInteger(t.gradientRgb[k], qint64((quint32(c.red()) << 16) | (quint32(c.green()) << 8) | c.blue()));
    }
  }
}

}  // namespace OdDxf::mapping
