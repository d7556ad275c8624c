#include "sample/host/host_registration.h"

#include "com/module.h"
#include "com/object.h"

#include <comdef.h>

#include <string>

namespace qz::sample {

namespace {

constexpr wchar_t classKey[] = L"CLSID\\{0C1D6E0B-5C5E-4E0B-9B62-8D2D3B0C6F51}";
constexpr wchar_t progIdKey[] = L"VandraX.ReferenceHost";
constexpr GUID libraryId = {0x7b5745d3, 0x72e0, 0x48d3, {0xa4, 0xbb, 0xff, 0x7b, 0x0b, 0x43, 0x24, 0x5a}};

struct Row {
    const wchar_t* root;
    const wchar_t* subkey;
    const wchar_t* name;   // null: the key's default value
    const wchar_t* value;  // null: the module's path
};

constexpr Row rows[] = {
    {progIdKey, L"", nullptr, L"Reference host"},
    {progIdKey, L"\\CLSID", nullptr, L"{0C1D6E0B-5C5E-4E0B-9B62-8D2D3B0C6F51}"},
    {classKey, L"", nullptr, L"Reference host"},
    {classKey, L"\\ProgID", nullptr, L"VandraX.ReferenceHost"},
    {classKey, L"\\Programmable", nullptr, L""},
    {classKey, L"\\TypeLib", nullptr, L"{7B5745D3-72E0-48D3-A4BB-FF7B0B43245A}"},
    {classKey, L"\\Version", nullptr, L"6.5"},
    {classKey, L"\\InprocServer32", nullptr, nullptr},
    {classKey, L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
};

void Write(const Row& row, const std::wstring& modulePath) {
    const std::wstring key = std::wstring(row.root) + row.subkey;
    const std::wstring value = row.value ? row.value : modulePath;
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    const LSTATUS written =
        RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), row.name, REG_SZ, value.c_str(), size);
    ThrowIfFailed(HRESULT_FROM_WIN32(static_cast<DWORD>(written)), L"The class cannot be registered");
}

}  // namespace

void RegisterHost() {
    const std::wstring path = ThisModulePath();
    for (const Row& row : rows) Write(row, path);
    ComPtr<ITypeLib> library;
    ThrowIfFailed(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library), L"The type library cannot be loaded");
    auto* const libraryPath = const_cast<wchar_t*>(path.c_str());  // the system does not write there
    ThrowIfFailed(RegisterTypeLib(library.Get(), libraryPath, nullptr),
                  L"The type library cannot be registered");
}

void UnregisterHost() {
    for (const wchar_t* key : {classKey, progIdKey}) {
        const LSTATUS removed = RegDeleteTreeW(HKEY_CLASSES_ROOT, key);
        if (removed != ERROR_FILE_NOT_FOUND) {
            ThrowIfFailed(HRESULT_FROM_WIN32(static_cast<DWORD>(removed)),
                          L"The class cannot be unregistered");
        }
    }
    _bstr_t path;
    if (FAILED(QueryPathOfRegTypeLib(libraryId, 6, 5, 0, path.GetAddress()))) return;  // none to remove
    ThrowIfFailed(UnRegisterTypeLib(libraryId, 6, 5, 0, SYS_WIN64),
                  L"The type library cannot be unregistered");
}

}  // namespace qz::sample
