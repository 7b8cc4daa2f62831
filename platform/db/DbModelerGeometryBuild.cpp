// Building the body of a solid primitive from its history parameters, as
// modeller data in the form (SAT text or SAB binary) and version of the
// data the solid already has, and reading SAB back as SAT-like records.
#include "DbModelerGeometry.h"
#include <QCoreApplication>
#include <QtEndian>
#include <cmath>
#include <map>
#include <optional>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("OdDbAcis", text); }

// SAB tags.
enum : char {
  kTagInt = 0x04, kTagDouble = 0x06, kTagStr = 0x07, kTagTrue = 0x0A, kTagFalse = 0x0B, kTagPtr = 0x0C,
  kTagType = 0x0D, kTagTypePart = 0x0E, kTagSubOpen = 0x0F, kTagSubClose = 0x10, kTagEnd = 0x11,
  kTagLiteral = 0x12, kTagLocation = 0x13, kTagDirection = 0x14, kTagEnum = 0x15, kTagDouble2 = 0x17
};

// The parts of existing data that a rebuilt body keeps: the header (with
// version and product), the ASM header record when there is one, and the
// end marker.
struct Frame {
  bool binary = false;
  int version = 0;
  QByteArray head;       // header bytes / lines, up to the first record
  QByteArray asmHeader;  // the asmheader record as stored, or empty
  QByteArray tail;       // end marker as stored
};

qint32 le32(QByteArrayView b, qsizetype at) { return qFromLittleEndian<qint32>(b.data() + at); }

// Walks one SAB token at `at`; false at a tag it does not know or past the end.
bool skipSabToken(QByteArrayView b, qsizetype& at) {
  if (at >= b.size()) return false;
  const char tag = b[at++];
  auto need = [&](qsizetype n) { return at + n <= b.size(); };
  switch (tag) {
    case kTagInt: case kTagPtr: case kTagEnum:
      if (!need(4)) return false;
      at += 4;
      return true;
    case kTagDouble: case kTagDouble2:
      if (!need(8)) return false;
      at += 8;
      return true;
    case kTagStr: case kTagType: case kTagTypePart:
      if (!need(1)) return false;
      at += 1 + static_cast<unsigned char>(b[at]);
      return at <= b.size();
    case kTagLiteral: {
      if (!need(4)) return false;
      const qint32 n = le32(b, at);
      at += 4 + n;
      return n >= 0 && at <= b.size();
    }
    case kTagLocation: case kTagDirection:
      if (!need(24)) return false;
      at += 24;
      return true;
    case kTagTrue: case kTagFalse: case kTagSubOpen: case kTagSubClose: case kTagEnd:
      return true;
    default:
      return false;
  }
}

// The SAB header: signature, four numbers, three strings, three numbers.
std::optional<qsizetype> sabHeaderEnd(QByteArrayView b, int& version) {
  if (!b.startsWith("ACIS BinaryFile") && !b.startsWith("ASM BinaryFile4")) return std::nullopt;
  qsizetype at = 15;
  if (b.size() < at + 16) return std::nullopt;
  version = le32(b, at);
  at += 16;
  for (int i = 0; i < 6; ++i)
    if (!skipSabToken(b, at)) return std::nullopt;
  return at;
}

// Reads the type name of the record at `at` ("plane-surface"), moving past it.
std::optional<QByteArray> sabTypeName(QByteArrayView b, qsizetype& at) {
  QByteArray name;
  while (at < b.size() && (b[at] == kTagTypePart || b[at] == kTagType)) {
    const bool last = b[at] == kTagType;
    if (at + 1 >= b.size()) return std::nullopt;
    const int n = static_cast<unsigned char>(b[at + 1]);
    if (at + 2 + n > b.size()) return std::nullopt;
    if (!name.isEmpty()) name += '-';
    name += QByteArray(b.data() + at + 2, n);
    at += 2 + n;
    if (last) return name;
  }
  return std::nullopt;
}

