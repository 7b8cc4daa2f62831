// The zqpalette window on real drawings, offscreen: the palette's rows for a
// selection, edits typed into its editors, refusals, undo, the selection
// list, the drawing view's picking, and agreement with zqprops --json.
#include "ZqTestSupport.h"
#include "../host/ZqpropsRun.h"
#include "DrawingView.h"
#include "PaletteWidget.h"
#include "PaletteWindow.h"
#include "Listing.h"
#include "DbBlockReference.h"
#include "DbCircle.h"
#include "DbHatch.h"
#include "DbLine.h"
#include "DbPolyline.h"
#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>
#include <cmath>

// Under LeakSanitizer: the font and platform libraries keep caches for the
// life of the process, which nothing frees at exit.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig.so\nleak:libfreetype.so\nleak:libQt6Gui.so\nleak:libqoffscreen.so\n";
}

namespace {

const QString kDemo = QString(ZQ_SOURCE_DIR) + "/samples/demo.dxf";
const QString kExample = QString(ZQ_SAMPLES_DIR) + "/libredwg__test__test-data__example_2000.dxf";

class PaletteTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "test_palette";
    static char* argv[] = {name, nullptr};
    if (!qApp) new QApplication(argc, argv);
    // Recent files go to the test's settings, not the user's.
    QStandardPaths::setTestModeEnabled(true);
    zqEnsureModuleLoaded();
  }
  void SetUp() override {
    window = std::make_unique<ZqPaletteWindow>();
    window->setAskOnClose(false);
    window->palette()->setMessageBoxes(false);
    window->resize(1200, 800);
    window->show();
  }
  void open(const QString& path) {
    QString why;
    ASSERT_TRUE(window->openDrawing(path, &why)) << why.toStdString();
  }
  void select(const QStringList& handles) {
    QString why;
    ASSERT_TRUE(window->selectHandles(handles, &why)) << why.toStdString();
  }
  ZqPaletteModel* model() { return window->palette()->model(); }
  QString text(const char* name) { return model()->find({}, name).data().toString(); }
  template <class T>
  OdSmartPtr<T> object(const char* handle) {
    return T::cast(window->database()->getOdDbObjectId(OdDbHandle(quint64(QString(handle).toULongLong(nullptr, 16)))).openObject().get());
  }
  // Types text into the row's editor in the palette and presses Enter.
  void type(const char* row, const QString& value) {
    QTreeView* tree = window->palette()->tree();
    const QModelIndex at = model()->find({}, row);
    ASSERT_TRUE(at.isValid()) << row;
    // Making the row current opens its editor, as a click does.
    tree->setCurrentIndex(at);
    QLineEdit* line = nullptr;
    for (QLineEdit* e : tree->viewport()->findChildren<QLineEdit*>())
      if (e->isVisible()) line = e;
    ASSERT_NE(line, nullptr) << "no line editor for " << row;
    line->selectAll();
    QTest::keyClicks(line, value);
    QTest::keyClick(line, Qt::Key_Return);
    // The editor closes, then the edit runs (a queued call).
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
  }
  std::unique_ptr<ZqPaletteWindow> window;
};

TEST_F(PaletteTest, TwoLinesOfDifferentLengthVaryAndAddUp) {
  open(kDemo);
  select({"12", "13"});
  auto length = [&](const char* h) {
    auto line = object<OdDbLine>(h);
    return line->startPoint().distanceTo(line->endPoint());
  };
  const double a = length("12"), b = length("13");
  ASSERT_NE(a, b);
  EXPECT_EQ(text("Length"), QCoreApplication::translate("property_values", "*VARIES*"));
  EXPECT_NEAR(text("Total Length").toDouble(), a + b, 1e-4);
  // Rows both lines share with one value show it.
  EXPECT_EQ(text("Layer"), object<OdDbLine>("12")->layer().qstring());
}

TEST_F(PaletteTest, TypedStartXChangesTheLineAndUndoRestoresIt) {
  open(kDemo);
  select({"12"});
  // Coordinates are typed in the drawing's current UCS.
  OdDbDatabase* db = window->database();
  auto ucsX = [&](const OdGePoint3d& p) { return (p - db->getUCSORG()).dotProduct(db->getUCSXDIR()); };
  const OdGePoint3d before = object<OdDbLine>("12")->startPoint();
  type("Start X", "25");
  EXPECT_NEAR(ucsX(object<OdDbLine>("12")->startPoint()), 25.0, 1e-9);
  EXPECT_FALSE(object<OdDbLine>("12")->startPoint().isEqualTo(before));
  EXPECT_EQ(text("Start X").toDouble(), 25.0);
  EXPECT_TRUE(window->windowTitle().contains('*'));
  window->undoAction()->trigger();
  EXPECT_TRUE(object<OdDbLine>("12")->startPoint().isEqualTo(before));
  EXPECT_NEAR(text("Start X").toDouble(), ucsX(before), 1e-4);
  window->redoAction()->trigger();
  EXPECT_NEAR(ucsX(object<OdDbLine>("12")->startPoint()), 25.0, 1e-9);
}

