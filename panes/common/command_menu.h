// A context menu of a pane's commands.
#pragma once

#include "ui/popup_menu.h"
#include "res/language.h"
#include "res/strings.h"

#include <optional>
#include <span>

namespace qz {

/// An entry; its text id is its command id in the menu as well.
template <class Command>
struct CommandEntry {
    Command command;
    UINT textId;
    bool separated = false;  ///< From the entry before.
};

/// Shows the entries at a screen point until the user has chosen; nothing when he did not. `enables` tells of
/// each command whether it can be given. Handles messages meanwhile.
template <class Command, class Enables>
std::optional<Command> AskForCommand(HWND owner, POINT screen, Language language,
                                     std::span<const CommandEntry<Command>> entries, Enables enables) {
    PopupMenu menu;
    for (const CommandEntry<Command>& entry : entries) {
        if (entry.separated) menu.AppendSeparator();
        menu.Append(entry.textId, LoadText(language, entry.textId), enables(entry.command));
    }
    const UINT chosen = menu.Track(owner, screen);
    for (const CommandEntry<Command>& entry : entries) {
        if (entry.textId == chosen) return entry.command;
    }
    return std::nullopt;
}

}  // namespace qz
