// Patching, inserting and removing tags: only what was edited changes, in the
// file's own style, in ASCII and binary files alike.
#include "DxfTestSupport.h"

#include <QStringDecoder>

#include <cfloat>
#include <cstdlib>

using namespace OdDxf;
using namespace dxftest;

namespace {

File loadSample(const char* name) {
  File f;
  QString error;
  EXPECT_TRUE(File::load(samplePath(QString::fromLatin1(name)), f, error)) << error.toStdString();
  return f;
}

Record* firstEntity(File& f, QByteArrayView type) {
  for (Record& r : f.section("ENTITIES")->records)
    if (r.isType(type)) return &r;
  return nullptr;
}

std::vector<int> changedLines(const QByteArray& a, const QByteArray& b) {
  const QList<QByteArray> la = a.split('\n'), lb = b.split('\n');
  std::vector<int> out;
  for (qsizetype i = 0; i < qMax(la.size(), lb.size()); ++i)
    if (i >= la.size() || i >= lb.size() || la[i] != lb[i]) out.push_back(int(i));
  return out;
}

// Lines removed from and inserted into `a` to give `b`, outside their common
// first and last lines.
std::pair<int, int> splice(const QByteArray& a, const QByteArray& b) {
  const QList<QByteArray> la = a.split('\n'), lb = b.split('\n');
  qsizetype head = 0, tail = 0;
  while (head < la.size() && head < lb.size() && la[head] == lb[head]) ++head;
  while (tail < la.size() - head && tail < lb.size() - head && la[la.size() - 1 - tail] == lb[lb.size() - 1 - tail]) ++tail;
  return {int(la.size() - head - tail), int(lb.size() - head - tail)};
}

class DxfEditSample : public ::testing::TestWithParam<const char*> {};

// One double patched: exactly one line differs, and it reads back exactly.
TEST_P(DxfEditSample, ChangingOneDoubleChangesOneLine) {
  File f = loadSample(GetParam());
  const QByteArray before = f.write();
  Record* line = firstEntity(f, "LINE");
  ASSERT_NE(line, nullptr);
  const int x = line->find(11);
  ASSERT_GT(x, 0);
  const double value = line->at(x).real() + 1.0 / 3.0;
  ASSERT_TRUE(line->setReal(x, value));
  const QByteArray after = f.write();
  const std::vector<int> changed = changedLines(before, after);
  ASSERT_EQ(changed.size(), 1u);
  QByteArray text = after.split('\n')[changed[0]];
  EXPECT_EQ(std::strtod(text.trimmed().constData(), nullptr), value);
  EXPECT_EQ(after.size() - before.size(), text.size() - before.split('\n')[changed[0]].size());
  // The same edit through binary: the value survives exactly.
  File viaBinary, back;
  QString error;
  ASSERT_TRUE(File::read(f.write(File::Form::Binary), viaBinary, error));
  Record* binLine = firstEntity(viaBinary, "LINE");
  EXPECT_EQ(binLine->at(x).real(), value);
  ASSERT_TRUE(binLine->setReal(x, -value));
  ASSERT_TRUE(File::read(viaBinary.write(), back, error)) << error.toStdString();
  EXPECT_EQ(firstEntity(back, "LINE")->at(x).real(), -value);
}

INSTANTIATE_TEST_SUITE_P(Samples, DxfEditSample,
                         ::testing::Values("libredwg__test__test-data__2000__entities-2d.dxf",   // CRLF
                                           "ezdxf__examples_dxf__text_alignments.dxf",          // LF, unpadded
                                           "libredwg__test__test-data__r2.6__dim.dxf",          // AC1003
                                           "ezdxf__integration_tests__data__duplicate_handles.dxf"));

TEST(DxfEdit, NumbersKeepTheirRightAlignment) {
  File f = loadSample("libredwg__test__test-data__2000__entities-2d.dxf");
  Record* circle = firstEntity(f, "CIRCLE");
  ASSERT_NE(circle, nullptr);
  const int color = circle->append(62);
  ASSERT_GT(color, 0);
  EXPECT_EQ(circle->at(color).raw(), "     0");  // AutoCAD's 6 columns for 16-bit integers
  struct Case { qint64 value; const char* text; };
  for (const Case& c : {Case{12, "    12"}, Case{-32768, "-32768"}, Case{7, "     7"}}) {
    ASSERT_TRUE(circle->setInteger(color, c.value));
    EXPECT_EQ(circle->at(color).raw(), c.text);
    EXPECT_EQ(circle->at(color).integer(), c.value);
  }
  const int big = circle->append(90);
  EXPECT_EQ(circle->at(big).raw(), "        0");  // 9 columns for 32-bit integers
}

TEST(DxfEdit, ValuesThatDoNotFitAreRefused) {
  File f = loadSample("libredwg__test__test-data__2000__entities-2d.dxf");
  Record* line = firstEntity(f, "LINE");
  const QByteArray before = f.write();
  const int layer = line->find(8), x = line->find(10);
  line->insert(line->size(), 62);
  line->insert(line->size(), 290);
  const int color = line->size() - 2, flag = line->size() - 1;
  const QByteArray withNew = f.write();
  struct Case { const char* what; bool done; };
  const Case cases[] = {
      {"real into a string", line->setReal(layer, 1.5)},
      {"integer into a double", line->setInteger(x, 3)},
      {"string into a double", line->setString(x, QStringLiteral("1.0"))},
      {"16-bit overflow", line->setInteger(color, 40000)},
      {"bool overflow", line->setInteger(flag, 256)},
      {"line break in a string", line->setString(layer, QStringLiteral("A\nB"))},
      {"bytes into a string", line->setBytes(layer, "ab")},
      {"index out of range", line->setReal(line->size(), 1.0)},
      {"negative index", line->setString(-1, QStringLiteral("x"))},
      {"invalid group code", line->insert(0, 1200)},
      {"insert past the end", line->insert(line->size() + 1, 8)},
  };
  for (const Case& c : cases) EXPECT_FALSE(c.done) << c.what;
  EXPECT_EQ(f.write(), withNew);
  line->remove(color, 2);
  EXPECT_EQ(f.write(), before);
}

TEST(DxfEdit, InsertRemoveAndNewRecordsReadBack) {
  File f = loadSample("ezdxf__examples_dxf__text_alignments.dxf");
  const QByteArray original = f.write();
  Record* text = firstEntity(f, "TEXT");
  text->remove(text->find(40));
  const QByteArray removed = f.write();
  Section* entities = f.section("ENTITIES");
  const int count = int(entities->records.size());
  Record line = f.newRecord("LINE");
  line.setHandle(line.append(5), 0xABCDEF);
  line.setString(line.append(8), QStringLiteral("Neu Ä€"));
  for (int code : {10, 20, 30, 11, 21, 31}) line.setReal(line.append(code), code * 0.1);
  entities->records.append(line);
  const QByteArray added = f.write();

  // Removing one tag drops its two lines; adding a record inserts its lines.
  EXPECT_EQ(splice(original, removed), std::make_pair(2, 0));
  EXPECT_EQ(splice(removed, added), std::make_pair(0, 2 * line.size()));
  File back;
  QString error;
  ASSERT_TRUE(File::read(added, back, error)) << error.toStdString();
  const Section* e = back.section("ENTITIES");
  ASSERT_EQ(e->records.size(), count + 1);
  const Record& last = e->records.last();
  EXPECT_EQ(last.type(), "LINE");
  EXPECT_EQ(last.handle(), 0xABCDEFu);
  EXPECT_EQ(last.str(last.find(8)), QStringLiteral("Neu Ä€"));  // ANSI_1252 file
  EXPECT_EQ(last.at(last.find(31)).real(), 31 * 0.1);
}

TEST(DxfEdit, RecordsOutliveTheirFileAndMoveBetweenForms) {
  Record copy;
  Tag binaryTag;
  {
    File f = loadSample("libredwg__test__test-data__2000__entities-3d.dxf");
    copy = *firstEntity(f, "LINE");
    File b;
    QString error;
    ASSERT_TRUE(File::read(f.write(File::Form::Binary), b, error));
    Record* bl = firstEntity(b, "LINE");
    ASSERT_TRUE(copy.insertCopy(copy.size(), bl->at(bl->find(10))));  // binary tag into an ASCII record
    ASSERT_TRUE(bl->insertCopy(bl->size(), copy.at(copy.find(8))));    // ASCII tag into a binary record
    EXPECT_EQ(bl->at(bl->size() - 1).raw(), copy.at(copy.find(8)).raw());
    EXPECT_TRUE(bl->at(bl->size() - 1).isBinaryForm());
  }
  EXPECT_EQ(copy.type(), "LINE");
  const Tag& moved = copy.at(copy.size() - 1);
  EXPECT_FALSE(moved.isBinaryForm());
  EXPECT_EQ(moved.real(), copy.at(copy.find(10)).real());
}

TEST(DxfEdit, ALastLineWithoutLineEndGetsOneWhenMoved) {
  File f;
  QString error;
  ASSERT_TRUE(File::read("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF", f, error));
  f.section("ENTITIES")->records.append(f.eof());  // the last line, now followed by ENDSEC
  EXPECT_EQ(f.write(), "0\nSECTION\n2\nENTITIES\n0\nEOF\n0\nENDSEC\n0\nEOF");
}

TEST(DxfEdit, HandlesHeaderAndStrings) {
  File f = loadSample("libredwg__test__test-data__2000__TS1.dxf");
  ASSERT_NE(f.headerVariable("ACADVER"), nullptr);
  EXPECT_EQ(f.headerVariable("ACADVER"), f.headerVariable("$ACADVER"));
  EXPECT_EQ(f.headerVariable("$NOSUCHVAR"), nullptr);
  EXPECT_EQ(f.version(), "AC1015");
  Record* handseed = f.headerVariable("$HANDSEED");
  ASSERT_NE(handseed, nullptr);
  EXPECT_EQ(handseed->handle(), 0u);  // a variable owns no handle
  EXPECT_GT(handseed->at(1).handle(), 0u);
  // DIMSTYLE records own group 105; their group 5 is a name in R12.
  Record dimstyle = f.newRecord("DIMSTYLE");
  dimstyle.setString(dimstyle.append(5), QStringLiteral("DOT"));
  dimstyle.setHandle(dimstyle.append(105), 0x1D);
  EXPECT_EQ(dimstyle.handleIndex(), 2);
  EXPECT_EQ(dimstyle.handle(), 0x1Du);
}

// Windows-1252 decoding agrees with the system's converter on every byte, and
// characters the code page lacks travel as \U+XXXX.
TEST(DxfText, CodePage1252AndEscapes) {
  QByteArray all;
  for (int b = 0x20; b < 256; ++b) all.append(char(b));
  QStringDecoder reference("windows-1252");
  ASSERT_TRUE(reference.isValid());
  const QString expect = reference.decode(all);
  const QString got = decodeText(all, kAnsi1252);
  for (int i = 0; i < int(all.size()); ++i)
    if (expect[i] != QChar(0xFFFD)) {
      EXPECT_EQ(got[i], expect[i]) << "byte " << (0x20 + i);
    }
  EXPECT_EQ(encodeText(got, kAnsi1252), all);
  EXPECT_EQ(encodeText(QStringLiteral("Ж€"), kAnsi1252), QByteArray("\\U+0416\x80"));
  EXPECT_EQ(decodeText("a\\U+0416b\\U+12", kAnsi1252), QStringLiteral("aЖb\\U+12"));
  EXPECT_EQ(encodeText(QStringLiteral("Ж€"), kUtf8), QStringLiteral("Ж€").toUtf8());
  EXPECT_EQ(decodeText(encodeText(QStringLiteral("Ж日本"), 932), 932), QStringLiteral("Ж日本"));
  EXPECT_EQ(codepageFromName("ansi_1252"), kAnsi1252);
  EXPECT_EQ(codepageFromName("NOPE"), 0);
}

TEST(DxfText, RealsReadBackExactly) {
  for (double v : {0.0, -0.0, 1.0, -0.5, 0.1, 1.0 / 3.0, 1e20, -2680430.068109198, 123456789.0, 5e-324, DBL_MAX}) {
    const QByteArray t = formatReal(v);
    EXPECT_EQ(std::strtod(t.constData(), nullptr), v) << t.constData();
    EXPECT_TRUE(t.contains('.') || t.contains('e')) << t.constData();  // never mistaken for an integer
    // Shortest: one significant digit less does not read back.
    QByteArray mantissa = t.split('e').first();
    mantissa.replace("-", "").replace(".", "");
    while (mantissa.startsWith('0')) mantissa.remove(0, 1);
    while (mantissa.endsWith('0')) mantissa.chop(1);
    const int digits = int(mantissa.size());
    char shorter[400];
    std::snprintf(shorter, sizeof shorter, "%.*g", qMax(digits - 1, 1), v);
    if (digits > 1) {
      EXPECT_NE(std::strtod(shorter, nullptr), v) << t.constData();
    }
  }
}

}  // namespace
