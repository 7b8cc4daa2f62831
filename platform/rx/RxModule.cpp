#include "RxModule.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <cstdlib>
#include <dlfcn.h>
#include <map>
#include <unistd.h>

ODRX_DEFINE_PLATFORM_MEMBERS(OdRxModule, OdRxObject, nullptr, "")

void* odrxAlloc(size_t size) { return std::malloc(size); }
void odrxFree(void* p) { std::free(p); }

void* odrxModuleHandleOf(const void* addressInModule) {
  Dl_info info{};
  if (!dladdr(addressInModule, &info) || !info.dli_fname) return nullptr;
  // RTLD_NOLOAD gives the handle of the already loaded library without
  // loading it again; the extra reference is dropped right away.
  void* h = dlopen(info.dli_fname, RTLD_NOW | RTLD_NOLOAD);
  if (h) dlclose(h);
  return h;
}

OdString odrxModuleFileName(void* handle) {
  if (!handle) return {};
  // The address of any symbol of the library tells its file name.
  void* sym = dlsym(handle, "odrxCreateModuleObject");
  Dl_info info{};
  if (!sym || !dladdr(sym, &info) || !info.dli_fname) return {};
  return OdString(QFileInfo(QString::fromLocal8Bit(info.dli_fname)).absoluteFilePath());
}

namespace {

QString programDirectory() {
  char buf[4096];
  ssize_t n = readlink("/proc/self/exe", buf, sizeof(buf) - 1);
  if (n <= 0) return QDir::currentPath();
  buf[n] = 0;
  return QFileInfo(QString::fromLocal8Bit(buf)).absolutePath();
}

class DynamicLinker : public OdRxDynamicLinker {
 public:
  DynamicLinker() {
    const QByteArray env = qgetenv("ZQ_MODULE_PATH");
    for (const QString& d : QString::fromLocal8Bit(env).split(':', Qt::SkipEmptyParts))
      m_path.append(OdString(d));
    const QString exeDir = programDirectory();
    m_path.append(OdString(exeDir));
    m_path.append(OdString(QDir(exeDir + "/../lib").absolutePath()));
  }

  OdRxModulePtr loadModule(const OdString& moduleName, bool) override {
    const QString key = moduleName.qstring();
    if (auto it = m_loaded.find(key); it != m_loaded.end()) return it->second.module;
    m_lastError.empty();

    QString file = findFile(key);
    if (file.isEmpty()) return fail("module " + key + " not found in the search path");
    void* h = dlopen(QFile::encodeName(file).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!h) return fail(QString::fromLocal8Bit(dlerror()));

    using VersionFn = void (*)(int&, int&, int&, int&);
    using CreateFn = OdRxModule* (*)();
    auto version = reinterpret_cast<VersionFn>(dlsym(h, "odrxGetAPIVersion"));
    auto create = reinterpret_cast<CreateFn>(dlsym(h, "odrxCreateModuleObject"));
    if (!version || !create) {
      dlclose(h);
      return fail(file + " is not a run-time extension module (entry points missing)");
    }
    OdRxApiVersion v;
    version(v.major, v.minor, v.majorBuild, v.minorBuild);
    if (v.major != kOdRxPlatformApiVersion.major || v.minor != kOdRxPlatformApiVersion.minor) {
      dlclose(h);
      return fail(QString("%1 was built for platform %2.%3, this is %4.%5")
                      .arg(file).arg(v.major).arg(v.minor)
                      .arg(kOdRxPlatformApiVersion.major).arg(kOdRxPlatformApiVersion.minor));
    }
    OdRxModulePtr module(create());
    if (!module) {
      dlclose(h);
      return fail(file + ": odrxCreateModuleObject returned no module");
    }
    m_versions[key] = v;
    try {
      module->initApp();
    } catch (...) {
      module.release();
      dlclose(h);
      throw;
    }
    m_loaded[key] = Entry{module, h};
    return module;
  }

  bool unloadModule(const OdString& moduleName) override {
    auto it = m_loaded.find(moduleName.qstring());
    if (it == m_loaded.end()) return false;
    Entry e = it->second;
    m_loaded.erase(it);
    e.module->uninitApp();
    e.module.release();  // the last reference: the module object is destroyed
    dlclose(e.handle);
    return true;
  }

  OdRxModulePtr getModule(const OdString& moduleName) const override {
    auto it = m_loaded.find(moduleName.qstring());
    return it == m_loaded.end() ? OdRxModulePtr() : it->second.module;
  }

  OdArray<OdString> loadedModuleNames() const override {
    OdArray<OdString> out;
    for (auto& [k, e] : m_loaded) out.append(OdString(k));
    return out;
  }

  OdString lastError() const override { return m_lastError; }
  void setSearchPath(const OdArray<OdString>& dirs) override { m_path = dirs; }
  OdArray<OdString> searchPath() const override { return m_path; }
  OdRxApiVersion moduleApiVersion(const OdString& moduleName) const override {
    auto it = m_versions.find(moduleName.qstring());
    return it == m_versions.end() ? OdRxApiVersion{} : it->second;
  }

 private:
  struct Entry {
    OdRxModulePtr module;
    void* handle = nullptr;
  };

  OdRxModulePtr fail(const QString& message) {
    m_lastError = OdString(message);
    return {};
  }

  QString findFile(const QString& name) const {
    if (name.contains('/')) return QFileInfo::exists(name) ? name : QString();
    const QStringList candidates{name + ".so", "lib" + name + ".so", name};
    for (const OdString& dir : m_path)
      for (const QString& c : candidates) {
        QFileInfo fi(QDir(dir.qstring()), c);
        if (fi.isFile()) return fi.absoluteFilePath();
      }
    return {};
  }

  OdArray<OdString> m_path;
  std::map<QString, Entry> m_loaded;
  std::map<QString, OdRxApiVersion> m_versions;
  OdString m_lastError;
};

}  // namespace

OdRxDynamicLinker::~OdRxDynamicLinker() = default;

OdRxDynamicLinker* odrxDynamicLinker() {
  static DynamicLinker linker;
  return &linker;
}
