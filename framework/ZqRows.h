#pragma once
// Rows as data: a provider's fixed rows are one constant array of ZqRow in
// its source unit, the rows it shows only for some objects a second array
// of ZqConditionalRow; one routine turns a row into a description; the
// steps of GetPropertyNames that every provider shares are written once
// here and in ZqProvider.h.
#include "ZqPropertiesKernel.h"
#include <QCoreApplication>
#include <span>

// Category words, untranslated (the icon paths use them as they are).
#define ZQ_GENERAL QT_TRANSLATE_NOOP("property_groups", "General")
#define ZQ_GEOMETRY QT_TRANSLATE_NOOP("property_groups", "Geometry")
#define ZQ_MISC QT_TRANSLATE_NOOP("property_groups", "Misc")
// The hidden property-matching category, never translated.
#define ZQ_MATCHPROP "MATCHPROP"

// The words of a row table, written once for every provider.
using ZqGuid = CZqPropertyType;
using ZqKind = CZqVariant::_Type;
inline constexpr ZqKind kZqUntyped = CZqVariant::kVtEmpty;
inline constexpr ZqKind kZqDouble = CZqVariant::kVtDouble;
inline constexpr ZqKind kZqString = CZqVariant::kVtString;
inline constexpr ZqKind kZqInt32 = CZqVariant::kVtInt32;
inline constexpr ZqKind kZqColor = CZqVariant::kVtColor;
inline constexpr ZqKind kZqCollection = CZqVariant::kVtCollection;
inline constexpr ZqKind kZqId = CZqVariant::kVtId;
inline constexpr ZqIsReadOnlyMethod kZqEditable = &CZqCustomPropertyPE::IsReadOnlyFalse;
inline constexpr ZqIsReadOnlyMethod kZqReadOnly = &CZqCustomPropertyPE::IsReadOnlyTrue;

// How a row changes its description's visibility once it is in the list.
struct ZqVis {
  // kOrUnlessStandard: kOr in every edition above the standard one.
  enum Op { kKeep, kOr, kXor, kSet, kOrUnlessStandard } op = kKeep;
  unsigned bits = 0;
};
constexpr ZqVis kVisKeep{};
constexpr ZqVis kVisOr4{ZqVis::kOr, 4};
constexpr ZqVis kVisXor8{ZqVis::kXor, 8};
constexpr ZqVis kVisMatchProp{ZqVis::kSet, 4};
constexpr ZqVis kVisOr4UnlessStandard{ZqVis::kOrUnlessStandard, 4};

// The values a numeric row takes. One statement serves the setter that
// checks a value and the sentence that tells a user what is allowed.
// Values within 1e-10 of zero count as zero; NaN and infinities are never
// taken.
struct ZqLimit {
  enum Kind { kAny, kPositive, kNonNegative, kNonZero, kRange } kind = kAny;
  double low = 0, high = 0;  // kRange: low..high, both taken
  // The "errors" key of the message box a refusal shows; null: the
  // sentence made from the limit.
  const char* message = nullptr;
  // Whether the setter shows the message box. A silent row still states
  // the sentence for hosts to show (CZqPropertyDescription::GetRefusalText).
  bool box = true;
  // Whether values within 1e-10 of zero count as zero; off where a row
  // refuses only an exact 0 and takes the tiniest size.
  bool snap = true;

  // Whether v is taken; a value that counts as zero is made exactly 0.
  bool admits(double& v) const;
};
constexpr ZqLimit kZqAny{};
constexpr ZqLimit kZqPositive{ZqLimit::kPositive};
constexpr ZqLimit kZqNonNegative{ZqLimit::kNonNegative};
constexpr ZqLimit kZqNonZero{ZqLimit::kNonZero};
constexpr ZqLimit ZqRange(double low, double high) { return {ZqLimit::kRange, low, high}; }
// The same limit refused without a message box (the palette stays quiet;
// the host may still print the sentence).
constexpr ZqLimit ZqSilent(ZqLimit limit) { return limit.box = false, limit; }
// The same limit without the 1e-10 rule: only an exact 0 is zero.
constexpr ZqLimit ZqExact(ZqLimit limit) { return limit.snap = false, limit; }
// The same limit with the fixed message key a row's refusal shows.
constexpr ZqLimit ZqMessage(ZqLimit limit, const char* key) { return limit.message = key, limit; }

// The sentence that says what the row named rowName (translated) takes:
// "Radius must be greater than 0"; the limit's own message when it has one;
// empty for kAny.
QString ZqLimitSentence(const ZqLimit& limit, const QString& rowName);

struct ZqRow {
  const char* category;      // untranslated category word
  const char* name;          // untranslated row name
  ZqKind type;               // the value kind of the row's editor
  const char* typeId;        // editor identifier, or nullptr for none
  ZqIsReadOnlyMethod readOnly;
  ZqGetMethod get;
  ZqSetMethod set;           // nullptr for computed rows
  const char* icon;          // icon stem "Group_Name"; nullptr: category_NameWithoutBlanks; "" none
  ZqVis vis = kVisKeep;
  ZqLimit limit = kZqAny;    // the values a numeric setter takes
  const char* iconFolder = nullptr;  // icon set; nullptr: the stem's group word (all but its last part);
                                     // "Folder/": icons directly under the set's dark/ and light/
};

// A row shown only for objects for which `when` answers true (an
// annotative text, a revision cloud, a selection of several curves). Its
// description is built afresh on each call and handed over as dynamic.
struct ZqConditionalRow {
  bool (*when)(const OdDbObject* object);
  ZqRow row;
};

// Rows of the MATCHPROP category keep their words untranslated, have no
// editor type and no icons.
bool ZqIsMatchPropRow(const ZqRow& row);

// The icon stem of a row, its icon folder, and the two resource paths of a
// stem in a folder (the stem's group word when folder is empty).
QString ZqIconStem(const ZqRow& row);
QString ZqIconFolder(const ZqRow& row);
QString ZqDarkIconPath(const QString& stem, const QString& folder = QString());
QString ZqLightIconPath(const QString& stem, const QString& folder = QString());

// The row a description was built from (null for descriptions the module
// did not build, such as the host's general rows).
const ZqRow* ZqRowOf(const CZqPropertyDescription& description);

// Builds one fixed description from its row, appends it to list and then
// applies the row's visibility edit.
CZqCustomPropertyDescription* ZqBuildFixedDescription(const ZqRow& row, OdArray<CZqPropertyDescription*>& list);

// Builds one dynamic description (flagged dynamic, for AddDynamic).
CZqCustomPropertyDescription* ZqBuildDynamicDescription(const ZqRow& row);

// The shared steps of a provider's GetPropertyNames after its parent has
// run: the provider-class filter, the container check, the object-class
// admission and the static list (built on the first call, when excludeOwn
// is not consulted). Returns true when the provider's conditional and
// dynamic rows should follow.
bool ZqAddStaticRows(CZqPropertiesContainer* container, const OdRxClass* objectClass,
                     const OdRxClass* providerClass, bool excludeOwn, const OdRxClass* drawingClass,
                     const OdRxClass* ownClass, OdArray<CZqPropertyDescription*>& staticList,
                     std::span<const ZqRow> rows);

// Adds, as dynamic descriptions, the conditional rows whose predicate
// answers true for object.
void ZqAddConditionalRows(const OdDbObject* object, CZqPropertiesContainer* container,
                          std::span<const ZqConditionalRow> rows);
