// What the user does with mouse and keyboard, turned into changes of the layers and into commands.
#include "host/object_path.h"
#include "panes/common/asked_by_user.h"
#include "panes/layers/layer_menu.h"
#include "panes/layers/layers_control.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/keys.h"
#include "ui/platform_geometry.h"
#include "ui/properties_door.h"

#include <algorithm>

namespace qz {

namespace {

/// Type-ahead looks for them.
constexpr bool IsCharacterKey(WPARAM key) noexcept {
    return (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
}

}  // namespace

std::optional<LRESULT> LayersControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_CONTEXTMENU:
            return OnContextMenu(wParam, lParam);
        default:
            return TreePane::OnMessage(message, wParam, lParam);
    }
}

std::optional<LRESULT> LayersControl::OnNotify(const NMHDR& notice) {
    if (!tree_ || notice.hwndFrom != tree_.Handle()) return std::nullopt;
    switch (notice.code) {
        case NM_CUSTOMDRAW:
            return OnCustomDraw(reinterpret_cast<const NMTVCUSTOMDRAW&>(notice));
        case TVN_SELCHANGINGW:
        case TVN_SELCHANGINGA:
            return tree_.NoteSelection(reinterpret_cast<const NMTREEVIEWW&>(notice)) ? TRUE : FALSE;
        default:
            return std::nullopt;
    }
}

// Mouse and keyboard
// -------------------------------------------------------------------------------------------

bool LayersControl::IsInputKey(const MSG& message) const {
    if (!Host() || handles_.empty()) return false;
    if (IsTreeKey(message.wParam) || message.wParam == VK_SPACE) return true;
    return IsCharacterKey(message.wParam) && !KeyIsDown(VK_CONTROL) && !KeyIsDown(VK_MENU);
}

void LayersControl::OnPress(MousePress press, HTREEITEM handle, POINT client) {
    if (!Host() || !handle) return;
    if (press != MousePress::Right) return OnLeftPress(press, handle, client);
    if (tree_.Selected() != handle) OnSelect(handle);
}

/// A check mark takes single presses only, so that a double press of it shows or hides once.
void LayersControl::OnLeftPress(MousePress press, HTREEITEM handle, POINT client) {
    const auto item = ItemOf(handle);
    if (!item) return;
    const bool twice = press == MousePress::LeftTwice;
    switch (LayoutOf(handle, *item).PartAt(FromPlatform(client))) {
        case LayerPart::CheckMark:
            if (!twice) ToggleByUser(layers_.Records().Items()[*item].record);
            return;
        case LayerPart::ExpandMark:
            if (!twice) tree_.Expand(handle, TVE_TOGGLE);
            return;
        case LayerPart::Text:
            if (twice) {
                tree_.Expand(handle, TVE_TOGGLE);
                return;
            }
            [[fallthrough]];
        default:
            if (tree_.Selected() != handle) OnSelect(handle);
    }
}

void LayersControl::OnSpace() {
    const auto item = ItemOf(tree_.Selected());
    if (Host() && item) ToggleByUser(layers_.Records().Items()[*item].record);
}

/// The container is asked first; the selection stays when it does not want another.
void LayersControl::OnSelect(HTREEITEM handle) {
    const ShownDocument shown = Shown();
    const auto item = ItemOf(handle);
    if (!item || !events_.LayerActivated()) return;
    if (!shown.Stale() && tree_ && handles_[*item] == handle) tree_.Select(handle);
}

/// A click on a heading's text or on a layer that is locked does nothing.
void LayersControl::ToggleByUser(std::size_t record) {
    const ComPtr<IVandraX> host = Host();
    const LayerRecord& layer = layers_.Records().All()[record];
    if (!layer.Switchable()) return;
    if (locked_) {
        MessageBeep(MB_OK);
        return;
    }
    const bool show = !layer.visible;
    if (show && layer.DisabledByParent()) return RefuseBelowHidden();
    const auto change = layers_.Set(record, show);
    if (!change) return;
    AskedByUser([&] { Carry(host, *change); });
}

