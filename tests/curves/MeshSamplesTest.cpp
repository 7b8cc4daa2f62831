// The 3D polylines, meshes, multilines, wipeouts and shapes of the sample
// drawings: each drawing is written back byte for byte as it was read, and
// one edit of each kind is read back by ezdxf from the saved file.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

struct Edit {
  OdRxClass* (*cls)();
  const char* category;
  const char* row;
  int index;             // the vertex the row is edited at
  double delta;          // added to the row's value
  const char* dxfType;   // how ezdxf names the object
};
const Edit kEdits[] = {
    {&OdDb3dPolyline::desc, "Geometry", "Vertex Z", 1, 2.5, "POLYLINE"},
    {&OdDbPolyFaceMesh::desc, "Geometry", "Vertex X", 0, -1.25, "POLYLINE"},
    {&OdDbPolygonMesh::desc, "Misc", "N density", 0, 3, "POLYLINE"},
    {&OdDbSubDMesh::desc, "Geometry", "Smoothness", 0, 1, "MESH"},
    {&OdDbMline::desc, "Misc", "Scale", 0, 0.5, "MLINE"},
    {&OdDbShape::desc, "Misc", "Height", 0, 0.25, "SHAPE"},
};

// One line per object of the kinds above: its handle and the value of the
// edited row as ezdxf reads it.
const char* const kReadBack =
    "import sys, ezdxf\n"
    "doc = ezdxf.readfile(sys.argv[1])\n"
    "for e in doc.entitydb.values():\n"
    "    t = e.dxftype()\n"
    "    if t == 'POLYLINE':\n"
    "        v = list(e.vertices)\n"
    "        if e.is_3d_polyline: print(e.dxf.handle, 'POLYLINE', repr(v[1].dxf.location.z if len(v) > 1 else 0))\n"
    "        elif e.is_poly_face_mesh: print(e.dxf.handle, 'POLYLINE', repr(v[0].dxf.location.x))\n"
    "        elif e.is_polygon_mesh: print(e.dxf.handle, 'POLYLINE', e.dxf.n_smooth_density)\n"
    "    elif t == 'MESH': print(e.dxf.handle, 'MESH', e.dxf.subdivision_levels)\n"
    "    elif t == 'MLINE': print(e.dxf.handle, 'MLINE', repr(e.dxf.scale_factor))\n"
    "    elif t == 'SHAPE': print(e.dxf.handle, 'SHAPE', repr(e.dxf.size))\n";

std::vector<std::string> samplesWithKinds() {
  std::vector<std::string> out;
  const QDir dir(QStringLiteral(ZQ_SAMPLES_DIR));
  static const QRegularExpression record(QStringLiteral("\\n *0\\r?\\n(POLYLINE|MESH|MLINE|WIPEOUT|SHAPE)\\r?\\n"));
  for (const QString& n : dir.entryList({QStringLiteral("*.dxf")}, QDir::Files)) {
    QFile f(dir.filePath(n));
    if (n.contains(QLatin1String("recover01"))) continue;
    if (f.open(QIODevice::ReadOnly) && QString::fromLatin1(f.readAll()).contains(record)) out.push_back(n.toStdString());
  }
  return out;
}

double numberOf(const CZqVariant& v) { return v.GetType() == CZqVariant::kVtInt32 ? v.GetInt32() : v.GetDouble(); }

class MeshSamplesTest : public ZqDrawingTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(MeshSamplesTest, RoundTripsAndEditsReadBackByEzdxf) {
  const QString path = QString(ZQ_SAMPLES_DIR) + "/" + QString::fromStdString(GetParam());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray original = file.readAll();
  QString error;
  db = OdDxf::readDrawing(original, error);
  ASSERT_TRUE(db) << error.toStdString();
  EXPECT_EQ(OdDxf::writeDrawing(db.get()), original);
  // Coordinates are edited in the WCS, as ezdxf reads them.
  db->setUCS(OdGePoint3d::kOrigin, OdGeVector3d::kXAxis, OdGeVector3d::kYAxis);

  // The first object of each kind, wherever it is, gets its edit.
  struct Done {
    OdDbObjectId id;
    double want;
    const Edit* edit;
  };
  std::vector<Done> done;
  OdDbObjectPtr blocks = db->getBlockTableId().openObject();
  for (const OdDbObjectId& block : static_cast<OdDbBlockTable*>(blocks.get())->recordIds()) {
    OdDbObjectPtr btr = block.openObject();
    for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(btr.get())->entityIds()) {
      OdRxClass* cls = id.openObject()->isA();
      for (const Edit& e : kEdits) {
        if (cls != e.cls() || std::any_of(done.begin(), done.end(), [&](const Done& d) { return d.edit == &e; })) continue;
        SCOPED_TRACE(std::string(e.row) + " " + id.getHandle().ascii().toStdString());
        const CZqVariant before = get(id, e.category, e.row, CZqVariant(int32_t(e.index)));
        if (before.GetType() == CZqVariant::kVtEmpty) continue;  // too few vertices
        double want = numberOf(before) + e.delta;
        if (e.cls == &OdDbSubDMesh::desc && want > 4) want -= 2;
        const CZqVariant value = before.GetType() == CZqVariant::kVtInt32 ? CZqVariant(int32_t(want)) : CZqVariant(want, true);
        ASSERT_EQ(set(id, e.category, e.row, value, CZqVariant(int32_t(e.index))), 5100);
        done.push_back({id, want, &e});
      }
    }
  }
  if (done.empty()) return;
  QTemporaryDir tmp;
  ASSERT_TRUE(OdDxf::writeDrawing(db.get(), tmp.filePath("out.dxf"), error)) << error.toStdString();
  int code = -1;
  const QMap<QString, QStringList> after = zqPythonRowsByHandle(kReadBack, {tmp.filePath("out.dxf")}, &code);
  ASSERT_EQ(code, 0);
  for (const Done& d : done) {
    const QString handle = d.id.getHandle().ascii().qstring().toUpper();
    SCOPED_TRACE(handle.toStdString());
    ASSERT_TRUE(after.contains(handle));
    EXPECT_EQ(after[handle][1].toStdString(), d.edit->dxfType);
    EXPECT_NEAR(after[handle][2].toDouble(), d.want, 1e-9);
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, MeshSamplesTest, ::testing::ValuesIn(samplesWithKinds()), [](const auto& info) {
  std::string name = info.param;
  for (char& ch : name)
    if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
  return name;
});

}  // namespace
