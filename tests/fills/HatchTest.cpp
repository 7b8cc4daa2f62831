// Hatches: the rows of a constructed hatch in a rotated, shifted UCS; the
// filled area of every kind of boundary against closed forms; edits and
// refusals; and every hatch of the sample drawings against ezdxf's reading
// of it, written back unchanged byte for byte and edited as ezdxf reads it.
#include "ZqTestSupport.h"
#include "DbHatch.h"
#include "DxfDatabase.h"
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cmath>
#include <functional>
#include <optional>

namespace {

using H = OdDbHatch;

H::Loop polygon(std::initializer_list<OdGePoint2d> pts, int type = H::kDefault, std::initializer_list<double> bulges = {}) {
  H::Loop l;
  l.type = type | H::kPolyline;
  for (const OdGePoint2d& p : pts) l.vertices.append(p);
  for (double b : bulges) l.bulges.append(b);
  return l;
}
H::Loop square(double cx, double cy, double half) {
  return polygon({{cx - half, cy - half}, {cx + half, cy - half}, {cx + half, cy + half}, {cx - half, cy + half}});
}
H::Edge line(OdGePoint2d a, OdGePoint2d b) {
  H::Edge e;
  e.type = H::kLine;
  e.start = a;
  e.end = b;
  return e;
}
H::Edge arc(OdGePoint2d c, double r, double startDeg, double endDeg, bool ccw = true) {
  H::Edge e;
  e.type = H::kCirArc;
  e.center = c;
  e.radius = r;
  e.startAngle = startDeg * OdaPI / 180;
  e.endAngle = endDeg * OdaPI / 180;
  e.ccw = ccw;
  return e;
}
H::Loop edges(std::initializer_list<H::Edge> list, int type = H::kExternal) {
  H::Loop l;
  l.type = type;
  for (const H::Edge& e : list) l.edges.append(e);
  return l;
}

class HatchTest : public ZqDrawingTest {
 protected:
  OdDbObjectId addHatch(std::initializer_list<H::Loop> loops, H::HatchStyle style = H::kNormal) {
    OdDbHatchPtr h = OdDbHatch::createObject();
    h->setElevation(2);
    h->setPattern(H::kPreDefined, "ANSI31");
    h->setPatternScale(2);
    h->setPatternAngle(OdaPI / 6);
    h->setOriginPoint(OdGePoint2d(1, 3));
    h->setHatchStyle(style);
    for (const H::Loop& l : loops) h->appendLoop(l);
    return addToModelSpace(h.get());
  }
  std::optional<double> area(const OdDbObjectId& id) {
    const CZqVariant v = get(id, "Geometry", "Area", CZqVariant(1111.0, false));
    if (v.GetType() == CZqVariant::kVtDouble) return v.GetDouble();
    return std::nullopt;
  }
};

// The circle of radius 5 about (0, 0) with a square island of side 2.
TEST_F(HatchTest, RowsShowThePatternAndBoundaryInTheUcs) {
  useRotatedUcs();
  const OdDbObjectId id = addHatch({edges({arc({0, 0}, 5, 0, 360)}), square(1, 1, 1)});
  EXPECT_EQ(zqProviderFor(id.openObject().get())->isA()->name().toStdString(), "CZqHatchPE");
  const OdGePoint3d origin = toUcs(OdGePoint3d(1, 3, 2));
  const OdGeVector3d normal = toUcs(OdGeVector3d::kZAxis);
  const struct {
    const char *category, *row;
    double want;
  } rows[] = {
      {"Pattern", "Angle", OdaPI / 6},  {"Pattern", "Scale", 2},      {"Pattern", "Origin X", origin.x},
      {"Pattern", "Origin Y", origin.y}, {"Geometry", "Elevation", 2}, {"Geometry", "Area", 25 * OdaPI - 4},
      {"Geometry", "Normal X", normal.x}, {"Geometry", "Normal Y", normal.y}, {"Geometry", "Normal Z", normal.z},
  };
  for (const auto& r : rows) {
    const bool isArea = std::string(r.row) == "Area";
    EXPECT_NEAR(get(id, r.category, r.row, isArea ? CZqVariant(1111.0, false) : CZqVariant()).GetDouble(), r.want, 1e-9) << r.row;
  }
  EXPECT_EQ(get(id, "Pattern", "Pattern name").GetString().qstring(), "ANSI31");
  EXPECT_EQ(get(id, "Geometry", "Boundaries").GetInt32(), 2);
  const auto lines = info(id, true);
  EXPECT_EQ(infoLine(lines, "Pattern name")->text, "ANSI31");
  EXPECT_NEAR(infoLine(lines, "Area")->value.toDouble(), 25 * OdaPI - 4, 1e-9);
}

struct AreaCase {
  const char* name;
  std::vector<H::Loop> loops;
  H::HatchStyle style;
  std::optional<double> want;  // none: not computable
};

class HatchAreaTest : public HatchTest, public ::testing::WithParamInterface<AreaCase> {};

TEST_P(HatchAreaTest, AreaIsOuterMinusIslandsOrNotComputable) {
  OdDbHatchPtr h = OdDbHatch::createObject();
  h->setHatchStyle(GetParam().style);
  for (const H::Loop& l : GetParam().loops) h->appendLoop(l);
  const OdDbObjectId id = addToModelSpace(h.get());
  const std::optional<double> got = area(id);
  ASSERT_EQ(got.has_value(), GetParam().want.has_value());
  if (got) EXPECT_NEAR(*got, *GetParam().want, 1e-6 * std::max(1.0, *got));
  else EXPECT_EQ(get(id, "Geometry", "Area").GetString().qstring(), "Not computable");
}

H::Edge halfEllipse() {
  H::Edge e;
  e.type = H::kEllArc;
  e.center = {1, 1};
  e.majorAxis = {0, 4};  // a = 4 along Y, b = 2
  e.ratio = 0.5;
  e.startAngle = 0;
  e.endAngle = OdaPI;
  return e;
}
// A quarter circle of radius 3 as a rational quadratic spline.
H::Edge quarterSpline() {
  H::Edge e;
  e.type = H::kSpline;
  e.degree = 2;
  e.rational = true;
  e.knots = {0, 0, 0, 1, 1, 1};
  e.controlPoints = {{3, 0}, {3, 3}, {0, 3}};
  e.weights = {1, std::sqrt(0.5), 1};
  return e;
}

INSTANTIATE_TEST_SUITE_P(
    Boundaries, HatchAreaTest,
    ::testing::Values(
        AreaCase{"circle_minus_square", {edges({arc({0, 0}, 5, 0, 360)}), square(0, 0, 1)}, H::kNormal, 25 * OdaPI - 4},
        // The same circle drawn clockwise, and as a polyline of two half-circle bulges.
        AreaCase{"clockwise_circle", {edges({arc({0, 0}, 5, 0, 360, false)})}, H::kNormal, 25 * OdaPI},
        AreaCase{"bulge_circle", {polygon({{-5, 0}, {5, 0}}, H::kExternal, {1, 1})}, H::kNormal, 25 * OdaPI},
        // Half an ellipse (from the major axis end round to the other) closed by its axis.
        AreaCase{"half_ellipse", {edges({halfEllipse(), line({1, -3}, {1, 5})})}, H::kNormal, OdaPI * 4 * 2 / 2},
        AreaCase{"quarter_disc_spline", {edges({line({0, 0}, {3, 0}), quarterSpline(), line({0, 3}, {0, 0})})}, H::kNormal,
                 9 * OdaPI / 4},
        // Rings within rings: normal fills alternately, outer the outermost ring, ignore all.
        AreaCase{"nested_normal", {square(0, 0, 5), square(0, 0, 3), square(0, 0, 1)}, H::kNormal, 100 - 36 + 4},
        AreaCase{"nested_outer", {square(0, 0, 5), square(0, 0, 3), square(0, 0, 1)}, H::kOuter, 100 - 36},
        AreaCase{"nested_ignore", {square(0, 0, 5), square(0, 0, 3), square(0, 0, 1)}, H::kIgnore, 100},
        AreaCase{"bow_tie", {polygon({{0, 0}, {4, 4}, {4, 0}, {0, 4}})}, H::kNormal, std::nullopt},
        AreaCase{"crossing_loops", {square(0, 0, 2), square(2, 2, 2)}, H::kNormal, std::nullopt},
        AreaCase{"gap_between_edges", {edges({line({0, 0}, {4, 0}), line({4, 0}, {4, 4}), line({3, 4}, {0, 0})})},
                 H::kNormal, std::nullopt}),
    [](const auto& info) { return std::string(info.param.name); });

struct EditCase {
  const char *name, *category, *row;
  CZqVariant value;
  bool taken;
  size_t messages;
  std::function<bool(const H*)> check;  // what the edit did (taken) or kept (refused)
};

class HatchEditTest : public HatchTest, public ::testing::WithParamInterface<EditCase> {};

TEST_P(HatchEditTest, EditsChangeWhatTheyNameAndRefusalsNothing) {
  const EditCase& c = GetParam();
  const OdDbObjectId id = addHatch({square(0, 0, 5)});
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, c.category, c.row, c.value), c.taken ? 5100 : -5001);
  EXPECT_EQ(messageCount(), c.messages);
  OdDbHatchPtr h = openAs<OdDbHatch>(id);
  EXPECT_EQ(h->isModified(), c.taken);
  EXPECT_TRUE(c.check(h.get()));
}

