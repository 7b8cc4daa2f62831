#include "OdCmColor.h"
#include <QStringList>
#include <cmath>

namespace {
const char* const kNamedColors[] = {"red", "yellow", "green", "cyan", "blue", "magenta", "white"};
}

OdCmColor OdCmColor::fromIndex(int aci) {
  OdCmColor c;
  c.setColorIndex(aci);
  return c;
}

OdCmColor OdCmColor::fromRGB(uint8_t r, uint8_t g, uint8_t b) {
  OdCmColor c;
  c.setRGB(r, g, b);
  return c;
}

int OdCmColor::colorIndex() const {
  switch (m_method) {
    case OdCmEntityColor::kByLayer: return 256;
    case OdCmEntityColor::kByBlock: return 0;
    case OdCmEntityColor::kByACI: return m_index;
    case OdCmEntityColor::kForeground: return 7;
    default: return 256;
  }
}

void OdCmColor::setColorIndex(int aci) {
  if (aci == 256) m_method = OdCmEntityColor::kByLayer;
  else if (aci == 0) m_method = OdCmEntityColor::kByBlock;
  else if (aci >= 1 && aci <= 255) {
    m_method = OdCmEntityColor::kByACI;
    m_index = uint8_t(aci);
    paletteRGB(aci, m_r, m_g, m_b);
  }
}

void OdCmColor::setRGB(uint8_t r, uint8_t g, uint8_t b) {
  m_method = OdCmEntityColor::kByColor;
  m_r = r; m_g = g; m_b = b;
}

OdString OdCmColor::description() const {
  switch (m_method) {
    case OdCmEntityColor::kByLayer: return "ByLayer";
    case OdCmEntityColor::kByBlock: return "ByBlock";
    case OdCmEntityColor::kByColor: return OdString(QString("%1,%2,%3").arg(m_r).arg(m_g).arg(m_b));
    case OdCmEntityColor::kByACI:
      if (m_index >= 1 && m_index <= 7) return kNamedColors[m_index - 1];
      return OdString(QString::number(m_index));
    default: return "ByLayer";
  }
}

void OdCmColor::paletteRGB(int aci, uint8_t& r, uint8_t& g, uint8_t& b) {
  // The 256-colour palette: 1..9 fixed, 10..249 24 hues x 10 shades, 250..255 greys.
  static const uint8_t fixed[10][3] = {{0, 0, 0},     {255, 0, 0},   {255, 255, 0}, {0, 255, 0},   {0, 255, 255},
                                       {0, 0, 255},   {255, 0, 255}, {255, 255, 255}, {128, 128, 128}, {192, 192, 192}};
  if (aci >= 0 && aci <= 9) {
    r = fixed[aci][0]; g = fixed[aci][1]; b = fixed[aci][2];
    return;
  }
  if (aci >= 250 && aci <= 255) {
    static const uint8_t greys[6] = {51, 91, 132, 173, 214, 255};
    r = g = b = greys[aci - 250];
    return;
  }
  if (aci < 10 || aci > 249) { r = g = b = 0; return; }
  const int hueIndex = (aci - 10) / 10;    // 0..23, 15 degrees apart
  const int shade = (aci - 10) % 10;       // even: full saturation, odd: pale
  const double value[5] = {1.0, 0.8, 0.6, 0.5, 0.3};
  const double v = value[shade / 2];
  const double s = (shade % 2) ? 0.5 : 1.0;
  const double h = hueIndex * 15.0 / 60.0;
  const double c = v * s, x = c * (1 - std::fabs(std::fmod(h, 2.0) - 1)), m = v - c;
  double rr = 0, gg = 0, bb = 0;
  switch (int(h)) {
    case 0: rr = c; gg = x; break;
    case 1: rr = x; gg = c; break;
    case 2: gg = c; bb = x; break;
    case 3: gg = x; bb = c; break;
    case 4: rr = x; bb = c; break;
    default: rr = c; bb = x; break;
  }
  r = uint8_t(std::lround((rr + m) * 255));
  g = uint8_t(std::lround((gg + m) * 255));
  b = uint8_t(std::lround((bb + m) * 255));
}

bool OdCmColor::parse(const OdString& text, OdCmColor& out) {
  const QString t = text.qstring().trimmed();
  if (t.compare("ByLayer", Qt::CaseInsensitive) == 0) { out = byLayer(); return true; }
  if (t.compare("ByBlock", Qt::CaseInsensitive) == 0) { out = byBlock(); return true; }
  for (int i = 0; i < 7; ++i)
    if (t.compare(kNamedColors[i], Qt::CaseInsensitive) == 0) { out = fromIndex(i + 1); return true; }
  bool ok = false;
  const int idx = t.toInt(&ok);
  if (ok) {
    if (idx < 0 || idx > 256) return false;
    out = fromIndex(idx);
    return true;
  }
  const QStringList parts = t.split(',');
  if (parts.size() == 3) {
    int v[3];
    for (int i = 0; i < 3; ++i) {
      v[i] = parts[i].trimmed().toInt(&ok);
      if (!ok || v[i] < 0 || v[i] > 255) return false;
    }
    out = fromRGB(uint8_t(v[0]), uint8_t(v[1]), uint8_t(v[2]));
    return true;
  }
  return false;
}

bool operator==(const OdCmColor& a, const OdCmColor& b) {
  if (a.m_method != b.m_method) return false;
  if (a.m_method == OdCmEntityColor::kByACI) return a.m_index == b.m_index;
  if (a.m_method == OdCmEntityColor::kByColor) return a.m_r == b.m_r && a.m_g == b.m_g && a.m_b == b.m_b;
  return true;
}

OdCmTransparency OdCmTransparency::fromPercent(int percent) {
  OdCmTransparency t(kByAlpha);
  percent = std::clamp(percent, 0, 90);
  t.m_alpha = uint8_t(std::lround(255.0 * (100 - percent) / 100.0));
  return t;
}

OdCmTransparency OdCmTransparency::fromPacked(int32_t packed) {
  const uint32_t u = uint32_t(packed);
  const uint32_t flags = u >> 24;
  if (flags & 0x02) {  // alpha given in the low byte
    OdCmTransparency t(kByAlpha);
    t.m_alpha = uint8_t(u & 0xFF);
    return t;
  }
  if (flags & 0x01) return OdCmTransparency(kByBlock);
  return OdCmTransparency(kByLayer);
}

int32_t OdCmTransparency::packed() const {
  switch (m_method) {
    case kByAlpha: return int32_t(0x02000000u | m_alpha);
    case kByBlock: return int32_t(0x01000000u);
    default: return 0;
  }
}

int OdCmTransparency::percent() const {
  if (m_method != kByAlpha) return 0;
  return int(std::lround(100.0 - m_alpha * 100.0 / 255.0));
}

OdString OdCmTransparency::description() const {
  switch (m_method) {
    case kByLayer: return "ByLayer";
    case kByBlock: return "ByBlock";
    default: return OdString(QString::number(percent()));
  }
}

namespace OdDb {
bool isValidLineWeight(int lw) {
  static const int valid[] = {0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211, -1, -2, -3};
  return std::find(std::begin(valid), std::end(valid), lw) != std::end(valid);
}

OdString lineWeightName(int lw) {
  switch (lw) {
    case kLnWtByLayer: return "ByLayer";
    case kLnWtByBlock: return "ByBlock";
    case kLnWtByLwDefault: return "Default";
    default: return OdString(QString::number(lw / 100.0, 'f', 2) + " mm");
  }
}
}  // namespace OdDb
