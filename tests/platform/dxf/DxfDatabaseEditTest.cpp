// Edited drawings written back: only the edited objects' records change, and
// ezdxf reads the edited values. New objects get records and handles, erased
// ones lose theirs, renamed layers are renamed where they are named.
#include "DxfDatabaseSupport.h"

#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

#include <cmath>
#include <functional>

using namespace dxfdb;

namespace {

const QString kExample2000 = QStringLiteral("libredwg__test__test-data__example_2000.dxf");
const QString kExampleR14 = QStringLiteral("libredwg__test__test-data__example_r14.dxf");
const QString kEntities2d = QStringLiteral("libredwg__test__test-data__2000__entities-2d.dxf");
const QString kText = QStringLiteral("ezdxf__examples_dxf__text.dxf");
const QString kNetDxf = QStringLiteral("netDxf__TestDxfDocument__sample.dxf");
const QString kDimR26 = QStringLiteral("libredwg__test__test-data__r2.6__dim.dxf");

// Evaluates Python expressions over ezdxf's reading of files. The queries
// file holds [[path, entity index in model space or -1, expression], ...];
// `e` is that entity, `doc` the drawing.
const char* kQuery = R"(
import ezdxf, sys, json
from ezdxf.math import Vec3, Vec2
def plain(v):
    if isinstance(v, (str, bytes, int, float, bool)) or v is None: return v
    if isinstance(v, (Vec3, Vec2)): return [float(x) for x in v]
    try: return [plain(x) for x in v]
    except TypeError: return str(v)
docs = {}
out = []
for path, index, expr in json.load(open(sys.argv[1])):
    if path not in docs: docs[path] = ezdxf.readfile(path)
    doc = docs[path]
    e = list(doc.modelspace())[index] if index >= 0 else None
    try: out.append(plain(eval(expr)))
    except Exception as ex: out.append('error: ' + repr(ex))
print(json.dumps(out))
)";

struct Query {
  QString path;
  int index;
  QString expression;
};

QJsonArray ezdxfQueries(const std::vector<Query>& queries, const QString& dir) {
  QJsonArray list;
  for (const Query& q : queries) list.append(QJsonArray{q.path, q.index, q.expression});
  const QString file = dir + QStringLiteral("/queries.json");
  QFile f(file);
  EXPECT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(QJsonDocument(list).toJson());
  f.close();
  bool ok = false;
  const QJsonValue v = ezdxfJson(QString::fromLatin1(kQuery), {file}, &ok);
  EXPECT_TRUE(ok);
  return v.toArray();
}

// Each expression over ezdxf's reading of the drawing gives its value.
void expectEzdxfReads(const QByteArray& bytes, const std::vector<std::pair<QString, QJsonValue>>& checks) {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("drawing.dxf"));
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes);
  f.close();
  std::vector<Query> queries;
  for (const auto& c : checks) queries.push_back({path, -1, c.first});
  const QJsonArray got = ezdxfQueries(queries, dir.path());
  ASSERT_EQ(size_t(got.size()), checks.size());
  for (size_t i = 0; i < checks.size(); ++i) EXPECT_TRUE(sameJson(got[qsizetype(i)], checks[i].second)) << checks[i].first.toStdString();
}

QJsonArray xyz(double x, double y, double z) { return QJsonArray{x, y, z}; }

template <class T>
T* as(OdDbObject* o) {
  return static_cast<T*>(o);
}

OdDbObjectId layerNamed(OdDbDatabase* db, const char* name) {
  OdDbObjectPtr t = db->getLayerTableId().openObject();
  return static_cast<OdDbSymbolTable*>(t.get())->getAt(OdString(name));
}

// What, besides the edited object's own records, an edit may change.
enum class Extra {
  None,
  NewApp,    // an APPID record for new extended data, and $HANDSEED
  Sequence,  // records of the object's VERTEX run
};

struct EditCase {
  const char* name;
  const QString& sample;
  // The object edited: the first model-space entity of the class, or what
  // `pick` gives (null id: the drawing's header).
  OdRxClass* (*cls)();
  std::function<OdDbObjectId(OdDbDatabase*)> pick;
  std::function<void(OdDbDatabase*, OdDbObject*)> edit;
  QString query;
  // The value ezdxf must read; given the edited object when it depends on it.
  std::function<QJsonValue(OdDbObject*)> expected;
  QStringList header = {};  // header variables the edit changes
  Extra extra = Extra::None;
};

QJsonValue value(const QJsonValue& v, OdDbObject*) { return v; }
#define FIXED(v) [](OdDbObject* o) { return value(v, o); }

