// Fuzz target: the value parser of distances, angles, directions and areas,
// in every units mode. The first bytes choose the settings; the rest is the
// text typed.
//
// What must hold: a value parsed is finite; formatting it never fails; and a
// value of sensible size formatted at full precision in a mode reads back in
// that mode.
#include "OdDbUnitsFormatter.h"

#include <QString>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

[[noreturn]] void fail(const char* what, const QString& text) {
  std::fprintf(stderr, "reliability check failed: %s '%s'\n", what, text.toUtf8().constData());
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size < 3) return 0;
  OdDbUnitsSettings s;
  s.lunits = 1 + data[0] % 5;
  s.aunits = data[0] / 5 % 5;
  s.luprec = data[1] % 9;
  s.auprec = data[1] / 9 % 9;
  s.unitmode = data[2] & 1;
  s.dimzin = (data[2] >> 1) & 3;
  s.angdirClockwise = (data[2] >> 3) & 1;
  s.angbase = ((data[2] >> 4) & 3) * 0.5;
  OdDbUnitsFormatter f(s);
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data + 3), qsizetype(size - 3));
  const OdString typed(text);

  double v = 0.0;
  if (f.parseDistance(typed, v)) {
    if (!std::isfinite(v)) fail("distance not finite", text);
    // At full precision a decimal or scientific length reads back as itself.
    if ((s.lunits == 1 || s.lunits == 2) && std::fabs(v) < 1e12) {
      double back = 0.0;
      const OdString shown = f.formatDistance(v, s.lunits, 8);
      if (!f.parseDistance(shown, back)) fail("a formatted distance does not read back:", shown.qstring());
    }
    (void)f.formatDistance(v);
    (void)f.formatArea(v);
  }
  if (f.parseAngle(typed, v)) {
    if (!std::isfinite(v)) fail("angle not finite", text);
    const OdString shown = f.formatAngle(v);
    double back = 0.0;
    if (std::fabs(v) < 1e6 && !f.parseAngle(shown, back)) fail("a formatted angle does not read back:", shown.qstring());
  }
  if (f.parseDirection(typed, v)) {
    if (!std::isfinite(v) || v < 0.0 || v >= 2 * M_PI + 1e-12) fail("direction outside [0, 2pi)", text);
    const OdString shown = f.formatDirection(v);
    double back = 0.0;
    if (!f.parseDirection(shown, back)) fail("a formatted direction does not read back:", shown.qstring());
  }
  if (f.parseArea(typed, v)) {
    if (!std::isfinite(v)) fail("area not finite", text);
    (void)f.formatArea(v);
  }
  return 0;
}
