// Damaged documents with a fixed seed: none crashes or hangs, and what loads whole comes back whole.
#include "settings/xml_document.h"
#include "settings/xml_text.h"
#include "tests/settings/memory_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace qz {
namespace {

const std::string seeds[] = {
    "<zrNUpSettings>\n <Source:Scale>\n1 </Source:Scale>\n <Dest_NUp:Rows>\n2 "
    "</Dest_NUp:Rows>\n</zrNUpSettings>\n",
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<a b='1' c:d=\"2\"><e/><f>g</f></a>",
    "<a><!-- x --><b>1<![CDATA[ 2 ]]>3</b><?p d?></a><!-- y -->",
    "<a>&lt;&#65;&amp;<b c='&gt;'>\n\n</b></a>",
    "<a>\n <b>\n  <c>\n   <d>\nx   </d>\n  </c>\n </b>\n</a>\n",
    "\xEF\xBB\xBF<\xC3\xA4:\xE5\xB1\xA4 "
    "\xC3\xB6='\xF0\x9F\x98\x80'>\xE5\xB1\xA4\xE5\xB1\xA4</\xC3\xA4:\xE5\xB1\xA4>",
    "<!DOCTYPE a [<!ENTITY x 'y'><!ELEMENT a (b)>]><a>&x;</a>",
    std::string("\xFF\xFE<\0a\0 \0b\0=\0'\0\x42\x5C'\0>\0c\0<\0/\0a\0>\0", 30),
    "<a xmlns='u' xmlns:p='v' xml:space='preserve'> <p:b/> </a>",
    "<_a><_:b __c='_'/><:/><c_:_c>_</c_:_c></_a>",
    "<a b='>' c=\"'\" d='\"'/>"};

class Damage {
  public:
    explicit Damage(unsigned seed) : random_(seed) {}

    std::string Of(std::string text) {
        for (unsigned i = Below(4); i > 0; --i) Apply(text);
        return text;
    }

    unsigned Below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  private:
    void Apply(std::string& text) {
        static const std::string pieces[] = {"<",
                                             ">",
                                             "/",
                                             "</",
                                             "/>",
                                             "'",
                                             "\"",
                                             "=",
                                             "&",
                                             ";",
                                             ":",
                                             "_",
                                             "!",
                                             "?",
                                             "-",
                                             "]]>",
                                             "<!--",
                                             "-->",
                                             "<![CDATA[",
                                             "\n",
                                             " ",
                                             "\r",
                                             std::string(1, '\0'),
                                             "\xE5",
                                             "\xFF",
                                             "a",
                                             "<a>",
                                             "</a>",
                                             "&#0;"};
        const unsigned place = Below(text.size() + 1);
        const unsigned length = Below(6);
        switch (Below(5)) {
            case 0:
                text.erase(place, length);
                break;
            case 1:
                text.insert(place, text.substr(Below(text.size() + 1), length * 3));
                break;
            case 2:
                text.resize(place);
                break;
            case 3:
                if (place < text.size()) text[place] = static_cast<char>(Below(256));
                break;
            default:
                text.insert(place, pieces[Below(std::size(pieces))]);
        }
    }

    std::mt19937 random_;
};

bool Holds(std::wstring_view text, std::wstring_view characters) {
    return text.find_first_of(characters) != std::wstring_view::npos;
}

/// Whether the writer, which escapes nothing, can write what the element holds.
bool Writable(const qzSimpleXmlElement& element) {
    const std::wstring_view value = element.Value();
    const bool lost = !value.empty() && !Holds(value, L"\r\n") && !element.Children().empty() &&
                      value.find_first_not_of(L" \t\n") == std::wstring_view::npos;
    const auto plain = [](const auto& attribute) { return !Holds(attribute->GetValue(), L"\"<&\r\n\t"); };
    return ReadsBack(value) && !Holds(value, L"\r") && !lost &&
           std::ranges::all_of(element.Attributes(), plain) &&
           std::ranges::all_of(element.Children(), [](const auto& child) { return Writable(*child); });
}

std::string SavedAgain(qzSimpleXml& document) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    document.Save(stream.Get());
    return TextOf(stream.Get());
}

TEST(XmlLoadingFuzz, DamagedDocuments) {
    Damage damage(8);
    int loaded = 0;
    int compared = 0;
    for (int i = 0; i < 4'000; ++i) {
        const std::string text = damage.Of(seeds[i % std::size(seeds)]);
        qzSimpleXml document;
        const bool whole = document.Load(StreamOf(text).Get());
        const std::string saved = SavedAgain(document);
        loaded += whole;
        if (!whole || !Writable(*document.GetRoot())) continue;
        ++compared;
        qzSimpleXml again;
        ASSERT_TRUE(again.Load(StreamOf(saved).Get())) << text << "\n" << saved;
        ASSERT_EQ(SavedAgain(again), saved) << text;
    }
    EXPECT_GT(loaded, 1'000) << "too much damage to test anything";
    EXPECT_GT(compared, loaded / 2);
}

}  // namespace
}  // namespace qz
