#include "ui/text_edit.h"

#include "com/error.h"
#include "ui/activation.h"
#include "ui/window_class.h"

#include <windows.h>

namespace qz {

namespace {

/// The system's entry field under a name of ours.
WNDCLASSEXW FieldNamed(const wchar_t* name) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    const ModuleActivation activation;
    ThrowLastErrorIf(!GetClassInfoExW(nullptr, L"EDIT", &description), L"There is no edit control");
    description.lpszClassName = name;
    description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    return description;
}

}  // namespace

void RegisterTextEdits() {
    static const WindowClass field(FieldNamed(textEditClass));
    static const WindowClass inspectorField(FieldNamed(inspectorTextEditClass));
}

}  // namespace qz
