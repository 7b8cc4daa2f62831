#pragma once
// A paper-space viewport: a window on a layout through which model space is
// seen at a scale. Paper-space size and place, the model-space view it
// shows (centre, height, twist), its status flags and the layers frozen in
// it alone.
#include "DbEntity.h"

class DB_API OdDbViewport : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbViewport);

 public:
  static OdSmartPtr<OdDbViewport> createObject();

  // Status flags as the file keeps them (group 90).
  enum StatusFlags {
    kZoomLocked = 16384,
    kNonRectClipping = 65536,
    kViewportOff = 131072,
  };

  OdGePoint3d centerPoint() const { assertReadEnabled(); return m_center; }
  void setCenterPoint(const OdGePoint3d& p) { assertWriteEnabled(); m_center = p; }
  // Paper-space width and height; both positive.
  double width() const { assertReadEnabled(); return m_width; }
  void setWidth(double w) { assertWriteEnabled(); m_width = w; }
  double height() const { assertReadEnabled(); return m_height; }
  void setHeight(double h) { assertWriteEnabled(); m_height = h; }
  // The model-space point shown at the centre, and the model-space height
  // the viewport shows: the scale is height() / viewHeight().
  OdGePoint2d viewCenter() const { assertReadEnabled(); return m_viewCenter; }
  void setViewCenter(const OdGePoint2d& p) { assertWriteEnabled(); m_viewCenter = p; }
  double viewHeight() const { assertReadEnabled(); return m_viewHeight; }
  void setViewHeight(double h) { assertWriteEnabled(); m_viewHeight = h; }
  double customScale() const;
  // Sets the scale by changing the model-space height shown; refuses a
  // scale that is not positive with OdError(eInvalidInput).
  void setCustomScale(double scale);
  // Twist of the view, radians.
  double twistAngle() const { assertReadEnabled(); return m_twist; }
  void setTwistAngle(double a) { assertWriteEnabled(); m_twist = a; }
  // Its number in the drawing (group 69); 1 is the layout's own paper view.
  int number() const { assertReadEnabled(); return m_number; }
  void setNumber(int n) { assertWriteEnabled(); m_number = n; }
  int statusFlags() const { assertReadEnabled(); return m_flags; }
  void setStatusFlags(int f) { assertWriteEnabled(); m_flags = f; }
  bool isOn() const { return !(statusFlags() & kViewportOff); }
  void setOn(bool on) { setStatusFlags(on ? statusFlags() & ~kViewportOff : statusFlags() | kViewportOff); }
  bool isLocked() const { return statusFlags() & kZoomLocked; }
  void setLocked(bool locked) { setStatusFlags(locked ? statusFlags() | kZoomLocked : statusFlags() & ~kZoomLocked); }
  bool isNonRectClipOn() const { return statusFlags() & kNonRectClipping; }
  // How it plots: 0 as displayed, 1 wireframe, 2 hidden, 3 rendered (group 170).
  int shadePlot() const { assertReadEnabled(); return m_shadePlot; }
  void setShadePlot(int m) { assertWriteEnabled(); m_shadePlot = m; }
  // The visual style it shows (an object of the drawing's dictionary).
  OdDbObjectId visualStyle() const { assertReadEnabled(); return m_visualStyle; }
  void setVisualStyle(const OdDbObjectId& id) { assertWriteEnabled(); m_visualStyle = id; }
  // Layers frozen in this viewport only.
  const OdDbObjectIdArray& frozenLayers() const { assertReadEnabled(); return m_frozen; }
  void setFrozenLayers(const OdDbObjectIdArray& ids) { assertWriteEnabled(); m_frozen = ids; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdGePoint3d m_center;
  double m_width = 0, m_height = 0, m_viewHeight = 1, m_twist = 0;
  OdGePoint2d m_viewCenter;
  int m_number = 0, m_flags = 0, m_shadePlot = 0;
  OdDbObjectId m_visualStyle;
  OdDbObjectIdArray m_frozen;
};
using OdDbViewportPtr = OdSmartPtr<OdDbViewport>;
