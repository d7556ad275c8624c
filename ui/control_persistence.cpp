// The control's properties in streams and property bags.
#include "ui/control.h"

#include "com/stream.h"
#include "ui/property_values.h"

#include <algorithm>
#include <array>
#include <exception>
#include <string_view>

namespace qz {

namespace {

// The extent is saved with the properties, under names that no automation property has.
constexpr wchar_t widthName[] = L"_cx";
constexpr wchar_t heightName[] = L"_cy";

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

std::u16string Stored(std::wstring_view text) { return {text.begin(), text.end()}; }

ComPtr<IDispatch> DispatchOf(IUnknown* control) {
    ComPtr<IDispatch> dispatch;
    ThrowIfFailed(control->QueryInterface(IID_PPV_ARGS(&dispatch)), L"The control has no properties");
    return dispatch;
}

[[noreturn]] void ThrowUnreadable(const BadPropertyImage& image) {
    switch (image.reason) {
        case BadPropertyImage::Reason::notOurs:
            Throw(STG_E_INVALIDHEADER, L"The stream does not hold a control's properties");
        case BadPropertyImage::Reason::newerVersion:
            Throw(STG_E_OLDDLL, L"The properties were saved by a newer version");
        case BadPropertyImage::Reason::damaged:
            break;
    }
    Throw(STG_E_DOCFILECORRUPT, L"The saved properties are damaged");
}

std::vector<StoredProperty> ReadProperties(IStream* stream) {
    std::array<std::byte, propertyImageHeaderSize> head;
    ReadBytes(stream, head);
    try {
        const PropertyImageHeader header = DecodeHeader(head);
        std::vector<std::byte> body(header.bodySize);
        ReadBytes(stream, body);
        return DecodeBody(header, body);
    } catch (const BadPropertyImage& image) {
        ThrowUnreadable(image);
    }
}

void LogError(IErrorLog* log, const wchar_t* name, HRESULT code, const std::wstring& text) {
    if (!log) return;
    _bstr_t description(text.c_str());
    EXCEPINFO exception{};
    exception.bstrDescription = description.GetBSTR();
    exception.scode = code;
    log->AddError(name, &exception);
}

/// A property and the value that it is to have.
struct Assignment {
    const PersistentProperty* property;
    _variant_t value;
};

void Put(IDispatch* control, const Assignment& assignment) {
    PutProperty(control, assignment.property->id, assignment.value);
}

/// All or none: what was set before a failure is set back.
void PutAll(IDispatch* control, std::span<const Assignment> assignments) {
    std::vector<Assignment> before;
    try {
        for (const Assignment& assignment : assignments) {
            before.push_back({assignment.property, GetProperty(control, assignment.property->id)});
            Put(control, assignment);
        }
    } catch (...) {
        const std::exception_ptr failure = std::current_exception();
        for (const Assignment& assignment : before) {
            // A property that does not even take its own value back keeps the other one.
            Guard(IID_NULL, [&] { Put(control, assignment); });
        }
        std::rethrow_exception(failure);
    }
}

const StoredProperty* Find(const std::vector<StoredProperty>& stored, std::wstring_view name) {
    const auto found = std::ranges::find(stored, Stored(name), &StoredProperty::name);
    return found == stored.end() ? nullptr : &*found;
}

LONG StoredLength(const std::vector<StoredProperty>& stored, const wchar_t* name, LONG otherwise) {
    const StoredProperty* found = Find(stored, name);
    if (!found) return otherwise;
    const LONG length = FromStored(found->value, VT_I4).lVal;
    if (length < 0) Throw(STG_E_DOCFILECORRUPT, L"The saved extent is negative");
    return length;
}

/// A property from a bag; nothing when the bag lacks it or has something that is no such value.
std::optional<_variant_t> ReadFromBag(IPropertyBag* bag, IErrorLog* log, const wchar_t* name, VARTYPE type) {
    _variant_t value;
    value.vt = type;  // tells the bag which type is wanted
    const HRESULT result = bag->Read(name, &value, log);
    if (result == E_INVALIDARG) return {};
    if (SUCCEEDED(result) && TryCoerce(value, type)) return value;
    const HRESULT code = FAILED(result) ? result : DISP_E_TYPEMISMATCH;
    LogError(log, name, code, std::wstring(L"The saved value of ") + name + L" is not usable");
    return {};
}

LONG LengthFromBag(IPropertyBag* bag, IErrorLog* log, const wchar_t* name, LONG otherwise) {
    const auto length = ReadFromBag(bag, log, name, VT_I4);
    if (!length) return otherwise;
    if (length->lVal >= 0) return length->lVal;
    LogError(log, name, E_INVALIDARG, L"A saved extent is negative");
    return otherwise;
}

/// A container that saved nonsense gets the default and a line in its log.
void PutOrLog(IDispatch* control, IErrorLog* log, const Assignment& assignment) {
    try {
        Put(control, assignment);
    } catch (const ComError& error) {
        LogError(log, assignment.property->name, error.code, error.text);
    }
}

void WriteToBag(IPropertyBag* bag, const wchar_t* name, VARIANT value) {
    ThrowIfFailed(bag->Write(name, &value), L"The property bag takes no value");
}

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
        Apply(ReadProperties(stream));
    });
}

