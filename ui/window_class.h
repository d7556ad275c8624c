// The owner of a window class.
#pragma once

#include <windows.h>

namespace qz {

/// A window class of this module, known to the system as long as this lives. A library's classes outlive it
/// unless it takes them back: a class left behind would send messages to code that is gone, and stop the
/// library from registering when it is loaded at the same place again. One that is static goes when the
/// module is unloaded. A name is looked up together with the module's handle, so modules do not disturb each
/// other.
class WindowClass {
  public:
    /// The description's size and module are filled in. Throws when the system refuses.
    explicit WindowClass(WNDCLASSEXW description);
    ~WindowClass();
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

    /// To be given to CreateWindowEx.
    const wchar_t* Name() const noexcept { return MAKEINTATOM(atom_); }

  private:
    ATOM atom_;
};

}  // namespace qz
