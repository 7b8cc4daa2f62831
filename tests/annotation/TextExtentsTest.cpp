// Text measured with real fonts: the advance of a string in DejaVu Sans
// (the installed fallback) against the font's own tables, read here
// without FreeType; text codes measured as what they show; and the Fit
// switch putting the second point at the measured end of the text.
#include "TextTestSupport.h"
#include "DbFontMetrics.h"
#include "DbText.h"

#include <QFile>
#include <QtEndian>

namespace {

const QString kDejaVu = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");

// The advance widths and the capital height of a TrueType font, from its
// head, hhea, hmtx, cmap (format 4), loca and glyf tables.
class TrueTypeTables {
 public:
  explicit TrueTypeTables(const QString& path) {
    QFile f(path);
    if (f.open(QIODevice::ReadOnly)) m_data = f.readAll();
  }
  bool ok() const { return !m_data.isEmpty(); }
  // Advance of a character in units of the height of "H".
  double advance(char16_t c) const { return advanceUnits(glyph(c)) / capHeight(); }

 private:
  quint16 u16(qsizetype at) const { return qFromBigEndian<quint16>(m_data.constData() + at); }
  qint16 s16(qsizetype at) const { return qint16(u16(at)); }
  quint32 u32(qsizetype at) const { return qFromBigEndian<quint32>(m_data.constData() + at); }
  qsizetype table(const char* tag) const {
    const int count = u16(4);
    for (int i = 0; i < count; ++i)
      if (m_data.mid(12 + 16 * i, 4) == tag) return qsizetype(u32(12 + 16 * i + 8));
    return -1;
  }
  int glyph(char16_t c) const {
    const qsizetype cmap = table("cmap");
    for (int i = 0; i < u16(cmap + 2); ++i) {
      const qsizetype sub = cmap + u32(cmap + 4 + 8 * i + 4);
      if (u16(cmap + 4 + 8 * i) != 3 || u16(sub) != 4) continue;
      const int segs = u16(sub + 6) / 2;
      const qsizetype ends = sub + 14, starts = ends + 2 * segs + 2, deltas = starts + 2 * segs, offsets = deltas + 2 * segs;
      for (int s = 0; s < segs; ++s) {
        if (c > u16(ends + 2 * s) || c < u16(starts + 2 * s)) continue;
        const quint16 ro = u16(offsets + 2 * s);
        if (!ro) return quint16(c + s16(deltas + 2 * s));
        const quint16 g = u16(offsets + 2 * s + ro + 2 * (c - u16(starts + 2 * s)));
        return g ? quint16(g + s16(deltas + 2 * s)) : 0;
      }
    }
    return 0;
  }
  double advanceUnits(int g) const {
    const int metrics = u16(table("hhea") + 34);
    return u16(table("hmtx") + 4 * qMin(g, metrics - 1));
  }
  double capHeight() const {
    const qsizetype head = table("head"), loca = table("loca");
    const int g = glyph(u'H');
    const qsizetype at = s16(head + 50) == 0 ? 2 * qsizetype(u16(loca + 2 * g)) : qsizetype(u32(loca + 4 * g));
    return s16(table("glyf") + at + 8);  // yMax
  }
  QByteArray m_data;
};

TEST(TextExtents, AdvancesAgreeWithTheFontsOwnTables) {
  const TrueTypeTables tables(kDejaVu);
  ASSERT_TRUE(tables.ok());
  // Characters without kerning between them in this font.
  for (const QString& text : {QStringLiteral("H"), QStringLiteral("i"), QStringLiteral("W"), QStringLiteral("HIH"),
                             QStringLiteral("1234"), QStringLiteral("\u00B0")}) {
    double expected = 0;
    for (const QChar c : text) expected += tables.advance(c.unicode());
    EXPECT_NEAR(OdDbFontMetrics::advance(nullptr, OdString(text)), expected, 1e-9) << text.toStdString();
  }
}

TEST(TextExtents, TextCodesAreMeasuredAsWhatTheyShow) {
  EXPECT_EQ(OdDbFontMetrics::shownText(QStringLiteral("90%%d %%p1 %%c5 50%%% %%uunder%%u")),
            QStringLiteral("90\u00B0 \u00B11 \u23005 50% under"));
  EXPECT_DOUBLE_EQ(OdDbFontMetrics::advance(nullptr, OdString("%%d")), OdDbFontMetrics::advance(nullptr, OdString("\u00B0")));
  EXPECT_FALSE(OdDbFontMetrics::fontFileFor(nullptr).isEmpty());
}

class TextExtentsDrawing : public ZqDrawingTest {};

// Switching a text to Fit puts the second point at the measured end of the
// string along the base line (rotated, and twice as wide).
TEST_F(TextExtentsDrawing, FitPutsTheSecondPointAtTheMeasuredAdvance) {
  OdDbTextPtr t = OdDbText::createObject();
  t->setTextString(OdString("Width"));
  t->setHeight(2.0);
  t->setWidthFactor(2.0);
  t->setRotation(OdaPI / 6);
  t->setPosition(OdGePoint3d(1, 2, 0));
  const OdDbObjectId id = addToModelSpace(t.get());
  t.release();
  const TrueTypeTables tables(kDejaVu);
  double advance = 0;
  for (const QChar c : QStringLiteral("Width")) advance += tables.advance(c.unicode());
  const double length = advance * 2.0 * 2.0;
  EXPECT_EQ(set(id, "Text", "Justify", zqChoose(5)), kZqSetApplied);
  OdDbTextPtr fit = openAs<OdDbText>(id);
  EXPECT_EQ(fit->horizontalMode(), OdDb::kTextFit);
  // Kerning may move the end by a little; a nominal width would be far off.
  EXPECT_NEAR(fit->alignmentPoint().x, 1 + length * std::cos(OdaPI / 6), 0.05 * length);
  EXPECT_NEAR(fit->alignmentPoint().y, 2 + length * std::sin(OdaPI / 6), 0.05 * length);
}

}  // namespace
