// Windows that automation clients name by their handle.
#pragma once

#include <windows.h>
#include <oaidl.h>

namespace qz {

/// The window whose handle a variant holds as a number, or as a text of digits, also by reference. Handles
/// fit 32 bits; their sign is extended. Null for 0, no value and an argument left out. Throws E_INVALIDARG
/// for what is no number or no window.
HWND ParentWindow(const VARIANT& handle);

}  // namespace qz
