// Group code types and the typed accessors of single tags, in ASCII and binary.
#include "DxfTestSupport.h"

using namespace OdDxf;
using namespace dxftest;

namespace {

// Group code ranges of the DXF reference's "group code value types" table.
TEST(DxfGroupCodes, TypesFollowTheReferenceRanges) {
  struct Range { int from, to; ValueType type; };
  const Range ranges[] = {
      {0, 4, ValueType::String},     {5, 5, ValueType::Handle},     {6, 9, ValueType::String},
      {10, 59, ValueType::Double},   {60, 79, ValueType::Int16},    {90, 99, ValueType::Int32},
      {100, 102, ValueType::String}, {105, 105, ValueType::Handle}, {110, 149, ValueType::Double},
      {160, 169, ValueType::Int64},  {170, 179, ValueType::Int16},  {210, 239, ValueType::Double},
      {270, 289, ValueType::Int16},  {290, 299, ValueType::Bool},   {300, 309, ValueType::String},
      {310, 319, ValueType::Binary}, {320, 369, ValueType::Handle}, {370, 389, ValueType::Int16},
      {390, 399, ValueType::Handle}, {400, 409, ValueType::Int16},  {410, 419, ValueType::String},
      {420, 429, ValueType::Int32},  {430, 439, ValueType::String}, {440, 459, ValueType::Int32},
      {460, 469, ValueType::Double}, {470, 479, ValueType::String}, {480, 481, ValueType::Handle},
      {999, 999, ValueType::String}, {1000, 1003, ValueType::String}, {1004, 1004, ValueType::Binary},
      {1005, 1005, ValueType::Handle}, {1006, 1009, ValueType::String}, {1010, 1059, ValueType::Double},
      {1060, 1070, ValueType::Int16}, {1071, 1071, ValueType::Int32}};
  for (const Range& r : ranges)
    for (int c = r.from; c <= r.to; ++c) EXPECT_EQ(int(valueType(c)), int(r.type)) << "group code " << c;
  for (int c : {-1, 1072, 5000}) EXPECT_FALSE(isValidGroupCode(c));
}

// One tag in a minimal ENTITIES section, read from ASCII and from the binary
// file our writer makes of it.
struct ValueCase {
  int code;
  const char* ascii;  // value line as a file may hold it
  bool ok;            // readable as the code's type
  double number;      // real() / integer() / handle() expected
  bool converts = true;  // fits the binary form of the code's type
  friend void PrintTo(const ValueCase& c, std::ostream* os) { *os << c.code << " '" << c.ascii << "'"; }
};

class DxfTagValue : public ::testing::TestWithParam<ValueCase> {};

TEST_P(DxfTagValue, ReadsTheSameFromAsciiAndBinary) {
  const ValueCase& c = GetParam();
  const QByteArray text = "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n" + QByteArray::number(c.code) + "\n" + c.ascii +
                          "\n  0\nENDSEC\n  0\nEOF\n";
  File a, b;
  QString error;
  ASSERT_TRUE(File::read(text, a, error)) << error.toStdString();
  const Tag& t = a.section("ENTITIES")->records[0].at(1);
  EXPECT_EQ(t.raw(), c.ascii);  // blanks kept
  bool ok = false;
  double got = 0;
  switch (t.type()) {
    case ValueType::Double: got = t.real(&ok); break;
    case ValueType::Handle: got = double(t.handle(&ok)); break;
    default: got = double(t.integer(&ok)); break;
  }
  EXPECT_EQ(ok, c.ok);
  if (c.ok) {
    EXPECT_EQ(got, c.number);
  }
  QStringList problems;
  ASSERT_TRUE(File::read(a.write(File::Form::Binary, &problems), b, error)) << error.toStdString();
  EXPECT_EQ(problems.isEmpty(), c.converts);
  if (c.converts) {
    EXPECT_TRUE(sameTypedValue(t, b.section("ENTITIES")->records[0].at(1), kAnsi1252));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Values, DxfTagValue,
    ::testing::Values(ValueCase{10, "1.5", true, 1.5}, ValueCase{10, " 1004 ", true, 1004},
                      ValueCase{40, "-1.0E+20", true, -1e20}, ValueCase{40, "+2", true, 2},
                      ValueCase{40, "1,5", false, 0, false}, ValueCase{40, "", false, 0, false},
                      ValueCase{62, "     7", true, 7}, ValueCase{62, "-32768", true, -32768},
                      ValueCase{62, "70000", true, 70000, false},  // no 16-bit value
                      ValueCase{90, "  2147483647", true, 2147483647}, ValueCase{70, "abc", false, 0, false},
                      ValueCase{290, "     1", true, 1}, ValueCase{160, "1099511627776", true, 1099511627776.0},
                      ValueCase{5, "1F", true, 31}, ValueCase{330, "ffff", true, 65535}, ValueCase{5, "XYZ", false, 0}));

TEST(DxfTagValue, BinaryChunksAndText) {
  const QByteArray text = "  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n310\n00FF10\n310\n0G\n  1\nZ\xe4hler \\U+0416\n  0\nENDSEC\n  0\nEOF\n";
  File f;
  QString error;
  ASSERT_TRUE(File::read(text, f, error));
  const Record& r = f.section("ENTITIES")->records[0];
  bool ok = false;
  EXPECT_EQ(r.at(1).bytes(&ok), QByteArray("\x00\xff\x10", 3));
  EXPECT_TRUE(ok);
  r.at(2).bytes(&ok);
  EXPECT_FALSE(ok);
  EXPECT_EQ(r.str(3), QStringLiteral("Zähler Ж"));  // no $DWGCODEPAGE, not UTF-8: ANSI_1252
}

}  // namespace
