#pragma once
// Leaders, and what leaders and tolerance frames share with dimensions: a
// dimension style whose variables the object may override (the "DSTYLE"
// extended data, as dimensions keep theirs).
#include "DbDimStyle.h"

#include <vector>

// The style's value of a variable (the table's default without a style).
DB_API OdDbDimVar::Value odDbStyleDimVar(const OdDbObjectId& style, OdDbDimVar::Id id);
// Raises OdError(eInvalidInput) unless id is null or a dimension style record.
DB_API void odDbCheckDimStyleId(const OdDbObjectId& id);

// An entity class drawn with a dimension style: Base plus the style record
// and one getter and setter per dimension variable, each the style's value
// unless the object overrides it.
template <class Base>
class OdDbDimStyled : public Base {
 public:
  OdDbObjectId dimensionStyle() const { this->assertReadEnabled(); return m_style; }
  void setDimensionStyle(const OdDbObjectId& id) {
    odDbCheckDimStyleId(id);
    this->assertWriteEnabled();
    m_style = id;
  }

#define DIMVAR(Name, Setter, Code, Kind, Type, Default, Limit, Lo, Hi, Since, Row)   \
  Type Name() const { return OdDbDimVar::as<Type>(dimVar(OdDbDimVar::k_##Name)); }   \
  void Setter(Type v) { setDimVar(OdDbDimVar::k_##Name, OdDbDimVar::of<Type>(v)); }
#include "DimVars.def"

  OdDbDimVar::Value dimVar(OdDbDimVar::Id id) const {
    this->assertReadEnabled();
    OdDbDimVar::Value v;
    if (OdDbDimStyleOverrides::find(this, id, &v)) return v;
    return odDbStyleDimVar(m_style, id);
  }
  // Overrides the variable; the style's own value removes the override.
  // A value the variable does not take raises OdError(eInvalidInput).
  void setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v) {
    OdString why;
    if (!OdDbDimVar::check(id, v, &why)) throw OdError(eInvalidInput, why);
    if (v == odDbStyleDimVar(m_style, id)) {
      this->assertWriteEnabled();
      if (OdDbDimStyleOverrides::find(this, id)) OdDbDimStyleOverrides::remove(this, id);
    } else {
      OdDbDimStyleOverrides::set(this, id, v);
    }
  }
  // Fills a (scratch) style record with the object's effective values.
  void getDimstyleData(OdDbDimStyleTableRecord* record) const {
    for (int k = 0; k < OdDbDimVar::kCount; ++k) record->setDimVar(OdDbDimVar::Id(k), dimVar(OdDbDimVar::Id(k)));
  }

 protected:
  void copyStyleFrom(const OdDbDimStyled& other) { m_style = other.m_style; }

 private:
  OdDbObjectId m_style;
};

// A leader: a line or spline through its vertices (WCS) from the arrow to
// the annotation it points at, drawn with a dimension style.
class DB_API OdDbLeader : public OdDbDimStyled<OdDbCurve> {
  ODRX_DECLARE_MEMBERS(OdDbLeader);

 public:
  static OdSmartPtr<OdDbLeader> createObject();
  OdDbLeader();

  // What the leader points at (the DXF creation flag): a text, a tolerance
  // frame, a block reference, or nothing.
  enum AnnoType { kMText = 0, kFcf = 1, kBlockRef = 2, kNoAnno = 3 };

  unsigned numVerts() const { assertReadEnabled(); return unsigned(m_vertices.size()); }
  // Raises OdError(eInvalidIndex) for an index past the last vertex and
  // OdError(eInvalidInput) for a point that is not finite.
  OdGePoint3d vertexAt(unsigned index) const;
  void setVertexAt(unsigned index, const OdGePoint3d& p);
  void appendVertex(const OdGePoint3d& p);
  void removeLastVertex();

  bool hasArrowHead() const { assertReadEnabled(); return m_arrow; }
  void setHasArrowHead(bool on);
  bool isSplined() const { assertReadEnabled(); return m_spline; }
  void setSplined(bool on);
  bool hasHookLine() const { assertReadEnabled(); return m_hook; }
  void setHasHookLine(bool on);
  // The side of the annotation the hook line comes from: 1 along the
  // horizontal direction, 0 against it.
  int hookLineDirection() const { assertReadEnabled(); return m_hookDirection; }
  void setHookLineDirection(int d);
  int annoType() const { assertReadEnabled(); return m_annoType; }
  void setAnnoType(int t);
  // The annotation (null: none). A drawing may name it by a handle that
  // is read before the object itself: the handle is kept and found in the
  // leader's database when asked for.
  OdDbObjectId annotationObjId() const;
  void setAnnotationObjId(const OdDbObjectId& id);
  OdDbHandle annotationHandle() const { assertReadEnabled(); return m_annoHandle; }
  void setAnnotationHandle(const OdDbHandle& h);
  // The size of the annotation's text the leader was made for.
  double annoHeight() const { assertReadEnabled(); return m_annoHeight; }
  void setAnnoHeight(double h);
  double annoWidth() const { assertReadEnabled(); return m_annoWidth; }
  void setAnnoWidth(double w);
  OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }
  void setNormal(const OdGeVector3d& n);
  // The direction the leader calls horizontal (its text's X axis).
  OdGeVector3d horizontalDirection() const { assertReadEnabled(); return m_horizontal; }
  void setHorizontalDirection(const OdGeVector3d& d);
  // How far the annotation stands from the last vertex.
  OdGeVector3d annotationOffset() const { assertReadEnabled(); return m_annoOffset; }
  void setAnnotationOffset(const OdGeVector3d& v);

  OdResult getStartPoint(OdGePoint3d& p) const override;
  OdResult getEndPoint(OdGePoint3d& p) const override;
  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  std::vector<OdGePoint3d> m_vertices;
  bool m_arrow = true, m_spline = false, m_hook = false;
  int m_hookDirection = 0, m_annoType = kNoAnno;
  OdDbObjectId m_annotation;
  OdDbHandle m_annoHandle;
  double m_annoHeight = 0, m_annoWidth = 0;
  OdGeVector3d m_normal{0, 0, 1}, m_horizontal{1, 0, 0}, m_annoOffset;
};
using OdDbLeaderPtr = OdSmartPtr<OdDbLeader>;
