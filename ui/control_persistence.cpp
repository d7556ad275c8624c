// IPersistStreamInit and IPersistPropertyBag, and saving on Close.
#include "ui/control.h"

#include "com/stream.h"

namespace qz {

namespace {

/// No events go out while properties are being loaded.
class FreezeScope {
  public:
    explicit FreezeScope(IOleControl& control) noexcept : control_(control) { control_.FreezeEvents(TRUE); }
    ~FreezeScope() { control_.FreezeEvents(FALSE); }
    FreezeScope(const FreezeScope&) = delete;
    FreezeScope& operator=(const FreezeScope&) = delete;

  private:
    IOleControl& control_;
};

}  // namespace

STDMETHODIMP Control::GetClassID(CLSID* classId) {
    if (!classId) return E_POINTER;
    *classId = ClassId();
    return S_OK;
}

STDMETHODIMP Control::IsDirty() { return dirty_ ? S_OK : S_FALSE; }

STDMETHODIMP Control::InitNew() {
    return Run(IID_IPersistStreamInit, [&] {
        if (loaded_) Throw(E_UNEXPECTED, L"The control has been loaded already");
        // A new control has its initial state since it was made; it has only never been saved.
        SetDirty(true);
    });
}

STDMETHODIMP Control::Load(IStream* stream) {
    return Run(IID_IPersistStreamInit, [&] {
        RequirePointer(stream);
        const std::vector<StoredProperty> stored = ReadSaved(stream);
        const SIZEL extent = SavedExtent(stored, ExtentHimetric());
        const FreezeScope freeze(*this);
        PutSaved(Self(), PersistentProperties(), stored);
        FinishLoading(extent);
    });
}

void Control::FinishLoading(SIZEL extent) {
    extent_ = extent;
    loaded_ = true;
    SetDirty(false);
    Invalidate();
}

STDMETHODIMP Control::Save(IStream* stream, BOOL clearDirty) {
    return Run(IID_IPersistStreamInit, [&] {
        RequirePointer(stream);
        WriteBytes(stream, SavedImage(Self(), PersistentProperties(), ExtentHimetric()));
        if (clearDirty) SetDirty(false);
    });
}

STDMETHODIMP Control::GetSizeMax(ULARGE_INTEGER* size) {
    return Run(IID_IPersistStreamInit, [&] {
        RequirePointer(size);
        size->QuadPart = 0;
        size->QuadPart = SavedImage(Self(), PersistentProperties(), ExtentHimetric()).size();
    });
}

STDMETHODIMP Control::Load(IPropertyBag* bag, IErrorLog* log) {
    return Run(IID_IPersistPropertyBag, [&] {
        RequirePointer(bag);
        const FreezeScope freeze(*this);
        PutFromBag(bag, log, Self(), PersistentProperties());
        FinishLoading(ExtentFromBag(bag, log, ExtentHimetric()));
    });
}

STDMETHODIMP Control::Save(IPropertyBag* bag, BOOL clearDirty, BOOL) {
    return Run(IID_IPersistPropertyBag, [&] {
        RequirePointer(bag);
        SaveInBag(bag, Self(), PersistentProperties(), ExtentHimetric());
        if (clearDirty) SetDirty(false);
    });
}

/// False when the user wants the control to stay open.
bool Control::SaveOnClose(DWORD saveOption) {
    const ComPtr<IOleClientSite> site = place_.Site();
    if (saveOption == OLECLOSE_NOSAVE || !dirty_ || !site) return true;
    const int choice = saveOption == OLECLOSE_PROMPTSAVE ? AskToSave() : IDYES;
    if (choice != IDYES) return choice != IDCANCEL;
    const HRESULT saved = site->SaveObject();
    if (saved == E_NOTIMPL) return true;  // a container that never saves its controls
    ThrowIfFailed(saved, L"The container cannot save the control");
    if (const ComPtr<IOleAdviseHolder> holder = adviseHolder_) holder->SendOnSave();
    return true;
}

}  // namespace qz
