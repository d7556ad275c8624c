// The window classes of the text fields in dialogs.
#pragma once

namespace qz {

/// Edit controls under names of their own, so that tools tell them from others: those of dialogs, and those
/// of the inspector's value editors.
inline constexpr wchar_t textEditClass[] = L"qzTextEdit";
inline constexpr wchar_t inspectorTextEditClass[] = L"qzTextEdit_PropDlg";

/// Makes both classes known; to be called before a dialog with such fields is made. Throws when the system
/// refuses.
void RegisterTextEdits();

}  // namespace qz