std::vector<EditCase> editCases() {
  const auto line = &OdDbLine::desc;
  const auto lw = &OdDbPolyline::desc;
  auto header = [](OdDbDatabase*) { return OdDbObjectId(); };
  const OdCmTransparency t40 = OdCmTransparency::fromPercent(40);
  return {
      {"LineStart", kExample2000, line, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbLine>(o)->setStartPoint(OdGePoint3d(1.5, -2.25, 3)); },
       "e.dxf.start", FIXED(xyz(1.5, -2.25, 3))},
      {"LineEndR14", kExampleR14, line, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbLine>(o)->setEndPoint(OdGePoint3d(-7, 8.125, 0.1)); },
       "e.dxf.end", FIXED(xyz(-7, 8.125, 0.1))},
      {"LineStartR26WithoutHandles", kDimR26, line, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbLine>(o)->setStartPoint(OdGePoint3d(0.25, 0.5, 0)); },
       "e.dxf.start", FIXED(xyz(0.25, 0.5, 0))},
      // Values the record has and values inserted (thickness, lineweight, ...).
      {"LineEntityProperties", kExample2000, line, nullptr,
       [](OdDbDatabase* db, OdDbObject* o) {
         auto* e = as<OdDbLine>(o);
         e->setLayer(layerNamed(db, "Tavolo 2"));
         ASSERT_TRUE(e->setLinetype(OdString("Continuous")));
         e->setColorIndex(3);
         e->setThickness(2.5);
         e->setLineWeight(OdDb::kLnWt050);
         e->setLinetypeScale(2.0);
         e->setVisibility(false);
       },
       "[e.dxf.layer, e.dxf.linetype.lower(), e.dxf.color, e.dxf.thickness, e.dxf.lineweight, e.dxf.ltscale, e.dxf.invisible]",
       FIXED((QJsonArray{QStringLiteral("Tavolo 2"), QStringLiteral("continuous"), 3, 2.5, 50, 2.0, 1}))},
      {"LineTrueColorTransparencyNormal", kText, line, nullptr,
       [t40](OdDbDatabase*, OdDbObject* o) {
         as<OdDbLine>(o)->setColor(OdCmColor::fromRGB(10, 20, 30));
         as<OdDbLine>(o)->setTransparency(t40);
         as<OdDbLine>(o)->setNormal(OdGeVector3d(0, 0, -1));
       },
       "[e.dxf.true_color, e.dxf.transparency, list(e.dxf.extrusion)]",
       [t40](OdDbObject*) { return QJsonValue(QJsonArray{(10 << 16) | (20 << 8) | 30, t40.packed(), xyz(0, 0, -1)}); }},
      {"LineHyperlinkAndExtendedData", kText, line, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         OdArray<OdDbHyperlink> links;
         links.append(OdDbHyperlink{OdString("https://example.com/a"), OdString("A link"), OdString("#sheet")});
         as<OdDbEntity>(o)->setHyperlinks(links);
         OdResBufPtr rb = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("ZQTEST"));
         rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("hello")).get())
             ->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, 7).get())
             ->setNext(OdResBuf::newRb(OdResBuf::kDxfXdReal, 2.5).get());
         o->setXData(rb.get());
       },
       "[list(e.get_hyperlink()), [[t.code, t.value] for t in e.get_xdata('ZQTEST')]]",
       FIXED((QJsonArray{QJsonArray{QStringLiteral("https://example.com/a"), QStringLiteral("A link"), QStringLiteral("#sheet")},
                         QJsonArray{QJsonArray{1000, QStringLiteral("hello")}, QJsonArray{1070, 7}, QJsonArray{1040, 2.5}}})),
       {}, Extra::NewApp},
      {"CircleRadiusAndCenterUnderNegativeNormal", kEntities2d, &OdDbCircle::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         as<OdDbCircle>(o)->setNormal(OdGeVector3d(0, 0, -1));
         as<OdDbCircle>(o)->setCenter(OdGePoint3d(1, 2, 3));
         as<OdDbCircle>(o)->setRadius(7.5);
       },
       "[list(e.ocs().to_wcs(e.dxf.center)), list(e.dxf.extrusion), e.dxf.radius]",
       FIXED((QJsonArray{xyz(1, 2, 3), xyz(0, 0, -1), 7.5}))},
      {"CircleNormalTiltedKeepsWorldCenter", kEntities2d, &OdDbCircle::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbCircle>(o)->setNormal(OdGeVector3d(0.6, 0, 0.8)); },
       "list(e.ocs().to_wcs(e.dxf.center))",
       [](OdDbObject* o) {
         const OdGePoint3d c = as<OdDbCircle>(o)->center();
         return QJsonValue(xyz(c.x, c.y, c.z));
       }},
      {"ArcRadiusAnglesThickness", kEntities2d, &OdDbArc::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         auto* a = as<OdDbArc>(o);
         a->setRadius(7.25);
         a->setStartAngle(OdaPI / 4);
         a->setEndAngle(1.5 * OdaPI);
         a->setThickness(-2);
       },
       "[e.dxf.radius, e.dxf.start_angle, e.dxf.end_angle, e.dxf.thickness, list(e.dxf.center)]",
       [](OdDbObject* o) {
         const OdGePoint3d c = as<OdDbArc>(o)->center();
         return QJsonValue(QJsonArray{7.25, 45, 270, -2, xyz(c.x, c.y, c.z)});
       }},
      {"SolidCornerThicknessNormal", kEntities2d, &OdDbSolid::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         auto* e = as<OdDbSolid>(o);
         e->setPointAt(3, OdGePoint3d(9, 5, 2));
         e->setThickness(1.5);
       },
       "[list(e.dxf.vtx3), e.dxf.thickness, list(e.dxf.vtx0)]", FIXED((QJsonArray{xyz(9, 5, 2), 1.5, xyz(7, 1, 2)}))},
      {"FaceCornerAndInvisibleEdge", kExample2000, &OdDbFace::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         as<OdDbFace>(o)->setVertexAt(1, OdGePoint3d(1, 2, 3));
         as<OdDbFace>(o)->makeEdgeInvisibleAt(2);
       },
       "[list(e.dxf.vtx1), e.dxf.invisible]", FIXED((QJsonArray{xyz(1, 2, 3), 4}))},
      {"PolylineVertexMovedClosedAndElevated", kEntities2d, lw, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         as<OdDbPolyline>(o)->setPointAt(0, OdGePoint2d(5.5, -1.25));
         as<OdDbPolyline>(o)->setClosed(!as<OdDbPolyline>(o)->isClosed());
         as<OdDbPolyline>(o)->setElevation(4.5);
       },
       "[list(e.get_points('xy'))[0], e.closed, e.dxf.elevation]",
       [](OdDbObject* o) { return QJsonValue(QJsonArray{QJsonArray{5.5, -1.25}, as<OdDbPolyline>(o)->isClosed(), 4.5}); }},
      {"PolylineVertexAdded", kEntities2d, lw, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         auto* p = as<OdDbPolyline>(o);
         p->addVertexAt(p->numVerts(), OdGePoint2d(100, 200), 0.5);
       },
       "[len(e), list(e.get_points('xyb'))[-1]]",
       [](OdDbObject* o) { return QJsonValue(QJsonArray{int(as<OdDbPolyline>(o)->numVerts()), QJsonArray{100, 200, 0.5}}); }},
      {"PointPosition", kEntities2d, &OdDbPoint::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbPoint>(o)->setPosition(OdGePoint3d(3, 4, 5)); }, "e.dxf.location",
       FIXED(xyz(3, 4, 5))},
      {"EllipseRatio", kExample2000, &OdDbEllipse::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         auto* e = as<OdDbEllipse>(o);
         const double s = e->startParam(), en = e->endParam();
         e->set(e->center(), e->normal(), e->majorAxis(), 0.25);
         e->setParams(s, en);
       },
       "e.dxf.ratio", FIXED(0.25)},
      {"SplineControlPoint", kExample2000, &OdDbSpline::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         int degree;
         bool rational, closed, periodic;
         OdGePoint3dArray ctrl;
         OdGeDoubleArray knots, weights;
         as<OdDbSpline>(o)->getNurbsData(degree, rational, closed, periodic, ctrl, knots, weights);
         ctrl[0] = OdGePoint3d(-1, -2, 0);
         as<OdDbSpline>(o)->setNurbsData(degree, rational, closed, periodic, ctrl, knots, weights);
       },
       "[list(e.control_points[0]), len(e.control_points), len(e.knots)]",
       [](OdDbObject* o) {
         const auto* s = as<OdDbSpline>(o);
         return QJsonValue(QJsonArray{xyz(-1, -2, 0), s->numControlPoints(), int(s->knots().length())});
       }},
      {"RayBase", kExample2000, &OdDbRay::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbRay>(o)->setBasePoint(OdGePoint3d(1, 2, 3)); }, "e.dxf.start",
       FIXED(xyz(1, 2, 3))},
      {"XlineDirection", kExample2000, &OdDbXline::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDbXline>(o)->setUnitDir(OdGeVector3d(0, 1, 0)); },
       "e.dxf.unit_vector", FIXED(xyz(0, 1, 0))},
      {"Polyline2dVertexMoved", kNetDxf, &OdDb2dPolyline::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) { as<OdDb2dPolyline>(o)->vertexForWrite(1)->setPosition(OdGePoint3d(-3, 9, 0)); },
       "list(e.vertices[1].dxf.location)[:2]", FIXED((QJsonArray{-3, 9})), {}, Extra::Sequence},
      {"Polyline2dVertexAdded", kNetDxf, &OdDb2dPolyline::desc, nullptr,
       [](OdDbDatabase*, OdDbObject* o) {
         OdDb2dVertexPtr v = OdDb2dVertex::createObject();
         v->setPosition(OdGePoint3d(40, 50, 0));
         v->setBulge(0.25);
         as<OdDb2dPolyline>(o)->appendVertex(v.get());
       },
       "[len(e.vertices), list(e.vertices[-1].dxf.location)[:2], e.vertices[-1].dxf.bulge]",
       [](OdDbObject* o) { return QJsonValue(QJsonArray{int(as<OdDb2dPolyline>(o)->numVerts()), QJsonArray{40, 50}, 0.25}); },
       {"$HANDSEED"}, Extra::Sequence},
      {"LayerProperties", kExample2000, nullptr, [](OdDbDatabase* db) { return layerNamed(db, "Tavolo 2"); },
       [t40](OdDbDatabase*, OdDbObject* o) {
         auto* l = as<OdDbLayerTableRecord>(o);
         l->setColor(OdCmColor::fromIndex(1));
         l->setIsOff(true);
         l->setIsFrozen(true);
         l->setIsLocked(true);
         l->setIsPlottable(false);
         l->setLineWeight(OdDb::kLnWt035);
         l->setTransparency(t40);
       },
       "(lambda l: [l.color, l.is_off(), l.is_frozen(), l.is_locked(), l.dxf.plot, l.dxf.lineweight,"
       " [[t.code, t.value] for t in l.get_xdata('AcCmTransparency')]])(doc.layers.get('Tavolo 2'))",
       [t40](OdDbObject*) { return QJsonValue(QJsonArray{1, true, true, true, 0, 35, QJsonArray{QJsonArray{1071, t40.packed()}}}); },
       {}, Extra::NewApp},
      {"HeaderUnitsAndUcs", kText, nullptr, header,
       [](OdDbDatabase* db, OdDbObject*) {
         db->setLUNITS(4);
         db->setINSUNITS(6);
         db->setUCS(OdGePoint3d(1, 2, 3), OdGeVector3d(0, 1, 0), OdGeVector3d(-1, 0, 0));
       },
       "[doc.header['$LUNITS'], doc.header['$INSUNITS'], list(doc.header['$UCSORG']), list(doc.header['$UCSXDIR']),"
       " list(doc.header['$UCSYDIR'])]",
       FIXED((QJsonArray{4, 6, xyz(1, 2, 3), xyz(0, 1, 0), xyz(-1, 0, 0)})), {"$INSUNITS", "$LUNITS", "$UCSORG", "$UCSXDIR", "$UCSYDIR"}},
      {"HeaderVariableTheFileLacks", kDimR26, nullptr, header,
       [](OdDbDatabase* db, OdDbObject*) { db->setMEASUREMENT(1); }, "doc.header['$MEASUREMENT']", FIXED(1),
       {"$MEASUREMENT"}},
  };
}

