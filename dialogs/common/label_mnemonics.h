// Mnemonics of the controls of a dialog that is open.
#pragma once

#include <windows.h>

#include <span>
#include <string>

namespace qz {

/// Gives each label, button and check box its own mnemonic (see WithMnemonics); their texts have none
/// yet. Gives the letters taken, those of `taken` included.
std::wstring GiveMnemonics(std::span<const HWND> labels, std::wstring taken = {});

}  // namespace qz
