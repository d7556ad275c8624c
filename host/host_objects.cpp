#include "host/host_objects.h"

#include "host/array_elements.h"
#include "host/attributes.h"
#include "com/text.h"

namespace qz {

namespace {

/// Calls a member of a collection by the dispatch id that all collections have it at.
_variant_t CallCollection(IDispatch* collection, DISPID id, DISPPARAMS parameters, const wchar_t* failure) {
    if (!collection) Throw(E_POINTER, L"There is no collection");
    _variant_t result;
    ThrowIfFailed(
        collection->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET | DISPATCH_METHOD,
                           &parameters, &result, nullptr, nullptr),
        failure);
    return result;
}

}  // namespace

std::wstring HostObjects::Name(IDispatch* object) { return ToText(name_.Get(object)); }
std::wstring HostObjects::Path(IDispatch* object) { return ToText(path_.Get(object)); }

_variant_t HostObjects::Attribute(IDispatch* object, std::wstring_view name) {
    return attribute_.Get(object, {TextVariant(name)});
}

void HostObjects::SetAttribute(IDispatch* object, std::wstring_view name, const _variant_t& value) {
    attribute_.Put(object, value, {TextVariant(name)});
}

long HostObjects::Redraw(IDispatch* object) { return ToLong(redraw_.Get(object)); }
void HostObjects::SetRedraw(IDispatch* object, long redraw) { redraw_.Put(object, redraw); }
void HostObjects::Refresh(IDispatch* object) { refresh_.Call(object); }
void HostObjects::Update(IDispatch* object, long redraw) { update_.Call(object, {_variant_t(redraw)}); }

ComPtr<IDispatch> HostObjects::Attributes(IDispatch* object) {
    ComPtr<IDispatch> attributes = ObjectOf(attributes_.Get(object));
    if (!attributes) Throw(E_NOINTERFACE, L"A host object has no collection of attributes");
    return attributes;
}

long HostAttributes::Number(LateBoundMember& member, IDispatch* attribute) {
    return ToLong(member.Get(attribute));
}

std::wstring HostAttributes::Name(IDispatch* attribute) { return ToText(name_.Get(attribute)); }
std::wstring HostAttributes::Description(IDispatch* attribute) { return ToText(description_.Get(attribute)); }

std::vector<std::wstring> HostAttributes::Choices(IDispatch* attribute) {
    const _variant_t labels = choices_.Get(attribute);
    std::vector<std::wstring> texts;
    if (labels.vt == VT_EMPTY || labels.vt == VT_NULL) return texts;
    for (const _variant_t& label : ElementsOf(labels)) texts.push_back(ToText(label));
    return texts;
}

ComPtr<IDispatch> RequireAttribute(const VARIANT& element) {
    ComPtr<IDispatch> attribute = ObjectOf(element);
    ComPtr<IVandraAttribute> known;
    if (!attribute || FAILED(attribute.As(&known))) {
        Throw(E_NOINTERFACE, L"An element of a host object's attributes is no attribute");
    }
    return attribute;
}

_variant_t ItemOf(IDispatch* collection, long index) {
    _variant_t argument(index);
    return CallCollection(collection, DISPID_VALUE, {&argument, nullptr, 1, 0},
                          L"The host's collection does not give an element");
}

void ForEachItem(IDispatch* collection, const std::function<bool(const VARIANT& item)>& visit) {
    const _variant_t enumerator =
        CallCollection(collection, DISPID_NEWENUM, {}, L"The host's collection has no enumerator");
    ComPtr<IEnumVARIANT> items;
    const bool known = enumerator.vt == VT_UNKNOWN || enumerator.vt == VT_DISPATCH;
    if (!known || !enumerator.punkVal || FAILED(enumerator.punkVal->QueryInterface(IID_PPV_ARGS(&items)))) {
        Throw(E_NOINTERFACE, L"The host's collection has no enumerator");
    }
    for (;;) {
        _variant_t item;
        const HRESULT result = items->Next(1, &item, nullptr);
        ThrowIfFailed(result, L"The host's collection ends with an error");
        if (result != S_OK || !visit(item)) return;
    }
}

std::vector<ComPtr<IDispatch>> ObjectsOf(const VARIANT& value) {
    std::vector<ComPtr<IDispatch>> objects;
    if (value.vt == VT_EMPTY || value.vt == VT_NULL) return objects;
    for (const _variant_t& element : ElementsOf(value)) {
        if (ComPtr<IDispatch> object = ObjectOf(element)) objects.push_back(std::move(object));
    }
    return objects;
}

ComPtr<IDispatch> ObjectOf(const VARIANT& value) {
    const VARIANT* plain = &value;
    if (plain->vt == (VT_VARIANT | VT_BYREF)) plain = plain->pvarVal;
    IUnknown* unknown = nullptr;
    if (plain && (plain->vt == VT_DISPATCH || plain->vt == VT_UNKNOWN)) unknown = plain->punkVal;
    if (plain && (plain->vt == (VT_DISPATCH | VT_BYREF) || plain->vt == (VT_UNKNOWN | VT_BYREF))) {
        unknown = plain->ppunkVal ? *plain->ppunkVal : nullptr;
    }
    ComPtr<IDispatch> object;
    if (unknown) unknown->QueryInterface(IID_PPV_ARGS(&object));
    return object;
}

}  // namespace qz
