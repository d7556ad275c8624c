#include "ui/button_picture.h"

#include "ui/window.h"

namespace qz {

namespace {

Bitmap Load(unsigned id, int side, UINT flags) {
    Bitmap picture(static_cast<HBITMAP>(
        LoadImageW(ThisModule(), MAKEINTRESOURCEW(id), IMAGE_BITMAP, side, side, flags)));
    ThrowLastErrorIf(!picture, L"A button's picture cannot be loaded");
    return picture;
}

}  // namespace

Bitmap LoadButtonPicture(unsigned id, int side) {
    return Load(id, side, LR_LOADTRANSPARENT | LR_LOADMAP3DCOLORS);
}

Bitmap LoadDisabledPicture(unsigned id, int side) { return Load(id, side, LR_DEFAULTCOLOR); }

}  // namespace qz
