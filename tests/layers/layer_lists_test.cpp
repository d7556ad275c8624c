#include "panes/layers/layer_lists.h"

#include <gtest/gtest.h>

#include <random>

namespace qz {
namespace {

using Names = std::vector<std::wstring>;

// "A B<A C<A D": each name with the name it stands below.
std::wstring Shape(std::wstring_view text) {
    const std::vector<OrderedName> order = ParseLayerOrder(text);
    std::wstring shape;
    for (const OrderedName& item : order) {
        if (!shape.empty()) shape += L' ';
        shape += item.name;
        if (item.parent != noItem) shape += L'<' + order[item.parent].name;
    }
    return shape;
}

TEST(LayerLists, BracketsNestTheOrder) {
    EXPECT_EQ(Shape(L"(A)[(B)(C)](D)"), L"A B<A C<A D");
    EXPECT_EQ(Shape(L"(A)[(B)[(C)]](D)[(E)]"), L"A B<A C<B D E<D");
    EXPECT_EQ(Shape(L""), L"");
    EXPECT_EQ(Shape(L"no names [] at all"), L"");
    EXPECT_EQ(Shape(L" junk (A) between [ x (B) y ] z (C)"), L"A B<A C");
}

TEST(LayerLists, BracketsNeedNotBeBalanced) {
    EXPECT_EQ(Shape(L"]](A)]](B)"), L"A B");
    EXPECT_EQ(Shape(L"[[(A)[(B)"), L"A B<A") << "nothing stands before the first brackets";
    EXPECT_EQ(Shape(L"[(A)](B)"), L"A B");
    EXPECT_EQ(Shape(L"(A)[(B"), L"A") << "a name without end is none";
    EXPECT_EQ(Shape(L")(A))(B)"), L"A B");
}

TEST(LayerLists, TheTreeHas4000LevelsAndDeeperNamesStandOnTheLast) {
    constexpr std::size_t deep = mostLayerLevels + 3;
    std::wstring text;
    for (std::size_t i = 0; i < deep; ++i) text += L"(n)[";
    for (std::size_t i = 0; i < deep; ++i) text += L"](back)";
    const std::vector<OrderedName> order = ParseLayerOrder(text);
    ASSERT_EQ(order.size(), 2 * deep);
    const auto parent = [&](std::size_t item) { return order[item].parent; };
    constexpr std::size_t last = mostLayerLevels - 1;
    for (std::size_t i = 1; i <= last; ++i) ASSERT_EQ(parent(i), i - 1);
    for (std::size_t i = last; i < deep + 3; ++i) EXPECT_EQ(parent(i), last - 1) << i;
    // Coming back, each closing bracket leads to the level that its opening one was on.
    for (std::size_t i = deep + 3; i < 2 * deep - 1; ++i) {
        ASSERT_EQ(parent(i), parent(2 * deep - 1 - i)) << i;
    }
    EXPECT_EQ(parent(2 * deep - 1), noItem);
    EXPECT_TRUE(ParseLayerOrder(std::wstring(10'000, L'[')).empty());
    EXPECT_TRUE(ParseLayerGroups(std::wstring(10'000, L'[') + std::wstring(20'000, L']')).empty());
}

TEST(LayerLists, NamesKeepLettersDigitsAndFourSigns) {
    EXPECT_EQ(ParseLayerNames(L"(a.b)(c/d)(e - f:g_h)(x[1](y)()"),
              (Names{L"ab", L"cd", L"e - f:g_h", L"x1y", L""}));
    EXPECT_EQ(ParseLayerNames(L"(\u00C4rger \u0416 \u5C64 \u0663)(\u00BD\u20AC\u0301\xD835)"),
              (Names{L"\u00C4rger \u0416 \u5C64 \u0663", L""}))
        << "letters and digits of every script, no fractions, signs, marks or halves of characters";
    EXPECT_EQ(ParseLayerNames(std::wstring(L"(a\0b)", 5)), Names{L"ab"});
    EXPECT_EQ(ParseLayerNames(L"(@AZ[`az{/09;)"), Names{L"AZaz09"}) << "the edges of the ranges";
}

TEST(LayerLists, NamesKeep259Characters) {
    const std::wstring longest(longestLayerName, L'n');
    EXPECT_EQ(
        ParseLayerNames(L"(" + longest + L")(" + longest + L"x)(" + std::wstring(10'000, L'n') + L")(z)"),
        (Names{longest, longest, longest, L"z"}));
    EXPECT_EQ(ParseLayerNames(L"(" + std::wstring(300, L'.') + L"x)"), Names{L"x"})
        << "dropped ones do not count";
}

TEST(LayerLists, GroupsAreTheInnermostBrackets) {
    EXPECT_EQ(ParseLayerGroups(L"[(A)(B)][(B)(C)]"), (std::vector<Names>{{L"A", L"B"}, {L"B", L"C"}}));
    EXPECT_EQ(ParseLayerGroups(L"(X)[[(A)(B)][(C)](D)]](E)[]"),
              (std::vector<Names>{{L"D"}, {L"A", L"B"}, {L"C"}}));
    EXPECT_EQ(ParseLayerGroups(L"[(A)(B)"), (std::vector<Names>{{L"A", L"B"}}));
}

// Any text gives a tree in which parents come first, and names of the kept characters only.
TEST(LayerLists, AnyTextIsTaken) {
    std::mt19937 random(20'240'601);
    constexpr std::wstring_view alphabet = L"()[]()[]abZ9 -:_./\\\0\n\u00E9\u20AC\xD800\xFFFF";
    for (int round = 0; round < 3'000; ++round) {
        std::wstring text(random() % 120, L' ');
        for (wchar_t& c : text) c = alphabet[random() % alphabet.size()];
        const std::vector<OrderedName> order = ParseLayerOrder(text);
        const Names names = ParseLayerNames(text);
        ASSERT_EQ(order.size(), names.size());
        for (std::size_t i = 0; i < order.size(); ++i) {
            EXPECT_EQ(order[i].name, names[i]);
            EXPECT_TRUE(order[i].parent == noItem || order[i].parent < i);
            EXPECT_EQ(names[i].find_first_not_of(L"abZ9 -:_\u00E9"), std::wstring::npos);
        }
        std::size_t grouped = 0;
        for (const Names& group : ParseLayerGroups(text)) grouped += group.size();
        EXPECT_LE(grouped, names.size());
    }
}

}  // namespace
}  // namespace qz
