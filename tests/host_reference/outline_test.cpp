#include "sample/document/outline.h"

#include <gtest/gtest.h>

namespace qz::sample {
namespace {

std::wstring Text(const Outline& outline) {
    std::wstring text;
    for (const auto& [level, id] : outline.InOrder()) {
        text += std::wstring(static_cast<size_t>(level), L'>') + outline.Find(id)->title + L' ';
    }
    return text;
}

struct OutlineTest : testing::Test {
    OutlineTest() {
        a = outline.Add(Outline::root, -1, L"a");
        c = outline.Add(Outline::root, -1, L"c");
        b = outline.Add(Outline::root, 1, L"b");
        b1 = outline.Add(b, -1, L"b1");
        b2 = outline.Add(b, -1, L"b2");
    }
    Outline outline;
    BookmarkId a, b, c, b1, b2;
};

TEST_F(OutlineTest, KeepsItsOrderThroughEdits) {
    EXPECT_EQ(Text(outline), L"a b >b1 >b2 c ");
    outline.Move(b, a, 0);
    EXPECT_EQ(Text(outline), L"a >b >>b1 >>b2 c ");
    outline.Move(b2, Outline::root, -1);
    EXPECT_EQ(Text(outline), L"a >b >>b1 c b2 ");
    outline.Remove(a);
    EXPECT_EQ(Text(outline), L"c b2 ");
    EXPECT_EQ(outline.Count(), 2u);
    EXPECT_EQ(outline.Find(b1), nullptr);
}

TEST_F(OutlineTest, RefusesImpossibleEditsAndStaysAsItWas) {
    EXPECT_THROW(outline.Move(b, b, 0), AccessError);
    EXPECT_THROW(outline.Move(b, b1, 0), AccessError);
    EXPECT_THROW(outline.Move(b1, a, 5), AccessError);
    EXPECT_THROW(outline.Add(a, 1, L"x"), AccessError);
    EXPECT_THROW(outline.Add(99, -1, L"x"), AccessError);
    EXPECT_THROW(outline.Remove(Outline::root), AccessError);
    EXPECT_THROW(outline.Move(Outline::root, a, 0), AccessError);
    EXPECT_EQ(Text(outline), L"a b >b1 >b2 c ");
}

TEST(Outlines, OfAnyDepthDoNotExhaustTheStack) {
    Outline outline;
    BookmarkId last = Outline::root;
    for (int i = 0; i < 200'000; ++i) last = outline.Add(last, -1, L"x");
    EXPECT_EQ(outline.InOrder().back().first, 199'999);
    outline.Remove(outline.Find(Outline::root)->children.front());
    EXPECT_EQ(outline.Count(), 0u);
}

}  // namespace
}  // namespace qz::sample
