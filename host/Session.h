#pragma once
// The command line of zqprops: a "Command:" prompt that runs the drawing's
// commands (-PROPERTIES from the module, and the host's LIST, SAVE and
// QUIT), answered from a terminal, a pipe or a script file.
#include "DbDatabase.h"
#include "EdCommandStack.h"
#include <QStringList>
#include <QTextStream>
#include <deque>
#include <functional>

// Answers from a list of lines (a script): each line answers the prompt in
// front of it; when the lines run out, the command waiting is cancelled.
class ZqScriptIO : public OdEdUserIO {
 public:
  ZqScriptIO(const QStringList& lines, QTextStream& out, bool echo);
  OdString getString(const OdString& prompt) override;
  void putString(const OdString& text) override;
  bool atEnd() const { return m_lines.empty(); }

 private:
  std::deque<QString> m_lines;
  QTextStream& m_out;
  bool m_echo;
};

// Answers typed at a terminal or sent through a pipe (standard input).
class ZqConsoleIO : public OdEdUserIO {
 public:
  ZqConsoleIO(QTextStream& in, QTextStream& out) : m_in(in), m_out(out) {}
  OdString getString(const OdString& prompt) override;
  void putString(const OdString& text) override;
  bool atEnd() const { return m_in.atEnd(); }

 private:
  QTextStream& m_in;
  QTextStream& m_out;
};

struct ZqSessionOptions {
  QString inputPath;   // the drawing read; never overwritten unless outputPath names it
  QString outputPath;  // -o, the default target of SAVE
  bool infoInUcs = false;
};

class ZqSession {
 public:
  ZqSession(OdDbDatabase* db, const ZqSessionOptions& options, QTextStream& out, QTextStream& err);
  // Runs commands until QUIT or the end of input. Returns false when a
  // command failed in a way the exit status must show (a failed save).
  bool run(OdEdUserIO& io, const std::function<bool()>& atEnd);
  bool saved() const { return m_saved; }

 private:
  void list(OdEdUserIO& io);
  bool save(OdEdUserIO& io);

  OdDbDatabase* m_db;
  ZqSessionOptions m_options;
  QTextStream& m_out;
  QTextStream& m_err;
  bool m_saved = false;
};

// Saves db to path unless path is the input drawing and was not named by -o.
bool zqSaveDrawing(OdDbDatabase* db, const ZqSessionOptions& options, const QString& path, QString& error);
