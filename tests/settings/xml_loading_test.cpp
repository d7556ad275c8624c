// Documents out of streams.
#include "settings/xml_document.h"
#include "settings/xml_source.h"
#include "tests/settings/memory_text.h"

#include <gtest/gtest.h>

#include <string>

namespace qz {
namespace {

bool Load(qzSimpleXml& document, std::string_view text) { return document.Load(StreamOf(text).Get()); }

std::string Saved(qzSimpleXml& document) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    document.Save(stream.Get());
    return TextOf(stream.Get());
}

std::wstring TextAt(qzSimpleXml& document, const wchar_t* path) {
    const wchar_t* text = nullptr;
    return document.GetString(path, &text, nullptr, nullptr) ? text : L"(missing)";
}

/// What a document is written as after it was loaded from `text`.
std::string Reloaded(std::string_view text) {
    qzSimpleXml document;
    EXPECT_TRUE(Load(document, text)) << text;
    return Saved(document);
}

TEST(XmlLoading, NamesAreWholeDeclaredOrNot) {
    EXPECT_EQ(
        Reloaded(
            "<x:r xmlns:x='u' xmlns='v' y:a='1' _b='2' x_c:d='3'><Standard:Page/><x:y xml:lang='de'/></x:r>"),
        "<x:r xmlns:x=\"u\" xmlns=\"v\" y:a=\"1\" _b=\"2\" x_c:d=\"3\">\n <Standard:Page/>\n"
        " <x:y xml:lang=\"de\"/>\n</x:r>\n");
}

TEST(XmlLoading, ValuesAreTextWithoutLineBreaksAndIndent) {
    const struct {
        const char* text;
        const wchar_t* value;  // of the root
    } cases[] = {{"<a>\n\ntext\r\n</a>", L"text"},
                 {"<a>\nline\n line </a>", L"line\n line "},
                 {"<a>&lt;&#65;&amp;&quot;&#x5C64;</a>", L"<A&\"\u5C64"},
                 {"<a><![CDATA[<b> & ]]></a>", L"<b> & "},
                 {"<a>first<b>x</b>last<!-- c --><?p?>\n </a>", L"last"},
                 {"<a>text<!-- c -->\n</a>", L"text"},
                 {"<a>\n   <b/>\n   <c/>\n</a>", L""},
                 {"<a>\n   </a>", L"   "},
                 {"<a>   </a>", L""},
                 {"<a>\n\t<!-- c -->text</a>", L"text"},
                 {"<a/>", L""}};
    for (const auto& [text, value] : cases) {
        qzSimpleXml document;
        EXPECT_TRUE(Load(document, text)) << text;
        EXPECT_EQ(TextAt(document, L""), value) << text;
    }
}

TEST(XmlLoading, WhatWasSavedComesBack) {
    qzSimpleXml document;
    document.SetString(L"A:B", L"  two\n lines\t ", L"n", L"'x' > y", true);
    document.SetString(L"A:B/c", L"   ", L"m:n", L"", true);
    document.SetString(L"A:B/c/d", L"\u5C64\U0001F600", nullptr, nullptr, true);
    document.SetString(L"blanks/only", L" \n ", nullptr, nullptr, true);
    document.GetRoot()->SetValue(L"of the root ");
    document.GetElement(L"A:B/c", false)->SetValue(L"x   ");
    const std::string text = Saved(document);
    EXPECT_EQ(Reloaded(text), text);
}

TEST(XmlLoading, ARootThatIsThereKeepsItsNameAndTakesMore) {
    qzSimpleXml document;
    ASSERT_TRUE(Load(document, "<first n='1'><a>1</a></first>"));
    EXPECT_EQ(TextAt(document, L"b"), L"(missing)");
    ASSERT_TRUE(Load(document, "<?xml version='1.0'?><!-- c --><second m='2'><a>2</a><b>3</b></second>"));
    EXPECT_EQ(TextAt(document, L"a"), L"1");
    EXPECT_EQ(TextAt(document, L"b"), L"3");
    EXPECT_EQ(Saved(document),
              "<first n=\"1\" m=\"2\">\n <a>\n1 </a>\n <a>\n2 </a>\n <b>\n3 </b>\n</first>\n");
}

TEST(XmlLoading, OtherEncodingsThanUtf8) {
    const std::wstring text = L"<A:B>\u5C64</A:B>";
    for (const wchar_t* start : {L"", L"\uFEFF", L"\uFEFF<?xml version='1.0' encoding='utf-16'?>\n"}) {
        const std::wstring all = start + text;
        std::string bytes(reinterpret_cast<const char*>(all.data()), all.size() * sizeof(wchar_t));
        for (int order = 0; order < 2; ++order) {
            qzSimpleXml document;
            EXPECT_TRUE(Load(document, bytes));
            EXPECT_STREQ(document.GetRoot()->GetName(), L"A:B");
            EXPECT_EQ(TextAt(document, L""), L"\u5C64");
            for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) std::swap(bytes[i], bytes[i + 1]);
        }
    }
    EXPECT_EQ(Reloaded("\xEF\xBB\xBF  <\xC3\xA4/>"), "<\xC3\xA4/>\n");
}

// Characters of several bytes stand on every place where the reader's pieces could end.
TEST(XmlLoading, LongTextsOfAllCharacters) {
    std::string text = "<r>\n";
    for (int i = 0; i < 20'000; ++i)
        text += " <e>\n\xE5\xB1\xA4\xF0\x9F\x98\x80" + std::to_string(i) + " </e>\n";
    text += "</r>\n";
    EXPECT_EQ(Reloaded(text), text);
}

TEST(XmlLoading, AnErrorKeepsWhatWasRead) {
    const struct {
        const char* text;
        const wchar_t* value;  // of "b"
    } cases[] = {{"<a><b>1</b><c></a>", L"1"},
                 {"<a><b>1</b><c x='1></a>", L"1"},
                 {"<a><b>1</b>", L"1"},
                 {"<a><b>1</b></a><a/>", L"1"},
                 {"<a><b>1</b></a>tail", L"1"},
                 {"<a><b>1</b>]]></a>", L"1"},
                 {"<a><b>", L""},
                 {"<!DOCTYPE a [<!ENTITY b 'c'>]><a><b>&b;</b></a>", L"(missing)"},
                 {"", L"(missing)"},
                 {" \n", L"(missing)"},
                 {"<!-- only -->", L"(missing)"},
                 {"no XML", L"(missing)"}};
    for (const auto& [text, value] : cases) {
        qzSimpleXml document;
        EXPECT_FALSE(Load(document, text)) << text;
        EXPECT_EQ(TextAt(document, L"b"), value) << text;
    }
    EXPECT_FALSE(qzSimpleXml().Load(nullptr));
}

// A reader that heeds namespaces would refuse a prefix that nobody declared.
TEST(XmlLoading, TheReaderSeesNoColons) {
    qzSimpleXml document;
    document.SetString(L"Standard:Page", L"1", L"a:b", L"2", true);
    document.SetString(L":/a:b:c/_:_", L"3", nullptr, nullptr, true);
    const ComPtr<XmlSource> source = MakeObject<XmlSource>(StreamOf(Saved(document)));
    std::string text(1000, '\0');
    ULONG read = 0;
    EXPECT_EQ(source->Read(text.data(), static_cast<ULONG>(text.size()), &read), S_OK);
    EXPECT_GT(read, 50U);
    EXPECT_EQ(text.find(':'), std::string::npos) << text;
}

}  // namespace
}  // namespace qz
