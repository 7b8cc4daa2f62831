#include "ZqEntityExPE.h"
#include "ZqCallbacks.h"
#include "ZQCommandsBase.h"
#include <set>

namespace {

// The selection the palette shows, when the host has a gate and a selection.
const CZqSelectionSet* currentSelection() {
  const CZqVELOXQTGate* gate = GetZqVELOXQTGate();
  return gate ? gate->GetCurrentSelection() : nullptr;
}

using ClassList = std::span<OdRxClass* (*const)()>;

bool isKindOfAny(const OdDbObject* object, ClassList classes) {
  for (OdRxClass* (*cls)() : classes)
    if (object->isKindOf(cls())) return true;
  return false;
}

// The classes each total adds up, in the order they are tested: a total
// is shown for an object of one of them and counts only objects of them.
OdRxClass* (*const kLengthClasses[])() = {&OdDbLine::desc, &OdDbPolyline::desc, &OdDb2dPolyline::desc,
                                          &OdDb3dPolyline::desc, &OdDbArc::desc, &OdDbSpline::desc};
OdRxClass* (*const kAreaClasses[])() = {&OdDbCircle::desc, &OdDbSpline::desc, &OdDbPolyline::desc,
                                        &OdDbRegion::desc, &OdDbHatch::desc, &OdDbArc::desc,
                                        &OdDb2dPolyline::desc, &OdDb3dPolyline::desc, &OdDbEllipse::desc};

// The sum of Measure over the selected objects of the listed classes, each
// object once however often the selection names it.
template <double (*Measure)(const OdDbObject*), const auto& Classes>
CZqVariant getTotal(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&) {
  const CZqSelectionSet* selection = currentSelection();
  if (!selection) return CZqVariant();
  std::set<OdDbObjectId> counted;
  double total = 0;
  for (const OdDbObjectId& id : selection->GetObjectIds()) {
    if (!counted.insert(id).second) continue;
    OdDbObjectPtr obj = id.openObject(OdDb::kForRead);
    if (obj && isKindOfAny(obj.get(), Classes)) total += Measure(obj.get());
  }
  return ZqDouble(total);
}

// Shown for an object of the listed classes when two or more objects are selected.
template <const auto& Classes>
bool totalShown(const OdDbObject* object) {
  const CZqSelectionSet* selection = currentSelection();
  return object && selection && selection->Count() >= 2 && isKindOfAny(object, Classes);
}

// The totals cannot be set; their set callback does nothing and answers 0.
int setNothing(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&) { return 0; }

constexpr auto alwaysTrue = &CZqEntityExPE::AlwaysTrue;
constexpr auto totalLength = getTotal<&ZqCurvesHelper::GetLength, kLengthClasses>;
constexpr auto totalArea = getTotal<&ZqCurvesHelper::GetArea, kAreaClasses>;

const ZqConditionalRow kTotals[] = {
//  only when                       category     name                                            type        identifier                   read-only   get          set         icon
  {totalShown<kLengthClasses>,    {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Total Length"), kZqUntyped, ZqGuid::accumulatedLengthGUID, alwaysTrue, totalLength, setNothing, "Geometry_Length"}},
  {totalShown<kAreaClasses>,      {ZQ_GEOMETRY, QT_TRANSLATE_NOOP("property_types", "Total Area"),   kZqUntyped, ZqGuid::accumulatedAreaGUID,   alwaysTrue, totalArea,   setNothing, "Geometry_Area"}},
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqEntityExPE, nullptr, {}, kTotals)

bool CZqEntityExPE::AlwaysTrue(const OdDbObject*, const CZqPropertyDescription&) { return true; }
