#pragma once
// Lights: a named lamp placed in the drawing (distant, point or spot) with
// its position and target, whether it is on, its intensity, the cones of
// a spot light and whether it casts shadows.
#include "DbEntity.h"

class DB_API OdDbLight : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbLight);

 public:
  static OdSmartPtr<OdDbLight> createObject();

  enum LightType { kDistantLight = 1, kPointLight = 2, kSpotLight = 3 };

  OdString name() const { assertReadEnabled(); return m_d.name; }
  void setName(const OdString& n) { assertWriteEnabled(); m_d.name = n; }
  int lightType() const { assertReadEnabled(); return m_d.type; }
  void setLightType(int t) { assertWriteEnabled(); m_d.type = t; }
  bool isOn() const { assertReadEnabled(); return m_d.on; }
  void setOn(bool on) { assertWriteEnabled(); m_d.on = on; }
  // Intensity factor, 0 or more (a negative one raises OdError(eInvalidInput)).
  double intensity() const { assertReadEnabled(); return m_d.intensity; }
  void setIntensity(double v);
  OdGePoint3d position() const { assertReadEnabled(); return m_d.position; }
  void setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_d.position = p; }
  OdGePoint3d targetLocation() const { assertReadEnabled(); return m_d.target; }
  void setTargetLocation(const OdGePoint3d& p) { assertWriteEnabled(); m_d.target = p; }
  // Cone angles of a spot light, radians: 0 < hotspot <= falloff <= 160
  // degrees; others raise OdError(eInvalidInput).
  double hotspotAngle() const { assertReadEnabled(); return m_d.hotspot; }
  double falloffAngle() const { assertReadEnabled(); return m_d.falloff; }
  void setHotspotAndFalloff(double hotspot, double falloff);
  void setHotspotInternal(double a) { assertWriteEnabled(); m_d.hotspot = a; }
  void setFalloffInternal(double a) { assertWriteEnabled(); m_d.falloff = a; }
  bool castShadows() const { assertReadEnabled(); return m_d.shadows; }
  void setCastShadows(bool on) { assertWriteEnabled(); m_d.shadows = on; }

  void copyFrom(const OdRxObject* source) override;

 private:
  struct Data {
    OdString name;
    int type = kPointLight;
    bool on = true, shadows = true;
    double intensity = 1;
    OdGePoint3d position, target{0, 0, -1};
    double hotspot = 0.7853981633974483, falloff = 0.8726646259971648;  // 45 and 50 degrees
  } m_d;
};
using OdDbLightPtr = OdSmartPtr<OdDbLight>;
