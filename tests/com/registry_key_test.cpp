// Registry keys: values of any size and type, and trees of them read and written back.
#include "com/error.h"
#include "com/registry_key.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

const std::wstring root = L"Software\\qzVandraExt registry test";

class RegistryKeys : public testing::Test {
  protected:
    RegistryKeys() {
        DeleteTree(HKEY_CURRENT_USER, root);
        key = RegistryKey::Create(HKEY_CURRENT_USER, root);
    }
    ~RegistryKeys() override { DeleteTree(HKEY_CURRENT_USER, root); }

    RegistryKey key;
};

TEST_F(RegistryKeys, ValuesComeBackWholeWhateverTheirSize) {
    for (const std::size_t size : {0u, 1u, 1023u, 1024u, 1025u, 70'000u}) {
        const RegistryValue value{REG_BINARY, std::vector<BYTE>(size, BYTE{7})};
        key.SetValue(L"v", value);
        EXPECT_EQ(key.Value(L"v"), value) << size;
    }
    EXPECT_EQ(key.Value(L"none"), std::nullopt);
    EXPECT_THROW(RegistryKey::Create(HKEY_CURRENT_USER, std::wstring(300, L'x')), ComError);
}

TEST_F(RegistryKeys, TreesAreWrittenBackAsTheyWereRead) {
    EXPECT_TRUE(key.Empty());
    key.SetValue(L"", RegistryValue::Text(L"of the key"));
    bool created = false;
    RegistryKey::Create(key.Get(), L"below", &created).SetValue(L"n", {REG_DWORD, {1, 0, 0, 0}});
    EXPECT_TRUE(created);
    RegistryKey::Create(key.Get(), L"below\\empty");
    const RegistryTree before = RegistryTree::Read(key);
    DeleteTree(key.Get(), L"below");
    DeleteTree(key.Get(), L"below");  // is no failure
    EXPECT_FALSE(RegistryKey::Open(key.Get(), L"below"));
    key.DeleteValue(L"");
    before.Write(key);
    RegistryKey::Create(key.Get(), L"below", &created);
    EXPECT_FALSE(created);
    const RegistryTree after = RegistryTree::Read(key);
    EXPECT_EQ(after.values, before.values);
    ASSERT_EQ(after.subkeys.size(), 1u);
    EXPECT_EQ(after.subkeys[0].values, before.subkeys[0].values);
    EXPECT_EQ(after.subkeys[0].subkeys.at(0).name, L"empty");
}

}  // namespace
}  // namespace qz
