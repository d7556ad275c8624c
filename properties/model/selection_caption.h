// What the inspector calls the selection.
#pragma once

#include <optional>
#include <string>

namespace qz {

/// The name of the inspected object, or what stands for it when there is none, when it has no name, or when
/// several objects are selected. `selected` is how many the host says there are, if it does.
std::wstring SelectionCaption(bool hasObject, std::optional<long> selected, const std::wstring& name);

}  // namespace qz
