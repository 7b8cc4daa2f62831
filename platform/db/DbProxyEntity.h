#pragma once
// Proxy entities: entities of classes whose application is not loaded
// (ACAD_PROXY_ENTITY records, and records of types the platform does not
// know). Their data is kept as the file holds it; only what describes them
// is read.
#include "DbEntity.h"

class DB_API OdDbProxyEntity : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbProxyEntity);

 public:
  // What the application lets other programs do with its entities.
  enum AllowedOperations {
    kNoOperation = 0,
    kEraseAllowed = 0x1,
    kTransformAllowed = 0x2,
    kColorChangeAllowed = 0x4,
    kLayerChangeAllowed = 0x8,
    kLinetypeChangeAllowed = 0x10,
    kLinetypeScaleChangeAllowed = 0x20,
    kVisibilityChangeAllowed = 0x40,
    kCloningAllowed = 0x80,
    kLineWeightChangeAllowed = 0x100,
    kPlotStyleNameChangeAllowed = 0x200,
    kAllButCloningAllowed = 0x37F,
    kAllAllowedBits = 0x3FF,
    kDisableProxyWarning = 0x400,
    kMaterialChangeAllowed = 0x800,
  };

  static OdSmartPtr<OdDbProxyEntity> createObject();
  // The class the entity was made of, its DXF name and the application
  // that defines it (as the drawing's class list describes them).
  OdString originalClassName() const { assertReadEnabled(); return m_className; }
  OdString originalDxfName() const { assertReadEnabled(); return m_dxfName; }
  OdString applicationDescription() const { assertReadEnabled(); return m_application; }
  int proxyFlags() const { assertReadEnabled(); return m_flags; }
  // Whether the drawing's class list describes the class at all.
  bool isDescribed() const { assertReadEnabled(); return m_described; }
  // Set by the file reader.
  void setDescriptionInternal(const OdString& dxfName, const OdString& className, const OdString& application,
                              int flags, bool described);
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_className, m_dxfName, m_application;
  int m_flags = 0;
  bool m_described = false;
};
using OdDbProxyEntityPtr = OdSmartPtr<OdDbProxyEntity>;
