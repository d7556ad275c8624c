#include "sample/document/value.h"

#include "sample/document/text.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace qz::sample {

namespace {

[[noreturn]] void BadValue() {
    throw AccessError(AccessFailure::BadValue, "The value does not suit the attribute");
}

std::string_view Trimmed(std::string_view text) {
    const size_t first = text.find_first_not_of(" \t\r\n+");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

std::optional<double> ParseNumber(std::string_view text) {
    const std::string_view digits = Trimmed(text);
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool whole = error == std::errc() && end == digits.data() + digits.size() && std::isfinite(number);
    return whole ? std::optional(number) : std::nullopt;
}

template <class Number>
std::wstring NumberText(Number number) {
    char buffer[64];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, number);
    return error == std::errc() ? std::wstring(buffer, end) : std::wstring();
}

template <class Integer>
Integer ToBounded(double number) {
    const double rounded = std::round(number);
    const bool fits =
        rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
    if (!fits) BadValue();
    return static_cast<Integer>(rounded);
}

float ToSingle(double number) {
    if (std::abs(number) > std::numeric_limits<float>::max()) BadValue();
    return static_cast<float>(number);
}

double RequireNumber(const Value& value) {
    const std::optional<double> number = AsNumber(value);
    if (!number) BadValue();
    return *number;
}

struct TextOf {
    std::wstring operator()(std::monostate) const { return {}; }
    std::wstring operator()(bool flag) const { return flag ? L"True" : L"False"; }
    std::wstring operator()(int16_t number) const { return NumberText(static_cast<int>(number)); }
    std::wstring operator()(int32_t number) const { return NumberText(number); }
    std::wstring operator()(float number) const { return NumberText(number); }
    std::wstring operator()(double number) const { return NumberText(number); }
    std::wstring operator()(const std::wstring& text) const { return text; }
    std::wstring operator()(const NumberList& numbers) const {
        std::wstring text;
        for (const int32_t number : numbers) text += (text.empty() ? L"" : L"; ") + NumberText(number);
        return text;
    }
    std::wstring operator()(const ObjectList&) const { BadValue(); }
};

struct NumberOf {
    std::optional<double> operator()(bool flag) const { return flag ? 1 : 0; }
    std::optional<double> operator()(const std::wstring& text) const { return ParseNumber(ToUtf8(text)); }
    template <class Number>
    requires std::is_arithmetic_v<Number> std::optional<double>
    operator()(Number number) const {
        return std::isfinite(static_cast<double>(number)) ? std::optional<double>(number) : std::nullopt;
    }
    template <class Other>
    requires(!std::is_arithmetic_v<Other>) std::optional<double>
    operator()(const Other&) const { return std::nullopt; }
};

}  // namespace

std::optional<double> AsNumber(const Value& value) { return std::visit(NumberOf{}, value); }

int32_t ToInteger(const Value& value) {
    if (const auto* number = std::get_if<int32_t>(&value)) return *number;
    return ToBounded<int32_t>(RequireNumber(value));
}

bool ToBoolean(const Value& value) {
    if (const auto* text = std::get_if<std::wstring>(&value)) {
        if (EqualIgnoringCase(*text, L"True")) return true;
        if (EqualIgnoringCase(*text, L"False")) return false;
    }
    return RequireNumber(value) != 0;
}

std::wstring ToText(const Value& value) { return std::visit(TextOf{}, value); }

NumberList ToNumbers(const Value& value) {
    if (const auto* numbers = std::get_if<NumberList>(&value)) return *numbers;
    if (std::holds_alternative<std::monostate>(value)) return {};
    const std::string text = ToUtf8(ToText(value));
    constexpr std::string_view separators = " ,;\t\r\n";
    NumberList numbers;
    for (size_t at = text.find_first_not_of(separators); at != std::string::npos;) {
        const size_t end = std::min(text.find_first_of(separators, at), text.size());
        const std::optional<double> number = ParseNumber(std::string_view(text).substr(at, end - at));
        if (!number) BadValue();
        numbers.push_back(ToBounded<int32_t>(*number));
        at = text.find_first_not_of(separators, end);
    }
    return numbers;
}

Value Coerced(const Value& value, uint32_t type) {
    switch (type) {
        case type_code::int16:
            return ToBounded<int16_t>(RequireNumber(value));
        case type_code::int32:
        case type_code::wholeChoice:
            return ToInteger(value);
        case type_code::colour: {
            // Callers hand over the bits as a signed or as an unsigned number.
            const double number = RequireNumber(value);
            return number > std::numeric_limits<int32_t>::max()
                       ? static_cast<int32_t>(ToBounded<uint32_t>(number))
                       : ToBounded<int32_t>(number);
        }
        case type_code::real:
            return ToSingle(RequireNumber(value));
        case type_code::realChoice:
            return RequireNumber(value);
        case type_code::boolean:
            return ToBoolean(value);
        case type_code::shortList:
        case type_code::longList:
            return ToNumbers(value);
        case type_code::objects:
            if (std::holds_alternative<ObjectList>(value)) return value;
            if (std::holds_alternative<std::monostate>(value)) return ObjectList{};
            BadValue();
        default:
            return ToText(value);
    }
}

}  // namespace qz::sample
