#include "DbSpline.h"
#include "DbGaussLegendre.h"
#include <vector>

OdDbSpline::OdDbSpline() = default;

namespace {

// The knot span of u: knots[k] <= u < knots[k+1], with degree <= k < n
// (n control points); u at the end of the domain falls in the last span.
int findSpan(const OdGeDoubleArray& knots, int degree, int n, double u) {
  if (u >= knots[n]) return n - 1;
  if (u <= knots[degree]) return degree;
  int lo = degree, hi = n;
  while (hi - lo > 1) {
    const int mid = (lo + hi) / 2;
    if (u < knots[mid]) hi = mid; else lo = mid;
  }
  return lo;
}

// The degree + 1 basis functions that are non-zero at u in the span (Cox-de Boor).
std::vector<double> basisFunctions(const OdGeDoubleArray& knots, int degree, int span, double u) {
  std::vector<double> N(degree + 1, 0.0), left(degree + 1, 0.0), right(degree + 1, 0.0);
  N[0] = 1.0;
  for (int j = 1; j <= degree; ++j) {
    left[j] = u - knots[span + 1 - j];
    right[j] = knots[span + j] - u;
    double saved = 0.0;
    for (int r = 0; r < j; ++r) {
      const double denom = right[r + 1] + left[j - r];
      const double temp = denom == 0 ? 0 : N[r] / denom;
      N[r] = saved + right[r + 1] * temp;
      saved = left[j - r] * temp;
    }
    N[j] = saved;
  }
  return N;
}

// Solves A x = b for several right-hand sides by Gaussian elimination with
// partial pivoting. False when A is singular.
bool solve(std::vector<std::vector<double>> A, std::vector<OdGePoint3d>& b) {
  const size_t n = A.size();
  for (size_t c = 0; c < n; ++c) {
    size_t pivot = c;
    for (size_t r = c + 1; r < n; ++r)
      if (std::fabs(A[r][c]) > std::fabs(A[pivot][c])) pivot = r;
    if (std::fabs(A[pivot][c]) < 1e-14) return false;
    std::swap(A[c], A[pivot]);
    std::swap(b[c], b[pivot]);
    for (size_t r = c + 1; r < n; ++r) {
      const double f = A[r][c] / A[c][c];
      if (f == 0) continue;
      for (size_t k = c; k < n; ++k) A[r][k] -= f * A[c][k];
      b[r] = b[r] - b[c].asVector() * f;
    }
  }
  for (size_t c = n; c-- > 0;) {
    OdGeVector3d v = b[c].asVector();
    for (size_t k = c + 1; k < n; ++k) v -= b[k].asVector() * A[c][k];
    v = v / A[c][c];
    b[c] = OdGePoint3d::kOrigin + v;
  }
  return true;
}

}  // namespace

void OdDbSpline::setNurbsData(int degree, bool rational, bool closed, bool periodic,
                              const OdGePoint3dArray& controlPoints, const OdGeDoubleArray& knots,
                              const OdGeDoubleArray& weights, double, double) {
  const int n = int(controlPoints.length());
  if (degree < 1 || n < degree + 1 || int(knots.length()) != n + degree + 1)
    throw OdError(eInvalidInput, OdString("inconsistent spline data"));
  for (unsigned i = 1; i < knots.length(); ++i)
    if (knots[i] < knots[i - 1]) throw OdError(eInvalidInput, OdString("knots must not decrease"));
  if (knots[n] <= knots[degree]) throw OdError(eInvalidInput, OdString("empty spline domain"));
  if (rational && weights.length() != controlPoints.length())
    throw OdError(eInvalidInput, OdString("one weight per control point"));
  for (double w : weights)
    if (!(w > 0)) throw OdError(eInvalidInput, OdString("weights must be positive"));
  assertWriteEnabled();
  m_degree = degree;
  m_closed = closed;
  m_periodic = periodic;
  m_ctrl = controlPoints;
  m_knots = knots;
  m_weights = rational ? weights : OdGeDoubleArray();
  m_fit.clear();
}