// A radius the circle cannot have, typed or unreadable, is refused with a
// sentence and leaves the circle and the field as they were.
class RefusedRadius : public PaletteTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(RefusedRadius, ShowsWhyAndKeepsTheValue) {
  open(kDemo);
  select({"19"});
  const double before = object<OdDbCircle>("19")->radius();
  const QString shown = text("Radius");
  type("Radius", GetParam());
  EXPECT_EQ(object<OdDbCircle>("19")->radius(), before);
  EXPECT_EQ(text("Radius"), shown);
  const QString message = window->palette()->lastMessage();
  EXPECT_TRUE(message.contains("Radius") || message.contains("positive")) << message.toStdString();
  EXPECT_FALSE(window->windowTitle().contains('*'));
}
INSTANTIATE_TEST_SUITE_P(Values, RefusedRadius, ::testing::Values("0", "abc", "1e999"));

TEST_F(PaletteTest, SelectionListCountsEachClassAndFilters) {
  open(kDemo);
  // Every object of model space, counted by an independent reader.
  int code = 0;
  const QMap<QString, QStringList> byHandle =
      zqPythonRowsByHandle("import ezdxf,sys\nfor e in ezdxf.readfile(sys.argv[1]).modelspace(): print(e.dxf.handle, e.dxftype())", {kDemo}, &code);
  ASSERT_EQ(code, 0);
  QMap<QString, int> expected;
  for (const QStringList& fields : byHandle) ++expected[fields.value(1)];
  window->selectHandles(byHandle.keys());
  QStringList entries;
  for (int i = 0; i < window->palette()->classList()->count(); ++i) entries << window->palette()->classList()->itemText(i);
  ASSERT_EQ(entries.size(), int(model()->groups().size()) + 1);
  EXPECT_EQ(entries.front(), QCoreApplication::translate("zqpalette", "All (%1)").arg(byHandle.size()));
  QMap<QString, int> counted;
  for (size_t g = 0; g < model()->groups().size(); ++g) {
    const ZqPaletteClassGroup& group = model()->groups()[g];
    counted[group.cls->dxfName().qstring()] += int(group.ids.size());
    EXPECT_EQ(entries[int(g) + 1], QString("%1 (%2)").arg(group.name).arg(group.ids.size()));
  }
  EXPECT_EQ(counted, expected);
  // Choosing the circles shows the circle's rows only for them.
  const auto circle = std::find_if(model()->groups().begin(), model()->groups().end(),
                                   [](const ZqPaletteClassGroup& g) { return g.cls->dxfName() == OdString("CIRCLE"); });
  ASSERT_NE(circle, model()->groups().end());
  EXPECT_FALSE(model()->find({}, "Radius").isValid());
  window->palette()->classList()->setCurrentIndex(int(circle - model()->groups().begin()) + 1);
  EXPECT_TRUE(model()->find({}, "Radius").isValid());
  EXPECT_EQ(model()->activeObjects().size(), circle->ids.size());
}

TEST_F(PaletteTest, ClickAndWindowPickFromTheView) {
  open(kDemo);
  ZqDrawingView* view = window->view();
  QCoreApplication::processEvents();
  view->zoomExtents();
  auto line = object<OdDbLine>("12");
  // A quarter along the line: no other object passes there.
  const QPointF at(line->startPoint().x * 0.75 + line->endPoint().x * 0.25, line->startPoint().y * 0.75 + line->endPoint().y * 0.25);
  QTest::mouseClick(view, Qt::LeftButton, {}, view->toScreen(at).toPoint());
  ASSERT_EQ(model()->selection().size(), 1u);
  EXPECT_EQ(model()->selection().front(), line->objectId());
  // A window around the circle (left to right) picks it, and not the lines
  // crossing it.
  auto circle = object<OdDbCircle>("19");
  const double r = circle->radius() * 1.05;
  const QPointF lo = view->toScreen(QPointF(circle->center().x - r, circle->center().y + r));
  const QPointF hi = view->toScreen(QPointF(circle->center().x + r, circle->center().y - r));
  QTest::mousePress(view, Qt::LeftButton, {}, lo.toPoint());
  QMouseEvent move(QEvent::MouseMove, hi, view->mapToGlobal(hi), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view, &move);
  QTest::mouseRelease(view, Qt::LeftButton, {}, hi.toPoint());
  const OdDbObjectIdArray& picked = model()->selection();
  EXPECT_TRUE(picked.contains(circle->objectId()));
  EXPECT_FALSE(picked.contains(object<OdDbLine>("14")->objectId()));
  EXPECT_FALSE(picked.contains(line->objectId()));
}

