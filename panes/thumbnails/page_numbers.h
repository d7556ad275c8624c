// Page numbers as automation passes them: arrays of integers.
#pragma once

#include "com/object.h"

#include <comdef.h>

#include <span>
#include <vector>

namespace qz {

/// The numbers in a one-dimensional array of integers, or of variants that hold numbers, also when the array
/// or the variant around it comes by reference. Throws DISP_E_TYPEMISMATCH for anything but such an array,
/// E_INVALIDARG for another number of dimensions, the conversion's failure for an element that is no number.
std::vector<long> PageNumbersOf(const VARIANT& value);

/// A one-dimensional array of VT_I4.
_variant_t MakePageNumbers(std::span<const long> pages);
/// The same of VT_VARIANT, for script languages.
_variant_t MakePageVariants(std::span<const long> pages);

}  // namespace qz
