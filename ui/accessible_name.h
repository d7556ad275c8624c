// Names for assistive tools.
#pragma once

#include <windows.h>

namespace qz {

/// Gives a window whose text is its content, such as an edit field, a name. A system without the service for
/// it is no error: the window then has the name that the system finds. Call it with an empty name before the
/// window goes.
void SetAccessibleName(HWND window, const wchar_t* name) noexcept;

}  // namespace qz
