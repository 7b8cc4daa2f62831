#pragma once
// Numerical integration for curve lengths: composite 8-point Gauss-Legendre
// quadrature over equal pieces.
#include <cmath>

template <class F>
double odDbIntegrate(F f, double from, double to, int pieces) {
  static constexpr double kNodes[4] = {0.1834346424956498, 0.5255324099163290, 0.7966664774136267,
                                       0.9602898564975363};
  static constexpr double kWeights[4] = {0.3626837833783620, 0.3137066458778873, 0.2223810344533745,
                                         0.1012285362903763};
  if (to == from || pieces < 1) return 0;
  const double h = (to - from) / pieces;
  double sum = 0;
  for (int i = 0; i < pieces; ++i) {
    const double mid = from + h * (i + 0.5), half = h * 0.5;
    for (int k = 0; k < 4; ++k) sum += kWeights[k] * half * (f(mid - half * kNodes[k]) + f(mid + half * kNodes[k]));
  }
  return sum;
}
