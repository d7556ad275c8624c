// Asking the user for a file.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace qz {

struct FileFilter {
    const wchar_t* name;
    const wchar_t* pattern;
};

/// Runs the system's dialog over a window. Nothing when the user cancels; throws when the dialog cannot be
/// shown.
std::optional<std::wstring> AskForFile(HWND owner, const FileFilter& filter);

}  // namespace qz
