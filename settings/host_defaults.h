// The host's defaults from a flat settings file.
#pragma once

#include "generated/vandra_x.h"

#include <string>

namespace qz {

/// Writes each known setting that the file holds, in its empty section, to the host's "Document", in a fixed
/// order. False, and nothing is written, when the file cannot be read. A setting that the host refuses ends
/// it: its failure is thrown as ComError and names the setting, those before are written and stay.
bool ApplyHostDefaults(IVandraX* host, const std::wstring& path);

}  // namespace qz
