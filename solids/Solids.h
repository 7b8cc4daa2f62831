#pragma once
// Providers of 3D solids (with the providers of their history kinds),
// bodies, regions and surfaces.
#include "ZqEntityExPE.h"
#include "KVKernel.h"

// The solid provider: "Solid type" and the placement point. Attached to
// the solid class, it hands each solid with a history to the provider of
// its history kind, which adds that kind's rows after the solid's.
class CZq3dSolidPE : public ZqProvider<CZq3dSolidPE> {
  ZQ_PROVIDER(CZq3dSolidPE);

 public:
  void GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container, const OdRxClass* objectClass,
                        const OdRxClass* providerClass, bool excludeOwn) override;
};

#define ZQ_SOLID_KIND_PROVIDER(Provider) \
  class Provider : public ZqProvider<Provider> { ZQ_PROVIDER(Provider); };
ZQ_SOLID_KIND_PROVIDER(CZqBoxPE)
ZQ_SOLID_KIND_PROVIDER(CZqCylinderPE)
ZQ_SOLID_KIND_PROVIDER(CZqTorusPE)
ZQ_SOLID_KIND_PROVIDER(CZqWedgePE)
ZQ_SOLID_KIND_PROVIDER(CZqSweepPE)
ZQ_SOLID_KIND_PROVIDER(CZqExtrusionPE)
ZQ_SOLID_KIND_PROVIDER(CZqPyramidPE)
ZQ_SOLID_KIND_PROVIDER(CZqSpherePE)
ZQ_SOLID_KIND_PROVIDER(CZqRevolvePE)
ZQ_SOLID_KIND_PROVIDER(CZqLoftPE)
#undef ZQ_SOLID_KIND_PROVIDER

class CZqBodyPE : public ZqProvider<CZqBodyPE> {
  ZQ_PROVIDER(CZqBodyPE);
};

class CZqRegionPE : public ZqProvider<CZqRegionPE> {
  ZQ_PROVIDER(CZqRegionPE);
};

// The isoline rows every surface shows; each kind adds a static list.
class CZqSurfacePE : public ZqProvider<CZqSurfacePE> {
  ZQ_PROVIDER(CZqSurfacePE);
};
class CZqPlaneSurfacePE : public ZqProvider<CZqPlaneSurfacePE> {
  ZQ_PROVIDER(CZqPlaneSurfacePE);
};
class CZqExtrudedSurfacePE : public ZqProvider<CZqExtrudedSurfacePE> {
  ZQ_PROVIDER(CZqExtrudedSurfacePE);
};
class CZqRevolvedSurfacePE : public ZqProvider<CZqRevolvedSurfacePE> {
  ZQ_PROVIDER(CZqRevolvedSurfacePE);
};
class CZqSweptSurfacePE : public ZqProvider<CZqSweptSurfacePE> {
  ZQ_PROVIDER(CZqSweptSurfacePE);
};
class CZqLoftedSurfacePE : public ZqProvider<CZqLoftedSurfacePE> {
  ZQ_PROVIDER(CZqLoftedSurfacePE);
};

#define ZQ_SOLIDS_INFO(Info)                                                              \
  class Info : public CZqPrintObjectInfoPE {                                              \
   public:                                                                                \
    void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override; \
  };
ZQ_SOLIDS_INFO(CZq3dSolidInfo)
ZQ_SOLIDS_INFO(CZqBodyInfo)
ZQ_SOLIDS_INFO(CZqRegionInfo)
ZQ_SOLIDS_INFO(CZqSurfaceInfo)
ZQ_SOLIDS_INFO(CZqPlaneSurfaceInfo)
ZQ_SOLIDS_INFO(CZqExtrudedSurfaceInfo)
ZQ_SOLIDS_INFO(CZqRevolvedSurfaceInfo)
ZQ_SOLIDS_INFO(CZqSweptSurfaceInfo)
ZQ_SOLIDS_INFO(CZqLoftedSurfaceInfo)
#undef ZQ_SOLIDS_INFO
