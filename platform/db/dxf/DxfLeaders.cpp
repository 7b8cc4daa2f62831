// LEADER: its flags and sizes as a table, the vertices (76 and the repeated
// 10/20/30) as code, then the annotation, the normal and the directions.
// TOLERANCE: the style, position, frame text, normal and direction.
#include "DbPlainClasses.h"
#include "DxfFields.h"

namespace OdDxf::mapping {
namespace {

using L = OdDbLeader;

// clang-format off
//                    code kind          member                                                     default opt            table               name
constexpr Field<L> kLeaderHead[] = {
    {3,   Kind::Name,   member<L, &L::dimensionStyle, &L::setDimensionStyle>(),         0,   Opt::Optional, &Context::dimstyles, "Standard"},
    {71,  Kind::Int,    member<L, &L::hasArrowHead, &L::setHasArrowHead>(),             1,   Opt::Required},
    {72,  Kind::Int,    member<L, &L::isSplined, &L::setSplined>(),                     0,   Opt::Optional},
    {73,  Kind::Int,    member<L, &L::annoType, &L::setAnnoType>(),                     3,   Opt::Optional},
    {74,  Kind::Int,    member<L, &L::hookLineDirection, &L::setHookLineDirection>(),   0,   Opt::Optional},
    {75,  Kind::Int,    member<L, &L::hasHookLine, &L::setHasHookLine>(),               0,   Opt::Optional},
    {40,  Kind::Real,   member<L, &L::annoHeight, &L::setAnnoHeight>(),                 0,   Opt::Optional},
    {41,  Kind::Real,   member<L, &L::annoWidth, &L::setAnnoWidth>(),                   0,   Opt::Optional},
};
constexpr Field<L> kLeaderTail[] = {
    {210, Kind::Normal, member<L, &L::normal, &L::setNormal>()},
};
// clang-format on

std::vector<OdGePoint3d> verticesOf(const L* l) {
  std::vector<OdGePoint3d> out;
  for (unsigned i = 0; i < l->numVerts(); ++i) out.push_back(l->vertexAt(i));
  return out;
}

bool sameVertices(const std::vector<OdGePoint3d>& a, const std::vector<OdGePoint3d>& b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](const auto& x, const auto& y) { return same(x, y); });
}

bool isVertexCode(int code) { return code == 10 || code == 20 || code == 30; }

// The vertex count (76) and the vertices. An edit that keeps the count
// rewrites only the coordinates that changed; another count writes the
// vertices anew.
void vertexFields(Fields<L>& f) {
  RecordIO& io = f.io();
  L* l = f.object();
  Record& r = io.record();
  std::vector<OdGePoint3d> now;
  bool changed = false;
  if (!io.reading()) {
    now = verticesOf(l);
    changed = io.mode() == RecordIO::Create || !sameVertices(now, verticesOf(f.before()));
  }
  if (io.reading()) {
    // 76 tells the count; the vertices that are there count.
  } else if (changed && (io.mode() == RecordIO::Create || now.size() != f.before()->numVerts())) {
    io.putInteger(76, qint64(now.size()));
  } else {
    io.skip(76);
  }
  const int first = io.find(10);
  int last = first;
  if (first >= 0)
    for (int i = first; i < r.size() && isVertexCode(r.at(i).code()); ++i) last = i;
  // The tags of each vertex: the index of its 10, 20 and 30 (-1: none).
  std::vector<std::array<int, 3>> tags;
  for (int i = first; i >= 0 && i <= last; ++i) {
    const int axis = r.at(i).code() / 10 - 1;
    if (axis == 0) tags.push_back({i, -1, -1});
    else if (!tags.empty()) tags.back()[size_t(axis)] = i;
  }
  if (io.reading()) {
    for (const auto& t : tags) {
      OdGePoint3d p;
      for (int axis = 0; axis < 3; ++axis)
        if (t[size_t(axis)] >= 0) p[axis] = io.realAt(t[size_t(axis)]);
      f.apply(10, [&] { l->appendVertex(p); });
    }
    const int ci = io.find(76);
    if (ci >= 0 && io.integerAt(ci) != qint64(tags.size()))
      io.warn(ci, QStringLiteral("%1 vertices announced, %2 found; the ones found are read").arg(io.integerAt(ci)).arg(tags.size()));
    return;
  }
  if (changed && tags.size() == now.size()) {
    const std::vector<OdGePoint3d> before = verticesOf(f.before());
    for (size_t k = 0; k < now.size(); ++k)
      for (int axis = 0; axis < 3; ++axis) {
        if (same(now[k][axis], before[k][axis])) continue;
        const int at = tags[k][size_t(axis)];
        if (at >= 0) {
          r.setReal(at, now[k][axis]);
        } else {
          // A coordinate the record left out: it goes after the ones before it.
          io.moveTo((axis == 2 && tags[k][1] >= 0 ? tags[k][1] : tags[k][0]) + 1);
          r.setReal(io.insertTag(10 * (axis + 1)), now[k][axis]);
          return vertexFields(f);  // the indices moved: look again
        }
      }
    io.moveTo(last + 1);
  } else if (changed) {
    if (first >= 0) {
      io.removeAt(first, last - first + 1);
      io.moveTo(first);
    }
    for (const OdGePoint3d& p : now) {
      r.setReal(io.insertTag(10), p.x);
      r.setReal(io.insertTag(20), p.y);
      r.setReal(io.insertTag(30), p.z);
    }
  } else if (last >= 0) {
    io.moveTo(last + 1);
  }
}

