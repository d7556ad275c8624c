#include "properties/inspector/inspector_dialog.h"

#include "properties/model/category_tabs.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <algorithm>

namespace qz {

const unsigned InspectorDialog::dialogTemplate = QZ_DIALOG_INSPECTOR;

void InspectorDialog::OnInit() {
    const auto name = [this](int id, unsigned textId) {
        NameControl(Item(id), LoadText(TextLanguage(), textId));
    };
    name(QZ_INSPECTOR_TABS, QZ_TEXT_CATEGORIES);
    name(QZ_INSPECTOR_LIST, QZ_TEXT_ATTRIBUTES);
    list_.Attach(List());
    keys_.Watch(Handle());
}

void InspectorDialog::SetTabs(std::span<const wchar_t> codes, std::size_t selected) {
    // Objects of one kind have the same tabs, and making tabs anew is slow.
    if (!std::ranges::equal(codes, tabs_)) InsertTabs(codes);
    if (SendItem(QZ_INSPECTOR_TABS, TCM_GETCURSEL) != static_cast<LRESULT>(selected)) {
        SendItem(QZ_INSPECTOR_TABS, TCM_SETCURSEL, selected);
    }
}

void InspectorDialog::InsertTabs(std::span<const wchar_t> codes) {
    RemoveTabs();
    for (std::size_t i = 0; i < codes.size(); ++i) {
        std::wstring label = LoadText(TextLanguage(), TextIdOfTab(codes[i]));
        TCITEMW tab{};
        tab.mask = TCIF_TEXT | TCIF_PARAM;
        tab.pszText = label.data();
        tab.lParam = codes[i];
        SendItem(QZ_INSPECTOR_TABS, TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&tab));
    }
    tabs_.assign(codes.begin(), codes.end());
    Arrange(client_);  // the tab control tells its height only once it has tabs
}

void InspectorDialog::RemoveTabs() {
    if (tabs_.empty()) return;
    SendItem(QZ_INSPECTOR_TABS, TCM_DELETEALLITEMS);
    tabs_.clear();
}

wchar_t InspectorDialog::CurrentTab() const {
    TCITEMW tab{};
    tab.mask = TCIF_PARAM;
    const LRESULT selected = SendItem(QZ_INSPECTOR_TABS, TCM_GETCURSEL);
    const bool read =
        selected >= 0 && SendItem(QZ_INSPECTOR_TABS, TCM_GETITEMW, static_cast<WPARAM>(selected),
                                  reinterpret_cast<LPARAM>(&tab));
    return read ? static_cast<wchar_t>(tab.lParam) : allTab;
}

HWND InspectorDialog::List() const noexcept { return Item(QZ_INSPECTOR_LIST); }

int InspectorDialog::FocusedPart() const noexcept {
    const HWND focus = GetFocus();
    if (!Handle() || !focus || !IsChild(Handle(), focus)) return 0;
    return GetParent(focus) == Handle() ? GetDlgCtrlID(focus) : QZ_INSPECTOR_LIST;
}

HWND InspectorDialog::BeforeEditor() const noexcept { return Item(QZ_INSPECTOR_DESCRIPTION); }

void InspectorDialog::ClearList() { list_.SendToClass(LB_RESETCONTENT); }

void InspectorDialog::SuspendList(bool suspended) {
    if (!Handle()) return;
    list_.SendToClass(WM_SETREDRAW, !suspended);
    if (!suspended) InvalidateRect(List(), nullptr, TRUE);
}