// The handles of the VERTEX or ATTRIB records and the SEQEND that follow
// the record of a handle.
QStringList sequenceKeys(const QByteArray& bytes, quint64 handle) {
  OdDxf::File f;
  QString error;
  OdDxf::File::read(bytes, f, error);
  QStringList out;
  for (const OdDxf::Section& s : f.sections())
    for (qsizetype i = 0; i < s.records.size(); ++i) {
      if (s.records[i].handle() != handle) continue;
      for (qsizetype k = i + 1; k < s.records.size(); ++k) {
        const OdDxf::Record& r = s.records[k];
        if (!r.isType("VERTEX") && !r.isType("ATTRIB") && !r.isType("SEQEND")) break;
        out.append(QStringLiteral("#") + QString::number(r.handle(), 16).toUpper());
        if (r.isType("SEQEND")) break;
      }
    }
  return out;
}

TEST(DxfDatabaseEdit, OnlyTheEditedRecordsChangeAndEzdxfReadsTheValues) {
  odDbInitialize();
  QTemporaryDir dir;
  std::vector<EditCase> cases = editCases();
  std::vector<Query> queries;
  std::vector<QJsonValue> expected;
  for (size_t c = 0; c < cases.size(); ++c) {
    const EditCase& ec = cases[c];
    SCOPED_TRACE(ec.name);
    const QByteArray bytes = readBytes(samplePath(ec.sample));
    OdDbDatabasePtr db = load(bytes);
    ASSERT_TRUE(db);
    const OdDbObjectId id = ec.pick ? ec.pick(db.get()) : firstOf(db.get(), ec.cls());
    const bool onHeader = ec.pick && id.isNull();
    ASSERT_TRUE(onHeader || id.isValid());
    OdDbObjectPtr obj = onHeader ? OdDbObjectPtr() : id.openObject(OdDb::kForWrite);
    ec.edit(db.get(), obj.get());
    const QJsonValue want = ec.expected(obj.get());
    obj.release();

    const QString path = dir.filePath(QStringLiteral("%1.dxf").arg(c));
    QString error;
    ASSERT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
    const QByteArray out = readBytes(path);

    // The records that may change.
    QStringList allowed = ec.header;
    const QMap<QString, QByteArray> before = recordsOf(bytes), after = recordsOf(out);
    if (!onHeader) {
      if (id.getHandle().value() && before.contains(QStringLiteral("#") + hex(id))) allowed.append(QStringLiteral("#") + hex(id));
      if (ec.extra == Extra::Sequence) allowed += sequenceKeys(bytes, id.getHandle().value());
    }
    const QStringList changed = changedRecords(bytes, out);
    EXPECT_FALSE(changed.isEmpty());
    for (const QString& key : changed) {
      if (allowed.contains(key)) continue;
      const bool isNew = !before.contains(key);
      if (ec.extra == Extra::NewApp && (key == QLatin1String("$HANDSEED") || (isNew && after.value(key).startsWith("0\tAPPID"))))
        continue;
      if (ec.extra == Extra::Sequence && isNew && after.value(key).startsWith("0\tVERTEX")) continue;
      // A drawing without handles: the one record of the edited entity.
      if (!id.getHandle().value() || (!onHeader && !before.contains(QStringLiteral("#") + hex(id)))) {
        if (changed.size() == 1 && key.startsWith(QLatin1String("ENTITIES:"))) continue;
      }
      ADD_FAILURE() << "record " << key.toStdString() << " changed";
    }
    int index = -1;
    const OdDbObjectIdArray model = entitiesOf(db->getModelSpaceId());
    if (!onHeader && model.contains(id)) index = int(std::find(model.begin(), model.end(), id) - model.begin());
    queries.push_back({path, index, ec.query});
    expected.push_back(want);

    // Our own reading of what we wrote: nothing more to change.
    OdDbDatabasePtr again = load(out);
    ASSERT_TRUE(again);
    EXPECT_EQ(save(again.get()), out);
  }
  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  const QJsonArray got = ezdxfQueries(queries, dir.path());
  ASSERT_EQ(size_t(got.size()), cases.size());
  for (size_t c = 0; c < cases.size(); ++c) EXPECT_TRUE(sameJson(got[qsizetype(c)], expected[c])) << cases[c].name;
}

