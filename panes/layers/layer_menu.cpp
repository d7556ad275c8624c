#include "panes/layers/layer_menu.h"

#include "panes/common/popup_menu.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

/// An entry's text id is its command id as well.
struct Entry {
    LayerCommand command;
    UINT textId;
    bool separated = false;  ///< From the entry before.
};

constexpr Entry entries[] = {
    {LayerCommand::ShowOnly, QZ_TEXT_SHOW_ONLY_THIS_LAYER},
    {LayerCommand::ShowAll, QZ_TEXT_SHOW_ALL_LAYERS},
    {LayerCommand::HideAll, QZ_TEXT_HIDE_ALL_LAYERS},
    {LayerCommand::Reset, QZ_TEXT_RESET_LAYERS},
    {LayerCommand::Properties, QZ_TEXT_LAYER_PROPERTIES, true},
};

}  // namespace

std::optional<LayerCommand> ShowLayerMenu(HWND owner, POINT screen, Language language,
                                          const LayerCommandState& state) {
    PopupMenu menu;
    for (const Entry& entry : entries) {
        if (entry.separated) menu.AppendSeparator();
        menu.Append(entry.textId, LoadText(language, entry.textId), state.Enables(entry.command));
    }
    const UINT chosen = menu.Track(owner, screen);
    for (const Entry& entry : entries) {
        if (entry.textId == chosen) return entry.command;
    }
    return std::nullopt;
}

}  // namespace qz
