#include "DbFontMetrics.h"

#include "DbSymbolTable.h"
#include "OdResBuf.h"

#include <QFileInfo>
#include <QHash>
#include <QMutex>

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <cstdio>
#include <map>
#include <memory>

namespace {

// One opened font: its face and the advances measured so far (in units of
// the capital height), cached per character.
struct Font {
  FT_Face face = nullptr;
  double perUnit = 1.0;  // 1 / capital height, in font units
  QHash<char32_t, double> advances;
  ~Font() {
    if (face) FT_Done_Face(face);
  }
};

class Fonts {
 public:
  static Fonts& instance() {
    static Fonts fonts;
    return fonts;
  }
  ~Fonts() {
    m_fonts.clear();
    if (m_library) FT_Done_FreeType(m_library);
    if (m_config) FcConfigDestroy(m_config);
  }

  QMutex mutex;

  // The file that measures a style's font, found once per name.
  QString fileFor(const QString& fileName, const QString& typeface) {
    const QString key = fileName.toLower() + QLatin1Char('|') + typeface.toLower();
    auto it = m_files.constFind(key);
    if (it != m_files.cend()) return *it;
    QString found;
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    const bool shape = suffix.isEmpty() || suffix == QLatin1String("shx");
    if (!shape) found = byFileName(QFileInfo(fileName).fileName());
    if (found.isEmpty() && !typeface.isEmpty()) found = byFamily(typeface, true);
    if (found.isEmpty()) {
      if (!shape) {
        std::fprintf(stderr, "warning: font %s is not installed; its text is measured with DejaVu Sans\n",
                     qPrintable(typeface.isEmpty() ? fileName : typeface));
      }
      found = byFamily(QStringLiteral("DejaVu Sans"), false);
    }
    m_files.insert(key, found);
    return found;
  }

  Font* font(const QString& file) {
    if (file.isEmpty()) return nullptr;
    auto it = m_fonts.find(file);
    if (it != m_fonts.end()) return it->second.get();
    auto font = std::make_unique<Font>();
    if (library() && FT_New_Face(m_library, QFile::encodeName(file).constData(), 0, &font->face) == 0) {
      // The capital height: the top of "H", or the font's ascender when
      // the font has no such glyph.
      double cap = 0;
      const FT_UInt h = FT_Get_Char_Index(font->face, 'H');
      if (h && FT_Load_Glyph(font->face, h, FT_LOAD_NO_SCALE) == 0) {
        FT_BBox box;
        FT_Outline_Get_CBox(&font->face->glyph->outline, &box);
        cap = double(box.yMax);
      }
      if (cap <= 0) cap = font->face->ascender > 0 ? font->face->ascender : font->face->units_per_EM;
      font->perUnit = cap > 0 ? 1.0 / cap : 1.0;
    } else {
      font->face = nullptr;
    }
    Font* raw = font->face ? font.get() : nullptr;
    m_fonts.emplace(file, std::move(font));
    return raw;
  }

 private:
  FT_Library library() {
    if (!m_library && FT_Init_FreeType(&m_library) != 0) m_library = nullptr;
    return m_library;
  }

  // A font file of that name (any case) among the system's fonts.
  QString byFileName(const QString& name) {
    if (m_byName.isEmpty()) {
      FcPattern* pattern = FcPatternCreate();
      FcObjectSet* set = FcObjectSetBuild(FC_FILE, nullptr);
      if (FcFontSet* list = FcFontList(config(), pattern, set)) {
        for (int i = 0; i < list->nfont; ++i) {
          FcChar8* file = nullptr;
          if (FcPatternGetString(list->fonts[i], FC_FILE, 0, &file) == FcResultMatch) {
            const QString path = QFile::decodeName(reinterpret_cast<const char*>(file));
            m_byName.insert(QFileInfo(path).fileName().toLower(), path);
          }
        }
        FcFontSetDestroy(list);
      }
      FcObjectSetDestroy(set);
      FcPatternDestroy(pattern);
      if (m_byName.isEmpty()) m_byName.insert(QString(), QString());  // looked, nothing there
    }
    return m_byName.value(name.toLower());
  }

