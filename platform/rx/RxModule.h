#pragma once
// Run-time extension modules and the dynamic linker that loads them.
#include "OdRxObject.h"
#include "OdRxClass.h"
#include "OdString.h"
#include <new>

class RX_API OdRxModule : public OdRxObject {
 public:
  static OdRxClass* desc();
  OdRxClass* isA() const override;
  static void rxInit();
  static void rxUninit();
  virtual void initApp() = 0;
  virtual void uninitApp() = 0;
  virtual OdString appName() const = 0;
  // The handle the operating system gave the module's shared library.
  virtual void* sysData() const = 0;
};
using OdRxModulePtr = OdSmartPtr<OdRxModule>;

// The four numbers a module answers from odrxGetAPIVersion.
struct OdRxApiVersion {
  int major = 0, minor = 0, majorBuild = 0, minorBuild = 0;
  friend bool operator==(const OdRxApiVersion&, const OdRxApiVersion&) = default;
};
// The version of the platform this build provides; a module must report the
// same major and minor numbers to be loaded.
constexpr OdRxApiVersion kOdRxPlatformApiVersion{26, 8, 0, 54832};

RX_API void* odrxAlloc(size_t size);
RX_API void odrxFree(void* p);

// Shared-library wrapper of a module object: keeps the handle of the library
// the module came from and clears the library's singleton pointer when the
// module is destroyed, so that a reload creates a fresh object.
RX_API void* odrxModuleHandleOf(const void* addressInModule);
RX_API OdString odrxModuleFileName(void* handle);

template <class T>
class OdRxWin32Module : public T {
 public:
  OdRxWin32Module(void* hModule, OdRxModule** ppSingleton) : m_hModule(hModule), m_ppSingleton(ppSingleton) {}
  ~OdRxWin32Module() override {
    if (m_ppSingleton && *m_ppSingleton == this) *m_ppSingleton = nullptr;
  }
  void addRef() override { ++m_refs; }
  void release() override {
    if (--m_refs == 0) {
      this->~OdRxWin32Module();
      odrxFree(this);
    }
  }
  long numRefs() const override { return m_refs; }
  OdString appName() const override { return odrxModuleFileName(m_hModule); }
  void* sysData() const override { return m_hModule; }

 private:
  void* m_hModule;
  OdRxModule** m_ppSingleton;
  long m_refs = 0;
};

// Defines the two entry points of a module's shared library. Nothing else of
// the library needs to be visible to the dynamic linker.
#define ODRX_DEFINE_DYNAMIC_MODULE(ModuleClass)                                        \
  static OdRxModule* g_pSingletonModule = nullptr;                                     \
  extern "C" OD_EXPORT_SYMBOL OdRxModule* odrxCreateModuleObject() {                   \
    if (!g_pSingletonModule) {                                                         \
      void* mem = ::odrxAlloc(sizeof(OdRxWin32Module<ModuleClass>));                    \
      if (!mem) throw std::bad_alloc();                                                \
      g_pSingletonModule = ::new (mem) OdRxWin32Module<ModuleClass>(                   \
          ::odrxModuleHandleOf(reinterpret_cast<const void*>(&odrxCreateModuleObject)), \
          &g_pSingletonModule);                                                        \
    }                                                                                  \
    return g_pSingletonModule;                                                         \
  }                                                                                    \
  extern "C" OD_EXPORT_SYMBOL void odrxGetAPIVersion(int& nMajorVersion, int& nMinorVersion, \
                                                     int& nMajorBuildVersion,          \
                                                     int& nMinorBuildVersion) {        \
    nMajorVersion = kOdRxPlatformApiVersion.major;                                     \
    nMinorVersion = kOdRxPlatformApiVersion.minor;                                     \
    nMajorBuildVersion = kOdRxPlatformApiVersion.majorBuild;                           \
    nMinorBuildVersion = kOdRxPlatformApiVersion.minorBuild;                           \
  }

// Loads modules by name from the search path and keeps them until unloaded.
class RX_API OdRxDynamicLinker {
 public:
  virtual ~OdRxDynamicLinker();
  // Loads (or finds already loaded) the module "name": the shared library
  // name.so (or libname.so) in one of the search directories. Checks the API
  // version, creates the module object and calls initApp once. Returns null
  // and leaves a message in lastError() when the module cannot be loaded;
  // exceptions of initApp propagate after the library is released.
  virtual OdRxModulePtr loadModule(const OdString& moduleName, bool silent = true) = 0;
  // Calls uninitApp, releases the module object and closes the library.
  virtual bool unloadModule(const OdString& moduleName) = 0;
  virtual OdRxModulePtr getModule(const OdString& moduleName) const = 0;
  virtual OdArray<OdString> loadedModuleNames() const = 0;
  virtual OdString lastError() const = 0;
  // Directories searched in order; the defaults are $ZQ_MODULE_PATH
  // (colon-separated), the directory of the running program and ../lib from it.
  virtual void setSearchPath(const OdArray<OdString>& dirs) = 0;
  virtual OdArray<OdString> searchPath() const = 0;
  // The version read from a module's odrxGetAPIVersion on its last load.
  virtual OdRxApiVersion moduleApiVersion(const OdString& moduleName) const = 0;
};
RX_API OdRxDynamicLinker* odrxDynamicLinker();
