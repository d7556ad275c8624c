// IOleObject: the control as its container's document sees it.
#include "ui/control.h"

#include "com/text.h"
#include "ui/ole_verbs.h"

namespace qz {

namespace {

constexpr const wchar_t* applicationName = L"qzVandraExt";

void RequireContentAspect(DWORD aspect) {
    if (aspect != DVASPECT_CONTENT) Throw(DV_E_DVASPECT, L"The control shows its content only");
}

IOleAdviseHolder* HolderIn(ComPtr<IOleAdviseHolder>& holder) {
    if (!holder) ThrowIfFailed(CreateOleAdviseHolder(&holder), L"No advise holder could be made");
    return holder.Get();
}

}  // namespace

STDMETHODIMP Control::SetClientSite(IOleClientSite* site) {
    return Run(IID_IOleObject, [&] {
        if (site == place_.Site()) return;
        const ComPtr<IOleClientSite> before = place_.PutSite(site);
        if (place_.Site()) OnAmbientChanged(DISPID_UNKNOWN);
    });
}

STDMETHODIMP Control::GetClientSite(IOleClientSite** site) {
    if (!site) return E_POINTER;
    *site = nullptr;
    return Run(IID_IOleObject, [&] { ComPtr<IOleClientSite>(place_.Site()).CopyTo(site); });
}

STDMETHODIMP Control::SetHostNames(LPCOLESTR, LPCOLESTR) {
    return S_OK;  // only servers with windows of their own show them
}

STDMETHODIMP Control::Close(DWORD saveOption) {
    return Run(IID_IOleObject, [&]() -> HRESULT {
        if (saveOption > OLECLOSE_PROMPTSAVE) Throw(E_INVALIDARG, L"An unknown way to close");
        if (!SaveOnClose(saveOption)) return OLE_E_PROMPTSAVECANCELLED;
        place_.End();
        if (const ComPtr<IOleAdviseHolder> holder = adviseHolder_) holder->SendOnClose();
        return S_OK;
    });
}

STDMETHODIMP Control::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }  // nothing can link inside

STDMETHODIMP Control::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
    if (!moniker) return E_POINTER;
    *moniker = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP Control::InitFromData(IDataObject*, BOOL, DWORD) { return E_NOTIMPL; }

STDMETHODIMP Control::GetClipboardData(DWORD, IDataObject** data) {
    if (!data) return E_POINTER;
    *data = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP Control::EnumVerbs(IEnumOLEVERB** verbs) {
    if (!verbs) return E_POINTER;
    *verbs = nullptr;
    return Run(IID_IOleObject, [&] { *verbs = MakeVerbEnumerator().Detach(); });
}

STDMETHODIMP Control::Update() { return S_OK; }

STDMETHODIMP Control::IsUpToDate() { return S_OK; }

STDMETHODIMP Control::GetUserClassID(CLSID* classId) { return GetClassID(classId); }

STDMETHODIMP Control::GetUserType(DWORD form, LPOLESTR* text) {
    if (!text) return E_POINTER;
    *text = nullptr;
    return Run(IID_IOleObject,
               [&] { *text = MakeTaskText(form == USERCLASSTYPE_APPNAME ? applicationName : Title()); });
}

STDMETHODIMP Control::SetExtent(DWORD aspect, SIZEL* extent) {
    return Run(IID_IOleObject, [&] {
        RequirePointer(extent);
        RequireContentAspect(aspect);
        if (extent->cx < 0 || extent->cy < 0) Throw(E_INVALIDARG, L"An extent cannot be negative");
        const SIZEL now = ExtentHimetric();
        if (now.cx == extent->cx && now.cy == extent->cy) return;
        extent_ = *extent;
        SetDirty(true);
        ViewChanged();
    });
}

STDMETHODIMP Control::GetExtent(DWORD aspect, SIZEL* extent) {
    return Run(IID_IOleObject, [&] {
        RequirePointer(extent);
        *extent = {};
        RequireContentAspect(aspect);
        *extent = ExtentHimetric();
    });
}

STDMETHODIMP Control::Advise(IAdviseSink* sink, DWORD* cookie) {
    if (!cookie) return E_POINTER;
    *cookie = 0;
    return Run(IID_IOleObject, [&] {
        RequirePointer(sink);
        return HolderIn(adviseHolder_)->Advise(sink, cookie);
    });
}

STDMETHODIMP Control::Unadvise(DWORD cookie) {
    return Run(IID_IOleObject, [&]() -> HRESULT {
        return adviseHolder_ ? adviseHolder_->Unadvise(cookie) : OLE_E_NOCONNECTION;
    });
}

STDMETHODIMP Control::EnumAdvise(IEnumSTATDATA** advises) {
    if (!advises) return E_POINTER;
    *advises = nullptr;
    return Run(IID_IOleObject, [&] { return HolderIn(adviseHolder_)->EnumAdvise(advises); });
}

STDMETHODIMP Control::GetMiscStatus(DWORD aspect, DWORD* status) {
    if (!status) return E_POINTER;
    *status = aspect == DVASPECT_CONTENT ? controlMiscStatus : 0;  // as registered
    return S_OK;
}

STDMETHODIMP Control::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

}  // namespace qz
