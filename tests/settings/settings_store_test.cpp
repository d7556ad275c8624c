#include "com/registry_key.h"
#include "settings/docx_settings.h"
#include "settings/nup_settings.h"
#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include <aclapi.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <thread>

namespace qz {
namespace {

constexpr wchar_t testKey[] = L"Software\\qzVandraExt settings test";

std::vector<BYTE> Bytes(std::string_view text) { return {text.begin(), text.end()}; }

std::string ReadFile(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return std::move(text).str();
}

class SettingsStoreTest : public testing::Test {
  protected:
    SettingsStoreTest() {
        DeleteTree(HKEY_CURRENT_USER, testKey);
        std::filesystem::create_directories(folder_);
        place_.key = std::wstring(testKey) + L"\\deep\\er";
        place_.debugFile = (folder_ / L"debug.ini").wstring();
    }
    ~SettingsStoreTest() override {
        DeleteTree(HKEY_CURRENT_USER, testKey);
        std::filesystem::remove_all(folder_);
    }

    RegistryKey Key() const { return RegistryKey::Create(HKEY_CURRENT_USER, place_.key); }
    void Put(const RegistryValue& value) const { Key().SetValue(L"NUPSettings", value); }
    void PutDebugFile(const std::string& text) const {
        std::ofstream(std::filesystem::path(place_.debugFile), std::ios::binary) << text;
    }
    SettingsStore Store() const { return SettingsStore(place_); }

