#include "Session.h"
#include "Listing.h"
#include "DxfDatabase.h"
#include "DbUndo.h"
#include "ZqSelection.h"
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>
#ifdef ZQ_HAVE_EDITLINE
#include <editline/readline.h>
#endif

ZqScriptIO::ZqScriptIO(const QStringList& lines, QTextStream& out, bool echo) : m_out(out), m_echo(echo) {
  int number = 0;
  for (const QString& l : lines) {
    ++number;
    if (l.trimmed().startsWith(';')) continue;
    m_lines.push_back({l, number});
  }
}

OdString ZqScriptIO::getString(const OdString& prompt) {
  if (m_lines.empty()) throw OdEdCancel();
  const Line line = m_lines.front();
  m_lines.pop_front();
  m_lineNumber = line.number;
  if (m_echo) m_out << prompt.qstring() << " " << line.text << "\n";
  return OdString(line.text);
}

OdString ZqScriptIO::getCommand(const OdString& prompt) {
  if (m_lines.empty()) throw OdEdCancel();
  const Line line = m_lines.front();
  const int space = line.text.indexOf(' ');
  if (space >= 0 && !line.text.left(space).trimmed().isEmpty()) {
    m_lines.front().text = line.text.left(space);
    m_lines.insert(m_lines.begin() + 1, Line{line.text.mid(space + 1), line.number});
  }
  return getString(prompt);
}

void ZqScriptIO::putString(const OdString& text) { m_out << text.qstring() << "\n"; }

ZqConsoleIO::ZqConsoleIO(QTextStream& in, QTextStream& out) : m_in(in), m_out(out) {
#ifdef ZQ_HAVE_EDITLINE
  m_terminal = isatty(STDIN_FILENO) && isatty(STDOUT_FILENO);
#endif
}

OdString ZqConsoleIO::getString(const OdString& prompt) {
#ifdef ZQ_HAVE_EDITLINE
  if (m_terminal) {
    m_out.flush();
    char* typed = readline((prompt.qstring() + ' ').toLocal8Bit().constData());
    if (!typed) {
      m_eof = true;
      throw OdEdCancel();
    }
    const QString line = QString::fromLocal8Bit(typed);
    if (!line.trimmed().isEmpty()) add_history(typed);
    std::free(typed);
    return OdString(line);
  }
#endif
  m_out << prompt.qstring() << " ";
  m_out.flush();
  QString line;
  if (!m_in.readLineInto(&line)) {
    m_eof = true;
    throw OdEdCancel();
  }
  return OdString(line);
}

void ZqConsoleIO::putString(const OdString& text) {
  m_out << text.qstring() << "\n";
  m_out.flush();
}

ZqSession::ZqSession(OdDbDatabase* db, const ZqSessionOptions& options, QTextStream& out, QTextStream& err)
    : m_db(db), m_options(options), m_out(out), m_err(err) {}

void ZqSession::scriptError(OdEdUserIO& io, const QString& text) {
  auto* script = dynamic_cast<ZqScriptIO*>(&io);
  if (!script) {
    io.putString(OdString(text));
    return;
  }
  m_out.flush();
  m_err << "zqprops: " << m_options.scriptName << ":" << script->lineNumber() << ": " << text << "\n";
  m_err.flush();
}

bool ZqSession::run(OdEdUserIO& io, const std::function<bool()>& atEnd) {
  bool ok = true;
  OdEdCommandContext ctx(&io, m_db);
  auto* script = dynamic_cast<ZqScriptIO*>(&io);
  while (!atEnd()) {
    QString name;
    const OdString prompt(QCoreApplication::translate("zqprops", "Command:"));
    try {
      name = (script ? script->getCommand(prompt) : io.getString(prompt)).qstring().trimmed();
    } catch (const OdEdCancel&) {
      break;
    }
    if (name.isEmpty()) continue;
    const QString upper = name.startsWith('_') ? name.mid(1).toUpper() : name.toUpper();
    if (upper == "QUIT" || upper == "EXIT") break;
    try {
      if (upper == "LIST") {
        list(io);
      } else if (upper == "SAVE" || upper == "SAVEAS") {
        ok = save(io) && ok;
      } else if (upper == "U") {
        undo(io, 1);
      } else if (upper == "UNDO") {
        const QString answer =
            io.getString(OdString(QCoreApplication::translate("zqprops", "Enter the number of operations to undo <1>:"))).qstring().trimmed();
        bool number = true;
        const int steps = answer.isEmpty() ? 1 : answer.toInt(&number);
        if (!number || steps < 1) {
          scriptError(io, QCoreApplication::translate("zqprops", "UNDO needs a whole number of operations from 1 on, not \"%1\".").arg(answer));
          if (script) ok = false;
          if (script && !m_options.keepGoing) return false;
        } else {
          undo(io, steps);
        }
      } else if (upper == "REDO") {
        redo(io);
      } else if (OdEdCommand* cmd = odedRegCmds()->lookupCmd(OdString(name))) {
        cmd->execute(&ctx);
      } else {
        scriptError(io, QCoreApplication::translate("zqprops", "Unknown command \"%1\".").arg(name));
        if (script) {
          ok = false;
          if (!m_options.keepGoing) return false;
        }
      }
    } catch (const OdEdCancel&) {
      io.putString(OdString("*Cancel*"));
    }
  }
  if (m_options.askToSave) offerToSave(io);
  return ok;
}

