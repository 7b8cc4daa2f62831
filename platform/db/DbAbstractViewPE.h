#pragma once
// The protocol through which the views of a drawing (viewports, view
// records, the host's document views) are read and set alike: each view
// class has an OdAbstractViewPE attached, and callers ask it with the view
// object.
#include "DbExport.h"
#include "OdRxClass.h"
#include "OdGePoint.h"

class DB_API OdAbstractViewPE : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdAbstractViewPE);

 public:
  // The extension for a view object, or null when its class has none.
  static OdSmartPtr<OdAbstractViewPE> of(const OdRxObject* view);

  // The view's UCS: origin and unit X and Y axes in WCS. False when the view
  // has no UCS of its own.
  virtual bool getUcs(const OdRxObject* view, OdGePoint3d& origin, OdGeVector3d& xAxis,
                      OdGeVector3d& yAxis) const = 0;
  virtual void setUcs(OdRxObject* view, const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                      const OdGeVector3d& yAxis) const = 0;
};
using OdAbstractViewPEPtr = OdSmartPtr<OdAbstractViewPE>;
