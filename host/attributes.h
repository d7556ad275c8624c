// Reading and writing the attributes of host objects by path and name.
#pragma once

#include "com/text.h"

#include "generated/vandra_x.h"

#include <comdef.h>

#include <string>
#include <string_view>

namespace qz {

/// The value of an attribute. Throws the host's failure.
_variant_t ReadAttribute(IVandraX* host, std::wstring_view path, std::wstring_view attribute);

/// The same in bulk: the texts are made beforehand, and `value` serves one attribute after the other. When
/// this throws, it holds nothing of use.
void ReadAttribute(IVandraX* host, BSTR path, BSTR attribute, _variant_t& value);

/// Writes an attribute. Throws the host's failure.
void WriteAttribute(IVandraX* host, std::wstring_view path, std::wstring_view attribute,
                    const _variant_t& value);

/// A value of any numeric type, or a text that spells a number, as a 32-bit integer; DISP_E_TYPEMISMATCH or
/// DISP_E_OVERFLOW is thrown for anything else, with `failure` as its text.
long ToLong(const VARIANT& value, const wchar_t* failure = L"A value of the host is not a number");

/// A value as a text, written as any user would read it; empty for no value. DISP_E_TYPEMISMATCH is thrown
/// for what is no text.
std::wstring ToText(const VARIANT& value);

}  // namespace qz
