#include "layers_fixture.h"

#include "tests/support/resolution.h"

#include <cstring>

namespace qz {

LayersTest::LayersTest() { module.Make(CLSID_qzLayersCtrl, pane); }

LayersTest::~LayersTest() {
    events->Disconnect();
    End();
    host.Reset();
    EXPECT_EQ(module.CanUnloadNow(), S_OK) << "an object of the module is still alive";
}

void LayersTest::Configure(const std::wstring& names, const std::wstring& order, const std::wstring& groups,
                           const std::wstring& on, const std::wstring& off) {
    names_ = names;
    for (const wchar_t name : names) {
        const std::wstring text(1, name);
        ThrowIfFailed(host->AddLayer(_bstr_t(text.c_str()), _bstr_t(text.c_str()), name < L'a'));
    }
    SetConfiguration(L"ConfigOrder", order);
    SetConfiguration(L"ConfigRBGroups", groups);
    SetConfiguration(L"ConfigON", on);
    SetConfiguration(L"ConfigOFF", off);
    host->ClearLog();
}

void LayersTest::SetConfiguration(const wchar_t* attribute, const std::wstring& text) {
    ThrowIfFailed(
        host->SetObjectAttribute(_bstr_t(L"LayerConfigs[1]"), _bstr_t(attribute), _variant_t(text.c_str())));
}

void LayersTest::Open() {
    if (!window) window.emplace(pane.Get(), SIZE{220, 300});
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    host->put_LogEnabled(1);
    host->ClearLog();
    PumpMessages();
}

void LayersTest::Connect() { events->Connect(pane.Get(), DIID__IqzLayersCtrlEvents); }

void LayersTest::End() {
    window.reset();
    pane.Reset();
}

std::wstring LayersTest::Text(HTREEITEM item) const {
    wchar_t text[300] = {};
    TVITEMW asked{};
    asked.mask = TVIF_TEXT;
    asked.hItem = item;
    asked.pszText = text;
    asked.cchTextMax = 300;
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return text;
}

/// As both messages tell it.
UINT LayersTest::Mark(HTREEITEM item) const {
    TVITEMW asked{};
    asked.mask = TVIF_STATE;
    asked.stateMask = TVIS_STATEIMAGEMASK;
    asked.hItem = item;
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    const LRESULT state =
        SendMessageW(Tree(), TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), TVIS_STATEIMAGEMASK);
    EXPECT_EQ(asked.state & TVIS_STATEIMAGEMASK, static_cast<UINT>(state) & TVIS_STATEIMAGEMASK);
    return (asked.state & TVIS_STATEIMAGEMASK) >> 12;
}

std::wstring LayersTest::Describe(HTREEITEM first) const {
    std::wstring all;
    for (HTREEITEM item = first; item; item = Next(TVGN_NEXT, item)) {
        if (!all.empty()) all += L' ';
        all += L"*-+"[Mark(item)] + Text(item);
        if (const HTREEITEM child = Next(TVGN_CHILD, item)) all += L'[' + Describe(child) + L']';
    }
    return all;
}

std::wstring LayersTest::Items() const { return Describe(Next(TVGN_ROOT, nullptr)); }

HTREEITEM LayersTest::Find(HTREEITEM first, const std::wstring& text) const {
    for (HTREEITEM item = first; item; item = Next(TVGN_NEXT, item)) {
        if (Text(item) == text) return item;
        if (const HTREEITEM found = Find(Next(TVGN_CHILD, item), text)) return found;
    }
    return nullptr;
}

HTREEITEM LayersTest::Item(const std::wstring& text) const { return Find(Next(TVGN_ROOT, nullptr), text); }

bool LayersTest::Expanded(const std::wstring& text) const {
    return SendMessageW(Tree(), TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(Item(text)), TVIS_EXPANDED) &
           TVIS_EXPANDED;
}

RECT LayersTest::TextRect(const std::wstring& text) const {
    RECT rect{};
    const HTREEITEM item = Item(text);
    SendMessageW(Tree(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item));
    std::memcpy(&rect, &item, sizeof item);  // the message takes the item there
    EXPECT_TRUE(SendMessageW(Tree(), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect)));
    return rect;
}

void LayersTest::Click(const std::wstring& text, Part part, UINT message) const {
    const RECT rect = TextRect(text);
    int x = rect.left + 3;
    if (part == Part::Check) x = rect.left - Scaled(9);
    if (part == Part::Expand) x = rect.left - Scaled(27);
    if (part == Part::Row) x = rect.right + 20;
    const LPARAM point = MAKELPARAM(x, (rect.top + rect.bottom) / 2);
    const bool right = message == WM_RBUTTONDOWN;
    const HWND tree = Tree();
    SendMessageW(tree, message, right ? MK_RBUTTON : MK_LBUTTON, point);
    SendMessageW(tree, right ? WM_RBUTTONUP : WM_LBUTTONUP, 0, point);
}

void LayersTest::Key(WPARAM key) const {
    const HWND tree = Tree();
    SendMessageW(tree, WM_KEYDOWN, key, 1);
    SendMessageW(tree, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
}

std::wstring LayersTest::HostStates() const {
    std::wstring states;
    for (const wchar_t name : names_) {
        _variant_t state;
        const std::wstring path = L"Layers[" + std::wstring(1, name) + L"]";
        host->GetObjectAttribute(_bstr_t(path.c_str()), _bstr_t(L"CurrentViewState"), &state);
        states += (state == _variant_t(L"ON") ? L'+' : L'-') + std::wstring(1, name);
    }
    return states;
}

void LayersTest::HostState(const wchar_t* name, const wchar_t* state) const {
    const std::wstring path = L"Layers[" + std::wstring(name) + L"]";
    ThrowIfFailed(
        host->SetObjectAttribute(_bstr_t(path.c_str()), _bstr_t(L"CurrentViewState"), _variant_t(state)));
}

std::wstring LayersTest::TakeWrites() const {
    std::wstring writes;
    for (const std::wstring& line : LogLines(host.Get())) {
        if (line.starts_with(L"SetAutoRefresh")) {
            writes += line.find(L'0') != std::wstring::npos ? L"( " : L")";
        } else if (line.starts_with(L"SetObjectAttribute")) {
            const std::size_t name = line.find(L"Layers[") + 7;
            writes += (line.find(L"OFF") == std::wstring::npos ? L'+' : L'-') +
                      line.substr(name, line.find(L']', name) - name) + L' ';
        }
    }
    host->ClearLog();
    return writes;
}

}  // namespace qz
