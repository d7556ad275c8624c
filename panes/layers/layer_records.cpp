#include "panes/layers/layer_records.h"

#include <algorithm>

namespace qz {

LayerRecords::Added LayerRecords::AddItem(std::wstring name, std::size_t parent) {
    const auto [known, isNew] = byName_.try_emplace(name, records_.size());
    const std::size_t record = known->second;
    if (isNew) records_.emplace_back().name = std::move(name);
    records_[record].items.push_back(items_.size());
    items_.push_back({.record = record, .parent = parent, .end = items_.size() + 1});
    return {record, isNew};
}

void LayerRecords::Close() noexcept {
    for (std::size_t i = items_.size(); i-- > 0;) {
        if (items_[i].parent == noItem) continue;
        LayerItem& parent = items_[items_[i].parent];
        parent.end = std::max(parent.end, items_[i].end);
    }
}

void LayerRecords::AddGroup(std::span<const std::wstring> names) {
    const std::size_t group = groupCount_++;
    for (const std::wstring& name : names) {
        const auto record = Find(name);
        if (!record || records_[*record].missing) continue;
        std::vector<std::size_t>& groups = records_[*record].groups;
        if (groups.empty() || groups.back() != group) groups.push_back(group);
    }
}

std::optional<std::size_t> LayerRecords::Find(const std::wstring& name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? std::nullopt : std::optional(found->second);
}

std::vector<bool> LayerRecords::Listed(const std::vector<bool>& recordListed) const {
    std::vector<bool> listed(items_.size());
    for (std::size_t i = items_.size(); i-- > 0;) {
        const LayerItem& item = items_[i];
        listed[i] = listed[i] || (recordListed[item.record] && !records_[item.record].missing);
        if (listed[i] && item.parent != noItem) listed[item.parent] = true;
    }
    return listed;
}

}  // namespace qz