// Each kind of row gets its editor; a choice made in a list is applied.
TEST_F(PaletteTest, EditorsFollowTheRowKind) {
  open(kDemo);
  select({"17"});
  QTreeView* tree = window->palette()->tree();
  auto editorFor = [&](const char* row) -> QWidget* {
    const QModelIndex at = model()->find({}, row);
    if (!at.isValid()) return nullptr;
    tree->setCurrentIndex(at);
    for (QWidget* w : tree->viewport()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
      if (w->isVisible() && (qobject_cast<QComboBox*>(w) || qobject_cast<QSpinBox*>(w) || qobject_cast<QLineEdit*>(w))) return w;
    return nullptr;
  };
  const struct {
    const char* row;
    const char* editor;  // class name, or "" for none (read-only)
  } cases[] = {{"Vertex", "QSpinBox"}, {"Layer", "QComboBox"}, {"Closed", "QComboBox"}, {"Color", "QComboBox"},
               {"Lineweight", "QComboBox"}, {"Vertex X", "QLineEdit"}, {"Length", ""}};
  for (const auto& c : cases) {
    QWidget* w = editorFor(c.row);
    EXPECT_EQ(w ? QString(w->metaObject()->className()) : QString(), QString(c.editor)) << c.row;
    tree->setCurrentIndex({});
    QCoreApplication::processEvents();
  }
  // The layer list holds the drawing's layers; choosing one moves the polyline.
  auto* layers = qobject_cast<QComboBox*>(editorFor("Layer"));
  ASSERT_NE(layers, nullptr);
  const int axis = layers->findText("Axis");
  ASSERT_GE(axis, 0);
  layers->setCurrentIndex(axis);
  QTest::keyClick(layers, Qt::Key_Return);
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  EXPECT_EQ(object<OdDbEntity>("17")->layer().qstring(), QString("Axis"));
}

// The view's outline of a closed polyline encloses the polyline's area,
// arcs of its bulges included (computed here from the bulge's definition).
TEST_F(PaletteTest, OutlinesOfClosedPolylinesEncloseTheirArea) {
  int arcs = 0;
  for (const QString& path : {kDemo, kExample}) {
    if (!QFile::exists(path)) continue;
    open(path);
    const ZqDrawingGeometry& g = window->view()->geometry();
    for (const ZqDrawingGeometry::Item& it : g.items()) {
      auto pl = OdDbPolyline::cast(it.id.openObject().get());
      if (!pl || !pl->isClosed() || pl->numVerts() < 2 || it.polyCount != 1) continue;
      double expected = 0;
      const unsigned n = pl->numVerts();
      for (unsigned i = 0; i < n; ++i) {
        OdGePoint3d p, q;
        pl->getPointAt(i, p);
        pl->getPointAt((i + 1) % n, q);
        expected += (p.x * q.y - q.x * p.y) / 2;
        if (const double b = pl->getBulgeAt(i); b != 0) {
          const double theta = 4 * std::atan(b), chord = std::hypot(q.x - p.x, q.y - p.y);
          const double r = chord / (2 * std::sin(std::fabs(theta) / 2));
          expected += r * r / 2 * (theta - std::sin(theta));
          ++arcs;
        }
      }
      const ZqDrawingGeometry::Poly& poly = g.polys()[it.firstPoly];
      double drawn = 0;
      for (quint32 k = 0; k < poly.count; ++k) {
        const QPointF a = g.points()[poly.first + k], c = g.points()[poly.first + (k + 1) % poly.count];
        drawn += (a.x() * c.y() - c.x() * a.y()) / 2;
      }
      EXPECT_NEAR(drawn, expected, std::fabs(expected) * 0.01) << path.toStdString() << " " << pl->objectId().getHandle().ascii().qstring().toStdString();
    }
  }
  EXPECT_GT(arcs, 0) << "no closed polyline with an arc was drawn";
}

// Block references draw their block's lines where they place them, and
// hatches the outlines of their loops: one outline per line or loop, over
// the box the placed points span (computed here from the objects' data).
TEST_F(PaletteTest, BlockReferencesAndHatchesDrawTheirGeometry) {
  int references = 0, hatches = 0;
  for (const char* name : {"libredwg__test__test-data__2000__entities-2d.dxf", "libredwg__test__test-data__2013__gh109_1.dxf"}) {
    open(QString(ZQ_SAMPLES_DIR) + "/" + name);
    const ZqDrawingGeometry& g = window->view()->geometry();
    for (const ZqDrawingGeometry::Item& it : g.items()) {
      OdDbObjectPtr obj = it.id.openObject();
      double x0 = 1e300, y0 = 1e300, x1 = -1e300, y1 = -1e300;
      quint32 outlines = 0;
      auto take = [&](const OdGePoint3d& p) {
        x0 = std::min(x0, p.x), y0 = std::min(y0, p.y), x1 = std::max(x1, p.x), y1 = std::max(y1, p.y);
      };
      if (auto ref = OdDbBlockReference::cast(obj.get())) {
        OdDbObjectPtr block = ref->blockTableRecord().openObject();
        auto btr = OdDbBlockTableRecord::cast(block.get());
        if (!btr || btr->entityIds().isEmpty() || !ref->attributeIds().isEmpty()) continue;
        bool linesOnly = true;
        for (const OdDbObjectId& id : btr->entityIds()) {
          auto line = OdDbLine::cast(id.openObject().get());
          if (!line) {
            linesOnly = false;
            break;
          }
          take(ref->blockTransform() * line->startPoint());
          take(ref->blockTransform() * line->endPoint());
          ++outlines;
        }
        if (!linesOnly) continue;
        ++references;
      } else if (auto hatch = OdDbHatch::cast(obj.get())) {
        for (int l = 0; l < hatch->numLoops(); ++l) {
          const OdDbHatch::Loop& loop = hatch->loopAt(l);
          if (!(loop.type & OdDbHatch::kPolyline)) continue;
          for (const OdGePoint2d& v : loop.vertices) take(OdGePoint3d(v.x, v.y, 0));
          ++outlines;
        }
        if (outlines != quint32(hatch->numLoops()) || hatch->normal() != OdGeVector3d::kZAxis) continue;
        ++hatches;
      } else {
        continue;
      }
      const std::string where = std::string(name) + " " + it.id.getHandle().ascii().qstring().toStdString();
      EXPECT_FALSE(it.boxOnly) << where;
      EXPECT_EQ(it.polyCount, outlines) << where;
      EXPECT_NEAR(it.box.left(), x0, 1e-6) << where;
      EXPECT_NEAR(it.box.right(), x1, 1e-6) << where;
      EXPECT_NEAR(it.box.top(), y0, 1e-6) << where;
      EXPECT_NEAR(it.box.bottom(), y1, 1e-6) << where;
    }
  }
  EXPECT_GE(references, 2);
  EXPECT_GE(hatches, 1);
}

// For each object of a drawing alone, the palette shows the rows zqprops
// --json lists: same keys in the same order, same texts, same greying.
class RowsAsJson : public PaletteTest, public ::testing::WithParamInterface<QString> {};

TEST_P(RowsAsJson, EveryObjectAlone) {
  const QString path = GetParam();
  if (!QFile::exists(path)) GTEST_SKIP() << "no sample " << path.toStdString();
  const ProgramRun run = zqprops({path, "--json", "--space", "all"});
  ASSERT_EQ(run.code, 0) << run.err.toStdString();
  const QJsonArray objects = QJsonDocument::fromJson(run.out.toUtf8()).object()["objects"].toArray();
  ASSERT_FALSE(objects.isEmpty());
  open(path);
  for (const QJsonValue& o : objects) {
    const QString handle = o["handle"].toString();
    select({handle});
    const std::vector<CZqPaletteRow> rows = model()->rows();
    const QStringList keys = o["rows"].toObject().keys();  // sorted; order is checked below
    // A key repeated within one object is listed as "key#2", "key#3", ...
    QStringList shownKeys;
    QMap<QString, int> repeats;
    for (const CZqPaletteRow& r : rows) {
      const int n = ++repeats[zqRowKey(r)];
      shownKeys << (n > 1 ? QString("%1#%2").arg(zqRowKey(r)).arg(n) : zqRowKey(r));
    }
    QStringList sorted = shownKeys;
    sorted.sort();
    ASSERT_EQ(sorted, keys) << handle.toStdString();
    for (size_t i = 0; i < rows.size(); ++i) {
      const CZqPaletteRow& r = rows[i];
      const QJsonObject j = o["rows"].toObject()[shownKeys[qsizetype(i)]].toObject();
      EXPECT_EQ(r.text.qstring(), j["text"].toString()) << handle.toStdString() << " " << zqRowKey(r).toStdString();
      EXPECT_EQ(r.readOnly, j["readOnly"].toBool()) << handle.toStdString() << " " << zqRowKey(r).toStdString();
    }
    // Palette order: the rows of one category stand together.
    QStringList seen;
    for (const CZqPaletteRow& r : rows) {
      const QString c = r.categoryKey.qstring();
      if (!seen.isEmpty() && seen.back() == c) continue;
      EXPECT_FALSE(seen.contains(c)) << handle.toStdString() << " category " << c.toStdString() << " split";
      seen << c;
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Samples, RowsAsJson, ::testing::Values(kDemo, kExample));

}  // namespace