void OdDbSpline::getNurbsData(int& degree, bool& rational, bool& closed, bool& periodic,
                              OdGePoint3dArray& controlPoints, OdGeDoubleArray& knots, OdGeDoubleArray& weights) const {
  assertReadEnabled();
  degree = m_degree;
  rational = !m_weights.isEmpty();
  closed = m_closed;
  periodic = m_periodic;
  controlPoints = m_ctrl;
  knots = m_knots;
  weights = m_weights;
}

void OdDbSpline::setFitData(const OdGePoint3dArray& fitPoints, int degree, double fitTolerance,
                            const OdGeVector3d& startTangent, const OdGeVector3d& endTangent) {
  // Consecutive duplicates carry no information and would give equal parameters.
  OdGePoint3dArray pts;
  for (const OdGePoint3d& p : fitPoints)
    if (pts.isEmpty() || !pts.last().isEqualTo(p)) pts.append(p);
  const int m = int(pts.length());
  if (m < 2 || degree < 1) throw OdError(eInvalidInput, OdString("a spline needs two distinct fit points"));
  const int p = std::min(degree, m - 1);
  // Chord-length parameters in [0, 1].
  std::vector<double> u(m, 0.0);
  double total = 0;
  for (int i = 1; i < m; ++i) total += pts[i].distanceTo(pts[i - 1]);
  for (int i = 1; i < m; ++i) u[i] = u[i - 1] + pts[i].distanceTo(pts[i - 1]) / total;
  u[m - 1] = 1.0;
  // Clamped knots, the inner ones averaged from the parameters.
  OdGeDoubleArray knots(m + p + 1, 0.0);
  for (int i = m; i < m + p + 1; ++i) knots[i] = 1.0;
  for (int j = 1; j < m - p; ++j) {
    double s = 0;
    for (int i = j; i < j + p; ++i) s += u[i];
    knots[j + p] = s / p;
  }
  std::vector<std::vector<double>> A(m, std::vector<double>(m, 0.0));
  for (int i = 0; i < m; ++i) {
    const int span = findSpan(knots, p, m, u[i]);
    const std::vector<double> N = basisFunctions(knots, p, span, u[i]);
    for (int k = 0; k <= p; ++k) A[i][span - p + k] = N[k];
  }
  std::vector<OdGePoint3d> ctrl(pts.begin(), pts.end());
  if (!solve(A, ctrl)) throw OdError(eInvalidInput, OdString("the fit points cannot be interpolated"));
  assertWriteEnabled();
  m_degree = p;
  m_ctrl = OdGePoint3dArray(ctrl.begin(), ctrl.end());
  m_knots = knots;
  m_weights.clear();
  m_fit = fitPoints;
  m_fitTol = fitTolerance;
  m_startTangent = startTangent;
  m_endTangent = endTangent;
  m_closed = pts.first().isEqualTo(pts.last());
  m_periodic = false;
}

OdResult OdDbSpline::getControlPointAt(int index, OdGePoint3d& p) const {
  assertReadEnabled();
  if (index < 0 || index >= int(m_ctrl.length())) return eInvalidIndex;
  p = m_ctrl[index];
  return eOk;
}

OdResult OdDbSpline::getFitPointAt(int index, OdGePoint3d& p) const {
  assertReadEnabled();
  if (index < 0 || index >= int(m_fit.length())) return eInvalidIndex;
  p = m_fit[index];
  return eOk;
}

bool OdDbSpline::isClosed() const {
  assertReadEnabled();
  if (m_closed || m_periodic) return true;
  if (!hasCurve()) return false;
  return evaluate(m_knots[m_degree]).isEqualTo(evaluate(m_knots[m_ctrl.length()]));
}

OdGePoint3d OdDbSpline::evaluate(double u) const {
  const int n = int(m_ctrl.length());
  const int span = findSpan(m_knots, m_degree, n, u);
  const std::vector<double> N = basisFunctions(m_knots, m_degree, span, u);
  OdGeVector3d sum;
  double wsum = 0;
  for (int k = 0; k <= m_degree; ++k) {
    const int i = span - m_degree + k;
    const double w = m_weights.isEmpty() ? 1.0 : m_weights[i];
    sum += m_ctrl[i].asVector() * (N[k] * w);
    wsum += N[k] * w;
  }
  return OdGePoint3d::kOrigin + sum / wsum;
}

