// The string table of the built module: every text in every language, with the same placeholders.
#include "res/strings.h"

#include "com/error.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

namespace qz {
namespace {

// The module as a file of resources: none of its code runs.
class StringTable : public testing::Test {
  protected:
    StringTable() : module_(LoadLibraryExW(L"qzVandraExt.dll", nullptr, LOAD_LIBRARY_AS_DATAFILE)) {}
    ~StringTable() override { FreeLibrary(module_); }
    void SetUp() override { ASSERT_TRUE(module_) << GetLastError(); }

    std::map<unsigned, std::wstring> Texts(Language language) const {
        std::map<unsigned, std::wstring> texts;
        for (unsigned id = 0; id <= 0xFFFF; ++id) {
            if (auto text = FindText(module_, language, id)) texts.emplace(id, std::move(*text));
        }
        return texts;
    }

    HMODULE module_;
};

// The placeholders of a text in alphabetical order: a translation may use them in another order only when
// they are numbered, which this keeps.
std::vector<std::wstring> Placeholders(const std::wstring& text) {
    std::vector<std::wstring> found;
    for (std::size_t at = text.find(L'%'); at != std::wstring::npos; at = text.find(L'%', at)) {
        const std::size_t end = text.find_first_not_of(L"0123456789.+-# !l", at + 1);
        const std::size_t next = end == std::wstring::npos ? text.size() : end + 1;
        found.push_back(text.substr(at, next - at));
        at = next;
    }
    std::ranges::sort(found);
    return found;
}

TEST_F(StringTable, EveryTextIsThereInEveryLanguageWithTheSamePlaceholders) {
    const auto english = Texts(Language::English);
    ASSERT_FALSE(english.empty());
    for (const Language language : languages) {
        const auto translated = Texts(language);
        for (const auto& [id, text] : translated) EXPECT_TRUE(english.contains(id)) << id;
        for (const auto& [id, text] : english) {
            const auto found = translated.find(id);
            ASSERT_NE(found, translated.end())
                << "text " << id << ", language " << static_cast<int>(language);
            EXPECT_EQ(Placeholders(found->second), Placeholders(text)) << id;
        }
    }
}

TEST_F(StringTable, CharactersOutsideAsciiSurviveTheResourceCompiler) {
    bool japanese = false;
    for (const auto& [id, text] : Texts(Language::Japanese)) {
        for (const wchar_t c : text) {
            japanese = japanese || (c >= 0x3040 && c <= 0x30FF);
            EXPECT_NE(c, 0xFFFD) << id;
        }
    }
    EXPECT_TRUE(japanese);
}

// This program has no string table of its own, so every id is one that is not there.
TEST(LoadText, ReportsATextThatIsNotThere) {
    try {
        LoadText(Language::German, 1);
        FAIL() << "found a text";
    } catch (const ComError& error) {
        EXPECT_EQ(error.code, HRESULT_FROM_WIN32(ERROR_RESOURCE_NAME_NOT_FOUND));
    }
}

}  // namespace
}  // namespace qz
