#include "ZqRows.h"

bool ZqIsMatchPropRow(const ZqRow& row) { return QByteArray(row.category) == ZQ_MATCHPROP; }

QString ZqIconStem(const ZqRow& row) {
  if (row.icon) return QString::fromLatin1(row.icon);
  return QString::fromLatin1(row.category) + '_' + QString::fromLatin1(row.name).remove(' ');
}

QString ZqDarkIconPath(const QString& stem) {
  const QString group = stem.section('_', 0, 0);
  return QString(":/%1/svg_icons/dark/%1/%2.svg").arg(group, stem);
}

QString ZqLightIconPath(const QString& stem) {
  const QString group = stem.section('_', 0, 0);
  return QString(":/%1/svg_icons/light/%1/%2.svg").arg(group, stem);
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
  return stem.isEmpty() ? QString() : ZqDarkIconPath(stem);
}
QString lightIcon(const ZqRow& row) {
  const QString stem = ZqIconStem(row);
  return stem.isEmpty() ? QString() : ZqLightIconPath(stem);
}
}  // namespace

CZqCustomPropertyDescription* ZqBuildFixedDescription(const ZqRow& row, OdArray<CZqPropertyDescription*>& list) {
  auto* d = CZqCustomPropertyDescription::CreateStatic();
  d->SetCategory(categoryText(row));
  d->SetName(nameText(row));
  d->SetIsDynamic(false);
  if (!ZqIsMatchPropRow(row)) d->SetType(CZqCustomPropertyType(row.type, row.typeId ? CZqString(row.typeId) : CZqString()));
  d->SetDescription(CZqString());
  d->PutGetMethod(row.get);
  d->PutSetMethod(row.set);
  d->PutIsReadOnlyMethod(row.readOnly);
  d->SetIcon(CZqString());
  d->SetDarkIcon(darkIcon(row));
  d->SetLightIcon(lightIcon(row));
  list.append(d);
  switch (row.vis.op) {
    case ZqVis::kKeep: break;
    case ZqVis::kOr: d->SetVisibility(d->GetVisibility() | row.vis.bits); break;
    case ZqVis::kXor: d->SetVisibility(d->GetVisibility() ^ row.vis.bits); break;
    case ZqVis::kSet: d->SetVisibility(row.vis.bits); break;
  }
  return d;
}

CZqCustomPropertyDescription* ZqBuildDynamicDescription(const ZqRow& row) {
  auto* d = new CZqCustomPropertyDescription();
  d->SetName(nameText(row));
  d->SetType(CZqCustomPropertyType(row.type, row.typeId ? CZqString(row.typeId) : CZqString()));
  d->SetIcon(CZqString());
  d->SetDarkIcon(darkIcon(row));
  d->SetLightIcon(lightIcon(row));
  d->SetCategory(categoryText(row));
  d->PutGetMethod(row.get);
  d->PutSetMethod(row.set);
  d->PutIsReadOnlyMethod(row.readOnly);
  d->SetIsDynamic(true);
  return d;
}

bool ZqAddStaticRows(CZqPropertiesContainer* container, const OdRxClass* objectClass, const OdRxClass* providerClass,
                     bool excludeOwn, const OdRxClass* drawingClass, const OdRxClass* ownClass,
                     OdArray<CZqPropertyDescription*>& staticList, std::span<const ZqRow> rows) {
  if (providerClass && !providerClass->isDerivedFrom(ownClass)) return false;
  if (!container) return false;
  const bool wanted = !objectClass || objectClass->isDerivedFrom(drawingClass);
  if (!staticList.isEmpty()) {
    if (wanted && !excludeOwn) container->Add(staticList);
    return wanted;
  }
  // First call: build the list; excludeOwn is deliberately not consulted.
  for (const ZqRow& row : rows) ZqBuildFixedDescription(row, staticList);
  if (wanted) container->Add(staticList);
  return wanted;
}
