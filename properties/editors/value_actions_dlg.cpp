// The editor of chains of actions.
#include "properties/editors/make_editor.h"

#include "host/late_bound.h"
#include "properties/editors/confirmation_pause.h"
#include "properties/editors/listed_objects.h"
#include "ui/popup_menu.h"
#include "properties/model/picker_layouts.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/button_picture.h"
#include "ui/gdi.h"
#include "ui/keys.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace qz {

namespace {

struct Button {
    int id;
    unsigned picture;
    unsigned name;
};

enum ButtonPlace : std::size_t { AddPlace, RemovePlace, EditPlace, UpPlace, DownPlace };

constexpr std::array<Button, 5> buttons = {{
    {QZ_EDITOR_ADD_ACTION, QZ_BITMAP_ADD_ACTION, QZ_TEXT_ADD_ACTION},
    {QZ_EDITOR_REMOVE_ACTION, QZ_BITMAP_REMOVE_ACTION, QZ_TEXT_REMOVE_ACTION},
    {QZ_EDITOR_EDIT_ACTION, QZ_BITMAP_EDIT_ACTION, QZ_TEXT_EDIT_ACTION},
    {QZ_EDITOR_MOVE_ACTION_UP, QZ_BITMAP_MOVE_ACTION_UP, QZ_TEXT_MOVE_ACTION_UP},
    {QZ_EDITOR_MOVE_ACTION_DOWN, QZ_BITMAP_MOVE_ACTION_DOWN, QZ_TEXT_MOVE_ACTION_DOWN},
}};

/// What the menu offers, in its order.
struct NewAction {
    int type;
    const wchar_t* name;
};

constexpr NewAction newActions[] = {
    {53, L"myNewFormAction"}, {46, L"myNewGotoAction"}, {50, L"myNewHideAction"}, {52, L"myNewJSAction"}};

constexpr int menuGap = 2;       // pixels, below the button
constexpr int pictureSide = 10;  // pixels at 96 dpi

/// The type chosen; 0 when none was. Handles messages meanwhile.
int AskForType(HWND owner, const RECT& button) {
    PopupMenu menu;
    for (const NewAction& action : newActions) {
        menu.Append(static_cast<UINT>(action.type), HostObjectTypes().NameOf(action.type));
    }
    return static_cast<int>(menu.Track(owner, {button.left, button.bottom + menuGap}));
}

/// Lists the actions in their order. What the user does to the list is written at once. While the editor is
/// open the document's changes are not confirmed: an action's own attributes are changed in a dialog over it.
class CValueActionsDlg final : public CValueDlg {
  public:
    explicit CValueActionsDlg(Language language) noexcept;

    /// The menu of new actions.
    void OpenPicker() override;

  private:
    struct Picture {
        Bitmap enabled, disabled;
    };

    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    void OnFinished() override { pause_.reset(); }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool WantsKey(HWND control, UINT message, WPARAM key) override;
    void OnKey(HWND control, UINT message, WPARAM key) override;

    std::optional<int> CommandOf(HWND control, UINT message, WPARAM key) const;
    bool Press(int button);
    void Add();
    ComPtr<IDispatch> CreateAction(int type) const;
    void Remove();
    void Edit();
    void Move(int by);

    std::optional<std::size_t> Selected() const noexcept;
    void ShowChain(std::size_t selected);
    void ShowSelected();
    void EnableButton(std::size_t button, bool enabled) const noexcept;

    std::vector<ListedObject> chain_;
    std::array<Picture, 5> pictures_;
    std::shared_ptr<ConfirmationPause> pause_;
};

}  // namespace

CValueActionsDlg::CValueActionsDlg(Language language) noexcept
    : CValueDlg(QZ_DIALOG_VALUE_ACTIONS, language) {}

// Window
// ------------------------------------------------------------------------------------------------------

void CValueActionsDlg::OnEditorInit() {
    const auto name = [this](int id, unsigned textId) {
        NameControl(Item(id), LoadText(TextLanguage(), textId));
    };
    const int side = pictureSide * WindowDpi(Handle()) / 96;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const unsigned picture = buttons[i].picture;
        pictures_[i] = {LoadButtonPicture(picture, side), LoadDisabledPicture(picture, side)};
        name(buttons[i].id, buttons[i].name);
    }
    name(QZ_EDITOR_ACTIONS, QZ_TEXT_CATEGORY_ACTIONS);
    name(QZ_EDITOR_TEXT, QZ_TEXT_SELECTED_ACTION);
    const ComPtr<IVandraX> host = Edited().host;
    pause_ = ConfirmationPause::On(host.Get());
}

