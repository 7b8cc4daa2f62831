// Files that are not DXF, truncated or damaged: one clear message with the
// line or byte offset, the safe repairs, and no crash on corrupted data.
#include "DxfTestSupport.h"

#include <random>

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
                "byte offset 39: group code truncated (file truncated?)"}),
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

TEST(DxfMalformedSample, Recover01LoadsLosslesslyWithWarnings) {
  // Header variables after the first ENDSEC, a stray ENDSEC, 397 ENTITIES
  // sections and no EOF: every tag is kept, the mapper decides what it means.
  const QByteArray bytes = readBytes(samplePath(QStringLiteral("ezdxf__integration_tests__data__recover01.dxf")));
  File f;
  QString error;
  QStringList warnings;
  ASSERT_TRUE(File::read(bytes, f, error, &warnings)) << error.toStdString();
  EXPECT_EQ(warnings, QStringList({QStringLiteral("line 1141: 8 tags after ENDSEC of section ENTITIES kept as they are"),
                                   QStringLiteral("line 1157: 'ENDSEC' outside any section kept as it is"),
                                   QStringLiteral("line 29473: EOF missing at the end of the file; added")}));
  EXPECT_EQ(f.write(), bytes + "  0\nEOF\n");
  int stray = 0;
  for (const Section& s : f.sections()) stray += s.isStray();
  EXPECT_EQ(stray, 1);
}

TEST(DxfMalformedSample, DuplicateHandlesAreExposed) {
  const QByteArray bytes = readBytes(samplePath(QStringLiteral("ezdxf__integration_tests__data__duplicate_handles.dxf")));
  File f;
  QString error;
  ASSERT_TRUE(File::read(bytes, f, error)) << error.toStdString();
  EXPECT_EQ(f.write(), bytes);
  // Handles counted straight from the lines: per the DXF reference group 5
  // (105 for DIMSTYLE) before the first subclass marker, outside HEADER.
  std::map<quint64, int> seen;
  bool inHeader = false, inRecordHead = false;
  QByteArray type;
  for (const LineTag& t : plainTags(bytes)) {
    if (t.code == 2 && t.value.trimmed() == "HEADER") inHeader = true;
    if (t.code == 0) {
      type = t.value.trimmed();
      if (type == "ENDSEC") inHeader = false;
      inRecordHead = true;
    }
    if (t.code == 100) inRecordHead = false;
    if (t.code == (type == "DIMSTYLE" ? 105 : 5) && !inHeader && inRecordHead)
      ++seen[t.value.trimmed().toULongLong(nullptr, 16)];
  }
  QList<quint64> expect;
  for (const auto& [h, n] : seen)
    if (n > 1) expect.append(h);
  EXPECT_FALSE(expect.isEmpty());
  EXPECT_EQ(f.duplicateHandles(), expect);
}

// Cutting a real drawing anywhere: refused with the line the data ends on (or
// the one after it), or - cut right after ENDSEC or within the final line
// end - loaded with the EOF repair or unchanged.
TEST(DxfTruncated, AsciiAtManyPointsNamesTheEndLine) {
  const QByteArray bytes = readBytes(samplePath(QStringLiteral("libredwg__test__test-data__2000__entities-2d.dxf")));
  std::mt19937 rng(12345);
  std::vector<qsizetype> cuts;
  for (int i = 0; i < 300; ++i) cuts.push_back(qsizetype(rng() % quint32(bytes.size())));
  for (qsizetype k = bytes.size() - 40; k < bytes.size(); ++k) cuts.push_back(k);
  for (qsizetype cut : cuts) {
    const QByteArray data = bytes.left(cut);
    File f;
    QString error;
    QStringList warnings;
    const qsizetype lines = data.count('\n');
    if (File::read(data, f, error, &warnings)) {
      const bool endsAfterEndsec = data.endsWith("ENDSEC\r\n");
      EXPECT_TRUE(endsAfterEndsec || data.trimmed().endsWith("EOF")) << "cut " << cut;
      if (endsAfterEndsec) {
        EXPECT_EQ(warnings, QStringList(QStringLiteral("line %1: EOF missing at the end of the file; added").arg(lines + 1)));
      }
      continue;
    }
    const QString at1 = QStringLiteral("line %1: ").arg(lines + 1), at2 = QStringLiteral("line %1: ").arg(lines + 2);
    EXPECT_TRUE(error.startsWith(at1) || (!data.endsWith('\n') && error.startsWith(at2)))
        << "cut " << cut << ": " << error.toStdString();
  }
}

