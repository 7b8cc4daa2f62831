// Formatting and parsing of lengths, areas and angles in every unit mode.
#include "OdDbUnitsFormatter.h"
#include "OdGeTol.h"

#include <gtest/gtest.h>
#include <QLocale>
#include <cmath>
#include <limits>
#include <ostream>

namespace {

constexpr double kD = OdaPI / 180.0;  // one degree in radians
const double kNan = std::numeric_limits<double>::quiet_NaN();
const double kInf = std::numeric_limits<double>::infinity();

OdDbUnitsFormatter formatter(int unitmode = 0, int dimzin = 0, double angbase = 0, bool cw = false) {
  OdDbUnitsSettings s;
  s.unitmode = unitmode, s.dimzin = dimzin, s.angbase = angbase, s.angdirClockwise = cw;
  return OdDbUnitsFormatter(s);
}

// ---- formatting ------------------------------------------------------------

struct FormatCase { double value; int mode, prec, unitmode, dimzin; const char* expected; };
std::ostream& operator<<(std::ostream& os, const FormatCase& c) {
  return os << c.value << " mode " << c.mode << " prec " << c.prec << " um " << c.unitmode << " zin " << c.dimzin;
}

class DistanceFormat : public testing::TestWithParam<FormatCase> {};
TEST_P(DistanceFormat, MatchesCadDisplay) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(formatter(c.unitmode, c.dimzin).formatDistance(c.value, c.mode, c.prec).toStdString(), c.expected);
}
INSTANTIATE_TEST_SUITE_P(AllModes, DistanceFormat, testing::Values(
    FormatCase{12.5, 1, 4, 0, 0, "1.2500E+01"}, FormatCase{12.5, 1, 0, 0, 0, "1E+01"},
    FormatCase{-0.00123, 1, 2, 0, 0, "-1.23E-03"}, FormatCase{-0.0, 1, 2, 0, 0, "0.00E+00"},
    FormatCase{1e300, 1, 1, 0, 0, "1.0E+300"},
    FormatCase{12.5, 2, 4, 0, 0, "12.5000"}, FormatCase{12.6, 2, 0, 0, 0, "13"},
    FormatCase{-0.00004, 2, 4, 0, 0, "0.0000"}, FormatCase{-3.14159, 2, 2, 0, 0, "-3.14"},
    FormatCase{2.0 / 3, 2, 8, 0, 0, "0.66666667"}, FormatCase{1234567.891, 2, 1, 0, 0, "1234567.9"},
    FormatCase{12.5, 3, 4, 0, 0, "1'-0.5000\""}, FormatCase{0.5, 3, 4, 0, 0, "0'-0.5000\""},
    FormatCase{-15.5, 3, 1, 0, 0, "-1'-3.5\""}, FormatCase{23.99999, 3, 4, 0, 0, "2'-0.0000\""},
    FormatCase{23.99, 3, 2, 0, 0, "1'-11.99\""}, FormatCase{13, 3, 0, 0, 0, "1'-1\""},
    FormatCase{12.5, 3, 2, 1, 0, "1'0.50\""}, FormatCase{12, 3, 2, 0, 2, "1'"},
    FormatCase{6.25, 3, 2, 0, 3, "6.25\""}, FormatCase{-0.001, 3, 2, 0, 0, "0'-0.00\""},
    FormatCase{12.5, 4, 4, 0, 0, "1'-0 1/2\""}, FormatCase{0.5, 4, 4, 0, 0, "0'-0 1/2\""},
    FormatCase{12, 4, 4, 0, 0, "1'-0\""}, FormatCase{15.5, 4, 4, 1, 0, "1'3-1/2\""},
    FormatCase{-15.5, 4, 4, 0, 0, "-1'-3 1/2\""}, FormatCase{143.97, 4, 4, 0, 0, "12'-0\""},
    FormatCase{143.9375, 4, 4, 0, 0, "11'-11 15/16\""}, FormatCase{17.5, 4, 2, 0, 0, "1'-5 1/2\""},
    FormatCase{0.3, 4, 3, 0, 0, "0'-0 1/4\""}, FormatCase{100.0625, 4, 0, 0, 0, "8'-4\""},
    FormatCase{100.0625, 4, 4, 0, 0, "8'-4 1/16\""}, FormatCase{1.0 / 256, 4, 8, 0, 0, "0'-0 1/256\""},
    FormatCase{-0.01, 4, 4, 0, 0, "0'-0\""}, FormatCase{6, 4, 4, 0, 3, "6\""},
    FormatCase{0.5, 4, 4, 0, 3, "1/2\""}, FormatCase{6.5, 4, 4, 1, 3, "6-1/2\""},
    FormatCase{12, 4, 4, 0, 2, "1'"}, FormatCase{12.75, 4, 4, 0, 2, "1'-0 3/4\""},
    FormatCase{12.75, 4, 4, 0, 3, "1'-0 3/4\""}, FormatCase{0, 4, 4, 0, 2, "0'"},
    FormatCase{0, 4, 4, 0, 3, "0\""}, FormatCase{6, 4, 4, 0, 1, "0'-6\""},
    FormatCase{12.5, 5, 4, 0, 0, "12 1/2"}, FormatCase{0.5, 5, 4, 0, 0, "1/2"},
    FormatCase{-12.25, 5, 4, 0, 0, "-12 1/4"}, FormatCase{12.5, 5, 4, 1, 0, "12-1/2"},
    FormatCase{12.99, 5, 2, 0, 0, "13"}, FormatCase{3, 5, 3, 0, 0, "3"}, FormatCase{-0.01, 5, 4, 0, 0, "0"},
    FormatCase{0.375, 5, 3, 0, 0, "3/8"}, FormatCase{0.375, 5, 1, 0, 0, "1/2"}));

