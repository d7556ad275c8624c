#include "panes/thumbnails/thumbnail_menu.h"

#include "panes/common/popup_menu.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

/// An entry's text id is its command id as well.
struct Entry {
    PageCommand command;
    UINT textId;
};

constexpr Entry entries[] = {
    {PageCommand::Cut, QZ_TEXT_CUT},
    {PageCommand::Copy, QZ_TEXT_COPY},
    {PageCommand::Paste, QZ_TEXT_PASTE},
    {PageCommand::Delete, QZ_TEXT_DELETE},
};

}  // namespace

std::optional<PageCommand> ShowPageMenu(HWND owner, POINT screen, Language language,
                                        const PageCommandState& state) {
    PopupMenu menu;
    for (const Entry& entry : entries) {
        menu.Append(entry.textId, LoadText(language, entry.textId), state.Enables(entry.command));
    }
    const UINT chosen = menu.Track(owner, screen);
    for (const Entry& entry : entries) {
        if (entry.textId == chosen) return entry.command;
    }
    return std::nullopt;
}

}  // namespace qz
