// The built DLL of the reference host: registered, created by its name, unregistered without a trace.
#include "com/com_ptr.h"

#include "generated/reference_host.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace qz::sample {
namespace {

constexpr const wchar_t* keys[] = {
    L"VandraX.ReferenceHost",
    L"CLSID\\{0C1D6E0B-5C5E-4E0B-9B62-8D2D3B0C6F51}",
    L"TypeLib\\{7B5745D3-72E0-48D3-A4BB-FF7B0B43245A}\\6.5",
    L"Interface\\{6A3C2C0E-9A55-4C0C-8B43-0F6E6B5D3A14}",
};

bool KeyExists(const wchar_t* key) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key, 0, KEY_READ, &opened) != ERROR_SUCCESS) return false;
    RegCloseKey(opened);
    return true;
}

struct HostRegistration : testing::Test {
    HMODULE module = LoadLibraryW(L"vandra_reference_host.dll");
    ~HostRegistration() override { FreeLibrary(module); }

    HRESULT Call(const char* name) const {
        const auto entry = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
            reinterpret_cast<void*>(GetProcAddress(module, name)));
        return entry ? entry() : E_NOINTERFACE;
    }
};

TEST_F(HostRegistration, MakesTheHostCreatableAndLeavesNothing) {
    ASSERT_TRUE(module);
    ASSERT_EQ(Call("DllRegisterServer"), S_OK);
    for (const wchar_t* key : keys) EXPECT_TRUE(KeyExists(key)) << key;

    CLSID id{};
    ComPtr<IVandraX> host;
    EXPECT_EQ(CLSIDFromProgID(L"VandraX.ReferenceHost", &id), S_OK);
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&host)), S_OK);
    EXPECT_EQ(Call("DllCanUnloadNow"), S_FALSE);
    host.Reset();
    EXPECT_EQ(Call("DllCanUnloadNow"), S_OK);

    EXPECT_EQ(Call("DllUnregisterServer"), S_OK);
    for (const wchar_t* key : keys) EXPECT_FALSE(KeyExists(key)) << key;
    EXPECT_EQ(Call("DllUnregisterServer"), S_OK);
}

}  // namespace
}  // namespace qz::sample
