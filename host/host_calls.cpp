#include "host/host_calls.h"

#include "com/text.h"

namespace qz {

long PageCountOf(IVandraX* host) {
    long count = 0;
    ThrowIfFailed(host->GetPageCount(&count), L"The host does not tell the number of pages");
    return count;
}

long CurrentPageOf(IVandraX* host) {
    long page = 0;
    ThrowIfFailed(host->GetCurrentPage(&page), L"The host does not tell its current page");
    return page;
}

void MakePageCurrent(IVandraX* host, long page) {
    ThrowIfFailed(host->SetCurrentPage(page), L"The host does not go to the page");
}

ChangeFlags ChangesOf(IVandraX* host) {
    long flags = 0;
    ThrowIfFailed(host->GetChangeFlags(&flags), L"The host does not tell what changed");
    return {static_cast<std::uint32_t>(flags)};
}

long ModeOf(IVandraX* host) {
    long mode = 0;
    ThrowIfFailed(host->GetDocumentMode(&mode), L"The host does not tell its mode");
    return mode;
}

_variant_t CurrentObjectOf(IVandraX* host) {
    _variant_t current;
    ThrowIfFailed(host->GetCurrentObject(&current), L"The host does not tell the selected object");
    return current;
}

ComPtr<IDispatch> FindObject(IVandraX* host, std::wstring_view path) {
    ComPtr<IDispatch> object;
    return SUCCEEDED(host->GetObjectByPath(Bstr(path).Get(), &object)) ? object : nullptr;
}

}  // namespace qz
