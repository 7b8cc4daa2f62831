// Every tag value is checked against its group code's type, in records the
// platform models and in those it does not: a malformed value refuses the
// drawing naming its line (ASCII) or byte offset (binary); a real that is not
// finite loads with a warning naming its place and is written back as read,
// and strict reading refuses it.
#include "DxfDatabaseSupport.h"

#include <QRegularExpression>

using namespace dxfdb;

namespace {

QByteArray drawing(const QByteArray& entities, const QByteArray& objects = QByteArray()) {
  return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" + entities +
         "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n" + objects + "  0\nENDSEC\n  0\nEOF\n";
}

// An ARC (not modelled: it keeps its common properties only) with the
// radius given, and a modelled LINE.
QByteArray arc(const QByteArray& radius, const QByteArray& extra = QByteArray()) {
  return "  0\nARC\n  5\n2B\n100\nAcDbEntity\n  8\n0\n" + extra +
         "100\nAcDbCircle\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 40\n" + radius +
         "\n100\nAcDbArc\n 50\n0.0\n 51\n90.0\n";
}
const QByteArray kLine = "  0\nLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
                         " 11\n3.0\n 21\n4.0\n 31\n0.0\n";
QByteArray dictionary(const QByteArray& tags) {
  return "  0\nDICTIONARY\n  5\nC\n330\n0\n100\nAcDbDictionary\n" + tags;
}

// The 1-based line of the value line that follows `marker` (a "code\n"
// group code line, unique in the text).
int valueLine(const QByteArray& text, const QByteArray& marker) {
  const qsizetype at = text.indexOf(marker);
  return at < 0 ? -1 : int(text.left(at + marker.size()).count('\n')) + 1;
}

struct BadValue {
  const char* name;
  QByteArray bytes;
  QByteArray marker;  // the group code line followed by the bad value
  const char* what;
};

void PrintTo(const BadValue& c, std::ostream* os) { *os << c.name; }

class DxfValueCheckRefused : public ::testing::TestWithParam<BadValue> {};

TEST_P(DxfValueCheckRefused, NamesTheLineAndWhatIsWrong) {
  odDbInitialize();
  const BadValue& c = GetParam();
  QString error;
  QStringList warnings;
  EXPECT_FALSE(OdDxf::readDrawing(c.bytes, error, &warnings));
  EXPECT_TRUE(error.contains(QLatin1String(c.what))) << error.toStdString();
  const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("^line (\\d+): ")).match(error);
  ASSERT_TRUE(m.hasMatch()) << error.toStdString();
  EXPECT_EQ(m.captured(1).toInt(), valueLine(c.bytes, c.marker)) << error.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Values, DxfValueCheckRefused,
    ::testing::Values(
        BadValue{"RealOfAnArc", drawing(arc("bad-float")), " 40\nbad", "ARC (handle 2B): group code 40 value 'bad-float' is not a number"},
        BadValue{"RealWithTrailingText", drawing(arc("1.5mm")), " 40\n1.5mm", "group code 40 value '1.5mm' is not a number"},
        BadValue{"RealOverflowing", drawing(arc("1e999")), " 40\n", "group code 40 value '1e999' is out of the range of a real"},
        BadValue{"TwoSigns", drawing(arc("+-1.0")), " 40\n", "group code 40 value '+-1.0' is not a number"},
        BadValue{"EmptyReal", drawing(arc("")), " 40\n", "group code 40 value '' is not a number"},
        BadValue{"Int16TooLarge", drawing(arc("1.0", " 62\n99999999999\n")), " 62\n", "group code 62 value '99999999999' is out of the range of its type (-32768 to 32767)"},
        BadValue{"Int16JustTooLarge", drawing(kLine, dictionary("281\n     1\n 70\n32768\n")), " 70\n32768", "DICTIONARY (handle C): group code 70 value '32768' is out of the range"},
        BadValue{"Int32TooLarge", drawing(kLine, dictionary(" 90\n2147483648\n")), " 90\n", "group code 90 value '2147483648' is out of the range of its type (-2147483648 to 2147483647)"},
        BadValue{"Int64TooLarge", drawing(kLine, dictionary("160\n99999999999999999999\n")), "160\n", "group code 160 value '99999999999999999999' is out of the range"},
        BadValue{"FlagTooLarge", drawing(kLine, dictionary("290\n256\n")), "290\n", "group code 290 value '256' is out of the range of its type (0 to 255)"},
        BadValue{"IntegerWithFraction", drawing(kLine, dictionary("281\n1.5\n")), "281\n", "group code 281 value '1.5' is not an integer"},
        BadValue{"IntegerAsWord", drawing(arc("1.0", "370\nthin\n")), "370\n", "group code 370 value 'thin' is not an integer"},
        BadValue{"OwnerNotAHandle", drawing(arc("1.0"), dictionary("  3\nA\n350\nXYZ\n")), "350\n", "group code 350 value 'XYZ' is not a handle"},
        BadValue{"HandleTooLong", drawing(arc("1.0"), dictionary("  3\nA\n350\n1234567890ABCDEF0\n")), "350\n", "is not a handle"},
        BadValue{"OddHexData", drawing(kLine, dictionary("310\nABC\n")), "310\n", "group code 310 value 'ABC' is not hexadecimal data"},
        BadValue{"XdataReal", drawing(arc("1.0") + "1001\nAPP\n1040\n--1\n"), "1040\n", "group code 1040 value '--1' is not a number"},
        BadValue{"XdataInteger", drawing(arc("1.0") + "1001\nAPP\n1070\n70000\n"), "1070\n", "group code 1070 value '70000' is out of the range"},
        BadValue{"ModelledLineToo", drawing([] {
                   QByteArray l = kLine;
                   return l.replace(" 21\n4.0\n", " 21\n4,0\n");
                 }()), " 21\n", "LINE (handle 2A): group code 21 value '4,0' is not a number"}),
    [](const auto& info) { return std::string(info.param.name); });

