#include "dialogs/common/setting_field.h"

#include "settings/xml_text.h"

namespace qz {

namespace {

std::optional<FieldValue> InRange(const SettingField& field, std::optional<std::int32_t> number) {
    if (!number || *number < field.least || *number > field.most) return std::nullopt;
    return *number;
}

}  // namespace

std::wstring ShownText(FieldKind kind, const FieldValue& value, const LengthManner& manner) {
    if (const bool* const set = std::get_if<bool>(&value)) return *set ? L"t" : L"f";
    if (const std::wstring* const text = std::get_if<std::wstring>(&value)) return *text;
    const std::int32_t number = std::get<std::int32_t>(value);
    return kind == FieldKind::Length ? LengthText(number, manner) : std::to_wstring(number);
}

std::optional<FieldValue> ValueOfEntry(const SettingField& field, std::wstring_view text, LengthUnit unit) {
    switch (field.kind) {
        case FieldKind::Check:
            return text == L"t";
        case FieldKind::Number:
        case FieldKind::Colour:
            return InRange(field, WholeNumberFromText(text));
        case FieldKind::Length:
            return InRange(field, LengthFromText(text, unit));
        default:
            if (!ReadsBack(text)) return std::nullopt;
            return std::wstring(text);
    }
}

std::wstring Filled(std::wstring text, std::initializer_list<std::wstring_view> arguments) {
    std::size_t at = 0;
    for (const std::wstring_view argument : arguments) {
        at = text.find(L"%s", at);
        if (at == std::wstring::npos) break;
        text.replace(at, 2, argument);
        at += argument.size();
    }
    return text;
}

}  // namespace qz
