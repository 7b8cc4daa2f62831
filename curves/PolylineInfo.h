#pragma once
// The first lines of a 2D or 3D polyline's listing, alike for both kinds.
#include "ZQCommandsBase.h"
#include "ZqEnumerations.h"
#include "KVKernel.h"

#include <QCoreApplication>

#include <span>

// Open or closed, how it was smoothed (when it was), its area and its length
// printed under `lengthLabel` (an "info_items" word).
template <class P>
void ZqPrintPolylineHead(const P* pl, CZqPrintInfoContext* context, std::span<const ZqChoice> fitTypes,
                         const char* lengthLabel) {
  context->PrintString(QCoreApplication::translate("info_items", "PolyLine Flags"),
                       pl->isClosed() ? QCoreApplication::translate("info_values", "Closed")
                                      : QCoreApplication::translate("info_values", "Open"));
  const int fit = ZqChoiceIndex(fitTypes, pl->polyType());
  if (fit > 0)
    context->PrintString(QCoreApplication::translate("info_items", "Fit/Smooth"),
                         QCoreApplication::translate("property_values", fitTypes[size_t(fit)].word));
  double area = 0;
  pl->getArea(area);
  context->PrintArea(QCoreApplication::translate("info_items", "Area"), area);
  context->PrintDist(QCoreApplication::translate("info_items", lengthLabel), ZqCurvesHelper::GetLength(pl));
}
