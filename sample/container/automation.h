// Late-bound calls by name, as a script makes them.
#pragma once

#include "com/object.h"

#include <comdef.h>

#include <vector>

namespace qz {

/// True when the object has a member of that name.
bool HasMember(IDispatch* object, const wchar_t* name);

/// Calls a method with arguments in their declared order. A failure throws with the object's own description.
_variant_t CallMethod(IDispatch* object, const wchar_t* name, std::vector<_variant_t> arguments = {});

_variant_t GetProperty(IDispatch* object, const wchar_t* name);
void PutProperty(IDispatch* object, const wchar_t* name, const _variant_t& value);

}  // namespace qz
