#include "CZqPropertyType.h"

#define ZQ_GUID(name, text) const char* const CZqPropertyType::name = text;
#define ZQ_GUID_LIST(X)                                                                \
  X(kLineEditToolButtonGUID,      "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1001}")           \
  X(accumulatedLengthGUID,        "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1002}")           \
  X(accumulatedAreaGUID,          "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1003}")           \
  X(kVertexStartWidthGUID,        "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1004}")           \
  X(kVertexEndWidthGUID,          "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1005}")           \
  X(kHeightGUID,                  "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1006}")           \
  X(kAngleGUID,                   "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1007}")           \
  X(kCoordinateXGUID,             "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1008}")           \
  X(kCoordinateYGUID,             "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1009}")           \
  X(kCoordinateZGUID,             "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F100A}")           \
  X(kOrientGUID,                  "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F100B}")           \
  X(kVertexXGUID,                 "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F100C}")           \
  X(kVertexYGUID,                 "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F100D}")           \
  X(kVertexZGUID,                 "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F100E}")           \
  X(kPlotStyleGUID,               "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F100F}")           \
  X(kAttributeGUID,               "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1010}")           \
  X(kHyperlinkGUID,               "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1011}")           \
  X(kTransparencyGUID,            "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1012}")           \
  X(kLineweightGUID,              "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1013}")           \
  X(kHatchColorGUID,              "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1014}")           \
  X(kBackgroundColorGUID,         "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1015}")           \
  X(kBackgroundColorWithNoneGUID, "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1016}")           \
  X(fillColorGUID,                "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1017}")           \
  X(kVertexGUID,                  "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1018}")           \
  X(kSplineControlPointGUID,      "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F1019}")           \
  X(kSplineFitPointGUID,          "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F101A}")           \
  X(kTextStyleGUID,               "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F101B}")           \
  X(kDimStyleGUID,                "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F101C}")           \
  X(kMLeaderStyleGUID,            "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F101D}")           \
  X(kLayerGUID,                   "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F101E}")           \
  X(kLinetypeGUID,                "{5B1A3E10-7C2D-4F0E-9A61-0C2E8D7F101F}")

ZQ_GUID_LIST(ZQ_GUID)

const QStringList& CZqPropertyType::all() {
#define ZQ_GUID_NAME(name, text) QString::fromLatin1(text),
  static const QStringList list{ZQ_GUID_LIST(ZQ_GUID_NAME)};
#undef ZQ_GUID_NAME
  return list;
}

bool CZqPropertyType::isAngle(const QString& id) {
  return id == QLatin1String(kAngleGUID) || id == QLatin1String(kOrientGUID);
}
