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

// Raster images: position in the current UCS, rotation, size and scale,
// the picture's name, file and whether it is found, brightness, contrast,
// fade and the display switches.
class CZqRasterImagePE : public ZqProvider<CZqRasterImagePE> {
  ZQ_PROVIDER(CZqRasterImagePE);
};

// Raster images print through the generic provider; this one lists the
// picture's own lines when asked directly.
class CZqRasterImageInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// Tables: rows, columns, style, direction, size, and the text of the cell
// the host's index selects.
class CZqTablePE : public ZqProvider<CZqTablePE> {
  ZQ_PROVIDER(CZqTablePE);
};

class CZqTableInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// PDF and DGN underlays: file, sheet, whether found, position, scale,
// rotation, clipping, contrast, fade, monochrome and show.
class CZqPdfReferencePE : public ZqProvider<CZqPdfReferencePE> {
  ZQ_PROVIDER(CZqPdfReferencePE);
};
class CZqDgnReferencePE : public ZqProvider<CZqDgnReferencePE> {
  ZQ_PROVIDER(CZqDgnReferencePE);
};
class CZqPdfReferenceInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
class CZqDgnReferenceInfo : public CZqPdfReferenceInfo {};

// OLE frames: the kind of object, position, width and height.
class CZqOle2FramePE : public ZqProvider<CZqOle2FramePE> {
  ZQ_PROVIDER(CZqOle2FramePE);
};

class CZqOle2FrameInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// Lights: name, type, on, intensity, position and target in the current
// UCS, the hotspot and falloff cones of spot lights, shadows.
class CZqLightPE : public ZqProvider<CZqLightPE> {
  ZQ_PROVIDER(CZqLightPE);
};

class CZqLightInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};
