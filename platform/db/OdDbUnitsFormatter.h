#pragma once
// Conversion between the drawing's real values (lengths in drawing units,
// areas, angles in radians) and the text a CAD user reads and types, driven by
// the drawing's unit header variables.
#include "DbExport.h"
#include "OdString.h"

// The header variables that drive formatting and parsing.
struct OdDbUnitsSettings {
  int lunits = 2;  // $LUNITS 1 scientific, 2 decimal, 3 engineering, 4 architectural, 5 fractional
  int luprec = 4;  // $LUPREC 0..8 decimal places (architectural/fractional: denominator 2^luprec)
  int aunits = 0;  // $AUNITS 0 decimal degrees, 1 deg/min/sec, 2 grads, 3 radians, 4 surveyor's units
  int auprec = 0;  // $AUPREC 0..8
  double angbase = 0.0;          // $ANGBASE, radians; used for directions only
  bool angdirClockwise = false;  // $ANGDIR; used for directions only
  int unitmode = 0;  // $UNITMODE 0: 1'-3 1/2"   1: as typed, 1'3-1/2", N45d30'E
  int dimzin = 0;    // feet/inch zero suppression, DIMZIN values 0..3 (see formatDistance)
};

// Formats and parses lengths, areas and angles the way a CAD user expects.
//
// Mode arguments: -1 (or any negative value) means the drawing's current
// LUNITS/AUNITS; an unknown mode falls back to decimal (lengths) or decimal
// degrees (angles). Precision arguments: negative means the current
// LUPREC/AUPREC; values outside 0..8 are clamped.
//
// Formatting never fails: NaN and infinities come out as "nan", "inf" and
// "-inf". Parsing returns false and leaves the output untouched when the text
// is not a complete, finite value.
class DB_API OdDbUnitsFormatter {
 public:
  explicit OdDbUnitsFormatter(const OdDbUnitsSettings& s = {});

  const OdDbUnitsSettings& settings() const;
  void setSettings(const OdDbUnitsSettings& s);

  // Lengths (drawing units; inches in engineering and architectural modes):
  //   1 "1.2500E+01"   2 "12.5000"   3 "1'-0.5000\""   4 "1'-0 1/2\""   5 "12 1/2"
  // Feet and inches carry: 23.99 at 1/16" shows as 2'-0". Zero feet and zero
  // inches are shown ("0'-0 1/2\"", "1'-0\"") unless dimzin is 2 (drop zero
  // inches: "1'") or 3 (drop zero feet: "1/2\"", "6\"").
  OdString formatDistance(double value, int lunits = -1, int prec = -1) const;

  // Areas are plain numbers: scientific, decimal and fractional as for
  // lengths; in engineering and architectural modes the square inches are
  // shown as a decimal number with `prec` places.
  OdString formatArea(double value, int lunits = -1, int prec = -1) const;

  // A plain angle value, keeping its sign: "45", "45.50", "45d30'", "50g",
  // "0.7854r". Surveyor's units show the direction the angle makes with the
  // X axis as a bearing ("N 45d0' E"), so the value is taken modulo 2*pi.
  OdString formatAngle(double radians, int aunits = -1, int prec = -1) const;

  // A direction (absolute angle from the X axis, counter-clockwise) shown
  // relative to ANGBASE, measured in the ANGDIR sense, within [0, 360).
  // Surveyor's bearings name their own reference and sense, so they ignore
  // ANGBASE and ANGDIR.
  OdString formatDirection(double radians, int aunits = -1, int prec = -1) const;

  // Accepts numbers ("12.5", ".5", "-1.5e3"), fractions ("3 1/2", "3-1/2",
  // "1/2") and, in engineering and architectural modes only, feet and inches
  // ("12'6\"", "12'-6 1/2\"", "1'", "6\"", "12'6.5\"").
  bool parseDistance(const OdString& text, double& value, int lunits = -1) const;

  // Accepts a bare number in the current angular unit (degrees for decimal,
  // DMS and surveyor's modes), "45d30'15\"", "45°30'", "50g", "0.785r" and
  // bearings ("N45d30'E", "S 45 W", "N"). A bearing yields its direction in
  // [0, 2*pi); other angles keep their sign.
  bool parseAngle(const OdString& text, double& radians, int aunits = -1) const;

  // As parseAngle, then turns an ANGBASE/ANGDIR relative angle into an
  // absolute direction in [0, 2*pi). Bearings are already absolute.
  bool parseDirection(const OdString& text, double& radians, int aunits = -1) const;

  // A plain real: any number or fraction form, never feet and inches.
  bool parseArea(const OdString& text, double& value, int lunits = -1) const;

 private:
  int linearMode(int lunits) const;
  int angularMode(int aunits) const;
  int linearPrec(int prec) const;
  int angularPrec(int prec) const;

  OdDbUnitsSettings m_s;
};
