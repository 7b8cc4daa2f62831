#include "ZqRows.h"
#include "ZqServices.h"
#include <cmath>
#include <unordered_map>

namespace {
constexpr double kZeroTolerance = 1e-10;
}  // namespace

bool ZqLimit::admits(double& v) const {
  if (!std::isfinite(v)) return false;
  if (kind == kAny) return true;  // taken as given
  if (snap && std::fabs(v) <= kZeroTolerance) v = 0;
  switch (kind) {
    case kAny: return true;
    case kPositive: return v > 0;
    case kNonNegative: return v >= 0;
    case kNonZero: return v != 0;
    case kRange: return v >= low && v <= high;
  }
  return false;
}

QString ZqLimitSentence(const ZqLimit& limit, const QString& rowName) {
  if (limit.message) return QCoreApplication::translate("errors", limit.message);
  switch (limit.kind) {
    case ZqLimit::kAny: return QString();
    case ZqLimit::kPositive: return QCoreApplication::translate("errors", "%1 must be greater than 0").arg(rowName);
    case ZqLimit::kNonNegative: return QCoreApplication::translate("errors", "%1 must be 0 or greater").arg(rowName);
    case ZqLimit::kNonZero: return QCoreApplication::translate("errors", "%1 must not be 0").arg(rowName);
    case ZqLimit::kRange:
      return QCoreApplication::translate("errors", "%1 must be between %2 and %3")
          .arg(rowName, QString::number(limit.low), QString::number(limit.high));
  }
  return QString();
}

bool ZqIsMatchPropRow(const ZqRow& row) { return QByteArray(row.category) == ZQ_MATCHPROP; }

QString ZqIconStem(const ZqRow& row) {
  if (row.icon) return QString::fromLatin1(row.icon);
  return QString::fromLatin1(row.category) + '_' + QString::fromLatin1(row.name).remove(' ');
}

// The group word of a stem: all but its last part ("Lines_Arrows" of
// "Lines_Arrows_ArrowSize").
static QString groupOf(const QString& stem) { return stem.section('_', 0, -2); }

QString ZqIconFolder(const ZqRow& row) {
  return row.iconFolder ? QString::fromLatin1(row.iconFolder) : groupOf(ZqIconStem(row));
}

// A folder ending in a slash holds its icons directly under dark/ and
// light/, without the repeated group folder.
static QString iconPath(const char* shade, const QString& stem, const QString& folder) {
  const QString group = folder.isEmpty() ? groupOf(stem) : folder;
  if (group.endsWith('/')) return QString(":/%1svg_icons/%2/%3.svg").arg(group, QLatin1String(shade), stem);
  return QString(":/%1/svg_icons/%2/%1/%3.svg").arg(group, QLatin1String(shade), stem);
}

QString ZqDarkIconPath(const QString& stem, const QString& folder) { return iconPath("dark", stem, folder); }
QString ZqLightIconPath(const QString& stem, const QString& folder) { return iconPath("light", stem, folder); }

const ZqRow* ZqRowOf(const CZqPropertyDescription& description) {
  return static_cast<const ZqRow*>(description.GetRowData());
}

namespace {
QString categoryText(const ZqRow& row) {
  return ZqIsMatchPropRow(row) ? QString::fromLatin1(row.category)
                               : QCoreApplication::translate("property_groups", row.category);
}
QString nameText(const ZqRow& row) {
  return ZqIsMatchPropRow(row) ? QString::fromLatin1(row.name) : QCoreApplication::translate("property_types", row.name);
}
QString darkIcon(const ZqRow& row) {
  const QString stem = ZqIconStem(row);
  return stem.isEmpty() ? QString() : ZqDarkIconPath(stem, ZqIconFolder(row));
}
QString lightIcon(const ZqRow& row) {
  const QString stem = ZqIconStem(row);
  return stem.isEmpty() ? QString() : ZqLightIconPath(stem, ZqIconFolder(row));
}
CZqCustomPropertyType typeOf(const ZqRow& row) {
  return CZqCustomPropertyType(row.type, row.typeId ? CZqString(row.typeId) : CZqString());
}
// The texts of a row: its category and name as shown, its icons, its keys
// and the sentence of its limit. Made once per row and language, since
// dynamic rows are made again for every object a listing shows (rows are
// static tables, so a row's address names it).
struct RowTexts {
  CZqString category, name, dark, light, categoryKey, nameKey, refusal;
  // What they were made from: a row made on the stack may take the address
  // of an earlier one.
  const char *fromCategory = nullptr, *fromName = nullptr, *fromIcon = nullptr, *fromFolder = nullptr;
  ZqLimit fromLimit;
  bool madeFrom(const ZqRow& row) const {
    return fromCategory == row.category && fromName == row.name && fromIcon == row.icon && fromFolder == row.iconFolder &&
           fromLimit.kind == row.limit.kind && fromLimit.low == row.limit.low && fromLimit.high == row.limit.high &&
           fromLimit.message == row.limit.message;
  }
};
const RowTexts& textsOf(const ZqRow& row) {
  static std::unordered_map<const ZqRow*, RowTexts> made;
  static unsigned generation = 0;
  if (zqTranslationsChangedSince(generation)) made.clear();
  RowTexts& texts = made[&row];
  if (!texts.madeFrom(row)) {
    const QString name = nameText(row);
    texts = RowTexts{categoryText(row), name,  darkIcon(row), lightIcon(row), CZqString(row.category), CZqString(row.name),
                     ZqLimitSentence(row.limit, name), row.category, row.name, row.icon, row.iconFolder, row.limit};
  }
  return texts;
}
// What the host's palette does not show: the untranslated keys the row is
// found by, the sentence of its limit and the row itself for the setters.
void attachRowData(CZqCustomPropertyDescription* d, const ZqRow& row, const RowTexts& texts) {
  d->SetKeys(texts.categoryKey, texts.nameKey);
  d->SetRefusalText(texts.refusal);
  d->SetRowData(&row);
}
}  // namespace

