#pragma once
// Enumeration rows: the choices as a collection whose elements carry the
// translated word ("property_values") and the stored number, and the reading
// of the element a setter receives.
#include "CZqVariant.h"
#include <QCoreApplication>
#include <QString>
#include <span>

struct ZqChoice {
  const char* word;  // untranslated, context "property_values"
  int32_t tag;
};

// "Yes" (1) then "No" (0); "Enabled" (1) then "Disabled" (0).
extern const ZqChoice kZqYesNo[2];
extern const ZqChoice kZqEnabledDisabled[2];

// The collection of the choices in list order, with the element at current
// marked (none when current is out of range).
CZqVariant ZqEnumeration(std::span<const ZqChoice> choices, int current);

// The place of the choice with this tag in the list, or -1.
int ZqChoiceIndex(std::span<const ZqChoice> choices, int32_t tag);

// "<name> takes one of: a, b, c": the refusal of a tag that is not one of
// the choices (the words translated).
QString ZqChoicesSentence(const QString& rowName, std::span<const ZqChoice> choices);

// The tag of the chosen element a type-7 value carries; false for any other
// kind of value or a tag that is not an integer.
bool ZqChosenTag(const CZqVariant& value, int32_t& tag);
