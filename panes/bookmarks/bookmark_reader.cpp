#include "panes/bookmarks/bookmark_reader.h"

#include "host/attributes.h"

#include <algorithm>

namespace qz {

namespace {

/// What may reasonably be reserved on a host's word.
constexpr long largestReserve = 1 << 20;

}  // namespace

void BookmarkReader::Children(const Node& parent, std::vector<BookmarkEntry>& entries) {
    const long count = CountOf(parent.Get());
    entries.reserve(static_cast<std::size_t>(std::clamp(count, 0l, largestReserve)));
    for (long i = 0; i < count; ++i) {
        Node child = ItemOf(parent.Get(), i);
        std::wstring title = TitleOf(child.Get());
        const bool hasChildren = CountOf(child.Get()) > 0;
        entries.push_back({std::move(child), std::move(title), hasChildren});
    }
}

BookmarkReader::Identity BookmarkReader::IdentityOf(const Node& node) const {
    ComPtr<IUnknown> identity;
    ThrowIfFailed(node.As(&identity), L"A bookmark has no identity");
    return identity.Get();
}

long BookmarkReader::CountOf(IDispatch* bookmark) {
    const _variant_t count = members_->count.Get(bookmark);
    RequireValid();
    return ToLong(count);
}

BookmarkReader::Node BookmarkReader::ItemOf(IDispatch* parent, long index) {
    const _variant_t item = members_->item.Get(parent, {index});
    RequireValid();
    if (item.vt != VT_DISPATCH && item.vt != VT_UNKNOWN) {
        Throw(DISP_E_TYPEMISMATCH, L"What the host gives as a bookmark is no object");
    }
    Node bookmark;
    if (!item.punkVal) Throw(E_POINTER, L"A bookmark of the host is missing");
    ThrowIfFailed(item.punkVal->QueryInterface(IID_PPV_ARGS(&bookmark)),
                  L"What the host gives as a bookmark is no automation object");
    return bookmark;
}

/// A bookmark without a title has an empty one.
std::wstring BookmarkReader::TitleOf(IDispatch* bookmark) {
    _variant_t title = members_->title.Get(bookmark);
    RequireValid();
    if (title.vt == VT_EMPTY || title.vt == VT_NULL) return {};
    if (title.vt != VT_BSTR) {
        ThrowIfFailed(VariantChangeType(&title, &title, VARIANT_NOUSEROVERRIDE, VT_BSTR),
                      L"The title of a bookmark is no text");
    }
    return title.bstrVal ? std::wstring(title.bstrVal, SysStringLen(title.bstrVal)) : std::wstring();
}

void BookmarkReader::RequireValid() const {
    if (!Valid()) throw OutlineChanged();
    const bool goesOn = !goOn_ || goOn_();
    if (!Valid()) throw OutlineChanged();
    if (!goesOn) throw OutlineStopped();
}

}  // namespace qz