bool frameOf(const OdDbAcisData& data, Frame& f, QString* why) {
  auto fail = [&](const QString& text) {
    if (why) *why = text;
    return false;
  };
  const QString damaged = tr("The modeller data is damaged or cut off.");
  if (data.isEmpty()) return fail(tr("The object has no modeller data."));
  if (!data.sat.isEmpty()) {
    const QByteArray& t = data.sat;
    qsizetype pos = 0;
    for (int line = 0; line < 3; ++line) {
      const qsizetype nl = t.indexOf('\n', pos);
      if (nl < 0) return fail(damaged);
      pos = nl + 1;
    }
    f.head = t.left(pos);
    bool ok = false;
    f.version = t.left(t.indexOf('\n')).trimmed().split(' ').value(0).toInt(&ok);
    if (!ok) return fail(damaged);
    if (t.mid(pos).startsWith("asmheader")) {
      const qsizetype end = t.indexOf('\n', pos);
      if (end < 0) return fail(damaged);
      f.asmHeader = t.mid(pos, end + 1 - pos);
    }
    f.tail = t.contains("End-of-ASM-data") ? "End-of-ASM-data \n" : "End-of-ACIS-data \n";
    return true;
  }
  const QByteArrayView b = data.sab;
  f.binary = true;
  const auto head = sabHeaderEnd(b, f.version);
  if (!head) return fail(damaged);
  f.head = QByteArray(b.data(), *head);
  qsizetype at = *head;
  const qsizetype recordStart = at;
  const auto name = sabTypeName(b, at);
  if (!name) return fail(damaged);
  if (*name == "asmheader") {
    while (at < b.size() && b[at] != kTagEnd)
      if (!skipSabToken(b, at)) return fail(damaged);
    if (at >= b.size()) return fail(damaged);
    f.asmHeader = QByteArray(b.data() + recordStart, at + 1 - recordStart);
  }
  const char* marker = b.indexOf(QByteArrayView("\x0e\x03" "ASM")) >= 0 ? "\x0e\x03" "End\x0e\x02of\x0e\x03" "ASM\x0d\x04" "data"
                                                                       : "\x0e\x03" "End\x0e\x02of\x0e\x04" "ACIS\x0d\x04" "data";
  f.tail = QByteArray(marker);
  return true;
}

// Writes records in SAT or SAB form; fields are typed so that each form
// gets its own spelling.
class AcisWriter {
 public:
  explicit AcisWriter(bool binary) : m_binary(binary) {}
  const QByteArray& bytes() const { return m_out; }

  // Starts a record: its type, attribute pointer, the number every entity
  // carries from version 7.0 on, and (when the kind has one) the pattern
  // pointer.
  void begin(const char* type, bool pattern = true) {
    if (m_binary) {
      const QList<QByteArray> parts = QByteArray(type).split('-');
      for (qsizetype i = 0; i < parts.size(); ++i) {
        m_out += i + 1 < parts.size() ? kTagTypePart : kTagType;
        m_out += char(parts[i].size());
        m_out += parts[i];
      }
    } else {
      m_out += type;
    }
    ptr(-1);
    integer(-1);
    if (pattern) ptr(-1);
  }
  void ptr(int i) {
    if (m_binary) appendInt(kTagPtr, i);
    else m_out += " $" + QByteArray::number(i);
  }
  // A number that SAT leaves out when satToo is false.
  void integer(int v, bool satToo = true) {
    if (m_binary) appendInt(kTagInt, v);
    else if (satToo) m_out += ' ' + QByteArray::number(v);
  }
  void real(double v) {
    if (m_binary) {
      m_out += kTagDouble;
      appendDouble(v);
    } else {
      m_out += ' ' + QByteArray::number(v, 'g', 17);
    }
  }
  void location(const OdGePoint3d& p) { triple(kTagLocation, p.x, p.y, p.z); }
  void direction(const OdGeVector3d& v) { triple(kTagDirection, v.x, v.y, v.z); }
  // A two-valued word: SAB stores the first spelling as its "true" tag.
  void word(bool first, const char* firstWord, const char* secondWord) {
    if (m_binary) m_out += first ? kTagTrue : kTagFalse;
    else m_out += QByteArray(" ") + (first ? firstWord : secondWord);
  }
  void infinite() { word(false, "F", "I"); }
  void string(QByteArrayView s) {
    if (m_binary) {
      m_out += kTagStr;
      m_out += char(s.size());
      m_out += s;
    } else {
      m_out += " @" + QByteArray::number(s.size()) + ' ';
      m_out += s;
    }
  }
  void end() {
    if (m_binary) m_out += kTagEnd;
    else m_out += " #\n";
  }

