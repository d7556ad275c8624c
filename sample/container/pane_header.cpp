#include "sample/container/pane_header.h"

#include <uxtheme.h>

namespace qz {

namespace {

constexpr int margin = 10;
constexpr int focusLine = 2;

void DrawLine(HDC dc, const RECT& bounds, int thickness, int colour) noexcept {
    const RECT line{bounds.left, bounds.bottom - thickness, bounds.right, bounds.bottom};
    FillRect(dc, &line, GetSysColorBrush(colour));
}

void DrawHeader(HDC dc, const RECT& bounds, const PaneHeader& header) noexcept {
    FillRect(dc, &bounds, GetSysColorBrush(COLOR_BTNFACE));
    if (header.focused)
        DrawLine(dc, bounds, focusLine * header.unit, COLOR_HIGHLIGHT);
    else
        DrawLine(dc, bounds, header.unit, COLOR_BTNSHADOW);

    const HGDIOBJ fontBefore = SelectObject(dc, header.font);
    const COLORREF colourBefore = SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    const int modeBefore = SetBkMode(dc, TRANSPARENT);
    RECT text = bounds;
    text.left += margin * header.unit;
    text.right -= margin * header.unit;
    DrawTextW(dc, header.title.c_str(), -1, &text,
              DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    SetBkMode(dc, modeBefore);
    SetTextColor(dc, colourBefore);
    SelectObject(dc, fontBefore);
}

}  // namespace

void PaintPaneHeader(HWND window, const RECT& bounds, const PaneHeader& header) {
    PAINTSTRUCT paint;
    const HDC target = BeginPaint(window, &paint);
    if (!target) return;
    HDC dc = nullptr;
    const HPAINTBUFFER buffer = BeginBufferedPaint(target, &bounds, BPBF_COMPATIBLEBITMAP, nullptr, &dc);
    DrawHeader(buffer ? dc : target, bounds, header);
    if (buffer) EndBufferedPaint(buffer, TRUE);
    EndPaint(window, &paint);
}

}  // namespace qz