// ---------------------------------------------------------------------------

TEST(DxfDatabaseEdit, NewObjectsGetRecordsAndFreshHandles) {
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(kExample2000));
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  const quint64 seed = db->handseed().value();
  const size_t before = entitiesOf(db->getModelSpaceId()).size();

  auto layers = OdDbLayerTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite).get());
  auto newLayer = OdDbLayerTableRecord::createObject();
  newLayer->setName("ZQ New");
  newLayer->setColor(OdCmColor::fromIndex(5));
  const OdDbObjectId layerId = layers->add(newLayer.get());
  layers.release();
  auto append = [&](const OdDbObjectId& space, OdDbEntity* e) {
    OdDbObjectPtr block = space.openObject(OdDb::kForWrite);
    e->setDatabaseDefaults(db.get());
    return static_cast<OdDbBlockTableRecord*>(block.get())->appendOdDbEntity(e);
  };
  auto line = OdDbLine::createObject();
  line->setStartPoint(OdGePoint3d(1, 2, 3));
  line->setEndPoint(OdGePoint3d(4, 5, 6));
  const OdDbObjectId lineId = append(db->getModelSpaceId(), line.get());
  line->setLayer(layerId);
  auto circle = OdDbCircle::createObject();
  circle->setNormal(OdGeVector3d(0, 0, -1));
  circle->setCenter(OdGePoint3d(10, 20, 30));
  circle->setRadius(2.5);
  const OdDbObjectId circleId = append(db->getModelSpaceId(), circle.get());
  auto lw = OdDbPolyline::createObject();
  lw->addVertexAt(0, OdGePoint2d(0, 0));
  lw->addVertexAt(1, OdGePoint2d(10, 0), 1.0);
  lw->addVertexAt(2, OdGePoint2d(10, 10));
  lw->setClosed(true);
  const OdDbObjectId lwId = append(db->getModelSpaceId(), lw.get());
  auto pl = OdDb2dPolyline::createObject();
  for (double x : {0.0, 5.0, 9.0}) {
    OdDb2dVertexPtr v = OdDb2dVertex::createObject();
    v->setPosition(OdGePoint3d(x, x * 2, 0));
    pl->appendVertex(v.get());
  }
  const OdDbObjectId plId = append(db->getModelSpaceId(), pl.get());
  auto point = OdDbPoint::createObject();
  point->setPosition(OdGePoint3d(7, 8, 0));
  const OdDbObjectId pointId = append(db->getPaperSpaceId(), point.get());

  for (const OdDbObjectId& id : {layerId, lineId, circleId, lwId, plId, pointId}) EXPECT_GE(id.getHandle().value(), seed);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("new.dxf"));
  QString error;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
  const QByteArray out = readBytes(path);

  // Every record of the file is still there as it was.
  const QMap<QString, QByteArray> a = recordsOf(bytes), b = recordsOf(out);
  for (auto it = a.begin(); it != a.end(); ++it)
    if (it.key() != QLatin1String("$HANDSEED")) {
      EXPECT_EQ(b.value(it.key()), it.value()) << it.key().toStdString();
    }
  EXPECT_NE(b.value(QStringLiteral("$HANDSEED")), a.value(QStringLiteral("$HANDSEED")));

  // Our reading of it: the new entities last in their spaces, same handles.
  OdDbDatabasePtr again = load(out);
  ASSERT_TRUE(again);
  const OdDbObjectIdArray ids = entitiesOf(again->getModelSpaceId());
  ASSERT_EQ(ids.size(), before + 4);
  EXPECT_EQ(hex(ids[before]), hex(lineId));
  EXPECT_EQ(hex(ids[before + 3]), hex(plId));
  EXPECT_EQ(save(again.get()), out);

  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  quint64 highest = 0;
  for (const OdDbObjectId& id : {layerId, lineId, circleId, lwId, plId, pointId}) highest = qMax(highest, id.getHandle().value());
  auto of = [](const OdDbObjectId& id, const char* expr) { return QStringLiteral("(lambda e: %1)(doc.entitydb['%2'])").arg(expr, hex(id)); };
  expectEzdxfReads(out, {
      {QStringLiteral("int(doc.header['$HANDSEED'], 16) > %1").arg(highest), true},
      {of(layerId, "[e.dxf.name, e.dxf.color]"), QJsonArray{QStringLiteral("ZQ New"), 5}},
      {of(lineId, "[e.dxftype(), e.dxf.layer, list(e.dxf.start), list(e.dxf.end), e.dxf.owner]"),
       QJsonArray{QStringLiteral("LINE"), QStringLiteral("ZQ New"), xyz(1, 2, 3), xyz(4, 5, 6), hex(db->getModelSpaceId())}},
      {of(circleId, "[list(e.ocs().to_wcs(e.dxf.center)), e.dxf.radius]"), QJsonArray{xyz(10, 20, 30), 2.5}},
      {of(lwId, "[list(e.get_points('xyb')), e.closed]"), QJsonArray{QJsonArray{xyz(0, 0, 0), xyz(10, 0, 1), xyz(10, 10, 0)}, true}},
      {of(plId, "[e.get_mode(), [list(v.dxf.location)[:2] for v in e.vertices]]"),
       QJsonArray{QStringLiteral("AcDb2dPolyline"), QJsonArray{QJsonArray{0, 0}, QJsonArray{5, 10}, QJsonArray{9, 18}}}},
      {of(pointId, "[e.dxf.paperspace, list(e.dxf.location), e.dxf.owner]"), QJsonArray{1, xyz(7, 8, 0), hex(db->getPaperSpaceId())}},
      {QStringLiteral("[e.dxf.handle for e in doc.modelspace()][-4:]"), QJsonArray{hex(lineId), hex(circleId), hex(lwId), hex(plId)}},
  });
}

