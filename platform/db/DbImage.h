#pragma once
// Raster images: a picture file placed in the drawing. The entity keeps
// where the picture lies (the insertion point of its lower left corner and
// the vectors of one pixel along its bottom and left edges), its size in
// pixels, how it is shown (display flags, clipping, brightness, contrast,
// fade) and, read from its image definition, the picture's name and file.
#include "DbEntity.h"

class DB_API OdDbImage : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbImage);
};

class DB_API OdDbRasterImage : public OdDbImage {
  ODRX_DECLARE_MEMBERS(OdDbRasterImage);

 public:
  static OdSmartPtr<OdDbRasterImage> createObject();

  // Display flags as the file keeps them (group 70).
  enum ImageDisplayOpt { kShow = 1, kShowUnAligned = 2, kClip = 4, kTransparent = 8 };

  // Lower left corner in WCS; one pixel's vectors along the picture's width
  // and height.
  OdGePoint3d position() const { assertReadEnabled(); return m_d.origin; }
  void setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_d.origin = p; }
  OdGeVector3d uVector() const { assertReadEnabled(); return m_d.u; }
  OdGeVector3d vVector() const { assertReadEnabled(); return m_d.v; }
  // Raises OdError(eInvalidInput) for vectors of zero length or parallel ones.
  void setOrientation(const OdGePoint3d& origin, const OdGeVector3d& u, const OdGeVector3d& v);
  void setUVectorInternal(const OdGeVector3d& u) { assertWriteEnabled(); m_d.u = u; }
  void setVVectorInternal(const OdGeVector3d& v) { assertWriteEnabled(); m_d.v = v; }
  // Picture size in pixels (groups 13 and 23).
  OdGePoint2d imageSize() const { assertReadEnabled(); return m_d.pixels; }
  void setImageSize(const OdGePoint2d& s) { assertWriteEnabled(); m_d.pixels = s; }

  // Width and height in drawing units; setting one scales that edge only
  // (a size that is not positive raises OdError(eInvalidInput)).
  double width() const;
  double height() const;
  void setWidth(double w);
  void setHeight(double h);
  // Scale: the width in drawing units of a picture one unit wide at scale
  // 1 (its width over its default width, which is one unit for pictures
  // without resolution). Setting it scales both edges; not positive raises
  // OdError(eInvalidInput).
  double scale() const;
  void setScale(double s);
  // Unit normal of the picture's plane.
  OdGeVector3d normal() const;

  int displayFlags() const { assertReadEnabled(); return m_d.flags; }
  void setDisplayFlags(int f) { assertWriteEnabled(); m_d.flags = f; }
  bool isShown() const { return displayFlags() & kShow; }
  void setShown(bool on) { setFlag(kShow, on); }
  bool isTransparent() const { return displayFlags() & kTransparent; }
  void setTransparent(bool on) { setFlag(kTransparent, on); }
  // Clipping on or off (group 280).
  bool isClipped() const { assertReadEnabled(); return m_d.clipped; }
  void setClipped(bool on) { assertWriteEnabled(); m_d.clipped = on; }
  // 0..100 each; a value outside raises OdError(eInvalidInput).
  int brightness() const { assertReadEnabled(); return m_d.brightness; }
  void setBrightness(int v);
  int contrast() const { assertReadEnabled(); return m_d.contrast; }
  void setContrast(int v);
  int fade() const { assertReadEnabled(); return m_d.fade; }
  void setFade(int v);

  // What the image definition says (read-only here: the definition is an
  // object of the drawing's OBJECTS section): the picture's name in the
  // drawing, the path of its file as saved, and its resolution units
  // (0 none, 2 centimetres, 5 inches) and pixel size in them.
  OdString imageName() const { assertReadEnabled(); return m_d.name; }
  OdString imageFilePath() const { assertReadEnabled(); return m_d.path; }
  int resolutionUnits() const { assertReadEnabled(); return m_d.resolutionUnits; }
  OdGePoint2d pixelSize() const { assertReadEnabled(); return m_d.pixelSize; }
  void setDefinitionInternal(const OdString& name, const OdString& path, int resolutionUnits,
                             const OdGePoint2d& pixelSize);
  // Whether the picture's file is there: an absolute path as it is, a
  // relative one from the current folder (back slashes read as slashes).
  bool isFileFound() const;

  bool getGeomExtents(OdGeExtents3d& ext) const override;
  void copyFrom(const OdRxObject* source) override;

 private:
  void setFlag(int bit, bool on) { setDisplayFlags(on ? displayFlags() | bit : displayFlags() & ~bit); }
  struct Data {
    OdGePoint3d origin;
    OdGeVector3d u{1, 0, 0}, v{0, 1, 0};
    OdGePoint2d pixels{1, 1};
    int flags = kShow | kShowUnAligned;
    bool clipped = false;
    int brightness = 50, contrast = 50, fade = 0;
    OdString name, path;
    int resolutionUnits = 0;
    OdGePoint2d pixelSize{1, 1};
  } m_d;
};
using OdDbRasterImagePtr = OdSmartPtr<OdDbRasterImage>;
