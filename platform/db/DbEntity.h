#pragma once
// Entities: the drawable objects of a block (model space, paper space or a
// block definition), with the properties every entity has.
#include "DbObject.h"
#include "OdCmColor.h"
#include "OdGePlane.h"

struct OdDbHyperlink {
  OdString name;         // the address
  OdString description;
  OdString subLocation;
  friend bool operator==(const OdDbHyperlink&, const OdDbHyperlink&) = default;
};

class DB_API OdDbEntity : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbEntity);

 public:
  OdDbEntity();

  // The block table record that owns the entity.
  OdDbObjectId blockId() const { return ownerId(); }

  OdCmColor color() const { assertReadEnabled(); return m_color; }
  int colorIndex() const { return color().colorIndex(); }
  void setColor(const OdCmColor& c);
  void setColorIndex(int aci);

  OdDbObjectId layerId() const { assertReadEnabled(); return m_layerId; }
  // Name of the entity's layer ("0" when it has none).
  OdString layer() const;
  void setLayer(const OdDbObjectId& layer);
  // By name; false when the drawing has no such layer.
  bool setLayer(const OdString& name);

  OdDbObjectId linetypeId() const { assertReadEnabled(); return m_linetypeId; }
  // "ByLayer", "ByBlock", "Continuous" or the linetype's name.
  OdString linetype() const;
  void setLinetype(const OdDbObjectId& lt);
  bool setLinetype(const OdString& name);

  double linetypeScale() const { assertReadEnabled(); return m_ltScale; }
  void setLinetypeScale(double s);

  OdDb::LineWeight lineWeight() const { assertReadEnabled(); return m_lineWeight; }
  void setLineWeight(OdDb::LineWeight lw);

  OdCmTransparency transparency() const { assertReadEnabled(); return m_transparency; }
  void setTransparency(const OdCmTransparency& t);

  // Plot style name; empty means ByLayer (colour-dependent plot styles).
  OdString plotStyleName() const { assertReadEnabled(); return m_plotStyle; }
  void setPlotStyleName(const OdString& name);

  // Hyperlinks attached to the entity (stored as the "PE_URL" extended data
  // in drawing files). setHyperlinks throws OdError(eInvalidInput), and
  // changes nothing, when a text holds a line break, a tab or another
  // control character.
  const OdArray<OdDbHyperlink>& hyperlinks() const { assertReadEnabled(); return m_hyperlinks; }
  void setHyperlinks(const OdArray<OdDbHyperlink>& links);

  bool visibility() const { assertReadEnabled(); return m_visible; }
  void setVisibility(bool v);

  // Geometric extents in WCS; false when the entity has none.
  virtual bool getGeomExtents(OdGeExtents3d& ext) const;
  // Sets the properties every entity has to the drawing's current ones
  // (layer 0, ByLayer colour, linetype and lineweight, scale 1).
  void setDatabaseDefaults(OdDbDatabase* db = nullptr);

  void copyFrom(const OdRxObject* source) override;

 private:
  OdCmColor m_color;
  OdDbObjectId m_layerId;
  OdDbObjectId m_linetypeId;
  double m_ltScale = 1.0;
  OdDb::LineWeight m_lineWeight = OdDb::kLnWtByLayer;
  OdCmTransparency m_transparency;
  OdString m_plotStyle;
  OdArray<OdDbHyperlink> m_hyperlinks;
  bool m_visible = true;
};
using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;

// Curves: entities with a parametrisation from a start to an end parameter.
class DB_API OdDbCurve : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbCurve);

 public:
  virtual bool isClosed() const { return false; }
  // Curve classes that do not model their geometry yet answer eNotImplementedYet.
  virtual OdResult getStartParam(double& param) const;
  virtual OdResult getEndParam(double& param) const;
  virtual OdResult getStartPoint(OdGePoint3d& p) const;
  virtual OdResult getEndPoint(OdGePoint3d& p) const;
  virtual OdResult getPointAtParam(double param, OdGePoint3d& p) const;
  // Length of the curve from its start parameter to param.
  virtual OdResult getDistAtParam(double param, double& dist) const;
  // Area enclosed by the curve (closed or not: the area of the figure closed
  // by joining its end to its start), always non-negative.
  virtual OdResult getArea(double& area) const;
};
using OdDbCurvePtr = OdSmartPtr<OdDbCurve>;

// The overrides of a curve class that models its geometry: the curve
// interface, its extents and the copy of its data.
#define ODDB_DECLARE_CURVE_INTERFACE()                                          \
  OdResult getStartParam(double& param) const override;                       \
  OdResult getEndParam(double& param) const override;                         \
  OdResult getStartPoint(OdGePoint3d& p) const override;                      \
  OdResult getEndPoint(OdGePoint3d& p) const override;                        \
  OdResult getPointAtParam(double param, OdGePoint3d& p) const override;      \
  OdResult getDistAtParam(double param, double& dist) const override;         \
  OdResult getArea(double& area) const override;                              \
  bool getGeomExtents(OdGeExtents3d& ext) const override;                     \
  void copyFrom(const OdRxObject* source) override
