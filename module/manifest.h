// The registration-free manifest: an application that ships it beside its own program and names the assembly
// "qzVandraExt.X" in its manifest can create the classes without registering the module.
#pragma once

#include "module/class_table.h"

#include <string>

namespace qz {

/// The manifest for those classes of a table that are served, as UTF-8 text.
std::string WriteManifest(std::span<const ClassRow> classes);

}  // namespace qz
