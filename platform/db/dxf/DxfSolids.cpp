// Solids, bodies, regions and surfaces: their modeller data (SAT lines of
// groups 1 and 3 before R2013; SAB in the data-storage section after), the
// isolines and parameters of surfaces, and a solid's history records in the
// OBJECTS section (history, evaluation graph, primitive record).
#include "DbModelerGeometry.h"
#include "DxfMapping.h"
#include <algorithm>

namespace OdDxf::mapping {

namespace {

constexpr double kDegreesPerRadian = 57.29577951308232;

// A record of a section by handle.
Record* findRecord(Context& ctx, QByteArrayView section, quint64 handle) {
  if (!ctx.file || handle == 0) return nullptr;
  Section* s = ctx.file->section(section);
  if (!s) return nullptr;
  for (Record& r : s->records)
    if (r.handle() == handle) return &r;
  return nullptr;
}

// The SAB bytes the data-storage section keeps for the entity of `handle`.
QByteArray sabOf(Context& ctx, quint64 handle) {
  if (!ctx.file || handle == 0) return {};
  Section* s = ctx.file->section("ACDSDATA");
  if (!s) return {};
  for (const Record& r : s->records) {
    const int owner = r.find(320);
    if (owner < 0 || r.at(owner).handle() != handle) continue;
    QByteArray out;
    for (int i = owner; i < r.size(); ++i)
      if (r.at(i).code() == 310) out += r.at(i).bytes();
    return out;
  }
  return {};
}

// Reads the SAT lines: group 1 starts a line, group 3 continues it.
QByteArray readSat(const RecordIO& io) {
  QByteArray sat;
  const Record& r = io.record();
  int i1 = io.find(1), i3 = io.find(3);
  bool first = true;
  while (i1 >= 0 || i3 >= 0) {
    const bool startLine = i3 < 0 || (i1 >= 0 && i1 < i3);
    const int i = startLine ? i1 : i3;
    if (startLine && !first) sat += '\n';
    sat += OdDbAcis::decodeLine(r.at(i).raw());
    first = false;
    if (startLine) i1 = io.find(1, i + 1);
    else i3 = io.find(3, i + 1);
  }
  if (!sat.isEmpty()) sat += '\n';
  return sat;
}

// Replaces the SAT lines of the record with `sat` (lines of at most 255
// characters; longer ones continue in group 3).
void writeSat(RecordIO& io, const QByteArray& sat) {
  std::vector<int> old;
  for (int i = io.find(1); i >= 0; i = io.find(1, i + 1)) old.push_back(i);
  for (int i = io.find(3); i >= 0; i = io.find(3, i + 1)) old.push_back(i);
  std::sort(old.begin(), old.end());
  for (auto it = old.rbegin(); it != old.rend(); ++it) io.removeAt(*it, 1);
  if (!old.empty()) io.moveTo(old.front());
  Record& r = io.record();
  for (const QByteArray& line : sat.split('\n')) {
    if (line.isEmpty()) continue;
    const QByteArray enc = OdDbAcis::encodeLine(line);
    for (qsizetype at = 0; at < enc.size(); at += 255) {
      qsizetype n = qMin<qsizetype>(255, enc.size() - at);
      // Keep a caret pair together.
      if (n == 255 && enc[at + n - 1] == '^') --n;
      r.setRaw(io.insertTag(at == 0 ? 1 : 3), enc.mid(at, n));
      at -= 255 - n;
    }
  }
}

void acisFields(RecordIO& io, OdDbModelerEntity* obj, const OdDbModelerEntity* before) {
  io.subclass("AcDbModelerGeometry");
  if (io.reading()) {
    OdDbAcisData data;
    if (io.integer(290, 0) == 1) data.sab = sabOf(io.ctx(), io.record().handle());
    else data.sat = readSat(io);
    obj->setAcisData(data);
    return;
  }
  // Only SAT text is written back; binary data stays as the file has it.
  if (io.mode() == RecordIO::Patch && !(obj->acisData() == before->acisData()) && !obj->acisData().sat.isEmpty())
    writeSat(io, obj->acisData().sat);
}

// The transform of a history node: codes 40..55 row by row; the DXF form
// of 50..55 is the number in degrees (those codes are angles in DXF).
void readTransform(const Record& r, int from, OdGeMatrix3d& m) {
  for (int i = from; i < r.size(); ++i) {
    const int c = r.at(i).code();
    if (c < 40 || c > 55) continue;
    bool ok = false;
    double v = r.at(i).real(&ok);
    if (!ok) continue;
    if (c >= 50) v /= kDegreesPerRadian;
    m((c - 40) / 4, (c - 40) % 4) = v;
    if (c == 55) break;
  }
}

int markerIndex(const Record& r, QByteArrayView marker, int from = 0) {
  for (int i = from; i < r.size(); ++i)
    if (r.at(i).code() == 100 && r.at(i).trimmed() == marker) return i;
  return -1;
}

OdDbSolidHistory readHistory(Context& ctx, quint64 historyHandle) {
  OdDbSolidHistory h;
  const Record* history = findRecord(ctx, "OBJECTS", historyHandle);
  if (!history) return h;
  const int g = history->find(360);
  const Record* graph = g >= 0 ? findRecord(ctx, "OBJECTS", history->at(g).handle()) : nullptr;
  if (!graph) return h;
  for (int i = graph->find(360); i >= 0; i = graph->find(360, i + 1)) {
    const Record* node = findRecord(ctx, "OBJECTS", graph->at(i).handle());
    if (!node) continue;
    const OdDbSolidHistory::Kind kind = OdDbSolidHistory::kindOfRecord(node->type());
    if (kind == OdDbSolidHistory::kNone) continue;
    h.kind = kind;
    h.node = node->handle();
    const int n = markerIndex(*node, "AcDbShHistoryNode");
    if (n >= 0) readTransform(*node, n + 1, h.transform);
    const int p = markerIndex(*node, "AcDbShPrimitive");
    for (int k = p < 0 ? node->size() : p + 1; k < node->size(); ++k) {
      const Tag& t = node->at(k);
      const int c = t.code();
      if (c == 100 || c == 310 || (c >= 1000)) continue;
      bool ok = false;
      const ValueType type = t.type();
      if (type != ValueType::Double && type != ValueType::Int16 && type != ValueType::Int32 && type != ValueType::Bool)
        continue;
      const double v = type == ValueType::Double ? t.real(&ok) : double(t.integer(&ok));
      if (ok) h.values.emplace_back(c, v);
    }
    break;
  }
  return h;
}

bool sameTransform(const OdGeMatrix3d& a, const OdGeMatrix3d& b) {
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 4; ++c)
      if (!same(a(r, c), b(r, c))) return false;
  return true;
}

// Writes a changed placement into the primitive record.
void patchHistory(Context& ctx, const OdDbSolidHistory& h) {
  Record* node = findRecord(ctx, "OBJECTS", h.node);
  if (!node) return;
  const int n = markerIndex(*node, "AcDbShHistoryNode");
  if (n < 0) return;
  for (int i = n + 1; i < node->size(); ++i) {
    const int c = node->at(i).code();
    if (c < 40 || c > 55) continue;
    double v = h.transform((c - 40) / 4, (c - 40) % 4);
    if (c >= 50) v *= kDegreesPerRadian;
    bool ok = false;
    if (node->at(i).real(&ok) != v || !ok) node->setReal(i, v);
    if (c == 55) break;
  }
}

}  // namespace

