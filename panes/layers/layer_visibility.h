// Which layers are visible, and what must be written to the host when that changes.
#pragma once

#include "panes/layers/layer_records.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace qz {

/// A layer's state that the host does not have yet.
struct LayerWrite {
    std::size_t record = 0;
    bool visible = false;

    bool operator==(const LayerWrite&) const = default;
};

/// What a change has done to the records: `writes`, in the order of the records, holds every layer whose
/// state in the host differs from what it was, once.
struct LayerChange {
    struct Before {
        std::size_t record;
        bool wanted;
        bool visible;
    };
    std::vector<LayerWrite> writes;
    std::vector<Before> before;  ///< For Undo.
};

/// The rules of visibility. A layer has a state of its own, what was chosen for it, and one in the host:
/// below a hidden layer it is hidden, keeps its own state and gets that back when the layer above is shown
/// again. Of a radio-button group one layer at most is visible: one that becomes visible, chosen or because
/// what is above it is shown, turns the others off. Where several become visible at once, the last in the
/// tree's order stays.
///
/// What the host says is taken as it is, also when it breaks the rules; they apply to what changes here.
/// Every change costs what stands below the layers concerned, not the whole tree.
class LayerVisibility {
  public:
    /// Takes what was read from the host: `visible` of every layer.
    void Start(LayerRecords records);

    const LayerRecords& Records() const noexcept { return records_; }

    /// Shows or hides a layer. Nothing when it cannot be shown below a hidden layer, or has no state at all.
    /// No change when a layer above it, that would have to go, is of the same radio-button group.
    std::optional<LayerChange> Set(std::size_t record, bool visible);
    /// Shows the layer of an item and all that is above it, hides everything else but leaves what is below it
    /// as it was chosen.
    LayerChange ShowOnly(std::size_t item);
    LayerChange SetAll(bool visible);
    /// The states of Start again, exactly.
    LayerChange Reset();

    /// Takes a state that the host tells. It is the layer's own from then on when it is news.
    void TakeHostState(std::size_t record, bool visible) noexcept;
    /// To be called when host states were taken: derives the marks of layers below hidden ones.
    void UpdateMarks() noexcept;
    void TakeDisplayName(std::size_t record, std::wstring name) {
        records_.All()[record].displayName = std::move(name);
    }

    /// Takes a change back of whose writes the first `written` have reached the host; those stay.
    void Undo(const LayerChange& change, std::size_t written) noexcept;

  private:
    class Step;

    bool Hides(std::size_t item) const noexcept;
    bool MateAbove(std::size_t record, bool onlyVisible) const noexcept;
    void ChooseAll(bool visible, Step& step);

    LayerRecords records_;
    std::vector<std::vector<std::size_t>> visibleInGroup_;
};

}  // namespace qz
