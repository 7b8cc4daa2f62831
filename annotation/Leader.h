#pragma once
// Leaders: their vertices (one at a time, chosen with the Vertex row), the
// dimension style they draw with and the style variables they show; and
// the rows leaders share with tolerance frames.
#include "ZqEntityExPE.h"
#include "KVKernel.h"
#include "ZqCallbacks.h"
#include "DbLeader.h"

class CZqLeaderPE : public ZqProvider<CZqLeaderPE> {
  ZQ_PROVIDER(CZqLeaderPE);
};

class CZqLeaderInfo : public CZqPrintObjectInfoPE {
 public:
  void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) override;
};

// The arrowheads leaders and multileaders offer ("Closed filled" ...
// "None"), the index of the one a block draws (0 for none, -1 for a block
// of the user's own), and the block of a chosen one in the object's
// drawing (*block null for closed filled; refused with a sentence when the
// drawing lacks the block).
std::span<const ZqChoice> ZqArrowheadChoices();
int ZqArrowheadIndex(const OdDbObjectId& block);
int ZqArrowheadBlock(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                     OdDbObjectId* block);

// Rows over one dimension variable of an object of class T drawn with a
// dimension style (OdDbDimStyled): numbers, colours, line weights and text
// styles. The
// setter takes the row's limit; a value the variable does not take is
// refused with a sentence and the object is left as it was.
namespace ZqStyled {

CZqVariant valueOf(OdDbDimVar::Id id, const OdDbDimVar::Value& v);
// The value to store from an edit; 0 with *out set, or the refusal code.
int take(const OdDbObject* object, OdDbDimVar::Id id, const CZqPropertyDescription& description, const CZqVariant& value,
         OdDbDimVar::Value* out);
int refuseValue(OdDbDimVar::Id id);

template <class T, OdDbDimVar::Id Id>
CZqVariant get(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? valueOf(Id, t->dimVar(Id)) : CZqVariant();
}

template <class T, OdDbDimVar::Id Id>
int set(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t) return kZqSetRefused;
  OdDbDimVar::Value v;
  if (const int refused = take(object, Id, description, value, &v)) return refused;
  if (t->dimVar(Id) == v) return kZqSetApplied;
  try {
    t->setDimVar(Id, v);
  } catch (const OdError&) {
    return refuseValue(Id);
  }
  return kZqSetApplied;
}

// The dimension style row.
template <class T>
CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const T* t = ZqReadable<T>(object);
  return t ? CZqVariant(t->dimensionStyle()) : CZqVariant();
}
template <class T>
int setStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  T* t = ZqWritable<T>(object);
  if (!t || (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqDimensionStyles, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  if (id != t->dimensionStyle()) t->setDimensionStyle(id);
  return kZqSetApplied;
}

// Read-only while the object is annotative (its scale follows the
// annotation scale then).
bool isScaleReadOnly(const OdDbObject* object, const CZqPropertyDescription&);

// The dynamic part shared by leaders and tolerance frames: the style rows
// (found by their untranslated category and name) get their editors, then
// "Annotative" and, for an annotative object, "Annotative Scale" (with the
// translated description text).
struct StyleRow {
  const char* category;
  const char* name;
  const char* guid;
};
void addDynamicRows(const OdDbObject* object, CZqPropertiesContainer* container, std::span<const StyleRow> styleRows,
                    const ZqRow& annotationScale, const QString& scaleDescription);

// Property matching: the style, every variable the source overrides or
// the target does, as the source has it.
template <class T>
int matchStyle(const T* from, T* to) {
  if (from->database() == to->database() && from->dimensionStyle() != to->dimensionStyle())
    to->setDimensionStyle(from->dimensionStyle());
  for (int k = 0; k < OdDbDimVar::kCount; ++k) {
    const auto id = OdDbDimVar::Id(k);
    // Records of another drawing mean nothing here.
    if (OdDbDimVar::info(id).isReference() && from->database() != to->database()) continue;
    if (OdDbDimVar::info(id).code && !(to->dimVar(id) == from->dimVar(id))) to->setDimVar(id, from->dimVar(id));
  }
  return kZqSetApplied;
}

}  // namespace ZqStyled
