// Class descriptors of every drawing class, their pseudo-constructors and the
// registered-class table, all generated from DbClasses.def.
#include "DbDatabase.h"
#include "DbPlainClasses.h"

namespace {
template <class T, int Concrete>
constexpr OdPseudoConstructorType pseudoConstructor() {
  if constexpr (Concrete != 0)
    return +[]() -> OdRxObjectPtr { return OdRxObjectPtr(new T()); };
  else
    return nullptr;
}
}  // namespace

#define ODDB_CLASS(Class, Parent, DxfName, RegisteredIndex, Concrete) \
  ODRX_DEFINE_PLATFORM_MEMBERS(Class, Parent, (pseudoConstructor<Class, Concrete>()), DxfName)
#define ODDB_PLAIN_CLASS(Class, Parent, DxfName, RegisteredIndex, Concrete)                 \
  ODRX_DEFINE_PLATFORM_MEMBERS(Class, Parent, (pseudoConstructor<Class, Concrete>()), DxfName) \
  OdSmartPtr<Class> Class::createObject() { return OdSmartPtr<Class>(Class::cast(Class::desc()->create().get())); }
#include "DbClasses.def"

#define ODDB_DEFINE_CREATE(Class) \
  OdSmartPtr<Class> Class::createObject() { return OdSmartPtr<Class>(new Class()); }
ODDB_DEFINE_CREATE(OdDbLine)
ODDB_DEFINE_CREATE(OdDbCircle)
ODDB_DEFINE_CREATE(OdDbArc)
ODDB_DEFINE_CREATE(OdDbFace)
ODDB_DEFINE_CREATE(OdDbSolid)
ODDB_DEFINE_CREATE(OdDbTrace)
ODDB_DEFINE_CREATE(OdDbEllipse)
ODDB_DEFINE_CREATE(OdDbHatch)
ODDB_DEFINE_CREATE(OdDbSpline)
ODDB_DEFINE_CREATE(OdDbPolyline)
ODDB_DEFINE_CREATE(OdDb2dPolyline)
ODDB_DEFINE_CREATE(OdDb2dVertex)
ODDB_DEFINE_CREATE(OdDb3dPolyline)
ODDB_DEFINE_CREATE(OdDb3dPolylineVertex)
ODDB_DEFINE_CREATE(OdDbPolyFaceMesh)
ODDB_DEFINE_CREATE(OdDbPolygonMesh)
ODDB_DEFINE_CREATE(OdDbSubDMesh)
ODDB_DEFINE_CREATE(OdDbMline)
ODDB_DEFINE_CREATE(OdDbShape)
ODDB_DEFINE_CREATE(OdDbRay)
ODDB_DEFINE_CREATE(OdDbXline)
ODDB_DEFINE_CREATE(OdDbPoint)
ODDB_DEFINE_CREATE(OdDbText)
ODDB_DEFINE_CREATE(OdDbAttribute)
ODDB_DEFINE_CREATE(OdDbAttributeDefinition)
ODDB_DEFINE_CREATE(OdDbMText)
ODDB_DEFINE_CREATE(OdDbLayerTableRecord)
ODDB_DEFINE_CREATE(OdDbLinetypeTableRecord)
ODDB_DEFINE_CREATE(OdDbTextStyleTableRecord)
ODDB_DEFINE_CREATE(OdDbDimStyleTableRecord)
ODDB_DEFINE_CREATE(OdDbRegAppTableRecord)
ODDB_DEFINE_CREATE(OdDbBlockTableRecord)
ODDB_DEFINE_CREATE(OdDb3dSolid)
ODDB_DEFINE_CREATE(OdDbBody)
ODDB_DEFINE_CREATE(OdDbRegion)
ODDB_DEFINE_CREATE(OdDbSurface)
ODDB_DEFINE_CREATE(OdDbPlaneSurface)
ODDB_DEFINE_CREATE(OdDbExtrudedSurface)
ODDB_DEFINE_CREATE(OdDbRevolvedSurface)
ODDB_DEFINE_CREATE(OdDbSweptSurface)
ODDB_DEFINE_CREATE(OdDbLoftedSurface)

#define ODDB_DEFINE_TABLE(Table, Record)                                                  \
  OdSmartPtr<Table> Table::createObject() { return OdSmartPtr<Table>(new Table()); }      \
  OdRxClass* Table::recordClass() const { return Record::desc(); }
ODDB_DEFINE_TABLE(OdDbBlockTable, OdDbBlockTableRecord)
ODDB_DEFINE_TABLE(OdDbLayerTable, OdDbLayerTableRecord)
ODDB_DEFINE_TABLE(OdDbLinetypeTable, OdDbLinetypeTableRecord)
ODDB_DEFINE_TABLE(OdDbTextStyleTable, OdDbTextStyleTableRecord)
ODDB_DEFINE_TABLE(OdDbDimStyleTable, OdDbDimStyleTableRecord)
ODDB_DEFINE_TABLE(OdDbRegAppTable, OdDbRegAppTableRecord)

OdRxClass* g_odDbRegistredDwgClasses[kOdDbRegisteredClassCount] = {};

void odDbInitialize() {
  OdDbDatabase::rxInit();
#define ODDB_CLASS(Class, Parent, DxfName, RegisteredIndex, Concrete) \
  Class::rxInit();                                                     \
  if (RegisteredIndex > 0) g_odDbRegistredDwgClasses[RegisteredIndex] = Class::desc();
#define ODDB_PLAIN_CLASS ODDB_CLASS
#include "DbClasses.def"
}
