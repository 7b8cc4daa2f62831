#pragma once
// Independent reference geometry for tests: bulged polylines sampled from
// first principles (the arc through the segment's ends and its sagitta
// point), and measures of the sampled figure.
#include "OdGePoint.h"
#include <cmath>
#include <vector>

struct ZqRefVertex {
  double x, y, bulge;
};

// Points along the segment from a to b with the bulge, ends included. The
// arc's middle point lies |bulge| * chord / 2 from the chord's middle, to the
// right of a->b for a positive (counter-clockwise) bulge; the arc is the
// circle through a, that point and b.
inline std::vector<OdGePoint2d> zqRefSegmentPoints(const OdGePoint2d& a, const OdGePoint2d& b, double bulge,
                                                   int samples) {
  std::vector<OdGePoint2d> out;
  const double dx = b.x - a.x, dy = b.y - a.y, c = std::hypot(dx, dy);
  if (bulge == 0 || c == 0) {
    for (int i = 0; i <= samples; ++i) out.emplace_back(a.x + dx * i / samples, a.y + dy * i / samples);
    return out;
  }
  const double s = bulge * c / 2;  // signed sagitta, positive to the right
  const OdGePoint2d m((a.x + b.x) / 2 + s * dy / c, (a.y + b.y) / 2 - s * dx / c);
  // Circumcentre of a, m, b.
  const double d = 2 * (a.x * (m.y - b.y) + m.x * (b.y - a.y) + b.x * (a.y - m.y));
  const double a2 = a.x * a.x + a.y * a.y, m2 = m.x * m.x + m.y * m.y, b2 = b.x * b.x + b.y * b.y;
  const OdGePoint2d o((a2 * (m.y - b.y) + m2 * (b.y - a.y) + b2 * (a.y - m.y)) / d,
                      (a2 * (b.x - m.x) + m2 * (a.x - b.x) + b2 * (m.x - a.x)) / d);
  const double r = std::hypot(a.x - o.x, a.y - o.y);
  const double start = std::atan2(a.y - o.y, a.x - o.x);
  // Turn from a through m to b: the angle to m, doubled, in the arc's sense.
  double toMid = std::atan2(m.y - o.y, m.x - o.x) - start;
  if (bulge > 0) { while (toMid <= 0) toMid += 2 * M_PI; } else { while (toMid >= 0) toMid -= 2 * M_PI; }
  for (int i = 0; i <= samples; ++i) {
    const double t = start + 2 * toMid * i / samples;
    out.emplace_back(o.x + r * std::cos(t), o.y + r * std::sin(t));
  }
  return out;
}

// The polyline as a dense chain of points (closing segment included when closed).
inline std::vector<OdGePoint2d> zqRefPolylinePoints(const std::vector<ZqRefVertex>& v, bool closed, int samples = 4000) {
  std::vector<OdGePoint2d> out;
  const size_t n = v.size();
  if (n == 0) return out;
  out.emplace_back(v[0].x, v[0].y);
  const size_t segments = n < 2 ? 0 : (closed ? n : n - 1);
  for (size_t i = 0; i < segments; ++i) {
    const ZqRefVertex& a = v[i];
    const ZqRefVertex& b = v[(i + 1) % n];
    auto pts = zqRefSegmentPoints({a.x, a.y}, {b.x, b.y}, a.bulge, samples);
    out.insert(out.end(), pts.begin() + 1, pts.end());
  }
  return out;
}

inline double zqRefChainLength(const std::vector<OdGePoint2d>& pts) {
  double len = 0;
  for (size_t i = 1; i < pts.size(); ++i) len += pts[i].distanceTo(pts[i - 1]);
  return len;
}

// Area of the chain closed back to its first point (shoelace), non-negative.
inline double zqRefChainArea(const std::vector<OdGePoint2d>& pts) {
  double twice = 0;
  for (size_t i = 0; i < pts.size(); ++i) {
    const OdGePoint2d& a = pts[i];
    const OdGePoint2d& b = pts[(i + 1) % pts.size()];
    twice += a.x * b.y - b.x * a.y;
  }
  return std::fabs(twice) / 2;
}
