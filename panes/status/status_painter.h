// Drawing of the status bar's fields.
#pragma once

#include "panes/status/status_layout.h"

#include <windows.h>
#include <olectl.h>

#include <string>

namespace qz {

struct FieldLook {
    Rect place;
    std::wstring text;
    bool enabled = false;
    bool pressed = false;  ///< A button.
    bool focused = false;
};

/// Draws a button: its frame and an arrow, in the colours of the user's scheme.
void DrawStatusButton(HDC dc, StatusField field, const FieldLook& look);

/// Draws a field as it looks where there are no child windows: in a picture of the control. The context has
/// the bar's font; `textColour` is that of the plain fields.
void DrawStatusField(HDC dc, StatusField field, const FieldLook& look, COLORREF textColour);

/// The colour of text on a background: the scheme's own for the scheme's colours, else black or white.
COLORREF TextColourOn(OLE_COLOR background, COLORREF translated) noexcept;

}  // namespace qz