class AngleFormat : public testing::TestWithParam<FormatCase> {};  // value in degrees
TEST_P(AngleFormat, MatchesCadDisplay) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(formatter(c.unitmode).formatAngle(c.value * kD, c.mode, c.prec).toStdString(), c.expected);
}
INSTANTIATE_TEST_SUITE_P(AllModes, AngleFormat, testing::Values(
    FormatCase{45, 0, 0, 0, 0, "45"}, FormatCase{45.5, 0, 2, 0, 0, "45.50"}, FormatCase{-30.26, 0, 1, 0, 0, "-30.3"},
    FormatCase{-0.001, 0, 2, 0, 0, "0.00"}, FormatCase{400, 0, 0, 0, 0, "400"}, FormatCase{-370, 0, 0, 0, 0, "-370"},
    FormatCase{45, 1, 0, 0, 0, "45d"}, FormatCase{45.5, 1, 1, 0, 0, "45d30'"}, FormatCase{45.5, 1, 2, 0, 0, "45d30'"},
    FormatCase{45 + 30 / 60. + 15 / 3600., 1, 3, 0, 0, "45d30'15\""},
    FormatCase{45 + 30 / 60. + 15 / 3600., 1, 4, 0, 0, "45d30'15\""},
    FormatCase{45 + 30 / 60. + 15.5 / 3600., 1, 5, 0, 0, "45d30'15.5\""},
    FormatCase{45 + 30 / 60. + 15.5 / 3600., 1, 8, 0, 0, "45d30'15.5000\""},
    FormatCase{29.99999, 1, 4, 0, 0, "30d0'0\""}, FormatCase{10.999999, 1, 2, 0, 0, "11d0'"},
    FormatCase{-30.25, 1, 2, 0, 0, "-30d15'"}, FormatCase{-0.0001, 1, 2, 0, 0, "0d0'"}, FormatCase{0.6, 1, 0, 0, 0, "1d"},
    FormatCase{45, 2, 0, 0, 0, "50g"}, FormatCase{45, 2, 2, 0, 0, "50.00g"}, FormatCase{-90, 2, 1, 0, 0, "-100.0g"},
    FormatCase{45, 3, 4, 0, 0, "0.7854r"}, FormatCase{180, 3, 2, 0, 0, "3.14r"}, FormatCase{-90, 3, 3, 0, 0, "-1.571r"},
    FormatCase{45, 4, 2, 0, 0, "N 45d0' E"}, FormatCase{45, 4, 0, 0, 0, "N 45d E"},
    FormatCase{135.5, 4, 2, 0, 0, "N 45d30' W"}, FormatCase{225, 4, 2, 0, 0, "S 45d0' W"},
    FormatCase{300, 4, 4, 0, 0, "S 30d0'0\" E"}, FormatCase{60.25, 4, 3, 0, 0, "N 29d45'0\" E"},
    FormatCase{0, 4, 2, 0, 0, "E"}, FormatCase{90, 4, 2, 0, 0, "N"}, FormatCase{180, 4, 2, 0, 0, "W"},
    FormatCase{270, 4, 2, 0, 0, "S"}, FormatCase{-90, 4, 2, 0, 0, "S"}, FormatCase{450, 4, 2, 0, 0, "N"},
    FormatCase{89.9999, 4, 2, 0, 0, "N"}, FormatCase{0.0001, 4, 2, 0, 0, "E"}, FormatCase{45.5, 4, 2, 1, 0, "N44d30'E"},
    // Short of a full turn but shown as one: 0 in every angle format. A
    // full turn or more keeps its value.
    FormatCase{359.7, 0, 0, 0, 0, "0"}, FormatCase{-359.7, 0, 0, 0, 0, "0"}, FormatCase{359.996, 0, 2, 0, 0, "0.00"},
    FormatCase{359.994, 0, 2, 0, 0, "359.99"}, FormatCase{360, 0, 0, 0, 0, "360"},
    FormatCase{359.7, 1, 0, 0, 0, "0d"}, FormatCase{359.99999, 1, 4, 0, 0, "0d0'0\""},
    FormatCase{359.8, 2, 0, 0, 0, "0g"}, FormatCase{359.999, 3, 4, 0, 0, "0.0000r"},
    FormatCase{359.99, 3, 4, 0, 0, "6.2830r"}));

