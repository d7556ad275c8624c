// Random changes with a fixed seed: what a document remembers is what a walk finds.
#include "tests/settings/plain_tree.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace qz {
namespace {

class Fuzz {
  public:
    explicit Fuzz(unsigned seed) : random_(seed) {}

    void Run(int steps) {
        for (int i = 0; i < steps && !testing::Test::HasFatalFailure(); ++i) {
            Change();
            Compare();
        }
    }

  private:
    unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
    std::wstring Name() { return std::wstring(1, static_cast<wchar_t>(L'a' + Below(3))); }

    std::wstring Path() {
        std::wstring path;
        for (unsigned i = Below(5); i > 0; --i) path += Below(6) == 0 ? L"/" : Name() + L"/";
        return path;
    }

    // Any element there is.
    qzSimpleXmlElement* Element() {
        qzSimpleXmlElement* element = tree_.GetRoot();
        while (!element->Children().empty() && Below(3) != 0) {
            const auto& children = element->Children();
            element = children[Below(static_cast<unsigned>(children.size()))].get();
        }
        return element;
    }

    void Change() {
        qzSimpleXmlElement* element = Element();
        switch (Below(9)) {
            case 0:
                element->SetName(Name().c_str());
                break;
            case 1:
                if (element->Parent()) element->Parent()->RemoveChild(element);
                break;
            case 2:
                if (Below(20) == 0) element->RemoveAllChildren();
                break;
            case 3:
                if (element->Children().size() < 4) element->AppendChild(Element()->Copy());
                break;
            case 4:
                tree_.SetLookupFlag(Below(4) != 0);
                break;
            case 5:
                element->AddChild(Name().c_str(), nullptr);
                break;
            default:
                tree_.GetElement(Path().c_str(), true)->SetValue(std::to_wstring(Below(1000)).c_str());
        }
        if (Size() > 200) tree_.GetRoot()->RemoveAllChildren();
    }

    std::size_t Size() {
        std::size_t pieces = 0;
        tree_.Write([&](std::string_view piece) { pieces += piece == "<"; });
        return pieces;
    }

    IqzSimpleXmlElement* Walked(const std::wstring& path) {
        IqzSimpleXmlElement* element = tree_.GetRoot();
        for (const wchar_t name : path) {
            if (name == L'/') continue;
            element = element->FindChild(std::wstring(1, name).c_str());
            if (!element) return nullptr;
        }
        return element;
    }

    void Compare() {
        for (int i = 0; i < 5; ++i) {
            const std::wstring path = Path();
            ASSERT_EQ(tree_.GetElement(path.c_str(), false), Walked(path)) << path;
        }
        const auto copy = tree_.GetRoot()->Copy();
        std::string text;
        WriteXml(*copy, [&](std::string_view piece) { text += piece; });
        ASSERT_EQ(text, tree_.Text());
    }

    std::mt19937 random_;
    PlainTree tree_;
};

TEST(XmlFuzz, RememberedPathsFollowEveryChange) {
    for (unsigned seed = 1; seed <= 5; ++seed) Fuzz(seed).Run(400);
}

}  // namespace
}  // namespace qz
