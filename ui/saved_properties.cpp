#include "ui/saved_properties.h"

#include "com/stream.h"
#include "ui/property_values.h"

#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <string_view>

namespace qz {

namespace {

// The extent is saved with the properties, under names that no automation property has.
constexpr wchar_t widthName[] = L"_cx";
constexpr wchar_t heightName[] = L"_cy";

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

std::vector<StoredProperty> ReadSaved(IStream* stream) {
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

SIZEL SavedExtent(const std::vector<StoredProperty>& stored, SIZEL otherwise) {
    return {StoredLength(stored, widthName, otherwise.cx), StoredLength(stored, heightName, otherwise.cy)};
}

void PutSaved(IUnknown* control, PropertyTable properties, const std::vector<StoredProperty>& stored) {
    std::vector<Assignment> assignments;
    for (const PersistentProperty& property : properties) {
        const StoredProperty* found = Find(stored, property.name);
        if (found) assignments.push_back({&property, FromStored(found->value, property.type)});
    }
    if (!assignments.empty()) PutAll(DispatchOf(control).Get(), assignments);
}

std::vector<std::byte> SavedImage(IUnknown* control, PropertyTable properties, SIZEL extent) {
    std::vector<StoredProperty> stored = {{Stored(widthName), std::int64_t{extent.cx}},
                                          {Stored(heightName), std::int64_t{extent.cy}}};
    const ComPtr<IDispatch> dispatch = properties.empty() ? nullptr : DispatchOf(control);
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

void PutFromBag(IPropertyBag* bag, IErrorLog* log, IUnknown* control, PropertyTable properties) {
    const ComPtr<IDispatch> dispatch = DispatchOf(control);
    for (const PersistentProperty& property : properties) {
        const auto value = ReadFromBag(bag, log, property.name, property.type);
        if (value) PutOrLog(dispatch.Get(), log, {&property, *value});
    }
}

SIZEL ExtentFromBag(IPropertyBag* bag, IErrorLog* log, SIZEL otherwise) {
    const LONG width = LengthFromBag(bag, log, widthName, otherwise.cx);
    return {width, LengthFromBag(bag, log, heightName, otherwise.cy)};
}

void SaveInBag(IPropertyBag* bag, IUnknown* control, PropertyTable properties, SIZEL extent) {
    const ComPtr<IDispatch> dispatch = DispatchOf(control);
    for (const PersistentProperty& property : properties) {
        _variant_t value = GetProperty(dispatch.Get(), property.id);
        Coerce(value, property.type);
        WriteToBag(bag, property.name, value);
    }
    WriteToBag(bag, widthName, _variant_t(extent.cx));
    WriteToBag(bag, heightName, _variant_t(extent.cy));
}

}  // namespace qz
