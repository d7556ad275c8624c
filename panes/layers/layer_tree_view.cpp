#include "panes/layers/layer_tree_view.h"

#include "panes/common/pane_font.h"
#include "ui/screen.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

namespace qz {

void LayerTreeView::Create(HWND parent) {
    const std::int32_t dpi = ScreenDpi().height;
    metrics_ = LayerMetrics::ForDpi(dpi);
    font_ = MakeArial(dpi);
    TreeView::Create(parent, L"Tree View",
                     TVS_HASBUTTONS | TVS_LINESATROOT | TVS_SHOWSELALWAYS | TVS_DISABLEDRAGDROP, 1);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()));
    Send(TVM_SETINDENT, static_cast<WPARAM>(metrics_.indent));
    const auto natural = static_cast<std::int32_t>(Send(TVM_GETITEMHEIGHT));
    Send(TVM_SETITEMHEIGHT, static_cast<WPARAM>(std::max(natural, metrics_.rowHeight)));
    // Empty pictures, that make the window leave room for the check marks and know where they are.
    places_ = ImageList(ImageList_Create(metrics_.checkPlace, metrics_.checkMark, ILC_COLOR, 3, 0));
    ThrowLastErrorIf(!places_, L"The places of the check marks cannot be made");
    ImageList_SetImageCount(places_.Get(), 3);
    Send(TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(places_.Get()));
}

bool LayerTreeView::NoteSelection(const NMTREEVIEWW& notice) noexcept {
    if (notice.action != TVC_BYKEYBOARD) return takingFocus_;
    noted_ = notice.itemNew.hItem;
    return true;
}

std::optional<LRESULT> LayerTreeView::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            return OnButton(message, lParam);
        case WM_LBUTTONUP:
            return 0;
        case WM_RBUTTONUP:
            return DefWindowProcW(Handle(), message, wParam, lParam);  // asks for the context menu
        case WM_CONTEXTMENU:
            return SendMessageW(GetParent(Handle()), message, wParam, lParam);
        case WM_KEYDOWN:
        case WM_CHAR:
            return OnKey(message, wParam, lParam);
        case TVM_GETITEMSTATE:
        case TVM_GETITEMA:
        case TVM_GETITEMW:
            return WithStateImage(message, wParam, lParam);
        default:
            return std::nullopt;
    }
}

/// By the mouse. The window would select its first item when it has none: it is the press that selects.
void LayerTreeView::TakeFocus() {
    if (GetFocus() == Handle()) return;
    takingFocus_ = true;
    SetFocus(Handle());
    takingFocus_ = false;
}

std::optional<LRESULT> LayerTreeView::OnButton(UINT message, LPARAM lParam) {
    const ComPtr<IUnknown> alive = listener_.KeepAlive();
    const POINT client{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    TakeFocus();
    if (!Handle()) return 0;  // the container was told of the focus
    const bool right = message == WM_RBUTTONDOWN || message == WM_RBUTTONDBLCLK;
    const MousePress left = message == WM_LBUTTONDBLCLK ? MousePress::LeftTwice : MousePress::Left;
    listener_.OnPress(right ? MousePress::Right : left, ItemAt(client), client);
    return 0;
}

/// Space is ours; the rest is the window's, but for the selection that comes of it. A key finds an item
/// selected, the first one when there was none.
LRESULT LayerTreeView::OnKey(UINT message, WPARAM wParam, LPARAM lParam) {
    const ComPtr<IUnknown> alive = listener_.KeepAlive();
    SelectFirst();
    if (wParam == VK_SPACE) {
        const bool repeated = HIWORD(lParam) & KF_REPEAT;
        if (message == WM_KEYDOWN && !repeated) listener_.OnSpace();
        return 0;
    }
    noted_ = nullptr;
    const LRESULT result = DefSubclassProc(Handle(), message, wParam, lParam);
    if (const HTREEITEM wanted = std::exchange(noted_, nullptr)) listener_.OnSelect(wanted);
    return result;
}

/// What the window tells of an item, with the check mark.
LRESULT LayerTreeView::WithStateImage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefSubclassProc(Handle(), message, wParam, lParam);
    const auto withMark = [this](UINT state, HTREEITEM item) {
        return (state & ~static_cast<UINT>(TVIS_STATEIMAGEMASK)) |
               INDEXTOSTATEIMAGEMASK(listener_.StateImage(Data(item)));
    };
    if (message == TVM_GETITEMSTATE) {
        if (!(lParam & TVIS_STATEIMAGEMASK)) return result;
        return static_cast<LRESULT>(withMark(static_cast<UINT>(result), reinterpret_cast<HTREEITEM>(wParam)));
    }
    auto* const item = reinterpret_cast<TVITEMW*>(lParam);  // the members used are those of TVITEMA, too
    if (result && (item->mask & TVIF_STATE)) item->state = withMark(item->state, item->hItem);
    return result;
}

}  // namespace qz
