// Values of a host as an editor shows them, whatever their type.
#pragma once

#include <windows.h>
#include <oaidl.h>

#include <cstdint>
#include <optional>
#include <string>

namespace qz {

// Nothing for what does not convert, for no value, and for an object, which is not asked for a value of its
// own. Texts that spell numbers do so with a full stop, whatever the user's locale. None of these throws for
// a value's sake.

std::optional<double> ShownReal(const VARIANT& value);
/// A fraction is rounded.
std::optional<std::int64_t> ShownInteger(const VARIANT& value);
std::optional<std::wstring> ShownText(const VARIANT& value);

}  // namespace qz
