// How the pane shows itself: drawing and scrolling.
#include "panes/thumbnails/thumbnail_control.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/gdi.h"
#include "ui/platform_geometry.h"

namespace qz {

std::wstring ThumbnailControl::Title() const { return LoadText(TextLanguage(), QZ_TEXT_THUMBNAILS); }

void ThumbnailControl::OnDraw(HDC dc, const RECT& bounds) {
    const HWND window = WindowHandle();
    if (!window) model_.SetClientSize(bounds.right, bounds.bottom);
    RECT dirty{};
    GetClipBox(dc, &dirty);
    if (!IntersectRect(&dirty, &dirty, &bounds)) return;
    if (window && WindowFromDC(dc) == window) {
        Paint(dc, dirty);
    } else {
        DrawPane(dc, dirty);
    }
}

/// Draws to the screen: without flicker, and not over the picture of a drag. (Containers that draw the
/// control themselves get the drawing alone.)
void ThumbnailControl::Paint(HDC dc, const RECT& dirty) {
    const PaintBuffer buffer(dc, dirty);
    DrawPane(buffer.Dc(), dirty);
    dropTarget_.ShowImage(false);
    buffer.Show();
    dropTarget_.ShowImage(true);
}

void ThumbnailControl::DrawPane(HDC dc, const RECT& dirty) {
    const Brush background = MakeBrush(BackColorRef());
    FillRect(dc, &dirty, background.Get());
    const ComPtr<IVandraX> host = Host();
    if (!host) return;
    const OwnHostCalls ours(*this);
    painter_.Paint(dc, dirty, host.Get(), recordFactor_);
}

void ThumbnailControl::OnSized(SIZE client) {
    model_.SetClientSize(client.cx, client.cy);
    scrollBar_.Update(WindowHandle());
    Invalidate();
}

void ThumbnailControl::ScrollTo(std::int64_t position) {
    if (scrollBar_.ScrollTo(WindowHandle(), position)) Invalidate();
}

/// Repaints one record. Without a window the container repaints the whole control.
void ThumbnailControl::InvalidateRecord(std::size_t index) {
    const HWND window = WindowHandle();
    if (!window) return Invalidate();
    const RECT area = ToPlatform(model_.DrawnArea(index));
    InvalidateRect(window, &area, FALSE);
}

/// Repaints everything before it returns.
void ThumbnailControl::UpdateNow() {
    Invalidate();
    if (const HWND window = WindowHandle()) UpdateWindow(window);
}

}  // namespace qz
