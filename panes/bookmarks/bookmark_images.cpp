#include "panes/bookmarks/bookmark_images.h"

#include "panes/bookmarks/bookmark_tree.h"
#include "ui/gdi.h"
#include "ui/screen.h"

#include <algorithm>
#include <array>

namespace qz {

namespace {

constexpr int sideAt96Dpi = 16;
constexpr IconColour opaque = 0xFF000000;

/// Which pixels show the background, for drawing without alpha. Rows of a monochrome bitmap are words.
Bitmap MakeMask(std::span<const IconColour> pixels, int side) {
    const std::size_t stride = (static_cast<std::size_t>(side) + 15) / 16 * 2;
    std::vector<BYTE> bits(stride * static_cast<std::size_t>(side));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const std::size_t x = i % static_cast<std::size_t>(side);
        const std::size_t y = i / static_cast<std::size_t>(side);
        if (pixels[i] >> 24 < 0x80) bits[y * stride + x / 8] |= static_cast<BYTE>(0x80 >> x % 8);
    }
    Bitmap mask(CreateBitmap(side, side, 1, 1, bits.data()));
    ThrowLastErrorIf(!mask, L"No mask of an image could be made");
    return mask;
}

void AddImage(HIMAGELIST list, std::span<const IconColour> pixels, int side) {
    DibSection picture(side, side);
    std::ranges::copy(pixels, picture.Pixels().begin());
    const Bitmap mask = MakeMask(pixels, side);
    if (ImageList_Add(list, picture.Get(), mask.Get()) < 0) Throw(E_OUTOFMEMORY, L"An image cannot be added");
}

IconColour Opaque(COLORREF colour) {
    return opaque | static_cast<IconColour>(GetRValue(colour)) << 16 |
           static_cast<IconColour>(GetGValue(colour)) << 8 | GetBValue(colour);
}

}  // namespace

ImageList MakeBookmarkImages(IconStyle style, COLORREF ink) {
    constexpr std::array<IconKind, bookmarkImageCount> kinds = {IconKind::Expanded, IconKind::Collapsed,
                                                                IconKind::Leaf};
    const int side = MulDiv(sideAt96Dpi, static_cast<int>(ScreenDpi().height), 96);
    ImageList list(ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, bookmarkImageCount, 0));
    if (!list.Get()) Throw(E_OUTOFMEMORY, L"No image list could be made");
    for (const IconKind kind : kinds)
        AddImage(list.Get(), DrawIcon(IconShapes(style, kind, Opaque(ink)), side), side);
    return list;
}

}  // namespace qz