// Extended data added to a drawing that has no APPID table, or no TABLES
// section at all, needs its application registered: the writer adds the
// table (and the section) rather than refusing the save.
struct MissingTable {
  const char* name;
  QByteArray drawing;
};

void PrintTo(const MissingTable& m, std::ostream* os) { *os << m.name; }

class DxfMissingTable : public ::testing::TestWithParam<MissingTable> {};

TEST_P(DxfMissingTable, ExtendedDataGetsItsApplicationRegistered) {
  odDbInitialize();
  OdDbDatabasePtr db = load(GetParam().drawing);
  ASSERT_TRUE(db);
  const OdDbObjectIdArray ids = entitiesOf(db->getModelSpaceId());
  ASSERT_EQ(ids.size(), 1u);
  {
    OdDbObjectPtr o = ids[0].openObject(OdDb::kForWrite);
    OdResBufPtr rb = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("ZQTEST"));
    rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("kept")).get());
    o->setXData(rb.get());
  }
  QString error;
  const QByteArray out = OdDxf::writeDrawing(db.get(), &error);
  ASSERT_TRUE(error.isEmpty()) << error.toStdString();
  EXPECT_TRUE(out.contains("ZQTEST"));

  OdDbDatabasePtr again = load(out);
  ASSERT_TRUE(again);
  OdDbObjectPtr table = again->getRegAppTableId().openObject();
  EXPECT_TRUE(static_cast<OdDbSymbolTable*>(table.get())->has(OdString("ZQTEST")));
  const OdDbObjectIdArray after = entitiesOf(again->getModelSpaceId());
  ASSERT_EQ(after.size(), 1u);
  OdResBufPtr x = after[0].openObject()->xData(OdString("ZQTEST"));
  ASSERT_TRUE(x && x->next());
  EXPECT_EQ(x->next()->getString().qstring(), QStringLiteral("kept"));
  // The table is the drawing's own now: a second save adds nothing more.
  EXPECT_EQ(save(db.get()), out);
  EXPECT_EQ(save(again.get()), out);

  if (!haveEzdxf() || !out.contains("AC1015")) return;
  expectEzdxfReads(out, {{QStringLiteral("[doc.appids.has_entry('ZQTEST'), "
                                         "[t.value for t in list(doc.modelspace())[0].get_xdata('ZQTEST')]]"),
                          QJsonArray{true, QJsonArray{QStringLiteral("kept")}}}});
}

