#include "panes/layers/layer_visibility.h"

#include <algorithm>
#include <utility>

namespace qz {

namespace {

bool ShareGroup(const LayerRecord& one, const LayerRecord& other) noexcept {
    return std::ranges::find_first_of(one.groups, other.groups) != one.groups.end();
}

}  // namespace

/// A change under way.
class LayerVisibility::Step {
  public:
    explicit Step(LayerVisibility& rules) noexcept : rules_(rules), records_(rules.records_) {}

    /// What is chosen for a layer; it becomes visible or hidden in Apply or Settle.
    void Choose(std::size_t record, bool visible) {
        LayerRecord& layer = records_.All()[record];
        if (layer.wanted == visible) return;
        Remember(record);
        layer.wanted = visible;
    }

    /// Makes a layer visible or hidden. What stands below its items, but for one that the caller goes through
    /// itself, is left to Settle.
    void Apply(std::size_t record, bool visible, std::size_t done = noItem) {
        LayerRecord& layer = records_.All()[record];
        if (layer.visible == visible) return;
        Remember(record);
        layer.visible = visible;
        for (const std::size_t group : layer.groups) {
            auto& visibleOnes = rules_.visibleInGroup_[group];
            if (visible) {
                TurnOff(std::exchange(visibleOnes, {}));
                visibleOnes.push_back(record);
            } else {
                std::erase(visibleOnes, record);
            }
        }
        Leave(layer.items, done);
    }

    /// Applies what is chosen to all items of a range, each after those above it.
    void Pass(std::size_t first, std::size_t end) {
        for (std::size_t i = first; i < end; ++i) Update(i);
    }

    /// Applies what is chosen to all that stands below changed layers.
    void Settle() {
        while (!left_.empty()) {
            const std::size_t item = left_.back();
            left_.pop_back();
            Pass(item + 1, records_.Items()[item].end);
        }
    }

    void Remember(std::size_t record) {
        const LayerRecord& layer = records_.All()[record];
        change_.before.push_back({record, layer.wanted, layer.visible});
    }

    /// The whole change, every record once.
    LayerChange Finish() {
        auto& before = change_.before;
        if (!std::ranges::is_sorted(before, {}, &LayerChange::Before::record)) {
            std::ranges::stable_sort(before, {}, &LayerChange::Before::record);
        }
        const auto same = [](const auto& one, const auto& other) { return one.record == other.record; };
        before.erase(std::unique(before.begin(), before.end(), same), before.end());
        for (const LayerChange::Before& was : before) {
            const bool now = records_.All()[was.record].visible;
            if (now != was.visible) change_.writes.push_back({was.record, now});
        }
        return std::move(change_);
    }

  private:
    void TurnOff(const std::vector<std::size_t>& others) {
        for (const std::size_t other : others) {
            Choose(other, false);
            Apply(other, false);
        }
    }

    /// Of items that stand below one another the uppermost is enough.
    void Leave(const std::vector<std::size_t>& items, std::size_t done) {
        std::size_t end = 0;
        for (const std::size_t item : items) {
            if (item < end) continue;
            end = records_.Items()[item].end;
            if (item != done) left_.push_back(item);
        }
    }

    void Update(std::size_t index) {
        LayerItem& item = records_.Items()[index];
        LayerRecord& layer = records_.All()[item.record];
        const bool blocked = item.parent != noItem && rules_.Hides(item.parent);
        if (std::exchange(item.blocked, blocked) != blocked) {
            if (blocked) {
                --layer.openItems;
            } else {
                ++layer.openItems;
            }
        }
        if (!layer.Switchable()) return;
        const bool visible = layer.wanted && layer.openItems > 0;
        if (visible && !layer.visible && rules_.MateAbove(item.record, true)) {
            Choose(item.record, false);
        } else {
            Apply(item.record, visible, index);
        }
    }

