#include "ZqTestSupport.h"
#include <QProcess>

void zqEnsureModuleLoaded() {
  static bool initialised = false;
  if (!initialised) {
    odDbInitialize();
    initialised = true;
    GetZqSystemServices()->SetEchoToStderr(false);
  }
  if (!odrxDynamicLinker()->getModule("ZQProperties")) {
    OdRxModulePtr m = odrxDynamicLinker()->loadModule("ZQProperties");
    ASSERT_TRUE(m) << odrxDynamicLinker()->lastError().toStdString();
  }
}

void zqUnloadModule() {
  if (odrxDynamicLinker()->getModule("ZQProperties")) odrxDynamicLinker()->unloadModule("ZQProperties");
}

CZqPropertyBase* zqProviderFor(const OdDbObject* object) {
  if (!CZqPropertyBase::desc()) return nullptr;
  return static_cast<CZqPropertyBase*>(object->queryX(CZqPropertyBase::desc()).get());
}

CZqPrintObjectInfoPE* zqInfoFor(const OdDbObject* object) {
  if (!CZqPrintObjectInfoPE::desc()) return nullptr;
  return static_cast<CZqPrintObjectInfoPE*>(object->queryX(CZqPrintObjectInfoPE::desc()).get());
}

std::unique_ptr<CZqPropertiesContainer> zqRowsOf(const OdDbObject* object) {
  CZqPropertyBase* pe = zqProviderFor(object);
  // Groups answer to a protocol of their own, as the palette asks them.
  if (!pe) pe = CZqPropertyPEClassFactory::providerFor(object);
  if (!pe) return nullptr;
  CZqPropertiesContainer* c = nullptr;
  pe->GetPropertyNames(object, c, nullptr, nullptr, false);
  return std::unique_ptr<CZqPropertiesContainer>(c);
}

CZqPropertyDescription* zqRow(CZqPropertiesContainer* rows, const char* category, const char* name) {
  return rows ? rows->GetByName(CZqString(name), CZqString(category)) : nullptr;
}

void ZqDrawingTest::SetUp() {
  zqEnsureModuleLoaded();
  db = OdDbDatabase::createObject();
  GetZqSystemServices()->ClearMessages();
}

void ZqDrawingTest::TearDown() {
  if (CZqVELOXQTGate* gate = GetZqVELOXQTGate()) gate->ClearSelection();
  db.release();
}

void ZqDrawingTest::useRotatedUcs() {
  const double a = 30.0 * OdaPI / 180.0;
  db->setUCS(OdGePoint3d(10, -5, 2), OdGeVector3d(std::cos(a), std::sin(a), 0), OdGeVector3d(-std::sin(a), std::cos(a), 0));
}

OdDbObjectId ZqDrawingTest::addToModelSpace(OdDbEntity* entity) {
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  entity->setDatabaseDefaults(db.get());
  return OdDbBlockTableRecord::cast(ms.get())->appendOdDbEntity(entity);
}

OdDbObjectId ZqDrawingTest::addLine(const OdGePoint3d& start, const OdGePoint3d& end) {
  OdDbLinePtr line = OdDbLine::createObject();
  line->setStartPoint(start);
  line->setEndPoint(end);
  return addToModelSpace(line.get());
}

CZqVariant ZqDrawingTest::get(const OdDbObjectId& id, const char* category, const char* name, const CZqVariant& index) {
  OdDbObjectPtr obj = id.openObject(OdDb::kForRead);
  auto rows = zqRowsOf(obj.get());
  CZqPropertyDescription* d = zqRow(rows.get(), category, name);
  if (!d) {
    ADD_FAILURE() << "no row " << category << "/" << name;
    return {};
  }
  return d->GetValue(obj.get(), index);
}

