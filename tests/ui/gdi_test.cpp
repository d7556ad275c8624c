#include "ui/gdi.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(Gdi, BufferReachesTheTargetOnlyWhenShown) {
    const DibSection pixels(40, 40);
    const MemoryDc dc;
    const SelectScope selected(dc.Get(), pixels.Get());
    FillSolid(dc.Get(), RECT{0, 0, 40, 40}, RGB(9, 9, 9));
    {
        const PaintBuffer buffer(dc.Get(), RECT{10, 10, 30, 30});
        FillSolid(buffer.Dc(), RECT{0, 0, 40, 20}, RGB(200, 0, 0));
        EXPECT_EQ(GetPixel(dc.Get(), 15, 15), static_cast<COLORREF>(RGB(9, 9, 9)));
        buffer.Show();
    }
    EXPECT_EQ(GetPixel(dc.Get(), 10, 10), static_cast<COLORREF>(RGB(200, 0, 0)));
    EXPECT_EQ(GetPixel(dc.Get(), 29, 19), static_cast<COLORREF>(RGB(200, 0, 0)));
    EXPECT_EQ(GetPixel(dc.Get(), 9, 10), static_cast<COLORREF>(RGB(9, 9, 9)));
    EXPECT_EQ(GetPixel(dc.Get(), 30, 19), static_cast<COLORREF>(RGB(9, 9, 9)));
}

TEST(Gdi, PixelsAreWhatWasDrawnFromTheTop) {
    const DibSection pixels(3, 2);
    const MemoryDc dc;
    const SelectScope selected(dc.Get(), pixels.Get());
    FillSolid(dc.Get(), RECT{1, 0, 2, 1}, RGB(0x11, 0x22, 0x33));
    GdiFlush();
    EXPECT_EQ(pixels.Pixels()[1] & 0xFFFFFF, 0x112233u);
    EXPECT_EQ(pixels.ByteCount(), 24u);
}

TEST(Gdi, ObjectsAreDeletedOnce) {
    DibSection moved;
    HBITMAP handle = nullptr;
    {
        DibSection made(4, 4);
        handle = made.Get();
        moved = std::move(made);
        EXPECT_FALSE(made);
        EXPECT_TRUE(made.Pixels().empty());
    }
    EXPECT_EQ(GetObjectType(handle), static_cast<DWORD>(OBJ_BITMAP));
    moved = DibSection();
    EXPECT_EQ(GetObjectType(handle), 0u);
}

TEST(Gdi, ImpossibleBitmapsAreErrors) {
    for (const SIZE size : {SIZE{0, 5}, {5, 0}, {-3, 5}, {30000, 2000000}}) {
        EXPECT_THROW(DibSection(size.cx, size.cy), ComError) << size.cx;
    }
}

}  // namespace
}  // namespace qz
