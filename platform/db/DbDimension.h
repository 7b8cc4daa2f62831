#pragma once
// Dimensions: what every kind has - its dimension style and the dimension
// variables, each the style's value unless the dimension overrides it; the
// text, its position and rotation, the block that draws the dimension - and
// the nine kinds with their defining points and measurements.
#include "DbDimStyle.h"

#include <vector>

// What a dimension is attached to, as its DIMASSOC object says: per
// defining point the entity it follows and how (the object snap).
struct OdDbDimAssocPoint {
  int point = 0;       // 0 the first defining point, 1 the second, 2 the third, 3 the fourth
  int osnap = 0;       // 0 none, 1 end point, 2 midpoint, 3 center, 4 node, 5 quadrant, 6 intersection,
                       // 7 insertion, 8 perpendicular, 9 tangent, 10 nearest, 11 apparent
                       // intersection, 12 parallel, 13 start point
  OdDbObjectId object; // null when the entity is not in this drawing
  quint64 handle = 0;  // the entity's handle as the file names it
};
struct OdDbDimAssoc {
  quint64 handle = 0;  // the DIMASSOC object's; 0: the dimension has none
  std::vector<OdDbDimAssocPoint> points;
};

class DB_API OdDbDimension : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbDimension);

 public:
  // The dimension style record (null: none; its variables then have the
  // table's defaults).
  OdDbObjectId dimensionStyle() const { assertReadEnabled(); return m_style; }
  void setDimensionStyle(const OdDbObjectId& id);

  // One getter and one setter per variable (dimasz(), setDimasz(...)). The
  // getter answers the override if the dimension has one, else the style's
  // value; the setter makes an override (the style is not changed; the
  // style's own value removes the override) and refuses a value outside
  // the variable's limit with OdError(eInvalidInput).
