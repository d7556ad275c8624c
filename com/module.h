// What a DLL knows of itself: its handle, its path, and how many objects and locks keep it loaded.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

/// The handle of the module that this code is linked into.
HINSTANCE ThisModule() noexcept;

/// The full path of that module. Throws when the system does not tell it.
std::wstring ThisModulePath();

/// Keeps the module loaded: one per living object, and one per IClassFactory::LockServer.
class ModuleLock {
  public:
    ModuleLock() noexcept;
    ~ModuleLock();
    ModuleLock(const ModuleLock&) = delete;
    ModuleLock& operator=(const ModuleLock&) = delete;
};

void LockModule() noexcept;
void UnlockModule() noexcept;

/// True while any object or lock is alive; DllCanUnloadNow tells it.
bool ModuleInUse() noexcept;

}  // namespace qz
