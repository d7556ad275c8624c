#include "panes/thumbnails/thumbnail_scroll_bar.h"

namespace qz {

bool ThumbnailScrollBar::OnCommand(HWND window, WORD command) {
    const std::int64_t position = model_.ScrollPosition();
    switch (command) {
        case SB_LINEUP:
            return ScrollTo(window, position - scrollLine);
        case SB_LINEDOWN:
            return ScrollTo(window, position + scrollLine);
        case SB_PAGEUP:
            return ScrollTo(window, position - model_.ClientHeight());
        case SB_PAGEDOWN:
            return ScrollTo(window, position + model_.ClientHeight());
        case SB_THUMBTRACK: {
            // The message carries only 16 bits of the position.
            SCROLLINFO info{};
            info.cbSize = sizeof(info);
            info.fMask = SIF_TRACKPOS;
            return GetScrollInfo(window, SB_VERT, &info) && ScrollTo(window, info.nTrackPos);
        }
        default:
            return false;
    }
}

bool ThumbnailScrollBar::OnWheel(HWND window, short delta) {
    const int notches = wheel_.Turn(delta);
    if (notches == 0) return false;
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const std::int64_t step =
        lines == WHEEL_PAGESCROLL ? model_.ClientHeight() : std::int64_t{scrollLine} * lines;
    return ScrollTo(window, model_.ScrollPosition() - notches * step);
}

bool ThumbnailScrollBar::ScrollTo(HWND window, std::int64_t position) {
    const bool moved = model_.ScrollTo(position);
    if (moved) ShowPosition(window);
    return moved;
}

bool ThumbnailScrollBar::ScrollIntoView(HWND window, std::size_t index) {
    const bool moved = model_.ScrollIntoView(index);
    ShowPosition(window);
    return moved;
}

void ThumbnailScrollBar::Update(HWND window) {
    if (!window) return;
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = model_.ContentHeight();
    info.nPage = static_cast<UINT>(model_.ClientHeight());
    SetScrollInfo(window, SB_VERT, &info, TRUE);
    ShowPosition(window);
}

void ThumbnailScrollBar::ShowPosition(HWND window) const {
    const int position = model_.ScrollPosition();
    if (window && GetScrollPos(window, SB_VERT) != position) SetScrollPos(window, SB_VERT, position, TRUE);
}

}  // namespace qz
