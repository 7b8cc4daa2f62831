#include "BigDrawing.h"
#include "DxfDatabase.h"
#include "RxModule.h"
#include "ZqServices.h"

ZqLoadedDrawing& zqLoadedBigDrawing() {
  static ZqLoadedDrawing d = [] {
    odDbInitialize();
    GetZqSystemServices()->SetEchoToStderr(false);
    odrxDynamicLinker()->loadModule("ZQProperties");
    ZqLoadedDrawing loaded;
    QString error;
    loaded.db = OdDxf::readDrawing(zqBigDrawing(), error);
    if (!loaded.db) qFatal("the generated drawing does not load: %s", qPrintable(error));
    OdDbObjectPtr ms = loaded.db->getModelSpaceId().openObject();
    loaded.ids = static_cast<OdDbBlockTableRecord*>(ms.get())->entityIds();
    return loaded;
  }();
  return d;
}
