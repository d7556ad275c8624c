// A copy of what is stored, for whoever looks for a fault in it.
#pragma once

#include <string>
#include <string_view>

namespace qz {

enum class DebugCopy { Skipped, Written, Failed };

/// Writes the bytes to the file that the flat settings file `debugFile` names under `key`, in its empty
/// section. Skipped when there is no such file or key, or the name is empty. Failed when the copy cannot be
/// made or not whole, as on a full disk; what could be written stays.
DebugCopy WriteDebugCopy(const std::wstring& debugFile, std::string_view key, std::string_view bytes);

}  // namespace qz
