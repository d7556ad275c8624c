#include "sample/document/text.h"
#include "sample/document/value.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz::sample {
namespace {

using namespace type_code;

bool Refuses(const Value& value, uint32_t type) {
    try {
        Coerced(value, type);
        return false;
    } catch (const AccessError& error) {
        return error.failure == AccessFailure::BadValue;
    }
}

TEST(Values, AreConvertedToTheAttributesType) {
    const struct {
        Value given;
        uint32_t type;
        Value expected;
    } rows[] = {
        {std::wstring(L" 12 "), int32, int32_t(12)},
        {2.5, int32, int32_t(3)},
        {true, int32, int32_t(1)},
        {std::wstring(L"-7"), int16, int16_t(-7)},
        {std::wstring(L"true"), boolean, true},
        {int32_t(0), boolean, false},
        {std::wstring(L"0.25"), real, 0.25f},
        {int32_t(4), realChoice, 4.0},
        {1.5, text, std::wstring(L"1.5")},
        {NumberList{1, 2}, text, std::wstring(L"1; 2")},
        {std::wstring(L"3, 4;5 6"), longList, NumberList{3, 4, 5, 6}},
        {std::monostate(), longList, NumberList{}},
        {std::monostate(), objects, ObjectList{}},
        {4294967295.0, colour, int32_t(-1)},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Coerced(row.given, row.type), row.expected) << ToUtf8(ToText(row.expected));
}

TEST(Values, ThatDoNotSuitAreRefused) {
    EXPECT_TRUE(Refuses(std::wstring(L"twelve"), int32));
    EXPECT_TRUE(Refuses(std::wstring(L"12 13"), int32));
    EXPECT_TRUE(Refuses(std::wstring(L""), int32));
    EXPECT_TRUE(Refuses(1e12, int32));
    EXPECT_TRUE(Refuses(40000.0, int16));
    EXPECT_TRUE(Refuses(std::numeric_limits<double>::quiet_NaN(), int32));
    EXPECT_TRUE(Refuses(std::numeric_limits<double>::infinity(), realChoice));
    EXPECT_TRUE(Refuses(std::monostate(), int32));
    EXPECT_TRUE(Refuses(ObjectList{{1}}, text));
    EXPECT_TRUE(Refuses(std::wstring(L"1, x"), longList));
    EXPECT_TRUE(Refuses(int32_t(1), objects));
}

TEST(Texts, SurviveUtf8AndBrokenOnesAreMended) {
    const std::wstring text = L"A\u00E9\u65E5\U0001F600";
    EXPECT_EQ(FromUtf8(ToUtf8(text)), text);
    EXPECT_EQ(FromUtf8("a\xC3"), L"a\uFFFD");          // cut off
    EXPECT_EQ(FromUtf8("\xC0\x80"), L"\uFFFD\uFFFD");  // overlong
    EXPECT_EQ(FromUtf8("\xED\xA0\x80").find(L'\xD800'), std::wstring::npos);
    EXPECT_EQ(ToUtf8(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
}

}  // namespace
}  // namespace qz::sample