// What real writers put in numeric groups and must keep loading: blanks,
// a plus sign, a whole real in an integer group, extreme but valid values,
// an empty (null) handle.
TEST(DxfValueCheck, LenientWhereRealFilesNeedIt) {
  odDbInitialize();
  const QByteArray bytes =
      drawing(arc(" +2.5 ", " 62\n     1\n370\n25.0\n"),
              dictionary("281\n     1\n 62\n  -32768\n 90\n-2147483648\n160\n-9223372036854775808\n290\n255\n330\n\n310\n0aFF\n"
                         " 70\n32767\n 40\n1e308\n 41\n-4.9e-324\n"));
  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join(QStringLiteral(" / ")).toStdString();
  EXPECT_EQ(save(db.get()), bytes);
}

struct NonFinite {
  const char* name;
  QByteArray value;
  const char* shown;
};

void PrintTo(const NonFinite& c, std::ostream* os) { *os << c.name; }

class DxfValueCheckNonFinite : public ::testing::TestWithParam<NonFinite> {};

// ASCII: a warning naming the line, the bytes written back as read; strict
// reading refuses with that warning.
TEST_P(DxfValueCheckNonFinite, WarnsWithTheLineAndStrictRefuses) {
  odDbInitialize();
  const NonFinite& c = GetParam();
  QByteArray line = kLine;
  line.replace(" 20\n2.0\n", " 20\n" + c.value + "\n");
  const QByteArray bytes = drawing(line + arc(c.value));
  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  const QString expected1 = QStringLiteral("line %1: LINE (handle 2A): group code 20 value '%2' is not a finite number")
                                .arg(valueLine(bytes, " 20\n" + c.value))
                                .arg(QLatin1String(c.shown));
  const QString expected2 = QStringLiteral("line %1: ARC (handle 2B): group code 40 value '%2' is not a finite number")
                                .arg(valueLine(bytes, " 40\n"))
                                .arg(QLatin1String(c.shown));
  // The arc cannot take the radius: it keeps its default, and says so.
  const QString expected3 = QStringLiteral("line %1: ARC (handle 2B): group code 40 value '%2' refused (eInvalidInput: radius must be positive); default kept")
                                .arg(valueLine(bytes, " 40\n"))
                                .arg(QLatin1String(c.shown));
  EXPECT_EQ(warnings, (QStringList{expected1, expected2, expected3}));
  EXPECT_EQ(save(db.get()), bytes);

  QString error;
  QStringList strictWarnings;
  EXPECT_FALSE(OdDxf::readDrawing(bytes, error, &strictWarnings, {.strict = true}));
  EXPECT_EQ(error, expected1);
}

INSTANTIATE_TEST_SUITE_P(Values, DxfValueCheckNonFinite,
                         ::testing::Values(NonFinite{"Nan", "nan", "nan"}, NonFinite{"NegativeNan", "-nan", "-nan"},
                                           NonFinite{"Inf", "inf", "inf"}, NonFinite{"MinusInfinity", "-infinity", "-infinity"}),
                         [](const auto& info) { return std::string(info.param.name); });

// Binary DXF: the place is a byte offset, the value kept bit for bit.
TEST(DxfValueCheck, NonFiniteInBinaryNamesTheByteOffset) {
  odDbInitialize();
  QByteArray line = kLine;
  line.replace(" 20\n2.0\n", " 20\nnan\n");
  OdDxf::File f;
  QString error;
  ASSERT_TRUE(OdDxf::File::read(drawing(line), f, error)) << error.toStdString();
  const QByteArray binary = f.write(OdDxf::File::Form::Binary);
  QStringList warnings;
  OdDbDatabasePtr db = load(binary, &warnings);
  ASSERT_TRUE(db);
  ASSERT_EQ(warnings.size(), 1);
  const QRegularExpressionMatch m = QRegularExpression(QStringLiteral("^byte offset (\\d+): LINE \\(handle 2A\\): group code 20 value"))
                                        .match(warnings[0]);
  ASSERT_TRUE(m.hasMatch()) << warnings[0].toStdString();
  // The offset is that of the tag: its group code bytes 20 0, then 8 bytes of a NaN.
  const int at = m.captured(1).toInt();
  ASSERT_LT(at + 10, binary.size());
  EXPECT_EQ(binary.mid(at, 2), QByteArray("\x14\x00", 2));
  double v = 0;
  std::memcpy(&v, binary.constData() + at + 2, 8);
  EXPECT_TRUE(std::isnan(v));
  EXPECT_EQ(save(db.get()), binary);
  EXPECT_FALSE(OdDxf::readDrawing(binary, error, nullptr, {.strict = true}));
  EXPECT_EQ(error, warnings[0]);
}

// Strict reading refuses the repairs it would otherwise make and report.
TEST(DxfValueCheck, StrictRefusesRepairs) {
  odDbInitialize();
  QByteArray noEof = drawing(kLine);
  noEof.chop(QByteArray("  0\nEOF\n").size());
  QStringList warnings;
  ASSERT_TRUE(load(noEof, &warnings));
  ASSERT_FALSE(warnings.isEmpty());
  QString error;
  EXPECT_FALSE(OdDxf::readDrawing(noEof, error, nullptr, {.strict = true}));
  EXPECT_EQ(error, warnings.front());
  // A drawing without anything to warn about reads the same strictly.
  EXPECT_TRUE(OdDxf::readDrawing(drawing(kLine), error, nullptr, {.strict = true})) << error.toStdString();
}

}  // namespace
