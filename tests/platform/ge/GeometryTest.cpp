// Geometry: the object coordinate system of a normal, matrix inverses and
// coordinate-system alignment, planes and extents.
#include <gtest/gtest.h>
#include "OdGePlane.h"
#include <cmath>

namespace {

const OdGeVector3d kNormals[] = {
    {0, 0, 1}, {0, 0, -1}, {1, 0, 0}, {0, 1, 0}, {1, 1, 1}, {0.01, 0.01, 1}, {-0.3, 0.8, -0.2}, {0.015, 0, 1}};

TEST(GeometryTest, ArbitraryAxesFormARightHandedFrame) {
  for (const OdGeVector3d& raw : kNormals) {
    const OdGeVector3d n = raw.normal();
    OdGeVector3d x, y;
    odgeArbitraryAxes(n, x, y);
    EXPECT_NEAR(x.length(), 1, 1e-12);
    EXPECT_NEAR(x.dotProduct(n), 0, 1e-12);
    EXPECT_TRUE(x.crossProduct(y).isEqualTo(n, OdGeTol(1e-12)));
    // The DXF rule: near the Z axis the X axis is world Y x N, elsewhere world Z x N.
    const bool nearZ = std::fabs(n.x) < 1.0 / 64 && std::fabs(n.y) < 1.0 / 64;
    const OdGeVector3d expected = (nearZ ? OdGeVector3d::kYAxis : OdGeVector3d::kZAxis).crossProduct(n).normal();
    EXPECT_TRUE(x.isEqualTo(expected, OdGeTol(1e-12)));
  }
  // The WCS normal gives the WCS axes; the opposite normal mirrors X.
  OdGeVector3d x, y;
  odgeArbitraryAxes({0, 0, -1}, x, y);
  EXPECT_TRUE(x.isEqualTo({-1, 0, 0}));
  EXPECT_TRUE(y.isEqualTo({0, 1, 0}));
}

TEST(GeometryTest, PlaneToWorldAndBackAreInverses) {
  const OdGePoint3d p(3.5, -2, 7);
  for (const OdGeVector3d& n : kNormals) {
    const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(n), toPlane = OdGeMatrix3d::worldToPlane(n);
    EXPECT_TRUE((toWorld * (toPlane * p)).isEqualTo(p, OdGeTol(1e-9)));
    // A point of the plane through the origin has zero elevation in its OCS.
    const OdGePlane plane(OdGePoint3d::kOrigin, n);
    const OdGePoint3d onPlane = plane.evalPoint({2, -1});
    EXPECT_NEAR((toPlane * onPlane).z, 0, 1e-12);
    const OdGePoint2d uv = onPlane.convert2d(plane);
    EXPECT_NEAR(uv.x, 2, 1e-12);
    EXPECT_NEAR(uv.y, -1, 1e-12);
  }
}

TEST(GeometryTest, AlignCoordSysMapsOriginAndAxes) {
  const double a = 0.7;
  const OdGePoint3d o(10, -5, 2);
  const OdGeVector3d x(std::cos(a), std::sin(a), 0), y(-std::sin(a), std::cos(a), 0), z(0, 0, 1);
  const OdGeMatrix3d toUcs = OdGeMatrix3d::alignCoordSys(o, x, y, z, OdGePoint3d::kOrigin, OdGeVector3d::kXAxis,
                                                         OdGeVector3d::kYAxis, OdGeVector3d::kZAxis);
  EXPECT_TRUE((toUcs * o).isEqualTo(OdGePoint3d::kOrigin));
  EXPECT_TRUE((toUcs * (o + x * 3)).isEqualTo(OdGePoint3d(3, 0, 0), OdGeTol(1e-12)));
  EXPECT_TRUE((toUcs * y).isEqualTo(OdGeVector3d::kYAxis, OdGeTol(1e-12)));
  EXPECT_TRUE((toUcs.inverse() * toUcs).isEqualTo(OdGeMatrix3d::kIdentity, OdGeTol(1e-12)));
  bool singular = false;
  OdGeMatrix3d flat = OdGeMatrix3d::scaling(0);
  flat.inverse(&singular);
  EXPECT_TRUE(singular);
}

TEST(GeometryTest, RotationAboutACenterKeepsTheCenter) {
  const OdGePoint3d c(1, 2, 3);
  const OdGeMatrix3d r = OdGeMatrix3d::rotation(OdaPI / 2, OdGeVector3d::kZAxis, c);
  EXPECT_TRUE((r * c).isEqualTo(c));
  EXPECT_TRUE((r * OdGePoint3d(2, 2, 3)).isEqualTo(OdGePoint3d(1, 3, 3), OdGeTol(1e-12)));
}

TEST(GeometryTest, VectorRelations) {
  EXPECT_TRUE(OdGeVector3d(0, 0, 2).isCodirectionalTo({0, 0, 1}));
  EXPECT_FALSE(OdGeVector3d(0, 0, -1).isCodirectionalTo({0, 0, 1}));
  EXPECT_TRUE(OdGeVector3d(0, 0, -1).isParallelTo({0, 0, 1}));
  EXPECT_NEAR(OdGeVector3d(1, 0, 0).angleTo({0, 1, 0}), OdaPI / 2, 1e-15);
  EXPECT_TRUE(OdGeVector3d(1e-12, 0, 0).isZeroLength());
}

TEST(GeometryTest, ExtentsGrowAndTransform) {
  OdGeExtents3d e;
  EXPECT_FALSE(e.isValidExtents());
  e.addPoint({1, 2, 3}).addPoint({-1, 5, 0});
  EXPECT_EQ(e.minPoint(), OdGePoint3d(-1, 2, 0));
  EXPECT_EQ(e.maxPoint(), OdGePoint3d(1, 5, 3));
  e.transformBy(OdGeMatrix3d::translation({1, 1, 1}));
  EXPECT_EQ(e.minPoint(), OdGePoint3d(0, 3, 1));
  EXPECT_TRUE(e.contains({0.5, 4, 2}));
  EXPECT_FALSE(e.contains({5, 4, 2}));
}

}  // namespace
