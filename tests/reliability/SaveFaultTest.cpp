// Faults at save: the Nth write fails (as on a full disk), the file size
// limit is reached, the folder is read-only, the target is a folder or a
// device. Each time the file that was there keeps every byte, no temporary
// file is left behind, the program exits with status 2 and its message names
// the cause.
#include "ZqFuzzSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cerrno>
#include <cstring>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

// The write that fails, counted from 1; the writes before it go through.
int g_failAt = 0;
int g_writes = 0;

qint64 failingWrite(QFileDevice& file, const char* data, qint64 size, QString& reason) {
  if (++g_writes == g_failAt) {
    reason = QString::fromLocal8Bit(std::strerror(ENOSPC));
    return -1;
  }
  return file.write(data, size);
}

void writeFile(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << path.toStdString();
  ASSERT_EQ(f.write(bytes), bytes.size());
}

class SaveFailsAtWrite : public ::testing::TestWithParam<int> {
 protected:
  void TearDown() override { OdDxf::setSaveWriteFn(nullptr); }
};

TEST_P(SaveFailsAtWrite, OldFileWholeAndTheReasonGiven) {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("drawing.dxf"));
  const QByteArray old = "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
  writeFile(path, old);
  // Four pieces of 1 MB are written: the first, a middle and the last fail.
  QByteArray bytes((3 << 20) + 4321, 'x');
  g_failAt = GetParam();
  g_writes = 0;
  OdDxf::setSaveWriteFn(failingWrite);
  QString error;
  EXPECT_FALSE(OdDxf::saveBytes(path, bytes, error));
  EXPECT_EQ(g_writes, GetParam()) << "the writes went on after the failure";
  EXPECT_TRUE(error.contains(QStringLiteral("drawing.dxf"))) << error.toStdString();
  EXPECT_TRUE(error.contains(QString::fromLocal8Bit(std::strerror(ENOSPC)))) << error.toStdString();
  EXPECT_TRUE(zqfuzz::readFile(path) == old);
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("drawing.dxf")});
}

INSTANTIATE_TEST_SUITE_P(Writes, SaveFailsAtWrite, ::testing::Values(1, 2, 4));

// The same seam through the drawing database: the edit stays unsaved.
TEST(SaveFault, DrawingStaysModifiedWhenAWriteFails) {
  zqfuzz::startPlatform(false);
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("demo.dxf"));
  const QByteArray old = zqfuzz::readFile(QStringLiteral(ZQ_SOURCE_DIR "/samples/demo.dxf"));
  writeFile(path, old);
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(old, error);
  ASSERT_TRUE(db) << error.toStdString();
  db->setLUNITS(4);
  g_failAt = 1;
  g_writes = 0;
  OdDxf::setSaveWriteFn(failingWrite);
  EXPECT_FALSE(OdDxf::writeDrawing(db.get(), path, error));
  OdDxf::setSaveWriteFn(nullptr);
  EXPECT_TRUE(error.contains(QString::fromLocal8Bit(std::strerror(ENOSPC)))) << error.toStdString();
  EXPECT_TRUE(zqfuzz::readFile(path) == old);
  // Once the disk has room again the same save goes through.
  EXPECT_TRUE(OdDxf::writeDrawing(db.get(), path, error)) << error.toStdString();
  EXPECT_FALSE(zqfuzz::readFile(path) == old);
}

// zqprops saving where it cannot: run as a user would, with the limit or
// the user the case needs set in the child only.
struct HostCase {
  const char* name;
  // Prepares the folder; returns the target to give to -o.
  std::function<QString(QTemporaryDir&)> target;
  std::function<void()> inChild;  // runs in zqprops' process before it starts
  const char* cause;              // what the message must name
};

void PrintTo(const HostCase& c, std::ostream* os) { *os << c.name; }

class SaveFaultHost : public ::testing::TestWithParam<HostCase> {};

const QByteArray kOld = "old contents\n";

