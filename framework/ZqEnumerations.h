#pragma once
// Enumeration rows: the choices as a collection whose elements carry the
// translated word ("property_values") and the stored number, and the reading
// of the element a setter receives.
#include "CZqVariant.h"
#include <QCoreApplication>
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

// The tag of the chosen element a type-7 value carries; false for any other
// kind of value or a tag that is not an integer.
bool ZqChosenTag(const CZqVariant& value, int32_t& tag);
