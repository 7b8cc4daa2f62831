#include "Blocks.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbBlockReference.h"
#include "DbText.h"
#include <array>
#include <cmath>

namespace {

using R = OdDbBlockReference;
using M = OdDbMInsertBlock;

#define ZQ_ATTRIBUTES QT_TRANSLATE_NOOP("property_groups", "Attributes")

// --- The block placed ----------------------------------------------------------

// The blocks a reference may place: every block of the drawing except the
// layouts and the anonymous blocks (names starting with '*').
QStringList placeableBlocks(const OdDbObject* object) {
  QStringList names;
  OdDbDatabase* db = object->database();
  if (!db) return names;
  OdDbObjectPtr t = db->getBlockTableId().openObject();
  auto* table = odrxCast<OdDbSymbolTable>(t.get());
  if (!table) return names;
  for (const OdDbObjectId& id : table->recordIds()) {
    OdDbObjectPtr b = id.openObject();
    auto* block = odrxCast<OdDbBlockTableRecord>(b.get());
    if (block && !block->isLayout() && !block->getName().qstring().startsWith('*')) names.append(block->getName().qstring());
  }
  return names;
}

CZqVariant getName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  if (!ref) return CZqVariant();
  QStringList names = placeableBlocks(object);
  const QString current = ref->blockName().qstring();
  // An anonymous block placed is shown (and kept) as it is.
  if (!names.contains(current, Qt::CaseInsensitive)) names.prepend(current);
  CZqVariantCollection collection;
  for (int i = 0; i < names.size(); ++i) {
    CZqVariantCollectionElement element;
    element.SetValue(CZqVariant(names[i]));
    element.SetTag(CZqVariant(int32_t(i)));
    collection.Add(element);
  }
  collection.SetCurrent(int(names.indexOf(current)));
  return CZqVariant(collection);
}

// Takes a chosen element (its word is the block's name), a name or an id;
// a block that does not exist, or a layout, is refused with a sentence.
int setName(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  R* ref = ZqWritable<R>(object);
  if (!ref) return kZqSetRefused;
  CZqVariant name = value;
  if (value.GetType() == CZqVariant::kVtCollectionElement) name = value.GetCollectionElement().GetValue();
  if (name.GetType() != CZqVariant::kVtString && name.GetType() != CZqVariant::kVtId) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqBlocks, name, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  if (id == ref->blockTableRecord()) return kZqSetApplied;
  OdDbObjectPtr b = id.openObject();
  auto* block = odrxCast<OdDbBlockTableRecord>(b.get());
  if (!block || block->isLayout())
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A layout cannot be placed as a block."));
  // The block's own entities may not place the block itself.
  if (ref->ownerId() == id)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A block cannot contain a reference to itself."));
  ref->setBlockTableRecord(id);
  return kZqSetApplied;
}

// --- Scales ------------------------------------------------------------------------

bool uniformlyScaled(const R* ref) {
  OdDbObjectPtr b = ref->blockTableRecord().openObject();
  auto* block = odrxCast<OdDbBlockTableRecord>(b.get());
  return block && block->blockScaling() == 1;
}

template <int Axis>
CZqVariant getScale(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  return ref ? CZqVariant(ref->scaleFactors()[Axis], false) : CZqVariant();
}

// A scale of 0 is refused (the row's limit); a block that must be scaled
// uniformly takes the new factor on every axis.
template <int Axis>
int setScale(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  R* ref = ZqWritable<R>(object);
  if (!ref) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGeScale3d s = ref->scaleFactors();
  if (uniformlyScaled(ref)) s = OdGeScale3d(v, v, v);
  else s[Axis] = v;
  if (s == ref->scaleFactors()) return kZqSetApplied;
  ref->setScaleFactors(s);
  return kZqSetApplied;
}

CZqVariant getUniform(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  return ref ? ZqEnumeration(kZqYesNo, uniformlyScaled(ref) ? 0 : 1) : CZqVariant();
}

