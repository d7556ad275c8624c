#include "panes/thumbnails/drag_picture.h"

#include "panes/thumbnails/drag_rules.h"
#include "ui/platform_geometry.h"

#include <vector>

namespace qz {

namespace {

struct Sheets {
    std::vector<std::size_t> indexes;
    std::vector<Size> sizes;
};

/// The first records that have an area, no more than are drawn.
Sheets SheetsToDraw(const ThumbnailModel& model, std::span<const std::size_t> indexes) {
    Sheets sheets;
    for (const std::size_t index : indexes) {
        if (sheets.indexes.size() == Cascade::mostSheets) break;
        const ThumbnailRecord& record = model.Records()[index];
        if (!record.HasArea()) continue;
        sheets.indexes.push_back(index);
        sheets.sizes.push_back({record.width, record.height});
    }
    return sheets;
}

/// Drag pictures are blended by their alpha, which GDI leaves at 0.
void MakeOpaque(DibSection& picture) noexcept {
    GdiFlush();
    for (DWORD& pixel : picture.Pixels()) pixel |= 0xFF000000;
}

}  // namespace

DragPicture MakeDragPicture(ThumbnailPainter& painter, const ThumbnailModel& model,
                            std::span<const std::size_t> indexes, IVandraX* host, long factor) {
    const Sheets sheets = SheetsToDraw(model, indexes);
    const Cascade cascade = LayOutCascade(sheets.sizes);
    if (cascade.Empty()) return {};
    DragPicture picture{DibSection(cascade.size.width, cascade.size.height), ToPlatform(cascade.HotSpot())};
    {
        const MemoryDc memory;
        const SelectScope selected(memory.Get(), picture.pixels.Get());
        FillSolid(memory.Get(), {0, 0, cascade.size.width, cascade.size.height}, RGB(255, 255, 255));
        const Stage::Mark shown = model.Contents().Now();
        for (std::size_t sheet = 0; sheet < cascade.sheets && !shown.Stale(); ++sheet) {
            painter.DrawSheet(memory.Get(), sheets.indexes[sheet], ToPlatform(cascade.PlaceOf(sheet)), host,
                              factor);
        }
    }
    MakeOpaque(picture.pixels);
    return picture;
}

}  // namespace qz