void InspectorDialog::AppendRow(const std::wstring& name, long index) {
    const LRESULT entry = list_.SendToClass(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    if (entry < 0) Throw(E_OUTOFMEMORY, L"The list of attributes takes no more");
    list_.SendToClass(LB_SETITEMDATA, static_cast<WPARAM>(entry), index);
}

std::wstring InspectorDialog::EntryText(WPARAM entry) const {
    const LRESULT length = SendItem(QZ_INSPECTOR_LIST, LB_GETTEXTLEN, entry);
    if (length < 0) return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    SendItem(QZ_INSPECTOR_LIST, LB_GETTEXT, entry, reinterpret_cast<LPARAM>(text.data()));
    return text;
}

void InspectorDialog::Choose(std::size_t entry) {
    SendItem(QZ_INSPECTOR_LIST, LB_SETCURSEL, entry);
    SendMessageW(Handle(), WM_COMMAND, MAKEWPARAM(QZ_INSPECTOR_LIST, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(List()));
}

std::optional<std::wstring> InspectorDialog::ChosenName() const {
    const LRESULT entry = SendItem(QZ_INSPECTOR_LIST, LB_GETCURSEL);
    if (entry < 0) return std::nullopt;
    return EntryText(static_cast<WPARAM>(entry));
}

std::optional<long> InspectorDialog::ChosenIndex() const {
    const LRESULT entry = SendItem(QZ_INSPECTOR_LIST, LB_GETCURSEL);
    if (entry < 0) return std::nullopt;
    return static_cast<long>(SendItem(QZ_INSPECTOR_LIST, LB_GETITEMDATA, static_cast<WPARAM>(entry)));
}

void InspectorDialog::SetDescription(const std::wstring& text) {
    if (text == description_) return;
    SetItemText(QZ_INSPECTOR_DESCRIPTION, text);
    description_ = text;
}

void InspectorDialog::SetSeveralValues(bool several) {
    SetItemText(QZ_INSPECTOR_VALUE,
                LoadText(TextLanguage(), several ? QZ_TEXT_SEVERAL_VALUES : QZ_TEXT_VALUE));
}

InspectorMetrics InspectorDialog::Metrics(SIZE client) const {
    RECT tabs{0, 0, client.cx, client.cy};
    SendItem(QZ_INSPECTOR_TABS, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&tabs));
    InspectorMetrics metrics;
    metrics.client = {client.cx, client.cy};
    metrics.dpi = WindowDpi(Handle());
    metrics.lineHeight = static_cast<int>(Pixels({0, 8}).cy);
    metrics.tabHeight = static_cast<int>(tabs.top);
    return metrics;
}

void InspectorDialog::Arrange(SIZE client) {
    client_ = client;
    SetWindowPos(Handle(), nullptr, 0, 0, client.cx, client.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    places_ = ArrangeInspector(Metrics(client));
    PlaceItem(QZ_INSPECTOR_TABS, ToPlatform(places_.tabs));
    PlaceItem(QZ_INSPECTOR_LIST, ToPlatform(places_.list));
    PlaceItem(QZ_INSPECTOR_DESCRIPTION, ToPlatform(places_.description));
    PlaceItem(QZ_INSPECTOR_VALUE, ToPlatform(places_.value));
}

RECT InspectorDialog::EditorBounds() const noexcept { return ToPlatform(places_.editor); }

bool InspectorDialog::OnCommand(int id, int notification) {
    if (id != QZ_INSPECTOR_LIST || notification != LBN_SELCHANGE) return false;
    listener_.OnAttributeChosen();
    return true;
}

std::optional<LRESULT> InspectorDialog::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_NOTIFY) return std::nullopt;
    const auto& notification = *reinterpret_cast<const NMHDR*>(lParam);
    if (notification.idFrom != QZ_INSPECTOR_TABS || notification.code != TCN_SELCHANGE) return std::nullopt;
    listener_.OnTabChosen();
    return 0;
}

bool InspectorDialog::WantsKey(HWND control, UINT message, WPARAM key) {
    if (control != List()) return false;
    if (message == WM_SYSKEYDOWN) return key == VK_DOWN;
    return key == VK_F4 || (key == VK_ESCAPE && listener_.CanRestoreValue());
}

void InspectorDialog::OnKey(HWND, UINT, WPARAM key) {
    if (key == VK_ESCAPE)
        listener_.OnRestoreKey();
    else
        listener_.OnPickerKey();
}

}  // namespace qz
