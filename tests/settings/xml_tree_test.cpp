#include "tests/settings/plain_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>

namespace qz {
namespace {

std::wstring TextAt(PlainTree& tree, const wchar_t* path) {
    const wchar_t* text = nullptr;
    return tree.GetString(path, &text, nullptr, nullptr) ? text : L"(missing)";
}

TEST(XmlTree, PathsReachTheFirstOfAName) {
    PlainTree tree;
    EXPECT_EQ(tree.GetElement(L"", false), nullptr) << "asking makes no root";
    EXPECT_FALSE(tree.HasRoot());
    IqzSimpleXmlElement* first = tree.GetRoot()->AddChild(L"a", L"1");
    tree.GetRoot()->AddChild(L"a", L"2")->AddChild(L"b", L"below the second");
    EXPECT_EQ(tree.GetElement(L"a", false), first);
    EXPECT_EQ(tree.GetElement(L"//a/", false), first) << "empty names are skipped";
    EXPECT_EQ(tree.GetElement(L"/", false), tree.GetRoot());
    EXPECT_EQ(tree.GetElement(nullptr, false), tree.GetRoot());
    EXPECT_EQ(tree.GetElement(L"a/b", false), nullptr) << "no way back to the second";
    EXPECT_EQ(tree.GetElement(L"A", false), nullptr);
    IqzSimpleXmlElement* made = tree.GetElement(L"a/b/c", true);
    EXPECT_EQ(made, first->FindChild(L"b")->FindChild(L"c"));
    EXPECT_STREQ(made->GetValue(), L"");
}

TEST(XmlTree, FindsDirectChildrenBeforeThoseBelow) {
    PlainTree tree;
    IqzSimpleXmlElement* deep = tree.GetElement(L"a/b/x", true);
    IqzSimpleXmlElement* inSecond = tree.GetRoot()->AddChild(L"c", L"")->AddChild(L"x", L"");
    EXPECT_EQ(tree.FindElement(L"x", nullptr, false), nullptr);
    EXPECT_EQ(tree.FindElement(L"x", nullptr, true), deep) << "depth first, not by level";
    EXPECT_EQ(tree.FindElement(L"x", tree.GetElement(L"c", false), true), inSecond);
    IqzSimpleXmlElement* direct = tree.GetRoot()->AddChild(L"x", L"");
    EXPECT_EQ(tree.FindElement(L"x", nullptr, true), direct);
    EXPECT_EQ(tree.FindElement(L"none", nullptr, true), nullptr);
    EXPECT_EQ(PlainTree().FindElement(L"x", nullptr, true), nullptr);
}

TEST(XmlTree, StringsAndAttributes) {
    PlainTree tree;
    EXPECT_FALSE(tree.SetString(L"a", L"v", nullptr, nullptr, false));
    EXPECT_FALSE(tree.HasRoot());
    EXPECT_TRUE(tree.SetString(L"a", L"v", L"n", L"1", true));
    EXPECT_FALSE(tree.SetString(L"a", L"w", L"other", L"1", false)) << "may not add the attribute";
    EXPECT_TRUE(tree.SetString(L"a", nullptr, L"n", L"2", false));

    const wchar_t* value = L"old";
    const wchar_t* attribute = L"old";
    EXPECT_TRUE(tree.GetString(L"a", &value, L"n", &attribute));
    EXPECT_STREQ(value, L"w") << "set though the attribute was not, kept where none was given";
    EXPECT_STREQ(attribute, L"2");
    EXPECT_FALSE(tree.GetString(L"a", &value, L"other", &attribute));
    EXPECT_EQ(attribute, nullptr);
    EXPECT_TRUE(tree.GetString(L"a", nullptr, L"other", nullptr)) << "not asked for";
    EXPECT_FALSE(tree.GetString(L"b", &value, nullptr, nullptr));
    EXPECT_EQ(value, nullptr);
}

TEST(XmlTree, TypedGettersAndSetters) {
    PlainTree tree;
    EXPECT_TRUE(tree.SetBool(L"b", true, {}));
    EXPECT_TRUE(tree.SetInteger(L"i", -1234567, {}));
    EXPECT_TRUE(tree.SetFloat(L"f", 0.25F, {}));
    EXPECT_TRUE(tree.SetText(L"c", L"#80010203", {}));
    EXPECT_TRUE(tree.SetInteger(L"c", 7, {.attribute = L"n"}));
    EXPECT_FALSE(tree.SetText(L"d", L"x", {.create = false}));
    EXPECT_EQ(tree.Text(),
              "<root>\n <b>\nt </b>\n <i>\n-1234567 </i>\n <f>\n0.25 </f>\n <c n=\"7\">\n#80010203 </c>\n"
              "</root>\n");

    XmlResult<bool> flag{XmlCode::Found, L"old", true};
    EXPECT_FALSE(tree.GetBool(L"none", flag));
    EXPECT_EQ(flag.code, XmlCode::Missing);
    EXPECT_EQ(flag.text, nullptr);
    EXPECT_FALSE(flag.value);
    EXPECT_TRUE(tree.GetBool(L"b", flag) && flag.value);
    XmlResult<float> number;
    EXPECT_TRUE(tree.GetFloat(L"f", number));
    EXPECT_EQ(number.value, 0.25F);
    XmlResult<std::uint32_t> colour;
    EXPECT_TRUE(tree.GetColor(L"c", colour));
    EXPECT_EQ(colour.value, 0x80010203U);
    EXPECT_FALSE(tree.GetColor(L"i", colour));
    EXPECT_EQ(colour.code, XmlCode::NotConverted);
    EXPECT_STREQ(colour.text, L"-1234567");
}

TEST(XmlTree, RemembersNoElementThatMovedOrWent) {
    PlainTree tree;
    tree.SetString(L"a/b", L"1", nullptr, nullptr, true);
    EXPECT_EQ(TextAt(tree, L"a/b"), L"1");
    tree.GetElement(L"a", false)->SetName(L"z");
    EXPECT_EQ(TextAt(tree, L"a/b"), L"(missing)");
    EXPECT_EQ(TextAt(tree, L"z/b"), L"1");

    auto other = std::make_unique<qzSimpleXmlElement>(L"a");
    IqzSimpleXmlElement* inside = other->Add(L"b", L"2");
    tree.GetRoot()->AppendChild(std::move(other));
    EXPECT_EQ(TextAt(tree, L"a/b"), L"2");
    inside->SetName(L"c");
    EXPECT_EQ(TextAt(tree, L"a/b"), L"(missing)") << "a tree made elsewhere reports too";
    EXPECT_EQ(TextAt(tree, L"a/c"), L"2");
    tree.GetElement(L"a", false)->RemoveChild(inside);
    EXPECT_EQ(TextAt(tree, L"a/c"), L"(missing)");
    EXPECT_EQ(TextAt(tree, L"z/b"), L"1");
    tree.GetRoot()->RemoveAllChildren();
    EXPECT_EQ(TextAt(tree, L"z/b"), L"(missing)");
}

TEST(XmlTree, ForeignChildrenAndAttributesAreLeftAlone) {
    PlainTree tree;
    qzSimpleXmlElement stranger(L"s");
    qzSimpleXmlElement* element = tree.GetElement(L"a", true);
    element->AddAttribute(L"n", L"1");
    element->AddAttribute(L"n", L"2");
    tree.GetRoot()->RemoveChild(&stranger);
    tree.GetRoot()->RemoveChild(nullptr);
    tree.GetRoot()->AppendChild(nullptr);
    element->AppendAttribute(nullptr);
    element->RemoveAttribute(nullptr);
    std::vector<IqzSimpleXmlElement*> children;
    EXPECT_EQ(tree.GetRoot()->GetChildren(children), 1U);
    std::vector<IqzSimpleXmlAttribute*> attributes;
    ASSERT_EQ(element->GetAttributes(attributes), 2U);
    element->RemoveAttribute(attributes[0]);
    EXPECT_STREQ(element->FindAttribute(L"n")->GetValue(), L"2");
    element->RemoveAllAttributes();
    EXPECT_EQ(element->FindAttribute(L"n"), nullptr);
}

}  // namespace
}  // namespace qz
