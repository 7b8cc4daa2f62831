#include "DbDimension.h"

namespace {

// The style's value of a variable, or the table's default without a style.
OdDbDimVar::Value styleValue(const OdDbObjectId& style, OdDbDimVar::Id id) {
  if (!style.isNull()) {
    OdDbObjectPtr o = style.openObject(OdDb::kForRead);
    if (auto* rec = OdDbDimStyleTableRecord::cast(o).get()) return rec->dimVar(id);
  }
  return OdDbDimVar::info(id).defaultValue();
}

}  // namespace

void OdDbDimension::setDimensionStyle(const OdDbObjectId& id) {
  if (!id.isNull()) {
    OdDbObjectPtr o = id.openObject(OdDb::kForRead);
    if (!OdDbDimStyleTableRecord::cast(o).get())
      throw OdError(eInvalidInput, OdString("the dimension style is not a dimension style record"));
  }
  assertWriteEnabled();
  m_style = id;
}

OdDbDimVar::Value OdDbDimension::dimVar(OdDbDimVar::Id id) const {
  assertReadEnabled();
  OdDbDimVar::Value v;
  if (OdDbDimStyleOverrides::find(this, id, &v)) return v;
  return styleValue(m_style, id);
}

void OdDbDimension::setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v) {
  OdDbDimStyleOverrides::set(this, id, v);
}

void OdDbDimension::getDimstyleData(OdDbDimStyleTableRecord* record) const {
  for (const OdDbDimStyleOverrides::Line& l : OdDbDimStyleOverrides::effective(this, nullptr))
    record->setDimVar(l.id, l.overridden ? l.value : styleValue(m_style, l.id));
}

void OdDbDimension::setDimstyleData(const OdDbDimStyleTableRecord* record) {
  for (int k = 0; k < OdDbDimVar::kCount; ++k) {
    const auto id = OdDbDimVar::Id(k);
    if (!OdDbDimVar::info(id).code) continue;  // nowhere to keep it
    const OdDbDimVar::Value v = record->dimVar(id);
    if (v == styleValue(m_style, id)) OdDbDimStyleOverrides::remove(this, id);
    else OdDbDimStyleOverrides::set(this, id, v);
  }
}

void OdDbDimension::copyFrom(const OdRxObject* source) {
  OdDbEntity::copyFrom(source);
  m_style = static_cast<const OdDbDimension*>(source)->m_style;
}
