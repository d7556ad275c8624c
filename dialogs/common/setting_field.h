// One value of a settings record as a field of a dialog.
#pragma once

#include "dialogs/common/length_text.h"

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace qz {

enum class FieldKind { Check, Number, Length, Colour, Text, Password, File };

/// A check, a number (lengths in twips, colours as the system's), a text.
using FieldValue = std::variant<bool, std::int32_t, std::wstring>;

struct SettingField {
    const wchar_t* key;
    FieldKind kind;
    unsigned textId;         ///< Of its label.
    std::int32_t least = 0;  ///< Of numbers and lengths.
    std::int32_t most = 0;
    const wchar_t* enabledBy = nullptr;  ///< The key of the check without which this has no meaning.
};

/// What the field's entry shows; of a check "t" or "f", as in the record.
std::wstring ShownText(FieldKind kind, const FieldValue& value, const LengthManner& manner);

/// The value that an entry tells; nothing when it is refused: no number of the field's range, no length of
/// it, a text that a record cannot hold.
std::optional<FieldValue> ValueOfEntry(const SettingField& field, std::wstring_view text, LengthUnit unit);

/// A text with its "%s" replaced by the arguments, in their order.
std::wstring Filled(std::wstring text, std::initializer_list<std::wstring_view> arguments);

}  // namespace qz
