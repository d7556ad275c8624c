// The whole module in the registry: what it writes for the machine and for a user, and what stays afterwards.
#include "tests/module/loaded_module.h"
#include "tests/module/registry_listing.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace qz {
namespace {

constexpr const wchar_t* classesPath = L"Software\\Classes";
const std::wstring libraryId = L"{1D2EC6D1-E2F3-455F-83E7-9AE07050D20D}";

struct Class {
    std::wstring name;
    std::wstring id;
    std::wstring versionIndependent;
    const wchar_t* threading = L"Apartment";
    bool control = true;
    const wchar_t* key = nullptr;  ///< Where the name without version leads here; null: as it reads.
    const wchar_t* prefix = L"QzVandraExt.";  ///< Of both names.
    bool versioned = true;
};

// The classes that the module serves so far.
const Class classes[] = {
    {L"qzBookmarkCtrl", L"{B12592F0-6748-46E2-BCC8-38788B852506}", L"QzVandraExt.qzBookmarkCtrl"},
    {L"qzLayersCtrl", L"{CC8649C0-24F7-483B-8F09-505077C23D94}", L"QzVandraExt.qzLayersCtrl"},
    {L"qzThumbnailCtrl", L"{560395C7-50BB-4B91-971B-B7432D935AA6}", L"QzVandraExt.qzThumbnailCtrl"},
    {L"qzStatusCtrl", L"{AA4B6D08-6252-4080-819A-3BDE87080668}", L"qzVandraExt.qzStatusCtrl"},
    {L"qzPropCtrl", L"{302D8D00-3D56-42FB-A979-954C7D9AC4C5}", L"qzVandraExt.qzPropCtrl", L"Apartment", true,
     L"QzPropertyDialog.qzPropCtrl"},
    {L"qzPropertiesDlg", L"{F7C96B43-3F7A-403B-87CA-646D629C45BA}", L"QzVandraExt.qzPropertiesDlg",
     L"Apartment", false},
    {L"qzGridUnitsDlg", L"{D153159E-EE13-475E-94EA-47FB0E82FCDD}", L"QzVandraExt.qzGridUnitsDlg",
     L"Apartment", false},
    {L"qzDocSettingsDlg", L"{C176F8FB-F1E9-460B-9C41-E34493FF1C45}", L"QzVandraExt.qzDocSettingsDlg",
     L"Apartment", false, nullptr, L"QzvandraExt."},
    {L"qzFormatter", L"{816F7E96-8C4D-4E9C-ACF0-088C2F3505C4}", L"QzVandraExt.qzFormatter", L"both", false},
    {L"qzCategory", L"{591FB06F-1EEB-4C9C-8C3A-ACA84FAE477F}", L"QzVandraExt.qzCategory", L"Both", false},
    {L"qzFormat", L"{27081A24-B18E-4FE8-BFC1-7B3B594508EA}", L"QzVandraExt.qzFormat", L"Both", false},
    {L"qzPluginUIDialogs", L"{4F765042-5F64-4EE2-AD5C-EDC18E69F8C2}", L"QzVandraExt.qzPluginUIDialogs",
     L"Apartment", false, nullptr, L"QzVandraExt.", false},
};

struct Interface {
    std::wstring name, id;
    bool events = false;
};

/// Those of the type library.
std::vector<Interface> ReadInterfaces() {
    ComPtr<ITypeLib> library;
    ThrowIfFailed(LoadTypeLibEx(L"qzVandraExt.dll", REGKIND_NONE, &library));
    std::vector<Interface> found;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> type;
        _bstr_t name;
        TYPEATTR* attributes = nullptr;
        wchar_t id[40] = L"";
        ThrowIfFailed(library->GetTypeInfo(index, &type));
        ThrowIfFailed(
            library->GetDocumentation(static_cast<int>(index), name.GetAddress(), nullptr, nullptr, nullptr));
        ThrowIfFailed(type->GetTypeAttr(&attributes));
        StringFromGUID2(attributes->guid, id, 40);
        if (attributes->typekind == TKIND_DISPATCH)
            found.push_back({name.GetBSTR(), id, !(attributes->wTypeFlags & TYPEFLAG_FDUAL)});
        type->ReleaseTypeAttr(attributes);
    }
    return found;
}
const std::vector<Interface>& Interfaces() {
    static const std::vector<Interface> read = ReadInterfaces();
    return read;
}
// Keys that are the module's by their name.
bool IsOurs(const std::wstring& name) {
    return name == libraryId || name.starts_with(L"Qz") || name.starts_with(L"qz") ||
           std::ranges::any_of(classes, [&](const Class& each) { return name == each.id; }) ||
           std::ranges::any_of(Interfaces(), [&](const Interface& each) { return name == each.id; });
}

// A Classes key as far as registration may touch it: the names of all keys of the containers, and what ours
// hold.
RegistryListing ListClasses(HKEY root) {
    RegistryListing listing;
    for (const std::wstring view : {L"", L"Wow6432Node\\"}) {
        for (const std::wstring container : {L"", L"CLSID\\", L"Interface\\", L"TypeLib\\"}) {
            const std::wstring prefix = view + container;
            AddSubkeys(root, std::wstring(classesPath) + L"\\" + prefix, prefix, IsOurs, listing);
        }
    }
    return listing;
}

