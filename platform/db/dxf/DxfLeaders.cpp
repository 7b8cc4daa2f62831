// LEADER: its flags and sizes as a table, the vertices (76 and the repeated
// 10/20/30) as code, then the annotation, the normal and the directions.
// TOLERANCE: the style, position, frame text, normal and direction.
// MULTILEADER: values in its context data block (300 "CONTEXT_DATA{" to
// 301 "}") and after it, each found by its group code in its region and
// patched in place, so that every group the platform does not model stays
// as it is; the leader lines are read from the block's LEADER_LINE groups.
#include "DbPlainClasses.h"
#include "DxfFields.h"
#include "DbMLeader.h"

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


namespace {

using M = OdDbMLeader;

// Where a multileader value lives: the head of the context data (before
// its first LEADER{ group) or the entity's groups after the context data.
enum class Where { Context, Entity };
enum class MKind { Real, Int, Color, Handle, Text };
struct MField {
  Where where;
  int code;
  MKind kind;
  Access<M> access;
};

// Colours as the record keeps them: the method in the high byte (0xC0 by
// layer, 0xC1 by block, 0xC2 true colour, 0xC3 an index), the value below.
qint64 rawColor(const OdCmColor& c) {
  if (c.isByLayer()) return qint32(0xC0000000u);
  if (c.isByBlock()) return qint32(0xC1000000u);
  if (c.isByColor()) return qint32(0xC2000000u | (quint32(c.red()) << 16) | (quint32(c.green()) << 8) | c.blue());
  return qint32(0xC3000000u | quint32(c.colorIndex() & 0xFF));
}
OdCmColor colorOfRaw(qint64 raw) {
  const quint32 v = quint32(raw);
  switch (v >> 24) {
    case 0xC0: return OdCmColor::byLayer();
    case 0xC2: return OdCmColor::fromRGB(uint8_t(v >> 16), uint8_t(v >> 8), uint8_t(v));
    case 0xC3: return OdCmColor::fromIndex(int(v & 0xFF));
    default: return OdCmColor::byBlock();
  }
}

template <OdCmColor (M::*Get)() const, void (M::*Set)(const OdCmColor&)>
constexpr Access<M> color() {
  return {[](const M* o) { return FieldValue(double(rawColor((o->*Get)()))); },
          [](M* o, const FieldValue& v) { (o->*Set)(colorOfRaw(qint64(std::get<double>(v)))); }};
}

// clang-format off
//                                  where           code kind          member
const MField kMLeaderFields[] = {
    {Where::Context, 40,  MKind::Real,   member<M, &M::scale, &M::setScale>()},
    {Where::Context, 41,  MKind::Real,   member<M, &M::textHeight, &M::setTextHeight>()},
    {Where::Context, 145, MKind::Real,   member<M, &M::landingGap, &M::setLandingGap>()},
    {Where::Context, 174, MKind::Int,    member<M, &M::leftAttachment, &M::setLeftAttachment>()},
    {Where::Context, 175, MKind::Int,    member<M, &M::rightAttachment, &M::setRightAttachment>()},
    {Where::Context, 304, MKind::Text,   member<M, &M::contents, &M::setContents>()},
    {Where::Context, 340, MKind::Handle, member<M, &M::textStyleId, &M::setTextStyleId>()},
    {Where::Context, 42,  MKind::Real,   member<M, &M::textRotation, &M::setTextRotation>()},
    {Where::Context, 43,  MKind::Real,   member<M, &M::textWidth, &M::setTextWidth>()},
    {Where::Context, 45,  MKind::Real,   member<M, &M::lineSpacingFactor, &M::setLineSpacingFactor>()},
    {Where::Context, 170, MKind::Int,    member<M, &M::lineSpacingStyle, &M::setLineSpacingStyle>()},
    {Where::Context, 171, MKind::Int,    member<M, &M::textJustify, &M::setTextJustify>()},
    {Where::Context, 172, MKind::Int,    member<M, &M::textFlowDirection, &M::setTextFlowDirection>()},
    {Where::Context, 292, MKind::Int,    member<M, &M::backgroundMask, &M::setBackgroundMask>()},
    {Where::Context, 273, MKind::Int,    member<M, &M::topAttachment, &M::setTopAttachment>()},
    {Where::Context, 272, MKind::Int,    member<M, &M::bottomAttachment, &M::setBottomAttachment>()},
    {Where::Entity,  170, MKind::Int,    member<M, &M::leaderLineType, &M::setLeaderLineType>()},
    {Where::Entity,  91,  MKind::Color,  color<&M::leaderLineColor, &M::setLeaderLineColor>()},
    {Where::Entity,  341, MKind::Handle, member<M, &M::leaderLineTypeId, &M::setLeaderLineTypeId>()},
    {Where::Entity,  171, MKind::Int,    member<M, &M::lineWeight, &M::setLineWeight>()},
    {Where::Entity,  290, MKind::Int,    member<M, &M::landingEnabled, &M::setLandingEnabled>()},
    {Where::Entity,  291, MKind::Int,    member<M, &M::doglegEnabled, &M::setDoglegEnabled>()},
    {Where::Entity,  41,  MKind::Real,   member<M, &M::doglegLength, &M::setDoglegLength>()},
    {Where::Entity,  342, MKind::Handle, member<M, &M::arrowSymbolId, &M::setArrowSymbolId>()},
    {Where::Entity,  42,  MKind::Real,   member<M, &M::arrowSize, &M::setArrowSize>()},
    {Where::Entity,  172, MKind::Int,    member<M, &M::contentType, &M::setContentType>()},
    {Where::Entity,  292, MKind::Int,    member<M, &M::textFrame, &M::setTextFrame>()},
    {Where::Entity,  93,  MKind::Color,  color<&M::blockColor, &M::setBlockColor>()},
    {Where::Entity,  10,  MKind::Real,   member<M, &M::blockScale, &M::setBlockScale>()},
    {Where::Entity,  271, MKind::Int,    member<M, &M::textAttachmentType, &M::setTextAttachmentType>()},
    {Where::Entity,  295, MKind::Int,    member<M, &M::leaderExtension, &M::setLeaderExtension>()},
};
// clang-format on

struct Regions {
  int contextBegin = -1, contextHeadEnd = -1, contextEnd = -1, entityEnd = -1;
  bool valid() const { return contextBegin >= 0 && contextEnd > contextBegin; }
};

Regions regionsOf(const Record& r) {
  Regions g;
  for (int i = 0; i < r.size(); ++i) {
    const int c = r.at(i).code();
    if (c == 300 && g.contextBegin < 0 && r.at(i).trimmed() == "CONTEXT_DATA{") g.contextBegin = i;
    else if (c == 302 && g.contextBegin >= 0 && g.contextHeadEnd < 0) g.contextHeadEnd = i;
    else if (c == 301 && g.contextBegin >= 0 && g.contextEnd < 0) g.contextEnd = i;
    else if (c == 1001 && g.entityEnd < 0) g.entityEnd = i;
  }
  if (g.contextHeadEnd < 0 || g.contextHeadEnd > g.contextEnd) g.contextHeadEnd = g.contextEnd;
  if (g.entityEnd < 0) g.entityEnd = r.size();
  return g;
}

int findIn(const Record& r, const Regions& g, Where w, int code) {
  const int from = w == Where::Context ? g.contextBegin + 1 : g.contextEnd + 1;
  const int to = w == Where::Context ? g.contextHeadEnd : g.entityEnd;
  for (int i = from; i < to; ++i)
    if (r.at(i).code() == code) return i;
  return -1;
}

// The multileader styles the drawing's objects dictionary lists
// (ACAD_MLEADERSTYLE), by name and handle.
std::vector<M::Style> stylesOf(const Context& ctx) {
  std::vector<M::Style> out;
  const Section* objects = ctx.file ? ctx.file->section("OBJECTS") : nullptr;
  if (!objects || objects->records.isEmpty()) return out;
  auto entryOf = [](const Record& dict, const char* name) -> quint64 {
    for (int i = 1; i + 1 < dict.size(); ++i)
      if (dict.at(i).code() == 3 && dict.str(i) == QLatin1String(name)) return dict.at(i + 1).handle();
    return 0;
  };
  const quint64 h = entryOf(objects->records.first(), "ACAD_MLEADERSTYLE");
  for (const Record& r : objects->records)
    if (h && r.handle() == h) {
      forEachDictionaryEntry(r, [&](const QString& name, quint64 handle) { out.push_back({OdString(name), OdDbHandle(handle)}); });
      break;
    }
  return out;
}

void readLines(RecordIO& io, const Regions& g, M* m) {
  const Record& r = io.record();
  std::vector<std::vector<OdGePoint3d>> lines;
  bool inLine = false;
  OdGeVector3d xAxis, yAxis;
  for (int i = g.contextBegin + 1; i < g.contextEnd; ++i) {
    const int c = r.at(i).code();
    if (c == 304 && r.at(i).trimmed() == "LEADER_LINE{") {
      inLine = true;
      lines.emplace_back();
    } else if (c == 305) {
      inLine = false;
    } else if (inLine && c == 10) {
      OdGePoint3d p(io.realAt(i), 0, 0);
      if (i + 1 < g.contextEnd && r.at(i + 1).code() == 20) p.y = io.realAt(i + 1);
      if (i + 2 < g.contextEnd && r.at(i + 2).code() == 30) p.z = io.realAt(i + 2);
      lines.back().push_back(p);
    } else if (!inLine && (c == 111 || c == 112) && i + 2 < g.contextEnd) {
      (c == 111 ? xAxis : yAxis) = OdGeVector3d(io.realAt(i), io.realAt(i + 1), io.realAt(i + 2));
    }
  }
  m->setLeaderLines(lines);
  const OdGeVector3d n = xAxis.crossProduct(yAxis);
  if (!n.isZeroLength()) m->setNormal(n);
}

}  // namespace

