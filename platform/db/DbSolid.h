#pragma once
// Four-cornered entities: 3D faces (corners anywhere in space, each edge
// visible or not) and the filled solids and traces of a plane (corners in
// the plane of their normal, with thickness along it). Corners are kept in
// WCS; a triangle repeats its third corner.
#include "DbEntity.h"

// The corners every four-cornered entity keeps. An index outside 0..3
// raises OdError_InvalidIndex.
class DB_API OdDbQuadCorners {
 public:
  OdResult getPointAt(unsigned index, OdGePoint3d& p) const;
  void setPointAt(unsigned index, const OdGePoint3d& p);

 protected:
  OdGePoint3d m_corners[4];
};

class DB_API OdDbFace : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbFace);

 public:
  static OdSmartPtr<OdDbFace> createObject();
  OdDbFace();

  OdResult getVertexAt(unsigned index, OdGePoint3d& p) const;
  void setVertexAt(unsigned index, const OdGePoint3d& p);
  // Edge i runs from corner i to the next one.
  bool isEdgeVisibleAt(unsigned index) const;
  void makeEdgeVisibleAt(unsigned index);
  void makeEdgeInvisibleAt(unsigned index);
  // The invisible edges as DXF group 70 keeps them: bit i for edge i.
  int invisibleEdges() const { assertReadEnabled(); return m_invisible; }
  void setInvisibleEdges(int bits);

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbQuadCorners m_quad;
  int m_invisible = 0;
};
using OdDbFacePtr = OdSmartPtr<OdDbFace>;

#define ODDB_DECLARE_PLANAR_QUAD(Class)                                                 \
  class DB_API Class : public OdDbEntity, public OdDbQuadCorners {                       \
    ODRX_DECLARE_MEMBERS(Class);                                                         \
                                                                                         \
   public:                                                                               \
    static OdSmartPtr<Class> createObject();                                             \
    Class();                                                                             \
    OdResult getPointAt(unsigned index, OdGePoint3d& p) const;                           \
    void setPointAt(unsigned index, const OdGePoint3d& p);                               \
    double thickness() const { assertReadEnabled(); return m_thickness; }                \
    void setThickness(double t);                                                         \
    OdGeVector3d normal() const { assertReadEnabled(); return m_normal; }                \
    void setNormal(const OdGeVector3d& n);                                               \
    bool getGeomExtents(OdGeExtents3d& ext) const override;                              \
    void copyFrom(const OdRxObject* source) override;                                    \
                                                                                         \
   private:                                                                              \
    double m_thickness = 0;                                                              \
    OdGeVector3d m_normal{0, 0, 1};                                                      \
  };                                                                                     \
  using Class##Ptr = OdSmartPtr<Class>;

// A filled solid: its corners fill the figure 1-2-4-3 (the third and fourth
// corner cross over).
ODDB_DECLARE_PLANAR_QUAD(OdDbSolid)
// A trace: a wide line segment, kept as the four corners of its outline.
ODDB_DECLARE_PLANAR_QUAD(OdDbTrace)
