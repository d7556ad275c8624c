// Flat settings files from disk, and their values as automation has them.
#pragma once

#include "settings/flat_file.h"

#include <windows.h>
#include <oaidl.h>

#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// Nothing when there is no such file or it cannot be read. The file is UTF-8, with its mark or without, or,
/// when it is not valid as that, in the system's code page.
std::optional<FlatFile> ReadFlatFile(const std::wstring& path);

/// Gives the value as VT_I4 or VT_BSTR in `value`, which held nothing. False, and VT_EMPTY, when the key is
/// absent. Throws ComError: E_INVALIDARG for another type, E_OUTOFMEMORY.
bool LookUp(const FlatFile& file, std::string_view section, std::string_view key, VARTYPE type,
            VARIANT& value);

/// A text of a file, as Windows has it.
std::wstring WideText(std::string_view utf8);

}  // namespace qz
