// The way from a request for a context menu to the menu.
#pragma once

#include "panes/common/menu_request.h"

#include <optional>
#include <utility>

namespace qz {

/// A base of panes that have a menu.
class ContextMenuSource {
  protected:
    ~ContextMenuSource() = default;

    /// To be called on WM_CONTEXTMENU: 0 when the request is settled, nothing when it is for others. A
    /// request that a container passes on and that comes back is settled already.
    std::optional<LRESULT> OnContextMenu(WPARAM wParam, LPARAM lParam) {
        const MenuRequest request(wParam, lParam);
        if (!WantsMenu(request)) return std::nullopt;
        if (std::exchange(last_, request) == request) return 0;
        OpenMenu(request, request.ByKeyboard() ? KeyboardMenuPoint() : request.ScreenPoint());
        return 0;
    }

  private:
    /// False lets the request go on.
    virtual bool WantsMenu(const MenuRequest&) const { return true; }
    /// Where the menu opens that was asked for by key; screen pixels.
    virtual POINT KeyboardMenuPoint() = 0;
    /// Asks whom there is to ask, and shows the menu. May end the pane.
    virtual void OpenMenu(const MenuRequest& request, POINT screen) = 0;

    MenuRequest last_;
};

}  // namespace qz