// A key with its default value.
void Expect(RegistryListing& expected, const std::wstring& key, const std::wstring& text) {
    expected[key];
    expected[key + L"|"] = text;
}

void ExpectClass(RegistryListing& expected, const Class& served, const std::wstring& modulePath) {
    const std::wstring progId = served.prefix + served.name;
    const std::wstring unversioned = served.key ? served.key : progId;
    const std::wstring best = served.versioned ? progId + L".1" : unversioned;
    for (const std::wstring& name : {unversioned, best}) {
        Expect(expected, name, served.name + L" Class");
        Expect(expected, name + L"\\CLSID", served.id);
    }
    if (served.versioned) Expect(expected, unversioned + L"\\CurVer", best);
    const std::wstring key = L"CLSID\\" + served.id;
    Expect(expected, key, served.name + L" Class");
    Expect(expected, key + L"\\ProgID", best);
    Expect(expected, key + L"\\VersionIndependentProgID", served.versionIndependent);
    Expect(expected, key + L"\\InprocServer32", modulePath);
    Expect(expected, key + L"\\TypeLib", libraryId);
    Expect(expected, key + L"\\Version", L"6.5");
    expected[key + L"\\InprocServer32|ThreadingModel"] = served.threading;
    expected[key + L"\\Programmable"];
    if (!served.control) return;
    Expect(expected, key + L"\\ToolboxBitmap32", modulePath + L", 101");
    Expect(expected, key + L"\\MiscStatus", L"0");
    Expect(expected, key + L"\\MiscStatus\\1", L"131473");
    for (const wchar_t* flag : {L"Control", L"Insertable"}) expected[key + L"\\" + flag];
}

RegistryListing ExpectedClasses(const std::wstring& modulePath) {
    RegistryListing expected;
    for (const Class& each : classes) ExpectClass(expected, each, modulePath);
    return expected;
}

RegistryListing ExpectedTypeLibrary(const std::wstring& modulePath) {
    RegistryListing expected;
    const std::wstring key = L"TypeLib\\" + libraryId;
    expected[key];
    Expect(expected, key + L"\\6.5", L"qzVandraExt 6.5 Type Library");
    expected[key + L"\\6.5\\409"];
    Expect(expected, key + L"\\6.5\\409\\win64", modulePath);
    for (const Interface& each : Interfaces()) {
        const std::wstring interfaceKey = L"Interface\\" + each.id;
        const wchar_t* const marshaler = each.events ? L"{00020420-0000-0000-C000-000000000046}"
                                                     : L"{00020424-0000-0000-C000-000000000046}";
        Expect(expected, interfaceKey, each.name);
        Expect(expected, interfaceKey + L"\\ProxyStubClsid32", marshaler);
        Expect(expected, interfaceKey + L"\\TypeLib", libraryId);
        expected[interfaceKey + L"\\TypeLib|Version"] = L"6.5";
    }
    return expected;
}

struct Scope {
    const char* name;
    HKEY root;
    const wchar_t* commandLine;
};

// Wine registers type libraries for the whole machine even when it is asked to for the user.
HKEY TypeLibraryRoot(const Scope& scope) {
    static const bool wine = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
    return wine ? HKEY_LOCAL_MACHINE : scope.root;
}

void PrintTo(const Scope& scope, std::ostream* out) { *out << scope.name; }

class Registration : public testing::TestWithParam<Scope> {
  protected:
    void SetUp() override {
        ASSERT_EQ(Unregister(), S_OK);
        before_ = List();
        librariesBefore_ = ListLibraries();
    }
    void TearDown() override {
        EXPECT_EQ(Unregister(), S_OK);
        EXPECT_EQ(module_.CanUnloadNow(), S_OK);
    }

    HRESULT Register() const { return module_.Install(true, GetParam().commandLine); }
    HRESULT Unregister() const { return module_.Install(false, GetParam().commandLine); }
    RegistryListing List() const { return ListClasses(GetParam().root); }
    RegistryListing ListLibraries() const { return ListClasses(TypeLibraryRoot(GetParam())); }

    LoadedModule module_;
    RegistryListing before_;
    RegistryListing librariesBefore_;
};

// Entries that registration adds by the system's own choice: help folder and flags of a type library, a
// second spelling of the marshaler, what 32-bit programs see, and the keys that all modules share.
bool IsOfTheSystem(const std::wstring& entry) {
    return entry.starts_with(L"Wow6432Node\\") || entry.starts_with(L"TypeLib\\" + libraryId + L"\\6.5\\") ||
           entry.find(L"\\ProxyStubClsid") != std::wstring::npos || entry == L"CLSID" ||
           entry == L"Interface" ||
           CompareStringOrdinal(entry.c_str(), -1, L"TypeLib", -1, TRUE) == CSTR_EQUAL;
}

