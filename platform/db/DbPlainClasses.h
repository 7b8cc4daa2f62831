#pragma once
// Drawing classes that carry no data of their own yet: they exist so that
// every class of a drawing has its place in the class tree (protocol
// extensions are found through it), and so that the file reader can keep
// such objects whole.
#include "DbLine.h"
#include "DbCircle.h"
#include "DbArc.h"
#include "DbSolid.h"
#include "DbEllipse.h"
#include "DbSpline.h"
#include "DbPolyline.h"
#include "Db2dPolyline.h"
#include "Db3dPolyline.h"
#include "DbMesh.h"
#include "DbMline.h"
#include "DbShape.h"
#include "DbPoint.h"
#include "DbRay.h"
#include "DbXline.h"
#include "DbText.h"
#include "DbMText.h"
#include "DbArcAlignedText.h"
#include "DbSymbolTable.h"
#include "DbDimStyle.h"
#include "DbDimension.h"
#include "DbLeader.h"
#include "DbFcf.h"
#include "DbMLeader.h"
#include "DbModelerGeometry.h"
#include "DbBlockReference.h"
#include "DbHatch.h"
#include "DbProxyEntity.h"
#include "DbViewport.h"
#include "DbViewTableRecord.h"
#include "DbGroup.h"
#include "DbMlineStyle.h"
#include "DbTableStyle.h"
#include "DbLayout.h"
#include "DbImage.h"
#include "DbTable.h"
#include "DbUnderlay.h"
#include "DbOle.h"
#include "DbLight.h"

#define ODDB_PLAIN_CLASS(Class, Parent, DxfName, RegisteredIndex, Concrete) \
  class DB_API Class : public Parent {                                      \
    ODRX_DECLARE_MEMBERS(Class);                                            \
                                                                            \
   public:                                                                  \
    static OdSmartPtr<Class> createObject();                                \
  };                                                                        \
  using Class##Ptr = OdSmartPtr<Class>;
#include "DbClasses.def"