// --- Rotation, normal, units ---------------------------------------------------------

CZqVariant getRotation(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  return ref ? CZqVariant(ref->rotation(), false) : CZqVariant();
}

int setRotation(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                const CZqVariant&) {
  R* ref = ZqWritable<R>(object);
  if (!ref) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  ref->setRotation(v);
  return kZqSetApplied;
}

template <int Axis>
CZqVariant getNormal(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  return ref ? CZqVariant(ZqUcsOf(object).wcsToUcs(ref->normal())[Axis], false) : CZqVariant();
}

CZqVariant getUnitFactor(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  return ref ? CZqVariant(ref->unitFactor(), false) : CZqVariant();
}

template <int Axis> constexpr auto getPosition = ZqGetUcsCoordinate<R, &R::position, Axis>;
template <int Axis> constexpr auto setPosition = ZqSetUcsCoordinate<R, &R::position, &R::setPosition, Axis>;

// Scales are refused at 0 with a sentence; negative factors mirror.
constexpr ZqLimit kScale = ZqMessage(kZqNonZero, QT_TRANSLATE_NOOP("errors", "A scale factor cannot be 0."));

// --- Attributes ------------------------------------------------------------------------

// Each attribute's row is keyed by its tag; a tag that repeats gets its
// place among the attributes of that tag: "TAG (2)".
QString attributeKey(const QStringList& tags, int i) {
  const int n = int(tags.mid(0, i).count(tags[i]));
  return n == 0 ? tags[i] : QStringLiteral("%1 (%2)").arg(tags[i]).arg(n + 1);
}

QStringList attributeTags(const R* ref) {
  QStringList tags;
  for (const OdDbObjectId& id : ref->attributeIds()) {
    OdDbObjectPtr o = id.openObject();
    auto* a = odrxCast<OdDbAttribute>(o.get());
    tags.append(a ? a->tag().qstring() : QString());
  }
  return tags;
}

OdDbObjectId attributeFor(const R* ref, const CZqPropertyDescription& description) {
  const QStringList tags = attributeTags(ref);
  const QString key = description.GetNameKey().qstring();
  for (int i = 0; i < tags.size(); ++i)
    if (attributeKey(tags, i) == key) return ref->attributeIds()[i];
  return {};
}

CZqVariant getAttribute(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const R* ref = ZqReadable<R>(object);
  if (!ref) return CZqVariant();
  OdDbObjectPtr o = attributeFor(ref, description).openObject();
  auto* a = odrxCast<OdDbAttribute>(o.get());
  return a ? CZqVariant(CZqString(a->textString())) : CZqVariant();
}

// The value of a single-line attribute is one line.
int setAttribute(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                 const CZqVariant&) {
  R* ref = ZqWritable<R>(object);
  if (!ref || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "An attribute value is one line: it cannot contain line breaks or control characters"));
  const OdDbObjectId id = attributeFor(ref, description);
  if (id.isNull()) return kZqSetRefused;
  OdDbObjectPtr o = id.openObject(OdDb::kForWrite);
  auto* a = odrxCast<OdDbAttribute>(o.get());
  if (!a) return kZqSetRefused;
  if (s != a->textString().qstring()) a->setTextString(OdString(s));
  return kZqSetApplied;
}

const ZqRow kAttributeRow = {ZQ_ATTRIBUTES, QT_TRANSLATE_NOOP("property_types", "Value"), kZqString,
                             ZqGuid::kAttributeGUID, kZqEditable, getAttribute, setAttribute, "Attribute_Value"};

void attributeRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  const R* ref = ZqReadable<R>(object);
  if (!ref) return;
  const QStringList tags = attributeTags(ref);
  for (int i = 0; i < tags.size(); ++i) {
    if (tags[i].isEmpty()) continue;
    CZqCustomPropertyDescription* d = ZqBuildDynamicDescription(kAttributeRow);
    const QString key = attributeKey(tags, i);
    d->SetName(CZqString(key));
    d->SetKeys(CZqString(ZQ_ATTRIBUTES), CZqString(key));
    container->AddDynamic(d);
  }
}

const ZqRow kRows[] = {
//  category      name                                                 type           identifier                read-only    get              set              icon                     visibility  limit
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position X"),    kZqDouble,     ZqGuid::kCoordinateXGUID, kZqEditable, getPosition<0>,  setPosition<0>,  "Geometry_CoordinateX",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position Y"),    kZqDouble,     ZqGuid::kCoordinateYGUID, kZqEditable, getPosition<1>,  setPosition<1>,  "Geometry_CoordinateY",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Position Z"),    kZqDouble,     ZqGuid::kCoordinateZGUID, kZqEditable, getPosition<2>,  setPosition<2>,  "Geometry_CoordinateZ",  kVisKeep},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Scale X"),       kZqDouble,     nullptr,                  kZqEditable, getScale<0>,     setScale<0>,     nullptr,                 kVisOr4,    kScale},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Scale Y"),       kZqDouble,     nullptr,                  kZqEditable, getScale<1>,     setScale<1>,     nullptr,                 kVisOr4,    kScale},
  {ZQ_GEOMETRY,  QT_TRANSLATE_NOOP("property_types", "Scale Z"),       kZqDouble,     nullptr,                  kZqEditable, getScale<2>,     setScale<2>,     nullptr,                 kVisOr4,    kScale},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Name"),          kZqCollection, nullptr,                  kZqEditable, getName,         setName,         nullptr,                 kVisKeep},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Rotation"),      kZqDouble,     ZqGuid::kAngleGUID,       kZqEditable, getRotation,     setRotation,     nullptr,                 kVisOr4},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Normal X"),      kZqDouble,     nullptr,                  kZqReadOnly, getNormal<0>,    nullptr,         nullptr,                 kVisKeep},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Normal Y"),      kZqDouble,     nullptr,                  kZqReadOnly, getNormal<1>,    nullptr,         nullptr,                 kVisKeep},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Normal Z"),      kZqDouble,     nullptr,                  kZqReadOnly, getNormal<2>,    nullptr,         nullptr,                 kVisKeep},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Unit factor"),   kZqDouble,     nullptr,                  kZqReadOnly, getUnitFactor,   nullptr,         nullptr,                 kVisKeep},
  {ZQ_MISC,      QT_TRANSLATE_NOOP("property_types", "Uniform scale"), kZqCollection, nullptr,                  kZqReadOnly, getUniform,      nullptr,         nullptr,                 kVisKeep},
};

// --- Multiple inserts ------------------------------------------------------------------

template <int (M::*Get)() const>
CZqVariant getCount(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const M* m = ZqReadable<M>(object);
  return m ? CZqVariant(int32_t((m->*Get)())) : CZqVariant();
}

// Counts are whole numbers from 1 to 32767.
template <void (M::*Set)(int)>
int setCount(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  M* m = ZqWritable<M>(object);
  if (!m) return kZqSetRefused;
  double v = 0;
  if (value.GetType() == CZqVariant::kVtInt32) v = value.GetInt32();
  else if (value.GetType() == CZqVariant::kVtDouble) v = value.GetDouble();
  else return kZqSetRefused;
  if (const int refused = ZqCheckLimit(description, v)) return refused;
  if (v != std::floor(v)) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Rows and columns are counted in whole numbers."));
  (m->*Set)(int(v));
  return kZqSetApplied;
}

constexpr ZqLimit kCount = ZqRange(1, 32767);
constexpr auto getColumnSpacing = ZqGetDouble<M, &M::columnSpacing>;
constexpr auto setColumnSpacing = ZqSetDouble<M, &M::setColumnSpacing>;
constexpr auto getRowSpacing = ZqGetDouble<M, &M::rowSpacing>;
constexpr auto setRowSpacing = ZqSetDouble<M, &M::setRowSpacing>;

