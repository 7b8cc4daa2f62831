#pragma once
#include "DbEntity.h"

using OdGePoint3dArray = OdArray<OdGePoint3d>;
using OdGeDoubleArray = OdArray<double>;

// A NURBS curve: degree, control points (WCS), knots and optional weights.
// A spline made from fit points keeps them and interpolates them with a
// curve of its degree through its control points.
class DB_API OdDbSpline : public OdDbCurve {
  ODRX_DECLARE_MEMBERS(OdDbSpline);

 public:
  static OdSmartPtr<OdDbSpline> createObject();
  OdDbSpline();

  // Control data. Needs degree >= 1, at least degree + 1 control points,
  // control points + degree + 1 non-decreasing knots, and no weights or one
  // positive weight per control point; otherwise OdError(eInvalidInput).
  void setNurbsData(int degree, bool rational, bool closed, bool periodic, const OdGePoint3dArray& controlPoints,
                    const OdGeDoubleArray& knots, const OdGeDoubleArray& weights, double controlPtTol = 1e-10,
                    double knotTol = 1e-10);
  void getNurbsData(int& degree, bool& rational, bool& closed, bool& periodic, OdGePoint3dArray& controlPoints,
                    OdGeDoubleArray& knots, OdGeDoubleArray& weights) const;
  // Interpolates the fit points (chord-length parameters, clamped knots by
  // averaging) with a curve of the degree, lowered when there are too few
  // points. Needs at least two distinct points. The tangents are kept for
  // the file but do not shape the curve.
  void setFitData(const OdGePoint3dArray& fitPoints, int degree, double fitTolerance,
                  const OdGeVector3d& startTangent = OdGeVector3d(), const OdGeVector3d& endTangent = OdGeVector3d());

  int degree() const { assertReadEnabled(); return m_degree; }
  bool isRational() const { assertReadEnabled(); return !m_weights.isEmpty(); }
  bool isPeriodic() const { assertReadEnabled(); return m_periodic; }
  int numControlPoints() const { assertReadEnabled(); return int(m_ctrl.length()); }
  OdResult getControlPointAt(int index, OdGePoint3d& p) const;
  int numFitPoints() const { assertReadEnabled(); return int(m_fit.length()); }
  OdResult getFitPointAt(int index, OdGePoint3d& p) const;
  bool hasFitData() const { assertReadEnabled(); return !m_fit.isEmpty(); }
  double fitTolerance() const { assertReadEnabled(); return m_fitTol; }
  const OdGeDoubleArray& knots() const { assertReadEnabled(); return m_knots; }

  bool isClosed() const override;
  // getArea gives the area of the figure closed by the chord from end to start, in the
  // plane that fits the curve best (the curve is taken as planar).
  ODDB_DECLARE_CURVE_INTERFACE();

 private:
  OdGePoint3d evaluate(double u) const;
  bool hasCurve() const { return m_degree >= 1 && m_ctrl.length() >= unsigned(m_degree + 1); }

  int m_degree = 0;
  bool m_closed = false, m_periodic = false;
  OdGePoint3dArray m_ctrl, m_fit;
  OdGeDoubleArray m_knots, m_weights;
  double m_fitTol = 0;
  OdGeVector3d m_startTangent, m_endTangent;
};
using OdDbSplinePtr = OdSmartPtr<OdDbSpline>;
