// Groups, multiline and table styles, views and viewport configurations
// read from real drawings: their rows against the values the files hold,
// edits and renames read back by ezdxf with nothing else in the file
// changed, refusals that leave the drawing as it was, and paper-space
// objects named by the layout they are on.
#include "ZqTestSupport.h"
#include "../host/ZqpropsRun.h"
#include "DbGroup.h"
#include "DbLayout.h"
#include "DxfDatabase.h"
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <cmath>

namespace {

QString sample(const char* name) { return QString(ZQ_SAMPLES_DIR) + "/" + name; }

QJsonArray listed(const QStringList& args) {
  const ProgramRun run = zqprops(args + QStringList{"--json"});
  EXPECT_EQ(run.code, 0) << run.err.toStdString();
  return QJsonDocument::fromJson(run.out.toUtf8()).object()["objects"].toArray();
}

const char* const k2000 = "libredwg__test__test-data__example_2000.dxf";
const char* const kNetDxf = "netDxf__TestDxfDocument__sample.dxf";
const char* const kTs1 = "libredwg__test__test-data__2000__TS1.dxf";

// --- Rows against the files' values ---------------------------------------------

struct Shown {
  const char* sample;
  const char* kind;  // --records word
  const char* name;
  const char* row;   // untranslated key
  QVariant value;    // as the JSON "value" has it
};

const Shown kShown[] = {
    {k2000,   "groups",      "*A1",          "General/Members",        7},
    {k2000,   "groups",      "*A1",          "General/Selectable",     1},
    {kNetDxf, "groups",      "MYNAMEDGROUP", "General/Members",        3},
    {kTs1,    "groups",      "GROUPNAME",    "General/Name",           "GROUPNAME"},
    {k2000,   "mlinestyles", "STANDARD",     "General/Elements",       2},
    {k2000,   "mlinestyles", "STANDARD",     "Fill/Fill",              0},
    {k2000,   "mlinestyles", "STANDARD",     "Caps/Start angle",       M_PI / 2},
    {k2000,   "tablestyles", "Standard",     "Cell margins/Horizontal", 1.5},
    {k2000,   "tablestyles", "Standard",     "General/Table direction", 0},
    {k2000,   "views",       "TEST",         "View/Height",            13314.9512542887},
    {k2000,   "views",       "TEST",         "View/Width",             19003.49850377354},
    {k2000,   "views",       "TEST",         "View/Center X",          5771.997569792081},
    {k2000,   "views",       "TEST",         "View/Lens length",       50.0},
    {k2000,   "vports",      "*Active",      "View/Height",            15075.28615072078},
    {k2000,   "vports",      "*Active",      "View/Aspect ratio",      1.260572987721691},
    {k2000,   "vports",      "*Active",      "View/Center Y",          1669.4930615832},
    {k2000,   "vports",      "*Active",      "Drawing aids/Grid X spacing", 10.0},
    {k2000,   "vports",      "*Active",      "Drawing aids/Snap",      0},
};

TEST(ObjectRows, ShowWhatTheFileHolds) {
  for (const Shown& s : kShown) {
    SCOPED_TRACE(std::string(s.kind) + " " + s.name + " " + s.row);
    const QJsonArray objects = listed({sample(s.sample), "--records", s.kind, "--name", QString::fromUtf8(s.name)});
    ASSERT_EQ(objects.size(), 1);
    const QJsonValue v = objects[0].toObject()["rows"].toObject()[s.row].toObject()["value"];
    if (s.value.typeId() == QMetaType::Double) EXPECT_NEAR(v.toDouble(), s.value.toDouble(), 1e-9);
    else if (s.value.typeId() == QMetaType::Int) EXPECT_EQ(v.toInt(-1), s.value.toInt());
    else EXPECT_EQ(v.toString(), s.value.toString());
  }
}

// --- Edits and renames read back by ezdxf ------------------------------------------

// Prints what ezdxf reads of the groups, the first multiline style, the
// views and the viewport configurations.
const char* kReadBack = R"(
import sys, ezdxf
doc = ezdxf.readfile(sys.argv[1])
for name, g in doc.groups: print('group', name, len(g))
s = doc.objects.query('MLINESTYLE')[0]
print('mlinestyle', s.dxf.name, s.dxf.flags, repr(s.dxf.description))
for v in doc.views: print('view', v.dxf.name)
for v in doc.viewports: print('vport', v.dxf.name, v.dxf.grid_on, v.dxf.snap_on)
)";