void solidFields(Fields<OdDb3dSolid>& f) {
  RecordIO& io = f.io();
  acisFields(io, f.object(), f.before());
  if (!io.supports(1021)) return;  // history records came with R2007
  io.subclass("AcDb3dSolid");
  if (f.reading()) {
    const quint64 h = io.handle(350);
    if (h) f.object()->setHistory(readHistory(io.ctx(), h));
    return;
  }
  const OdDbSolidHistory& now = f.object()->history();
  if (io.mode() == RecordIO::Patch && now.node && !sameTransform(now.transform, f.before()->history().transform))
    patchHistory(io.ctx(), now);
}

void bodyFields(Fields<OdDbBody>& f) { acisFields(f.io(), f.object(), f.before()); }
void regionFields(Fields<OdDbRegion>& f) { acisFields(f.io(), f.object(), f.before()); }

void surfaceFields(Fields<OdDbSurface>& f) {
  acisFields(f.io(), f.object(), f.before());
  f.subclass("AcDbSurface");
  f.integer(71, &OdDbSurface::uIsolines, &OdDbSurface::setUIsolines);
  f.integer(72, &OdDbSurface::vIsolines, &OdDbSurface::setVIsolines);
}

namespace {
// The sweep options of extruded and swept surfaces (read only: they are
// never edited, so they are never written).
OdDbSweepOptions readSweepOptions(const RecordIO& io) {
  OdDbSweepOptions o;
  o.draftAngle = io.real(42, 0);
  o.twistAngle = io.real(45, 0);
  o.scaleFactor = io.real(48, 1);
  o.alignAngle = io.real(49, 0);
  o.bank = io.integer(293, 0) != 0;
  return o;
}
}  // namespace

void extrudedSurfaceFields(Fields<OdDbExtrudedSurface>& f) {
  Fields<OdDbSurface> base(f.io(), f.object(), f.before());
  surfaceFields(base);
  if (!f.reading()) return;
  f.subclass("AcDbExtrudedSurface");
  const OdGePoint3d v = f.io().point(10);
  f.object()->setSweepVector(v.asVector());
  f.object()->setOptions(readSweepOptions(f.io()));
}

void revolvedSurfaceFields(Fields<OdDbRevolvedSurface>& f) {
  Fields<OdDbSurface> base(f.io(), f.object(), f.before());
  surfaceFields(base);
  if (!f.reading()) return;
  f.subclass("AcDbRevolvedSurface");
  f.object()->setAxisPoint(f.io().point(10));
  f.object()->setAxisVector(f.io().point(11, OdGePoint3d(0, 0, 1)).asVector());
  f.object()->setRevolveAngle(f.io().real(40, 0));
}

void sweptSurfaceFields(Fields<OdDbSweptSurface>& f) {
  Fields<OdDbSurface> base(f.io(), f.object(), f.before());
  surfaceFields(base);
  if (!f.reading()) return;
  f.subclass("AcDbSweptSurface");
  f.object()->setOptions(readSweepOptions(f.io()));
}

void loftedSurfaceFields(Fields<OdDbLoftedSurface>& f) {
  Fields<OdDbSurface> base(f.io(), f.object(), f.before());
  surfaceFields(base);
  if (!f.reading()) return;
  f.subclass("AcDbLoftedSurface");
  RecordIO& io = f.io();
  // Each cross section is kept as a pair of 90 groups (class, size) and its data.
  int pairs = 0;
  for (int i = io.find(90); i >= 0; i = io.find(90, i + 1)) ++pairs;
  f.object()->setCurveCounts(pairs / 2, 0);
  f.object()->setNormalOption(int(io.integer(70, 0)));
  f.object()->setClosed(io.integer(294, 0) != 0);
}

}  // namespace OdDxf::mapping
