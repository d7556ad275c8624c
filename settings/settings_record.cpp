#include "settings/settings_record.h"

#include "com/stream.h"
#include "settings/xml_text.h"
#include "settings/xml_values.h"

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace qz {

namespace {

void Convert(const wchar_t* text, bool& value) { value = BoolFromText(text); }
void Convert(const wchar_t* text, std::int32_t& value) { value = IntegerFromText(text); }
void Convert(const wchar_t* text, std::uint8_t& value) {
    value = static_cast<std::uint8_t>(IntegerFromText(text));  // its last 8 bits
}
void Convert(const wchar_t* text, std::wstring& value) { value = text; }

template <typename Value>
std::optional<Value> Converted(const wchar_t* text) {
    if (!text) return std::nullopt;
    Value value{};
    Convert(text, value);
    return value;
}

}  // namespace

void zrSettings::Reset() {
    qzSimpleXmlElement* root = document_.GetRoot();
    root->RemoveAllChildren();
    root->RemoveAllAttributes();
    root->SetValue(nullptr);
    root->SetName(nullptr);
    const ComPtr<IUnknown> kept = kept_;  // goes last: its end may run foreign code
    kept_.Reset();
}

void zrSettings::ReadAll() {
    document_.GetRoot()->SetName(table_.root);
    for (const SettingsRow& row : table_.rows) Read(row);
}

void zrSettings::TakeDefaults() {
    Reset();
    ReadAll();
}

bool zrSettings::Load(IStream* stream) {
    Reset();
    const bool whole = document_.Load(stream);
    if (!whole) Reset();
    ReadAll();
    return whole;
}

bool zrSettings::Load(std::span<const std::byte> bytes) {
    const ComPtr<IStream> stream = MakeMemoryStream();
    WriteBytes(stream.Get(), bytes);
    ThrowIfFailed(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    return Load(stream.Get());
}

std::string zrSettings::Text() {
    std::string text;
    document_.Write([&](std::string_view piece) { text += piece; });
    return text;
}

std::optional<bool> zrSettings::GetBool(const wchar_t* key) { return Converted<bool>(Find(key)); }

std::optional<std::int32_t> zrSettings::GetInt(const wchar_t* key) {
    return Converted<std::int32_t>(Find(key));
}

std::optional<std::wstring> zrSettings::GetString(const wchar_t* key) {
    return Converted<std::wstring>(Find(key));
}

void zrSettings::SetBool(const wchar_t* key, bool value) {
    Put(key, value);
    ReadKey(key);
}

void zrSettings::SetInt(const wchar_t* key, std::int32_t value) {
    Put(key, value);
    ReadKey(key);
}

void zrSettings::SetFloat(const wchar_t* key, float value) {
    document_.SetFloat(key, value, {});
    ReadKey(key);
}

void zrSettings::SetString(const wchar_t* key, const wchar_t* text) {
    if (!ReadsBack(OrEmpty(text))) {
        Throw(E_INVALIDARG, L"The text of the setting \"" + std::wstring(key) +
                                L"\" holds characters that cannot be saved, such as \"<\" or \"&\"");
    }
    Put(key, text);
    ReadKey(key);
}

const wchar_t* zrSettings::Find(const wchar_t* key) {
    const wchar_t* text = nullptr;
    return document_.GetString(key, &text, nullptr, nullptr) ? text : nullptr;
}

void zrSettings::Put(const wchar_t* key, bool value) { document_.SetBool(key, value, {}); }
void zrSettings::Put(const wchar_t* key, std::int32_t value) { document_.SetInteger(key, value, {}); }
void zrSettings::Put(const wchar_t* key, const wchar_t* text) { document_.SetText(key, text, {}); }

void zrSettings::Read(const SettingsRow& row) {
    const auto read = [&](const auto& field) {
        if (!Find(row.key)) Put(row.key, field.byDefault);
        if (field.member) Convert(Find(row.key), this->*field.member);
    };
    std::visit(read, row.field);
}

void zrSettings::ReadKey(const wchar_t* key) {
    const auto row = std::ranges::find(table_.rows, std::wstring_view(key), &SettingsRow::key);
    if (row != table_.rows.end()) Read(*row);
}

}  // namespace qz
