// The objects of a host's document and their attributes, as they are called by name.
#pragma once

#include "host/late_bound.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// Members that every object of a host has (docs/host-contract.md). One instance serves one host; every
/// function throws the object's failure. Not thread-safe.
class HostObjects {
  public:
    std::wstring Name(IDispatch* object);
    std::wstring Path(IDispatch* object);
    _variant_t Attribute(IDispatch* object, std::wstring_view name);
    void SetAttribute(IDispatch* object, std::wstring_view name, const _variant_t& value);
    /// Non-zero: changes of the object are drawn at once.
    long Redraw(IDispatch* object);
    void SetRedraw(IDispatch* object, long redraw);
    void Refresh(IDispatch* object);
    void Update(IDispatch* object, long redraw);
    /// The object's collection of attributes.
    ComPtr<IDispatch> Attributes(IDispatch* object);

  private:
    LateBoundMember name_{L"Name"}, path_{L"Path"}, attribute_{L"Attribute"}, redraw_{L"Redraw"},
        refresh_{L"Refresh"}, update_{L"Update"}, attributes_{L"Attributes"};
};

/// Members of the attribute objects of one host, which must answer the host's attribute interface:
/// see `RequireAttribute`.
class HostAttributes {
  public:
    long Category(IDispatch* attribute) { return Number(category_, attribute); }
    long Flags(IDispatch* attribute) { return Number(flags_, attribute); }
    long Index(IDispatch* attribute) { return Number(index_, attribute); }
    long Type(IDispatch* attribute) { return Number(type_, attribute); }
    std::wstring Name(IDispatch* attribute);
    std::wstring Description(IDispatch* attribute);
    _variant_t Value(IDispatch* attribute) { return value_.Get(attribute); }
    void SetValue(IDispatch* attribute, const _variant_t& value) { value_.Put(attribute, value); }
    /// The labels of an enumeration; none for other types.
    std::vector<std::wstring> Choices(IDispatch* attribute);

  private:
    static long Number(LateBoundMember& member, IDispatch* attribute);

    LateBoundMember category_{L"Category"}, flags_{L"Flags"}, name_{L"Name"}, index_{L"Index"},
        type_{L"Type"}, description_{L"Description"}, value_{L"Value"}, choices_{L"Choices"};
};

/// The attribute that a collection gave out. Throws when it is none: E_NOINTERFACE for an object that does
/// not answer the attribute interface.
ComPtr<IDispatch> RequireAttribute(const VARIANT& element);

/// An element by its 0-based index, and the elements in their order, of any collection of the host. Throws
/// the collection's failure, and what `visit` throws; `visit` gives false to end the walk.
_variant_t ItemOf(IDispatch* collection, long index);
void ForEachItem(IDispatch* collection, const std::function<bool(const VARIANT& item)>& visit);

/// The objects of an array of object references or of variants that hold them; empty elements are left out.
/// None for an empty value; DISP_E_TYPEMISMATCH is thrown for anything else.
std::vector<ComPtr<IDispatch>> ObjectsOf(const VARIANT& value);

/// The object that a variant refers to, or null.
ComPtr<IDispatch> ObjectOf(const VARIANT& value);

}  // namespace qz
