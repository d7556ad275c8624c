// Class objects: one factory type over a table of classes.
#pragma once

#include "com/object.h"

#include <span>

namespace qz {

/// How a class is made: gives an interface of a new object. Throws or returns a failure.
using CreateFunction = HRESULT (*)(REFIID iid, void** object);

/// A CreateFunction for any object type.
template <class T>
HRESULT CreateInstanceOf(REFIID iid, void** object) {
    return MakeObject<T>()->QueryInterface(iid, object);
}

/// The class object of a class made by `create`. CLASS_E_NOAGGREGATION when an outer object is given.
HRESULT MakeClassFactory(CreateFunction create, REFIID iid, void** factory) noexcept;

}  // namespace qz
