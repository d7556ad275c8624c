// The system's dialog for fonts.
#pragma once

#include "properties/model/font_value.h"

#include <windows.h>

#include <optional>

namespace qz {

/// Shows the dialog over `owner`, started from a font; nothing when the user cancels. Messages are handled
/// meanwhile. Throws when the dialog cannot be shown.
std::optional<FontValue> ChooseSystemFont(HWND owner, const FontValue& start);

}  // namespace qz
