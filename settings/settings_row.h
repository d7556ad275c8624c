// One key of a settings record.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

namespace qz {

class zrSettings;

/// The default of a key and the record's member that holds its value; null for a key that only the document
/// has.
template <typename Value, typename Default = Value>
struct SettingsField {
    Default byDefault;
    Value zrSettings::*member;
};

/// A key with its type, default and member. The member is one of the record whose table the row is in.
class SettingsRow {
  public:
    template <typename Record = zrSettings>
    constexpr SettingsRow(const wchar_t* name, bool byDefault, bool Record::*member = nullptr) noexcept
        : key(name), field(SettingsField<bool>{byDefault, static_cast<bool zrSettings::*>(member)}) {}
    template <typename Record = zrSettings>
    constexpr SettingsRow(const wchar_t* name, int byDefault, std::int32_t Record::*member = nullptr) noexcept
        : key(name),
          field(SettingsField<std::int32_t>{byDefault, static_cast<std::int32_t zrSettings::*>(member)}) {}
    template <typename Record = zrSettings>
    constexpr SettingsRow(const wchar_t* name, std::uint8_t byDefault, std::uint8_t Record::*member) noexcept
        : key(name),
          field(SettingsField<std::uint8_t>{byDefault, static_cast<std::uint8_t zrSettings::*>(member)}) {}
    template <typename Record = zrSettings>
    constexpr SettingsRow(const wchar_t* name, const wchar_t* byDefault,
                          std::wstring Record::*member = nullptr) noexcept
        : key(name), field(TextField{byDefault, static_cast<std::wstring zrSettings::*>(member)}) {}

    using TextField = SettingsField<std::wstring, const wchar_t*>;

    const wchar_t* key;
    std::variant<SettingsField<bool>, SettingsField<std::int32_t>, SettingsField<std::uint8_t>, TextField>
        field;
};

/// What tells one kind of record from another.
struct SettingsTable {
    const wchar_t* root;                ///< the document's outermost element
    const wchar_t* storedAs;            ///< the registry value
    const char* debugCopyKey;           ///< what names the debug copy in the debug file
    std::span<const SettingsRow> rows;  ///< in the order in which a new document gets them
};

}  // namespace qz
