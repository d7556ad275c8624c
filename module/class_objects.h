// The classes that the module makes objects of.
#pragma once

#include "com/class_factory.h"

namespace qz {

/// A class of the class table that is served.
struct ClassObject {
    const CLSID* classId;
    CreateFunction create;
    void (*startUp)();  // called once before the first object; null: nothing to prepare
};

std::span<const ClassObject> ClassObjects();

/// Null when the module does not serve the class.
const ClassObject* FindClassObject(REFCLSID classId);

}  // namespace qz