INSTANTIATE_TEST_SUITE_P(
    Drawings, DxfMissingTable,
    ::testing::Values(
        MissingTable{"R2000WithoutAppidTable",
                     "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  9\n$HANDSEED\n  5\n40\n  0\nENDSEC\n"
                     "  0\nSECTION\n  2\nTABLES\n"
                     "  0\nTABLE\n  2\nLAYER\n  5\n2\n330\n0\n100\nAcDbSymbolTable\n 70\n1\n"
                     "  0\nLAYER\n  5\n10\n330\n2\n100\nAcDbSymbolTableRecord\n100\nAcDbLayerTableRecord\n"
                     "  2\n0\n 70\n0\n 62\n7\n  6\nCONTINUOUS\n  0\nENDTAB\n"
                     "  0\nTABLE\n  2\nDIMSTYLE\n  5\nA\n330\n0\n100\nAcDbSymbolTable\n 70\n0\n"
                     "100\nAcDbDimStyleTable\n 71\n0\n  0\nENDTAB\n"
                     "  0\nENDSEC\n"
                     "  0\nSECTION\n  2\nENTITIES\n"
                     "  0\nLINE\n  5\n20\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n"
                     " 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n1\n 31\n0\n"
                     "  0\nENDSEC\n  0\nEOF\n"},
        MissingTable{"R12WithoutTablesSection",
                     "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  0\nENDSEC\n"
                     "  0\nSECTION\n  2\nENTITIES\n"
                     "  0\nLINE\n  8\n0\n 10\n0\n 20\n0\n 30\n0\n 11\n1\n 21\n1\n 31\n0\n"
                     "  0\nENDSEC\n  0\nEOF\n"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(DxfDatabaseEdit, ErasedObjectsLoseTheirRecords) {
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(kEntities2d));
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  const OdDbObjectIdArray all = entitiesOf(db->getModelSpaceId());
  const OdDbObjectId line = firstOf(db.get(), OdDbLine::desc());
  // The block reference with an attribute.
  OdDbObjectId insert;
  for (const OdDbObjectId& id : all)
    if (id.openObject()->isA() == OdDbBlockReference::desc()) insert = id;
  ASSERT_TRUE(line.isValid() && insert.isValid());
  ASSERT_EQ(sequenceKeys(bytes, insert.getHandle().value()).size(), 2);
  // The block reference's records: INSERT, its ATTRIB and SEQEND.
  QStringList gone = sequenceKeys(bytes, insert.getHandle().value());
  gone << QStringLiteral("#") + hex(line) << QStringLiteral("#") + hex(insert);
  gone.sort();
  for (const OdDbObjectId& id : {line, insert}) id.openObject(OdDb::kForWrite)->erase();
  const QByteArray out = save(db.get());
  EXPECT_EQ(changedRecords(bytes, out), gone);

  OdDbDatabasePtr again = load(out);
  ASSERT_TRUE(again);
  EXPECT_EQ(entitiesOf(again->getModelSpaceId()).size(), all.size() - 2);
  EXPECT_FALSE(again->getOdDbObjectId(line.getHandle()).isValid());

  // Brought back, the line is written again, with its handle.
  line.openObject(OdDb::kForWrite, true)->erase(false);
  const QByteArray back = save(db.get());
  EXPECT_EQ(changedRecords(out, back), QStringList{QStringLiteral("#") + hex(line)});
}

TEST(DxfDatabaseEdit, RenamedLayerIsRenamedWhereverItIsNamed) {
  odDbInitialize();
  const QByteArray bytes = readBytes(samplePath(kExample2000));
  OdDbDatabasePtr db = load(bytes);
  ASSERT_TRUE(db);
  const OdDbObjectId layer = layerNamed(db.get(), "Tavolo 2");
  ASSERT_TRUE(layer.isValid());
  static_cast<OdDbLayerTableRecord*>(layer.openObject(OdDb::kForWrite).get())->setName("Tables");
  const QByteArray out = save(db.get());
  // Only records that named the layer change, and only in that name.
  const QMap<QString, QByteArray> a = recordsOf(bytes), b = recordsOf(out);
  const QStringList changed = changedRecords(bytes, out);
  for (const QString& key : changed)
    EXPECT_EQ(b.value(key), QByteArray(a.value(key)).replace("\tTavolo 2\n", "\tTables\n")) << key.toStdString();
  EXPECT_GT(changed.size(), 1);
  EXPECT_FALSE(out.contains("Tavolo 2\r\n"));
}

// ---------------------------------------------------------------------------
// Saving

TEST(DxfDatabaseSave, FailedSaveLeavesTheOldFileWhole) {
  odDbInitialize();
  OdDbDatabasePtr db = load(readBytes(samplePath(kEntities2d)));
  ASSERT_TRUE(db);
  OdDbObjectId line = firstOf(db.get(), OdDbLine::desc());
  static_cast<OdDbLine*>(line.openObject(OdDb::kForWrite).get())->setStartPoint(OdGePoint3d(9, 9, 9));

  QTemporaryDir dir;
  const QString readOnlyDir = dir.filePath(QStringLiteral("ro")), old = readOnlyDir + QStringLiteral("/old.dxf");
  QDir().mkpath(readOnlyDir);
  QFile f(old);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("old contents\n");
  f.close();
  const QString small = dir.filePath(QStringLiteral("small.dxf"));
  QFile::copy(samplePath(kDimR26), small);  // smaller than the drawing
  QFile::setPermissions(small, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  QFile::setPermissions(readOnlyDir, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
  // A privileged user writes into any directory; /proc takes no new files from anyone.
  const bool privileged = QFileInfo(readOnlyDir).isWritable() || QFile(readOnlyDir + QStringLiteral("/probe")).open(QIODevice::WriteOnly);
  QFile::remove(readOnlyDir + QStringLiteral("/probe"));
  struct Target {
    const char* why;
    QString path;
    rlim_t sizeLimit;  // RLIM_INFINITY: none
  } targets[] = {
      {"unwritable directory", privileged ? QStringLiteral("/proc/version") : old, RLIM_INFINITY},
      {"no such directory", dir.filePath(QStringLiteral("missing/sub/x.dxf")), RLIM_INFINITY},
      {"file size limit reached half way", small, 12 * 1024},
  };
  for (const Target& t : targets) {
    SCOPED_TRACE(t.why);
    const bool existed = QFile::exists(t.path);
    const QByteArray was = readBytes(t.path);
    rlimit saved{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &saved), 0);
    auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limited = saved;
    limited.rlim_cur = std::min(t.sizeLimit, saved.rlim_max);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limited), 0);
    QString error;
    const bool written = OdDxf::writeDrawing(db.get(), t.path, error);
    setrlimit(RLIMIT_FSIZE, &saved);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(written);
    EXPECT_TRUE(error.contains(t.path)) << error.toStdString();
    EXPECT_EQ(QFile::exists(t.path), existed);
    EXPECT_EQ(readBytes(t.path), was);
    // Not saved: the edit still counts as unsaved.
    EXPECT_TRUE(line.openObject()->isModified());
  }
  QFile::setPermissions(readOnlyDir, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

  // A drawing that cannot be written (a new entity whose data the platform
  // does not model) is refused before the file is touched.
  const QString target = dir.filePath(QStringLiteral("keep.dxf"));
  QString error;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), target, error)) << error.toStdString();
  EXPECT_FALSE(line.openObject()->isModified());
  const QByteArray saved = readBytes(target);
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  auto face = OdDbMline::createObject();
  const OdDbObjectId textId = static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(face.get());
  ms.release();
  EXPECT_FALSE(OdDxf::writeDrawing(db.get(), target, error));
  EXPECT_TRUE(error.contains(QStringLiteral("cannot be written"))) << error.toStdString();
  EXPECT_EQ(readBytes(target), saved);
  // Without it the drawing saves as before.
  textId.openObject(OdDb::kForWrite)->erase();
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), target, error)) << error.toStdString();
  EXPECT_EQ(readBytes(target), saved);
}

