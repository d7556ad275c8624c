// The entry points of the reference host's DLL.
#include "com/class_factory.h"
#include "sample/host/host_registration.h"
#include "sample/host/reference_host.h"

#include <windows.h>

using namespace qz;

BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH) DisableThreadLibraryCalls(module);
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    if (classId != CLSID_ReferenceHost) return CLASS_E_CLASSNOTAVAILABLE;
    return MakeClassFactory(CreateInstanceOf<sample::MemoryHost>, iid, object);
}

STDAPI DllCanUnloadNow() { return ModuleInUse() ? S_FALSE : S_OK; }

STDAPI DllRegisterServer() { return Guard(IID_NULL, sample::RegisterHost); }

STDAPI DllUnregisterServer() { return Guard(IID_NULL, sample::UnregisterHost); }