int ZqDrawingTest::set(const OdDbObjectId& id, const char* category, const char* name, const CZqVariant& value,
                       const CZqVariant& index) {
  OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
  auto rows = zqRowsOf(obj.get());
  CZqPropertyDescription* d = zqRow(rows.get(), category, name);
  if (!d) {
    ADD_FAILURE() << "no row " << category << "/" << name;
    return 0;
  }
  return d->SetValue(obj.get(), value, index);
}

std::vector<CZqPrintInfoContext::Line> ZqDrawingTest::info(const OdDbObjectId& id, bool inUcs, int maxElements) {
  OdDbObjectPtr obj = id.openObject(OdDb::kForRead);
  CZqPrintInfoContext ctx(db.get(), inUcs, maxElements);
  CZqPrintObjectInfoPE* pe = zqInfoFor(obj.get());
  if (!pe) {
    ADD_FAILURE() << "no information provider";
    return {};
  }
  pe->PrintObjectInfo(obj.get(), &ctx);
  return ctx.Lines();
}

const CZqPrintInfoContext::Line* ZqDrawingTest::infoLine(const std::vector<CZqPrintInfoContext::Line>& lines,
                                                         const char* label) {
  for (const auto& l : lines)
    if (l.label == QString::fromUtf8(label)) return &l;
  return nullptr;
}

std::vector<QString> ZqDrawingTest::labelsOf(const std::vector<CZqPrintInfoContext::Line>& lines) {
  std::vector<QString> out;
  for (const auto& l : lines) out.push_back(l.label);
  return out;
}

OdGePoint3d ZqDrawingTest::toUcs(const OdGePoint3d& p) const {
  const OdGeVector3d x = db->getUCSXDIR(), y = db->getUCSYDIR(), z = x.crossProduct(y);
  const OdGeVector3d d = p - db->getUCSORG();
  return {d.dotProduct(x), d.dotProduct(y), d.dotProduct(z)};
}

ZqRecordingObserver::ZqRecordingObserver() { odrxAddSystemObserver(this); }
ZqRecordingObserver::~ZqRecordingObserver() { odrxRemoveSystemObserver(this); }

namespace {
std::string nameOf(const OdRxClass* c) { return c ? c->name().toStdString() : std::string("(null)"); }
}  // namespace

void ZqRecordingObserver::classAdded(const OdRxClass* c) { events.push_back("class+ " + nameOf(c)); }
void ZqRecordingObserver::classRemoved(const OdRxClass* c) { events.push_back("class- " + nameOf(c)); }
void ZqRecordingObserver::extensionAdded(const OdRxClass* cls, const OdRxClass* protocol, const OdRxObject*, const OdRxObject*) {
  events.push_back("addX " + nameOf(cls) + " " + nameOf(protocol));
}
void ZqRecordingObserver::extensionRemoved(const OdRxClass* cls, const OdRxClass* protocol, const OdRxObject*) {
  events.push_back("delX " + nameOf(cls) + " " + nameOf(protocol));
}
void ZqRecordingObserver::commandAdded(const OdEdCommand* cmd) { events.push_back("cmd+ " + cmd->globalName().toStdString()); }
void ZqRecordingObserver::commandRemoved(const OdEdCommand* cmd) { events.push_back("cmd- " + cmd->globalName().toStdString()); }

QString zqRunPython(const QString& script, const QStringList& args, int* exitCode) {
  QProcess p;
  p.start("/usr/bin/python3", QStringList{"-c", script} + args);
  p.waitForFinished(120000);
  if (exitCode) *exitCode = p.exitCode();
  return QString::fromUtf8(p.readAllStandardOutput());
}

QMap<QString, QStringList> zqPythonRowsByHandle(const QString& script, const QStringList& args, int* exitCode) {
  QMap<QString, QStringList> rows;
  for (const QString& line : zqRunPython(script, args, exitCode).split('\n', Qt::SkipEmptyParts)) {
    const QStringList f = line.split(' ');
    rows.insert(f[0].toUpper(), f);
  }
  return rows;
}
