#include "sample/host/page_painter.h"

#include "sample/host/sheet_painter.h"

#include <algorithm>

namespace qz::sample {

namespace {

constexpr int rowsAtOnce = 256;  // bounds the memory of a large page

void PutPixels(HDC dc, int left, int top, const Raster& raster) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = raster.width;
    info.bmiHeader.biHeight = -raster.height;  // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    StretchDIBits(dc, left, top, raster.width, raster.height, 0, 0, raster.width, raster.height,
                  raster.pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

void DrawPicture(HDC dc, const Raster& picture, SIZE size, const RECT& visible) {
    for (LONG top = visible.top; top < visible.bottom; top += rowsAtOnce) {
        const int height = std::min<int>(rowsAtOnce, visible.bottom - top);
        const PixelArea area{visible.left, top, visible.right - visible.left, height};
        PutPixels(dc, visible.left, top, ScalePart(picture, size.cx, size.cy, area));
    }
}

}  // namespace

SIZE PixelsOfPage(const Page& page, long percent) {
    const auto pixels = [percent](int32_t twips) {
        const int64_t points = MulDiv(twips, 100, 2000);
        return static_cast<LONG>(std::clamp<int64_t>(points * percent / 100, 0, 1'000'000));
    };
    return {pixels(page.width), pixels(page.height)};
}

std::shared_ptr<const Raster> PagePainter::PictureOf(const Page& page) {
    if (!page.picture) return nullptr;
    if (auto kept = cache_.Find(page.picture->id)) return kept;
    std::shared_ptr<const Raster> decoded;
    try {
        decoded = std::make_shared<const Raster>(decoder_.Decode(*page.picture));
    } catch (const ComError&) {
        return nullptr;  // a damaged picture; the sheet shows that there is none
    }
    cache_.Add(page.picture->id, decoded);
    return decoded;
}

void PagePainter::Draw(HDC dc, const Page& page, int32_t number, long percent, bool leaveEdge) {
    const SIZE size = PixelsOfPage(page, percent);
    const LONG edge = leaveEdge ? 1 : 0;
    const RECT area{edge, edge, size.cx - edge, size.cy - edge};
    RECT clip;
    RECT visible;
    if (GetClipBox(dc, &clip) == NULLREGION || !IntersectRect(&visible, &area, &clip)) return;
    if (const auto picture = PictureOf(page)) {
        DrawPicture(dc, *picture, size, visible);
    } else {
        DrawSheet(dc, size, area, page.id, number);
    }
}

}  // namespace qz::sample
