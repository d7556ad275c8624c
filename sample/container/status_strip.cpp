#include "sample/container/status_strip.h"

#include "com/error.h"
#include "com/module.h"
#include "sample/container/dpi.h"

#include <commctrl.h>

namespace qz {

namespace {
enum Part { linePart, positionPart, partCount };
constexpr int positionWidth = 150;
}  // namespace

void StatusStrip::Create(HWND parent) {
    handle_ = CreateWindowExW(0, STATUSCLASSNAMEW, nullptr, WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0,
                              0, parent, nullptr, ThisModule(), nullptr);
    ThrowLastErrorIf(!handle_, L"The status strip cannot be created");
}

void StatusStrip::Layout(HFONT font) {
    SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SendMessageW(handle_, WM_SIZE, 0, 0);  // it places itself
    RECT client{};
    GetClientRect(handle_, &client);
    const int edges[partCount] = {
        static_cast<int>(client.right) - Scaled(handle_, positionWidth),
        -1,
    };
    SendMessageW(handle_, SB_SETPARTS, partCount, reinterpret_cast<LPARAM>(edges));
}

int StatusStrip::Height() const noexcept {
    RECT bounds{};
    GetWindowRect(handle_, &bounds);
    return bounds.bottom - bounds.top;
}

void StatusStrip::ShowLine(const std::wstring& line) noexcept { SetPart(linePart, line); }

void StatusStrip::ShowPosition(const std::wstring& position) noexcept { SetPart(positionPart, position); }

void StatusStrip::SetPart(int part, const std::wstring& text) noexcept {
    SendMessageW(handle_, SB_SETTEXTW, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(text.c_str()));
}

}  // namespace qz
