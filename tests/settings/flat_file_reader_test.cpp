#include "com/error.h"
#include "settings/flat_file_reader.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace qz {
namespace {

class FlatFileReader : public testing::Test {
  protected:
    ~FlatFileReader() override { std::filesystem::remove(path_); }

    std::wstring TextIn(const std::string& bytes) {
        std::ofstream(path_, std::ios::binary) << bytes;
        const std::optional<FlatFile> file = ReadFlatFile(path_.wstring());
        _variant_t value;
        if (!file || !LookUp(*file, "", "k", VT_BSTR, value)) return L"(absent)";
        return std::wstring(_bstr_t(value));
    }

    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / L"qzVandraExt flat file \u5C64.ini";
};

TEST_F(FlatFileReader, Encodings) {
    EXPECT_EQ(TextIn("k=\xC3\xA4\xE5\xB1\xA4\xF0\x9F\x98\x80"), L"\u00E4\u5C64\U0001F600");
    EXPECT_EQ(TextIn("\xEF\xBB\xBFk=\xC3\xA4"), L"\u00E4") << "the mark is no part of the key";
    wchar_t inCodePage[2] = {};
    ASSERT_EQ(MultiByteToWideChar(CP_ACP, 0, "\xE4", 1, inCodePage, 2), 1);
    EXPECT_EQ(TextIn("k=\xE4;"), inCodePage + std::wstring(L";")) << "no UTF-8";
    EXPECT_EQ(TextIn(""), L"(absent)");
    EXPECT_EQ(TextIn("k="), L"");
}

TEST_F(FlatFileReader, TypedLookUp) {
    const FlatFile file("i=-5\ns=5 apples\n");
    VARIANT value;
    V_VT(&value) = VT_R8;
    EXPECT_TRUE(LookUp(file, "", "i", VT_I4, value));
    EXPECT_EQ(V_VT(&value), VT_I4);
    EXPECT_EQ(V_I4(&value), -5);
    EXPECT_FALSE(LookUp(file, "", "none", VT_I4, value));
    EXPECT_EQ(V_VT(&value), VT_EMPTY);
    EXPECT_FALSE(LookUp(file, "section", "i", VT_I4, value));
    _variant_t text;
    EXPECT_TRUE(LookUp(file, "", "s", VT_BSTR, text));
    EXPECT_EQ(std::wstring(_bstr_t(text)), L"5 apples");
    EXPECT_THROW(LookUp(file, "", "i", VT_DATE, value), ComError);
}

TEST_F(FlatFileReader, WhatCannotBeReadIsNoFile) {
    EXPECT_FALSE(ReadFlatFile(L"C:\\no such folder\\file.ini"));
    EXPECT_FALSE(ReadFlatFile(L""));
    EXPECT_FALSE(ReadFlatFile(L"C:\\windows"));
}

}  // namespace
}  // namespace qz
