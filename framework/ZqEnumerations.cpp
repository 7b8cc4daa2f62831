#include "ZqEnumerations.h"
#include <QStringList>

const ZqChoice kZqYesNo[2] = {
    {QT_TRANSLATE_NOOP("property_values", "Yes"), 1},
    {QT_TRANSLATE_NOOP("property_values", "No"), 0},
};

const ZqChoice kZqEnabledDisabled[2] = {
    {QT_TRANSLATE_NOOP("property_values", "Enabled"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Disabled"), 0},
};

CZqVariant ZqEnumeration(std::span<const ZqChoice> choices, int current) {
  CZqVariantCollection collection;
  for (const ZqChoice& c : choices) {
    CZqVariantCollectionElement element;
    element.SetValue(CZqVariant(QCoreApplication::translate("property_values", c.word)));
    element.SetTag(CZqVariant(c.tag));
    collection.Add(element);
  }
  collection.SetCurrent(current);
  return CZqVariant(collection);
}

bool ZqChosenTag(const CZqVariant& value, int32_t& tag) {
  if (value.GetType() != CZqVariant::kVtCollectionElement) return false;
  const CZqVariant& t = value.GetCollectionElement().GetTag();
  if (t.GetType() != CZqVariant::kVtInt32) return false;
  tag = t.GetInt32();
  return true;
}

int ZqChoiceIndex(std::span<const ZqChoice> choices, int32_t tag) {
  for (size_t i = 0; i < choices.size(); ++i)
    if (choices[i].tag == tag) return int(i);
  return -1;
}

QString ZqChoicesSentence(const QString& rowName, std::span<const ZqChoice> choices) {
  QStringList words;
  for (const ZqChoice& c : choices) words << QCoreApplication::translate("property_values", c.word);
  return QCoreApplication::translate("errors", "%1 takes one of: %2").arg(rowName, words.join(QStringLiteral(", ")));
}
