// HEADER variables the database models: read into it (bad values keep the
// default or are clamped, with a warning) and patched back when they differ
// from what the file's tags read as.
#include "DbPlainClasses.h"
#include "DxfMapping.h"

namespace OdDxf::mapping {
namespace {

enum class Fix { Default, Clamp };

// A number-valued variable.
struct NumberVar {
  const char* name;
  int code;
  bool integral;
  double lo, hi;  // valid range
  Fix fix;        // what an out-of-range value becomes
  double (*get)(const OdDbDatabase&);
  void (*set)(OdDbDatabase&, double);
};

constexpr double kBig = 1e300;

// clang-format off
//  name            code int    lo     hi     fix           get / set
const NumberVar kNumbers[] = {
    {"$LUNITS",      70, true,  1,     5,     Fix::Default, [](const OdDbDatabase& d) { return double(d.getLUNITS()); },      [](OdDbDatabase& d, double v) { d.setLUNITS(int(v)); }},
    {"$LUPREC",      70, true,  0,     8,     Fix::Clamp,   [](const OdDbDatabase& d) { return double(d.getLUPREC()); },      [](OdDbDatabase& d, double v) { d.setLUPREC(int(v)); }},
    {"$AUNITS",      70, true,  0,     4,     Fix::Default, [](const OdDbDatabase& d) { return double(d.getAUNITS()); },      [](OdDbDatabase& d, double v) { d.setAUNITS(int(v)); }},
    {"$AUPREC",      70, true,  0,     8,     Fix::Clamp,   [](const OdDbDatabase& d) { return double(d.getAUPREC()); },      [](OdDbDatabase& d, double v) { d.setAUPREC(int(v)); }},
    {"$ANGBASE",     50, false, -kBig, kBig,  Fix::Default, [](const OdDbDatabase& d) { return d.getANGBASE(); },             [](OdDbDatabase& d, double v) { d.setANGBASE(v); }},
    {"$ANGDIR",      70, true,  0,     1,     Fix::Clamp,   [](const OdDbDatabase& d) { return d.getANGDIR() ? 1.0 : 0.0; },  [](OdDbDatabase& d, double v) { d.setANGDIR(v != 0); }},
    {"$UNITMODE",    70, true,  0,     3,     Fix::Default, [](const OdDbDatabase& d) { return double(d.getUNITMODE()); },    [](OdDbDatabase& d, double v) { d.setUNITMODE(int(v)); }},
    {"$INSUNITS",    70, true,  0,     24,    Fix::Default, [](const OdDbDatabase& d) { return double(d.getINSUNITS()); },    [](OdDbDatabase& d, double v) { d.setINSUNITS(int(v)); }},
    {"$MEASUREMENT", 70, true,  0,     1,     Fix::Default, [](const OdDbDatabase& d) { return double(d.getMEASUREMENT()); }, [](OdDbDatabase& d, double v) { d.setMEASUREMENT(int(v)); }},
    {"$TEXTSIZE",    40, false, 0,     kBig,  Fix::Default, [](const OdDbDatabase& d) { return d.getTEXTSIZE(); },            [](OdDbDatabase& d, double v) { d.setTEXTSIZE(v); }},
    {"$CELTSCALE",   40, false, 1e-300, kBig, Fix::Default, [](const OdDbDatabase& d) { return d.getCELTSCALE(); },           [](OdDbDatabase& d, double v) { d.setCELTSCALE(v); }},
    {"$LTSCALE",     40, false, 1e-300, kBig, Fix::Default, [](const OdDbDatabase& d) { return d.getLTSCALE(); },             [](OdDbDatabase& d, double v) { d.setLTSCALE(v); }},
    {"$PDMODE",      70, true,  0,     100,   Fix::Default, [](const OdDbDatabase& d) { return double(d.getPDMODE()); },      [](OdDbDatabase& d, double v) { d.setPDMODE(int(v)); }},
    {"$PDSIZE",      40, false, -kBig, kBig,  Fix::Default, [](const OdDbDatabase& d) { return d.getPDSIZE(); },              [](OdDbDatabase& d, double v) { d.setPDSIZE(v); }},
    {"$PLINEGEN",    70, true,  0,     1,     Fix::Clamp,   [](const OdDbDatabase& d) { return d.getPLINEGEN() ? 1.0 : 0.0; }, [](OdDbDatabase& d, double v) { d.setPLINEGEN(v != 0); }},
};
// clang-format on

// A variable that names a symbol table record.
struct NameVar {
  const char* name;
  int code;
  NameIndex Context::*index;
  OdDbObjectId (OdDbDatabase::*get)() const;
  void (OdDbDatabase::*set)(const OdDbObjectId&);
};

const NameVar kNames[] = {
    {"$CLAYER", 8, &Context::layers, &OdDbDatabase::getCLAYER, &OdDbDatabase::setCLAYER},
    {"$TEXTSTYLE", 7, &Context::styles, &OdDbDatabase::getTEXTSTYLE, &OdDbDatabase::setTEXTSTYLE},
    {"$DIMSTYLE", 2, &Context::dimstyles, &OdDbDatabase::getDIMSTYLE, &OdDbDatabase::setDIMSTYLE},
};

QString defaultName(const NameVar& v) { return v.code == 8 ? QStringLiteral("0") : QStringLiteral("Standard"); }

const char* const kUcs[] = {"$UCSORG", "$UCSXDIR", "$UCSYDIR"};

// $PDMODE: 0..4, plus 32, 64 or 96 for a circle, a square or both.
bool validPdmode(int v) { return (v & ~96) >= 0 && (v & ~96) <= 4; }

int valueIndex(const Record* var, int code) { return var ? var->find(code, 1) : -1; }

QString varWhere(const Context& ctx, const Record& var, int index) { return ctx.where(var, index); }

// The value the reader takes from the file for a number variable, and
// whether the file has one. Warns (unless quiet) about values it replaces.
bool fileNumber(Context& ctx, const NumberVar& v, double def, double& out) {
  const Record* var = ctx.file->headerVariable(v.name);
  const int i = valueIndex(var, v.code);
  if (i < 0) return false;
  bool ok = false;
  double x = v.integral ? double(var->at(i).integer(&ok)) : var->at(i).real(&ok);
  if (!ok && v.integral) {  // a whole real in an integer group
    x = var->at(i).real(&ok);
    ok = ok && x == std::floor(x);
  }
  const QString name = QString::fromLatin1(v.name);
  if (!ok || !std::isfinite(x)) {
    ctx.warn(QStringLiteral("%1: %2 value '%3' is not a number; %4 kept")
                 .arg(varWhere(ctx, *var, i), name, var->str(i).left(40))
                 .arg(def));
    out = def;
    return true;
  }
  const bool pdmodeOk = QByteArrayView(v.name) != "$PDMODE" || validPdmode(int(x));
  if (x >= v.lo && x <= v.hi && pdmodeOk) {
    out = x;
    return true;
  }
  out = v.fix == Fix::Clamp ? qBound(v.lo, x, v.hi) : def;
  ctx.warn(QStringLiteral("%1: %2 %3 out of range (%4..%5); %6 %7")
               .arg(varWhere(ctx, *var, i), name, var->str(i).trimmed())
               .arg(v.lo)
               .arg(v.hi)
               .arg(v.fix == Fix::Clamp ? QStringLiteral("clamped to") : QStringLiteral("default kept:"))
               .arg(out));
  return true;
}

// The current UCS as the reader takes it from the file.
struct Ucs {
  OdGePoint3d org;
  OdGeVector3d x{1, 0, 0}, y{0, 1, 0};
};

Ucs fileUcs(Context& ctx) {
  Ucs u;
  OdGePoint3d p[3] = {OdGePoint3d(), OdGePoint3d(1, 0, 0), OdGePoint3d(0, 1, 0)};
  bool any = false;
  const Record* first = nullptr;
  for (int k = 0; k < 3; ++k) {
    const Record* var = ctx.file->headerVariable(kUcs[k]);
    if (!var) continue;
    if (!first) first = var;
    any = true;
    Record copy = *var;
    RecordIO io(ctx, copy, RecordIO::Read);
    try {
      p[k] = io.point(10, p[k]);
    } catch (const MapError& e) {
      ctx.warn(e.message + QStringLiteral("; the current UCS stays the world"));
      return u;
    }
  }
  if (!any) return u;
  OdDbDatabasePtr scratch = OdDbDatabase::createObject(false);
  try {
    scratch->setUCS(p[0], p[1].asVector(), p[2].asVector());
  } catch (const OdError&) {
    ctx.warn(QStringLiteral("%1: the UCS axes $UCSXDIR (%2,%3,%4) and $UCSYDIR (%5,%6,%7) do not make a coordinate "
                            "system; the current UCS stays the world")
                 .arg(varWhere(ctx, *first, 0))
                 .arg(p[1].x).arg(p[1].y).arg(p[1].z)
                 .arg(p[2].x).arg(p[2].y).arg(p[2].z));
    return u;
  }
  u.org = scratch->getUCSORG();
  u.x = scratch->getUCSXDIR();
  u.y = scratch->getUCSYDIR();
  return u;
}

// A new "9 $NAME" variable at the end of the HEADER section.
Record& addVariable(Context& ctx, const char* name) {
  Section* header = ctx.file->section("HEADER");
  if (!header) {
    ctx.file->addSection("HEADER");
    ctx.file->sections().move(ctx.file->sections().size() - 1, 0);
    header = &ctx.file->sections().first();
  }
  Record r = ctx.file->newRecord("X");
  r.insert(0, 9);
  r.setRaw(0, name);
  r.remove(1);
  header->records.append(r);
  return header->records.last();
}

}  // namespace

void readHeader(Context& ctx) {
  OdDbDatabase& db = *ctx.db;
  OdDbDatabasePtr defaults = OdDbDatabase::createObject(false);
  for (const NumberVar& v : kNumbers) {
    double x;
    if (fileNumber(ctx, v, v.get(*defaults), x)) {
      try {
        v.set(db, x);
      } catch (const OdError& e) {
        ctx.warn(QStringLiteral("%1: %2").arg(QString::fromLatin1(v.name), e.description().qstring()));
      }
    }
  }
  for (const NameVar& v : kNames) {
    const Record* var = ctx.file->headerVariable(v.name);
    const int i = valueIndex(var, v.code);
    if (i < 0) continue;
    const QString name = var->str(i).trimmed();
    const OdDbObjectId id = (ctx.*v.index).find(name);
    if (id.isNull())
      ctx.warn(QStringLiteral("%1: %2 names '%3', which the drawing does not have; left at the default")
                   .arg(varWhere(ctx, *var, i), QString::fromLatin1(v.name), name));
    else
      (db.*v.set)(id);
  }
  const Ucs u = fileUcs(ctx);
  db.setUCS(u.org, u.x, u.y);
}

void patchHeader(Context& ctx) {
  OdDbDatabase& db = *ctx.db;
  const bool quiet = ctx.quiet;
  ctx.quiet = true;
  OdDbDatabasePtr defaults = OdDbDatabase::createObject(false);
  for (const NumberVar& v : kNumbers) {
    const double def = v.get(*defaults);
    double was = def;
    const bool inFile = fileNumber(ctx, v, def, was);
    const double now = v.get(db);
    if (same(now, was) && (inFile || now == def)) continue;
    Record* var = ctx.file->headerVariable(v.name);
    if (!var) var = &addVariable(ctx, v.name);
    int i = valueIndex(var, v.code);
    if (i < 0) i = var->append(v.code);
    if (v.integral)
      var->setInteger(i, qint64(now));
    else
      var->setReal(i, now);
  }
  for (const NameVar& v : kNames) {
    const OdDbObjectId id = (db.*v.get)();
    if (id.isNull()) continue;
    const QString name = recordName(id);
    const NameIndex& index = ctx.*v.index;
    const OdDbObjectId def = index.find(defaultName(v));
    Record* var = ctx.file->headerVariable(v.name);
    const int i = valueIndex(var, v.code);
    if (i >= 0) {
      // The record the reader took the name for (the default for a name the
      // drawing lacks); a record renamed since is written under its new name.
      const QString fileName = var->str(i).trimmed();
      const OdDbObjectId fileId = index.find(fileName);
      if ((fileId.isNull() ? def : fileId) == id &&
          (fileId.isNull() || fileName.compare(name, Qt::CaseInsensitive) == 0))
        continue;
      writeString(ctx, *var, i, name);
      continue;
    }
    // Not in the file: added only when it is not the drawing's default.
    if (id == def) continue;
    if (!var) var = &addVariable(ctx, v.name);
    writeString(ctx, *var, var->append(v.code), name);
  }
  const Ucs was = fileUcs(ctx);
  const OdGePoint3d now[3] = {db.getUCSORG(), OdGePoint3d::kOrigin + db.getUCSXDIR(),
                              OdGePoint3d::kOrigin + db.getUCSYDIR()};
  const OdGePoint3d old[3] = {was.org, OdGePoint3d::kOrigin + was.x, OdGePoint3d::kOrigin + was.y};
  for (int k = 0; k < 3; ++k) {
    if (same(now[k], old[k])) continue;
    Record* var = ctx.file->headerVariable(kUcs[k]);
    if (!var) var = &addVariable(ctx, kUcs[k]);
    RecordIO io(ctx, *var, RecordIO::Patch);
    io.putPoint(10, now[k], 3);
  }
  ctx.quiet = quiet;
}

}  // namespace OdDxf::mapping