TEST_P(SaveFaultHost, ExitStatusTwoOldFileWholeCauseNamed) {
  const HostCase& c = GetParam();
  QTemporaryDir dir;
  ASSERT_TRUE(QFile::setPermissions(dir.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                                    QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther));
  const QString input = dir.filePath(QStringLiteral("in.dxf"));
  writeFile(input, zqfuzz::readFile(QStringLiteral(ZQ_SOURCE_DIR "/samples/demo.dxf")));
  const QString target = c.target(dir);
  if (target.isEmpty()) GTEST_SKIP() << "not possible on this system";
  const QFileInfo before(target);
  const QByteArray oldBytes = before.isFile() ? zqfuzz::readFile(target) : QByteArray();

  QProcess p;
  p.setProgram(QStringLiteral(ZQ_BINARY_DIR "/bin/zqprops"));
  p.setArguments({input, QStringLiteral("--set"), QStringLiteral("Color=1"), QStringLiteral("-o"), target});
  if (c.inChild) p.setChildProcessModifier(c.inChild);
  p.start();
  ASSERT_TRUE(p.waitForFinished(120000));
  const QString err = QString::fromUtf8(p.readAllStandardError());
  if (QFileInfo(dir.filePath(QStringLiteral("ro"))).isDir())  // so that the folder can be removed
    QFile::setPermissions(dir.filePath(QStringLiteral("ro")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(p.exitCode(), 2) << err.toStdString();
  EXPECT_TRUE(err.contains(QLatin1String(c.cause), Qt::CaseInsensitive)) << err.toStdString();
  const QFileInfo after(target);
  EXPECT_EQ(after.isFile(), before.isFile());
  EXPECT_EQ(after.isDir(), before.isDir());
  if (before.isFile()) {
    EXPECT_TRUE(zqfuzz::readFile(target) == oldBytes) << "the old file changed";
  }
  struct stat st {};
  if (QLatin1String(c.name) == QLatin1String("TargetIsADevice")) {
    EXPECT_EQ(stat(target.toLocal8Bit().constData(), &st), 0);
    EXPECT_TRUE(S_ISCHR(st.st_mode)) << target.toStdString() << " is no longer a device";
  }
  // Nothing but what was there before.
  QStringList left = QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  left.removeAll(QStringLiteral("in.dxf"));
  left.removeAll(QStringLiteral("ro"));
  left.removeAll(QStringLiteral("old.dxf"));
  left.removeAll(QStringLiteral("folder.dxf"));
  left.removeAll(QStringLiteral("full.dxf"));
  EXPECT_TRUE(left.isEmpty()) << left.join(QLatin1Char(' ')).toStdString();
}

QString oldFile(QTemporaryDir& dir) {
  const QString path = dir.filePath(QStringLiteral("old.dxf"));
  writeFile(path, kOld);
  return path;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, SaveFaultHost,
    ::testing::Values(
        HostCase{"FileSizeLimit", oldFile,
                 [] {
                   rlimit rl{1000, 1000};
                   setrlimit(RLIMIT_FSIZE, &rl);
                 },
                 "File too large"},
        HostCase{"ReadOnlyFolder",
                 [](QTemporaryDir& dir) {
                   const QString ro = dir.filePath(QStringLiteral("ro"));
                   QDir().mkdir(ro);
                   writeFile(ro + QStringLiteral("/old.dxf"), kOld);
                   // The file could be written; the folder cannot take the temporary file.
                   QFile::setPermissions(ro + QStringLiteral("/old.dxf"), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                                                          QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther);
                   QFile::setPermissions(ro, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                                                 QFile::ReadOther | QFile::ExeOther);
                   return ro + QStringLiteral("/old.dxf");
                 },
                 [] {
                   // The superuser writes into read-only folders: be nobody.
                   if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) _exit(99);
                 },
                 "Permission denied"},
        HostCase{"TargetIsAFolder",
                 [](QTemporaryDir& dir) {
                   const QString folder = dir.filePath(QStringLiteral("folder.dxf"));
                   QDir().mkdir(folder);
                   return folder;
                 },
                 nullptr, "is a folder"},
        // A device like /dev/full (a disk that is always full), made in the
        // folder: were it replaced by the saved file, no system file is lost.
        HostCase{"TargetIsADevice",
                 [](QTemporaryDir& dir) {
                   const QString path = dir.filePath(QStringLiteral("full.dxf"));
                   return mknod(path.toLocal8Bit().constData(), S_IFCHR | 0666, makedev(1, 7)) == 0 ? path : QString();
                 },
                 nullptr, "device"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
