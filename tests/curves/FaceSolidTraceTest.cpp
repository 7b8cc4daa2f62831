// 3D faces, solids and traces: each corner in a rotated, shifted UCS, the
// edits of one corner (the others stay), a corner past the fourth refused,
// edge visibility and thickness, and the information lines.
#include "ZqTestSupport.h"

namespace {

const OdGePoint3d kCorners[4] = {{1, 2, 3}, {4, 2, 3}, {1, 6, 3}, {4, 6, 3}};

enum class Shape { Face, Solid, Trace };

struct ShapeCase {
  const char* name;
  Shape shape;
  const char* provider;
};

class QuadTest : public ZqDrawingTest, public ::testing::WithParamInterface<ShapeCase> {
 protected:
  OdDbObjectId add() {
    OdDbEntityPtr e;
    switch (GetParam().shape) {
      case Shape::Face: {
        OdDbFacePtr f = OdDbFace::createObject();
        for (unsigned i = 0; i < 4; ++i) f->setVertexAt(i, kCorners[i]);
        f->makeEdgeInvisibleAt(1);
        e = f;
        break;
      }
      case Shape::Solid: e = quad<OdDbSolid>(); break;
      case Shape::Trace: e = quad<OdDbTrace>(); break;
    }
    return addToModelSpace(e.get());
  }
  template <class T>
  OdDbEntityPtr quad() {
    OdSmartPtr<T> t = T::createObject();
    for (unsigned i = 0; i < 4; ++i) t->setPointAt(i, kCorners[i]);
    t->setThickness(0.5);
    return t;
  }
  OdGePoint3d corner(const OdDbObjectId& id, unsigned i) {
    OdDbObjectPtr o = id.openObject();
    OdGePoint3d p;
    if (auto* f = OdDbFace::cast(o.get()).get()) f->getVertexAt(i, p);
    else if (auto* s = OdDbSolid::cast(o.get()).get()) s->getPointAt(i, p);
    else if (auto* t = OdDbTrace::cast(o.get()).get()) t->getPointAt(i, p);
    return p;
  }
  static CZqVariant at(int i) { return CZqVariant(int32_t(i)); }
};

TEST_P(QuadTest, CornersAreShownAndEditedInTheUcs) {
  useRotatedUcs();
  const OdDbObjectId id = add();
  OdDbObjectPtr obj = id.openObject();
  EXPECT_EQ(zqProviderFor(obj.get())->isA()->name().toStdString(), GetParam().provider);
  obj.release();
  EXPECT_EQ(get(id, "Geometry", "Vertex", at(2)).GetCollection().GetCount(), 4);
  const char* rows[] = {"Vertex X", "Vertex Y", "Vertex Z"};
  for (int i = 0; i < 4; ++i)
    for (int axis = 0; axis < 3; ++axis)
      EXPECT_NEAR(get(id, "Geometry", rows[axis], at(i)).GetDouble(), toUcs(kCorners[i])[axis], 1e-9) << i << rows[axis];

  // One corner moves; the others stay.
  EXPECT_EQ(set(id, "Geometry", "Vertex Z", CZqVariant(-4.0, true), at(2)), 5100);
  EXPECT_NEAR(toUcs(corner(id, 2)).z, -4, 1e-9);
  EXPECT_NEAR(toUcs(corner(id, 2)).x, toUcs(kCorners[2]).x, 1e-9);
  for (unsigned i : {0u, 1u, 3u}) EXPECT_TRUE(corner(id, i).isEqualTo(kCorners[i], OdGeTol(1e-12))) << i;

  // There is no fifth corner: refused with a sentence, nothing changed.
  id.openObject(OdDb::kForWrite)->setModified(false);
  EXPECT_EQ(set(id, "Geometry", "Vertex X", CZqVariant(1.0, true), at(4)), -5001);
  EXPECT_EQ(messageCount(), 1u);
  EXPECT_FALSE(id.openObject()->isModified());
}

TEST_P(QuadTest, OwnRowsAndInformation) {
  const OdDbObjectId id = add();
  const auto lines = info(id, true);
  for (int i = 0; i < 4; ++i) EXPECT_NE(infoLine(lines, QStringLiteral("Location %1").arg(i).toUtf8().constData()), nullptr);
  if (GetParam().shape == Shape::Face) {
    // Edge 1 was made invisible: it lists so, and its row can show it again.
    EXPECT_NE(infoLine(lines, "Edge 1"), nullptr);
    EXPECT_EQ(infoLine(lines, "Edge 0"), nullptr);
    EXPECT_EQ(get(id, "Geometry", "Edge visible", at(1)).GetCollection().GetCurrent(), 1);
    const CZqVariant yes(CZqVariantCollectionElement(CZqVariant(int32_t(1)), CZqVariant(int32_t(1))));
    EXPECT_EQ(set(id, "Geometry", "Edge visible", yes, at(1)), 5100);
    EXPECT_TRUE(openAs<OdDbFace>(id)->isEdgeVisibleAt(1));
    EXPECT_EQ(set(id, "Geometry", "Edge visible", yes, at(7)), -5001);
  } else {
    EXPECT_EQ(infoLine(lines, "Thickness")->value.toDouble(), 0.5);
    EXPECT_EQ(get(id, "General", "Thickness").GetDouble(), 0.5);
    EXPECT_EQ(set(id, "General", "Thickness", CZqVariant(-2.0, true)), 5100);
    EXPECT_EQ(get(id, "General", "Thickness").GetDouble(), -2);
    EXPECT_EQ(get(id, "Geometry", "Normal Z").GetDouble(), 1);
  }
}

INSTANTIATE_TEST_SUITE_P(Shapes, QuadTest,
                         ::testing::Values(ShapeCase{"Face", Shape::Face, "CZqFacePE"},
                                           ShapeCase{"Solid", Shape::Solid, "CZqSolidPE"},
                                           ShapeCase{"Trace", Shape::Trace, "CZqTracePE"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
