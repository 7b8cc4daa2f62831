#pragma once
// Revision clouds: a polyline of arcs of one radius that follows a base
// curve, and the "PE_CLOUD" extended data that marks a polyline as a cloud
// and keeps what is needed to draw it again.
//
// Layout of the "PE_CLOUD" extended data, in order:
//   1001 "PE_CLOUD"
//   1000 the style word ("Rectangular", "Elliptical", "Freehand", "Custom",
//        "Polygon", "Ellipse", "Circle", "Spline")
//   1040 the arc radius
//   then the base curve, by style:
//   "Circle":                1010 centre (WCS), 1041 radius
//   "Ellipse", "Elliptical": 1010 centre (WCS), 1012 major axis (WCS vector
//                            from the centre; its length is the major
//                            radius), 1042 ratio of minor to major radius
//   "Spline":                1070 degree, 1071 number of control points n,
//                            n x 1010 control point (WCS), 1071 number of
//                            knots m, m x 1040 knot
//   any other style:         nothing; the cloud's own vertices are its base.
// The plane of every base is the cloud polyline's plane.
#include "KernelExport.h"
#include "DbDatabase.h"
#include "DbPlainClasses.h"
#include <vector>

struct ZQKERNEL_API CLOUDLINE_COMMAND_DATA {
  OdString style;
  double arcRadius = 0;
  // The base curve stored with the cloud (see the layout above).
  bool hasBaseData = false;
  OdGePoint3d center;
  double baseRadius = 0;        // circle
  OdGeVector3d majorAxis;       // ellipse
  double radiusRatio = 1;       // ellipse
  int degree = 0;               // spline
  OdGePoint3dArray controlPoints;
  OdGeDoubleArray knots;
};

class ZQKERNEL_API CZqCloudBase {
 public:
  static const char* const kAppName;  // "PE_CLOUD"

  // The greatest angle an arc of the style spans: the arcs of a cloud are
  // about this full; a freehand or custom cloud's arcs are fuller.
  static double maxArcSweep(const OdString& style);

  // The cloud's settings from its extended data; false when the object
  // carries no "PE_CLOUD" data. A base that cannot be read whole leaves
  // hasBaseData false.
  static bool ReadCloudData(const OdDbObject* object, CLOUDLINE_COMMAND_DATA& data);
  // The extended data chain of the settings (the base data only when hasBaseData).
  static OdResBufPtr CloudXData(const CLOUDLINE_COMMAND_DATA& data);
  // Writes the settings onto the entity (open for write), registering the
  // application in its database when it is in one.
  static void WriteCloudData(OdDbEntity* entity, const CLOUDLINE_COMMAND_DATA& data);

  // The curve the cloud follows: a polyline, circle, ellipse or spline in
  // the cloud's plane. The generator keeps a reference.
  void setBaseCurve(const OdDbCurve* base);
  // The curve the cloud replaces: its plane (normal and elevation) is the
  // plane the cloud is drawn in. Without one the base curve's plane serves.
  void setTempCurve(const OdDbCurve* temp);
  void setCloudSetting(const CLOUDLINE_COMMAND_DATA& data) { m_data = data; }
  const CLOUDLINE_COMMAND_DATA& cloudSetting() const { return m_data; }

  // Generates the cloud: points along the base, at most one nominal arc
  // length apart (the chord of the style's greatest arc of the radius), with
  // a point at every corner of the base (a turn of more than 30 degrees),
  // joined by arcs of exactly the radius that bulge outwards (to the right of
  // an open base). A closed base gives a closed cloud of at least three arcs.
  // False, with no result, when the radius is not positive or the base has
  // no length.
  bool cloudBaseMain();

  // The result in the object coordinates of the cloud's plane: one bulge per
  // point (the last point of an open cloud has bulge 0).
  const OdArray<OdGePoint2d>& points() const { return m_points; }
  const OdArray<double>& bulges() const { return m_bulges; }
  bool isClosed() const { return m_closed; }
  OdGeVector3d normal() const { return m_normal; }
  double elevation() const { return m_elevation; }

 private:
  bool planeOf(const OdDbCurve* curve, OdGeVector3d& normal, double& elevation) const;
  bool basePath(OdArray<OdGePoint2d>& path, std::vector<double>& params, bool& closed) const;

  OdDbCurvePtr m_base, m_temp;
  CLOUDLINE_COMMAND_DATA m_data;
  OdArray<OdGePoint2d> m_points;
  OdArray<double> m_bulges;
  bool m_closed = false;
  OdGeVector3d m_normal{0, 0, 1};
  double m_elevation = 0;
};