TEST(UnitsFormatter, AreasAreBareNumbers) {
  const struct { double v; int mode, prec; const char* expected; } cases[] = {
      {1234.5678, 2, 2, "1234.57"}, {1234.5678, 4, 2, "1234.57"}, {1234.5678, 3, 4, "1234.5678"},
      {1234.5678, 1, 3, "1.235E+03"}, {12.5, 5, 4, "12 1/2"}, {-0.0001, 4, 2, "0.00"}};
  for (const auto& c : cases) EXPECT_EQ(formatter().formatArea(c.v, c.mode, c.prec).toStdString(), c.expected) << c.v;
}

TEST(UnitsFormatter, DirectionsFollowAngbaseAndAngdir) {
  const struct { double base; bool cw; double deg; int mode, prec; const char* expected; } cases[] = {
      {0, false, 45, 0, 0, "45"}, {90, false, 45, 0, 0, "315"}, {90, true, 45, 0, 0, "45"}, {0, true, 30, 0, 0, "330"},
      {0, false, 359.9999, 0, 2, "0.00"}, {0, false, -1e-10, 1, 2, "0d0'"}, {0, false, 400, 2, 0, "44g"},
      {90, true, 0, 1, 2, "90d0'"}, {90, false, 45, 4, 2, "N 45d0' E"}, {45, true, 0, 4, 0, "E"}};
  for (const auto& c : cases)
    EXPECT_EQ(formatter(0, 0, c.base * kD, c.cw).formatDirection(c.deg * kD, c.mode, c.prec).toStdString(), c.expected)
        << c.deg << " base " << c.base;
}

TEST(UnitsFormatter, CurrentSettingsAndOutOfRangeArguments) {
  OdDbUnitsSettings s;
  s.lunits = 4, s.luprec = 4, s.aunits = 1, s.auprec = 4;
  const OdDbUnitsFormatter f(s);
  EXPECT_EQ(f.formatDistance(12.5).toStdString(), "1'-0 1/2\"");
  EXPECT_EQ(f.formatDistance(12.5, 2).toStdString(), "12.5000");  // mode given, precision current
  EXPECT_EQ(f.formatDistance(12.5, 9, 2).toStdString(), "12.50");  // unknown mode: decimal
  EXPECT_EQ(f.formatDistance(1.0 / 3, 2, 12).toStdString(), "0.33333333");  // precision clamped to 8
  EXPECT_EQ(f.formatAngle(45.5 * kD).toStdString(), "45d30'0\"");
  EXPECT_EQ(f.formatAngle(45.5 * kD, 7, 1).toStdString(), "45.5");  // unknown mode: decimal degrees
  double v = 0;
  EXPECT_TRUE(f.parseDistance("1'6\"", v));
  EXPECT_EQ(v, 18);
}

