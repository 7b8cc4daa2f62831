#pragma once
// The command line of zqprops: a "Command:" prompt that runs the drawing's
// commands (-PROPERTIES from the module, and the host's LIST, U, UNDO,
// REDO, SAVE and QUIT), answered from a terminal, a pipe or a script file.
#include "DbDatabase.h"
#include "EdCommandStack.h"
#include <QStringList>
#include <QTextStream>
#include <deque>
#include <functional>

// Answers from a list of lines (a script): each line answers the prompt in
// front of it; when the lines run out, the command waiting is cancelled.
// Lines whose first character other than a blank is ';' are comments. At
// the "Command:" prompt a space is Enter, as in CAD scripts: "UNDO 3" is
// the command and its answer.
class ZqScriptIO : public OdEdUserIO {
 public:
  ZqScriptIO(const QStringList& lines, QTextStream& out, bool echo);
  OdString getString(const OdString& prompt) override;
  void putString(const OdString& text) override;
  bool atEnd() const { return m_lines.empty(); }
  // The next command word, the rest of its line queued as answers.
  OdString getCommand(const OdString& prompt);
  // The line of the script the last answer came from (from 1).
  int lineNumber() const { return m_lineNumber; }

 private:
  struct Line {
    QString text;
    int number;
  };
  std::deque<Line> m_lines;
  QTextStream& m_out;
  bool m_echo;
  int m_lineNumber = 0;
};

// Answers typed at a terminal or sent through a pipe (standard input). At a
// terminal, lines are edited and kept in a history (libedit) when built with it.
class ZqConsoleIO : public OdEdUserIO {
 public:
  ZqConsoleIO(QTextStream& in, QTextStream& out);
  OdString getString(const OdString& prompt) override;
  void putString(const OdString& text) override;
  bool atEnd() const { return m_eof || (!m_terminal && m_in.atEnd()); }
  bool isTerminal() const { return m_terminal; }

 private:
  QTextStream& m_in;
  QTextStream& m_out;
  bool m_terminal = false;
  bool m_eof = false;
};

struct ZqSessionOptions {
  QString inputPath;   // the drawing read; never overwritten unless outputPath names it
  QString outputPath;  // -o, the default target of SAVE
  bool infoInUcs = false;
  QString scriptName;  // the script's file name, for error lines
  bool keepGoing = false;  // go on past a script error
  bool askToSave = false;  // at QUIT or the end of input, offer to save unsaved edits
};

class ZqSession {
 public:
  ZqSession(OdDbDatabase* db, const ZqSessionOptions& options, QTextStream& out, QTextStream& err);
  // Runs commands until QUIT or the end of input. Returns false when a
  // command failed in a way the exit status must show (a failed save, an
  // unknown command in a script).
  bool run(OdEdUserIO& io, const std::function<bool()>& atEnd);
  bool saved() const { return m_saved; }
  // A SAVE or SAVEAS of this session did not write its file.
  bool saveFailed() const { return m_saveFailed; }
  // The user answered No when offered to save the unsaved edits.
  bool declinedToSave() const { return m_declined; }

 private:
  void list(OdEdUserIO& io);
  bool save(OdEdUserIO& io);
  void undo(OdEdUserIO& io, int steps);
  void redo(OdEdUserIO& io);
  void offerToSave(OdEdUserIO& io);
  // An error of a script line: "zqprops: FILE:LINE: text" on standard error.
  void scriptError(OdEdUserIO& io, const QString& text);

  OdDbDatabase* m_db;
  ZqSessionOptions m_options;
  QTextStream& m_out;
  QTextStream& m_err;
  bool m_saved = false;
  bool m_saveFailed = false;
  bool m_declined = false;
};

// Saves db to path unless path is the input drawing and was not named by -o.
bool zqSaveDrawing(OdDbDatabase* db, const ZqSessionOptions& options, const QString& path, QString& error);
