#pragma once
// Underlays: a PDF, DGN or DWF file shown beneath the drawing. The
// reference keeps where it lies (position, scale, rotation, normal), how it
// is shown (flags, contrast, fade) and, read from its definition, the file
// and the sheet or page shown.
#include "DbBlockReference.h"

class DB_API OdDbUnderlayReference : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbUnderlayReference);

 public:
  // Flags as the file keeps them (group 280).
  enum Flags { kClipped = 1, kOn = 2, kMonochrome = 4, kAdjustForBackground = 8 };

  OdGePoint3d position() const { assertReadEnabled(); return m_d.position; }
  void setPosition(const OdGePoint3d& p) { assertWriteEnabled(); m_d.position = p; }
  // A factor of 0 (or not finite) raises OdError(eInvalidInput).
  OdGeScale3d scaleFactors() const { assertReadEnabled(); return m_d.scale; }
  void setScaleFactors(const OdGeScale3d& s);
  double rotation() const { assertReadEnabled(); return m_d.rotation; }
  void setRotation(double a) { assertWriteEnabled(); m_d.rotation = a; }
  OdGeVector3d normal() const { assertReadEnabled(); return m_d.normal; }
  void setNormal(const OdGeVector3d& n) { assertWriteEnabled(); m_d.normal = n; }

  int flags() const { assertReadEnabled(); return m_d.flags; }
  void setFlags(int f) { assertWriteEnabled(); m_d.flags = f; }
  bool isOn() const { return flags() & kOn; }
  void setOn(bool on) { setFlag(kOn, on); }
  bool isClipped() const { return flags() & kClipped; }
  void setClipped(bool on) { setFlag(kClipped, on); }
  bool isMonochrome() const { return flags() & kMonochrome; }
  void setMonochrome(bool on) { setFlag(kMonochrome, on); }
  // Contrast 20..100, fade 0..80; a value outside raises OdError(eInvalidInput).
  int contrast() const { assertReadEnabled(); return m_d.contrast; }
  void setContrast(int v);
  int fade() const { assertReadEnabled(); return m_d.fade; }
  void setFade(int v);

  // What the definition says (read-only here): its name in the drawing,
  // the file's path as saved and the sheet or page shown.
  OdString definitionName() const { assertReadEnabled(); return m_d.name; }
  OdString filePath() const { assertReadEnabled(); return m_d.path; }
  OdString itemName() const { assertReadEnabled(); return m_d.item; }
  void setDefinitionInternal(const OdString& name, const OdString& path, const OdString& item);
  // Whether the file is there (as for raster images).
  bool isFileFound() const;

  void copyFrom(const OdRxObject* source) override;

 private:
  void setFlag(int bit, bool on) { setFlags(on ? flags() | bit : flags() & ~bit); }
  struct Data {
    OdGePoint3d position;
    OdGeScale3d scale;
    double rotation = 0;
    OdGeVector3d normal{0, 0, 1};
    int flags = kOn;
    int contrast = 100, fade = 0;
    OdString name, path, item;
  } m_d;
};
using OdDbUnderlayReferencePtr = OdSmartPtr<OdDbUnderlayReference>;
