// zqprops: lists the Properties-palette rows and the information listing of
// drawing objects, with ZQProperties loaded as the CAD host loads it.
#include "Listing.h"
#include "RxModule.h"
#include "DbPlainClasses.h"
#include "ZqServices.h"
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>
#include <cstdio>

namespace {

// A small drawing: three lines, one of them vertical, under a rotated and
// shifted UCS.
OdDbDatabasePtr demoDrawing() {
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  const double a = OdaPI / 6;
  db->setUCS(OdGePoint3d(10, 5, 0), OdGeVector3d(std::cos(a), std::sin(a), 0), OdGeVector3d(-std::sin(a), std::cos(a), 0));
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  auto* space = static_cast<OdDbBlockTableRecord*>(ms.get());
  const OdGePoint3d ends[][2] = {{{0, 0, 0}, {10, 0, 0}}, {{2, 3, 0}, {8, 11, 0}}, {{5, 5, 0}, {5, 5, 7.5}}};
  for (const auto& e : ends) {
    OdDbLinePtr line = OdDbLine::createObject();
    line->setDatabaseDefaults(db.get());
    line->setStartPoint(e[0]);
    line->setEndPoint(e[1]);
    space->appendOdDbEntity(line.get());
  }
  return db;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  QCoreApplication::setApplicationName("zqprops");
  QCommandLineParser parser;
  parser.setApplicationDescription("Lists the properties and information of drawing objects.");
  parser.addHelpOption();
  QCommandLineOption demo("demo", "Use a built-in demonstration drawing.");
  QCommandLineOption list("list", "Print each object's palette rows.");
  QCommandLineOption info("info", "Print each object's information listing.");
  QCommandLineOption json("json", "Print JSON instead of text.");
  QCommandLineOption ucs("ucs", "List information in the current UCS.");
  parser.addOptions({demo, list, info, json, ucs});
  parser.process(app);

  QTextStream err(stderr);
  odDbInitialize();
  if (!odrxDynamicLinker()->loadModule("ZQProperties")) {
    err << "zqprops: cannot load ZQProperties: " << odrxDynamicLinker()->lastError().qstring() << "\n";
    return 2;
  }
  if (!parser.isSet(demo)) {
    err << "zqprops: no drawing given (use --demo)\n";
    return 2;
  }
  OdDbDatabasePtr db = demoDrawing();
  OdDbObjectPtr ms = db->getModelSpaceId().openObject();
  const OdDbObjectIdArray ids = static_cast<OdDbBlockTableRecord*>(ms.get())->entityIds();
  ms.release();
  const bool doList = parser.isSet(list) || !parser.isSet(info);
  QTextStream out(stdout);
  if (parser.isSet(json)) {
    QJsonArray objects;
    for (const OdDbObjectId& id : ids) {
      QJsonObject o = doList ? zqRowsJson(db.get(), id) : QJsonObject{{"handle", QString(id.getHandle().ascii())}};
      if (parser.isSet(info)) o["lines"] = zqInfoJson(db.get(), id, parser.isSet(ucs))["lines"];
      objects.append(o);
    }
    out << QJsonDocument(QJsonObject{{"drawing", "demo"}, {"objects", objects}}).toJson();
  } else {
    for (const OdDbObjectId& id : ids) {
      if (doList) zqPrintRows(out, db.get(), id);
      if (parser.isSet(info)) zqPrintInfo(out, db.get(), id, parser.isSet(ucs));
    }
  }
  out.flush();
  db.release();
  odrxDynamicLinker()->unloadModule("ZQProperties");
  return 0;
}
