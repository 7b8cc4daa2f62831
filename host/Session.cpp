#include "Session.h"
#include "Listing.h"
#include "DxfDatabase.h"
#include <QCoreApplication>
#include <QFileInfo>

namespace {
}

ZqScriptIO::ZqScriptIO(const QStringList& lines, QTextStream& out, bool echo) : m_out(out), m_echo(echo) {
  for (const QString& l : lines) m_lines.push_back(l);
}

OdString ZqScriptIO::getString(const OdString& prompt) {
  if (m_lines.empty()) throw OdEdCancel();
  const QString answer = m_lines.front();
  m_lines.pop_front();
  if (m_echo) m_out << prompt.qstring() << " " << answer << "\n";
  return OdString(answer);
}

void ZqScriptIO::putString(const OdString& text) { m_out << text.qstring() << "\n"; }

OdString ZqConsoleIO::getString(const OdString& prompt) {
  m_out << prompt.qstring() << " ";
  m_out.flush();
  QString line;
  if (!m_in.readLineInto(&line)) throw OdEdCancel();
  return OdString(line);
}

void ZqConsoleIO::putString(const OdString& text) {
  m_out << text.qstring() << "\n";
  m_out.flush();
}

ZqSession::ZqSession(OdDbDatabase* db, const ZqSessionOptions& options, QTextStream& out, QTextStream& err)
    : m_db(db), m_options(options), m_out(out), m_err(err) {}

bool ZqSession::run(OdEdUserIO& io, const std::function<bool()>& atEnd) {
  bool ok = true;
  OdEdCommandContext ctx(&io, m_db);
  while (!atEnd()) {
    QString name;
    try {
      name = io.getString(OdString(QCoreApplication::translate("zqprops", "Command:"))).qstring().trimmed();
    } catch (const OdEdCancel&) {
      break;
    }
    if (name.isEmpty()) continue;
    const QString upper = name.toUpper();
    if (upper == "QUIT" || upper == "_QUIT" || upper == "EXIT") break;
    try {
      if (upper == "LIST" || upper == "_LIST") {
        list(io);
      } else if (upper == "SAVE" || upper == "_SAVE" || upper == "SAVEAS" || upper == "_SAVEAS") {
        ok = save(io) && ok;
      } else if (OdEdCommand* cmd = odedRegCmds()->lookupCmd(OdString(name))) {
        cmd->execute(&ctx);
      } else {
        io.putString(OdString(QCoreApplication::translate("zqprops", "Unknown command \"%1\".").arg(name)));
      }
    } catch (const OdEdCancel&) {
      io.putString(OdString("*Cancel*"));
    }
  }
  return ok;
}

void ZqSession::list(OdEdUserIO& io) {
  OdDbObjectIdArray selection;
  for (;;) {
    const QString answer = io.getString(OdString(QCoreApplication::translate("zqprops", "Select objects:"))).qstring().trimmed();
    if (answer.isEmpty()) break;
    OdDbObjectPtr ms = m_db->getModelSpaceId().openObject();
    for (const OdDbObjectId& id : static_cast<OdDbBlockTableRecord*>(ms.get())->entityIds()) {
      OdDbObjectPtr obj = id.openObject();
      bool ok = false;
      const bool all = answer.compare("ALL", Qt::CaseInsensitive) == 0;
      const bool byHandle = answer.toULongLong(&ok, 16) == id.getHandle().value() && ok;
      const bool byType = obj->isA()->dxfName().qstring().compare(answer, Qt::CaseInsensitive) == 0;
      if ((all || byHandle || byType) && !selection.contains(id)) selection.append(id);
    }
  }
  for (const OdDbObjectId& id : selection) zqPrintInfo(m_out, m_db, id, m_options.infoInUcs);
  m_out.flush();
}

bool ZqSession::save(OdEdUserIO& io) {
  const QString fallback = m_options.outputPath;
  QString path = io.getString(OdString(QCoreApplication::translate("zqprops", "Save drawing as <%1>:").arg(fallback))).qstring().trimmed();
  if (path.isEmpty()) path = fallback;
  if (path.isEmpty()) {
    m_err << QCoreApplication::translate("zqprops", "zqprops: SAVE needs a file name (or -o).") << "\n";
    return false;
  }
  QString error;
  if (!zqSaveDrawing(m_db, m_options, path, error)) {
    m_err << "zqprops: " << error << "\n";
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
