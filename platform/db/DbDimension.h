#pragma once
// Dimensions: what every kind has - its dimension style and the dimension
// variables, each the style's value unless the dimension overrides it.
#include "DbDimStyle.h"

class DB_API OdDbDimension : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbDimension);

 public:
  // The dimension style record (null: none; its variables then have the
  // table's defaults).
  OdDbObjectId dimensionStyle() const { assertReadEnabled(); return m_style; }
  void setDimensionStyle(const OdDbObjectId& id);

  // One getter and one setter per variable (dimasz(), setDimasz(...)). The
  // getter answers the override if the dimension has one, else the style's
  // value; the setter makes an override (the style is not changed) and
  // refuses a value outside the variable's limit with OdError(eInvalidInput).
#define DIMVAR(Name, Setter, Code, Kind, Type, Default, Limit, Lo, Hi, Since, Row)   \
  Type Name() const { return OdDbDimVar::as<Type>(dimVar(OdDbDimVar::k_##Name)); }   \
  void Setter(Type v) { setDimVar(OdDbDimVar::k_##Name, OdDbDimVar::of<Type>(v)); }
#include "DimVars.def"

  OdDbDimVar::Value dimVar(OdDbDimVar::Id id) const;
  void setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v);
  // Fills a (scratch) style record with the dimension's effective values.
  void getDimstyleData(OdDbDimStyleTableRecord* record) const;
  // Makes the record's values the dimension's: overrides where they differ
  // from its style, none where they agree.
  void setDimstyleData(const OdDbDimStyleTableRecord* record);

  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbObjectId m_style;
};
using OdDbDimensionPtr = OdSmartPtr<OdDbDimension>;
