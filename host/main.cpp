// zqprops: lists and edits the Properties-palette rows and the information
// listing of the objects of a DXF drawing, with ZQProperties loaded as the
// CAD host loads it.
//
// Exit status: 0 done; 1 an edit was refused or nothing was selected; 2 bad
// usage, an unreadable drawing or a failed script; 3 edits left unsaved.
#include "Listing.h"
#include "Session.h"
#include "DxfDatabase.h"
#include "RxModule.h"
#include "DbPlainClasses.h"
#include "DbRelease.h"
#include "ZqServices.h"
#include "ZqSelection.h"
#include "DbUndo.h"
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLibraryInfo>
#include <QTranslator>
#include <algorithm>
#include <memory>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {


enum Exit { kDone = 0, kRefused = 1, kUsage = 2, kUnsaved = 3 };

// Values of a repeatable option, each also a comma list.
QStringList listValues(const QStringList& values) {
  QStringList out;
  for (const QString& v : values)
    for (const QString& item : v.split(',', Qt::SkipEmptyParts)) out << item.trimmed();
  return out;
}

// Installs the catalog zqprops_<code>.qm from the translations folder next
// to the program (or ../share/zqprops/translations); false when none exists.
bool installTranslation(QCoreApplication& app, const QString& code, QTranslator& translator) {
  const QString dir = QCoreApplication::applicationDirPath();
  for (const QString& folder : {dir + "/translations", dir + "/../share/zqprops/translations"})
    if (translator.load("zqprops_" + code, folder)) return app.installTranslator(&translator);
  return false;
}

// The current vertex (or other current item) of each object, kept from one
// --set to the next as the palette keeps it while the selection stays.
using CurrentItems = QHash<quint64, CZqVariant>;

// Applies NAME=VALUE to every target object that has a row of that name.
// Returns the exit status it calls for.
int applySet(OdDbDatabase* db, const QString& assignment, const OdDbObjectIdArray& targets, CurrentItems& items,
             QTextStream& err) {
  const int eq = assignment.indexOf('=');
  if (eq <= 0) {
    err << QCoreApplication::translate("zqprops", "zqprops: --set expects NAME=VALUE, got \"%1\"").arg(assignment) << "\n";
    return kUsage;
  }
  const QString name = assignment.left(eq).trimmed(), text = assignment.mid(eq + 1);
  const ZqRowPicker wanted(QStringList{name});
  CZqPropertiesWindowService service(db);
  int status = kDone, found = 0;
  // One --set is one undo step, however many objects it edits.
  db->undoJournal().startStep(OdString("--set " + assignment));
  struct StepEnd {
    OdDbDatabase* db;
    ~StepEnd() { db->undoJournal().endStep(); }
  } stepEnd{db};
  for (const OdDbObjectId& id : targets) {
    service.SetSelection({id});
    service.SetCurrentIndex(items.value(id.getHandle().value()));
    // Only the rows of that name are read; no other row is formatted.
    const std::vector<CZqPaletteRow> rows = service.Rows(kZqVisPalette, wanted.filter());
    const CZqPaletteRow* row = service.FindRow(rows, name);
    if (!row) continue;
    ++found;
    const QString handle = id.getHandle().ascii().qstring();
    if (row->readOnly) {
      err << QCoreApplication::translate("zqprops", "zqprops: %1: %2 is read-only.").arg(handle, row->name.qstring()) << "\n";
      status = kRefused;
      continue;
    }
    CZqVariant value;
    QString why;
    if (!service.ParseValue(*row, text, value, &why)) {
      err << QCoreApplication::translate("zqprops", "zqprops: %1: %2: %3").arg(handle, row->name.qstring(), why) << "\n";
      status = kRefused;
      continue;
    }
    for (const CZqEditResult& r : service.SetValue(row->categoryKey, row->nameKey, value)) {
      if (r.code != kZqSetRefused) continue;
      err << QCoreApplication::translate("zqprops", "zqprops: %1: %2: %3").arg(handle, row->name.qstring(), r.message.qstring()) << "\n";
      status = kRefused;
    }
    items.insert(id.getHandle().value(), service.CurrentIndex());
  }
  if (!found) {
    err << QCoreApplication::translate("zqprops", "zqprops: no object has a property named \"%1\".").arg(name) << "\n";
    return kUsage;
  }
  return status;
}

