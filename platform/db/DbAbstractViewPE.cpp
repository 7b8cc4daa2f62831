#include "DbAbstractViewPE.h"

ODRX_DEFINE_PLATFORM_MEMBERS(OdAbstractViewPE, OdRxObject, nullptr, "")

OdSmartPtr<OdAbstractViewPE> OdAbstractViewPE::of(const OdRxObject* view) {
  if (!view) return {};
  return OdAbstractViewPE::cast(view->queryX(OdAbstractViewPE::desc()).get());
}
