#include "benchmarks/bare_outline.h"

namespace qz::bench {

namespace {

/// The reference host's ids of a bookmark's members.
constexpr DISPID itemId = 0;
constexpr DISPID countId = 1;
constexpr DISPID titleId = 2;

}  // namespace

BareOutline::BareOutline(IDispatch* root)
    : root_(root),
      tree_(CreateWindowExW(0, WC_TREEVIEWW, L"", WS_POPUP | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT,
                            0, 0, 220, 600, nullptr, nullptr, nullptr, nullptr)) {
    ThrowLastErrorIf(!tree_, L"No tree could be made");
}

void BareOutline::Read(bool everything) {
    SendMessageW(tree_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(tree_, TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    held_.clear();
    Build(root_, TVI_ROOT, everything);
    SendMessageW(tree_, WM_SETREDRAW, TRUE, 0);
}

void BareOutline::CollapseAll() const {
    SendMessageW(tree_, WM_SETREDRAW, FALSE, 0);
    SendMessageW(tree_, TVM_EXPAND, TVE_COLLAPSE, 0);
    SendMessageW(tree_, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(tree_, nullptr, TRUE);
}

void BareOutline::Build(IDispatch* parent, HTREEITEM under, bool everything) {
    static wchar_t nothing[] = L"";
    const long count = Ask(parent, countId).lVal;
    std::vector<Child> parents;
    for (long i = 0; i < count; ++i) {
        const _variant_t bookmark = Ask(parent, itemId, i, 1);
        const _variant_t title = Ask(bookmark.pdispVal, titleId);
        const HTREEITEM item = Insert(under, title.bstrVal, bookmark.pdispVal);
        held_.emplace_back(bookmark.pdispVal);
        if (Ask(bookmark.pdispVal, countId).lVal > 0) parents.push_back({bookmark.pdispVal, item});
    }
    for (const Child& child : parents) {
        if (everything) {
            Build(child.bookmark, child.item, true);
            SendMessageW(tree_, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(child.item));
        } else {
            Insert(child.item, nothing, nullptr);
        }
    }
}

/// At the end, which is fast where benchmarks run; see `TreeView::InsertChildren`.
HTREEITEM BareOutline::Insert(HTREEITEM under, wchar_t* text, IDispatch* bookmark) const {
    TVINSERTSTRUCTW insert{};
    insert.hParent = under;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = text;
    insert.item.lParam = reinterpret_cast<LPARAM>(bookmark);
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree_, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

_variant_t BareOutline::Ask(IDispatch* bookmark, DISPID member, long argument, UINT arguments) const {
    VARIANT index;
    index.vt = VT_I4;
    index.lVal = argument;
    DISPPARAMS parameters{&index, nullptr, arguments, 0};
    _variant_t answer;
    ThrowIfFailed(
        bookmark->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                         &parameters, &answer, nullptr, nullptr),
        L"A bookmark of the benchmark fails");
    return answer;
}

}  // namespace qz::bench
