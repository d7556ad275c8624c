// Which editor an attribute is changed with.
#pragma once

#include "properties/model/text_equality.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace qz {

enum class EditorKind { None, Edit, Bool, Format, Enum, Color, Font, ValueList, Actions, ObjectList };

/// What the text field of the "Edit" editor holds.
enum class EditMode { Integer, Real, Lines, File, DatabaseField };

struct EditorChoice {
    EditorKind kind = EditorKind::None;
    EditMode mode = EditMode::Integer;  ///< Of "Edit" only.
    bool realChoices = false;           ///< Of "Enum" only: the choices are no whole numbers.

    bool operator==(const EditorChoice&) const = default;
};

/// The editor of an attribute; "None" when it can only be looked at. `objectType` is the inspected object's
/// "ObjectType", if it has one.
EditorChoice ChooseEditor(std::uint32_t type, std::uint32_t category, std::wstring_view name,
                          std::optional<std::int32_t> objectType, TextEquality equal);

}  // namespace qz
