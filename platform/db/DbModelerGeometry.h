#pragma once
// Solids, bodies, regions and surfaces: entities whose shape is modeller
// (ACIS) data. The data is kept as the file holds it - SAT text (decoded
// from the DXF's obfuscated group 1/3 lines) before R2013, SAB binary from
// the data-storage section from R2013 on - and is written back unchanged
// unless the object is edited. What the properties need (extents, a
// region's area and perimeter, a move) is computed from the SAT text.
#include "DbEntity.h"
#include <QByteArray>
#include <QString>
#include <utility>
#include <vector>

// The modeller data of one object.
struct DB_API OdDbAcisData {
  QByteArray sat;  // SAT text, lines separated by '\n'; empty when none or binary
  QByteArray sab;  // SAB bytes (data-storage section); empty when none or text
  bool isEmpty() const { return sat.isEmpty() && sab.isEmpty(); }
  bool operator==(const OdDbAcisData& o) const { return sat == o.sat && sab == o.sab; }
};

// Reading SAT text. Every function answers false with a sentence in *why
// when the text cannot be interpreted (corrupt, truncated, binary only, or
// geometry of a kind it does not know), and leaves its outputs alone then.
namespace OdDbAcis {
// The DXF form of SAT lines (each character c but the blank stored as
// 159 - c) and back.
DB_API QByteArray decodeLine(QByteArrayView dxf);
DB_API QByteArray encodeLine(QByteArrayView sat);
// The box around every point, straight line root, circle and surface
// centre (with the surfaces' radii) of the data.
DB_API bool extents(const OdDbAcisData& data, OdGeExtents3d& ext, QString* why);
// Area and perimeter of a region: for each face the outer loop minus its
// holes, edges being lines and circular or elliptical arcs.
DB_API bool regionMeasures(const OdDbAcisData& data, double& area, double& perimeter, QString* why);
// Moves every position of the data by `by` (points, curve and surface
// roots, transforms).
DB_API bool translate(OdDbAcisData& data, const OdGeVector3d& by, QString* why);
}  // namespace OdDbAcis

// The shared C++ base of the classes below (no class of its own in the
// class tree: each class derives from OdDbEntity there).
class DB_API OdDbModelerEntity : public OdDbEntity {
 public:
  const OdDbAcisData& acisData() const { assertReadEnabled(); return m_acis; }
  void setAcisData(const OdDbAcisData& data) { assertWriteEnabled(); m_acis = data; }
  // The box of the body, or false (with why) when the data does not tell.
  bool bodyExtents(OdGeExtents3d& ext, QString* why = nullptr) const { return OdDbAcis::extents(acisData(), ext, why); }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbAcisData m_acis;
};

// A solid's creation history: the kind of its primitive record, the
// record's placement and its parameters by group code, as the file's
// history records hold them.
struct DB_API OdDbSolidHistory {
  enum Kind { kNone = -1, kBox, kCylinder, kCone, kPyramid, kSphere, kTorus, kWedge, kExtrude, kRevolve, kSweep, kLoft };
  Kind kind = kNone;
  OdGeMatrix3d transform;  // primitive coordinates to WCS
  std::vector<std::pair<int, double>> values;  // the primitive subclass's numbers (group code, value)
  quint64 node = 0;  // handle of the primitive record (0: none)

  // The first value of a group code, or def.
  double value(int code, double def = 0) const;
  // The record class of a kind ("ACSH_BOX_CLASS") and back (kNone for others).
  static const char* recordType(Kind kind);
  static Kind kindOfRecord(QByteArrayView type);
  bool operator==(const OdDbSolidHistory& o) const;
};

class DB_API OdDb3dSolid : public OdDbModelerEntity {
  ODRX_DECLARE_MEMBERS(OdDb3dSolid);

 public:
  static OdSmartPtr<OdDb3dSolid> createObject();
  const OdDbSolidHistory& history() const { assertReadEnabled(); return m_history; }
  void setHistory(const OdDbSolidHistory& h) { assertWriteEnabled(); m_history = h; }
  // The placement point: the history's origin, else the centre of the
  // body's box; false when neither is known.
  bool position(OdGePoint3d& p) const;
  // Moves body and history so that the placement point is p. Refused
  // (false, why) when the body cannot be moved; nothing changes then.
  bool setPosition(const OdGePoint3d& p, QString* why);
  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbSolidHistory m_history;
};
using OdDb3dSolidPtr = OdSmartPtr<OdDb3dSolid>;

class DB_API OdDbBody : public OdDbModelerEntity {
  ODRX_DECLARE_MEMBERS(OdDbBody);

 public:
  static OdSmartPtr<OdDbBody> createObject();
};

