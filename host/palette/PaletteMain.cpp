// zqpalette: a drawing, a selection and the Properties palette in a window,
// with ZQProperties loaded as the CAD host loads it.
#include "PaletteWindow.h"
#include "PaletteWidget.h"
#include "DrawingView.h"
#include "RxModule.h"
#include "DbPlainClasses.h"
#include "ZqServices.h"
#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

namespace {
bool installTranslation(QApplication& app, const QString& code, QTranslator& translator) {
  const QString dir = QCoreApplication::applicationDirPath();
  for (const QString& folder : {dir + "/translations", dir + "/../share/zqprops/translations"})
    if (translator.load("zqprops_" + code, folder)) return app.installTranslator(&translator);
  return false;
}
}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QCoreApplication::setApplicationName("zqpalette");
  QTextStream err(stderr);

  QCommandLineParser parser;
  parser.setApplicationDescription("Shows a DXF drawing with its Properties palette.");
  parser.addHelpOption();
  parser.addPositionalArgument("drawing", "The DXF drawing to open.", "[drawing]");
  const QCommandLineOption lang("lang", "Use the translation catalog of this language.", "CODE");
  const QCommandLineOption select("select", "Select the objects with these handles (repeatable, comma lists).", "H");
  const QCommandLineOption screenshot("screenshot", "Save a picture of the window to FILE and quit.", "FILE");
  parser.addOptions({lang, select, screenshot});
  parser.process(app);

  QTranslator translator;
  if (parser.isSet(lang) && !installTranslation(app, parser.value(lang), translator))
    err << QCoreApplication::translate("zqpalette", "zqpalette: there is no translation catalog for the language \"%1\"; the window stays in English.")
               .arg(parser.value(lang))
        << "\n";

  odDbInitialize();
  GetZqSystemServices()->SetEchoToStderr(false);
  if (!odrxDynamicLinker()->loadModule("ZQProperties")) {
    err << "zqpalette: " << QCoreApplication::translate("zqprops", "cannot load ZQProperties: %1").arg(odrxDynamicLinker()->lastError().qstring()) << "\n";
    return 2;
  }

  ZqPaletteWindow window;
  window.resize(1280, 800);
  const QStringList positional = parser.positionalArguments();
  if (!positional.isEmpty()) {
    QString why;
    if (!window.openDrawing(positional.front(), &why)) {
      err << "zqpalette: " << positional.front() << ": " << why << "\n";
      return 2;
    }
  }
  QStringList handles;
  for (const QString& v : parser.values(select))
    for (const QString& h : v.split(',', Qt::SkipEmptyParts)) handles << h.trimmed();
  if (!handles.isEmpty()) {
    QString why;
    if (!window.selectHandles(handles, &why)) {
      err << "zqpalette: " << why << "\n";
      return 2;
    }
  }
  if (parser.isSet(screenshot)) {
    window.setAskOnClose(false);
    window.palette()->setMessageBoxes(false);
    window.show();
    // The window's layout settles before the view fits the drawing.
    QCoreApplication::processEvents();
    window.view()->zoomExtents();
    QCoreApplication::processEvents();
    const bool ok = window.grab().save(parser.value(screenshot));
    if (!ok) err << QCoreApplication::translate("zqpalette", "zqpalette: cannot write %1").arg(parser.value(screenshot)) << "\n";
    return ok ? 0 : 2;
  }
  window.show();
  return app.exec();
}
