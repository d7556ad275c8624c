// Arrays that a host gives as values.
#pragma once

#include <windows.h>
#include <comdef.h>

#include <vector>

namespace qz {

/// The elements of an array of one dimension, whatever their type; DISP_E_TYPEMISMATCH is thrown for anything
/// else.
std::vector<_variant_t> ElementsOf(const VARIANT& value);

}  // namespace qz
