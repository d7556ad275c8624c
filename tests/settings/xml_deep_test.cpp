// Trees far deeper than any stack.
#include "tests/settings/plain_tree.h"

#include <gtest/gtest.h>

#include <string>

namespace qz {
namespace {

constexpr int depth = 100'000;

std::unique_ptr<qzSimpleXmlElement> DeepTree(int levels) {
    auto top = std::make_unique<qzSimpleXmlElement>(L"e");
    qzSimpleXmlElement* last = top.get();
    for (int i = 1; i < levels; ++i) {
        last->Add(L"side", L"");
        last = last->Add(L"e");
    }
    last->Add(L"bottom", L"reached");
    return top;
}

TEST(XmlDeep, CopyingFindingAndFreeing) {
    auto top = DeepTree(depth);
    const auto copy = top->Copy();
    top.reset();
    const qzSimpleXmlElement* last = copy.get();
    int levels = 1;
    for (const qzSimpleXmlElement* next = last; (next = next->ChildNamed(L"e")) != nullptr; ++levels)
        last = next;
    EXPECT_EQ(levels, depth);

    PlainTree tree;
    tree.GetRoot()->AppendChild(copy->Copy());
    const IqzSimpleXmlElement* found = tree.FindElement(L"bottom", nullptr, true);
    ASSERT_NE(found, nullptr);
    EXPECT_STREQ(found->GetValue(), L"reached");
    tree.GetRoot()->RemoveAllChildren();
    EXPECT_EQ(tree.FindElement(L"bottom", nullptr, true), nullptr);
}

TEST(XmlDeep, PathsAndWriting) {
    constexpr int levels = 2'000;  // the indent makes the text grow with the square
    std::wstring path;
    for (int i = 0; i < levels; ++i) path += L"e/";
    PlainTree tree;
    tree.GetElement(path.c_str(), true)->SetValue(L"reached");
    std::size_t length = 0;
    std::size_t opened = 0;
    tree.Write([&](std::string_view piece) {
        length += piece.size();
        if (piece == "<") ++opened;
    });
    EXPECT_EQ(opened, levels + 1U);
    // Root and levels: tags of name and line breaks, twice the indent, the text.
    EXPECT_EQ(length, 15U + levels * 9U + std::size_t{levels} * (levels + 1) + 7U);
}

}  // namespace
}  // namespace qz
