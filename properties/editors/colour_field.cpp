#include "properties/editors/colour_field.h"

#include "com/scope.h"
#include "properties/model/colour_text.h"

#include <string>

namespace qz {

namespace {

constexpr WPARAM pasteCharacter = 0x16;  // of Ctrl+V

/// Empty when there is no text, or when another program holds the clipboard.
std::wstring ClipboardText(HWND owner) {
    if (!OpenClipboard(owner)) return {};
    const ScopeExit closing([] { CloseClipboard(); });
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    const auto* const text = data ? static_cast<const wchar_t*>(GlobalLock(data)) : nullptr;
    if (!text) return {};
    const ScopeExit unlocking([data] { GlobalUnlock(data); });
    return {text, wcsnlen(text, GlobalSize(data) / sizeof(wchar_t))};
}

/// Below the blank are the keys that edit: backspace, copy, cut, undo.
bool MayBeTyped(wchar_t character) noexcept { return character < L' ' || IsColourText({&character, 1}); }

}  // namespace

std::optional<LRESULT> ColourField::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_CHAR && wParam == pasteCharacter) return Send(WM_PASTE);
    if (message == WM_CHAR && !MayBeTyped(static_cast<wchar_t>(wParam))) return 0;
    if (message == WM_PASTE && !IsColourText(ClipboardText(Handle()))) return 0;
    return std::nullopt;
}

}  // namespace qz
