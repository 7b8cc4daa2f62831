// zqmkdemo: writes the project's demonstration drawing, with one object of
// every kind that has a provider, under a rotated and shifted UCS.
//
//   zqmkdemo OUT.dxf
#include "DxfDatabase.h"
#include "DbPlainClasses.h"
#include "CZqCloudBase.h"
#include <QCoreApplication>
#include <QTextStream>
#include <cmath>

namespace {

OdDbObjectId append(OdDbDatabase* db, OdDbEntity* e, const char* layer = nullptr) {
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  e->setDatabaseDefaults(db);
  if (layer) {
    OdDbObjectPtr layers = db->getLayerTableId().openObject();
    e->setLayer(static_cast<OdDbSymbolTable*>(layers.get())->getAt(OdString(layer)));
  }
  return static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(e);
}

void addLayer(OdDbDatabase* db, const char* name, int color) {
  OdDbObjectPtr t = db->getLayerTableId().openObject(OdDb::kForWrite);
  auto layer = OdDbLayerTableRecord::createObject();
  layer->setName(name);
  layer->setColor(OdCmColor::fromIndex(color));
  layer->setLinetypeObjectId(db->getLinetypeContinuousId());
  static_cast<OdDbSymbolTable*>(t.get())->add(layer.get());
}

void addLine(OdDbDatabase* db, const OdGePoint3d& s, const OdGePoint3d& e, const char* layer) {
  OdDbLinePtr line = OdDbLine::createObject();
  line->setStartPoint(s);
  line->setEndPoint(e);
  append(db, line.get(), layer);
}

OdDbPolylinePtr polyline(const std::vector<std::pair<OdGePoint2d, double>>& vertices, bool closed) {
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  unsigned i = 0;
  for (const auto& [p, bulge] : vertices) pl->addVertexAt(i++, p, bulge);
  pl->setClosed(closed);
  return pl;
}

// A rectangular revision cloud around the given corners.
OdDbPolylinePtr revisionCloud(const OdGePoint2d& lo, const OdGePoint2d& hi, double arcRadius) {
  OdDbPolylinePtr base = polyline({{lo, 0}, {{hi.x, lo.y}, 0}, {hi, 0}, {{lo.x, hi.y}, 0}}, true);
  CLOUDLINE_COMMAND_DATA data;
  data.style = "Rectangular";
  data.arcRadius = arcRadius;
  CZqCloudBase generator;
  generator.setBaseCurve(base.get());
  generator.setCloudSetting(data);
  OdDbPolylinePtr cloud = OdDbPolyline::createObject();
  if (!generator.cloudBaseMain()) return cloud;
  for (unsigned i = 0; i < generator.points().length(); ++i)
    cloud->addVertexAt(i, generator.points()[i], generator.bulges()[i]);
  cloud->setClosed(generator.isClosed());
  return cloud;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QTextStream err(stderr);
  if (argc != 2) {
    err << "usage: zqmkdemo OUT.dxf\n";
    return 2;
  }
  odDbInitialize();
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  const double a = OdaPI / 6;
  db->setUCS(OdGePoint3d(10, 5, 0), OdGeVector3d(std::cos(a), std::sin(a), 0), OdGeVector3d(-std::sin(a), std::cos(a), 0));
  addLayer(db.get(), "Outline", 1);
  addLayer(db.get(), "Axis", 5);

  addLine(db.get(), {0, 0, 0}, {100, 0, 0}, "Outline");
  addLine(db.get(), {100, 0, 0}, {100, 60, 0}, "Outline");
  addLine(db.get(), {50, -10, 0}, {50, 70, 0}, "Axis");
  addLine(db.get(), {20, 20, 0}, {20, 20, 15}, "Outline");  // vertical

  // A lightweight polyline with an arc segment and widths.
  OdDbPolylinePtr pl = polyline({{{110, 0}, 0}, {{140, 0}, 0.5}, {{140, 30}, 0}, {{110, 30}, 0}}, true);
  pl->setConstantWidth(0.5);
  append(db.get(), pl.get(), "Outline");

  OdDbPolylinePtr cloud = revisionCloud({10, 10}, {40, 30}, 3.0);
  append(db.get(), cloud.get());
  CLOUDLINE_COMMAND_DATA settings;
  settings.style = "Rectangular";
  settings.arcRadius = 3.0;
  CZqCloudBase::WriteCloudData(cloud.get(), settings);

  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setCenter({70, 30, 0});
  circle->setRadius(12.5);
  append(db.get(), circle.get(), "Outline");

  OdDbPointPtr point = OdDbPoint::createObject();
  point->setPosition({70, 30, 0});
  append(db.get(), point.get(), "Axis");

  OdDbRayPtr ray = OdDbRay::createObject();
  ray->setBasePoint({0, 60, 0});
  ray->setUnitDir(OdGeVector3d(1, 1, 0).normal());
  append(db.get(), ray.get(), "Axis");

  OdDbXlinePtr xline = OdDbXline::createObject();
  xline->setBasePoint({70, 30, 0});
  xline->setUnitDir(OdGeVector3d(0, 1, 0));
  append(db.get(), xline.get(), "Axis");

  QString error;
  if (!OdDxf::writeDrawing(db.get(), QString::fromLocal8Bit(argv[1]), error)) {
    err << "zqmkdemo: " << error << "\n";
    return 1;
  }
  return 0;
}
