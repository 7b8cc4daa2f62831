// Drawings built to exhaust a reader: ten million vertices in one polyline,
// a text value of a gigabyte, blocks nested ten thousand deep, two blocks
// that insert each other. zqprops lists, edits and saves each, or refuses it
// with the line it stopped at: it ends normally within a bound (a watchdog,
// not a speed check), its memory stays within a few times the file's size,
// and nothing recurses deep enough to overflow the stack.
#include "ZqFuzzSupport.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int kSanitizerFactor = 4;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr int kSanitizerFactor = 4;
#else
constexpr int kSanitizerFactor = 1;
#endif
#else
constexpr int kSanitizerFactor = 1;
#endif

struct ChildRun {
  bool finished = false;  // within the bound
  bool signalled = false;
  int code = -1;
  long maxRssMb = 0;
  QString err;
};

// Runs zqprops with `args`, killing it after `bound` seconds; the child's
// peak memory comes from wait4.
ChildRun runZqprops(const QStringList& args, int bound, const QString& errFile) {
  std::vector<QByteArray> storage{QByteArray(ZQ_BINARY_DIR "/bin/zqprops")};
  for (const QString& a : args) storage.push_back(a.toLocal8Bit());
  std::vector<char*> argv;
  for (QByteArray& s : storage) argv.push_back(s.data());
  argv.push_back(nullptr);
  const QByteArray errPath = errFile.toLocal8Bit();
  const pid_t pid = fork();
  if (pid == 0) {
    const int null = open("/dev/null", O_WRONLY);
    const int err = open(errPath.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    dup2(null, 1);
    dup2(err, 2);
    execv(argv[0], argv.data());
    _exit(127);
  }
  ChildRun r;
  int status = 0;
  rusage usage{};
  for (int waited = 0; waited < bound * 20; ++waited) {
    if (wait4(pid, &status, WNOHANG, &usage) == pid) {
      r.finished = true;
      break;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  if (!r.finished) {
    kill(pid, SIGKILL);
    wait4(pid, &status, 0, &usage);
  }
  r.signalled = WIFSIGNALED(status);
  r.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  r.maxRssMb = usage.ru_maxrss / 1024;
  r.err = QString::fromLocal8Bit(zqfuzz::readFile(errFile).left(4000));
  return r;
}

// Writes a drawing of the release given: the BLOCKS section and the
// ENTITIES section given. Unbuffered, so that this process stays small (a
// child's peak memory counts from its parent's).
bool writeDrawing(const QString& path, const QByteArray& release, const std::function<void(QFile&)>& blocks,
                  const std::function<void(QFile&)>& entities) {
  QFile f(path);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return false;
  f.write("  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n" + release + "\n  0\nENDSEC\n"
          "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\n0\n 70\n0\n 62\n7\n  6\nCONTINUOUS\n"
          "  0\nENDTAB\n  0\nENDSEC\n  0\nSECTION\n  2\nBLOCKS\n");
  if (blocks) blocks(f);
  f.write("  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n");
  entities(f);
  f.write("  0\nENDSEC\n  0\nEOF\n");
  return f.error() == QFileDevice::NoError;
}

void block(QFile& f, const QByteArray& name, const QByteArray& inserts) {
  f.write("  0\nBLOCK\n  8\n0\n  2\n" + name + "\n 70\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n  3\n" + name + "\n");
  if (!inserts.isEmpty()) f.write("  0\nINSERT\n  8\n0\n  2\n" + inserts + "\n 10\n1.0\n 20\n0.0\n 30\n0.0\n");
  f.write("  0\nENDBLK\n  8\n0\n");
}

struct LimitCase {
  const char* name;
  bool huge;  // hundreds of megabytes: not under the sanitizers, whose memory use is many times more
  std::function<bool(const QString&)> make;
};

void PrintTo(const LimitCase& c, std::ostream* os) { *os << c.name; }

class ResourceLimits : public ::testing::TestWithParam<LimitCase> {};

TEST_P(ResourceLimits, HandledOrRefusedWithinBounds) {
  if (GetParam().huge && kSanitizerFactor > 1) GTEST_SKIP() << "too big to run under the sanitizers";
  QTemporaryDir dir;
  const QString input = dir.filePath(QStringLiteral("in.dxf")), output = dir.filePath(QStringLiteral("out.dxf"));
  ASSERT_TRUE(GetParam().make(input)) << "cannot write the drawing";
  const long inputMb = long(QFileInfo(input).size() >> 20);
  const long limitMb = (16 * inputMb + 300) * kSanitizerFactor;
  const QString errFile = dir.filePath(QStringLiteral("err.txt"));

  // Listed with the information, then edited and saved.
  // (--info of ten million vertices would list each one: the listing is as
  // long as the drawing is big, so only the rows are listed.)
  const QStringList listing = GetParam().huge ? QStringList{input, QStringLiteral("--list")}
                                              : QStringList{input, QStringLiteral("--list"), QStringLiteral("--info")};
  for (const QStringList& args : {listing,
                                  QStringList{input, QStringLiteral("--set"), QStringLiteral("Color=1"), QStringLiteral("-o"), output}}) {
    SCOPED_TRACE(args.join(QLatin1Char(' ')).toStdString());
    const ChildRun r = runZqprops(args, 600, errFile);
    ASSERT_TRUE(r.finished) << "still running after the bound";
    ASSERT_FALSE(r.signalled) << "killed by a signal (stack overflow?): " << r.err.toStdString();
    EXPECT_LE(r.maxRssMb, limitMb) << "for a drawing of " << inputMb << " MB";
    ASSERT_TRUE(r.code == 0 || r.code == 1 || r.code == 2) << r.code << ": " << r.err.toStdString();
    if (r.code == 2) {
      EXPECT_TRUE(zqfuzz::namesAPlace(r.err.section(QStringLiteral(": "), 2))) << r.err.toStdString();
      return;  // refused: nothing to edit
    }
  }
  QString error;
  EXPECT_TRUE(OdDxf::readDrawing(output, error)) << error.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ResourceLimits,
    ::testing::Values(
        LimitCase{"TenMillionVertices", true,
                  [](const QString& path) {
                    return writeDrawing(path, "AC1015", nullptr, [](QFile& f) {
                      f.write("  0\nLWPOLYLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbPolyline\n 90\n10000000\n 70\n0\n");
                      QByteArray chunk;
                      for (int i = 0; i < 10'000'000; ++i) {
                        chunk += " 10\n";
                        chunk += QByteArray::number(i % 1000);
                        chunk += ".5\n 20\n";
                        chunk += QByteArray::number(i / 1000);
                        chunk += ".0\n";
                        if (chunk.size() > (1 << 20)) {
                          f.write(chunk);
                          chunk.clear();
                        }
                      }
                      f.write(chunk);
                    });
                  }},
        LimitCase{"GigabyteString", true,
                  [](const QString& path) {
                    return writeDrawing(path, "AC1009", nullptr, [](QFile& f) {
                      f.write("  0\nTEXT\n  8\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 40\n1.0\n  1\n");
                      const QByteArray chunk(1 << 20, 'x');
                      for (int i = 0; i < 1024; ++i) f.write(chunk);
                      f.write("\n");
                    });
                  }},
        LimitCase{"BlocksNestedTenThousandDeep", false,
                  [](const QString& path) {
                    return writeDrawing(
                        path, "AC1009",
                        [](QFile& f) {
                          for (int i = 0; i < 10'000; ++i)
                            block(f, "B" + QByteArray::number(i), i + 1 < 10'000 ? "B" + QByteArray::number(i + 1) : QByteArray());
                        },
                        [](QFile& f) { f.write("  0\nINSERT\n  8\n0\n  2\nB0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n"); });
                  }},
        LimitCase{"BlocksInsertingEachOther", false,
                  [](const QString& path) {
                    return writeDrawing(
                        path, "AC1009",
                        [](QFile& f) {
                          block(f, "A", "B");
                          block(f, "B", "A");
                          block(f, "SELF", "SELF");
                        },
                        [](QFile& f) {
                          f.write("  0\nINSERT\n  8\n0\n  2\nA\n 10\n0.0\n 20\n0.0\n 30\n0.0\n"
                                  "  0\nINSERT\n  8\n0\n  2\nSELF\n 10\n0.0\n 20\n0.0\n 30\n0.0\n");
                        });
                  }}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