TEST(UnitsFormatter, NonFiniteValuesFormatAsText) {
  const OdDbUnitsFormatter f;
  const std::pair<double, std::string> cases[] = {{kNan, "nan"}, {kInf, "inf"}, {-kInf, "-inf"}};
  for (const auto& [v, text] : cases)
    for (int mode = 0; mode <= 5; ++mode) {
      EXPECT_EQ(f.formatDistance(v, mode).toStdString(), text) << mode;
      EXPECT_EQ(f.formatArea(v, mode).toStdString(), text) << mode;
      EXPECT_EQ(f.formatAngle(v, mode).toStdString(), text) << mode;
      EXPECT_EQ(f.formatDirection(v, mode).toStdString(), text) << mode;
    }
  EXPECT_EQ(f.formatAngle(1e308, 1).toStdString(), "inf");  // too large to express in degrees
}

TEST(UnitsFormatter, DecimalMarkIgnoresLocale) {
  const QLocale previous;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  double v = 0;
  const bool parsed = formatter().parseDistance("12.25", v);
  const std::string text = formatter().formatDistance(1234.5, 2, 2).toStdString();
  QLocale::setDefault(previous);
  EXPECT_TRUE(parsed);
  EXPECT_EQ(v, 12.25);
  EXPECT_EQ(text, "1234.50");
}

// ---- parsing ---------------------------------------------------------------

struct ParseCase { const char* text; int mode; double expected; };
std::ostream& operator<<(std::ostream& os, const ParseCase& c) { return os << '[' << c.text << "] mode " << c.mode; }

class DistanceParse : public testing::TestWithParam<ParseCase> {};
TEST_P(DistanceParse, Accepts) {
  double v = kNan;
  ASSERT_TRUE(formatter().parseDistance(GetParam().text, v, GetParam().mode));
  EXPECT_DOUBLE_EQ(v, GetParam().expected);
}
INSTANTIATE_TEST_SUITE_P(Typed, DistanceParse, testing::Values(
    ParseCase{"12.5", 2, 12.5}, ParseCase{"-12.5", 2, -12.5}, ParseCase{"  12.5\t", 2, 12.5}, ParseCase{".5", 2, 0.5},
    ParseCase{"+3", 2, 3}, ParseCase{"12.", 2, 12}, ParseCase{"1.5E+03", 2, 1500}, ParseCase{"1.5e3", 1, 1500},
    ParseCase{"1.2500E+01", 1, 12.5}, ParseCase{"2E-2", 2, 0.02}, ParseCase{"3 1/2", 2, 3.5}, ParseCase{"3-1/2", 5, 3.5},
    ParseCase{"1/2", 2, 0.5}, ParseCase{"-3 1/2", 5, -3.5}, ParseCase{"3  1/2", 5, 3.5}, ParseCase{"7/4", 5, 1.75},
    ParseCase{"12 1/2", 4, 12.5}, ParseCase{"12'6\"", 4, 150}, ParseCase{"12'-6\"", 4, 150},
    ParseCase{"12'6-1/2\"", 4, 150.5}, ParseCase{"1'", 4, 12}, ParseCase{"6\"", 3, 6}, ParseCase{"12'6.5\"", 3, 150.5},
    ParseCase{"-1'6\"", 4, -18}, ParseCase{"1'-0 1/2\"", 4, 12.5}, ParseCase{"0'-0 1/2\"", 4, 0.5},
    ParseCase{"1'3-1/2\"", 4, 15.5}, ParseCase{"1'-0.5000\"", 3, 12.5}, ParseCase{"1'0.50\"", 3, 12.5},
    ParseCase{"12' 6\"", 4, 150}, ParseCase{"12'6", 4, 150}, ParseCase{"1/2\"", 4, 0.5}, ParseCase{"6-1/2\"", 4, 6.5},
    ParseCase{"1.5'", 3, 18}, ParseCase{"-1'-3 1/2\"", 4, -15.5}, ParseCase{"2'-1/4\"", 4, 24.25}));

