#include "dialogs/nup/nup_picture.h"

#include "ui/gdi.h"
#include "ui/platform_geometry.h"

#include <algorithm>
#include <string>

namespace qz {

namespace {

constexpr COLORREF paperColour = RGB(255, 255, 255);
constexpr COLORREF pageColour = RGB(232, 238, 247);
constexpr COLORREF lineColour = RGB(0, 0, 0);
constexpr COLORREF contentColour = RGB(170, 180, 195);
constexpr COLORREF perforationColour = RGB(160, 60, 60);
constexpr int leastNumberHeight = 7;  // pixels; smaller ones cannot be read
constexpr int contentLines = 6;

class SheetPainter {
  public:
    SheetPainter(HDC dc, const Rect& sheet, int dpi, const NUpPicture& picture)
        : dc_(dc), place_(sheet), pixel_(std::max(MulDiv(dpi, 1, 96), 1)), picture_(picture) {}

    void Paint() const {
        FillSolid(dc_, ToPlatform(place_), paperColour);
        const Font font = NumberFont();
        for (const NUpCell& cell : picture_.layout.cells) PaintCell(cell, font);
        if (picture_.perforation) PaintPerforation();
        Frame(place_);
    }

  private:
    Rect Placed(const Rect& part) const noexcept { return Scaled(part, picture_.layout.sheet, place_); }

    void Frame(const Rect& bounds) const {
        const Brush brush = MakeBrush(lineColour);
        RECT frame = ToPlatform(bounds);
        for (int line = 0; line < pixel_ && !IsRectEmpty(&frame); ++line) {
            FrameRect(dc_, &frame, brush.Get());
            InflateRect(&frame, -1, -1);
        }
    }

    /// For the smallest cell, so that all numbers are of one size. None when they could not be read.
    Font NumberFont() const {
        int side = place_.Height();
        for (const NUpCell& cell : picture_.layout.cells) {
            const Rect bounds = Placed(cell.bounds);
            side = std::min({side, bounds.Width(), bounds.Height()});
        }
        const int height = side * 2 / 5;
        if (height < leastNumberHeight * pixel_) return {};
        LOGFONTW description{};
        GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof description, &description);
        description.lfHeight = -height;
        description.lfWidth = 0;
        return Font(CreateFontIndirectW(&description));
    }

    void PaintCell(const NUpCell& cell, const Font& font) const {
        const Rect page = Placed(PagePlace(cell.bounds, picture_.page, picture_.percent));
        if (picture_.content) PaintContent(page);
        if (picture_.borders) Frame(Placed(cell.bounds));
        if (!font) return;
        const SelectScope selected(dc_, font.Get());
        const std::wstring number = std::to_wstring(cell.page);
        RECT bounds = ToPlatform(Placed(cell.bounds));
        SetBkMode(dc_, TRANSPARENT);
        SetTextColor(dc_, lineColour);
        DrawTextW(dc_, number.c_str(), static_cast<int>(number.size()), &bounds,
                  DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }

    /// A page with lines that stand for its text.
    void PaintContent(const Rect& page) const {
        FillSolid(dc_, ToPlatform(page), pageColour);
        const int margin = page.Width() / 8;
        const int step = page.Height() / (contentLines + 1);
        if (step < 3 * pixel_) return;
        for (int line = 1; line <= contentLines; ++line) {
            const int top = page.top + line * step;
            FillSolid(dc_, {page.left + margin, top, page.right - margin, top + pixel_}, contentColour);
        }
    }

    void PaintPerforation() const {
        const LOGBRUSH brush{BS_SOLID, perforationColour, 0};
        const DWORD dashes[] = {static_cast<DWORD>(4 * pixel_), static_cast<DWORD>(3 * pixel_)};
        const Pen pen(ExtCreatePen(PS_GEOMETRIC | PS_USERSTYLE | PS_ENDCAP_FLAT, static_cast<DWORD>(pixel_),
                                   &brush, 2, dashes));
        ThrowLastErrorIf(!pen, L"No pen could be made");
        const SelectScope selected(dc_, pen.Get());
        const Size sheet = picture_.layout.sheet;
        for (const int cut : picture_.layout.cutsDown) PaintLine({cut, 0, cut, sheet.height});
        for (const int cut : picture_.layout.cutsAcross) PaintLine({0, cut, sheet.width, cut});
    }

    void PaintLine(const Rect& ends) const {
        const Rect placed = Placed(ends);
        MoveToEx(dc_, placed.left, placed.top, nullptr);
        LineTo(dc_, placed.right, placed.bottom);
    }

    HDC dc_;
    Rect place_;  ///< The sheet, in pixels.
    int pixel_;   ///< The width of thin lines, in pixels.
    const NUpPicture& picture_;
};

}  // namespace

void PaintNUpPicture(HDC dc, const RECT& area, int dpi, const NUpPicture& picture) {
    const Rect sheet = FitInto(picture.layout.sheet, FromPlatform(area));
    if (!sheet.Empty()) SheetPainter(dc, sheet, dpi, picture).Paint();
}

}  // namespace qz
