// Whether the texts of a dialog fit their controls, in whatever language it is.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace qz {

/// The texts of labels, buttons, boxes and frames anywhere below a window that are wider or higher than their
/// control.
std::vector<std::wstring> CutOffTexts(HWND window);

/// Of the visible controls below a window: the texts whose mnemonic another one has, too, and those of
/// buttons and boxes without one. Frames, OK and Cancel need none.
std::vector<std::wstring> BadMnemonics(HWND window);

}  // namespace qz
