// The colours of the items of a tree.
#pragma once

#include "com/error.h"

#include <windows.h>
#include <commctrl.h>
#include <olectl.h>

namespace qz {

/// The colour of a property that leaves it to the tree.
inline constexpr OLE_COLOR treesOwnColour = 0xFFFFFFFF;

/// As the tree takes colours: CLR_NONE (-1) for its own. Throws E_INVALIDARG for what is no colour.
inline COLORREF TreeColour(OLE_COLOR colour) {
    COLORREF translated = 0;
    if (colour == treesOwnColour) return CLR_NONE;
    if (FAILED(OleTranslateColor(colour, nullptr, &translated))) {
        Throw(E_INVALIDARG, L"This is neither a colour nor a system colour");
    }
    return translated;
}

/// Each may be the tree's own.
struct ItemColours {
    OLE_COLOR text = treesOwnColour;
    OLE_COLOR selectedText = treesOwnColour;
    OLE_COLOR selectedBack = treesOwnColour;
};

}  // namespace qz