const ZqRow kGridRows[] = {
//  category  name                                                  type       identifier read-only    get                         set                         icon     visibility  limit
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Columns"),        kZqInt32,  nullptr,   kZqEditable, getCount<&M::columns>,      setCount<&M::setColumns>,   nullptr, kVisOr4,    kCount},
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Rows"),           kZqInt32,  nullptr,   kZqEditable, getCount<&M::rows>,         setCount<&M::setRows>,      nullptr, kVisOr4,    kCount},
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Column spacing"), kZqDouble, nullptr,   kZqEditable, getColumnSpacing,           setColumnSpacing,           nullptr, kVisOr4},
  {ZQ_MISC,  QT_TRANSLATE_NOOP("property_types", "Row spacing"),    kZqDouble, nullptr,   kZqEditable, getRowSpacing,              setRowSpacing,              nullptr, kVisOr4},
};

// A multiple insert's provider hangs under the generic one: it shows the
// block reference rows itself, then the grid.
template <size_t A, size_t B>
std::array<ZqRow, A + B> joined(const ZqRow (&a)[A], const ZqRow (&b)[B]) {
  std::array<ZqRow, A + B> out{};
  for (size_t i = 0; i < A; ++i) out[i] = a[i];
  for (size_t i = 0; i < B; ++i) out[A + i] = b[i];
  return out;
}
const auto kMInsertRows = joined(kRows, kGridRows);

}  // namespace

ZQ_DEFINE_PROVIDER(CZqBlockReferencePE, QT_TRANSLATE_NOOP("entity_types", "Block Reference"), kRows, {}, attributeRows)
ZQ_DEFINE_PROVIDER(CZqMInsertBlockPE, QT_TRANSLATE_NOOP("entity_types", "Multiple Block Reference"), kMInsertRows, {},
                   attributeRows)

void CZqBlockReferenceInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  ZqPrintInfoFrame<R>(this, object, context, [&](const R* ref) {
    auto item = [](const char* label) { return CZqString(QCoreApplication::translate("info_items", label)); };
    context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Block Name")), CZqString(ref->blockName()));
    context->PrintPoint(item(QT_TRANSLATE_NOOP("info_items", "at point")), ref->position());
    const OdGeScale3d s = ref->scaleFactors();
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "X scale factor")), s.sx);
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "Y scale factor")), s.sy);
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "Z scale factor")), s.sz);
    context->PrintAngle(item(QT_TRANSLATE_NOOP("info_items", "rotation angle")), ref->rotation());
    context->PrintVector3D(item(QT_TRANSLATE_NOOP("info_items", "Extrusion direction")), ref->normal());
    context->PrintScale(item(QT_TRANSLATE_NOOP("info_items", "Unit factor")), ref->unitFactor());
    if (const auto* m = odrxCast<M>(ref)) {
      context->PrintInt(item(QT_TRANSLATE_NOOP("info_items", "Columns")), m->columns());
      context->PrintInt(item(QT_TRANSLATE_NOOP("info_items", "Rows")), m->rows());
      context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Column spacing")), m->columnSpacing());
      context->PrintDist(item(QT_TRANSLATE_NOOP("info_items", "Row spacing")), m->rowSpacing());
    }
    for (const OdDbObjectId& id : ref->attributeIds()) {
      if (!context->CheckCounter()) break;
      OdDbObjectPtr o = id.openObject();
      auto* a = odrxCast<OdDbAttribute>(o.get());
      if (!a) continue;
      context->PrintString(item(QT_TRANSLATE_NOOP("info_items", "Attribute")),
                           CZqString(QStringLiteral("%1: %2").arg(a->tag().qstring(), a->textString().qstring())));
    }
  });
}