 private:
  void appendInt(char tag, qint32 v) {
    m_out += tag;
    char b[4];
    qToLittleEndian(v, b);
    m_out.append(b, 4);
  }
  void appendDouble(double v) {
    char b[8];
    qToLittleEndian(v, b);
    m_out.append(b, 8);
  }
  void triple(char tag, double x, double y, double z) {
    if (m_binary) {
      m_out += tag;
      appendDouble(x);
      appendDouble(y);
      appendDouble(z);
    } else {
      real(x);
      real(y);
      real(z);
    }
  }

  bool m_binary;
  QByteArray m_out;
};

// A closed polyhedron: points and faces as loops of point indices, counter-
// clockwise seen from outside.
struct Polyhedron {
  std::vector<OdGePoint3d> points;
  std::vector<std::vector<int>> faces;
};

// A face bounded by no edge (a whole sphere or torus).
struct ClosedSurfaceBody {
  bool sphere = true;
  double major = 0, minor = 0;  // sphere: radius in major
};

// The body record, its lump and shell, and the transform placing the
// primitive's coordinates in the drawing. `first` is the index of the body.
void writeFrameRecords(AcisWriter& w, int first, int firstFace, const OdGeMatrix3d& m) {
  const int body = first, lump = first + 1, shell = first + 2, transform = first + 3;
  w.begin("body");
  w.ptr(lump);
  w.ptr(-1);
  w.ptr(transform);
  w.end();
  w.begin("lump");
  w.ptr(-1);
  w.ptr(shell);
  w.ptr(body);
  w.end();
  w.begin("shell");
  w.ptr(-1);
  w.ptr(-1);
  w.ptr(firstFace);
  w.ptr(-1);
  w.ptr(lump);
  w.end();
  // Rows are the images of the axes, then the translation and the scale.
  w.begin("transform", false);
  const OdGeVector3d x(m(0, 0), m(1, 0), m(2, 0)), y(m(0, 1), m(1, 1), m(2, 1)), z(m(0, 2), m(1, 2), m(2, 2));
  const bool reflect = x.crossProduct(y).dotProduct(z) < 0;
  const bool rotate = !x.isEqualTo(OdGeVector3d::kXAxis) || !y.isEqualTo(OdGeVector3d::kYAxis * (reflect ? -1 : 1)) ||
                      !z.isEqualTo(OdGeVector3d::kZAxis);
  w.direction(x);
  w.direction(y);
  w.direction(z);
  w.direction(OdGeVector3d(m(0, 3), m(1, 3), m(2, 3)));
  w.real(1);
  w.word(rotate, "rotate", "no_rotate");
  w.word(reflect, "reflect", "no_reflect");
  w.word(false, "shear", "no_shear");
  w.end();
}

