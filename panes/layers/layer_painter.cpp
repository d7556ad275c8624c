#include "panes/layers/layer_painter.h"

#include "ui/gdi.h"
#include "ui/platform_geometry.h"

namespace qz {

namespace {

COLORREF TextColour(const LayerRowLook& look) noexcept {
    if (look.selected && look.focused) return GetSysColor(COLOR_HIGHLIGHTTEXT);
    if (look.greyed) return GetSysColor(COLOR_GRAYTEXT);
    return GetSysColor(look.selected ? COLOR_BTNTEXT : COLOR_WINDOWTEXT);
}

void DrawCheckMark(HDC dc, const LayerRowLook& look) {
    RECT mark = ToPlatform(MarkIn(look.layout.checkMark, look.metrics.checkMark));
    UINT state = look.mark == LayerRowLook::Mark::Radio ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
    if (look.checked) state |= DFCS_CHECKED;
    if (look.greyed) state |= DFCS_INACTIVE;
    DrawFrameControl(dc, &mark, DFC_BUTTON, state);
}

/// A triangle that points right, or down when what is below is shown.
void DrawExpandMark(HDC dc, const LayerRowLook& look) {
    const Rect mark = MarkIn(look.layout.expandMark, look.metrics.expandMark);
    const std::int32_t middle = mark.Width() / 2;
    const std::int32_t quarter = mark.Width() / 4;
    const POINT right[] = {{mark.left + quarter, mark.top},
                           {mark.left + quarter, mark.bottom - 1},
                           {mark.left + quarter + middle, mark.top + middle}};
    const POINT down[] = {{mark.left, mark.top + quarter},
                          {mark.right - 1, mark.top + quarter},
                          {mark.left + middle, mark.top + quarter + middle}};
    const COLORREF colour = GetSysColor(COLOR_WINDOWTEXT);
    const Brush brush = MakeBrush(colour);
    const Pen pen = MakePen(1, colour);
    const SelectScope withBrush(dc, brush.Get());
    const SelectScope withPen(dc, pen.Get());
    Polygon(dc, look.expanded ? down : right, 3);
}

}  // namespace

void DrawLayerRow(HDC dc, const LayerRowLook& look) {
    const SavedDc saved(dc);
    const RECT row = ToPlatform(look.layout.row);
    RECT text = ToPlatform(look.layout.text);
    FillSolid(dc, row, look.background);
    if (look.selected) FillSolid(dc, text, GetSysColor(look.focused ? COLOR_HIGHLIGHT : COLOR_BTNFACE));
    if (look.hasChildren) DrawExpandMark(dc, look);
    if (look.mark != LayerRowLook::Mark::None) DrawCheckMark(dc, look);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, TextColour(look));
    RECT letters = text;
    InflateRect(&letters, -2, 0);
    DrawTextW(dc, look.text.c_str(), static_cast<int>(look.text.size()), &letters,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_NOCLIP);
    if (look.selected && look.focused) DrawFocusRect(dc, &text);
}

}  // namespace qz