TEST(UnitsFormatter, DistanceParseRejectsGarbageAndKeepsValue) {
  const ParseCase cases[] = {
      {"", 2, 0}, {"   ", 2, 0}, {"abc", 2, 0}, {"12..5", 2, 0}, {"1/0", 2, 0}, {"3 1/0", 5, 0}, {"12'6\"x", 4, 0},
      {"12'6\"", 2, 0}, {"6\"", 2, 0}, {"1'", 5, 0}, {"1'", 1, 0}, {"-", 2, 0}, {"--5", 2, 0}, {"- 5", 2, 0},
      {"1e400", 2, 0}, {"nan", 2, 0}, {"inf", 2, 0}, {"12 5", 2, 0}, {"1/2/3", 2, 0}, {"1.5/2", 2, 0},
      {"3 - 1/2", 2, 0}, {"1'-", 4, 0}, {"1'--6\"", 4, 0}, {"12'6\"\"", 4, 0}, {"\"6", 4, 0}, {"'6", 4, 0},
      {"12,5", 2, 0}, {"1e", 2, 0}, {"e5", 2, 0}, {"1'2'", 4, 0}, {"12'6\" 1", 4, 0}, {"\u0661\u0662", 2, 0}};
  for (const auto& c : cases) {
    double v = 42;
    EXPECT_FALSE(formatter().parseDistance(c.text, v, c.mode)) << c;
    EXPECT_EQ(v, 42) << c;
  }
  double v = 42;
  EXPECT_FALSE(formatter().parseArea("1'6\"", v, 4));  // areas never take feet and inches
  EXPECT_TRUE(formatter().parseArea("3 1/4", v, 4));
  EXPECT_EQ(v, 3.25);
}

class AngleParse : public testing::TestWithParam<ParseCase> {};  // expected in radians
TEST_P(AngleParse, Accepts) {
  double v = kNan;
  ASSERT_TRUE(formatter().parseAngle(GetParam().text, v, GetParam().mode));
  EXPECT_NEAR(v, GetParam().expected, 1e-12);
}
INSTANTIATE_TEST_SUITE_P(Typed, AngleParse, testing::Values(
    ParseCase{"45", 0, 45 * kD}, ParseCase{" 45.5 ", 0, 45.5 * kD}, ParseCase{"-45", 0, -45 * kD},
    ParseCase{"45d30'15\"", 0, (45 + 30 / 60. + 15 / 3600.) * kD}, ParseCase{"45d", 0, 45 * kD},
    ParseCase{"45\u00B030'", 0, 45.5 * kD}, ParseCase{"45D30'", 0, 45.5 * kD},
    ParseCase{"45d 30' 15\"", 0, (45 + 30 / 60. + 15 / 3600.) * kD}, ParseCase{"45d30'15", 1, (45 + 30 / 60. + 15 / 3600.) * kD},
    ParseCase{"45d30.5'", 0, (45 + 30.5 / 60) * kD}, ParseCase{"-45d30'", 0, -45.5 * kD},
    ParseCase{"50g", 0, 45 * kD}, ParseCase{"50G", 3, 45 * kD}, ParseCase{"0.785r", 0, 0.785}, ParseCase{"1.5e1", 0, 15 * kD},
    ParseCase{"50", 2, 45 * kD}, ParseCase{"1", 3, 1}, ParseCase{"45", 1, 45 * kD}, ParseCase{"45", 4, 45 * kD},
    ParseCase{"400", 0, 400 * kD}, ParseCase{"N45d30'E", 0, 44.5 * kD}, ParseCase{"S 45 W", 0, 225 * kD},
    ParseCase{"n 45d e", 0, 45 * kD}, ParseCase{"N 45d30' W", 0, 135.5 * kD}, ParseCase{"S45E", 0, 315 * kD},
    ParseCase{"S 30d0'0\" E", 0, 300 * kD}, ParseCase{"N", 0, 90 * kD}, ParseCase{"E", 2, 0}, ParseCase{"W", 0, 180 * kD},
    ParseCase{"S", 3, 270 * kD}, ParseCase{"N 0 E", 0, 90 * kD}, ParseCase{"N 90 E", 0, 0}, ParseCase{"S 90 E", 0, 0},
    ParseCase{"N44d30'E", 4, 45.5 * kD}));

TEST(UnitsFormatter, AngleParseRejectsGarbageAndKeepsValue) {
  const char* cases[] = {"", "abc", "45dd", "45d60'", "45d30'60\"", "45.5d30'", "45d30.5'15\"", "N45", "N100E",
                         "E45N", "N45dE x", "45x", "45g5", "-N45E", "1e400", "nan", "45d30'15\"\"", "45,5",
                         "45 30", "NE", "r", "--45"};
  for (const char* text : cases) {
    double v = 42;
    EXPECT_FALSE(formatter().parseAngle(text, v)) << text;
    EXPECT_FALSE(formatter().parseDirection(text, v)) << text;
    EXPECT_EQ(v, 42) << text;
  }
}

