#include "panes/thumbnails/page_operations.h"

#include "host/host_calls.h"
#include "host/object_path.h"
#include "panes/thumbnails/page_formats.h"
#include "panes/thumbnails/page_numbers.h"
#include "panes/thumbnails/storage_medium.h"

#include <ocidl.h>

namespace qz {

namespace {

ComPtr<IPersistStreamInit> StreamingOf(IUnknown* document) {
    ComPtr<IPersistStreamInit> streaming;
    ThrowIfFailed(document->QueryInterface(IID_PPV_ARGS(&streaming)), L"The document does not stream itself");
    return streaming;
}

StorageMedium TakeFrom(IDataObject* data, CLIPFORMAT format) {
    FORMATETC wanted = InGlobalMemory(format);
    StorageMedium medium;
    ThrowIfFailed(data->GetData(&wanted, medium.Out()), L"The pages are not delivered");
    if (medium.Get().tymed != TYMED_HGLOBAL || !medium.Get().hGlobal)
        Throw(DV_E_TYMED, L"The pages are not delivered as global memory");
    return medium;
}

/// A stream over a medium's memory, which stays the medium's.
ComPtr<IStream> StreamOver(const StorageMedium& medium) {
    ComPtr<IStream> stream;
    ThrowIfFailed(CreateStreamOnHGlobal(medium.Get().hGlobal, FALSE, &stream),
                  L"The delivered pages cannot be read");
    return stream;
}

void AppendPages(IVandraX* host, IStream* stream) {
    ThrowIfFailed(host->InsertPagesFromStream(stream), L"The host does not insert the pages");
}

void AppendDocument(IVandraX* host, IStream* stream) {
    ComPtr<IDispatch> document;
    ThrowIfFailed(host->CreateDocument(&document), L"The host makes no document");
    RequirePointer(document.Get());
    ThrowIfFailed(StreamingOf(document.Get())->Load(stream), L"The document does not load the pages");
    ThrowIfFailed(host->InsertDocument(document.Get()), L"The host does not insert the document");
}

/// Appends what the data object holds, as pages if it offers that, else as a document.
void Append(IVandraX* host, IDataObject* data) {
    const bool asPages = Offers(data, pagesFormat);
    if (!asPages && !Offers(data, documentFormat)) Throw(DV_E_FORMATETC, L"There are no pages to insert");
    const StorageMedium medium = TakeFrom(data, asPages ? pagesFormat : documentFormat);
    const ComPtr<IStream> stream = StreamOver(medium);
    if (asPages)
        AppendPages(host, stream.Get());
    else
        AppendDocument(host, stream.Get());
}

}  // namespace

PageFlagScope::PageFlagScope(IVandraX* host) : host_(host) {
    RequirePointer(host);
    ThrowIfFailed(host->GetPageOpFlag(&saved_), L"The host does not tell its page-operation flag");
    ThrowIfFailed(host->SetPageOpFlag(0), L"The host does not set its page-operation flag");
}

PageFlagScope::~PageFlagScope() {
    // A host left like this tells nobody of changed pages: one failure is not taken as final.
    if (FAILED(host_->SetPageOpFlag(saved_))) host_->SetPageOpFlag(saved_);
}

PageSequenceScope::PageSequenceScope(IVandraX* host, std::span<const long> pages)
    : host_(host), flag_(host), document_(documentPath), attribute_(L"PageSequence") {
    ReadAttribute(host, document_.Get(), attribute_.Get(), saved_);
    ThrowIfFailed(host->SetObjectAttribute(document_.Get(), attribute_.Get(), MakePageNumbers(pages)),
                  L"The host does not take the pages to be written");
}

PageSequenceScope::~PageSequenceScope() {
    // A document left like this is saved without most of its pages: one failure is not taken as final.
    if (FAILED(host_->SetObjectAttribute(document_.Get(), attribute_.Get(), saved_)))
        host_->SetObjectAttribute(document_.Get(), attribute_.Get(), saved_);
}

void DeletePages(IVandraX* host, std::vector<long> pages) {
    RequirePointer(host);
    for (const long page : FromHighestDown(std::move(pages)))
        ThrowIfFailed(host->DeletePage(page, 1), L"The host does not delete the page");
}

void WritePages(IVandraX* host, std::span<const long> pages, IStream* stream) {
    RequirePointer(host);
    if (pages.empty()) Throw(E_INVALIDARG, L"There are no pages to write");
    const ComPtr<IPersistStreamInit> streaming = StreamingOf(host);
    const PageSequenceScope sequence(host, pages);
    ThrowIfFailed(streaming->Save(stream, FALSE), L"The host does not write the pages");
}

long InsertPages(IVandraX* host, IDataObject* data, const Insertion& where) {
    RequirePointer(host);
    RequirePointer(data);
    const ComPtr<IVandraX> keptHost = host;  // any of these calls may release them
    const ComPtr<IDataObject> keptData = data;
    const long before = PageCountOf(host);
    Append(host, data);
    const long after = PageCountOf(host);
    const long appended = after - before;
    if (appended <= 0) return 0;
    if (where.position > after) return appended;
    const std::vector<long> moved = FromHighestDown(where.moved);
    DeletePages(host, moved);
    if (after - static_cast<long>(moved.size()) > 1) {
        const PageMove move = PlaceAppended(after, appended, where.position, moved);
        ThrowIfFailed(host->MovePages(move.first, move.count, move.target),
                      L"The host does not move the inserted pages");
    }
    return appended;
}

}  // namespace qz
