// zqmkdemo: writes the project's demonstration drawing, with one object of
// every kind that has a provider, under a rotated and shifted UCS.
//
//   zqmkdemo OUT.dxf
#include "DxfDatabase.h"
#include "DbPlainClasses.h"
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

  QString error;
  if (!OdDxf::writeDrawing(db.get(), QString::fromLocal8Bit(argv[1]), error)) {
    err << "zqmkdemo: " << error << "\n";
    return 1;
  }
  return 0;
}
