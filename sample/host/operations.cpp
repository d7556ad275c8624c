#include "sample/host/operations.h"

#include <algorithm>

namespace qz::sample {

std::wstring_view NameOf(Operation operation) {
    const size_t index = operation.number - firstPlace;
    return index < placeNames.size() ? placeNames[index] : lateBoundNames[index - placeNames.size()];
}

std::optional<Operation> FindOperation(std::wstring_view name) {
    const auto isName = [name](const wchar_t* other) { return name == other; };
    if (const auto place = std::ranges::find_if(placeNames, isName); place != placeNames.end()) {
        return Operation(static_cast<Place>(firstPlace + static_cast<size_t>(place - placeNames.begin())));
    }
    if (const auto member = std::ranges::find_if(lateBoundNames, isName); member != lateBoundNames.end()) {
        return Operation(static_cast<LateBound>(member - lateBoundNames.begin()));
    }
    return std::nullopt;
}

}  // namespace qz::sample