CZqCustomPropertyDescription* ZqBuildFixedDescription(const ZqRow& row, OdArray<CZqPropertyDescription*>& list) {
  const RowTexts& texts = textsOf(row);
  auto* d = CZqCustomPropertyDescription::CreateStatic();
  d->SetCategory(texts.category);
  d->SetName(texts.name);
  d->SetIsDynamic(false);
  if (!ZqIsMatchPropRow(row)) d->SetType(typeOf(row));
  d->SetDescription(CZqString());
  d->PutGetMethod(row.get);
  d->PutSetMethod(row.set);
  d->PutIsReadOnlyMethod(row.readOnly);
  d->SetIcon(CZqString());
  d->SetDarkIcon(texts.dark);
  d->SetLightIcon(texts.light);
  attachRowData(d, row, texts);
  list.append(d);
  switch (row.vis.op) {
    case ZqVis::kKeep: break;
    case ZqVis::kOr: d->SetVisibility(d->GetVisibility() | row.vis.bits); break;
    case ZqVis::kXor: d->SetVisibility(d->GetVisibility() ^ row.vis.bits); break;
    case ZqVis::kSet: d->SetVisibility(row.vis.bits); break;
    case ZqVis::kOrUnlessStandard:
      if (CZqUtils::IsNotTelvaneStandard()) d->SetVisibility(d->GetVisibility() | row.vis.bits);
      break;
  }
  return d;
}

CZqCustomPropertyDescription* ZqBuildDynamicDescription(const ZqRow& row) {
  const RowTexts& texts = textsOf(row);
  auto* d = new CZqCustomPropertyDescription();
  d->SetName(texts.name);
  d->SetType(typeOf(row));
  d->SetIcon(CZqString());
  d->SetDarkIcon(texts.dark);
  d->SetLightIcon(texts.light);
  d->SetCategory(texts.category);
  d->PutGetMethod(row.get);
  d->PutSetMethod(row.set);
  d->PutIsReadOnlyMethod(row.readOnly);
  d->SetIsDynamic(true);
  attachRowData(d, row, texts);
  return d;
}

bool ZqAddStaticRows(CZqPropertiesContainer* container, const OdRxClass* objectClass, const OdRxClass* providerClass,
                     bool excludeOwn, const OdRxClass* drawingClass, const OdRxClass* ownClass,
                     OdArray<CZqPropertyDescription*>& staticList, std::span<const ZqRow> rows) {
  if (providerClass && (!ownClass || !providerClass->isDerivedFrom(ownClass))) return false;
  if (!container) return false;
  const bool wanted = !objectClass || objectClass->isDerivedFrom(drawingClass);
  if (!staticList.isEmpty() || rows.empty()) {
    if (wanted && !excludeOwn) container->Add(staticList);
    return wanted;
  }
  // First call: build the list; excludeOwn is deliberately not consulted.
  for (const ZqRow& row : rows) ZqBuildFixedDescription(row, staticList);
  if (wanted) container->Add(staticList);
  return wanted;
}

void ZqAddConditionalRows(const OdDbObject* object, CZqPropertiesContainer* container,
                          std::span<const ZqConditionalRow> rows) {
  for (const ZqConditionalRow& c : rows)
    if (c.when(object)) container->AddDynamic(ZqBuildDynamicDescription(c.row));
}
