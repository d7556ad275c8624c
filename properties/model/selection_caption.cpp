#include "properties/model/selection_caption.h"

namespace qz {

std::wstring SelectionCaption(bool hasObject, std::optional<long> selected, const std::wstring& name) {
    if (!hasObject) return L"<no-object>";
    if (selected && *selected >= 2) return L"<multiple-selection>";
    if (selected == 1 && name.empty()) return L"<no-name>";
    return name;
}

}  // namespace qz
