#pragma once
// Runs a program of the build (zqprops by default) as a user would: its
// arguments, what it reads on standard input, and what comes back.
#include <QProcess>
#include <QString>
#include <QStringList>

struct ProgramRun {
  int code = -1;
  bool crashed = false;  // ended by a signal rather than an exit
  QString out, err;
};

inline ProgramRun runProgram(const QString& program, const QStringList& args, const QByteArray& input = {}) {
  QProcess p;
  p.setProgram(program);
  p.setArguments(args);
  p.start();
  if (!input.isEmpty()) p.write(input);
  p.closeWriteChannel();
  p.waitForFinished(120000);
  return {p.exitCode(), p.exitStatus() != QProcess::NormalExit, QString::fromUtf8(p.readAllStandardOutput()),
          QString::fromUtf8(p.readAllStandardError())};
}

inline QString zqpropsPath() { return QString(ZQ_BINARY_DIR) + "/bin/zqprops"; }
inline ProgramRun zqprops(const QStringList& args, const QByteArray& input = {}) {
  return runProgram(zqpropsPath(), args, input);
}
