#pragma once
// Annotative objects: whether an object is annotative, the scales it is
// drawn at, the drawing's current annotation scale, and the edits that keep
// an annotative text's sizes consistent.
//
// In the drawing an object is annotative when its extended data of the
// application "AcadAnnotative" says so ("AnnotativeData", then in braces a
// version and the flag). An annotative text whose orientation follows the
// sheet carries extended data of "AcadAnnoPO" with the flag 1. The scales
// come from the drawing (OdDbDatabase::annotationScales).
#include "KernelExport.h"
#include "DbDatabase.h"
#include "DbEntity.h"

#include <QList>
#include <QString>

class ZQKERNEL_API CZqObjectAnnotationContext {
 public:
  explicit CZqObjectAnnotationContext(const OdDbObjectId& id);

  // Whether the object is annotative; `orientationFollowsSheet`, when given,
  // is set to whether its orientation follows the sheet (false when the
  // object is not annotative).
  static bool IsAnnotative(const OdDbObjectId& id, bool* orientationFollowsSheet = nullptr);
  static bool IsAnnotative(const OdDbObject* object, bool* orientationFollowsSheet = nullptr);
  // Makes the object annotative or not (it must be open for write). Turning
  // it on with `matchOrientation` also makes its orientation follow the
  // sheet; turning it off clears that. False with a sentence in `why` when
  // the object cannot be annotative (it is not open for write, or its
  // drawing is older than R2000 and keeps no such data).
  static bool SetAnnotative(const OdDbObjectId& id, bool on, bool matchOrientation, QString* why = nullptr);
  static bool SetAnnotative(OdDbObject* object, bool on, bool matchOrientation, QString* why = nullptr);
  // Whether the orientation of an annotative object follows the sheet.
  static bool SetMatchOrientation(OdDbObject* object, bool on, QString* why = nullptr);

  // The names of the scales the object is drawn at, as the drawing lists
  // them for it; an annotative object the drawing lists none for is drawn
  // at the current scale.
  QList<OdString> Scales() const;
  // The object's current scale: the drawing's current annotation scale when
  // the object has it (or lists none), otherwise the first it has. Empty
  // when there is none.
  OdString GetCurrentScale() const;
  // The drawing's scale of that name, or null.
  const OdDbAnnotationScale* GetByName(const OdString& name) const;
  // The factor of the current scale (paper units per drawing unit); 1.0
  // when the scale is not found or its factor is (nearly) zero.
  double CurrentFactor() const;

  // Sets the height of a text (single-line, multiline, attribute) to
  // `height`: refused (false) for a height within 1e-10 of zero or an
  // object that holds no text height.
  static bool UpdateAnnotativeTextHeight(OdDbEntity* entity, double height);
  // After a text's style changed: the text becomes annotative when the
  // style is and stops being annotative when the style is not, and takes
  // the style's fixed height when it has one.
  static void UpdateTextFromTextStyle(OdDbEntity* entity);

 private:
  OdDbObjectId m_id;
};
