#include "properties/model/font_value.h"

#include "properties/model/number_text.h"

#include <algorithm>
#include <array>

namespace qz {

namespace {

constexpr double largestSize = 1'000'000;  // its tenths fit 32 bits
constexpr int largestWeight = 1000;

using Fields = std::array<std::wstring_view, 6>;

Fields FieldsOf(std::wstring_view text) {
    Fields fields;
    for (std::wstring_view& field : fields) {
        const std::size_t end = std::min(text.find(L';'), text.size());
        field = Trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return fields;
}

bool IsSet(std::wstring_view field) {
    return field == L"True" || field == L"true" || WholeNumberOf(field).value_or(0) != 0;
}

std::optional<int> WeightOf(std::wstring_view field) {
    const std::optional<int> weight = WholeNumberOf(field);
    return weight && *weight >= 0 && *weight <= largestWeight ? weight : std::nullopt;
}

}  // namespace

FontValue FontOf(std::wstring_view text) {
    const auto [face, size, weight, italic, underline, strikeOut] = FieldsOf(text);
    FontValue font;
    font.face = face;
    font.size = SizeOf(size).value_or(font.size);
    font.weight = WeightOf(weight).value_or(font.weight);
    font.italic = IsSet(italic);
    font.underline = IsSet(underline);
    font.strikeOut = IsSet(strikeOut);
    return font;
}

std::wstring TextOf(const FontValue& font) {
    std::wstring text = font.face;
    // A semicolon in the name of a face would begin the next field.
    std::ranges::replace(text, L';', L' ');
    text += L"; " + ShortestText(font.size) + L"; " + std::to_wstring(font.weight);
    for (const bool mark : {font.italic, font.underline, font.strikeOut}) text += mark ? L"; 1" : L"; 0";
    return text;
}

std::wstring TextOfSize(double size) { return RoundedText(size, 1); }

std::optional<double> SizeOf(std::wstring_view text) {
    const std::optional<double> size = DecimalNumberOf(Trimmed(text));
    return size && *size > 0 && *size <= largestSize ? size : std::nullopt;
}

}  // namespace qz
