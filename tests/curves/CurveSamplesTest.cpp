// Every arc, ellipse, 2D polyline, spline, 3D face, solid and trace of the sample drawings, in every
// block (model and paper space and block definitions): its own provider
// serves it with its own rows, and it lists its own information lines.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"
#include <QDir>

namespace {

struct Kind {
  OdRxClass* (*cls)();
  const char* provider;
  const char* category;
  const char* row;        // a row of the provider's own that every object has a value for
  CZqVariant::_Type type; // the kind of that value
  const char* infoLabel;  // a line of its own in the listing
};
const Kind kKinds[] = {
    {&OdDbArc::desc, "CZqArcPE", "Geometry", "Arc length", CZqVariant::kVtDouble, "Total angle"},
    {&OdDbEllipse::desc, "CZqEllipsePE", "Geometry", "Major radius", CZqVariant::kVtDouble, "Radius ratio"},
    {&OdDb2dPolyline::desc, "CZq2dPolylinePE", "Geometry", "Length", CZqVariant::kVtDouble, "Perimeter"},
    {&OdDbSpline::desc, "CZqSplinePE_Prop", "Geometry", "Length", CZqVariant::kVtDouble, "Degree"},
    {&OdDbFace::desc, "CZqFacePE", "Geometry", "Vertex X", CZqVariant::kVtDouble, "Location 3"},
    {&OdDbSolid::desc, "CZqSolidPE", "Geometry", "Vertex X", CZqVariant::kVtDouble, "Location 3"},
    {&OdDbTrace::desc, "CZqTracePE", "Geometry", "Vertex X", CZqVariant::kVtDouble, "Location 3"},
    {&OdDb3dPolyline::desc, "CZq3dPolylinePE", "Geometry", "Vertex Z", CZqVariant::kVtDouble, "Location 0"},
    {&OdDbPolyFaceMesh::desc, "CZqPolyFaceMeshPE", "Misc", "Face count", CZqVariant::kVtInt32, "Surface area"},
    {&OdDbPolygonMesh::desc, "CZqPolygonMeshPE", "Geometry", "Vertex Z", CZqVariant::kVtDouble, "Surface area"},
    {&OdDbSubDMesh::desc, "CZqSubDMeshPE", "Geometry", "Smoothness", CZqVariant::kVtInt32, "Edge count"},
    {&OdDbMline::desc, "CZqMlinePE", "Geometry", "Vertex X", CZqVariant::kVtDouble, "Location 0"},
    {&OdDbShape::desc, "CZqShapePE", "Misc", "Height", CZqVariant::kVtDouble, "Oblique angle"},
};

std::vector<std::string> samples() {
  std::vector<std::string> out;
  for (const QString& n : QDir(QStringLiteral(ZQ_SAMPLES_DIR)).entryList({QStringLiteral("*.dxf")}, QDir::Files))
    if (!n.contains(QLatin1String("recover01")) && !n.contains(QLatin1String("duplicate_handles"))) out.push_back(n.toStdString());
  return out;
}

class CurveSamplesTest : public ZqDrawingTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(CurveSamplesTest, EveryObjectListsWithItsOwnRows) {
  QString error;
  db = OdDxf::readDrawing(QString(ZQ_SAMPLES_DIR) + "/" + QString::fromStdString(GetParam()), error);
  ASSERT_TRUE(db) << error.toStdString();
  OdDbObjectPtr blocks = db->getBlockTableId().openObject();
  for (const OdDbObjectId& block : static_cast<OdDbBlockTable*>(blocks.get())->recordIds()) {
    OdDbObjectPtr btr = block.openObject();
    for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(btr.get())->entityIds()) {
      OdDbObjectPtr obj = id.openObject();
      for (const Kind& k : kKinds) {
        if (obj->isA() != k.cls()) continue;
        SCOPED_TRACE(std::string(k.provider) + " " + id.getHandle().ascii().toStdString());
        ASSERT_NE(zqProviderFor(obj.get()), nullptr);
        EXPECT_EQ(zqProviderFor(obj.get())->isA()->name().toStdString(), k.provider);
        EXPECT_EQ(get(id, k.category, k.row).GetType(), k.type);
        EXPECT_NE(infoLine(info(id), k.infoLabel), nullptr);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Samples, CurveSamplesTest, ::testing::ValuesIn(samples()), [](const auto& info) {
  std::string name = info.param;
  for (char& ch : name)
    if (!std::isalnum(static_cast<unsigned char>(ch))) ch = '_';
  return name;
});

}  // namespace
