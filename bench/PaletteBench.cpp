// Speed of the zqpalette window's work on a drawing of 100,000 objects (see
// BigDrawing.h): selecting every object and reading the palette's rows,
// building the drawing view's outlines and grid, drawing the whole view,
// and picking with the grid.
#ifdef ZQ_HAVE_PALETTE
#include "BigDrawing.h"
#include "DbCircle.h"
#include "DbLine.h"
#include "DrawingView.h"
#include "DxfDatabase.h"
#include "PaletteModel.h"
#include "RxModule.h"
#include "ZqServices.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QPainter>

namespace {

// The big drawing, in a process with a (offscreen) application for the widgets.
ZqLoadedDrawing& drawing() {
  static const bool app = [] {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "zq_bench";
    static char* argv[] = {name, nullptr};
    if (!qApp) new QApplication(argc, argv);
    return true;
  }();
  (void)app;
  return zqLoadedBigDrawing();
}

// Every object selected, grouped by class, and every row of the palette
// read (what an open palette shows): the figure to keep under 300 ms.
void BM_PaletteSelectAll(benchmark::State& state) {
  ZqLoadedDrawing& d = drawing();
  ZqPaletteModel model;
  model.setDatabase(d.db.get());
  for (auto _ : state) {
    model.setSelection(d.ids);
    benchmark::DoNotOptimize(model.rows());
  }
  state.counters["objects"] = double(d.ids.size());
}
BENCHMARK(BM_PaletteSelectAll)->Unit(benchmark::kMillisecond);

// The same through the kernel's service, which reads every row of every
// object: what the palette would cost without rows per class.
void BM_ServiceRowsAll(benchmark::State& state) {
  ZqLoadedDrawing& d = drawing();
  CZqPropertiesWindowService service(d.db.get());
  for (auto _ : state) {
    service.SetSelection(d.ids);
    benchmark::DoNotOptimize(service.Rows());
  }
}
BENCHMARK(BM_ServiceRowsAll)->Unit(benchmark::kMillisecond)->Iterations(1);

void BM_DrawingBuild(benchmark::State& state) {
  ZqLoadedDrawing& d = drawing();
  for (auto _ : state) {
    ZqDrawingGeometry g;
    g.build(d.db.get(), d.db->getModelSpaceId());
    benchmark::DoNotOptimize(g.items().size());
  }
}
BENCHMARK(BM_DrawingBuild)->Unit(benchmark::kMillisecond);

// One frame of the view: the whole drawing (arg 0) or a tenth of its width
// (arg 1), where the grid leaves most objects out.
void BM_DrawingPaint(benchmark::State& state) {
  ZqLoadedDrawing& d = drawing();
  ZqDrawingView view;
  view.resize(1280, 800);
  view.setBlock(d.db.get(), d.db->getModelSpaceId());
  if (state.range(0) == 1) {
    QWheelEvent zoom(QPointF(640, 400), QPointF(640, 400), QPoint(), QPoint(0, 1600), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &zoom);
  }
  QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    view.render(&image);
    benchmark::DoNotOptimize(image.bits());
  }
}
BENCHMARK(BM_DrawingPaint)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_DrawingPick(benchmark::State& state) {
  ZqLoadedDrawing& d = drawing();
  ZqDrawingGeometry g;
  g.build(d.db.get(), d.db->getModelSpaceId());
  const QRectF e = g.extents();
  int i = 0;
  for (auto _ : state) {
    const QPointF at(e.left() + e.width() * ((i * 37) % 101) / 100.0, e.top() + e.height() * ((i * 53) % 97) / 96.0);
    benchmark::DoNotOptimize(g.pick(at, e.width() / 2000));
    ++i;
  }
}
BENCHMARK(BM_DrawingPick)->Unit(benchmark::kMicrosecond);

// A drawing as drawings are: a million small objects side by side (a
// 1000 x 1000 field of short lines and circles), built in memory.
struct FieldDrawing {
  FieldDrawing() {
    drawing();  // the application and the platform
    db = OdDbDatabase::createObject();
    OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
    auto* space = static_cast<OdDbBlockTableRecord*>(ms.get());
    for (int i = 0; i < 1000; ++i)
      for (int j = 0; j < 1000; ++j) {
        if ((i + j) % 2) {
          OdSmartPtr<OdDbLine> line = OdDbLine::createObject();
          line->setStartPoint(OdGePoint3d(i * 10.0, j * 10.0, 0));
          line->setEndPoint(OdGePoint3d(i * 10.0 + 7, j * 10.0 + 4, 0));
          space->appendOdDbEntity(line.get());
        } else {
          OdSmartPtr<OdDbCircle> circle = OdDbCircle::createObject();
          circle->setCenter(OdGePoint3d(i * 10.0 + 4, j * 10.0 + 4, 0));
          circle->setRadius(3);
          space->appendOdDbEntity(circle.get());
        }
      }
  }
  OdDbDatabasePtr db;
};

FieldDrawing& field() {
  static FieldDrawing d;
  return d;
}

void BM_FieldBuild(benchmark::State& state) {
  FieldDrawing& d = field();
  for (auto _ : state) {
    ZqDrawingGeometry g;
    g.build(d.db.get(), d.db->getModelSpaceId());
    benchmark::DoNotOptimize(g.items().size());
  }
}
BENCHMARK(BM_FieldBuild)->Unit(benchmark::kMillisecond)->Iterations(1);

// One frame while panning the million-object field: zoomed in so that a
// few thousand objects are on screen (arg 1), or the whole field (arg 0).
void BM_FieldPanFrame(benchmark::State& state) {
  FieldDrawing& d = field();
  ZqDrawingView view;
  view.resize(1280, 800);
  view.setBlock(d.db.get(), d.db->getModelSpaceId());
  if (state.range(0) == 1) {
    QWheelEvent zoom(QPointF(640, 400), QPointF(640, 400), QPoint(), QPoint(0, 2400), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&view, &zoom);
  }
  QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
  int step = 0;
  for (auto _ : state) {
    // Each frame a little further, as a drag pans.
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(600, 400), QPointF(600, 400), Qt::MiddleButton, Qt::MiddleButton, Qt::NoModifier);
    QMouseEvent move(QEvent::MouseMove, QPointF(600 + (step++ % 2 ? 30 : -30), 400), QPointF(), Qt::NoButton, Qt::MiddleButton, Qt::NoModifier);
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::MiddleButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&view, &press);
    QApplication::sendEvent(&view, &move);
    QApplication::sendEvent(&view, &release);
    view.render(&image);
    benchmark::DoNotOptimize(image.bits());
  }
}
BENCHMARK(BM_FieldPanFrame)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_FieldPick(benchmark::State& state) {
  FieldDrawing& d = field();
  ZqDrawingGeometry g;
  g.build(d.db.get(), d.db->getModelSpaceId());
  int i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(g.pick(QPointF((i * 37) % 10000 + 0.5, (i * 53) % 10000 + 0.3), 0.5));
    ++i;
  }
}
BENCHMARK(BM_FieldPick)->Unit(benchmark::kMicrosecond);

}  // namespace
#endif
