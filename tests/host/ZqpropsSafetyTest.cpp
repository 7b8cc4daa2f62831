// zqprops with files that go wrong: a save stopped by a file size limit (as
// by a full disk), values that are not finite or not numbers, --strict, and
// a hyperlink with a line break. Exit codes, messages and the files left.
#include <gtest/gtest.h>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include "ZqTestSupport.h"
#include "ZqpropsRun.h"

#include <cerrno>
#include <cstring>

namespace {


QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}
void writeAll(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(bytes);
}

const QString kDemo = QString(ZQ_SOURCE_DIR) + "/samples/demo.dxf";

QByteArray drawing(const QByteArray& entities) {
  return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" + entities +
         "  0\nENDSEC\n  0\nEOF\n";
}
QByteArray line(const QByteArray& x) {
  return "  0\nLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n" + x +
         "\n 20\n2.0\n 30\n0.0\n 11\n3.0\n 21\n4.0\n 31\n0.0\n";
}
QByteArray arc(const QByteArray& radius) {
  return "  0\nARC\n  5\n2B\n100\nAcDbEntity\n  8\n0\n100\nAcDbCircle\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 40\n" + radius +
         "\n100\nAcDbArc\n 50\n0.0\n 51\n90.0\n";
}

// Under a file size limit smaller than the drawing the save fails with the
// system's reason and exit status 2; the existing output keeps every byte,
// and SIGXFSZ does not kill the program.
TEST(ZqpropsSafety, SaveStoppedByAFileSizeLimitKeepsTheOldFile) {
  const QString prlimit = QStandardPaths::findExecutable(QStringLiteral("prlimit"));
  if (prlimit.isEmpty()) GTEST_SKIP() << "prlimit (util-linux) is not installed";
  QTemporaryDir dir;
  const QString in = dir.filePath("in.dxf"), out = dir.filePath("out.dxf");
  ASSERT_TRUE(QFile::copy(kDemo, in));
  const QByteArray old = "an older drawing\n";
  writeAll(out, old);
  for (const char* limit : {"0", "2000"}) {
    SCOPED_TRACE(limit);
    const ProgramRun r = runProgram(prlimit, {QStringLiteral("--fsize=") + limit, zqpropsPath(), in, "--set", "Layer=0", "-o", out});
    EXPECT_FALSE(r.crashed);
    EXPECT_EQ(r.code, 2) << r.err.toStdString();
    EXPECT_TRUE(r.err.contains(QStringLiteral("zqprops: ") + out + " was not saved: " +
                               QString::fromLocal8Bit(std::strerror(EFBIG))))
        << r.err.toStdString();
    EXPECT_TRUE(readAll(out) == old);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), (QStringList{"in.dxf", "out.dxf"}));
  }
  // Without the limit the same save works.
  const ProgramRun r = zqprops({in, "--set", "Layer=0", "-o", out});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_GT(readAll(out).size(), 1000);
}

TEST(ZqpropsSafety, NonFiniteValuesWarnAndStrictRefuses) {
  QTemporaryDir dir;
  const QString in = dir.filePath("nan.dxf"), out = dir.filePath("out.dxf");
  const QByteArray bytes = drawing(line("nan"));
  writeAll(in, bytes);
  const QString warning = "line 26: LINE (handle 2A): group code 10 value 'nan' is not a finite number";

  ProgramRun r = zqprops({in, "-o", out});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_EQ(r.err.toStdString(), ("zqprops: " + in + ": warning: " + warning + "\n").toStdString());
  EXPECT_TRUE(readAll(out) == bytes);

  r = zqprops({in, "--strict", "--list"});
  EXPECT_EQ(r.code, 2);
  EXPECT_EQ(r.err.toStdString(), ("zqprops: " + in + ": " + warning + "\n").toStdString());
  EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();

  // A drawing without warnings reads strictly as ever.
  r = zqprops({kDemo, "--strict", "--list"});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  EXPECT_TRUE(r.out.contains("LINE ["));
}

TEST(ZqpropsSafety, MalformedValueOfAnUnmodelledEntityIsRefused) {
  QTemporaryDir dir;
  const struct {
    QByteArray bytes;
    const char* message;
  } cases[] = {
      {drawing(line("1.0") + arc("bad-float")), "line 54: ARC (handle 2B): group code 40 value 'bad-float' is not a number"},
      {drawing(arc("1.0") + "  0\nPOINT\n  5\n2C\n100\nAcDbEntity\n  8\n0\n 62\n99999999999\n100\nAcDbPoint\n 10\n0.0\n 20\n0.0\n 30\n0.0\n"),
       "line 48: POINT (handle 2C): group code 62 value '99999999999' is out of the range of its type (-32768 to 32767)"},
  };
  for (const auto& c : cases) {
    const QString in = dir.filePath("bad.dxf");
    writeAll(in, c.bytes);
    const ProgramRun r = zqprops({in, "--list"});
    EXPECT_EQ(r.code, 2);
    EXPECT_EQ(r.err.toStdString(), ("zqprops: " + in + ": " + QLatin1String(c.message) + "\n").toStdString());
  }
}

TEST(ZqpropsSafety, HyperlinkWithALineBreakIsRefused) {
  QTemporaryDir dir;
  const QString in = dir.filePath("in.dxf"), out = dir.filePath("out.dxf");
  ASSERT_TRUE(QFile::copy(kDemo, in));
  const QByteArray bytes = readAll(in);
  ProgramRun r = zqprops({in, "--set", "Hyperlink=https://example.org/\nsecond line", "-o", out});
  EXPECT_EQ(r.code, 1);
  EXPECT_TRUE(r.err.contains("A hyperlink cannot contain line breaks or control characters")) << r.err.toStdString();
  EXPECT_TRUE(readAll(out) == bytes);

  r = zqprops({in, "--set", "Hyperlink=https://example.org/x", "-o", out});
  EXPECT_EQ(r.code, 0) << r.err.toStdString();
  r = zqprops({out, "--list"});
  EXPECT_TRUE(r.out.contains("General/Hyperlink: https://example.org/x")) << r.out.toStdString();
}

}  // namespace
