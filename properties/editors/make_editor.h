// From the kind of an editor to the editor. An editor is a source of its own, which gives out its maker
// alone.
#pragma once

#include "properties/editors/value_dlg.h"
#include "properties/model/editor_choice.h"

namespace qz {

/// Null for an attribute that is only looked at.
ValueDlgPointer MakeEditor(const EditorChoice& choice, Language language);

ValueDlgPointer MakeActionsEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeBoolEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeColorEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeEditEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeEnumEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeFontEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeFormatEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeObjectListEditor(const EditorChoice& choice, Language language);
ValueDlgPointer MakeValueListEditor(const EditorChoice& choice, Language language);

}  // namespace qz