void CValueActionsDlg::OnSized(SIZE client) {
    const ActionsPlaces places =
        ArrangeActionsEditor({{client.cx, client.cy}, WindowDpi(Handle()), Pixels({0, 8}).cy});
    for (std::size_t i = 0; i < buttons.size(); ++i) PlaceItem(buttons[i].id, ToPlatform(places.buttons[i]));
    PlaceItem(QZ_EDITOR_TEXT, ToPlatform(places.text));
    PlaceItem(QZ_EDITOR_ACTIONS, ToPlatform(places.list));
}

std::optional<LRESULT> CValueActionsDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) pause_.reset();
    return CValueDlg::OnMessage(message, wParam, lParam);
}

// The chain
// ------------------------------------------------------------------------------------------------------

void CValueActionsDlg::ShowValue(const _variant_t* value) {
    const std::shared_ptr<HostMembers> members = Edited().members;
    std::vector<ListedObject> chain;
    if (value) {
        for (const auto& action : ObjectsIn(*value)) chain.push_back(ListAction(members->objects, action));
    }
    if (!Handle()) return;
    chain_ = std::move(chain);
    ShowChain(Selected().value_or(0));
}

std::optional<_variant_t> CValueActionsDlg::EnteredValue() const { return ToObjectArray(chain_); }

std::optional<std::size_t> CValueActionsDlg::Selected() const noexcept {
    const LRESULT entry = SendItem(QZ_EDITOR_ACTIONS, LB_GETCURSEL);
    const auto index = static_cast<std::size_t>(entry);
    return entry >= 0 && index < chain_.size() ? std::optional(index) : std::nullopt;
}

void CValueActionsDlg::ShowChain(std::size_t selected) {
    SendItem(QZ_EDITOR_ACTIONS, WM_SETREDRAW, FALSE);
    SendItem(QZ_EDITOR_ACTIONS, LB_RESETCONTENT);
    for (const ListedObject& action : chain_) {
        SendItem(QZ_EDITOR_ACTIONS, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(action.label.c_str()));
    }
    if (!chain_.empty()) SendItem(QZ_EDITOR_ACTIONS, LB_SETCURSEL, std::min(selected, chain_.size() - 1));
    SendItem(QZ_EDITOR_ACTIONS, WM_SETREDRAW, TRUE);
    InvalidateRect(Item(QZ_EDITOR_ACTIONS), nullptr, TRUE);
    ShowSelected();
}

/// What is told of the action selected, and what can be done to it.
void CValueActionsDlg::ShowSelected() {
    const std::optional<std::size_t> selected = Selected();
    const bool any = selected.has_value();
    EnableButton(AddPlace, true);
    EnableButton(RemovePlace, any);
    EnableButton(EditPlace, any);
    EnableButton(UpPlace, any && *selected > 0);
    EnableButton(DownPlace, any && *selected + 1 < chain_.size());
    const std::shared_ptr<HostMembers> members = Edited().members;
    const ComPtr<IDispatch> action = any ? chain_[*selected].object : nullptr;
    const std::wstring text = action ? NameAndType(members->objects, action.Get()) : std::wstring();
    SetItemText(QZ_EDITOR_TEXT, text);
}

/// The focus does not stay on a button that is of no use any more.
void CValueActionsDlg::EnableButton(std::size_t button, bool enabled) const noexcept {
    const bool allowed = enabled && !ReadOnly();
    const int id = buttons[button].id;
    const Bitmap& picture = allowed ? pictures_[button].enabled : pictures_[button].disabled;
    if (!allowed && GetFocus() == Item(id)) SetFocus(Item(QZ_EDITOR_ACTIONS));
    EnableItem(id, allowed);
    SendItem(id, BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(picture.Get()));
}

// What the user does
// ------------------------------------------------------------------------------------------------------

bool CValueActionsDlg::OnEdited(int id, int notification) {
    if (id != QZ_EDITOR_ACTIONS) return notification == BN_CLICKED && Press(id);
    if (notification == LBN_DBLCLK && Selected()) Edit();
    if (notification == LBN_SELCHANGE) ShowSelected();
    return true;
}

bool CValueActionsDlg::Press(int button) {
    switch (button) {
        case QZ_EDITOR_ADD_ACTION:
            Add();
            return true;
        case QZ_EDITOR_REMOVE_ACTION:
            Remove();
            return true;
        case QZ_EDITOR_EDIT_ACTION:
            Edit();
            return true;
        case QZ_EDITOR_MOVE_ACTION_UP:
            Move(-1);
            return true;
        case QZ_EDITOR_MOVE_ACTION_DOWN:
            Move(1);
            return true;
        default:
            return false;
    }
}

