// Two documents whose pages can be told apart, and data objects of the tests' own.
#pragma once

#include "com/safe_array.h"
#include "com/stream.h"
#include "panes/thumbnails/page_data_object.h"
#include "panes/thumbnails/page_operations.h"
#include "panes/thumbnails/storage_medium.h"
#include "tests/support/error_text.h"
#include "tests/support/host_under_test.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

namespace qz {

using Pages = std::vector<long>;
using Lines = std::vector<std::wstring>;
using Bytes = std::vector<std::byte>;

inline long CountPages(IVandraX* host) {
    long count = -1;
    host->GetPageCount(&count);
    return count;
}

/// A host whose pages have the widths `first`, `first` + 1, ...
inline ComPtr<IReferenceHost> MakeNumberedHost(long pages, long first) {
    ComPtr<IReferenceHost> host = MakeHost(0);
    for (long page = 0; page < pages; ++page) host->AddPages(1, first + page, 2000);
    host->ClearLog();
    return host;
}

inline Pages Widths(IVandraX* host) {
    Pages widths;
    for (long page = 1; page <= CountPages(host); ++page)
        widths.push_back(ToLong(ReadAttribute(host, L"Pages[" + std::to_wstring(page) + L"]", L"Width")));
    return widths;
}

/// The pages of the attribute "PageSequence".
inline Pages SequenceOf(IVandraX* host) {
    const _variant_t value = ReadAttribute(host, L"Document", L"PageSequence");
    if (value.vt != (VT_ARRAY | VT_I4)) return {};
    const SafeArrayView<long> view(value.parray);
    return {view.Elements().begin(), view.Elements().end()};
}

inline long PageFlagOf(IVandraX* host) {
    long flag = -1;
    host->GetPageOpFlag(&flag);
    return flag;
}

/// The code that `action` throws; S_OK when it throws nothing.
inline HRESULT CodeOf(const std::function<void()>& action) {
    try {
        action();
        return S_OK;
    } catch (const ComError& error) {
        return error.code;
    }
}

inline Bytes BytesOf(IDataObject* data, CLIPFORMAT format) {
    FORMATETC wanted = InGlobalMemory(format);
    StorageMedium medium;
    ThrowIfFailed(data->GetData(&wanted, medium.Out()));
    const HGLOBAL memory = medium.Get().hGlobal;
    Bytes bytes(GlobalSize(memory));
    std::memcpy(bytes.data(), GlobalLock(memory), bytes.size());
    GlobalUnlock(memory);
    return bytes;
}

/// What the pages of a host look like in transit.
inline Bytes BytesOfPages(IVandraX* host, const Pages& pages) {
    return BytesOf(MakePageDataObject(host, pages).Get(), pagesFormat);
}

/// The owner of a medium: counts when it is released.
class MediumOwner : public Object<MediumOwner> {
  public:
    explicit MediumOwner(int& released) noexcept : released_(released) {}
    ~MediumOwner() override { ++released_; }

  private:
    int& released_;
};

/// Any bytes in any format, in memory that stays this object's own.
class PlainData : public Object<PlainData, IDataObject> {
  public:
    PlainData(CLIPFORMAT format, const Bytes& bytes)
        : format_(format), memory_(GlobalAlloc(GMEM_MOVEABLE, bytes.size())) {
        if (bytes.empty()) return;
        std::memcpy(GlobalLock(memory_), bytes.data(), bytes.size());
        GlobalUnlock(memory_);
    }
    ~PlainData() override { GlobalFree(memory_); }

    int delivered = 0;
    int released = 0;
    DWORD tymed = TYMED_HGLOBAL;  ///< told of what is delivered
    HRESULT answer = S_OK;        ///< to GetData
    bool withoutMemory = false;

    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
        if (FAILED(answer)) return answer;
        ++delivered;
        medium->tymed = tymed;
        medium->hGlobal = withoutMemory ? nullptr : memory_;
        medium->pUnkForRelease = MakeObject<MediumOwner>(released).Detach();
        return S_OK;
    }
    STDMETHODIMP QueryGetData(FORMATETC* format) override {
        return format->cfFormat == format_ ? S_OK : DV_E_FORMATETC;
    }
    STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DUnadvise(DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override { return E_NOTIMPL; }

  private:
    CLIPFORMAT format_;
    HGLOBAL memory_;
};

}  // namespace qz