// A drawing made in memory is written as an AC1015 drawing.
TEST(DxfDatabaseSave, DrawingNotReadFromAFileIsWrittenAsR2000) {
  odDbInitialize();
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  db->setLUNITS(4);
  db->setUCS(OdGePoint3d(5, 0, 0), OdGeVector3d(0, 1, 0), OdGeVector3d(-1, 0, 0));
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  for (int i = 0; i < 3; ++i) {
    auto line = OdDbLine::createObject();
    line->setDatabaseDefaults(db.get());
    line->setEndPoint(OdGePoint3d(i + 1, 2 * i, 0));
    line->setColorIndex(i + 1);
    static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(line.get());
  }
  ms.release();
  const QByteArray out = save(db.get());
  ASSERT_FALSE(out.isEmpty());
  EXPECT_EQ(db->originalFileVersion(), OdString("AC1015"));
  OdDbDatabasePtr again = load(out);
  ASSERT_TRUE(again);
  EXPECT_EQ(again->getLUNITS(), 4);
  EXPECT_EQ(again->getUCSXDIR(), OdGeVector3d(0, 1, 0));
  EXPECT_EQ(entitiesOf(again->getModelSpaceId()).size(), 3u);
  EXPECT_EQ(save(again.get()), out);
  // Saved again unedited, the first save's file comes back.
  EXPECT_EQ(save(db.get()), out);

  if (!haveEzdxf()) GTEST_SKIP() << "ezdxf not installed";
  expectEzdxfReads(out, {{QStringLiteral("[doc.dxfversion, doc.header['$LUNITS'], '0' in doc.layers]"),
                          QJsonArray{QStringLiteral("AC1015"), 4, true}},
                         {QStringLiteral("[[e.dxftype(), e.dxf.color, list(e.dxf.end)] for e in doc.modelspace()]"),
                          QJsonArray{QJsonArray{QStringLiteral("LINE"), 1, xyz(1, 0, 0)}, QJsonArray{QStringLiteral("LINE"), 2, xyz(2, 2, 0)},
                                     QJsonArray{QStringLiteral("LINE"), 3, xyz(3, 4, 0)}}}});
}

}  // namespace