    SettingsPlace place_;
    std::filesystem::path folder_ = std::filesystem::temp_directory_path() / L"qzVandraExt settings \u5C64";
};

TEST_F(SettingsStoreTest, RecordsAreStoredAsTheirText) {
    zrDocxSettings docx;
    docx.SetString(L"Standard:OutputFileName", L"\u5C64");
    zrNUpSettings nup;
    nup.SetInt(L"Dest_NUp:Rows", 3);
    EXPECT_TRUE(Store().Write(docx).stored);
    EXPECT_TRUE(Store().Write(nup).stored);
    EXPECT_EQ(Key().Value(L"DOCXSettings"), (RegistryValue{REG_BINARY, Bytes(docx.Text())}));
    EXPECT_EQ(Key().Value(L"NUPSettings"), (RegistryValue{REG_BINARY, Bytes(nup.Text())}));
    EXPECT_GT(docx.Text().size(), 2U * 1024) << "more than the first query takes";

    zrDocxSettings readDocx;
    zrNUpSettings readNUp;
    EXPECT_TRUE(Store().Read(readDocx));
    EXPECT_TRUE(Store().Read(readNUp));
    EXPECT_EQ(readDocx.Text(), docx.Text());
    EXPECT_EQ(readDocx.outputFileName, L"\u5C64");
    EXPECT_EQ(readNUp.rows, 3);
}

TEST_F(SettingsStoreTest, AnAbsentValueIsNoFailure) {
    for (const bool keyIsThere : {false, true}) {
        if (keyIsThere) Key();
        zrNUpSettings record;
        record.SetInt(L"Dest_NUp:Rows", 3);
        EXPECT_TRUE(Store().Read(record));
        EXPECT_EQ(record.Text(), zrNUpSettings().Text());
        EXPECT_EQ(record.rows, 1);
    }
}

TEST_F(SettingsStoreTest, DamagedValuesLeaveDefaultsAndTheNextWriteMendsThem) {
    const std::string whole = zrNUpSettings().Text();
    const std::string big = "<a>" + std::string(10'000'000, 'x');
    const RegistryValue damaged[] = {
        {REG_BINARY, {}},          {REG_BINARY, Bytes(whole.substr(0, whole.size() / 2))},
        {REG_BINARY, Bytes(big)},  {REG_BINARY, std::vector<BYTE>(5'000, 0)},
        {REG_DWORD, {1, 0, 0, 0}}, RegistryValue::Text(L"<a/>")};
    for (const RegistryValue& value : damaged) {
        Put(value);
        zrNUpSettings record;
        record.SetInt(L"Dest_NUp:Rows", 3);
        EXPECT_FALSE(Store().Read(record)) << value.type << " " << value.bytes.size();
        EXPECT_EQ(record.Text(), whole);
        EXPECT_TRUE(Store().Write(record).stored);
        EXPECT_TRUE(Store().Read(record));
    }
}

TEST_F(SettingsStoreTest, ARegistryThatRefusesIsToldAndChangesNothing) {
    PutDebugFile("WriteNUpDlgSettingsToFile=" + (folder_ / "copy").string());
    place_.root = reinterpret_cast<HKEY>(std::intptr_t{0x7ABC});  // no key at all
    zrNUpSettings record;
    record.SetInt(L"Dest_NUp:Rows", 3);
    const std::string text = record.Text();
    const StoreResult result = Store().Write(record);
    EXPECT_FALSE(result.stored);
    EXPECT_EQ(result.copy, DebugCopy::Skipped);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "copy"));
    EXPECT_FALSE(Store().Read(record));
    EXPECT_EQ(record.Text(), text);
    EXPECT_EQ(record.rows, 3);
}

/// What everybody may do with a key.
void Allow(const RegistryKey& key, DWORD rights) {
    EXPLICIT_ACCESSW access{};
    wchar_t everyone[] = L"EVERYONE";
    BuildExplicitAccessWithNameW(&access, everyone, rights, SET_ACCESS, NO_INHERITANCE);
    ACL* made = nullptr;
    ASSERT_EQ(SetEntriesInAclW(1, &access, nullptr, &made), DWORD{ERROR_SUCCESS});
    const std::unique_ptr<ACL, decltype(&LocalFree)> list(made, &LocalFree);
    ASSERT_EQ(SetSecurityInfo(key.Get(), SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION, nullptr, nullptr, made,
                              nullptr),
              DWORD{ERROR_SUCCESS});
}

TEST_F(SettingsStoreTest, AReadOnlyKeyCanBeRead) {
    zrNUpSettings record;
    record.SetInt(L"Dest_NUp:Rows", 3);
    ASSERT_TRUE(Store().Write(record).stored);
    const std::optional<RegistryKey> key = RegistryKey::Open(HKEY_CURRENT_USER, place_.key, KEY_ALL_ACCESS);
    Allow(*key, KEY_READ);
    record.SetInt(L"Dest_NUp:Rows", 4);
    EXPECT_FALSE(Store().Write(record).stored);
    EXPECT_EQ(record.rows, 4);
    EXPECT_TRUE(Store().Read(record));
    EXPECT_EQ(record.rows, 3);
    Allow(*key, KEY_ALL_ACCESS);
}

TEST_F(SettingsStoreTest, TheDebugFileNamesACopy) {
    zrNUpSettings record;
    EXPECT_EQ(Store().Write(record).copy, DebugCopy::Skipped) << "no debug file";
    const std::filesystem::path copy = folder_ / L"\u00E4 copy.xml";
    const std::u8string name = copy.u8string();
    const std::string path(name.begin(), name.end());
    for (const std::string& text :
         {std::string(), "WriteDOCXDlgSettingsToFile=" + path, std::string("WriteNUpDlgSettingsToFile=\n"),
          "[a]\nWriteNUpDlgSettingsToFile=" + path}) {
        PutDebugFile(text);
        EXPECT_EQ(Store().Write(record).copy, DebugCopy::Skipped) << text;
    }
    EXPECT_FALSE(std::filesystem::exists(copy));

    PutDebugFile("WriteNUpDlgSettingsToFile = \"" + path + "\" ; here");
    std::ofstream(copy, std::ios::binary) << std::string(10'000, 'x');
    record.SetInt(L"Dest_NUp:Rows", 3);
    EXPECT_EQ(Store().Write(record).copy, DebugCopy::Written);
    EXPECT_EQ(ReadFile(copy), record.Text());
    EXPECT_EQ(Key().Value(L"NUPSettings")->bytes, Bytes(record.Text()));
}

TEST_F(SettingsStoreTest, ACopyThatFailsIsTold) {
    zrNUpSettings record;
    for (const std::string& path :
         {folder_.string() + "\\none\\copy", std::string("C:\\windows"), std::string("?|*")}) {
        PutDebugFile("WriteNUpDlgSettingsToFile=" + path);
        const StoreResult result = Store().Write(record);
        EXPECT_TRUE(result.stored);
        EXPECT_EQ(result.copy, DebugCopy::Failed) << path;
    }
    if (!std::filesystem::exists("Z:\\dev")) return;
    PutDebugFile("WriteNUpDlgSettingsToFile=Z:\\dev\\full");  // a full disk as Wine shows it
    EXPECT_EQ(Store().Write(record).copy, DebugCopy::Failed);
}

// The one test that touches the place where users' settings are: it puts back what was there.
TEST(SettingsStore, TheUsualPlace) {
    constexpr wchar_t key[] = L"Software\\Tarvel Technologies\\Tarvel Vandrel\\VandraDoc\\Settings";
    const RegistryKey settings = RegistryKey::Create(HKEY_CURRENT_USER, key);
    const std::optional<RegistryValue> before = settings.Value(L"NUPSettings");
    zrNUpSettings record;
    record.SetInt(L"Dest_NUp:Rows", 3);
    SettingsPlace place;
    place.debugFile.clear();
    EXPECT_TRUE(SettingsStore(place).Write(record).stored);
    EXPECT_EQ(settings.Value(L"NUPSettings"), (RegistryValue{REG_BINARY, Bytes(record.Text())}));
    EXPECT_EQ(SettingsPlace().debugFile, L"C:\\temp\\VandrelDebugSettings.ini");
    if (before) {
        settings.SetValue(L"NUPSettings", *before);
    } else {
        settings.DeleteValue(L"NUPSettings");
    }
}

}  // namespace
}  // namespace qz
