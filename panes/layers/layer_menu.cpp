#include "panes/layers/layer_menu.h"

#include "panes/common/command_menu.h"
#include "res/text_ids.h"

namespace qz {

namespace {

constexpr CommandEntry<LayerCommand> entries[] = {
    {LayerCommand::ShowOnly, QZ_TEXT_SHOW_ONLY_THIS_LAYER},
    {LayerCommand::ShowAll, QZ_TEXT_SHOW_ALL_LAYERS},
    {LayerCommand::HideAll, QZ_TEXT_HIDE_ALL_LAYERS},
    {LayerCommand::Reset, QZ_TEXT_RESET_LAYERS},
    {LayerCommand::Properties, QZ_TEXT_LAYER_PROPERTIES, true},
};

}  // namespace

std::optional<LayerCommand> ShowLayerMenu(HWND owner, POINT screen, Language language,
                                          const LayerCommandState& state) {
    return AskForCommand<LayerCommand>(owner, screen, language, entries,
                                       [&](LayerCommand command) { return state.Enables(command); });
}

}  // namespace qz