void writePolyhedron(AcisWriter& w, int first, const Polyhedron& p, const OdGeMatrix3d& m) {
  // Edges: one per unordered pair of neighbouring points, directed as the
  // first face that uses it walks it.
  struct Edge {
    int a, b;
    std::vector<int> coedges;
  };
  std::vector<Edge> edges;
  std::map<std::pair<int, int>, int> edgeOf;
  struct Coedge {
    int face, edge;
    bool reversed;
  };
  std::vector<Coedge> coedges;
  std::vector<int> faceFirstCoedge;
  for (int f = 0; f < int(p.faces.size()); ++f) {
    faceFirstCoedge.push_back(int(coedges.size()));
    const auto& loop = p.faces[size_t(f)];
    for (size_t i = 0; i < loop.size(); ++i) {
      const int a = loop[i], b = loop[(i + 1) % loop.size()];
      const auto key = std::minmax(a, b);
      auto it = edgeOf.find(key);
      if (it == edgeOf.end()) {
        it = edgeOf.emplace(key, int(edges.size())).first;
        edges.push_back({a, b, {}});
      }
      Edge& e = edges[size_t(it->second)];
      e.coedges.push_back(int(coedges.size()));
      coedges.push_back({f, it->second, e.a != a});
    }
  }
  const int nFaces = int(p.faces.size()), nCoedges = int(coedges.size()), nEdges = int(edges.size()),
            nPoints = int(p.points.size());
  // Record numbers, in writing order.
  const int faces = first + 4, loops = faces + nFaces, surfaces = loops + nFaces, coedge0 = surfaces + nFaces,
            edge0 = coedge0 + nCoedges, curves = edge0 + nEdges, vertices = curves + nEdges, points = vertices + nPoints;
  writeFrameRecords(w, first, faces, m);
  for (int f = 0; f < nFaces; ++f) {
    w.begin("face");
    w.ptr(f + 1 < nFaces ? faces + f + 1 : -1);
    w.ptr(loops + f);
    w.ptr(first + 2);
    w.ptr(-1);
    w.ptr(surfaces + f);
    w.word(false, "reversed", "forward");
    w.word(false, "double", "single");
    w.end();
  }
  for (int f = 0; f < nFaces; ++f) {
    w.begin("loop");
    w.ptr(-1);
    w.ptr(coedge0 + faceFirstCoedge[size_t(f)]);
    w.ptr(faces + f);
    w.end();
  }
  for (int f = 0; f < nFaces; ++f) {
    const auto& loop = p.faces[size_t(f)];
    const OdGePoint3d& o = p.points[size_t(loop[0])];
    // Newell's normal: the outward normal of the (planar) loop.
    OdGeVector3d n;
    for (size_t i = 0; i < loop.size(); ++i) {
      const OdGePoint3d& a = p.points[size_t(loop[i])];
      const OdGePoint3d& b = p.points[size_t(loop[(i + 1) % loop.size()])];
      n += OdGeVector3d((a.y - b.y) * (a.z + b.z), (a.z - b.z) * (a.x + b.x), (a.x - b.x) * (a.y + b.y));
    }
    w.begin("plane-surface");
    w.location(o);
    w.direction(n.normal());
    w.direction((p.points[size_t(loop[1])] - o).normal());
    w.word(false, "reverse_v", "forward_v");
    for (int i = 0; i < 4; ++i) w.infinite();
    w.end();
  }
  for (int c = 0; c < nCoedges; ++c) {
    const Coedge& ce = coedges[size_t(c)];
    const int start = faceFirstCoedge[size_t(ce.face)];
    const int size = int(p.faces[size_t(ce.face)].size());
    const int i = c - start;
    const Edge& e = edges[size_t(ce.edge)];
    const int partner = e.coedges.size() == 2 ? (e.coedges[0] == c ? e.coedges[1] : e.coedges[0]) : c;
    w.begin("coedge");
    w.ptr(coedge0 + start + (i + 1) % size);
    w.ptr(coedge0 + start + (i + size - 1) % size);
    w.ptr(coedge0 + partner);
    w.ptr(edge0 + ce.edge);
    w.word(ce.reversed, "reversed", "forward");
    w.ptr(loops + ce.face);
    w.integer(0, false);
    w.ptr(-1);
    w.end();
  }
  for (int e = 0; e < nEdges; ++e) {
    const Edge& ed = edges[size_t(e)];
    w.begin("edge");
    w.ptr(vertices + ed.a);
    w.real(0);
    w.ptr(vertices + ed.b);
    w.real(p.points[size_t(ed.a)].distanceTo(p.points[size_t(ed.b)]));
    w.ptr(coedge0 + ed.coedges[0]);
    w.ptr(curves + e);
    w.word(false, "reversed", "forward");
    w.string("unknown");
    w.end();
  }
  for (int e = 0; e < nEdges; ++e) {
    const Edge& ed = edges[size_t(e)];
    w.begin("straight-curve");
    w.location(p.points[size_t(ed.a)]);
    w.direction((p.points[size_t(ed.b)] - p.points[size_t(ed.a)]).normal());
    w.infinite();
    w.infinite();
    w.end();
  }
  for (int v = 0; v < nPoints; ++v) {
    int edge = 0;
    while (edges[size_t(edge)].a != v && edges[size_t(edge)].b != v) ++edge;
    w.begin("vertex");
    w.ptr(edge0 + edge);
    w.integer(0, false);
    w.ptr(points + v);
    w.end();
  }
  for (int v = 0; v < nPoints; ++v) {
    w.begin("point");
    w.location(p.points[size_t(v)]);
    w.end();
  }
}

