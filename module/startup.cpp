#include "module/startup.h"

#include "com/error.h"
#include "com/module.h"
#include "module/class_objects.h"

#include <windows.h>
#include <commctrl.h>

#include <mutex>
#include <utility>

namespace qz {

namespace {

std::mutex startupMutex;
HMODULE richEdit = nullptr;  // non-null: started

// The two newest classes are known only to version 6 of the library, which the application's manifest
// chooses.
void InitialiseCommonControls() {
    constexpr DWORD version5Classes = 0x3FFF;
    constexpr DWORD version6Classes = ICC_STANDARD_CLASSES | ICC_LINK_CLASS;
    INITCOMMONCONTROLSEX controls = {sizeof controls, version5Classes | version6Classes};
    if (InitCommonControlsEx(&controls)) return;
    controls.dwICC = version5Classes;
    if (!InitCommonControlsEx(&controls)) Throw(E_FAIL, L"The common controls cannot be initialised");
}

void RunClassStartUps() {
    for (const ClassObject& classObject : ClassObjects()) {
        if (classObject.startUp) classObject.startUp();
    }
}

}  // namespace

void StartUp() {
    const std::scoped_lock lock(startupMutex);
    if (richEdit) return;
    const HMODULE library = LoadLibraryExW(L"RICHED20.DLL", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    ThrowLastErrorIf(!library, L"RICHED20.DLL cannot be loaded");
    try {
        RunClassStartUps();
        InitialiseCommonControls();
    } catch (...) {
        FreeLibrary(library);
        throw;
    }
    richEdit = library;
}

bool ShutDownIfUnused() noexcept {
    const std::scoped_lock lock(startupMutex);
    if (ModuleInUse()) return false;
    if (richEdit) FreeLibrary(std::exchange(richEdit, nullptr));
    return true;
}

}  // namespace qz
