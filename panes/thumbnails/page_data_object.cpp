#include "panes/thumbnails/page_data_object.h"

#include "panes/thumbnails/page_operations.h"
#include "panes/thumbnails/storage_medium.h"

#include <shlobj.h>
#include <urlmon.h>

#include <algorithm>
#include <span>

namespace qz {

namespace {

/// A growing stream in global memory that is handed on with what was written.
class MemoryToHandOn {
  public:
    MemoryToHandOn() {
        ThrowIfFailed(CreateStreamOnHGlobal(nullptr, FALSE, &stream_), L"No memory for the pages");
    }
    ~MemoryToHandOn() {
        if (stream_) GlobalFree(Memory());
    }
    MemoryToHandOn(const MemoryToHandOn&) = delete;
    MemoryToHandOn& operator=(const MemoryToHandOn&) = delete;

    IStream* Stream() const noexcept { return stream_.Get(); }

    StorageMedium HandOn() noexcept {
        STGMEDIUM medium{};
        medium.tymed = TYMED_HGLOBAL;
        medium.hGlobal = Memory();
        stream_.Reset();
        return StorageMedium(medium);
    }

  private:
    /// The block as it is now: growing may move it.
    HGLOBAL Memory() const noexcept {
        HGLOBAL memory = nullptr;
        GetHGlobalFromStream(stream_.Get(), &memory);
        return memory;
    }

    ComPtr<IStream> stream_;
};

/// What the host writes of the pages.
StorageMedium Render(IVandraX* host, std::span<const long> pages) {
    MemoryToHandOn memory;
    WritePages(host, pages, memory.Stream());
    return memory.HandOn();
}

StorageMedium CopyOf(const STGMEDIUM& medium) {
    StorageMedium copy;
    ThrowIfFailed(CopyStgMedium(&medium, copy.Out()), L"The data cannot be copied");
    return copy;
}

bool IsPageFormat(CLIPFORMAT format) noexcept { return format == documentFormat || format == pagesFormat; }

class PageDataObject : public Object<PageDataObject, IDataObject> {
  public:
    PageDataObject(IVandraX* host, std::vector<long> pages, Rendering rendering) : pages_(std::move(pages)) {
        RequirePointer(host);
        if (pages_.empty()) Throw(E_INVALIDARG, L"There are no pages to deliver");
        if (rendering == Rendering::AtOnce)
            rendered_ = Render(host, pages_);
        else
            host_ = host;
    }

    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (!medium) return E_POINTER;
        *medium = {};
        return Guard(__uuidof(IDataObject), [&]() -> HRESULT {
            const HRESULT answer = Check(format);
            if (FAILED(answer)) return answer;
            *medium = Deliver(*format).Detach();
            return S_OK;
        });
    }

    /// Memory provided by the caller would need a size known beforehand.
    STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override {
        return Guard(__uuidof(IDataObject), [] { return DV_E_FORMATETC; });
    }

    STDMETHODIMP QueryGetData(FORMATETC* format) override {
        return Guard(__uuidof(IDataObject), [&] { return Check(format); });
    }

    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) override {
        if (!canonical) return E_POINTER;
        *canonical = {};
        if (!format) return E_POINTER;
        *canonical = *format;
        canonical->ptd = nullptr;  // nothing here depends on a device
        return DATA_S_SAMEFORMATETC;
    }

    STDMETHODIMP SetData(FORMATETC* format, STGMEDIUM* medium, BOOL release) override {
        return Guard(__uuidof(IDataObject), [&] {
            RequirePointer(format);
            RequirePointer(medium);
            if (IsPageFormat(format->cfFormat)) Throw(DV_E_FORMATETC, L"The pages cannot be replaced");
            if (format->ptd) Throw(DV_E_DVTARGETDEVICE, L"No data for a single device is kept");
            if (format->tymed != medium->tymed)
                Throw(DV_E_TYMED, L"The data is not of the medium it is told");
            Keep(*format, *medium, release != FALSE);
        });
    }

    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
        if (!formats) return E_POINTER;
        *formats = nullptr;
        return Guard(__uuidof(IDataObject), [&]() -> HRESULT {
            if (direction != DATADIR_GET) return E_NOTIMPL;
            std::vector<FORMATETC> all{InGlobalMemory(documentFormat), InGlobalMemory(pagesFormat)};
            for (const Given& given : given_) all.push_back(given.format);
            return SHCreateStdEnumFmtEtc(static_cast<UINT>(all.size()), all.data(), formats);
        });
    }

    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD* connection) override {
        if (connection) *connection = 0;
        return Guard(__uuidof(IDataObject), [] { return OLE_E_ADVISENOTSUPPORTED; });
    }

    STDMETHODIMP DUnadvise(DWORD) override {
        return Guard(__uuidof(IDataObject), [] { return OLE_E_ADVISENOTSUPPORTED; });
    }

    STDMETHODIMP EnumDAdvise(IEnumSTATDATA** connections) override {
        if (connections) *connections = nullptr;
        return Guard(__uuidof(IDataObject), [] { return OLE_E_ADVISENOTSUPPORTED; });
    }

  private:
    /// Data of another format that was given to this object, such as a drag's picture.
    struct Given {
        FORMATETC format{};
        StorageMedium medium;
    };

    Given* Find(const FORMATETC& format) noexcept {
        const auto found = std::find_if(given_.begin(), given_.end(), [&](const Given& given) {
            return given.format.cfFormat == format.cfFormat && given.format.dwAspect == format.dwAspect &&
                   given.format.lindex == format.lindex;
        });
        return found == given_.end() ? nullptr : &*found;
    }

    /// Whether that can be delivered, and if not, why.
    HRESULT Check(const FORMATETC* format) {
        if (!format) return E_POINTER;
        if (!IsPageFormat(format->cfFormat)) {
            const Given* const given = Find(*format);
            if (!given) return DV_E_FORMATETC;
            return format->tymed & given->format.tymed ? S_OK : DV_E_TYMED;
        }
        if (format->dwAspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
        if (format->lindex != -1) return DV_E_LINDEX;
        return format->tymed & TYMED_HGLOBAL ? S_OK : DV_E_TYMED;
    }

    StorageMedium Deliver(const FORMATETC& format) {
        if (!IsPageFormat(format.cfFormat)) return CopyOf(Find(format)->medium.Get());
        return host_ ? Render(host_.Get(), pages_) : CopyOf(rendered_.Get());
    }

    /// Takes a medium over when it is given away, once nothing can fail any more; else keeps a copy.
    void Keep(const FORMATETC& format, const STGMEDIUM& medium, bool givenAway) {
        Given fresh{format, givenAway ? StorageMedium() : CopyOf(medium)};
        fresh.format.tymed = medium.tymed;
        Given* place = Find(format);
        if (!place) place = &given_.emplace_back();
        if (givenAway) fresh.medium = StorageMedium(medium);
        std::swap(*place, fresh);  // releasing what was there may run foreign code: last of all
    }

    ComPtr<IVandraX> host_;  ///< null when rendered
    StorageMedium rendered_;
    std::vector<long> pages_;
    std::vector<Given> given_;
};

}  // namespace

ComPtr<IDataObject> MakePageDataObject(IVandraX* host, std::vector<long> pages, Rendering rendering) {
    return MakeObject<PageDataObject>(host, std::move(pages), rendering);
}

}  // namespace qz
