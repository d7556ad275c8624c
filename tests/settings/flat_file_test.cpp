#include "settings/flat_file.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

namespace qz {
namespace {

std::string ValueIn(const std::string& text, const char* section = "", const char* key = "k") {
    const FlatFile file(text);
    const std::string* value = file.Find(section, key);
    return value ? *value : "(absent)";
}

TEST(FlatFile, Values) {
    const struct {
        const char* text;
        const char* value;
    } cases[] = {{"k=v", "v"},
                 {"\t k \t=  v w \t\r\n", "v w"},
                 {"a=1\rk=v\rb=2", "v"},
                 {"\n\n\nk=v", "v"},
                 {"k=", ""},
                 {"k", "(absent)"},
                 {"=v", "(absent)"},
                 {"K=v", "(absent)"},
                 {"k=a=b", "a=b"},
                 {"k=C:\\temp\\a;b #1.xml", "C:\\temp\\a;b #1.xml"},
                 {"; k=1\n  # k=2\nk=3", "3"},
                 {";k=1", "(absent)"},
                 {"k=1\nk=2", "1"},
                 {"k=\"  v ; # \"", "  v ; # "},
                 {"k=\"v\" ; a comment", "v"},
                 {"k=\"say \"\"v\"\"\"", "say \"v\""},
                 {"k=\"\"", ""},
                 {"k=\"open \t", "open"},
                 {"k=\"open\nk=2", "open"},
                 {"k=\"C:\\\"", "C:\\"},
                 {"k=v\"w\"", "v\"w\""},
                 {"\"k\"=v", "(absent)"},
                 {"[s]\nk=v", "(absent)"},
                 {"[]\nk=v", "v"}};
    for (const auto& [text, value] : cases) EXPECT_EQ(ValueIn(text), value) << text;
}

TEST(FlatFile, Sections) {
    const std::string text = "k=0\n [ one ] rest\nk=1\n[two\nk=2\n[One]\nk=3\n[one]\nk=4\nl=5\n;[six]\nm=6";
    EXPECT_EQ(ValueIn(text), "0");
    EXPECT_EQ(ValueIn(text, "one"), "1");
    EXPECT_EQ(ValueIn(text, "two"), "2") << "a missing bracket";
    EXPECT_EQ(ValueIn(text, "One"), "3");
    EXPECT_EQ(ValueIn(text, "one", "l"), "5") << "gone on with";
    EXPECT_EQ(ValueIn(text, "one", "m"), "6");
    EXPECT_EQ(ValueIn(text, "one:k", ""), "(absent)");
}

TEST(FlatFile, StrictIntegers) {
    const FlatFile file("a=-7\nb= +12 apples\nc=x\nd=99999999999\ne=\"3\"\nf=1\xC3\xA4\n");
    EXPECT_EQ(file.Integer("", "a"), -7);
    EXPECT_EQ(file.Integer("", "b"), 12);
    EXPECT_EQ(file.Integer("", "c"), 0);
    EXPECT_EQ(file.Integer("", "d"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(file.Integer("", "e"), 3);
    EXPECT_EQ(file.Integer("", "f"), 1);
    try {
        file.Integer("s", "a");
        FAIL() << "absent";
    } catch (const std::exception& error) {
        EXPECT_STREQ(error.what(), "setting not found");
    }
}

TEST(FlatFile, AnyInputIsTaken) {
    std::mt19937 random(9);
    for (int i = 0; i < 5'000; ++i) {
        std::string text = "first=1\n";
        const std::string_view letters("[]=\"\";# \t\r\n\0ab\xFF", 15);
        for (auto length = random() % 40; length > 0; --length) text += letters[random() % letters.size()];
        ASSERT_EQ(ValueIn(text, "", "first"), "1");
        ASSERT_EQ(ValueIn(text + "\n[last]\nkey=\"2\"", "last", "key"), "2") << text;
    }
}

}  // namespace
}  // namespace qz
