// Files that are not DXF or are truncated: one clear message with the line
// or byte offset, and the safe repairs. (The malformed samples and random
// damage are read through the drawing mapper in DxfDatabaseMalformedTest.)
#include "DxfTestSupport.h"


using namespace OdDxf;
using namespace dxftest;

namespace {

QByteArray bin(std::initializer_list<QByteArray> parts) {
  QByteArray out("AutoCAD Binary DXF\r\n\x1a", 22);
  for (const QByteArray& p : parts) out += p;
  return out;
}
QByteArray b(const char* s, int n) { return QByteArray(s, n); }

struct BadCase {
  const char* name;
  QByteArray data;
  const char* message;  // the whole error text
  friend void PrintTo(const BadCase& c, std::ostream* os) { *os << c.name; }
};

class DxfRefused : public ::testing::TestWithParam<BadCase> {};

TEST_P(DxfRefused, WithOneMessageNamingThePlace) {
  File f;
  QString error;
  QStringList warnings;
  EXPECT_FALSE(File::read(GetParam().data, f, error, &warnings));
  EXPECT_EQ(error.toStdString(), GetParam().message);
  EXPECT_TRUE(f.sections().isEmpty());
}

const QByteArray kHead = "  0\nSECTION\n  2\nENTITIES\n";

INSTANTIATE_TEST_SUITE_P(
    Cases, DxfRefused,
    ::testing::Values(
        BadCase{"Empty", "", "line 1: empty file, no DXF data"},
        BadCase{"Text", "hello world\r\nsecond\r\n", "line 1: not a DXF file: group code expected, found 'hello world'"},
        BadCase{"Png", b("\x89PNG\r\n\x1a\n", 8), "line 1: not a DXF file: group code expected, found '\\x89PNG'"},
        BadCase{"FirstTagNotZero", "  5\nAB\n", "line 1: not a DXF file: '0 SECTION' expected, found group code 5"},
        BadCase{"OnlyComment", "999\nhello\n", "line 3: not a DXF file: no SECTION and no EOF"},
        BadCase{"GarbageCode", kHead + "abc\nLINE\n", "line 5: group code expected, found 'abc'"},
        BadCase{"EmptyCodeLine", kHead + "  0\nLINE\n\n8\n", "line 7: group code expected, found an empty line"},
        BadCase{"CodeOutOfRange", kHead + "5000\nX\n", "line 5: invalid group code 5000 (valid: 0 to 1071)"},
        BadCase{"ValueMissing", "  0\r\nSECTION\r\n  2\r\n", "line 4: value of group code 2 expected, found end of file (file truncated?)"},
        BadCase{"SectionWithoutName", "  0\nSECTION\n  8\nX\n", "line 3: section name (group 2) expected after SECTION"},
        BadCase{"EndsInSection", kHead + "  0\nLINE\n  8\n0\n",
                "line 9: unexpected end of file in section ENTITIES: ENDSEC and EOF missing (file truncated?)"},
        BadCase{"EndsMidLine", kHead + "  0\nENDSEC\n  0\nEO",
                "line 8: file ends in the middle of a line, EOF missing (file truncated?)"},
        BadCase{"Dwg", b("AC1015\0\0\0\0\x01", 11), "byte offset 0: not a DXF file: this is a DWG drawing (AC1015)"},
        BadCase{"BinarySentinel", b("AutoCAD Binary DXF\r\n\x1b\0", 22), "byte offset 20: damaged binary DXF sentinel"},
        BadCase{"BinaryNoTags", bin({}), "byte offset 22: binary DXF has no tags (file truncated?)"},
        BadCase{"BinaryBadStart", bin({b("\x05\x07", 2)}), "byte offset 22: not a DXF file: group code 0 or 999 expected at the start"},
        BadCase{"BinaryBadCode", bin({b("\0\0SECTION\0\x10\x27", 12)}), "byte offset 32: invalid group code 10000 (valid: 0 to 1071)"},
        BadCase{"BinaryNoNul", bin({b("\0\0SECT", 6)}),
                "byte offset 24: string of group code 0 has no terminating NUL (file truncated?)"},
        BadCase{"BinaryShortDouble", bin({b("\0\0SECTION\0\x02\0ENTITIES\0\0\0LINE\0\x0a\0\0\0\0", 33)}),
                "byte offset 52: value of group code 10 needs 8 bytes, 3 left (file truncated?)"},
        BadCase{"BinaryChunkLength", bin({b("\0\0SECTION\0\x02\0ENTITIES\0\0\0LINE\0\x36\x01", 30)}),
                "byte offset 52: length byte of group code 310 missing (file truncated?)"},
        BadCase{"BinaryShortCodes", bin({b("\0SECTION\0\x02HEADER\0\xff\xe8", 19)}),
                "byte offset 39: group code truncated (file truncated?)"},
        BadCase{"BinaryCodeCut", bin({b("\0\0SECTION\0\x02", 11)}), "byte offset 32: group code truncated (file truncated?)"}),
    [](const auto& info) { return std::string(info.param.name); });

struct RepairCase {
  const char* name;
  QByteArray data;
  const char* warning;
  QByteArray written;
  friend void PrintTo(const RepairCase& c, std::ostream* os) { *os << c.name; }
};

class DxfRepaired : public ::testing::TestWithParam<RepairCase> {};

TEST_P(DxfRepaired, LoadsWithAWarningAndWritesTheRepair) {
  File f;
  QString error;
  QStringList warnings;
  ASSERT_TRUE(File::read(GetParam().data, f, error, &warnings)) << error.toStdString();
  EXPECT_EQ(warnings.join('|').toStdString(), GetParam().warning);
  EXPECT_EQ(f.write(), GetParam().written);
  File again;
  QStringList none;
  ASSERT_TRUE(File::read(f.write(), again, error, &none));
  EXPECT_TRUE(none.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DxfRepaired,
    ::testing::Values(
        RepairCase{"NoEof", kHead + "  0\nENDSEC\n", "line 7: EOF missing at the end of the file; added",
                   kHead + "  0\nENDSEC\n  0\nEOF\n"},
        RepairCase{"NoEofCrlf", "0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n",
                   "line 7: EOF missing at the end of the file; added",
                   "0\r\nSECTION\r\n2\r\nENTITIES\r\n0\r\nENDSEC\r\n0\r\nEOF\r\n"},
        RepairCase{"NoEndsecBeforeEof", kHead + "  0\nLINE\n  0\nEOF\n",
                   "line 7: ENDSEC missing before EOF; added to close section ENTITIES",
                   kHead + "  0\nLINE\n  0\nENDSEC\n  0\nEOF\n"},
        RepairCase{"NoEndsecBeforeSection", kHead + "  0\nSECTION\n  2\nOBJECTS\n  0\nENDSEC\n  0\nEOF\n",
                   "line 5: ENDSEC missing before SECTION; added to close section ENTITIES",
                   kHead + "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n  0\nENDSEC\n  0\nEOF\n"},
        RepairCase{"BinaryNoEof", bin({b("\0\0SECTION\0\x02\0ENTITIES\0\0\0ENDSEC\0", 30)}),
                   "byte offset 52: EOF missing at the end of the file; added",
                   bin({b("\0\0SECTION\0\x02\0ENTITIES\0\0\0ENDSEC\0\0\0EOF\0", 36)})}),
    [](const auto& info) { return std::string(info.param.name); });

// Unusual but valid files load without a warning and write back unchanged.
struct OddCase {
  const char* name;
  QByteArray data;
  int tags;  // tags read, EOF included
  friend void PrintTo(const OddCase& c, std::ostream* os) { *os << c.name; }
};

class DxfOddButValid : public ::testing::TestWithParam<OddCase> {};

TEST_P(DxfOddButValid, LoadsQuietlyAndWritesBackUnchanged) {
  File f;
  QString error;
  QStringList warnings;
  ASSERT_TRUE(File::read(GetParam().data, f, error, &warnings)) << error.toStdString();
  EXPECT_TRUE(warnings.isEmpty()) << warnings.join('|').toStdString();
  EXPECT_EQ(f.write(), GetParam().data);
  EXPECT_EQ(f.tagCount(), GetParam().tags);
  // And through binary, every value survives.
  File viaBinary;
  ASSERT_TRUE(File::read(f.write(File::Form::Binary), viaBinary, error)) << error.toStdString();
  const std::vector<Tag> a = allTags(f), b = allTags(viaBinary);
  ASSERT_EQ(a.size(), b.size());
  for (size_t i = 0; i < a.size(); ++i) EXPECT_TRUE(sameTypedValue(a[i], b[i], f.codepage()));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DxfOddButValid,
    ::testing::Values(
        OddCase{"ByteOrderMark", "\xEF\xBB\xBF  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n", 4},
        OddCase{"NoFinalLineEnd", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF", 4},
        OddCase{"BytesAfterEof", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n\x1a" "junk", 4},
        OddCase{"CommentsEverywhere",
                "999\nmade by hand\n  0\nSECTION\n  2\nENTITIES\n999\nin head\n  0\nLINE\n999\nin record\n"
                "  0\nENDSEC\n999\nbetween\n  0\nEOF\n",
                9},
        OddCase{"BlanksKept", "  0  \r\nSECTION\r\n     2\r\nENTITIES \r\n  0\r\nTEXT\r\n  1\r\n  two  blanks  \r\n"
                              " 40\r\n 2.5 \r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n",
                7},
        OddCase{"MixedLineEnds", "  0\r\nSECTION\n  2\nENTITIES\r\n  0\nENDSEC\r\n  0\nEOF\n", 4},
        OddCase{"EmptyDrawing", "  0\nEOF\n", 1},
        OddCase{"R12WithXdata", "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1009\n  9\n$INSBASE\n 10\n0.0\n"
                                " 20\n0.0\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n  0\nPOINT\n 10\n1.5\n"
                                "1001\nACAD\n1070\n     5\n1040\n-0.25\n1004\n0A0B\n  0\nENDSEC\n  0\nEOF\n",
                18}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
