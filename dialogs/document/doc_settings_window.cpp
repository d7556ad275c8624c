#include "dialogs/document/doc_settings_window.h"

#include "com/scope.h"
#include "dialogs/document/fonts_tab.h"
#include "dialogs/document/information_tab.h"
#include "dialogs/document/page_setup_tab.h"
#include "dialogs/document/security_tab.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/window.h"

#include <commctrl.h>

#include <utility>

namespace qz {

namespace {

constexpr unsigned labels[] = {QZ_TEXT_DOCUMENT_INFO_TAB, QZ_TEXT_SECURITY_TAB, QZ_TEXT_PAGE_SETUP_TAB,
                               QZ_TEXT_FONTS_TAB};

}  // namespace

DocSettingsWindow::DocSettingsWindow(const SettingsSource& source, Language language)
    : Dialog(QZ_DIALOG_DOCUMENT_SETTINGS, language),
      tabs_{MakeDialog<CDocSettingsDlgTab1>(source, language),
            MakeDialog<CDocSettingsDlgTab2>(source, language),
            MakeDialog<CDocSettingsDlgTab3>(source, language),
            MakeDialog<CDocSettingsDlgTab4>(source, language)} {}

/// What a tab cannot read it leaves empty; the developer is told.
void DocSettingsWindow::OnInit() {
    for (std::size_t tab = 0; tab < tabCount; ++tab) AppendTab(tab);
    const RECT area = TabArea();
    for (const auto& tab : tabs_) {
        tab->Create(Handle());
        SetWindowPos(tab->Handle(), HWND_TOP, area.left, area.top, area.right - area.left,
                     area.bottom - area.top, SWP_NOACTIVATE);
    }
    ShowTab(0);
    keys_.Watch(Handle());
    for (const auto& tab : tabs_) keys_.Watch(tab->Handle());
    for (const auto& tab : tabs_) {
        if (FAILED(tab->Exchange(ExchangeDirection::Fill))) ShowErrorInDebugger();
        if (!Handle()) return;
    }
}

void DocSettingsWindow::AppendTab(std::size_t tab) const {
    std::wstring text = LoadText(TextLanguage(), labels[tab]);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    if (SendItem(QZ_DOCUMENT_TABS, TCM_INSERTITEMW, tab, reinterpret_cast<LPARAM>(&item)) < 0) {
        Throw(E_OUTOFMEMORY, L"The strip of tabs takes no more");
    }
}

RECT DocSettingsWindow::TabArea() const noexcept {
    RECT area = ItemBounds(QZ_DOCUMENT_TABS);
    SendItem(QZ_DOCUMENT_TABS, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
}

std::size_t DocSettingsWindow::ChosenTab() const noexcept {
    const LRESULT chosen = SendItem(QZ_DOCUMENT_TABS, TCM_GETCURSEL);
    return chosen < 0 ? 0 : static_cast<std::size_t>(chosen);
}

void DocSettingsWindow::ShowTab(std::size_t tab) const {
    SendItem(QZ_DOCUMENT_TABS, TCM_SETCURSEL, tab);
    ShowChild(tabs_[tab]->Handle(), true);
    for (std::size_t each = 0; each < tabCount; ++each) {
        if (each != tab) ShowChild(tabs_[each]->Handle(), false);
    }
}

std::optional<LRESULT> DocSettingsWindow::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_NOTIFY) return std::nullopt;
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    if (header.idFrom != QZ_DOCUMENT_TABS || header.code != TCN_SELCHANGE) return std::nullopt;
    ShowTab(ChosenTab());
    return 0;
}

bool DocSettingsWindow::WantsKey(HWND, UINT message, WPARAM key) {
    const bool control = message == WM_KEYDOWN && GetKeyState(VK_CONTROL) < 0;
    return control && (key == VK_TAB || key == VK_NEXT || key == VK_PRIOR);
}

void DocSettingsWindow::OnKey(HWND control, UINT, WPARAM key) {
    const bool back = key == VK_PRIOR || (key == VK_TAB && GetKeyState(VK_SHIFT) < 0);
    const std::size_t tab = (ChosenTab() + (back ? tabCount - 1 : 1)) % tabCount;
    ShowTab(tab);
    if (GetParent(control) == Handle()) return;  // the strip and the buttons keep the focus
    if (const HWND first = FindTabStops(tabs_[tab]->Handle()).first) SetFocus(first);
}

bool DocSettingsWindow::OnCommand(int id, int) {
    if (id != IDOK && id != IDCANCEL) return false;
    if (busy_) return true;
    if (id == IDOK) {
        Accept();
    } else {
        EndModal(IDCANCEL);
    }
    return true;
}

/// The host may handle messages meanwhile: a second OK, or Cancel, must not come between.
void DocSettingsWindow::Accept() {
    const HRESULT outcome = Guard(IID_NULL, [this] {
        const ScopedValue busy(busy_, true);
        WriteTabs();
    });
    if (FAILED(outcome)) ShowErrorInDebugger();
}

void DocSettingsWindow::WriteTabs() {
    for (std::size_t tab = 0; tab < tabCount; ++tab) {
        const HRESULT outcome = tabs_[tab]->Exchange(ExchangeDirection::Write);
        if (!Handle()) return;
        if (FAILED(outcome)) {
            ShowTab(tab);
            return tabs_[tab]->ShowFailure(outcome);
        }
    }
    EndModal(IDOK);
}

}  // namespace qz
