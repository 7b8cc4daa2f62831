#pragma once
// Providers of blocks and references: block references and multiple
// inserts, tables, raster images, underlays, OLE frames and proxies.
#include "ZqProvider.h"
#include "KVKernel.h"

// Block references: the block placed (a choice of the drawing's blocks),
// the insertion point in the current UCS, scales, rotation, normal, unit
// factor, and one row per attribute, by its tag.
class CZqBlockReferencePE : public ZqProvider<CZqBlockReferencePE> {
  ZQ_PROVIDER(CZqBlockReferencePE);
};

class CZqBlockReferenceInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// Multiple inserts: the block reference rows, then columns, rows and their
// spacing.
class CZqMInsertBlockPE : public ZqProvider<CZqMInsertBlockPE> {
  ZQ_PROVIDER(CZqMInsertBlockPE);
};

// Proxy entities: the original class, its DXF name, the application that
// defines it and the operations it allows. Every row is read-only: the
// proxy's data belongs to an application that is not loaded.
class CZqProxyEntityPE : public ZqProvider<CZqProxyEntityPE> {
  ZQ_PROVIDER(CZqProxyEntityPE);
};

class CZqProxyEntityInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