  // The system's font for a family; with `exact`, only a font of that
  // family (fontconfig answers every question with some font).
  QString byFamily(const QString& family, bool exact) {
    QString result;
    FcPattern* pattern = FcNameParse(reinterpret_cast<const FcChar8*>(family.toUtf8().constData()));
    if (!pattern) return result;
    FcConfigSubstitute(config(), pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult r;
    if (FcPattern* match = FcFontMatch(config(), pattern, &r)) {
      FcChar8* file = nullptr;
      FcChar8* matched = nullptr;
      const bool sameFamily = FcPatternGetString(match, FC_FAMILY, 0, &matched) == FcResultMatch &&
                              QString::fromUtf8(reinterpret_cast<const char*>(matched)).compare(family, Qt::CaseInsensitive) == 0;
      if ((!exact || sameFamily) && FcPatternGetString(match, FC_FILE, 0, &file) == FcResultMatch)
        result = QFile::decodeName(reinterpret_cast<const char*>(file));
      FcPatternDestroy(match);
    }
    FcPatternDestroy(pattern);
    return result;
  }

  // A fontconfig configuration of our own, released with us (the library's
  // shared one lives until the process ends).
  FcConfig* config() {
    if (!m_config) m_config = FcInitLoadConfigAndFonts();
    return m_config;
  }

  FT_Library m_library = nullptr;
  FcConfig* m_config = nullptr;
  QHash<QString, QString> m_files, m_byName;
  std::map<QString, std::unique_ptr<Font>> m_fonts;
};

// The typeface a style names in its extended data (application ACAD, the
// first string), for TrueType fonts.
QString typefaceOf(const OdDbTextStyleTableRecord* style) {
  OdResBufPtr data = style->xData(OdString("ACAD"));
  for (const OdResBuf* rb = data ? data->next() : nullptr; rb; rb = rb->next())
    if (rb->restype() == OdResBuf::kDxfXdAsciiString) return rb->getString().qstring();
  return QString();
}

}  // namespace

QString OdDbFontMetrics::shownText(const QString& text) {
  QString out;
  out.reserve(text.size());
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('%') && i + 2 < text.size() && text[i + 1] == QLatin1Char('%')) {
      const QChar code = text[i + 2].toLower();
      if (code == QLatin1Char('d')) out += QChar(0x00B0);
      else if (code == QLatin1Char('p')) out += QChar(0x00B1);
      else if (code == QLatin1Char('c')) out += QChar(0x2300);
      else if (code == QLatin1Char('%')) out += QLatin1Char('%');
      else if (code == QLatin1Char('u') || code == QLatin1Char('o')) {}
      else {
        out += text.mid(i, 3);
      }
      i += 2;
      continue;
    }
    out += text[i];
  }
  return out;
}

QString OdDbFontMetrics::fontFileFor(const OdDbTextStyleTableRecord* style) {
  Fonts& fonts = Fonts::instance();
  QMutexLocker lock(&fonts.mutex);
  const QString fileName = style ? style->fileName().qstring() : QStringLiteral("txt");
  return fonts.fileFor(fileName, style ? typefaceOf(style) : QString());
}

double OdDbFontMetrics::advance(const OdDbTextStyleTableRecord* style, const OdString& text) {
  const QString shown = shownText(text.qstring());
  const QString file = fontFileFor(style);
  Fonts& fonts = Fonts::instance();
  QMutexLocker lock(&fonts.mutex);
  Font* font = fonts.font(file);
  const QList<uint> points = shown.toUcs4();
  if (!font) return double(points.size());
  double total = 0;
  FT_UInt previous = 0;
  for (const uint c : points) {
    const FT_UInt glyph = FT_Get_Char_Index(font->face, c);
    if (previous && glyph && FT_HAS_KERNING(font->face)) {
      FT_Vector kern;
      if (FT_Get_Kerning(font->face, previous, glyph, FT_KERNING_UNSCALED, &kern) == 0) total += kern.x * font->perUnit;
    }
    previous = glyph;
    auto it = font->advances.constFind(c);
    if (it == font->advances.cend()) {
      double a = 0;
      if (FT_Load_Glyph(font->face, glyph, FT_LOAD_NO_SCALE) == 0) a = font->face->glyph->advance.x * font->perUnit;
      it = font->advances.insert(c, a);
    }
    total += *it;
  }
  return total;
}
