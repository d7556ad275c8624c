// The verbs of a control, as a container asks for them.
#pragma once

#include "com/object.h"

#include <oleidl.h>

namespace qz {

/// Every verb that `Control::DoVerb` carries out. None is for a container's menu, and so none of the names is
/// for users. The system's own enumerator reads the registry, which has none without registration.
ComPtr<IEnumOLEVERB> MakeVerbEnumerator();

}  // namespace qz
