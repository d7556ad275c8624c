#include "panes/thumbnails/thumbnail_menu.h"

#include "panes/common/command_menu.h"
#include "res/text_ids.h"

namespace qz {

namespace {

constexpr CommandEntry<PageCommand> entries[] = {
    {PageCommand::Cut, QZ_TEXT_CUT},
    {PageCommand::Copy, QZ_TEXT_COPY},
    {PageCommand::Paste, QZ_TEXT_PASTE},
    {PageCommand::Delete, QZ_TEXT_DELETE},
};

}  // namespace

std::optional<PageCommand> ShowPageMenu(HWND owner, POINT screen, Language language,
                                        const PageCommandState& state) {
    return AskForCommand<PageCommand>(owner, screen, language, entries,
                                      [&](PageCommand command) { return state.Enables(command); });
}

}  // namespace qz
