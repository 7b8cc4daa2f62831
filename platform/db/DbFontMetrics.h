#pragma once
// Text measured with the real font of its style. A style names a font file
// ("arial.ttf") and, for TrueType fonts, a typeface in its extended data;
// fontconfig finds the file on this system and FreeType measures the
// glyphs. Shape fonts (.shx) exist on no open system: their text is measured
// with DejaVu Sans, as is the text of a TrueType font that is not installed
// (with a warning on standard error, once per font).
//
// Sizes are in units of the text height: the height of a capital letter,
// as CAD text heights are given.
#include "DbExport.h"
#include "OdString.h"

#include <QString>

class OdDbTextStyleTableRecord;

class DB_API OdDbFontMetrics {
 public:
  // The advance of the string along its base line, kerning included, for a
  // text height of 1 and a width factor of 1. Text codes (%%d, %%p, %%c,
  // %%%, the %%u and %%o switches) are measured as what they show.
  static double advance(const OdDbTextStyleTableRecord* style, const OdString& text);
  // The font file that measures a style's text ("" when no font is found at
  // all, in which case every character advances by 1).
  static QString fontFileFor(const OdDbTextStyleTableRecord* style);
  // The text as it shows, with the text codes replaced.
  static QString shownText(const QString& text);
};
