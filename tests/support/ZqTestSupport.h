#pragma once
// Shared test fixtures: the platform initialised, the module loaded through
// the dynamic linker, a drawing with a chosen UCS and units, and helpers to
// read and edit rows the way the palette does.
#include <gtest/gtest.h>
#include "DbDatabase.h"
#include "DbPlainClasses.h"
#include "RxModule.h"
#include "ZQCommandsBase.h"
#include "ZqServices.h"
#include "KVKernel.h"
#include <QMap>
#include <QString>
#include <memory>
#include <vector>

// Registers the drawing classes and loads ZQProperties once per program.
void zqEnsureModuleLoaded();
// Unloads the module if it is loaded (lifecycle tests).
void zqUnloadModule();

// The property provider and information provider the module attached for
// an object's class (nearest ancestor), or null.
CZqPropertyBase* zqProviderFor(const OdDbObject* object);
CZqPrintObjectInfoPE* zqInfoFor(const OdDbObject* object);

// All rows of an object, in container order (the caller owns the result).
std::unique_ptr<CZqPropertiesContainer> zqRowsOf(const OdDbObject* object);
// The row with this category and name (untranslated = translated here).
CZqPropertyDescription* zqRow(CZqPropertiesContainer* rows, const char* category, const char* name);

class ZqDrawingTest : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // A UCS rotated 30 degrees about Z and shifted to (10, -5, 2).
  void useRotatedUcs();
  OdDbObjectId addToModelSpace(OdDbEntity* entity);
  OdDbObjectId addLine(const OdGePoint3d& start, const OdGePoint3d& end);

  // Reads a row of an object opened for read; sets a row on an object opened for write.
  CZqVariant get(const OdDbObjectId& id, const char* category, const char* name, const CZqVariant& index = {});
  int set(const OdDbObjectId& id, const char* category, const char* name, const CZqVariant& value,
          const CZqVariant& index = {});
  // The information lines of an object.
  std::vector<CZqPrintInfoContext::Line> info(const OdDbObjectId& id, bool inUcs = false, int maxElements = -1);
  const CZqPrintInfoContext::Line* infoLine(const std::vector<CZqPrintInfoContext::Line>& lines, const char* label);
  static std::vector<QString> labelsOf(const std::vector<CZqPrintInfoContext::Line>& lines);
  // A WCS point or vector in the current UCS, computed from the UCS axes
  // (independently of the platform's coordinate service).
  OdGePoint3d toUcs(const OdGePoint3d& p) const;
  OdGeVector3d toUcs(const OdGeVector3d& v) const { return toUcs(OdGePoint3d::kOrigin + v) - toUcs(OdGePoint3d::kOrigin); }
  template <class T>
  OdSmartPtr<T> openAs(const OdDbObjectId& id, OdDb::OpenMode mode = OdDb::kForRead) {
    return T::cast(id.openObject(mode).get());
  }
  size_t messageCount() const { return GetZqSystemServices()->Messages().size(); }

  OdDbDatabasePtr db;
};

// Records every event of the run-time system as one line of text:
// "class+ Name", "class- Name", "addX Class Protocol Extension",
// "delX Class Protocol", "cmd+ NAME", "cmd- NAME".
class ZqRecordingObserver : public OdRxSystemObserver {
 public:
  ZqRecordingObserver();
  ~ZqRecordingObserver() override;
  void classAdded(const OdRxClass* c) override;
  void classRemoved(const OdRxClass* c) override;
  void extensionAdded(const OdRxClass* cls, const OdRxClass* protocol, const OdRxObject* ext, const OdRxObject* previous) override;
  void extensionRemoved(const OdRxClass* cls, const OdRxClass* protocol, const OdRxObject* removed) override;
  void commandAdded(const OdEdCommand* cmd) override;
  void commandRemoved(const OdEdCommand* cmd) override;
  std::vector<std::string> events;
};

// Runs /usr/bin/python3 with a script; returns its standard output, and the
// exit code through *exitCode.
QString zqRunPython(const QString& script, const QStringList& args = {}, int* exitCode = nullptr);
// Runs a script that prints one line per object, its handle first and its
// fields separated by blanks; returns the lines' fields keyed by the handle
// in upper case, and the exit code through *exitCode.
QMap<QString, QStringList> zqPythonRowsByHandle(const QString& script, const QStringList& args, int* exitCode);