const CZqVariant kYes(CZqVariantCollectionElement(CZqVariant(int32_t(1)), CZqVariant(int32_t(1))));
bool unchanged(const H* h) {
  return h->patternName() == OdString("ANSI31") && h->patternScale() == 2 && h->patternLines().length() == 1 &&
         std::fabs(h->patternLines()[0].offset.length() - 0.25) < 1e-12;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, HatchEditTest,
    ::testing::Values(
        // ANSI31's lines lie 0.125 apart at scale 1.
        EditCase{"scale_sizes_lines", "Pattern", "Scale", CZqVariant(4.0, true), true, 0,
                 [](const H* h) { return std::fabs(h->patternLines()[0].offset.length() - 0.5) < 1e-12; }},
        EditCase{"zero_scale_refused", "Pattern", "Scale", CZqVariant(0.0, true), false, 1, unchanged},
        EditCase{"negative_scale_refused", "Pattern", "Scale", CZqVariant(-1.0, true), false, 1, unchanged},
        EditCase{"pattern_from_library", "Pattern", "Pattern name", CZqVariant("ansi37"), true, 0,
                 [](const H* h) { return h->patternName() == OdString("ANSI37") && h->patternLines().length() == 2; }},
        EditCase{"unknown_pattern_refused", "Pattern", "Pattern name", CZqVariant("NO-SUCH"), false, 1, unchanged},
        EditCase{"solid_drops_lines", "Pattern", "Pattern name", CZqVariant("SOLID"), true, 0,
                 [](const H* h) { return h->isSolidFill() && h->patternLines().isEmpty(); }},
        // The angle turns the lines about the origin, which stays.
        EditCase{"angle_turns_lines", "Pattern", "Angle", CZqVariant(OdaPI / 2, true), true, 0,
                 [](const H* h) {
                   return std::fabs(h->patternLines()[0].angle - (OdaPI / 4 + OdaPI / 2)) < 1e-12 &&
                          h->originPoint().isEqualTo(OdGePoint2d(1, 3));
                 }},
        EditCase{"associative_without_sources_refused", "Pattern", "Associative", kYes, false, 1,
                 [](const H* h) { return !h->associative(); }}),
    [](const auto& info) { return std::string(info.param.name); });