// The two files differ only in lines whose value went from the old text to the new one.
const char* kDiffOnly = R"(
import sys
a = open(sys.argv[1], 'rb').read().split(b'\n')
b = open(sys.argv[2], 'rb').read().split(b'\n')
pairs = [(sys.argv[i].encode(), sys.argv[i + 1].encode()) for i in range(3, len(sys.argv), 2)]
if len(a) != len(b): print('lengths', len(a), len(b)); sys.exit(0)
bad = [i for i in range(len(a)) if a[i] != b[i] and (a[i].strip(), b[i].strip()) not in pairs]
print('ok' if not bad else 'differs at %d: %r -> %r' % (bad[0], a[bad[0]], b[bad[0]]))
)";

struct ObjectEdit {
  const char* what;
  const char* sample;
  QStringList args;     // selection and --set
  QString expected;     // a line kReadBack prints afterwards
  QString gone;         // a line it no longer prints
  QStringList changes;  // old, new, ...: the only lines that differ
};

const ObjectEdit kObjectEdits[] = {
    {"group renamed", kNetDxf, {"--records", "groups", "--name", "MYNAMEDGROUP", "--set", "Name=Doors"},
     "group Doors 3", "group MYNAMEDGROUP 3", {"MYNAMEDGROUP", "Doors"}},
    {"group with blank renamed", kTs1, {"--records", "groups", "--name", "GROUPNAME", "--set", "Name=Group 2"},
     "group Group 2 2", "group GROUPNAME 2", {"GROUPNAME", "Group 2"}},
    {"mline style described and filled", k2000,
     {"--records", "mlinestyles", "--set", "Description=Walls", "--set", "Fill=Yes"},
     "mlinestyle STANDARD 1 'Walls'", "mlinestyle STANDARD 0 ''", {"0", "1", "", "Walls"}},
    {"view renamed", k2000, {"--records", "views", "--set", "Name=Front"}, "view Front", "view TEST", {"TEST", "Front"}},
    {"grid and snap on", k2000, {"--records", "vports", "--set", "Grid=Yes", "--set", "Snap=Yes"},
     "vport *Active 1 1", "vport *Active 0 0", {"0", "1"}},
};

TEST(ObjectEdits, ReadBackByEzdxfWithNothingElseChanged) {
  for (const ObjectEdit& e : kObjectEdits) {
    SCOPED_TRACE(e.what);
    QTemporaryDir dir;
    const QString in = sample(e.sample), out = dir.filePath("edited.dxf");
    const ProgramRun run = zqprops(QStringList{in} + e.args + QStringList{"-o", out});
    ASSERT_EQ(run.code, 0) << run.err.toStdString();
    const QStringList before = zqRunPython(kReadBack, {in}).split('\n');
    const QStringList after = zqRunPython(kReadBack, {out}).split('\n');
    EXPECT_TRUE(before.contains(e.gone)) << before.join('|').toStdString();
    EXPECT_TRUE(after.contains(e.expected)) << after.join('|').toStdString();
    EXPECT_FALSE(after.contains(e.gone));
    EXPECT_EQ(zqRunPython(kDiffOnly, QStringList{in, out} + e.changes).trimmed(), "ok");
  }
}

TEST(ObjectEdits, RefusedRenamesSayWhyAndChangeNothing) {
  struct Case {
    const char* sample;
    const char* kind;
    const char* name;
    const char* to;
  } const cases[] = {
      {kNetDxf, "groups", "`*A1", "mynamedgroup"},          // taken, in other case
      {kNetDxf, "groups", "MYNAMEDGROUP", "Doors;Windows"}, // forbidden character
      {k2000, "mlinestyles", "STANDARD", "Walls"},          // every drawing's style
      {k2000, "tablestyles", "Standard", "Plain"},
      {k2000, "vports", "*Active", "Mine"},                 // read-only
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.kind) + " " + c.to);
    QTemporaryDir dir;
    const QString out = dir.filePath("refused.dxf");
    const ProgramRun run = zqprops({sample(c.sample), "--records", c.kind, "--name", c.name, "--set",
                                    QString("Name=") + c.to, "-o", out});
    EXPECT_NE(run.code, 0);
    EXPECT_FALSE(run.crashed);
    EXPECT_FALSE(run.err.trimmed().isEmpty());
    // What is saved is the drawing as it was read.
    QFile a(sample(c.sample)), b(out);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    EXPECT_TRUE(a.readAll() == b.readAll());
  }
}

// A multiline style renamed: its entry, its own name, the multilines that
// use it and the current style ($CMLSTYLE) follow. The sample's only style
// is STANDARD, which keeps its name; a copy names it WALLS throughout first.
const char* kNameStyleWalls = R"(
import sys, ezdxf
src, dst = sys.argv[1], sys.argv[2]
style = ezdxf.readfile(src).objects.query('MLINESTYLE')[0].dxf.handle.encode()
lines = open(src, 'rb').read().split(b'\n')
for i in range(1, len(lines) - 2):
    v, prev = lines[i].rstrip(b'\r'), lines[i - 1].strip()
    if v == b'STANDARD' and prev == b'2': lines[i] = b'WALLS\r'
    if v == b'Standard' and prev == b'3' and lines[i + 2].strip() == style: lines[i] = b'WALLS\r'
    if v == b'Standard' and lines[i - 2].strip() == b'$CMLSTYLE': lines[i] = b'WALLS\r'
