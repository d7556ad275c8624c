#include "ui/choose_file.h"

#include "com/error.h"

#include <commdlg.h>
#include <cderr.h>

#include <vector>

namespace qz {

namespace {

constexpr std::size_t longestPictureLink = 32768;

/// What the chooser answered: a path, nothing when it was cancelled, or why it did not open.
struct Answer {
    std::optional<std::wstring> path;
    DWORD failure = 0;
};

Answer Ask(HWND owner, const FileQuestion& question, const std::wstring& start) {
    std::vector<wchar_t> path(longestPictureLink);
    start.copy(path.data(), path.size() - 1);
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = question.filter.c_str();
    request.lpstrFile = path.data();
    request.nMaxFile = static_cast<DWORD>(path.size());
    request.lpstrTitle = question.title.c_str();
    request.Flags = OFN_EXPLORER | OFN_ENABLESIZING | OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST |
                    OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    if (GetOpenFileNameW(&request)) return {std::wstring(path.data()), 0};
    return {std::nullopt, CommDlgExtendedError()};
}

}  // namespace

std::optional<std::wstring> ChooseFile(HWND owner, const FileQuestion& question) {
    Answer answer = Ask(owner, question, question.path);
    // A text that is no path keeps the chooser from opening.
    if (answer.failure == FNERR_INVALIDFILENAME) answer = Ask(owner, question, {});
    if (answer.failure) Throw(E_FAIL, L"The file chooser cannot be opened");
    return answer.path;
}

}  // namespace qz