// --vertex N: vertex N becomes the current vertex of every target that has
// vertices (through its current-item row, as the palette's Vertex row).
int chooseVertex(OdDbDatabase* db, int number, const OdDbObjectIdArray& targets, CurrentItems& items, QTextStream& err) {
  CZqPropertiesWindowService service(db);
  int status = kDone, found = 0;
  for (const OdDbObjectId& id : targets) {
    service.SetSelection({id});
    const std::vector<CZqPaletteRow> rows = service.Rows();
    auto row = std::find_if(rows.begin(), rows.end(),
                            [](const CZqPaletteRow& r) { return CZqPropertiesWindowService::IsCurrentItemRow(r.type); });
    if (row == rows.end()) continue;
    ++found;
    const QString handle = id.getHandle().ascii().qstring();
    CZqVariant value;
    QString why;
    if (!service.ParseValue(*row, QString::number(number), value, &why)) {
      err << QCoreApplication::translate("zqprops", "zqprops: %1: %2: %3").arg(handle, row->name.qstring(), why) << "\n";
      status = kUsage;
      continue;
    }
    for (const CZqEditResult& r : service.SetValue(row->categoryKey, row->nameKey, value))
      if (r.code == kZqSetRefused) {
        err << QCoreApplication::translate("zqprops", "zqprops: %1: %2: %3").arg(handle, row->name.qstring(), r.message.qstring()) << "\n";
        status = kUsage;
      }
    items.insert(id.getHandle().value(), service.CurrentIndex());
  }
  if (!found) {
    err << QCoreApplication::translate("zqprops", "zqprops: --vertex: none of the objects has vertices.") << "\n";
    return kUsage;
  }
  return status;
}

// The releases --save-as offers: R2000 and every newer one.
QString saveAsReleases() {
  QStringList names;
  for (const OdDb::ReleaseName& r : OdDb::kReleases)
    if (r.number >= 1015) names << QString::fromLatin1(r.name);
  return names.join(", ");
}

}  // namespace

