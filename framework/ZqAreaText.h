#pragma once
// The "Area" rows of closed curves: the value they show and the text they take.
#include "ZqCallbacks.h"

// The index value by which a caller asks an "Area" row for the bare number.
constexpr double kZqBareAreaRequest = 1111.0;

// The value of an "Area" row for an area: the bare area as a double when
// index is the double kZqBareAreaRequest; otherwise text. In engineering and
// architectural units (3 and 4) the text is imperialPattern, the provider's
// translation of "%1 sq. in. (%2 sq. ft.)", with the area and the area / 144
// formatted as decimals; in any other units the area formatted in the
// drawing's current units.
CZqVariant ZqAreaValue(const OdDbObject* object, double area, const CZqVariant& index, const QString& imperialPattern);

// Reads an area typed into an "Area" row. In engineering and architectural
// units the text must contain "sq. in." and only the part before it is
// read; in other units the whole text. False when there is no value to read.
bool ZqParseAreaText(const OdDbObject* object, const QString& text, double& area);
