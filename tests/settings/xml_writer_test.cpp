#include "settings/utf8.h"
#include "tests/settings/plain_tree.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace qz {
namespace {

TEST(XmlWriter, WritesTheWholeTreeAsItStands) {
    PlainTree tree;
    EXPECT_FALSE(tree.Write([](std::string_view) {})) << "no root";
    tree.GetRoot()->SetValue(L"of the root");
    tree.SetString(L"A:B", L"a < \"b\" & c", L"n", L"\"<&", true);
    tree.SetString(L"A:B", nullptr, L"m", nullptr, true);
    tree.SetString(L"A:B/empty", nullptr, L"n", L"1", true);
    tree.SetString(L"A:B/deep/deeper", L"two\nlines", nullptr, nullptr, true);
    EXPECT_EQ(tree.Text(),
              "<root>\n"
              "of the root <A:B n=\"\"<&\" m=\"\">\n"
              "a < \"b\" & c  <empty n=\"1\"/>\n"
              "  <deep>\n"
              "   <deeper>\n"
              "two\nlines   </deeper>\n"
              "  </deep>\n"
              " </A:B>\n"
              "</root>\n");
    tree.GetRoot()->RemoveAllChildren();
    tree.GetRoot()->SetValue(nullptr);
    tree.GetRoot()->SetName(L"named");
    EXPECT_EQ(tree.Text(), "<named/>\n");
}

TEST(XmlWriter, PiecesAreUtf8) {
    std::string bytes;
    AppendUtf8(L"a\u00E4\u5C64\U0001F600", bytes);
    EXPECT_EQ(bytes, "a\xC3\xA4\xE5\xB1\xA4\xF0\x9F\x98\x80");
    bytes.clear();
    const wchar_t halves[] = {static_cast<wchar_t>(0xDC00), L'x', static_cast<wchar_t>(0xD800), L'y',
                              static_cast<wchar_t>(0xD800)};
    AppendUtf8(std::wstring_view(halves, 5), bytes);
    EXPECT_EQ(bytes, "\xEF\xBF\xBDx\xEF\xBF\xBDy\xEF\xBF\xBD");
    bytes.clear();
    const wchar_t pair[] = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
    AppendUtf8(std::wstring_view(pair, 2), bytes);
    EXPECT_EQ(bytes, "\xF0\x9F\x98\x80");
}

TEST(XmlWriter, AFailingSinkEndsTheWriting) {
    PlainTree tree;
    tree.SetString(L"a/b", L"text", nullptr, nullptr, true);
    const std::string whole = tree.Text();
    for (int taken = 0;; ++taken) {
        std::string text;
        int pieces = 0;
        try {
            tree.Write([&](std::string_view piece) {
                if (pieces++ == taken) throw std::runtime_error("full");
                text += piece;
            });
        } catch (const std::runtime_error&) {
            EXPECT_EQ(pieces, taken + 1) << "nothing is written after a failure";
            EXPECT_EQ(text, whole.substr(0, text.size()));
            continue;
        }
        EXPECT_EQ(text, whole);
        EXPECT_GT(taken, 10);
        break;
    }
}

}  // namespace
}  // namespace qz