void Control::Apply(const std::vector<StoredProperty>& stored) {
    SIZEL extent = ExtentHimetric();
    extent.cx = StoredLength(stored, widthName, extent.cx);
    extent.cy = StoredLength(stored, heightName, extent.cy);
    std::vector<Assignment> assignments;
    for (const PersistentProperty& property : PersistentProperties()) {
        const StoredProperty* found = Find(stored, property.name);
        if (found) assignments.push_back({&property, FromStored(found->value, property.type)});
    }
    const FreezeScope freeze(*this);
    if (!assignments.empty()) PutAll(DispatchOf(Self()).Get(), assignments);
    FinishLoading(extent);
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
        WriteBytes(stream, Image());
        if (clearDirty) SetDirty(false);
    });
}

STDMETHODIMP Control::GetSizeMax(ULARGE_INTEGER* size) {
    return Run(IID_IPersistStreamInit, [&] {
        RequirePointer(size);
        size->QuadPart = 0;
        size->QuadPart = Image().size();
    });
}

/// The bytes that Save writes.
std::vector<std::byte> Control::Image() {
    const SIZEL extent = ExtentHimetric();
    std::vector<StoredProperty> stored = {{Stored(widthName), std::int64_t{extent.cx}},
                                          {Stored(heightName), std::int64_t{extent.cy}}};
    const auto properties = PersistentProperties();
    const ComPtr<IDispatch> dispatch = properties.empty() ? nullptr : DispatchOf(Self());
    for (const PersistentProperty& property : properties) {
        const _variant_t value = GetProperty(dispatch.Get(), property.id);
        stored.push_back({Stored(property.name), ToStored(value, property.type)});
    }
    try {
        return EncodeProperties(stored);
    } catch (const BadPropertyImage&) {
        Throw(E_FAIL, L"The properties are too long to be saved");
    }
}

STDMETHODIMP Control::Load(IPropertyBag* bag, IErrorLog* log) {
    return Run(IID_IPersistPropertyBag, [&] {
        RequirePointer(bag);
        const FreezeScope freeze(*this);
        const ComPtr<IDispatch> dispatch = DispatchOf(Self());
        for (const PersistentProperty& property : PersistentProperties()) {
            const auto value = ReadFromBag(bag, log, property.name, property.type);
            if (value) PutOrLog(dispatch.Get(), log, {&property, *value});
        }
        SIZEL extent = ExtentHimetric();
        extent.cx = LengthFromBag(bag, log, widthName, extent.cx);
        extent.cy = LengthFromBag(bag, log, heightName, extent.cy);
        FinishLoading(extent);
    });
}

STDMETHODIMP Control::Save(IPropertyBag* bag, BOOL clearDirty, BOOL) {
    return Run(IID_IPersistPropertyBag, [&] {
        RequirePointer(bag);
        const ComPtr<IDispatch> dispatch = DispatchOf(Self());
        for (const PersistentProperty& property : PersistentProperties()) {
            _variant_t value = GetProperty(dispatch.Get(), property.id);
            Coerce(value, property.type);
            WriteToBag(bag, property.name, value);
        }
        const SIZEL extent = ExtentHimetric();
        WriteToBag(bag, widthName, _variant_t(extent.cx));
        WriteToBag(bag, heightName, _variant_t(extent.cy));
        if (clearDirty) SetDirty(false);
    });
}

/// False when the user wants the control to stay open.
bool Control::SaveOnClose(DWORD saveOption) {
    const ComPtr<IOleClientSite> site = site_;
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
