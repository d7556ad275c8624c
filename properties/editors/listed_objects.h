// Objects of a host as editors list them.
#pragma once

#include "host/host_objects.h"
#include "properties/model/object_types.h"

#include <span>
#include <string>
#include <vector>

namespace qz {

struct ListedObject {
    ComPtr<IDispatch> object;
    std::wstring path;  ///< Empty when the object does not tell it.
    std::wstring label;
};

/// By path: a host may give out a new reference each time. Objects without one, which are gone, are all the
/// same.
inline bool IsSame(const ListedObject& one, const ListedObject& other) noexcept {
    return one.path == other.path;
}

/// The names of object types; the same in every language.
const ObjectTypeNames& HostObjectTypes();

// What cannot be read of an object is left out. All of these call the host.

/// By its description; without one by its name, its type, its path; "<no-name>" for one that is gone.
ListedObject ListAction(HostObjects& objects, const ComPtr<IDispatch>& action);
/// By its name; without one by its path; "<no-name>" for one that is gone.
ListedObject ListByName(HostObjects& objects, const ComPtr<IDispatch>& object);
/// Name and type.
std::wstring NameAndType(HostObjects& objects, IDispatch* object);

/// The objects of a value; none for what is no array of objects.
std::vector<ComPtr<IDispatch>> ObjectsIn(const VARIANT& value);
/// The array of object references that a host takes.
_variant_t ToObjectArray(std::span<const ListedObject> list);

}  // namespace qz
