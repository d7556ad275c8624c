// What can be done with layers from the pane's menu.
#pragma once

#include <cstdint>

namespace qz {

enum class LayerCommand : std::uint8_t { ShowOnly, ShowAll, HideAll, Reset, Properties };

/// What the commands depend on.
struct LayerCommandState {
    bool anyLayer = false;
    bool layerSelected = false;  ///< A layer, not a heading.
    bool locked = false;

    constexpr bool Enables(LayerCommand command) const noexcept {
        switch (command) {
            case LayerCommand::ShowOnly:
                return layerSelected && !locked;
            case LayerCommand::ShowAll:
            case LayerCommand::HideAll:
            case LayerCommand::Reset:
                return anyLayer && !locked;
            case LayerCommand::Properties:
                return layerSelected;
        }
        return false;
    }
};

}  // namespace qz
