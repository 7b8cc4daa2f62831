#pragma once
// Geometry of vertex lists with bulges, shared by the lightweight and the 2D
// polyline. Vertices are object coordinates (the plane of the polyline);
// segment i runs from vertex i to vertex i+1, the last one of a closed
// polyline back to vertex 0. A segment's bulge is the tangent of a quarter of
// its included angle, positive for a counter-clockwise arc.
#include "OdGeCircArc.h"
#include "OdGeLineSeg.h"
#include "OdArray.h"

namespace OdDbBulge {

struct Vertex {
  OdGePoint2d pt;
  double bulge = 0;
};

// Segments shorter than this are coincident points; bulges smaller than this
// in magnitude are straight.
constexpr double kCoincident = 1e-10;
constexpr double kStraight = 1e-12;

inline unsigned segmentCount(unsigned numVerts, bool closed) {
  if (numVerts < 2) return 0;
  return closed ? numVerts : numVerts - 1;
}

inline bool isArc(const OdGePoint2d& a, const OdGePoint2d& b, double bulge) {
  return std::fabs(bulge) > kStraight && a.distanceTo(b) > kCoincident;
}

// Length of the segment from a to b with the bulge.
inline double segmentLength(const OdGePoint2d& a, const OdGePoint2d& b, double bulge) {
  const double c = a.distanceTo(b);
  if (!isArc(a, b, bulge)) return c;
  const double sweep = 4 * std::atan(std::fabs(bulge));
  return c * (1 + bulge * bulge) / (4 * std::fabs(bulge)) * sweep;
}

// The point at the fraction t (0..1) of the segment's length.
inline OdGePoint2d segmentPoint(const OdGePoint2d& a, const OdGePoint2d& b, double bulge, double t) {
  if (!isArc(a, b, bulge)) return a + (b - a) * t;
  OdGeCircArc2d arc;
  arc.set(a, b, bulge);
  return arc.evalPoint(arc.startAng() + (arc.endAng() - arc.startAng()) * t);
}

// Signed area of the circular segment between the chord a-b and its arc:
// positive when the arc lies to the right of the chord (positive bulge).
inline double circularSegmentArea(const OdGePoint2d& a, const OdGePoint2d& b, double bulge) {
  if (!isArc(a, b, bulge)) return 0;
  const double c = a.distanceTo(b);
  const double theta = 4 * std::atan(bulge);                    // signed included angle
  const double r = c * (1 + bulge * bulge) / (4 * std::fabs(bulge));
  return 0.5 * r * r * (theta - std::sin(theta));                // odd in theta: the sign follows the bulge
}

// Signed area of the figure bounded by the segments and, for an open list,
// the straight line from the last vertex back to the first (counter-clockwise
// positive): the shoelace sum of the chords plus the circular segments.
inline double signedArea(const OdArray<Vertex>& v, bool closed) {
  const unsigned n = v.length();
  if (n < 2) return 0;
  double twice = 0;
  for (unsigned i = 0; i < n; ++i) {
    const OdGePoint2d& a = v[i].pt;
    const OdGePoint2d& b = v[(i + 1) % n].pt;
    twice += a.x * b.y - b.x * a.y;
  }
  double area = twice * 0.5;
  const unsigned segments = segmentCount(n, closed);
  for (unsigned i = 0; i < segments; ++i) area += circularSegmentArea(v[i].pt, v[(i + 1) % n].pt, v[i].bulge);
  return area;
}

// Length from the start to the parameter (vertex index plus the fraction of
// the following segment). False when the parameter lies outside the list.
inline bool distAtParam(const OdArray<Vertex>& v, bool closed, double param, double& dist) {
  const unsigned n = v.length();
  const unsigned segments = segmentCount(n, closed);
  if (n == 0 || param < -1e-10 || param > segments + 1e-10) return false;
  dist = 0;
  for (unsigned i = 0; i < segments && param > i; ++i) {
    const double len = segmentLength(v[i].pt, v[(i + 1) % n].pt, v[i].bulge);
    dist += param >= i + 1 ? len : len * (param - i);
  }
  return true;
}

// The object-coordinate point at the parameter.
inline bool pointAtParam(const OdArray<Vertex>& v, bool closed, double param, OdGePoint2d& p) {
  const unsigned n = v.length();
  const unsigned segments = segmentCount(n, closed);
  if (n == 0 || param < -1e-10 || param > segments + 1e-10) return false;
  if (segments == 0) {
    p = v[0].pt;
    return true;
  }
  unsigned i = unsigned(std::clamp(std::floor(param), 0.0, double(segments - 1)));
  const double t = std::clamp(param - i, 0.0, 1.0);
  p = segmentPoint(v[i].pt, v[(i + 1) % n].pt, v[i].bulge, t);
  return true;
}

}  // namespace OdDbBulge
