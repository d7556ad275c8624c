// Type descriptions from this module's own type library (resource 1).
#pragma once

#include "com/object.h"

namespace qz {

/// The description of an interface or coclass by its id. Throws when the library lacks it.
ComPtr<ITypeInfo> LoadTypeInfo(REFGUID id);

}  // namespace qz
