#include "panes/status/status_reader.h"

#include "host/attributes.h"
#include "host/host_calls.h"
#include "host/late_bound.h"

namespace qz {

namespace {

bool SelectsObjects(long mode) { return mode == 1 || mode == 4; }

bool HoldsNothing(const VARIANT& value) { return value.vt == VT_EMPTY || value.vt == VT_NULL; }

_variant_t AttributeOf(LateBoundMember& attribute, IDispatch* object, const wchar_t* name) {
    return attribute.Get(object, {_variant_t(name)});
}

LateBoundMember AttributeMember() { return LateBoundMember(L"Attribute"); }

}  // namespace

PageSize ReadCurrentPageSize(IVandraX* host) {
    long width = 0;
    long height = 0;
    ThrowIfFailed(host->GetPageWidth(&width), L"The host does not tell the width of the page");
    ThrowIfFailed(host->GetPageHeight(&height), L"The host does not tell the height of the page");
    return {static_cast<std::int32_t>(width), static_cast<std::int32_t>(height)};
}

PagePosition ReadPagePosition(IVandraX* host) {
    const long page = CurrentPageOf(host);
    return {static_cast<std::int32_t>(page), static_cast<std::int32_t>(PageCountOf(host))};
}

std::int32_t ReadZoom(IVandraX* host) {
    long percent = 0;
    ThrowIfFailed(host->GetZoom(&percent), L"The host does not tell its zoom");
    return static_cast<std::int32_t>(percent);
}

ComPtr<IDispatch> ReadSelectedObject(IVandraX* host) {
    if (!SelectsObjects(ModeOf(host))) return nullptr;
    _variant_t current = CurrentObjectOf(host);
    if (HoldsNothing(current)) return nullptr;
    _variant_t object;
    ThrowIfFailed(VariantChangeType(&object, &current, 0, VT_DISPATCH),
                  L"What the host tells as the selected object is none");
    return object.pdispVal;
}

std::wstring ReadObjectName(IDispatch* object) {
    LateBoundMember attribute = AttributeMember();
    const _variant_t name = AttributeOf(attribute, object, L"Name");
    _variant_t text;
    ThrowIfFailed(VariantChangeType(&text, const_cast<_variant_t*>(&name), 0, VT_BSTR),  // only reads it
                  L"The object's name is not a text");
    return {text.bstrVal, SysStringLen(text.bstrVal)};
}

Rect ReadObjectRect(IDispatch* object) {
    LateBoundMember attribute = AttributeMember();
    const auto edge = [&](const wchar_t* name) {
        return static_cast<std::int32_t>(ToLong(AttributeOf(attribute, object, name)));
    };
    Rect rect;
    rect.left = edge(L"Left");
    rect.top = edge(L"Top");
    rect.right = edge(L"Right");
    rect.bottom = edge(L"Bottom");
    return rect;
}

}  // namespace qz
