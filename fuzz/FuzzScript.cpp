// Fuzz target: the script and command reader of zqprops (ZqSession answered
// by ZqScriptIO, as --script runs a file) on a loaded drawing. The first byte
// chooses the drawing; the rest are the script's lines.
//
// SAVE writes to a file in a scratch folder only: a SAVE line is always
// followed by an empty answer, which saves to the session's output file.
//
// What must hold: the script ends (the reader cancels a command when the
// lines run out, and a wrong line is reported and passed over); every SAVE
// goes through (an edit the drawing cannot keep is
// refused when it is made, and the scratch folder takes any file); and what
// it saved loads again.
#include "ZqFuzzSupport.h"
#include "Session.h"

#include <QTemporaryDir>
#include <QTextStream>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static const bool started = zqfuzz::startPlatform(true);
  static const std::vector<QByteArray> drawings = zqfuzz::seedDrawings();
  static QTemporaryDir scratch;
  if (!started || drawings.empty() || size < 1 || !scratch.isValid()) return 0;
  const QByteArray& source = drawings[data[0] % drawings.size()];
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(source, error);
  if (!db) zqfuzz::fail("a seed drawing does not load:", error);

  QStringList lines = QString::fromUtf8(reinterpret_cast<const char*>(data + 1), qsizetype(size - 1)).split('\n');
  if (lines.size() > 200) return 0;  // long scripts only repeat what short ones try
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QString word = lines[i].trimmed().toUpper();
    if (word == "SAVE" || word == "_SAVE" || word == "SAVEAS" || word == "_SAVEAS") {
      if (i + 1 < lines.size()) lines[i + 1].clear();
      else lines.append(QString());
    }
  }
  const QString output = scratch.filePath(QStringLiteral("out.dxf"));
  QFile::remove(output);
  QString outText, errText;
  QTextStream out(&outText), err(&errText);
  ZqScriptIO io(lines, out, true);
  ZqSessionOptions options;
  options.inputPath = scratch.filePath(QStringLiteral("in.dxf"));
  options.outputPath = output;
  options.keepGoing = true;  // a wrong line must not hide what the lines after it do
  ZqSession session(db.get(), options, out, err);
  session.run(io, [&] { return io.atEnd(); });
  if (session.saveFailed()) zqfuzz::fail("a save failed:", errText);
  if (session.saved()) {
    if (!OdDxf::readDrawing(output, error)) zqfuzz::fail("a drawing the script saved does not load:", error);
  }
  return 0;
}