// Offsets of a binary file's tags, walked with the value sizes of the DXF
// reference: {tag start, value start} for each tag.
std::vector<std::pair<qsizetype, qsizetype>> binaryTagStarts(const QByteArray& d) {
  auto size = [](int c) -> int {
    if ((c >= 10 && c < 60) || (c >= 110 && c < 150) || (c >= 210 && c < 240) || (c >= 460 && c < 470) ||
        (c >= 1010 && c < 1060) || (c >= 160 && c < 170))
      return 8;
    if ((c >= 60 && c < 80) || (c >= 170 && c < 180) || (c >= 270 && c < 290) || (c >= 370 && c < 390) ||
        (c >= 400 && c < 410) || (c >= 1060 && c < 1071))
      return 2;
    if ((c >= 90 && c < 100) || (c >= 420 && c < 430) || (c >= 440 && c < 460) || c == 1071) return 4;
    if (c >= 290 && c < 300) return 1;
    if ((c >= 310 && c < 320) || c == 1004) return -2;
    return -1;
  };
  std::vector<std::pair<qsizetype, qsizetype>> out;
  qsizetype p = 22;
  while (p < d.size()) {
    const qsizetype start = p;
    const int code = uchar(d[p]) | (uchar(d[p + 1]) << 8);
    p += 2;
    const int n = size(code);
    if (n == -2) p += 1;
    out.push_back({start, p});
    p += n > 0 ? n : n == -2 ? uchar(d[p - 1]) : d.indexOf('\0', p) - p + 1;
  }
  return out;
}

TEST(DxfTruncated, BinaryAtManyPointsNamesTheOffset) {
  File ascii;
  QString error;
  ASSERT_TRUE(File::load(samplePath(QStringLiteral("libredwg__test__test-data__2000__entities-3d.dxf")), ascii, error));
  const QByteArray bytes = ascii.write(File::Form::Binary);
  const auto starts = binaryTagStarts(bytes);
  std::mt19937 rng(777);
  for (int i = 0; i < 400; ++i) {
    const qsizetype cut = 23 + qsizetype(rng() % quint32(bytes.size() - 23));
    File f;
    QStringList warnings;
    if (File::read(bytes.left(cut), f, error, &warnings)) {
      EXPECT_EQ(warnings.size(), 1) << "cut " << cut;
      EXPECT_TRUE(bytes.left(cut).endsWith(QByteArray("ENDSEC\0", 7))) << "cut " << cut;
      continue;
    }
    // The tag the cut falls into: the message names its start when the code
    // is cut, else the start of its value (or of a chunk's length byte).
    auto it = std::upper_bound(starts.begin(), starts.end(), cut,
                               [](qsizetype v, const std::pair<qsizetype, qsizetype>& e) { return v < e.first; });
    const auto [tagStart, valueStart] = *(it - 1);
    qsizetype expect = cut;
    if (tagStart != cut) expect = cut < tagStart + 2 ? tagStart : cut == tagStart + 2 && valueStart == tagStart + 3 ? cut : valueStart;
    EXPECT_TRUE(error.startsWith(QStringLiteral("byte offset %1: ").arg(expect))) << "cut " << cut << ": " << error.toStdString();
  }
}

// Random byte damage must never crash; what loads must write and read back.
TEST(DxfCorrupted, RandomByteDamageNeverCrashes) {
  File source;
  QString error;
  ASSERT_TRUE(File::load(samplePath(QStringLiteral("libredwg__test__test-data__r2.6__dim.dxf")), source, error));
  const QByteArray forms[] = {source.write(), source.write(File::Form::Binary)};
  std::mt19937 rng(4242);
  int refused = 0;
  for (const QByteArray& original : forms) {
    for (int round = 0; round < 300; ++round) {
      QByteArray data = original;
      for (int k = 0, n = 1 + int(rng() % 8); k < n; ++k) data[qsizetype(rng() % quint32(data.size()))] = char(rng());
      File f;
      QStringList warnings;
      if (!File::read(data, f, error, &warnings)) {
        ++refused;
        EXPECT_TRUE(error.startsWith(QStringLiteral("line ")) || error.startsWith(QStringLiteral("byte offset ")))
            << error.toStdString();
        continue;
      }
      File again;
      ASSERT_TRUE(File::read(f.write(), again, error)) << error.toStdString();
      EXPECT_EQ(again.tagCount(), f.tagCount());
      f.write(f.isBinary() ? File::Form::Ascii : File::Form::Binary);
    }
  }
  EXPECT_GT(refused, 0);
}

}  // namespace
