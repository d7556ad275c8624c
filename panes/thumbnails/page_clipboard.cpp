#include "panes/thumbnails/page_clipboard.h"

#include "panes/thumbnails/page_data_object.h"

#include <ole2.h>

namespace qz {

namespace {

/// Clipboard viewers open the clipboard for a moment whenever it changes.
template <class Action>
void WhenClipboardIsFree(Action action, const wchar_t* text) {
    constexpr int attempts = 5;
    constexpr DWORD pause = 20;  // milliseconds
    HRESULT result = action();
    for (int attempt = 1; attempt < attempts && result == CLIPBRD_E_CANT_OPEN; ++attempt) {
        Sleep(pause);
        result = action();
    }
    ThrowIfFailed(result, text);
}

}  // namespace

void PutPagesOnClipboard(IVandraX* host, std::vector<long> pages) {
    // Rendered beforehand: flushing does not tell when a format could not be rendered, and whoever cuts pages
    // must know that they are safe.
    const ComPtr<IDataObject> data = MakePageDataObject(host, std::move(pages), Rendering::AtOnce);
    WhenClipboardIsFree([&] { return OleSetClipboard(data.Get()); }, L"The clipboard takes no pages");
    WhenClipboardIsFree([] { return OleFlushClipboard(); }, L"The clipboard does not keep the pages");
}

ComPtr<IDataObject> PagesOnClipboard() {
    ComPtr<IDataObject> data;
    if (FAILED(OleGetClipboard(&data)) || !Offers(data.Get(), documentFormat)) return nullptr;
    return data;
}

}  // namespace qz
