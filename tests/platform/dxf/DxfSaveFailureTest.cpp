// A save that cannot be written in full (here: a file size limit, as a full
// disk would stop it) is refused with the system's reason, and the file it
// would have replaced keeps every byte; no temporary file is left behind.
// The limit is set in a forked child, which ignores SIGXFSZ so that the
// write fails instead of the process being killed.
#include "DxfDatabaseSupport.h"

#include <QDir>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace dxfdb;

namespace {

struct ChildResult {
  bool saved = false;
  QString error;
};

// Runs `save` in a child whose files may not grow beyond `limit` bytes.
template <class Save>
ChildResult saveUnderLimit(rlim_t limit, Save save) {
  int fds[2];
  if (pipe(fds) != 0) {
    ADD_FAILURE() << "pipe: " << std::strerror(errno);
    return {};
  }
  const pid_t pid = fork();
  if (pid == 0) {
    close(fds[0]);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit rl{limit, limit};
    setrlimit(RLIMIT_FSIZE, &rl);
    QString error;
    const bool ok = save(error);
    const QByteArray answer = (ok ? "1" : "0") + error.toUtf8();
    [[maybe_unused]] const ssize_t n = write(fds[1], answer.constData(), size_t(answer.size()));
    close(fds[1]);
    _exit(0);
  }
  close(fds[1]);
  QByteArray answer;
  char buf[512];
  for (ssize_t n; (n = read(fds[0], buf, sizeof buf)) > 0;) answer.append(buf, n);
  close(fds[0]);
  int status = 0;
  waitpid(pid, &status, 0);
  EXPECT_TRUE(WIFEXITED(status)) << "the child was killed by signal " << (WIFSIGNALED(status) ? WTERMSIG(status) : 0);
  ChildResult r;
  r.saved = answer.startsWith('1');
  r.error = QString::fromUtf8(answer.mid(1));
  return r;
}

QByteArray readAll(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<missing>");
}

struct LimitCase {
  const char* name;
  rlim_t limit;      // bytes the child may write per file
  qsizetype size;    // bytes to save
};

void PrintTo(const LimitCase& c, std::ostream* os) { *os << c.name; }

class DxfSaveFailure : public ::testing::TestWithParam<LimitCase> {};

TEST_P(DxfSaveFailure, RefusedWithTheReasonAndTheOldFileWhole) {
  const LimitCase& c = GetParam();
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("drawing.dxf"));
  const QByteArray old = "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
  {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(old);
  }
  QByteArray bytes(c.size, 'x');
  for (qsizetype i = 0; i < bytes.size(); i += 80) bytes[i] = '\n';
  const ChildResult r = saveUnderLimit(c.limit, [&](QString& error) { return OdDxf::saveBytes(path, bytes, error); });
  EXPECT_FALSE(r.saved);
  EXPECT_TRUE(r.error.contains(QStringLiteral("drawing.dxf"))) << r.error.toStdString();
  EXPECT_TRUE(r.error.contains(QString::fromLocal8Bit(std::strerror(EFBIG)), Qt::CaseInsensitive)) << r.error.toStdString();
  const QByteArray now = readAll(path);
  EXPECT_TRUE(now == old) << "the file now holds " << now.size() << " bytes, not the " << old.size() << " it had";
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("drawing.dxf")});
}

INSTANTIATE_TEST_SUITE_P(Limits, DxfSaveFailure,
                         ::testing::Values(LimitCase{"NothingFits", 0, 1000},
                                           LimitCase{"PartFits", 4096, 10000},
                                           LimitCase{"AllButTheLastByteFits", 65535, 65536},
                                           LimitCase{"SeveralPieces", 3 << 20, (3 << 20) + 100}),
                         [](const auto& info) { return std::string(info.param.name); });

// A drawing saved through the database under a limit: refused, and the
// drawing still counts as modified (nothing was saved).
TEST(DxfSaveFailureDrawing, EditStaysUnsavedWhenTheWriteFails) {
  odDbInitialize();
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("out.dxf"));
  const QByteArray line = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n"
                          "  0\nLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
                          " 11\n3.0\n 21\n4.0\n 31\n0.0\n  0\nENDSEC\n  0\nEOF\n";
  {
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(line);
  }
  const ChildResult r = saveUnderLimit(40, [&](QString& error) {
    OdDbDatabasePtr db = load(line);
    if (!db) return true;  // reported by load()
    OdDbObjectPtr obj = db->getOdDbObjectId(OdDbHandle(quint64(0x2A))).openObject(OdDb::kForWrite);
    static_cast<OdDbLine*>(obj.get())->setStartPoint(OdGePoint3d(5, 6, 7));
    obj.release();
    const bool saved = OdDxf::writeDrawing(db.get(), path, error);
    obj = db->getOdDbObjectId(OdDbHandle(quint64(0x2A))).openObject();
    if (!saved && !obj->isModified()) error += QStringLiteral(" (but the line counts as saved)");
    return saved;
  });
  EXPECT_FALSE(r.saved);
  EXPECT_FALSE(r.error.contains(QStringLiteral("counts as saved"))) << r.error.toStdString();
  const QByteArray now = readAll(path);
  EXPECT_TRUE(now == line) << "the file now holds " << now.size() << " bytes, not the " << line.size() << " it had";
}

}  // namespace