    LayerVisibility& rules_;
    LayerRecords& records_;
    LayerChange change_;
    std::vector<std::size_t> left_;  ///< Items below which something is to be done.
};

void LayerVisibility::Start(LayerRecords records) {
    records_ = std::move(records);
    records_.Close();
    for (LayerRecord& layer : records_.All()) layer.wanted = layer.initially = layer.visible;
    UpdateMarks();
}

/// Whether what stands below an item is hidden with it.
bool LayerVisibility::Hides(std::size_t item) const noexcept {
    const LayerRecord& layer = records_.RecordOf(item);
    return records_.Items()[item].blocked || (layer.Switchable() && !layer.visible);
}

/// Whether a layer of the same group stands above, so that the two cannot both be visible nor this one alone.
bool LayerVisibility::MateAbove(std::size_t record, bool onlyVisible) const noexcept {
    const LayerRecord& layer = records_.All()[record];
    if (layer.groups.empty()) return false;
    for (std::size_t item : layer.items) {
        while ((item = records_.Items()[item].parent) != noItem) {
            const LayerRecord& above = records_.RecordOf(item);
            if (&above != &layer && (above.visible || !onlyVisible) && ShareGroup(layer, above)) return true;
        }
    }
    return false;
}

void LayerVisibility::UpdateMarks() noexcept {
    for (LayerRecord& layer : records_.All()) layer.openItems = 0;
    for (LayerItem& item : records_.Items()) {
        item.blocked = item.parent != noItem && Hides(item.parent);
        if (!item.blocked) ++records_.All()[item.record].openItems;
    }
    visibleInGroup_.assign(records_.GroupCount(), {});
    for (std::size_t record = 0; record < records_.All().size(); ++record) {
        const LayerRecord& layer = records_.All()[record];
        if (!layer.visible) continue;
        for (const std::size_t group : layer.groups) visibleInGroup_[group].push_back(record);
    }
}

// Changes
// ------------------------------------------------------------------------------------------------------

std::optional<LayerChange> LayerVisibility::Set(std::size_t record, bool visible) {
    const LayerRecord& layer = records_.All()[record];
    if (!layer.Switchable() || (visible && layer.DisabledByParent())) return std::nullopt;
    Step step(*this);
    if (!visible || !MateAbove(record, true)) {
        step.Choose(record, visible);
        step.Apply(record, visible);
        step.Settle();
    }
    return step.Finish();
}

LayerChange LayerVisibility::ShowOnly(std::size_t item) {
    Step step(*this);
    const LayerItem& chosen = records_.Items()[item];
    std::vector<bool> below(records_.All().size());
    for (std::size_t i = item + 1; i < chosen.end; ++i) below[records_.Items()[i].record] = true;
    for (std::size_t record = 0; record < below.size(); ++record) {
        if (!below[record]) step.Choose(record, false);
    }
    for (std::size_t i = item; i != noItem; i = records_.Items()[i].parent) {
        step.Choose(records_.Items()[i].record, true);
    }
    step.Pass(0, records_.Items().size());
    step.Settle();
    return step.Finish();
}

LayerChange LayerVisibility::SetAll(bool visible) {
    Step step(*this);
    ChooseAll(visible, step);
    step.Pass(0, records_.Items().size());
    step.Settle();
    return step.Finish();
}

/// Every layer, but of each radio-button group only the last one.
void LayerVisibility::ChooseAll(bool visible, Step& step) {
    std::vector<bool> taken(records_.GroupCount());
    for (std::size_t i = records_.Items().size(); i-- > 0;) {
        const std::size_t record = records_.Items()[i].record;
        const LayerRecord& layer = records_.All()[record];
        if (layer.items.back() != i) continue;
        const bool free =
            std::ranges::none_of(layer.groups, [&](std::size_t group) { return taken[group]; }) &&
            !MateAbove(record, false);
        step.Choose(record, visible && free);
        if (!free) continue;
        for (const std::size_t group : layer.groups) taken[group] = true;
    }
}

LayerChange LayerVisibility::Reset() {
    Step step(*this);
    for (std::size_t record = 0; record < records_.All().size(); ++record) {
        LayerRecord& layer = records_.All()[record];
        if (!layer.Switchable()) continue;
        step.Remember(record);
        layer.wanted = layer.visible = layer.initially;
    }
    UpdateMarks();
    return step.Finish();
}

void LayerVisibility::TakeHostState(std::size_t record, bool visible) noexcept {
    LayerRecord& layer = records_.All()[record];
    if (layer.visible != visible) layer.visible = layer.wanted = visible;
}

void LayerVisibility::Undo(const LayerChange& change, std::size_t written) noexcept {
    for (const LayerChange::Before& before : change.before) {
        LayerRecord& layer = records_.All()[before.record];
        layer.wanted = before.wanted;
        layer.visible = before.visible;
    }
    for (std::size_t i = 0; i < written; ++i)
        TakeHostState(change.writes[i].record, change.writes[i].visible);
    UpdateMarks();
}

}  // namespace qz
