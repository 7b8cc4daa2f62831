#include "ZqEnumerations.h"
#include <QEvent>
#include <QPointer>
#include <QStringList>
#include <algorithm>
#include <vector>

const ZqChoice kZqYesNo[2] = {
    {QT_TRANSLATE_NOOP("property_values", "Yes"), 1},
    {QT_TRANSLATE_NOOP("property_values", "No"), 0},
};

const ZqChoice kZqEnabledDisabled[2] = {
    {QT_TRANSLATE_NOOP("property_values", "Enabled"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Disabled"), 0},
};

namespace {

// Installing or removing a translator sends the application a language
// change; the lists translated before it are then stale.
class ZqLanguageWatch : public QObject {
 public:
  int generation = 0;
  QPointer<QCoreApplication> watched;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) ++generation;
    return false;
  }
  // The translations' generation; a new application instance may bring
  // translators of its own, so watching it starts a new one.
  int current() {
    QCoreApplication* app = QCoreApplication::instance();
    if (app != watched) {
      if (app) app->installEventFilter(this);
      watched = app;
      ++generation;
    }
    return generation;
  }
};

// A list translated once per language: the palette asks for an
// enumeration's value on every row of every selected object, and only the
// current choice differs between them.
struct ZqTranslatedList {
  const ZqChoice* choices = nullptr;
  std::vector<ZqChoice> copy;  // to tell a list apart from another at the same address
  int generation = -1;
  CZqVariantCollection collection;
};

}  // namespace

CZqVariant ZqEnumeration(std::span<const ZqChoice> choices, int current) {
  static ZqLanguageWatch watch;
  static std::vector<ZqTranslatedList> lists;
  const int generation = watch.current();
  auto same = [&](const ZqTranslatedList& l) {
    return l.choices == choices.data() && l.copy.size() == choices.size() &&
           std::equal(choices.begin(), choices.end(), l.copy.begin(),
                      [](const ZqChoice& a, const ZqChoice& b) { return a.word == b.word && a.tag == b.tag; });
  };
  auto it = std::find_if(lists.begin(), lists.end(), same);
  if (it == lists.end()) {
    it = lists.insert(lists.end(), ZqTranslatedList{choices.data(), {choices.begin(), choices.end()}, -1, {}});
  }
  if (it->generation != generation) {
    it->collection = CZqVariantCollection();
    for (const ZqChoice& c : choices) {
      CZqVariantCollectionElement element;
      element.SetValue(CZqVariant(QCoreApplication::translate("property_values", c.word)));
      element.SetTag(CZqVariant(c.tag));
      it->collection.Add(element);
    }
    it->generation = generation;
  }
  CZqVariantCollection collection = it->collection;
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