// --- The sample drawings ----------------------------------------------------------

std::vector<std::string> samplesWithHatches() {
  std::vector<std::string> out;
  const QDir dir(QStringLiteral(ZQ_SAMPLES_DIR));
  for (const QString& n : dir.entryList({QStringLiteral("*.dxf")}, QDir::Files)) {
    QFile f(dir.filePath(n));
    static const QRegularExpression record(QStringLiteral("\\n *0\\r?\\nHATCH\\r?\\n"));
    if (f.open(QIODevice::ReadOnly) && QString::fromLatin1(f.readAll()).contains(record)) out.push_back(n.toStdString());
  }
  return out;
}

class HatchSamplesTest : public ZqDrawingTest, public ::testing::WithParamInterface<std::string> {};

// ezdxf's paths of each hatch, flattened, filled as the hatch style says.
const char* const kReferenceAreas =
    "import sys, ezdxf\n"
    "from ezdxf import path\n"
    "doc = ezdxf.readfile(sys.argv[1])\n"
    "def inside(p, poly):\n"
    "    c = False\n"
    "    for (ax, ay), (bx, by) in zip(poly, poly[1:] + poly[:1]):\n"
    "        if (ay > p[1]) != (by > p[1]) and p[0] < (bx - ax) * (p[1] - ay) / (by - ay) + ax: c = not c\n"
    "    return c\n"
    "for e in doc.entitydb.values():\n"
    "    if e.dxftype() != 'HATCH' or e.is_virtual: continue\n"
    "    polys = [[(v.x, v.y) for v in p.flattening(1e-5)] for p in path.from_hatch(e)]\n"
    "    areas = [abs(sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(q, q[1:] + q[:1]))) / 2 for q in polys]\n"
    "    total = 0\n"
    "    for i, q in enumerate(polys):\n"
    "        d = sum(1 for j, o in enumerate(polys) if j != i and areas[j] > areas[i] and inside(q[0], o))\n"
    "        s = e.dxf.hatch_style\n"
    "        total += (areas[i] if d % 2 == 0 else -areas[i]) if s == 0 else (areas[i] if d == 0 else (-areas[i] if d == 1 and s == 1 else 0))\n"
    "    print(e.dxf.handle, repr(total), repr(e.dxf.pattern_scale), e.dxf.pattern_name)\n";

