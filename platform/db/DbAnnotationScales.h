#pragma once
// Annotation scales of a drawing. An annotative object (a text, dimension,
// leader...) is drawn at the scales it has been given; on a sheet it then
// keeps one size whatever the viewport's scale. A scale is a ratio of paper
// units to drawing units: "1:50" is 1 paper unit for 50 drawing units.
#include "OdString.h"

#include <QHash>
#include <QList>

struct OdDbAnnotationScale {
  OdString name;
  double paperUnits = 1.0;
  double drawingUnits = 1.0;
  quint64 handle = 0;  // the drawing's SCALE object (0 for a scale not read from a file)
  // Paper units per drawing unit: the factor that takes a size in the
  // drawing to its size on the sheet (0 for a malformed scale).
  double factor() const { return drawingUnits != 0.0 ? paperUnits / drawingUnits : 0.0; }
};

struct OdDbAnnotationScales {
  // The drawing's scale list, in the order the drawing keeps it.
  QList<OdDbAnnotationScale> scales;
  // The name of the current annotation scale (empty when the drawing names none).
  OdString current;
  // The scales each object has, by the object's handle, as scale names.
  QHash<quint64, QList<OdString>> objectScales;

  // The scale of that name (compared as the drawing compares names, without
  // regard to case), or null.
  const OdDbAnnotationScale* byName(const OdString& name) const {
    for (const OdDbAnnotationScale& s : scales)
      if (s.name.qstring().compare(name.qstring(), Qt::CaseInsensitive) == 0) return &s;
    return nullptr;
  }
};