// One face without edges on a sphere or torus about the origin, axis Z.
void writeClosedSurface(AcisWriter& w, int first, const ClosedSurfaceBody& s, const OdGeMatrix3d& m) {
  const int face = first + 4, surface = face + 1;
  writeFrameRecords(w, first, face, m);
  w.begin("face");
  w.ptr(-1);
  w.ptr(-1);
  w.ptr(first + 2);
  w.ptr(-1);
  w.ptr(surface);
  w.word(false, "reversed", "forward");
  w.word(false, "double", "single");
  w.end();
  if (s.sphere) {
    w.begin("sphere-surface");
    w.location(OdGePoint3d::kOrigin);
    w.real(s.major);
    w.direction(OdGeVector3d::kXAxis);
    w.direction(OdGeVector3d::kZAxis);
  } else {
    w.begin("torus-surface");
    w.location(OdGePoint3d::kOrigin);
    w.direction(OdGeVector3d::kZAxis);
    w.real(s.major);
    w.real(s.minor);
    w.direction(OdGeVector3d::kXAxis);
  }
  w.word(false, "reverse_v", "forward_v");
  for (int i = 0; i < 4; ++i) w.infinite();
  w.end();
}

// A cylinder or cone about Z: elliptical base (major along X) at -h/2, top
// at +h/2 scaled by top/base (no top face when it comes to a point).
struct ConeBody {
  double height = 0, major = 0, minor = 0, topMajor = 0;
};