TEST_P(HatchSamplesTest, ListsAgreesWithEzdxfAndRoundTrips) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + QString::fromStdString(GetParam());
  int code = -1;
  const QMap<QString, QStringList> reference = zqPythonRowsByHandle(kReferenceAreas, {path}, &code);
  ASSERT_EQ(code, 0);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray original = file.readAll();
  QString error;
  db = OdDxf::readDrawing(original, error);
  ASSERT_TRUE(db) << error.toStdString();
  EXPECT_EQ(OdDxf::writeDrawing(db.get()), original);

  OdDbObjectId edited;
  OdDbObjectPtr blocks = db->getBlockTableId().openObject();
  int compared = 0;
  for (const OdDbObjectId& block : static_cast<OdDbBlockTable*>(blocks.get())->recordIds()) {
    OdDbObjectPtr btr = block.openObject();
    for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(btr.get())->entityIds()) {
      if (id.openObject()->isA() != OdDbHatch::desc()) continue;
      const QString handle = id.getHandle().ascii().qstring().toUpper();
      SCOPED_TRACE(handle.toStdString());
      ASSERT_TRUE(reference.contains(handle));
      const double want = reference[handle][1].toDouble();
      EXPECT_EQ(zqProviderFor(id.openObject().get())->isA()->name().toStdString(), "CZqHatchPE");
      EXPECT_EQ(get(id, "Pattern", "Pattern name").GetString().qstring(), reference[handle][3]);
      // The flattening is within 1e-5 of the curves.
      EXPECT_NEAR(get(id, "Geometry", "Area", CZqVariant(1111.0, false)).GetDouble(), want, 1e-3 * std::max(1.0, want));
      EXPECT_NE(infoLine(info(id), "Boundaries"), nullptr);
      if (edited.isNull() && !openAs<OdDbHatch>(id)->isSolidFill()) edited = id;
      ++compared;
    }
  }
  EXPECT_GT(compared, 0);
  if (edited.isNull()) return;
  // One edit, read back by ezdxf: the new scale and lines twice as far apart.
  const double before = openAs<OdDbHatch>(edited)->patternScale();
  ASSERT_EQ(set(edited, "Pattern", "Scale", CZqVariant(before * 2, true)), 5100);
  QTemporaryDir tmp;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), tmp.filePath("out.dxf"), error)) << error.toStdString();
  const QMap<QString, QStringList> after = zqPythonRowsByHandle(kReferenceAreas, {tmp.filePath("out.dxf")}, &code);
  const QString handle = edited.getHandle().ascii().qstring().toUpper();
  ASSERT_TRUE(after.contains(handle));
  EXPECT_NEAR(after[handle][2].toDouble(), before * 2, 1e-9 * before);
}

INSTANTIATE_TEST_SUITE_P(Samples, HatchSamplesTest, ::testing::ValuesIn(samplesWithHatches()), [](const auto& info) {
  std::string name = info.param;
  for (char& ch : name)
    if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
  return name;
});

}  // namespace
