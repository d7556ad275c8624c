#include "settings/xml_feed.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace qz {
namespace {

constexpr std::string_view mark = "\xEF\xBB\xBF";

std::string Fed(std::string_view file, std::size_t pieceLength = 4096) {
    XmlFeed feed;
    std::string text;
    for (; !file.empty(); file.remove_prefix(std::min(pieceLength, file.size()))) {
        feed.Add(file.substr(0, pieceLength), text);
    }
    feed.Finish(text);
    return text;
}

std::string Utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char pair[] = {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
        bytes += pair[bigEndian ? 1 : 0];
        bytes += pair[bigEndian ? 0 : 1];
    }
    return bytes;
}

TEST(XmlFeed, EveryEncodingBecomesMarkedUtf8) {
    const std::string expected =
        std::string(mark) + "<a_cb c='\xC3\xA4:'>\xE5\xB1\xA4\xF0\x9F\x98\x80</a_cb>";
    const std::string plain = "<a:b c='\xC3\xA4:'>\xE5\xB1\xA4\xF0\x9F\x98\x80</a:b>";
    const std::u16string wide = u"<a:b c='\u00E4:'>\u5C64\U0001F600</a:b>";
    for (const std::size_t pieceLength : {1, 2, 3, 1000}) {
        EXPECT_EQ(Fed(plain, pieceLength), expected);
        EXPECT_EQ(Fed(std::string(mark) + plain, pieceLength), expected);
        for (const bool bigEndian : {false, true}) {
            EXPECT_EQ(Fed(Utf16(wide, bigEndian), pieceLength), expected);
            EXPECT_EQ(Fed(Utf16(u"\uFEFF" + wide, bigEndian), pieceLength), expected);
            EXPECT_EQ(Fed(Utf16(u"<?xml version='1.0' encoding='x'?>" + wide, bigEndian), pieceLength),
                      expected)
                << "what the declaration tells holds no more";
        }
    }
    std::u16string longText = u"<a>";
    while (longText.size() < 5'000) longText += u"\u5C64\U0001F600";
    EXPECT_EQ(Fed(Utf16(longText + u"</a>", false), 7), Fed(Utf16(longText + u"</a>", true), 4096));
}

TEST(XmlFeed, OnlyDeclarationsOfOtherEncodingsStay) {
    const std::string fed = std::string(mark) + "<a/>";
    for (const char* declaration :
         {"<?xml version=\"1.0\"?>", "<?xml version='1.0' encoding='UTF-8' standalone='no'?>",
          "<?xml\nversion='1.0' encoding=\"utf-16\" ?>", "<?xml encoding?>"}) {
        EXPECT_EQ(Fed(std::string(declaration) + "<a/>"), fed) << declaration;
    }
    const std::string other = "<?xml version='1.0' encoding='shift_jis'?><a>\xE4</a>";
    EXPECT_EQ(Fed(other), other) << "no mark either";
    EXPECT_EQ(Fed("<?xml-style x?><a/>"), std::string(mark) + "<?xml-style x?><a/>");
}

// Whatever is cut off, the reader gets something after it, and nothing after a whole document.
TEST(XmlFeed, AMissingEndIsAnError) {
    const std::string whole = "<a b='/' c=\"d\">e<!-- <f> --><g/><![CDATA[<h>]]>&amp;<i ></i><?j k>?></a>";
    EXPECT_EQ(Fed(whole + "\n<!-- after -->"), std::string(mark) + whole + "\n<!-- after -->");
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string part = Fed(whole.substr(0, length));
        EXPECT_TRUE(part.ends_with("</ >")) << part;
    }
    for (const char* file : {"<?xml version='1.0'", "<?xml", "x", "<a/><b>", "<a/><!-- "}) {
        EXPECT_TRUE(Fed(file).ends_with("</ >")) << file;
    }
    EXPECT_EQ(Fed(std::string("<a/>\0x", 6)), std::string(mark) + "<a/>") << "a zero is the end";
    EXPECT_TRUE(Fed(std::string("<a>\0</a>", 8)).ends_with("</ >"));
}

TEST(XmlFeed, AnyInputIsTakenInAnyPieces) {
    std::mt19937 random(7);
    for (int i = 0; i < 2'000; ++i) {
        std::string file;
        const std::string_view letters("<>!?-[]\"'=/:_ aD\0\xFF\xFE\xD8", 20);
        for (auto length = random() % 3'000; length > 0; --length) file += letters[random() % letters.size()];
        ASSERT_EQ(Fed(file, 1 + random() % 50), Fed(file));
    }
}

}  // namespace
}  // namespace qz
