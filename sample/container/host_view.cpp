#include "sample/container/host_view.h"

#include "sample/container/error_text.h"

#include <comdef.h>

namespace qz {

HostView::HostView(std::function<void()> onChanged) {
    RequireSuccess(CoCreateInstance(CLSID_ReferenceHost, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&host_)),
                   L"The host control cannot be created (is its library registered?)");
    constexpr DISPID changed = 5;
    events_.emplace(host_.Get(), DIID__IVandraXEvents,
                    [onChanged = std::move(onChanged)](DISPID event, DISPPARAMS&) {
                        if (event == changed) onChanged();
                    });
}

void HostView::OpenDocument(const std::wstring& path) {
    RequireSuccess(host_->LoadDocument(_bstr_t(path.c_str())), L"The document cannot be opened");
}

void HostView::ShowIn(HWND parent) {
    RequireSuccess(host_->ShowIn(HandleToLong(parent)), L"The host shows no view");
}

void HostView::Place(const Area& area) {
    RequireSuccess(host_->MoveView(area.left, area.top, area.width, area.height),
                   L"The view cannot be placed");
}

HWND HostView::Window() const {
    long window = 0;
    RequireSuccess(host_->get_ViewWindow(&window), L"The host does not tell its view");
    return static_cast<HWND>(LongToHandle(window));
}

long HostView::PageCount() const {
    long count = 0;
    RequireSuccess(host_->GetPageCount(&count), L"The number of pages cannot be read");
    return count;
}

long HostView::CurrentPage() const {
    long page = 0;
    RequireSuccess(host_->GetCurrentPage(&page), L"The current page cannot be read");
    return page;
}

void HostView::GoToPage(long page) {
    RequireSuccess(host_->SetCurrentPage(page), L"The page cannot be shown");
}

LANGID HostView::Language() const {
    short language = 0;
    RequireSuccess(host_->GetLanguageId(&language), L"The host's language cannot be read");
    return static_cast<LANGID>(language);
}

void HostView::SetLanguage(LANGID language) {
    RequireSuccess(host_->put_LanguageId(language), L"The host's language cannot be set");
}

}  // namespace qz
