// The entry points of the module.
#include "com/class_factory.h"
#include "module/class_objects.h"
#include "module/registration.h"
#include "module/startup.h"

#include <windows.h>

using namespace qz;

namespace {

HRESULT Register(RegistrationScope scope) noexcept {
    return Guard(IID_NULL, [scope] { RegisterModule(scope); });
}

HRESULT Unregister(RegistrationScope scope) noexcept {
    return Guard(IID_NULL, [scope] { UnregisterModule(scope); });
}

}  // namespace

/// Loading does next to nothing: all start-up that may load libraries or register window classes waits for
/// the first class object, when the loader's lock is not held.
BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
    // Refused for a module with thread-local storage of its own, which needs the notifications; then they
    // stay.
    if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
    return TRUE;
}

/// The class object of one of the module's classes; CLASS_E_CLASSNOTAVAILABLE for any other.
STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    const ModuleLock stayStarted;
    const ClassObject* const found = FindClassObject(classId);
    if (!found) return CLASS_E_CLASSNOTAVAILABLE;
    const HRESULT started = Guard(__uuidof(IClassFactory), StartUp);
    return FAILED(started) ? started : MakeClassFactory(found->create, iid, object);
}

/// S_OK when no object and no lock is alive. The start-up is then undone here rather than on unloading, again
/// for the loader's lock; the next class object starts up anew.
STDAPI DllCanUnloadNow() { return ShutDownIfUnused() ? S_OK : S_FALSE; }

STDAPI DllRegisterServer() { return Register(RegistrationScope::Machine); }

STDAPI DllUnregisterServer() { return Unregister(RegistrationScope::Machine); }

/// `regsvr32 /n /i:user` registers for the current user, with /u as well it unregisters; `/i` alone means the
/// machine. Any other command line is E_INVALIDARG.
STDAPI DllInstall(BOOL install, const wchar_t* commandLine) {
    RegistrationScope scope = RegistrationScope::Machine;
    if (commandLine && *commandLine) {
        if (_wcsicmp(commandLine, L"user") != 0) return E_INVALIDARG;
        scope = RegistrationScope::User;
    }
    return install ? Register(scope) : Unregister(scope);
}