OdResult OdDbSpline::getStartParam(double& param) const {
  assertReadEnabled();
  if (!hasCurve()) return eInvalidInput;
  param = m_knots[m_degree];
  return eOk;
}

OdResult OdDbSpline::getEndParam(double& param) const {
  assertReadEnabled();
  if (!hasCurve()) return eInvalidInput;
  param = m_knots[m_ctrl.length()];
  return eOk;
}

OdResult OdDbSpline::getStartPoint(OdGePoint3d& p) const {
  double u = 0;
  if (OdResult r = getStartParam(u); r != eOk) return r;
  return getPointAtParam(u, p);
}

OdResult OdDbSpline::getEndPoint(OdGePoint3d& p) const {
  double u = 0;
  if (OdResult r = getEndParam(u); r != eOk) return r;
  return getPointAtParam(u, p);
}

OdResult OdDbSpline::getPointAtParam(double param, OdGePoint3d& p) const {
  assertReadEnabled();
  if (!hasCurve()) return eInvalidInput;
  const double lo = m_knots[m_degree], hi = m_knots[m_ctrl.length()];
  if (param < lo - 1e-10 || param > hi + 1e-10) return eInvalidInput;
  p = evaluate(std::clamp(param, lo, hi));
  return eOk;
}

OdResult OdDbSpline::getDistAtParam(double param, double& dist) const {
  assertReadEnabled();
  if (!hasCurve()) return eInvalidInput;
  const double lo = m_knots[m_degree], hi = m_knots[m_ctrl.length()];
  if (param < lo - 1e-10 || param > hi + 1e-10) return eInvalidInput;
  param = std::clamp(param, lo, hi);
  // The speed by central differences, integrated span by span (the curve
  // is smooth within a span).
  const double h = (hi - lo) * 1e-7;
  auto speed = [&](double u) {
    const double a = std::max(lo, u - h), b = std::min(hi, u + h);
    return evaluate(b).distanceTo(evaluate(a)) / (b - a);
  };
  dist = 0;
  for (unsigned k = unsigned(m_degree); k < m_ctrl.length(); ++k) {
    const double a = m_knots[k], b = std::min(m_knots[k + 1], param);
    if (b <= a) continue;
    dist += odDbIntegrate(speed, a, b, 8);
  }
  return eOk;
}

OdResult OdDbSpline::getArea(double& area) const {
  assertReadEnabled();
  if (!hasCurve()) return eInvalidInput;
  // A polygon of points along the curve; its vector area (Newell) gives the
  // area in the curve's plane.
  std::vector<OdGePoint3d> pts;
  for (unsigned k = unsigned(m_degree); k < m_ctrl.length(); ++k) {
    const double a = m_knots[k], b = m_knots[k + 1];
    if (b <= a) continue;
    for (int i = 0; i < 128; ++i) pts.push_back(evaluate(a + (b - a) * i / 128));
  }
  pts.push_back(evaluate(m_knots[m_ctrl.length()]));
  OdGeVector3d twice;
  for (size_t i = 0; i < pts.size(); ++i)
    twice += pts[i].asVector().crossProduct(pts[(i + 1) % pts.size()].asVector());
  area = twice.length() * 0.5;
  return eOk;
}

bool OdDbSpline::getGeomExtents(OdGeExtents3d& ext) const {
  assertReadEnabled();
  if (!hasCurve()) return false;
  // A NURBS curve lies in the convex hull of its control points.
  ext = OdGeExtents3d();
  for (const OdGePoint3d& p : m_ctrl) ext.addPoint(p);
  return true;
}

void OdDbSpline::copyFrom(const OdRxObject* source) {
  OdDbCurve::copyFrom(source);
  auto* s = static_cast<const OdDbSpline*>(source);
  m_degree = s->m_degree;
  m_closed = s->m_closed;
  m_periodic = s->m_periodic;
  m_ctrl = s->m_ctrl;
  m_fit = s->m_fit;
  m_knots = s->m_knots;
  m_weights = s->m_weights;
  m_fitTol = s->m_fitTol;
  m_startTangent = s->m_startTangent;
  m_endTangent = s->m_endTangent;
}
