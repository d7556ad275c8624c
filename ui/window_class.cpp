#include "ui/window_class.h"

#include "com/error.h"
#include "com/module.h"

namespace qz {

WindowClass::WindowClass(WNDCLASSEXW description) {
    description.cbSize = sizeof description;
    description.hInstance = ThisModule();
    atom_ = RegisterClassExW(&description);
    ThrowLastErrorIf(atom_ == 0, L"The window class cannot be registered");
}

WindowClass::~WindowClass() { UnregisterClassW(Name(), ThisModule()); }

}  // namespace qz
