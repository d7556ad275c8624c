// The fonts of the program's own windows: the user's message font.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <ocidl.h>

#include <memory>
#include <type_traits>

namespace qz {

struct FontDeleter {
    void operator()(HFONT font) const noexcept { DeleteObject(font); }
};
using FontHandle = std::unique_ptr<std::remove_pointer_t<HFONT>, FontDeleter>;

struct Fonts {
    FontHandle text;
    FontHandle title;
    ComPtr<IFontDisp> ambient;  ///< The same font as controls get it.
};

/// The fonts for the resolution of the screen a window is on. Throws.
Fonts MakeFonts(HWND window);

}  // namespace qz
