// Paper-space viewports: the size and place on the sheet, the model-space
// view, the status flags and the layers frozen in the viewport. What else a
// VIEWPORT record holds (clipping, UCS, grid, lighting) stays in the record
// untouched.
#include "DbPlainClasses.h"
#include "DbViewport.h"
#include "DxfMapping.h"

#include <QtMath>

namespace OdDxf::mapping {

void viewportFields(Fields<OdDbViewport>& f) {
  using V = OdDbViewport;
  RecordIO& io = f.io();
  f.subclass("AcDbViewport");
  f.point(10, &V::centerPoint, &V::setCenterPoint);
  f.real(40, &V::width, &V::setWidth);
  f.real(41, &V::height, &V::setHeight);
  f.integer(69, &V::number, &V::setNumber);
  f.point(
      12, [](const V* v) { return OdGePoint3d(v->viewCenter().x, v->viewCenter().y, 0); },
      [](V* v, const OdGePoint3d& p) { v->setViewCenter(OdGePoint2d(p.x, p.y)); }, Opt::Optional, 2);
  f.real(45, &V::viewHeight, &V::setViewHeight, 1.0, Opt::Optional);
  // The file keeps the twist in degrees.
  f.real(
      51, [](const V* v) { return qRadiansToDegrees(v->twistAngle()); },
      [](V* v, double deg) { v->setTwistAngle(qDegreesToRadians(deg)); }, 0.0, Opt::Optional);
  if (io.reading()) {
    OdDbObjectIdArray frozen;
    for (int i = io.find(331); i >= 0; i = io.find(331, i + 1)) {
      bool ok = false;
      const quint64 h = io.record().at(i).handle(&ok);
      const OdDbObjectId id = ok ? io.ctx().db->getOdDbObjectId(OdDbHandle(h)) : OdDbObjectId();
      if (!id.isNull()) frozen.append(id);
    }
    f.object()->setFrozenLayers(frozen);
  }
  f.integer(90, &V::statusFlags, &V::setStatusFlags, 0, Opt::Optional);
  f.integer(170, &V::shadePlot, &V::setShadePlot, 0, Opt::Optional);
}

}  // namespace OdDxf::mapping