#define DIMVAR(Name, Setter, Code, Kind, Type, Default, Limit, Lo, Hi, Since, Row)   \
  Type Name() const { return OdDbDimVar::as<Type>(dimVar(OdDbDimVar::k_##Name)); }   \
  void Setter(Type v) { setDimVar(OdDbDimVar::k_##Name, OdDbDimVar::of<Type>(v)); }
#include "DimVars.def"

  OdDbDimVar::Value dimVar(OdDbDimVar::Id id) const;
  // Overrides the variable; its style's own value removes the override.
  void setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v);
  // The value the dimension's style gives (the table's default without one).
  OdDbDimVar::Value styleDimVar(OdDbDimVar::Id id) const;
  // The style's value again: the override of `id` is removed.
  void clearDimVar(OdDbDimVar::Id id);
  // Fills a (scratch) style record with the dimension's effective values.
  void getDimstyleData(OdDbDimStyleTableRecord* record) const;
  // Makes the record's values the dimension's: overrides where they differ
  // from its style, none where they agree.
  void setDimstyleData(const OdDbDimStyleTableRecord* record);

  // The text: "" shows the measurement, "<>" in it stands for the
  // measurement, " " shows none.
  OdString dimensionText() const { assertReadEnabled(); return m_text; }
  void setDimensionText(const OdString& text);
  // The middle of the text (WCS).
  OdGePoint3d textPosition() const { assertReadEnabled(); return m_textPosition; }
  void setTextPosition(const OdGePoint3d& p);
  // The text's rotation and the direction the dimension calls horizontal
  // (radians, in the plane of the normal).
  double textRotation() const { assertReadEnabled(); return m_textRotation; }
  void setTextRotation(double r);
  double horizontalRotation() const { assertReadEnabled(); return m_horizontalRotation; }
  void setHorizontalRotation(double r);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  // The text's attachment, line spacing style and factor.
  int textAttachment() const { assertReadEnabled(); return m_attachment; }
  void setTextAttachment(int a);
  int textLineSpacingStyle() const { assertReadEnabled(); return m_spacingStyle; }
  void setTextLineSpacingStyle(int s);
  double textLineSpacingFactor() const { assertReadEnabled(); return m_spacingFactor; }
  void setTextLineSpacingFactor(double f);
  // The kind and state word of the record (group 70): the kind in its low
  // bits, 32 block used by this dimension only, 64 ordinate along X, 128
  // text moved by the user.
  int dimensionFlags() const { assertReadEnabled(); return m_flags; }
  void setDimensionFlags(int flags);
  bool isUsingDefaultTextPosition() const { return !(dimensionFlags() & 128); }

  // The block of the dimension's graphics, by name ("" none). The block is
  // kept as it is; after an edit it no longer matches, and the dimension
  // says so with needsBlockRegeneration().
  OdString dimBlockName() const { assertReadEnabled(); return m_block; }
  void setDimBlockName(const OdString& name);
  bool needsBlockRegeneration() const { assertReadEnabled(); return m_regenerate; }
  void setNeedsBlockRegeneration(bool on);
  // Draws the dimension's own block anew from its defining points and
  // variables (dimension line, extension lines, arrowheads, the text as
  // multiline text) and clears the flag. False, and nothing changed, for a
  // kind it cannot draw (angular, arc length, jogged radial, ordinate), a
  // block shared with other dimensions, or points it cannot measure.
  bool recomputeDimBlock();

  // Whether the dimension is associated with the geometry it measures (it
  // has a DIMASSOC object among its reactors).
  bool isAssociative() const { assertReadEnabled(); return m_associative; }
  void setAssociative(bool on);
  // The association as read from the drawing's DIMASSOC object (the object
  // itself stays in the file as it is). An edit of a defining point keeps
  // it: the association names the geometry, not coordinates.
  const OdDbDimAssoc& association() const { assertReadEnabled(); return m_association; }
  void setAssociation(const OdDbDimAssoc& a);

  // The measurement recomputed from the defining points: false when they
  // are degenerate (a zero length, points on one line for an angle), the
  // value then left unchanged. Lengths in drawing units, angles in radians.
  virtual bool measure(double& value) const;
  // The measurement as a dimension shows it: recomputed where the points
  // allow, else the value the file keeps.
  double measurement() const;
  // The value the file keeps (group 42); recomputed after every edit of a
  // defining point.
  double cachedMeasurement() const { assertReadEnabled(); return m_cached; }
  void setCachedMeasurement(double v);

  // Defining points by their group code (10, 13, 14, 15, 16, 17) and the
  // kinds' own numbers by theirs (40, 41, 50, 52, and 70, 71 of the kind's
  // own subclass); the kinds name them. Points are WCS.
  OdGePoint3d kindPoint(int code) const { assertReadEnabled(); return m_points[slot(code)]; }
  void setKindPoint(int code, const OdGePoint3d& p);
  double kindValue(int code) const { assertReadEnabled(); return m_values[valueSlot(code)]; }
  void setKindValue(int code, double v);

  void copyFrom(const OdRxObject* source) override;

 protected:
  OdDbDimension();
  explicit OdDbDimension(int kind);
  static int slot(int code);
  static int valueSlot(int code);
  // After a defining point changed: the kept measurement follows, and the
  // block no longer draws the dimension.
  void geometryChanged();

 private:
  OdDbObjectId m_style;
  OdString m_text, m_block;
  OdGePoint3d m_textPosition;
  double m_textRotation = 0, m_horizontalRotation = 0, m_spacingFactor = 1, m_cached = 0;
  OdGeVector3d m_normal{0, 0, 1};
  int m_attachment = 5, m_spacingStyle = 1, m_flags = 0;
  bool m_regenerate = false, m_associative = false;
  OdDbDimAssoc m_association;
  OdGePoint3d m_points[6];
  double m_values[6] = {0, 0, 0, 0, 0, 0};
};
using OdDbDimensionPtr = OdSmartPtr<OdDbDimension>;

// A named defining point of a kind, kept under its group code.
#define ODDB_DIM_POINT(Get, Set, Code)                                        \
  OdGePoint3d Get() const { return kindPoint(Code); }                     \
  void Set(const OdGePoint3d& p) { setKindPoint(Code, p); }
#define ODDB_DIM_VALUE(Get, Set, Code)                                        \
  double Get() const { return kindValue(Code); }                              \
  void Set(double v) { setKindValue(Code, v); }

#define ODDB_DIM_KIND(Class)                                                  \
  ODRX_DECLARE_MEMBERS(Class);                                                \
                                                                              \
 public:                                                                      \
  static OdSmartPtr<Class> createObject();                                    \
  Class();                                                                    \
  bool measure(double& value) const override;

// Linear along the line through its two extension points.
class DB_API OdDbAlignedDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDbAlignedDimension)
  ODDB_DIM_POINT(xLine1Point, setXLine1Point, 13)
  ODDB_DIM_POINT(xLine2Point, setXLine2Point, 14)
  ODDB_DIM_POINT(dimLinePoint, setDimLinePoint, 10)
  ODDB_DIM_VALUE(oblique, setOblique, 52)
};

// Linear along a fixed direction (the rotation).
class DB_API OdDbRotatedDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDbRotatedDimension)
  ODDB_DIM_POINT(xLine1Point, setXLine1Point, 13)
  ODDB_DIM_POINT(xLine2Point, setXLine2Point, 14)
  ODDB_DIM_POINT(dimLinePoint, setDimLinePoint, 10)
  ODDB_DIM_VALUE(rotation, setRotation, 50)
  ODDB_DIM_VALUE(oblique, setOblique, 52)
};

