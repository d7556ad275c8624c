#include "panes/status/status_painter.h"

#include "ui/gdi.h"
#include "ui/platform_geometry.h"

#include <algorithm>
#include <array>

namespace qz {

namespace {

/// An arrow head with its tip at the left or right end of `area`.
void FillArrowHead(HDC dc, const Rect& area, bool toLeft) {
    const int middle = (area.top + area.bottom) / 2;
    const int tip = toLeft ? area.left : area.right;
    const int base = toLeft ? area.right : area.left;
    const std::array<POINT, 3> corners = {{{tip, middle}, {base, area.top}, {base, area.bottom}}};
    Polygon(dc, corners.data(), static_cast<int>(corners.size()));
}

/// The arrow within a button; those to the first and last page end at a bar.
void DrawArrow(HDC dc, const Rect& button, StatusField field, COLORREF colour) {
    const bool toLeft = field == StatusField::FirstPage || field == StatusField::PreviousPage;
    const bool toEnd = field == StatusField::FirstPage || field == StatusField::LastPage;
    const int half = std::max(2, std::min(button.Width(), button.Height()) / 5);
    const Point centre{(button.left + button.right) / 2, (button.top + button.bottom) / 2};
    const int bar = toEnd ? std::max(1, half / 3) : 0;
    Rect head{centre.x - half / 2, centre.y - half, centre.x + half - half / 2, centre.y + half};
    head = head.Moved(toLeft ? bar : -bar, 0);
    const Brush brush = MakeBrush(colour);
    const Pen pen = MakePen(1, colour);
    const SelectScope withBrush(dc, brush.Get());
    const SelectScope withPen(dc, pen.Get());
    FillArrowHead(dc, head, toLeft);
    if (!toEnd) return;
    const int edge = toLeft ? head.left - 2 * bar : head.right + bar + 1;
    FillSolid(dc, RECT{edge, head.top, edge + bar, head.bottom + 1}, colour);
}

void DrawLabel(HDC dc, const Rect& place, const std::wstring& text, COLORREF colour) {
    RECT area = ToPlatform(place);
    SetTextColor(dc, colour);
    SetBkMode(dc, TRANSPARENT);
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void DrawEntry(HDC dc, const FieldLook& look) {
    RECT frame = ToPlatform(look.place);
    FillSolid(dc, frame, GetSysColor(look.enabled ? COLOR_WINDOW : COLOR_BTNFACE));
    FrameRect(dc, &frame, GetSysColorBrush(COLOR_WINDOWFRAME));
    const Rect inside = look.place.Grown(-look.place.Height() / 6);
    DrawLabel(dc, inside, look.text, GetSysColor(look.enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
}

}  // namespace

void DrawStatusButton(HDC dc, StatusField field, const FieldLook& look) {
    RECT area = ToPlatform(look.place);
    const UINT state = (look.pressed ? DFCS_PUSHED : 0u) | (look.enabled ? 0u : DFCS_INACTIVE);
    DrawFrameControl(dc, &area, DFC_BUTTON, DFCS_BUTTONPUSH | state);
    const int shift = look.pressed ? 1 : 0;
    DrawArrow(dc, look.place.Moved(shift, shift), field,
              GetSysColor(look.enabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    if (!look.focused) return;
    const RECT inner = ToPlatform(look.place.Grown(-3));
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    SetBkColor(dc, GetSysColor(COLOR_BTNFACE));
    DrawFocusRect(dc, &inner);
}

void DrawStatusField(HDC dc, StatusField field, const FieldLook& look, COLORREF textColour) {
    if (look.place.Empty()) return;
    if (IsButton(field)) {
        DrawStatusButton(dc, field, look);
    } else if (IsEntry(field)) {
        DrawEntry(dc, look);
    } else {
        DrawLabel(dc, look.place, look.text, textColour);
    }
}

COLORREF TextColourOn(OLE_COLOR background, COLORREF translated) noexcept {
    constexpr OLE_COLOR system = 0x80000000u;
    if (background == (system | COLOR_WINDOW)) return GetSysColor(COLOR_WINDOWTEXT);
    if (background == (system | COLOR_BTNFACE)) return GetSysColor(COLOR_BTNTEXT);
    // Weights of how bright the eye finds the three, in thousandths.
    const int brightness =
        GetRValue(translated) * 299 + GetGValue(translated) * 587 + GetBValue(translated) * 114;
    return brightness >= 128'000 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

}  // namespace qz