// The annotation (340), by handle: it may come later in the file.
void annotationField(Fields<L>& f) {
  RecordIO& io = f.io();
  L* l = f.object();
  if (io.reading()) {
    const quint64 h = io.handle(340);
    if (h) f.apply(340, [&] { l->setAnnotationHandle(OdDbHandle(h)); });
  } else if (!(l->annotationHandle() == f.before()->annotationHandle())) {
    if (l->annotationHandle().isNull()) io.remove(340);
    else io.putHandle(340, l->annotationHandle().value());
  } else {
    io.skip(340);
  }
}

// An optional direction (211, 213, 11): absent, the object keeps its own.
template <class T, OdGeVector3d (T::*Get)() const, void (T::*Set)(const OdGeVector3d&)>
void directionField(Fields<T>& f, int code) {
  RecordIO& io = f.io();
  if (io.reading()) {
    if (!io.has(code)) return;
    const OdGePoint3d p = io.point(code);
    f.apply(code, [&] { (f.object()->*Set)(OdGeVector3d(p.x, p.y, p.z)); });
  } else if (f.changed(Get, Opt::Optional)) {
    const OdGeVector3d v = (f.object()->*Get)();
    io.putPoint(code, OdGePoint3d(v.x, v.y, v.z));
  } else {
    io.skip(code, 3);
  }
}

}  // namespace

void leaderFields(Fields<L>& f) {
  f.subclass("AcDbLeader");
  mapFields(f, kLeaderHead);
  vertexFields(f);
  f.io().skip(77);  // the colour of a leader drawn by block colour
  annotationField(f);
  mapFields(f, kLeaderTail);
  directionField<L, &L::horizontalDirection, &L::setHorizontalDirection>(f, 211);
  f.io().skip(212, 3);  // the offset of a block annotation
  directionField<L, &L::annotationOffset, &L::setAnnotationOffset>(f, 213);
}

namespace {
using F = OdDbFcf;
// clang-format off
//                    code kind          member                                                     default opt            table               name
constexpr Field<F> kFcfRows[] = {
    {3,   Kind::Name,   member<F, &F::dimensionStyle, &F::setDimensionStyle>(),         0,   Opt::Optional, &Context::dimstyles, "Standard"},
    {10,  Kind::Point,  member<F, &F::location, &F::setLocation>()},
    {1,   Kind::String, member<F, &F::text, &F::setText>()},
    {210, Kind::Normal, member<F, &F::normal, &F::setNormal>()},
};
// clang-format on
}  // namespace

void fcfFields(Fields<F>& f) {
  f.subclass("AcDbFcf");
  mapFields(f, kFcfRows);
  directionField<F, &F::direction, &F::setDirection>(f, 11);
}

}  // namespace OdDxf::mapping