void ZqSession::undo(OdEdUserIO& io, int steps) {
  OdDbUndoJournal& journal = m_db->undoJournal();
  for (int i = 0; i < steps; ++i) {
    const QString name = journal.undoName().qstring();
    if (!journal.undo()) {
      io.putString(OdString(QCoreApplication::translate("zqprops", "Everything has been undone.")));
      return;
    }
    io.putString(OdString(QCoreApplication::translate("zqprops", "Undone: %1").arg(name)));
  }
}

void ZqSession::redo(OdEdUserIO& io) {
  OdDbUndoJournal& journal = m_db->undoJournal();
  const QString name = journal.redoName().qstring();
  if (!journal.redo()) {
    io.putString(OdString(QCoreApplication::translate("zqprops", "Nothing to redo.")));
    return;
  }
  io.putString(OdString(QCoreApplication::translate("zqprops", "Redone: %1").arg(name)));
}

void ZqSession::offerToSave(OdEdUserIO& io) {
  const int unsaved = m_db->undoJournal().unsavedSteps();
  if (unsaved == 0) return;
  try {
    const QString question = unsaved == 1 ? QCoreApplication::translate("zqprops", "1 unsaved edit. Save the drawing? [Yes/No] <Yes>:")
                                          : QCoreApplication::translate("zqprops", "%1 unsaved edits. Save the drawing? [Yes/No] <Yes>:").arg(unsaved);
    const QString answer = io.getString(OdString(question))
                               .qstring().trimmed();
    if (answer.isEmpty() || QStringLiteral("yes").startsWith(answer, Qt::CaseInsensitive) ||
        QCoreApplication::translate("zqprops", "yes").startsWith(answer, Qt::CaseInsensitive))
      save(io);
    else
      m_declined = true;
  } catch (const OdEdCancel&) {
    // No answer (the end of input): the caller reports the unsaved edits.
  }
}

void ZqSession::list(OdEdUserIO& io) {
  OdDbObjectIdArray selection;
  for (;;) {
    const QString answer = io.getString(OdString(QCoreApplication::translate("zqprops", "Select objects:"))).qstring().trimmed();
    if (answer.isEmpty()) break;
    OdDbObjectIdArray found;
    QString why;
    if (!CZqSelectionFilter::SelectByAnswer(m_db, answer, found, &why)) {
      io.putString(OdString(why));
      continue;
    }
    for (const OdDbObjectId& id : found)
      if (!selection.contains(id)) selection.append(id);
  }
  if (!selection.isEmpty()) CZqSelectionFilter::SetPrevious(selection);
  for (const OdDbObjectId& id : selection) zqPrintInfo(m_out, m_db, id, m_options.infoInUcs);
  m_out.flush();
}

bool ZqSession::save(OdEdUserIO& io) {
  const QString fallback = m_options.outputPath;
  QString path = io.getString(OdString(QCoreApplication::translate("zqprops", "Save drawing as <%1>:").arg(fallback))).qstring().trimmed();
  if (path.isEmpty()) path = fallback;
  if (path.isEmpty()) {
    m_err << QCoreApplication::translate("zqprops", "zqprops: SAVE needs a file name (or -o).") << "\n";
    m_saveFailed = true;
    return false;
  }
  QString error;
  if (!zqSaveDrawing(m_db, m_options, path, error)) {
    m_err << "zqprops: " << error << "\n";
    m_saveFailed = true;
    return false;
  }
  m_saved = true;
  io.putString(OdString(QCoreApplication::translate("zqprops", "Saved %1.").arg(path)));
  return true;
}

bool zqSaveDrawing(OdDbDatabase* db, const ZqSessionOptions& options, const QString& path, QString& error) {
  const QString target = QFileInfo(path).absoluteFilePath();
  const bool isInput = !options.inputPath.isEmpty() && target == QFileInfo(options.inputPath).absoluteFilePath();
  const bool named = !options.outputPath.isEmpty() && target == QFileInfo(options.outputPath).absoluteFilePath();
  if (isInput && !named) {
    error = QCoreApplication::translate("zqprops", "%1 is the input drawing; name it with -o to overwrite it.").arg(path);
    return false;
  }
  return OdDxf::writeDrawing(db, path, error);
}