void LayersControl::RefuseBelowHidden() {
    const ShownDocument shown = Shown();
    if (!events_.ShowMessage(qzLayersCtrlShowMsgConsts_LayerDisabledBecauseParentDisabled)) return;
    if (shown.Stale() || !WindowHandle()) return;
    ShowMessageBox(LoadText(TextLanguage(), QZ_TEXT_LAYER_ABOVE_HIDDEN), MB_OK | MB_ICONINFORMATION);
}

// Context menu
// -------------------------------------------------------------------------------------------------

bool LayersControl::WantsMenu(const MenuRequest& request) const {
    return tree_ && Host() && !request.OnScrollBarOf(tree_.Handle());
}

void LayersControl::OpenMenu(const MenuRequest& request, POINT screen) {
    const ShownDocument shown = Shown();
    const bool aboutSelection = IsAboutSelection(request);
    if (!events_.ContextSensitiveMenu(screen.x, screen.y)) return;
    if (shown.Stale() || !WindowHandle()) return;
    LayerCommandState state = CommandState();
    state.layerSelected = state.layerSelected && aboutSelection;
    const auto command = ShowLayerMenu(WindowHandle(), screen, TextLanguage(), state);
    if (!command || shown.Stale() || !CommandState().Enables(*command)) return;
    AskedByUser([&] { RunCommand(*command, shown.Host()); });
}

/// Not on an item that was pressed but not selected, as the container did not want it: what is done with the
/// selected layer would be done with another one than the user points at.
bool LayersControl::IsAboutSelection(const MenuRequest& request) const {
    if (request.ByKeyboard()) return true;
    POINT client = request.ScreenPoint();
    ScreenToClient(tree_.Handle(), &client);
    const HTREEITEM item = tree_.ItemAt(client);
    return !item || item == tree_.Selected();
}

/// Below the selected item's text, or at the pane's corner.
POINT LayersControl::KeyboardMenuPoint() {
    RECT text{};
    POINT point{};
    const HTREEITEM selected = tree_.Selected();
    if (selected && tree_.ItemRect(selected, true, text)) point = {text.left, text.bottom};
    ClientToScreen(tree_.Handle(), &point);
    return point;
}

LayerCommandState LayersControl::CommandState() const {
    const auto& all = layers_.Records().All();
    const auto selected = SelectedLayer();
    return {.anyLayer = std::ranges::any_of(all, &LayerRecord::Switchable),
            .layerSelected = selected && layers_.Records().RecordOf(*selected).Switchable(),
            .locked = locked_ != 0};
}

/// The selected item, when it is one of a layer.
std::optional<std::size_t> LayersControl::SelectedLayer() const {
    const auto item = tree_ ? ItemOf(tree_.Selected()) : std::nullopt;
    return item && !layers_.Records().RecordOf(*item).missing ? item : std::nullopt;
}

void LayersControl::RunCommand(LayerCommand command, const ComPtr<IVandraX>& host) {
    switch (command) {
        case LayerCommand::ShowOnly:
            return Carry(host, layers_.ShowOnly(*SelectedLayer()));
        case LayerCommand::ShowAll:
            return Carry(host, layers_.SetAll(true));
        case LayerCommand::HideAll:
            return Carry(host, layers_.SetAll(false));
        case LayerCommand::Reset:
            return Carry(host, layers_.Reset());
        case LayerCommand::Properties:
            return ShowSelectedProperties(host);
    }
}

/// Throws E_FAIL when no layer is selected.
void LayersControl::ShowSelectedProperties(const ComPtr<IVandraX>& host) {
    const auto item = SelectedLayer();
    if (!item) Throw(E_FAIL, L"No layer is selected");
    const std::wstring path = LayerPath(layers_.Records().RecordOf(*item).name);
    ComPtr<IDispatch> object;
    ThrowIfFailed(host->GetObjectByPath(Bstr(path).Get(), &object), L"The layer is gone");
    ShowProperties({.host = host.Get(), .object = object.Get(), .owner = WindowHandle()});
}

}  // namespace qz
