#pragma once
#include "GeExport.h"

// Equality tolerances: equalPoint for points and lengths, equalVector for
// directions (unit vectors and angles).
class GE_API OdGeTol {
 public:
  explicit OdGeTol(double t = 1.e-10) : m_point(t), m_vector(t) {}
  OdGeTol(double pointTol, double vectorTol) : m_point(pointTol), m_vector(vectorTol) {}
  double equalPoint() const { return m_point; }
  double equalVector() const { return m_vector; }
  void setEqualPoint(double t) { m_point = t; }
  void setEqualVector(double t) { m_vector = t; }

 private:
  double m_point, m_vector;
};

struct GE_API OdGeContext {
  static OdGeTol gTol;
  static OdGeTol gZeroTol;
};

constexpr double OdaPI = 3.14159265358979323846;
constexpr double Oda2PI = 6.28318530717958647692;
constexpr double OdaPI2 = 1.57079632679489661923;
