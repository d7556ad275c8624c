// A data object that delivers the same bytes in several formats, as another program's might.
#pragma once

#include "com/object.h"

#include <objidl.h>
#include <shlobj.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace qz {

class BytesObject final : public Object<BytesObject, IDataObject> {
  public:
    BytesObject(std::vector<CLIPFORMAT> formats, std::string bytes)
        : formats_(std::move(formats)), bytes_(std::move(bytes)) {}

    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (QueryGetData(format) != S_OK) return DV_E_FORMATETC;
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes_.size());
        if (!bytes_.empty()) {
            std::memcpy(GlobalLock(memory), bytes_.data(), bytes_.size());
            GlobalUnlock(memory);
        }
        *medium = {};
        medium->tymed = TYMED_HGLOBAL;
        medium->hGlobal = memory;
        return S_OK;
    }
    STDMETHODIMP QueryGetData(FORMATETC* format) override {
        return std::ranges::find(formats_, format->cfFormat) != formats_.end() ? S_OK : DV_E_FORMATETC;
    }
    STDMETHODIMP EnumFormatEtc(DWORD, IEnumFORMATETC** result) override {
        std::vector<FORMATETC> all;
        for (const CLIPFORMAT format : formats_)
            all.push_back({format, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL});
        return SHCreateStdEnumFmtEtc(static_cast<UINT>(all.size()), all.data(), result);
    }
    STDMETHODIMP GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    STDMETHODIMP DUnadvise(DWORD) override { return OLE_E_NOCONNECTION; }
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

  private:
    std::vector<CLIPFORMAT> formats_;
    std::string bytes_;
};

}  // namespace qz
