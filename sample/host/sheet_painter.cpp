#include "sample/host/sheet_painter.h"

#include "ui/gdi.h"

#include <algorithm>
#include <string>

namespace qz::sample {

namespace {

/// A part of the sheet in thousandths of its sides.
RECT Part(SIZE size, int left, int top, int right, int bottom) {
    return {MulDiv(size.cx, left, 1000), MulDiv(size.cy, top, 1000), MulDiv(size.cx, right, 1000),
            std::max<LONG>(MulDiv(size.cy, bottom, 1000), MulDiv(size.cy, top, 1000) + 1)};
}

void DrawLines(HDC dc, SIZE size) {
    constexpr COLORREF grey = RGB(208, 212, 220);
    for (int line = 0; line < 6; ++line) {
        const int right = line % 3 == 2 ? 600 : 900;
        FillSolid(dc, Part(size, 100, 160 + line * 40, right, 175 + line * 40), grey);
        FillSolid(dc, Part(size, 100, 700 + line * 40, right, 715 + line * 40), grey);
    }
}

void DrawNumber(HDC dc, SIZE size, int32_t number) {
    const std::wstring text = std::to_wstring(number);
    const int height =
        static_cast<int>(std::min<LONG>(size.cy / 4, size.cx * 3 / 2 / static_cast<LONG>(text.size())));
    if (height < 2) return;
    const Font font(CreateFontW(-height, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY, DEFAULT_PITCH,
                                L"Arial"));
    ThrowLastErrorIf(!font, L"A font could not be made");
    const SelectScope selected(dc, font.Get());
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, RGB(60, 66, 80));
    RECT whole = Part(size, 0, 430, 1000, 680);
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &whole,
              DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOCLIP | DT_NOPREFIX);
}

}  // namespace

COLORREF SheetColour(PageId page) {
    constexpr COLORREF colours[] = {RGB(38, 84, 160),  RGB(192, 80, 40),  RGB(46, 128, 72), RGB(140, 60, 140),
                                    RGB(200, 150, 30), RGB(30, 130, 140), RGB(170, 44, 70)};
    return colours[page % std::size(colours)];
}

void DrawSheet(HDC dc, SIZE size, const RECT& area, PageId page, int32_t number) {
    const SavedDc saved(dc);
    IntersectClipRect(dc, area.left, area.top, area.right, area.bottom);
    FillSolid(dc, area, RGB(255, 255, 255));
    FillSolid(dc, Part(size, 0, 0, 1000, 90), SheetColour(page));
    DrawLines(dc, size);
    DrawNumber(dc, size, number);
}

}  // namespace qz::sample