TEST(UnitsFormatter, DirectionParseAppliesAngbaseExceptToBearings) {
  const struct { double base; bool cw; const char* text; double deg; } cases[] = {
      {90, false, "45", 135}, {90, true, "45", 45}, {0, true, "30", 330}, {30, false, "N 30d E", 60},
      {0, false, "-90", 270}, {0, false, "450", 90}, {30, false, "100g", 120}};
  for (const auto& c : cases) {
    double v = kNan;
    ASSERT_TRUE(formatter(0, 0, c.base * kD, c.cw).parseDirection(c.text, v)) << c.text;
    EXPECT_NEAR(v, c.deg * kD, 1e-12) << c.text;
  }
}

// ---- round trips -----------------------------------------------------------

// Parsing what was displayed gives the value rounded to the display precision,
// and displaying that again gives the same text.
TEST(UnitsFormatter, DistanceRoundTripsAtDisplayPrecision) {
  const double values[] = {0, 0.3, 1.0 / 3, 12.53, -15.49, 143.97, 1234.56789, -98765.4321, 1e-7, 3e6};
  for (int um : {0, 1})
    for (int zin : {0, 2, 3})
      for (int mode = 1; mode <= 5; ++mode)
        for (int prec = 0; prec <= 8; ++prec)
          for (double v : values) {
            const OdDbUnitsFormatter f = formatter(um, zin);
            const OdString text = f.formatDistance(v, mode, prec);
            SCOPED_TRACE(text.toStdString() + " mode " + std::to_string(mode) + " prec " + std::to_string(prec));
            double back = kNan;
            ASSERT_TRUE(f.parseDistance(text, back, mode));
            const double step = (mode == 4 || mode == 5) ? std::ldexp(1.0, -prec) : std::pow(10.0, -prec);
            if (mode == 1)  // scientific: precision counts significant digits
              EXPECT_LE(std::fabs(back - v), v == 0 ? 0 : 0.5001 * std::pow(10.0, std::floor(std::log10(std::fabs(v))) - prec));
            else
              EXPECT_NEAR(back, std::round(v / step) * step, 1e-9 * std::max(1.0, std::fabs(v)));
            EXPECT_EQ(f.formatDistance(back, mode, prec).toStdString(), text.toStdString());
          }
}

TEST(UnitsFormatter, AngleRoundTripsAtDisplayPrecision) {
  const double degrees[] = {0, 1e-6, 33.3333, 45.504305, 89.99999, 135.75, 200.123456, 359.99999, -30.26, 725.5};
  for (int um : {0, 1})
    for (int mode = 0; mode <= 4; ++mode)
      for (int prec = 0; prec <= 8; ++prec)
        for (double deg : degrees) {
          const OdDbUnitsFormatter f = formatter(um);
          const OdString text = f.formatAngle(deg * kD, mode, prec);
          SCOPED_TRACE(text.toStdString() + " mode " + std::to_string(mode) + " prec " + std::to_string(prec));
          double back = kNan;
          ASSERT_TRUE(f.parseAngle(text, back, mode));
          // Display step in degrees: decimal places of degrees, grads or
          // radians; whole degrees, minutes, seconds or decimal seconds.
          const double dms = prec == 0 ? 1 : prec <= 2 ? 1 / 60. : 1 / 3600. * std::pow(10.0, -std::max(0, prec - 4));
          const double unit = mode == 2 ? 0.9 : mode == 3 ? 180 / OdaPI : 1;
          const double step = (mode == 1 || mode == 4) ? dms : std::pow(10.0, -prec) * unit;
          double expected = std::round(deg / step) * step;
          if (std::fabs(deg) < 360 && std::fabs(expected) >= 360 && mode != 4) expected = 0;  // shown as 0, not 360
          if (mode == 4) {  // a bearing: a direction in [0, 360) within half a step
            expected = std::fmod(deg + 360.0, 360.0);
            EXPECT_LE(std::fabs(std::remainder(back / kD - expected, 360.0)), step / 2 + 1e-9);
            EXPECT_TRUE(back >= 0 && back < 2 * OdaPI);
          } else {
            EXPECT_NEAR(back / kD, expected, 1e-9 * std::max(1.0, std::fabs(deg)));
          }
          EXPECT_EQ(f.formatAngle(back, mode, prec).toStdString(), text.toStdString());
        }
}

}  // namespace