class DB_API OdDbRegion : public OdDbModelerEntity {
  ODRX_DECLARE_MEMBERS(OdDbRegion);

 public:
  static OdSmartPtr<OdDbRegion> createObject();
  // Area and perimeter from the data; false (with why) when not computable.
  bool measures(double& area, double& perimeter, QString* why = nullptr) const {
    return OdDbAcis::regionMeasures(acisData(), area, perimeter, why);
  }
};

// A procedural surface: its isoline counts and, per kind, the parameters
// of the operation that made it.
class DB_API OdDbSurface : public OdDbModelerEntity {
  ODRX_DECLARE_MEMBERS(OdDbSurface);

 public:
  static OdSmartPtr<OdDbSurface> createObject();
  int uIsolines() const { assertReadEnabled(); return m_u; }
  int vIsolines() const { assertReadEnabled(); return m_v; }
  // Counts from 0 to 2047; others are refused with eInvalidInput.
  void setUIsolines(int n);
  void setVIsolines(int n);
  void copyFrom(const OdRxObject* source) override;

 private:
  int m_u = 0, m_v = 0;
};

class DB_API OdDbPlaneSurface : public OdDbSurface {
  ODRX_DECLARE_MEMBERS(OdDbPlaneSurface);

 public:
  static OdSmartPtr<OdDbPlaneSurface> createObject();
};

// The parameters of the sweep-like kinds, as their records hold them.
struct DB_API OdDbSweepOptions {
  double draftAngle = 0, twistAngle = 0, scaleFactor = 1, alignAngle = 0;
  bool bank = false;
  bool operator==(const OdDbSweepOptions& o) const = default;
};

class DB_API OdDbExtrudedSurface : public OdDbSurface {
  ODRX_DECLARE_MEMBERS(OdDbExtrudedSurface);

 public:
  static OdSmartPtr<OdDbExtrudedSurface> createObject();
  OdGeVector3d sweepVector() const { assertReadEnabled(); return m_sweep; }
  void setSweepVector(const OdGeVector3d& v) { assertWriteEnabled(); m_sweep = v; }
  const OdDbSweepOptions& options() const { assertReadEnabled(); return m_options; }
  void setOptions(const OdDbSweepOptions& o) { assertWriteEnabled(); m_options = o; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGeVector3d m_sweep;
  OdDbSweepOptions m_options;
};

class DB_API OdDbRevolvedSurface : public OdDbSurface {
  ODRX_DECLARE_MEMBERS(OdDbRevolvedSurface);

 public:
  static OdSmartPtr<OdDbRevolvedSurface> createObject();
  OdGePoint3d axisPoint() const { assertReadEnabled(); return m_axisPoint; }
  void setAxisPoint(const OdGePoint3d& p) { assertWriteEnabled(); m_axisPoint = p; }
  OdGeVector3d axisVector() const { assertReadEnabled(); return m_axis; }
  void setAxisVector(const OdGeVector3d& v) { assertWriteEnabled(); m_axis = v; }
  double revolveAngle() const { assertReadEnabled(); return m_angle; }
  void setRevolveAngle(double a) { assertWriteEnabled(); m_angle = a; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_axisPoint;
  OdGeVector3d m_axis{0, 0, 1};
  double m_angle = 0;
};

class DB_API OdDbSweptSurface : public OdDbSurface {
  ODRX_DECLARE_MEMBERS(OdDbSweptSurface);

 public:
  static OdSmartPtr<OdDbSweptSurface> createObject();
  const OdDbSweepOptions& options() const { assertReadEnabled(); return m_options; }
  void setOptions(const OdDbSweepOptions& o) { assertWriteEnabled(); m_options = o; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbSweepOptions m_options;
};

class DB_API OdDbLoftedSurface : public OdDbSurface {
  ODRX_DECLARE_MEMBERS(OdDbLoftedSurface);

 public:
  static OdSmartPtr<OdDbLoftedSurface> createObject();
  // Normal option: 0 ruled, 1 smooth, 2 first normal, 3 last normal,
  // 4 ends normal, 5 all normal, 6 draft angles.
  int normalOption() const { assertReadEnabled(); return m_normal; }
  void setNormalOption(int n) { assertWriteEnabled(); m_normal = n; }
  bool closed() const { assertReadEnabled(); return m_closed; }
  void setClosed(bool c) { assertWriteEnabled(); m_closed = c; }
  int crossSections() const { assertReadEnabled(); return m_sections; }
  int guides() const { assertReadEnabled(); return m_guides; }
  void setCurveCounts(int sections, int guides) { assertWriteEnabled(); m_sections = sections; m_guides = guides; }
  void copyFrom(const OdRxObject* source) override;

 private:
  int m_normal = 0, m_sections = 0, m_guides = 0;
  bool m_closed = false;
};
