#include "ui/text_edit.h"

#include "com/error.h"
#include "com/module.h"
#include "ui/activation.h"

#include <windows.h>

namespace qz {

namespace {

/// Goes when the module is unloaded, as a library's classes outlive it unless it takes them back.
class RegisteredField {
  public:
    explicit RegisteredField(const wchar_t* name) {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        {
            const ModuleActivation activation;
            ThrowLastErrorIf(!GetClassInfoExW(nullptr, L"EDIT", &description), L"There is no edit control");
        }
        description.hInstance = ThisModule();
        description.lpszClassName = name;
        description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
        atom_ = RegisterClassExW(&description);
        ThrowLastErrorIf(atom_ == 0, L"The class of a text field cannot be registered");
    }
    ~RegisteredField() { UnregisterClassW(MAKEINTATOM(atom_), ThisModule()); }
    RegisteredField(const RegisteredField&) = delete;
    RegisteredField& operator=(const RegisteredField&) = delete;

  private:
    ATOM atom_;
};

}  // namespace

void RegisterTextEdits() {
    static const RegisteredField field(textEditClass);
    static const RegisteredField inspectorField(inspectorTextEditClass);
}

}  // namespace qz