void mleaderFields(Fields<M>& f) {
  RecordIO& io = f.io();
  Context& ctx = io.ctx();
  M* m = f.object();
  f.subclass("AcDbMLeader");
  Record& r = io.record();
  Regions g = regionsOf(r);
  if (!g.valid()) {
    if (io.reading()) io.warn(0, QStringLiteral("the multileader has no context data; its values are not read"));
    return;
  }
  const bool hasText = [&] {
    const int at = findIn(r, g, Where::Context, 290);
    return at >= 0 && io.integerAt(at) != 0;
  }();
  if (io.reading()) {
    for (const MField& row : kMLeaderFields) {
      const int at = findIn(r, g, row.where, row.code);
      if (at < 0 || (row.kind == MKind::Text && !hasText)) continue;
      FieldValue v;
      switch (row.kind) {
        case MKind::Real: v = io.realAt(at); break;
        case MKind::Int:
        case MKind::Color: v = double(io.integerAt(at)); break;
        case MKind::Text: v = OdString(r.str(at)); break;
        case MKind::Handle: {
          const quint64 h = r.at(at).handle();
          v = h ? ctx.db->getOdDbObjectId(OdDbHandle(h)) : OdDbObjectId();
          break;
        }
      }
      f.apply(row.code, [&] { row.access.set(m, v); });
    }
    readLines(io, g, m);
    m->setAvailableStyles(stylesOf(ctx));
    const int styleAt = findIn(r, g, Where::Entity, 340);
    const OdDbHandle style = styleAt >= 0 ? OdDbHandle(r.at(styleAt).handle()) : OdDbHandle();
    M::Style found{OdString(), style};
    for (const M::Style& s : m->availableStyles())
      if (s.handle == style) found = s;
    m->setStyle(found);
    if (!style.isNull() && found.name.isEmpty())
      io.warn(styleAt, QStringLiteral("the multileader style %1 is missing from the drawing").arg(style.ascii().qstring()));
    const int blockAt = findIn(r, g, Where::Entity, 344);
    if (blockAt >= 0) {
      const OdDbHandle h(r.at(blockAt).handle());
      const OdDbObjectId id = ctx.db->getOdDbObjectId(h);
      m->setBlockContentHandle(h, id);
      if (id.isNull() && !h.isNull())
        io.warn(blockAt, QStringLiteral("the multileader's block %1 is missing from the drawing").arg(h.ascii().qstring()));
    }
    return;
  }
  const M* before = f.before();
  auto put = [&](Where w, int code, auto write) {
    int at = findIn(r, g, w, code);
    if (at < 0) {
      // A value the record left out goes last in its region.
      at = w == Where::Context ? g.contextHeadEnd : g.entityEnd;
      r.insert(at, code);
      g = regionsOf(r);
    }
    write(at);
  };
  for (const MField& row : kMLeaderFields) {
    const FieldValue now = row.access.get(m);
    if (io.mode() != RecordIO::Create && now == row.access.get(before)) continue;
    if (row.kind == MKind::Text && !hasText) continue;
    put(row.where, row.code, [&](int at) {
      switch (row.kind) {
        case MKind::Real: r.setReal(at, std::get<double>(now)); break;
        case MKind::Int:
        case MKind::Color: r.setInteger(at, qint64(std::get<double>(now))); break;
        case MKind::Text: writeString(ctx, r, at, std::get<OdString>(now).qstring()); break;
        case MKind::Handle: r.setHandle(at, std::get<OdDbObjectId>(now).getHandle().value()); break;
      }
    });
  }
  if (!(m->styleHandle() == before->styleHandle()))
    put(Where::Entity, 340, [&](int at) { r.setHandle(at, m->styleHandle().value()); });
  if (!(m->blockContentHandle() == before->blockContentHandle())) {
    put(Where::Entity, 344, [&](int at) { r.setHandle(at, m->blockContentHandle().value()); });
    const int inContext = findIn(r, g, Where::Context, 341);
    if (inContext >= 0) r.setHandle(inContext, m->blockContentHandle().value());
  }
}

}  // namespace OdDxf::mapping