// Takes the expected entries out of those added; each has to be there.
void TakeOut(RegistryListing& added, const RegistryListing& expected) {
    for (const auto& [entry, text] : expected) {
        const auto found = added.extract(entry);
        ASSERT_TRUE(found) << testing::PrintToString(entry);
        EXPECT_EQ(found.mapped(), text) << testing::PrintToString(entry);
    }
}

INSTANTIATE_TEST_SUITE_P(Scopes, Registration,
                         testing::Values(Scope{"machine", HKEY_LOCAL_MACHINE, nullptr},
                                         Scope{"user", HKEY_CURRENT_USER, L"User"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(Registration, WritesEveryKeyAndNoOther) {
    ASSERT_EQ(Register(), S_OK);
    RegistryListing added = Added(before_, List());
    added.merge(Added(librariesBefore_, ListLibraries()));
    TakeOut(added, ExpectedClasses(module_.Path()));
    TakeOut(added, ExpectedTypeLibrary(module_.Path()));
    for (const auto& [entry, text] : added)
        EXPECT_TRUE(IsOfTheSystem(entry)) << testing::PrintToString(entry);
}

TEST_P(Registration, LeavesNothingBehind) {
    ASSERT_EQ(Register(), S_OK);
    ASSERT_EQ(Register(), S_OK);
    ASSERT_EQ(Unregister(), S_OK);
    EXPECT_EQ(Added(before_, List()), RegistryListing());
    EXPECT_EQ(Added(List(), before_), RegistryListing());
    EXPECT_EQ(Added(librariesBefore_, ListLibraries()), RegistryListing());
}

TEST_P(Registration, LeavesWhatOthersKeepUnderItsNames) {
    ASSERT_EQ(Register(), S_OK);
    const std::wstring foreign = std::wstring(classesPath) + L"\\QzVandraExt.qzThumbnailCtrl\\Insertable";
    RegistryKey::Create(GetParam().root, foreign).SetValue(L"note", RegistryValue::Text(L"foreign"));
    ASSERT_EQ(Unregister(), S_OK);
    const RegistryListing left = {{L"QzVandraExt.qzThumbnailCtrl", L""},
                                  {L"QzVandraExt.qzThumbnailCtrl\\Insertable", L""},
                                  {L"QzVandraExt.qzThumbnailCtrl\\Insertable|note", L"foreign"}};
    EXPECT_EQ(Added(before_, List()), left);
    DeleteTree(GetParam().root, std::wstring(classesPath) + L"\\QzVandraExt.qzThumbnailCtrl");
}

// A key that does not outlast the session refuses lasting keys below it, and so ends a registration at the
// step that wants one.
class VolatileKey {
  public:
    VolatileKey(HKEY root, const std::wstring& path) : root_(root), path_(path) {
        HKEY key = nullptr;
        made_ = RegCreateKeyExW(root, path.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_READ, nullptr, &key,
                                nullptr) == ERROR_SUCCESS;
        if (made_) RegCloseKey(key);
    }
    ~VolatileKey() { DeleteTree(root_, path_); }
    VolatileKey(const VolatileKey&) = delete;
    VolatileKey& operator=(const VolatileKey&) = delete;

    bool Made() const { return made_; }

  private:
    HKEY root_;
    std::wstring path_;
    bool made_;
};

TEST_P(Registration, UndoesWhatItDidWhenAStepFails) {
    const std::wstring keys[] = {L"QzVandraExt.qzThumbnailCtrl.1", L"QzVandraExt.qzThumbnailCtrl",
                                 L"TypeLib\\" + libraryId};
    for (const std::wstring& key : keys) {
        const HKEY root = key.starts_with(L"TypeLib") ? TypeLibraryRoot(GetParam()) : GetParam().root;
        const VolatileKey obstacle(root, std::wstring(classesPath) + L"\\" + key);
        ASSERT_TRUE(obstacle.Made());
        const RegistryListing before = List();
        EXPECT_TRUE(FAILED(Register())) << testing::PrintToString(key);
        EXPECT_EQ(Added(before, List()), RegistryListing()) << testing::PrintToString(key);
        EXPECT_EQ(Added(List(), before), RegistryListing()) << testing::PrintToString(key);
    }
}

TEST_P(Registration, IsDoneByTheSystemsOwnTool) {
    const bool user = GetParam().commandLine != nullptr;
    const std::wstring path = L"\"" + module_.Path() + L"\"";
    const std::wstring options = user ? L" /n /i:user " : L" ";
    for (const bool install : {true, false}) {
        std::wstring command = L"regsvr32.exe /s" + std::wstring(install ? L"" : L" /u") + options + path;
        STARTUPINFOW startup = {};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process = {};
        ASSERT_TRUE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                   &startup, &process));
        EXPECT_EQ(WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
        DWORD exitCode = 1;
        GetExitCodeProcess(process.hProcess, &exitCode);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
        EXPECT_EQ(exitCode, 0u);
        EXPECT_EQ(List().contains(L"CLSID\\" + classes[0].id), install);
    }
    EXPECT_EQ(Added(before_, List()), RegistryListing());
}

}  // namespace
}  // namespace qz
