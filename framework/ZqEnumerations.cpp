#include "ZqEnumerations.h"
#include "ZqServices.h"

#include <QStringList>

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <vector>

const ZqChoice kZqYesNo[2] = {
    {QT_TRANSLATE_NOOP("property_values", "Yes"), 1},
    {QT_TRANSLATE_NOOP("property_values", "No"), 0},
};

const ZqChoice kZqEnabledDisabled[2] = {
    {QT_TRANSLATE_NOOP("property_values", "Enabled"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Disabled"), 0},
};

// Choice lists are static tables, read for every object a listing shows:
// each list's translated collection is made once per current choice and
// language and shared by every value that shows it. An entry is used only
// when the table it was made from still holds the same words and tags.
CZqVariant ZqEnumeration(std::span<const ZqChoice> choices, int current) {
  struct Entry {
    std::vector<ZqChoice> choices;
    std::shared_ptr<const CZqVariantCollection> collection;
  };
  struct Key {
    const ZqChoice* data;
    size_t size;
    int current;
    bool operator==(const Key&) const = default;
  };
  struct KeyHash {
    size_t operator()(const Key& k) const {
      return std::hash<const void*>()(k.data) ^ (k.size * 0x9E3779B97F4A7C15ull) ^ (size_t(k.current) << 20);
    }
  };
  static std::unordered_map<Key, Entry, KeyHash> cache;
  static unsigned generation = 0;
  if (zqTranslationsChangedSince(generation)) cache.clear();
  Entry& entry = cache[Key{choices.data(), choices.size(), current}];
  const bool same = entry.collection && std::equal(choices.begin(), choices.end(), entry.choices.begin(), entry.choices.end(),
                                                   [](const ZqChoice& a, const ZqChoice& b) { return a.word == b.word && a.tag == b.tag; });
  if (!same) {
    auto collection = std::make_shared<CZqVariantCollection>();
    for (const ZqChoice& c : choices) {
      CZqVariantCollectionElement element;
      element.SetValue(CZqVariant(QCoreApplication::translate("property_values", c.word)));
      element.SetTag(CZqVariant(c.tag));
      collection->Add(element);
    }
    collection->SetCurrent(current);
    entry.choices.assign(choices.begin(), choices.end());
    entry.collection = std::move(collection);
  }
  return CZqVariant(entry.collection);
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
