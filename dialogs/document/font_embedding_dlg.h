// The dialog that asks how a font is to be embedded.
#pragma once

#include "ui/dialog.h"

#include <optional>

namespace qz {

/// Runs over a window. Gives the level chosen; nothing when the user cancelled. Throws when the dialog cannot
/// be made.
std::optional<int> AskForEmbedding(HWND owner, int level, Language language);

}  // namespace qz
