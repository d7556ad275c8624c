// The built module, loaded the way a client without COM would, and its entry points.
#pragma once

#include "com/object.h"

#include <windows.h>

#include <string>

namespace qz {

class LoadedModule {
  public:
    LoadedModule() : handle_(LoadLibraryW(L"qzVandraExt.dll")) {}
    ~LoadedModule() { FreeLibrary(handle_); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    HRESULT GetClassObject(REFCLSID classId, REFIID iid, void** object) const {
        return Entry<HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**)>("DllGetClassObject")(classId, iid,
                                                                                              object);
    }
    /// A new object of a class, into `made`.
    template <class I>
    void Make(REFCLSID classId, ComPtr<I>& made) const {
        ComPtr<IClassFactory> factory;
        ThrowIfFailed(GetClassObject(classId, IID_PPV_ARGS(&factory)));
        ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(made.ReleaseAndGetAddressOf())));
    }
    HRESULT CanUnloadNow() const { return Plain("DllCanUnloadNow"); }
    HRESULT RegisterServer() const { return Plain("DllRegisterServer"); }
    HRESULT UnregisterServer() const { return Plain("DllUnregisterServer"); }
    HRESULT Install(bool install, const wchar_t* commandLine) const {
        return Entry<HRESULT(STDAPICALLTYPE*)(BOOL, const wchar_t*)>("DllInstall")(install, commandLine);
    }

    std::wstring Path() const {
        wchar_t path[MAX_PATH] = {};
        GetModuleFileNameW(handle_, path, MAX_PATH);
        return path;
    }

  private:
    template <class Function>
    Function Entry(const char* name) const {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
    }
    HRESULT Plain(const char* name) const { return Entry<HRESULT(STDAPICALLTYPE*)()>(name)(); }

    HMODULE handle_;
};

}  // namespace qz
