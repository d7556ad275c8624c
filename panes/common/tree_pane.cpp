#include "panes/common/tree_pane.h"

#include "ui/gdi.h"
#include "ui/keys.h"

namespace qz {

namespace {

/// Gives a window the size of its parent's client area; its position and order stay. Nothing without one.
void FitToParent(HWND window) noexcept {
    RECT client{};
    if (!window || !GetClientRect(GetParent(window), &client)) return;
    SetWindowPos(window, nullptr, 0, 0, client.right, client.bottom,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

HRESULT TreePane::PutFitToParent(long fit) noexcept {
    return Run([&] {
        Keep(fitToParent_, fit);
        if (fit) FitToParent(WindowHandle());
    });
}

HRESULT TreePane::PutTreeBackColor(OLE_COLOR colour) noexcept {
    const ComPtr<IUnknown> alive = Self();
    const HRESULT result = PutBackColor(colour);
    return result == S_OK ? Run([&] { ApplyColours(); }) : result;
}

void TreePane::ApplyColours() {
    if (Tree()) Tree().Send(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(BackColorRef()));
}

bool TreePane::IsTreeKey(WPARAM key) noexcept {
    return IsNavigationKey(key) || key == VK_ADD || key == VK_SUBTRACT || key == VK_MULTIPLY;
}

/// On the screen the tree paints itself; a container that asks for a picture gets the tree's.
void TreePane::OnDraw(HDC dc, const RECT& bounds) {
    FillSolid(dc, bounds, BackColorRef());
    if (Tree() && WindowFromDC(dc) != WindowHandle()) {
        Tree().Send(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT | PRF_ERASEBKGND);
    }
}

void TreePane::OnSized(SIZE client) {
    if (!Tree()) return;
    SetWindowPos(Tree().Handle(), nullptr, 0, 0, client.cx, client.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

std::optional<LRESULT> TreePane::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SYSCOLORCHANGE) {
        if (Tree()) Tree().Send(message, wParam, lParam);
        ApplyColours();
    }
    return std::nullopt;
}

}  // namespace qz
