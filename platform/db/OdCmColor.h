#pragma once
// Entity colours (by layer, by block, an index of the 256-colour palette, or
// a true colour) and transparency.
#include "DbExport.h"
#include "OdString.h"
#include <cstdint>

namespace OdCmEntityColor {
enum ColorMethod : uint8_t { kByLayer = 0xC0, kByBlock = 0xC1, kByColor = 0xC2, kByACI = 0xC3, kForeground = 0xC5, kNone = 0xC8 };
}

class DB_API OdCmColor {
 public:
  OdCmColor() = default;
  explicit OdCmColor(OdCmEntityColor::ColorMethod m) : m_method(m) {}
  static OdCmColor byLayer() { return OdCmColor(OdCmEntityColor::kByLayer); }
  static OdCmColor byBlock() { return OdCmColor(OdCmEntityColor::kByBlock); }
  static OdCmColor fromIndex(int aci);
  static OdCmColor fromRGB(uint8_t r, uint8_t g, uint8_t b);

  OdCmEntityColor::ColorMethod colorMethod() const { return m_method; }
  bool isByLayer() const { return m_method == OdCmEntityColor::kByLayer; }
  bool isByBlock() const { return m_method == OdCmEntityColor::kByBlock; }
  bool isByACI() const { return m_method == OdCmEntityColor::kByACI; }
  bool isByColor() const { return m_method == OdCmEntityColor::kByColor; }
  // Palette index: 0 by block, 256 by layer, 1..255 palette colours.
  int colorIndex() const;
  void setColorIndex(int aci);
  void setRGB(uint8_t r, uint8_t g, uint8_t b);
  void setByLayer() { m_method = OdCmEntityColor::kByLayer; }
  void setByBlock() { m_method = OdCmEntityColor::kByBlock; }
  uint8_t red() const { return m_r; }
  uint8_t green() const { return m_g; }
  uint8_t blue() const { return m_b; }
  // The colour's name as shown to users: "ByLayer", "ByBlock", "red" ...
  // "white" for 1..7, the index for other palette colours, "r,g,b" for true colours.
  OdString description() const;
  // RGB of a palette index (the standard 256-colour palette).
  static void paletteRGB(int aci, uint8_t& r, uint8_t& g, uint8_t& b);
  // Parses what a user types: an index 0..256, ByLayer, ByBlock, one of the
  // seven named colours, or "r,g,b". Returns false for anything else.
  static bool parse(const OdString& text, OdCmColor& out);

  friend bool operator==(const OdCmColor& a, const OdCmColor& b);
  friend bool operator!=(const OdCmColor& a, const OdCmColor& b) { return !(a == b); }

 private:
  OdCmEntityColor::ColorMethod m_method = OdCmEntityColor::kByLayer;
  uint8_t m_index = 7;
  uint8_t m_r = 0, m_g = 0, m_b = 0;
};

class DB_API OdCmTransparency {
 public:
  enum TransparencyMethod { kByLayer = 0, kByBlock = 1, kByAlpha = 2, kErrorValue = 3 };
  OdCmTransparency() = default;
  explicit OdCmTransparency(TransparencyMethod m) : m_method(m) {}
  // From a percentage 0..90 as users give it (0 opaque).
  static OdCmTransparency fromPercent(int percent);
  // From the packed 32-bit value stored in drawing files (group 440).
  static OdCmTransparency fromPacked(int32_t packed);
  int32_t packed() const;
  TransparencyMethod method() const { return m_method; }
  bool isByLayer() const { return m_method == kByLayer; }
  bool isByBlock() const { return m_method == kByBlock; }
  uint8_t alpha() const { return m_alpha; }
  int percent() const;  // 0..90 for kByAlpha
  // "ByLayer", "ByBlock" or the percentage as text.
  OdString description() const;
  friend bool operator==(const OdCmTransparency& a, const OdCmTransparency& b) {
    return a.m_method == b.m_method && (a.m_method != kByAlpha || a.m_alpha == b.m_alpha);
  }

 private:
  TransparencyMethod m_method = kByLayer;
  uint8_t m_alpha = 255;
};

namespace OdDb {
enum LineWeight : int {
  kLnWt000 = 0, kLnWt005 = 5, kLnWt009 = 9, kLnWt013 = 13, kLnWt015 = 15, kLnWt018 = 18,
  kLnWt020 = 20, kLnWt025 = 25, kLnWt030 = 30, kLnWt035 = 35, kLnWt040 = 40, kLnWt050 = 50,
  kLnWt053 = 53, kLnWt060 = 60, kLnWt070 = 70, kLnWt080 = 80, kLnWt090 = 90, kLnWt100 = 100,
  kLnWt106 = 106, kLnWt120 = 120, kLnWt140 = 140, kLnWt158 = 158, kLnWt200 = 200, kLnWt211 = 211,
  kLnWtByLayer = -1, kLnWtByBlock = -2, kLnWtByLwDefault = -3
};
// True for the 24 standard weights and the three special values.
DB_API bool isValidLineWeight(int lw);
// "ByLayer", "ByBlock", "Default" or "0.25 mm".
DB_API OdString lineWeightName(int lw);
}  // namespace OdDb
