// Arrays as automation passes them: of any element type, also of variants, and by reference.
#pragma once

#include <windows.h>
#include <comdef.h>

#include <vector>

namespace qz {

/// The value behind references to variants.
const VARIANT& LookThrough(const VARIANT& value) noexcept;

/// Whether `ElementsOf` takes the value.
bool IsList(const VARIANT& value) noexcept;

/// The elements of an array of one dimension, whatever their type; DISP_E_TYPEMISMATCH is thrown for anything
/// else.
std::vector<_variant_t> ElementsOf(const VARIANT& value);

}  // namespace qz
