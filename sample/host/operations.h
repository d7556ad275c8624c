// The operations that the host counts, logs and lets fail: those of its dual interface by place, and the
// members of its objects that are called by name.
#pragma once

#include "generated/host_places.h"  // enum class Place, placeNames, firstPlace: from the host's IDL

#include <array>
#include <optional>
#include <string_view>

namespace qz::sample {

/// Members called late-bound; their names in the log and in faults are those of `lateBoundNames`.
enum class LateBound {
    ObjectName,
    ObjectPath,
    ObjectAttributes,
    ObjectAttribute,
    ObjectRedraw,
    ObjectRefresh,
    ObjectUpdate,
    AttributesCount,
    AttributesItem,
    AttributesNewEnum,
    AttributeReading,
    AttributeValue,
    BookmarkCount,
    BookmarkItem,
    BookmarkNewEnum,
    BookmarkTitle,
    BookmarkActivate,
    BookmarkEdit,
    HostEncrypt,
    HostEncrypt128,
    HostCreateObject,
    HostSelectObjects,
    HostSelectedObjects,
    HostSetScopedAttribute,
    HostSettingsKeyPath,
    StreamLoad,
    StreamSave,
    Last = StreamSave
};

constexpr std::array lateBoundNames = {
    L"Object.Name",       L"Object.Path",         L"Object.Attributes", L"Object.Attribute",
    L"Object.Redraw",     L"Object.Refresh",      L"Object.Update",     L"Attributes.Count",
    L"Attributes.Item",   L"Attributes._NewEnum", L"Attribute.Reading", L"Attribute.Value",
    L"Bookmark.Count",    L"Bookmark.Item",       L"Bookmark._NewEnum", L"Bookmark.Title",
    L"Bookmark.Activate", L"Bookmark.Edit",       L"Encrypt",           L"Encrypt128",
    L"CreateObject",      L"SelectObjects",       L"SelectedObjects",   L"SetScopedAttribute",
    L"SettingsKeyPath",   L"Stream.Load",         L"Stream.Save"};
static_assert(lateBoundNames.size() == static_cast<size_t>(LateBound::Last) + 1);

/// One number for all of them: the places first.
struct Operation {
    constexpr Operation(Place place) : number(static_cast<size_t>(place)) {}
    constexpr Operation(LateBound member)
        : number(firstPlace + placeNames.size() + static_cast<size_t>(member)) {}

    size_t number;
    static constexpr size_t count = firstPlace + placeNames.size() + lateBoundNames.size();
};

/// The operation of that name; empty when there is none.
std::optional<Operation> FindOperation(std::wstring_view name);
std::wstring_view NameOf(Operation operation);

}  // namespace qz::sample
