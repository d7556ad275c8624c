#include "properties/editors/make_editor.h"

#include <algorithm>
#include <iterator>

namespace qz {

namespace {

struct EditorMaker {
    EditorKind kind;
    ValueDlgPointer (*make)(const EditorChoice& choice, Language language);
};

// clang-format off
constexpr EditorMaker makers[] = {
    {EditorKind::Actions, MakeActionsEditor},
    {EditorKind::Bool, MakeBoolEditor},
    {EditorKind::Color, MakeColorEditor},
    {EditorKind::Edit, MakeEditEditor},
    {EditorKind::Enum, MakeEnumEditor},
    {EditorKind::Font, MakeFontEditor},
    {EditorKind::Format, MakeFormatEditor},
    {EditorKind::ObjectList, MakeObjectListEditor},
    {EditorKind::ValueList, MakeValueListEditor},
};
// clang-format on

}  // namespace

ValueDlgPointer MakeEditor(const EditorChoice& choice, Language language) {
    const auto* const found = std::ranges::find(makers, choice.kind, &EditorMaker::kind);
    return found == std::end(makers) ? nullptr : found->make(choice, language);
}

}  // namespace qz
