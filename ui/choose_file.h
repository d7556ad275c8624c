// The system's file chooser.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace qz {

struct FileQuestion {
    std::wstring title;
    std::wstring
        filter;  ///< Pairs of label and patterns, each ended with a null, with a further one at the end.
    std::wstring path;  ///< To start from; need not be one.
};

/// Lets the user choose a file that is there; nothing when he chose none. Modal over `owner`: handles
/// messages meanwhile. The process's current directory stays. Throws when the system cannot ask.
std::optional<std::wstring> ChooseFile(HWND owner, const FileQuestion& question);

}  // namespace qz
