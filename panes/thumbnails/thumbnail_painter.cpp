#include "panes/thumbnails/thumbnail_painter.h"

#include "panes/thumbnails/page_drawing.h"
#include "ui/gdi.h"

namespace qz {

namespace {

constexpr COLORREF selectedColour = RGB(0, 0, 139);
constexpr COLORREF currentColour = RGB(255, 0, 0);

/// A frame of 2 pixels around the thumbnail, its rectangle `reach` pixels outside.
void DrawOutline(HDC dc, const ThumbnailRecord& record, COLORREF colour, int reach) {
    const Pen pen = MakePen(2, colour);
    const SelectScope penScope(dc, pen.Get());
    const SelectScope hollow(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, record.x - reach, record.y - reach, record.x + record.width + reach + 1,
              record.y + record.height + reach + 1);
}

void DrawMarks(HDC dc, const ThumbnailRecord& record) {
    if (record.flags & thumbnailSelected) DrawOutline(dc, record, selectedColour, 2);
    if (record.flags & thumbnailCurrent) DrawOutline(dc, record, currentColour, 3);
    if (record.flags & thumbnailInverted) {
        PatBlt(dc, record.x, record.y, record.width, record.height, DSTINVERT);
    }
}

void CopyPicture(HDC dc, const ThumbnailRecord& record, const Picture& picture) {
    BITMAPINFO format{};
    format.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    format.bmiHeader.biWidth = picture.width;
    format.bmiHeader.biHeight = -picture.height;  // from the top
    format.bmiHeader.biPlanes = 1;
    format.bmiHeader.biBitCount = 32;
    format.bmiHeader.biCompression = BI_RGB;
    // As fast as copying from a bitmap already selected, and it follows a container's scaling.
    StretchDIBits(dc, record.x, record.y, picture.width, picture.height, 0, 0, picture.width, picture.height,
                  picture.pixels.data(), &format, DIB_RGB_COLORS, SRCCOPY);
}

std::size_t PictureBytes(const ThumbnailRecord& record) {
    return static_cast<std::size_t>(record.width) * static_cast<std::size_t>(record.height) * 4;
}

/// A picture as the host draws it, and whether it did.
struct RenderedPicture {
    Picture picture;
    bool complete;
};

RenderedPicture Render(std::size_t index, const ThumbnailRecord& record, IVandraX* host, long factor) {
    const DibSection bitmap(record.width, record.height);
    const MemoryDc dc;
    const SelectScope selected(dc.Get(), bitmap.Get());
    const bool complete = DrawPageThumbnail(dc.Get(), host, index, record, factor);
    GdiFlush();
    const auto pixels = bitmap.Pixels();
    return {{record.width, record.height, {pixels.begin(), pixels.end()}}, complete};
}

}  // namespace

void ThumbnailPainter::Paint(HDC dc, const RECT& dirty, IVandraX* host, long factor) {
    const Stage::Mark shown = model_.Contents().Now();
    {
        const SavedDc saved(dc);
        // The window's origin, not the viewport's: a container may have scaled the device context.
        OffsetWindowOrgEx(dc, -ThumbnailModel::drawMargin, -ThumbnailModel::drawMargin, nullptr);
        if (GetMapMode(dc) != MM_TEXT) SetStretchBltMode(dc, HALFTONE);
        const IndexRange range = model_.VisibleIn(dirty.top, dirty.bottom);
        for (std::size_t i = range.first; i < range.last; ++i) {
            DrawRecord(dc, i, host, factor);
            if (shown.Stale()) return;
        }
    }
    pictures_.Trim(model_.VisibleIn(0, model_.ClientHeight()));
}

void ThumbnailPainter::DrawRecord(HDC dc, std::size_t index, IVandraX* host, long factor) {
    // A copy: while the host draws, the records may be replaced. Scrolled here rather than by the viewport,
    // since device coordinates do not reach as far as the content of a document with many large pages.
    ThumbnailRecord record = model_.Records()[index];
    if (!record.HasArea()) return;
    record.y -= model_.ScrollPosition();
    if (model_.DropTarget() == index) record.flags |= thumbnailInverted;
    if (!DrawPicture(dc, index, record, host, factor)) return;
    DrawMarks(dc, record);
}

void ThumbnailPainter::DrawSheet(HDC dc, std::size_t index, POINT at, IVandraX* host, long factor) {
    ThumbnailRecord record = model_.Records()[index];
    if (!record.HasArea()) return;
    record.x = at.x;
    record.y = at.y;
    DrawPicture(dc, index, record, host, factor);
}

/// Gives false when the records changed meanwhile and the index means nothing any more.
bool ThumbnailPainter::DrawPicture(HDC dc, std::size_t index, const ThumbnailRecord& record, IVandraX* host,
                                   long factor) {
    if (const Picture* const kept = pictures_.Use(index)) {
        CopyPicture(dc, record, *kept);
        return true;
    }
    const Stage::Mark shown = model_.Contents().Now();
    if (PictureBytes(record) > pictures_.Budget()) return DrawUncached(dc, index, record, host, factor);
    RenderedPicture rendering = Render(index, record, host, factor);
    if (shown.Stale()) return false;
    CopyPicture(dc, record, rendering.picture);
    // What the host could not draw is tried again at the next painting.
    if (rendering.complete) pictures_.Keep(index, std::move(rendering.picture));
    return true;
}

/// A sheet too large to keep is drawn in place each time, clipped to what is painted.
bool ThumbnailPainter::DrawUncached(HDC dc, std::size_t index, const ThumbnailRecord& record, IVandraX* host,
                                    long factor) {
    const Stage::Mark shown = model_.Contents().Now();
    const SavedDc saved(dc);
    OffsetWindowOrgEx(dc, -record.x, -record.y, nullptr);
    IntersectClipRect(dc, 0, 0, record.width, record.height);
    DrawPageThumbnail(dc, host, index, record, factor);
    return !shown.Stale();
}

}  // namespace qz
