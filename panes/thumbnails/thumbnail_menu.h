// The pane's context menu.
#pragma once

#include "panes/thumbnails/page_commands.h"
#include "res/language.h"

#include <windows.h>

#include <optional>

namespace qz {

/// Shows the menu at a screen point until the user has chosen; nothing when he did not. Handles messages
/// meanwhile.
std::optional<PageCommand> ShowPageMenu(HWND owner, POINT screen, Language language,
                                        const PageCommandState& state);

}  // namespace qz
