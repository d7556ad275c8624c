// The pane's context menu.
#pragma once

#include "panes/layers/layer_commands.h"
#include "res/language.h"

#include <windows.h>

#include <optional>

namespace qz {

/// Shows the menu at a screen point until the user has chosen; nothing when he did not. Handles messages
/// meanwhile.
std::optional<LayerCommand> ShowLayerMenu(HWND owner, POINT screen, Language language,
                                          const LayerCommandState& state);

}  // namespace qz
