#include "tests/support/dialog_fit.h"

#include <cwctype>
#include <functional>
#include <map>

namespace qz {

namespace {

struct Label {
    HWND window;
    bool button;  ///< Also a check box, an option button, a frame.
    DWORD kind;   ///< Of a button: its BS_ type.
    std::wstring text;
};

std::wstring ClassOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, 64);
    return name;
}

void ForEachLabel(HWND window, const std::function<void(const Label&)>& visit) {
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const std::wstring name = ClassOf(child);
        const bool button = lstrcmpiW(name.c_str(), L"Button") == 0;
        if (button || lstrcmpiW(name.c_str(), L"Static") == 0) {
            wchar_t text[500] = L"";
            GetWindowTextW(child, text, 500);
            const auto style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
            if (*text) visit({child, button, button ? style & BS_TYPEMASK : 0, text});
        } else {
            ForEachLabel(child, visit);
        }
    }
}

bool IsPushButton(const Label& label) {
    return label.button && (label.kind == BS_PUSHBUTTON || label.kind == BS_DEFPUSHBUTTON);
}

/// What a button needs beside its text: the mark of a box, the edges of a push button or a frame.
int Extra(const Label& label, HDC dc) {
    if (!label.button) return 0;
    SIZE zero{};
    GetTextExtentPoint32W(dc, L"0", 1, &zero);
    if (IsPushButton(label) || label.kind == BS_GROUPBOX) return 2 * zero.cx;
    return GetSystemMetrics(SM_CXMENUCHECK) + zero.cx;
}

bool Fits(const Label& label) {
    RECT client{};
    GetClientRect(label.window, &client);
    const HDC dc = GetDC(label.window);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(label.window, WM_GETFONT, 0, 0));
    const HGDIOBJ before = SelectObject(dc, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    const bool severalLines = !label.button && client.bottom >= 2 * metrics.tmHeight;
    const int extra = Extra(label, dc);
    RECT needed{0, 0, severalLines ? client.right : 0, 0};
    DrawTextW(dc, label.text.c_str(), -1, &needed,
              DT_CALCRECT | (severalLines ? DT_WORDBREAK : DT_SINGLELINE));
    SelectObject(dc, before);
    ReleaseDC(label.window, dc);
    return needed.right + extra <= client.right && needed.bottom <= client.bottom;
}

wchar_t MnemonicOf(const std::wstring& text) {
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        if (text[at] != L'&') continue;
        if (text[at + 1] != L'&') return static_cast<wchar_t>(std::towlower(text[at + 1]));
        ++at;  // "&&" shows one
    }
    return 0;
}

/// Return and Escape press these two; frames cannot have the focus; a chooser belongs to the entry before it.
bool NeedsMnemonic(const Label& label) {
    const int id = GetDlgCtrlID(label.window);
    return label.button && label.text != L"..." && label.kind != BS_GROUPBOX && id != IDOK && id != IDCANCEL;
}

}  // namespace

std::vector<std::wstring> CutOffTexts(HWND window) {
    std::vector<std::wstring> found;
    ForEachLabel(window, [&](const Label& label) {
        if (!Fits(label)) found.push_back(label.text);
    });
    return found;
}

std::vector<std::wstring> BadMnemonics(HWND window) {
    std::vector<std::wstring> found;
    std::map<wchar_t, std::wstring> taken;
    ForEachLabel(window, [&](const Label& label) {
        if (!IsWindowVisible(label.window)) return;
        const wchar_t mnemonic = MnemonicOf(label.text);
        if (!mnemonic) {
            if (NeedsMnemonic(label)) found.push_back(label.text);
        } else if (!taken.emplace(mnemonic, label.text).second) {
            found.push_back(label.text);
        }
    });
    return found;
}

}  // namespace qz
