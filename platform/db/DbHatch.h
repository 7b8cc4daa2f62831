#pragma once
// Hatches: a fill (a pattern of lines, a solid colour or a colour gradient)
// bounded by loops in the plane of the normal at an elevation. A loop is a
// polyline (vertices with bulges) or a chain of edges: lines, circular
// arcs, elliptical arcs and splines, all in the object coordinates of the
// plane.
#include "DbEntity.h"
#include "DbSpline.h"
#include "OdCmColor.h"

class DB_API OdDbHatch : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbHatch);

 public:
  enum HatchPatternType { kUserDefined = 0, kPreDefined = 1, kCustomDefined = 2 };
  enum HatchStyle { kNormal = 0, kOuter = 1, kIgnore = 2 };
  enum HatchLoopType { kDefault = 0, kExternal = 1, kPolyline = 2, kDerived = 4, kTextbox = 8, kOutermost = 16 };
  enum HatchEdgeType { kLine = 1, kCirArc = 2, kEllArc = 3, kSpline = 4 };

  // One edge of a loop. Angles are radians; a clockwise arc runs from
  // -startAngle to -endAngle (the angles are those of the counter-clockwise
  // arc it retraces), as the file stores it.
  struct Edge {
    HatchEdgeType type = kLine;
    OdGePoint2d start, end;               // kLine
    OdGePoint2d center;                   // kCirArc, kEllArc
    double radius = 0;                    // kCirArc
    OdGeVector2d majorAxis;               // kEllArc: centre to the end of the major axis
    double ratio = 1;                     // kEllArc: minor / major radius
    double startAngle = 0, endAngle = 0;  // kCirArc, kEllArc
    bool ccw = true;                      // kCirArc, kEllArc
    int degree = 3;                       // kSpline
    bool rational = false, periodic = false;
    OdGeDoubleArray knots, weights;
    OdArray<OdGePoint2d> controlPoints, fitPoints;
  };
  struct Loop {
    int type = kExternal;  // HatchLoopType bits; kPolyline: vertices and bulges
    bool closed = true;
    OdArray<OdGePoint2d> vertices;
    OdGeDoubleArray bulges;
    OdArray<Edge> edges;
  };
  // A family of parallel pattern lines: angle (radians), a point one of
  // them passes through, the offset from one line to the next, and the
  // dash lengths (negative: a gap; none: continuous).
  struct PatternLine {
    double angle = 0;
    OdGePoint2d base;
    OdGeVector2d offset;
    OdGeDoubleArray dashes;
  };

  static OdSmartPtr<OdDbHatch> createObject();
  OdDbHatch();

  // Loops.
  int numLoops() const { assertReadEnabled(); return int(m_loops.length()); }
  const Loop& loopAt(int index) const;
  void appendLoop(const Loop& loop);
  // A closed polyline loop of vertices and bulges (none: straight).
  void appendLoop(int loopType, const OdArray<OdGePoint2d>& vertices, const OdGeDoubleArray& bulges = {});
  void removeLoopAt(int index);

  // The pattern. setPattern takes a pattern of the built-in library (any
  // case; "SOLID" makes a solid fill) for kPreDefined, any name for
  // kUserDefined (lines from the angle, spacing and double flag), and for
  // kCustomDefined keeps the lines as they are. An unknown predefined name
  // raises OdError(eInvalidInput) and changes nothing.
  HatchPatternType patternType() const { assertReadEnabled(); return m_patternType; }
  OdString patternName() const { assertReadEnabled(); return m_patternName; }
  void setPattern(HatchPatternType type, const OdString& name);
  bool isSolidFill() const { assertReadEnabled(); return m_solid; }
  // The angle turns and the scale sizes the pattern lines about the
  // origin; a scale or spacing that is not a positive finite number raises
  // OdError(eInvalidInput).
  double patternAngle() const { assertReadEnabled(); return m_angle; }
  void setPatternAngle(double angle);
  double patternScale() const { assertReadEnabled(); return m_scale; }
  void setPatternScale(double scale);
  double patternSpace() const { assertReadEnabled(); return m_spacing; }
  void setPatternSpace(double spacing);
  bool patternDouble() const { assertReadEnabled(); return m_double; }
  void setPatternDouble(bool on);
  const OdArray<PatternLine>& patternLines() const { assertReadEnabled(); return m_lines; }
  void setPatternLines(const OdArray<PatternLine>& lines);
  // Every pattern value at once, as a file stores them: nothing is checked
  // against the library and no line is laid out anew.
  void setPatternData(HatchPatternType type, const OdString& name, bool solid, double angle, double scale,
                      double spacing, bool isDouble, const OdArray<PatternLine>& lines);
  // The point the pattern is laid out from (object coordinates): where the
  // first pattern line passes. Moving it moves every pattern line.
  OdGePoint2d originPoint() const;
  void setOriginPoint(const OdGePoint2d& p);

  bool associative() const { assertReadEnabled(); return m_associative; }
  void setAssociative(bool on);
  // Handles of the objects the boundary was made from.
  const OdArray<quint64>& sourceHandles() const { assertReadEnabled(); return m_sources; }
  void setSourceHandles(const OdArray<quint64>& handles);
  HatchStyle hatchStyle() const { assertReadEnabled(); return m_style; }
  void setHatchStyle(HatchStyle style);
  double elevation() const { assertReadEnabled(); return m_elevation; }
  void setElevation(double z);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);

  // Gradient fills: a name of gradientNames(), two colours (one in
  // one-colour mode), the angle of the gradient and its shift (0: centred).
  bool isGradient() const { assertReadEnabled(); return m_gradient; }
  void setGradient(bool on);
  OdString gradientName() const { assertReadEnabled(); return m_gradientName; }
  void setGradientName(const OdString& name);  // unknown names: OdError(eInvalidInput)
  double gradientAngle() const { assertReadEnabled(); return m_gradientAngle; }
  void setGradientAngle(double angle);
  double gradientShift() const { assertReadEnabled(); return m_gradientShift; }
  void setGradientShift(double shift);
  bool gradientOneColorMode() const { assertReadEnabled(); return m_oneColor; }
  OdCmColor gradientColor(int index) const;  // index 0 or 1
  void setGradientColor(int index, const OdCmColor& color);
  void setGradientOneColorMode(bool on);
  static const OdArray<OdString>& gradientNames();

  // The background colour of a pattern fill (none: transparent), kept as
  // extended data of "HATCHBACKGROUNDCOLOR".
  OdCmColor backgroundColor() const;
  void setBackgroundColor(const OdCmColor& color);

  // Names of the built-in predefined patterns, and whether a name is one.
  static const OdArray<OdString>& predefinedPatternNames();
  static bool isPredefinedPattern(const OdString& name);

  // The filled area: the loops' areas, islands subtracted as the hatch
  // style fills them. eNotApplicable when the boundary cannot give one
  // (a loop crosses itself or another loop, or is not closed).
  OdResult getArea(double& area) const;
  // Whether the boundary could be read from the file; false leaves the
  // loops empty and the area not computable.
  bool boundaryUnderstood() const { assertReadEnabled(); return m_boundaryOk; }
  void setBoundaryUnderstood(bool ok);

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  void regenerateLines();

  OdArray<Loop> m_loops;
  OdArray<PatternLine> m_lines;
  OdArray<quint64> m_sources;
  HatchPatternType m_patternType = kPreDefined;
  OdString m_patternName = OdString("SOLID");
  HatchStyle m_style = kNormal;
  double m_angle = 0, m_scale = 1, m_spacing = 1, m_elevation = 0;
  double m_gradientAngle = 0, m_gradientShift = 0;
  OdGeVector3d m_normal{0, 0, 1};
  OdCmColor m_gradientColors[2];
  OdString m_gradientName;
  bool m_solid = true, m_double = false, m_associative = false, m_gradient = false, m_oneColor = false;
  bool m_boundaryOk = true;
};
using OdDbHatchPtr = OdSmartPtr<OdDbHatch>;
