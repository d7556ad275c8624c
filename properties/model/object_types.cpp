#include "properties/model/object_types.h"

#include "properties/model/number_text.h"

#include <algorithm>
#include <optional>

namespace qz {

namespace {

std::optional<ObjectTypeName> PairIn(std::wstring_view piece) {
    const std::wstring_view digits = piece.substr(0, piece.find_first_not_of(L"0123456789"));
    const std::optional<std::int32_t> number = WholeNumberOf(digits);
    const std::wstring_view name = piece.substr(digits.size());
    if (!number || name.empty()) return std::nullopt;
    return ObjectTypeName{*number, std::wstring(name)};
}

}  // namespace

ObjectTypeNames::ObjectTypeNames(std::wstring_view text) {
    for (std::size_t slash = text.find(L'/'); slash != std::wstring_view::npos; slash = text.find(L'/')) {
        text.remove_prefix(slash + 1);
        std::optional<ObjectTypeName> pair = PairIn(text.substr(0, text.find(L'/')));
        if (pair) pairs_.push_back(*std::move(pair));
    }
}

std::wstring ObjectTypeNames::NameOf(int number) const {
    const auto found = std::ranges::find(pairs_, number, &ObjectTypeName::number);
    return found == pairs_.end() ? std::wstring() : found->name;
}

}  // namespace qz
