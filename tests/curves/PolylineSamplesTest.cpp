// Length and area of the lightweight polylines of real drawings, read from
// the sample files with a small tag scanner and checked against ezdxf's
// reading of the same files (its arcs from bulges, the area by Green's
// theorem along them).
#include "ZqTestSupport.h"
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <map>

namespace {

struct SampleVertex {
  double x = 0, y = 0, bulge = 0, start = 0, end = 0;
};

struct SamplePolyline {
  QString handle;
  std::vector<SampleVertex> vertices;
  int flags = 0;
  double elevation = 0, constantWidth = 0;
  OdGeVector3d normal{0, 0, 1};
};

// Every LWPOLYLINE record of an ASCII DXF file: group code and value lines
// in pairs, a record running from its 0 tag to the next.
std::vector<SamplePolyline> scanLwPolylines(const QString& path) {
  std::vector<SamplePolyline> out;
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return out;
  const QList<QByteArray> lines = f.readAll().split('\n');
  SamplePolyline* current = nullptr;
  for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
    bool ok = false;
    const int code = lines[i].trimmed().toInt(&ok);
    if (!ok) break;
    const QByteArray value = lines[i + 1].trimmed();
    if (code == 0) {
      current = nullptr;
      if (value == "LWPOLYLINE") current = &out.emplace_back();
      continue;
    }
    if (!current) continue;
    const double d = value.toDouble();
    switch (code) {
      case 5: current->handle = QString::fromLatin1(value); break;
      case 10: current->vertices.emplace_back().x = d; break;
      case 20: if (!current->vertices.empty()) current->vertices.back().y = d; break;
      case 42: if (!current->vertices.empty()) current->vertices.back().bulge = d; break;
      case 40: if (!current->vertices.empty()) current->vertices.back().start = d; break;
      case 41: if (!current->vertices.empty()) current->vertices.back().end = d; break;
      case 43: current->constantWidth = d; break;
      case 70: current->flags = value.toInt(); break;
      case 38: current->elevation = d; break;
      case 210: current->normal.x = d; break;
      case 220: current->normal.y = d; break;
      case 230: current->normal.z = d; break;
      default: break;
    }
  }
  return out;
}

const char* const kReference = R"(
import sys, json, math
from ezdxf import recover
from ezdxf.math import bulge_to_arc
doc, auditor = recover.readfile(sys.argv[1])
out = {}
for e in doc.entitydb.values():
    if e.dxftype() != 'LWPOLYLINE' or not e.is_alive:
        continue
    pts = e.get_points('xyb')
    n = len(pts)
    closed = bool(e.closed)
    length = 0.0
    twice = 0.0
    for i in range(n if closed else max(n - 1, 0)):
        x0, y0, b = pts[i]
        x1, y1, _ = pts[(i + 1) % n]
        if abs(b) > 1e-12 and math.hypot(x1 - x0, y1 - y0) > 1e-10:
            c, sa, ea, r = bulge_to_arc((x0, y0), (x1, y1), b)
            cx, cy = float(c[0]), float(c[1])
            sweep = (ea - sa) % math.tau
            length += r * sweep
            z = sa + sweep
            part = r * cx * (math.sin(z) - math.sin(sa)) - r * cy * (math.cos(z) - math.cos(sa)) + r * r * sweep
            sx, sy = cx + r * math.cos(sa), cy + r * math.sin(sa)
            if math.hypot(sx - x0, sy - y0) > math.hypot(sx - x1, sy - y1):
                part = -part
            twice += part
        else:
            length += math.hypot(x1 - x0, y1 - y0)
            twice += x0 * y1 - x1 * y0
    if not closed and n > 1:
        (x0, y0, _), (x1, y1, _) = pts[n - 1], pts[0]
        twice += x0 * y1 - x1 * y0
    out[e.dxf.handle] = {"n": n, "closed": closed, "length": length, "area": abs(twice) / 2}
print(json.dumps(out))
)";

class PolylineSamplesTest : public ZqDrawingTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(PolylineSamplesTest, LengthAndAreaAgreeWithEzdxf) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + GetParam();
  const std::vector<SamplePolyline> polylines = scanLwPolylines(path);
  ASSERT_FALSE(polylines.empty()) << path.toStdString();
  int exitCode = -1;
  const QString json = zqRunPython(kReference, {path}, &exitCode);
  ASSERT_EQ(exitCode, 0);
  const QJsonObject reference = QJsonDocument::fromJson(json.toUtf8()).object();
  // ezdxf may also list 2D polylines it converted on loading an old file;
  // each record of the file must be among its entities.
  ASSERT_GE(reference.size(), qsizetype(polylines.size()));
  for (const SamplePolyline& s : polylines) {
    SCOPED_TRACE(s.handle.toStdString());
    const QJsonObject ref = reference.value(s.handle).toObject();
    ASSERT_FALSE(ref.isEmpty());
    ASSERT_EQ(ref.value("n").toInt(), int(s.vertices.size()));
    ASSERT_EQ(ref.value("closed").toBool(), (s.flags & 1) != 0);
    OdDbPolylinePtr pl = OdDbPolyline::createObject();
    for (unsigned i = 0; i < s.vertices.size(); ++i) {
      const SampleVertex& v = s.vertices[i];
      pl->addVertexAt(i, OdGePoint2d(v.x, v.y), v.bulge, v.start, v.end);
    }
    if (s.constantWidth != 0) pl->setConstantWidth(s.constantWidth);
    pl->setClosed(s.flags & 1);
    pl->setPlinegen(s.flags & 128);
    pl->setElevation(s.elevation);
    pl->setNormal(s.normal);
    const OdDbObjectId id = addToModelSpace(pl.get());
    pl.release();
    const double length = ref.value("length").toDouble(), area = ref.value("area").toDouble();
    EXPECT_NEAR(get(id, "Geometry", "Length").GetDouble(), length, 1e-9 * std::max(1.0, length));
    EXPECT_NEAR(get(id, "Geometry", "Area", CZqVariant(1111.0, false)).GetDouble(), area, 1e-9 * std::max(1.0, area));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Samples, PolylineSamplesTest,
    ::testing::Values("ezdxf__examples_dxf__VP4.dxf", "ezdxf__examples_dxf__text.dxf",
                      "ezdxf__examples_dxf__uncommon.dxf", "libredwg__test__test-data__2000__TS1.dxf",
                      "libredwg__test__test-data__2000__entities-2d.dxf", "libredwg__test__test-data__2004__Surface.dxf",
                      "libredwg__test__test-data__2007__Donut.dxf", "libredwg__test__test-data__2013__gh109_1.dxf",
                      "libredwg__test__test-data__example_2000.dxf", "libredwg__test__test-data__example_r14.dxf",
                      "netDxf__TestDxfDocument__sample.dxf"),
    [](const auto& info) {
      std::string name = info.param;
      for (char& ch : name)
        if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
      return name;
    });

}  // namespace
