#pragma once
// Dimensions: the common block every kind shows (style, arrows, text, fit,
// primary units, tolerance, inspection, annotative rows), the rows of one-
// and two-arrow dimensions, the nine kinds, and their information listings.
#include "ZqEntityExPE.h"
#include "KVKernel.h"

class CZqDimensionPE : public ZqProvider<CZqDimensionPE> {
  ZQ_PROVIDER(CZqDimensionPE);
};
class CZqDimension1ArrowPE : public ZqProvider<CZqDimension1ArrowPE> {
  ZQ_PROVIDER(CZqDimension1ArrowPE);
};
class CZqDimension2ArrowPE : public ZqProvider<CZqDimension2ArrowPE> {
  ZQ_PROVIDER(CZqDimension2ArrowPE);
};

#define ZQ_DIMENSION_KIND(Kind)                              \
  class CZq##Kind##PE : public ZqProvider<CZq##Kind##PE> {   \
    ZQ_PROVIDER(CZq##Kind##PE);                              \
  };
ZQ_DIMENSION_KIND(AlignedDimension)
ZQ_DIMENSION_KIND(RotatedDimension)
ZQ_DIMENSION_KIND(2LineAngularDimension)
ZQ_DIMENSION_KIND(3PointAngularDimension)
ZQ_DIMENSION_KIND(ArcDimension)
ZQ_DIMENSION_KIND(RadialDimension)
ZQ_DIMENSION_KIND(RadialDimensionLarge)
ZQ_DIMENSION_KIND(DiametricDimension)
ZQ_DIMENSION_KIND(OrdinateDimension)
#undef ZQ_DIMENSION_KIND

// The information base of every kind: the overrides of the dimension's
// style, printed last.
class CZqDimensionInfo : public CZqPrintObjectInfoPE {
 public:
  // Every variable whose effective value differs from the style's, in the
  // listing order of the variables, under one header line.
  void PrintDimStyleOverrides(const OdDbObject* object, CZqPrintInfoContext* context);

 protected:
  // The lines every kind starts with ("related", "type") and ends with
  // (default text position, default text, style); `kind` is the
  // "info_values" word, null for none.
  void printHead(const OdDbObject* object, CZqPrintInfoContext* context, const char* kind, bool associationLine);
  void printTail(const OdDbObject* object, CZqPrintInfoContext* context);
};

#define ZQ_DIMENSION_INFO(Kind)                                                              \
  class CZq##Kind##Info : public CZqDimensionInfo {                                          \
   public:                                                                                   \
    void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;   \
  };
ZQ_DIMENSION_INFO(AlignedDimension)
ZQ_DIMENSION_INFO(RotatedDimension)
ZQ_DIMENSION_INFO(2LineAngularDimension)
ZQ_DIMENSION_INFO(3PointAngularDimension)
ZQ_DIMENSION_INFO(ArcDimension)
ZQ_DIMENSION_INFO(RadialDimension)
ZQ_DIMENSION_INFO(RadialDimensionLarge)
ZQ_DIMENSION_INFO(DiametricDimension)
ZQ_DIMENSION_INFO(OrdinateDimension)
#undef ZQ_DIMENSION_INFO

// The overrides of a style that an object drawn with it carries (a
// dimension, a leader, a tolerance frame): every variable whose effective
// value differs from the style's, in the listing order of the variables,
// under one header line.
void ZqPrintDimStyleOverrides(const OdDbObject* object, const OdDbObjectId& style, CZqPrintInfoContext* context);

// Shared by the common block and the kinds' units rows (Dimension.cpp).
namespace ZqDim {
// Getter and setter of a row that shows a dimension variable: the variable
// is the one DimVars.def gives for the row's name (Angular: the angular
// dimensions' where two share it).
template <bool Angular = false>
CZqVariant getVar(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&);
template <bool Angular = false>
int setVar(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
           const CZqVariant&);
// Read-only while alternate units are off.
bool isAltReadOnly(const OdDbObject* object, const CZqPropertyDescription&);
bool isFixedLengthReadOnly(const OdDbObject* object, const CZqPropertyDescription&);
bool isFractionReadOnly(const OdDbObject* object, const CZqPropertyDescription&);
bool isAltTolerancePrecisionReadOnly(const OdDbObject* object, const CZqPropertyDescription&);
CZqVariant getMeasurement(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
CZqVariant getUnitFormat(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int setUnitFormat(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&);
CZqVariant getPrecision(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
CZqVariant getAltPrecision(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
CZqVariant getAltFormat(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
CZqVariant getFraction(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
CZqVariant getTolerancePrecision(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int setChoice(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&);
}  // namespace ZqDim
