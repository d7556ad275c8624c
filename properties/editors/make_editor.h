// From the kind of an editor to the editor.
#pragma once

#include "properties/model/editor_choice.h"
#include "properties/editors/value_dlg.h"

namespace qz {

/// Null for an attribute that is only looked at.
ValueDlgPointer MakeEditor(const EditorChoice& choice, Language language);

}  // namespace qz
