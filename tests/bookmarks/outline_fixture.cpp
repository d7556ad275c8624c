#include "outline_fixture.h"

#include <comdef.h>

#include <vector>

namespace qz {

namespace {

/// The place of GetBookmarks in the host's interface.
constexpr int getBookmarksPlace = 53;

IDispatch* givenRoot = nullptr;

HRESULT STDMETHODCALLTYPE GiveRoot(IVandraX*, IDispatch** root) {
    *root = givenRoot;
    if (givenRoot) givenRoot->AddRef();
    return S_OK;
}

}  // namespace

ComPtr<IHostBookmark> AddBookmark(IHostBookmark* parent, const wchar_t* title, long page) {
    ComPtr<IDispatch> added;
    ComPtr<IHostBookmark> bookmark;
    ThrowIfFailed(parent->AppendChild(_bstr_t(title), &added));
    ThrowIfFailed(added.As(&bookmark));
    ThrowIfFailed(bookmark->put_Page(page));
    return bookmark;
}

OutlineTest::OutlineTest() {
    module.Make(CLSID_qzBookmarkCtrl, pane);
    events->Connect(pane.Get(), DIID__IqzBookmarkCtrlEvents);
    ComPtr<IDispatch> outline;
    ThrowIfFailed(host->GetBookmarks(&outline));
    ThrowIfFailed(outline.As(&root));
    host->ClearLog();
}

OutlineTest::~OutlineTest() {
    events->Disconnect();
    window.reset();
    pane.Reset();
    EXPECT_EQ(module.CanUnloadNow(), S_OK) << "an object of the module is still alive";
}

void OutlineTest::AddSmallOutline() {
    const auto a = AddBookmark(root.Get(), L"A", 2);
    const auto a1 = AddBookmark(a.Get(), L"A1", 3);
    AddBookmark(a1.Get(), L"A1a", 4);
    AddBookmark(a.Get(), L"A2", 5);
    AddBookmark(root.Get(), L"B", 6);
    const auto c = AddBookmark(root.Get(), L"C");
    AddBookmark(c.Get(), L"C1", 7);
    host->ClearLog();
}

void OutlineTest::ShowOutline() {
    AddSmallOutline();
    Show();
    ThrowIfFailed(pane->Initialize(host.Get()));
}

HTREEITEM OutlineTest::Next(UINT what, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(Tree(), TVM_GETNEXTITEM, what, reinterpret_cast<LPARAM>(item)));
}

TVITEMW OutlineTest::Item(HTREEITEM item) const {
    TVITEMW asked{};
    asked.mask = TVIF_HANDLE | TVIF_PARAM | TVIF_STATE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    asked.hItem = item;
    asked.stateMask = TVIS_EXPANDED | TVIS_SELECTED;
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return asked;
}

std::wstring OutlineTest::TextOf(HTREEITEM item) const {
    wchar_t text[512] = {};
    TVITEMW asked{};
    asked.mask = TVIF_HANDLE | TVIF_TEXT;
    asked.hItem = item;
    asked.pszText = text;
    asked.cchTextMax = 512;
    SendMessageW(Tree(), TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&asked));
    return text;
}

HTREEITEM OutlineTest::Find(const std::wstring& title) const {
    std::vector<HTREEITEM> open{Next(TVGN_ROOT)};
    while (!open.empty()) {
        const HTREEITEM item = open.back();
        open.pop_back();
        if (!item) continue;
        if (TextOf(item) == title) return item;
        open.push_back(Next(TVGN_NEXT, item));
        open.push_back(Next(TVGN_CHILD, item));
    }
    return nullptr;
}

std::wstring OutlineTest::ShownBelow(HTREEITEM first) const {
    std::wstring text;
    for (HTREEITEM item = first; item; item = Next(TVGN_NEXT, item)) {
        if (!text.empty()) text += L" ";
        text += TextOf(item);
        const HTREEITEM child = Next(TVGN_CHILD, item);
        if (!child) continue;
        if (Item(item).state & TVIS_EXPANDED) {
            text += L"[" + ShownBelow(child) + L"]";
        } else {
            text += Item(child).lParam ? L"-" : L"+";
        }
    }
    return text;
}

POINT OutlineTest::PointOn(HTREEITEM item) const {
    RECT rect{};
    *reinterpret_cast<HTREEITEM*>(&rect) = item;
    SendMessageW(Tree(), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&rect));
    return {rect.left + 3, (rect.top + rect.bottom) / 2};
}

void OutlineTest::ClickButtonOf(HTREEITEM item) const {
    POINT point = PointOn(item);
    for (UINT part = 0; point.x > 0 && !(part & TVHT_ONITEMBUTTON); --point.x) {
        TVHITTESTINFO hit{};
        hit.pt = point;
        SendMessageW(Tree(), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        part = hit.flags;
    }
    SendMessageW(Tree(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    SendMessageW(Tree(), WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

OutlineOverride::OutlineOverride(IVandraX* host, IDispatch* root)
    : slot_(*reinterpret_cast<void***>(host) + getBookmarksPlace), before_(*slot_) {
    givenRoot = root;
    Patch(reinterpret_cast<void*>(&GiveRoot));
}

OutlineOverride::~OutlineOverride() {
    Patch(before_);
    givenRoot = nullptr;
}

void OutlineOverride::Patch(void* entry) const {
    DWORD protection = 0;
    VirtualProtect(slot_, sizeof *slot_, PAGE_READWRITE, &protection);
    *slot_ = entry;
    VirtualProtect(slot_, sizeof *slot_, protection, &protection);
}

}  // namespace qz
