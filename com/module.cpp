#include "com/module.h"

#include "com/error.h"

#include <atomic>

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace qz {

namespace {
std::atomic<long> lockCount = 0;
}

HINSTANCE ThisModule() noexcept { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

std::wstring ThisModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(ThisModule(), path.data(), static_cast<DWORD>(path.size()));
        ThrowLastErrorIf(length == 0, L"The module's path is not known");
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

ModuleLock::ModuleLock() noexcept { LockModule(); }

ModuleLock::~ModuleLock() { UnlockModule(); }

void LockModule() noexcept { ++lockCount; }

void UnlockModule() noexcept { --lockCount; }

bool ModuleInUse() noexcept { return lockCount != 0; }

}  // namespace qz
