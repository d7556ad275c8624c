// The arguments of the program.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace qz {

struct WindowSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

struct CommandLine {
    std::wstring document;  ///< Empty: none.
    /// The file to create once everything stands on the screen; empty: none. With it the program is driven by
    /// another one: it shows no message box while it starts but ends with an error.
    std::wstring readyFile;
    std::wstring manifest;           ///< Where classes are found instead of in the registry; empty: none.
    std::optional<WindowSize> size;  ///< Of the whole window, pixels.
    std::optional<bool> answer;      ///< Given to every question instead of putting it to the user.
    int page = 1;                    ///< The page (1-based) to open the document at.
};

/// Reads the arguments (without the program's name). On an error returns nothing and sets `error` to a line
/// for the user.
std::optional<CommandLine> ParseCommandLine(std::span<const std::wstring> arguments, std::wstring& error);

}  // namespace qz
