#include "properties/model/editor_choice.h"

#include "properties/model/attribute_row.h"
#include "properties/model/attribute_types.h"

#include <algorithm>
#include <iterator>

namespace qz {

namespace {

struct EditorOfType {
    std::uint32_t type;
    EditorChoice choice;
};

constexpr EditorChoice Field(EditMode mode) { return {EditorKind::Edit, mode, false}; }
constexpr EditorChoice Plain(EditorKind kind) { return {kind, EditMode::Integer, false}; }
constexpr EditorChoice Choices(bool real) { return {EditorKind::Enum, EditMode::Integer, real}; }

constexpr EditorOfType editors[] = {
    {attribute_type::int16, Field(EditMode::Integer)},
    {attribute_type::int32, Field(EditMode::Integer)},
    {attribute_type::real, Field(EditMode::Real)},
    {attribute_type::boolean, Plain(EditorKind::Bool)},
    {attribute_type::text, Field(EditMode::Lines)},
    {attribute_type::lines, Field(EditMode::Lines)},
    {attribute_type::expression, Field(EditMode::Lines)},
    {attribute_type::metadata, Field(EditMode::Lines)},
    {attribute_type::format, Plain(EditorKind::Format)},
    {attribute_type::wholeChoice, Choices(false)},
    {attribute_type::colour, Plain(EditorKind::Color)},
    {attribute_type::font, Plain(EditorKind::Font)},
    {attribute_type::file, Field(EditMode::File)},
    {attribute_type::shortList, Plain(EditorKind::ValueList)},
    {attribute_type::longList, Plain(EditorKind::ValueList)},
    {attribute_type::realChoice, Choices(true)},
    {attribute_type::databaseField, Field(EditMode::DatabaseField)},
};

constexpr wchar_t actionsTab = L'N';
constexpr std::int32_t formAction = 53;

bool IsObjectList(std::uint32_t type) {
    constexpr std::uint32_t both = attribute_type::listBit | attribute_type::objectBit;
    return (type & both) == both;
}

}  // namespace

EditorChoice ChooseEditor(std::uint32_t type, std::uint32_t category, std::wstring_view name,
                          std::optional<std::int32_t> objectType, TextEquality equal) {
    const EditorOfType* const found = std::ranges::find(editors, type, &EditorOfType::type);
    if (found != std::end(editors)) return found->choice;
    if (TabCodeOf(category) == actionsTab) return Plain(EditorKind::Actions);
    const bool fields = objectType == formAction && IsObjectList(type) && equal(name, L"Fields");
    return Plain(fields ? EditorKind::ObjectList : EditorKind::None);
}

}  // namespace qz
