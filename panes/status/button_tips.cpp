#include "panes/status/button_tips.h"

#include "com/module.h"
#include "ui/activation.h"

#include <utility>

namespace qz {

void ButtonTips::Create(HWND pane) {
    Destroy();
    pane_ = pane;
    const ModuleActivation activation;
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, pane, nullptr,
                            ThisModule(), nullptr);
}

/// It may be gone already, with the window that the pane stands in.
void ButtonTips::Destroy() noexcept {
    const HWND tips = std::exchange(tips_, nullptr);
    if (IsWindow(tips)) DestroyWindow(tips);
}

void ButtonTips::Set(HWND child, const std::wstring& text) noexcept {
    if (!tips_) return;
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = pane_;
    tool.uId = reinterpret_cast<UINT_PTR>(child);
    tool.lpszText = const_cast<wchar_t*>(text.c_str());  // only reads it
    SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace qz
