// The text tables of docs/formatting.md.
#include "format/text_format.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>

namespace qz {
namespace {

template <wint_t (*mapping)(wint_t)>
std::wstring Mapped(std::wstring_view text) {
    std::wstring out(text);
    std::ranges::transform(out, out.begin(), [](wchar_t c) { return static_cast<wchar_t>(mapping(c)); });
    return out;
}

constexpr LetterCase ascii{Mapped<std::towupper>, Mapped<std::towlower>};

struct TextCase {
    const wchar_t* text;
    const wchar_t* pattern;
    std::wstring formatted;
};

template <std::size_t count>
void ExpectTexts(const TextCase (&cases)[count]) {
    for (const TextCase& c : cases) {
        EXPECT_EQ(TextFormat(c.pattern).Format(c.text, ascii), c.formatted) << c.text << L" as " << c.pattern;
    }
}

TEST(TextFormat, Placeholders) {
    ExpectTexts({{L"abcde", L"@@@-@@", L"abc-de"},
                 {L"ab", L"@@@-@@", L"   -ab"},
                 {L"abcdefgh", L"@@@-@@", L"abcdef-gh"},
                 {L"ab", L"&&&-&&", L"-ab"},
                 {L"abc", L"&&@-&&", L"a-bc"},
                 {L"5551234", L"(@@@) @@@-@@@@", L"(   ) 555-1234"},
                 {L"", L"@-&", L" -"},
                 {L"ab", L"!@@@-@@", L"ab -  "},
                 {L"ab", L"!&&&-&&", L"ab-"},
                 {L"abcdefgh", L"!@@@-@@x", L"abc-defghx"}});
}

TEST(TextFormat, CaseLiteralsAndSections) {
    ExpectTexts({{L"aBc", L">", L"ABC"},
                 {L"aBc", L"<", L"abc"},
                 {L"aBc", L">@@-x@", L"AB-xC"},
                 {L"aBc", L"<No. ", L"No. abc"},
                 {L"abc", L"\\@\"&\"@@@", L"@&abc"},
                 {L"abc", L"text", L"text"},
                 {L"", L"@@;\"none\"", L"none"},
                 {L"ab", L"@@;\"none\"", L"ab"},
                 {L"", L"@@;", L""},
                 {L"abc", L"", L""},
                 {L"abc", L"@\"open", L"abcopen"}});
}

TEST(TextFormat, SurrogatePairsStayWhole) {
    constexpr wchar_t pair[] = {0xD83D, 0xDE00, L'a', 0};
    constexpr wchar_t lone[] = {0xD83D, L'a', 0};
    EXPECT_EQ(TextFormat(L"@-@").Format(pair, ascii), std::wstring(pair, 2) + L"-a");
    EXPECT_EQ(TextFormat(L"@-@").Format(lone, ascii), std::wstring(lone, 1) + L"-a");
}

}  // namespace
}  // namespace qz
