#pragma once
// The rows every annotative kind of object shares: "Annotative" (Yes/No),
// "Annotative Scale" (the object's current annotation scale) and the list
// of the scales it is drawn at. Texts, dimensions and leaders add them in
// their dynamic step.
#include "ZqRows.h"

// Whether the object is annotative (and, through `orientationFollowsSheet`,
// whether its orientation follows the sheet).
bool ZqIsAnnotative(const OdDbObject* object, bool* orientationFollowsSheet = nullptr);

// "Annotative": Yes or No. The setter turns the object annotative or not;
// a text whose justification is Aligned or Fit cannot be annotative (its
// size follows its two points) and is refused with a sentence.
CZqVariant ZqGetAnnotative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
int ZqSetAnnotative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&);
// "Annotative Scale": the name of the object's current scale.
CZqVariant ZqGetAnnotationScale(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
// The scales the object is drawn at, as one line ("1:1, 1:50").
CZqVariant ZqGetAnnotationScales(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&);
// The grouped action behind "Edit annotation scales": the scales of the
// objects, each named once, in the drawing's order.
CZqVariant ZqAnnotationScalesAction(const OdArray<OdDbObjectId>& objects, const CZqPropertyDescription&,
                                    const CZqVariant& value, const CZqVariant& index);

// "Annotative Scale" is edited through its grouped action only while the
// object is annotative.
bool ZqIsAnnotationScaleReadOnly(const OdDbObject* object, const CZqPropertyDescription& description);

// Adds "Annotative" in `category` and, for an annotative object, "Annotative
// Scale" (with the visibility bit 8 flipped, as the palette expects of it),
// whose grouped action is described as `owner`'s "Edit annotation scales".
void ZqAddAnnotativeRows(const OdDbObject* object, CZqPropertiesContainer* container, const char* category,
                         const char* owner);
