#include "module/registration.h"

#include "com/error.h"
#include "com/module.h"
#include "module/registrar.h"
#include "module/type_library.h"

#include <exception>

namespace qz {

namespace {

// The machine's classes are opened by their own name: through HKEY_CLASSES_ROOT, keys that the current user
// has too would be written to the user's part.
RegistryKey ClassesKey(RegistrationScope scope) {
    const HKEY root = scope == RegistrationScope::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    return RegistryKey::Create(root, L"Software\\Classes");
}

std::vector<RegistrationScript> ServedScripts() {
    std::vector<RegistrationScript> scripts;
    const Replacements replacements = ModuleReplacements(ThisModulePath());
    for (const ClassRow& row : ClassTable()) {
        if (row.served) scripts.push_back(Expand(ScriptOf(row), replacements));
    }
    return scripts;
}

void UnregisterTypeLibrary(RegistrationScope scope, const RegistryKey& classes) {
    const TypeLibrary library(ThisModulePath());
    const HRESULT result = library.Unregister(scope);
    // The system calls it a failure when there was nothing to remove.
    if (RegistryKey::Open(classes.Get(), library.VersionKey())) {
        ThrowIfFailed(result, L"The type library cannot be unregistered");
    }
}

// Keys of the Classes key that all modules share. For a user they exist only if some module needs them.
void RemoveEmptyContainers(const RegistryKey& classes) {
    for (const wchar_t* name : {L"CLSID", L"Interface", L"TypeLib"}) {
        const auto key = RegistryKey::Open(classes.Get(), name);
        if (key && key->Empty()) DeleteKey(classes.Get(), name);
    }
}

}  // namespace

void RegisterModule(RegistrationScope scope) {
    const RegistryKey classes = ClassesKey(scope);
    RegistrationRun run(classes);
    for (const RegistrationScript& script : ServedScripts()) run.Apply(script);
    const TypeLibrary library(ThisModulePath());
    for (const std::wstring& key : library.RegistryKeys()) run.Protect(key);
    library.Register(scope);
    run.Keep();
}

void UnregisterModule(RegistrationScope scope) {
    std::exception_ptr failure;
    const auto attempt = [&failure](auto&& step) {
        try {
            step();
        } catch (...) {
            if (!failure) failure = std::current_exception();
        }
    };
    const RegistryKey classes = ClassesKey(scope);
    for (const RegistrationScript& script : ServedScripts()) {
        attempt([&] { RemoveScript(classes, script); });
    }
    attempt([&] { UnregisterTypeLibrary(scope, classes); });
    attempt([&] { RemoveEmptyContainers(classes); });
    if (failure) std::rethrow_exception(failure);
}

}  // namespace qz