// The angle between two lines, in the quadrant of the arc point.
class DB_API OdDb2LineAngularDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDb2LineAngularDimension)
  ODDB_DIM_POINT(xLine1Start, setXLine1Start, 13)
  ODDB_DIM_POINT(xLine1End, setXLine1End, 14)
  ODDB_DIM_POINT(xLine2Start, setXLine2Start, 15)
  ODDB_DIM_POINT(xLine2End, setXLine2End, 10)
  ODDB_DIM_POINT(arcPoint, setArcPoint, 16)
};

// The angle at a vertex between two points, on the side of the arc point.
class DB_API OdDb3PointAngularDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDb3PointAngularDimension)
  ODDB_DIM_POINT(xLine1Point, setXLine1Point, 13)
  ODDB_DIM_POINT(xLine2Point, setXLine2Point, 14)
  ODDB_DIM_POINT(centerPoint, setCenterPoint, 15)
  ODDB_DIM_POINT(arcPoint, setArcPoint, 10)
};

// The length of an arc between two points about its center.
class DB_API OdDbArcDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDbArcDimension)
  ODDB_DIM_POINT(xLine1Point, setXLine1Point, 13)
  ODDB_DIM_POINT(xLine2Point, setXLine2Point, 14)
  ODDB_DIM_POINT(centerPoint, setCenterPoint, 15)
  ODDB_DIM_POINT(arcPoint, setArcPoint, 10)
  ODDB_DIM_POINT(leader1Point, setLeader1Point, 16)
  ODDB_DIM_POINT(leader2Point, setLeader2Point, 17)
  ODDB_DIM_VALUE(arcStartParam, setArcStartParam, 40)
  ODDB_DIM_VALUE(arcEndParam, setArcEndParam, 41)
  bool isPartial() const { return kindValue(70) != 0; }
  void setIsPartial(bool on) { setKindValue(70, on ? 1 : 0); }
  bool hasLeader() const { return kindValue(71) != 0; }
  void setHasLeader(bool on) { setKindValue(71, on ? 1 : 0); }
};

// A radius: center to a point on the curve.
class DB_API OdDbRadialDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDbRadialDimension)
  ODDB_DIM_POINT(center, setCenter, 10)
  ODDB_DIM_POINT(chordPoint, setChordPoint, 15)
  ODDB_DIM_VALUE(leaderLength, setLeaderLength, 40)
};

// A large radius drawn with a jogged line from an override center.
class DB_API OdDbRadialDimensionLarge : public OdDbDimension {
  ODDB_DIM_KIND(OdDbRadialDimensionLarge)
  ODDB_DIM_POINT(center, setCenter, 10)
  ODDB_DIM_POINT(chordPoint, setChordPoint, 15)
  ODDB_DIM_POINT(overrideCenter, setOverrideCenter, 13)
  ODDB_DIM_POINT(jogPoint, setJogPoint, 14)
  ODDB_DIM_VALUE(jogAngle, setJogAngle, 40)
};

// A diameter: between two opposite points of the curve.
class DB_API OdDbDiametricDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDbDiametricDimension)
  ODDB_DIM_POINT(farChordPoint, setFarChordPoint, 10)
  ODDB_DIM_POINT(chordPoint, setChordPoint, 15)
  ODDB_DIM_VALUE(leaderLength, setLeaderLength, 40)
};

// The X or Y distance of a feature from an origin, in the dimension's
// plane.
class DB_API OdDbOrdinateDimension : public OdDbDimension {
  ODDB_DIM_KIND(OdDbOrdinateDimension)
  ODDB_DIM_POINT(origin, setOrigin, 10)
  ODDB_DIM_POINT(definingPoint, setDefiningPoint, 13)
  ODDB_DIM_POINT(leaderEndPoint, setLeaderEndPoint, 14)
  bool isUsingXAxis() const { return dimensionFlags() & 64; }
  void useXAxis() { setDimensionFlags(dimensionFlags() | 64); }
  void useYAxis() { setDimensionFlags(dimensionFlags() & ~64); }
};

#undef ODDB_DIM_KIND
#undef ODDB_DIM_POINT
#undef ODDB_DIM_VALUE

using OdDbAlignedDimensionPtr = OdSmartPtr<OdDbAlignedDimension>;
using OdDbRotatedDimensionPtr = OdSmartPtr<OdDbRotatedDimension>;
using OdDb2LineAngularDimensionPtr = OdSmartPtr<OdDb2LineAngularDimension>;
using OdDb3PointAngularDimensionPtr = OdSmartPtr<OdDb3PointAngularDimension>;
using OdDbArcDimensionPtr = OdSmartPtr<OdDbArcDimension>;
using OdDbRadialDimensionPtr = OdSmartPtr<OdDbRadialDimension>;
using OdDbRadialDimensionLargePtr = OdSmartPtr<OdDbRadialDimensionLarge>;
using OdDbDiametricDimensionPtr = OdSmartPtr<OdDbDiametricDimension>;
using OdDbOrdinateDimensionPtr = OdSmartPtr<OdDbOrdinateDimension>;