void writeCone(AcisWriter& w, int first, const ConeBody& c, const OdGeMatrix3d& m) {
  const bool apex = c.topMajor == 0;
  const double ratio = c.minor / c.major, z0 = -c.height / 2, z1 = c.height / 2;
  // Records: side face, bottom face, [top face], their loops, surfaces,
  // coedges (side-bottom, bottom, [side-top, top]), edges, curves, vertices, points.
  const int nFaces = apex ? 2 : 3, nEdges = apex ? 1 : 2;
  const int faces = first + 4, loops = faces + nFaces, nLoops = apex ? 2 : 4, surfaces = loops + nLoops,
            coedges = surfaces + nFaces, edges = coedges + 2 * nEdges, curves = edges + nEdges,
            vertices = curves + nEdges, points = vertices + nEdges;
  writeFrameRecords(w, first, faces, m);
  for (int f = 0; f < nFaces; ++f) {
    w.begin("face");
    w.ptr(f + 1 < nFaces ? faces + f + 1 : -1);
    // The side face has its bottom loop first and its top loop after it.
    w.ptr(f == 0 ? loops : loops + (f == 1 ? (apex ? 1 : 2) : 3));
    w.ptr(first + 2);
    w.ptr(-1);
    w.ptr(surfaces + f);
    w.word(false, "reversed", "forward");
    w.word(false, "double", "single");
    w.end();
  }
  // Loops: side-bottom, [side-top], bottom, [top]; each of one coedge.
  struct LoopOf { int next, coedge, face; };
  std::vector<LoopOf> loopList;
  if (apex) loopList = {{-1, 0, 0}, {-1, 1, 1}};
  else loopList = {{loops + 1, 0, 0}, {-1, 2, 0}, {-1, 1, 1}, {-1, 3, 2}};
  for (const LoopOf& l : loopList) {
    w.begin("loop");
    w.ptr(l.next);
    w.ptr(coedges + l.coedge);
    w.ptr(faces + l.face);
    w.end();
  }
  // Side: the base ellipse, the half angle from the radius change over the height.
  const double slope = (c.topMajor - c.major) / c.height;
  const double angle = std::atan(slope);
  w.begin("cone-surface");
  w.location({0, 0, z0});
  w.direction(OdGeVector3d::kZAxis);
  w.direction({c.major, 0, 0});
  w.real(ratio);
  w.infinite();
  w.infinite();
  w.real(std::sin(angle));
  w.real(std::cos(angle));
  w.real(c.major);
  w.word(false, "reversed", "forward");
  for (int i = 0; i < 4; ++i) w.infinite();
  w.end();
  // Bottom and top planes, facing out.
  for (int f = 1; f < nFaces; ++f) {
    w.begin("plane-surface");
    w.location({0, 0, f == 1 ? z0 : z1});
    w.direction(f == 1 ? -OdGeVector3d::kZAxis : OdGeVector3d::kZAxis);
    w.direction(OdGeVector3d::kXAxis);
    w.word(false, "reverse_v", "forward_v");
    for (int i = 0; i < 4; ++i) w.infinite();
    w.end();
  }
  // Coedges: 0 side on the bottom edge, 1 bottom face on it, 2 side on the
  // top edge, 3 top face on it. Edges run counter-clockwise seen from +Z;
  // the bottom face and the side's top loop walk them backwards.
  struct CoedgeOf { int partner, edge; bool reversed; int loop; };
  std::vector<CoedgeOf> list = {{1, 0, false, 0}, {0, 0, true, apex ? 1 : 2}};
  if (!apex) {
    list.push_back({3, 1, true, 1});
    list.push_back({2, 1, false, 3});
  }
  for (int i = 0; i < int(list.size()); ++i) {
    w.begin("coedge");
    w.ptr(coedges + i);
    w.ptr(coedges + i);
    w.ptr(coedges + list[size_t(i)].partner);
    w.ptr(edges + list[size_t(i)].edge);
    w.word(list[size_t(i)].reversed, "reversed", "forward");
    w.ptr(loops + list[size_t(i)].loop);
    w.integer(0, false);
    w.ptr(-1);
    w.end();
  }
  for (int e = 0; e < nEdges; ++e) {
    w.begin("edge");
    w.ptr(vertices + e);
    w.real(0);
    w.ptr(vertices + e);
    w.real(Oda2PI);
    w.ptr(coedges + 2 * e);
    w.ptr(curves + e);
    w.word(false, "reversed", "forward");
    w.string("unknown");
    w.end();
  }
  for (int e = 0; e < nEdges; ++e) {
    w.begin("ellipse-curve");
    w.location({0, 0, e == 0 ? z0 : z1});
    w.direction(OdGeVector3d::kZAxis);
    w.direction({e == 0 ? c.major : c.topMajor, 0, 0});
    w.real(ratio);
    w.infinite();
    w.infinite();
    w.end();
  }
  for (int e = 0; e < nEdges; ++e) {
    w.begin("vertex");
    w.ptr(edges + e);
    w.integer(0, false);
    w.ptr(points + e);
    w.end();
  }
  for (int e = 0; e < nEdges; ++e) {
    w.begin("point");
    w.location({e == 0 ? c.major : c.topMajor, 0, e == 0 ? z0 : z1});
    w.end();
  }
}