std::optional<int> CValueActionsDlg::CommandOf(HWND control, UINT message, WPARAM key) const {
    if (control != Item(QZ_EDITOR_ACTIONS) || message != WM_KEYDOWN) return std::nullopt;
    const auto enabled = [this](int id) {
        return IsWindowEnabled(Item(id)) ? std::optional(id) : std::nullopt;
    };
    const bool ctrl = KeyIsDown(VK_CONTROL);
    if (key == VK_INSERT && !ctrl) return enabled(QZ_EDITOR_ADD_ACTION);
    if (key == VK_DELETE && !ctrl) return enabled(QZ_EDITOR_REMOVE_ACTION);
    if (key == VK_UP && ctrl) return enabled(QZ_EDITOR_MOVE_ACTION_UP);
    if (key == VK_DOWN && ctrl) return enabled(QZ_EDITOR_MOVE_ACTION_DOWN);
    return std::nullopt;
}

bool CValueActionsDlg::WantsKey(HWND control, UINT message, WPARAM key) {
    return CommandOf(control, message, key) || CValueDlg::WantsKey(control, message, key);
}

void CValueActionsDlg::OnKey(HWND control, UINT message, WPARAM key) {
    const std::optional<int> command = CommandOf(control, message, key);
    if (!command) return CValueDlg::OnKey(control, message, key);
    // As a message, so that the editor lives until it has been handled.
    SendMessageW(Handle(), WM_COMMAND, MAKEWPARAM(*command, BN_CLICKED),
                 reinterpret_cast<LPARAM>(Item(*command)));
}

void CValueActionsDlg::OpenPicker() {
    if (!ReadOnly()) Add();
}

void CValueActionsDlg::Add() {
    RECT button{};
    GetWindowRect(Item(QZ_EDITOR_ADD_ACTION), &button);
    const int type = AskForType(Handle(), button);
    if (type == 0 || !Handle()) return;
    const std::shared_ptr<HostMembers> members = Edited().members;
    std::optional<ListedObject> added;
    Attempt([&] { added = ListAction(members->objects, CreateAction(type)); });
    if (!added || !Handle()) return;
    chain_.push_back(*std::move(added));
    WithoutNotifications([this] { ShowChain(chain_.size() - 1); });
    WriteNow();
}

ComPtr<IDispatch> CValueActionsDlg::CreateAction(int type) const {
    const NewAction& action = *std::ranges::find(newActions, type, &NewAction::type);
    ComPtr<IDispatch> host;
    ThrowIfFailed(Edited().host.As(&host));
    LateBoundMember createObject(L"CreateObject");
    ComPtr<IDispatch> made = ObjectOf(
        createObject.Call(host.Get(), {_variant_t(static_cast<long>(type)), _variant_t(action.name)}));
    if (!made) Throw(E_NOINTERFACE, L"The host gives no new action");
    return made;
}

void CValueActionsDlg::Remove() {
    const std::optional<std::size_t> selected = Selected();
    if (!selected) return;
    const ListedObject asked = chain_[*selected];
    int answer = 0;
    {
        const ChildDialogScope modal(Site());
        answer = Site().ShowMessage(LoadText(TextLanguage(), QZ_TEXT_REMOVE_ACTION_QUESTION),
                                    LoadText(TextLanguage(), QZ_TEXT_PROPERTIES), MB_YESNO | MB_ICONQUESTION);
    }
    if (answer != IDYES || !Handle()) return;
    // The host may have changed the chain meanwhile.
    if (*selected >= chain_.size() || !IsSame(chain_[*selected], asked)) return;
    chain_.erase(chain_.begin() + static_cast<std::ptrdiff_t>(*selected));
    WithoutNotifications([&] { ShowChain(*selected); });
    WriteNow();
}

void CValueActionsDlg::Edit() {
    const std::optional<std::size_t> selected = Selected();
    if (!selected) return;
    const ComPtr<IDispatch> action = chain_[*selected].object;
    Attempt([&] { Site().EditObject(action.Get()); });
    FollowHost();  // its description may be another one
}

void CValueActionsDlg::Move(int by) {
    const std::optional<std::size_t> selected = Selected();
    if (!selected) return;
    const std::size_t target = *selected + static_cast<std::size_t>(by);
    if (target >= chain_.size()) return;
    std::swap(chain_[*selected], chain_[target]);
    WithoutNotifications([&] { ShowChain(target); });
    WriteNow();
}

ValueDlgPointer MakeActionsEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueActionsDlg>(language);
}

}  // namespace qz
