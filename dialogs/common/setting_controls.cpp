#include "dialogs/common/setting_controls.h"

#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/dialog.h"

#include <algorithm>

namespace qz {

namespace {

constexpr WPARAM longestText = 1024;
constexpr WPARAM longestNumber = 32;

bool IsText(FieldKind kind) noexcept {
    return kind == FieldKind::Text || kind == FieldKind::Password || kind == FieldKind::File;
}

FieldValue KeptValue(zrSettings& record, const SettingField& field) {
    if (field.kind == FieldKind::Check) return record.GetBool(field.key).value_or(false);
    if (IsText(field.kind)) return record.GetString(field.key).value_or(L"");
    return record.GetInt(field.key).value_or(0);
}

void Keep(zrSettings& record, const wchar_t* key, const FieldValue& value) {
    if (const bool* const set = std::get_if<bool>(&value))
        record.SetBool(key, *set);
    else if (const std::int32_t* const number = std::get_if<std::int32_t>(&value))
        record.SetInt(key, *number);
    else
        record.SetString(key, std::get<std::wstring>(value).c_str());
}

std::wstring EntryOf(const SettingControls::Bound& bound) {
    if (bound.field->kind != FieldKind::Check) return WindowText(bound.control);
    return SendMessageW(bound.control, BM_GETCHECK, 0, 0) == BST_CHECKED ? L"t" : L"f";
}

std::wstring WhyRefused(const SettingField& field, Language language, const LengthManner& manner) {
    if (IsText(field.kind)) return LoadText(language, QZ_TEXT_TEXT_REFUSED);
    const bool length = field.kind == FieldKind::Length;
    return Filled(LoadText(language, length ? QZ_TEXT_LENGTH_NEEDED : QZ_TEXT_NUMBER_NEEDED),
                  {ShownText(field.kind, field.least, manner), ShownText(field.kind, field.most, manner)});
}

}  // namespace

LengthManner UserLengthManner(Language language) noexcept {
    DWORD american = 0;
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                    reinterpret_cast<wchar_t*>(&american), sizeof american / sizeof(wchar_t));
    return {american ? LengthUnit::Inches : LengthUnit::Millimetres, DecimalSignOf(language)};
}

void SettingControls::Bind(const SettingField& field, HWND control) {
    all_.push_back({&field, control, {}, {}});
    if (field.kind != FieldKind::Check) {
        SendMessageW(control, EM_LIMITTEXT, IsText(field.kind) ? longestText : longestNumber, 0);
    }
}

void SettingControls::Show(zrSettings& record) {
    for (Bound& bound : all_) Show(bound, KeptValue(record, *bound.field));
}

void SettingControls::Show(std::wstring_view key, const FieldValue& value) {
    const auto found = std::ranges::find(all_, key, [](const Bound& bound) { return bound.field->key; });
    if (found != all_.end()) Show(*found, value);
}

void SettingControls::Show(Bound& bound, const FieldValue& value) const {
    bound.value = value;
    if (bound.field->kind == FieldKind::Check) {
        SendMessageW(bound.control, BM_SETCHECK, std::get<bool>(value) ? BST_CHECKED : BST_UNCHECKED, 0);
    } else {
        SetWindowTextW(bound.control, ShownText(bound.field->kind, value, manner_).c_str());
    }
    bound.shown = EntryOf(bound);  // a control may hold less than it was given
}

const SettingControls::Bound* SettingControls::Find(std::wstring_view key) const noexcept {
    const auto found = std::ranges::find(all_, key, [](const Bound& bound) { return bound.field->key; });
    return found == all_.end() ? nullptr : &*found;
}

std::optional<FieldValue> SettingControls::Value(const Bound& bound) const {
    const std::wstring entry = EntryOf(bound);
    if (entry == bound.shown) return bound.value;
    return ValueOfEntry(*bound.field, entry, manner_.unit);
}

const SettingControls::Bound* SettingControls::FirstRefused() const {
    const auto refused = [this](const Bound& bound) {
        return IsWindowEnabled(bound.control) && !Value(bound);
    };
    const auto found = std::ranges::find_if(all_, refused);
    return found == all_.end() ? nullptr : &*found;
}

void SettingControls::Tell(HWND dialog, Language language, const Bound& refused) const {
    TellAboutEntry(dialog, WhyRefused(*refused.field, language, manner_), refused.control);
}

void SettingControls::Write(zrSettings& record) const {
    for (const Bound& bound : all_) {
        const std::optional<FieldValue> value = Value(bound);
        if (value && *value != KeptValue(record, *bound.field)) Keep(record, bound.field->key, *value);
    }
}

void TellAboutEntry(HWND dialog, const std::wstring& text, HWND control) {
    MessageBoxW(dialog, text.c_str(), WindowText(dialog).c_str(), MB_OK | MB_ICONWARNING);
    if (!IsWindow(control)) return;  // the dialog may have gone meanwhile
    SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    SendMessageW(control, EM_SETSEL, 0, -1);
}

}  // namespace qz
