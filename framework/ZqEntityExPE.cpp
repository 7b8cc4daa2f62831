#include "ZqEntityExPE.h"
#include "ZqCallbacks.h"
#include "ZQCommandsBase.h"
#include "DbPlainClasses.h"

ODRX_DEFINE_MEMBERS(CZqEntityExPE, CZqEntityPE)

namespace {

// The selection the palette shows, when the host has a gate and a selection.
const CZqSelectionSet* currentSelection() {
  const CZqVELOXQTGate* gate = GetZqVELOXQTGate();
  return gate ? gate->GetCurrentSelection() : nullptr;
}

template <double (*Measure)(const OdDbObject*)>
CZqVariant getTotal(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&) {
  const CZqSelectionSet* selection = currentSelection();
  if (!selection) return CZqVariant();
  double total = 0;
  for (const OdDbObjectId& id : selection->GetObjectIds())
    if (OdDbObjectPtr obj = id.openObject(OdDb::kForRead)) total += Measure(obj.get());
  return ZqDouble(total);
}

// The totals cannot be set; their set callback does nothing and answers 0.
int setNothing(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) { return 0; }

bool isKindOfAny(const OdDbObject* object, std::initializer_list<OdRxClass*> classes) {
  for (OdRxClass* cls : classes)
    if (object->isKindOf(cls)) return true;
  return false;
}

//   category     name                                            type identifier                              read-only                    get                                 set         icon             vis
const ZqRow kTotalLength{ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Total Length"), 0, CZqPropertyType::accumulatedLengthGUID, &CZqEntityExPE::AlwaysTrue, getTotal<&ZqCurvesHelper::GetLength>, setNothing, "Geometry_Length", kVisKeep};
const ZqRow kTotalArea  {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Total Area"),   0, CZqPropertyType::accumulatedAreaGUID,   &CZqEntityExPE::AlwaysTrue, getTotal<&ZqCurvesHelper::GetArea>,   setNothing, "Geometry_Area",   kVisKeep};

}  // namespace

bool CZqEntityExPE::AlwaysTrue(const OdDbObject*, const CZqPropertyDescription&) { return true; }

OdArray<CZqPropertyDescription*>& CZqEntityExPE::staticList() {
  static OdArray<CZqPropertyDescription*> list;
  return list;
}

void CZqEntityExPE::GetPropertyNames(const OdDbObject* object, CZqPropertiesContainer*& container,
                                     const OdRxClass* objectClass, const OdRxClass* providerClass, bool excludeOwn) {
  container = nullptr;
  CZqEntityPE::GetPropertyNames(object, container, objectClass, providerClass, excludeOwn);
  if (!ZqAddStaticRows(container, objectClass, providerClass, excludeOwn, OdDbEntity::desc(), CZqEntityExPE::desc(),
                       staticList(), {}))
    return;
  const CZqSelectionSet* selection = currentSelection();
  if (!object || !selection || selection->Count() < 2) return;
  if (isKindOfAny(object, {OdDbLine::desc(), OdDbPolyline::desc(), OdDb2dPolyline::desc(), OdDb3dPolyline::desc(),
                           OdDbArc::desc(), OdDbSpline::desc()}))
    container->AddDynamic(ZqBuildDynamicDescription(kTotalLength));
  if (isKindOfAny(object, {OdDbCircle::desc(), OdDbSpline::desc(), OdDbPolyline::desc(), OdDbRegion::desc(),
                           OdDbHatch::desc(), OdDbArc::desc(), OdDb2dPolyline::desc(), OdDb3dPolyline::desc(),
                           OdDbEllipse::desc()}))
    container->AddDynamic(ZqBuildDynamicDescription(kTotalArea));
}

CZqString CZqEntityExPE::GetClassName(const OdDbObject* object) const { return CZqEntityPE::GetClassName(object); }