// A regular polygon of n corners at height z: its corners lie on `radius`
// (corner type) or its sides touch it (side type).
void polygon(std::vector<OdGePoint3d>& out, int n, double radius, bool sideType, double z) {
  const double r = sideType ? radius / std::cos(OdaPI / n) : radius;
  for (int i = 0; i < n; ++i) {
    const double a = Oda2PI * i / n;
    out.emplace_back(r * std::cos(a), r * std::sin(a), z);
  }
}

}  // namespace

bool OdDbAcis::buildPrimitive(const OdDbSolidHistory& h, const OdDbAcisData& like, OdDbAcisData& out, QString* why) {
  auto fail = [&](const QString& text) {
    if (why) *why = text;
    return false;
  };
  const QString invalid = QCoreApplication::translate("errors", "Invalid input.");
  Frame frame;
  if (!frameOf(like, frame, why)) return false;
  if (frame.version < 700)
    return fail(tr("The body is stored in an old modeller format that cannot be written here."));
  Polyhedron poly;
  ClosedSurfaceBody closed;
  ConeBody cone;
  bool isClosed = false, isCone = false;
  // Every primitive stands about its origin, its height along Z centred.
  switch (h.kind) {
    case OdDbSolidHistory::kBox:
    case OdDbSolidHistory::kWedge: {
      const double l = h.value(40), wd = h.value(41), ht = h.value(42);
      if (!(l > 0 && wd > 0 && ht > 0)) return fail(invalid);
      const double x = l / 2, y = wd / 2, z = ht / 2;
      if (h.kind == OdDbSolidHistory::kBox) {
        poly.points = {{-x, -y, -z}, {x, -y, -z}, {x, y, -z}, {-x, y, -z},
                       {-x, -y, z},  {x, -y, z},  {x, y, z},  {-x, y, z}};
        poly.faces = {{0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};
      } else {
        // The top edge stands over the -X side; the slope falls to +X.
        poly.points = {{-x, -y, -z}, {x, -y, -z}, {x, y, -z}, {-x, y, -z}, {-x, -y, z}, {-x, y, z}};
        poly.faces = {{0, 3, 2, 1}, {0, 1, 4}, {3, 5, 2}, {1, 2, 5, 4}, {0, 4, 5, 3}};
      }
      break;
    }
    case OdDbSolidHistory::kPyramid: {
      const double ht = h.value(40), base = h.value(41), top = h.value(42);
      const int n = int(h.value(92));
      const bool side = h.value(280) != 0;
      if (!(ht > 0 && base > 0 && top >= 0 && n >= 3 && n <= 32)) return fail(invalid);
      polygon(poly.points, n, base, side, -ht / 2);
      std::vector<int> bottom;
      for (int i = n - 1; i >= 0; --i) bottom.push_back(i);
      poly.faces.push_back(bottom);
      if (top > 0) {
        polygon(poly.points, n, top, side, ht / 2);
        std::vector<int> up;
        for (int i = 0; i < n; ++i) {
          up.push_back(n + i);
          poly.faces.push_back({i, (i + 1) % n, n + (i + 1) % n, n + i});
        }
        poly.faces.push_back(up);
      } else {
        poly.points.emplace_back(0, 0, ht / 2);
        for (int i = 0; i < n; ++i) poly.faces.push_back({i, (i + 1) % n, n});
      }
      break;
    }
    case OdDbSolidHistory::kSphere:
      closed.major = h.value(40);
      if (!(closed.major > 0)) return fail(invalid);
      isClosed = true;
      break;
    case OdDbSolidHistory::kTorus:
      closed.sphere = false;
      closed.major = h.value(40);
      closed.minor = h.value(41);
      if (!(closed.major > 0 && closed.minor > 0)) return fail(invalid);
      if (closed.minor >= closed.major)
        return fail(tr("The tube radius must be smaller than the torus radius."));
      isClosed = true;
      break;
    case OdDbSolidHistory::kCylinder:
    case OdDbSolidHistory::kCone: {
      cone.height = h.value(40);
      cone.major = h.value(41);
      cone.minor = h.value(42, cone.major);
      cone.topMajor = h.kind == OdDbSolidHistory::kCylinder ? cone.major : h.value(43);
      if (!(cone.height > 0 && cone.major > 0 && cone.minor > 0 && cone.topMajor >= 0)) return fail(invalid);
      // A top as wide as the base is a cylinder, not a cone.
      if (h.kind == OdDbSolidHistory::kCone && std::fabs(cone.topMajor - cone.major) <= 1e-10 * cone.major)
        return fail(tr("A cone's top radius must differ from its base radius."));
      isCone = true;
      break;
    }
    case OdDbSolidHistory::kNone:
      return fail(tr("The solid has no history to build its body from."));
    default:
      return fail(tr("The solid was made from curves its history does not keep, so its body cannot be built "
                     "again. Nothing was changed."));
  }
  AcisWriter w(frame.binary);
  const int first = frame.asmHeader.isEmpty() ? 0 : 1;
  if (isClosed) writeClosedSurface(w, first, closed, h.transform);
  else if (isCone) writeCone(w, first, cone, h.transform);
  else writePolyhedron(w, first, poly, h.transform);
  QByteArray bytes = frame.head + frame.asmHeader + w.bytes() + frame.tail;
  OdDbAcisData result;
  (frame.binary ? result.sab : result.sat) = bytes;
  out = result;
  return true;
}

QByteArray OdDbAcis::sabToText(QByteArrayView b, QString* why) {
  const QString damaged = tr("The modeller data is damaged or cut off.");
  int version = 0;
  const auto head = sabHeaderEnd(b, version);
  if (!head) {
    if (why) *why = damaged;
    return {};
  }
  QByteArray out = QByteArray::number(version) + " 0 1 0\n@0 \n1 1e-06 1e-10\n";
  qsizetype at = *head;
  auto number = [&](double v) { out += ' ' + QByteArray::number(v, 'g', 17); };
  auto dbl = [&](qsizetype p) { return qFromLittleEndian<double>(b.data() + p); };
  while (at < b.size()) {
    const auto name = sabTypeName(b, at);
    if (!name) {
      if (why) *why = damaged;
      return {};
    }
    if (name->startsWith("End-of-")) return out + *name + "\n";
    out += *name;
    int field = 0;
    const bool vertex = *name == "vertex", coedge = *name == "coedge";
    while (true) {
      if (at >= b.size()) {
        if (why) *why = damaged;
        return {};
      }
      const char tag = b[at];
      const qsizetype start = at;
      if (!skipSabToken(b, at)) {
        if (why) *why = damaged;
        return {};
      }
      if (tag == kTagEnd) break;
      // Numbers only the binary form carries (a vertex's count, a coedge's
      // number before its parameter curve) are left out as SAT does.
      const bool binaryOnly = tag == kTagInt && ((vertex && field == 4) || (coedge && field == 9));
      ++field;
      if (binaryOnly) continue;
      switch (tag) {
        case kTagInt: case kTagEnum: out += ' ' + QByteArray::number(le32(b, start + 1)); break;
        case kTagPtr: out += " $" + QByteArray::number(le32(b, start + 1)); break;
        case kTagDouble: case kTagDouble2: number(dbl(start + 1)); break;
        case kTagLocation: case kTagDirection:
          for (int k = 0; k < 3; ++k) number(dbl(start + 1 + 8 * k));
          break;
        case kTagTrue: out += " reversed"; break;
        case kTagFalse: out += " forward"; break;
        case kTagSubOpen: out += " {"; break;
        case kTagSubClose: out += " }"; break;
        case kTagStr: case kTagLiteral: {
          const bool literal = tag == kTagLiteral;
          const qsizetype n = literal ? le32(b, start + 1) : static_cast<unsigned char>(b[start + 1]);
          out += " @" + QByteArray::number(n) + ' ' + QByteArray(b.data() + start + (literal ? 5 : 2), n);
          break;
        }
        default: break;
      }
    }
    out += " #\n";
  }
  return out;
}
