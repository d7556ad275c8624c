#include "panes/thumbnails/thumbnail_menu.h"

#include "com/error.h"
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

class PopupMenu {
  public:
    PopupMenu() : menu_(CreatePopupMenu()) { ThrowLastErrorIf(!menu_, L"The menu cannot be made"); }
    ~PopupMenu() { DestroyMenu(menu_); }
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    void Append(UINT id, const std::wstring& text, bool enabled) {
        const UINT flags = MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED);
        ThrowLastErrorIf(!AppendMenuW(menu_, flags, id, text.c_str()), L"The menu cannot be filled");
    }

    UINT Track(HWND owner, POINT screen) {
        const UINT flags = TPM_RETURNCMD | TPM_RIGHTBUTTON | TPM_LEFTALIGN | TPM_TOPALIGN;
        return static_cast<UINT>(TrackPopupMenu(menu_, flags, screen.x, screen.y, 0, owner, nullptr));
    }

  private:
    HMENU menu_;
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