int main(int argc, char** argv) {
#ifdef SIGXFSZ
  // A file size limit (ulimit -f) must make a save fail with its reason,
  // not kill the program halfway.
  std::signal(SIGXFSZ, SIG_IGN);
#endif
  QCoreApplication app(argc, argv);
  QCoreApplication::setApplicationName("zqprops");
  QTextStream out(stdout), err(stderr);

  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Lists and edits the properties and information of the objects of a DXF drawing.\n"
      "With no action it reads commands (-PROPERTIES, LIST, SAVE, QUIT) at a \"Command:\" prompt.");
  parser.addHelpOption();
  parser.addPositionalArgument("drawing", "The DXF drawing to read.");
  const QCommandLineOption list("list", "Print each object's palette rows.");
  const QCommandLineOption info("info", "Print each object's information listing.");
  const QCommandLineOption handle("handle", "Work on the object with this handle (repeatable).", "H");
  const QCommandLineOption json("json", "Print JSON.");
  const QCommandLineOption set("set", "Set a property on the objects that have it (repeatable).", "NAME=VALUE");
  const QCommandLineOption script("script", "Run the lines of FILE as a script.", "FILE");
  const QCommandLineOption output({"o", "output"}, "Save the drawing to OUT.", "OUT");
  const QCommandLineOption lang("lang", "Use the translation catalog of this language.", "CODE");
  const QCommandLineOption ucs("ucs", "List information in the current UCS.");
  const QCommandLineOption strict(
      "strict", QCoreApplication::translate("zqprops", "Refuse a drawing that reading would warn about (a coordinate that is not a number, a repair)."));
  const QCommandLineOption inPlace("in-place", "Save the drawing over the input file.");
  const QCommandLineOption saveAs("save-as", "Save the drawing as this release (R2000 or newer, e.g. R2018).", "RELEASE");
  const QCommandLineOption force("force", "Also edit objects on locked layers.");
  const QCommandLineOption vertex("vertex", "Make vertex N the current vertex of the objects that have vertices.", "N");
  const QCommandLineOption type("type", "Work on objects of these kinds: DXF types or display names, wildcards, comma lists (TEXT,MTEXT).", "TYPES");
  const QCommandLineOption layer("layer", "Work on objects on these layers: wildcards (* ? # ~) and comma lists.", "LAYERS");
  const QCommandLineOption space("space", "Work on objects of model space (default), paper space (every layout) or all.", "model|paper|all");
  const QCommandLineOption blocks("blocks", "Also work on the objects inside block definitions.");
  const QCommandLineOption rows("rows", "List only these rows (Category/Name, comma list).", "ROWS");
  const QCommandLineOption records(
      "records", "Work on the drawing's named records instead: layers, linetypes, textstyles, dimstyles, views, vports, groups, mlinestyles, tablestyles (comma list).", "KINDS");
  const QCommandLineOption names("name", "With --records: only the records with these names (wildcards, comma lists).", "NAMES");
  const QCommandLineOption keepGoing("keep-going", "Go on past errors in a script (the exit status still shows them).");
  parser.addOptions({list, info, handle, json, set, script, output, lang, ucs, inPlace, saveAs, force, vertex, strict,
                     type, layer, space, blocks, rows, keepGoing, records, names});
  if (!parser.parse(app.arguments())) {
    err << "zqprops: " << parser.errorText() << "\n";
    return kUsage;
  }
  if (parser.isSet("help")) {
    out << parser.helpText();
    return kDone;
  }
  const QStringList positional = parser.positionalArguments();
  if (positional.size() != 1) {
    err << QCoreApplication::translate("zqprops", "zqprops: expected one drawing, got %1 (see --help)").arg(positional.size()) << "\n";
    return kUsage;
  }
  QTranslator translator;
  if (parser.isSet(lang) && !installTranslation(app, parser.value(lang), translator))
    err << QCoreApplication::translate("zqprops", "zqprops: there is no translation catalog for the language \"%1\"; messages stay in English.")
               .arg(parser.value(lang))
        << "\n";

  // What is edited must go somewhere: refused before anything is read.
  const bool saving = parser.isSet(output) || parser.isSet(inPlace);
  if (parser.isSet(output) && parser.isSet(inPlace)) {
    err << QCoreApplication::translate("zqprops", "zqprops: give either -o FILE or --in-place, not both.") << "\n";
    return kUsage;
  }
  if ((parser.isSet(set) || parser.isSet(saveAs) || parser.isSet(vertex)) && !saving) {
    err << QCoreApplication::translate("zqprops", "zqprops: nothing saved: give -o FILE or --in-place") << "\n";
    return kUsage;
  }
  int saveRelease = 0;
  if (parser.isSet(saveAs)) {
    saveRelease = OdDb::releaseFromName(parser.value(saveAs));
    if (saveRelease < 1015) {
      err << QCoreApplication::translate("zqprops", "zqprops: --save-as takes one of %1, not \"%2\".").arg(saveAsReleases(), parser.value(saveAs)) << "\n";
      return kUsage;
    }
  }
  int firstVertex = 0;
  if (parser.isSet(vertex)) {
    bool ok = false;
    firstVertex = parser.value(vertex).trimmed().toInt(&ok);
    if (!ok || firstVertex < 1) {
      err << QCoreApplication::translate("zqprops", "zqprops: --vertex takes a vertex number from 1 on, not \"%1\".").arg(parser.value(vertex)) << "\n";
      return kUsage;
    }
  }
  CZqSelectionFilter filter;
  filter.handles = listValues(parser.values(handle));
  filter.types = parser.value(type);
  filter.layers = parser.value(layer);
  filter.blocks = parser.isSet(blocks);
  filter.records = parser.value(records);
  filter.names = parser.value(names);
  if (parser.isSet(space)) {
    CZqSelectionFilter::Space sp;
    if (!CZqSelectionFilter::ParseSpace(parser.value(space), sp)) {
      err << QCoreApplication::translate("zqprops", "zqprops: --space takes model, paper or all, not \"%1\".").arg(parser.value(space)) << "\n";
      return kUsage;
    }
    filter.space = sp;
  }
  CZqPropertiesWindowService::SetEditLockedLayers(parser.isSet(force));

  odDbInitialize();
  GetZqSystemServices()->SetEchoToStderr(false);
  if (!odrxDynamicLinker()->loadModule("ZQProperties")) {
    err << "zqprops: " << QCoreApplication::translate("zqprops", "cannot load ZQProperties: %1").arg(odrxDynamicLinker()->lastError().qstring()) << "\n";
    return kUsage;
  }

  const QString inputPath = positional.front();
  QString error;
  QStringList warnings;
  OdDbDatabasePtr db = OdDxf::readDrawing(inputPath, error, &warnings, {.strict = parser.isSet(strict)});
  if (!db) {
    err << "zqprops: " << inputPath << ": " << error << "\n";
    return kUsage;
  }
  for (const QString& w : warnings) err << "zqprops: " << inputPath << ": " << QCoreApplication::translate("zqprops", "warning: %1").arg(w) << "\n";
  if (saveRelease && !OdDxf::setSaveRelease(db.get(), saveRelease, error)) {
    err << "zqprops: " << inputPath << ": " << error << "\n";
    return kUsage;
  }

  int status = kDone;
  int exitCode = kDone;
  bool declined = false;
  {
    OdDbObjectIdArray targets;
    if (!filter.Select(db.get(), targets, &error)) {
      err << "zqprops: " << error << "\n";
      return kUsage;
    }
    // An explicit selection, or an action on objects, that finds nothing is an error.
    const bool actsOnObjects = parser.isSet(list) || parser.isSet(info) || parser.isSet(json) || parser.isSet(set) || parser.isSet(vertex);
    if (targets.isEmpty() && (filter.IsSet() || actsOnObjects)) {
      err << QCoreApplication::translate("zqprops", "zqprops: nothing selected: no object of the drawing meets the selection.") << "\n";
      return kRefused;
    }
    CZqSelectionFilter::SetPrevious(targets);

    const QString outputPath = parser.isSet(inPlace) ? inputPath : parser.value(output);
    ZqSessionOptions options;
    options.inputPath = inputPath;
    options.outputPath = outputPath;
    options.infoInUcs = parser.isSet(ucs);
    options.scriptName = parser.isSet(script) ? QFileInfo(parser.value(script)).fileName() : QString();
    options.keepGoing = parser.isSet(keepGoing);
    const int refusedBefore = CZqPropertiesWindowService::RefusedEdits();
    CurrentItems items;
    if (firstVertex) {
      if (chooseVertex(db.get(), firstVertex, targets, items, err) != kDone) return kUsage;
    }
    for (const QString& assignment : parser.values(set)) {
      const int s = applySet(db.get(), assignment, targets, items, err);
      if (s == kUsage) return kUsage;
      status = std::max(status, s);
    }

    const bool listing = parser.isSet(list) || parser.isSet(info) || parser.isSet(json);
    const bool interactive = !listing && !parser.isSet(set) && !parser.isSet(script) && !saving;
    std::unique_ptr<QTextStream> in;
    std::unique_ptr<ZqConsoleIO> console;
    if (interactive) {
      in = std::make_unique<QTextStream>(stdin);
      console = std::make_unique<ZqConsoleIO>(*in, out);
      // At a terminal QUIT offers to save; elsewhere unsaved edits end with exit status 3.
      options.askToSave = console->isTerminal();
    }
    ZqSession session(db.get(), options, out, err);
    if (parser.isSet(script)) {
      QFile file(parser.value(script));
      if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        err << QCoreApplication::translate("zqprops", "zqprops: cannot read script %1: %2").arg(parser.value(script), file.errorString()) << "\n";
        return kUsage;
      }
      QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
      for (QString& l : lines)
        if (l.endsWith('\r')) l.chop(1);
      if (!lines.isEmpty() && lines.back().isEmpty()) lines.pop_back();
      ZqScriptIO io(lines, out, true);
      if (!session.run(io, [&] { return io.atEnd(); })) exitCode = kUsage;
    } else if (interactive) {
      if (!session.run(*console, [&] { return console->atEnd(); })) exitCode = kUsage;
      declined = session.declinedToSave();
    }
    if (CZqPropertiesWindowService::RefusedEdits() > refusedBefore) status = std::max(status, int(kRefused));

    if (listing) {
      // --json alone lists the rows; --info --json the information lines only.
      const bool showRows = parser.isSet(list) || !parser.isSet(info);
      const ZqRowPicker picker(listValues(parser.values(rows)));
      if (parser.isSet(json)) {
        out.flush();
        QFile stdoutFile;
        stdoutFile.open(stdout, QIODevice::WriteOnly);
        zqWriteListingJson(stdoutFile, QFileInfo(inputPath).fileName(), db.get(), targets,
                           ZqJsonContent{showRows, parser.isSet(info), parser.isSet(ucs), picker});
      } else {
        for (const OdDbObjectId& id : targets) {
          if (showRows) zqPrintRows(out, db.get(), id, picker);
          if (parser.isSet(info)) zqPrintInfo(out, db.get(), id, parser.isSet(ucs));
        }
      }
      out.flush();
      if (!picker.all() && !picker.unused().isEmpty())
        err << QCoreApplication::translate("zqprops", "zqprops: no listed object has the row(s) %1.").arg(picker.unused().join(", ")) << "\n";
    }

    if (saving) {
      if (!zqSaveDrawing(db.get(), options, outputPath, error)) {
        err << "zqprops: " << error << "\n";
        exitCode = kUsage;
      }
    }
  }
  // Edits made in a session and neither saved nor undone must not vanish quietly.
  const int unsaved = declined ? 0 : db->undoJournal().unsavedSteps();
  if (unsaved > 0 && exitCode == kDone) {
    err << (unsaved == 1 ? QCoreApplication::translate("zqprops", "zqprops: 1 unsaved edit; use -o or SAVE")
                         : QCoreApplication::translate("zqprops", "zqprops: %1 unsaved edits; use -o or SAVE").arg(unsaved))
        << "\n";
    exitCode = kUnsaved;
  }
  // Freeing a drawing of a million objects one by one takes about as long as
  // reading it; the process ends here, so the system takes the memory back at
  // once. Everything written is flushed first; the saved drawing is already
  // closed.
  out.flush();
  err.flush();
  std::fflush(stdout);
  std::fflush(stderr);
  std::_Exit(exitCode != kDone ? exitCode : status);
}