open(dst, 'wb').write(b'\n'.join(lines))
)";

const char* kMlineStyleNames = R"(
import sys, ezdxf
doc = ezdxf.readfile(sys.argv[1])
style = doc.objects.query('MLINESTYLE')[0]  # the file's (ezdxf adds a Standard of its own)
print(sorted(set(e.dxf.style_name for e in doc.modelspace().query('MLINE'))), style.dxf.name, doc.header['$CMLSTYLE'],
      [k for k, v in doc.rootdict['ACAD_MLINESTYLE'].items() if v.dxf.handle == style.dxf.handle])
)";

TEST(ObjectEdits, MultilineStyleRenameFollowsItsMultilines) {
  QTemporaryDir dir;
  const QString walls = dir.filePath("walls.dxf"), out = dir.filePath("renamed.dxf");
  zqRunPython(kNameStyleWalls, {sample(k2000), walls});
  ASSERT_EQ(zqRunPython(kMlineStyleNames, {walls}).trimmed(), "['WALLS'] WALLS WALLS ['WALLS']");
  const ProgramRun run = zqprops({walls, "--records", "mlinestyles", "--name", "walls", "--set", "Name=Outer walls", "-o", out});
  ASSERT_EQ(run.code, 0) << run.err.toStdString();
  EXPECT_EQ(zqRunPython(kMlineStyleNames, {out}).trimmed(), "['Outer walls'] Outer walls Outer walls ['Outer walls']");
  EXPECT_EQ(zqRunPython(kDiffOnly, {walls, out, "WALLS", "Outer walls"}).trimmed(), "ok");
}

// --- Objects found by their dictionary path -----------------------------------------

TEST(ObjectPaths, FindObjectsByNameAndRefuseTakenNames) {
  QFile f(sample(kNetDxf));
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray bytes = f.readAll();
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error);
  ASSERT_TRUE(db) << error.toStdString();
  const OdDbObjectId groups = OdDbDictionary::findPath(db->getNamedObjectsDictionaryId(), {OdString("ACAD_GROUP")});
  const OdDbObjectId id = OdDbDictionary::findPath(groups, {OdString("mynamedgroup")});
  EXPECT_EQ(OdDbDictionary::findPath(db->getNamedObjectsDictionaryId(), {OdString("ACAD_GROUP"), OdString("MYNAMEDGROUP")}), id);
  EXPECT_TRUE(OdDbDictionary::findPath(groups, {OdString("NoSuchGroup")}).isNull());
  OdDbObjectPtr o = id.openObject(OdDb::kForWrite);
  auto* group = odrxCast<OdDbGroup>(o.get());
  ASSERT_TRUE(group);
  EXPECT_EQ(group->ownerId(), groups);
  EXPECT_EQ(group->name(), OdString("MYNAMEDGROUP"));
  for (const OdDbObjectId& member : group->allEntityIds()) EXPECT_TRUE(member.isValid());
  try {
    group->setName(OdString("*a1"));
    ADD_FAILURE() << "a taken name was accepted";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), eDuplicateRecordName);
  }
  EXPECT_EQ(group->name(), OdString("MYNAMEDGROUP"));
  o.release();
  // Nothing was changed: the drawing is written as it was read.
  EXPECT_TRUE(OdDxf::writeDrawing(db.get(), &error) == bytes) << error.toStdString();
}

// --- Layouts ----------------------------------------------------------------------

// Each paper-space block's layout name as ezdxf reads it.
const char* kLayouts = R"(
import sys, ezdxf
doc = ezdxf.readfile(sys.argv[1])
for l in doc.layouts:
    if l.name != 'Model': print(l.block_record.dxf.name, l.name)
)";

TEST(Layouts, PaperSpaceObjectsNameTheirLayout) {
  for (const char* s : {k2000, kNetDxf, "ezdxf__examples_dxf__VP4.dxf"}) {
    SCOPED_TRACE(s);
    QMap<QString, QString> layoutOf;
    for (const QString& line : zqRunPython(kLayouts, {sample(s)}).split('\n', Qt::SkipEmptyParts))
      layoutOf.insert(line.section(' ', 0, 0).toCaseFolded(), line.section(' ', 1));
    const QJsonArray objects = listed({sample(s), "--space", "paper"});
    ASSERT_FALSE(objects.isEmpty());
    for (const QJsonValue& v : objects) {
      const QJsonObject o = v.toObject();
      EXPECT_EQ(o["layout"].toString(), layoutOf.value(o["block"].toString().toCaseFolded())) << o["handle"].toString().toStdString();
    }
  }
}

}  // namespace
