#pragma once
// Editor identifiers: the palette picks a row's editor from the row's kind
// number and one of these identifiers.
#include "KernelExport.h"
#include <QStringList>

struct ZQKERNEL_API CZqPropertyType {
  static const char* const kLineEditToolButtonGUID;
  static const char* const accumulatedLengthGUID;
  static const char* const accumulatedAreaGUID;
  static const char* const kVertexStartWidthGUID;
  static const char* const kVertexEndWidthGUID;
  static const char* const kHeightGUID;
  static const char* const kAngleGUID;
  static const char* const kCoordinateXGUID;
  static const char* const kCoordinateYGUID;
  static const char* const kCoordinateZGUID;
  static const char* const kOrientGUID;
  static const char* const kVertexXGUID;
  static const char* const kVertexYGUID;
  static const char* const kVertexZGUID;
  static const char* const kPlotStyleGUID;
  static const char* const kAttributeGUID;
  static const char* const kHyperlinkGUID;
  static const char* const kTransparencyGUID;
  static const char* const kLineweightGUID;
  static const char* const kHatchColorGUID;
  static const char* const kBackgroundColorGUID;
  static const char* const kBackgroundColorWithNoneGUID;
  static const char* const fillColorGUID;
  static const char* const kVertexGUID;
  static const char* const kSplineControlPointGUID;
  static const char* const kSplineFitPointGUID;
  static const char* const kTextStyleGUID;
  static const char* const kDimStyleGUID;
  static const char* const kMLeaderStyleGUID;
  static const char* const kLayerGUID;
  static const char* const kLinetypeGUID;

  // Every identifier above, for checks that a row names a known editor.
  static const QStringList& all();
  // Identifiers whose double values are angles (shown in angular units).
  static bool isAngle(const QString& id);
};
